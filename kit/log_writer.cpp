// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "log_writer.h"

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <array>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// So much is written by one call.
constexpr qsizetype chunkSize = 4 * longestLogLine;

/// When the first event of a file happened: what follows `{"time":"` at its beginning. Invalid if
/// the file does not begin so.
QDateTime timeOfFirstEvent(LogFile& file)
{
    static constexpr QByteArrayView prefix(R"({"time":")");
    std::array<char, 64> buffer{};
    const qint64 size = file.readAt(0, buffer.data(), buffer.size());
    const QByteArrayView text(buffer.data(), std::max<qint64>(size, 0));
    if (!text.startsWith(prefix))
        return {};
    const QByteArrayView rest = text.sliced(prefix.size());
    const QByteArrayView time = rest.first(std::max<qsizetype>(rest.indexOf('"'), 0));
    return QDateTime::fromString(QString::fromLatin1(time), Qt::ISODateWithMs);
}

} // namespace

QString rotatedLogName(const QString& fileName, int number)
{
    return number == 0 ? fileName : QStringLiteral("%1.%2").arg(fileName).arg(number);
}

LogWriter::LogWriter(EventLogOptions options)
    : m_options(std::move(options))
{}

LogWriter::Outcome LogWriter::write(const QList<QByteArray>& lines, QDeadlineTimer end)
{
    Outcome outcome;
    LogLock lock;
    const QString lockName = m_options.fileName + QStringLiteral(".lock");
    LogLock::Outcome taken = lock.tryToTake(lockName);
    while (taken == LogLock::Outcome::Busy && !end.hasExpired()) {
        std::this_thread::sleep_for(1ms);
        taken = lock.tryToTake(lockName);
    }
    if (taken != LogLock::Outcome::Held) {
        outcome.error = QStringLiteral("%1: %2").arg(lockName, lock.error());
        return outcome;
    }

    m_error.clear();
    bool isGood = open();
    QByteArray chunk;
    QList<qsizetype> ends; // of the lines in the chunk
    for (const QByteArray& line : lines) {
        if (!isGood)
            break;
        if (mustRotate(chunk.size() + line.size()))
            isGood = writeChunk(outcome, chunk, ends) && rotate();
        else if (chunk.size() + line.size() > chunkSize)
            isGood = writeChunk(outcome, chunk, ends);
        chunk += line;
        ends.append(chunk.size());
    }
    if (isGood)
        isGood = writeChunk(outcome, chunk, ends);
    m_file = LogFile();
    if (!isGood)
        outcome.error = m_error;
    return outcome;
}

/// Opens the file, and begins a new line if the last one is incomplete.
bool LogWriter::open()
{
    const QString& name = m_options.fileName;
    m_file = LogFile::forAppending(name);
    m_size = m_file.isOpen() ? m_file.size() : -1;
    char last = '\n';
    if (m_size < 0 || (m_size > 0 && m_file.readAt(m_size - 1, &last, 1) != 1) ||
        (last != '\n' && m_file.append("\n") != 1)) {
        m_error = QStringLiteral("%1: %2").arg(name, m_file.error());
        return false;
    }
    if (last != '\n')
        ++m_size;
    if (!m_sinceRemoval.isValid() || m_sinceRemoval.hasExpired(3600000))
        removeOldFiles();
    if (m_size > 0 && isOld())
        return rotate();
    return true;
}

bool LogWriter::isOld()
{
    if (m_options.rotateAfter.count() == 0)
        return false;
    const QDateTime first = timeOfFirstEvent(m_file);
    return first.isValid() &&
           first.secsTo(QDateTime::currentDateTime()) > m_options.rotateAfter.count();
}

bool LogWriter::mustRotate(qint64 added)
{
    return m_size > 0 && m_size + added > m_options.maxFileSize;
}

/// Goes on with a new file. When the file cannot be renamed, which another program can prevent on
/// Windows, goes on with the old one until it is twice as large as it may be.
bool LogWriter::rotate()
{
    const QString& name = m_options.fileName;
    QString error;
    // Without rotated files there is one for a moment: on Windows, the name of a file that is
    // removed stays in use until everybody has closed it.
    for (int number = std::max(m_options.rotatedFiles, 1) - 1; number >= 0 && error.isEmpty();
         --number) {
        const QString from = rotatedLogName(name, number);
        if (QFileInfo::exists(from))
            error = moveLogFile(from, rotatedLogName(name, number + 1));
    }
    if (!error.isEmpty()) {
        m_error = QStringLiteral("%1: %2").arg(name, error);
        return m_size < 2 * m_options.maxFileSize - longestLogLine;
    }
    m_file = LogFile::forAppending(name);
    m_size = m_file.isOpen() ? m_file.size() : -1;
    if (m_size < 0)
        m_error = QStringLiteral("%1: %2").arg(name, m_file.error());
    removeOldFiles();
    return m_size >= 0;
}

/// Removes the rotated files that are too old, and those of a log that was allowed to have more.
void LogWriter::removeOldFiles()
{
    m_sinceRemoval.start();
    const QDateTime now = QDateTime::currentDateTime();
    for (int number = 1; number <= mostRotatedFiles; ++number) {
        const QFileInfo file(rotatedLogName(m_options.fileName, number));
        if (!file.isFile())
            continue;
        const bool isOld = m_options.keepFor.count() > 0 &&
                           file.lastModified().secsTo(now) > m_options.keepFor.count();
        if (isOld || number > m_options.rotatedFiles)
            QFile::remove(file.filePath()); // tried again next time
    }
}

/// Writes whole lines at once. If only a part could be written, the incomplete line is removed.
bool LogWriter::writeChunk(Outcome& outcome, QByteArray& chunk, QList<qsizetype>& ends)
{
    const qint64 written = chunk.isEmpty() ? 0 : m_file.append(chunk);
    const bool isComplete = written == chunk.size();
    qint64 kept = written;
    if (isComplete) {
        outcome.written += ends.size();
    } else {
        m_error = QStringLiteral("%1: %2").arg(m_options.fileName, m_file.error());
        kept = 0;
        for (const qsizetype end : std::as_const(ends)) {
            if (end > written)
                break;
            kept = end;
            ++outcome.written;
        }
        // If it cannot be removed, the next writer begins a new line behind it.
        if (kept != written)
            QFile::resize(m_options.fileName, m_size + kept);
    }
    m_size += kept;
    chunk.clear();
    ends.clear();
    return isComplete;
}

} // namespace VxKit
