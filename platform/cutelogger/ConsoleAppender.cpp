// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ConsoleAppender.h"

#include <cstdio>

void ConsoleAppender::append(const QDateTime& timeStamp, Logger::LogLevel logLevel,
                             const char* file, int line, const char* function,
                             const QString& category, const QString& message)
{
    const QByteArray text =
        formatted(timeStamp, logLevel, file, line, function, category, message).toLocal8Bit();
    std::fputs(text.constData(), stderr);
    std::fflush(stderr);
}
