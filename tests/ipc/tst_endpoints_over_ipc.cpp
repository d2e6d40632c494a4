// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// All methods of the three endpoints of a host application, called from outside its process.
//
// What the database answers is compared with what plain SQL finds in the same file. The host opens
// the file beside its executable, so host and test lie in a folder of their own.
#include "ipc_host_process.h"
#include "test_file.h"

#include <catalogue.h>
#include <catalogue_writer.h>
#include <vxipcclient.h>
#include <vxlocalelanguages.h>

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtSql/QSqlRecord>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <memory>

namespace {

enum Service : int
{
    Supplies,
    Printers,
    PrintQueue,
    ServiceCount,
};

const QString idlePrinter = QStringLiteral("Idle printer"); // no value of it is ever reported
const QString loadedPrinter = QStringLiteral("Loaded CedarMax 4");
const QString neverAddedPrinter = QStringLiteral("AlderMax that was never added");

const QString connectionName = QStringLiteral("expected answers");

QString databasePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/roll.db");
}

/// The method tables. A question mark follows an optional argument.
const std::array<QStringList, ServiceCount> methodTables{
    QStringList{
        QStringLiteral("QStringList supplySKUList()"),
        QStringLiteral("QStringList supplyRibbonSKUList()"),
        QStringLiteral("QVariantHash supplyColorHash()"),
        QStringLiteral("QVariantHash supplyRibbonColorHash()"),
        QStringLiteral("QString supplyId()"),
        QStringLiteral("QString supplySKUCached(QString printerName)"),
        QStringLiteral("QStringList supplyRibbonSKUsCached(QString printerName)"),
        QStringLiteral("double supplySupplyPercent()"),
        QStringLiteral("double supplyRibbon1Percent()"),
        QStringLiteral("double supplyRibbon2Percent()"),
        QStringLiteral("QString supplySupplyRGB(QString printerName)"),
        QStringLiteral("QStringList supplyRibbon1RGBs(QString printerName)"),
        QStringLiteral("QStringList supplyRibbon2RGBs(QString printerName)"),
        QStringLiteral("QString supplySupplyUID()"),
        QStringLiteral("QString supplyRibbon1UID()"),
        QStringLiteral("QString supplyRibbon2UID()"),
        QStringLiteral("SupplyInformation supplyInformation(QString printerName)"),
        QStringLiteral(
            "SupplyInformation supplyInformationBySKUs(QString supplySku, QStringList ribbonSkus,"
            " QString printerName)"),
        QStringLiteral("QString supplyMaterialName(QString sku, QString printerName)"),
        QStringLiteral("QString supplyFormatName(QString sku, QString printerName)"),
        QStringLiteral("int supplyColorRGB(QString sku, QString printerName)"),
        QStringLiteral("QString supplyColorName(QString sku, QString printerName)"),
        QStringLiteral("double supplyWidth(QString sku, QString printerName)"),
        QStringLiteral("int supplyIsLandscape(QString sku)"),
        QStringLiteral("QByteArray supplyBackgroundImage(QString sku)"),
        QStringLiteral("double supplyNonContinuousLength(QString sku, QString printerName)"),
        QStringLiteral("int supplyTypeIndex(QString sku, QString printerName)"),
        QStringLiteral("int supplyRibbonPanels(QString ribbonSku)"),
        QStringLiteral("double supplyRibbonWidth(QString ribbonSku)"),
        QStringLiteral("double supplyRibbonLength(QString ribbonSku)"),
        QStringLiteral("QString supplyRibbonColorName(QString ribbonSku, int panel?)"),
        QStringLiteral("int supplyRibbonColorRGB(QString ribbonSku, int panel?)"),
        QStringLiteral("int supplyRibbonHeat(QString ribbonSku, int panel, QString supplySku)"),
        QStringLiteral(
            "int supplyRibbonHeatOffset(QString ribbonSku, int panel, QString supplySku)"),
        QStringLiteral("int supplyRibbonMaxSpeed(QString ribbonSku, int panel, QString supplySku)"),
        QStringLiteral("int supplyRibbonTension(QString ribbonSku, int panel, QString supplySku)"),
        QStringLiteral("QString supplyRibbonType(QString ribbonSku)"),
        QStringLiteral(
            "void supplyModuleReady(int windowId, int processId, QString applicationName)"),
        QStringLiteral("void applicationWasClicked()"),
        QStringLiteral("void setModulePrinterName(QString printerName)"),
        QStringLiteral("void openLabelFile(QString filePath)"),
        QStringLiteral("void setSupplyId(QString id, QString printerName)"),
        QStringLiteral("void setRibbonIds(QStringList ids, QString printerName)"),
    },
    QStringList{
        QStringLiteral("int getError()"),
        QStringLiteral("int getAlert()"),
        QStringLiteral("bool isPrinterReady()"),
        QStringLiteral("bool emitError(int value)"),
        QStringLiteral("bool emitAlert(int value)"),
        QStringLiteral("int getPrinterStatus(QString printerName)"),
        QStringLiteral("bool resetCutter()"),
        QStringLiteral("bool resetPrinter()"),
        QStringLiteral("bool cycleCutter()"),
        QStringLiteral("bool calibrateSupply()"),
        QStringLiteral("bool calibrateTach()"),
        QStringLiteral("bool setClearTailRibbon1(bool value)"),
        QStringLiteral("bool setClearTailRibbon2(bool value)"),
        QStringLiteral("bool setSupplySensor(int value, bool override)"),
        QStringLiteral("bool setSupplyWidth(bool value)"),
        QStringLiteral("bool setSupplyLED(bool value)"),
        QStringLiteral("bool setRibbon1Tension(float motor1Tension, float motor2Tension)"),
        QStringLiteral("bool setRibbon2Tension(float motor1Tension, float motor2Tension)"),
        QStringLiteral("bool cancelPrintJob()"),
        QStringLiteral("QString m4Version()"),
        QStringLiteral("QString getSupplySKU()"),
        QStringLiteral("int getBatteryStatus()"),
        QStringLiteral("uint bMark()"),
        QStringLiteral("uint gap()"),
        QStringLiteral("uint preCutter()"),
        QStringLiteral("uint ribbonClr1()"),
        QStringLiteral("uint ribbonClr2()"),
        QStringLiteral("uint ribbonEnc1()"),
        QStringLiteral("uint ribbonEnc2()"),
        QStringLiteral("uint ribbonEnc3()"),
        QStringLiteral("uint ribbonEnc4()"),
        QStringLiteral("bool cutterCover()"),
        QStringLiteral("bool cutterHome()"),
        QStringLiteral("bool printerLid()"),
        QStringLiteral("uint supplySensor()"),
        QStringLiteral("int ribbon1Mileage()"),
        QStringLiteral("int ribbon2Mileage()"),
        QStringLiteral("int supplyMileage()"),
        QStringLiteral("int printerMileage()"),
        QStringLiteral("bool sendMCCMessage(int type, int definedMessage, qulonglong value?)"),
        QStringLiteral("bool sendMCCMessage(int type, int definedMessage, QString value)"),
        QStringLiteral("bool forwardFeed(uint steps)"),
        QStringLiteral("bool backwardFeed(uint steps)"),
        QStringLiteral("bool solenoid1()"),
        QStringLiteral("bool resetSolenoid1()"),
        QStringLiteral("bool solenoid2()"),
        QStringLiteral("bool resetSolenoid2()"),
        QStringLiteral("bool ribbon1()"),
        QStringLiteral("bool resetRibbon1()"),
        QStringLiteral("bool ribbon2()"),
        QStringLiteral("bool resetRibbon2()"),
        QStringLiteral("bool resetPaperMotor1()"),
        QStringLiteral("bool resetMotor()"),
        QStringLiteral("bool setUserSetting(int setting, int value)"),
        QStringLiteral("bool refreshSettings()"),
        QStringLiteral("bool refreshSensors()"),
        QStringLiteral("bool refreshAll()"),
        QStringLiteral("bool rfidTest()"),
        QStringLiteral("bool dumpSettings()"),
        QStringLiteral("bool reqTph1Therm()"),
        QStringLiteral("bool reqTph2Therm()"),
        QStringLiteral("bool reqTph1HeatIndex()"),
        QStringLiteral("bool reqTph2HeatIndex()"),
        QStringLiteral("bool reqTach1Tension()"),
        QStringLiteral("bool reqTach2Tension()"),
        QStringLiteral("bool reqTach3Tension()"),
        QStringLiteral("bool reqTach4Tension()"),
        QStringLiteral("bool reqRibbon1Mileage()"),
        QStringLiteral("bool reqRibbon2Mileage()"),
        QStringLiteral("bool reqSupplyMileage()"),
        QStringLiteral("int tph1Therm()"),
        QStringLiteral("int tph2Therm()"),
        QStringLiteral("int tph1HeatIndexOffset()"),
        QStringLiteral("int tph2HeatIndexOffset()"),
        QStringLiteral("int tach1Tension()"),
        QStringLiteral("int tach2Tension()"),
        QStringLiteral("int tach3Tension()"),
        QStringLiteral("int tach4Tension()"),
        QStringLiteral("void printJobStart(uint addr)"),
        QStringLiteral("void printJobAdded(uint addr)"),
        QStringLiteral("void onStatusChanged(int status, QString printerName)"),
    },
    QStringList{
        QStringLiteral("bool printQueueFull(uint value)"),
        QStringLiteral("bool printQueueComplete(uint value)"),
        QStringLiteral("void addJob(QString GUID, QString jobName, QString appName, int copies,"
                       " int mergeIndex?)"),
        QStringLiteral("QStringList getJobList()"),
        QStringLiteral("PrintJobMetaData getJobInfo(QString GUID)"),
        QStringLiteral("bool reprintPrintJob()"),
        QStringLiteral("bool retryPrintJob()"),
        QStringLiteral("bool clearPrintJob()"),
        QStringLiteral("bool clearAllPrintJobs()"),
    },
};

