// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "AbstractAppender.h"

/// Writes each record to standard error as one line.
class CUTELOGGERSHARED_EXPORT ConsoleAppender : public AbstractAppender
{
protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel logLevel, const char* file, int line,
                const char* function, const QString& category, const QString& message) override;
};
