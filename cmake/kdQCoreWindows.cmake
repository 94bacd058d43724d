# Cross-built programs find their DLLs beside them, in the build and where they are installed.
if(WIN32 AND CMAKE_CROSSCOMPILING)
    file(GLOB dlls ${KDQCORE_WINDOWS_SDK}/qt/bin/*.dll ${KDQCORE_WINDOWS_SDK}/glog/bin/*.dll
         ${KDQCORE_WINDOWS_SDK}/runtime/*.dll)
    file(COPY ${dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    list(FILTER dlls EXCLUDE REGEX "Qt5(Test|Concurrent)\\.dll$")
    install(FILES ${dlls} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime)
endif()
