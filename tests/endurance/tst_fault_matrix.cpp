// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Every Windows call fails once, at each of its uses, while a controller finds three printers, sees
// their values change, loses and regains the print spooler, sends a command, looks for printers
// again and is destroyed.
//
// VX_FAULT_PART=1/3 runs the first of three parts, which can run at the same time.
//
// The printers' threads run concurrently, so which of them makes the n-th call of a function
// differs from run to run. The test therefore records whose call failed, and expects the
// consequence of that failure.
#include "endurance_test.h"
#include "log_recorder.h"

#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtCore/QWaitCondition>

#include <algorithm>
#include <array>

#include <windows.h>
#include <winspool.h>

using VXPrinting::PrinterType;
namespace StatusCodes = VXPrinting::StatusCodes;

namespace {

enum class Phase
{
    Start, ///< construction and the threads' first reads
    Change,
    SpoolerStops,
    SpoolerRuns,
    Command,
    Discovery,
    End, ///< destruction
};

enum class Caller
{
    Host,
    Thread, ///< a printer's
};

enum class Access
{
    Any,
    Plain,
    Full, ///< PRINTER_ALL_ACCESS
};

/// When a change of a printer reaches its record after the failures have ended.
enum class Arrival
{
    AtOnce,
    AfterPoll,    ///< when the thread has queried the spooler's state again
    AfterRestart, ///< when the spooler has been stopped and started again
    Never,        ///< this controller no longer watches the printer
};

/// The one call that was made to fail.
struct Failure
{
    QString function;
    Phase phase = Phase::Start;
    Caller caller = Caller::Host;
    Access access = Access::Any;
    QString printer; ///< the printer of the call; empty if a call of the host names none
};

/// The consequence of a failure. The first entry that matches applies; without one, the failure has
/// no lasting effect.
struct Consequence
{
    const char* function;
    Caller caller;
    Access access;
    std::optional<Phase> phase;
    Arrival arrival;
    int status;         ///< the status in the record until then, or `unchanged`
    const char* logged; ///< the log line after the printer's name, or null
    const char* reason;
};
constexpr int unchanged = -1;
constexpr std::array consequences{
    Consequence{"OpenPrinterA", Caller::Host, Access::Full, Phase::Start, Arrival::Never,
                StatusCodes::notManaged, nullptr,
                "a printer that the user may not administer is listed and not watched"},
    Consequence{"OpenPrinterA", Caller::Thread, Access::Plain, Phase::SpoolerRuns,
                Arrival::AfterRestart, StatusCodes::spoolerDown, ": Failed to open printer",
                "opening a printer is not repeated before the spooler restarts"},
    Consequence{"FindFirstPrinterChangeNotification", Caller::Thread, Access::Any,
                Phase::SpoolerRuns, Arrival::AfterRestart, StatusCodes::spoolerDown,
                ": Failed to create event objects",
                "registering for its notifications is not repeated either"},
    Consequence{"QueryServiceStatus", Caller::Thread, Access::Any, Phase::SpoolerRuns,
                Arrival::AfterPoll, StatusCodes::spoolerDown, nullptr,
                "a spooler whose state cannot be queried counts as stopped"},
    Consequence{"CreateEventW", Caller::Thread, Access::Any, std::nullopt, Arrival::Never,
                unchanged, nullptr, "a thread that could not be stopped does not start watching"},
    Consequence{"OpenSCManagerW", Caller::Thread, Access::Any, std::nullopt, Arrival::Never,
                unchanged, nullptr,
                "without the service, a thread does not notice a restart of the spooler"},
    Consequence{"OpenServiceW", Caller::Thread, Access::Any, std::nullopt, Arrival::Never,
                unchanged, nullptr,
                "without the service, a thread does not notice a restart of the spooler"},
};

/// Errors that these functions are known to fail with.
const QHash<QString, quint32> plausibleErrors{
    {QStringLiteral("CreateEventW"), ERROR_NOT_ENOUGH_MEMORY},
    {QStringLiteral("EnumPrintersW"), RPC_S_SERVER_UNAVAILABLE},
    {QStringLiteral("FindFirstPrinterChangeNotification"), ERROR_NOT_ENOUGH_MEMORY},
    {QStringLiteral("GetDefaultPrinterW"), ERROR_FILE_NOT_FOUND},
    {QStringLiteral("GetPrinterDataA"), ERROR_FILE_NOT_FOUND},
    {QStringLiteral("GetPrinterW"), RPC_S_SERVER_UNAVAILABLE},
    {QStringLiteral("OpenPrinterA"), ERROR_ACCESS_DENIED},
    {QStringLiteral("OpenSCManagerW"), ERROR_ACCESS_DENIED},
    {QStringLiteral("OpenServiceW"), ERROR_ACCESS_DENIED},
    {QStringLiteral("QueryServiceStatus"), RPC_S_SERVER_UNAVAILABLE},
    {QStringLiteral("StartDocPrinterW"), ERROR_NOT_ENOUGH_MEMORY},
    {QStringLiteral("WritePrinter"), ERROR_PRINT_CANCELLED},
};
quint32 plausibleError(const QString& function)
{
    return plausibleErrors.value(function, ERROR_INVALID_HANDLE);
}

/// The log line about a command that failed in a function.
struct CommandFailure
{
    const char* function;
    const char* logged;
};
constexpr std::array commandFailures{
    CommandFailure{"OpenPrinterA", "Alder at the window: OpenPrinter call failed"},
    CommandFailure{"StartDocPrinterW", "ERROR: failed to start print job"},
    CommandFailure{"StartPagePrinter", "ERROR: failed to start new (virtual) page"},
    CommandFailure{"WritePrinter", "ERROR: printer does not accept (all) data\n"},
};

const LabelPrinter alder{QStringLiteral("Alder at the window"), PrinterType::Alder};
const LabelPrinter alderMax{QStringLiteral("AlderMax at the door"), PrinterType::AlderMax};
const LabelPrinter cedarMax{QStringLiteral("CedarMax upstairs"), PrinterType::CedarMax};
const std::array labelPrinters{alder, alderMax, cedarMax};
/// Not the first by name, which becomes the active one if there is no default printer.
const LabelPrinter& windowsDefault = alderMax;

/// A printer whose notification could not be registered is closed at once. Its handle is kept, so
/// it is closed again when the spooler stops or the thread ends.
const QString printerClosedTwice = QStringLiteral("a printer was closed twice");

constexpr int firstMoment = 0;
constexpr int lastMoment = 11;

/// Records which thread watches which printer, and whose call fails.
class Observer
{
public:
    explicit Observer(virtualwindows::Machine& machine)
        : m_machine(machine)
        , m_host(QThread::currentThreadId())
    {
        machine.setCallHook([this](const Call& call) { see(call); });
    }
    ~Observer() { m_machine.setCallHook(nullptr); }
    Q_DISABLE_COPY_MOVE(Observer)