/// A method whose answer to the same arguments is always the same.
struct FixedAnswer
{
    Service service;
    const char* method;
    QJsonArray arguments;
    QJsonValue answer;
};

/// Calls whose answers are in the database. The columns of a row are the arguments and, last, the
/// answer.
struct DatabaseAnswer
{
    const char* method;
    QString sql;
};

const QJsonObject idleRecord{
    {QStringLiteral("supplyId"), QStringLiteral("")},
    {QStringLiteral("supplySku"), QStringLiteral("-1")},
    {QStringLiteral("ribbonSkus"), QJsonArray()},
    {QStringLiteral("secColorWidth"), -1},
    {QStringLiteral("secColorRGB"), -1},
    {QStringLiteral("secColorName"), QStringLiteral("")},
    {QStringLiteral("secColorNameEn"), QStringLiteral("")},
    {QStringLiteral("supplyLength"), -1},
    {QStringLiteral("material"), -1},
    {QStringLiteral("materialName"), QStringLiteral("")},
    {QStringLiteral("format"), -1},
    {QStringLiteral("formatName"), QStringLiteral("")},
    {QStringLiteral("formatType"), QStringLiteral("")},
    {QStringLiteral("colorRGB"), -1},
    {QStringLiteral("colorName"), QStringLiteral("")},
    {QStringLiteral("colorNameEn"), QStringLiteral("")},
    {QStringLiteral("supplyWidth"), -1},
    {QStringLiteral("isLandscape"), 1},
    {QStringLiteral("backgroundImage"), QStringLiteral("")},
    {QStringLiteral("separatorWidth"), -1},
    {QStringLiteral("nonContinuousLength"), -1},
    {QStringLiteral("typeIndex"), -1},
    {QStringLiteral("ribbon1Panels"), -1},
    {QStringLiteral("ribbon2Panels"), -1},
    {QStringLiteral("ribbon1Width"), -1},
    {QStringLiteral("ribbon2Width"), -1},
    {QStringLiteral("ribbon1Length"), -1},
    {QStringLiteral("ribbon2Length"), -1},
    {QStringLiteral("ribbonColorNames"), QJsonArray()},
    {QStringLiteral("ribbonColorRGBs"), QJsonArray()},
    {QStringLiteral("ribbonHeats"), QJsonArray()},
    {QStringLiteral("ribbonHeatOffsets"), QJsonArray()},
    {QStringLiteral("ribbonMaxSpeeds"), QJsonArray()},
    {QStringLiteral("ribbonTensions"), QJsonArray()},
    {QStringLiteral("ribbonTypes"), QJsonArray{QStringLiteral(""), QStringLiteral("")}},
    {QStringLiteral("multiUpCount"), 1},
    {QStringLiteral("multiUpGapSize"), -1},
};

const QJsonObject unknownJob{
    {QStringLiteral("queuePosition"), 0},
    {QStringLiteral("guid"), QStringLiteral("")},
    {QStringLiteral("jobName"), QStringLiteral("")},
    {QStringLiteral("appName"), QStringLiteral("")},
    {QStringLiteral("copies"), 0},
    {QStringLiteral("mergeIndex"), 0},
    {QStringLiteral("userName"), QStringLiteral("")},
    {QStringLiteral("printerName"), QStringLiteral("")},
    {QStringLiteral("labelCount"), 0},
    {QStringLiteral("labelsPrinted"), 0},
    {QStringLiteral("supplySku"), QStringLiteral("")},
    {QStringLiteral("supplyName"), QStringLiteral("")},
    {QStringLiteral("isCutting"), false},
    {QStringLiteral("ribbon1Sku"), QStringLiteral("")},
    {QStringLiteral("ribbon2Sku"), QStringLiteral("")},
    {QStringLiteral("status"), 0},
    {QStringLiteral("statusText"), QStringLiteral("")},
};

