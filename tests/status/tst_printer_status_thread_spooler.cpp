// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What a monitoring thread does when the spooler stops, starts or refuses a call.
#include "log_lines.h"
#include "thread_test.h"

namespace {

const QString noHandle = QStringLiteral("0xffffffffffffffff");

QString name(const char* function)
{
    return QString::fromLatin1(function);
}

LogRecord openingFailed()
{
    return libraryLine("printer_status_thread", 198,
                       "bool PrinterStatusThread::initPrinterHandles(PHANDLE, PHANDLE)",
                       QStringLiteral("Label Printer: Failed to open printer"));
}

LogRecord notificationFailed()
{
    return libraryLine("printer_status_thread", 208,
                       "bool PrinterStatusThread::initPrinterHandles(PHANDLE, PHANDLE)",
                       QStringLiteral("Label Printer: Failed to create event objects"));
}

LogRecord fullAccessFailed()
{
    return libraryLine(
        "printer_status_thread", 264,
        "void PrinterStatusThread::getLatestPrinterData(bool, HANDLE, QString&, QString&, "
        "QString&, QString&, QString&, QString&, QString&, QString&, QString&, QString&, QString&, "
        "QString&)",
        QStringLiteral("Label Printer: Failed to open printer with PRINTER_ALL_ACCESS"));
}

} // namespace

class PrinterStatusThreadSpoolerTest : public ThreadTest
{
    Q_OBJECT

private Q_SLOTS:
    void pollsAfterFiveSecondsWithoutNotification();
    void notificationDelaysThePoll();
    void stoppingSpoolerIsReported();
    void eachStateOtherThanRunningIsReported();
    void stoppingIsReportedAlsoWhenTheLastStatusWas254();
    void printerIsOpenedAgainWhenTheSpoolerRunsAgain();
    void unchangedStatusIsReportedWhenTheSpoolerRunsAgain();
    void printerThatCannotBeOpenedAgainIsReportedAs254();
    void failedNotificationAfterARestartIsReportedAs254();
    void failedQueryCountsAsAStateOfItsOwn();
    void firstQueryThatFailedLeaksNothing();
    void serviceThatCannotBeQueriedDoesNotCountAsStopped_data();
    void serviceThatCannotBeQueriedDoesNotCountAsStopped();
    void printerThatCannotBeOpenedIsLogged();
    void printerThatCannotBeOpenedIsNotRetried();
    void printerIsOpenedWhenTheSpoolerStartsLater();
    void failedNotificationIsLogged();
    void refusedFullAccessIsLogged();
    void failedWaitIsRetried();
    void failedReArmingDoesNotPreventTheRead();
    void valuesOfARemovedPrinterBecomeEmpty();

private:
    /// Whether the last wait was for one object, with the poll's timeout.
    bool waitsForTheStopEventOnly()
    {
        const QStringList arguments = lastCall("WaitForMultipleObjects").arguments;
        return arguments.size() == 4 && arguments.first() == QLatin1String("1") &&
               arguments.last() == QLatin1String("5000");
    }
};

void PrinterStatusThreadSpoolerTest::pollsAfterFiveSecondsWithoutNotification()
{
    QVERIFY(watch());
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 1);
    QVERIFY(pass(4999ms));
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 1);
    QVERIFY(pass(1ms));
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 2);
    QVERIFY(pass(5000ms));
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 3);
    // The poll does not read the printer.
    QCOMPARE(machine().callCount(name("GetPrinterDataA")), 11);
}

void PrinterStatusThreadSpoolerTest::notificationDelaysThePoll()
{
    QVERIFY(watch());
    for (int second = 0; second < 20; ++second) {
        QVERIFY(pass(4000ms));
        QVERIFY(publish(PrinterValue::number("Mileage", static_cast<quint32>(second))));
    }
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 1);
}

void PrinterStatusThreadSpoolerTest::stoppingSpoolerIsReported()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    machine().recordCalls();
    QVERIFY(watch());
    takeReports();
    const QStringList waited = lastCall("WaitForMultipleObjects").arguments;
    const QString printer = lastCall("FindFirstPrinterChangeNotification").arguments.first();
    machine().clearCalls();

    machine().stopSpooler();
    QVERIFY(pass(4999ms));
    QCOMPARE(takeReports(), QList<Report>());
    QVERIFY(pass(1ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});

    QCOMPARE(functionsCalled(),
             (QStringList{name("WaitForMultipleObjects"), name("QueryServiceStatus"),
                          name("FindClosePrinterChangeNotification"), name("ClosePrinter"),
                          name("WaitForMultipleObjects")})
                 .mid(1));
    QCOMPARE(lastCall("FindClosePrinterChangeNotification").arguments, QStringList{waited.at(2)});
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});
    QVERIFY(waitsForTheStopEventOnly());
    QCOMPARE(lastCall("WaitForMultipleObjects").arguments.at(1), waited.at(1));
    QVERIFY(logged().isEmpty());
}

