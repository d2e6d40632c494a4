// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What a monitoring thread does when the spooler stops, starts or refuses something.
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
    void eachStateShortOfRunningIsReportedAgain();
    void stoppingIsReportedEvenWhenTheLastStatusSaysSo();
    void spoolerThatComesBack();
    void comesBackWithTheStatusUnchanged();
    void comesBackWithoutThePrinter();
    void comesBackWithoutTheNotification();
    void failedQueryCountsAsAStateOfItsOwn();
    void firstQueryThatFailedLeaksNothing();
    void serviceThatCannotBeAskedIsNotTakenForStopped_data();
    void serviceThatCannotBeAskedIsNotTakenForStopped();
    void printerThatCannotBeOpened();
    void printerThatCannotBeOpenedIsNotTriedAgain();
    void spoolerDownAtTheStart();
    void notificationThatCannotBeHad();
    void fullAccessThatIsRefused();
    void failedWaitIsTriedAgain();
    void failedReArmingStillReads();
    void printerThatIsRemoved();

private:
    /// Whether the last wait was for one object, with the time-out of the poll.
    bool waitsForItsEndAlone()
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
    // The poll reads no printer.
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
    QVERIFY(waitsForItsEndAlone());
    QCOMPARE(lastCall("WaitForMultipleObjects").arguments.at(1), waited.at(1));
    QVERIFY(logged().isEmpty());
}

void PrinterStatusThreadSpoolerTest::eachStateShortOfRunningIsReportedAgain()
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
        // Closing is done at each of them, though after the first nothing is open.
        QCOMPARE(machine().calls(name("FindClosePrinterChangeNotification")).size(), 1);
        QCOMPARE(machine().calls(name("ClosePrinter")).size(), 1);
    }
    QCOMPARE(lastCall("FindClosePrinterChangeNotification").arguments, QStringList{noHandle});
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{noHandle});
}

void PrinterStatusThreadSpoolerTest::stoppingIsReportedEvenWhenTheLastStatusSaysSo()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "254"));
    QVERIFY(watch());
    QCOMPARE(takeReports().first(), status("254"));
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
}

void PrinterStatusThreadSpoolerTest::spoolerThatComesBack()
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

    // Opened for watching, and read through a handle with full access of its own.
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

    // And watched as before.
    QVERIFY(publish(PrinterValue::text("StatusCode", "3")));
    QCOMPARE(takeReports(), QList<Report>{status("3")});
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
}

void PrinterStatusThreadSpoolerTest::comesBackWithTheStatusUnchanged()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    QVERIFY(watch());
    takeReports();
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    machine().startSpooler();
    QVERIFY(pass(5000ms));
    // "1" is news again after "254"; the name is not.
    QCOMPARE(takeReports(), (QList<Report>{status("254"), status("1")}));
}

void PrinterStatusThreadSpoolerTest::comesBackWithoutThePrinter()
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
    QVERIFY(waitsForItsEndAlone());

    // Nothing is tried again before the service has changed its state.
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

void PrinterStatusThreadSpoolerTest::comesBackWithoutTheNotification()
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

    // The closed printer's handle is what is closed when the service goes down the next time.
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
    // The printer publishes no status, which after "254" is a change to nothing.
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

    // The service now "comes back" while the printer is open and watched: it is opened afresh, and
    // what was open is closed.
    QVERIFY(pass(5000ms));
    QCOMPARE(machine().openHandles(), open);
    QCOMPARE(takeReports(), QList<Report>());
    QCOMPARE(machine().calls(name("FindClosePrinterChangeNotification")).size(), 1);
    QCOMPARE(machine().calls(name("FindFirstPrinterChangeNotification")).size(), 1);
    QVERIFY(publish(PrinterValue::text("StatusCode", "2")));
    QCOMPARE(takeReports(), QList<Report>{status("2")});
}

void PrinterStatusThreadSpoolerTest::serviceThatCannotBeAskedIsNotTakenForStopped_data()
{
    QTest::addColumn<QString>("function");
    QTest::newRow("manager") << name("OpenSCManagerW");
    QTest::newRow("service") << name("OpenServiceW");
}

void PrinterStatusThreadSpoolerTest::serviceThatCannotBeAskedIsNotTakenForStopped()
{
    QFETCH(const QString, function);
    machine().failCall(function, 1, ERROR_ACCESS_DENIED);
    QVERIFY(watch());
    takeReports();
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>());

    // The service is opened and asked whatever the handles are.
    QCOMPARE(machine().callCount(name("OpenServiceW")), 1);
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 3);
    if (function == name("OpenSCManagerW"))
        allowMisuse(Kind::NotAHandle, name("OpenServiceW"));
    for (int query = 0; query < 3; ++query)
        allowMisuse(Kind::NotAHandle, name("QueryServiceStatus"));
}

