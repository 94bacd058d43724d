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
endfunction()
