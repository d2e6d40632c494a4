// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which printer is active, and when the host is notified.
#include "controller_test.h"

#include <QtCore/QScopeGuard>

namespace {
const QString ash = QStringLiteral("Ash");
const QString beech = QStringLiteral("Beech");
const QString cherry = QStringLiteral("Cherry");
const QString laser = QStringLiteral("Laser");
const QString plotter = QStringLiteral("Plotter");
const QString laserDriver = QStringLiteral("Office Laser 9");

const QString updated = QStringLiteral("availablePrintersUpdated()");
QString active(const QString& name, bool isVX = true)
{
    return QStringLiteral("activeDefaultPrinterSetSignal(%1, %2)")
        .arg(name, QLatin1String(isVX ? "true" : "false"));
}
QString status(int code, const QString& name)
{
    return QStringLiteral("statusChangedSignal(%1, %2)").arg(code).arg(name);
}
QString error(bool inError)
{
    return QStringLiteral("printerErrorChangedSignal(%1)")
        .arg(QLatin1String(inError ? "true" : "false"));
}

const log_lines::LogLine fromUsersDefault{
    "printer_status_controller", 187,
    "void PrinterStatusController::checkForNewPrinter(AvailablePrinters)", nullptr};
const log_lines::LogLine chosen{"printer_status_controller", 263,
                                "void PrinterStatusController::initializeDefaultPrinter()",
                                nullptr};
const log_lines::LogLine fromWindowsDefault{
    "printer_status_controller", 535,
    "void PrinterStatusController::onPrinterStatusChanged(QString, QString)", nullptr};
} // namespace

class ActivePrinterTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void windowsDefaultBecomesActiveAtDiscovery();
    void windowsDefaultReplacesTheActivePrinterAtDiscovery();
    void networkPrinterThatIsWindowsDefaultBecomesActive();
    void unmanagedPrinterDoesNotBecomeActiveAtDiscovery();
    void defaultNameIsComparedExactly();
    void windowsDefaultIsQueriedAtEveryReport_data();
    void windowsDefaultIsQueriedAtEveryReport();
    void firstLocalRecordByNameIsChosen();
    void unmanagedPrinterCanBeChosenByName();
    void lastOfNetworkPrintersIsChosen();
    void choiceFromRecordsMarksNoRecordAsDefault();
    void printersOfOtherMakersAreChosenWithoutRecords_data();
    void printersOfOtherMakersAreChosenWithoutRecords();
    void ignoredPrinterThatIsNotOfflineIsChosen();
    void recordReplacesAPrinterOfAnotherMaker();
    void windowsDefaultBecomesActiveWhenItReports();
    void windowsDefaultThatReportsAgainIsNotAnnounced();
    void reportOfAnotherPrinterDoesNotChangeTheActiveOne();
    void offlineDefaultDoesNotBecomeActive();
    void firstPrinterToReportBecomesActiveWhileThereIsNone();
    void printerDefaultIsNeverCleared();
    void anotherPrinterIsChosenWhenTheActiveOneGoesOffline_data();
    void anotherPrinterIsChosenWhenTheActiveOneGoesOffline();
    void onlyRecordStaysActiveWhenItGoesOffline();
    void activePrinterStaysWhenAnotherOneGoesOffline();
    void activePrinterWithoutRecordGetsOneWhenItReportsOffline();
    void lineIsLoggedBetweenTheChangeAndTheSignal();

private:
    /// Makes a controller with no records. True when its active printer is one of another maker.
    [[nodiscard]] bool makeWithLaser()
    {
        addPrinter(laser, laserDriver);
        machine().setDefaultPrinter(laser);
        makeController();
        return controller().activeDefaultPrinter() == laser &&
               !controller().vxDefaultActivePrinter();
    }
    /// Makes a controller of two printers. True when the first of them is active.
    [[nodiscard]] bool makeWithTwo()
    {
        addPrinter(ash);
        addPrinter(beech);
        makeController();
        takeSignals();
        takeLog();
        return controller().activeDefaultPrinter() == ash;
    }
};

void ActivePrinterTest::windowsDefaultBecomesActiveAtDiscovery()
{
    addPrinter(ash);
    addPrinter(beech);
    machine().setDefaultPrinter(beech);
    makeController();

    QCOMPARE(controller().activeDefaultPrinter(), beech);
    QVERIFY(controller().vxDefaultActivePrinter());
    QVERIFY(record(beech).printerDefault);
    QVERIFY(!record(ash).printerDefault);

    const QList<LogRecord> log = takeLog();
    QCOMPARE(log.size(), 4);
    QCOMPARE(log.at(2), line(fromUsersDefault,
                             QStringLiteral("Setting defaultActivePrinter Beech from user-selected "
                                            "default.")));
    QCOMPARE(log.at(3), line(chosen, QStringLiteral("Setting defaultActivePrinter Beech.")));
}

