// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// A host that does everything wrong with readings: each mistake ends in one clear warning or in
// nothing at all, never in a crash.
#include "readings_test.h"

#include <QtCore/QEventLoop>
#include <QtCore/QMutex>
#include <QtCore/QScopedValueRollback>

namespace {

/// Records what is printed as warning or worse while it lives.
class WarningRecorder
{
public:
    WarningRecorder()
    {
        take();
        previous = qInstallMessageHandler(&WarningRecorder::record);
    }
    ~WarningRecorder() { qInstallMessageHandler(previous); }
    Q_DISABLE_COPY_MOVE(WarningRecorder)

    /// As "category: text".
    static QStringList take()
    {
        const QMutexLocker guard(&mutex);
        return std::exchange(warnings, {});
    }

private:
    static void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (type == QtDebugMsg || type == QtInfoMsg)
            return;
        const QMutexLocker guard(&mutex);
        warnings.append(QStringLiteral("%1: %2").arg(QLatin1String(context.category), text));
    }

    static inline QMutex mutex;
    static inline QStringList warnings;
    static inline QtMessageHandler previous = nullptr;
};

void runOnAnotherThread(const std::function<void()>& work)
{
    const std::unique_ptr<QThread> thread(QThread::create(work));
    thread->start();
    thread->wait();
}

} // namespace

class CarelessHostTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void hasNoController();
    void createsThemOnAnotherThread();
    void asksOnAnotherThread_data();
    void asksOnAnotherThread();
    void asksAfterTheControllerIsGone();
    void destroysTheControllerWithReportsUnderWay();
    void destroysThemInASlot_data();
    void destroysThemInASlot();
    void destroysThemInASlotOfTheController();
    void destroysTheControllerInASlot();
    void refreshesInEverySlot();
    void runsAnEventLoopInEverySlot();
    void makesManyAndLetsTheControllerDestroyThem();
    void asksForNothing();

protected Q_SLOTS:
    void init() override
    {
        ReadingsTest::init();
        m_warnings = std::make_unique<WarningRecorder>();
    }
    void cleanup() override
    {
        m_warnings.reset();
        ReadingsTest::cleanup();
    }

private:
    static inline const QString packing = QStringLiteral("Packing");
    static inline const QString shipping = QStringLiteral("Shipping");
    static inline const QString archive = QStringLiteral("Archive");
    static inline const QString warehouse = QStringLiteral("Warehouse");

    void addTwoPrinters()
    {
        for (const QString& name : {packing, shipping}) {
            machine().addPrinter(
                {.name = name,
                 .driver = QStringLiteral("Stratamark AlderMax"),
                 .port = name == packing ? QStringLiteral("USB001") : QStringLiteral("USB002")});
            publishText(name, "StatusCode", "1");
        }
    }
    /// Causes every signal: of a new printer, a report, an error, another active printer, a new
    /// name and a printer that is gone.
    void causeEverySignal()
    {
        machine().addPrinter({.name = archive,
                              .driver = QStringLiteral("Stratamark BirchMax"),
                              .port = QStringLiteral("USB003")});
        if (hasReadings())
            readings().refresh();
        publishText(packing, "StatusCode", "2");
        machine().setDefaultPrinter(shipping);
        publishText(shipping, "StatusCode", "19");
        settleWatched();
        machine().renamePrinter(shipping, warehouse);
        settleWatched();
        machine().removePrinter(packing);
        settleWatched();
    }
    /// Settles with as many threads as the controller has by then.
    void settleWatched()
    {
        for (int round = 0; round < 3; ++round) {
            int threads = 0;
            for (const QString& name : {packing, shipping, archive, warehouse})
                threads += controller().statusThread(name) ? 1 : 0;
            m_settled = m_settled && settleAll(threads);
        }
    }
    QStringList takeWarnings() { return WarningRecorder::take(); }

    bool m_settled = true;
    std::unique_ptr<WarningRecorder> m_warnings;
};

void CarelessHostTest::hasNoController()
{
    VxKit::PrinterReadings none(nullptr);
    QCOMPARE(takeWarnings(),
             QStringList{QStringLiteral("vx.kit: PrinterReadings was created without a controller "
                                        "and stays empty")});
    QCOMPARE(none.names(), QStringList());
    QVERIFY(none.reading(packing).isNull());
    QVERIFY(none.readings().isEmpty());
    QCOMPARE(none.activePrinter(), QString());
    QCOMPARE(none.printerToUse(), QString());
    QVERIFY(!none.isInError());
    QCOMPARE(none.printersInError(), 0);
    QCOMPARE(takeWarnings(), QStringList());
    none.refresh();
    QCOMPARE(takeWarnings().size(), 1);
}