QList<FixedAnswer> fixedAnswers()
{
    const QJsonValue nothing = QJsonValue::Null;
    const QJsonArray text{QStringLiteral("text")};
    const QJsonArray unknown{QStringLiteral("NO-SUCH-SKU")};
    const QJsonArray unknownOfIdle{QStringLiteral("NO-SUCH-SKU"), idlePrinter};
    const QJsonArray unknownPair{QStringLiteral("NO-SUCH-SKU"), 1, QStringLiteral("NO-SUCH-SKU")};
    // clang-format off
    return {
        {Supplies, "supplyId", {}, QStringLiteral("-1")},
        {Supplies, "supplySKUCached", {QStringLiteral("")}, QStringLiteral("-1")},
        {Supplies, "supplySKUCached", {idlePrinter}, QStringLiteral("-1")},
        {Supplies, "supplyRibbonSKUsCached", {idlePrinter}, QJsonArray()},
        {Supplies, "supplySupplyPercent", {}, 0},
        {Supplies, "supplyRibbon1Percent", {}, 0},
        {Supplies, "supplyRibbon2Percent", {}, 0},
        {Supplies, "supplySupplyRGB", {idlePrinter}, QStringLiteral("")},
        {Supplies, "supplyRibbon1RGBs", {idlePrinter}, QJsonArray()},
        {Supplies, "supplyRibbon2RGBs", {idlePrinter}, QJsonArray()},
        {Supplies, "supplySupplyUID", {}, QStringLiteral("-1")},
        {Supplies, "supplyRibbon1UID", {}, QStringLiteral("-1")},
        {Supplies, "supplyRibbon2UID", {}, QStringLiteral("-1")},
        {Supplies, "supplyInformation", {idlePrinter}, idleRecord},
        {Supplies, "supplyInformationBySKUs", {QStringLiteral("-1"), QJsonArray(), idlePrinter}, idleRecord},
        {Supplies, "supplyMaterialName", unknownOfIdle, QStringLiteral("")},
        {Supplies, "supplyFormatName", unknownOfIdle, QStringLiteral("")},
        {Supplies, "supplyColorRGB", unknownOfIdle, -1},
        {Supplies, "supplyColorName", unknownOfIdle, QStringLiteral("")},
        {Supplies, "supplyWidth", unknownOfIdle, -1},
        {Supplies, "supplyIsLandscape", unknown, 1},
        {Supplies, "supplyBackgroundImage", unknown, QStringLiteral("")},
        {Supplies, "supplyNonContinuousLength", unknownOfIdle, -1},
        {Supplies, "supplyTypeIndex", unknownOfIdle, -1},
        {Supplies, "supplyRibbonPanels", unknown, -1},
        {Supplies, "supplyRibbonWidth", unknown, -1},
        {Supplies, "supplyRibbonLength", unknown, -1},
        {Supplies, "supplyRibbonColorName", unknown, QStringLiteral("")},
        {Supplies, "supplyRibbonColorRGB", unknown, -1},
        {Supplies, "supplyRibbonHeat", unknownPair, -1},
        {Supplies, "supplyRibbonHeatOffset", unknownPair, -1},
        {Supplies, "supplyRibbonMaxSpeed", unknownPair, -1},
        {Supplies, "supplyRibbonTension", unknownPair, -1},
        {Supplies, "supplyRibbonType", unknown, QStringLiteral("")},
        {Supplies, "supplyModuleReady", {1, 2, QStringLiteral("text")}, nothing},
        {Supplies, "applicationWasClicked", {}, nothing},
        {Supplies, "setModulePrinterName", text, nothing},
        {Supplies, "openLabelFile", text, nothing},
        {Supplies, "setSupplyId", {QStringLiteral("000001F41000420000A7"), QStringLiteral("")}, nothing},
        {Supplies, "setRibbonIds", {QJsonArray{QStringLiteral("2001")}, QStringLiteral("")}, nothing},

        {Printers, "getError", {}, 1},
        {Printers, "getAlert", {}, 1},
        {Printers, "isPrinterReady", {}, true},
        {Printers, "emitError", {7}, true},
        {Printers, "emitAlert", {-7}, true},
        {Printers, "getPrinterStatus", {idlePrinter}, 255},
        {Printers, "onStatusChanged", {3, QStringLiteral("printer of the table")}, nothing},
        {Printers, "resetCutter", {}, true},
        {Printers, "resetPrinter", {}, true},
        {Printers, "cycleCutter", {}, true},
        {Printers, "calibrateSupply", {}, true},
        {Printers, "calibrateTach", {}, true},
        {Printers, "setClearTailRibbon1", {false}, true},
        {Printers, "setClearTailRibbon2", {true}, true},
        {Printers, "setSupplySensor", {5, false}, true},
        {Printers, "setSupplyWidth", {false}, true},
        {Printers, "setSupplyLED", {false}, true},
        {Printers, "setRibbon1Tension", {1.5, 2}, true},
        {Printers, "setRibbon2Tension", {-1.5, 0}, true},
        {Printers, "cancelPrintJob", {}, true},
        {Printers, "m4Version", {}, QStringLiteral("test")},
        {Printers, "getSupplySKU", {}, QStringLiteral("booga-booga")},
        {Printers, "getBatteryStatus", {}, 0},
        {Printers, "bMark", {}, 1},
        {Printers, "gap", {}, 1},
        {Printers, "preCutter", {}, 1},
        {Printers, "ribbonClr1", {}, 1},
        {Printers, "ribbonClr2", {}, 1},
        {Printers, "ribbonEnc1", {}, 1},
        {Printers, "ribbonEnc2", {}, 1},
        {Printers, "ribbonEnc3", {}, 1},
        {Printers, "ribbonEnc4", {}, 1},
        {Printers, "cutterCover", {}, true},
        {Printers, "cutterHome", {}, true},
        {Printers, "printerLid", {}, true},
        {Printers, "supplySensor", {}, 1},
        {Printers, "ribbon1Mileage", {}, 1},
        {Printers, "ribbon2Mileage", {}, 1},
        {Printers, "supplyMileage", {}, 1},
        {Printers, "printerMileage", {}, 1},
        {Printers, "sendMCCMessage", {1, 2}, true},
        {Printers, "sendMCCMessage", {1, 2, 0}, true},
        {Printers, "sendMCCMessage", {1, 2, QStringLiteral("18446744073709551615")}, true},
        {Printers, "sendMCCMessage", {1, 2, QStringLiteral("text")}, true},
        {Printers, "forwardFeed", {Q_INT64_C(4294967295)}, true},
        {Printers, "backwardFeed", {0}, true},
        {Printers, "solenoid1", {}, true},
        {Printers, "resetSolenoid1", {}, true},
        {Printers, "solenoid2", {}, true},
        {Printers, "resetSolenoid2", {}, true},
        {Printers, "ribbon1", {}, true},
        {Printers, "resetRibbon1", {}, true},
        {Printers, "ribbon2", {}, true},
        {Printers, "resetRibbon2", {}, true},
        {Printers, "resetPaperMotor1", {}, true},
        {Printers, "resetMotor", {}, true},
        {Printers, "setUserSetting", {1, 2}, true},
        {Printers, "refreshSettings", {}, true},
        {Printers, "refreshSensors", {}, true},
        {Printers, "refreshAll", {}, true},
        {Printers, "rfidTest", {}, true},
        {Printers, "dumpSettings", {}, true},
        {Printers, "reqTph1Therm", {}, true},
        {Printers, "reqTph2Therm", {}, true},
        {Printers, "reqTph1HeatIndex", {}, true},
        {Printers, "reqTph2HeatIndex", {}, true},
        {Printers, "reqTach1Tension", {}, true},
        {Printers, "reqTach2Tension", {}, true},
        {Printers, "reqTach3Tension", {}, true},
        {Printers, "reqTach4Tension", {}, true},
        {Printers, "reqRibbon1Mileage", {}, true},
        {Printers, "reqRibbon2Mileage", {}, true},
        {Printers, "reqSupplyMileage", {}, true},
        {Printers, "tph1Therm", {}, 1},
        {Printers, "tph2Therm", {}, 1},
        {Printers, "tph1HeatIndexOffset", {}, 1},
        {Printers, "tph2HeatIndexOffset", {}, 1},
        {Printers, "tach1Tension", {}, 1},
        {Printers, "tach2Tension", {}, 1},
        {Printers, "tach3Tension", {}, 1},
        {Printers, "tach4Tension", {}, 1},
        {Printers, "printJobStart", {1}, nothing},
        {Printers, "printJobAdded", {1}, nothing},

        {PrintQueue, "printQueueFull", {0}, true},
        {PrintQueue, "printQueueComplete", {1}, true},
        {PrintQueue, "addJob", {QStringLiteral("guid"), QStringLiteral("job"), QStringLiteral("application"), 2}, nothing},
        {PrintQueue, "addJob", {QStringLiteral("guid"), QStringLiteral("job"), QStringLiteral("application"), 2, 5}, nothing},
        {PrintQueue, "getJobList", {}, QJsonArray()},
        {PrintQueue, "getJobInfo", {QStringLiteral("guid")}, unknownJob},
        {PrintQueue, "reprintPrintJob", {}, true},
        {PrintQueue, "retryPrintJob", {}, true},
        {PrintQueue, "clearPrintJob", {}, true},
        {PrintQueue, "clearAllPrintJobs", {}, true},
    };
    // clang-format on
}

