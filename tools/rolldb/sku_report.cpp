// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "sku_report.h"

#include "database_reader.h"
#include "failure.h"
#include "json_text.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <algorithm>
#include <optional>

namespace {

using json_text::Member;

class Report
{
public:
    void line(const QString& label, const QString& value) { m_lines.append({label + u':', value}); }
    void inches(const QString& label, std::optional<double> value)
    {
        if (value)
            line(label, QStringLiteral("%1 in").arg(*value));
    }
    void colour(const QString& label, const Catalogue::Colour& colour, int language)
    {
        line(label, QStringLiteral("#%1 ").arg(colour.rgb, 6, 16, QLatin1Char('0')) +
                        colour.name.in(language));
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

template <typename Rows>
const typename Rows::value_type& rowOf(const Rows& rows, int number)
{
    using Row = typename Rows::value_type;
    return *std::ranges::find(rows, number, &Row::number);
}

QString numbered(int number, const QString& name)
{
    return QString::number(number) + u' ' + name;
}

QString settingText(const QString& sku, const Catalogue::PrintSetting& setting)
{
    return ToolText::tr("%1 panel %2: heat %3, offset %4, speed %5, tension %6")
        .arg(sku)
        .arg(setting.panel)
        .arg(setting.heat)
        .arg(setting.heatOffset)
        .arg(setting.maxSpeed)
        .arg(setting.tension);
}

QString json(const QJsonValue& value)
{
    return json_text::value(value);
}
QString jsonOrNull(const std::optional<double>& value)
{
    return value ? json(QJsonValue(*value)) : json(QJsonValue());
}
QString jsonOf(const QList<int>& numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(number));
    return json_text::array(texts);
}
QString jsonOf(const Catalogue::Colour& colour, int language)
{
    return json_text::object({{QStringLiteral("key"), json(colour.key)},
                              {QStringLiteral("rgb"), json(QStringLiteral("#%1").arg(
                                                          colour.rgb, 6, 16, QLatin1Char('0')))},
                              {QStringLiteral("name"), json(colour.name.in(language))}});
}

/// The settings of a ribbon or a supply, given by a member of the setting.
QList<Catalogue::PrintSetting>
settingsOf(const Catalogue& catalogue, QString Catalogue::PrintSetting::*sku, const QString& wanted)
{
    QList<Catalogue::PrintSetting> settings;
    std::ranges::copy_if(
        catalogue.settings, std::back_inserter(settings),
        [&](const Catalogue::PrintSetting& setting) { return setting.*sku == wanted; });
    return settings;
}

QString settingsJson(const QList<Catalogue::PrintSetting>& settings)
{
    QStringList texts;
    for (const Catalogue::PrintSetting& setting : settings)
        texts.append(json_text::object({{QStringLiteral("ribbon"), json(setting.ribbonSku)},
                                        {QStringLiteral("panel"), json(setting.panel)},
                                        {QStringLiteral("supply"), json(setting.supplySku)},
                                        {QStringLiteral("heat"), json(setting.heat)},
                                        {QStringLiteral("heatOffset"), json(setting.heatOffset)},
                                        {QStringLiteral("maxSpeed"), json(setting.maxSpeed)},
                                        {QStringLiteral("tension"), json(setting.tension)}}));
    return json_text::array(texts);
}

template <typename Row>
const Row* rowWith(const QList<Row>& rows, const QString& sku)
{
    const auto found = std::ranges::find(rows, sku, &Row::sku);
    return found == rows.end() ? nullptr : &*found;
}

} // namespace

QString joined(const QList<int>& numbers)
{
    QStringList texts;
    for (const int number : numbers)
        texts.append(QString::number(number));
    return texts.join(u' ');
}

QString description(const Catalogue& catalogue, const Catalogue::Supply& supply, int language)
{
    QStringList colours{catalogue.colours.at(supply.colour).name.in(language)};
    if (supply.secondColour)
        colours.append(catalogue.colours.at(*supply.secondColour).name.in(language));
    return QStringList{colours.join(QStringLiteral(" + ")),
                       rowOf(catalogue.materials, supply.material).name.in(language),
                       rowOf(catalogue.formats, supply.format).name.in(language)}
        .join(QStringLiteral(", "));
}

QString description(const Catalogue& catalogue, const Catalogue::Ribbon& ribbon, int language)
{
    QStringList colours;
    for (const qsizetype colour : ribbon.panelColours)
        colours.append(catalogue.colours.at(colour).name.in(language));
    return colours.join(QStringLiteral(" + ")) + QStringLiteral(", ") + ribbon.type;
}

QString supplyReport(const Catalogue& catalogue, const Catalogue::Supply& supply, int language)
{
    const Catalogue::Format& format = rowOf(catalogue.formats, supply.format);
    Report report;
    report.line(ToolText::tr("supply"), supply.sku);
    if (!supply.kinds.isEmpty())
        report.line(ToolText::tr("kinds"), joined(supply.kinds));
    report.line(
        ToolText::tr("material"),
        numbered(supply.material, rowOf(catalogue.materials, supply.material).name.in(language)));
    report.line(ToolText::tr("format"), numbered(supply.format, format.name.in(language)));
    report.line(ToolText::tr("type"), format.type);
    report.colour(ToolText::tr("colour"), catalogue.colours.at(supply.colour), language);
    if (supply.secondColour)
        report.colour(ToolText::tr("second colour"), catalogue.colours.at(*supply.secondColour),
                      language);
    report.inches(ToolText::tr("stripe"), supply.secondColourWidth);
    report.inches(ToolText::tr("width"), supply.width);
    report.inches(ToolText::tr("length"), supply.length);
    report.inches(ToolText::tr("label length"), supply.labelLength);
    report.inches(ToolText::tr("separator"), supply.separatorWidth);
    report.line(ToolText::tr("landscape"),
                supply.isLandscape ? ToolText::tr("yes") : ToolText::tr("no"));
    report.line(ToolText::tr("side by side"), QString::number(supply.multiUpCount));
    report.inches(ToolText::tr("gap"), supply.multiUpGap);
    if (supply.background) {
        const Catalogue::Background& picture = catalogue.backgrounds.at(*supply.background);
        report.line(
            ToolText::tr("background"),
            ToolText::tr("%1, %2 bytes").arg(picture.file, QString::number(picture.image.size())));
    }
    for (const Catalogue::PrintSetting& setting :
         settingsOf(catalogue, &Catalogue::PrintSetting::supplySku, supply.sku))
        report.line(ToolText::tr("printed with"), settingText(setting.ribbonSku, setting));
    return report.text();
}

QString ribbonReport(const Catalogue& catalogue, const Catalogue::Ribbon& ribbon, int language)
{
    Report report;
    report.line(ToolText::tr("ribbon"), ribbon.sku);
    if (!ribbon.numbers.isEmpty())
        report.line(ToolText::tr("numbers"), joined(ribbon.numbers));
    report.line(ToolText::tr("type"), ribbon.type);
    report.inches(ToolText::tr("width"), ribbon.width);
    report.inches(ToolText::tr("length"), ribbon.length);
    for (const qsizetype colour : ribbon.panelColours)
        report.colour(ToolText::tr("panel"), catalogue.colours.at(colour), language);
    for (const Catalogue::PrintSetting& setting :
         settingsOf(catalogue, &Catalogue::PrintSetting::ribbonSku, ribbon.sku))
        report.line(ToolText::tr("prints on"), settingText(setting.supplySku, setting));
    return report.text();
}

QString supplyJson(const Catalogue& catalogue, const Catalogue::Supply& supply, int language,
                   bool isComplete)
{
    const Catalogue::Format& format = rowOf(catalogue.formats, supply.format);
    QList<Member> members{
        {QStringLiteral("type"), json(QStringLiteral("supply"))},
        {QStringLiteral("sku"), json(supply.sku)},
        {QStringLiteral("kinds"), jsonOf(supply.kinds)},
        {QStringLiteral("material"),
         json_text::object(
             {{QStringLiteral("number"), json(supply.material)},
              {QStringLiteral("name"),
               json(rowOf(catalogue.materials, supply.material).name.in(language))}})},
        {QStringLiteral("format"),
         json_text::object({{QStringLiteral("number"), json(supply.format)},
                            {QStringLiteral("type"), json(format.type)},
                            {QStringLiteral("name"), json(format.name.in(language))}})},
        {QStringLiteral("colour"), jsonOf(catalogue.colours.at(supply.colour), language)},
        {QStringLiteral("secondColour"),
         supply.secondColour ? jsonOf(catalogue.colours.at(*supply.secondColour), language)
                             : json(QJsonValue())},
        {QStringLiteral("secondColourWidth"), jsonOrNull(supply.secondColourWidth)},
        {QStringLiteral("width"), json(supply.width)},
        {QStringLiteral("length"), json(supply.length)},
        {QStringLiteral("labelLength"), jsonOrNull(supply.labelLength)},
        {QStringLiteral("separatorWidth"), jsonOrNull(supply.separatorWidth)},
        {QStringLiteral("landscape"), json(supply.isLandscape)},
        {QStringLiteral("background"), supply.background
                                           ? json(catalogue.backgrounds.at(*supply.background).file)
                                           : json(QJsonValue())},
        {QStringLiteral("multiUpCount"), json(supply.multiUpCount)},
        {QStringLiteral("multiUpGap"), jsonOrNull(supply.multiUpGap)},
    };
    if (isComplete)
        members.append(
            {QStringLiteral("printSettings"),
             settingsJson(settingsOf(catalogue, &Catalogue::PrintSetting::supplySku, supply.sku))});
    return json_text::object(members);
}

QString ribbonJson(const Catalogue& catalogue, const Catalogue::Ribbon& ribbon, int language,
                   bool isComplete)
{
    QStringList panels;
    for (const qsizetype colour : ribbon.panelColours)
        panels.append(jsonOf(catalogue.colours.at(colour), language));
    QList<Member> members{{QStringLiteral("type"), json(QStringLiteral("ribbon"))},
                          {QStringLiteral("sku"), json(ribbon.sku)},
                          {QStringLiteral("numbers"), jsonOf(ribbon.numbers)},
                          {QStringLiteral("ribbonType"), json(ribbon.type)},
                          {QStringLiteral("width"), json(ribbon.width)},
                          {QStringLiteral("length"), json(ribbon.length)},
                          {QStringLiteral("panels"), json_text::array(panels)}};
    if (isComplete)
        members.append(
            {QStringLiteral("printSettings"),
             settingsJson(settingsOf(catalogue, &Catalogue::PrintSetting::ribbonSku, ribbon.sku))});
    return json_text::object(members);
}

const Catalogue::Supply* supplyOf(const Catalogue& catalogue, const QString& sku)
{
    return rowWith(catalogue.supplies, sku);
}

const Catalogue::Ribbon* ribbonOf(const Catalogue& catalogue, const QString& sku)
{
    return rowWith(catalogue.ribbons, sku);
}

QString skuReport(const QString& path, const QString& sku, const ReportStyle& style)
{
    const Catalogue catalogue = readDatabase(path);
    if (const Catalogue::Supply* const supply = supplyOf(catalogue, sku))
        return style.isJson ? supplyJson(catalogue, *supply, style.language, true) + u'\n'
                            : supplyReport(catalogue, *supply, style.language);
    if (const Catalogue::Ribbon* const ribbon = ribbonOf(catalogue, sku))
        return style.isJson ? ribbonJson(catalogue, *ribbon, style.language, true) + u'\n'
                            : ribbonReport(catalogue, *ribbon, style.language);
    throw Failure(ToolText::tr("%1: no supply or ribbon \"%2\"").arg(path, sku));
}
