// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The queues of printers: jobs that wait, are printed, held, paused and deleted.
#include "record_block.h"
#include "spooler_handles.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

using namespace virtualwindows;

namespace virtualwindows {

namespace {

/// What the printer itself puts on the job that it cannot print.
constexpr DWORD jobFaults =
    JOB_STATUS_ERROR | JOB_STATUS_OFFLINE | JOB_STATUS_PAPEROUT | JOB_STATUS_BLOCKED_DEVQ;

/// The driver's value "StatusCode", with which it reports a fault: any number but this one.
constexpr int readyCode = 1;

bool driverReportsFault(const Printer& printer)
{
    const auto found = printer.values.constFind("statuscode");
    if (found == printer.values.constEnd() || found->type != REG_SZ)
        return false;
    bool isNumber = false;
    const int code = found->narrow.left(found->narrow.indexOf('\0')).toInt(&isNumber);
    return isNumber && code != readyCode;
}

DWORD faultsOf(const Printer& printer)
{
    DWORD faults = 0;
    if (printer.setup.status & (PRINTER_STATUS_ERROR | PRINTER_STATUS_PAPER_JAM))
        faults |= JOB_STATUS_ERROR;
    if (printer.setup.status & PRINTER_STATUS_PAPER_OUT)
        faults |= JOB_STATUS_PAPEROUT;
    if (printer.setup.status & PRINTER_STATUS_OFFLINE)
        faults |= JOB_STATUS_OFFLINE;
    if (driverReportsFault(printer))
        faults |= JOB_STATUS_BLOCKED_DEVQ;
    return faults;
}

/// The queue sends nothing to the printer.
bool isQueueHeld(const Printer& printer)
{
    return (printer.setup.status & PRINTER_STATUS_PAUSED) ||
           (printer.setup.attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE);
}

PrintJob* findJob(Printer& printer, quint32 id)
{
    const auto found = std::find_if(printer.jobs.begin(), printer.jobs.end(),
                                    [&](const auto& job) { return job.queued && job.id == id; });
    return found == printer.jobs.end() ? nullptr : &*found;
}

/// The first job that can be printed.
PrintJob* firstPrintableJob(Printer& printer)
{
    const auto found = std::find_if(printer.jobs.begin(), printer.jobs.end(), [](const auto& job) {
        return job.queued && job.finished &&
               !(job.status & (JOB_STATUS_PAUSED | JOB_STATUS_PRINTED));
    });
    return found == printer.jobs.end() ? nullptr : &*found;
}

} // namespace

DWORD waitingJobs(const Printer& printer)
{
    return static_cast<DWORD>(std::count_if(printer.jobs.begin(), printer.jobs.end(),
                                            [](const PrintJob& job) { return job.queued; }));
}

std::chrono::nanoseconds Machine::Private::now() const
{
    return driven ? drivenNow : std::chrono::steady_clock::now().time_since_epoch();
}

std::optional<std::chrono::nanoseconds> Machine::Private::nextJobDone() const
{
    if (movingPrinters.empty())
        return std::nullopt;
    const auto first = std::min_element(
        movingPrinters.begin(), movingPrinters.end(),
        [](const Printer* left, const Printer* right) { return left->jobDone < right->jobDone; });
    return (*first)->jobDone;
}

void Machine::Private::catchUp()
{
    if (movingPrinters.empty())
        return;
    const std::vector<Printer*> moving = movingPrinters;
    for (Printer* printer : moving)
        updateJobs(*printer);
}

void Machine::Private::changeJob(Printer& printer, PrintJob& job, DWORD status)
{
    if (job.status == status)
        return;
    job.status = status;
    notify(&printer, PRINTER_CHANGE_SET_JOB, &job);
}

void Machine::Private::stopPrinting(Printer& printer)
{
    printer.jobInPrint = 0;
    printer.isMoving = false;
    std::erase(movingPrinters, &printer);
}

void Machine::Private::setJob(Printer& printer, const JobSetup& setup)
{
    PrintJob* job = findJob(printer, setup.id);
    const bool isNew = !job;
    if (isNew) {
        // A printed job of the same number is forgotten.
        printer.jobs.removeIf([&](const PrintJob& entry) { return entry.id == setup.id; });
        job = &printer.jobs.emplaceBack();
        job->id = setup.id;
        job->isSet = true;
        job->submitted = QDateTime::currentDateTimeUtc();
        if (setup.id >= nextJob && setup.id < std::numeric_limits<quint32>::max())
            nextJob = setup.id + 1;
    }
    job->document = setup.document;
    job->user = setup.user;
    job->datatype = setup.datatype;
    job->status = setup.status;
    job->pageCount = setup.pages;
    job->byteCount = setup.bytes;
    notify(&printer, isNew ? PRINTER_CHANGE_ADD_JOB : PRINTER_CHANGE_SET_JOB, job);
}

void Machine::Private::deleteJob(Printer& printer, quint32 id)
{
    PrintJob* const job = findJob(printer, id);
    if (printer.jobInPrint == id && printer.isMoving) {
        changeJob(printer, *job, job->status | JOB_STATUS_DELETING);
        return;
    }
    if (printer.jobInPrint == id)
        stopPrinting(printer);
    job->status =
        (job->status & ~DWORD{JOB_STATUS_PRINTING | JOB_STATUS_DELETING}) | JOB_STATUS_DELETED;
    notify(&printer, PRINTER_CHANGE_DELETE_JOB, job);
    printer.jobs.removeIf([&](const PrintJob& entry) { return entry.id == id; });
}

void Machine::Private::updateJobs(Printer& printer)
{
    if (printer.deleted || printer.jobs.isEmpty())
        return;
    for (;;) {
        PrintJob* job = printer.jobInPrint ? findJob(printer, printer.jobInPrint) : nullptr;
        if (!job) {
            stopPrinting(printer);
            job = isQueueHeld(printer) ? nullptr : firstPrintableJob(printer);
            if (!job)
                return;
            printer.jobInPrint = job->id;
            printer.timeLeft = printer.setup.printingTime;
        }

        const DWORD faults = faultsOf(printer);
        const bool isHeld = faults || !isSpoolerRunning() || isQueueHeld(printer) ||
                            (job->status & JOB_STATUS_PAUSED);
        if (isHeld && printer.isMoving) {
            printer.timeLeft = printer.jobDone - now();
            printer.isMoving = false;
            std::erase(movingPrinters, &printer);
        }
        changeJob(printer, *job, (job->status & ~jobFaults) | JOB_STATUS_PRINTING | faults);
        if (isHeld && (job->status & JOB_STATUS_DELETING)) {
            deleteJob(printer, job->id);
            continue;
        }
        if (isHeld)
            return;
        if (!printer.isMoving) {
            printer.isMoving = true;
            printer.jobDone = now() + printer.timeLeft;
            movingPrinters.push_back(&printer);
            for (Waiter* waiter : waiting)
                waiter->wake.notify_one(); // it has to wake up again when the job is done
        }
        if (printer.jobDone > now())
            return;

        stopPrinting(printer);
        if (job->status & JOB_STATUS_DELETING) {
            deleteJob(printer, job->id);
            continue;
        }
        changeJob(printer, *job, (job->status & ~DWORD{JOB_STATUS_PRINTING}) | JOB_STATUS_PRINTED);
        const bool isKept = (printer.setup.attributes & PRINTER_ATTRIBUTE_KEEPPRINTEDJOBS) ||
                            (job->status & JOB_STATUS_RETAINED);
        if (!isKept) {
            job->queued = false;
            job->status |= JOB_STATUS_DELETED;
            notify(&printer, PRINTER_CHANGE_DELETE_JOB, job);
        }
    }
}

} // namespace virtualwindows