/// An SQL expression for the name of the entity `alias`, in the host's language.
QString named(const QString& alias)
{
    return QStringLiteral("coalesce((SELECT text FROM translation WHERE name_id = %1.name_id AND "
                          "language_id = "
                          u"%2),"
                          " (SELECT english FROM name WHERE id = %1.name_id))")
        .arg(alias)
        .arg(VXLocaleLanguages().getCurrentLanguageId());
}

/// An SQL expression for the place of the supply `s` in the list of the printer `printer`.
QString typeIndex(const QString& printer)
{
    return QStringLiteral(
               "coalesce((SELECT position FROM printer_format f WHERE f.format_id = s.format_id"
               " AND f.model = (SELECT model FROM printer_format WHERE instr(lower(%1), "
               "lower(model))"
               " ORDER BY length(model) DESC LIMIT 1)), -1)")
        .arg(printer);
}

QList<DatabaseAnswer> databaseAnswers()
{
    // Each supply, with every kind of printer name.
    const QString supplies =
        QStringLiteral(
            " FROM supply s, (SELECT '' AS printer UNION SELECT '-' UNION SELECT '%1' UNION SELECT "
            u"'%2'"
            " UNION SELECT '%3') JOIN material m ON m.id = s.material_id"
            " JOIN format f ON f.id = s.format_id JOIN colour c ON c.id = s.colour_id")
            .arg(idlePrinter, loadedPrinter, neverAddedPrinter);
    const QString panels =
        QStringLiteral(" FROM ribbon_panel p JOIN colour c ON c.id = p.colour_id");
    const QString setting =
        QStringLiteral("SELECT ribbon_sku, panel, supply_sku, %1 FROM print_setting");
    return {
        {"supplyMaterialName",
         QStringLiteral("SELECT s.sku, printer, ") + named(QStringLiteral("m")) + supplies},
        {"supplyFormatName",
         QStringLiteral("SELECT s.sku, printer, ") + named(QStringLiteral("f")) + supplies},
        {"supplyColorRGB", QStringLiteral("SELECT s.sku, printer, c.rgb") + supplies},
        {"supplyColorName",
         QStringLiteral("SELECT s.sku, printer, ") + named(QStringLiteral("c")) + supplies},
        {"supplyWidth", QStringLiteral("SELECT s.sku, printer, s.width") + supplies},
        {"supplyNonContinuousLength",
         QStringLiteral("SELECT s.sku, printer, coalesce(s.label_length, -1.0)") + supplies},
        {"supplyTypeIndex", QStringLiteral("SELECT s.sku, printer, ") +
                                typeIndex(QStringLiteral("printer")) + supplies},
        {"supplyIsLandscape", QStringLiteral("SELECT sku, is_landscape FROM supply")},
        {"supplyBackgroundImage",
         QStringLiteral("SELECT sku, coalesce((SELECT image FROM background"
                        " WHERE id = background_id), '') FROM supply")},
        {"supplyRibbonPanels",
         QStringLiteral("SELECT ribbon_sku, count(*) FROM ribbon_panel GROUP BY 1")},
        {"supplyRibbonWidth", QStringLiteral("SELECT sku, width FROM ribbon")},
        {"supplyRibbonLength", QStringLiteral("SELECT sku, length FROM ribbon")},
        {"supplyRibbonType", QStringLiteral("SELECT sku, type FROM ribbon")},
        {"supplyRibbonColorName",
         QStringLiteral("SELECT p.ribbon_sku, p.panel, ") + named(QStringLiteral("c")) + panels},
        {"supplyRibbonColorName", QStringLiteral("SELECT p.ribbon_sku, ") +
                                      named(QStringLiteral("c")) + panels +
                                      QStringLiteral(" WHERE p.panel = 1")},
        {"supplyRibbonColorRGB", QStringLiteral("SELECT p.ribbon_sku, p.panel, c.rgb") + panels},
        {"supplyRibbonColorRGB", QStringLiteral("SELECT p.ribbon_sku, c.rgb") + panels +
                                     QStringLiteral(" WHERE p.panel = 1")},
        {"supplyRibbonHeat", setting.arg(QStringLiteral("heat"))},
        {"supplyRibbonHeatOffset", setting.arg(QStringLiteral("heat_offset"))},
        {"supplyRibbonMaxSpeed", setting.arg(QStringLiteral("max_speed"))},
        {"supplyRibbonTension", setting.arg(QStringLiteral("tension"))},
        {"supplySKUList",
         QStringLiteral("SELECT json_group_array(sku) FROM (SELECT sku FROM supply ORDER BY 1)")},
        {"supplyRibbonSKUList",
         QStringLiteral("SELECT json_group_array(sku) FROM (SELECT sku FROM ribbon ORDER BY 1)")},
        {"supplyColorHash", QStringLiteral("SELECT json_group_object(s.sku, c.rgb) FROM supply s"
                                           " JOIN colour c ON c.id = s.colour_id")},
        {"supplyRibbonColorHash", QStringLiteral("SELECT json_group_object(p.ribbon_sku, c.rgb)") +
                                      panels + QStringLiteral(" WHERE p.panel = 1")},
    };
}

