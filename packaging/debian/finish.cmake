# Run by CPack when the files of a Debian package lie where the package is made of them: adds what
# every package of Debian has, and compresses what is compressed there.

# compress(FILE): in its place, with the same bytes each time.
function(compress file)
    execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(package kirto kirto-cli)
    set(tree ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/${package}/usr)
    set(documents ${tree}/share/doc/${package})
    file(COPY ${CPACK_KIRTO_DEBIAN_FILES}/copyright DESTINATION ${documents}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    file(COPY ${CPACK_KIRTO_DEBIAN_CHANGELOG} DESTINATION ${documents}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    compress(${documents}/changelog)
    compress(${tree}/share/man/man1/${package}.1)
    # Whatever the umask of whoever makes the package.
    execute_process(COMMAND chmod -R u=rwX,go=rX ${tree} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