    void enter(Phase phase)
    {
        const QMutexLocker guard(&m_mutex);
        m_phase = phase;
    }
    std::optional<Failure> failure() const
    {
        const QMutexLocker guard(&m_mutex);
        return m_failure;
    }
    bool waitUntilFailed()
    {
        const QMutexLocker guard(&m_mutex);
        const QDeadlineTimer limit(patience);
        while (!m_failure && !limit.hasExpired())
            m_failed.wait(&m_mutex, limit);
        return m_failure.has_value();
    }

private:
    void see(const Call& call)
    {
        const QMutexLocker guard(&m_mutex);
        const bool opensPrinter = call.function == QLatin1String("OpenPrinterA");
        const bool isHosts = call.thread == m_host;
        // Each thread begins by opening its printer.
        if (opensPrinter && !isHosts)
            m_printers.insert(call.thread, call.arguments.first());
        if (!call.plannedError)
            return;
        Failure failure{
            call.function, m_phase, isHosts ? Caller::Host : Caller::Thread, Access::Any, {}};
        if (opensPrinter) {
            failure.printer = call.arguments.first();
            failure.access = call.arguments.last() == QString::number(PRINTER_ALL_ACCESS)
                                 ? Access::Full
                                 : Access::Plain;
        } else if (!isHosts) {
            failure.printer = m_printers.value(call.thread);
        }
        m_failure = failure;
        m_failed.wakeAll();
    }

