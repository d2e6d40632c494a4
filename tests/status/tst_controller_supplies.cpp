// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How the controller handles the supplies, ribbons, mileages and versions that printers report. The
// supply endpoint is the real one; the databases behind it return what each test has set.
#include "controller_test.h"
#include "scripted_supply_database.h"
#include "vx_ipc_supplyd_controller.h"

namespace {
const QString alder = QStringLiteral("Ash");   // publishes percentages
const QString birch = QStringLiteral("Beech"); // publishes millimetres
const QString updated = QStringLiteral("availablePrintersUpdated()");

ScriptedSupplyDatabase& database(const QString& printer = birch)
{
    return ScriptedSupplyDatabase::ofPrinter(printer);
}

/// An identifier of a roll that was 500 feet long when new.
const QString roll = QStringLiteral("000001F4100042000001");
} // namespace

class ControllerSuppliesTest : public ControllerTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;

    void supplyIdentifier_data();
    void supplyIdentifier();
    void supplyFillsTheRecord();
    void supplyColour_data();
    void supplyColour();
    void supplyKeepsThePercentage();
    void changedSupplyIsLogged();
    void supplyLogQuotesItsTexts();
    void supplyOfAnUnknownPrinterCreatesARecord();
    void ribbonsFillTheRecord();
    void ribbonSkus_data();
    void ribbonSkus();
    void ribbonColour_data();
    void ribbonColour();
    void ribbonsOfAnUnknownPrinterCreateARecord();
    void supplyMileage_data();
    void supplyMileage();
    void farthestSupplyMileage();
    void ribbonMileage_data();
    void ribbonMileage();
    void percentagesOfAlder_data();
    void percentagesOfAlder();
    void typeIsQueriedAtEachMileage();
    void removedPrinterHasNoType();
    void eachRibbonHasItsOwnLength();
    void mileageOfAnUnknownPrinterCreatesARecord();
    void mileageQueriesTheDatabaseAlsoForPercentages();
    void softwareVersion_data();
    void softwareVersion();
    void softwareVersionOfAnUnknownPrinter();
    void softwareVersionHasNoSignalOfItsOwn();
    void otherRecordsAreNotChanged();
};

void ControllerSuppliesTest::init()
{
    ControllerTest::init();
    ScriptedSupplyDatabase::reset();
    addPrinter(alder, QStringLiteral("Stratamark Alder"));
    addPrinter(birch, QStringLiteral("Stratamark BirchMax"));
    makeController();
    QVERIFY(machine().waitForWaitingThreads(2));
    takeLog();
}

void ControllerSuppliesTest::supplyIdentifier_data()
{
    QTest::addColumn<QString>("reported");
    QTest::addColumn<QString>("stored");
    QTest::newRow("identifier") << roll << roll;
    QTest::newRow("empty") << ""
                           << "-1";
    QTest::newRow("null") << QString() << "-1";
    QTest::newRow("twenty zeros") << QString(20, QLatin1Char('0')) << "-1";
    QTest::newRow("nineteen zeros")
        << QString(19, QLatin1Char('0')) << QString(19, QLatin1Char('0'));
    QTest::newRow("twenty-one zeros")
        << QString(21, QLatin1Char('0')) << QString(21, QLatin1Char('0'));
    QTest::newRow("-1") << "-1"
                        << "-1";
}

void ControllerSuppliesTest::supplyIdentifier()
{
    QFETCH(const QString, reported);
    QFETCH(const QString, stored);
    database().supplySku = QStringLiteral("answer");
    report("onSupplyIdChanged", birch, reported);
    QCOMPARE(ScriptedSupplyDatabase::takeCalls(),
             QStringList({QStringLiteral("Beech: setSupplyId(%1)").arg(stored),
                          QStringLiteral("Beech: supplySKU()"),
                          QStringLiteral("Beech: supplyColorRGB(answer)")}));
    QCOMPARE(takeSignals(), QStringList({QStringLiteral("supplyIdChangedSignal(Beech)"), updated}));
    QCOMPARE(record(birch).supplySKU, QStringLiteral("answer"));
}

