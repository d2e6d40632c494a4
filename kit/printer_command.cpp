// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_command.h"

#include "job_followers.h"
#include "printer_record.h"

#include "printer_types.h"
#include "windows_printer_info.h"
#include "windowserrors.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThreadPool>

#include <memory>
#include <mutex>
#include <tuple>
#include <utility>

namespace VxKit {

namespace {

using Failure = CommandResult::Failure;

/// The threads that send and follow. They exist until the application object is destroyed, because
/// a library that is unloaded cannot wait for its threads.
class CommandThreads
{
public:
    static CommandThreads& instance();

    CommandThreads() { m_senders.setMaxThreadCount(4); }
    ~CommandThreads()
    {
        m_senders.clear();
        m_senders.waitForDone();
    }
    Q_DISABLE_COPY_MOVE(CommandThreads)

    /// Calls the function on another thread, when it is its turn.
    template <typename Task>
    void start(Task task)
    {
        m_senders.start([this, task] { task(m_followers); });
    }

private:
    JobFollowers m_followers;
    QThreadPool m_senders;
};

std::mutex threadsMutex;
CommandThreads* threads = nullptr;

void endThreads()
{
    CommandThreads* ended = nullptr;
    {
        const std::lock_guard guard(threadsMutex);
        ended = std::exchange(threads, nullptr);
    }
    delete ended;
}

CommandThreads& CommandThreads::instance()
{
    const std::lock_guard guard(threadsMutex);
    if (!threads) {
        threads = new CommandThreads;
        qAddPostRoutine(endThreads);
    }
    return *threads;
}

/// A command on its way to the spooler.
struct Command
{
    QString printerName;
    QByteArray bytes;
    bool isEmpty = false;
    QString usualName; ///< of its job
    CommandOptions options;

    QString documentName() const
    {
        constexpr qsizetype longestName = 200;
        return (options.documentName.isEmpty() ? usualName : options.documentName)
            .left(longestName);
    }
};

/// Ends a document that was started. A document that is not whole is deleted before.
class Document
{
public:
    Document(const PrinterOwner& printer, const QString& name)
        : m_printer(printer.get())
    {
        const QString datatype = QStringLiteral("RAW");
        DOC_INFO_1W info{};
        info.pDocName = wideText(name);
        info.pDatatype = wideText(datatype);
        m_jobId = StartDocPrinterW(m_printer, 1, reinterpret_cast<LPBYTE>(&info));
    }
    ~Document()
    {
        if (!m_isOpen || !m_jobId)
            return;
        SetJobW(m_printer, m_jobId, 0, nullptr, JOB_CONTROL_DELETE);
        EndDocPrinter(m_printer);
    }
    Q_DISABLE_COPY_MOVE(Document)

    DWORD jobId() const { return m_jobId; }
    bool end()
    {
        if (!EndDocPrinter(m_printer))
            return false;
        m_isOpen = false;
        return true;
    }

private:
    HANDLE m_printer;
    DWORD m_jobId = 0;
    bool m_isOpen = true;
};

QString refusal(const CommandResult& result)
{
    if (result.failure == Failure::Empty)
        return QCoreApplication::translate("VxKit", "The command is empty.");
    return QCoreApplication::translate("VxKit",
                                       "\"%1\" is not a label printer of a supported model.")
        .arg(result.printerName);
}

QString textOf(const CommandResult& result)
{
    switch (result.failure) {
    case Failure::None:
        return {};
    case Failure::Empty:
    case Failure::ForeignPrinter:
        return refusal(result);
    case Failure::ShortWrite:
        return QCoreApplication::translate(
                   "VxKit", "The print spooler took only the first %1 bytes of the command.")
            .arg(result.bytes);
    case Failure::CannotOpenPrinter:
        return QCoreApplication::translate("VxKit", "\"%1\" cannot be opened: %2")
            .arg(result.printerName, windows_errors::winError(result.errorCode));
    case Failure::CannotReadDriver:
        return QCoreApplication::translate("VxKit", "The driver of \"%1\" cannot be queried: %2")
            .arg(result.printerName, windows_errors::winError(result.errorCode));
    case Failure::CannotStartDocument:
    case Failure::CannotStartPage:
    case Failure::CannotWrite:
    case Failure::CannotEndPage:
    case Failure::CannotEndDocument:
        break;
    }
    return QCoreApplication::translate("VxKit", "The command cannot be sent to \"%1\": %2")
        .arg(result.printerName, windows_errors::winError(result.errorCode));
}

/// Sends commands, one step after the other.
class Sender
{
public:
    explicit Sender(const Command& command)
        : m_command(command)
    {
        m_result.printerName = command.printerName;
    }