    virtualwindows::Machine& m_machine;
    const Qt::HANDLE m_host;
    mutable QMutex m_mutex;
    QWaitCondition m_failed;
    Phase m_phase = Phase::Start;
    QHash<Qt::HANDLE, QString> m_printers;
    std::optional<Failure> m_failure;
};

const Consequence* consequenceOf(const std::optional<Failure>& failure)
{
    if (!failure)
        return nullptr;
    const auto found = std::ranges::find_if(consequences, [&](const Consequence& entry) {
        return failure->function == QLatin1String(entry.function) &&
               failure->caller == entry.caller &&
               (entry.access == Access::Any || failure->access == entry.access) &&
               (!entry.phase || failure->phase == *entry.phase);
    });
    return found == consequences.end() ? nullptr : &*found;
}

/// When the service or its manager could not be opened, the thread uses the null handle all the
/// same.
bool isUseOfMissingService(const std::optional<Failure>& failure,
                           const virtualwindows::HandleMisuse& misuse)
{
    if (!failure)
        return false;
    const bool hasNoManager = failure->function == QLatin1String("OpenSCManagerW");
    const bool hasNoService = hasNoManager || failure->function == QLatin1String("OpenServiceW");
    return (hasNoManager && misuse.function == QLatin1String("OpenServiceW")) ||
           (hasNoService && misuse.function == QLatin1String("QueryServiceStatus"));
}

QString describe(const std::optional<Failure>& failure)
{
    if (!failure)
        return QStringLiteral("nothing failed");
    return QStringLiteral("failed in phase %1, called by %2, printer \"%3\"")
        .arg(static_cast<int>(failure->phase))
        .arg(failure->caller == Caller::Host ? QStringLiteral("the host")
                                             : QStringLiteral("a printer's thread"),
             failure->printer);
}

} // namespace

class FaultMatrixTest : public EnduranceTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void eachCallMayFail_data();
    void eachCallMayFail();
    void eachCallMayFailDuringDestruction_data();
    void eachCallMayFailDuringDestruction();

private:
    struct Run
    {
        std::unique_ptr<Observer> observer;
        std::unique_ptr<LogRecorder> log;
        std::unique_ptr<PrinterStatusController> controller;
        int deadThreads = 0; ///< threads that ended because they got no stop event
        QString fault;       ///< the first thing that went wrong

        void check(bool holds, const QString& message)
        {
            if (!holds && fault.isEmpty())
                fault = message;
        }
    };

    static int watchingThreads(const Run& run);
    void settle(Run& run, const char* after);
    void letThreadsPoll(Run& run, const char* after);
    Run begin(const QString& function, int nth);
    void work(Run& run);
    void checkCommand(Run& run);
    void checkAfterwards(Run& run);
    void end(Run& run);
    /// Runs all phases with the n-th use of a function failing. Returns what went wrong, or an
    /// empty text.
    QString runWithFailure(const QString& function, int nth, bool& hasFailed);
    QString runWithFailureAtTheEnd(const QString& function, int nth, bool& hasFailed);

    /// Adds a row for each function, with the uses that belong to this part of the matrix.
    void addRows(const QList<QPair<QString, int>>& uses) const;

    int m_part = 1;
    int m_parts = 1;
    QList<QPair<QString, int>> m_uses;
    QList<QPair<QString, int>> m_usesAtTheEnd;
};

int FaultMatrixTest::watchingThreads(const Run& run)
{
    return std::max(0, watchedPrinters(*run.controller) - run.deadThreads);
}

