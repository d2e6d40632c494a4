// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "sku_report.h"

#include "database_check.h"
#include "failure.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <vxsupplydatabase.h>

namespace {

class Report
{
public:
    void line(const QString& label, const QString& value) { m_lines.append({label + u':', value}); }
    void inches(const QString& label, double value)
    {
        if (value >= 0.0)
            line(label, QStringLiteral("%1 in").arg(value));
    }
    void colour(const QString& label, int rgb, const QString& name)
    {
        if (rgb >= 0)
            line(label, QStringLiteral("#%1 %2").arg(rgb, 6, 16, QLatin1Char('0')).arg(name));
    }

    QString text() const
    {
        qsizetype labelWidth = 16;
        for (const Line& line : m_lines)
            labelWidth = std::max(labelWidth, text_layout::width(line.label));
        QString text;
        for (const Line& line : m_lines)
            text += text_layout::padded(line.label, labelWidth + 1) + shown(line.value) + u'\n';
        return text;
    }

private:
    struct Line
    {
        QString label;
        QString value;
    };
    QList<Line> m_lines;
};

QString numbered(int number, const QString& name)
{
    return QStringLiteral("%1 %2").arg(number).arg(name);
}

QString supplyReport(const VXSupplyDatabase& database, const QString& sku)
{
    Report report;
    report.line(ToolText::tr("supply"), sku);
    report.line(ToolText::tr("material"),
                numbered(database.supplyMaterial(sku), database.supplyMaterialName(sku)));
    report.line(ToolText::tr("format"),
                numbered(database.supplyFormat(sku), database.supplyFormatName(sku)));
    report.line(ToolText::tr("type"), database.supplyFormatType(sku));
    report.colour(ToolText::tr("colour"), database.supplyColorRGB(sku),
                  database.supplyColorName(sku));
    report.colour(ToolText::tr("second colour"), database.supplySecColorRGB(sku),
                  database.supplySecColorName(sku));
    report.inches(ToolText::tr("stripe"), database.supplySecColorWidth(sku));
    report.inches(ToolText::tr("width"), database.supplyWidth(sku));
    report.inches(ToolText::tr("length"), database.supplyLength(sku));
    report.inches(ToolText::tr("label length"), database.supplyNonContinuousLength(sku));
    report.inches(ToolText::tr("separator"), database.supplySeparatorWidth(sku));
    report.line(ToolText::tr("landscape"),
                database.supplyIsLandscape(sku) != 0 ? ToolText::tr("yes") : ToolText::tr("no"));
    report.line(ToolText::tr("side by side"), QString::number(database.supplyMultiUpCount(sku)));
    report.inches(ToolText::tr("gap"), database.supplyMultiUpGapSize(sku));
    report.line(ToolText::tr("background"),
                ToolText::tr("%1 bytes").arg(database.supplyBackgroundImage(sku).size()));
    for (const QString& ribbon : database.supplyRibbonSKUList()) {
        for (int panel = 1; panel <= database.supplyRibbonPanels(ribbon); ++panel) {
            const int heat = database.supplyRibbonHeat(ribbon, panel, sku);
            if (heat >= 0)
                report.line(ToolText::tr("printed with"),
                            ToolText::tr("%1 panel %2: heat %3, offset %4, speed %5, tension %6")
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
    report.line(ToolText::tr("ribbon"), sku);
    report.line(ToolText::tr("type"), database.supplyRibbonType(sku));
    report.inches(ToolText::tr("width"), database.supplyRibbonWidth(sku));
    report.inches(ToolText::tr("length"), database.supplyRibbonLength(sku));
    for (int panel = 1; panel <= database.supplyRibbonPanels(sku); ++panel)
        report.colour(ToolText::tr("panel"), database.supplyRibbonColorRGB(sku, panel),
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
    throw Failure(ToolText::tr("%1: no supply or ribbon \"%2\"").arg(path, sku));
}