void ActivePrinterTest::windowsDefaultReplacesTheActivePrinterAtDiscovery()
{
    QVERIFY(makeWithTwo());
    addPrinter(cherry);
    machine().setDefaultPrinter(cherry);
    controller().checkForPrinters();
    QCOMPARE(takeSignals(), QStringList{active(cherry)});
    QCOMPARE(controller().activeDefaultPrinter(), cherry);

    // Only when it is found: a printer that becomes the default later has to report first.
    machine().setDefaultPrinter(beech);
    controller().checkForPrinters();
    QVERIFY(takeSignals().isEmpty());
}

void ActivePrinterTest::networkPrinterThatIsWindowsDefaultBecomesActive()
{
    addPrinter(ash);
    addNetworkPrinter(beech);
    machine().setDefaultPrinter(beech);
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), beech);
    QVERIFY(record(beech).printerDefault);
}

void ActivePrinterTest::unmanagedPrinterDoesNotBecomeActiveAtDiscovery()
{
    addPrinter(ash);
    addUnmanagedPrinter(beech);
    machine().setDefaultPrinter(beech);
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), ash);
    QVERIFY(!record(beech).printerDefault);
}

void ActivePrinterTest::defaultNameIsComparedExactly()
{
    addPrinter(ash);
    addPrinter(beech);
    addPrinter(QStringLiteral("BEECH"), laserDriver);
    machine().setDefaultPrinter(QStringLiteral("BEECH"));
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), ash);
}

void ActivePrinterTest::windowsDefaultIsQueriedAtEveryReport_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QByteArray>("status");

    QTest::newRow("active printer is ready") << ash << QByteArray("1");
    QTest::newRow("active printer is in error") << ash << QByteArray("4");
    QTest::newRow("another printer is ready") << beech << QByteArray("1");
    QTest::newRow("another printer is offline") << cherry << QByteArray("0");
}

void ActivePrinterTest::windowsDefaultIsQueriedAtEveryReport()
{
    QFETCH(const QString, printer);
    QFETCH(const QByteArray, status);
    addPrinter(cherry);
    QVERIFY(makeWithTwo());
    setOffline(cherry, true);
    machine().setDefaultPrinter(ash);
    machine().clearCalls();
    machine().recordCalls();
    reportStatus(printer, status.constData());
    // The first call returns the length of the name, the second the name.
    QCOMPARE(machine().calls(QStringLiteral("GetDefaultPrinterW")).size(), 2);
}

void ActivePrinterTest::firstLocalRecordByNameIsChosen()
{
    addPrinter(cherry);
    addPrinter(beech);
    addNetworkPrinter(ash);
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), beech);
    QVERIFY(controller().vxDefaultActivePrinter());
}

void ActivePrinterTest::unmanagedPrinterCanBeChosenByName()
{
    addUnmanagedPrinter(ash);
    addPrinter(beech);
    machine().setDefaultPrinter(ash);
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), ash);
    QVERIFY(controller().vxDefaultActivePrinter());
}

void ActivePrinterTest::lastOfNetworkPrintersIsChosen()
{
    addNetworkPrinter(cherry);
    addNetworkPrinter(ash);
    addNetworkPrinter(beech);
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), cherry);
    QVERIFY(controller().vxDefaultActivePrinter());
}

void ActivePrinterTest::choiceFromRecordsMarksNoRecordAsDefault()
{
    QVERIFY(makeWithTwo());
    QVERIFY(!record(ash).printerDefault);
}

void ActivePrinterTest::printersOfOtherMakersAreChosenWithoutRecords_data()
{
    QTest::addColumn<QString>("windowsDefault");
    QTest::addColumn<bool>("laserOffline");
    QTest::addColumn<bool>("plotterOffline");
    QTest::addColumn<QString>("expected");

    QTest::newRow("the default") << laser << false << false << laser;
    QTest::newRow("the default, the other one offline") << plotter << true << false << plotter;
    QTest::newRow("the default is offline") << laser << true << false << plotter;
    QTest::newRow("no default") << QString() << true << false << plotter;
    QTest::newRow("all offline") << laser << true << true << QString();
}

