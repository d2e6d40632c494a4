// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "job_followers.h"

#include "growing_block.h"
#include "job_obstacles.h"

#include "windowserrors.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>
#include <span>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// How often jobs without a notification are looked at, and futures that may be cancelled.
constexpr std::chrono::milliseconds tick = 1s;
/// In ticks: how often the other jobs are looked at, in case that a notification is dead.
constexpr int ticksBetweenChecks = 5;
/// After a change that was no news, because drivers may publish values all the time.
constexpr std::chrono::milliseconds restWithoutNews = 200ms;

constexpr std::size_t mostHandles = MAXIMUM_WAIT_OBJECTS - 1;

constexpr DWORD watchedChanges = PRINTER_CHANGE_SET_PRINTER | PRINTER_CHANGE_DELETE_PRINTER |
                                 PRINTER_CHANGE_SET_JOB | PRINTER_CHANGE_DELETE_JOB;

JobState failed(JobState state, DWORD error)
{
    state.stage = JobState::Stage::Failed;
    state.obstacles.clear();
    state.errorCode = error;
    state.errorText = QCoreApplication::translate("VxKit", "The print job cannot be followed: %1")
                          .arg(windows_errors::winError(error));
    return state;
}

/// Errors that will not pass.
bool isLasting(DWORD error)
{
    constexpr DWORD notSupported = 50;
    constexpr DWORD notImplemented = 120;
    constexpr std::array lasting{DWORD{ERROR_ACCESS_DENIED},
                                 DWORD{ERROR_PRINTER_DELETED},
                                 DWORD{ERROR_INVALID_PRINTER_NAME},
                                 DWORD{ERROR_INVALID_LEVEL},
                                 notSupported,
                                 notImplemented};
    return std::find(lasting.begin(), lasting.end(), error) != lasting.end();
}

} // namespace

WatchedQueue WatchedQueue::open(const QString& printerName)
{
    WatchedQueue queue;
    queue.printer = openPrinter(printerName);
    if (!queue.printer)
        return queue;
    // The statuses of jobs are asked for as details, because a job that has left the queue can no
    // longer be queried.
    WORD field = JOB_NOTIFY_FIELD_STATUS;
    PRINTER_NOTIFY_OPTIONS_TYPE type{};
    type.Type = JOB_NOTIFY_TYPE;
    type.Count = 1;
    type.pFields = &field;
    PRINTER_NOTIFY_OPTIONS details{};
    details.Version = 2;
    details.Count = 1;
    details.pTypes = &type;
    queue.notification = watchChanges(queue.printer, watchedChanges, &details);
    return queue;
}

FollowedJob::FollowedJob(const QString& printerName, WatchedQueue queue, quint32 jobId,
                         const JobPromise& promise)
    : m_printerName(printerName)
    , m_queue(std::move(queue))
    , m_jobId(jobId)
    , m_promise(promise)
{}

void FollowedJob::readNotification()
{
    DWORD changes = 0;
    LPVOID block = nullptr;
    if (!FindNextPrinterChangeNotification(m_queue.notification.get(), &changes, nullptr, &block)) {
        close();
        return;
    }
    if (!block)
        return;
    const NotifyInfoOwner info(static_cast<PRINTER_NOTIFY_INFO*>(block));
    const std::span entries(info->aData, info->Count);
    for (const PRINTER_NOTIFY_INFO_DATA& entry : entries) {
        if (entry.Type == JOB_NOTIFY_TYPE && entry.Field == JOB_NOTIFY_FIELD_STATUS &&
            entry.Id == m_jobId)
            m_reported |= entry.NotifyData.adwData[0];
    }
}

bool FollowedJob::lookAfterChange()
{
    readNotification();
    return look();
}

bool FollowedJob::look()
{
    const std::optional<JobState> state = query();
    if (!state || m_last == state)
        return false;
    m_last = state;
    m_isOver = state->isFinal();
    m_promise->addResult(*state);
    return true;
}

std::optional<JobState> FollowedJob::query()
{
    if (!m_queue.printer)
        m_queue = WatchedQueue::open(m_printerName);
    if (!m_queue.printer)
        return stateAfter(GetLastError());

    std::vector<BYTE> block(1024);
    const bool isKnown = fillBlock(block, [&](LPBYTE data, DWORD size, DWORD* needed) {
        SetLastError(ERROR_SUCCESS);
        return GetJobW(m_queue.printer.get(), m_jobId, 1, data, size, needed);
    });
    if (!isKnown)
        return stateAfter(GetLastError());
    const auto& job = *reinterpret_cast<const JOB_INFO_1W*>(block.data());
    m_reported |= job.Status;
    return stateOf(job);
}

JobState FollowedJob::stateOf(const JOB_INFO_1W& job) const
{
    JobState state;
    state.printerName = m_printerName;
    state.jobId = m_jobId;
    state.jobStatus = job.Status;
    if (job.Status & JOB_STATUS_PRINTED) {
        state.stage = JobState::Stage::Printed; // and kept in the queue
        return state;
    }
    if (job.Status & JOB_STATUS_PRINTING)
        state.stage = JobState::Stage::Printing;
    addObstacles(state, m_queue.printer, textFrom(job.pStatus));
    return state;
}

