# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What is installed: the library for hosts with its CMake package and pkg-config files, and the tools. Each file
# belongs to a component, which is a package in cmake/VxPackages.cmake. docs/packages.md says what each is for.

include(CMakePackageConfigHelpers)

set(VX_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/VxPrinterStatus")
set(VX_HEADER_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}/VxPrinterStatus")
set(VX_DATA_FOLDER "${CMAKE_INSTALL_DATADIR}/VxPrinterStatus")
include(VxInstallFleet)
include(VxInstallHosts)

# vx_install_library(<target> <component> <export>)
#
# Programs need the library itself, which is in the component; what hosts are linked with is in that for
# development.
function(vx_install_library target component export)
    install(TARGETS ${target} EXPORT ${export}
        RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT ${component}
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT ${component}
            NAMELINK_COMPONENT development
        ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development)
endfunction()

vx_install_library(vxprinterstatus runtime VxPrinterStatusTargets)
install(TARGETS vx_windows_api EXPORT VxPrinterStatusTargets)
if(VX_IPC_PROVIDER STREQUAL "own")
    vx_install_library(vxipc development VxPrinterStatusTargets)
    if(NOT MSVC)
        # CMake strips libraries of this kind only on some systems.
        install(CODE "if(CMAKE_INSTALL_DO_STRIP)
    execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug --enable-deterministic-archives
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/$<TARGET_FILE_NAME:vxipc>\"
        COMMAND_ERROR_IS_FATAL ANY)
endif()" COMPONENT development)
    endif()
    install(FILES
        platform/vxipc/ivxipcm4.h
        platform/vxipc/ivxipcprintqd.h
        platform/vxipc/ivxipcsupplyd.h
        platform/vxipc/vxipcclient.h
        platform/vxipc/vxipcserver.h
        DESTINATION "${VX_HEADER_FOLDER}" COMPONENT development)
endif()
if(NOT WIN32)
    vx_install_library(virtualwindows runtime VxPrinterStatusTargets)
    install(DIRECTORY virtualwindows/include/ DESTINATION "${VX_HEADER_FOLDER}/virtualwindows"
        COMPONENT development
        PATTERN fleet.h EXCLUDE)
    # Loaded by virtualwindows, and linked by nobody.
    set_target_properties(virtualwindows_environment_fleet PROPERTIES INSTALL_RPATH "$ORIGIN/..")
    install(TARGETS virtualwindows_environment_fleet
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}/VxPrinterStatus" COMPONENT runtime)
endif()
if(TARGET cutelogger)
    # The library needs our stand-in at run time. A host that logs links Vx::CuteLogger.
    vx_install_library(cutelogger runtime VxPrinterStatusTargets)
    install(FILES
        platform/cutelogger/AbstractAppender.h
        platform/cutelogger/ConsoleAppender.h
        platform/cutelogger/CuteLogger_global.h
        platform/cutelogger/FileAppender.h
        platform/cutelogger/Logger.h
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/CuteLogger" COMPONENT development)
    set(VX_LOGS_THROUGH_INSTALLED FALSE)
else()
    # An installed CuteLogger is not copied. The installed library and programs find it in its folder.
    set(VX_LOGS_THROUGH_INSTALLED TRUE)
    install(FILES cmake/FindCuteLogger.cmake DESTINATION "${VX_PACKAGE_FOLDER}" COMPONENT development)
    cmake_path(GET CuteLogger_LIBRARY PARENT_PATH logger_folder)
    foreach(target vxprinterstatus vxprinterstatuskit vxprintmon vxprintview vxprintagent)
        if(TARGET ${target})
            set_property(TARGET ${target} APPEND PROPERTY INSTALL_RPATH "${logger_folder}")
        endif()
    endforeach()
endif()

set(VX_TOOLS_OF_tools vxprintmon vxipc_tool rolldb)
set(VX_TOOLS_OF_window vxprintview)
set(VX_TOOLS_OF_agent vxprintagent)
foreach(component tools window agent)
    foreach(tool IN LISTS VX_TOOLS_OF_${component})
        if(TARGET ${tool})
            install(TARGETS ${tool} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT ${component})
        endif()
    endforeach()
endforeach()
if(TARGET vxprintview AND NOT WIN32)
    include(VxDesktop)
endif()

foreach(header IN LISTS VX_PUBLIC_HEADERS)
    install(FILES "include/${header}" DESTINATION "${VX_HEADER_FOLDER}" COMPONENT development)
endforeach()
# The kit is a component of the CMake package: a host that does not ask for it finds the library alone.
vx_install_library(vxprinterstatuskit kit VxPrinterStatusKitTargets)
install(DIRECTORY kit/include/ DESTINATION "${VX_HEADER_FOLDER}" COMPONENT development)
install(EXPORT VxPrinterStatusKitTargets NAMESPACE Vx:: DESTINATION "${VX_PACKAGE_FOLDER}"
    COMPONENT development)
# So are the widgets, which use the kit.
if(TARGET vxprinterstatuswidgets)
    vx_install_library(vxprinterstatuswidgets widgets VxPrinterStatusWidgetsTargets)
    install(DIRECTORY widgets/include/ DESTINATION "${VX_HEADER_FOLDER}" COMPONENT development)
    install(EXPORT VxPrinterStatusWidgetsTargets NAMESPACE Vx:: DESTINATION "${VX_PACKAGE_FOLDER}"
        COMPONENT development)
endif()
# Clients of the status service in other languages.
install(DIRECTORY examples/clients DESTINATION "${VX_DATA_FOLDER}" COMPONENT documentation
    PATTERN __pycache__ EXCLUDE)
# A catalogue to begin with: its tables, and the database that the tools read if they are told of no other.
install(DIRECTORY data/supplies DESTINATION "${VX_DATA_FOLDER}" COMPONENT data)
if(TARGET sample_supplies)
    install(FILES "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/roll.db" DESTINATION "${VX_DATA_FOLDER}" COMPONENT data)
endif()
install(DIRECTORY docs/schema DESTINATION "${VX_DATA_FOLDER}" COMPONENT data)

# In no package: each package of Debian has a copyright file of its own.
install(FILES LICENSE DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/VxPrinterStatus" COMPONENT licence)

install(EXPORT VxPrinterStatusTargets NAMESPACE Vx:: DESTINATION "${VX_PACKAGE_FOLDER}"
    COMPONENT development)
configure_package_config_file(cmake/VxPrinterStatusConfig.cmake.in
    "${PROJECT_BINARY_DIR}/VxPrinterStatusConfig.cmake"
    INSTALL_DESTINATION "${VX_PACKAGE_FOLDER}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/VxPrinterStatusConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${PROJECT_BINARY_DIR}/VxPrinterStatusConfig.cmake"
    "${PROJECT_BINARY_DIR}/VxPrinterStatusConfigVersion.cmake"
    DESTINATION "${VX_PACKAGE_FOLDER}" COMPONENT development)
include(VxPkgConfig)
include(VxHelpPages)
include(VxPackages)
