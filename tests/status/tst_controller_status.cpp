// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How the controller interprets the statuses that printers report, and the error state.
#include "controller_test.h"

#include <vxerror.h>

#include <QtCore/QSettings>

namespace {
const QString ash = QStringLiteral("Ash");
const QString beech = QStringLiteral("Beech");
const QString updated = QStringLiteral("availablePrintersUpdated()");
const QString errorRaised = QStringLiteral("printerErrorChangedSignal(true)");
const QString errorCleared = QStringLiteral("printerErrorChangedSignal(false)");
QString status(int code, const QString& name = ash)
{
    return QStringLiteral("statusChangedSignal(%1, %2)").arg(code).arg(name);
}
const log_lines::LogLine wentOffline{
    "printer_status_controller", 486,
    "void PrinterStatusController::onPrinterStatusChanged(QString, QString)", nullptr};
} // namespace

class ControllerStatusTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void statusOfAnOnlinePrinter_data();
    void statusOfAnOnlinePrinter();
    void statusOfAnOfflinePrinter_data();
    void statusOfAnOfflinePrinter();
    void offlineStateIsQueriedOnlyWhereItMatters_data();
    void offlineStateIsQueriedOnlyWhereItMatters();
    void secondErrorIsNotSignalled();
    void readyClearsTheErrorState();
    void readyWithoutErrorSignalsNoError();
    void offlineClearsTheErrorState_data();
    void offlineClearsTheErrorState();
    void anotherPrinterMaintainsTheErrorState_data();
    void anotherPrinterMaintainsTheErrorState();
    void networkAndOfflinePrintersDoNotMaintainTheErrorState();
    void offlinePrinterIsOnlineAgainAtItsNextReport();
    void offlinePrinterWithARecordIsNotEvaluatedAgain();
    void reportOfANetworkPrinterIsIgnored();
    void reportOfAnUnmanagedPrinterIsHandled();
    void reportOfAnUnknownPrinterCreatesARecord();
    void unknownPrinterThatReportsUnreadablyIsOffline();
    void hostCanRaiseTheErrorState();
    void hostCanHaveTheErrorStateChecked();
    void stoppedSpoolerIsReportedUntilItRunsAgain();
    void reportsAreNotPassedToEndpoints();
    void titles_data();
    void titles();
    void typeOfAPrinter();
    void typeIsReadFromANewEnumeration();
    void unreadableReportOfAnOfflinePrinterSignalsOffline();
    void slotMayAddRecordsDuringAReport();
};

void ControllerStatusTest::init()
{
    ControllerTest::init();
    addPrinter(ash);
    machine().setDefaultPrinter(ash);
    makeController();
    QVERIFY(machine().waitForWaitingThreads(1));
    takeLog();
}

void ControllerStatusTest::statusOfAnOnlinePrinter_data()
{
    QTest::addColumn<QString>("reported");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isError");

    const auto row = [](const char* reported, int code, bool isError) {
        QTest::newRow(reported) << QString::fromLatin1(reported) << code << isError;
    };
    row("1", 1, false);
    row("0", 0, true);
    row("255", 255, true);
    row("2", 2, true);
    row("42", 42, true);
    row("254", 254, true);
    row("256", 256, true);
    row("257", 257, true);
    row("258", 258, true);
    row("-1", -1, true);
    row("-2147483648", INT_MIN, true);
    row("2147483647", INT_MAX, true);
    row("2147483648", 255, true); // out of range
    row("-2147483649", 255, true);
    row("", 255, true);
    row("abc", 255, true);
    row("1x", 255, true);
    row("1.0", 255, true);
    row("0x1", 255, true);
    row(" 1 ", 1, false); // as QString::toInt reads it
    row("+1", 1, false);
    row("001", 1, false);
}

void ControllerStatusTest::statusOfAnOnlinePrinter()
{
    QFETCH(const QString, reported);
    QFETCH(const int, code);
    QFETCH(const bool, isError);

    report("onPrinterStatusChanged", ash, reported);
    QCOMPARE(record(ash).statusEnum, code);
    QVERIFY(record(ash).printerOnline);
    QStringList expected{status(code), updated};
    if (isError)
        expected.prepend(errorRaised);
    QCOMPARE(takeSignals(), expected);
    QVERIFY(takeLog().isEmpty());
}