void ControllerSuppliesTest::supplyFillsTheRecord()
{
    database().supplySku = QStringLiteral("VT-1");
    database().supplyRgb = 0x00C8FF0E;
    // The record is filled before the signal is emitted.
    QString skuInSlot;
    recorder().hook = [&](const QString& signal) {
        if (signal != updated)
            skuInSlot = record(birch).supplySKU;
    };
    report("onSupplyIdChanged", birch, roll);
    recorder().hook = nullptr;
    QCOMPARE(skuInSlot, QStringLiteral("VT-1"));

    const PrinterStatusInformation found = record(birch);
    QCOMPARE(found.supplySKU, QStringLiteral("VT-1"));
    QCOMPARE(found.supplyColorHex, QStringLiteral("#c8ff0e"));
    QCOMPARE(found.supplyColorName, QStringLiteral("colour of VT-1 by Beech"));
    QCOMPARE(found.supplyMaterialName, QStringLiteral("material of VT-1 by Beech"));
}

void ControllerSuppliesTest::supplyColour_data()
{
    QTest::addColumn<int>("rgb");
    QTest::addColumn<QString>("hex");
    QTest::newRow("black") << 0 << "#000000";
    QTest::newRow("leading zeros") << 0x00000A << "#00000a";
    QTest::newRow("white") << 0xFFFFFF << "#ffffff";
    QTest::newRow("not known") << -1 << "#ffffff";
    QTest::newRow("what would be alpha is ignored") << 0x7F123456 << "#123456";
}

void ControllerSuppliesTest::supplyColour()
{
    QFETCH(const int, rgb);
    QFETCH(const QString, hex);
    database().supplyRgb = rgb;
    report("onSupplyIdChanged", birch, roll);
    QCOMPARE(record(birch).supplyColorHex, hex);
}

void ControllerSuppliesTest::supplyKeepsThePercentage()
{
    report("onSupplyIntMileageChanged", alder, QStringLiteral("57"));
    report("onSupplyIdChanged", alder, QString());
    QCOMPARE(record(alder).supplyPercentage, 57);
}

void ControllerSuppliesTest::changedSupplyIsLogged()
{
    database().supplySku = QStringLiteral("VT-1");
    database().supplyRgb = 0x112233;
    report("onSupplyIdChanged", birch, roll);
    QCOMPARE(takeLog(),
             QList<LogRecord>{libraryLine(
                 "printer_status_controller", 583,
                 "void PrinterStatusController::onSupplyIdChanged(QString, QString)",
                 QStringLiteral("\n \"Beech\" true \"VT-1\" \"#112233\" "
                                "\"colour of VT-1 by Beech\" \"material of VT-1 by Beech\" "))});
}

void ControllerSuppliesTest::supplyLogQuotesItsTexts()
{
    const QString name = QStringLiteral("The \"big\" one");
    addPrinter(name);
    controller().checkForPrinters();
    setOffline(name);
    reportStatus(name, "0");
    takeLog();
    report("onSupplyIdChanged", name, roll);
    const QStringList messages = takeMessages();
    QCOMPARE(messages.size(), 1);
    QVERIFY2(messages.first().startsWith(
                 QStringLiteral("\n \"The \\\"big\\\" one\" false \"\" \"#ffffff\" ")),
             qPrintable(messages.first()));
}

void ControllerSuppliesTest::supplyOfAnUnknownPrinterCreatesARecord()
{
    ScriptedSupplyDatabase::shared().supplySku = QStringLiteral("shared");
    report("onSupplyIdChanged", QStringLiteral("Nobody"), roll);
    QCOMPARE(record(QString()).supplySKU, QStringLiteral("shared"));
    QCOMPARE(takeSignals(),
             QStringList({QStringLiteral("supplyIdChangedSignal(Nobody)"), updated}));
}

