// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Printers, their values, notifications and jobs.
#include "machine_calls.h"

#include <functional>
#include <thread>

using virtualwindows::Machine;
using virtualwindows::PrinterValue;
using virtualwindows::PrintJob;

using Change = std::function<void(Machine&)>;
Q_DECLARE_METATYPE(Change)

class MachinePrintersTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void printersAreListedInOrder();
    void nullTextsAreNullPointers();
    void renamedPrinterKeepsItsHandles();
    void removedPrinterIsGone();
    void changesShowInThePrintersRecord();
    void namesThatDifferInCaseAreTwoPrinters();
    void flagsSelectThePrintersListed_data();
    void flagsSelectThePrintersListed();
    void restrictedPrinterRefusesAdministration_data();
    void restrictedPrinterRefusesAdministration();
    void defaultPrinterMayBeMissing();
    void valuesKeepTheirTypeAndBytes_data();
    void valuesKeepTheirTypeAndBytes();
    void valuesPublishedTogetherNotifyOnce();
    void unpublishedValueIsGone();
    void changesNotify_data();
    void changesNotify();
    void rightsAreNotifiedAndTheDefaultPrinterIsNot();
    void printedJobsCanBeReadBack();
    void purgedJobIsCancelled();
};

void MachinePrintersTest::printersAreListedInOrder()
{
    const QStringList names{QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a")};
    for (const QString& name : names)
        machine().addPrinter({.name = name,
                              .driver = name + QStringLiteral(" driver"),
                              .port = name + QStringLiteral(" port"),
                              .attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED,
                              .status = PRINTER_STATUS_PAPER_OUT});
    QCOMPARE(machine().printers(), names);
    QCOMPARE(enumeratedNames(), names);
    const PrinterRecord second = enumeratePrinters().at(1);
    QCOMPARE(second.driver, QStringLiteral("c driver"));
    QCOMPARE(second.port, QStringLiteral("c port"));
    QCOMPARE(second.attributes, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED);
    QCOMPARE(second.status, PRINTER_STATUS_PAPER_OUT);
}

void MachinePrintersTest::nullTextsAreNullPointers()
{
    machine().addPrinter({.name = QString(), .driver = QString(), .port = QString()});
    machine().addPrinter(
        {.name = QStringLiteral(""), .driver = QStringLiteral(""), .port = QStringLiteral("")});
    const QList<PrinterRecord> printers = enumeratePrinters();
    QCOMPARE(printers.size(), 2);
    QVERIFY(printers.at(0).name.isNull());
    QVERIFY(printers.at(0).driver.isNull());
    QVERIFY(printers.at(0).port.isNull());
    QVERIFY(!printers.at(1).name.isNull());
    QVERIFY(!printers.at(1).driver.isNull());
    QVERIFY(!printers.at(1).port.isNull());
}

void MachinePrintersTest::renamedPrinterKeepsItsHandles()
{
    const QString newName = QStringLiteral("Other Printer");
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, PrinterValue::number("Mileage", 1));
    machine().setDefaultPrinter(printerName);
    const HANDLE printer = openHandle();
    machine().renamePrinter(printerName, newName);
    QCOMPARE(machine().printers(), QStringList{newName});
    QCOMPARE(defaultPrinter(), newName);
    QCOMPARE(openHandle(), HANDLE(nullptr));
    QCOMPARE(readValue(printer, "Mileage").result, ERROR_SUCCESS);
    ClosePrinter(printer);
}

void MachinePrintersTest::removedPrinterIsGone()
{
    machine().addPrinter({.name = printerName});
    machine().addPrinter({.name = QStringLiteral("b")});
    machine().setDefaultPrinter(printerName);
    const HANDLE printer = openHandle();
    machine().removePrinter(printerName);
    QCOMPARE(machine().printers(), QStringList{QStringLiteral("b")});
    QCOMPARE(defaultPrinter(), QString());
    QCOMPARE(readValue(printer, "Mileage").result, ERROR_PRINTER_DELETED);
    QVERIFY(ClosePrinter(printer));
    QCOMPARE(openHandle(), HANDLE(nullptr));
    QCOMPARE(GetLastError(), ERROR_INVALID_PRINTER_NAME);
}

void MachinePrintersTest::changesShowInThePrintersRecord()
{
    machine().addPrinter({.name = printerName});
    machine().setAttributes(printerName, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE);
    machine().setStatus(printerName, PRINTER_STATUS_PAPER_JAM);
    machine().setPort(printerName, QStringLiteral("USB042"));
    machine().setDriver(printerName, QStringLiteral("Other Driver"));
    const PrinterRecord printer = enumeratePrinters().first();
    QCOMPARE(printer.attributes, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE);
    QCOMPARE(printer.status, PRINTER_STATUS_PAPER_JAM);
    QCOMPARE(printer.port, QStringLiteral("USB042"));
    QCOMPARE(printer.driver, QStringLiteral("Other Driver"));
}

