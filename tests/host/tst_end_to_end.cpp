// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The whole way of an event: a printer's driver publishes a value, the host reads the result in a
// record, and another process gets the same from the host's endpoints.
//
// The library opens roll.db beside the host's executable, so this test has a folder of its own.
#include "controller_test.h"
#include "other_process.h"
#include "run_in_english.h"
#include "sample_database.h"

#include "printer_types.h"
#include "status_codes.h"
#include "vx_ipc_m4_controller.h"
#include "vx_ipc_supplyd_controller.h"

#include <QtCore/QJsonObject>

namespace StatusCodes = VXPrinting::StatusCodes;

namespace {

const QString packing = QStringLiteral("Packing Line 2");
const QString returns = QStringLiteral("Rücksendungen");

} // namespace

class EndToEndTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void newRibbonReachesHostAndOtherProcess();
    void newSupplyReachesHostAndOtherProcess();
    void removedRibbonStaysInTheRecordButNotInTheEndpoint();
    void eachPrinterHasItsOwnValues();
    void otherProcessGetsTheWholeRecord();
    void otherProcessGetsTheStatusOfDiscovery();
    void changeWhileTheSpoolerIsDownIsReportedAfterwards();
    void commandReachesThePrinter();
    void endpointEndsWithTheController();

private:
    void addWatchedPrinter(const QString& name, quint32 ribbon1, quint32 ribbon2)
    {
        addPrinter(name, QStringLiteral("Stratamark AlderMax"));
        machine().publish(name, {PrinterValue::text("StatusCode", "1"),
                                 PrinterValue::text("SupplyIdentifier", "000000641000010000A7"),
                                 PrinterValue::number("Mileage", 15240),
                                 PrinterValue::number("Ribbon1Identifier", ribbon1),
                                 PrinterValue::number("Ribbon2Identifier", ribbon2),
                                 PrinterValue::text("SoftwareVersion", "4.1.3,boot 1.7")});
    }
    /// Starts a host that watches one printer. True when the host has the printer's values.
    [[nodiscard]] bool startWithOnePrinter(quint32 ribbon1 = 2001, quint32 ribbon2 = 2004)
    {
        addWatchedPrinter(packing, ribbon1, ribbon2);
        makeController();
        return settle(1);
    }
    /// Publishes a value. True when the host has it.
    [[nodiscard]] bool publish(const QString& printer, const PrinterValue& value, int watched = 1)
    {
        takeSignals();
        machine().publish(printer, value);
        return settle(watched);
    }
    QJsonValue askSupplies(const char* method, const QStringList& arguments)
    {
        return callFromOtherProcess(*controller().getSupplyIdController(),
                                    QString::fromLatin1(method), arguments);
    }
    QJsonValue askPrinters(const char* method, const QStringList& arguments)
    {
        return callFromOtherProcess(*controller().getm4Controller(), QString::fromLatin1(method),
                                    arguments);
    }
};

void EndToEndTest::initTestCase()
{
    writeSampleDatabase(QCoreApplication::applicationDirPath());
}

void EndToEndTest::newRibbonReachesHostAndOtherProcess()
{
    QVERIFY(startWithOnePrinter());
    QCOMPARE(record(packing).ribbon1ColorName, QStringLiteral("Black"));

    QVERIFY(publish(packing, PrinterValue::number("Ribbon1Identifier", 2006)));

    QCOMPARE(takeSignals(), (QStringList{QStringLiteral("ribbonIdsChangedSignal(%1)").arg(packing),
                                         QStringLiteral("availablePrintersUpdated()")}));
    const PrinterStatusInformation printer = record(packing);
    QCOMPARE(printer.ribbon1SKU, QStringLiteral("RS-43-GN"));
    QCOMPARE(printer.ribbon1ColorName, QStringLiteral("Green"));
    QCOMPARE(printer.ribbon1ColorHex, QStringLiteral("#00843d"));
    QCOMPARE(printer.ribbon2SKU, QStringLiteral("RS-43-RD"));
    QCOMPARE(printer.ribbon2ColorName, QStringLiteral("Red"));

    const QJsonValue skus = askSupplies("supplyRibbonSKUsCached", {packing});
    QCOMPARE(skus, QJsonValue(QJsonArray{printer.ribbon1SKU, printer.ribbon2SKU}));
    QCOMPARE(askSupplies("supplyRibbonColorName", {skus[0].toString()}).toString(),
             printer.ribbon1ColorName);
    QCOMPARE(askSupplies("supplyRibbonColorName", {skus[1].toString()}).toString(),
             printer.ribbon2ColorName);
}

