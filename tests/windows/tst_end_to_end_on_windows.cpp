// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host with the library as it ships, on the system's spooler and registry: from a driver's value
// to the host's record, and to another process that asks the host's endpoints.
//
// The library opens roll.db beside the host's executable, so this test has a folder of its own.
#include "library_test.h"
#include "log_recorder.h"
#include "other_process.h"
#include "sample_database.h"

#include "printer_status_controller.h"
#include "vx_ipc_m4_controller.h"
#include "vx_ipc_supplyd_controller.h"
#include "windows_printer_info.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

using Controller = PrinterStatusController;

namespace {

constexpr DWORD localPrinter = PRINTER_ATTRIBUTE_LOCAL;
constexpr DWORD offlinePrinter = PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE;

const QString listUpdated = QStringLiteral("availablePrintersUpdated()");

QString statusChanged(int status, const QString& printer)
{
    return QStringLiteral("statusChangedSignal(%1, %2)").arg(status).arg(printer);
}

void setAttributes(const QString& printer, DWORD attributes)
{
    QSettings key(QStringLiteral("HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\Print\\"
                                 "Printers\\") +
                      printer,
                  QSettings::NativeFormat);
    key.setValue(QStringLiteral("Attributes"), static_cast<quint32>(attributes));
}

} // namespace

class EndToEndOnWindowsTest : public LibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() override;

    void findsThePrintersOfEveryModel();
    void ignoresOthersAndSaysSoOnce();
    void takesUpAnOfflinePrinterLater();
    void tellsOfAPrinterThatGoesOffline();
    void worksWithTheDefaultPrinter();
    void readsWhatIsLoaded();
    void newRibbonReachesHostAndOtherProcess();
    void newSupplyReachesHostAndOtherProcess();
    void statusOutsideIsThatOfDiscovery();
    void errorIsRaisedAndCleared();
    void titlesOfTheCodes();
    void commandArrivesAtThePrinter();
    void commandToNobodyIsLogged();

private:
    QString addPrinter(const char* model, DWORD attributes = localPrinter,
                       const QString& port = QStringLiteral("USB001"))
    {
        const QString name = fixture::uniqueName(QStringLiteral("Label Printer"));
        const bool added =
            fixture::addPrinter({name, QString::fromLatin1(model), port, attributes});
        return added ? name : QString();
    }
    /// A printer that is ready, with supply and ribbons of the sample catalogue.
    QString addLoadedPrinter()
    {
        const QString printer = addPrinter("Stratamark AlderMax");
        const QList<Value> values{
            {"StatusCode", REG_SZ, text("1")},
            {"SupplyIdentifier", REG_SZ, text("000000641000010000A7")},
            {"Mileage", REG_DWORD, word(15240)},
            {"Ribbon1Identifier", REG_DWORD, word(2001)},
            {"Ribbon2Identifier", REG_DWORD, word(2004)},
            {"Ribbon1Mileage", REG_DWORD, word(60000)},
            {"SoftwareVersion", REG_SZ, text("4.1.3,boot 1.7")},
        };
        for (const Value& value : values) {
            if (!publish(printer, value))
                return {};
        }
        return printer;
    }
    void host()
    {
        m_controller = std::make_unique<Controller>(nullptr);
        const auto add = [this](const QString& line) {
            m_signals.append(line);
        };
        connect(m_controller.get(), &Controller::availablePrintersUpdated, this,
                [add] { add(listUpdated); });
        connect(
            m_controller.get(), &Controller::printerErrorChangedSignal, this,
            [add](bool error) { add(QStringLiteral("printerErrorChangedSignal(%1)").arg(error)); });
        connect(m_controller.get(), &Controller::statusChangedSignal, this,
                [add](int status, const QString& printer) { add(statusChanged(status, printer)); });
        connect(m_controller.get(), &Controller::supplyIdChangedSignal, this,
                [add](const QString& printer) {
                    add(QStringLiteral("supplyIdChangedSignal(%1)").arg(printer));
                });
        connect(m_controller.get(), &Controller::ribbonIdsChangedSignal, this,
                [add](const QString& printer) {
                    add(QStringLiteral("ribbonIdsChangedSignal(%1)").arg(printer));
                });
        connect(
            m_controller.get(), &Controller::activeDefaultPrinterSetSignal, this,
            [add](const QString& printer, bool isVX) {
                add(QStringLiteral("activeDefaultPrinterSetSignal(%1, %2)").arg(printer).arg(isVX));
            });
    }
    QStringList takeSignals() { return std::exchange(m_signals, {}); }
    QStringList recordNames() const
    {
        QStringList names;
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& entry : records)
            names.append(entry.value<PrinterStatusInformation>().printerName);
        return names;
    }
    /// A default record when there is none under that name.
    PrinterStatusInformation record(const QString& name) const
    {
        const QVariantList records = m_controller->getAvailablePrinters();
        for (const QVariant& entry : records) {
            const auto record = entry.value<PrinterStatusInformation>();
            if (record.printerName == name)
                return record;
        }
        return {};
    }
    /// Waits until the printer's thread has reported a status, and forgets the signals so far.
    void waitForStatus(const QString& printer, int status)
    {
        QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, status, 20000);
        // What was read together with it is reported right after it.
        QTest::qWait(0);
        takeSignals();
    }
    QJsonValue askSupplies(const char* method, const QStringList& arguments)
    {
        return askFromOutside(*m_controller->getSupplyIdController(), QString::fromLatin1(method),
                              arguments);
    }
    QJsonValue statusOutside(const QString& printer)
    {
        return askFromOutside(*m_controller->getm4Controller(), QStringLiteral("getPrinterStatus"),
                              {printer});
    }

    std::unique_ptr<Controller> m_controller;
    QStringList m_signals;
};

