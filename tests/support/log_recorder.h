// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <AbstractAppender.h>
#include <Logger.h>

#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QString>

/// One record as an appender receives it.
struct LogRecord
{
    Logger::LogLevel level = Logger::Debug;
    QString file;
    int line = 0;
    QString function;
    QString category;
    QString message;

    bool operator==(const LogRecord&) const = default;
};

/// Records what the global logger is given, from any thread, while it lives.
class LogRecorder
{
public:
    LogRecorder();
    ~LogRecorder();
    Q_DISABLE_COPY_MOVE(LogRecorder)

    QList<LogRecord> records() const;
    void clear();

private:
    class Appender;
    Appender* m_appender;
};

/// The record of a library's line: debug level, no category.
LogRecord libraryLine(const char* file, int line, const char* function, const QString& message);

/// A record as one text, so that a failed comparison can be read.
char* toString(const LogRecord& record);