void MachinePrintersTest::namesThatDifferInCaseAreTwoPrinters()
{
    const QString capitals = printerName.toUpper();
    machine().addPrinter({.name = printerName, .port = QStringLiteral("USB001")});
    machine().addPrinter({.name = capitals, .port = QStringLiteral("USB002")});
    machine().publish(capitals, PrinterValue::number("Mileage", 2));
    const HANDLE first = openHandle();
    const HANDLE second = openHandle(capitals);
    QCOMPARE(readValue(first, "Mileage").result, ERROR_FILE_NOT_FOUND);
    QCOMPARE(readValue(second, "Mileage").result, ERROR_SUCCESS);
    ClosePrinter(first);
    ClosePrinter(second);
}

void MachinePrintersTest::flagsSelectThePrintersListed_data()
{
    QTest::addColumn<DWORD>("flags");
    QTest::addColumn<QStringList>("names");
    const QString local = QStringLiteral("local");
    const QString shared = QStringLiteral("shared");
    const QString network = QStringLiteral("network");
    const QString connection = QStringLiteral("connection");
    QTest::newRow("none") << DWORD{0} << QStringList{};
    QTest::newRow("local") << PRINTER_ENUM_LOCAL << QStringList{local, shared, network};
    QTest::newRow("connections") << PRINTER_ENUM_CONNECTIONS << QStringList{connection};
    QTest::newRow("both") << (PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS)
                          << QStringList{local, shared, network, connection};
    QTest::newRow("local ones that are shared")
        << (PRINTER_ENUM_LOCAL | PRINTER_ENUM_SHARED) << QStringList{shared};
}

void MachinePrintersTest::flagsSelectThePrintersListed()
{
    QFETCH(DWORD, flags);
    QFETCH(QStringList, names);
    machine().addPrinter({.name = QStringLiteral("local")});
    machine().addPrinter({.name = QStringLiteral("shared"),
                          .attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED});
    machine().addPrinter({.name = QStringLiteral("network"),
                          .attributes = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_NETWORK});
    machine().addPrinter(
        {.name = QStringLiteral("connection"), .attributes = PRINTER_ATTRIBUTE_NETWORK});
    QCOMPARE(enumeratedNames(flags), names);
}

void MachinePrintersTest::restrictedPrinterRefusesAdministration_data()
{
    QTest::addColumn<DWORD>("access");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("all rights") << PRINTER_ALL_ACCESS << true;
    QTest::newRow("to administer") << PRINTER_ACCESS_ADMINISTER << true;
    QTest::newRow("to delete") << DELETE << true;
    QTest::newRow("to use") << PRINTER_ACCESS_USE << false;
    QTest::newRow("no access given") << DWORD{0} << false;
}

void MachinePrintersTest::restrictedPrinterRefusesAdministration()
{
    QFETCH(DWORD, access);
    QFETCH(bool, isRefused);
    machine().addPrinter({.name = printerName, .administrable = false});
    SetLastError(untouched);
    const HANDLE refused = openHandle(printerName, access);
    QCOMPARE(refused == nullptr, isRefused);
    QCOMPARE(GetLastError(), isRefused ? ERROR_ACCESS_DENIED : untouched);
    if (refused)
        QVERIFY(ClosePrinter(refused));
    machine().setAdministrable(printerName, true);
    const HANDLE opened = openHandle(printerName, access);
    QVERIFY(opened);
    QVERIFY(ClosePrinter(opened));
}

void MachinePrintersTest::defaultPrinterMayBeMissing()
{
    machine().addPrinter({.name = printerName});
    DWORD count = 300;
    WCHAR name[300];
    QVERIFY(!GetDefaultPrinterW(name, &count));
    QCOMPARE(GetLastError(), ERROR_FILE_NOT_FOUND);
    machine().setDefaultPrinter(printerName);
    QCOMPARE(defaultPrinter(), printerName);
    machine().setDefaultPrinter(QString());
    QCOMPARE(defaultPrinter(), QString());
    // Without a name and an earlier choice, the system chooses.
    QVERIFY(SetDefaultPrinterW(nullptr));
    QCOMPARE(defaultPrinter(), printerName);
}