void PrinterStatusThreadSpoolerTest::eachStateOtherThanRunningIsReported()
{
    QVERIFY(watch());
    takeReports();
    machine().recordCalls();
    for (const quint32 state : {SERVICE_STOP_PENDING, SERVICE_STOPPED, SERVICE_START_PENDING}) {
        machine().clearCalls();
        machine().setSpoolerState(state);
        QVERIFY(pass(5000ms));
        QCOMPARE(takeReports(), QList<Report>{status("254")});
        QVERIFY(pass(5000ms));
        QCOMPARE(takeReports(), QList<Report>());
        // The handles are closed at each state, although nothing is open after the first.
        QCOMPARE(machine().calls(name("FindClosePrinterChangeNotification")).size(), 1);
        QCOMPARE(machine().calls(name("ClosePrinter")).size(), 1);
    }
    QCOMPARE(lastCall("FindClosePrinterChangeNotification").arguments, QStringList{noHandle});
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{noHandle});
}

void PrinterStatusThreadSpoolerTest::stoppingIsReportedAlsoWhenTheLastStatusWas254()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "254"));
    QVERIFY(watch());
    QCOMPARE(takeReports().first(), status("254"));
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
}

void PrinterStatusThreadSpoolerTest::printerIsOpenedAgainWhenTheSpoolerRunsAgain()
{
    machine().publish(labelPrinter, everyValue());
    QVERIFY(watch());
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    takeReports();
    machine().publish(labelPrinter, PrinterValue::number("Mileage", 4711));
    machine().recordCalls();

    machine().startSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), (QList<Report>{status("1"), report("supplyIntMileageChanged",
                                                               QStringLiteral("4711"))}));

    // One handle is opened for watching, and another with full access for reading.
    const QList<Call> opened = machine().calls(name("OpenPrinterA"));
    QCOMPARE(opened.size(), 2);
    QCOMPARE(opened.at(0).arguments, (QStringList{labelPrinter, QStringLiteral("0")}));
    QCOMPARE(opened.at(1).arguments, (QStringList{labelPrinter, QString::number(0x000F000C)}));
    const QString printer = lastCall("FindFirstPrinterChangeNotification").arguments.first();
    QVERIFY(lastCall("GetPrinterDataA").arguments.first() != printer);
    QCOMPARE(lastCall("ClosePrinter").arguments.first(),
             lastCall("GetPrinterDataA").arguments.first());
    const QStringList waits = lastCall("WaitForMultipleObjects").arguments;
    QCOMPARE(waits.first(), QStringLiteral("2"));
    QVERIFY(waits.at(2) != noHandle);

    // The printer is watched as before.
    QVERIFY(publish(PrinterValue::text("StatusCode", "3")));
    QCOMPARE(takeReports(), QList<Report>{status("3")});
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
}

void PrinterStatusThreadSpoolerTest::unchangedStatusIsReportedWhenTheSpoolerRunsAgain()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    QVERIFY(watch());
    takeReports();
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    machine().startSpooler();
    QVERIFY(pass(5000ms));
    // After "254" the status "1" is a change again; the name is not.
    QCOMPARE(takeReports(), (QList<Report>{status("254"), status("1")}));
}

void PrinterStatusThreadSpoolerTest::printerThatCannotBeOpenedAgainIsReportedAs254()
{
    QVERIFY(watch());
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    takeReports();

    machine().failCall(name("OpenPrinterA"), 1, ERROR_INVALID_PRINTER_NAME);
    machine().recordCalls();
    machine().startSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
    QCOMPARE(logged(), QList<LogRecord>{openingFailed()});
    QCOMPARE(machine().calls(name("OpenPrinterA")).size(), 1);
    QCOMPARE(machine().calls(name("GetPrinterDataA")).size(), 0);
    QVERIFY(waitsForTheStopEventOnly());

    // Nothing is retried until the state of the service changes.
    QVERIFY(pass(5000ms));
    QCOMPARE(machine().calls(name("OpenPrinterA")).size(), 1);
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
    machine().startSpooler();
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
}

