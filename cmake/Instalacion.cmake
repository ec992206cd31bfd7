# Where things lie in an installation; the programs look for the rest from their own folder.
include(GNUInstallDirs)

install(TARGETS OvantaBar RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS ovanta_interfaz LIBRARY DESTINATION lib/ovanta)
install(FILES resources/linux/rules.json DESTINATION ${CMAKE_INSTALL_DATADIR}/ovanta/linux)
install(DIRECTORY resources/icono/ DESTINATION ${CMAKE_INSTALL_DATADIR}/ovanta/icono)
install(FILES resources/icono/belmora-ovanta-icon.svg RENAME com.belmora.Ovanta.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
install(FILES resources/com.belmora.Ovanta.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES resources/com.belmora.Ovanta.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
configure_file(resources/com.belmora.Ovanta.service.in ${CMAKE_BINARY_DIR}/com.belmora.Ovanta.service @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/com.belmora.Ovanta.service DESTINATION ${CMAKE_INSTALL_DATADIR}/dbus-1/services)
