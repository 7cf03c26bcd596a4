# The Debian package, made by `cpack -G DEB` in a Release build folder:
# teselari_VERSION_ARCH.deb, installing under /usr. The libraries the game
# links are found by dpkg-shlibdeps; what it needs at run time without
# linking it is listed here, in one place.

# Run-time packages the game does not link:
#   fonts-liberation    Liberation Sans, the face of the forms and the messages
#   fonts-dejavu-core   the desktop's plain sans face, for the help window's text
#   fonts-urw-base35    the fonts without which libwmf reads no WMF picture
set(TESELARI_PAQUETES_EJECUCION fonts-liberation fonts-dejavu-core fonts-urw-base35)
# Wanted but not needed: Qt's native Wayland platform (without it the game
# runs through XWayland).
set(TESELARI_PAQUETES_RECOMENDADOS qt6-wayland)

list(JOIN TESELARI_PAQUETES_EJECUCION ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
list(JOIN TESELARI_PAQUETES_RECOMENDADOS ", " CPACK_DEBIAN_PACKAGE_RECOMMENDS)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME teselari)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${TESELARI_MANTENEDOR}")
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "jigsaw puzzles of any picture (in Spanish)")
# The synopsis comes from the summary; CPack indents the rest.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Teselari cuts any picture into a puzzle of 3 x 3 up to 20 x 20 cells and
deals the pieces over the screen, to be put back together with the mouse.
It has six cuts (rectangles, classic pieces with knobs, and four double
puzzles of circles, rectangles, ellipses and stars), reads BMP, JPEG, WMF
and EMF pictures or the clipboard's, and keeps the game in progress between
runs. The game speaks Spanish.")

include(CPack)
