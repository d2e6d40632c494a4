# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The Debian packages, one for each component. scripts/package deb makes them, and docs/packages.md describes them.
# What is not installed anywhere else (changelogs, maintainer scripts, configuration) is in packaging/debian.

# Windows has an installer and a zip.
if(NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
endif()

set(VX_PACKAGE_MAINTAINER "The VxPrinterStatus authors <packages@vxprinterstatus.org>" CACHE STRING
    "Who makes the packages: a name and an address")

set(CPACK_GENERATOR DEB)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME vxprinterstatus)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "${VX_PACKAGE_MAINTAINER}")
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES OFF)
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/debian/stage.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/packaging/debian/repack.cmake")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# Below every revision of a distribution, which would replace these.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0vx1)
set(CPACK_DEBIAN_PACKAGE_SOURCE vxprinterstatus)
set(CPACK_DEBIAN_COMPRESSION_TYPE none)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
# A library only gains functions within a major version, so a program runs with a later one.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_DEBUGINFO_PACKAGE ON)

# vx_package(<component> <package> SECTION <section> SUMMARY <line> TEXT <line>... [INDEPENDENT]
#            [WITH <component>...] [DEPENDS <package>...] [RECOMMENDS ...] [SUGGESTS ...])
#
# What programs and libraries need of others is found by dpkg-shlibdeps. DEPENDS is for what it cannot find.
# WITH names components of exactly this version, and INDEPENDENT is a package for every architecture.
set(VX_PACKAGED)
macro(vx_package component package)
    cmake_parse_arguments(arg INDEPENDENT "SECTION;SUMMARY" "TEXT;WITH;DEPENDS;RECOMMENDS;SUGGESTS" ${ARGN})
    list(APPEND VX_PACKAGED ${component})
    string(TOUPPER ${component} upper)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${arg_SECTION})
    list(JOIN arg_TEXT "\n" text)
    set(CPACK_DEBIAN_${upper}_DESCRIPTION "${arg_SUMMARY}\n${text}")
    if(arg_INDEPENDENT)
        set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all)
        set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS OFF)
    endif()
    set(CPACK_COMPONENT_${upper}_DEPENDS ${arg_WITH})
    foreach(kind DEPENDS RECOMMENDS SUGGESTS)
        list(JOIN arg_${kind} ", " CPACK_DEBIAN_${upper}_PACKAGE_${kind})
    endforeach()
    file(GLOB control CONFIGURE_DEPENDS
        "${PROJECT_SOURCE_DIR}/packaging/debian/${package}/conffiles"
        "${PROJECT_SOURCE_DIR}/packaging/debian/${package}/p*inst"
        "${PROJECT_SOURCE_DIR}/packaging/debian/${package}/p*rm"
        "${PROJECT_SOURCE_DIR}/packaging/debian/${package}/triggers")
    set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA "${control}")
endmacro()

set(VX_PRODUCT_TEXT
    "VxPrinterStatus finds label printers in the print spooler and watches them:"
    "their status, their labels and ribbons, and how much is left of these. Off"
    "Windows it has virtual printers.")

# The catalogue is read with Qt's plugin for SQLite, which is loaded at run time and linked by nobody.
vx_package(runtime libvxprinterstatus${PROJECT_VERSION_MAJOR}
    SECTION libs
    DEPENDS libqt6sql6-sqlite
    SUMMARY "finds label printers and watches them - library"
    TEXT ${VX_PRODUCT_TEXT} " " "This package has the library that programs are linked with.")
vx_package(kit libvxprinterstatuskit${PROJECT_VERSION_MAJOR}
    SECTION libs
    SUMMARY "finds label printers and watches them - kit for hosts"
    TEXT ${VX_PRODUCT_TEXT} " "
        "This package has the kit, which is built on the library: readings, a model"
        "for views, the history, the log of events, and forecasts.")