std::optional<JobState> FollowedJob::stateOfMissingJob(const JobState& last)
{
    // It may have been reported since the notification was read, or be about to be reported.
    if (m_queue.notification)
        readNotification();
    const bool wasPrinted = m_reported & (JOB_STATUS_PRINTED | JOB_STATUS_COMPLETE);
    const bool wasDeleted = m_reported & (JOB_STATUS_DELETING | JOB_STATUS_DELETED);
    if (m_queue.notification && !wasPrinted && !wasDeleted && !m_isMissing) {
        m_isMissing = true;
        return std::nullopt;
    }
    JobState state = last;
    state.stage = wasPrinted   ? JobState::Stage::Printed
                  : wasDeleted ? JobState::Stage::Deleted
                               : JobState::Stage::LeftQueue;
    state.jobStatus = m_reported;
    return state;
}

std::optional<JobState> FollowedJob::stateAfter(DWORD error)
{
    JobState state;
    state.printerName = m_printerName;
    state.jobId = m_jobId;
    if (m_last)
        state = *m_last;
    state.obstacles.clear();
    // The spooler knows no such job, or no longer. Wine gives no reason then.
    // https://learn.microsoft.com/openspecs/windows_protocols/ms-rprn/f7090127-287b-4aa7-ba8b-2b6b7247dfc6
    if (error == ERROR_INVALID_PARAMETER || error == ERROR_SUCCESS)
        return stateOfMissingJob(state);
    // Handles do not outlive a stop of the spooler, but jobs do.
    close();
    if (isLasting(error))
        return failed(state, error);
    state.obstacles.append(
        QCoreApplication::translate("VxKit", "The print spooler does not answer: %1")
            .arg(windows_errors::winError(error)));
    return state;
}

JobFollowers::~JobFollowers()
{
    std::unique_ptr<QThread> thread;
    {
        const QMutexLocker guard(&m_mutex);
        m_isEnding = true;
        if (m_wakeUp)
            m_wakeUp->wake();
        thread = std::move(m_thread);
    }
    if (thread)
        thread->wait();
}

void JobFollowers::follow(std::unique_ptr<FollowedJob> job)
{
    const QMutexLocker guard(&m_mutex);
    if (m_isEnding)
        return;
    m_newJobs.push_back(std::move(job));
    if (m_wakeUp) {
        m_wakeUp->wake();
        return;
    }
    // The last thread may still be about to end.
    if (m_thread)
        m_thread->wait();
    m_wakeUp = std::make_unique<WakeUp>();
    m_thread.reset(QThread::create([this] { run(); }));
    m_thread->setObjectName(QStringLiteral("VxKit::followJob"));
    m_thread->start();
}

void JobFollowers::run()
{
    bool isResting = false;
    while (renew())
        isResting = !step(isResting);
}

bool JobFollowers::renew()
{
    Jobs fresh;
    bool isEnding = false;
    {
        const QMutexLocker guard(&m_mutex);
        fresh = std::exchange(m_newJobs, {});
        isEnding = m_isEnding;
    }
    for (auto& job : fresh) {
        if (!isEnding && !job->isOver())
            job->look();
        m_jobs.push_back(std::move(job));
    }
    // The futures of all other jobs that are dropped are cancelled.
    std::vector<JobPromise> over;
    for (const auto& job : m_jobs) {
        if (job->isOver())
            over.push_back(job->promise());
    }
    std::erase_if(m_jobs, [&](const auto& job) { return isEnding || job->isOver(); });

    bool isLast = false;
    {
        const QMutexLocker guard(&m_mutex);
        isLast = m_jobs.empty() && m_newJobs.empty();
        if (isLast)
            m_wakeUp.reset();
    }
    // When a future has finished, nothing of its job is left.
    for (const JobPromise& promise : over)
        promise->finish();
    return !isLast;
}

void JobFollowers::lookAtAll(bool alsoNotified)
{
    for (const auto& job : m_jobs) {
        if (alsoNotified || job->isToBePolled())
            job->look();
    }
}

bool JobFollowers::step(bool isResting)
{
    // The jobs take turns, so that one printer with many changes does not hide the others.
    std::vector<HANDLE> handles;
    std::vector<FollowedJob*> watched;
    const bool canWait = m_wakeUp->canWaitForHandles();
    for (std::size_t index = 0; canWait && index < m_jobs.size() && handles.size() < mostHandles;
         ++index) {
        FollowedJob* const job = m_jobs[(m_first + index) % m_jobs.size()].get();
        if (!job->notification())
            continue;
        handles.push_back(job->notification());
        watched.push_back(job);
    }

    if (isResting && !handles.empty())
        return m_wakeUp->wait(restWithoutNews).why == Waited::Why::TimedOut;
    const Waited waited = m_wakeUp->wait(tick, handles);
    switch (waited.why) {
    case Waited::Why::Signalled:
        ++m_first;
        return watched[waited.index]->lookAfterChange();
    case Waited::Why::TimedOut: {
        const bool isCheck = ++m_ticks % ticksBetweenChecks == 0;
        lookAtAll(isCheck || !canWait || m_jobs.size() > mostHandles);
        break;
    }
    case Waited::Why::Failed:
        for (FollowedJob* job : watched)
            job->close(); // they are opened again at the next tick
        break;
    case Waited::Why::Woken:
        break;
    }
    return true;
}

} // namespace VxKit