void MachinePrintersTest::valuesKeepTheirTypeAndBytes_data()
{
    QTest::addColumn<PrinterValue>("value");
    QTest::addColumn<DWORD>("type");
    QTest::addColumn<QByteArray>("data");
    QTest::newRow("text") << PrinterValue::text("V", "abc") << REG_SZ << QByteArray("abc\0", 4);
    QTest::newRow("empty text") << PrinterValue::text("V", "") << REG_SZ << QByteArray("\0", 1);
    QTest::newRow("number") << PrinterValue::number("V", 0x01020384) << REG_DWORD
                            << QByteArray("\x84\x03\x02\x01", 4);
    QTest::newRow("bytes") << PrinterValue::binary("V", QByteArray("a\0b", 3)) << REG_BINARY
                           << QByteArray("a\0b", 3);
    QTest::newRow("nothing") << PrinterValue::binary("V", QByteArray()) << REG_BINARY
                             << QByteArray();
    QTest::newRow("any type and size")
        << PrinterValue{"V", REG_DWORD, QByteArray(7, 'x')} << REG_DWORD << QByteArray(7, 'x');
    QTest::newRow("text without a terminating zero")
        << PrinterValue{"V", REG_SZ, "abc"} << REG_SZ << QByteArray("abc");
}

void MachinePrintersTest::valuesKeepTheirTypeAndBytes()
{
    QFETCH(PrinterValue, value);
    QFETCH(DWORD, type);
    QFETCH(QByteArray, data);
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, value);
    const HANDLE printer = openHandle(printerName, PRINTER_ACCESS_USE);
    const ReadValue read = readValue(printer, "V");
    ClosePrinter(printer);
    QCOMPARE(read.result, ERROR_SUCCESS);
    QCOMPARE(read.type, type);
    QCOMPARE(read.data, data);
}

void MachinePrintersTest::valuesPublishedTogetherNotifyOnce()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    qint64 second = -1;
    int wakeUps = 0;
    {
        const HANDLE stop = openEvent();
        {
            const std::jthread watcher([&] {
                const HANDLE handles[] = {stop, notification};
                while (WaitForMultipleObjects(2, handles, FALSE, INFINITE) == WAIT_OBJECT_0 + 1) {
                    takeChanges(notification);
                    ++wakeUps;
                    // A thread that sees the first value sees the others too.
                    second = readValue(printer, "B").result == ERROR_SUCCESS ? 1 : 0;
                }
            });
            const bool wasWaiting = machine().waitForWaitingThreads(1);
            machine().publish(printerName,
                              {PrinterValue::number("A", 1), PrinterValue::number("B", 2)});
            const bool isWaitingAgain = machine().waitForWaitingThreads(1);
            SetEvent(stop);
            QVERIFY(wasWaiting);
            QVERIFY(isWaitingAgain);
        }
        CloseHandle(stop);
    }
    QCOMPARE(wakeUps, 1);
    QCOMPARE(second, 1);
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
}

void MachinePrintersTest::unpublishedValueIsGone()
{
    machine().addPrinter({.name = printerName});
    machine().publish(printerName, {PrinterValue::number("A", 1), PrinterValue::number("B", 2)});
    const HANDLE printer = openHandle();
    machine().unpublish(printerName, "a");
    QCOMPARE(readValue(printer, "A").result, ERROR_FILE_NOT_FOUND);
    QCOMPARE(readValue(printer, "B").result, ERROR_SUCCESS);
    ClosePrinter(printer);
}

void MachinePrintersTest::changesNotify_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<DWORD>("reported");
    const auto row = [](const char* name, DWORD reported, const Change& change) {
        QTest::newRow(name) << change << reported;
    };
    const DWORD set = PRINTER_CHANGE_SET_PRINTER;
    row("publish", set, [](Machine& m) { m.publish(printerName, PrinterValue::number("A", 1)); });
    row("unpublish", set, [](Machine& m) { m.unpublish(printerName, "A"); });
    row("attributes", set, [](Machine& m) { m.setAttributes(printerName, 0x440); });
    row("status", set, [](Machine& m) { m.setStatus(printerName, 1); });
    row("port", set, [](Machine& m) { m.setPort(printerName, QStringLiteral("USB002")); });
    row("driver", set, [](Machine& m) { m.setDriver(printerName, QStringLiteral("x")); });
    row("rename", set, [](Machine& m) { m.renamePrinter(printerName, QStringLiteral("x")); });
    row("remove", PRINTER_CHANGE_DELETE_PRINTER, [](Machine& m) { m.removePrinter(printerName); });
    row("notify", PRINTER_CHANGE_FORM,
        [](Machine& m) { m.notify(printerName, PRINTER_CHANGE_FORM); });
    row("notify outside the filter", 0, [](Machine& m) { m.notify(printerName, 0x80000000U); });
    row("another printer", 0, [](Machine& m) { m.addPrinter({.name = QStringLiteral("b")}); });
    row("another default", 0, [](Machine& m) { m.setDefaultPrinter(printerName); });
}

