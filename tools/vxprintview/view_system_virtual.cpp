// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "view_system.h"

#include <QtCore/QStandardPaths>

bool view_system::hasPrintQueue()
{
    return false;
}

bool view_system::openPrintQueue(const QString& /*printer*/)
{
    return false;
}

QString view_system::historyFile()
{
    return {};
}

QString view_system::serverName(const QString& name)
{
    // In a folder that is the user's own, nobody else can be there first.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return folder.isEmpty() ? name : folder + QLatin1Char('/') + name;
}
