# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Compiles the translations of status titles and fault texts and embeds them in the library, so that a
# host does not have to ship any files for them. After a title or text has changed, build the target
# vxprinterstatus_lupdate to update the .ts files.

# Qt's translation tools run on the build machine and belong to its own Qt. A Qt that was built for
# Windows or with a sanitizer does not include them.
find_package(Qt6LinguistTools 6.4 REQUIRED
    HINTS "${QT_HOST_PATH_CMAKE_DIR}" NO_CMAKE_FIND_ROOT_PATH)

set(VX_LANGUAGES de es fr it ja zh_CN)
# English is included although it only repeats the sources: QTranslator uses the first of the user's
# languages that has a file. Without an English one, a user who prefers English to German gets German.
set(translations ${VX_LANGUAGES} en)
list(TRANSFORM translations PREPEND translations/vxprinterstatus_)
list(TRANSFORM translations APPEND .ts)
qt_add_translations(vxprinterstatus
    TS_FILES ${translations}
    SOURCES status/status_titles.cpp platform/vxmessages/vxerror.cpp
    RESOURCE_PREFIX /vxprinterstatus/translations
    LUPDATE_OPTIONS -locations none
    LRELEASE_OPTIONS -silent)