/// The methods whose answer is in the row as the text of a JSON list or object.
bool answersJson(const QString& method)
{
    return method.endsWith(QStringLiteral("List")) || method.endsWith(QStringLiteral("Hash"));
}

QJsonValue toJson(const QVariant& value)
{
    if (value.typeId() == QMetaType::QByteArray)
        return QString::fromLatin1(value.toByteArray().toBase64());
    return QJsonValue::fromVariant(value);
}

/// A value as the client receives it: all numbers have one form.
QJsonValue crossed(const QJsonValue& value)
{
    return QJsonDocument::fromJson(QJsonDocument(QJsonArray{value}).toJson()).array().first();
}

QByteArray shown(const QJsonValue& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

/// The names of the arguments: `left` and `right` for `int sum(int left, int right?)`.
QStringList argumentNames(const QString& signature)
{
    QStringList names;
    const qsizetype begin = signature.indexOf(u'(') + 1;
    const QString arguments = signature.sliced(begin, signature.indexOf(u')') - begin);
    for (const QString& argument : arguments.split(QStringLiteral(", "), Qt::SkipEmptyParts))
        names.append(argument.section(u' ', 1).remove(u'?'));
    return names;
}

QString methodName(const QString& signature)
{
    return signature.section(u'(', 0, 0).section(u' ', 1);
}

/// The arguments as an object, for a call by name.
QJsonObject byName(Service service, const QString& method, const QJsonArray& arguments)
{
    const QStringList& table = methodTables.at(service);
    const auto signature = std::ranges::find_if(table, [&](const QString& each) {
        return methodName(each) == method && argumentNames(each).size() >= arguments.size();
    });
    if (signature == table.end())
        return {};
    const QStringList names = argumentNames(*signature);
    QJsonObject object;
    for (qsizetype i = 0; i < arguments.size(); ++i)
        object.insert(names.at(i), arguments.at(i));
    return object;
}

/// The methods as the endpoint itself describes them, in the form of the method tables.
QStringList described(const QJsonObject& document)
{
    QStringList signatures;
    for (const QJsonArray methods = document[QStringLiteral("methods")].toArray();
         const QJsonValue& method : methods) {
        QStringList arguments;
        for (const QJsonArray parameters = method[QStringLiteral("params")].toArray();
             const QJsonValue& parameter : parameters) {
            arguments.append(QStringLiteral("%1 %2%3").arg(
                parameter[QStringLiteral("x-type")].toString(),
                parameter[QStringLiteral("name")].toString(),
                parameter[QStringLiteral("required")].toBool() ? QString() : QStringLiteral("?")));
        }
        signatures.append(
            QStringLiteral("%1 %2(%3)")
                .arg(method[QStringLiteral("result")][QStringLiteral("x-type")].toString(),
                     method[QStringLiteral("name")].toString(),
                     arguments.join(QStringLiteral(", "))));
    }
    return signatures;
}

} // namespace

class EndpointsOverIpcTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void describesItsMethods_data();
    void describesItsMethods();
    void tablesCoverEveryFormOfEveryMethod();
    void fixedAnswersAreGiven_data();
    void fixedAnswersAreGiven();
    void answersMatchTheDatabase_data();
    void answersMatchTheDatabase();
    void loadedSupplyIsReadBack();
    void loadedRibbonsAreReadBack();
    void recordOfTheLoadedSupplyMatchesTheDatabase();
    void recordOfAnySupplyMatchesTheDatabase_data();
    void recordOfAnySupplyMatchesTheDatabase();
    void printersNeverAddedShareOneDatabase();
    void statusesOfPrintersAreStored();
    void statusesStoredForOtherProcessesAreLimited();
    void storesNoJob();

private:
    QJsonValue call(Service service, const QString& method, const QJsonValue& arguments);
    QJsonValue ask(const QString& method, const QJsonArray& arguments)
    {
        return call(Supplies, method, arguments);
    }
    /// The rows that an SQL query returns; ends the test program when the query fails.
    QList<QSqlRecord> rows(const QString& sql);
    QJsonArray column(const QString& sql);
    QJsonObject expectedRecord(const QString& supplySku, const QStringList& ribbonSkus,
                               const QString& printer, const QString& supplyId);

    QSqlDatabase m_database;
    std::unique_ptr<HostProcess> m_host;
    std::array<std::unique_ptr<VXIPCClient>, ServiceCount> m_clients;
};

void EndpointsOverIpcTest::initTestCase()
{
    writeDatabase(readCatalogueDirectory(testFile(VX_SAMPLE_CATALOGUE)), databasePath());
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
    m_database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    m_database.setDatabaseName(databasePath());
    QVERIFY(m_database.open());

    m_host =
        std::make_unique<HostProcess>(QStringLiteral("endpoint_host"),
                                      QStringList{idlePrinter, loadedPrinter}, int(ServiceCount));
    QVERIFY(m_host->processId() != QCoreApplication::applicationPid());
    for (int service = 0; service < ServiceCount; ++service) {
        const QString name = m_host->serverName(service);
        QVERIFY(name.startsWith(QStringLiteral("vxipc-%1").arg(service)));
        m_clients.at(static_cast<size_t>(service)) = std::make_unique<VXIPCClient>(name);
    }
}

void EndpointsOverIpcTest::cleanupTestCase()
{
    for (auto& client : m_clients)
        client.reset();
    m_host.reset();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(connectionName);
    QVERIFY(QFile::remove(databasePath()));
}

QJsonValue EndpointsOverIpcTest::call(Service service, const QString& method,
                                      const QJsonValue& arguments)
{
    const VXIPCReply reply = m_clients.at(service)->callAndWait(method, arguments);
    if (reply.isOk())
        return reply.result;
    return QStringLiteral("%1: %2 %3").arg(method).arg(reply.error->code).arg(reply.error->message);
}

