# Cross-built programs find their DLLs beside them, in the build and where they are installed.
if(WIN32 AND CMAKE_CROSSCOMPILING)
    file(GLOB dlls ${KDQCORE_WINDOWS_SDK}/qt/bin/*.dll ${KDQCORE_WINDOWS_SDK}/glog/bin/*.dll
         ${KDQCORE_WINDOWS_SDK}/runtime/*.dll)
    file(COPY ${dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    list(FILTER dlls EXCLUDE REGEX "Qt5(Test|Concurrent|Gui|Widgets|PrintSupport|Svg|Charts)\\.dll$")
    install(FILES ${dlls} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)
endif()

# kdqcore_bring_along_gui()
#
# The same for what draws and shows: Qt's libraries for that, its plugins in the folders where it looks for them, and its
# own German texts.
function(kdqcore_bring_along_gui)
    if(NOT WIN32 OR NOT CMAKE_CROSSCOMPILING)
        return()
    endif()
    foreach(library Gui Widgets Svg Charts)
        install(FILES ${KDQCORE_WINDOWS_SDK}/qt/bin/Qt5${library}.dll DESTINATION ${CMAKE_INSTALL_BINDIR}
                COMPONENT Applications)
    endforeach()
    set(plugins ${KDQCORE_WINDOWS_SDK}/qt/plugins)
    set(files ${plugins}/platforms/qwindows.dll ${plugins}/styles/qwindowsvistastyle.dll
        ${plugins}/iconengines/qsvgicon.dll ${plugins}/imageformats/qsvg.dll)
    find_file(KDQCORE_QT_GERMAN qtbase_de.qm PATHS /usr/share/qt5/translations NO_CMAKE_FIND_ROOT_PATH)
    if(KDQCORE_QT_GERMAN)
        list(APPEND files ${KDQCORE_QT_GERMAN})
    endif()
    foreach(file IN LISTS files)
        get_filename_component(folder ${file} DIRECTORY)
        get_filename_component(folder ${folder} NAME)
        file(COPY ${file} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${folder})
        install(FILES ${file} DESTINATION ${CMAKE_INSTALL_BINDIR}/${folder} COMPONENT Applications)
    endforeach()
endfunction()