void EndToEndOnWindowsTest::initTestCase()
{
    LibraryTest::initTestCase();
    writeSampleDatabase(QCoreApplication::applicationDirPath());
}

void EndToEndOnWindowsTest::cleanup()
{
    m_controller.reset();
    m_signals.clear();
    LibraryTest::cleanup();
}

void EndToEndOnWindowsTest::findsThePrintersOfEveryModel()
{
    QStringList watched;
    for (const char* model : {"Stratamark Alder", "Stratamark BirchMax", "Stratamark CedarMax",
                              "Stratamark AlderMax"}) {
        watched.append(addPrinter(model));
        QVERIFY(publish(watched.last(), {"StatusCode", REG_SZ, text("1")}));
    }
    QVERIFY(!addPrinter("Harlow Devices Old").isEmpty());
    QVERIFY(!addPrinter("Some Office Printer").isEmpty());
    host();
    QStringList sorted = watched;
    sorted.sort();
    QCOMPARE(recordNames(), sorted);
    QVERIFY(record(watched.at(0)).ribbon2Visible);
    QVERIFY(!record(watched.at(1)).ribbon2Visible);
    QVERIFY(!record(watched.at(2)).ribbon2Visible);
    QVERIFY(record(watched.at(3)).ribbon2Visible);
    for (const QString& printer : std::as_const(watched))
        QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 1, 20000);
    QCOMPARE(m_controller->getPrinterTypeEnum(watched.at(2)), VXPrinting::PrinterType::CedarMax);
}

void EndToEndOnWindowsTest::ignoresOthersAndSaysSoOnce()
{
    host();
    const QString printer = addPrinter("Harlow Devices Old");
    m_controller->checkForPrinters();
    QCOMPARE(takeSignals(), QStringList{statusChanged(0, printer)});
    m_controller->checkForPrinters();
    QCOMPARE(takeSignals(), QStringList());
    QCOMPARE(recordNames(), QStringList());
}

void EndToEndOnWindowsTest::takesUpAnOfflinePrinterLater()
{
    const QString printer = addPrinter("Stratamark CedarMax", offlinePrinter);
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    host();
    QCOMPARE(recordNames(), QStringList());
    m_controller->checkForPrinters();
    QCOMPARE(recordNames(), QStringList());

    setAttributes(printer, localPrinter);
    QCOMPARE(recordNames(), QStringList()); // nothing looks for printers on its own
    m_controller->checkForPrinters();
    QCOMPARE(recordNames(), QStringList{printer});
    QTRY_VERIFY_WITH_TIMEOUT(m_signals.contains(statusChanged(1, printer)), 20000);
}

void EndToEndOnWindowsTest::tellsOfAPrinterThatGoesOffline()
{
    const QString printer = addPrinter("Stratamark CedarMax");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    host();
    waitForStatus(printer, 1);

    setAttributes(printer, offlinePrinter);
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("0")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 257, 20000);
    QVERIFY(!record(printer).printerOnline);
    // The only record there is stays the active printer.
    QCOMPARE(takeSignals(),
             (QStringList{QStringLiteral("activeDefaultPrinterSetSignal(%1, 1)").arg(printer),
                          statusChanged(257, printer), listUpdated}));

    setAttributes(printer, localPrinter);
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 1, 20000);
    QVERIFY(record(printer).printerOnline);
}

