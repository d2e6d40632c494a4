// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What WindowsPrinterInfo returns about the spooler's printers.
#include "log_recorder.h"
#include "machine_test.h"

#include "windows_handles.h"
#include "windows_printer_info.h"
#include <windowserrors.h>

#include <optional>
#include <stdexcept>

using virtualwindows::PrinterSetup;

namespace {

const QString driver = QStringLiteral("Stratamark Alder");

constexpr DWORD local = PRINTER_ATTRIBUTE_LOCAL;
constexpr DWORD network = PRINTER_ATTRIBUTE_NETWORK;

QString name(const char* text)
{
    return QString::fromUtf8(text);
}

LogRecord infoLine(int line, const QString& message)
{
    return libraryLine("windows_printer_info", line,
                       "static PRINTER_INFO_2* WindowsPrinterInfo::getPrinterInfo2(HANDLE)",
                       message);
}

} // namespace

class WindowsPrinterInfoTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void noPrinters();
    void defaultRecord();
    void printersInTheSpoolersOrder();
    void usbIsRemovedFromPortNames_data();
    void usbIsRemovedFromPortNames();
    void networkPrintersAreRecognised_data();
    void networkPrintersAreRecognised();
    void sharedAndOfflinePrintersAreRecognised_data();
    void sharedAndOfflinePrintersAreRecognised();
    void printerWithoutATextRaises_data();
    void printerWithoutATextRaises();
    void enumerationMakesItsCallsInOrder();
    void failedEnumerationIsEmpty_data();
    void failedEnumerationIsEmpty();
    void enumerationReadsTheRegistryOnce();
    void enumerationMatchesSingleQueries();

    void infoOfOnePrinter();
    void infoHasTheNameThatWasPassed();
    void infoOfAnUnknownPrinterHasDefaults();
    void infoOfAPrinterWithoutTexts();
    void infoWithoutARecordHasDefaults();

    void offlineByName();
    void offlineByHandle();
    void offlineRecord_data();
    void offlineRecord();

    void administrable();
    void defaultPrinter();
    void missingDefaultPrinterIsEmpty_data();
    void missingDefaultPrinterIsEmpty();

    void recordOfAPrinter();
    void failedSizingIsLogged();
    void failedReadingIsLogged();

private:
    void addPrinter(const char* printer, const PrinterSetup& setup = {})
    {
        PrinterSetup complete = setup;
        complete.name = name(printer);
        if (complete.driver.isNull())
            complete.driver = driver;
        machine().addPrinter(complete);
    }
    AvailablePrinters onlyPrinter()
    {
        const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
        return printers.value(printers.size() == 1 ? 0 : -1);
    }
    QList<LogRecord> logged() { return m_log->records(); }

    std::optional<LogRecorder> m_log;
};

void WindowsPrinterInfoTest::init()
{
    MachineTest::init();
    m_log.emplace();
}

void WindowsPrinterInfoTest::cleanup()
{
    m_log.reset();
    MachineTest::cleanup();
}

void WindowsPrinterInfoTest::noPrinters()
{
    QVERIFY(WindowsPrinterInfo::getAvailablePrinters().isEmpty());
}

void WindowsPrinterInfoTest::defaultRecord()
{
    const AvailablePrinters record;
    QVERIFY(record.printerName.isEmpty() && record.portName.isEmpty());
    QVERIFY(record.driverName.isEmpty() && record.serialNumber.isEmpty());
    QVERIFY(!record.isNetworkPrinter && !record.isShared && !record.isOffline);
}

void WindowsPrinterInfoTest::printersInTheSpoolersOrder()
{
    addPrinter("Zeta", {.driver = QStringLiteral("Some Office Printer"), .port = name("LPT1:")});
    addPrinter("alpha");
    addPrinter("Beta", {.port = name("server"), .attributes = network});
    addPrinter("Étiquettes");

    QStringList names;
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    for (const AvailablePrinters& printer : printers)
        names.append(printer.printerName);
    QCOMPARE(names, (QStringList{name("Zeta"), name("alpha"), name("Beta"), name("Étiquettes")}));
    QCOMPARE(printers.first().driverName, QStringLiteral("Some Office Printer"));
    QCOMPARE(printers.first().portName, QStringLiteral("LPT1:"));
}

