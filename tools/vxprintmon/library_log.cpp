// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "library_log.h"

#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>

#include <QtCore/QFile>

namespace {

void add(AbstractAppender* appender, Logger::LogLevel leastLevel)
{
    appender->setDetailsLevel(leastLevel);
    Logger::globalInstance()->registerAppender(appender);
}

} // namespace

QString keepLibraryLog(const QString& fileName)
{
    // The library logs at debug level; what is left are warnings of Qt's.
    add(new ConsoleAppender, Logger::Warning);
    if (fileName.isEmpty())
        return {};
    // The appender opens its file with the first line, and only remarks that it cannot.
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return QStringLiteral("cannot write the log %1: %2").arg(fileName, file.errorString());
    add(new FileAppender(fileName), Logger::Debug);
    return {};
}