void ControllerSuppliesTest::ribbonsFillTheRecord()
{
    database().ribbonSkus = {QStringLiteral("R-1"), QStringLiteral("R-2")};
    database().ribbon1Rgbs = {QStringLiteral("16711680"), QStringLiteral("255")};
    database().ribbon2Rgbs = {QStringLiteral("255"), QStringLiteral("0")};
    QVERIFY(QMetaObject::invokeMethod(
        &controller(), "onRibbonIdsChanged", Qt::DirectConnection, Q_ARG(QString, birch),
        Q_ARG(QStringList, QStringList({QStringLiteral("105"), QStringLiteral("106")}))));

    QCOMPARE(ScriptedSupplyDatabase::takeCalls(),
             QStringList({QStringLiteral("Beech: setRibbonIds(105, 106)"),
                          QStringLiteral("Beech: supplyRibbonSKUs()")}));
    const PrinterStatusInformation found = record(birch);
    QCOMPARE(found.ribbon1SKU, QStringLiteral("R-1"));
    QCOMPARE(found.ribbon1ColorHex, QStringLiteral("#ff0000"));
    QCOMPARE(found.ribbon1ColorName, QStringLiteral("colour of R-1 panel 1"));
    QCOMPARE(found.ribbon2SKU, QStringLiteral("R-2"));
    QCOMPARE(found.ribbon2ColorHex, QStringLiteral("#0000ff"));
    // The panel is the ribbon's first, not the ribbon's number.
    QCOMPARE(found.ribbon2ColorName, QStringLiteral("colour of R-2 panel 1"));
    QCOMPARE(takeSignals(),
             QStringList({QStringLiteral("ribbonIdsChangedSignal(Beech)"), updated}));
    QVERIFY(takeLog().isEmpty());
}

void ControllerSuppliesTest::ribbonSkus_data()
{
    QTest::addColumn<QStringList>("skus");
    QTest::addColumn<QString>("ribbon1");
    QTest::addColumn<QString>("ribbon2");
    QTest::addColumn<bool>("isSignalled");

    const QString none = QStringLiteral("-1");
    const QString other = QStringLiteral("R-9");
    QTest::newRow("none") << QStringList{} << "R-1"
                          << "R-2" << false;
    QTest::newRow("one") << QStringList{other} << "R-9"
                         << "R-2" << true;
    QTest::newRow("both") << QStringList{other, QStringLiteral("R-8")} << "R-9"
                          << "R-8" << true;
    QTest::newRow("three") << QStringList{other, none, other} << "R-9"
                           << "R-2" << true;
    QTest::newRow("only the second") << QStringList{none, other} << "R-1"
                                     << "R-9" << true;
    QTest::newRow("both taken out") << QStringList{none, none} << "R-1"
                                    << "R-2" << true;
    QTest::newRow("the only one taken out") << QStringList{none} << "R-1"
                                            << "R-2" << true;
    QTest::newRow("unknown ones") << QStringList{QString(), QString()} << ""
                                  << "" << true;
}

void ControllerSuppliesTest::ribbonSkus()
{
    QFETCH(const QStringList, skus);
    QFETCH(const QString, ribbon1);
    QFETCH(const QString, ribbon2);
    QFETCH(const bool, isSignalled);

    const auto change = [&](const QStringList& answer) {
        database().ribbonSkus = answer;
        QMetaObject::invokeMethod(&controller(), "onRibbonIdsChanged", Qt::DirectConnection,
                                  Q_ARG(QString, birch), Q_ARG(QStringList, QStringList()));
    };
    change({QStringLiteral("R-1"), QStringLiteral("R-2")});
    takeSignals();
    change(skus);

    const PrinterStatusInformation found = record(birch);
    QCOMPARE(found.ribbon1SKU, ribbon1);
    QCOMPARE(found.ribbon2SKU, ribbon2);
    QCOMPARE(found.ribbon1ColorName, QStringLiteral("colour of %1 panel 1").arg(ribbon1));
    QCOMPARE(found.ribbon2ColorName, QStringLiteral("colour of %1 panel 1").arg(ribbon2));
    QCOMPARE(takeSignals(),
             isSignalled ? QStringList({QStringLiteral("ribbonIdsChangedSignal(Beech)"), updated})
                         : QStringList());
}

void ControllerSuppliesTest::ribbonColour_data()
{
    QTest::addColumn<QStringList>("rgbs");
    QTest::addColumn<QString>("hex");
    QTest::newRow("decimal") << QStringList{QStringLiteral("1193046")} << "#123456";
    QTest::newRow("no panels") << QStringList{} << "#000000";
    QTest::newRow("no number") << QStringList{QStringLiteral("red")} << "#000000";
    QTest::newRow("hexadecimal") << QStringList{QStringLiteral("0x123456")} << "#000000";
    QTest::newRow("negative") << QStringList{QStringLiteral("-1")} << "#000000";
    QTest::newRow("largest") << QStringList{QStringLiteral("4294967295")} << "#ffffff";
    QTest::newRow("too large") << QStringList{QStringLiteral("4294967296")} << "#000000";
}