void EndToEndTest::newSupplyReachesHostAndOtherProcess()
{
    QVERIFY(startWithOnePrinter());
    QCOMPARE(record(packing).supplyColorName, QStringLiteral("White"));
    QCOMPARE(record(packing).supplyPercentage, 50); // 15240 mm of 100 feet

    QVERIFY(publish(packing, PrinterValue::text("SupplyIdentifier", "000000641000050000B1")));

    QCOMPARE(takeSignals(), (QStringList{QStringLiteral("supplyIdChangedSignal(%1)").arg(packing),
                                         QStringLiteral("availablePrintersUpdated()")}));
    const PrinterStatusInformation printer = record(packing);
    QCOMPARE(printer.supplySKU, QStringLiteral("VT-400-BL"));
    QCOMPARE(printer.supplyColorName, QStringLiteral("Blue"));
    QCOMPARE(printer.supplyColorHex, QStringLiteral("#0057b8"));
    QCOMPARE(printer.supplyMaterialName, QStringLiteral("Vinyl"));

    QCOMPARE(askSupplies("supplySKUCached", {packing}).toString(), printer.supplySKU);
    QCOMPARE(askSupplies("supplyColorName", {printer.supplySKU, packing}).toString(),
             printer.supplyColorName);
    QCOMPARE(askSupplies("supplyMaterialName", {printer.supplySKU, packing}).toString(),
             printer.supplyMaterialName);
    QCOMPARE(askSupplies("supplyColorRGB", {printer.supplySKU, packing}).toInt(), 0x0057b8);
}

void EndToEndTest::removedRibbonStaysInTheRecordButNotInTheEndpoint()
{
    QVERIFY(startWithOnePrinter());
    machine().unpublish(packing, "Ribbon1Identifier");
    QVERIFY(settle(1));
    QCOMPARE(record(packing).ribbon1SKU, QStringLiteral("RS-43-BK"));
    QCOMPARE(askSupplies("supplyRibbonSKUsCached", {packing}),
             QJsonValue(QJsonArray{VXPrinting::nothingLoaded, QStringLiteral("RS-43-RD")}));
}

void EndToEndTest::eachPrinterHasItsOwnValues()
{
    addWatchedPrinter(packing, 2001, 2004);
    addWatchedPrinter(returns, 2018, 2019);
    makeController();
    QVERIFY(settle(2));
    QVERIFY(publish(packing, PrinterValue::number("Ribbon2Identifier", 2005), 2));
    QVERIFY(publish(returns, PrinterValue::number("Ribbon1Identifier", 2007), 2));
    QCOMPARE(askSupplies("supplyRibbonSKUsCached", {packing}),
             QJsonValue(QJsonArray{QStringLiteral("RS-43-BK"), QStringLiteral("RS-43-BL")}));
    QCOMPARE(askSupplies("supplyRibbonSKUsCached", {returns}),
             QJsonValue(QJsonArray{QStringLiteral("RS-43-YL"), QStringLiteral("RM-43-GD")}));
    QCOMPARE(record(packing).ribbon2ColorName, QStringLiteral("Blue"));
    QCOMPARE(record(returns).ribbon1ColorName, QStringLiteral("Yellow"));
}