void EndToEndOnWindowsTest::worksWithTheDefaultPrinter()
{
    const QString first = addPrinter("Stratamark Alder");
    const QString second = addPrinter("Stratamark Alder");
    for (const QString& printer : {first, second})
        QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    const QString before = WindowsPrinterInfo::getDefaultPrinterName();
    QVERIFY(SetDefaultPrinterW(WideText(second)));
    host();
    QCOMPARE(m_controller->activeDefaultPrinter(), second);
    QVERIFY(m_controller->vxDefaultActivePrinter());
    QVERIFY(record(second).printerDefault);
    waitForStatus(first, 1);
    waitForStatus(second, 1);

    QVERIFY(SetDefaultPrinterW(WideText(first)));
    QVERIFY(publish(first, {"StatusCode", REG_SZ, text("4")}));
    QTRY_COMPARE_WITH_TIMEOUT(m_controller->activeDefaultPrinter(), first, 20000);
    QCOMPARE(takeSignals(),
             (QStringList{QStringLiteral("printerErrorChangedSignal(1)"),
                          QStringLiteral("activeDefaultPrinterSetSignal(%1, 1)").arg(first),
                          statusChanged(4, first), listUpdated}));
    if (!before.isEmpty())
        QVERIFY(SetDefaultPrinterW(WideText(before)));
}

void EndToEndOnWindowsTest::readsWhatIsLoaded()
{
    const QString printer = addLoadedPrinter();
    QVERIFY(!printer.isEmpty());
    host();
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).softwareVersion, QStringLiteral("4.1.3,boot 1.7"),
                              20000);
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).ribbon1Percentage, 49, 20000);
    const PrinterStatusInformation loaded = record(printer);
    QCOMPARE(loaded.statusEnum, 1);
    QCOMPARE(loaded.supplySKU, QStringLiteral("VT-400-WH"));
    QCOMPARE(loaded.supplyColorHex, QStringLiteral("#ffffff"));
    QCOMPARE(loaded.supplyColorName, QStringLiteral("White"));
    QCOMPARE(loaded.supplyMaterialName, QStringLiteral("Vinyl"));
    QCOMPARE(loaded.supplyPercentage, 50);
    QCOMPARE(loaded.ribbon1SKU, QStringLiteral("RS-43-BK"));
    QCOMPARE(loaded.ribbon1ColorName, QStringLiteral("Black"));
    QCOMPARE(loaded.ribbon2SKU, QStringLiteral("RS-43-RD"));
    QCOMPARE(loaded.ribbon2ColorHex, QStringLiteral("#c8102e"));
    QCOMPARE(m_controller->getPrinterSoftwareVersion(printer), QStringLiteral("4.1.3"));
}

void EndToEndOnWindowsTest::newRibbonReachesHostAndOtherProcess()
{
    const QString printer = addLoadedPrinter();
    host();
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).ribbon1ColorName, QStringLiteral("Black"), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).ribbon1Percentage, 49, 20000);
    takeSignals();

    QVERIFY(publish(printer, {"Ribbon1Identifier", REG_DWORD, word(2006)}));

    QTRY_COMPARE_WITH_TIMEOUT(record(printer).ribbon1ColorName, QStringLiteral("Green"), 20000);
    QCOMPARE(takeSignals(),
             (QStringList{QStringLiteral("ribbonIdsChangedSignal(%1)").arg(printer), listUpdated}));
    const PrinterStatusInformation loaded = record(printer);
    QCOMPARE(loaded.ribbon1SKU, QStringLiteral("RS-43-GN"));
    QCOMPARE(loaded.ribbon1ColorHex, QStringLiteral("#00843d"));

    const QJsonValue skus = askSupplies("supplyRibbonSKUsCached", {printer});
    QCOMPARE(skus, QJsonValue(QJsonArray{loaded.ribbon1SKU, loaded.ribbon2SKU}));
    QCOMPARE(askSupplies("supplyRibbonColorName", {skus[0].toString()}).toString(),
             loaded.ribbon1ColorName);
    QCOMPARE(askSupplies("supplyRibbonColorName", {skus[1].toString()}).toString(),
             loaded.ribbon2ColorName);
}