void FaultMatrixTest::settle(Run& run, const char* after)
{
    run.check(EnduranceTest::settle(watchingThreads(run)),
              QStringLiteral("the threads did not settle after ") + QLatin1String(after));
}

void FaultMatrixTest::letThreadsPoll(Run& run, const char* after)
{
    run.check(EnduranceTest::letThreadsPoll(watchingThreads(run)),
              QStringLiteral("the threads did not settle after ") + QLatin1String(after));
}

FaultMatrixTest::Run FaultMatrixTest::begin(const QString& function, int nth)
{
    machine().reset();
    machine().driveTime();
    for (const LabelPrinter& printer : labelPrinters) {
        addPrinter(printer);
        publish(printer, moment(printer, firstMoment));
    }
    machine().setDefaultPrinter(windowsDefault.name);
    machine().addDevice({QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}"),
                         QStringLiteral("##?#USB#VID_3E7A&PID_0104#1"), 1, QStringLiteral("1")});

    Run run;
    run.observer = std::make_unique<Observer>(machine());
    run.log = std::make_unique<LogRecorder>();
    if (nth > 0)
        machine().failCall(function, nth, plausibleError(function));
    run.controller = std::make_unique<PrinterStatusController>();
    if (nth > 0 && function == QLatin1String("CreateEventW")) {
        run.deadThreads = 1;
        // settle() does not wait for this thread: the others may all wait before it has read its
        // printer.
        run.check(run.observer->waitUntilFailed(),
                  QStringLiteral("no thread created its stop event"));
    }
    settle(run, "the start");
    return run;
}

void FaultMatrixTest::work(Run& run)
{
    const auto enter = [&](Phase phase) {
        run.observer->enter(phase);
    };

    enter(Phase::Change);
    publish(alder, moment(alder, 1));
    settle(run, "a change of everything");
    // After the status "unknown", the printer is looked for, and read through a new handle at its
    // next change.
    machine().publish(alderMax.name,
                      PrinterValue::text("StatusCode", QByteArray::number(StatusCodes::unknown)));
    settle(run, "a printer that cannot be read");
    machine().publish(alderMax.name, PrinterValue::text("StatusCode", "42"));
    settle(run, "a printer that can be read again");

    enter(Phase::SpoolerStops);
    machine().stopSpooler();
    letThreadsPoll(run, "the stop of the spooler");
    enter(Phase::SpoolerRuns);
    machine().startSpooler();
    letThreadsPoll(run, "the start of the spooler");

    enter(Phase::Command);
    run.controller->sendCommandToPrinter(QStringLiteral("~JC"), alder.name);
    settle(run, "a command");
    checkCommand(run);

    enter(Phase::Discovery);
    run.controller->checkForPrinters();
    settle(run, "a look for printers");
}

void FaultMatrixTest::checkCommand(Run& run)
{
    const std::optional<Failure> failure = run.observer->failure();
    if (failure && failure->phase == Phase::Command && failure->caller == Caller::Host) {
        const auto line = std::ranges::find_if(commandFailures, [&](const CommandFailure& entry) {
            return failure->function == QLatin1String(entry.function);
        });
        if (line != commandFailures.end()) {
            const QList<LogRecord> records = run.log->records();
            run.check(std::ranges::any_of(records,
                                          [&](const LogRecord& record) {
                                              return record.message == QLatin1String(line->logged);
                                          }),
                      QStringLiteral("the failure of the command is not in the log"));
            return;
        }
    }
    const QList<virtualwindows::PrintJob> jobs = machine().jobs(alder.name);
    run.check(jobs.size() == 1 && jobs.first().finished &&
                  jobs.first().pages == QList<QByteArray>{"~JC\r\n"},
              QStringLiteral("the command did not reach the printer"));
}

