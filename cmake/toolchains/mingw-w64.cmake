# 64-bit Windows with Debian's mingw-w64 (posix threads). The libraries come from the SDK that
# scripts/windows-sdk provides; the tools (extra-cmake-modules, lrelease) from the host.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(KDQCORE_WINDOWS_SDK "$ENV{KDQCORE_WINDOWS_SDK}" CACHE PATH "Qt and glog for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KDQCORE_WINDOWS_SDK)
if(DEFINED ENV{KDQCORE_WINDOWS_SDK} AND NOT KDQCORE_WINDOWS_SDK STREQUAL "$ENV{KDQCORE_WINDOWS_SDK}")
    message(FATAL_ERROR "This build belongs to the SDK in '${KDQCORE_WINDOWS_SDK}'. Remove its folder to build with that in "
            "'$ENV{KDQCORE_WINDOWS_SDK}'.")
endif()
if(NOT EXISTS "${KDQCORE_WINDOWS_SDK}/qt")
    message(FATAL_ERROR "No SDK in '${KDQCORE_WINDOWS_SDK}': export KDQCORE_WINDOWS_SDK=$(scripts/windows-sdk)")
endif()

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${KDQCORE_WINDOWS_SDK}/qt ${KDQCORE_WINDOWS_SDK}/glog)
set(CMAKE_PREFIX_PATH ${KDQCORE_WINDOWS_SDK}/qt ${KDQCORE_WINDOWS_SDK}/glog)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ECM_DIR /usr/share/ECM/cmake CACHE PATH "extra-cmake-modules of the host")
# Tests may run as another user than the builder, who cannot run an interpreter from the builder's home.
set(Python3_EXECUTABLE /usr/bin/python3 CACHE FILEPATH "Python of the host")

# Programs of the build, the tests above all, run under wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run-wine)
