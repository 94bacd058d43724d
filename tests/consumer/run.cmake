# cmake -D BUILD=<kdQCore build> -D WORK=<empty folder> -D PREFIX=<folder> -D SOURCE=<kdQCore source> -D COMPILER=<c++>
#       -D LAUNCHER=<ccache...> -D FLAGS=<compiler flags> -P run.cmake
# Installs the package by way of a staging folder, moves it to PREFIX, for which it was not made, and builds outside
# projects on it there, with CMake and with pkg-config.

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "${command}\nfailed (${status}):\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK} ${PREFIX})
set(first_deck ${SOURCE}/examples/first_deck)
run(${CMAKE_COMMAND} -E env "DESTDIR=${WORK}/staging folder" ${CMAKE_COMMAND} --install ${BUILD} --prefix /opt/kdqcore)
get_filename_component(parent ${PREFIX} DIRECTORY)
file(MAKE_DIRECTORY ${parent})
file(RENAME "${WORK}/staging folder/opt/kdqcore" ${PREFIX})

run(${CMAKE_COMMAND} -S ${SOURCE}/tests/consumer -B ${WORK}/cmake -G Ninja -DCMAKE_PREFIX_PATH=${PREFIX}
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=${COMPILER} "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
    -DCMAKE_CXX_FLAGS=${FLAGS} -DFIRST_DECK=${first_deck})
run(${CMAKE_COMMAND} --build ${WORK}/cmake)
run(${WORK}/cmake/first_deck/first_deck ${WORK}/cmake.dat)

file(GLOB_RECURSE pc ${PREFIX}/*/kdQCore.pc)
get_filename_component(pc_dir ${pc} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
get_filename_component(libdir ${pc_dir} DIRECTORY)
if(EXISTS ${libdir}/libkdQCore.a)
    set(static --static)
endif()
run(pkg-config ${static} --cflags --libs kdQCore)
separate_arguments(flags UNIX_COMMAND "${output} ${FLAGS}")
# Debian's Qt is built with -fPIC in mind: position-independent code is the client's part of the deal.
run(${COMPILER} -std=c++17 -fPIC ${first_deck}/main.cpp -o ${WORK}/pkgconfig ${flags} -Wl,-rpath,${libdir})
run(${WORK}/pkgconfig ${WORK}/pkgconfig.dat)

run(${CMAKE_COMMAND} -E compare_files ${WORK}/cmake.dat ${WORK}/pkgconfig.dat)
file(SIZE ${WORK}/cmake.dat size)
if(size EQUAL 0)
    message(FATAL_ERROR "The deck is empty")
endif()

# An outside program finds the German texts of the shared library; the shell finds library and texts.
if(EXISTS ${PREFIX}/share/kdQCore/translations)
    if(NOT static)
        run(${WORK}/cmake/german)
    endif()
    if(EXISTS ${PREFIX}/bin/kdqsh)
        run(${CMAKE_COMMAND} -E env LANGUAGE=de XDG_DATA_HOME=${WORK}/data XDG_CONFIG_HOME=${WORK}/data
            ${PREFIX}/bin/kdqsh -c list)
        if(NOT output MATCHES "Zeigt die Befehle")
            message(FATAL_ERROR "The installed shell does not speak German:\n${output}")
        endif()
    endif()
endif()

# No file knows where it was built or staged; what is for reading may show such paths.
file(GLOB_RECURSE files ${PREFIX}/lib/* ${PREFIX}/bin/* ${PREFIX}/include/*)
foreach(file IN LISTS files)
    file(STRINGS ${file} traces REGEX "(${BUILD}|/opt/kdqcore)")
    if(traces)
        message(FATAL_ERROR "${file} depends on its place:\n${traces}")
    endif()
endforeach()
