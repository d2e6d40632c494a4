// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Printers that come, go and change are found without being asked for.

#include "machine_test.h"
#include "patience.h"

#include "printer_discovery.h"
#include "printer_status_controller.h"

#include <QtCore/QEventLoop>
#include <QtCore/QThread>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>

#include <functional>
#include <memory>

#include <windows.h>
#include <winspool.h>

using namespace std::chrono_literals;
using virtualwindows::Machine;
using virtualwindows::PrinterValue;
using VxKit::PrinterDiscovery;

namespace {

const QString alder = QStringLiteral("Alder at the door");
const QString birch = QStringLiteral("BirchMax upstairs");
const QString alderDriver = QStringLiteral("Stratamark Alder");
const QString birchDriver = QStringLiteral("Stratamark BirchMax");

/// Every signal of a discovery, in order, as one text each.
class Heard
{
public:
    explicit Heard(PrinterDiscovery& discovery)
    {
        const auto with = [this](const char* signal) {
            return [this, signal](const QString& name) {
                add(QLatin1String(signal) + QLatin1Char(' ') + name);
            };
        };
        const auto withFlag = [this](const char* signal) {
            return [this, signal](const QString& name, bool flag) {
                add(QLatin1String(signal) + QLatin1Char(' ') + name +
                    (flag ? QStringLiteral(" yes") : QStringLiteral(" no")));
            };
        };
        using Discovery = PrinterDiscovery;
        QObject::connect(&discovery, &Discovery::printersChanged,
                         [this] { add(QStringLiteral("printersChanged")); });
        QObject::connect(&discovery, &Discovery::added, with("added"));
        QObject::connect(&discovery, &Discovery::gone, with("gone"));
        QObject::connect(&discovery, &Discovery::renamed,
                         [this](const QString& from, const QString& to) {
                             add(QStringLiteral("renamed %1 to %2").arg(from, to));
                         });
        QObject::connect(&discovery, &Discovery::onlineChanged, withFlag("online"));
        QObject::connect(&discovery, &Discovery::rightsChanged, withFlag("rights"));
        QObject::connect(&discovery, &Discovery::defaultPrinterChanged, with("default"));
        QObject::connect(&discovery, &Discovery::spoolerRunningChanged, [this](bool running) {
            add(running ? QStringLiteral("running") : QStringLiteral("stopped"));
        });
    }

    QStringList take() { return std::exchange(m_all, {}); }
    const QStringList& all() const { return m_all; }

private:
    void add(const QString& what) { m_all.append(what); }

    QStringList m_all;
};

using Change = std::function<void(Machine&)>;

/// Records the warnings that are printed, in place of the log.
class Warnings
{
public:
    Warnings()
    {
        texts().clear();
        m_before = qInstallMessageHandler(record);
    }
    ~Warnings() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY_MOVE(Warnings)

    static QStringList& texts()
    {
        static QStringList all;
        return all;
    }

private:
    static void record(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text)
    {
        if (type == QtWarningMsg)
            texts().append(text);
    }

    QtMessageHandler m_before = nullptr;
};

} // namespace

Q_DECLARE_METATYPE(Change)

class PrinterDiscoveryTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void reportsOnceAtTheStart();
    void reportsAtOnce_data();
    void reportsAtOnce();
    void removedAndAddedIsNotRenamed();
    void exchangedPrintersAreNotRenamed();
    void changesDuringTheRestAreReportedAfterIt();
    void stormIsListedOnce();
    void anotherDefaultPrinterIsNoticedWithinFiveSeconds();
    void rightsAreNoticedWithinFiveSeconds();
    void stoppedSpoolerKeepsThePrinters();
    void restartBetweenTwoLooksIsNoticed();
    void pollsWhereNothingIsNotified_data();
    void pollsWhereNothingIsNotified();
    void turnsToNotificationsWhenThereAreSome();
    void controllerWatchesANewPrinter();
    void controllerMayBeDestroyedFirst();
    void mayBeDestroyedInASlot_data();
    void mayBeDestroyedInASlot();
    void createdOnAnotherThreadItDoesNothing();
    void answersOnlyOnItsThread();
    void isDestroyedWhileTheSpoolerIsStopped();

private:
    void addPrinter(const QString& name, const QString& driver)
    {
        machine().addPrinter({.name = name, .driver = driver});
    }
    /// Waits until the thread has told everything and waits for changes. No time is left to rest.
    bool letRest()
    {
        for (int round = 0; round < 2; ++round) {
            if (!machine().waitForWaitingThreads(1))
                return false;
            machine().advance(30s);
        }
        const bool isWaiting = machine().waitForWaitingThreads(1);
        QCoreApplication::processEvents();
        return isWaiting;
    }
    /// Lets five seconds pass.
    bool letTick()
    {
        machine().advance(5s);
        const bool isWaiting = machine().waitForWaitingThreads(1);
        QCoreApplication::processEvents();
        return isWaiting;
    }
};

