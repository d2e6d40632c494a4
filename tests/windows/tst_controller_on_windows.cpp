// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The controller of a host: printers are found, go offline, have errors and receive commands.
#include "host_test.h"
#include "log_recorder.h"

#include "windows_printer_info.h"

#include <QtCore/QTemporaryDir>

namespace {

void setAttributes(const QString& printer, DWORD attributes)
{
    QSettings key(QStringLiteral("HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\Print\\"
                                 "Printers\\") +
                      printer,
                  QSettings::NativeFormat);
    key.setValue(QStringLiteral("Attributes"), static_cast<quint32>(attributes));
}

} // namespace

class ControllerOnWindowsTest : public HostTest
{
    Q_OBJECT

private Q_SLOTS:
    void findsThePrintersOfEveryModel();
    void otherPrintersAreIgnoredAndReportedOnce();
    void offlinePrinterGetsItsRecordWhenItIsOnline();
    void printerThatGoesOfflineIsReported();
    void defaultPrinterBecomesActive();
    void readsWhatIsLoaded();
    void errorIsRaisedAndCleared();
    void titlesOfTheCodes();
    void commandArrivesAtThePrinter();
    void commandToAnUnknownPrinterIsLogged();
};

void ControllerOnWindowsTest::findsThePrintersOfEveryModel()
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
        QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 1, patience);
    QCOMPARE(m_controller->getPrinterTypeEnum(watched.at(2)), VXPrinting::PrinterType::CedarMax);
}

void ControllerOnWindowsTest::otherPrintersAreIgnoredAndReportedOnce()
{
    host();
    const QString printer = addPrinter("Harlow Devices Old");
    m_controller->checkForPrinters();
    QCOMPARE(takeSignals(), QStringList{statusChanged(0, printer)});
    m_controller->checkForPrinters();
    QCOMPARE(takeSignals(), QStringList());
    QCOMPARE(recordNames(), QStringList());
}

void ControllerOnWindowsTest::offlinePrinterGetsItsRecordWhenItIsOnline()
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
    QTRY_VERIFY_WITH_TIMEOUT(m_signals.contains(statusChanged(1, printer)), patience);
}

void ControllerOnWindowsTest::printerThatGoesOfflineIsReported()
{
    const QString printer = addPrinter("Stratamark CedarMax");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    host();
    QVERIFY(waitForStatus(printer, 1));

    setAttributes(printer, offlinePrinter);
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("0")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 257, patience);
    QVERIFY(!record(printer).printerOnline);
    // The only record stays the active printer.
    QCOMPARE(takeSignals(),
             (QStringList{QStringLiteral("activeDefaultPrinterSetSignal(%1, 1)").arg(printer),
                          statusChanged(257, printer), listUpdated}));

    setAttributes(printer, localPrinter);
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 1, patience);
    QVERIFY(record(printer).printerOnline);
}

void ControllerOnWindowsTest::defaultPrinterBecomesActive()
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
    QVERIFY(waitForStatus(first, 1));
    QVERIFY(waitForStatus(second, 1));

    QVERIFY(SetDefaultPrinterW(WideText(first)));
    QVERIFY(publish(first, {"StatusCode", REG_SZ, text("4")}));
    QTRY_COMPARE_WITH_TIMEOUT(m_controller->activeDefaultPrinter(), first, patience);
    QCOMPARE(takeSignals(),
             (QStringList{QStringLiteral("printerErrorChangedSignal(1)"),
                          QStringLiteral("activeDefaultPrinterSetSignal(%1, 1)").arg(first),
                          statusChanged(4, first), listUpdated}));
    if (!before.isEmpty())
        QVERIFY(SetDefaultPrinterW(WideText(before)));
}

void ControllerOnWindowsTest::readsWhatIsLoaded()
{
    const QString printer = addLoadedPrinter();
    QVERIFY(!printer.isEmpty());
    host();
    QVERIFY(waitUntilLoaded(printer));
    const PrinterStatusInformation loaded = record(printer);
    QCOMPARE(loaded.statusEnum, 1);
    QCOMPARE(loaded.supplySKU, QStringLiteral("VT-400-WH"));
    QCOMPARE(loaded.supplyColorHex, QStringLiteral("#ffffff"));
    QCOMPARE(loaded.supplyColorName, QStringLiteral("White"));
    QCOMPARE(loaded.supplyMaterialName, QStringLiteral("Vinyl"));
    QCOMPARE(loaded.supplyPercentage, 50);
    QCOMPARE(loaded.ribbon1SKU, QStringLiteral("RS-43-BK"));
    QCOMPARE(loaded.ribbon1ColorName, QStringLiteral("Black"));
    QCOMPARE(loaded.ribbon1Percentage, 49);
    QCOMPARE(loaded.ribbon2SKU, QStringLiteral("RS-43-RD"));
    QCOMPARE(loaded.ribbon2ColorHex, QStringLiteral("#c8102e"));
    QCOMPARE(m_controller->getPrinterSoftwareVersion(printer), QStringLiteral("4.1.3"));
}

void ControllerOnWindowsTest::errorIsRaisedAndCleared()
{
    const QString printer = addPrinter("Stratamark BirchMax");
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    host();
    QVERIFY(waitForStatus(printer, 1));

    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("4")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 4, patience);
    QCOMPARE(takeSignals(), (QStringList{QStringLiteral("printerErrorChangedSignal(1)"),
                                         statusChanged(4, printer), listUpdated}));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("1")}));
    QTRY_COMPARE_WITH_TIMEOUT(record(printer).statusEnum, 1, patience);
    QCOMPARE(takeSignals(), (QStringList{QStringLiteral("printerErrorChangedSignal(0)"),
                                         statusChanged(1, printer), listUpdated}));
}

void ControllerOnWindowsTest::titlesOfTheCodes()
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

void ControllerOnWindowsTest::commandArrivesAtThePrinter()
{
    // A port that is named like a file is a file, which receives what is sent to the printer.
    const QTemporaryDir folder;
    const QString port = QDir::toNativeSeparators(folder.filePath(QStringLiteral("printed.bin")));
    const QString printer = addPrinter("Stratamark CedarMax", localPrinter, port);
    host();
    m_controller->sendCommandToPrinter(QStringLiteral("FEED 3"), printer);
    QFile printed(port);
    QTRY_VERIFY_WITH_TIMEOUT(printed.exists() && printed.size() == 8, patience);
    QVERIFY(printed.open(QIODevice::ReadOnly));
    QCOMPARE(printed.readAll(), QByteArray("FEED 3\r\n"));
}

void ControllerOnWindowsTest::commandToAnUnknownPrinterIsLogged()
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

QTEST_GUILESS_MAIN(ControllerOnWindowsTest)
#include "tst_controller_on_windows.moc"