void EndToEndTest::otherProcessGetsTheWholeRecord()
{
    QVERIFY(startWithOnePrinter(2020, 2004));
    const PrinterStatusInformation printer = record(packing);
    const QJsonValue loaded = askSupplies("supplyInformation", {packing});
    QCOMPARE(loaded[QStringLiteral("supplySku")].toString(), printer.supplySKU);
    QCOMPARE(loaded[QStringLiteral("colorName")].toString(), printer.supplyColorName);
    QCOMPARE(loaded[QStringLiteral("materialName")].toString(), printer.supplyMaterialName);
    QCOMPARE(loaded[QStringLiteral("supplyId")].toString(), QStringLiteral("000000641000010000A7"));
    QCOMPARE(loaded[QStringLiteral("ribbonSkus")],
             QJsonValue(QJsonArray{printer.ribbon1SKU, printer.ribbon2SKU}));
    QCOMPARE(loaded[QStringLiteral("ribbonColorNames")],
             QJsonValue(QJsonArray{printer.ribbon1ColorName, printer.ribbon2ColorName}));
    QCOMPARE(
        askSupplies("supplyInformationBySKUs",
                    {printer.supplySKU,
                     QStringLiteral("[\"%1\",\"%2\"]").arg(printer.ribbon1SKU, printer.ribbon2SKU),
                     packing}),
        loaded);
}

void EndToEndTest::otherProcessGetsTheStatusOfDiscovery()
{
    addWatchedPrinter(packing, 2001, 2004);
    addNetworkPrinter(QStringLiteral("Branch"));
    addUnmanagedPrinter(QStringLiteral("Laboratory"));
    makeController();
    QVERIFY(settle(1));
    QVERIFY(publish(packing, PrinterValue::text("StatusCode", "4")));
    QCOMPARE(record(packing).statusEnum, 4);

    QCOMPARE(askPrinters("getPrinterStatus", {packing}).toInt(), StatusCodes::unknown);
    QCOMPARE(askPrinters("getPrinterStatus", {QStringLiteral("Branch")}).toInt(),
             StatusCodes::networkPrinter);
    QCOMPARE(askPrinters("getPrinterStatus", {QStringLiteral("Laboratory")}).toInt(),
             StatusCodes::notManaged);
    QCOMPARE(askPrinters("getPrinterStatus", {QStringLiteral("Nowhere")}).toInt(),
             StatusCodes::unknown);
}

void EndToEndTest::changeWhileTheSpoolerIsDownIsReportedAfterwards()
{
    QVERIFY(startWithOnePrinter());
    machine().stopSpooler();
    machine().advance(5000ms);
    QVERIFY(settle(1));
    QCOMPARE(record(packing).statusEnum, StatusCodes::spoolerDown);

    machine().publish(packing, PrinterValue::number("Ribbon1Identifier", 2003));
    machine().startSpooler();
    machine().advance(5000ms);
    QVERIFY(settle(1));
    QCOMPARE(record(packing).statusEnum, StatusCodes::ready);
    QCOMPARE(record(packing).ribbon1ColorName, QStringLiteral("White"));
    QCOMPARE(askSupplies("supplyRibbonSKUsCached", {packing})[0].toString(),
             QStringLiteral("RS-43-WH"));
}

void EndToEndTest::commandReachesThePrinter()
{
    QVERIFY(startWithOnePrinter());
    controller().sendCommandToPrinter(QStringLiteral("FEED 3"), packing);
    const QList<virtualwindows::PrintJob> jobs = machine().jobs(packing);
    QCOMPARE(jobs.size(), 1);
    QCOMPARE(jobs.first().document, QStringLiteral("FEED 3"));
    QCOMPARE(jobs.first().datatype, QStringLiteral("RAW"));
    QCOMPARE(jobs.first().pages, QList<QByteArray>{"FEED 3\r\n"});
    QVERIFY(jobs.first().finished);
}

void EndToEndTest::endpointEndsWithTheController()
{
    QVERIFY(startWithOnePrinter());
    QCOMPARE(askSupplies("supplySKUCached", {packing}).toString(), QStringLiteral("VT-400-WH"));
    const QString name = controller().getSupplyIdController()->serverName();
    endController();

    QProcess process;
    process.start(QStringLiteral(VX_VXIPC),
                  {QStringLiteral("call"), name, QStringLiteral("supplyId")});
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitCode(), 1);
    QVERIFY(process.readAllStandardError().startsWith("vxipc: " + name.toUtf8()));
}

int main(int argc, char* argv[])
{
    return runInEnglish<QCoreApplication, EndToEndTest>(argc, argv);
}
#include "tst_end_to_end.moc"
