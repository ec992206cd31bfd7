# What the windows carry inside: the text font made of Inter, the font of symbols, the program's icon.
# Both fonts come from Debian packages (docs/dependencies.md).
set(inter /usr/share/fonts/opentype/inter CACHE PATH "Folder of the Inter faces (fonts-inter)")
set(simbolos /usr/share/fonts/truetype/material-design-icons-iconfont/MaterialIcons-Regular.ttf
    CACHE FILEPATH "Font of symbols (fonts-material-design-icons-iconfont)")
set(preparador ${CMAKE_SOURCE_DIR}/cmake/preparar_fuente.py)
set(carpeta_fuentes ${CMAKE_CURRENT_BINARY_DIR}/fuentes)
file(MAKE_DIRECTORY ${carpeta_fuentes})

if(NOT EXISTS ${simbolos})
  message(FATAL_ERROR "${simbolos} is missing: install fonts-material-design-icons-iconfont.")
endif()
execute_process(COMMAND /usr/bin/python3 -c "import fontTools" RESULT_VARIABLE sin_fonttools ERROR_QUIET)
if(sin_fonttools)
  message(FATAL_ERROR "python3-fonttools is missing: the text font cannot be made.")
endif()

set(fuentes_embebidas)
foreach(estilo Regular Medium SemiBold Bold)
  if(NOT EXISTS ${inter}/Inter-${estilo}.otf)
    message(FATAL_ERROR "${inter}/Inter-${estilo}.otf is missing: install fonts-inter.")
  endif()
  set(salida ${carpeta_fuentes}/OvantaTexto-${estilo}.otf)
  add_custom_command(OUTPUT ${salida}
    COMMAND /usr/bin/python3 ${preparador} ${inter}/Inter-${estilo}.otf ${salida} ${estilo}
    DEPENDS ${preparador} ${inter}/Inter-${estilo}.otf
    VERBATIM)
  set_source_files_properties(${salida} PROPERTIES QT_RESOURCE_ALIAS OvantaTexto-${estilo}.otf GENERATED TRUE)
  list(APPEND fuentes_embebidas ${salida})
endforeach()
set_source_files_properties(${simbolos} PROPERTIES QT_RESOURCE_ALIAS simbolos.ttf)
qt_add_resources(ovanta_interfaz fuentes PREFIX /ovanta/fuentes FILES ${fuentes_embebidas} ${simbolos})

set(icono ${CMAKE_SOURCE_DIR}/resources/icono/belmora-ovanta-icon.svg)
set_source_files_properties(${icono} PROPERTIES QT_RESOURCE_ALIAS belmora-ovanta-icon.svg)
qt_add_resources(ovanta_interfaz imagenes PREFIX /ovanta/imagenes FILES ${icono})
