# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Run by CPack when the components are installed into the folders that the packages are made of: adds what a
# Debian package has besides, and sets all times to that of the sources.

find_program(python python3 REQUIRED)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(folder "${CPACK_TEMPORARY_DIRECTORY}/${component}")
    string(TOUPPER ${component} upper)
    # The installed libraries are where the system looks for them.
    file(GLOB_RECURSE binaries "${folder}/usr/bin/*" "${folder}/usr/lib/*.so*")
    foreach(binary IN LISTS binaries)
        if(NOT IS_SYMLINK "${binary}")
            file(RPATH_REMOVE FILE "${binary}")
        endif()
    endforeach()
    list(APPEND packages "${component}=${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
endforeach()
execute_process(
    COMMAND "${python}" -B "${CPACK_VX_SOURCES}/packaging/debian/stage.py"
        --sources "${CPACK_VX_SOURCES}" --version "${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}"
        --maintainer "${CPACK_PACKAGE_CONTACT}" --strip "${CPACK_VX_STRIP}"
        "${CPACK_TEMPORARY_DIRECTORY}" ${packages}
    COMMAND_ERROR_IS_FATAL ANY)
