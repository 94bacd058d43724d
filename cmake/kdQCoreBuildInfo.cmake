# kdqcore_build_info(<template> <output>)
#
# Fills in the source revision, its number and date, and the build date. Packagers without a repository set
# KDQCORE_REVISION, KDQCORE_REVISION_NUMBER and KDQCORE_REVISION_DATE; SOURCE_DATE_EPOCH fixes the build date.

function(kdqcore_build_info template output)
    find_package(Git QUIET)
    # Unpacked inside another repository, that one's revision would say nothing about us.
    if(NOT KDQCORE_REVISION AND Git_FOUND AND EXISTS ${PROJECT_SOURCE_DIR}/.git)
        execute_process(COMMAND ${GIT_EXECUTABLE} log -1 --format=%h%n%cs%n
                        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                        OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
        if(commit)
            string(REPLACE "\n" ";" commit "${commit}")
            list(GET commit 0 KDQCORE_REVISION)
            list(GET commit 1 KDQCORE_REVISION_DATE)
        endif()
        execute_process(COMMAND ${GIT_EXECUTABLE} rev-list --count HEAD
                        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                        OUTPUT_VARIABLE KDQCORE_REVISION_NUMBER OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
        execute_process(COMMAND ${GIT_EXECUTABLE} rev-parse --absolute-git-dir
                        WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
                        OUTPUT_VARIABLE git_dir OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
        if(EXISTS ${git_dir}/logs/HEAD)
            set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${git_dir}/logs/HEAD)
        endif()
    endif()
    if(NOT KDQCORE_REVISION)
        set(KDQCORE_REVISION "unknown")
    endif()
    if(NOT KDQCORE_REVISION_NUMBER)
        set(KDQCORE_REVISION_NUMBER 0)
    endif()
    if(NOT KDQCORE_REVISION_DATE)
        set(KDQCORE_REVISION_DATE "unknown")
    endif()

    # One build date for one revision: a configuration run alone must not rebuild anything.
    if(NOT KDQCORE_BUILD_DATE OR NOT KDQCORE_DATED_REVISION STREQUAL KDQCORE_REVISION OR DEFINED ENV{SOURCE_DATE_EPOCH})
        string(TIMESTAMP date "%b %d %Y" UTC)
        string(TIMESTAMP time "%H:%M:%S" UTC)
        set(KDQCORE_BUILD_DATE "${date}" CACHE INTERNAL "Date of the build")
        set(KDQCORE_BUILD_TIME "${time}" CACHE INTERNAL "Time of the build, UTC")
        set(KDQCORE_DATED_REVISION "${KDQCORE_REVISION}" CACHE INTERNAL "Revision of that date")
    endif()
    configure_file(${template} ${output} @ONLY)
endfunction()