void ActivePrinterTest::printersOfOtherMakersAreChosenWithoutRecords()
{
    QFETCH(const QString, windowsDefault);
    QFETCH(const bool, laserOffline);
    QFETCH(const bool, plotterOffline);
    QFETCH(const QString, expected);

    addPrinter(laser, laserDriver);
    addPrinter(plotter, QStringLiteral("Harlow Devices Press"));
    setOffline(laser, laserOffline);
    setOffline(plotter, plotterOffline);
    machine().setDefaultPrinter(windowsDefault);
    makeController();

    QCOMPARE(controller().activeDefaultPrinter(), expected);
    QVERIFY(!controller().vxDefaultActivePrinter());
    const QStringList messages = takeMessages().mid(2);
    if (expected.isEmpty())
        QVERIFY(messages.isEmpty());
    else
        QCOMPARE(messages,
                 QStringList{QStringLiteral("Setting defaultActivePrinter %1.").arg(expected)});
}

void ActivePrinterTest::ignoredPrinterThatIsNotOfflineIsChosen()
{
    // A default printer that was never enumerated cannot be opened, so it counts as offline.
    addPrinter(laser, laserDriver);
    machine().setDefaultPrinter(QStringLiteral("Gone"));
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), laser);
}

void ActivePrinterTest::recordReplacesAPrinterOfAnotherMaker()
{
    QVERIFY(makeWithLaser());
    addPrinter(ash);
    controller().checkForPrinters();
    takeSignals();

    // Neither a new record nor its report changes anything while another printer is active.
    QCOMPARE(controller().activeDefaultPrinter(), laser);
    reportStatus(ash, "1");
    QCOMPARE(takeSignals(), QStringList({status(1, ash), updated}));

    machine().setDefaultPrinter(ash);
    reportStatus(ash, "1");
    QCOMPARE(takeSignals(), QStringList({active(ash), status(1, ash), updated}));
    QVERIFY(controller().vxDefaultActivePrinter());
}

void ActivePrinterTest::windowsDefaultBecomesActiveWhenItReports()
{
    QVERIFY(makeWithTwo());
    machine().setDefaultPrinter(beech);
    reportStatus(beech, "1");
    QCOMPARE(takeSignals(), QStringList({active(beech), status(1, beech), updated}));
    QCOMPARE(takeLog(),
             QList<LogRecord>{
                 line(fromWindowsDefault,
                      QStringLiteral("Setting defaultActivePrinter Beech from Windows default."))});
    QVERIFY(record(beech).printerDefault);

    // The error is signalled first. It does not prevent the printer from becoming active.
    machine().setDefaultPrinter(ash);
    reportStatus(ash, "42");
    QCOMPARE(takeSignals(), QStringList({error(true), active(ash), status(42, ash), updated}));
}

void ActivePrinterTest::windowsDefaultThatReportsAgainIsNotAnnounced()
{
    addPrinter(ash);
    machine().setDefaultPrinter(ash);
    makeController();
    takeLog();
    reportStatus(ash, "1");
    QCOMPARE(takeSignals(), QStringList({status(1, ash), updated}));
    QVERIFY(takeLog().isEmpty());
}

void ActivePrinterTest::reportOfAnotherPrinterDoesNotChangeTheActiveOne()
{
    QVERIFY(makeWithTwo());
    machine().setDefaultPrinter(ash);
    reportStatus(beech, "1");
    QCOMPARE(takeSignals(), QStringList({status(1, beech), updated}));
    QCOMPARE(controller().activeDefaultPrinter(), ash);
}

void ActivePrinterTest::offlineDefaultDoesNotBecomeActive()
{
    QVERIFY(makeWithTwo());
    machine().setDefaultPrinter(beech);
    setOffline(beech);
    reportStatus(beech, "0");
    QCOMPARE(takeSignals(), QStringList({status(257, beech), updated}));
    QCOMPARE(controller().activeDefaultPrinter(), ash);
}

void ActivePrinterTest::firstPrinterToReportBecomesActiveWhileThereIsNone()
{
    makeController();
    addPrinter(ash);
    addPrinter(beech);
    controller().checkForPrinters();
    QVERIFY(controller().activeDefaultPrinter().isEmpty());

    // Any printer, whatever the Windows default printer is.
    machine().setDefaultPrinter(ash);
    reportStatus(beech, "1");
    QCOMPARE(takeSignals(), QStringList({active(beech), status(1, beech), updated}));
    QVERIFY(record(beech).printerDefault);
    QVERIFY(controller().vxDefaultActivePrinter());
}

void ActivePrinterTest::printerDefaultIsNeverCleared()
{
    QVERIFY(makeWithTwo());
    for (const QString& name : {beech, ash}) {
        machine().setDefaultPrinter(name);
        reportStatus(name, "1");
        QCOMPARE(controller().activeDefaultPrinter(), name);
    }
    QVERIFY(record(ash).printerDefault);
    QVERIFY(record(beech).printerDefault);
}