namespace {

/// A job of the queue with its place there, from 1.
struct QueuedJob
{
    const Printer* printer;
    const PrintJob* job;
    DWORD position;
};

std::vector<QueuedJob> queueOf(const Printer& printer)
{
    std::vector<QueuedJob> queue;
    for (const PrintJob& job : printer.jobs) {
        if (job.queued)
            queue.push_back({&printer, &job, static_cast<DWORD>(queue.size()) + 1});
    }
    return queue;
}

SYSTEMTIME systemTime(const QDateTime& moment)
{
    const QDateTime utc = moment.toUTC();
    const QDate date = utc.date();
    const QTime time = utc.time();
    return {static_cast<WORD>(date.year()),          static_cast<WORD>(date.month()),
            static_cast<WORD>(date.dayOfWeek() % 7), static_cast<WORD>(date.day()),
            static_cast<WORD>(time.hour()),          static_cast<WORD>(time.minute()),
            static_cast<WORD>(time.second()),        static_cast<WORD>(time.msec())};
}

constexpr DWORD usualPriority = 1;

/// The part that the records of both levels have in common.
template <typename Record>
Record describeCommon(const QueuedJob& entry, RecordBlock& block)
{
    const PrintJob& job = *entry.job;
    Record record{};
    record.JobId = job.id;
    record.pPrinterName = block.addIfAny(entry.printer->setup.name);
    record.pMachineName = block.add(u"\\\\VIRTUAL");
    record.pUserName = block.add(job.user.isNull() ? QStringLiteral("User") : job.user);
    record.pDocument = block.add(job.document);
    record.pDatatype = block.add(job.datatype.isNull() ? QStringLiteral("RAW") : job.datatype);
    record.Status = job.status;
    record.Priority = usualPriority;
    record.Position = entry.position;
    record.TotalPages = job.isSet ? job.pageCount : static_cast<DWORD>(job.pages.size());
    record.PagesPrinted = (job.status & JOB_STATUS_PRINTED) ? record.TotalPages : 0;
    record.Submitted = systemTime(job.submitted);
    return record;
}

JOB_INFO_1W describe(const QueuedJob& entry, RecordBlock& block, JOB_INFO_1W*)
{
    return describeCommon<JOB_INFO_1W>(entry, block);
}

JOB_INFO_2W describe(const QueuedJob& entry, RecordBlock& block, JOB_INFO_2W*)
{
    auto record = describeCommon<JOB_INFO_2W>(entry, block);
    record.pNotifyName = block.add(u"User");
    record.pPrintProcessor = block.add(u"winprint");
    record.pParameters = block.add();
    record.pDriverName = block.addIfAny(entry.printer->setup.driver);
    record.Size = entry.job->byteCount;
    for (const QByteArray& page : entry.job->pages)
        record.Size += static_cast<DWORD>(page.size());
    return record;
}

template <typename Record>
BOOL fill(std::span<const QueuedJob* const> jobs, LPBYTE start, DWORD size, LPDWORD needed)
{
    return fillRecords(jobs, start, size, needed, [](const QueuedJob& job, RecordBlock& block) {
        return describe(job, block, static_cast<Record*>(nullptr));
    });
}

struct JobLevel
{
    DWORD level;
    BOOL(*fill)
    (std::span<const QueuedJob* const> jobs, LPBYTE start, DWORD size, LPDWORD needed);
};
/// Levels 3 and 4 are missing here.
constexpr std::array jobLevels{
    JobLevel{1, &fill<JOB_INFO_1W>},
    JobLevel{2, &fill<JOB_INFO_2W>},
};

/// Null for an unknown level.
const JobLevel* findLevel(DWORD level)
{
    const auto* const found = std::find_if(jobLevels.begin(), jobLevels.end(),
                                           [&](const auto& entry) { return entry.level == level; });
    return found == jobLevels.end() ? nullptr : found;
}

/// The job in the queue of an open printer. Null: the last error says why.
PrintJob* jobOf(Printer& printer, DWORD id)
{
    machine().catchUp();
    PrintJob* job = findJob(printer, id);
    if (!job)
        SetLastError(ERROR_INVALID_PARAMETER);
    return job;
}

BOOL controlJob(Printer& printer, PrintJob& job, DWORD command)
{
    switch (command) {
    case JOB_CONTROL_PAUSE:
        machine().changeJob(printer, job, job.status | JOB_STATUS_PAUSED);
        break;
    case JOB_CONTROL_RESUME:
        machine().changeJob(printer, job, job.status & ~DWORD{JOB_STATUS_PAUSED});
        break;
    case JOB_CONTROL_CANCEL:
    case JOB_CONTROL_DELETE:
        machine().deleteJob(printer, job.id);
        break;
    case JOB_CONTROL_RESTART:
        if (printer.jobInPrint == job.id)
            machine().stopPrinting(printer);
        machine().changeJob(printer, job,
                            job.status & ~DWORD{JOB_STATUS_PRINTED | JOB_STATUS_PRINTING});
        break;
    case JOB_CONTROL_RETAIN:
        machine().changeJob(printer, job, job.status | JOB_STATUS_RETAINED);
        break;
    case JOB_CONTROL_RELEASE:
        machine().changeJob(printer, job, job.status & ~DWORD{JOB_STATUS_RETAINED});
        if (job.status & JOB_STATUS_PRINTED)
            machine().deleteJob(printer, job.id);
        break;
    default:
        return failWith(ERROR_INVALID_PARAMETER, FALSE);
    }
    machine().updateJobs(printer);
    return TRUE;
}

} // namespace

