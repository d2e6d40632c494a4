// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// A controller can be destroyed at any time, at chosen and at random moments of its threads, and
// leaves nothing behind.
#include "endurance_test.h"
#include "log_recorder.h"
#include "vx_ipc_m4_controller.h"

#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <array>
#include <atomic>
#include <limits>
#include <random>
#include <thread>

#include <windows.h>
#include <winspool.h>

using VXPrinting::PrinterType;

namespace {

const std::array labelPrinters{
    LabelPrinter{QStringLiteral("Alder"), PrinterType::Alder},
    LabelPrinter{QStringLiteral("AlderMax"), PrinterType::AlderMax},
    LabelPrinter{QStringLiteral("BirchMax"), PrinterType::BirchMax},
    LabelPrinter{QStringLiteral("CedarMax"), PrinterType::CedarMax},
};
constexpr int printerCount = static_cast<int>(labelPrinters.size());

using Random = std::mt19937;

int pick(Random& random, int below)
{
    return std::uniform_int_distribution(0, below - 1)(random);
}

/// A thread on which drivers, users and the system change the printers at random, until the object
/// is destroyed.
///
/// It stays at most a fixed number of changes ahead of the host. Qt's event queue never shrinks,
/// and on a busy machine the host can stand still for a second, in which the queue would be filled
/// with a hundred thousand reports.
class RandomChanges
{
public:
    RandomChanges(virtualwindows::Machine& machine, unsigned seed)
        : m_machine(machine)
        , m_random(seed)
        , m_thread([this] {
            while (!m_isOver) {
                makeChange();
                if (++m_ahead == maxAhead)
                    m_ahead.wait(maxAhead);
            }
        })
    {}
    ~RandomChanges()
    {
        m_isOver = true;
        hostCaughtUp();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(RandomChanges)

    /// To be called when the host has handled all reports.
    void hostCaughtUp()
    {
        m_ahead = 0;
        m_ahead.notify_one();
    }

private:
    static constexpr int maxAhead = 200;

    void makeChange()
    {
        const LabelPrinter& printer =
            labelPrinters[static_cast<std::size_t>(pick(m_random, printerCount))];
        switch (pick(m_random, 13)) {
        case 0:
            m_machine.stopSpooler();
            break;
        case 1:
        case 2:
            m_machine.startSpooler();
            break;
        case 3:
            m_machine.setStatus(printer.name, PRINTER_STATUS_OFFLINE);
            m_machine.unpublish(printer.name, "StatusCode");
            break;
        case 4:
            m_machine.setStatus(printer.name, 0);
            break;
        case 5:
            m_machine.setDefaultPrinter(printer.name);
            break;
        case 6:
        case 7:
            m_machine.advance(spoolerPoll);
            break;
        case 8:
            // Uninstalled and installed again, which also discards its jobs.
            m_machine.removePrinter(printer.name);
            m_machine.addPrinter({.name = printer.name, .driver = printer.driver()});
            break;
        default:
            m_machine.publish(printer.name, moment(printer, pick(m_random, 1000)).values);
            break;
        }
        // Changes that are faster than the threads see them would add nothing to the test.
        m_machine.waitForWaitingThreads(1, 1ms);
    }

    virtualwindows::Machine& m_machine;
    Random m_random;
    std::atomic<bool> m_isOver = false;
    std::atomic<int> m_ahead = 0;
    std::thread m_thread;
};

} // namespace

class ControllerLifecycleTest : public EnduranceTest
{
    Q_OBJECT

private Q_SLOTS:
    void endsWhileThreadsAreStarting_data();
    void endsWhileThreadsAreStarting();
    void endsRightAfterConstruction();
    void endsWhileTheSpoolerIsStopped();
    void endsWithPrintersThatCouldNotBeOpened_data();
    void endsWithPrintersThatCouldNotBeOpened();
    void allThreadsAreStoppedBeforeOneIsWaitedFor();
    void queuedReportsAreDropped();
    void canBeDestroyedByItsParent();
    void canBeDestroyedByDeleteLater();
    void endWithdrawsTheEndpoints();
    void randomMoments();

protected Q_SLOTS:
    void init() override;

private:
    std::unique_ptr<PrinterStatusController> watch();
    /// Runs one controller from its construction to its destruction, which comes after a random
    /// number of value reads, or of steps. Returns what is wrong afterwards, or an empty text.
    QString runRound(Random& random, RandomChanges& changes);
};

void ControllerLifecycleTest::init()
{
    EnduranceTest::init();
    for (const LabelPrinter& printer : labelPrinters) {
        addPrinter(printer);
        publish(printer, moment(printer, 0));
    }
    machine().setDefaultPrinter(labelPrinters.back().name);
}

/// A controller whose threads have read their printers and wait.
std::unique_ptr<PrinterStatusController> ControllerLifecycleTest::watch()
{
    auto controller = std::make_unique<PrinterStatusController>();
    if (!settle(printerCount))
        return nullptr;
    return controller;
}

void ControllerLifecycleTest::endsWhileThreadsAreStarting_data()
{
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<int>("stopped");
    // None of the threads has its stop event yet.
    QTest::newRow("opening the printer") << QByteArray("OpenPrinterA") << 0;
    QTest::newRow("registering for notifications")
        << QByteArray("FindFirstPrinterChangeNotification") << 0;
    QTest::newRow("first read") << QByteArray("GetPrinterDataA") << 0;
    QTest::newRow("creating the stop event") << QByteArray("CreateEventW") << 0;
    // All of the threads have it.
    QTest::newRow("opening the service manager") << QByteArray("OpenSCManagerW") << printerCount;
    QTest::newRow("first wait") << QByteArray("WaitForMultipleObjects") << printerCount;
}

void ControllerLifecycleTest::endsWhileThreadsAreStarting()
{
    QFETCH(const QByteArray, function);
    QFETCH(const int, stopped);
    HeldCalls held(machine(), function.constData());
    auto controller = std::make_unique<PrinterStatusController>();
    QVERIFY(held.waitUntilHeld(printerCount));

    // The endpoints are deleted after the first attempt to stop all threads.
    int stoppedAtFirst = -1;
    connect(
        controller->getm4Controller(), &QObject::destroyed, this,
        [&] {
            stoppedAtFirst = machine().callCount(QStringLiteral("SetEvent"));
            held.release();
        },
        Qt::DirectConnection);
    controller.reset();
    QCOMPARE(stoppedAtFirst, stopped);
    QCOMPARE(machine().callCount(QStringLiteral("SetEvent")), printerCount);
    QCOMPARE(leftBehind(), QString());
}

void ControllerLifecycleTest::endsRightAfterConstruction()
{
    for (int round = 0; round < 20; ++round) {
        delete new PrinterStatusController;
        QCOMPARE(leftBehind(), QString());
    }
}

void ControllerLifecycleTest::endsWhileTheSpoolerIsStopped()
{
    auto controller = watch();
    QVERIFY(controller);
    machine().stopSpooler();
    QVERIFY(letThreadsPoll(printerCount));
    for (const LabelPrinter& printer : labelPrinters)
        QCOMPARE(recordOf(*controller, printer.name)->statusEnum,
                 VXPrinting::StatusCodes::spoolerDown);
    controller.reset();
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::endsWithPrintersThatCouldNotBeOpened_data()
{
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<bool>("afterARestart");
    for (const char* function : {"OpenPrinterA", "FindFirstPrinterChangeNotification"}) {
        QTest::addRow("%s at the start", function) << QByteArray(function) << false;
        QTest::addRow("%s after a restart", function) << QByteArray(function) << true;
    }
}

void ControllerLifecycleTest::endsWithPrintersThatCouldNotBeOpened()
{
    QFETCH(const QByteArray, function);
    QFETCH(const bool, afterARestart);
    const bool isNotification = function != "OpenPrinterA";
    const auto failThreads = [&] {
        machine().failCallsFrom(QString::fromLatin1(function), 1, ERROR_NOT_ENOUGH_MEMORY);
    };
    std::unique_ptr<PrinterStatusController> controller;
    if (afterARestart) {
        controller = watch();
        QVERIFY(controller);
        machine().stopSpooler();
        QVERIFY(letThreadsPoll(printerCount));
        failThreads();
        machine().startSpooler();
        QVERIFY(letThreadsPoll(printerCount));
    } else {
        if (isNotification) {
            failThreads();
        } else {
            // The host opens each printer too, to check whether it may administer it.
            const auto host = QThread::currentThreadId();
            machine().setCallHook([this, host](const Call& call) {
                if (call.function == QLatin1String("OpenPrinterA") && call.thread != host)
                    machine().removePrinter(call.arguments.first());
            });
        }
        controller = watch();
        machine().setCallHook(nullptr);
        QVERIFY(controller);
    }
    machine().clearFailures();

    // The threads do nothing but poll, and each polls once per interval.
    for (int poll = 0; poll < 3; ++poll) {
        const int queries = machine().callCount(QStringLiteral("QueryServiceStatus"));
        const int waits = machine().callCount(QStringLiteral("WaitForMultipleObjects"));
        QVERIFY(letThreadsPoll(printerCount));
        QCOMPARE(machine().callCount(QStringLiteral("QueryServiceStatus")), queries + printerCount);
        QCOMPARE(machine().callCount(QStringLiteral("WaitForMultipleObjects")),
                 waits + printerCount);
    }
    // A printer whose notification failed is closed once more at the end.
    for (int printer = 0; isNotification && printer < printerCount; ++printer)
        allowMisuse(Kind::ClosedTwice, QStringLiteral("ClosePrinter"));
    controller.reset();
    QCOMPARE(leftBehind(), QString());
}

void ControllerLifecycleTest::allThreadsAreStoppedBeforeOneIsWaitedFor()
{
    auto controller = watch();
    QVERIFY(controller);

    // Each thread is reading after a notification, in a call of the spooler that takes long.
    HeldCalls held(machine(), "GetPrinterDataA");
    for (const LabelPrinter& printer : labelPrinters)
        publish(printer, moment(printer, 1));
    QVERIFY(held.waitUntilHeld(printerCount));

    // The threads are released when all of them have been told to stop. A controller that waits for
    // the first before it stops the second would never get there.
    std::atomic<bool> isOver = false;
    bool wereAllStopped = false;
    std::thread spooler([&] {
        QDeadlineTimer limit(patience);
        while (machine().callCount(QStringLiteral("SetEvent")) < printerCount &&
               !limit.hasExpired())
            std::this_thread::yield();
        wereAllStopped = machine().callCount(QStringLiteral("SetEvent")) == printerCount && !isOver;
        held.release();
    });
    controller.reset();
    isOver = true;
    spooler.join();
    QVERIFY(wereAllStopped);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::queuedReportsAreDropped()
{
    auto controller = watch();
    QVERIFY(controller);
    int called = 0;
    const auto count = [&called] {
        ++called;
    };
    using Controller = PrinterStatusController;
    connect(controller.get(), &Controller::availablePrintersUpdated, this, count);
    connect(controller.get(), &Controller::printerErrorChangedSignal, this, count);
    connect(controller.get(), &Controller::statusChangedSignal, this, count);
    connect(controller.get(), &Controller::supplyIdChangedSignal, this, count);
    connect(controller.get(), &Controller::ribbonIdsChangedSignal, this, count);
    connect(controller.get(), &Controller::activeDefaultPrinterSetSignal, this, count);

    for (const LabelPrinter& printer : labelPrinters)
        publish(printer, moment(printer, 1));
    QVERIFY(machine().waitForWaitingThreads(printerCount));
    controller.reset();
    QCoreApplication::processEvents();
    QCOMPARE(called, 0);
}

void ControllerLifecycleTest::canBeDestroyedByItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<PrinterStatusController> controller = new PrinterStatusController(parent.get());
    QVERIFY(settle(printerCount));
    parent.reset();
    QVERIFY(!controller);
    QCOMPARE(leftBehind(), QString());
}

void ControllerLifecycleTest::canBeDestroyedByDeleteLater()
{
    const QPointer<PrinterStatusController> controller = watch().release();
    QVERIFY(controller);
    for (const LabelPrinter& printer : labelPrinters)
        publish(printer, moment(printer, 1));
    controller->deleteLater();
    QTRY_VERIFY_WITH_TIMEOUT(!controller, patience);
    QCOMPARE(leftBehind(), QString());
}

void ControllerLifecycleTest::endWithdrawsTheEndpoints()
{
    auto controller = watch();
    QVERIFY(controller);
    QCOMPARE(publishedEndpoints(),
             QStringList({QStringLiteral("vxipc-0"), QStringLiteral("vxipc-1")}));
    controller.reset();
    QCOMPARE(publishedEndpoints(), QStringList());
}

QString ControllerLifecycleTest::runRound(Random& random, RandomChanges& changes)
{
    const auto catchUp = [&changes] {
        QCoreApplication::processEvents();
        changes.hostCaughtUp();
    };
    const QString reads = QStringLiteral("GetPrinterDataA");
    const int end = machine().callCount(reads) + pick(random, 300);
    const int turns = pick(random, 30);

    auto parent = std::make_unique<QObject>();
    auto* const controller = new PrinterStatusController(pick(random, 2) ? parent.get() : nullptr);
    bool isDestroyed = false;
    const QObject scope; // the connection ends with this function
    connect(controller, &QObject::destroyed, &scope, [&isDestroyed] { isDestroyed = true; });
    for (int turn = 0; turn < turns && machine().callCount(reads) < end; ++turn) {
        switch (pick(random, 8)) {
        case 0:
            controller->checkForPrinters();
            break;
        case 1:
            controller->sendCommandToPrinter(
                QStringLiteral("~JC"),
                labelPrinters[static_cast<std::size_t>(pick(random, printerCount))].name);
            break;
        case 2:
            controller->getAvailablePrinters();
            break;
        case 3:
            controller->updateCachedStatus(pick(random, 2));
            break;
        default:
            catchUp();
            break;
        }
        std::this_thread::yield();
    }

    if (controller->parent()) {
        parent.reset();
    } else if (pick(random, 2)) {
        controller->deleteLater();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    } else {
        delete controller;
    }
    if (!isDestroyed)
        return QStringLiteral("the controller was not destroyed");
    if (const QString left = leftBehind(); !left.isEmpty())
        return left;
    if (!publishedEndpoints().isEmpty())
        return QStringLiteral("an endpoint is still published");
    catchUp();
    return {};
}

void ControllerLifecycleTest::randomMoments()
{
    const int rounds = fromEnvironment("VX_LIFECYCLE_ROUNDS", 300);
    const auto seed = static_cast<unsigned>(fromEnvironment(
        "VX_LIFECYCLE_SEED", static_cast<int>(QRandomGenerator::global()->bounded(1, 1000000))));
    qInfo("%d rounds, VX_LIFECYCLE_SEED=%u", rounds, seed);

    // Whatever is created once and kept for the process is there after some rounds.
    const int warmUp = std::max(30, rounds / 10);
    Random random(seed);
    LogRecorder log;
    Footprint before;
    int threads = std::numeric_limits<int>::max();
    qsizetype refusedNotifications = 0;
    // The capacity of lists, the virtual machine's included, makes the memory in use go up and down
    // by half a mebibyte. The minimum rises only if memory is lost.
    constexpr qint64 noMinimum = std::numeric_limits<qint64>::max();
    qint64 leastUsedAtFirst = noMinimum;
    qint64 leastUsedAtLast = noMinimum;
    {
        RandomChanges changes(machine(), seed + 1);
        for (int round = 0; round < warmUp + rounds; ++round) {
            if (round == warmUp)
                before = Footprint::now();
            const QString fault = runRound(random, changes);
            QVERIFY2(fault.isEmpty(),
                     qPrintable(QStringLiteral("round %1: %2").arg(round).arg(fault)));
            // A thread that has ended may still be in the system's table for a while, but not after
            // every round.
            if (round < warmUp)
                threads = std::min(threads, Footprint::now().threads - 1); // without the changes'
            const QList<LogRecord> records = log.records();
            refusedNotifications += std::ranges::count_if(records, [](const LogRecord& record) {
                return record.message.endsWith(QLatin1String(": Failed to create event objects"));
            });
            log.clear();
            if (round < warmUp)
                continue;
            qint64& least = round - warmUp < rounds / 2 ? leastUsedAtFirst : leastUsedAtLast;
            least = std::min(least, Footprint::usedBytesNow());
        }
    }
    before.usedBytes = leastUsedAtFirst;
    // If the spooler stops after a thread opened its printer and before it registered its
    // notification, the thread closes the printer twice.
    const QList<virtualwindows::HandleMisuse> misuses = machine().misuses();
    QVERIFY(misuses.size() <= refusedNotifications);
    for (qsizetype count = 0; count < misuses.size(); ++count)
        allowMisuse(Kind::ClosedTwice, QStringLiteral("ClosePrinter"));

    QTRY_COMPARE_WITH_TIMEOUT(Footprint::now().threads, threads, patience);
    Footprint after = Footprint::now();
    after.usedBytes = leastUsedAtLast;
    QCOMPARE(after.openFiles, before.openFiles);
    QCOMPARE(after.objects, before.objects);
    qInfo("%d rounds: %d threads, %d open files, %d objects, %s before; %d, %d, %d, %s after",
          rounds, threads, before.openFiles, before.objects, qPrintable(before.memory()),
          after.threads, after.openFiles, after.objects, qPrintable(after.memory()));
    QCOMPARE(memoryGrowth(before, after), QString());
}

QTEST_GUILESS_MAIN(ControllerLifecycleTest)
#include "tst_controller_lifecycle.moc"