QList<QSqlRecord> EndpointsOverIpcTest::rows(const QString& sql)
{
    QSqlQuery query(m_database);
    if (!query.exec(sql))
        qFatal("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
    QList<QSqlRecord> records;
    while (query.next())
        records.append(query.record());
    return records;
}

QJsonArray EndpointsOverIpcTest::column(const QString& sql)
{
    QJsonArray values;
    for (const QSqlRecord& row : rows(sql))
        values.append(toJson(row.value(0)));
    return values;
}

void EndpointsOverIpcTest::describesItsMethods_data()
{
    QTest::addColumn<int>("service");
    QTest::newRow("supply database") << int(Supplies);
    QTest::newRow("printer controller") << int(Printers);
    QTest::newRow("print queue") << int(PrintQueue);
}

void EndpointsOverIpcTest::describesItsMethods()
{
    QFETCH(int, service);
    const QJsonObject document =
        call(static_cast<Service>(service), QStringLiteral("rpc.discover"), QJsonArray())
            .toObject();
    QCOMPARE(described(document), methodTables.at(static_cast<size_t>(service)));
    QCOMPARE(document[QStringLiteral("info")][QStringLiteral("x-process")].toInteger(),
             m_host->processId());
    QCOMPARE(document[QStringLiteral("info")][QStringLiteral("x-application")].toString(),
             QStringLiteral("endpoint_host"));
}

void EndpointsOverIpcTest::tablesCoverEveryFormOfEveryMethod()
{
    const auto form = [](int service, const QString& method, qsizetype arguments) {
        return QStringLiteral("%1 %2/%3").arg(service).arg(method).arg(arguments);
    };
    QSet<QString> called;
    for (const FixedAnswer& each : fixedAnswers())
        called.insert(form(each.service, QString::fromLatin1(each.method), each.arguments.size()));
    for (const DatabaseAnswer& each : databaseAnswers()) {
        const QList<QSqlRecord> records = rows(each.sql);
        QVERIFY(!records.isEmpty());
        called.insert(
            form(Supplies, QString::fromLatin1(each.method), records.first().count() - 1));
    }
    QSet<QString> all;
    for (size_t service = 0; service < ServiceCount; ++service) {
        for (const QString& signature : methodTables.at(service)) {
            const qsizetype most = argumentNames(signature).size();
            for (qsizetype i = most - signature.count(u'?'); i <= most; ++i)
                all.insert(form(static_cast<int>(service), methodName(signature), i));
        }
    }
    QCOMPARE(called, all);
}

void EndpointsOverIpcTest::fixedAnswersAreGiven_data()
{
    QTest::addColumn<int>("service");
    QTest::addColumn<QString>("method");
    QTest::addColumn<QJsonArray>("arguments");
    QTest::addColumn<QJsonValue>("answer");
    for (const FixedAnswer& each : fixedAnswers()) {
        QTest::addRow("%s%s", each.method, shown(each.arguments).constData())
            << int(each.service) << QString::fromLatin1(each.method) << each.arguments
            << each.answer;
    }
}

void EndpointsOverIpcTest::fixedAnswersAreGiven()
{
    QFETCH(int, service);
    QFETCH(QString, method);
    QFETCH(QJsonArray, arguments);
    QFETCH(QJsonValue, answer);
    const auto of = static_cast<Service>(service);
    QCOMPARE(call(of, method, arguments), crossed(answer));
    QCOMPARE(call(of, method, byName(of, method, arguments)), crossed(answer));
}

void EndpointsOverIpcTest::answersMatchTheDatabase_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("sql");
    for (const DatabaseAnswer& each : databaseAnswers()) {
        QTest::addRow("%s of %d", each.method, int(rows(each.sql).size()))
            << QString::fromLatin1(each.method) << each.sql;
    }
}

void EndpointsOverIpcTest::answersMatchTheDatabase()
{
    QFETCH(QString, method);
    QFETCH(QString, sql);
    const QList<QSqlRecord> records = rows(sql);
    QVERIFY(!records.isEmpty());
    QJsonArray arguments;
    QJsonValue expected;
    for (const QSqlRecord& row : records) {
        arguments = {};
        const int last = row.count() - 1;
        for (int i = 0; i < last; ++i)
            arguments.append(toJson(row.value(i)));
        expected = toJson(row.value(last));
        if (answersJson(method)) {
            const QJsonDocument document = QJsonDocument::fromJson(expected.toString().toUtf8());
            expected =
                document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
        }
        QCOMPARE(call(Supplies, method, arguments), crossed(expected));
    }
    QCOMPARE(call(Supplies, method, byName(Supplies, method, arguments)), crossed(expected));
}

void EndpointsOverIpcTest::loadedSupplyIsReadBack()
{
    const QList<QSqlRecord> kinds = rows(
        QStringLiteral("SELECT printf('%08X%06d%06X', 500, k.kind, 167), k.supply_sku, c.rgb || ''"
                       " FROM supply_kind k JOIN supply s ON s.sku = k.supply_sku"
                       " JOIN colour c ON c.id = s.colour_id"));
    QVERIFY(kinds.size() >= 40);
    for (const QSqlRecord& kind : kinds) {
        QVERIFY(
            ask(QStringLiteral("setSupplyId"), {kind.value(0).toString(), loadedPrinter}).isNull());
        QCOMPARE(ask(QStringLiteral("supplySKUCached"), {loadedPrinter}), toJson(kind.value(1)));
        QCOMPARE(ask(QStringLiteral("supplySupplyRGB"), {loadedPrinter}), toJson(kind.value(2)));
    }
    for (const auto& [id, sku] : {std::pair(QStringLiteral("-1"), QStringLiteral("-1")),
                                  std::pair(QStringLiteral(""), QStringLiteral("-1")),
                                  std::pair(QStringLiteral("odd"), QStringLiteral(""))}) {
        QVERIFY(ask(QStringLiteral("setSupplyId"), {id, loadedPrinter}).isNull());
        QCOMPARE(ask(QStringLiteral("supplySKUCached"), {loadedPrinter}).toString(), sku);
        QCOMPARE(ask(QStringLiteral("supplySupplyRGB"), {loadedPrinter}).toString(), QString());
    }
    QCOMPARE(ask(QStringLiteral("supplySKUCached"), {idlePrinter}).toString(),
             QStringLiteral("-1"));
}

void EndpointsOverIpcTest::loadedRibbonsAreReadBack()
{
    const QList<QSqlRecord> numbers =
        rows(QStringLiteral("SELECT number || '', ribbon_sku FROM ribbon_number ORDER BY number"));
    QVERIFY(numbers.size() >= 20);
    const QString rgbs =
        QStringLiteral("SELECT c.rgb || '' FROM ribbon_panel p JOIN colour c ON c.id = p.colour_id"
                       " WHERE p.ribbon_sku = '%1' ORDER BY p.panel");
    for (qsizetype i = 1; i < numbers.size(); ++i) {
        const QSqlRecord& first = numbers.at(i);
        const QSqlRecord& second = numbers.at(i - 1);
        const QJsonArray ids{toJson(first.value(0)), toJson(second.value(0))};
        QVERIFY(ask(QStringLiteral("setRibbonIds"), {ids, loadedPrinter}).isNull());
        QCOMPARE(ask(QStringLiteral("supplyRibbonSKUsCached"), {loadedPrinter}).toArray(),
                 (QJsonArray{toJson(first.value(1)), toJson(second.value(1))}));
        QCOMPARE(ask(QStringLiteral("supplyRibbon1RGBs"), {loadedPrinter}).toArray(),
                 column(rgbs.arg(first.value(1).toString())));
        QCOMPARE(ask(QStringLiteral("supplyRibbon2RGBs"), {loadedPrinter}).toArray(),
                 column(rgbs.arg(second.value(1).toString())));
    }
    const QJsonArray odd{QStringLiteral("-1"), QStringLiteral("4294967295"), QStringLiteral("0"),
                         QStringLiteral(""), QStringLiteral("odd")};
    QVERIFY(ask(QStringLiteral("setRibbonIds"), {odd, loadedPrinter}).isNull());
    QCOMPARE(ask(QStringLiteral("supplyRibbonSKUsCached"), {loadedPrinter}).toArray(),
             (QJsonArray{QStringLiteral("-1"), QStringLiteral("-1"), QStringLiteral("-1"),
                         QStringLiteral("-1"), QStringLiteral("")}));
    QCOMPARE(ask(QStringLiteral("supplyRibbonSKUsCached"), {idlePrinter}).toArray(), QJsonArray());
}

