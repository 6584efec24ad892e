# Where `cmake --install` puts things, and what of it belongs to which component: "kirto" is the editor,
# "kirto-cli" the command line. The programs find their files as seen from themselves, so that what is
# installed may be moved.

include(GNUInstallDirs)

# The name of the program among those of a desktop; files of other folders go by it.
set(KIRTO_ID org.kirto.Kirto)
# Whoever publishes the program says where. The default can never be anybody's.
set(KIRTO_HOMEPAGE "https://kirto.example" CACHE STRING "Address of the pages about the program")
set(KIRTO_RELEASE_DATE "2026-11-22")

set(kirto_data ${CMAKE_INSTALL_DATADIR}/kirto)
set(kirto_helpers ${CMAKE_INSTALL_LIBEXECDIR}/kirto)
file(RELATIVE_PATH KIRTO_DATA_FOLDER
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_DATADIR}/kirto)
file(RELATIVE_PATH KIRTO_HELPER_FOLDER
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBEXECDIR}/kirto)

# The editor and its guide.
function(kirto_install_editor)
    install(TARGETS kirto COMPONENT kirto)
    install(FILES ${PROJECT_BINARY_DIR}/kirto.rsrc DESTINATION ${kirto_data} COMPONENT kirto)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/guide ${PROJECT_SOURCE_DIR}/docs/pictures
        DESTINATION ${kirto_data} COMPONENT kirto)
endfunction()

# What tells a desktop about the editor.
function(kirto_install_desktop_files)
    set(from ${PROJECT_SOURCE_DIR}/packaging)
    configure_file(${from}/${KIRTO_ID}.metainfo.xml.in
        ${PROJECT_BINARY_DIR}/${KIRTO_ID}.metainfo.xml @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${KIRTO_ID}.metainfo.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT kirto)
    install(FILES ${from}/${KIRTO_ID}.desktop
        DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT kirto)
    install(FILES ${from}/${KIRTO_ID}.xml
        DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages COMPONENT kirto)
    set(icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
    install(FILES ${PROJECT_SOURCE_DIR}/resources/kirto.svg
        DESTINATION ${icons}/scalable/apps RENAME ${KIRTO_ID}.svg COMPONENT kirto)
    foreach(size 16 22 24 32 48 64 128 256)
        install(FILES ${from}/icons/${size}.png
            DESTINATION ${icons}/${size}x${size}/apps RENAME ${KIRTO_ID}.png COMPONENT kirto)
    endforeach()
endfunction()

# The command line; what it becomes to write image files, and what reads them for both programs, is
# nothing that a user starts.
function(kirto_install_cli)
    install(TARGETS kirto-cli COMPONENT kirto-cli)
    install(TARGETS kirto-cli-images kirto-decode
        RUNTIME DESTINATION ${kirto_helpers} COMPONENT kirto-cli)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/kirto.thumbnailer
        DESTINATION ${CMAKE_INSTALL_DATADIR}/thumbnailers COMPONENT kirto-cli)
endfunction()

# The manual page of a program, which is its component's name, and what shells complete of it.
function(kirto_install_manual program)
    set(from ${PROJECT_BINARY_DIR}/manual/${program})
    install(FILES ${from}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${program})
    install(FILES ${from}.bash
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        RENAME ${program} COMPONENT ${program})
    install(FILES ${from}.zsh
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions
        RENAME _${program} COMPONENT ${program})
    install(FILES ${from}.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT ${program})
endfunction()

function(kirto_install)
    kirto_install_manual(kirto)
    kirto_install_manual(kirto-cli)
    kirto_install_editor()
    kirto_install_desktop_files()
    kirto_install_cli()
endfunction()
