# kdqcore_layer(<folder> [USES <folder>...] [HEADERS <Name>...] [SOURCES <file>...] [LIBRARIES <target>...])
#
# One folder of src/ is one layer, built as an object library. It sees only its own headers and those of
# the folders that it names under USES, so an arrow upwards or in a circle does not compile.
# HEADERS names the public classes and namespaces: each gets a forwarding header <kdQCore/Name> for
# "<name in lower case>.h". "A,B" makes two forwarding headers, both for the header of A.
# Public headers of other folders are included as <kdQCore/Name>, as clients do.

set_property(GLOBAL PROPERTY kdqcore_layers "")

function(kdqcore_layer name)
    cmake_parse_arguments(LAYER "" "" "USES;HEADERS;SOURCES;LIBRARIES" ${ARGN})
    set(target kdqcore_${name})
    set(forwarding ${CMAKE_BINARY_DIR}/include/${name})

    add_library(${target} OBJECT ${LAYER_SOURCES})
    set_target_properties(${target} PROPERTIES DEFINE_SYMBOL kdQCore_EXPORTS)
    target_compile_definitions(${target} PRIVATE kdQCore_EXPORTS $<$<NOT:$<BOOL:${BUILD_SHARED_LIBS}>>:KDQCORE_STATIC_DEFINE>)
    target_link_libraries(${target} PUBLIC Qt5::Core Qt5::Network Qt5::Xml ${LAYER_LIBRARIES} PRIVATE kdqcore_flags)

    if(LAYER_HEADERS)
        ecm_generate_headers(camel HEADER_NAMES ${LAYER_HEADERS} PREFIX kdQCore OUTPUT_DIR ${forwarding}
                             REQUIRED_HEADERS lower)
        install(FILES ${camel} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kdQCore/kdQCore COMPONENT Devel)
        install(FILES ${lower} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kdQCore/kdqcore COMPONENT Devel)
    endif()

    set(visible ${CMAKE_CURRENT_SOURCE_DIR} ${forwarding})
    foreach(used IN LISTS LAYER_USES)
        get_property(included GLOBAL PROPERTY kdqcore_includes_${used})
        if(NOT included)
            message(FATAL_ERROR "Layer ${name} uses ${used}, which is not a layer below it")
        endif()
        list(APPEND visible ${included})
    endforeach()
    target_include_directories(${target} PUBLIC ${CMAKE_BINARY_DIR}/include ${visible})

    set_property(GLOBAL PROPERTY kdqcore_includes_${name} ${CMAKE_CURRENT_SOURCE_DIR} ${forwarding})
    set_property(GLOBAL APPEND PROPERTY kdqcore_layers ${name})
    set_property(GLOBAL APPEND PROPERTY kdqcore_public_includes ${forwarding})
    list(TRANSFORM lower PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ REGEX "^[^/]")
    set_property(GLOBAL APPEND PROPERTY kdqcore_public_headers ${lower})
endfunction()