QJsonObject EndpointsOverIpcTest::expectedRecord(const QString& supplySku,
                                                 const QStringList& ribbonSkus,
                                                 const QString& printer, const QString& supplyId)
{
    const QString english = QStringLiteral("(SELECT english FROM name WHERE id = %1.name_id)");
    const QList<QSqlRecord> supply = rows(
        QStringLiteral("SELECT coalesce(second_colour_width, -1.0) AS secColorWidth,"
                       " coalesce(d.rgb, -1) AS secColorRGB, coalesce(") +
        named(QStringLiteral("d")) + QStringLiteral(", '') AS secColorName, coalesce(") +
        english.arg(QStringLiteral("d")) +
        QStringLiteral(", '') AS secColorNameEn, s.length AS supplyLength, m.id AS material, ") +
        named(QStringLiteral("m")) + QStringLiteral(" AS materialName, f.id AS format, ") +
        named(QStringLiteral("f")) +
        QStringLiteral(" AS formatName, f.type AS formatType, c.rgb AS colorRGB, ") +
        named(QStringLiteral("c")) + QStringLiteral(" AS colorName, ") +
        english.arg(QStringLiteral("c")) +
        QStringLiteral(" AS colorNameEn, s.width AS supplyWidth, s.is_landscape AS isLandscape,"
                       " coalesce((SELECT image FROM background WHERE id = s.background_id), '')"
                       " AS backgroundImage, coalesce(s.separator_width, -1.0) AS separatorWidth,"
                       " coalesce(s.label_length, -1.0) AS nonContinuousLength, ") +
        typeIndex(QStringLiteral("'%1'").arg(printer)) +
        QStringLiteral(
            " AS typeIndex, s.multi_up_count AS multiUpCount,"
            " coalesce(s.multi_up_gap, -1.0) AS multiUpGapSize FROM supply s"
            " JOIN material m ON m.id = s.material_id JOIN format f ON f.id = s.format_id"
            " JOIN colour c ON c.id = s.colour_id LEFT JOIN colour d ON d.id = s.second_colour_id"
            " WHERE s.sku = '%1'")
            .arg(supplySku));

    QJsonObject record = idleRecord;
    const auto set = [&record](const QString& member, const QVariant& value) {
        // Sizes are single-precision in the record.
        record.insert(member, value.typeId() == QMetaType::Double
                                  ? QJsonValue(static_cast<double>(value.toFloat()))
                                  : toJson(value));
    };
    record.insert(QStringLiteral("supplyId"), supplyId);
    record.insert(QStringLiteral("supplySku"), supplySku);
    record.insert(QStringLiteral("ribbonSkus"), QJsonArray::fromStringList(ribbonSkus));
    for (int i = 0; i < supply.at(0).count(); ++i)
        set(supply.at(0).fieldName(i), supply.at(0).value(i));

    QMap<QString, QJsonArray> lists;
    QStringList types(2, QStringLiteral(""));
    for (qsizetype i = 0; i < ribbonSkus.size(); ++i) {
        const QSqlRecord ribbon =
            rows(QStringLiteral(
                     "SELECT r.type, r.width, r.length,"
                     " (SELECT count(*) FROM ribbon_panel WHERE ribbon_sku = r.sku) AS panels, ") +
                 named(QStringLiteral("c")) +
                 QStringLiteral(" AS ribbonColorNames, c.rgb AS ribbonColorRGBs,"
                                " coalesce(t.heat, -1) AS ribbonHeats,"
                                " coalesce(t.heat_offset, -1) AS ribbonHeatOffsets,"
                                " coalesce(t.max_speed, -1) AS ribbonMaxSpeeds,"
                                " coalesce(t.tension, -1) AS ribbonTensions FROM ribbon r"
                                " JOIN ribbon_panel p ON p.ribbon_sku = r.sku AND p.panel = 1"
                                " JOIN colour c ON c.id = p.colour_id LEFT JOIN print_setting t"
                                " ON t.ribbon_sku = r.sku AND t.panel = 1 AND t.supply_sku = '%2'"
                                " WHERE r.sku = '%1'")
                     .arg(ribbonSkus.at(i), supplySku))
                .value(0);
        for (int field = 4; field < ribbon.count(); ++field)
            lists[ribbon.fieldName(field)].append(toJson(ribbon.value(field)));
        if (i >= types.size())
            continue;
        types[i] = ribbon.value(0).toString();
        set(QStringLiteral("ribbon%1Width").arg(i + 1), ribbon.value(1));
        set(QStringLiteral("ribbon%1Length").arg(i + 1), ribbon.value(2));
        set(QStringLiteral("ribbon%1Panels").arg(i + 1), ribbon.value(3));
    }
    for (auto list = lists.cbegin(); list != lists.cend(); ++list)
        record.insert(list.key(), list.value());
    record.insert(QStringLiteral("ribbonTypes"), QJsonArray::fromStringList(types));
    return crossed(record).toObject();
}

void EndpointsOverIpcTest::recordOfTheLoadedSupplyMatchesTheDatabase()
{
    // Each supply, with two ribbons that have a print setting for it.
    const QList<QSqlRecord> loads =
        rows(QStringLiteral("WITH load AS (SELECT k.kind, k.supply_sku, min(n.number) AS least,"
                            " max(n.number) AS most FROM supply_kind k"
                            " JOIN print_setting t ON t.supply_sku = k.supply_sku"
                            " JOIN ribbon_number n ON n.ribbon_sku = t.ribbon_sku GROUP BY k.kind)"
                            " SELECT printf('%08X%06d%06X', 500, kind, 167), supply_sku,"
                            " least || '', r.ribbon_sku, most || '', q.ribbon_sku FROM load"
                            " JOIN ribbon_number r ON r.number = least"
                            " JOIN ribbon_number q ON q.number = most"));
    QVERIFY(loads.size() >= 20);
    for (const QSqlRecord& load : loads) {
        const QString id = load.value(0).toString();
        QVERIFY(ask(QStringLiteral("setSupplyId"), {id, loadedPrinter}).isNull());
        QVERIFY(ask(QStringLiteral("setRibbonIds"),
                    {QJsonArray{toJson(load.value(2)), toJson(load.value(4))}, loadedPrinter})
                    .isNull());
        const QJsonObject expected =
            expectedRecord(load.value(1).toString(),
                           {load.value(3).toString(), load.value(5).toString()}, loadedPrinter, id);
        QVERIFY(expected[QStringLiteral("ribbonHeats")][0].toInt() >= 0);
        QCOMPARE(expected.size(), 37);
        QCOMPARE(ask(QStringLiteral("supplyInformation"), {loadedPrinter}).toObject(), expected);
    }
}

