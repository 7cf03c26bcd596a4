# The installed game, laid out by GNUInstallDirs under any prefix:
#
#   bin/teselari                                the executable
#   games/teselari                              a link to it, where Debian keeps games
#   share/teselari/                             the program's folder: the sample pictures
#   share/applications/es.teselari.Teselari.desktop
#   share/metainfo/es.teselari.Teselari.metainfo.xml
#   share/icons/hicolor/NxN/apps/teselari.png   32, 48, 64, 128, 256
#   share/icons/hicolor/scalable/apps/teselari.svg
#   share/doc/teselari/copyright, changelog.gz
#   share/man/man6/teselari.6.gz
#
# The executable finds its program's folder relative to its own, so the tree
# works wherever it is put. Included by the top CMakeLists.txt once the
# target `teselari` exists.

set(TESELARI_ID es.teselari.Teselari)
set(TESELARI_CARPETA_DATOS ${CMAKE_INSTALL_DATADIR}/teselari)
set(TESELARI_CARPETA_DOC ${CMAKE_INSTALL_DATAROOTDIR}/doc/teselari)
set(TESELARI_MANTENEDOR "Teselari <teselari@teselari.example>" CACHE STRING
  "The package's maintainer and the upstream contact, as Name <address>")
set(TESELARI_URL_CAPTURA "https://teselari.example/capturas/tablero.png" CACHE STRING
  "Where the AppStream screenshot of the game is published")
set(TESELARI_FECHA_VERSION 2026-11-23)
set(TESELARI_FECHA_CAMBIOS "Mon, 23 Nov 2026 12:00:00 +0000")

file(RELATIVE_PATH _teselari_datos_relativos ${CMAKE_INSTALL_FULL_BINDIR}
  ${CMAKE_INSTALL_FULL_DATADIR}/teselari)
target_compile_definitions(teselari_qt PRIVATE
  TESELARI_DATOS_INSTALADOS="${_teselari_datos_relativos}"
  TESELARI_ID_ESCRITORIO="${TESELARI_ID}")

set(_esc ${CMAKE_CURRENT_SOURCE_DIR}/assets/escritorio)
set(_gen ${CMAKE_CURRENT_BINARY_DIR}/escritorio)
configure_file(${_esc}/${TESELARI_ID}.metainfo.xml.in ${_gen}/${TESELARI_ID}.metainfo.xml @ONLY)
configure_file(${_esc}/copyright.in ${_gen}/copyright @ONLY)
configure_file(${_esc}/changelog.in ${_gen}/changelog @ONLY)
add_custom_command(OUTPUT ${_gen}/changelog.gz
  COMMAND gzip -9nc ${_gen}/changelog > ${_gen}/changelog.gz
  DEPENDS ${_gen}/changelog VERBATIM)
add_custom_command(OUTPUT ${_gen}/teselari.6.gz
  COMMAND gzip -9nc ${_esc}/teselari.6 > ${_gen}/teselari.6.gz
  DEPENDS ${_esc}/teselari.6 VERBATIM)
add_custom_target(teselari_cambios ALL DEPENDS ${_gen}/changelog.gz ${_gen}/teselari.6.gz)

teselari_instala_muestras(${TESELARI_CARPETA_DATOS})
install(FILES ${_esc}/${TESELARI_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${_gen}/${TESELARI_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(_lado 32 48 64 128 256)
  install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/assets/iconos/teselari-${_lado}.png
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${_lado}x${_lado}/apps
    RENAME teselari.png)
endforeach()
install(FILES ${CMAKE_CURRENT_SOURCE_DIR}/assets/iconos/teselari.svg
  DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
file(RELATIVE_PATH _teselari_desde_games ${CMAKE_INSTALL_PREFIX}/games
  ${CMAKE_INSTALL_FULL_BINDIR}/teselari)
file(CREATE_LINK ${_teselari_desde_games} ${_gen}/teselari SYMBOLIC)
install(FILES ${_gen}/teselari DESTINATION games)
install(FILES ${_gen}/teselari.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${_gen}/copyright ${_gen}/changelog.gz DESTINATION ${TESELARI_CARPETA_DOC})