void WindowsPrinterInfoTest::usbIsRemovedFromPortNames_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("serialNumber");

    const auto row = [](const char* port, const char* kept, const char* serialNumber) {
        QTest::newRow(port) << name(port) << name(kept) << name(serialNumber);
    };
    row("USB001", "001", "ONE");
    row("USB1", "1", "ONE");
    row("USB00000000001", "00000000001", "ONE");
    row("001", "001", "ONE");
    row("USBUSB001", "001", "ONE");
    row("0USB01USB", "001", "ONE");
    row("USB65537", "65537", "ONE");
    row("USB4294901761", "4294901761", "ONE"); // 0xFFFF0001
    row("USB002", "002", "TWO");
    // Texts that are not numbers count as port 0, which a device may have.
    row("USB4294967297", "4294967297", "ZERO");
    row("usb001", "usb001", "ZERO");
    row("LPT1:", "LPT1:", "ZERO");
    row("USB", "", "ZERO");
    row("USB0x1", "0x1", "ZERO");
    row("USB-1", "-1", "ZERO");
    // No device is on it: the result is that of the last one.
    row("USB007", "007", "LAST");
}

void WindowsPrinterInfoTest::usbIsRemovedFromPortNames()
{
    QFETCH(const QString, port);
    QFETCH(const QString, kept);
    QFETCH(const QString, serialNumber);

    const QString guid = name("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
    machine().addDevice({guid, name("##?#USB#VID_3E7A&PID_0001#1#"), 1U, name("ONE")});
    machine().addDevice({guid, name("##?#USB#VID_3E7A&PID_0001#2#"), 2U, name("TWO")});
    machine().addDevice({guid, name("##?#USB#VID_3E7A&PID_0001#3#"), {}, name("ZERO")});
    machine().addDevice({guid, name("##?#USB#VID_3E7A&PID_0001#4#"), 99U, name("LAST")});
    addPrinter("Printer", {.port = port});

    QCOMPARE(onlyPrinter().portName, kept);
    QCOMPARE(onlyPrinter().serialNumber, serialNumber);
    QCOMPARE(WindowsPrinterInfo::getAvailablePrinterInfo(name("Printer")).portName, kept);
    QCOMPARE(WindowsPrinterInfo::getAvailablePrinterInfo(name("Printer")).serialNumber,
             serialNumber);
}

void WindowsPrinterInfoTest::networkPrintersAreRecognised_data()
{
    QTest::addColumn<quint32>("attributes");
    QTest::addColumn<QString>("port");
    QTest::addColumn<bool>("isNetwork");

    QTest::newRow("local") << local << name("USB001") << false;
    QTest::newRow("local and network") << (local | network) << name("USB001") << true;
    QTest::newRow("network") << network << name("USB001") << true;
    QTest::newRow("neither") << 0U << name("USB001") << true;
    QTest::newRow("local with other attributes")
        << (local | PRINTER_ATTRIBUTE_SHARED | PRINTER_ATTRIBUTE_QUEUED) << name("USB001") << false;
    QTest::newRow("an address") << local << name("192.168.1.20") << true;
    QTest::newRow("four parts") << local << name("a.b.c.d") << true;
    QTest::newRow("four empty parts") << local << name("...") << true;
    QTest::newRow("three parts") << local << name("10.0.0") << false;
    QTest::newRow("five parts") << local << name("1.2.3.4.5") << false;
    QTest::newRow("four parts after USB") << local << name("USB1.2.3.4") << true;
    QTest::newRow("four parts and a port") << local << name("1.2.3.4:9100") << true;
}

void WindowsPrinterInfoTest::networkPrintersAreRecognised()
{
    QFETCH(const quint32, attributes);
    QFETCH(const QString, port);
    QFETCH(const bool, isNetwork);
    addPrinter("Printer", {.port = port, .attributes = attributes});
    QCOMPARE(onlyPrinter().isNetworkPrinter, isNetwork);
    QCOMPARE(WindowsPrinterInfo::getAvailablePrinterInfo(name("Printer")).isNetworkPrinter,
             isNetwork);
}

void WindowsPrinterInfoTest::sharedAndOfflinePrintersAreRecognised_data()
{
    QTest::addColumn<quint32>("attributes");
    QTest::addColumn<quint32>("status");
    QTest::addColumn<bool>("isShared");
    QTest::addColumn<bool>("isOffline");

    QTest::newRow("plain") << local << 0U << false << false;
    QTest::newRow("shared") << (local | 0x8U) << 0U << true << false;
    QTest::newRow("works offline") << (local | 0x400U) << 0U << false << true;
    QTest::newRow("reported offline") << local << 0x80U << false << true;
    QTest::newRow("both") << (local | 0x400U) << 0x80U << false << true;
    QTest::newRow("shared and paused") << (local | 0x8U) << PRINTER_STATUS_PAUSED << true << false;
    QTest::newRow("every other status") << local << ~0x80U << false << false;
    QTest::newRow("every other attribute") << ~(0x400U | 0x8U | network) << 0U << false << false;
}

void WindowsPrinterInfoTest::sharedAndOfflinePrintersAreRecognised()
{
    QFETCH(const quint32, attributes);
    QFETCH(const quint32, status);
    QFETCH(const bool, isShared);
    QFETCH(const bool, isOffline);
    addPrinter("Printer", {.attributes = attributes, .status = status});
    for (const AvailablePrinters& printer :
         {onlyPrinter(), WindowsPrinterInfo::getAvailablePrinterInfo(name("Printer"))}) {
        QCOMPARE(printer.isShared, isShared);
        QCOMPARE(printer.isOffline, isOffline);
    }
}

void WindowsPrinterInfoTest::printerWithoutATextRaises_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("printerDriver");
    QTest::addColumn<bool>("raises");
    const QString some = name("text");
    QTest::newRow("all there") << some << some << some << false;
    QTest::newRow("empty texts") << name("") << name("") << name("") << false;
    QTest::newRow("no name") << QString() << some << some << true;
    QTest::newRow("no port") << some << QString() << some << true;
    QTest::newRow("no driver") << some << some << QString() << true;
}

