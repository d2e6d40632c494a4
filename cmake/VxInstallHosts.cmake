# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What is installed for those who write hosts, besides headers and libraries: the bindings, the example hosts and the
# reference. make_reference and make_python_package in scripts/lib/common.sh make these in the build folder; without
# them an installation has neither.

set(VX_REFERENCE_FOLDER "${PROJECT_BINARY_DIR}/reference")

install(DIRECTORY bindings/csharp DESTINATION "${VX_DATA_FOLDER}/bindings" COMPONENT development)
# The clients of the status service have a place of their own.
install(DIRECTORY examples/ DESTINATION "${VX_DATA_FOLDER}/examples" COMPONENT documentation
    PATTERN clients EXCLUDE
    PATTERN __pycache__ EXCLUDE)
install(DIRECTORY "${VX_REFERENCE_FOLDER}/html"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/VxPrinterStatus" COMPONENT documentation OPTIONAL)
if(WIN32)
    # Every Python for Windows has a folder of its own for modules, so this is one to install from.
    install(DIRECTORY bindings/python DESTINATION "${VX_DATA_FOLDER}/bindings" COMPONENT development
        PATTERN __pycache__ EXCLUDE
        PATTERN "*.egg-info" EXCLUDE
        PATTERN .mypy_cache EXCLUDE)
    set(help_folder "${CMAKE_INSTALL_DATADIR}/doc/VxPrinterStatus")
else()
    install(DIRECTORY "${PROJECT_BINARY_DIR}/python/" DESTINATION lib/python3/dist-packages
        COMPONENT python OPTIONAL)
    # Qt Creator and Assistant look here for the help of a Qt that is installed in the same prefix.
    set(help_folder "${CMAKE_INSTALL_DATADIR}/qt6/doc")
endif()
install(FILES "${VX_REFERENCE_FOLDER}/vxprinterstatus.qch" DESTINATION "${help_folder}"
    COMPONENT documentation OPTIONAL)
