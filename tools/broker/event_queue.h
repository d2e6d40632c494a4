// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "synced_file.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QList>
#include <QtCore/QString>

#include <deque>
#include <functional>
#include <optional>

struct EventQueueOptions
{
    /// It is created when it is missing.
    QString folder;
    /// How many bytes the files may take. At least 1 MiB; smaller values mean 1 MiB.
    qint64 limit = qint64(16) * 1024 * 1024;
    /// How many events are kept in memory while the disk cannot be written.
    qsizetype mostInMemory = 1000;
    /// The event, as a JSON object, that says that `count` events are missing since a time.
    std::function<QByteArray(qint64 count, const QDateTime& since)> lossEvent{};
    /// Tells the time. Without a function, the system's clock.
    std::function<QDateTime()> clock{};
};

/// Events on their way to a broker, kept on the disk until the broker has them.
///
/// An event is a JSON object. It is given `session`, a name for this run of the program, and `seq`,
/// which counts the events of a session from 1. It has been accepted when `flush` has returned
/// true: from then on neither a kill nor a power cut loses it. Events are delivered in the order in
/// which they came, those of earlier runs first, each at least once.
///
/// When there is no more room, the oldest events are dropped. In their place an event is delivered
/// that says how many are missing. It has the `session` and `seq` of the last of them.
///
/// The folder has files of lines, each with a checksum, the time and the event; a file "delivered"
/// that says up to where the broker has them; and a file "dropped" while the loss has not been
/// delivered. One object at a time uses a folder, which a lock ensures.
class EventQueue
{
public:
    explicit EventQueue(const EventQueueOptions& options);
    ~EventQueue();
    Q_DISABLE_COPY_MOVE(EventQueue)

    /// Takes the folder and finds what waits there. False, with the reason in `*reason`, when the
    /// folder cannot be used.
    bool open(QString* reason);

    /// Adds an event, a JSON object. It has not been accepted before `flush`.
    void add(const QByteArray& event);
    /// Writes what was added. False, with the reason in `*reason`, when that is not possible: then
    /// events stay in memory, as many as may, and the rest is counted as dropped.
    bool flush(QString* reason);

    struct Entry
    {
        qint64 number = 0; ///< for `done`
        QDateTime time;    ///< when it was added
        QByteArray event;  ///< with `session` and `seq`
    };
    /// The next event to deliver, in order; empty when there is none. It stays in the queue.
    std::optional<Entry> next();
    /// The broker has an event that `next` returned.
    void done(qint64 number);
    /// What was returned by `next` and is not done will be returned again.
    void rewind();

    /// Whether nothing waits, neither on the disk nor in memory.
    bool isEmpty() const;
    qint64 bytesOnDisk() const;
    /// How many events were dropped since the object was created.
    qint64 dropped() const { return m_dropped; }

private:
    /// One file of events.
    struct Segment
    {
        qint64 number = 0;
        qint64 size = 0;
        qint64 events = 0;
        QDateTime first;         ///< the time of its first event
        QByteArray lastIdentity; ///< the end of its last event: its session and number
    };
    /// A place in the files: just after an event.
    struct Position
    {
        qint64 segment = 0;
        qint64 offset = 0;
        qint64 event = 0; ///< how many events of the segment are in front of it
    };
    /// What was dropped and has not been reported.
    struct Loss
    {
        qint64 count = 0;
        QDateTime since;
        QDateTime until;
        QByteArray lastIdentity;
    };
    struct OnTheWay
    {
        qint64 number = 0;
        Position end;         ///< unused for a loss
        qint64 lossCount = 0; ///< 0 for an event
        bool isDone = false;
    };
    struct Line
    {
        QDateTime time;
        QByteArray event;
    };

    QString path(const QString& name) const;
    QString segmentPath(qint64 number) const;
    QDateTime now() const;
    QByteArray identity(qint64 seq) const;

    void scan(qint64 number);
    void readDelivered();
    void writeDelivered();
    void readLoss();
    bool writeLoss(QString* reason);
    bool write(const QByteArray& lines, QString* reason);
    void makeRoom(qint64 bytes);
    void dropOldest();
    void dropFromMemory();
    void removeDelivered();
    std::optional<Line> readLine(QFile& file);
    static QByteArray lineOf(const QDateTime& time, const QByteArray& event);
    static std::optional<Line> parsed(const QByteArray& line);

    EventQueueOptions m_options;
    QString m_session;
    qint64 m_seq = 0;
    qint64 m_number = 0; ///< of the last entry
    qint64 m_dropped = 0;
    HeldFile m_lock;
    bool m_isOpen = false;
    std::deque<Segment> m_segments;
    std::deque<Line> m_waiting; ///< in memory
    Loss m_lossInMemory;
    Loss m_loss;
    bool m_isLossOnTheWay = false;
    Position m_delivered;
    Position m_read;
    Position m_farthest; ///< that was ever read
    std::deque<OnTheWay> m_onTheWay;
    QFile m_writing;
    QFile m_reading;
    qint64 m_readingSegment = 0;
    QFile m_deliveredFile;
};
