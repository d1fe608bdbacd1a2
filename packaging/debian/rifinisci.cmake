# Run by CPack between laying the components down and packing them: adds what a Debian package must
# have beside the installed files, and compresses what it must have compressed.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()

function(comprimi)
    # Without name and time, so that the same sources give the same package.
    execute_process(COMMAND gzip -9n ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# A file of this folder under another name, readable by all whatever it is here.
function(deponi file cartella nome)
    file(COPY ${CMAKE_CURRENT_LIST_DIR}/${file} DESTINATION ${cartella}
        FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    if(NOT file STREQUAL nome)
        file(RENAME ${cartella}/${file} ${cartella}/${nome})
    endif()
endfunction()

# Of what CPack has stripped: notes of the compiler go too, and debug lines of archives.
function(alleggerisci radice)
    file(GLOB_RECURSE archivi ${radice}/*.a)
    file(GLOB_RECURSE eseguibili ${radice}/bin/* ${radice}/*.so.*)
    foreach(file ${eseguibili} ${archivi})
        if(NOT IS_SYMLINK ${file})
            execute_process(COMMAND strip --strip-debug --enable-deterministic-archives
                --remove-section=.comment --remove-section=.note ${file}
                COMMAND_ERROR_IS_FATAL ANY)
        endif()
    endforeach()
endfunction()

foreach(componente ${CPACK_COMPONENTS_ALL})
    string(TOUPPER ${componente} maiuscolo)
    set(pacchetto ${CPACK_DEBIAN_${maiuscolo}_PACKAGE_NAME})
    alleggerisci(${CPACK_TEMPORARY_DIRECTORY}/${componente}/usr)

    set(dati ${CPACK_TEMPORARY_DIRECTORY}/${componente}/usr/share)
    file(GLOB_RECURSE manuali ${dati}/man/*.1)
    if(manuali)
        comprimi(${manuali})
    endif()

    deponi(copyright ${dati}/doc/${pacchetto} copyright)
    deponi(changelog ${dati}/doc/${pacchetto} changelog.Debian)
    comprimi(${dati}/doc/${pacchetto}/changelog.Debian)
    if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/${pacchetto}.lintian-overrides)
        deponi(${pacchetto}.lintian-overrides ${dati}/lintian/overrides ${pacchetto})
    endif()
endforeach()