void FaultMatrixTest::checkAfterwards(Run& run)
{
    const std::optional<Failure> failure = run.observer->failure();
    const Consequence* const consequence = consequenceOf(failure);
    const auto arrivalOf = [&](const LabelPrinter& printer) {
        const bool isHit = consequence && failure->printer == printer.name;
        return isHit ? consequence->arrival : Arrival::AtOnce;
    };
    const auto checkArrivals = [&](Arrival moments, const char* when) {
        for (const LabelPrinter& printer : labelPrinters) {
            const QString wrong = mismatch(*run.controller, printer, moment(printer, lastMoment));
            if (arrivalOf(printer) <= moments)
                run.check(wrong.isEmpty(), QLatin1String(when) + QLatin1String(": ") + wrong);
            else
                run.check(!wrong.isEmpty(), printer.name +
                                                QLatin1String(" has a change that cannot "
                                                              "have arrived: ") +
                                                QLatin1String(consequence->reason));
        }
    };

    machine().clearFailures();
    for (const LabelPrinter& printer : labelPrinters)
        publish(printer, moment(printer, lastMoment));
    settle(run, "a change after the failure");
    checkArrivals(Arrival::AtOnce, "at once");

    // If the default printer cannot be managed, the first printer stays the active one.
    const bool isDefaultManaged = !consequence || consequence->status != StatusCodes::notManaged ||
                                  failure->printer != windowsDefault.name;
    run.check(
        run.controller->activeDefaultPrinter() ==
            (isDefaultManaged ? windowsDefault.name : alder.name),
        QStringLiteral("the active printer is \"%1\"").arg(run.controller->activeDefaultPrinter()));
    if (!consequence)
        return;

    const auto record = recordOf(*run.controller, failure->printer);
    run.check(record &&
                  (consequence->status == unchanged || record->statusEnum == consequence->status),
              failure->printer + QLatin1String(" has another status"));
    if (consequence->logged) {
        const QList<LogRecord> records = run.log->records();
        run.check(std::ranges::any_of(records,
                                      [&](const LogRecord& entry) {
                                          return entry.message ==
                                                 failure->printer +
                                                     QLatin1String(consequence->logged);
                                      }),
                  QStringLiteral("the failure is not in the log"));
    }

    letThreadsPoll(run, "a poll after the failure");
    checkArrivals(Arrival::AfterPoll, "after a poll");
    machine().stopSpooler();
    letThreadsPoll(run, "another stop of the spooler");
    machine().startSpooler();
    letThreadsPoll(run, "another start of the spooler");
    checkArrivals(Arrival::AfterRestart, "after a restart");
}

void FaultMatrixTest::end(Run& run)
{
    run.observer->enter(Phase::End);
    run.controller.reset();
    const std::optional<Failure> failure = run.observer->failure();
    QStringList misuses;
    for (const virtualwindows::HandleMisuse& misuse : machine().settle()) {
        if (misuse.handle == 0 && isUseOfMissingService(failure, misuse))
            continue;
        const bool isClosedTwice =
            misuse.kind == Kind::ClosedTwice && misuse.function == QLatin1String("ClosePrinter");
        misuses.append(isClosedTwice ? printerClosedTwice : misuse.text);
    }
    const bool hasNoNotification =
        failure && failure->function == QLatin1String("FindFirstPrinterChangeNotification");
    run.check(misuses == (hasNoNotification ? QStringList{printerClosedTwice} : QStringList()),
              misuses.join(QStringLiteral(", ")));
    run.check(machine().waitingThreads() == 0, QStringLiteral("a thread still waits"));
}

QString FaultMatrixTest::runWithFailure(const QString& function, int nth, bool& hasFailed)
{
    Run run = begin(function, nth);
    work(run);
    hasFailed = run.observer->failure().has_value();
    checkAfterwards(run);
    const std::optional<Failure> failure = run.observer->failure();
    end(run);
    machine().reset();
    return run.fault.isEmpty() ? QString()
                               : run.fault + QStringLiteral(" (%1)").arg(describe(failure));
}