    /// Sends the command. `queue` is opened before the job is started, if it is not null.
    CommandResult send(WatchedQueue* queue)
    {
        if (!check() || !open())
            return finished();
        if (queue)
            *queue = WatchedQueue::open(m_command.printerName);
        print();
        return finished();
    }

private:
    bool check()
    {
        if (m_command.isEmpty && !m_command.options.evenEmpty)
            m_result.failure = Failure::Empty;
        return m_result.isSent();
    }

    bool open()
    {
        m_printer = openPrinter(m_command.printerName);
        if (!m_printer)
            return failIn(Failure::CannotOpenPrinter, "OpenPrinterW");
        if (m_command.options.toAnyPrinter)
            return true;
        const PrinterRecord record(m_printer);
        if (!record.isValid())
            return failIn(Failure::CannotReadDriver, "GetPrinterW");
        const QString driver = textFrom(record->pDriverName);
        if (!VXPrinting::isSupported(WindowsPrinterInfo::printerType(driver)))
            m_result.failure = Failure::ForeignPrinter;
        return m_result.isSent();
    }

    bool print()
    {
        Document document(m_printer, m_command.documentName());
        if (!document.jobId())
            return failIn(Failure::CannotStartDocument, "StartDocPrinterW");
        m_result.jobId = document.jobId();
        if (!StartPagePrinter(m_printer.get()))
            return failIn(Failure::CannotStartPage, "StartPagePrinter");
        if (!write())
            return false;
        if (!EndPagePrinter(m_printer.get()))
            return failIn(Failure::CannotEndPage, "EndPagePrinter");
        return document.end() || failIn(Failure::CannotEndDocument, "EndDocPrinter");
    }

    bool write()
    {
        // In parts, because the number of bytes has only 32 bits.
        constexpr qsizetype largestPart = qsizetype{1024} * 1024;
        for (qsizetype begin = 0; begin < m_command.bytes.size(); begin += largestPart) {
            QByteArray part = m_command.bytes.mid(begin, largestPart);
            const auto size = static_cast<DWORD>(part.size());
            DWORD written = 0;
            if (!WritePrinter(m_printer.get(), part.data(), size, &written))
                return failIn(Failure::CannotWrite, "WritePrinter");
            m_result.bytes += written;
            if (written < size) {
                m_result.failure = Failure::ShortWrite;
                m_result.function = QStringLiteral("WritePrinter");
                return false;
            }
        }
        return true;
    }

    /// The function has just failed. Returns false.
    bool failIn(Failure failure, const char* function)
    {
        m_result.errorCode = GetLastError();
        m_result.failure = failure;
        m_result.function = QString::fromLatin1(function);
        return false;
    }

    CommandResult finished()
    {
        m_printer.reset();
        m_result.errorText = textOf(m_result);
        return m_result;
    }