void PrinterStatusThreadSpoolerTest::failedNotificationAfterARestartIsReportedAs254()
{
    QVERIFY(watch());
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    takeReports();

    machine().failCall(name("FindFirstPrinterChangeNotification"), 1, ERROR_NOT_ENOUGH_MEMORY);
    machine().recordCalls();
    machine().startSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
    QCOMPARE(logged(), QList<LogRecord>{notificationFailed()});
    const QString printer = lastCall("FindFirstPrinterChangeNotification").arguments.first();
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});

    // When the service stops again, the closed printer's handle is closed a second time.
    allowMisuse(Kind::ClosedTwice, name("ClosePrinter"));
    machine().clearCalls();
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
    QCOMPARE(lastCall("FindClosePrinterChangeNotification").arguments, QStringList{noHandle});
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});
}

void PrinterStatusThreadSpoolerTest::failedQueryCountsAsAStateOfItsOwn()
{
    QVERIFY(watch());
    takeReports();
    machine().failCall(name("QueryServiceStatus"), 1, ERROR_INVALID_HANDLE);
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
    QVERIFY(pass(5000ms));
    // The printer publishes no status, so the status changes from "254" to empty.
    QCOMPARE(takeReports(), QList<Report>{status("")});
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
}

void PrinterStatusThreadSpoolerTest::firstQueryThatFailedLeaksNothing()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    machine().failCall(name("QueryServiceStatus"), 1, ERROR_INVALID_HANDLE);
    QVERIFY(watch());
    takeReports();
    const int open = machine().openHandles();
    machine().recordCalls();

    // The state changes to running while the printer is open and watched. It is opened again, and
    // the old handles are closed.
    QVERIFY(pass(5000ms));
    QCOMPARE(machine().openHandles(), open);
    QCOMPARE(takeReports(), QList<Report>());
    QCOMPARE(machine().calls(name("FindClosePrinterChangeNotification")).size(), 1);
    QCOMPARE(machine().calls(name("FindFirstPrinterChangeNotification")).size(), 1);
    QVERIFY(publish(PrinterValue::text("StatusCode", "2")));
    QCOMPARE(takeReports(), QList<Report>{status("2")});
}

void PrinterStatusThreadSpoolerTest::serviceThatCannotBeQueriedDoesNotCountAsStopped_data()
{
    QTest::addColumn<QString>("function");
    QTest::newRow("manager") << name("OpenSCManagerW");
    QTest::newRow("service") << name("OpenServiceW");
}

void PrinterStatusThreadSpoolerTest::serviceThatCannotBeQueriedDoesNotCountAsStopped()
{
    QFETCH(const QString, function);
    machine().failCall(function, 1, ERROR_ACCESS_DENIED);
    QVERIFY(watch());
    takeReports();
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>());

    // The service is opened and queried even through invalid handles.
    QCOMPARE(machine().callCount(name("OpenServiceW")), 1);
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 3);
    if (function == name("OpenSCManagerW"))
        allowMisuse(Kind::NotAHandle, name("OpenServiceW"));
    for (int query = 0; query < 3; ++query)
        allowMisuse(Kind::NotAHandle, name("QueryServiceStatus"));
}

void PrinterStatusThreadSpoolerTest::printerThatCannotBeOpenedIsLogged()
{
    thread().setMonitoredPrinterName(QStringLiteral("No Such Printer"));
    machine().recordCalls();
    QVERIFY(watch());
    QCOMPARE(logged(), QList<LogRecord>{libraryLine(
                           "printer_status_thread", 198,
                           "bool PrinterStatusThread::initPrinterHandles(PHANDLE, PHANDLE)",
                           QStringLiteral("No Such Printer: Failed to open printer"))});
    QCOMPARE(takeReports(), QList<Report>());
    QCOMPARE(machine().calls(name("OpenPrinterA")).size(), 1);
    QCOMPARE(machine().calls(name("GetPrinterDataA")).size(), 0);
    QVERIFY(waitsForTheStopEventOnly());
    QVERIFY(pass(4999ms));
    QCOMPARE(machine().calls(name("QueryServiceStatus")).size(), 1);
    QVERIFY(pass(1ms));
    QCOMPARE(machine().calls(name("QueryServiceStatus")).size(), 2);
    QVERIFY(waitsForTheStopEventOnly());
    QCOMPARE(machine().calls(name("WaitForMultipleObjects")).size(), 2);

    machine().clearCalls();
    endThread();
    QCOMPARE(functionsCalled().filter(QStringLiteral("Close")),
             (QStringList{name("CloseHandle"), name("FindClosePrinterChangeNotification"),
                          name("ClosePrinter"), name("CloseServiceHandle"),
                          name("CloseServiceHandle")}));
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{noHandle});
}

