// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A stand-in for CuteLogger where that library is not installed: the same names and the same
// behaviour, so that a host can have either.
#pragma once

#include "CuteLogger_global.h"

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QString>

#include <memory>

class AbstractAppender;

/// Hands records to appenders. May be used on any thread.
///
/// A record that no appender is registered for goes to standard error, with one remark the first
/// time; one below the level of the registered appenders goes nowhere. A fatal record ends the
/// process once it is written.
class CUTELOGGERSHARED_EXPORT Logger
{
public:
    enum LogLevel
    {
        Trace,
        Debug,
        Info,
        Warning,
        Error,
        Fatal
    };

    Logger();
    /// Deletes the appenders that are still registered.
    ~Logger();
    Q_DISABLE_COPY_MOVE(Logger)

    /// The logger of the whole process. From the first use on Qt's own messages are records too,
    /// and when the application object ends its appenders are deleted.
    static Logger* globalInstance();

    static QString levelToString(LogLevel level);
    /// The level of a name, in any letter case and with surrounding blanks; `Debug` for any other
    /// text.
    static LogLevel levelFromString(const QString& name);

    /// Takes the appender over, for records without a category; a second registration of the same
    /// one is refused with a remark on standard error.
    void registerAppender(AbstractAppender* appender);
    /// The same for records of a category.
    void registerCategoryAppender(const QString& category, AbstractAppender* appender);
    /// Gives the appender back to the caller; one that is not registered is left alone.
    void removeAppender(AbstractAppender* appender);
    /// Whether records of the category reach the global logger's other appenders as well.
    void logToGlobalInstance(const QString& category, bool isLinked = false);

    void write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
               const char* function, const char* category, const QString& message);
    void write(LogLevel level, const char* file, int line, const char* function,
               const char* category, const QString& message);

private:
    /// Writes a record, and answers whether an appender was there to take it.
    bool hand(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
              const char* function, const QString& category, const QString& message);

    struct Private;
    std::unique_ptr<Private> d;
};

/// One record in the making: its place and level, and three ways to give its message.
class CUTELOGGERSHARED_EXPORT CuteMessageLogger
{
public:
    CuteMessageLogger(Logger* logger, Logger::LogLevel level, const char* file, int line,
                      const char* function, const char* category = nullptr);
    /// Writes what was streamed, if anything was.
    ~CuteMessageLogger();
    Q_DISABLE_COPY_MOVE(CuteMessageLogger)

    /// printf-style, with 8-bit text.
    void write(const char* message, ...) const Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void write(const QString& message) const;
    /// A stream for the message, written when this object ends.
    QDebug write() const;

private:
    Logger* m_logger;
    Logger::LogLevel m_level;
    const char* m_file;
    int m_line;
    const char* m_function;
    const char* m_category;
    mutable std::unique_ptr<QString> m_streamed;
};

/// The global logger, under the names that older and newer releases give it.
CUTELOGGERSHARED_EXPORT Logger* loggerInstance();
CUTELOGGERSHARED_EXPORT Logger* cuteLoggerInstance();
