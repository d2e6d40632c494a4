// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "event_queue.h"

#include "synced_file.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtCore/QUuid>

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr qint64 smallestLimit = qint64(1024) * 1024;
constexpr int segmentsInLimit = 16;
/// Longer lines are not from this program: an event has fewer than 65536 bytes.
constexpr qint64 longestLine = qint64(128) * 1024;
const QString suffix = QStringLiteral(".events");

/// The checksum of Ethernet and zip. It finds lines that were written in part.
quint32 crc32(const QByteArray& bytes)
{
    static const std::array<quint32, 256> table = [] {
        constexpr quint32 polynomial = 0xedb88320;
        std::array<quint32, 256> result{};
        for (quint32 i = 0; i < result.size(); ++i) {
            quint32 value = i;
            for (int bit = 0; bit < 8; ++bit)
                value = (value & 1) != 0 ? (value >> 1) ^ polynomial : value >> 1;
            result.at(i) = value;
        }
        return result;
    }();
    quint32 crc = 0xffffffff;
    for (const char byte : bytes)
        crc = (crc >> 8) ^ table.at((crc ^ static_cast<uchar>(byte)) & 0xff);
    return ~crc;
}

QByteArray withChecksum(const QByteArray& text)
{
    return QByteArray::number(crc32(text), 16).rightJustified(8, '0') + ' ' + text + '\n';
}

/// The text of a line; empty if its checksum is not right.
std::optional<QByteArray> withoutChecksum(const QByteArray& line)
{
    constexpr qsizetype digits = 8;
    if (!line.endsWith('\n') || line.size() < digits + 2 || line.at(digits) != ' ')
        return std::nullopt;
    const QByteArray text = line.sliced(digits + 1, line.size() - digits - 2);
    bool isNumber = false;
    const quint32 crc = line.left(digits).toUInt(&isNumber, 16);
    return isNumber && crc == crc32(text) ? std::optional(text) : std::nullopt;
}

bool writeAll(QFile& file, const QByteArray& bytes)
{
    // A full disk takes a part without an error, and the next call says why.
    for (qint64 written = 0; written < bytes.size();) {
        const qint64 size = file.write(bytes.constData() + written, bytes.size() - written);
        if (size <= 0)
            return false;
        written += size;
    }
    return true;
}

/// The members that tell events apart, the last of each: session and number.
QByteArray identityOf(const QByteArray& event)
{
    const qsizetype begin = event.lastIndexOf(R"(,"session":")");
    return begin < 0 ? QByteArray("}") : event.sliced(begin);
}

/// An event with other members at its end.
QByteArray withIdentity(const QByteArray& event, const QByteArray& identity)
{
    const QByteArray members = event.left(event.lastIndexOf('}'));
    const bool isEmpty = members.trimmed() == "{";
    return members + (isEmpty && identity.startsWith(',') ? identity.sliced(1) : identity);
}

} // namespace

EventQueue::EventQueue(const EventQueueOptions& options)
    : m_options(options)
    , m_session(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    m_options.limit = std::max(m_options.limit, smallestLimit);
}

EventQueue::~EventQueue() = default;

QString EventQueue::path(const QString& name) const
{
    return m_options.folder + u'/' + name;
}

QString EventQueue::segmentPath(qint64 number) const
{
    constexpr int digits = 12;
    return path(QString::number(number).rightJustified(digits, u'0') + suffix);
}

QDateTime EventQueue::now() const
{
    return m_options.clock ? m_options.clock() : QDateTime::currentDateTimeUtc();
}

QByteArray EventQueue::identity(qint64 seq) const
{
    return R"(,"session":")" + m_session.toLatin1() + R"(","seq":)" + QByteArray::number(seq) + '}';
}

