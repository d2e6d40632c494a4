# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# What a desktop needs to show the window in its menu: an entry, an icon, and a description for software centres.

set(VX_DESKTOP_NAME org.vxprinterstatus.vxprintview)
set(VX_DESKTOP_SOURCES "${PROJECT_SOURCE_DIR}/tools/vxprintview/desktop")
# Follows SOURCE_DATE_EPOCH.
string(TIMESTAMP VX_SOURCE_DATE "%Y-%m-%d" UTC)
configure_file("${VX_DESKTOP_SOURCES}/${VX_DESKTOP_NAME}.metainfo.xml"
    "${PROJECT_BINARY_DIR}/${VX_DESKTOP_NAME}.metainfo.xml" @ONLY)
install(FILES "${VX_DESKTOP_SOURCES}/${VX_DESKTOP_NAME}.desktop"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/applications" COMPONENT window)
install(FILES "${VX_DESKTOP_SOURCES}/${VX_DESKTOP_NAME}.svg"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps" COMPONENT window)
install(FILES "${PROJECT_BINARY_DIR}/${VX_DESKTOP_NAME}.metainfo.xml"
    DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo" COMPONENT window)