if(TARGET vxprinterstatuswidgets)
    vx_package(widgets libvxprinterstatuswidgets${PROJECT_VERSION_MAJOR}
        SECTION libs
        SUMMARY "finds label printers and watches them - widgets"
        TEXT ${VX_PRODUCT_TEXT} " "
            "This package has widgets on the kit, for hosts with a window.")
    set(with_widgets widgets)
    if(TARGET vxprintview)
        vx_package(window vxprintview
            SECTION utils
            WITH data
            RECOMMENDS qt6-wayland
            SUMMARY "window that shows the status of label printers"
            TEXT ${VX_PRODUCT_TEXT} " "
                "This package has a window that shows all printers at a glance, with an icon"
                "in the tray and notices of faults.")
    endif()
endif()
# The public headers include those of Qt.
vx_package(development libvxprinterstatus-dev
    SECTION libdevel
    WITH runtime kit ${with_widgets}
    DEPENDS "qt6-base-dev (>= 6.4)"
    SUGGESTS "vxprinterstatus-doc"
    SUMMARY "finds label printers and watches them - development files"
    TEXT ${VX_PRODUCT_TEXT} " "
        "This package has what hosts are built with: the headers of the library, the"
        "kit and the widgets, a CMake package, files for pkg-config, and the sources of"
        "the binding for C#.")
vx_package(python python3-vxprinterstatus INDEPENDENT
    SECTION python
    WITH kit
    DEPENDS "python3:any (>= 3.9)"
    SUGGESTS vxprinterstatus-doc
    SUMMARY "finds label printers and watches them - Python"
    TEXT ${VX_PRODUCT_TEXT} " "
        "This package has the module vxprinterstatus, with which hosts in Python read"
        "and watch printers. It has type hints.")
vx_package(data vxprinterstatus-data INDEPENDENT
    SECTION misc
    SUMMARY "catalogue of supplies for label printers"
    TEXT ${VX_PRODUCT_TEXT} " "
        "This package has a sample catalogue of labels and ribbons, as a database and"
        "as the tables that it is made of, and the schemas of what the tools print.")
vx_package(tools vxprinterstatus-tools
    SECTION utils
    WITH data
    SUMMARY "command-line tools for label printers"
    TEXT ${VX_PRODUCT_TEXT} " "
        "This package has the monitor vxprintmon, rolldb, which makes catalogues of"
        "supplies, and vxipc, which calls the services of other processes.")
if(TARGET vxprintagent)
    # systemd-sysusers makes the account of the service.
    vx_package(agent vxprintagent
        SECTION net
        WITH data
        DEPENDS "init-system-helpers (>= 1.52)" "systemd | systemd-standalone-sysusers"
        RECOMMENDS ca-certificates
        SUGGESTS "mosquitto | nats-server" prometheus vxprinterstatus-web vxprinterstatus-doc
        SUMMARY "agent that publishes the status of label printers"
        TEXT ${VX_PRODUCT_TEXT} " "
            "This package has an agent that publishes the printers of a computer to an"
            "MQTT broker and to Prometheus. Its service runs when it was configured and"
            "enabled.")
endif()
vx_package(web vxprinterstatus-web INDEPENDENT
    SECTION web
    RECOMMENDS "nginx | httpd"
    SUGGESTS nats-server
    SUMMARY "page that shows the label printers of a site"
    TEXT ${VX_PRODUCT_TEXT} " "
        "This package has a page that shows in a browser what the agents of a site"
        "publish. It needs a web server, and a broker with WebSockets.")
# The clients of the status service are scripts.
vx_package(documentation vxprinterstatus-doc INDEPENDENT
    SECTION doc
    SUGGESTS python3 nodejs
    SUMMARY "finds label printers and watches them - documentation"
    TEXT ${VX_PRODUCT_TEXT} " "
        "This package has the guides for those who write hosts and who look after"
        "printers, the reference of all classes for browsers and for Qt Creator, example"
        "configurations of brokers and of Prometheus, and hosts and clients in several"
        "languages to start from.")
set(CPACK_COMPONENTS_ALL ${VX_PACKAGED})

# For packaging/debian/stage.cmake.
set(CPACK_VX_SOURCES "${PROJECT_SOURCE_DIR}")
set(CPACK_VX_STRIP "${CMAKE_STRIP}")

include(CPack)