void PrinterDiscoveryTest::reportsOnceAtTheStart()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    addPrinter(QStringLiteral("Foreign"), QStringLiteral("Somebody's Driver"));
    machine().setDefaultPrinter(alder);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(discovery.printers().isEmpty());
    QTRY_COMPARE(heard.all(), QStringList{QStringLiteral("printersChanged")});
    QCOMPARE(discovery.printers(), (QStringList{alder, QStringLiteral("Foreign")}));
    QCOMPARE(discovery.defaultPrinter(), alder);
    QVERIFY(discovery.isSpoolerRunning());
    QVERIFY(discovery.isNotified());
    QVERIFY(letRest());
    QVERIFY(letTick());
    QCOMPARE(heard.all().size(), 1);
}

void PrinterDiscoveryTest::reportsAtOnce_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* what, const Change& change, const QString& expected) {
        QStringList all{QStringLiteral("printersChanged")};
        if (!expected.isEmpty())
            all.append(expected);
        QTest::newRow(what) << change << all;
    };
    row(
        "added",
        [](Machine& machine) {
            machine.addPrinter({.name = QStringLiteral("New"), .driver = alderDriver});
        },
        QStringLiteral("added New"));
    row(
        "removed", [](Machine& machine) { machine.removePrinter(alder); },
        QStringLiteral("gone ") + alder);
    row(
        "renamed", [](Machine& machine) { machine.renamePrinter(alder, QStringLiteral("Other")); },
        QStringLiteral("renamed %1 to Other").arg(alder));
    row(
        "taken off line by the user",
        [](Machine& machine) {
            machine.setAttributes(alder, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE);
        },
        QStringLiteral("online %1 no").arg(alder));
    row(
        "taken off line by the port",
        [](Machine& machine) { machine.setStatus(alder, PRINTER_STATUS_OFFLINE); },
        QStringLiteral("online %1 no").arg(alder));
    row(
        "on line again", [](Machine& machine) { machine.setStatus(birch, 0); },
        QStringLiteral("online %1 yes").arg(birch));
    row("another port", [](Machine& machine) { machine.setPort(alder, QStringLiteral("USB007")); },
        {});
    row("another driver",
        [](Machine& machine) { machine.setDriver(alder, QStringLiteral("Stratamark AlderMax")); },
        {});
}

void PrinterDiscoveryTest::reportsAtOnce()
{
    QFETCH(Change, change);
    QFETCH(QStringList, expected);
    machine().driveTime();
    addPrinter(alder, alderDriver);
    addPrinter(birch, birchDriver);
    machine().setStatus(birch, PRINTER_STATUS_OFFLINE);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(letRest());
    heard.take();
    change(machine()); // and no time passes
    QTRY_COMPARE(heard.all(), expected);
    QCOMPARE(discovery.printers(), machine().printers());
}

void PrinterDiscoveryTest::removedAndAddedIsNotRenamed()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(machine().waitForWaitingThreads(1));
    // The thread rests, so it sees both at the same time.
    machine().removePrinter(alder);
    addPrinter(QStringLiteral("Other"), alderDriver);
    machine().publish(QStringLiteral("Other"), PrinterValue::text("StatusCode", "1"));
    QVERIFY(letRest());
    QCOMPARE(heard.all(),
             (QStringList{QStringLiteral("printersChanged"), QStringLiteral("printersChanged"),
                          QStringLiteral("gone ") + alder, QStringLiteral("added Other")}));
}

void PrinterDiscoveryTest::exchangedPrintersAreNotRenamed()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    addPrinter(birch, alderDriver);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(letRest());
    QVERIFY(machine().waitForWaitingThreads(1));
    heard.take();
    // Two printers with the same driver and port: which name became which cannot be told.
    machine().addPrinter({.name = QStringLiteral("Spark"), .driver = birchDriver});
    QTRY_VERIFY(heard.all().contains(QStringLiteral("added Spark")));
    heard.take();
    // The thread rests now.
    machine().renamePrinter(alder, QStringLiteral("First"));
    machine().renamePrinter(birch, QStringLiteral("Second"));
    QVERIFY(letRest());
    QStringList all = heard.take();
    all.removeAll(QStringLiteral("printersChanged"));
    QCOMPARE(all, (QStringList{QStringLiteral("gone ") + alder, QStringLiteral("gone ") + birch,
                               QStringLiteral("added First"), QStringLiteral("added Second")}));
}