void MachinePrintersTest::changesNotify()
{
    QFETCH(Change, change);
    QFETCH(DWORD, reported);
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    const HANDLE notification = openNotification(printer);
    change(machine());
    QCOMPARE(isSignalled(notification), reported != 0);
    QCOMPARE(takeChanges(notification), reported);
    QVERIFY(!isSignalled(notification));
    FindClosePrinterChangeNotification(notification);
    ClosePrinter(printer);
}

// The default printer is a setting of the user, not of the print spooler:
// https://learn.microsoft.com/previous-versions/windows/it-pro/windows-server-2003/cc758237(v=ws.10)
// No change of it is among those that can be watched:
// https://learn.microsoft.com/windows/win32/printdocs/findfirstprinterchangenotification
void MachinePrintersTest::rightsAreNotifiedAndTheDefaultPrinterIsNot()
{
    addDefaultPrinter();
    HANDLE server = nullptr;
    QVERIFY(OpenPrinterW(nullptr, &server, nullptr));
    const HANDLE notification = openNotification(server);
    machine().setAdministrable(printerName, false);
    QCOMPARE(takeChanges(notification), DWORD{PRINTER_CHANGE_SET_PRINTER});
    machine().setDefaultPrinter(QString());
    QCOMPARE(takeChanges(notification), DWORD{0});
    machine().removePrinter(printerName);
    QCOMPARE(takeChanges(notification), DWORD{PRINTER_CHANGE_DELETE_PRINTER});
    QVERIFY(FindClosePrinterChangeNotification(notification));
    QVERIFY(ClosePrinter(server));
}

void MachinePrintersTest::printedJobsCanBeReadBack()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    WCHAR document[] = u"Label";
    WCHAR file[] = u"C:\\label.bin";
    WCHAR datatype[] = u"RAW";
    DOC_INFO_1W info{document, file, datatype};
    const DWORD id = StartDocPrinterW(printer, 1, reinterpret_cast<LPBYTE>(&info));
    QVERIFY(id != 0);
    char bytes[] = "abc";
    DWORD written = 0;
    StartPagePrinter(printer);
    WritePrinter(printer, bytes, 1, &written);
    WritePrinter(printer, bytes + 1, 2, &written);
    EndPagePrinter(printer);
    StartPagePrinter(printer);
    EndPagePrinter(printer);

    QList<PrintJob> jobs = machine().jobs(printerName);
    QCOMPARE(jobs.size(), 1);
    QCOMPARE(jobs.first().id, id);
    QCOMPARE(jobs.first().document, QStringLiteral("Label"));
    QCOMPARE(jobs.first().outputFile, QStringLiteral("C:\\label.bin"));
    QCOMPARE(jobs.first().datatype, QStringLiteral("RAW"));
    QCOMPARE(jobs.first().pages, QList<QByteArray>({"abc", ""}));
    QVERIFY(!jobs.first().finished);
    EndDocPrinter(printer);
    QVERIFY(machine().jobs(printerName).first().finished);

    // Closing the printer also ends an unfinished document.
    QVERIFY(startDocument(printer) != 0);
    QVERIFY(ClosePrinter(printer));
    jobs = machine().jobs(printerName);
    QCOMPARE(jobs.size(), 2);
    QVERIFY(jobs.last().outputFile.isNull());
    QVERIFY(jobs.last().datatype.isNull());
    QVERIFY(jobs.last().finished);
}

void MachinePrintersTest::purgedJobIsCancelled()
{
    machine().addPrinter({.name = printerName});
    const HANDLE printer = openHandle();
    QVERIFY(startDocument(printer) != 0);
    QCOMPARE(enumeratePrinters().first().jobs, DWORD{1});
    QVERIFY(SetPrinterW(printer, 0, nullptr, PRINTER_CONTROL_PURGE));
    QCOMPARE(enumeratePrinters().first().jobs, DWORD{0});
    char byte = 'x';
    DWORD written = 7;
    QVERIFY(!WritePrinter(printer, &byte, 1, &written));
    QCOMPARE(GetLastError(), ERROR_PRINT_CANCELLED);
    QCOMPARE(written, DWORD{0});
    QVERIFY(ClosePrinter(printer));
}

QTEST_GUILESS_MAIN(MachinePrintersTest)
#include "tst_machine_printers.moc"
