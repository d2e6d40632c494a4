# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Run by CPack when the packages are made. CPack gives each package with a library scripts that call ldconfig,
# for which there is a trigger (packaging/debian/*/triggers); these are removed. dpkg-deb then packs again: sorted,
# with no time after SOURCE_DATE_EPOCH, and without what depends on the number of processors. CPack has also measured
# the packages before their programs were stripped.

# Each package gets its bill of materials, which is made of the files as they are packed.

find_program(dpkg_deb dpkg-deb REQUIRED)
find_program(python python3 REQUIRED)
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
    file(READ "${folder}/DEBIAN/control" control)
    # Debug information is of what the other packages have.
    if(NOT package MATCHES "ddeb$")
        string(REGEX MATCH "(^|\n)Package: ([^\n]+)" found "${control}")
        set(name "${CMAKE_MATCH_2}")
        string(REGEX MATCH "\nVersion: ([^\n]+)" found "${control}")
        set(version "${CMAKE_MATCH_1}")
        set(bill "usr/share/doc/${name}/${name}.spdx.json")
        execute_process(
            COMMAND "${python}" -B "${CPACK_VX_SOURCES}/scripts/lib/make_sbom.py" --root "${folder}"
                --name "${name}" --version "${version}" --output "${folder}/${bill}"
            COMMAND_ERROR_IS_FATAL ANY)
        file(MD5 "${folder}/${bill}" sum)
        file(APPEND "${folder}/DEBIAN/md5sums" "${sum}  ${bill}\n")
    endif()
    file(GLOB_RECURSE files LIST_DIRECTORIES true RELATIVE "${folder}" "${folder}/*")
    list(FILTER files EXCLUDE REGEX "^DEBIAN")
    # In KiB, as Debian's policy counts: anything but a file takes one.
    set(installed_size 0)
    foreach(file IN LISTS files)
        set(size 1)
        if(NOT IS_DIRECTORY "${folder}/${file}" AND NOT IS_SYMLINK "${folder}/${file}")
            file(SIZE "${folder}/${file}" size)
            math(EXPR size "(${size} + 1023) / 1024")
        endif()
        math(EXPR installed_size "${installed_size} + ${size}")
    endforeach()
    string(REGEX REPLACE "Installed-Size: [0-9]+" "Installed-Size: ${installed_size}" control "${control}")
    file(WRITE "${folder}/DEBIAN/control" "${control}")
    set(compression -Zxz)
    if(package MATCHES "ddeb$")
        # It is large, and xz would take minutes for it.
        set(compression -Zzstd)
        # CPack lists the files of these packages with the folder that it made them in.
        file(READ "${folder}/DEBIAN/md5sums" sums)
        string(REGEX REPLACE "  /[^\n]*-dbgsym/usr/" "  usr/" sums "${sums}")
        file(WRITE "${folder}/DEBIAN/md5sums" "${sums}")
    endif()
    execute_process(
        COMMAND "${dpkg_deb}" --root-owner-group --uniform-compression --threads-max=1 ${compression}
            --build "${folder}" "${package}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE "${folder}")
endforeach()
