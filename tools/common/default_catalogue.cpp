// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "default_catalogue.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>

QString defaultCatalogue()
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString beside = programs.filePath(QStringLiteral("roll.db"));
    // A package must not put data into the folder of the programs, so it has the catalogue here.
    const QString installed =
        QDir::cleanPath(programs.filePath(QStringLiteral("../share/VxPrinterStatus/roll.db")));
    return !QFileInfo::exists(beside) && QFileInfo::exists(installed) ? installed : beside;
}
