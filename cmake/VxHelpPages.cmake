# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The manual pages of the tools and their completions for bash, zsh and fish, which
# scripts/lib/make_help_pages.py makes from what the tools say of themselves.

# A tool for another system cannot be run here, and Windows has neither. The pages that tools with a sanitizer
# would make are the same.
if(WIN32 OR CMAKE_CROSSCOMPILING OR VX_SANITIZE OR NOT VX_BUILD_TOOLS)
    return()
endif()
find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)

# Where zsh looks depends on who has built it: Debian's packages use share/zsh/vendor-completions.
set(VX_ZSH_COMPLETIONS_FOLDER "${CMAKE_INSTALL_DATADIR}/zsh/site-functions"
    CACHE STRING "Where completions for zsh are installed")
mark_as_advanced(VX_ZSH_COMPLETIONS_FOLDER)

set(help_pages "${PROJECT_BINARY_DIR}/help_pages")
set(all_pages)

# add_help_pages(<target> <component>)
#
# Makes and installs the pages of a tool.
function(add_help_pages target component)
    if(NOT TARGET ${target})
        return()
    endif()
    get_target_property(tool ${target} OUTPUT_NAME)
    if(NOT tool)
        set(tool ${target})
    endif()
    set(pages "${help_pages}/man1/${tool}.1" "${help_pages}/bash/${tool}" "${help_pages}/zsh/_${tool}"
        "${help_pages}/fish/${tool}.fish")
    set(script "${PROJECT_SOURCE_DIR}/scripts/lib/make_help_pages.py")
    add_custom_command(OUTPUT ${pages}
        COMMAND "${Python3_EXECUTABLE}" -B "${script}" "$<TARGET_FILE:${target}>" "${help_pages}"
        DEPENDS ${target} "${script}" "${PROJECT_SOURCE_DIR}/tools/${tool}/manual.toml"
            "${PROJECT_SOURCE_DIR}/CHANGELOG.md"
        COMMENT "Making the manual page and the completions of ${tool}"
        VERBATIM)
    set(all_pages ${all_pages} ${pages} PARENT_SCOPE)

    install(FILES "${help_pages}/man1/${tool}.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1"
        COMPONENT ${component})
    install(FILES "${help_pages}/bash/${tool}"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT ${component})
    install(FILES "${help_pages}/zsh/_${tool}" DESTINATION "${VX_ZSH_COMPLETIONS_FOLDER}"
        COMPONENT ${component})
    install(FILES "${help_pages}/fish/${tool}.fish"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT ${component})
endfunction()

add_help_pages(vxprintmon tools)
add_help_pages(rolldb tools)
add_help_pages(vxipc_tool tools)
add_help_pages(vxprintview window)
add_help_pages(vxprintagent agent)
add_custom_target(help_pages ALL DEPENDS ${all_pages})