void ControllerStatusTest::statusOfAnOfflinePrinter_data()
{
    QTest::addColumn<QString>("reported");
    QTest::addColumn<int>("code");
    QTest::addColumn<QStringList>("expected");

    const QString chosenAgain = QStringLiteral("activeDefaultPrinterSetSignal(Ash, true)");
    const QStringList listFirst{updated, status(257), chosenAgain};
    const QStringList statusFirst{chosenAgain, status(257), updated};
    QTest::newRow("empty") << "" << 257 << listFirst;
    QTest::newRow("abc") << "abc" << 257 << listFirst;
    QTest::newRow("out of range") << "2147483648" << 257 << listFirst;
    QTest::newRow("0") << "0" << 257 << statusFirst;
    QTest::newRow("255") << "255" << 257 << statusFirst;
    // Any other number counts, although the spooler says that the printer is offline.
    QTest::newRow("1") << "1" << 1 << QStringList{status(1), updated};
    QTest::newRow("42") << "42" << 42 << QStringList{errorRaised, status(42), updated};
    QTest::newRow("-1") << "-1" << -1 << QStringList{errorRaised, status(-1), updated};
    QTest::newRow("254") << "254" << 254 << QStringList{errorRaised, status(254), updated};
}

void ControllerStatusTest::statusOfAnOfflinePrinter()
{
    QFETCH(const QString, reported);
    QFETCH(const int, code);
    QFETCH(const QStringList, expected);

    setOffline(ash);
    report("onPrinterStatusChanged", ash, reported);
    QCOMPARE(record(ash).statusEnum, code);
    QCOMPARE(record(ash).printerOnline, code != 257);
    QCOMPARE(takeSignals(), expected);
    const QList<LogRecord> log = takeLog();
    if (code == 257)
        QCOMPARE(log.first(), line(wentOffline, QStringLiteral("Ash went offline")));
    else
        QVERIFY(log.isEmpty());
}

void ControllerStatusTest::offlineStateIsQueriedOnlyWhereItMatters_data()
{
    QTest::addColumn<QString>("reported");
    QTest::addColumn<int>("questions");
    QTest::newRow("ready") << "1" << 0;
    QTest::newRow("driver's code") << "42" << 0;
    QTest::newRow("0") << "0" << 1;
    QTest::newRow("255") << "255" << 1;
    QTest::newRow("unreadable") << "abc" << 2; // once as unreadable, once as 255
}

void ControllerStatusTest::offlineStateIsQueriedOnlyWhereItMatters()
{
    QFETCH(const QString, reported);
    QFETCH(const int, questions);
    const int before = callsOf("OpenPrinterA");
    report("onPrinterStatusChanged", ash, reported);
    QCOMPARE(callsOf("OpenPrinterA") - before, questions);
}

void ControllerStatusTest::secondErrorIsNotSignalled()
{
    reportStatus(ash, "42");
    QCOMPARE(takeSignals(), QStringList({errorRaised, status(42), updated}));
    reportStatus(ash, "42");
    QCOMPARE(takeSignals(), QStringList({status(42), updated}));
    reportStatus(ash, "0");
    QCOMPARE(takeSignals(), QStringList({status(0), updated}));
}

void ControllerStatusTest::readyClearsTheErrorState()
{
    reportStatus(ash, "42");
    takeSignals();
    reportStatus(ash, "1");
    QCOMPARE(takeSignals(), QStringList({errorCleared, status(1), updated}));
}

void ControllerStatusTest::readyWithoutErrorSignalsNoError()
{
    reportStatus(ash, "1");
    reportStatus(ash, "1");
    QCOMPARE(takeSignals(), QStringList({status(1), updated, status(1), updated}));
}

