# The flags of our own code, and the compiler cache.

if(KDQCORE_CCACHE)
    find_program(CCACHE_PROGRAM ccache)
    if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
        # Paths are taken relative to the checkout, so that a fresh clone elsewhere finds the same entries.
        set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
            CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
            CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
            ${CCACHE_PROGRAM})
    endif()
endif()

add_library(kdqcore_flags INTERFACE)
target_compile_definitions(kdqcore_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS QT_NO_FOREACH QT_STRICT_ITERATORS QT_DEPRECATED_WARNINGS
    $<$<CONFIG:Debug>:QT_DEBUG> $<$<NOT:$<CONFIG:Debug>>:QT_NO_DEBUG>)
if(WIN32)
    target_compile_definitions(kdqcore_flags INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE)
endif()
if(MSVC)
    target_compile_options(kdqcore_flags INTERFACE /utf-8 /W4 /permissive- /Zc:__cplusplus
        $<$<BOOL:${KDQCORE_WERROR}>:/WX>)
else()
    # Clang's -Wshadow objects to enumerators that bear the name of a C function, such as free.
    target_compile_options(kdqcore_flags INTERFACE
        $<$<CXX_COMPILER_ID:GNU>:-Wshadow>
        -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
        -Wconversion -Wsign-conversion -Wformat=2 -Wimplicit-fallthrough
        $<$<BOOL:${KDQCORE_WERROR}>:-Werror>
        -ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
endif()
if(KDQCORE_COVERAGE)
    target_compile_options(kdqcore_flags INTERFACE --coverage)
    target_link_options(kdqcore_flags INTERFACE --coverage)
endif()
