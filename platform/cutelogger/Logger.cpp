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

#include <algorithm>
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
    QSet<QString> remarks; ///< that have been printed
    void remarkOnce(const QString& remark);
};

namespace {

constexpr std::array<const char*, 6> levelNames{"Trace",   "Debug", "Info",
                                                "Warning", "Error", "Fatal"};

/// The local time. Its offset from UTC is queried once a second and not for every line: the system
/// looks into its time zone's file for it, which takes longer than the rest of a line.
QDateTime localTime()
{
    struct Offset
    {
        quint32 queriedAt = 0;     ///< in seconds
        qint32 secondsFromUtc = 0; ///< positive to the east
    };
    static std::atomic<Offset> cached{Offset{}};

    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const auto second = static_cast<quint32>(now / 1000);
    Offset offset = cached.load(std::memory_order_relaxed);
    if (offset.queriedAt != second) {
        offset = {second, QDateTime::fromMSecsSinceEpoch(now).offsetFromUtc()};
        cached.store(offset, std::memory_order_relaxed);
    }
    return QDateTime::fromMSecsSinceEpoch(now, Qt::OffsetFromUTC, offset.secondsFromUtc);
}

void printLine(const QString& text)
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

/// Whether the global logger is set up for the current application object or the next one.
std::atomic<bool> isSetUp = false;

} // namespace

void Logger::Private::clear()
{
    const QWriteLocker guard(&lock);
    // An appender that is registered more than once must be deleted once.
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
    printLine(remark);
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
    // Never destroyed: threads and static destructors may log until the process ends.
    static auto* const logger = new Logger;
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
        printLine(QStringLiteral("log: the same appender was registered twice"));
    else
        d->appenders.append(appender);
}

void Logger::registerCategoryAppender(const QString& category, AbstractAppender* appender)
{
    const QWriteLocker guard(&d->lock);
    if (d->categoryAppenders.values().contains(appender))
        printLine(QStringLiteral("log: the same appender was registered twice"));
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

bool Logger::dispatch(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
                      const char* function, const QString& category, const QString& message)
{
    const QReadLocker guard(&d->lock);
    bool isWritten = false;
    const auto writeTo = [&](const QList<AbstractAppender*>& appenders) {
        for (AbstractAppender* appender : appenders)
            appender->write(timeStamp, level, file, line, function, category, message);
        isWritten = isWritten || std::ranges::any_of(appenders, &AbstractAppender::isOutput);
    };
    if (!category.isNull())
        writeTo(d->categoryAppenders.values(category));
    if (category.isNull() || d->linkedCategories.contains(category))
        writeTo(d->appenders);
    return isWritten;
}

void Logger::write(const QDateTime& timeStamp, LogLevel level, const char* file, int line,
                   const char* function, const char* category, const QString& message)
{
    const QString categoryText = category ? QString::fromUtf8(category) : QString();
    bool isWritten = dispatch(timeStamp, level, file, line, function, categoryText, message);
    // Every other logger passes records with a category on to the global one as well.
    if (category && this != globalInstance()) {
        globalInstance()->dispatch(timeStamp, level, file, line, function, categoryText, message);
        isWritten = true;
    }
    if (!isWritten) {
        d->remarkOnce(category
                          ? QStringLiteral("log: no appender is registered for the category \"%1\"")
                                .arg(categoryText)
                          : QStringLiteral("log: no appender is registered"));
        printLine(
            QStringLiteral("%1 <%2> %3")
                .arg(levelToString(level).leftJustified(7), QString::fromUtf8(function), message));
    }
    if (level == Fatal)
        std::abort();
}

void Logger::write(LogLevel level, const char* file, int line, const char* function,
                   const char* category, const QString& message)
{
    write(localTime(), level, file, line, function, category, message);
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

void CuteMessageLogger::write(const char* message, ...)
{
    // QString::vasprintf() builds the text piece by piece and takes several times as long.
    std::array<char, 512> buffer;
    va_list arguments;
    va_start(arguments, message);
    const int length = std::vsnprintf(buffer.data(), buffer.size(), message, arguments);
    va_end(arguments);
    if (length >= 0 && static_cast<std::size_t>(length) < buffer.size()) {
        write(QString::fromUtf8(buffer.data(), length));
        return;
    }
    va_start(arguments, message);
    const QString text = QString::vasprintf(message, arguments);
    va_end(arguments);
    write(text);
}

void CuteMessageLogger::write(const QString& message)
{
    m_logger->write(m_level, m_file, m_line, m_function, m_category, message);
}

QDebug CuteMessageLogger::write()
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