void WindowsPrinterInfoTest::printerWithoutATextRaises()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, port);
    QFETCH(const QString, printerDriver);
    QFETCH(const bool, raises);
    addPrinter("First");
    machine().addPrinter({.name = printer, .driver = printerDriver, .port = port});
    if (raises)
        QVERIFY_EXCEPTION_THROWN(WindowsPrinterInfo::getAvailablePrinters(), std::logic_error);
    else
        QCOMPARE(WindowsPrinterInfo::getAvailablePrinters().size(), 2);
}

void WindowsPrinterInfoTest::enumerationMakesItsCallsInOrder()
{
    addPrinter("Printer");
    machine().recordCalls();
    WindowsPrinterInfo::getAvailablePrinters();
    const QList<virtualwindows::Call> calls = machine().calls(name("EnumPrintersW"));
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).arguments, (QStringList{name("6"), name("null"), name("2"), name("0")}));
    QCOMPARE(calls.at(1).arguments.first(3), (QStringList{name("6"), name("null"), name("2")}));
    QVERIFY(calls.at(1).arguments.at(3).toUInt() > sizeof(PRINTER_INFO_2W));
    QCOMPARE(machine().callCount(name("OpenPrinterA")), 0);
}

void WindowsPrinterInfoTest::failedEnumerationIsEmpty_data()
{
    QTest::addColumn<int>("call");
    QTest::newRow("sizing") << 1;
    QTest::newRow("reading") << 2;
}

void WindowsPrinterInfoTest::failedEnumerationIsEmpty()
{
    QFETCH(const int, call);
    addPrinter("Printer");
    machine().failCall(name("EnumPrintersW"), call, RPC_S_SERVER_UNAVAILABLE);
    QVERIFY(WindowsPrinterInfo::getAvailablePrinters().isEmpty());
    machine().stopSpooler();
    QVERIFY(WindowsPrinterInfo::getAvailablePrinters().isEmpty());
    QVERIFY(logged().isEmpty());
}

