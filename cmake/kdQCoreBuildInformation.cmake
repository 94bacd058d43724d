# Sets KDQCORE_REVISION, KDQCORE_REVISION_DATE, KDQCORE_BUILD_DATE and KDQCORE_BUILD_TIME.
#
# The build's date and time are those of the first configuration of a revision, kept in the cache: a build tree that is
# configured again compiles nothing for their sake. SOURCE_DATE_EPOCH, where set, takes their place.

function(kdqcore_git result)
    execute_process(COMMAND ${GIT_EXECUTABLE} -C ${PROJECT_SOURCE_DIR} ${ARGN}
                    OUTPUT_VARIABLE output OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE failed)
    if(failed)
        set(output "")
    endif()
    set(${result} "${output}" PARENT_SCOPE)
endfunction()

set(KDQCORE_REVISION 0)
set(KDQCORE_REVISION_DATE "")
find_package(Git QUIET)
# A .git of this very folder: unpacked inside another repository, that one's revision says nothing about us.
if(GIT_FOUND AND EXISTS ${PROJECT_SOURCE_DIR}/.git)
    kdqcore_git(revision rev-list --count HEAD)
    kdqcore_git(revision_date log -1 --format=%cd --date=format:%Y-%m-%d)
    if(revision MATCHES "^[0-9]+$" AND revision_date)
        set(KDQCORE_REVISION ${revision})
        set(KDQCORE_REVISION_DATE ${revision_date})
    endif()
endif()

set(stamp_key "${KDQCORE_REVISION}/$ENV{SOURCE_DATE_EPOCH}")
if(NOT KDQCORE_BUILD_STAMP_KEY STREQUAL stamp_key)
    string(TIMESTAMP stamp "%Y-%m-%d %H:%M:%S" UTC)
    set(KDQCORE_BUILD_STAMP_KEY ${stamp_key} CACHE INTERNAL "What KDQCORE_BUILD_STAMP was taken for")
    set(KDQCORE_BUILD_STAMP ${stamp} CACHE INTERNAL "When this revision was first configured")
endif()
string(REPLACE " " ";" stamp_parts ${KDQCORE_BUILD_STAMP})
list(GET stamp_parts 0 KDQCORE_BUILD_DATE)
list(GET stamp_parts 1 KDQCORE_BUILD_TIME)
if(NOT KDQCORE_REVISION_DATE)
    set(KDQCORE_REVISION_DATE ${KDQCORE_BUILD_DATE})
endif()