QString FaultMatrixTest::runWithFailureAtTheEnd(const QString& function, int nth, bool& hasFailed)
{
    Run run = begin({}, 0);
    run.observer->enter(Phase::End);
    machine().failCall(function, nth, plausibleError(function));
    end(run);
    const std::optional<Failure> failure = run.observer->failure();
    hasFailed = failure.has_value();
    machine().clearFailures();

    // The failure does not affect the next controller.
    run.controller = std::make_unique<PrinterStatusController>();
    settle(run, "another start");
    for (const LabelPrinter& printer : labelPrinters) {
        const QString wrong = mismatch(*run.controller, printer, moment(printer, firstMoment));
        run.check(wrong.isEmpty(), wrong);
    }
    end(run);
    machine().reset();
    return run.fault.isEmpty() ? QString()
                               : run.fault + QStringLiteral(" (%1)").arg(describe(failure));
}

void FaultMatrixTest::initTestCase()
{
    const QByteArrayList part =
        qEnvironmentVariable("VX_FAULT_PART", QStringLiteral("1/1")).toLatin1().split('/');
    m_part = part.first().toInt();
    m_parts = part.last().toInt();
    QVERIFY2(part.size() == 2 && m_part >= 1 && m_part <= m_parts,
             "VX_FAULT_PART: expected a part and the number of parts, such as 1/3");

    init();
    bool hasFailed = false;
    const QString fault = runWithFailure({}, 0, hasFailed);
    QVERIFY2(fault.isEmpty(), qPrintable(fault));

    Run run = begin({}, 0);
    work(run);
    m_uses = machine().callCounts();
    end(run);
    QVERIFY2(run.fault.isEmpty(), qPrintable(run.fault));

    run = begin({}, 0);
    const QList<QPair<QString, int>> before = machine().callCounts();
    end(run);
    const QList<QPair<QString, int>> all = machine().callCounts();
    for (const auto& [function, count] : all) {
        const auto same = std::ranges::find(before, function, &QPair<QString, int>::first);
        const int atTheEnd = count - (same == before.end() ? 0 : same->second);
        if (atTheEnd > 0)
            m_usesAtTheEnd.append({function, atTheEnd});
    }
    cleanup();
}

void FaultMatrixTest::addRows(const QList<QPair<QString, int>>& uses) const
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<QList<int>>("uses");
    int number = 0;
    for (const auto& [function, count] : uses) {
        QList<int> ours;
        for (int nth = 1; nth <= count; ++nth) {
            if (number++ % m_parts == m_part - 1)
                ours.append(nth);
        }
        if (!ours.isEmpty())
            QTest::newRow(qPrintable(function)) << function << ours;
    }
}

void FaultMatrixTest::eachCallMayFail_data()
{
    addRows(m_uses);
}

void FaultMatrixTest::eachCallMayFail()
{
    QFETCH(const QString, function);
    QFETCH(const QList<int>, uses);
    int failed = 0;
    for (const int nth : uses) {
        bool hasFailed = false;
        const QString fault = runWithFailure(function, nth, hasFailed);
        QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(fault)));
        failed += hasFailed ? 1 : 0;
    }
    // How often a thread reads while a command is printed depends on chance, so the last uses need
    // not occur in every run.
    qInfo("%d of %d uses failed", failed, static_cast<int>(uses.size()));
    QVERIFY(failed > 0);
}

void FaultMatrixTest::eachCallMayFailDuringDestruction_data()
{
    addRows(m_usesAtTheEnd);
}

void FaultMatrixTest::eachCallMayFailDuringDestruction()
{
    QFETCH(const QString, function);
    QFETCH(const QList<int>, uses);
    for (const int nth : uses) {
        bool hasFailed = false;
        const QString fault = runWithFailureAtTheEnd(function, nth, hasFailed);
        QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(fault)));
        QVERIFY2(hasFailed, qPrintable(QStringLiteral("use %1 did not occur").arg(nth)));
    }
    qInfo("%d uses failed", static_cast<int>(uses.size()));
}

QTEST_GUILESS_MAIN(FaultMatrixTest)
#include "tst_fault_matrix.moc"
