// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The thread that follows print jobs.
#pragma once

#include "printer_command.h"
#include "spooler_owners.h"
#include "wake_up.h"

#include <QtCore/QMutex>
#include <QtCore/QPromise>
#include <QtCore/QThread>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace VxKit {

using JobPromise = std::shared_ptr<QPromise<JobState>>;

/// A printer's queue that is watched.
struct WatchedQueue
{
    PrinterOwner printer;           ///< null: the printer cannot be opened
    NotificationOwner notification; ///< null: the queue has to be polled

    /// Opens the printer and registers for its notifications, as far as possible.
    static WatchedQueue open(const QString& printerName);
};

/// A job that is followed.
class FollowedJob
{
public:
    FollowedJob(const QString& printerName, WatchedQueue queue, quint32 jobId,
                const JobPromise& promise);

    /// Looks at the job and reports its state if it is new. Returns whether it was.
    bool look();
    /// The notification was signalled: reads what it reports, re-arms it and looks.
    bool lookAfterChange();
    /// The queue is opened again when the job is looked at next.
    void close() { m_queue = {}; }

    /// Whether it has to be looked at after a while, though nothing was signalled.
    bool isToBePolled() const { return !m_queue.notification || m_isMissing; }
    /// Null: nothing will be signalled.
    HANDLE notification() const { return m_queue.notification.get(); }
    bool isOver() const { return m_isOver || m_promise->isCanceled(); }
    JobPromise promise() const { return m_promise; }

private:
    /// Reads what was reported and re-arms the notification.
    void readNotification();
    /// No value: there is nothing to say yet.
    std::optional<JobState> query();
    std::optional<JobState> stateOfMissingJob(const JobState& last);
    JobState stateOf(const JOB_INFO_1W& job) const;
    /// The state when the job cannot be queried, for which the error is the reason.
    std::optional<JobState> stateAfter(DWORD error);

    const QString m_printerName;
    WatchedQueue m_queue;
    const quint32 m_jobId;
    const JobPromise m_promise;
    std::optional<JobState> m_last;
    DWORD m_reported = 0;     ///< every JOB_STATUS_* that was reported for the job
    bool m_isMissing = false; ///< it is not in the queue, and why has not been reported yet
    bool m_isOver = false;
};

/// Follows all jobs on one thread, which exists while there are jobs to follow.
class JobFollowers
{
public:
    JobFollowers() = default;
    /// Ends the thread. The promises of the jobs that were followed are cancelled.
    ~JobFollowers();
    Q_DISABLE_COPY_MOVE(JobFollowers)

    /// May be called on any thread but the one that follows.
    void follow(std::unique_ptr<FollowedJob> job);

private:
    using Jobs = std::vector<std::unique_ptr<FollowedJob>>;

    void run();
    /// Takes the jobs that were added and drops those that are over. False when none is left: then
    /// the thread has to end, and holds no handle any more.
    bool renew();
    /// Waits until a job may have changed and looks at it. Returns whether there was news.
    bool step(bool isResting);
    void lookAtAll(bool alsoNotified);

    QMutex m_mutex;
    Jobs m_newJobs;                    ///< guarded by the mutex
    bool m_isEnding = false;           ///< the same
    std::unique_ptr<WakeUp> m_wakeUp;  ///< the same; null while there is no thread
    std::unique_ptr<QThread> m_thread; ///< the same

    // Only the thread uses the rest.
    Jobs m_jobs;
    std::size_t m_first = 0; ///< the job whose notification is waited for first
    int m_ticks = 0;
};

} // namespace VxKit
