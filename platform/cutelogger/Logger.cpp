// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "Logger.h"

#include "AbstractAppender.h"

#include <QtCore/QList>
#include <QtCore/QReadWriteLock>

#include <array>
#include <atomic>
#include <cstdarg>
#include <cstdio>

struct Logger::Private
{
    QReadWriteLock lock;
    QList<AbstractAppender*> appenders;
};

namespace {

constexpr std::array<const char*, 6> levelNames{"Trace",   "Debug", "Info",
                                                "Warning", "Error", "Fatal"};

/// The time that the clock on the wall shows. How far that is from universal time is asked once a
/// second and not for every line: the system looks at its time zone's file for it, which takes
/// longer than all the rest of a line.
QDateTime wallClock()
{
    struct Offset
    {
        quint32 second = 0; ///< in which it was asked
        qint32 seconds = 0; ///< east of universal time
    };
    static std::atomic<Offset> kept{Offset{}};

    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const auto second = static_cast<quint32>(now / 1000);
    Offset offset = kept.load(std::memory_order_relaxed);
    if (offset.second != second) {
        offset = {second, QDateTime::fromMSecsSinceEpoch(now).offsetFromUtc()};
        kept.store(offset, std::memory_order_relaxed);
    }
    return QDateTime::fromMSecsSinceEpoch(now, Qt::OffsetFromUTC, offset.seconds);
}

/// As QString::vasprintf, which composes a text of its pieces and takes several times as long.
QString formatted(const char* message, va_list arguments)
{
    va_list again;
    va_copy(again, arguments);
    std::array<char, 512> text;
    const int length = std::vsnprintf(text.data(), text.size(), message, arguments);
    const bool fits = length >= 0 && static_cast<std::size_t>(length) < text.size();
    const QString result =
        fits ? QString::fromUtf8(text.data(), length) : QString::vasprintf(message, again);
    va_end(again);
    return result;
}

} // namespace

Logger::Logger()
    : d(std::make_unique<Private>())
{}

Logger::~Logger()
{
    qDeleteAll(d->appenders);
}

Logger* Logger::globalInstance()
{
    static Logger logger;
    return &logger;
}

QString Logger::levelToString(LogLevel level)
{
    return QString::fromLatin1(levelNames.at(level));
}

Logger::LogLevel Logger::levelFromString(const QString& name)
{
    const QString wanted = name.trimmed();
    for (std::size_t level = 0; level < levelNames.size(); ++level) {
        if (wanted.compare(QLatin1String(levelNames[level]), Qt::CaseInsensitive) == 0)
            return static_cast<LogLevel>(level);
    }
    return Debug;
}

void Logger::registerAppender(AbstractAppender* appender)
{
    const QWriteLocker guard(&d->lock);
    if (!d->appenders.contains(appender))
        d->appenders.append(appender);
}

void Logger::removeAppender(AbstractAppender* appender)
{
    const QWriteLocker guard(&d->lock);
    d->appenders.removeAll(appender);
}

void Logger::write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
                   const char* function, const char* category, const QString& message)
{
    const QString categoryText = QString::fromUtf8(category);
    const QReadLocker guard(&d->lock);
    for (AbstractAppender* appender : std::as_const(d->appenders))
        appender->write(timeStamp, level, file, line, function, categoryText, message);
}

void Logger::write(LogLevel level, const char* file, int line, const char* function,
                   const char* category, const QString& message)
{
    write(wallClock(), level, file, line, function, category, message);
}

CuteMessageLogger::CuteMessageLogger(Logger* logger, Logger::LogLevel level, const char* file,
                                     int line, const char* function, const char* category)
    : m_logger(logger)
    , m_level(level)
    , m_file(file)
    , m_line(line)
    , m_function(function)
    , m_category(category)
{}

CuteMessageLogger::~CuteMessageLogger()
{
    if (m_streamed)
        write(*m_streamed);
}

void CuteMessageLogger::write(const char* message, ...) const
{
    va_list arguments;
    va_start(arguments, message);
    const QString text = formatted(message, arguments);
    va_end(arguments);
    write(text);
}

void CuteMessageLogger::write(const QString& message) const
{
    m_logger->write(m_level, m_file, m_line, m_function, m_category, message);
}

QDebug CuteMessageLogger::write() const
{
    if (!m_streamed)
        m_streamed = std::make_unique<QString>();
    return QDebug(m_streamed.get());
}

Logger* loggerInstance()
{
    return Logger::globalInstance();
}
