// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "AbstractAppender.h"

AbstractAppender::AbstractAppender() = default;

AbstractAppender::~AbstractAppender() = default;

Logger::LogLevel AbstractAppender::detailsLevel() const
{
    return m_detailsLevel;
}

void AbstractAppender::setDetailsLevel(Logger::LogLevel level)
{
    m_detailsLevel = level;
}

void AbstractAppender::setDetailsLevel(const QString& level)
{
    setDetailsLevel(Logger::levelFromString(level));
}

void AbstractAppender::write(const QDateTime& timeStamp, Logger::LogLevel logLevel,
                             const char* file, int line, const char* function,
                             const QString& category, const QString& message)
{
    if (logLevel < m_detailsLevel)
        return;
    const QMutexLocker guard(&m_mutex);
    append(timeStamp, logLevel, file, line, function, category, message);
}

QString AbstractAppender::formatted(const QDateTime& timeStamp, Logger::LogLevel logLevel,
                                    const char* file, int line, const char* function,
                                    const QString& category, const QString& message)
{
    const QString place = QStringLiteral("%1:%2 %3")
                              .arg(QString::fromUtf8(file))
                              .arg(line)
                              .arg(QString::fromUtf8(function));
    const QString origin =
        category.isEmpty() ? place : QStringLiteral("[%1] %2").arg(category, place);
    return QStringLiteral("%1 %2 <%3> %4\n")
        .arg(timeStamp.toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")),
             Logger::levelToString(logLevel).leftJustified(7), origin, message);
}

ListeningAppender::ListeningAppender() = default;

ListeningAppender::~ListeningAppender() = default;
