// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A replacement for CuteLogger where that library is not installed. It has the same names and the
// same behaviour, so that a host can use either.
#pragma once

#include "CuteLogger_global.h"

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QString>

#include <memory>

class AbstractAppender;

/// Passes records to appenders. Thread-safe.
///
/// A record without a registered appender goes to standard error, the first time with a remark. A
/// record below the level of the registered appenders is dropped. A fatal record ends the process
/// after it has been written.
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

    /// The logger of the process. From its first use, Qt's own messages become records too. Its
    /// appenders are deleted with the application object.
    static Logger* globalInstance();

    static QString levelToString(LogLevel level);
    /// The level with a name, ignoring case and surrounding white space; `Debug` for any other
    /// text.
    static LogLevel levelFromString(const QString& name);

    /// Takes ownership of an appender for records without a category. Registering it again is
    /// refused with a remark on standard error.
    void registerAppender(AbstractAppender* appender);
    /// The same for records with a category.
    void registerCategoryAppender(const QString& category, AbstractAppender* appender);
    /// Returns the ownership of an appender to the caller. Does nothing if it is not registered.
    void removeAppender(AbstractAppender* appender);
    /// Sets whether records with a category also go to the global logger's appenders for records
    /// without one.
    void logToGlobalInstance(const QString& category, bool isLinked = false);

    void write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
               const char* function, const char* category, const QString& message);
    void write(LogLevel level, const char* file, int line, const char* function,
               const char* category, const QString& message);

private:
    /// Passes a record to its appenders. Returns whether there was one.
    bool dispatch(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
                  const char* function, const QString& category, const QString& message);

    struct Private;
    std::unique_ptr<Private> d;
};

/// A record without its message: its place and level, and three ways to add the message.
class CUTELOGGERSHARED_EXPORT CuteMessageLogger
{
public:
    CuteMessageLogger(Logger* logger, Logger::LogLevel level, const char* file, int line,
                      const char* function, const char* category = nullptr);
    /// Writes what was streamed, if anything.
    ~CuteMessageLogger();
    Q_DISABLE_COPY_MOVE(CuteMessageLogger)

    // Not const, as in the releases: code that compiles here has to compile with them.
    /// A message in the style of printf(), with 8-bit text.
    void write(const char* message, ...) Q_ATTRIBUTE_FORMAT_PRINTF(2, 3);
    void write(const QString& message);
    /// A stream for the message, which is written when this object is destroyed.
    QDebug write();

private:
    Logger* m_logger;
    Logger::LogLevel m_level;
    const char* m_file;
    int m_line;
    const char* m_function;
    const char* m_category;
    std::unique_ptr<QString> m_streamed;
};

/// The global logger, under its names in older and newer releases.
CUTELOGGERSHARED_EXPORT Logger* loggerInstance();
CUTELOGGERSHARED_EXPORT Logger* cuteLoggerInstance();
