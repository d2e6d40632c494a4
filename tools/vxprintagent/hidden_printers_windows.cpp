// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "hidden_printers.h"

#include <QtCore/QSettings>
#include <QtCore/QStringList>

// The connections of each user who is logged on are in that user's part of the registry, with
// commas in place of the backslashes of "\\server\printer":
// https://learn.microsoft.com/troubleshoot/windows-server/printing/print-registry-entries
QList<hidden_printers::Connection> hidden_printers::ofOtherUsers()
{
    const QString connections = QStringLiteral("Printers/Connections");
    QSettings own(QStringLiteral("HKEY_CURRENT_USER"), QSettings::NativeFormat);
    own.beginGroup(connections);
    const QStringList seen = own.childGroups();
    QList<Connection> result;
    QSettings users(QStringLiteral("HKEY_USERS"), QSettings::NativeFormat);
    for (const QStringList names = users.childGroups(); const QString& user : names) {
        // The other half of a user's registry is beside it under a name of its own.
        if (!user.startsWith(QLatin1String("S-1-5-21-")) ||
            user.endsWith(QLatin1String("_Classes")))
            continue;
        users.beginGroup(user + u'/' + connections);
        for (const QStringList printers = users.childGroups(); QString printer : printers) {
            if (!seen.contains(printer))
                result.append({printer.replace(u',', u'\\'), user});
        }
        users.endGroup();
    }
    return result;
}