bool EventQueue::open(QString* reason)
{
    const bool isNew = !QFileInfo::exists(m_options.folder);
    if (!QDir().mkpath(m_options.folder)) {
        *reason = QStringLiteral("the folder %1 cannot be created").arg(m_options.folder);
        return false;
    }
    // Events tell who prints when, which concerns the agent alone.
    if (isNew)
        QFile::setPermissions(m_options.folder,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QString why;
    m_isOpen = m_lock.tryToHold(path(QStringLiteral("lock")), &why);
    if (!m_isOpen) {
        *reason =
            why.isEmpty()
                ? QStringLiteral("another agent uses the folder %1; give each its own "
                                 "\"queueFolder\"")
                      .arg(m_options.folder)
                : QStringLiteral("the folder %1 cannot be written: %2").arg(m_options.folder, why);
        return false;
    }
    readLoss();
    const QStringList names =
        QDir(m_options.folder).entryList({u'*' + suffix}, QDir::Files, QDir::Name);
    QList<qint64> numbers;
    for (const QString& name : names) {
        bool isNumber = false;
        const qint64 number = name.chopped(suffix.size()).toLongLong(&isNumber);
        if (isNumber && number > 0)
            numbers.append(number);
    }
    std::ranges::sort(numbers);
    for (const qint64 number : std::as_const(numbers)) {
        // What had been counted as dropped when the program was killed.
        if (number < m_delivered.segment)
            QFile::remove(segmentPath(number));
        else
            scan(number);
    }
    readDelivered();
    rewind();
    removeDelivered();
    return true;
}

void EventQueue::scan(qint64 number)
{
    Segment segment;
    segment.number = number;
    QFile file(segmentPath(number));
    if (!file.open(QIODevice::ReadOnly))
        return;
    segment.size = file.size();
    while (const std::optional<Line> line = readLine(file)) {
        if (segment.events++ == 0)
            segment.first = line->time;
        segment.lastIdentity = identityOf(line->event);
    }
    m_segments.push_back(segment);
}

/// The next line that is whole; what a kill or a power cut has left in between is passed over.
std::optional<EventQueue::Line> EventQueue::readLine(QFile& file)
{
    while (true) {
        const QByteArray line = file.readLine(longestLine);
        if (line.isEmpty())
            return std::nullopt;
        if (std::optional<Line> result = parsed(line))
            return result;
    }
}

QByteArray EventQueue::lineOf(const QDateTime& time, const QByteArray& event)
{
    return withChecksum(QByteArray::number(time.toMSecsSinceEpoch()) + ' ' + event);
}

std::optional<EventQueue::Line> EventQueue::parsed(const QByteArray& line)
{
    const std::optional<QByteArray> text = withoutChecksum(line);
    const qsizetype space = text ? text->indexOf(' ') : -1;
    if (space < 0)
        return std::nullopt;
    return Line{QDateTime::fromMSecsSinceEpoch(text->left(space).toLongLong(), Qt::UTC),
                text->sliced(space + 1)};
}

/// @name Adding
/// @{
void EventQueue::add(const QByteArray& event)
{
    m_waiting.push_back({now(), withIdentity(event, identity(++m_seq))});
    if (static_cast<qsizetype>(m_waiting.size()) > m_options.mostInMemory)
        dropFromMemory();
}

void EventQueue::dropFromMemory()
{
    const Line& oldest = m_waiting.front();
    if (m_lossInMemory.count++ == 0)
        m_lossInMemory.since = oldest.time;
    m_lossInMemory.lastIdentity = identityOf(oldest.event);
    m_lossInMemory.until = oldest.time;
    ++m_dropped;
    m_waiting.pop_front();
}

bool EventQueue::flush(QString* reason)
{
    while (m_lossInMemory.count > 0 || !m_waiting.empty()) {
        // In parts, so that a long outage of the disk does not make one huge file.
        const qint64 mostBytes = m_options.limit / segmentsInLimit / 2;
        QByteArray lines;
        if (m_lossInMemory.count > 0 && m_options.lossEvent)
            lines =
                lineOf(m_lossInMemory.until,
                       withIdentity(m_options.lossEvent(m_lossInMemory.count, m_lossInMemory.since),
                                    m_lossInMemory.lastIdentity));
        size_t count = 0;
        for (; count < m_waiting.size() && lines.size() < mostBytes; ++count)
            lines += lineOf(m_waiting.at(count).time, m_waiting.at(count).event);
        if (!write(lines, reason))
            return false;
        m_lossInMemory = {};
        m_waiting.erase(m_waiting.begin(), m_waiting.begin() + static_cast<qptrdiff>(count));
    }
    return true;
}

bool EventQueue::write(const QByteArray& lines, QString* reason)
{
    if (!m_isOpen) {
        *reason = QStringLiteral("the folder %1 is not in use").arg(m_options.folder);
        return false;
    }
    makeRoom(lines.size());
    const bool isNew = !m_writing.isOpen() ||
                       m_segments.back().size + lines.size() > m_options.limit / segmentsInLimit;
    if (isNew) {
        const qint64 number =
            1 + std::max(m_segments.empty() ? 0 : m_segments.back().number, m_delivered.segment);
        m_writing.close();
        m_writing.setFileName(segmentPath(number));
        if (!m_writing.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
            *reason = QStringLiteral("%1: %2").arg(m_writing.fileName(), m_writing.errorString());
            return false;
        }
        Segment segment;
        segment.number = number;
        m_segments.push_back(segment);
    }
    Segment& segment = m_segments.back();
    QString why;
    bool isDone = writeAll(m_writing, lines);
    if (!isDone)
        why = m_writing.errorString();
    isDone = isDone && synced_file::sync(m_writing, &why) &&
             (!isNew || synced_file::syncFolder(m_options.folder, &why));
    if (!isDone) {
        *reason = QStringLiteral("%1: %2").arg(m_writing.fileName(), why);
        // Whole lines would come twice, and a part of a line would spoil the next one.
        if (!m_writing.resize(segment.size))
            m_writing.close();
        return false;
    }
    segment.size += lines.size();
    for (const QList<QByteArray> all = lines.split('\n'); const QByteArray& each : all) {
        const std::optional<Line> line = parsed(each + '\n');
        if (!line)
            continue;
        if (segment.events++ == 0)
            segment.first = line->time;
        segment.lastIdentity = identityOf(line->event);
    }
    return true;
}
/// @}

/// @name Dropping
/// @{
qint64 EventQueue::bytesOnDisk() const
{
    qint64 bytes = 0;
    for (const Segment& segment : m_segments)
        bytes += segment.size;
    return bytes;
}

void EventQueue::makeRoom(qint64 bytes)
{
    while (!m_segments.empty() && bytesOnDisk() + bytes > m_options.limit)
        dropOldest();
}

void EventQueue::dropOldest()
{
    const Segment segment = m_segments.front();
    // The event that reports the loss takes the place of the last one, so this must not be on its
    // way to the broker.
    const bool isLastOnItsWay =
        m_farthest.segment > segment.number ||
        (m_farthest.segment == segment.number && m_farthest.event >= segment.events);
    const qint64 deliveredHere = m_delivered.segment == segment.number ? m_delivered.event : 0;
    const qint64 count = segment.events - deliveredHere;
    if (count > 0) {
        if (m_loss.count == 0)
            m_loss.since = segment.first;
        m_loss.count += count;
        m_loss.until = now();
        m_loss.lastIdentity = segment.lastIdentity;
        m_dropped += count;
    }
    m_delivered = {segment.number + 1, 0, 0};
    std::erase_if(m_onTheWay, [&segment](const OnTheWay& entry) {
        return entry.lossCount == 0 && entry.end.segment <= segment.number;
    });
    if (m_read.segment <= segment.number)
        m_read = m_delivered;
    if (m_writing.fileName() == segmentPath(segment.number))
        m_writing.close();
    if (m_readingSegment == segment.number)
        m_reading.close();
    // First what is said of it, then the file: a kill in between must not have it both delivered
    // and counted as dropped.
    QString reason;
    writeLoss(&reason);
    QFile::remove(segmentPath(segment.number));
    m_segments.pop_front();
    if (isLastOnItsWay && count > 0 && !m_segments.empty())
        dropOldest();
}

void EventQueue::readLoss()
{
    QFile file(path(QStringLiteral("dropped")));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const std::optional<QByteArray> text = withoutChecksum(file.readLine(longestLine));
    const QList<QByteArray> words = text ? text->split(' ') : QList<QByteArray>();
    constexpr qsizetype count = 5;
    if (words.size() != count)
        return;
    m_delivered.segment = words.at(0).toLongLong();
    m_loss.count = words.at(1).toLongLong();
    m_loss.since = QDateTime::fromMSecsSinceEpoch(words.at(2).toLongLong(), Qt::UTC);
    m_loss.until = QDateTime::fromMSecsSinceEpoch(words.at(3).toLongLong(), Qt::UTC);
    m_loss.lastIdentity = words.at(4);
}

bool EventQueue::writeLoss(QString* reason)
{
    const QString name = path(QStringLiteral("dropped"));
    if (m_loss.count == 0) {
        QFile::remove(name);
        return true;
    }
    QSaveFile file(name);
    const QByteArray text =
        QByteArray::number(m_delivered.segment) + ' ' + QByteArray::number(m_loss.count) + ' ' +
        QByteArray::number(m_loss.since.toMSecsSinceEpoch()) + ' ' +
        QByteArray::number(m_loss.until.toMSecsSinceEpoch()) + ' ' + m_loss.lastIdentity;
    if (file.open(QIODevice::WriteOnly) && file.write(withChecksum(text)) > 0 && file.commit())
        return true;
    *reason = QStringLiteral("%1: %2").arg(name, file.errorString());
    return false;
}
/// @}

/// @name Delivering
/// @{
std::optional<EventQueue::Entry> EventQueue::next()
{
    if (m_loss.count > 0 && !m_isLossOnTheWay && m_options.lossEvent) {
        m_isLossOnTheWay = true;
        m_onTheWay.push_back({++m_number, m_delivered, m_loss.count, false});
        return Entry{
            m_number, m_loss.until,
            withIdentity(m_options.lossEvent(m_loss.count, m_loss.since), m_loss.lastIdentity)};
    }
    while (!m_segments.empty()) {
        const auto segment = std::ranges::find_if(
            m_segments, [this](const Segment& each) { return each.number >= m_read.segment; });
        if (segment == m_segments.end())
            return std::nullopt;
        if (segment->number != m_read.segment)
            m_read = {segment->number, 0, 0};
        if (!m_reading.isOpen() || m_readingSegment != segment->number) {
            m_reading.close();
            m_reading.setFileName(segmentPath(segment->number));
            m_readingSegment = segment->number;
            if (!m_reading.open(QIODevice::ReadOnly))
                return std::nullopt;
        }
        if (m_read.offset < segment->size && m_reading.seek(m_read.offset)) {
            if (const std::optional<Line> line = readLine(m_reading)) {
                m_read.offset = m_reading.pos();
                ++m_read.event;
                if (m_read.segment > m_farthest.segment ||
                    (m_read.segment == m_farthest.segment && m_read.event > m_farthest.event))
                    m_farthest = m_read;
                m_onTheWay.push_back({++m_number, m_read, 0, false});
                return Entry{m_number, line->time, line->event};
            }
        }
        // The end of this segment. New events come into the last one.
        if (segment->number == m_segments.back().number)
            return std::nullopt;
        m_read = {segment->number + 1, 0, 0};
    }
    return std::nullopt;
}

void EventQueue::done(qint64 number)
{
    const auto entry = std::ranges::find(m_onTheWay, number, &OnTheWay::number);
    if (entry == m_onTheWay.end())
        return;
    entry->isDone = true;
    bool hasMoved = false;
    while (!m_onTheWay.empty() && m_onTheWay.front().isDone) {
        const OnTheWay delivered = m_onTheWay.front();
        m_onTheWay.pop_front();
        if (delivered.lossCount > 0) {
            m_isLossOnTheWay = false;
            m_loss.count = std::max<qint64>(0, m_loss.count - delivered.lossCount);
            m_loss.since = m_loss.until;
            QString reason;
            writeLoss(&reason);
        } else {
            m_delivered = delivered.end;
            hasMoved = true;
        }
    }
    if (hasMoved) {
        writeDelivered();
        removeDelivered();
    }
}

void EventQueue::rewind()
{
    m_onTheWay.clear();
    m_isLossOnTheWay = false;
    m_read = m_delivered;
}

bool EventQueue::isEmpty() const
{
    if (!m_waiting.empty() || m_lossInMemory.count > 0 || m_loss.count > 0)
        return false;
    return std::ranges::all_of(m_segments, [this](const Segment& segment) {
        return segment.number < m_delivered.segment ||
               (segment.number == m_delivered.segment && segment.events <= m_delivered.event);
    });
}

void EventQueue::readDelivered()
{
    QFile file(path(QStringLiteral("delivered")));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const std::optional<QByteArray> text = withoutChecksum(file.readLine(longestLine));
    const QList<QByteArray> words = text ? text->simplified().split(' ') : QList<QByteArray>();
    if (words.size() != 3)
        return;
    const Position position{words.at(0).toLongLong(), words.at(1).toLongLong(),
                            words.at(2).toLongLong()};
    // Otherwise what came after it was dropped.
    if (position.segment >= m_delivered.segment)
        m_delivered = position;
}

/// Not synced: after a power cut events may be delivered once more, which is allowed. The line is
/// always equally long, so that it is replaced by one write.
void EventQueue::writeDelivered()
{
    if (!m_deliveredFile.isOpen()) {
        m_deliveredFile.setFileName(path(QStringLiteral("delivered")));
        if (!m_deliveredFile.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            return;
    }
    constexpr qsizetype length = 64;
    const QByteArray text = QByteArray::number(m_delivered.segment) + ' ' +
                            QByteArray::number(m_delivered.offset) + ' ' +
                            QByteArray::number(m_delivered.event);
    if (m_deliveredFile.seek(0))
        m_deliveredFile.write(withChecksum(text.leftJustified(length)));
}

/// Removes the files of which the broker has everything, but for the one that is being written.
void EventQueue::removeDelivered()
{
    while (!m_segments.empty()) {
        const Segment& segment = m_segments.front();
        const bool isDelivered =
            segment.number < m_delivered.segment ||
            (segment.number == m_delivered.segment && segment.events <= m_delivered.event);
        const bool isWritten =
            m_writing.isOpen() && m_writing.fileName() == segmentPath(segment.number);
        if (!isDelivered || isWritten)
            return;
        if (m_readingSegment == segment.number)
            m_reading.close();
        QFile::remove(segmentPath(segment.number));
        m_segments.pop_front();
    }
}
/// @}