void PrinterStatusThreadSpoolerTest::printerThatCannotBeOpened()
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
    QVERIFY(waitsForItsEndAlone());
    QVERIFY(pass(4999ms));
    QCOMPARE(machine().calls(name("QueryServiceStatus")).size(), 1);
    QVERIFY(pass(1ms));
    QCOMPARE(machine().calls(name("QueryServiceStatus")).size(), 2);
    QVERIFY(waitsForItsEndAlone());
    QCOMPARE(machine().calls(name("WaitForMultipleObjects")).size(), 2);

    machine().clearCalls();
    endThread();
    QCOMPARE(functionsCalled().filter(QStringLiteral("Close")),
             (QStringList{name("CloseHandle"), name("FindClosePrinterChangeNotification"),
                          name("ClosePrinter"), name("CloseServiceHandle"),
                          name("CloseServiceHandle")}));
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{noHandle});
}

void PrinterStatusThreadSpoolerTest::printerThatCannotBeOpenedIsNotTriedAgain()
{
    machine().failCall(name("OpenPrinterA"), 1, ERROR_INVALID_PRINTER_NAME);
    QVERIFY(watch());
    for (int poll = 0; poll < 10; ++poll)
        QVERIFY(pass(5000ms));
    QCOMPARE(machine().callCount(name("OpenPrinterA")), 1);
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 11);
    QCOMPARE(takeReports(), QList<Report>());

    // A change of the service is what opens it.
    machine().stopSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>{status("254")});
    machine().startSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(),
             (QList<Report>{status(""), report("printerNameChangedSignal", labelPrinter)}));
}

void PrinterStatusThreadSpoolerTest::spoolerDownAtTheStart()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    machine().stopSpooler();
    QVERIFY(watch());
    QCOMPARE(logged(), QList<LogRecord>{openingFailed()});
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(), QList<Report>()); // the state is the one found at the start

    machine().startSpooler();
    QVERIFY(pass(5000ms));
    QCOMPARE(takeReports(),
             (QList<Report>{status("1"), report("printerNameChangedSignal", labelPrinter)}));
}

void PrinterStatusThreadSpoolerTest::notificationThatCannotBeHad()
{
    machine().failCall(name("FindFirstPrinterChangeNotification"), 1, ERROR_NOT_ENOUGH_MEMORY);
    machine().recordCalls();
    QVERIFY(watch());
    QCOMPARE(logged(), QList<LogRecord>{notificationFailed()});
    QCOMPARE(takeReports(), QList<Report>());
    const QString printer = lastCall("FindFirstPrinterChangeNotification").arguments.first();
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});
    QVERIFY(waitsForItsEndAlone());

    allowMisuse(Kind::ClosedTwice, name("ClosePrinter"));
    machine().clearCalls();
    endThread();
    QCOMPARE(lastCall("ClosePrinter").arguments, QStringList{printer});
}

void PrinterStatusThreadSpoolerTest::fullAccessThatIsRefused()
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

void PrinterStatusThreadSpoolerTest::failedWaitIsTriedAgain()
{
    machine().failCall(name("WaitForMultipleObjects"), 1, ERROR_INVALID_HANDLE);
    QVERIFY(watch());
    takeReports();
    QCOMPARE(machine().callCount(name("WaitForMultipleObjects")), 2);
    QCOMPARE(machine().callCount(name("QueryServiceStatus")), 1);
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
}

void PrinterStatusThreadSpoolerTest::failedReArmingStillReads()
{
    QVERIFY(watch());
    takeReports();
    machine().failCall(name("FindNextPrinterChangeNotification"), 1, ERROR_INVALID_HANDLE);
    // Not re-armed, the notification is still signalled, so that the next turn re-arms it.
    QVERIFY(publish(PrinterValue::text("StatusCode", "1")));
    QCOMPARE(takeReports(), QList<Report>{status("1")});
    QCOMPARE(machine().callCount(name("FindNextPrinterChangeNotification")), 2);
}

void PrinterStatusThreadSpoolerTest::printerThatIsRemoved()
{
    machine().publish(labelPrinter, PrinterValue::text("StatusCode", "1"));
    QVERIFY(watch());
    takeReports();
    machine().removePrinter(labelPrinter);
    QVERIFY(settle());
    // Nothing can be read any more.
    QCOMPARE(takeReports(), (QList<Report>{status(""), report("printerNameChangedSignal", {})}));
}

QTEST_GUILESS_MAIN(PrinterStatusThreadSpoolerTest)
#include "tst_printer_status_thread_spooler.moc"
