// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "event_log_reader.h"

#include "log_file.h"
#include "log_writer.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace VxKit {

namespace {

constexpr qint64 blockSize = 65536;

} // namespace

class EventLogReader::Private
{
public:
    /// The oldest one is the last.
    std::vector<LogFile> files;
    qint64 offset = 0; ///< in the last file, of what comes after `buffer`
    QByteArray buffer; ///< what has been read and not yet been returned, from `begin` on
    qsizetype begin = 0;
    bool isSkipping = false; ///< the rest of a line that is too long
    QByteArray line;
    qint64 badLines = 0;
    QString error;

    std::optional<QByteArray> nextLine();

private:
    bool readBlock();
    void nextFile();
};

/// Appends a block of the current file to the buffer. False at its end.
bool EventLogReader::Private::readBlock()
{
    if (files.empty())
        return false;
    buffer.remove(0, std::exchange(begin, 0));
    const qsizetype size = buffer.size();
    buffer.resize(size + blockSize);
    const qint64 read = files.back().readAt(offset, buffer.data() + size, blockSize);
    buffer.resize(size + std::max<qint64>(read, 0));
    offset += std::max<qint64>(read, 0);
    if (read < 0)
        error = files.back().error();
    return read > 0;
}

void EventLogReader::Private::nextFile()
{
    files.pop_back();
    offset = 0;
}

/// The next line that is not too long, without its line feed. Empty at the end of the last file.
std::optional<QByteArray> EventLogReader::Private::nextLine()
{
    qsizetype searched = begin;
    while (true) {
        const qsizetype end = buffer.indexOf('\n', searched);
        if (end >= 0) {
            const QByteArray found = buffer.sliced(begin, end - begin);
            begin = end + 1;
            searched = begin;
            if (std::exchange(isSkipping, false) || found.size() >= longestLogLine) {
                ++badLines;
                continue;
            }
            return found;
        }
        if (buffer.size() - begin >= longestLogLine) {
            isSkipping = true;
            begin = buffer.size();
        }
        searched = buffer.size();
        const qsizetype removed = begin;
        if (readBlock()) {
            searched -= removed;
            continue;
        }
        if (files.empty())
            return std::nullopt;
        // What follows the last line feed is incomplete, or somebody has removed the line feed.
        const QByteArray rest = std::exchange(buffer, {}).sliced(begin);
        begin = searched = 0;
        nextFile();
        if (std::exchange(isSkipping, false))
            ++badLines;
        else if (!rest.isEmpty())
            return rest;
    }
}

EventLogReader::EventLogReader(const QString& fileName)
    : d(std::make_unique<Private>())
{
    // The newest first: what is rotated in the meantime is then found again under the next number,
    // and not missed.
    QString missing;
    for (int number = 0; number <= mostRotatedFiles; ++number) {
        const QString name = rotatedLogName(fileName, number);
        LogFile file = LogFile::forReading(name);
        if (file.isOpen()) {
            if (d->files.empty() || !file.isSameAs(d->files.back()))
                d->files.push_back(std::move(file));
        } else if (!file.isMissing()) {
            d->error = QStringLiteral("%1: %2").arg(name, file.error());
        } else if (number == 0) {
            missing = QStringLiteral("%1: %2").arg(name, file.error());
        }
    }
    if (d->files.empty() && d->error.isEmpty())
        d->error = missing;
}

EventLogReader::~EventLogReader() = default;

std::optional<PrinterEvent> EventLogReader::next()
{
    while (const std::optional<QByteArray> line = d->nextLine()) {
        if (line->trimmed().isEmpty())
            continue;
        if (std::optional<PrinterEvent> event = PrinterEvent::fromLine(*line)) {
            d->line = *line;
            return event;
        }
        ++d->badLines;
    }
    d->line.clear();
    return std::nullopt;
}

QByteArray EventLogReader::line() const
{
    return d->line;
}

qint64 EventLogReader::badLines() const
{
    return d->badLines;
}

QString EventLogReader::errorString() const
{
    return d->error;
}

} // namespace VxKit