void ControllerSuppliesTest::ribbonColour()
{
    QFETCH(const QStringList, rgbs);
    QFETCH(const QString, hex);
    const QStringList other{QStringLiteral("66051")}; // #010203
    for (const bool first : {true, false}) {
        database().ribbonSkus = {QStringLiteral("R-1"), QStringLiteral("R-2")};
        database().ribbon1Rgbs = first ? rgbs : other;
        database().ribbon2Rgbs = first ? other : rgbs;
        QMetaObject::invokeMethod(&controller(), "onRibbonIdsChanged", Qt::DirectConnection,
                                  Q_ARG(QString, birch), Q_ARG(QStringList, QStringList()));
        const PrinterStatusInformation found = record(birch);
        QCOMPARE(first ? found.ribbon1ColorHex : found.ribbon2ColorHex, hex);
        QCOMPARE(first ? found.ribbon2ColorHex : found.ribbon1ColorHex, QStringLiteral("#010203"));
    }
}

void ControllerSuppliesTest::ribbonsOfAnUnknownPrinterCreateARecord()
{
    ScriptedSupplyDatabase::shared().ribbonSkus = {QStringLiteral("R-1")};
    QMetaObject::invokeMethod(&controller(), "onRibbonIdsChanged", Qt::DirectConnection,
                              Q_ARG(QString, QStringLiteral("Nobody")),
                              Q_ARG(QStringList, QStringList()));
    QCOMPARE(record(QString()).ribbon1SKU, QStringLiteral("R-1"));
}

void ControllerSuppliesTest::supplyMileage_data()
{
    QTest::addColumn<QString>("mileage");
    QTest::addColumn<double>("length");
    QTest::addColumn<int>("expected");
    QTest::newRow("half") << "76200" << 6000.0 << 50;
    QTest::newRow("new") << "152400" << 6000.0 << 100;
    QTest::newRow("too much") << "155000" << 6000.0 << 0;
    QTest::newRow("not known") << "-1" << 6000.0 << 0;
    QTest::newRow("empty text") << "" << 6000.0 << 0;
    QTest::newRow("beyond it is 0") << "1000000.5" << 12000.0 << 50;
    QTest::newRow("all bits set") << "4294967295" << 12000.0 << 50;
    QTest::newRow("length not known") << "76200" << -1.0 << 0;
    QTest::newRow("length 0.4") << "152400" << 0.4 << 0;
    QTest::newRow("length -0.6") << "152400" << -0.6 << 0;
    QTest::newRow("length 0.6") << "152400" << 0.6 << 100;
}

void ControllerSuppliesTest::supplyMileage()
{
    QFETCH(const QString, mileage);
    QFETCH(const double, length);
    QFETCH(const int, expected);
    database().supplyId = roll;
    database().supplyLength = length;
    report("onSupplyIntMileageChanged", birch, mileage);
    QCOMPARE(record(birch).supplyPercentage, expected);
    QCOMPARE(record(birch).ribbon1Percentage, 0);
    QCOMPARE(takeSignals(), QStringList{updated});
}

void ControllerSuppliesTest::farthestSupplyMileage()
{
    database().supplyId = QStringLiteral("00001388100042000001"); // 5000 feet
    database().supplyLength = 60000;
    report("onSupplyIntMileageChanged", birch, QStringLiteral("1000000"));
    QCOMPARE(record(birch).supplyPercentage, 65);
    report("onSupplyIntMileageChanged", birch, QStringLiteral("1000000.5"));
    QCOMPARE(record(birch).supplyPercentage, 0);
}

