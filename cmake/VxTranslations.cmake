# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# The titles of status codes and the texts of faults in the languages of translations/, compiled and embedded in the library,
# so that a host has nothing to ship beside it. After a title was changed, the target
# vxprinterstatus_lupdate brings the .ts files up to it.

# Qt's tools for translators run on the machine that builds, which has them beside its own Qt, and not
# beside one that is built for Windows or with a sanitizer.
find_package(Qt6LinguistTools 6.4 REQUIRED
    HINTS "${QT_HOST_PATH_CMAKE_DIR}" NO_CMAKE_FIND_ROOT_PATH)

set(VX_LANGUAGES de es fr it ja zh_CN)
# English too, which only repeats the sources: QTranslator takes the first of the user's languages that
# has a file, and for somebody who prefers English to German that would otherwise be German.
set(translations ${VX_LANGUAGES} en)
list(TRANSFORM translations PREPEND translations/vxprinterstatus_)
list(TRANSFORM translations APPEND .ts)
qt_add_translations(vxprinterstatus
    TS_FILES ${translations}
    SOURCES status/status_titles.cpp platform/vxmessages/vxerror.cpp
    RESOURCE_PREFIX /vxprinterstatus/translations
    LUPDATE_OPTIONS -locations none
    LRELEASE_OPTIONS -silent)
