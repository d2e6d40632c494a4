// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "sku_report.h"

#include "database_check.h"
#include "failure.h"
#include "shown_text.h"

#include <vxsupplydatabase.h>

namespace {

class Report
{
public:
    void line(const char* label, const QString& value)
    {
        m_text += QStringLiteral("%1 %2\n").arg(QLatin1String(label) + u':', -16).arg(shown(value));
    }
    void inches(const char* label, double value)
    {
        if (value >= 0.0)
            line(label, QStringLiteral("%1 in").arg(value));
    }
    void colour(const char* label, int rgb, const QString& name)
    {
        if (rgb >= 0)
            line(label, QStringLiteral("#%1 %2").arg(rgb, 6, 16, QLatin1Char('0')).arg(name));
    }

    QString text() const { return m_text; }

private:
    QString m_text;
};

QString numbered(int number, const QString& name)
{
    return QStringLiteral("%1 %2").arg(number).arg(name);
}

QString supplyReport(const VXSupplyDatabase& database, const QString& sku)
{
    Report report;
    report.line("supply", sku);
    report.line("material",
                numbered(database.supplyMaterial(sku), database.supplyMaterialName(sku)));
    report.line("format", numbered(database.supplyFormat(sku), database.supplyFormatName(sku)));
    report.line("type", database.supplyFormatType(sku));
    report.colour("colour", database.supplyColorRGB(sku), database.supplyColorName(sku));
    report.colour("second colour", database.supplySecColorRGB(sku),
                  database.supplySecColorName(sku));
    report.inches("stripe", database.supplySecColorWidth(sku));
    report.inches("width", database.supplyWidth(sku));
    report.inches("length", database.supplyLength(sku));
    report.inches("label length", database.supplyNonContinuousLength(sku));
    report.inches("separator", database.supplySeparatorWidth(sku));
    report.line("landscape", database.supplyIsLandscape(sku) != 0 ? QStringLiteral("yes")
                                                                  : QStringLiteral("no"));
    report.line("side by side", QString::number(database.supplyMultiUpCount(sku)));
    report.inches("gap", database.supplyMultiUpGapSize(sku));
    report.line("background",
                QStringLiteral("%1 bytes").arg(database.supplyBackgroundImage(sku).size()));
    for (const QString& ribbon : database.supplyRibbonSKUList()) {
        for (int panel = 1; panel <= database.supplyRibbonPanels(ribbon); ++panel) {
            const int heat = database.supplyRibbonHeat(ribbon, panel, sku);
            if (heat >= 0)
                report.line("printed with",
                            QStringLiteral("%1 panel %2: heat %3, offset %4, speed %5, tension %6")
                                .arg(ribbon)
                                .arg(panel)
                                .arg(heat)
                                .arg(database.supplyRibbonHeatOffset(ribbon, panel, sku))
                                .arg(database.supplyRibbonMaxSpeed(ribbon, panel, sku))
                                .arg(database.supplyRibbonTension(ribbon, panel, sku)));
        }
    }
    return report.text();
}

QString ribbonReport(const VXSupplyDatabase& database, const QString& sku)
{
    Report report;
    report.line("ribbon", sku);
    report.line("type", database.supplyRibbonType(sku));
    report.inches("width", database.supplyRibbonWidth(sku));
    report.inches("length", database.supplyRibbonLength(sku));
    for (int panel = 1; panel <= database.supplyRibbonPanels(sku); ++panel)
        report.colour("panel", database.supplyRibbonColorRGB(sku, panel),
                      database.supplyRibbonColorName(sku, panel));
    return report.text();
}

} // namespace

QString skuReport(const QString& path, const QString& sku, int language)
{
    checkDatabase(path); // a damaged file would seem to lack the SKU
    VXSupplyDatabase database;
    database.setup(path, QStringLiteral("rolldb show"));
    database.setLanguageId(language);
    if (database.supplyMaterial(sku) >= 0)
        return supplyReport(database, sku);
    if (database.supplyRibbonPanels(sku) > 0)
        return ribbonReport(database, sku);
    throw Failure(QStringLiteral("%1: no supply or ribbon \"%2\"").arg(path, sku));
}
