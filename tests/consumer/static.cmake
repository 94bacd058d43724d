# cmake -D BUILD=<folder> -D SOURCE=... (as run.cmake) -P static.cmake
# Builds library and programs anew in BUILD, with a static library, and looks at the installed package in the same way.
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BUILD} -G Ninja -DCMAKE_BUILD_TYPE=Release
                        -DBUILD_SHARED_LIBS=OFF -DKDQCORE_BUILD_TESTS=OFF -DCMAKE_CXX_COMPILER=${COMPILER}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD} --target applications COMMAND_ERROR_IS_FATAL ANY)
include(${CMAKE_CURRENT_LIST_DIR}/run.cmake)
