# cmake -D RUN_WINE=<script> -D PROGRAM=<crashhelper.exe> -P crash_guard.cmake
# A program that crashes must not look like one that succeeded, neither to the script that runs all programs of the
# build nor to the one that runs the tests.

function(expect runner way success)
    execute_process(COMMAND ${runner} ${PROGRAM} ${way} RESULT_VARIABLE status OUTPUT_VARIABLE output
                    ERROR_VARIABLE output)
    if((status EQUAL 0 AND NOT success) OR (NOT status EQUAL 0 AND success))
        message(SEND_ERROR "${runner} ended '${way}' with ${status}:\n${output}")
    endif()
endfunction()

expect(${RUN_WINE} quiet TRUE)
expect(${RUN_WINE}-test quiet FALSE) # says nothing of its end
expect(${RUN_WINE}-test passed TRUE)
foreach(crash abort segfault exception)
    foreach(round RANGE 4) # with wine's debugger on, some crashes look like success and some do not
        expect(${RUN_WINE} ${crash} FALSE)
        expect(${RUN_WINE}-test passed-${crash} FALSE)
    endforeach()
endforeach()