BOOL WINAPI GetJobW(HANDLE hPrinter, DWORD JobId, DWORD Level, LPBYTE pJob, DWORD cbBuf,
                    LPDWORD pcbNeeded)
{
    const ApiCall call(Function::GetJobW, hPrinter, JobId, Level, cbBuf);
    if (call.failsAsPlanned())
        return FALSE;
    const JobLevel* const level = findLevel(Level);
    if (!level)
        return failWith(ERROR_INVALID_LEVEL, FALSE);

    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(hPrinter, call, 0);
    if (!object)
        return FALSE;
    if (!pcbNeeded)
        return failWith(RPC_X_NULL_REF_POINTER, FALSE);
    if (cbBuf && !pJob)
        return failWith(ERROR_INVALID_USER_BUFFER, FALSE);
    const PrintJob* const job = jobOf(*object->printer, JobId);
    if (!job)
        return FALSE;
    const std::vector<QueuedJob> queue = queueOf(*object->printer);
    const auto entry = std::find_if(queue.begin(), queue.end(),
                                    [&](const QueuedJob& other) { return other.job == job; });
    const QueuedJob* const only = &*entry;
    return level->fill({&only, 1}, pJob, cbBuf, pcbNeeded);
}

BOOL WINAPI EnumJobsW(HANDLE hPrinter, DWORD FirstJob, DWORD NoJobs, DWORD Level, LPBYTE pJob,
                      DWORD cbBuf, LPDWORD pcbNeeded, LPDWORD pcReturned)
{
    const ApiCall call(Function::EnumJobsW, hPrinter, FirstJob, NoJobs, Level, cbBuf);
    if (call.failsAsPlanned())
        return FALSE;
    const JobLevel* const level = findLevel(Level);
    if (!level)
        return failWith(ERROR_INVALID_LEVEL, FALSE);

    const std::lock_guard guard(machine().lock);
    const auto object = handleOfPrinter(hPrinter, call, 0);
    if (!object)
        return FALSE;
    if (!pcbNeeded || !pcReturned)
        return failWith(RPC_X_NULL_REF_POINTER, FALSE);
    *pcbNeeded = 0;
    *pcReturned = 0;
    if (cbBuf && !pJob)
        return failWith(ERROR_INVALID_USER_BUFFER, FALSE);
    machine().catchUp();
    const std::vector<QueuedJob> queue = queueOf(*object->printer);
    std::vector<const QueuedJob*> listed;
    for (std::size_t index = FirstJob; index < queue.size() && index - FirstJob < NoJobs; ++index)
        listed.push_back(&queue[index]);
    if (!level->fill(listed, pJob, cbBuf, pcbNeeded))
        return FALSE;
    *pcReturned = static_cast<DWORD>(listed.size());
    return TRUE;
}

BOOL WINAPI SetJobW(HANDLE hPrinter, DWORD JobId, DWORD Level, LPBYTE /*pJob*/, DWORD Command)
{
    const ApiCall call(Function::SetJobW, hPrinter, JobId, Level, Command);
    if (call.failsAsPlanned())
        return FALSE;

    const std::lock_guard guard(machine().lock);
    // Users who may print may control their own jobs, and all jobs here belong to one user.
    const auto object = handleOfPrinter(hPrinter, call, PRINTER_ACCESS_USE);
    if (!object)
        return FALSE;
    if (Level != 0)
        return failWith(ERROR_INVALID_LEVEL, FALSE); // only commands are carried out here
    PrintJob* const job = jobOf(*object->printer, JobId);
    return job && controlJob(*object->printer, *job, Command);
}
