# Warnings, sanitizers and link options that every target shares.
add_library(ovanta_opciones INTERFACE)
target_compile_options(ovanta_opciones INTERFACE -Wall -Wextra -Wpedantic)
if(OVANTA_WERROR)
  target_compile_options(ovanta_opciones INTERFACE -Werror)
endif()
target_include_directories(ovanta_opciones INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_definitions(ovanta_opciones INTERFACE
  _FILE_OFFSET_BITS=64 QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

# ccache can only reuse a precompiled header whose timestamp is not inside it.
add_compile_options($<$<CXX_COMPILER_ID:Clang>:-fpch-instantiate-templates>
                    "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
add_link_options(-fuse-ld=lld)
string(APPEND CMAKE_CXX_FLAGS_DEBUG " -g1 -O1")
string(APPEND CMAKE_CXX_FLAGS_RELEASE " -O2")
if(OVANTA_SANEADORES)
  add_compile_options(-fsanitize=${OVANTA_SANEADORES} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${OVANTA_SANEADORES})
endif()
if(OVANTA_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# The sources of a target are compiled together, a few at a time: most of the time of a build from nothing goes
# into reading the same headers again. OFF gives each file its own object, quicker for work on one file.
option(OVANTA_UNIDAD "Compile the sources of a target in groups" ON)
function(ovanta_unidad destino)
  if(OVANTA_UNIDAD)
    set_target_properties(${destino} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
  endif()
endfunction()
