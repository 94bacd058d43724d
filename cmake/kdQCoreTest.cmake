# kdqcore_test(<file.cpp> [LAYERS <folder>...] [LIBRARIES <target>...] [LABELS <label>...] [TIMEOUT <s>]
#              [LAUNCHER <command>...])
#
# One Qt Test executable, named as the file; its CTest label is its folder. LAYERS opens the private headers of
# these folders: such a test links the whole library statically, since the shared one does not export internals.
# LAUNCHER stands before the test's command.

set(kdqcore_locale_dir ${CMAKE_BINARY_DIR}/locale)
find_program(LOCALEDEF localedef)
if(LOCALEDEF AND NOT EXISTS ${kdqcore_locale_dir}/de_DE.UTF-8)
    # A locale with a decimal comma, so that tests of number texts mean something on any machine.
    file(MAKE_DIRECTORY ${kdqcore_locale_dir})
    execute_process(COMMAND ${LOCALEDEF} -i de_DE -f UTF-8 ${kdqcore_locale_dir}/de_DE.UTF-8
                    OUTPUT_QUIET ERROR_QUIET)
endif()

set(kdqcore_test_environment "LOCPATH=${kdqcore_locale_dir};LC_ALL=de_DE.UTF-8;TZ=Asia/Kathmandu"
    "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/tsan.supp"
    "LSAN_OPTIONS=print_suppressions=0:suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp")

function(kdqcore_test source)
    cmake_parse_arguments(TEST "" "TIMEOUT" "LAYERS;LIBRARIES;LABELS;LAUNCHER" ${ARGN})
    get_filename_component(name ${source} NAME_WE)
    get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 120)
    endif()
    add_executable(${name} ${source})
    set(library kdQCore::kdQCore)
    if(TEST_LAYERS)
        set(library kdqcore_internal)
    endif()
    target_link_libraries(${name} PRIVATE kdqcore_testsupport ${library} kdqcore_flags ${TEST_LIBRARIES})
    foreach(layer IN LISTS TEST_LAYERS)
        get_property(included GLOBAL PROPERTY kdqcore_includes_${layer})
        target_include_directories(${name} PRIVATE ${included})
    endforeach()
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        set(emulator ${CMAKE_CROSSCOMPILING_EMULATOR}-test)
        set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR ${emulator})
    endif()
    if(TEST_LAUNCHER)
        add_test(NAME ${name} COMMAND ${TEST_LAUNCHER} ${emulator} $<TARGET_FILE:${name}>)
    else() # a bare target runs through the emulator where there is one
        add_test(NAME ${name} COMMAND ${name})
    endif()
    set_tests_properties(${name} PROPERTIES
        LABELS "${folder};${TEST_LABELS}" TIMEOUT ${TEST_TIMEOUT}
        FAIL_REGULAR_EXPRESSION "QWARN  :" # an unexpected warning of Qt is a failure
        ENVIRONMENT "${kdqcore_test_environment};KDQ_TEST_DATA=${PROJECT_SOURCE_DIR}")
endfunction()
