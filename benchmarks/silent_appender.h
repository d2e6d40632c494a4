// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <AbstractAppender.h>

/// Drops the lines of the log, which would go to the terminal otherwise.
class SilentAppender final : public AbstractAppender
{
protected:
    void append(const QDateTime& /*time*/, Logger::LogLevel /*level*/, const char* /*file*/,
                int /*line*/, const char* /*function*/, const QString& /*category*/,
                const QString& /*message*/) override
    {}
};
