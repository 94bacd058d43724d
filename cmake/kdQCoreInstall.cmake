# kdqcore_install_program(<target>)
#
# Installs an application of the family. It finds the library from where it lies itself, wherever the tree is moved.
# The target "applications" builds all of them, and so all that an installation needs.

add_custom_target(applications)

function(kdqcore_install_program target)
    add_dependencies(applications ${target})
    file(RELATIVE_PATH library_dir /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${library_dir}")
    if(TARGET kdqcore_translations)
        add_dependencies(${target} kdqcore_translations)
    endif()
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Applications)
    if(NOT CMAKE_CROSSCOMPILING AND NOT WIN32)
        kdqcore_manual_page(${target})
    endif()
endfunction()

# The program writes its page itself; packages hold it compressed.
function(kdqcore_manual_page target)
    set(page ${target}.1)
    add_custom_command(OUTPUT ${page}
        COMMAND ${CMAKE_COMMAND} -E env LANGUAGE=en "LOCALAPPDATA=${CMAKE_CURRENT_BINARY_DIR}/data"
                $<TARGET_FILE:${target}> --manual > ${page}
        DEPENDS ${target} VERBATIM)
    set_property(GLOBAL APPEND PROPERTY kdqcore_manual_pages ${CMAKE_CURRENT_BINARY_DIR}/${page})
    set(installed ${page})
    if(KDQCORE_DEBIAN)
        set(installed ${page}.gz)
        add_custom_command(OUTPUT ${installed} COMMAND gzip -9nkf ${page} DEPENDS ${page} VERBATIM)
    endif()
    add_custom_target(${target}_manual ALL DEPENDS ${page} ${installed})
    add_dependencies(applications ${target}_manual)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${installed} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
            COMPONENT Applications)
endfunction()
