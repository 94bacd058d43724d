# cmake -D BUILD=<kdQCore build> -D WORK=<empty folder> -D SOURCE=<kdQCore source> -D COMPILER=<c++> -D LAUNCHER=<ccache...> -P run.cmake
# Installs the package into a prefix of its own and builds outside projects on it, with CMake and with pkg-config.

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nfailed (${status}):\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
set(prefix ${WORK}/prefix)
set(first_deck ${SOURCE}/examples/first_deck)
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})

run(${CMAKE_COMMAND} -S ${SOURCE}/tests/consumer -B ${WORK}/cmake -G Ninja -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=${COMPILER} "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
    -DCMAKE_CXX_FLAGS=${FLAGS} -DFIRST_DECK=${first_deck})
run(${CMAKE_COMMAND} --build ${WORK}/cmake)
run(${WORK}/cmake/first_deck/first_deck ${WORK}/cmake.dat)

file(GLOB_RECURSE pc ${prefix}/*/kdQCore.pc)
get_filename_component(pc_dir ${pc} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
run(pkg-config --cflags --libs kdQCore)
separate_arguments(flags UNIX_COMMAND "${output} ${FLAGS}")
get_filename_component(libdir ${pc_dir} DIRECTORY)
# Debian's Qt is built with -fPIC in mind: position-independent code is the client's part of the deal.
run(${COMPILER} -std=c++17 -fPIC ${first_deck}/main.cpp -o ${WORK}/pkgconfig ${flags} -Wl,-rpath,${libdir})
run(${WORK}/pkgconfig ${WORK}/pkgconfig.dat)

run(${CMAKE_COMMAND} -E compare_files ${WORK}/cmake.dat ${WORK}/pkgconfig.dat)
file(SIZE ${WORK}/cmake.dat size)
if(size EQUAL 0)
    message(FATAL_ERROR "The deck is empty")
endif()