void PrinterStatusThreadSpoolerTest::printerThatCannotBeOpenedIsNotRetried()
{
    machine().failCall(name("OpenPrinterA"), 1, ERROR_INVALID_PRINTER_NAME);
    QVERIFY(watch());
    for (int poll = 0; poll < 10; ++poll)
        QVERIFY(pass(5000ms));
    QCOMPARE(machine().callCount(name("OpenPrinterA")), 1);
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 11);
    QCOMPARE(takeReports(), QList<Report>());

    // It is opened when the service's state changes.
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
    machine().startSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(),
             (QList<Report>{status(""), report("printerNameChangedSignal", labelPrinter)}));
}

void PrinterStatusThreadSpoolerTest::printerIsOpenedWhenTheSpoolerStartsLater()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    machine().stopSpooler();
    QVERIFY(watch());
    QCOMPARE(logged(), QList<LogRecord>{openingFailed()});
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>()); // the state has not changed since the start

    machine().startSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(),
             (QList<Report>{status("1"), report("printerNameChangedSignal", labelPrinter)}));
}

void PrinterStatusThreadSpoolerTest::failedNotificationIsLogged()
{
    machine().failCall(name("FindFirstPrinterChangeNotification"), 1, ERROR_NOT_ENOUGH_MEMORY);
    machine().recordCalls();
    QVERIFY(watch());
    QCOMPARE(logged(), QList<LogRecord>{notificationFailed()});
    QCOMPARE(takeReports(), QList<Report>());
    const QString printer = lastCall("FindFirstPrinterChangeNotification").arguments.first();
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});
    QVERIFY(waitsForTheStopEventOnly());

    allowMisuse(Kind::ClosedTwice, name("ClosePrinter"));
    machine().clearCalls();
    endThread();
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});
}

void PrinterStatusThreadSpoolerTest::refusedFullAccessIsLogged()
{
    machine().setAdministrable(labelPrinter, false);
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    machine().recordCalls();
    QVERIFY(watch());
    QCOMPARE(logged(), QList<LogRecord>{fullAccessFailed()});
    QCOMPARE(takeReports(),
             (QList<Report>{status("1"), report("printerNameChangedSignal", labelPrinter)}));
    QCOMPARE(lastCall("GetPrinterDataA").arguments.first(),
             lastCall("FindFirstPrinterChangeNotification").arguments.first());
    QCOMPARE(machine().calls(name("ClosePrinter")).size(), 0);
}

void PrinterStatusThreadSpoolerTest::failedWaitIsRetried()
{
    machine().failCall(name("WaitForMultipleObjects"), 1, ERROR_INVALID_HANDLE);
    QVERIFY(watch());
    takeReports();
    QCOMPARE(machine().callCount(name("WaitForMultipleObjects")), 2);
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 1);
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
}

void PrinterStatusThreadSpoolerTest::failedReArmingDoesNotPreventTheRead()
{
    QVERIFY(watch());
    takeReports();
    machine().failCall(name("FindNextPrinterChangeNotification"), 1, ERROR_INVALID_HANDLE);
    // The notification is not re-armed and so still signalled; the next turn of the loop re-arms
    // it.
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
    QCOMPARE(machine().callCount(name("FindNextPrinterChangeNotification")), 2);
}

void PrinterStatusThreadSpoolerTest::valuesOfARemovedPrinterBecomeEmpty()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    QVERIFY(watch());
    takeReports();
    machine().removePrinter(labelPrinter);
    QVERIFY(settle());
    // No value can be read any more.
    QCOMPARE(takeReports(), (QList<Report>{status(""), report("printerNameChangedSignal", {})}));
}

QTEST_GUILESS_MAIN(PrinterStatusThreadSpoolerTest)
#include "tst_printer_status_thread_spooler.moc"
