# Cross-built programs find their DLLs beside them, as an installed application does.
if(WIN32 AND CMAKE_CROSSCOMPILING)
    file(GLOB dlls ${KDQCORE_WINDOWS_SDK}/qt/bin/*.dll ${KDQCORE_WINDOWS_SDK}/glog/bin/*.dll
         ${KDQCORE_WINDOWS_SDK}/runtime/*.dll)
    file(COPY ${dlls} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endif()