void PrinterDiscoveryTest::changesDuringTheRestAreReportedAfterIt()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QTRY_COMPARE(heard.all().size(), 1);
    QVERIFY(machine().waitForWaitingThreads(1));
    addPrinter(birch, birchDriver);
    const int listings = machine().callCount(QStringLiteral("EnumPrintersW"));
    machine().advance(999ms);
    QCOMPARE(machine().callCount(QStringLiteral("EnumPrintersW")), listings);
    machine().advance(30s);
    QTRY_COMPARE(heard.all().last(), QStringLiteral("added ") + birch);
}

void PrinterDiscoveryTest::stormIsListedOnce()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    PrinterDiscovery discovery(nullptr);
    QVERIFY(letRest());
    const auto listings = [this] {
        return machine().callCount(QStringLiteral("EnumPrintersW"));
    };
    const int before = listings();
    for (int value = 0; value < 1000; ++value)
        machine().publish(alder, PrinterValue::number("Mileage", static_cast<quint32>(value)));
    QVERIFY(machine().waitForWaitingThreads(1));
    const int first = listings() - before;
    QVERIFY2(first <= 1, qPrintable(QString::number(first)));
    // The values that came during the listing and the rest are one more.
    machine().advance(30s);
    QVERIFY(machine().waitForWaitingThreads(1));
    QVERIFY2(listings() - before <= 2, qPrintable(QString::number(listings() - before)));
}

void PrinterDiscoveryTest::anotherDefaultPrinterIsNoticedWithinFiveSeconds()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    addPrinter(birch, birchDriver);
    machine().setDefaultPrinter(alder);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(letRest());
    heard.take();
    machine().setDefaultPrinter(birch);
    QVERIFY(letTick());
    QTRY_COMPARE(heard.all(), QStringList{QStringLiteral("default ") + birch});
    heard.take();
    QCOMPARE(discovery.defaultPrinter(), birch);
    // A choice that cannot be queried is not a choice of none.
    machine().failCall(QStringLiteral("GetDefaultPrinterW"), 1, ERROR_NOT_ENOUGH_MEMORY);
    QVERIFY(letTick());
    QCOMPARE(heard.take(), QStringList());
    machine().setDefaultPrinter(QString());
    QVERIFY(letTick());
    QTRY_COMPARE(heard.all(), QStringList{QStringLiteral("default ")});
    heard.take();
}

void PrinterDiscoveryTest::rightsAreNoticedWithinFiveSeconds()
{
    machine().driveTime();
    for (int number = 0; number < 8; ++number)
        addPrinter(QStringLiteral("Alder %1").arg(number), alderDriver);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(letRest());
    heard.take();
    machine().setAdministrable(QStringLiteral("Alder 7"), false);
    QVERIFY(letTick());
    QTRY_COMPARE(heard.all(), (QStringList{QStringLiteral("printersChanged"),
                                           QStringLiteral("rights Alder 7 no")}));
    heard.take();
    QVERIFY(letRest());
    heard.take();
    // A printer that cannot be opened for another reason has not lost its administrator.
    machine().failCallsFrom(QStringLiteral("OpenPrinterW"), 1, ERROR_NOT_ENOUGH_MEMORY);
    QVERIFY(letTick());
    machine().clearFailures();
    QCOMPARE(heard.take(), QStringList());
    machine().setAdministrable(QStringLiteral("Alder 7"), true);
    QVERIFY(letTick());
    QVERIFY(letTick());
    QTRY_COMPARE(heard.all(), (QStringList{QStringLiteral("printersChanged"),
                                           QStringLiteral("rights Alder 7 yes")}));
}

void PrinterDiscoveryTest::stoppedSpoolerKeepsThePrinters()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(letRest());
    heard.take();
    machine().stopSpooler();
    QVERIFY(letTick());
    QTRY_COMPARE(heard.all(), QStringList{QStringLiteral("stopped")});
    heard.take();
    QVERIFY(!discovery.isSpoolerRunning());
    QVERIFY(!discovery.isNotified());
    QCOMPARE(discovery.printers(), QStringList{alder});

    addPrinter(birch, birchDriver);
    QVERIFY(letRest());
    QCOMPARE(heard.take(), QStringList());
    machine().startSpooler();
    QVERIFY(letRest());
    QTRY_COMPARE(heard.all(),
                 (QStringList{QStringLiteral("printersChanged"), QStringLiteral("added ") + birch,
                              QStringLiteral("running")}));
    heard.take();
    QVERIFY(discovery.isSpoolerRunning());
    // And from now on the changes are notified again.
    QVERIFY(letRest());
    QVERIFY(letRest());
    machine().removePrinter(alder);
    QTRY_COMPARE(heard.all().mid(1), QStringList{QStringLiteral("gone ") + alder});
    heard.take();
    QVERIFY(discovery.isNotified());
}

