// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// All methods of the three endpoints of a host application, called from outside its process.
//
// What the database answers is compared with what plain SQL finds in the same file. The host opens
// the file beside its executable, so host and test lie in a folder of their own.
#include "ipc_host_process.h"

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

using namespace Qt::StringLiterals;

namespace {

enum Service : int
{
    Supplies,
    Printers,
    PrintQueue,
    ServiceCount,
};

const QString Idle = u"Idle printer"_s; // nothing is ever reported of it
const QString Loaded = u"Loaded CedarMax 4"_s;
const QString NeverAdded = u"AlderMax that was never added"_s;

const QString ConnectionName = u"expected answers"_s;

QString databasePath()
{
    return QCoreApplication::applicationDirPath() + u"/roll.db"_s;
}

/// The method tables. A question mark is behind an argument that may be left out.
const std::array<QStringList, ServiceCount> MethodTables{
    QStringList{
        u"QStringList supplySKUList()"_s,
        u"QStringList supplyRibbonSKUList()"_s,
        u"QVariantHash supplyColorHash()"_s,
        u"QVariantHash supplyRibbonColorHash()"_s,
        u"QString supplyId()"_s,
        u"QString supplySKUCached(QString printerName)"_s,
        u"QStringList supplyRibbonSKUsCached(QString printerName)"_s,
        u"double supplySupplyPercent()"_s,
        u"double supplyRibbon1Percent()"_s,
        u"double supplyRibbon2Percent()"_s,
        u"QString supplySupplyRGB(QString printerName)"_s,
        u"QStringList supplyRibbon1RGBs(QString printerName)"_s,
        u"QStringList supplyRibbon2RGBs(QString printerName)"_s,
        u"QString supplySupplyUID()"_s,
        u"QString supplyRibbon1UID()"_s,
        u"QString supplyRibbon2UID()"_s,
        u"SupplyInformation supplyInformation(QString printerName)"_s,
        u"SupplyInformation supplyInformationBySKUs(QString supplySku, QStringList ribbonSkus,"
        " QString printerName)"_s,
        u"QString supplyMaterialName(QString sku, QString printerName)"_s,
        u"QString supplyFormatName(QString sku, QString printerName)"_s,
        u"int supplyColorRGB(QString sku, QString printerName)"_s,
        u"QString supplyColorName(QString sku, QString printerName)"_s,
        u"double supplyWidth(QString sku, QString printerName)"_s,
        u"int supplyIsLandscape(QString sku)"_s,
        u"QByteArray supplyBackgroundImage(QString sku)"_s,
        u"double supplyNonContinuousLength(QString sku, QString printerName)"_s,
        u"int supplyTypeIndex(QString sku, QString printerName)"_s,
        u"int supplyRibbonPanels(QString ribbonSku)"_s,
        u"double supplyRibbonWidth(QString ribbonSku)"_s,
        u"double supplyRibbonLength(QString ribbonSku)"_s,
        u"QString supplyRibbonColorName(QString ribbonSku, int panel?)"_s,
        u"int supplyRibbonColorRGB(QString ribbonSku, int panel?)"_s,
        u"int supplyRibbonHeat(QString ribbonSku, int panel, QString supplySku)"_s,
        u"int supplyRibbonHeatOffset(QString ribbonSku, int panel, QString supplySku)"_s,
        u"int supplyRibbonMaxSpeed(QString ribbonSku, int panel, QString supplySku)"_s,
        u"int supplyRibbonTension(QString ribbonSku, int panel, QString supplySku)"_s,
        u"QString supplyRibbonType(QString ribbonSku)"_s,
        u"void supplyModuleReady(int windowId, int processId, QString applicationName)"_s,
        u"void applicationWasClicked()"_s,
        u"void setModulePrinterName(QString printerName)"_s,
        u"void openLabelFile(QString filePath)"_s,
        u"void setSupplyId(QString id, QString printerName)"_s,
        u"void setRibbonIds(QStringList ids, QString printerName)"_s,
    },
    QStringList{
        u"int getError()"_s,
        u"int getAlert()"_s,
        u"bool isPrinterReady()"_s,
        u"bool emitError(int value)"_s,
        u"bool emitAlert(int value)"_s,
        u"int getPrinterStatus(QString printerName)"_s,
        u"bool resetCutter()"_s,
        u"bool resetPrinter()"_s,
        u"bool cycleCutter()"_s,
        u"bool calibrateSupply()"_s,
        u"bool calibrateTach()"_s,
        u"bool setClearTailRibbon1(bool value)"_s,
        u"bool setClearTailRibbon2(bool value)"_s,
        u"bool setSupplySensor(int value, bool override)"_s,
        u"bool setSupplyWidth(bool value)"_s,
        u"bool setSupplyLED(bool value)"_s,
        u"bool setRibbon1Tension(float motor1Tension, float motor2Tension)"_s,
        u"bool setRibbon2Tension(float motor1Tension, float motor2Tension)"_s,
        u"bool cancelPrintJob()"_s,
        u"QString m4Version()"_s,
        u"QString getSupplySKU()"_s,
        u"int getBatteryStatus()"_s,
        u"uint bMark()"_s,
        u"uint gap()"_s,
        u"uint preCutter()"_s,
        u"uint ribbonClr1()"_s,
        u"uint ribbonClr2()"_s,
        u"uint ribbonEnc1()"_s,
        u"uint ribbonEnc2()"_s,
        u"uint ribbonEnc3()"_s,
        u"uint ribbonEnc4()"_s,
        u"bool cutterCover()"_s,
        u"bool cutterHome()"_s,
        u"bool printerLid()"_s,
        u"uint supplySensor()"_s,
        u"int ribbon1Mileage()"_s,
        u"int ribbon2Mileage()"_s,
        u"int supplyMileage()"_s,
        u"int printerMileage()"_s,
        u"bool sendMCCMessage(int type, int definedMessage, qulonglong value?)"_s,
        u"bool sendMCCMessage(int type, int definedMessage, QString value)"_s,
        u"bool forwardFeed(uint steps)"_s,
        u"bool backwardFeed(uint steps)"_s,
        u"bool solenoid1()"_s,
        u"bool resetSolenoid1()"_s,
        u"bool solenoid2()"_s,
        u"bool resetSolenoid2()"_s,
        u"bool ribbon1()"_s,
        u"bool resetRibbon1()"_s,
        u"bool ribbon2()"_s,
        u"bool resetRibbon2()"_s,
        u"bool resetPaperMotor1()"_s,
        u"bool resetMotor()"_s,
        u"bool setUserSetting(int setting, int value)"_s,
        u"bool refreshSettings()"_s,
        u"bool refreshSensors()"_s,
        u"bool refreshAll()"_s,
        u"bool rfidTest()"_s,
        u"bool dumpSettings()"_s,
        u"bool reqTph1Therm()"_s,
        u"bool reqTph2Therm()"_s,
        u"bool reqTph1HeatIndex()"_s,
        u"bool reqTph2HeatIndex()"_s,
        u"bool reqTach1Tension()"_s,
        u"bool reqTach2Tension()"_s,
        u"bool reqTach3Tension()"_s,
        u"bool reqTach4Tension()"_s,
        u"bool reqRibbon1Mileage()"_s,
        u"bool reqRibbon2Mileage()"_s,
        u"bool reqSupplyMileage()"_s,
        u"int tph1Therm()"_s,
        u"int tph2Therm()"_s,
        u"int tph1HeatIndexOffset()"_s,
        u"int tph2HeatIndexOffset()"_s,
        u"int tach1Tension()"_s,
        u"int tach2Tension()"_s,
        u"int tach3Tension()"_s,
        u"int tach4Tension()"_s,
        u"void printJobStart(uint addr)"_s,
        u"void printJobAdded(uint addr)"_s,
        u"void onStatusChanged(int status, QString printerName)"_s,
    },
    QStringList{
        u"bool printQueueFull(uint value)"_s,
        u"bool printQueueComplete(uint value)"_s,
        u"void addJob(QString GUID, QString jobName, QString appName, int copies,"
        " int mergeIndex?)"_s,
        u"QStringList getJobList()"_s,
        u"PrintJobMetaData getJobInfo(QString GUID)"_s,
        u"bool reprintPrintJob()"_s,
        u"bool retryPrintJob()"_s,
        u"bool clearPrintJob()"_s,
        u"bool clearAllPrintJobs()"_s,
    },
};

/// What a method answers to the same arguments at any time.
struct FixedAnswer
{
    Service service;
    const char* method;
    QJsonArray arguments;
    QJsonValue answer;
};

/// What rows of the database say: the columns are the arguments of a call, and last its answer.
struct DatabaseAnswer
{
    const char* method;
    QString sql;
};

const QJsonObject IdleRecord{
    {u"supplyId"_s, u""_s},
    {u"supplySku"_s, u"-1"_s},
    {u"ribbonSkus"_s, QJsonArray()},
    {u"secColorWidth"_s, -1},
    {u"secColorRGB"_s, -1},
    {u"secColorName"_s, u""_s},
    {u"secColorNameEn"_s, u""_s},
    {u"supplyLength"_s, -1},
    {u"material"_s, -1},
    {u"materialName"_s, u""_s},
    {u"format"_s, -1},
    {u"formatName"_s, u""_s},
    {u"formatType"_s, u""_s},
    {u"colorRGB"_s, -1},
    {u"colorName"_s, u""_s},
    {u"colorNameEn"_s, u""_s},
    {u"supplyWidth"_s, -1},
    {u"isLandscape"_s, 1},
    {u"backgroundImage"_s, u""_s},
    {u"separatorWidth"_s, -1},
    {u"nonContinuousLength"_s, -1},
    {u"typeIndex"_s, -1},
    {u"ribbon1Panels"_s, -1},
    {u"ribbon2Panels"_s, -1},
    {u"ribbon1Width"_s, -1},
    {u"ribbon2Width"_s, -1},
    {u"ribbon1Length"_s, -1},
    {u"ribbon2Length"_s, -1},
    {u"ribbonColorNames"_s, QJsonArray()},
    {u"ribbonColorRGBs"_s, QJsonArray()},
    {u"ribbonHeats"_s, QJsonArray()},
    {u"ribbonHeatOffsets"_s, QJsonArray()},
    {u"ribbonMaxSpeeds"_s, QJsonArray()},
    {u"ribbonTensions"_s, QJsonArray()},
    {u"ribbonTypes"_s, QJsonArray{u""_s, u""_s}},
    {u"multiUpCount"_s, 1},
    {u"multiUpGapSize"_s, -1},
};

const QJsonObject UnknownJob{
    {u"queuePosition"_s, 0}, {u"guid"_s, u""_s},        {u"jobName"_s, u""_s},
    {u"appName"_s, u""_s},   {u"copies"_s, 0},          {u"mergeIndex"_s, 0},
    {u"userName"_s, u""_s},  {u"printerName"_s, u""_s}, {u"labelCount"_s, 0},
    {u"labelsPrinted"_s, 0}, {u"supplySku"_s, u""_s},   {u"supplyName"_s, u""_s},
    {u"isCutting"_s, false}, {u"ribbon1Sku"_s, u""_s},  {u"ribbon2Sku"_s, u""_s},
    {u"status"_s, 0},        {u"statusText"_s, u""_s},
};

QList<FixedAnswer> fixedAnswers()
{
    const QJsonValue nothing = QJsonValue::Null;
    const QJsonArray text{u"text"_s};
    const QJsonArray unknown{u"NO-SUCH-SKU"_s};
    const QJsonArray unknownOfIdle{u"NO-SUCH-SKU"_s, Idle};
    const QJsonArray unknownPair{u"NO-SUCH-SKU"_s, 1, u"NO-SUCH-SKU"_s};
    // clang-format off
    return {
        {Supplies, "supplyId", {}, u"-1"_s},
        {Supplies, "supplySKUCached", {u""_s}, u"-1"_s},
        {Supplies, "supplySKUCached", {Idle}, u"-1"_s},
        {Supplies, "supplyRibbonSKUsCached", {Idle}, QJsonArray()},
        {Supplies, "supplySupplyPercent", {}, 0},
        {Supplies, "supplyRibbon1Percent", {}, 0},
        {Supplies, "supplyRibbon2Percent", {}, 0},
        {Supplies, "supplySupplyRGB", {Idle}, u""_s},
        {Supplies, "supplyRibbon1RGBs", {Idle}, QJsonArray()},
        {Supplies, "supplyRibbon2RGBs", {Idle}, QJsonArray()},
        {Supplies, "supplySupplyUID", {}, u"-1"_s},
        {Supplies, "supplyRibbon1UID", {}, u"-1"_s},
        {Supplies, "supplyRibbon2UID", {}, u"-1"_s},
        {Supplies, "supplyInformation", {Idle}, IdleRecord},
        {Supplies, "supplyInformationBySKUs", {u"-1"_s, QJsonArray(), Idle}, IdleRecord},
        {Supplies, "supplyMaterialName", unknownOfIdle, u""_s},
        {Supplies, "supplyFormatName", unknownOfIdle, u""_s},
        {Supplies, "supplyColorRGB", unknownOfIdle, -1},
        {Supplies, "supplyColorName", unknownOfIdle, u""_s},
        {Supplies, "supplyWidth", unknownOfIdle, -1},
        {Supplies, "supplyIsLandscape", unknown, 1},
        {Supplies, "supplyBackgroundImage", unknown, u""_s},
        {Supplies, "supplyNonContinuousLength", unknownOfIdle, -1},
        {Supplies, "supplyTypeIndex", unknownOfIdle, -1},
        {Supplies, "supplyRibbonPanels", unknown, -1},
        {Supplies, "supplyRibbonWidth", unknown, -1},
        {Supplies, "supplyRibbonLength", unknown, -1},
        {Supplies, "supplyRibbonColorName", unknown, u""_s},
        {Supplies, "supplyRibbonColorRGB", unknown, -1},
        {Supplies, "supplyRibbonHeat", unknownPair, -1},
        {Supplies, "supplyRibbonHeatOffset", unknownPair, -1},
        {Supplies, "supplyRibbonMaxSpeed", unknownPair, -1},
        {Supplies, "supplyRibbonTension", unknownPair, -1},
        {Supplies, "supplyRibbonType", unknown, u""_s},
        {Supplies, "supplyModuleReady", {1, 2, u"text"_s}, nothing},
        {Supplies, "applicationWasClicked", {}, nothing},
        {Supplies, "setModulePrinterName", text, nothing},
        {Supplies, "openLabelFile", text, nothing},
        {Supplies, "setSupplyId", {u"000001F41000420000A7"_s, u""_s}, nothing},
        {Supplies, "setRibbonIds", {QJsonArray{u"2001"_s}, u""_s}, nothing},

        {Printers, "getError", {}, 1},
        {Printers, "getAlert", {}, 1},
        {Printers, "isPrinterReady", {}, true},
        {Printers, "emitError", {7}, true},
        {Printers, "emitAlert", {-7}, true},
        {Printers, "getPrinterStatus", {Idle}, 255},
        {Printers, "onStatusChanged", {3, u"printer of the table"_s}, nothing},
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
        {Printers, "m4Version", {}, u"test"_s},
        {Printers, "getSupplySKU", {}, u"booga-booga"_s},
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
        {Printers, "sendMCCMessage", {1, 2, u"18446744073709551615"_s}, true},
        {Printers, "sendMCCMessage", {1, 2, u"text"_s}, true},
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
        {PrintQueue, "addJob", {u"guid"_s, u"job"_s, u"application"_s, 2}, nothing},
        {PrintQueue, "addJob", {u"guid"_s, u"job"_s, u"application"_s, 2, 5}, nothing},
        {PrintQueue, "getJobList", {}, QJsonArray()},
        {PrintQueue, "getJobInfo", {u"guid"_s}, UnknownJob},
        {PrintQueue, "reprintPrintJob", {}, true},
        {PrintQueue, "retryPrintJob", {}, true},
        {PrintQueue, "clearPrintJob", {}, true},
        {PrintQueue, "clearAllPrintJobs", {}, true},
    };
    // clang-format on
}

/// An SQL expression for the name of what `alias` stands for, in the host's language.
QString named(const QString& alias)
{
    return u"coalesce((SELECT text FROM translation WHERE name_id = %1.name_id AND language_id = "
           u"%2),"
           " (SELECT english FROM name WHERE id = %1.name_id))"_s.arg(alias)
               .arg(VXLocaleLanguages().getCurrentLanguageId());
}

/// An SQL expression for the place of the supply `s` in the list of the printer `printer`.
QString typeIndex(const QString& printer)
{
    return u"coalesce((SELECT position FROM printer_format f WHERE f.format_id = s.format_id"
           " AND f.model = (SELECT model FROM printer_format WHERE instr(lower(%1), lower(model))"
           " ORDER BY length(model) DESC LIMIT 1)), -1)"_s.arg(printer);
}

QList<DatabaseAnswer> databaseAnswers()
{
    // Each supply, asked for by every kind of printer name.
    const QString supplies =
        u" FROM supply s, (SELECT '' AS printer UNION SELECT '-' UNION SELECT '%1' UNION SELECT "
        u"'%2'"
        " UNION SELECT '%3') JOIN material m ON m.id = s.material_id"
        " JOIN format f ON f.id = s.format_id JOIN colour c ON c.id = s.colour_id"_s.arg(
            Idle, Loaded, NeverAdded);
    const QString panels = u" FROM ribbon_panel p JOIN colour c ON c.id = p.colour_id"_s;
    const QString setting = u"SELECT ribbon_sku, panel, supply_sku, %1 FROM print_setting"_s;
    return {
        {"supplyMaterialName", u"SELECT s.sku, printer, "_s + named(u"m"_s) + supplies},
        {"supplyFormatName", u"SELECT s.sku, printer, "_s + named(u"f"_s) + supplies},
        {"supplyColorRGB", u"SELECT s.sku, printer, c.rgb"_s + supplies},
        {"supplyColorName", u"SELECT s.sku, printer, "_s + named(u"c"_s) + supplies},
        {"supplyWidth", u"SELECT s.sku, printer, s.width"_s + supplies},
        {"supplyNonContinuousLength",
         u"SELECT s.sku, printer, coalesce(s.label_length, -1.0)"_s + supplies},
        {"supplyTypeIndex", u"SELECT s.sku, printer, "_s + typeIndex(u"printer"_s) + supplies},
        {"supplyIsLandscape", u"SELECT sku, is_landscape FROM supply"_s},
        {"supplyBackgroundImage", u"SELECT sku, coalesce((SELECT image FROM background"
                                  " WHERE id = background_id), '') FROM supply"_s},
        {"supplyRibbonPanels", u"SELECT ribbon_sku, count(*) FROM ribbon_panel GROUP BY 1"_s},
        {"supplyRibbonWidth", u"SELECT sku, width FROM ribbon"_s},
        {"supplyRibbonLength", u"SELECT sku, length FROM ribbon"_s},
        {"supplyRibbonType", u"SELECT sku, type FROM ribbon"_s},
        {"supplyRibbonColorName", u"SELECT p.ribbon_sku, p.panel, "_s + named(u"c"_s) + panels},
        {"supplyRibbonColorName",
         u"SELECT p.ribbon_sku, "_s + named(u"c"_s) + panels + u" WHERE p.panel = 1"_s},
        {"supplyRibbonColorRGB", u"SELECT p.ribbon_sku, p.panel, c.rgb"_s + panels},
        {"supplyRibbonColorRGB",
         u"SELECT p.ribbon_sku, c.rgb"_s + panels + u" WHERE p.panel = 1"_s},
        {"supplyRibbonHeat", setting.arg(u"heat"_s)},
        {"supplyRibbonHeatOffset", setting.arg(u"heat_offset"_s)},
        {"supplyRibbonMaxSpeed", setting.arg(u"max_speed"_s)},
        {"supplyRibbonTension", setting.arg(u"tension"_s)},
        {"supplySKUList",
         u"SELECT json_group_array(sku) FROM (SELECT sku FROM supply ORDER BY 1)"_s},
        {"supplyRibbonSKUList",
         u"SELECT json_group_array(sku) FROM (SELECT sku FROM ribbon ORDER BY 1)"_s},
        {"supplyColorHash", u"SELECT json_group_object(s.sku, c.rgb) FROM supply s"
                            " JOIN colour c ON c.id = s.colour_id"_s},
        {"supplyRibbonColorHash",
         u"SELECT json_group_object(p.ribbon_sku, c.rgb)"_s + panels + u" WHERE p.panel = 1"_s},
    };
}

/// The methods whose rows have their answer as the text of a JSON list or object.
bool answersJson(const QString& method)
{
    return method.endsWith(u"List"_s) || method.endsWith(u"Hash"_s);
}

QJsonValue toJson(const QVariant& value)
{
    if (value.typeId() == QMetaType::QByteArray)
        return QString::fromLatin1(value.toByteArray().toBase64());
    return QJsonValue::fromVariant(value);
}

/// As it is after it has crossed: a number has one form.
QJsonValue crossed(const QJsonValue& value)
{
    return QJsonDocument::fromJson(QJsonDocument(QJsonArray{value}).toJson()).array().first();
}

QByteArray shown(const QJsonValue& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

/// `int sum(int left, int right?)` has the names `left` and `right`.
QStringList argumentNames(const QString& signature)
{
    QStringList names;
    const qsizetype begin = signature.indexOf(u'(') + 1;
    const QString arguments = signature.sliced(begin, signature.indexOf(u')') - begin);
    for (const QString& argument : arguments.split(u", "_s, Qt::SkipEmptyParts))
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
    const QStringList& table = MethodTables.at(service);
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
    for (const QJsonArray methods = document[u"methods"_s].toArray();
         const QJsonValue& method : methods) {
        QStringList arguments;
        for (const QJsonArray parameters = method[u"params"_s].toArray();
             const QJsonValue& parameter : parameters) {
            arguments.append(
                u"%1 %2%3"_s.arg(parameter[u"x-type"_s].toString(), parameter[u"name"_s].toString(),
                                 parameter[u"required"_s].toBool() ? QString() : u"?"_s));
        }
        signatures.append(u"%1 %2(%3)"_s.arg(method[u"result"_s][u"x-type"_s].toString(),
                                             method[u"name"_s].toString(),
                                             arguments.join(u", "_s)));
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
    void everyFormOfEveryMethodIsInATable();
    void givesItsFixedAnswers_data();
    void givesItsFixedAnswers();
    void answersWhatTheDatabaseHas_data();
    void answersWhatTheDatabaseHas();
    void readsBackTheLoadedSupply();
    void readsBackTheLoadedRibbons();
    void gathersWhatIsLoaded();
    void gathersWhatIsAskedFor_data();
    void gathersWhatIsAskedFor();
    void sharesOneDatabaseAmongPrintersNeverAdded();
    void keepsTheStatusOfPrinters();
    void keepsAsManyStatusesForOthersAsThereMayBe();
    void keepsNoJob();

private:
    QJsonValue call(Service service, const QString& method, const QJsonValue& arguments);
    QJsonValue ask(const QString& method, const QJsonArray& arguments)
    {
        return call(Supplies, method, arguments);
    }
    /// The rows that SQL gives; a failed test and no rows when it cannot be run.
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
    writeDatabase(readCatalogueDirectory(QStringLiteral(VX_SAMPLE_CATALOGUE)), databasePath());
    m_database = QSqlDatabase::addDatabase(u"QSQLITE"_s, ConnectionName);
    m_database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
    m_database.setDatabaseName(databasePath());
    QVERIFY(m_database.open());

    m_host = std::make_unique<HostProcess>(u"endpoint_host"_s, QStringList{Idle, Loaded},
                                           int(ServiceCount));
    QVERIFY(m_host->processId() != QCoreApplication::applicationPid());
    for (int service = 0; service < ServiceCount; ++service) {
        const QString name = m_host->serverName(service);
        QVERIFY(name.startsWith(u"vxipc-%1"_s.arg(service)));
        m_clients.at(static_cast<size_t>(service)) = std::make_unique<VXIPCClient>(name);
    }
}

void EndpointsOverIpcTest::cleanupTestCase()
{
    for (auto& client : m_clients)
        client.reset();
    m_host.reset();
    m_database = QSqlDatabase();
    QSqlDatabase::removeDatabase(ConnectionName);
    QVERIFY(QFile::remove(databasePath()));
}

QJsonValue EndpointsOverIpcTest::call(Service service, const QString& method,
                                      const QJsonValue& arguments)
{
    const VXIPCReply reply = m_clients.at(service)->callAndWait(method, arguments);
    if (reply.isOk())
        return reply.result;
    return u"%1: %2 %3"_s.arg(method).arg(reply.error->code).arg(reply.error->message);
}

QList<QSqlRecord> EndpointsOverIpcTest::rows(const QString& sql)
{
    QSqlQuery query(m_database);
    if (!query.exec(sql)) {
        QTest::qFail(qPrintable(sql + u": "_s + query.lastError().text()), __FILE__, __LINE__);
        return {};
    }
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
        call(static_cast<Service>(service), u"rpc.discover"_s, QJsonArray()).toObject();
    QCOMPARE(described(document), MethodTables.at(static_cast<size_t>(service)));
    QCOMPARE(document[u"info"_s][u"x-process"_s].toInteger(), m_host->processId());
    QCOMPARE(document[u"info"_s][u"x-application"_s].toString(), u"endpoint_host"_s);
}

void EndpointsOverIpcTest::everyFormOfEveryMethodIsInATable()
{
    const auto form = [](int service, const QString& method, qsizetype arguments) {
        return u"%1 %2/%3"_s.arg(service).arg(method).arg(arguments);
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
        for (const QString& signature : MethodTables.at(service)) {
            const qsizetype most = argumentNames(signature).size();
            for (qsizetype i = most - signature.count(u'?'); i <= most; ++i)
                all.insert(form(static_cast<int>(service), methodName(signature), i));
        }
    }
    QCOMPARE(called, all);
}

void EndpointsOverIpcTest::givesItsFixedAnswers_data()
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

void EndpointsOverIpcTest::givesItsFixedAnswers()
{
    QFETCH(int, service);
    QFETCH(QString, method);
    QFETCH(QJsonArray, arguments);
    QFETCH(QJsonValue, answer);
    const auto of = static_cast<Service>(service);
    QCOMPARE(call(of, method, arguments), crossed(answer));
    QCOMPARE(call(of, method, byName(of, method, arguments)), crossed(answer));
}

void EndpointsOverIpcTest::answersWhatTheDatabaseHas_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("sql");
    for (const DatabaseAnswer& each : databaseAnswers()) {
        QTest::addRow("%s of %d", each.method, int(rows(each.sql).size()))
            << QString::fromLatin1(each.method) << each.sql;
    }
}

void EndpointsOverIpcTest::answersWhatTheDatabaseHas()
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

void EndpointsOverIpcTest::readsBackTheLoadedSupply()
{
    const QList<QSqlRecord> kinds =
        rows(u"SELECT printf('%08X%06d%06X', 500, k.kind, 167), k.supply_sku, c.rgb || ''"
             " FROM supply_kind k JOIN supply s ON s.sku = k.supply_sku"
             " JOIN colour c ON c.id = s.colour_id"_s);
    QVERIFY(kinds.size() >= 40);
    for (const QSqlRecord& kind : kinds) {
        QVERIFY(ask(u"setSupplyId"_s, {kind.value(0).toString(), Loaded}).isNull());
        QCOMPARE(ask(u"supplySKUCached"_s, {Loaded}), toJson(kind.value(1)));
        QCOMPARE(ask(u"supplySupplyRGB"_s, {Loaded}), toJson(kind.value(2)));
    }
    for (const auto& [id, sku] :
         {std::pair(u"-1"_s, u"-1"_s), std::pair(u""_s, u"-1"_s), std::pair(u"odd"_s, u""_s)}) {
        QVERIFY(ask(u"setSupplyId"_s, {id, Loaded}).isNull());
        QCOMPARE(ask(u"supplySKUCached"_s, {Loaded}).toString(), sku);
        QCOMPARE(ask(u"supplySupplyRGB"_s, {Loaded}).toString(), QString());
    }
    QCOMPARE(ask(u"supplySKUCached"_s, {Idle}).toString(), u"-1"_s);
}

void EndpointsOverIpcTest::readsBackTheLoadedRibbons()
{
    const QList<QSqlRecord> numbers =
        rows(u"SELECT number || '', ribbon_sku FROM ribbon_number ORDER BY number"_s);
    QVERIFY(numbers.size() >= 20);
    const QString rgbs =
        u"SELECT c.rgb || '' FROM ribbon_panel p JOIN colour c ON c.id = p.colour_id"
        " WHERE p.ribbon_sku = '%1' ORDER BY p.panel"_s;
    for (qsizetype i = 1; i < numbers.size(); ++i) {
        const QSqlRecord& first = numbers.at(i);
        const QSqlRecord& second = numbers.at(i - 1);
        const QJsonArray ids{toJson(first.value(0)), toJson(second.value(0))};
        QVERIFY(ask(u"setRibbonIds"_s, {ids, Loaded}).isNull());
        QCOMPARE(ask(u"supplyRibbonSKUsCached"_s, {Loaded}).toArray(),
                 (QJsonArray{toJson(first.value(1)), toJson(second.value(1))}));
        QCOMPARE(ask(u"supplyRibbon1RGBs"_s, {Loaded}).toArray(),
                 column(rgbs.arg(first.value(1).toString())));
        QCOMPARE(ask(u"supplyRibbon2RGBs"_s, {Loaded}).toArray(),
                 column(rgbs.arg(second.value(1).toString())));
    }
    const QJsonArray odd{u"-1"_s, u"4294967295"_s, u"0"_s, u""_s, u"odd"_s};
    QVERIFY(ask(u"setRibbonIds"_s, {odd, Loaded}).isNull());
    QCOMPARE(ask(u"supplyRibbonSKUsCached"_s, {Loaded}).toArray(),
             (QJsonArray{u"-1"_s, u"-1"_s, u"-1"_s, u"-1"_s, u""_s}));
    QCOMPARE(ask(u"supplyRibbonSKUsCached"_s, {Idle}).toArray(), QJsonArray());
}

QJsonObject EndpointsOverIpcTest::expectedRecord(const QString& supplySku,
                                                 const QStringList& ribbonSkus,
                                                 const QString& printer, const QString& supplyId)
{
    const QString english = u"(SELECT english FROM name WHERE id = %1.name_id)"_s;
    const QList<QSqlRecord> supply =
        rows(u"SELECT coalesce(second_colour_width, -1.0) AS secColorWidth,"
             " coalesce(d.rgb, -1) AS secColorRGB, coalesce("_s +
             named(u"d"_s) + u", '') AS secColorName, coalesce("_s + english.arg(u"d"_s) +
             u", '') AS secColorNameEn, s.length AS supplyLength, m.id AS material, "_s +
             named(u"m"_s) + u" AS materialName, f.id AS format, "_s + named(u"f"_s) +
             u" AS formatName, f.type AS formatType, c.rgb AS colorRGB, "_s + named(u"c"_s) +
             u" AS colorName, "_s + english.arg(u"c"_s) +
             u" AS colorNameEn, s.width AS supplyWidth, s.is_landscape AS isLandscape,"
             " coalesce((SELECT image FROM background WHERE id = s.background_id), '')"
             " AS backgroundImage, coalesce(s.separator_width, -1.0) AS separatorWidth,"
             " coalesce(s.label_length, -1.0) AS nonContinuousLength, "_s +
             typeIndex(u"'%1'"_s.arg(printer)) +
             u" AS typeIndex, s.multi_up_count AS multiUpCount,"
             " coalesce(s.multi_up_gap, -1.0) AS multiUpGapSize FROM supply s"
             " JOIN material m ON m.id = s.material_id JOIN format f ON f.id = s.format_id"
             " JOIN colour c ON c.id = s.colour_id LEFT JOIN colour d ON d.id = s.second_colour_id"
             " WHERE s.sku = '%1'"_s.arg(supplySku));

    QJsonObject record = IdleRecord;
    const auto set = [&record](const QString& member, const QVariant& value) {
        // Sizes are single-precision in the record.
        record.insert(member, value.typeId() == QMetaType::Double
                                  ? QJsonValue(static_cast<double>(value.toFloat()))
                                  : toJson(value));
    };
    record.insert(u"supplyId"_s, supplyId);
    record.insert(u"supplySku"_s, supplySku);
    record.insert(u"ribbonSkus"_s, QJsonArray::fromStringList(ribbonSkus));
    for (int i = 0; i < supply.at(0).count(); ++i)
        set(supply.at(0).fieldName(i), supply.at(0).value(i));

    QMap<QString, QJsonArray> lists;
    QStringList types(2, u""_s);
    for (qsizetype i = 0; i < ribbonSkus.size(); ++i) {
        const QSqlRecord ribbon =
            rows(u"SELECT r.type, r.width, r.length,"
                 " (SELECT count(*) FROM ribbon_panel WHERE ribbon_sku = r.sku) AS panels, "_s +
                 named(u"c"_s) +
                 u" AS ribbonColorNames, c.rgb AS ribbonColorRGBs,"
                 " coalesce(t.heat, -1) AS ribbonHeats,"
                 " coalesce(t.heat_offset, -1) AS ribbonHeatOffsets,"
                 " coalesce(t.max_speed, -1) AS ribbonMaxSpeeds,"
                 " coalesce(t.tension, -1) AS ribbonTensions FROM ribbon r"
                 " JOIN ribbon_panel p ON p.ribbon_sku = r.sku AND p.panel = 1"
                 " JOIN colour c ON c.id = p.colour_id LEFT JOIN print_setting t"
                 " ON t.ribbon_sku = r.sku AND t.panel = 1 AND t.supply_sku = '%2'"
                 " WHERE r.sku = '%1'"_s.arg(ribbonSkus.at(i), supplySku))
                .value(0);
        for (int field = 4; field < ribbon.count(); ++field)
            lists[ribbon.fieldName(field)].append(toJson(ribbon.value(field)));
        if (i >= types.size())
            continue;
        types[i] = ribbon.value(0).toString();
        set(u"ribbon%1Width"_s.arg(i + 1), ribbon.value(1));
        set(u"ribbon%1Length"_s.arg(i + 1), ribbon.value(2));
        set(u"ribbon%1Panels"_s.arg(i + 1), ribbon.value(3));
    }
    for (auto list = lists.cbegin(); list != lists.cend(); ++list)
        record.insert(list.key(), list.value());
    record.insert(u"ribbonTypes"_s, QJsonArray::fromStringList(types));
    return crossed(record).toObject();
}

void EndpointsOverIpcTest::gathersWhatIsLoaded()
{
    // Each supply with two ribbons that have a setting for it.
    const QList<QSqlRecord> loads =
        rows(u"WITH load AS (SELECT k.kind, k.supply_sku, min(n.number) AS least,"
             " max(n.number) AS most FROM supply_kind k"
             " JOIN print_setting t ON t.supply_sku = k.supply_sku"
             " JOIN ribbon_number n ON n.ribbon_sku = t.ribbon_sku GROUP BY k.kind)"
             " SELECT printf('%08X%06d%06X', 500, kind, 167), supply_sku,"
             " least || '', r.ribbon_sku, most || '', q.ribbon_sku FROM load"
             " JOIN ribbon_number r ON r.number = least"
             " JOIN ribbon_number q ON q.number = most"_s);
    QVERIFY(loads.size() >= 20);
    for (const QSqlRecord& load : loads) {
        const QString id = load.value(0).toString();
        QVERIFY(ask(u"setSupplyId"_s, {id, Loaded}).isNull());
        QVERIFY(ask(u"setRibbonIds"_s,
                    {QJsonArray{toJson(load.value(2)), toJson(load.value(4))}, Loaded})
                    .isNull());
        const QJsonObject expected =
            expectedRecord(load.value(1).toString(),
                           {load.value(3).toString(), load.value(5).toString()}, Loaded, id);
        QVERIFY(expected[u"ribbonHeats"_s][0].toInt() >= 0);
        QCOMPARE(expected.size(), 37);
        QCOMPARE(ask(u"supplyInformation"_s, {Loaded}).toObject(), expected);
    }
}

void EndpointsOverIpcTest::gathersWhatIsAskedFor_data()
{
    QTest::addColumn<int>("ribbons");
    QTest::newRow("no ribbon") << 0;
    QTest::newRow("one ribbon") << 1;
    QTest::newRow("two ribbons") << 2;
    QTest::newRow("three ribbons") << 3;
}

void EndpointsOverIpcTest::gathersWhatIsAskedFor()
{
    QFETCH(int, ribbons);
    QStringList ribbonSkus;
    for (const QSqlRecord& ribbon :
         rows(u"SELECT sku FROM ribbon ORDER BY sku DESC LIMIT %1"_s.arg(ribbons)))
        ribbonSkus.append(ribbon.value(0).toString());
    QCOMPARE(ribbonSkus.size(), ribbons);
    for (const QSqlRecord& supply : rows(u"SELECT sku FROM supply"_s)) {
        const QString sku = supply.value(0).toString();
        const QJsonArray arguments{sku, QJsonArray::fromStringList(ribbonSkus), Idle};
        const QJsonObject expected = expectedRecord(sku, ribbonSkus, Idle, {});
        QCOMPARE(ask(u"supplyInformationBySKUs"_s, arguments).toObject(), expected);
    }
}

void EndpointsOverIpcTest::sharesOneDatabaseAmongPrintersNeverAdded()
{
    const QSqlRecord kind =
        rows(
            u"SELECT printf('%08X%06d%06X', 500, kind, 167), supply_sku FROM supply_kind LIMIT 1"_s)
            .at(0);
    const QString id = kind.value(0).toString();
    const QString sku = kind.value(1).toString();
    QVERIFY(ask(u"setSupplyId"_s, {id, NeverAdded}).isNull());
    QCOMPARE(ask(u"supplySKUCached"_s, {u"Another never added"_s}).toString(), sku);
    QCOMPARE(ask(u"supplySKUCached"_s, {u"-"_s}).toString(), sku);
    QCOMPARE(ask(u"supplySKUCached"_s, {u""_s}).toString(), u"-1"_s);
    QCOMPARE(ask(u"supplySKUCached"_s, {Idle}).toString(), u"-1"_s);
    QCOMPARE(ask(u"supplyInformation"_s, {u""_s}), ask(u"supplyInformation"_s, {u"-"_s}));
    QCOMPARE(ask(u"supplyInformation"_s, {NeverAdded}).toObject(),
             expectedRecord(sku, {}, NeverAdded, id));
}

void EndpointsOverIpcTest::keepsTheStatusOfPrinters()
{
    const auto status = [this](const QString& printer) {
        return call(Printers, u"getPrinterStatus"_s, QJsonArray{printer}).toInt();
    };
    QCOMPARE(status(Loaded), 255);
    QVERIFY(call(Printers, u"onStatusChanged"_s, QJsonArray{7, Loaded}).isNull());
    QCOMPARE(status(Loaded), 7);
    QCOMPARE(status(Loaded.toUpper()), 255);
    QVERIFY(call(Printers, u"onStatusChanged"_s, QJsonArray{-1, Loaded}).isNull());
    QCOMPARE(status(Loaded), -1);
    QVERIFY(call(Printers, u"onStatusChanged"_s, QJsonArray{3, u""_s}).isNull());
    QCOMPARE(status({}), 3);
}

void EndpointsOverIpcTest::keepsAsManyStatusesForOthersAsThereMayBe()
{
    // A host of its own, as the names stay.
    HostProcess host(u"endpoint_host"_s, {}, int(ServiceCount));
    VXIPCClient client(host.serverName(Printers));
    const auto report = [&](int status, const QString& printer) {
        const VXIPCReply reply =
            client.callAndWait(u"onStatusChanged"_s, QJsonArray{status, printer});
        return reply.isOk() ? QString()
                            : u"%1 %2"_s.arg(reply.error->code).arg(reply.error->message);
    };
    const auto status = [&](const QString& printer) {
        return client.callAndWait(u"getPrinterStatus"_s, QJsonArray{printer}).result.toInt();
    };

    // "\\\\SERVER\\PRINTER" with names of 255 and 220 characters: Microsoft's page "Computer Names"
    // (learn.microsoft.com/windows/win32/sysinfo/computer-names), and ReactOS,
    // win32ss/printing/providers/localspl/precomp.h, MAX_PRINTER_NAME.
    const QString longestName(478, u'n');
    QCOMPARE(report(1, longestName), QString());
    QCOMPARE(report(1, longestName + u'n'),
             u"-32003 Refused: a printer's name has at most 478 characters, got 479"_s);
    QCOMPARE(status(longestName + u'n'), 255);

    int refused = 0;
    for (int i = 1; i < 4096; ++i)
        refused += report(i, u"printer %1"_s.arg(i)).isEmpty() ? 0 : 1;
    QCOMPARE(refused, 0);
    QCOMPARE(
        report(1, u"one more"_s),
        u"-32003 Refused: 4096 printers were reported by other processes, and no more are kept"_s);
    QCOMPARE(status(u"one more"_s), 255);
    // Those that are kept still change.
    QCOMPARE(status(u"printer 4095"_s), 4095);
    QCOMPARE(report(7, u"printer 4095"_s), QString());
    QCOMPARE(status(u"printer 4095"_s), 7);
    QCOMPARE(report(8, longestName), QString());
    QCOMPARE(status(longestName), 8);
}

void EndpointsOverIpcTest::keepsNoJob()
{
    QVERIFY(call(PrintQueue, u"addJob"_s, QJsonArray{u"{1}"_s, u"labels"_s, u"Quillmark"_s, 1})
                .isNull());
    QCOMPARE(call(PrintQueue, u"getJobList"_s, QJsonArray()).toArray(), QJsonArray());
    QCOMPARE(call(PrintQueue, u"getJobInfo"_s, QJsonArray{u"{1}"_s}).toObject(), UnknownJob);
}

int main(int argc, char* argv[])
{
    // Names in another language than the one they fall back to, where the system can be told so.
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANGUAGE", "de");
    QCoreApplication application(argc, argv);
    EndpointsOverIpcTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_endpoints_over_ipc.moc"
