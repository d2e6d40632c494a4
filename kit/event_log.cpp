// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "event_log.h"

#include "log_writer.h"
#include "printer_events.h"
#include "printer_readings.h"
#include "write_thread.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QList>
#include <QtCore/QMetaObject>

#include <algorithm>
#include <deque>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// After a failure, writing is tried again so much later.
constexpr auto retryPause = 1s;
/// So long it waits for other writers, and so long when the log is destroyed.
constexpr auto lockPatience = 5s;
constexpr auto lastLockPatience = 1s;
/// So many lines are written under one lock, and so long it is left to other writers, which try to
/// take it every millisecond.
constexpr std::size_t linesInATurn = 256;
constexpr auto turnOfOthers = 3ms;

EventLogOptions valid(EventLogOptions options)
{
    const QFileInfo file(options.fileName);
    // A rotation would rename the link and not the file.
    if (file.isSymLink() && !file.canonicalFilePath().isEmpty())
        options.fileName = file.canonicalFilePath();
    else if (!options.fileName.isEmpty())
        options.fileName = file.absoluteFilePath(); // the host may change its folder
    options.maxFileSize = std::max<qint64>(options.maxFileSize, longestLogLine);
    options.rotatedFiles = std::clamp(options.rotatedFiles, 0, mostRotatedFiles);
    options.rotateAfter = std::max(options.rotateAfter, std::chrono::seconds::zero());
    options.keepFor = std::max(options.keepFor, std::chrono::seconds::zero());
    options.maxQueuedBytes = std::max<qsizetype>(options.maxQueuedBytes, longestLogLine);
    return options;
}

} // namespace

class EventLog::Private : public WriteThread
{
public:
    Private(EventLog* log, const EventLogOptions& wanted)
        : q(log)
        , options(valid(wanted))
        , m_writer(options)
    {}

    EventLog* const q;
    const EventLogOptions options;
    std::unique_ptr<PrinterEvents> events;

    void start();
    /// Appends a line on any thread.
    void add(const QByteArray& line);
    qint64 lostEvents() const;

private:
    void enqueue(const QByteArray& line);
    void run();
    void finishAttempt(const LogWriter::Outcome& outcome);

    // All of these are guarded by the mutex.
    std::deque<QByteArray> m_queue;
    qsizetype m_queuedBytes = 0;
    qint64 m_lostInAll = 0;
    qint64 m_lost = 0; ///< not yet in the log
    QDateTime m_lostSince;

    LogWriter m_writer; ///< used on the thread only
};

void EventLog::Private::start()
{
    thread = std::thread([this] { run(); });
}

void EventLog::Private::add(const QByteArray& line)
{
    bool isWaiting = false;
    {
        const std::lock_guard lock(mutex);
        // While something is in the queue, the thread comes back by itself.
        isWaiting = m_queue.empty();
        enqueue(line);
    }
    if (isWaiting)
        changed.notify_all();
}

qint64 EventLog::Private::lostEvents() const
{
    const std::lock_guard lock(mutex);
    return m_lostInAll;
}

/// The mutex is held.
void EventLog::Private::enqueue(const QByteArray& line)
{
    // What has begun to be dropped is dropped until something can be written, so that the events
    // that are missing have one place in the log.
    if (m_lost > 0 || m_queuedBytes + line.size() > options.maxQueuedBytes) {
        ++m_lostInAll;
        if (m_lost++ == 0)
            m_lostSince = QDateTime::currentDateTime();
        return;
    }
    m_queuedBytes += line.size();
    m_queue.push_back(line);
}

/// The mutex is held.
void EventLog::Private::finishAttempt(const LogWriter::Outcome& outcome)
{
    for (qsizetype i = 0; i < outcome.written; ++i) {
        m_queuedBytes -= m_queue.front().size();
        m_queue.pop_front();
    }
    // What was dropped came after what is in the queue now, and before anything that is appended
    // from now on.
    if (m_lost > 0 && outcome.error.isEmpty()) {
        PrinterEvent event;
        event.time = QDateTime::currentDateTime();
        event.kind = PrinterEvent::Kind::EventsLost;
        event.severity = Severity::Warning;
        event.lost = std::exchange(m_lost, 0);
        event.since = m_lostSince;
        const QByteArray line = event.toLine() + '\n';
        m_queuedBytes += line.size();
        m_queue.push_back(line);
    }
    const bool wasGood = error.isEmpty();
    error = outcome.error;
    if (!error.isEmpty()) {
        nextAttempt = Clock::now() + retryPause;
        if (wasGood)
            QMetaObject::invokeMethod(
                q, [log = q, reason = error] { Q_EMIT log->writingFailed(reason); },
                Qt::QueuedConnection);
    } else {
        nextAttempt = Clock::now() + turnOfOthers;
        if (!wasGood)
            QMetaObject::invokeMethod(
                q, [log = q] { Q_EMIT log->writingResumed(); }, Qt::QueuedConnection);
    }
}

void EventLog::Private::run()
{
    std::unique_lock lock(mutex);
    while (true) {
        changed.wait(lock, [this] { return isAsked() || !m_queue.empty(); });
        changed.wait_until(lock, nextAttempt, [this] { return isAsked(); });

        if (!m_queue.empty()) {
            const quint64 flushes = flushesWanted;
            QList<QByteArray> lines;
            const auto end = m_queue.begin() +
                             static_cast<std::ptrdiff_t>(std::min(m_queue.size(), linesInATurn));
            std::copy(m_queue.begin(), end, std::back_inserter(lines));
            const auto patience = isStopping ? lastLockPatience : lockPatience;
            lock.unlock();
            const LogWriter::Outcome outcome = m_writer.write(lines, QDeadlineTimer(patience));
            if (outcome.error.isEmpty() && lines.size() == static_cast<qsizetype>(linesInATurn))
                std::this_thread::sleep_for(turnOfOthers);
            lock.lock();
            finishAttempt(outcome);
            if (!error.isEmpty()) {
                finishFlushes(flushes);
                if (isStopping)
                    return;
            }
        }
        if (m_queue.empty()) {
            finishFlushes(flushesWanted);
            if (isStopping)
                return;
        }
    }
}

EventLog::EventLog(const EventLogOptions& options, QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>(this, options))
{
    d->start();
}

EventLog::EventLog(PrinterReadings* readings, const EventLogOptions& options, QObject* parent)
    : EventLog(options, parent)
{
    d->events = std::make_unique<PrinterEvents>(readings);
    connect(d->events.get(), &PrinterEvents::happened, this, &EventLog::append);
    d->events->start();
}

EventLog::~EventLog()
{
    d->events.reset();
    d->stop();
}

EventLogOptions EventLog::options() const
{
    return d->options;
}

void EventLog::append(const PrinterEvent& event)
{
    PrinterEvent complete = event;
    if (!complete.time.isValid())
        complete.time = QDateTime::currentDateTime();
    if (complete.text.isEmpty())
        complete.text = eventText(complete, QStringLiteral("en"));
    d->add(complete.toLine() + '\n');
    Q_EMIT recorded(complete);
}

bool EventLog::flush(QDeadlineTimer deadline)
{
    return d->flush(deadline);
}

qint64 EventLog::lostEvents() const
{
    return d->lostEvents();
}

QString EventLog::errorString() const
{
    return d->errorString();
}

} // namespace VxKit
