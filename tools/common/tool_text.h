// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

/// The texts that the tools show to people. `ToolText::tr` translates one; a text in a table is
/// marked with `QT_TRANSLATE_NOOP("tools", ...)` and passed to it when it is shown. The
/// translations are in translations/tools_*.ts.
///
/// Names of commands, options and JSON members are the same in every language.
struct ToolText
{
    Q_DECLARE_TR_FUNCTIONS(tools)

public:
    /// Lets the tool speak the user's language, as far as there are texts in it: its own texts,
    /// those of the library and the kit if they are linked, and Qt's own.
    ///
    /// Call it once, when there is an application object.
    static void useLanguageOfUser();

    /// What the help of every tool says about its exit status.
    static QString exitStatusHelp();
};
