# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Run by CPack when the packages are made. CPack gives each package with a library scripts that call ldconfig,
# for which there is a trigger (packaging/debian/*/triggers); these are removed. dpkg-deb then packs again: sorted,
# with no time after SOURCE_DATE_EPOCH, and without what depends on the number of processors.

find_program(dpkg_deb dpkg-deb REQUIRED)
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(folder "${package}.contents")
    execute_process(COMMAND "${dpkg_deb}" --raw-extract "${package}" "${folder}" COMMAND_ERROR_IS_FATAL ANY)
    foreach(script postinst postrm)
        set(file "${folder}/DEBIAN/${script}")
        if(EXISTS "${file}")
            file(READ "${file}" text)
            if(text MATCHES "ldconfig")
                file(REMOVE "${file}")
            endif()
        endif()
    endforeach()
    # The debug information is large, and xz would take minutes for it.
    set(compression -Zxz)
    if(package MATCHES "ddeb$")
        set(compression -Zzstd)
    endif()
    execute_process(
        COMMAND "${dpkg_deb}" --root-owner-group --uniform-compression --threads-max=1 ${compression}
            --build "${folder}" "${package}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE "${folder}")
endforeach()