void CarelessHostTest::createsThemOnAnotherThread()
{
    addTwoPrinters();
    QVERIFY(makeSettledController(2));
    takeWarnings();
    QStringList names;
    runOnAnotherThread([&] {
        VxKit::PrinterReadings readings(&controller());
        names = readings.names();
    });
    QCOMPARE(names, QStringList());
    QCOMPARE(takeWarnings(),
             QStringList{QStringLiteral(
                 "vx.kit: PrinterReadings was created on another thread than its controller and "
                 "stays empty; create it on the controller's thread")});
}

void CarelessHostTest::asksOnAnotherThread_data()
{
    using Readings = VxKit::PrinterReadings;
    QTest::addColumn<std::function<bool(Readings&)>>("asks");
    const auto add = [](const char* row, const std::function<bool(Readings&)>& asks) {
        QTest::newRow(row) << asks;
    };
    add("names()", [](Readings& readings) { return readings.names().isEmpty(); });
    add("reading()", [](Readings& readings) { return readings.reading(packing).isNull(); });
    add("readings()", [](Readings& readings) { return readings.readings().isEmpty(); });
    add("activePrinter()", [](Readings& readings) { return readings.activePrinter().isEmpty(); });
    add("printerToUse()", [](Readings& readings) { return readings.printerToUse().isEmpty(); });
    add("isInError()", [](Readings& readings) { return !readings.isInError(); });
    add("printersInError()", [](Readings& readings) { return readings.printersInError() == 0; });
    add("refresh()", [](Readings& readings) {
        readings.refresh();
        return true;
    });
}

void CarelessHostTest::asksOnAnotherThread()
{
    QFETCH(const std::function<bool(VxKit::PrinterReadings&)>, asks);
    addTwoPrinters();
    publishText(packing, "StatusCode", "2");
    makeReadings();
    QVERIFY(settleAll(2));
    takeWarnings();
    bool isNothing = false;
    runOnAnotherThread([&] { isNothing = asks(readings()); });
    QVERIFY(isNothing);
    QCOMPARE(takeWarnings(),
             QStringList{QStringLiteral("vx.kit: PrinterReadings::%1 was called on another thread "
                                        "than its own; call it on the controller's thread")
                             .arg(QLatin1String(QTest::currentDataTag()))});
    QCOMPARE(readings().names().size(), 2);
}

void CarelessHostTest::asksAfterTheControllerIsGone()
{
    addTwoPrinters();
    makeReadings();
    QVERIFY(settleAll(2));
    const QList<Reading> before = readings().readings();
    const QString active = readings().activePrinter();
    endControllerBeforeReadings();
    takeWarnings();
    takeLines();
    QCOMPARE(readings().readings(), before);
    QCOMPARE(readings().activePrinter(), active);
    QCOMPARE(readings().printerToUse(), active);
    QCOMPARE(takeWarnings(), QStringList());
    readings().refresh();
    QCOMPARE(takeWarnings(),
             QStringList{QStringLiteral("vx.kit: PrinterReadings::refresh() was called without a "
                                        "controller, or after it was destroyed; nothing is "
                                        "refreshed")});
    QCOMPARE(readings().readings(), before);
    QCOMPARE(takeLines(), QStringList());
}

void CarelessHostTest::destroysTheControllerWithReportsUnderWay()
{
    addTwoPrinters();
    makeReadings();
    QVERIFY(settleAll(2));
    takeLines();
    const Reading before = reading(packing);
    publishText(packing, "StatusCode", "2");
    publishNumber(packing, "Mileage", 2);
    machine().renamePrinter(shipping, warehouse);
    machine().removePrinter(packing);
    QVERIFY(machine().waitForWaitingThreads(2));
    endControllerBeforeReadings();
    for (int round = 0; round < 3; ++round)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    QCOMPARE(takeLines(), QStringList());
    QCOMPARE(reading(packing), before);
    QCOMPARE(takeWarnings(), QStringList());
}

void CarelessHostTest::destroysThemInASlot_data()
{
    QTest::addColumn<QString>("signal");
    for (const char* signal : {"added", "changed", "gone", "renamed", "activePrinterChanged",
                               "inErrorChanged", "printersInErrorChanged"})
        QTest::newRow(signal) << QString::fromLatin1(signal);
}

