// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "view_system.h"

#include <usage_history.h>

#include <QtCore/QProcess>
#include <QtCore/QStringList>

bool view_system::hasPrintQueue()
{
    return true;
}

bool view_system::openPrintQueue(const QString& printer)
{
    // The command line is taken apart by printui.dll, which has no way to write a quotation mark.
    if (printer.isEmpty() || printer.contains(u'"'))
        return false;
    // https://learn.microsoft.com/windows-server/administration/windows-commands/rundll32-printui
    return QProcess::startDetached(QStringLiteral("rundll32.exe"),
                                   {QStringLiteral("printui.dll,PrintUIEntry"),
                                    QStringLiteral("/o"), QStringLiteral("/n"), printer});
}

QString view_system::historyFile()
{
    return VxKit::UsageHistory::defaultFileName();
}

QString view_system::serverName(const QString& name)
{
    return name; // pipes have no folders
}