void WindowsPrinterInfoTest::enumerationReadsTheRegistryOnce()
{
    const QString guid = name("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
    for (int device = 0; device < 10; ++device)
        machine().addDevice({guid, QStringLiteral("##?#USB#VID_3E7A#%1#").arg(device), device,
                             QString::number(device)});
    const auto registryReads = [&](int printers) {
        while (machine().printers().size() < printers)
            addPrinter(qPrintable(QString::number(machine().printers().size())));
        const int before = machine().callCount(name("RegistryKey"));
        WindowsPrinterInfo::getAvailablePrinters();
        return machine().callCount(name("RegistryKey")) - before;
    };
    const int forOne = registryReads(1);
    QVERIFY(forOne > 0);
    QCOMPARE(registryReads(50), forOne);
}

void WindowsPrinterInfoTest::enumerationMatchesSingleQueries()
{
    const QString guid = name("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
    const QList<QVariant> ports{1U, QStringLiteral("2"), QStringLiteral("none"), {}, 65537U, 7U,
                                7U};
    for (qsizetype device = 0; device < ports.size(); ++device)
        machine().addDevice({guid, QStringLiteral("##?#USB#VID_3E7A#%1#").arg(device),
                             ports.at(device), QStringLiteral("serial %1").arg(device)});
    const char* const portNames[] = {"USB000", "USB001", "USB002",  "USB003",
                                     "USB007", "LPT1:",  "USB65543"};
    for (const char* port : portNames)
        addPrinter(port, {.port = name(port)});

    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    QCOMPARE(printers.size(), 7);
    for (const AvailablePrinters& printer : printers)
        QCOMPARE(printer.serialNumber, WindowsPrinterInfo::getDeviceSerialNumber(
                                           static_cast<unsigned short>(printer.portName.toUInt())));
}

void WindowsPrinterInfoTest::infoOfOnePrinter()
{
    addPrinter("Other", {.port = name("USB002")});
    addPrinter("Printer", {.attributes = local | PRINTER_ATTRIBUTE_SHARED, .status = 0x80});
    const AvailablePrinters info = WindowsPrinterInfo::getAvailablePrinterInfo(name("Printer"));
    QCOMPARE(info.printerName, name("Printer"));
    QCOMPARE(info.portName, name("001"));
    QCOMPARE(info.driverName, driver);
    QVERIFY(info.isShared && info.isOffline && !info.isNetworkPrinter);
}

void WindowsPrinterInfoTest::infoHasTheNameThatWasPassed()
{
    addPrinter("Printer");
    QCOMPARE(WindowsPrinterInfo::getAvailablePrinterInfo(name("PRINTER")).printerName,
             name("PRINTER"));
    QCOMPARE(WindowsPrinterInfo::getAvailablePrinterInfo(name("PRINTER")).driverName, driver);
}

void WindowsPrinterInfoTest::infoOfAnUnknownPrinterHasDefaults()
{
    const AvailablePrinters info = WindowsPrinterInfo::getAvailablePrinterInfo(name("Nobody"));
    QCOMPARE(info.printerName, name("Nobody"));
    QVERIFY(info.portName.isEmpty() && info.driverName.isEmpty() && info.serialNumber.isEmpty());
    QVERIFY(!info.isNetworkPrinter && !info.isShared && !info.isOffline);
    QVERIFY(logged().isEmpty());
}

void WindowsPrinterInfoTest::infoOfAPrinterWithoutTexts()
{
    machine().addPrinter({.name = name("Printer"), .driver = QString(), .port = QString()});
    const AvailablePrinters info = WindowsPrinterInfo::getAvailablePrinterInfo(name("Printer"));
    QVERIFY(info.portName.isEmpty() && info.driverName.isEmpty());
}

void WindowsPrinterInfoTest::infoWithoutARecordHasDefaults()
{
    addPrinter("Printer", {.attributes = local | PRINTER_ATTRIBUTE_SHARED});
    machine().failCall(name("GetPrinterW"), 2, ERROR_ACCESS_DENIED);
    const AvailablePrinters info = WindowsPrinterInfo::getAvailablePrinterInfo(name("Printer"));
    QCOMPARE(info.printerName, name("Printer"));
    QVERIFY(info.portName.isEmpty() && info.driverName.isEmpty());
    QVERIFY(!info.isNetworkPrinter && !info.isShared && !info.isOffline);
    QCOMPARE(logged().size(), 1);
}

void WindowsPrinterInfoTest::offlineByName()
{
    addPrinter("Printer");
    QVERIFY(!WindowsPrinterInfo::isPrinterOffline(name("Printer")));
    machine().setStatus(name("Printer"), 0x80);
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(name("Printer")));
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(name("Nobody")));

    machine().recordCalls();
    WindowsPrinterInfo::isPrinterOffline(name("Printer"));
    QCOMPARE(machine().calls(name("OpenPrinterA")).first().arguments,
             (QStringList{name("Printer"), name("0")}));
}

void WindowsPrinterInfoTest::offlineByHandle()
{
    addPrinter("Printer");
    const PrinterHandle printer = openPrinter(name("Printer"));
    QVERIFY(!WindowsPrinterInfo::isPrinterOffline(printer.get()));
    machine().setAttributes(name("Printer"), local | 0x400);
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(printer.get()));
    machine().setAttributes(name("Printer"), local);
    machine().failCall(name("GetPrinterW"), 1, ERROR_ACCESS_DENIED);
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(printer.get()));
}

void WindowsPrinterInfoTest::offlineRecord_data()
{
    sharedAndOfflinePrintersAreRecognised_data();
}