void PrinterDiscoveryTest::restartBetweenTwoLooksIsNoticed()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QVERIFY(letRest());
    heard.take();
    machine().stopSpooler();
    addPrinter(birch, birchDriver);
    machine().startSpooler();
    QVERIFY(letTick());
    QTRY_COMPARE(heard.all().mid(1), QStringList{QStringLiteral("added ") + birch});
    heard.take();
    QVERIFY(letRest());
    machine().removePrinter(alder);
    QTRY_COMPARE(heard.all().mid(1), QStringList{QStringLiteral("gone ") + alder});
    heard.take();
}

void PrinterDiscoveryTest::pollsWhereNothingIsNotified_data()
{
    QTest::addColumn<QString>("missing");
    for (const char* function :
         {"FindFirstPrinterChangeNotification", "CreateEventW", "WaitForMultipleObjects"})
        QTest::newRow(function) << QString::fromLatin1(function);
}

void PrinterDiscoveryTest::pollsWhereNothingIsNotified()
{
    QFETCH(QString, missing);
    // Without an event, the thread cannot wait in the machine's time.
    machine().driveTime(missing != QLatin1String("CreateEventW"));
    addPrinter(alder, alderDriver);
    addPrinter(birch, birchDriver);
    machine().failCallsFrom(missing, 1, ERROR_NOT_ENOUGH_MEMORY);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    const auto passes = [this] {
        machine().advance(5s);
    };
    QTRY_COMPARE(heard.all(), QStringList{QStringLiteral("printersChanged")});
    heard.take();

    machine().renamePrinter(alder, QStringLiteral("Other"));
    QTRY_COMPARE((passes(), heard.all()),
                 (QStringList{QStringLiteral("printersChanged"), QStringLiteral("gone ") + alder,
                              QStringLiteral("added Other")}));
    QCOMPARE(discovery.isNotified(), false);
    heard.take();
    machine().setStatus(birch, PRINTER_STATUS_OFFLINE);
    QTRY_COMPARE((passes(), heard.all()), (QStringList{QStringLiteral("printersChanged"),
                                                       QStringLiteral("online %1 no").arg(birch)}));
}

void PrinterDiscoveryTest::turnsToNotificationsWhenThereAreSome()
{
    machine().driveTime();
    addPrinter(alder, alderDriver);
    machine().failCallsFrom(QStringLiteral("FindFirstPrinterChangeNotification"), 1,
                            ERROR_NOT_ENOUGH_MEMORY);
    PrinterDiscovery discovery(nullptr);
    Heard heard(discovery);
    QTRY_COMPARE(heard.all().size(), 1);
    QVERIFY(!discovery.isNotified());
    machine().clearFailures();
    // At the latest after a minute.
    for (int second = 0; second < 60; second += 5)
        QVERIFY(letTick());
    QVERIFY(letRest());
    heard.take();
    machine().removePrinter(alder); // and no time passes
    QTRY_COMPARE(heard.all().mid(1), QStringList{QStringLiteral("gone ") + alder});
    heard.take();
    QVERIFY(discovery.isNotified());
}

void PrinterDiscoveryTest::controllerWatchesANewPrinter()
{
    PrinterStatusController controller;
    const PrinterDiscovery discovery(&controller);
    QSignalSpy changes(&discovery, &PrinterDiscovery::printersChanged);
    QTRY_VERIFY(!changes.isEmpty());
    addPrinter(alder, alderDriver);
    QTRY_COMPARE(controller.getAvailablePrinters().size(), 1);

    // A printer that is off line when it is found is looked at again when it is on line.
    machine().addPrinter({.name = birch, .driver = birchDriver, .status = PRINTER_STATUS_OFFLINE});
    QSignalSpy online(&discovery, &PrinterDiscovery::onlineChanged);
    QSignalSpy added(&discovery, &PrinterDiscovery::added);
    QTRY_VERIFY(!added.isEmpty());
    QCOMPARE(controller.getAvailablePrinters().size(), 1);
    machine().setStatus(birch, 0);
    QTRY_VERIFY(!online.isEmpty());
    QCOMPARE(controller.getAvailablePrinters().size(), 2);
}

