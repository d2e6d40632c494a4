// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "log_recorder.h"

#include <QtTest/QtTest>

class LogRecorder::Appender : public AbstractAppender
{
public:
    QList<LogRecord> records() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_records;
    }
    void clear()
    {
        const QMutexLocker lock(&m_mutex);
        m_records.clear();
    }

protected:
    void append(const QDateTime& /*timeStamp*/, Logger::LogLevel level, const char* file, int line,
                const char* function, const QString& category, const QString& message) override
    {
        const QMutexLocker lock(&m_mutex);
        m_records.append(
            {level, QString::fromUtf8(file), line, QString::fromUtf8(function), category, message});
    }

private:
    mutable QMutex m_mutex;
    QList<LogRecord> m_records;
};

LogRecorder::LogRecorder()
    : m_appender(new Appender)
{
    m_appender->setDetailsLevel(Logger::Trace);
    Logger::globalInstance()->registerAppender(m_appender);
}

LogRecorder::~LogRecorder()
{
    Logger::globalInstance()->removeAppender(m_appender);
    delete m_appender;
}

QList<LogRecord> LogRecorder::records() const
{
    return m_appender->records();
}

void LogRecorder::clear()
{
    m_appender->clear();
}

LogRecord libraryLine(const char* file, int line, const char* function, const QString& message)
{
    return {Logger::Debug, QString::fromUtf8(file), line, QString::fromUtf8(function), {}, message};
}

char* toString(const LogRecord& record)
{
    return qstrdup(qPrintable(QStringLiteral("[%1] %2:%3 %4 {%5} \"%6\"")
                                  .arg(int(record.level))
                                  .arg(record.file)
                                  .arg(record.line)
                                  .arg(record.function, record.category, record.message)));
}