void EndToEndOnWindowsTest::newSupplyReachesHostAndOtherProcess()
{
    const QString printer = addLoadedPrinter();
    host();
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).supplyColorName, QStringLiteral("White"), 20000);
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).ribbon1Percentage, 49, 20000);
    takeSignals();

    QVERIFY(publish(printer, {"SupplyIdentifier", REG_SZ, text("000000641000050000B1")}));

    QTRY_COMPARE_WITH_TIMEOUT(record(printer).supplyColorName, QStringLiteral("Blue"), 20000);
    QCOMPARE(takeSignals(),
             (QStringList{QStringLiteral("supplyIdChangedSignal(%1)").arg(printer), listUpdated}));
    QCOMPARE(askSupplies("supplySKUCached", {printer}).toString(), QStringLiteral("VT-400-BL"));
    QCOMPARE(askSupplies("supplyColorName", {QStringLiteral("VT-400-BL"), printer}).toString(),
             QStringLiteral("Blue"));
}

void EndToEndOnWindowsTest::statusOutsideIsThatOfDiscovery()
{
    const QString watched = addLoadedPrinter();
    const QString remote =
        addPrinter("Stratamark Alder", localPrinter, QStringLiteral("192.168.1.20"));
    host();
    waitForStatus(watched, 1);
    QCOMPARE(record(remote).statusEnum, 256);
    QVERIFY(record(remote).printerRemote);
    QCOMPARE(statusOutside(watched).toInt(), 255);
    QCOMPARE(statusOutside(remote).toInt(), 256);
    QCOMPARE(statusOutside(QStringLiteral("Nowhere")).toInt(), 255);
}

void EndToEndOnWindowsTest::errorIsRaisedAndCleared()
{
    const QString printer = addPrinter("Stratamark BirchMax");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    host();
    waitForStatus(printer, 1);

    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("4")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 4, 20000);
    QCOMPARE(takeSignals(), (QStringList{QStringLiteral("printerErrorChangedSignal(1)"),
                                         statusChanged(4, printer), listUpdated}));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 1, 20000);
    QCOMPARE(takeSignals(), (QStringList{QStringLiteral("printerErrorChangedSignal(0)"),
                                         statusChanged(1, printer), listUpdated}));
}

void EndToEndOnWindowsTest::titlesOfTheCodes()
{
    host();
    QCOMPARE(m_controller->getStatusTitle(0), QStringLiteral("Disconnected"));
    QCOMPARE(m_controller->getStatusTitle(1), QStringLiteral("Ready"));
    QCOMPARE(m_controller->getStatusTitle(255),
             QStringLiteral("Unable To Retrieve Printer Info. (Code 255)"));
    QCOMPARE(m_controller->getStatusTitle(256),
             QStringLiteral("Printer Is Remotely Connected.\nUnable to retrieve printer info."));
    QCOMPARE(m_controller->getStatusTitle(257), QStringLiteral("Disconnected"));
    QCOMPARE(m_controller->getStatusTitle(258),
             QStringLiteral("Printer Is Not Managed.\nUnable to retrieve printer info."));
    QVERIFY(!m_controller->getStatusTitle(-5).isEmpty());
}

void EndToEndOnWindowsTest::commandArrivesAtThePrinter()
{
    // A port that is named like a file is one: what the printer is sent ends up in it.
    const QTemporaryDir folder;
    const QString port = QDir::toNativeSeparators(folder.filePath(QStringLiteral("printed.bin")));
    const QString printer = addPrinter("Stratamark CedarMax", localPrinter, port);
    host();
    m_controller->sendCommandToPrinter(QStringLiteral("FEED 3"), printer);
    QFile printed(port);
    QTRY_VERIFY_WITH_TIMEOUT(printed.exists() && printed.size() == 8, 20000);
    QVERIFY(printed.open(QIODevice::ReadOnly));
    QCOMPARE(printed.readAll(), QByteArray("FEED 3\r\n"));
}

void EndToEndOnWindowsTest::commandToNobodyIsLogged()
{
    host();
    const LogRecorder log;
    m_controller->sendCommandToPrinter(QStringLiteral("FEED 3"), QStringLiteral("Nobody"));
    QCOMPARE(log.records(),
             QList<LogRecord>{
                 libraryLine("printer_status_controller", 338,
                             "void PrinterStatusController::sendCommandToPrinter(QString, QString)",
                             QStringLiteral("Nobody: OpenPrinter call failed"))});
}

QTEST_GUILESS_MAIN(EndToEndOnWindowsTest)
#include "tst_end_to_end_on_windows.moc"
