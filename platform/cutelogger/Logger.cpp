// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "Logger.h"

#include "AbstractAppender.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QMultiHash>
#include <QtCore/QMutex>
#include <QtCore/QReadWriteLock>
#include <QtCore/QSet>

#include <array>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

struct Logger::Private
{
    QReadWriteLock lock;
    QList<AbstractAppender*> appenders;
    QMultiHash<QString, AbstractAppender*> categoryAppenders;
    QSet<QString> linkedCategories;

    /// Deletes all appenders.
    void clear();
    QMutex remarksMutex;
    QSet<QString> remarks; ///< made already
    void remarkOnce(const QString& remark);
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

void say(const QString& text)
{
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
}

Logger::LogLevel levelOf(QtMsgType type)
{
    switch (type) {
    case QtInfoMsg:
        return Logger::Info;
    case QtWarningMsg:
        return Logger::Warning;
    case QtCriticalMsg:
        return Logger::Error;
    case QtFatalMsg:
        return Logger::Fatal;
    case QtDebugMsg:
        break;
    }
    return Logger::Debug;
}

void writeQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool hasCategory = context.category && qstrcmp(context.category, "default") != 0;
    Logger::globalInstance()->write(levelOf(type), context.file, context.line, context.function,
                                    hasCategory ? context.category : nullptr, message);
}

/// Whether the global logger is set up for the application object that there is, or will be.
std::atomic<bool> isSetUp = false;

} // namespace

void Logger::Private::clear()
{
    const QWriteLocker guard(&lock);
    // One that is registered for several purposes is deleted once.
    QSet<AbstractAppender*> all(appenders.cbegin(), appenders.cend());
    for (AbstractAppender* appender : std::as_const(categoryAppenders))
        all.insert(appender);
    qDeleteAll(all);
    appenders.clear();
    categoryAppenders.clear();
    linkedCategories.clear();
}

void Logger::Private::remarkOnce(const QString& remark)
{
    const QMutexLocker guard(&remarksMutex);
    if (remarks.contains(remark))
        return;
    remarks.insert(remark);
    say(remark);
}

Logger::Logger()
    : d(std::make_unique<Private>())
{}

Logger::~Logger()
{
    d->clear();
}

Logger* Logger::globalInstance()
{
    // Never destroyed: threads and destructors of static objects may log until the very end.
    static Logger* const logger = new Logger;
    if (!isSetUp.load(std::memory_order_acquire) && !isSetUp.exchange(true)) {
        qInstallMessageHandler(writeQtMessage);
        qAddPostRoutine([] {
            isSetUp = false;
            logger->d->clear();
        });
    }
    return logger;
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
    if (d->appenders.contains(appender))
        say(QStringLiteral("log: an appender was registered that is registered already"));
    else
        d->appenders.append(appender);
}

void Logger::registerCategoryAppender(const QString& category, AbstractAppender* appender)
{
    const QWriteLocker guard(&d->lock);
    if (d->categoryAppenders.values().contains(appender))
        say(QStringLiteral("log: an appender was registered that is registered already"));
    else
        d->categoryAppenders.insert(category, appender);
}

void Logger::removeAppender(AbstractAppender* appender)
{
    const QWriteLocker guard(&d->lock);
    d->appenders.removeAll(appender);
    d->categoryAppenders.removeIf([&](const auto& entry) { return entry.value() == appender; });
}

void Logger::logToGlobalInstance(const QString& category, bool isLinked)
{
    Logger* const global = globalInstance();
    const QWriteLocker guard(&global->d->lock);
    if (isLinked)
        global->d->linkedCategories.insert(category);
    else
        global->d->linkedCategories.remove(category);
}

bool Logger::hand(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
                  const char* function, const QString& category, const QString& message)
{
    const QReadLocker guard(&d->lock);
    bool isTaken = false;
    const auto handTo = [&](const QList<AbstractAppender*>& appenders) {
        for (AbstractAppender* appender : appenders)
            appender->write(timeStamp, level, file, line, function, category, message);
        isTaken = isTaken || !appenders.isEmpty();
    };
    if (!category.isNull())
        handTo(d->categoryAppenders.values(category));
    if (category.isNull() || d->linkedCategories.contains(category))
        handTo(d->appenders);
    return isTaken;
}

void Logger::write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
                   const char* function, const char* category, const QString& message)
{
    const QString categoryText = category ? QString::fromUtf8(category) : QString();
    bool isTaken = hand(timeStamp, level, file, line, function, categoryText, message);
    // What has a category reaches the global logger from any other.
    if (category && this != globalInstance()) {
        globalInstance()->hand(timeStamp, level, file, line, function, categoryText, message);
        isTaken = true;
    }
    if (!isTaken) {
        d->remarkOnce(category
                          ? QStringLiteral("log: no appender is registered for the category \"%1\"")
                                .arg(categoryText)
                          : QStringLiteral("log: no appender is registered"));
        say(QStringLiteral("%1 <%2> %3")
                .arg(levelToString(level).leftJustified(7), QString::fromUtf8(function), message));
    }
    if (level == Fatal)
        std::abort();
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

Logger* cuteLoggerInstance()
{
    return Logger::globalInstance();
}
