// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "Logger.h"

#include <QtCore/QMutex>

#include <atomic>

/// A destination for records. It gets one record at a time, even from several threads.
class CUTELOGGERSHARED_EXPORT AbstractAppender
{
public:
    AbstractAppender();
    virtual ~AbstractAppender();
    Q_DISABLE_COPY_MOVE(AbstractAppender)

    /// The lowest level that is written. The default is `Debug`.
    Logger::LogLevel detailsLevel() const;
    void setDetailsLevel(Logger::LogLevel level);
    void setDetailsLevel(const QString& level);

    /// Appends the record if its level is high enough.
    void write(const QDateTime& timeStamp, Logger::LogLevel logLevel, const char* file, int line,
               const char* function, const QString& category, const QString& message);

    /// Whether a record that it gets is written somewhere. A record that no appender writes goes to
    /// standard error.
    virtual bool isOutput() const { return true; }

protected:
    virtual void append(const QDateTime& timeStamp, Logger::LogLevel logLevel, const char* file,
                        int line, const char* function, const QString& category,
                        const QString& message) = 0;

    /// The record as one line of text, in the format of this library's appenders.
    static QString formatted(const QDateTime& timeStamp, Logger::LogLevel logLevel,
                             const char* file, int line, const char* function,
                             const QString& category, const QString& message);

private:
    std::atomic<Logger::LogLevel> m_detailsLevel = Logger::Debug;
    QMutex m_mutex;
};

/// An appender that only takes notice of records. CuteLogger has none.
class CUTELOGGERSHARED_EXPORT ListeningAppender : public AbstractAppender
{
public:
    ListeningAppender();
    ~ListeningAppender() override;
    Q_DISABLE_COPY_MOVE(ListeningAppender)

    bool isOutput() const final { return false; }
};