void CarelessHostTest::destroysThemInASlot()
{
    QFETCH(const QString, signal);
    addTwoPrinters();
    makeReadings();
    QVERIFY(settleAll(2));
    bool isDestroyed = false;
    lineHook = [&](const QString& line) {
        if (isDestroyed || !line.startsWith(signal + QLatin1Char('(')))
            return;
        isDestroyed = true;
        endReadings();
    };
    causeEverySignal();
    QVERIFY(m_settled);
    QVERIFY(isDestroyed);
    QCOMPARE(takeWarnings(), QStringList());
}

void CarelessHostTest::destroysThemInASlotOfTheController()
{
    addTwoPrinters();
    makeController();
    connect(&controller(), &PrinterStatusController::statusChangedSignal, this,
            [this] { endReadings(); });
    makeReadings();
    connect(&controller(), &PrinterStatusController::supplyIdChangedSignal, this,
            [this] { endReadings(); });
    QVERIFY(settleAll(2));
    publishText(packing, "StatusCode", "2");
    QVERIFY(settleAll(2));
    QVERIFY(!hasReadings());
    makeReadings();
    publishText(packing, "SupplyIdentifier", "000000641000030000A7");
    QVERIFY(settleAll(2));
    QVERIFY(!hasReadings());
    QCOMPARE(takeWarnings(), QStringList());
}

void CarelessHostTest::destroysTheControllerInASlot()
{
    addTwoPrinters();
    makeReadings();
    QVERIFY(settleAll(2));
    int lines = 0;
    lineHook = [&](const QString&) {
        if (lines++ == 0)
            endControllerBeforeReadings();
        readings().refresh();
    };
    publishText(packing, "StatusCode", "2");
    publishText(shipping, "StatusCode", "2");
    QVERIFY(machine().waitForWaitingThreads(2));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    QVERIFY(lines > 0);
    QCOMPARE(takeWarnings().size(), lines);
}

void CarelessHostTest::refreshesInEverySlot()
{
    addTwoPrinters();
    makeReadings();
    QVERIFY(settleAll(2));
    takeLines();
    lineHook = [this](const QString&) {
        readings().refresh();
        controller().checkForPrinters();
    };
    causeEverySignal();
    QVERIFY(m_settled);
    const QStringList lines = takeLines();
    QCOMPARE(lines.count(QStringLiteral("added(Archive)")), 1);
    QCOMPARE(lines.count(QStringLiteral("gone(Packing)")), 1);
    QCOMPARE(takeWarnings(), QStringList());
}

void CarelessHostTest::runsAnEventLoopInEverySlot()
{
    addTwoPrinters();
    makeReadings();
    QVERIFY(settleAll(2));
    takeLines();
    int depth = 0;
    lineHook = [&](const QString&) {
        if (depth > 3)
            return;
        const QScopedValueRollback deeper(depth, depth + 1);
        QEventLoop().processEvents(QEventLoop::ExcludeUserInputEvents);
    };
    causeEverySignal();
    QVERIFY(m_settled);
    const QStringList lines = takeLines();
    QCOMPARE(lines.count(QStringLiteral("added(Archive)")), 1);
    QCOMPARE(lines.count(QStringLiteral("gone(Packing)")), 1);
    QCOMPARE(reading(packing).presence(), Presence::Gone);
    QCOMPARE(takeWarnings(), QStringList());
}

void CarelessHostTest::makesManyAndLetsTheControllerDestroyThem()
{
    addTwoPrinters();
    makeController();
    for (int count = 0; count < 20; ++count)
        new VxKit::PrinterReadings(&controller(), &controller());
    QVERIFY(settleAll(2));
    publishText(packing, "StatusCode", "2");
    QVERIFY(settleAll(2));
    const auto all = controller().findChildren<VxKit::PrinterReadings*>();
    QCOMPARE(all.size(), 20);
    for (const VxKit::PrinterReadings* one : all)
        QCOMPARE(one->reading(packing).statusCode(), 2);
    publishText(packing, "StatusCode", "3");
    QVERIFY(machine().waitForWaitingThreads(2));
    endControllerBeforeReadings();
    QCOMPARE(takeWarnings(), QStringList());
}

void CarelessHostTest::asksForNothing()
{
    addTwoPrinters();
    makeReadings();
    QVERIFY(readings().reading(QString()).isNull());
    QVERIFY(readings().reading(QStringLiteral("packing")).isNull());
    QVERIFY(readings().reading(QString(100000, QLatin1Char('x'))).isNull());
    QCOMPARE(takeWarnings(), QStringList());
}

QTEST_GUILESS_MAIN(CarelessHostTest)
#include "tst_careless_host.moc"