void WindowsPrinterInfoTest::offlineRecord()
{
    QFETCH(const quint32, attributes);
    QFETCH(const quint32, status);
    QFETCH(const bool, isOffline);
    PRINTER_INFO_2W record{};
    record.Attributes = attributes;
    record.Status = status;
    QCOMPARE(WindowsPrinterInfo::isPrinterOffline(&record), isOffline);
}

void WindowsPrinterInfoTest::administrable()
{
    addPrinter("Printer");
    QVERIFY(WindowsPrinterInfo::isPrinterAdmin(name("Printer")));
    machine().setAdministrable(name("Printer"), false);
    QVERIFY(!WindowsPrinterInfo::isPrinterAdmin(name("Printer")));
    QVERIFY(!WindowsPrinterInfo::isPrinterAdmin(name("Nobody")));

    // The check consists in the opening.
    machine().recordCalls();
    machine().setAdministrable(name("Printer"), true);
    WindowsPrinterInfo::isPrinterAdmin(name("Printer"));
    const QList<virtualwindows::Call> calls = machine().calls();
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).function, name("OpenPrinterA"));
    QCOMPARE(calls.at(0).arguments, (QStringList{name("Printer"), QString::number(0x000F000C)}));
    QCOMPARE(calls.at(1).function, name("ClosePrinter"));
}

void WindowsPrinterInfoTest::defaultPrinter()
{
    addPrinter("Étiquettes");
    machine().setDefaultPrinter(name("Étiquettes"));
    QCOMPARE(WindowsPrinterInfo::getDefaultPrinterName(), name("Étiquettes"));
    machine().setDefaultPrinter(name("Gone"));
    QCOMPARE(WindowsPrinterInfo::getDefaultPrinterName(), name("Gone"));
}

void WindowsPrinterInfoTest::missingDefaultPrinterIsEmpty_data()
{
    QTest::addColumn<int>("failingCall");
    QTest::addColumn<QString>("printer");
    QTest::newRow("none") << 0 << QString();
    QTest::newRow("sizing fails") << 1 << name("Printer");
    QTest::newRow("reading fails") << 2 << name("Printer");
}

void WindowsPrinterInfoTest::missingDefaultPrinterIsEmpty()
{
    QFETCH(const int, failingCall);
    QFETCH(const QString, printer);
    machine().setDefaultPrinter(printer);
    if (failingCall)
        machine().failCall(name("GetDefaultPrinterW"), failingCall, ERROR_FILE_NOT_FOUND);
    QVERIFY(WindowsPrinterInfo::getDefaultPrinterName().isEmpty());
}

void WindowsPrinterInfoTest::recordOfAPrinter()
{
    addPrinter("Printer");
    const PrinterHandle printer = openPrinter(name("Printer"));
    const std::unique_ptr<PRINTER_INFO_2W, decltype(&std::free)> info(
        WindowsPrinterInfo::getPrinterInfo2(printer.get()), &std::free);
    QVERIFY(info);
    QCOMPARE(QString::fromUtf16(info->pPrinterName), name("Printer"));
    QCOMPARE(QString::fromUtf16(info->pPortName), name("USB001"));
    QCOMPARE(info->Attributes, local);
    QVERIFY(logged().isEmpty());
}

void WindowsPrinterInfoTest::failedSizingIsLogged()
{
    addPrinter("Printer");
    const PrinterHandle printer = openPrinter(name("Printer"));
    machine().failCall(name("GetPrinterW"), 1, ERROR_ACCESS_DENIED);
    QVERIFY(!WindowsPrinterInfo::getPrinterInfo2(printer.get()));
    QCOMPARE(machine().callCount(name("GetPrinterW")), 1);
    QCOMPARE(logged(), QList<LogRecord>{infoLine(
                           224, QStringLiteral("5 %1 ").arg(windows_errors::winError(5)))});
}

void WindowsPrinterInfoTest::failedReadingIsLogged()
{
    addPrinter("Printer");
    const PrinterHandle printer = openPrinter(name("Printer"));
    machine().failCall(name("GetPrinterW"), 2, 4000000000U);
    QVERIFY(!WindowsPrinterInfo::getPrinterInfo2(printer.get()));
    QCOMPARE(machine().callCount(name("GetPrinterW")), 2);
    QCOMPARE(logged(), QList<LogRecord>{infoLine(
                           244, QStringLiteral("Failure to access the printer  4000000000 %1 ")
                                    .arg(windows_errors::winError(4000000000U)))});
}

QTEST_GUILESS_MAIN(WindowsPrinterInfoTest)
#include "tst_windows_printer_info.moc"
