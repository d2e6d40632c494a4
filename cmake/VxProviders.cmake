# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The maker's libraries that the product depends on. For each there is an option VX_<NAME>_PROVIDER:
# "own" builds our implementation in platform/, and "external" uses the original. The latter's target
# is defined by the package in the table, which is found through CMAKE_PREFIX_PATH or <package>_DIR.

set(VX_PROVIDERS IPC SUPPLY_DATABASE LOCALE STATUS_MESSAGES)
set(VX_IPC_TARGET Vx::Ipc)
set(VX_IPC_PACKAGE VxIpc)
set(VX_IPC_FOLDER vxipc)
set(VX_SUPPLY_DATABASE_TARGET Vx::SupplyDatabase)
set(VX_SUPPLY_DATABASE_PACKAGE VxSupplyDatabase)
set(VX_SUPPLY_DATABASE_FOLDER vxsupplydb)
set(VX_LOCALE_TARGET Vx::Locale)
set(VX_LOCALE_PACKAGE VxLocale)
set(VX_LOCALE_FOLDER vxlocale)
set(VX_STATUS_MESSAGES_TARGET Vx::StatusMessages)
set(VX_STATUS_MESSAGES_PACKAGE VxStatusMessages)
set(VX_STATUS_MESSAGES_FOLDER vxmessages)

foreach(name IN LISTS VX_PROVIDERS)
    set(VX_${name}_PROVIDER own CACHE STRING "Who provides ${VX_${name}_TARGET}: own or external")
    set_property(CACHE VX_${name}_PROVIDER PROPERTY STRINGS own external)
    if(NOT VX_${name}_PROVIDER MATCHES "^(own|external)$")
        message(FATAL_ERROR
            "VX_${name}_PROVIDER is \"${VX_${name}_PROVIDER}\": expected own or external")
    endif()
endforeach()

# Adds the folder of our implementation, or finds the package that replaces it.
function(vx_add_provider name)
    if(VX_${name}_PROVIDER STREQUAL "own")
        add_subdirectory(${VX_${name}_FOLDER})
        return()
    endif()
    find_package(${VX_${name}_PACKAGE} REQUIRED GLOBAL)
    if(NOT TARGET ${VX_${name}_TARGET})
        message(FATAL_ERROR "The package ${VX_${name}_PACKAGE} defines no target "
            "${VX_${name}_TARGET}, which VX_${name}_PROVIDER=external needs")
    endif()
endfunction()
