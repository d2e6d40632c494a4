// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "library_log.h"

#include "failure.h"
#include "tool_text.h"

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

void setUpLibraryLog(const QString& fileName)
{
    // The library logs at debug level, so only warnings from Qt reach the console.
    add(new ConsoleAppender, Logger::Warning);
    if (fileName.isEmpty())
        return;
    // The appender opens the file at its first line and does not report an error, so try it here.
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        throw Failure(
            ToolText::tr("cannot write the log %1: %2").arg(fileName, file.errorString()));
    add(new FileAppender(fileName), Logger::Debug);
}