void ActivePrinterTest::anotherPrinterIsChosenWhenTheActiveOneGoesOffline_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<bool>("listFirst");

    QTest::newRow("unreadable") << QByteArray("") << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("255") << QByteArray("255") << false;
}

void ActivePrinterTest::anotherPrinterIsChosenWhenTheActiveOneGoesOffline()
{
    QFETCH(const QByteArray, report);
    QFETCH(const bool, listFirst);

    addPrinter(ash);
    addPrinter(cherry);
    addNetworkPrinter(beech);
    machine().setDefaultPrinter(cherry);
    makeController();
    QCOMPARE(controller().activeDefaultPrinter(), cherry);
    takeLog();

    setOffline(cherry);
    reportStatus(cherry, report);
    const QStringList expected = listFirst ? QStringList{updated, status(257, cherry), active(ash)}
                                           : QStringList{active(ash), status(257, cherry), updated};
    QCOMPARE(takeSignals(), expected);
    QCOMPARE(controller().activeDefaultPrinter(), ash);
    QCOMPARE(takeMessages(), QStringList({QStringLiteral("Cherry went offline"),
                                          QStringLiteral("Setting defaultActivePrinter Ash.")}));
    QVERIFY(!record(ash).printerDefault);
    QVERIFY(record(cherry).printerDefault);

    // It is still the Windows default, so it becomes active when it reports online.
    setOffline(cherry, false);
    reportStatus(cherry, "1");
    QCOMPARE(takeSignals(), QStringList({active(cherry), status(1, cherry), updated}));
}

void ActivePrinterTest::onlyRecordStaysActiveWhenItGoesOffline()
{
    addPrinter(ash);
    makeController();
    setOffline(ash);
    reportStatus(ash, "");
    // It is chosen again at once, because offline printers can be chosen.
    QCOMPARE(takeSignals(), QStringList({updated, status(257, ash), active(ash)}));
    QVERIFY(controller().vxDefaultActivePrinter());
}

void ActivePrinterTest::activePrinterStaysWhenAnotherOneGoesOffline()
{
    QVERIFY(makeWithTwo());
    setOffline(beech);
    reportStatus(beech, "");
    QCOMPARE(takeSignals(), QStringList({updated, status(257, beech)}));
    QCOMPARE(controller().activeDefaultPrinter(), ash);
}

void ActivePrinterTest::activePrinterWithoutRecordGetsOneWhenItReportsOffline()
{
    // A report for a name without a record creates one, and the choice is then made from the
    // records.
    QVERIFY(makeWithLaser());
    setOffline(laser);
    reportStatus(laser, "");
    QCOMPARE(takeSignals(), QStringList({updated, status(257, laser), active(laser)}));
    QVERIFY(controller().vxDefaultActivePrinter());
}

void ActivePrinterTest::lineIsLoggedBetweenTheChangeAndTheSignal()
{
    class Appender final : public AbstractAppender
    {
    public:
        std::function<void(const QString& message)> onLine;

    protected:
        void append(const QDateTime&, Logger::LogLevel, const char*, int, const char*,
                    const QString&, const QString& message) override
        {
            onLine(message);
        }
    };
    QStringList seen;
    Appender appender;
    appender.setDetailsLevel(Logger::Trace);
    appender.onLine = [&](const QString& message) {
        if (!message.startsWith(QLatin1String("Setting defaultActivePrinter ")))
            return;
        const QString name = controller().activeDefaultPrinter();
        const bool isMarked = record(name).printerDefault;
        seen.append(QStringLiteral("%1 %2 %3 in \"%4\"")
                        .arg(name)
                        .arg(isMarked)
                        .arg(controller().vxDefaultActivePrinter())
                        .arg(message));
    };
    QVERIFY(makeWithLaser());
    recorder().hook = [&](const QString& line) {
        if (line.startsWith(QLatin1String("activeDefaultPrinterSetSignal")))
            seen.append(line);
    };
    Logger::globalInstance()->registerAppender(&appender);
    const auto removeAppender =
        qScopeGuard([&] { Logger::globalInstance()->removeAppender(&appender); });

    addPrinter(ash);
    machine().setDefaultPrinter(ash);
    controller().checkForPrinters();
    addPrinter(beech);
    controller().checkForPrinters();
    machine().setDefaultPrinter(beech);
    reportStatus(beech, "1");
    const QStringList expected{
        QStringLiteral(
            "Ash 1 1 in \"Setting defaultActivePrinter Ash from user-selected default.\""),
        active(ash),
        QStringLiteral("Beech 1 1 in \"Setting defaultActivePrinter Beech from Windows default.\""),
        active(beech),
    };
    QCOMPARE(seen, expected);
}

QTEST_GUILESS_MAIN(ActivePrinterTest)
#include "tst_controller_active_printer.moc"
