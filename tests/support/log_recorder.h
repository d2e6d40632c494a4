// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <AbstractAppender.h>
#include <Logger.h>

#include <QtCore/QList>
#include <QtCore/QMutex>
#include <QtCore/QString>

/// One record, with everything that an appender receives.
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

/// Records everything that is passed to the global logger on any thread while the object exists.
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

/// The record of a line that the library logs: debug level, no category.
LogRecord libraryLine(const char* file, int line, const char* function, const QString& message);

/// Lets QCOMPARE print a record.
char* toString(const LogRecord& record);