void ControllerSuppliesTest::ribbonMileage_data()
{
    QTest::addColumn<QString>("mileage");
    QTest::addColumn<double>("length");
    QTest::addColumn<int>("expected");
    QTest::newRow("half") << "60000" << 4725.0 << 49;
    QTest::newRow("a little more than new") << "121000" << 4725.0 << 100;
    QTest::newRow("too much") << "125000" << 4725.0 << 0;
    QTest::newRow("not known") << "-1" << 4725.0 << 0;
    QTest::newRow("empty text") << "" << 9450.0 << 50;
    QTest::newRow("beyond every roll is 0") << "1000000.5" << 9450.0 << 50;
    QTest::newRow("length 1.2") << "120014" << 1.2 << 0;
    QTest::newRow("length 1.6") << "120014" << 1.6 << 97;
    QTest::newRow("length -0.6") << "100" << -0.6 << 0;
}

void ControllerSuppliesTest::ribbonMileage()
{
    QFETCH(const QString, mileage);
    QFETCH(const double, length);
    QFETCH(const int, expected);
    database().ribbonSkus = {QStringLiteral("R-1"), QStringLiteral("R-2")};

    database().ribbonLengths = {{QStringLiteral("R-1"), length}};
    report("onRibbon1IntMileageChanged", birch, mileage);
    QCOMPARE(record(birch).ribbon1Percentage, expected);
    QCOMPARE(record(birch).ribbon2Percentage, 0);
    QCOMPARE(takeSignals(), QStringList{updated});

    database().ribbonLengths = {{QStringLiteral("R-2"), length}};
    report("onRibbon2IntMileageChanged", birch, mileage);
    QCOMPARE(record(birch).ribbon2Percentage, expected);
    QCOMPARE(record(birch).ribbon1Percentage, expected);
    QCOMPARE(record(birch).supplyPercentage, 0);
    QCOMPARE(takeSignals(), QStringList{updated});
}

void ControllerSuppliesTest::percentagesOfAlder_data()
{
    QTest::addColumn<QString>("mileage");
    QTest::addColumn<int>("expected");
    QTest::newRow("57.9") << "57.9" << 57;
    QTest::newRow("100") << "100" << 100;
    QTest::newRow("101") << "101" << 0;
    QTest::newRow("-1") << "-1" << 0;
    QTest::newRow("-0.5") << "-0.5" << 0;
    QTest::newRow("empty") << "" << 0;
    QTest::newRow("nan") << "nan" << 0;
    QTest::newRow("inf") << "inf" << 0;
    QTest::newRow("-inf") << "-inf" << 0;
    QTest::newRow("-1e300") << "-1e300" << 0;
}

void ControllerSuppliesTest::percentagesOfAlder()
{
    QFETCH(const QString, mileage);
    QFETCH(const int, expected);
    // The lengths of the loaded supply and ribbons do not matter.
    database(alder).supplyLength = 6000;
    report("onSupplyIntMileageChanged", alder, mileage);
    report("onRibbon1IntMileageChanged", alder, mileage);
    report("onRibbon2IntMileageChanged", alder, mileage);
    QCOMPARE(record(alder).supplyPercentage, expected);
    QCOMPARE(record(alder).ribbon1Percentage, expected);
    QCOMPARE(record(alder).ribbon2Percentage, expected);
    QCOMPARE(takeSignals(), QStringList({updated, updated, updated}));
}

void ControllerSuppliesTest::typeIsQueriedAtEachMileage()
{
    machine().setDriver(birch, QStringLiteral("Stratamark Alder"));
    report("onSupplyIntMileageChanged", birch, QStringLiteral("33"));
    QCOMPARE(record(birch).supplyPercentage, 33);

    // Despite its name, AlderMax publishes millimetres.
    machine().setDriver(birch, QStringLiteral("Stratamark AlderMax"));
    report("onSupplyIntMileageChanged", birch, QStringLiteral("33"));
    QCOMPARE(record(birch).supplyPercentage, 0);
}

void ControllerSuppliesTest::removedPrinterHasNoType()
{
    database(alder).supplyId = roll;
    database(alder).supplyLength = 6000;
    machine().removePrinter(alder);
    report("onSupplyIntMileageChanged", alder, QStringLiteral("76200"));
    QCOMPARE(record(alder).supplyPercentage, 50);
}

void ControllerSuppliesTest::eachRibbonHasItsOwnLength()
{
    database().ribbonSkus = {QStringLiteral("R-1"), QStringLiteral("R-2")};
    database().ribbonLengths = {{QStringLiteral("R-1"), 9450.0}, {QStringLiteral("R-2"), 4725.0}};
    report("onRibbon1IntMileageChanged", birch, QStringLiteral("0"));
    report("onRibbon2IntMileageChanged", birch, QStringLiteral("60000"));
    QCOMPARE(record(birch).ribbon1Percentage, 50);
    QCOMPARE(record(birch).ribbon2Percentage, 49);
}