void ControllerStatusTest::offlineClearsTheErrorState_data()
{
    QTest::addColumn<QString>("reported");
    QTest::addColumn<bool>("listFirst");
    QTest::newRow("unreadable") << "" << true;
    QTest::newRow("0") << "0" << false;
    QTest::newRow("255") << "255" << false;
}

void ControllerStatusTest::offlineClearsTheErrorState()
{
    QFETCH(const QString, reported);
    QFETCH(const bool, listFirst);

    reportStatus(ash, "42");
    takeSignals();
    setOffline(ash);
    report("onPrinterStatusChanged", ash, reported);
    const QString chosenAgain = QStringLiteral("activeDefaultPrinterSetSignal(Ash, true)");
    const QStringList expected = listFirst
                                     ? QStringList{errorCleared, updated, status(257), chosenAgain}
                                     : QStringList{errorCleared, chosenAgain, status(257), updated};
    QCOMPARE(takeSignals(), expected);
}

void ControllerStatusTest::anotherPrinterMaintainsTheErrorState_data()
{
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("holds");
    QTest::newRow("not heard from yet") << QString() << true;
    QTest::newRow("unreadable") << "abc" << true;
    QTest::newRow("driver's code") << "2" << true;
    QTest::newRow("spooler down") << "254" << true;
    QTest::newRow("ready") << "1" << false;
    // These raise the error state but do not maintain it.
    QTest::newRow("0") << "0" << false;
    QTest::newRow("negative") << "-7" << false;
}

void ControllerStatusTest::anotherPrinterMaintainsTheErrorState()
{
    QFETCH(const QString, other);
    QFETCH(const bool, holds);

    addPrinter(beech);
    controller().checkForPrinters();
    if (!other.isNull())
        report("onPrinterStatusChanged", beech, other);
    reportStatus(ash, "42");
    takeSignals();

    reportStatus(ash, "1");
    QStringList expected{status(1), updated};
    if (!holds)
        expected.prepend(errorCleared);
    QCOMPARE(takeSignals(), expected);
}

void ControllerStatusTest::networkAndOfflinePrintersDoNotMaintainTheErrorState()
{
    addNetworkPrinter(QStringLiteral("Net"));
    addPrinter(beech);
    controller().checkForPrinters();
    setOffline(beech);
    reportStatus(beech, "");
    reportStatus(ash, "42");
    takeSignals();
    reportStatus(ash, "1");
    QCOMPARE(takeSignals(), QStringList({errorCleared, status(1), updated}));

    // A printer that is not managed maintains it forever.
    addUnmanagedPrinter(QStringLiteral("Store"));
    controller().checkForPrinters();
    reportStatus(ash, "42");
    takeSignals();
    reportStatus(ash, "1");
    QCOMPARE(takeSignals(), QStringList({status(1), updated}));
}

void ControllerStatusTest::offlinePrinterIsOnlineAgainAtItsNextReport()
{
    setOffline(ash);
    reportStatus(ash, "0");
    QVERIFY(!record(ash).printerOnline);
    takeSignals();

    setOffline(ash, false);
    reportStatus(ash, "0");
    QVERIFY(record(ash).printerOnline);
    QCOMPARE(record(ash).statusEnum, 0);
    QCOMPARE(takeSignals(), QStringList({errorRaised, status(0), updated}));
}

void ControllerStatusTest::offlinePrinterWithARecordIsNotEvaluatedAgain()
{
    setOffline(ash);
    reportStatus(ash, "");
    takeLog();
    takeSignals();
    controller().checkForPrinters();
    QVERIFY(takeLog().isEmpty());
    QVERIFY(takeSignals().isEmpty());
    QCOMPARE(recordNames(), QStringList{ash});
}

void ControllerStatusTest::reportOfANetworkPrinterIsIgnored()
{
    const QString name = QStringLiteral("Net");
    addNetworkPrinter(name);
    controller().checkForPrinters();
    for (const char* reported : {"1", "42", ""}) {
        reportStatus(name, reported);
        QCOMPARE(record(name).statusEnum, 256);
    }
    QVERIFY(takeSignals().isEmpty());
}

