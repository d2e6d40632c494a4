# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What is installed: the library for hosts with its CMake package, and the tools.

include(CMakePackageConfigHelpers)
include(VxInstallFleet)

set(VX_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/VxPrinterStatus")
set(VX_HEADER_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}/VxPrinterStatus")

set(installed_targets vxprinterstatus vx_windows_api)
if(VX_IPC_PROVIDER STREQUAL "own")
    list(APPEND installed_targets vxipc)
    install(FILES
        platform/vxipc/ivxipcm4.h
        platform/vxipc/ivxipcprintqd.h
        platform/vxipc/ivxipcsupplyd.h
        platform/vxipc/vxipcclient.h
        platform/vxipc/vxipcserver.h
        DESTINATION "${VX_HEADER_FOLDER}")
endif()
if(NOT WIN32)
    list(APPEND installed_targets virtualwindows)
    install(DIRECTORY virtualwindows/include/ DESTINATION "${VX_HEADER_FOLDER}/virtualwindows"
        PATTERN fleet.h EXCLUDE)
    # In the folder of the library that loads it.
    install(TARGETS virtualwindows_environment_fleet
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}")
endif()

install(TARGETS ${installed_targets} EXPORT VxPrinterStatusTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
if(TARGET cutelogger)
    # The library needs our stand-in at run time. A host that logs links Vx::CuteLogger.
    install(TARGETS cutelogger EXPORT VxPrinterStatusTargets
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(FILES
        platform/cutelogger/AbstractAppender.h
        platform/cutelogger/ConsoleAppender.h
        platform/cutelogger/CuteLogger_global.h
        platform/cutelogger/FileAppender.h
        platform/cutelogger/Logger.h
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/CuteLogger")
    set(VX_LOGS_THROUGH_INSTALLED FALSE)
else()
    # An installed CuteLogger is not copied. The installed library and programs find it in its folder.
    set(VX_LOGS_THROUGH_INSTALLED TRUE)
    install(FILES cmake/FindCuteLogger.cmake DESTINATION "${VX_PACKAGE_FOLDER}")
    cmake_path(GET CuteLogger_LIBRARY PARENT_PATH logger_folder)
    foreach(target vxprinterstatus vxprintmon vxprintview vxprintagent)
        if(TARGET ${target})
            set_property(TARGET ${target} APPEND PROPERTY INSTALL_RPATH "${logger_folder}")
        endif()
    endforeach()
endif()
foreach(tool vxprintmon vxprintview vxprintagent vxipc_tool rolldb)
    if(TARGET ${tool})
        install(TARGETS ${tool} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    endif()
endforeach()

foreach(header IN LISTS VX_PUBLIC_HEADERS)
    install(FILES "include/${header}" DESTINATION "${VX_HEADER_FOLDER}")
endforeach()
# The kit is a component of the package: a host that does not ask for it finds the library alone.
install(TARGETS vxprinterstatuskit EXPORT VxPrinterStatusKitTargets
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY kit/include/ DESTINATION "${VX_HEADER_FOLDER}")
install(EXPORT VxPrinterStatusKitTargets NAMESPACE Vx:: DESTINATION "${VX_PACKAGE_FOLDER}")
# So are the widgets, which use the kit.
if(TARGET vxprinterstatuswidgets)
    install(TARGETS vxprinterstatuswidgets EXPORT VxPrinterStatusWidgetsTargets
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
    install(DIRECTORY widgets/include/ DESTINATION "${VX_HEADER_FOLDER}")
    install(EXPORT VxPrinterStatusWidgetsTargets NAMESPACE Vx::
        DESTINATION "${VX_PACKAGE_FOLDER}")
endif()
# Clients of the status service in other languages, and a catalogue to begin with.
install(DIRECTORY examples/clients DESTINATION "${CMAKE_INSTALL_DATADIR}/VxPrinterStatus"
    PATTERN __pycache__ EXCLUDE)
install(DIRECTORY data/supplies DESTINATION "${CMAKE_INSTALL_DATADIR}/VxPrinterStatus")
install(DIRECTORY docs/schema DESTINATION "${CMAKE_INSTALL_DATADIR}/VxPrinterStatus")

install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/VxPrinterStatus")

install(EXPORT VxPrinterStatusTargets NAMESPACE Vx:: DESTINATION "${VX_PACKAGE_FOLDER}")
configure_package_config_file(cmake/VxPrinterStatusConfig.cmake.in
    "${PROJECT_BINARY_DIR}/VxPrinterStatusConfig.cmake"
    INSTALL_DESTINATION "${VX_PACKAGE_FOLDER}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VxPrinterStatusConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/VxPrinterStatusConfig.cmake"
    "${PROJECT_BINARY_DIR}/VxPrinterStatusConfigVersion.cmake"
    DESTINATION "${VX_PACKAGE_FOLDER}")
include(VxHelpPages)