    const Command& m_command;
    PrinterOwner m_printer;
    CommandResult m_result;
};

Command commandOf(const QString& printerName, const QString& text, const CommandOptions& options)
{
    Command command{printerName, {}, false, text, options};
    // Like the library: printers read commands as zero-terminated text.
    const QByteArray bytes = (text + QLatin1String("\r\n")).toLocal8Bit();
    command.bytes = bytes.constData();
    command.isEmpty = text.isEmpty() || text.startsWith(QChar(u'\0'));
    return command;
}

Command commandOf(const QString& printerName, const QByteArray& bytes,
                  const CommandOptions& options)
{
    return {printerName, bytes, bytes.isEmpty(), QCoreApplication::translate("VxKit", "Command"),
            options};
}

/// Starts to send a command on another thread. If there is a promise for its job, the job is
/// followed. A promise that is dropped cancels its future.
QFuture<CommandResult> start(const Command& command, const JobPromise& job = nullptr)
{
    const auto promise = std::make_shared<QPromise<CommandResult>>();
    const QFuture<CommandResult> future = promise->future();
    promise->start();
    CommandThreads::instance().start([command, promise, job](JobFollowers& followers) {
        if (promise->isCanceled())
            return;
        WatchedQueue queue;
        const CommandResult result = Sender(command).send(job ? &queue : nullptr);
        if (!result.isSent())
            queue = {};
        promise->addResult(result);
        promise->finish();
        if (job && result.isSent())
            followers.follow(std::make_unique<FollowedJob>(command.printerName, std::move(queue),
                                                           result.jobId, job));
    });
    return future;
}

FollowedCommand startAndFollow(const Command& command)
{
    const auto job = std::make_shared<QPromise<JobState>>();
    FollowedCommand followed;
    followed.job = job->future();
    job->start();
    followed.command = start(command, job);
    return followed;
}

} // namespace

QString JobState::text() const
{
    QString text;
    switch (stage) {
    case Stage::Queued:
        text = QCoreApplication::translate("VxKit", "The job waits in the queue.");
        break;
    case Stage::Printing:
        text = QCoreApplication::translate("VxKit", "The job is being printed.");
        break;
    case Stage::Printed:
        text = QCoreApplication::translate("VxKit", "The job has been printed.");
        break;
    case Stage::Deleted:
        text = QCoreApplication::translate("VxKit", "The job was deleted.");
        break;
    case Stage::LeftQueue:
        text = QCoreApplication::translate(
            "VxKit", "The job has left the queue; whether it was printed is not known.");
        break;
    case Stage::Failed:
        text = errorText;
        break;
    }
    return (QStringList(text) + obstacles).join(QLatin1Char(' '));
}

bool operator==(const JobState& left, const JobState& right)
{
    const auto members = [](const JobState& state) {
        return std::tie(state.printerName, state.jobId, state.stage, state.obstacles,
                        state.jobStatus, state.printerStatus, state.statusCode, state.errorCode,
                        state.errorText);
    };
    return members(left) == members(right);
}

QFuture<CommandResult> sendCommand(const QString& printerName, const QString& text,
                                   const CommandOptions& options)
{
    return start(commandOf(printerName, text, options));
}

QFuture<CommandResult> sendCommand(const QString& printerName, const QByteArray& bytes,
                                   const CommandOptions& options)
{
    return start(commandOf(printerName, bytes, options));
}

QFuture<JobState> followJob(const QString& printerName, quint32 jobId)
{
    const auto promise = std::make_shared<QPromise<JobState>>();
    const QFuture<JobState> future = promise->future();
    promise->start();
    CommandThreads::instance().start([printerName, jobId, promise](JobFollowers& followers) {
        followers.follow(std::make_unique<FollowedJob>(printerName, WatchedQueue::open(printerName),
                                                       jobId, promise));
    });
    return future;
}

FollowedCommand sendAndFollowCommand(const QString& printerName, const QString& text,
                                     const CommandOptions& options)
{
    return startAndFollow(commandOf(printerName, text, options));
}

FollowedCommand sendAndFollowCommand(const QString& printerName, const QByteArray& bytes,
                                     const CommandOptions& options)
{
    return startAndFollow(commandOf(printerName, bytes, options));
}

} // namespace VxKit