void ControllerStatusTest::reportOfAnUnmanagedPrinterIsHandled()
{
    const QString name = QStringLiteral("Store");
    addUnmanagedPrinter(name);
    controller().checkForPrinters();
    reportStatus(name, "1");
    QCOMPARE(record(name).statusEnum, 1);
    QVERIFY(record(name).printerNonAdmin);
    QCOMPARE(takeSignals(), QStringList({status(1, name), updated}));
}

void ControllerStatusTest::reportOfAnUnknownPrinterCreatesARecord()
{
    reportStatus(QStringLiteral("Nobody"), "7");
    QCOMPARE(takeSignals(),
             QStringList({errorRaised, status(7, QStringLiteral("Nobody")), updated}));
    // The record has no printer name; it is sorted by the name in the report.
    QCOMPARE(recordNames(), QStringList({ash, QString()}));
    QCOMPARE(record(QString()).statusEnum, 7);
}

void ControllerStatusTest::unknownPrinterThatReportsUnreadablyIsOffline()
{
    // A printer that the spooler does not know cannot be opened, so it counts as offline.
    reportStatus(QStringLiteral("Nobody"), "");
    QCOMPARE(takeSignals(), QStringList({updated, status(257, QStringLiteral("Nobody"))}));
    QVERIFY(!record(QString()).printerOnline);
    QCOMPARE(takeMessages(), QStringList{QStringLiteral("Nobody went offline")});
}

void ControllerStatusTest::hostCanRaiseTheErrorState()
{
    controller().updateCachedStatus(true);
    QCOMPARE(takeSignals(), QStringList{errorRaised});
    controller().updateCachedStatus(true);
    QVERIFY(takeSignals().isEmpty());
    reportStatus(ash, "42");
    QCOMPARE(takeSignals(), QStringList({status(42), updated}));
}

void ControllerStatusTest::hostCanHaveTheErrorStateChecked()
{
    reportStatus(ash, "1");
    takeSignals();
    controller().updateCachedStatus(false);
    QVERIFY(takeSignals().isEmpty());

    controller().updateCachedStatus(true);
    controller().updateCachedStatus(false);
    QCOMPARE(takeSignals(), QStringList({errorRaised, errorCleared}));

    reportStatus(ash, "42");
    takeSignals();
    controller().updateCachedStatus(false);
    QVERIFY(takeSignals().isEmpty());
}

void ControllerStatusTest::stoppedSpoolerIsReportedUntilItRunsAgain()
{
    machine().publish(ash, PrinterValue::text("StatusCode", "1"));
    QVERIFY(settle(1));
    QCOMPARE(takeSignals(), QStringList({status(1), updated}));

    machine().stopSpooler();
    machine().advance(5s);
    QVERIFY(settle(1));
    QCOMPARE(takeSignals(), QStringList({errorRaised, status(254), updated}));
    QVERIFY(record(ash).printerOnline);

    machine().startSpooler();
    machine().advance(5s);
    QVERIFY(settle(1));
    QCOMPARE(takeSignals(), QStringList({errorCleared, status(1), updated}));
}

void ControllerStatusTest::reportsAreNotPassedToEndpoints()
{
    // For a printer that is ready, Windows is queried for its default printer and for nothing else.
    reportStatus(ash, "1");
    machine().recordCalls();
    reportStatus(ash, "1");
    QVERIFY(!machine().calls().isEmpty());
    QCOMPARE(machine().calls().size(),
             machine().calls(QStringLiteral("GetDefaultPrinterW")).size());
}

void ControllerStatusTest::titles_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("title");
    QTest::newRow("0") << 0 << "Disconnected";
    QTest::newRow("1") << 1 << "Ready";
    QTest::newRow("255") << 255 << "Unable To Retrieve Printer Info. (Code 255)";
    QTest::newRow("256") << 256
                         << "Printer Is Remotely Connected.\nUnable to retrieve printer info.";
    QTest::newRow("257") << 257 << "Disconnected";
    QTest::newRow("258") << 258 << "Printer Is Not Managed.\nUnable to retrieve printer info.";
    for (const int code : {-5, 2, 254, 42, INT_MIN, INT_MAX})
        QTest::addRow("%d", code) << code << getErrorDescription(VXError(code));
}

