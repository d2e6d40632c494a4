// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "tool_text.h"

#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

#include <array>

namespace {

/// What Qt's own parser of command lines complains about. Qt's translations are not shipped with
/// the tools, so that these texts are among ours.
[[maybe_unused]] constexpr std::array textsOfQt{
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'."),
};

void install(const QString& name, const QString& folder)
{
    auto* const translator = new QTranslator(QCoreApplication::instance());
    // The language in which the library gives the names of colours.
    if (translator->load(QLocale::system(), name, QStringLiteral("_"), folder))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

QString ToolText::exitStatusHelp()
{
    return tr("Exit status: 0 success, 1 failure, 2 wrong usage. Failing to write the output is a "
              "failure, unless the reader has closed the pipe.");
}

void ToolText::useLanguageOfUser()
{
    install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    for (const char* name : {"vxprinterstatus", "vxprinterstatuskit", "tools"})
        install(QLatin1String(name), QStringLiteral(":/%1/translations").arg(QLatin1String(name)));
}
