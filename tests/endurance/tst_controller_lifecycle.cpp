// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How a controller ends, whenever that comes: with its threads anywhere on their way, in order and
// at random, and with nothing left behind.
#include "endurance_test.h"
#include "log_recorder.h"
#include "vx_ipc_m4_controller.h"

#include <QtCore/QRandomGenerator>
#include <QtCore/QSemaphore>

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

/// What drivers, users and the system do to the printers, one thing after the other, until it is
/// over.
///
/// It goes ahead of the host by so many things only. Qt's queue of events keeps the room that it
/// once needed, and on a busy machine the host can stand still for a second in which the world
/// would fill the queue with a hundred thousand reports.
class World
{
public:
    World(virtualwindows::Machine& machine, unsigned seed)
        : m_machine(machine)
        , m_random(seed)
        , m_thread([this] {
            while (!m_isOver) {
                happen();
                if (++m_ahead == mostAhead)
                    m_ahead.wait(mostAhead);
            }
        })
    {}
    ~World()
    {
        m_isOver = true;
        goOn();
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(World)

    /// The host has handled all that it was told.
    void goOn()
    {
        m_ahead = 0;
        m_ahead.notify_one();
    }

private:
    static constexpr int mostAhead = 200;

    void happen()
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
            // Uninstalled and installed again, without the jobs that it had.
            m_machine.removePrinter(printer.name);
            m_machine.addPrinter({.name = printer.name, .driver = printer.driver()});
            break;
        default:
            m_machine.publish(printer.name, moment(printer, pick(m_random, 1000)).values);
            break;
        }
        // Nothing is to be gained from a world that is faster than those who look at it.
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
    void threadsThatCannotBeToldYet_data();
    void threadsThatCannotBeToldYet();
    void rightAfterConstruction();
    void spoolerIsDown();
    void printersThatCouldNotBeOpened_data();
    void printersThatCouldNotBeOpened();
    void allThreadsAreToldBeforeOneIsWaitedFor();
    void reportsUnderWayAreDropped();
    void destroyedByItsParent();
    void destroyedByDeleteLater();
    void endpointsAreWithdrawn();
    void randomMoments();

protected Q_SLOTS:
    void init() override;

private:
    std::unique_ptr<PrinterStatusController> watch();
    void runARound(Random& random, World& world);
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

void ControllerLifecycleTest::threadsThatCannotBeToldYet_data()
{
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<int>("told");
    // None of them has an event to be told by.
    QTest::newRow("opening the printer") << QByteArray("OpenPrinterA") << 0;
    QTest::newRow("asking for the notification")
        << QByteArray("FindFirstPrinterChangeNotification") << 0;
    QTest::newRow("first read") << QByteArray("GetPrinterDataA") << 0;
    QTest::newRow("making the event") << QByteArray("CreateEventW") << 0;
    // All of them have.
    QTest::newRow("asking for the spooler") << QByteArray("OpenSCManagerW") << printerCount;
    QTest::newRow("first wait") << QByteArray("WaitForMultipleObjects") << printerCount;
}

void ControllerLifecycleTest::threadsThatCannotBeToldYet()
{
    QFETCH(const QByteArray, function);
    QFETCH(const int, told);
    HeldCalls held(machine(), function.constData());
    auto controller = std::make_unique<PrinterStatusController>();
    QVERIFY(held.waitUntilHeld(printerCount));

    // The endpoints go when all threads have been told for the first time.
    int toldAtFirst = -1;
    connect(
        controller->getm4Controller(), &QObject::destroyed, this,
        [&] {
            toldAtFirst = machine().callCount(QStringLiteral("SetEvent"));
            held.letGo();
        },
        Qt::DirectConnection);
    controller.reset();
    QCOMPARE(toldAtFirst, told);
    QCOMPARE(machine().callCount(QStringLiteral("SetEvent")), printerCount);
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::rightAfterConstruction()
{
    for (int round = 0; round < 20; ++round) {
        delete new PrinterStatusController;
        QCOMPARE(machine().waitingThreads(), 0);
        QCOMPARE(machine().openHandles(), 0);
    }
}

void ControllerLifecycleTest::spoolerIsDown()
{
    auto controller = watch();
    QVERIFY(controller);
    machine().stopSpooler();
    QVERIFY(letThreadsPoll(printerCount));
    for (const LabelPrinter& printer : labelPrinters)
        QCOMPARE(recordOf(*controller, printer.name)->statusEnum, 254);
    controller.reset();
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::printersThatCouldNotBeOpened_data()
{
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<bool>("afterARestart");
    for (const char* function : {"OpenPrinterA", "FindFirstPrinterChangeNotification"}) {
        QTest::addRow("%s at the start", function) << QByteArray(function) << false;
        QTest::addRow("%s after a restart", function) << QByteArray(function) << true;
    }
}

void ControllerLifecycleTest::printersThatCouldNotBeOpened()
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
            // The host opens each printer too, to see whether it may administer it.
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

    // Nothing but the poll happens, and it happens once each time.
    for (int poll = 0; poll < 3; ++poll) {
        const int asked = machine().callCount(QStringLiteral("QueryServiceStatus"));
        const int waits = machine().callCount(QStringLiteral("WaitForMultipleObjects"));
        QVERIFY(letThreadsPoll(printerCount));
        QCOMPARE(machine().callCount(QStringLiteral("QueryServiceStatus")), asked + printerCount);
        QCOMPARE(machine().callCount(QStringLiteral("WaitForMultipleObjects")),
                 waits + printerCount);
    }
    // A printer whose notification failed is closed once more at the end.
    for (int printer = 0; isNotification && printer < printerCount; ++printer)
        allowMisuse(Kind::ClosedTwice, QStringLiteral("ClosePrinter"));
    controller.reset();
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::allThreadsAreToldBeforeOneIsWaitedFor()
{
    auto controller = watch();
    QVERIFY(controller);

    // Each is in the middle of reading a notification, in a call of the spooler that takes long.
    HeldCalls held(machine(), "GetPrinterDataA");
    for (const LabelPrinter& printer : labelPrinters)
        publish(printer, moment(printer, 1));
    QVERIFY(held.waitUntilHeld(printerCount));

    // They are let go when all are told. A controller that waits for the first before it tells the
    // second would never come to that.
    QSemaphore allTold;
    std::atomic<bool> isOver = false;
    bool wereAllTold = false;
    std::thread spooler([&] {
        QDeadlineTimer limit(patience);
        while (machine().callCount(QStringLiteral("SetEvent")) < printerCount &&
               !limit.hasExpired())
            std::this_thread::yield();
        wereAllTold = machine().callCount(QStringLiteral("SetEvent")) == printerCount && !isOver;
        held.letGo();
    });
    controller.reset();
    isOver = true;
    spooler.join();
    QVERIFY(wereAllTold);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::reportsUnderWayAreDropped()
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

void ControllerLifecycleTest::destroyedByItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<PrinterStatusController> controller = new PrinterStatusController(parent.get());
    QVERIFY(settle(printerCount));
    parent.reset();
    QVERIFY(!controller);
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::destroyedByDeleteLater()
{
    const QPointer<PrinterStatusController> controller = watch().release();
    QVERIFY(controller);
    for (const LabelPrinter& printer : labelPrinters)
        publish(printer, moment(printer, 1));
    controller->deleteLater();
    QTRY_VERIFY_WITH_TIMEOUT(!controller, patience);
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(machine().openHandles(), 0);
}

void ControllerLifecycleTest::endpointsAreWithdrawn()
{
    auto controller = watch();
    QVERIFY(controller);
    QCOMPARE(publishedEndpoints(),
             QStringList({QStringLiteral("vxipc-0"), QStringLiteral("vxipc-1")}));
    controller.reset();
    QCOMPARE(publishedEndpoints(), QStringList());
}

/// From one controller's making to its end, which comes after so many reads of values, or when
/// nothing is read.
void ControllerLifecycleTest::runARound(Random& random, World& world)
{
    const auto catchUp = [&world] {
        QCoreApplication::processEvents();
        world.goOn();
    };
    const QString reads = QStringLiteral("GetPrinterDataA");
    const int end = machine().callCount(reads) + pick(random, 300);
    const int turns = pick(random, 30);

    auto parent = std::make_unique<QObject>();
    const QPointer<PrinterStatusController> controller =
        new PrinterStatusController(pick(random, 2) ? parent.get() : nullptr);
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
    QVERIFY(!controller);
    QCOMPARE(machine().waitingThreads(), 0);
    QCOMPARE(machine().openHandles(), 0);
    QCOMPARE(publishedEndpoints(), QStringList());
    catchUp();
}

void ControllerLifecycleTest::randomMoments()
{
    const int rounds = fromEnvironment("VX_LIFECYCLE_ROUNDS", 300);
    const auto seed = static_cast<unsigned>(fromEnvironment(
        "VX_LIFECYCLE_SEED", static_cast<int>(QRandomGenerator::global()->bounded(1, 1000000))));
    qInfo("%d rounds, VX_LIFECYCLE_SEED=%u", rounds, seed);

    // What is made once and kept for the process is there after some rounds.
    const int warmUp = std::max(30, rounds / 10);
    Random random(seed);
    LogRecorder log;
    Footprint before;
    int threads = std::numeric_limits<int>::max();
    qsizetype refusedNotifications = 0;
    // What lists have room for comes and goes by half a mebibyte, with the machine that runs beside
    // the controllers too. What is lost is never low again.
    constexpr qint64 farMore = std::numeric_limits<qint64>::max();
    qint64 leastUsedAtFirst = farMore;
    qint64 leastUsedAtLast = farMore;
    {
        World world(machine(), seed + 1);
        for (int round = 0; round < warmUp + rounds; ++round) {
            if (round == warmUp)
                before = Footprint::now();
            runARound(random, world);
            // A thread that was waited for may still be on its way out of the system's table, but
            // not after every round.
            if (round < warmUp)
                threads = std::min(threads, Footprint::now().threads - 1); // without the world's
            if (QTest::currentTestFailed()) {
                qWarning("in round %d", round);
                return;
            }
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
    // A spooler that stops between the opening of a printer and the asking for its notification
    // leaves a printer that is closed twice.
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
    checkMemoryIsFlat(before, after);
}

QTEST_GUILESS_MAIN(ControllerLifecycleTest)
#include "tst_controller_lifecycle.moc"