void ControllerStatusTest::titles()
{
    QFETCH(const int, code);
    QFETCH(const QString, title);
    QCOMPARE(controller().getStatusTitle(code), title);
    QVERIFY(!title.isEmpty());
}

void ControllerStatusTest::typeOfAPrinter()
{
    using VXPrinting::PrinterType;
    addPrinter(beech, QStringLiteral("Stratamark BirchMax"));
    addPrinter(QStringLiteral("Laser"), QStringLiteral("Office Laser 9"));
    // The spooler is queried, so printers that the controller has not found are included.
    QCOMPARE(controller().getPrinterTypeEnum(beech), PrinterType::BirchMax);
    QCOMPARE(controller().getPrinterTypeEnum(QStringLiteral("Laser")), PrinterType::Unknown);
    QCOMPARE(controller().getPrinterTypeEnum(QStringLiteral("beech")), PrinterType::Unknown);
    QCOMPARE(controller().getPrinterTypeEnum(QString()), PrinterType::Unknown);
    QCOMPARE(controller().getPrinterTypeEnum(ash), PrinterType::Alder);
    machine().setDriver(ash, QStringLiteral("Harlow Devices Press"));
    QCOMPARE(controller().getPrinterTypeEnum(ash), PrinterType::Generic);
    machine().removePrinter(ash);
    QCOMPARE(controller().getPrinterTypeEnum(ash), PrinterType::Unknown);
}

void ControllerStatusTest::typeIsReadFromANewEnumeration()
{
    // It is a full enumeration, which also records the serial numbers that it finds.
    machine().addDevice({QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}"),
                         QStringLiteral("##?#USB#VID_3E7A&PID_0104#1"), 1, QStringLiteral("AM-1")});
    const auto isRecorded = [] {
        return QSettings(QSettings::IniFormat, QSettings::UserScope,
                         QStringLiteral("Harlow Devices Inc"), QStringLiteral("Quillmark"))
            .contains(QStringLiteral("associatedPrinters/AM-1"));
    };
    QVERIFY(!isRecorded());
    const int listings = callsOf("EnumPrintersW");
    const int sizingAndReading = 2;
    QCOMPARE(controller().getPrinterTypeEnum(ash), VXPrinting::PrinterType::Alder);
    QCOMPARE(callsOf("EnumPrintersW"), listings + sizingAndReading);
    QVERIFY(isRecorded());
}

void ControllerStatusTest::unreadableReportOfAnOfflinePrinterSignalsOffline()
{
    // Also when another report is handled in a slot before the signal is emitted.
    setOffline(ash);
    recorder().hook = [&](const QString& line) {
        if (line != updated)
            return;
        recorder().hook = nullptr;
        reportStatus(ash, "7");
    };
    reportStatus(ash, "");
    QCOMPARE(record(ash).statusEnum, 7);
    const QStringList signalled = takeSignals();
    QCOMPARE(signalled.indexOf(updated), 0);
    QVERIFY2(signalled.contains(status(257)), qPrintable(signalled.join(QLatin1Char(' '))));
    QCOMPARE(signalled.count(status(7)), 1);
}

void ControllerStatusTest::slotMayAddRecordsDuringAReport()
{
    // The report must still reach its own record.
    int added = 0;
    recorder().hook = [&](const QString& signal) {
        if (signal != errorRaised)
            return;
        for (; added < 50; ++added)
            addNetworkPrinter(QStringLiteral("Net %1").arg(added));
        controller().checkForPrinters();
    };
    reportStatus(ash, "42");
    QCOMPARE(takeSignals(), QStringList({errorRaised, status(42), updated}));
    QCOMPARE(recordNames().size(), 51);
    QCOMPARE(record(ash).statusEnum, 42);
}

QTEST_GUILESS_MAIN(ControllerStatusTest)
#include "tst_controller_status.moc"