void PrinterDiscoveryTest::controllerMayBeDestroyedFirst()
{
    auto controller = std::make_unique<PrinterStatusController>();
    PrinterDiscovery discovery(controller.get());
    Heard heard(discovery);
    QTRY_COMPARE(heard.all().size(), 1);
    controller.reset();
    addPrinter(alder, alderDriver);
    QTRY_VERIFY(heard.all().contains(QStringLiteral("added ") + alder));
}

void PrinterDiscoveryTest::mayBeDestroyedInASlot_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("printersChanged") << QByteArray(SIGNAL(printersChanged()));
    QTest::newRow("gone") << QByteArray(SIGNAL(gone(QString)));
    QTest::newRow("added") << QByteArray(SIGNAL(added(QString)));
    QTest::newRow("onlineChanged") << QByteArray(SIGNAL(onlineChanged(QString, bool)));
    QTest::newRow("rightsChanged") << QByteArray(SIGNAL(rightsChanged(QString, bool)));
    QTest::newRow("defaultPrinterChanged") << QByteArray(SIGNAL(defaultPrinterChanged(QString)));
}

namespace {

class Destroyer : public QObject
{
    Q_OBJECT

public:
    std::unique_ptr<PrinterDiscovery> discovery;

public Q_SLOTS:
    void destroy() { discovery.reset(); }
};

} // namespace

void PrinterDiscoveryTest::mayBeDestroyedInASlot()
{
    QFETCH(QByteArray, signal);
    machine().driveTime();
    addPrinter(alder, alderDriver);
    addPrinter(birch, birchDriver);
    machine().setDefaultPrinter(alder);
    Destroyer destroyer;
    destroyer.discovery = std::make_unique<PrinterDiscovery>(nullptr);
    QVERIFY(letRest());
    QObject::connect(destroyer.discovery.get(), signal.constData(), &destroyer, SLOT(destroy()));
    // All of this is one report.
    QVERIFY(machine().waitForWaitingThreads(1));
    machine().setCallHook([this](const virtualwindows::Call& call) {
        if (call.function != QLatin1String("FindNextPrinterChangeNotification"))
            return;
        machine().setCallHook(nullptr);
        machine().removePrinter(alder);
        machine().setStatus(birch, PRINTER_STATUS_OFFLINE);
        machine().setAdministrable(birch, false);
        machine().setDefaultPrinter(birch);
        machine().addPrinter({.name = QStringLiteral("New"), .driver = alderDriver});
    });
    machine().advance(5s);
    QTRY_VERIFY(!destroyer.discovery);
    QCoreApplication::processEvents();
}

void PrinterDiscoveryTest::createdOnAnotherThreadItDoesNothing()
{
    PrinterStatusController controller;
    const int before = machine().callCount(QStringLiteral("FindFirstPrinterChangeNotification"));
    const Warnings warnings;
    const std::unique_ptr<QThread> thread(
        QThread::create([&controller] { const PrinterDiscovery discovery(&controller); }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(machine().callCount(QStringLiteral("FindFirstPrinterChangeNotification")), before);
    QCOMPARE(Warnings::texts(), QStringList{QStringLiteral(
                                    "VxKit::PrinterDiscovery was created on another thread than "
                                    "the controller's, so it discovers nothing")});
}

void PrinterDiscoveryTest::answersOnlyOnItsThread()
{
    addPrinter(alder, alderDriver);
    const PrinterDiscovery discovery(nullptr);
    QTRY_VERIFY(!discovery.printers().isEmpty());
    const Warnings warnings;
    QStringList answer{QStringLiteral("?")};
    const std::unique_ptr<QThread> thread(QThread::create([&] { answer = discovery.printers(); }));
    thread->start();
    QVERIFY(thread->wait());
    QCOMPARE(answer, QStringList());
    QCOMPARE(Warnings::texts(),
             QStringList{QStringLiteral("VxKit::PrinterDiscovery::printers was called on another "
                                        "thread than the object's")});
}

void PrinterDiscoveryTest::isDestroyedWhileTheSpoolerIsStopped()
{
    machine().driveTime();
    machine().stopSpooler();
    auto discovery = std::make_unique<PrinterDiscovery>(nullptr);
    Heard heard(*discovery);
    QTRY_COMPARE(heard.all(), QStringList{QStringLiteral("stopped")});
    discovery.reset(); // while no time passes
    QCOMPARE(machine().waitingThreads(), 0);
}

QTEST_GUILESS_MAIN(PrinterDiscoveryTest)
#include "tst_printer_discovery.moc"
