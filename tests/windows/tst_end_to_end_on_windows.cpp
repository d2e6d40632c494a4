// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// From a driver's value to the host's record, and to another process that calls the host's
// endpoints.
#include "host_test.h"
#include "other_process.h"

#include "vx_ipc_m4_controller.h"
#include "vx_ipc_supplyd_controller.h"

class EndToEndOnWindowsTest : public HostTest
{
    Q_OBJECT

private Q_SLOTS:
    void newRibbonReachesHostAndOtherProcess();
    void newSupplyReachesHostAndOtherProcess();
    void statusOutsideIsThatOfDiscovery();

private:
    QJsonValue askSupplies(const char* method, const QStringList& arguments)
    {
        return callFromOtherProcess(*m_controller->getSupplyIdController(),
                                    QString::fromLatin1(method), arguments);
    }
    QJsonValue statusOutside(const QString& printer)
    {
        return callFromOtherProcess(*m_controller->getm4Controller(),
                                    QStringLiteral("getPrinterStatus"), {printer});
    }
};

void EndToEndOnWindowsTest::newRibbonReachesHostAndOtherProcess()
{
    const QString printer = addLoadedPrinter();
    host();
    QVERIFY(waitUntilLoaded(printer));
    QCOMPARE(record(printer).ribbon1ColorName, QStringLiteral("Black"));

    QVERIFY(publish(printer, {"Ribbon1Identifier", REG_DWORD, word(2006)}));

    QTRY_COMPARE_WITH_TIMEOUT(record(printer).ribbon1ColorName, QStringLiteral("Green"), patience);
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
    QVERIFY(waitUntilLoaded(printer));
    QCOMPARE(record(printer).supplyColorName, QStringLiteral("White"));

    QVERIFY(publish(printer, {"SupplyIdentifier", REG_SZ, text("000000641000050000B1")}));

    QTRY_COMPARE_WITH_TIMEOUT(record(printer).supplyColorName, QStringLiteral("Blue"), patience);
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
        addPrinter("Stratamark Alder", localPrinter, QStringLiteral("192.0.2.20"));
    host();
    QVERIFY(waitUntilLoaded(watched));
    QCOMPARE(record(remote).statusEnum, 256);
    QVERIFY(record(remote).printerRemote);
    QCOMPARE(statusOutside(watched).toInt(), 255);
    QCOMPARE(statusOutside(remote).toInt(), 256);
    QCOMPARE(statusOutside(QStringLiteral("Nowhere")).toInt(), 255);
}

QTEST_GUILESS_MAIN(EndToEndOnWindowsTest)
#include "tst_end_to_end_on_windows.moc"
