# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The library, the kit and the widgets for hosts that are built with pkg-config, not with CMake.

# The files say which Qt modules they need by the names of Qt's own files, which a Qt for Windows does not have.
if(WIN32)
    return()
endif()

# In terms of the file itself, so that the installed tree can be moved.
file(RELATIVE_PATH VX_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" VX_PC_PREFIX "${VX_PC_PREFIX}")
set(VX_PC_LOGGER_CFLAGS)
set(VX_PC_LOGGER_LIBS)
if(TARGET cutelogger)
    set(VX_PC_LOGGER_CFLAGS "-I\${includedir}/CuteLogger")
    set(VX_PC_LOGGER_LIBS "-lCuteLogger")
elseif(CuteLogger_FOUND)
    set(VX_PC_LOGGER_CFLAGS "-I${CuteLogger_INCLUDE_DIR}")
    set(VX_PC_LOGGER_LIBS "${CuteLogger_LIBRARY}")
endif()
set(VX_PC_IPC_LIBS)
if(VX_IPC_PROVIDER STREQUAL "own")
    set(VX_PC_IPC_LIBS "-lvxipc")
endif()

set(files vxprinterstatus vxprinterstatuskit)
if(TARGET vxprinterstatuswidgets)
    list(APPEND files vxprinterstatuswidgets)
endif()
foreach(name IN LISTS files)
    configure_file("cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
        COMPONENT development)
endforeach()