void EndpointsOverIpcTest::recordOfAnySupplyMatchesTheDatabase_data()
{
    QTest::addColumn<int>("ribbons");
    QTest::newRow("no ribbon") << 0;
    QTest::newRow("one ribbon") << 1;
    QTest::newRow("two ribbons") << 2;
    QTest::newRow("three ribbons") << 3;
}

void EndpointsOverIpcTest::recordOfAnySupplyMatchesTheDatabase()
{
    QFETCH(int, ribbons);
    QStringList ribbonSkus;
    for (const QSqlRecord& ribbon :
         rows(QStringLiteral("SELECT sku FROM ribbon ORDER BY sku DESC LIMIT %1").arg(ribbons)))
        ribbonSkus.append(ribbon.value(0).toString());
    QCOMPARE(ribbonSkus.size(), ribbons);
    for (const QSqlRecord& supply : rows(QStringLiteral("SELECT sku FROM supply"))) {
        const QString sku = supply.value(0).toString();
        const QJsonArray arguments{sku, QJsonArray::fromStringList(ribbonSkus), idlePrinter};
        const QJsonObject expected = expectedRecord(sku, ribbonSkus, idlePrinter, {});
        QCOMPARE(ask(QStringLiteral("supplyInformationBySKUs"), arguments).toObject(), expected);
    }
}

void EndpointsOverIpcTest::printersNeverAddedShareOneDatabase()
{
    const QSqlRecord kind = rows(QStringLiteral("SELECT printf('%08X%06d%06X', 500, kind, 167), "
                                                "supply_sku FROM supply_kind LIMIT 1"))
                                .at(0);
    const QString id = kind.value(0).toString();
    const QString sku = kind.value(1).toString();
    QVERIFY(ask(QStringLiteral("setSupplyId"), {id, neverAddedPrinter}).isNull());
    QCOMPARE(
        ask(QStringLiteral("supplySKUCached"), {QStringLiteral("Another never added")}).toString(),
        sku);
    QCOMPARE(ask(QStringLiteral("supplySKUCached"), {QStringLiteral("-")}).toString(), sku);
    QCOMPARE(ask(QStringLiteral("supplySKUCached"), {QStringLiteral("")}).toString(),
             QStringLiteral("-1"));
    QCOMPARE(ask(QStringLiteral("supplySKUCached"), {idlePrinter}).toString(),
             QStringLiteral("-1"));
    QCOMPARE(ask(QStringLiteral("supplyInformation"), {QStringLiteral("")}),
             ask(QStringLiteral("supplyInformation"), {QStringLiteral("-")}));
    QCOMPARE(ask(QStringLiteral("supplyInformation"), {neverAddedPrinter}).toObject(),
             expectedRecord(sku, {}, neverAddedPrinter, id));
}

void EndpointsOverIpcTest::statusesOfPrintersAreStored()
{
    const auto status = [this](const QString& printer) {
        return call(Printers, QStringLiteral("getPrinterStatus"), QJsonArray{printer}).toInt();
    };
    QCOMPARE(status(loadedPrinter), 255);
    QVERIFY(
        call(Printers, QStringLiteral("onStatusChanged"), QJsonArray{7, loadedPrinter}).isNull());
    QCOMPARE(status(loadedPrinter), 7);
    QCOMPARE(status(loadedPrinter.toUpper()), 255);
    QVERIFY(
        call(Printers, QStringLiteral("onStatusChanged"), QJsonArray{-1, loadedPrinter}).isNull());
    QCOMPARE(status(loadedPrinter), -1);
    QVERIFY(call(Printers, QStringLiteral("onStatusChanged"), QJsonArray{3, QStringLiteral("")})
                .isNull());
    QCOMPARE(status({}), 3);
}

void EndpointsOverIpcTest::statusesStoredForOtherProcessesAreLimited()
{
    // This test has its own host, because the names are stored until the host ends.
    HostProcess host(QStringLiteral("endpoint_host"), {}, int(ServiceCount));
    VXIPCClient client(host.serverName(Printers));
    const auto report = [&](int status, const QString& printer) {
        const VXIPCReply reply =
            client.callAndWait(QStringLiteral("onStatusChanged"), QJsonArray{status, printer});
        return reply.isOk()
                   ? QString()
                   : QStringLiteral("%1 %2").arg(reply.error->code).arg(reply.error->message);
    };
    const auto status = [&](const QString& printer) {
        return client.callAndWait(QStringLiteral("getPrinterStatus"), QJsonArray{printer})
            .result.toInt();
    };

    // "\\\\SERVER\\PRINTER" with names of 255 and 220 characters: Microsoft's page "Computer Names"
    // (learn.microsoft.com/windows/win32/sysinfo/computer-names), and ReactOS,
    // win32ss/printing/providers/localspl/precomp.h, MAX_PRINTER_NAME.
    const QString longestName(478, u'n');
    QCOMPARE(report(1, longestName), QString());
    QCOMPARE(
        report(1, longestName + u'n'),
        QStringLiteral("-32003 Refused: a printer's name has at most 478 characters, got 479"));
    QCOMPARE(status(longestName + u'n'), 255);

    int refused = 0;
    for (int i = 1; i < 4096; ++i)
        refused += report(i, QStringLiteral("printer %1").arg(i)).isEmpty() ? 0 : 1;
    QCOMPARE(refused, 0);
    QCOMPARE(report(1, QStringLiteral("one more")),
             QStringLiteral("-32003 Refused: 4096 printers were reported by other processes, and "
                            "no more are kept"));
    QCOMPARE(status(QStringLiteral("one more")), 255);
    // Statuses that are stored already can still change.
    QCOMPARE(status(QStringLiteral("printer 4095")), 4095);
    QCOMPARE(report(7, QStringLiteral("printer 4095")), QString());
    QCOMPARE(status(QStringLiteral("printer 4095")), 7);
    QCOMPARE(report(8, longestName), QString());
    QCOMPARE(status(longestName), 8);
}

void EndpointsOverIpcTest::storesNoJob()
{
    QVERIFY(call(PrintQueue, QStringLiteral("addJob"),
                 QJsonArray{QStringLiteral("{1}"), QStringLiteral("labels"),
                            QStringLiteral("Quillmark"), 1})
                .isNull());
    QCOMPARE(call(PrintQueue, QStringLiteral("getJobList"), QJsonArray()).toArray(), QJsonArray());
    QCOMPARE(call(PrintQueue, QStringLiteral("getJobInfo"), QJsonArray{QStringLiteral("{1}")})
                 .toObject(),
             unknownJob);
}

int main(int argc, char* argv[])
{
    // Names in another language than English, which is the fallback, where the system has it.
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANGUAGE", "de");
    QCoreApplication application(argc, argv);
    EndpointsOverIpcTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_endpoints_over_ipc.moc"
