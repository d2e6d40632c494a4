# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
#
# Compiles translations and embeds them in what shows the texts, so that nobody has to ship any files for
# them. After a text has changed, build the target <target>_lupdate to update the .ts files; scripts/lint
# fails until every text is translated.

# Qt's translation tools run on the build machine and belong to its own Qt. A Qt that was built for
# Windows or with a sanitizer does not include them.
find_package(Qt6LinguistTools 6.4 REQUIRED
    HINTS "${QT_HOST_PATH_CMAKE_DIR}" NO_CMAKE_FIND_ROOT_PATH)

set(VX_LANGUAGES de es fr it ja zh_CN)

# vx_add_translations(TARGET NAME [SOURCES FILE...]): embeds translations/NAME_<language>.ts in TARGET as
# :/NAME/translations/NAME_<language>.qm. The texts are in SOURCES, by default all sources of TARGET.
function(vx_add_translations target name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" SOURCES)
    # English is included although it only repeats the sources: QTranslator uses the first of the user's
    # languages that has a file. Without an English one, a user who prefers English to German gets German.
    set(files ${VX_LANGUAGES} en)
    list(TRANSFORM files PREPEND "${PROJECT_SOURCE_DIR}/translations/${name}_")
    list(TRANSFORM files APPEND .ts)
    set(sources)
    if(arg_SOURCES)
        set(sources SOURCES ${arg_SOURCES})
    endif()
    qt_add_translations(${target}
        TS_FILES ${files}
        ${sources}
        RESOURCE_PREFIX /${name}/translations
        LUPDATE_OPTIONS -locations none
        LRELEASE_OPTIONS -silent)
endfunction()

vx_add_translations(vxprinterstatus vxprinterstatus
    SOURCES status/status_titles.cpp platform/vxmessages/vxerror.cpp)
