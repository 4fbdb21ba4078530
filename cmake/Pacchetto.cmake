# The Debian package: `cpack` in a release build's folder, or packaging/pacchetto.sh, which makes it from nothing
# (docs/installare.md).
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ordavia)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Ordavia <ordavia@ordavia.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "editor of Velkor's print templates")
set(CPACK_PACKAGE_DESCRIPTION [[
Ordavia is the desktop editor of the templates that Velkor, an accounting
product, prints its invoices, orders, delivery notes and labels through.
Codes in their text stand for the fields of the document: the editor keeps
them whole, and shows beside the template what it will print.
.
parvik32-batch, its companion without a display, renders, lists and normalises
templates from scripts.]])
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS ${CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-translations-l10n, fonts-dejavu-core | fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "bash-completion")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${PARVIK_SITO})
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/PreparaPacchetto.cmake)
set(CPACK_PARVIK_FONTI ${PROJECT_SOURCE_DIR})
include(CPack)
