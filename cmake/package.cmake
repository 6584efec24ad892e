# What CPack makes Debian packages of: one of each component of the installation.

set(KIRTO_CONTACT "developers@kirto.example" CACHE STRING "Address of whoever makes the packages")
set(KIRTO_CHANGELOG_DATE "Sun, 22 Nov 2026 12:00:00 +0000")
configure_file(packaging/debian/changelog.in ${PROJECT_BINARY_DIR}/debian/changelog @ONLY)

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL kirto kirto-cli)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian/finish.cmake)
set(CPACK_KIRTO_DEBIAN_FILES ${PROJECT_SOURCE_DIR}/packaging/debian)
set(CPACK_KIRTO_DEBIAN_CHANGELOG ${PROJECT_BINARY_DIR}/debian/changelog)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "The Kirto developers <${KIRTO_CONTACT}>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE ${KIRTO_HOMEPAGE})
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_KIRTO_PACKAGE_NAME kirto)
set(CPACK_COMPONENT_KIRTO_DESCRIPTION
    "editor of frame animations
Takes GIF, FLI and FLC animations apart into frames, inserts images, moves,
times, recolors and fades frames, and writes animated GIFs or images.
.
This is the editor with its windows.")
set(CPACK_DEBIAN_KIRTO_PACKAGE_DEPENDS
    "kirto-cli (= ${PROJECT_VERSION}), qt6-qpa-plugins, libqt6svg6, fonts-dejavu-core")
set(CPACK_DEBIAN_KIRTO_PACKAGE_RECOMMENDS
    "ffmpeg, qt6-image-formats-plugins, qt6-translations-l10n, qt6-wayland")

set(CPACK_DEBIAN_KIRTO-CLI_PACKAGE_NAME kirto-cli)
set(CPACK_COMPONENT_KIRTO-CLI_DESCRIPTION
    "editor of frame animations for the command line
Takes GIF, FLI and FLC animations apart into frames, inserts images, moves,
times, recolors and fades frames, and writes animated GIFs or images.
.
This is the program for scripts, without windows.")
set(CPACK_DEBIAN_KIRTO-CLI_PACKAGE_DEPENDS "qt6-qpa-plugins, fonts-dejavu-core")
set(CPACK_DEBIAN_KIRTO-CLI_PACKAGE_RECOMMENDS "ffmpeg, qt6-image-formats-plugins, libqt6svg6")
set(CPACK_DEBIAN_KIRTO-CLI_PACKAGE_SUGGESTS kirto)

include(CPack)