void ControllerSuppliesTest::mileageOfAnUnknownPrinterCreatesARecord()
{
    ScriptedSupplyDatabase::shared().supplyId = roll;
    ScriptedSupplyDatabase::shared().supplyLength = 6000;
    report("onSupplyIntMileageChanged", QStringLiteral("Nobody"), QStringLiteral("76200"));
    QCOMPARE(record(QString()).supplyPercentage, 50);
    QCOMPARE(takeSignals(), QStringList{updated});
}

void ControllerSuppliesTest::mileageQueriesTheDatabaseAlsoForPercentages()
{
    database(alder).supplySku = QStringLiteral("VT-1");
    ScriptedSupplyDatabase::takeCalls();
    report("onSupplyIntMileageChanged", alder, QStringLiteral("57"));
    QVERIFY(
        ScriptedSupplyDatabase::takeCalls().contains(QStringLiteral("Ash: supplyColorRGB(VT-1)")));
}

void ControllerSuppliesTest::softwareVersion_data()
{
    QTest::addColumn<QString>("reported");
    QTest::addColumn<QString>("first");
    QTest::newRow("parts") << "1.2.3,boot 4"
                           << "1.2.3";
    QTest::newRow("no comma") << "1.2.3"
                              << "1.2.3";
    QTest::newRow("comma first") << ",x"
                                 << "";
    QTest::newRow("several") << "a,b,c"
                             << "a";
    QTest::newRow("not trimmed") << " 1.2 ,x"
                                 << " 1.2 ";
    QTest::newRow("empty") << ""
                           << "";
}

void ControllerSuppliesTest::softwareVersion()
{
    QFETCH(const QString, reported);
    QFETCH(const QString, first);
    report("onSoftwareVersionChanged", birch, reported);
    QCOMPARE(record(birch).softwareVersion, reported);
    QCOMPARE(controller().getPrinterSoftwareVersion(birch), first);
    QCOMPARE(takeSignals(), QStringList{updated});
}

void ControllerSuppliesTest::softwareVersionOfAnUnknownPrinter()
{
    report("onSoftwareVersionChanged", birch, QStringLiteral("1.2"));
    for (const QString& name : {QStringLiteral("Nobody"), QStringLiteral("BEECH"), QString()})
        QVERIFY(controller().getPrinterSoftwareVersion(name).isEmpty());
    // A query creates no record, a report does.
    QCOMPARE(recordNames(), QStringList({alder, birch}));
    report("onSoftwareVersionChanged", QStringLiteral("Nobody"), QStringLiteral("7,8"));
    QCOMPARE(controller().getPrinterSoftwareVersion(QStringLiteral("Nobody")), QStringLiteral("7"));
}

void ControllerSuppliesTest::softwareVersionHasNoSignalOfItsOwn()
{
    report("onSoftwareVersionChanged", birch, QStringLiteral("1"));
    QCOMPARE(takeSignals(), QStringList{updated});
}

void ControllerSuppliesTest::otherRecordsAreNotChanged()
{
    database().supplySku = QStringLiteral("VT-1");
    database().ribbonSkus = {QStringLiteral("R-1"), QStringLiteral("R-2")};
    report("onSupplyIdChanged", birch, roll);
    report("onSoftwareVersionChanged", birch, QStringLiteral("1"));
    QMetaObject::invokeMethod(&controller(), "onRibbonIdsChanged", Qt::DirectConnection,
                              Q_ARG(QString, birch), Q_ARG(QStringList, QStringList()));
    const PrinterStatusInformation other = record(alder);
    for (const QString& text : {other.supplySKU, other.supplyColorHex, other.ribbon1SKU,
                                other.ribbon2SKU, other.softwareVersion})
        QVERIFY(text.isEmpty());
    QCOMPARE(record(birch).statusEnum, 255);
    QVERIFY(!record(birch).ribbon2Visible);
}

QTEST_GUILESS_MAIN(ControllerSuppliesTest)
#include "tst_controller_supplies.moc"
