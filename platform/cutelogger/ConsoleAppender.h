// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "AbstractAppender.h"

/// Writes records to standard error, a line each.
class CUTELOGGERSHARED_EXPORT ConsoleAppender : public AbstractAppender
{
protected:
    void append(const QDateTime& timeStamp, Logger::LogLevel logLevel, const char* file, int line,
                const char* function, const QString& category, const QString& message) override;
};
