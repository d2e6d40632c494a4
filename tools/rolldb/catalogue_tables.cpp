// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue_tables.h"

#include "failure.h"
#include "sku_report.h"
#include "table_layouts.h"
#include "tool_text.h"

#include <QtCore/QLocale>

#include <algorithm>
#include <array>
#include <iterator>

namespace {

using Rows = QList<QStringList>;

QString real(double value)
{
    // The fewest digits that give the same number when they are read.
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

QString realOrEmpty(const std::optional<double>& value)
{
    return value ? real(*value) : QString();
}

QString quotedIfNeeded(QString field)
{
    static constexpr std::array special{u',', u';', u'\t', u'"', u'\n', u'\r'};
    if (std::ranges::none_of(special, [&field](char16_t c) { return field.contains(QChar(c)); }))
        return field;
    return u'"' + field.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

class Tables
{
public:
    explicit Tables(const Catalogue& catalogue)
        : m_catalogue(catalogue)
    {}

    QMap<QString, QByteArray> files()
    {
        add(table_layouts::colours, colours());
        add(table_layouts::materials, materials());
        add(table_layouts::formats, formats());
        add(table_layouts::supplies, supplies());
        add(table_layouts::ribbons, ribbons());
        add(table_layouts::settings, settings());
        add(table_layouts::printerFormats, printerFormats());
        for (const Catalogue::Background& picture : m_catalogue.backgrounds)
            m_files.insert(table_layouts::backgroundFolder + picture.file, picture.image);
        return std::move(m_files);
    }

private:
    void add(const TableLayout& layout, const Rows& rows)
    {
        QStringList columns = layout.columns;
        if (layout.hasNames)
            columns += m_catalogue.languages.values();
        QByteArray text = columns.join(u',').toUtf8() + '\n';
        for (QStringList row : rows) {
            std::ranges::transform(row, row.begin(), quotedIfNeeded);
            text += row.join(u',').toUtf8() + '\n';
        }
        m_files.insert(layout.fileName(), text);
    }

    QStringList names(const Name& name) const
    {
        QStringList texts{name.english};
        for (auto language = std::next(m_catalogue.languages.begin());
             language != m_catalogue.languages.end(); ++language)
            texts.append(name.translations.value(language.key()));
        return texts;
    }

    QString colourKey(qsizetype place) const { return m_catalogue.colours.at(place).key; }

    Rows colours() const
    {
        Rows rows;
        for (const Catalogue::Colour& colour : m_catalogue.colours)
            rows.append(QStringList{colour.key, QStringLiteral("#%1").arg(colour.rgb, 6, 16,
                                                                          QLatin1Char('0'))} +
                        names(colour.name));
        return rows;
    }

    Rows materials() const
    {
        Rows rows;
        for (const Catalogue::Material& material : m_catalogue.materials)
            rows.append(QStringList{QString::number(material.number)} + names(material.name));
        return rows;
    }

    Rows formats() const
    {
        Rows rows;
        for (const Catalogue::Format& format : m_catalogue.formats)
            rows.append(QStringList{QString::number(format.number), format.type} +
                        names(format.name));
        return rows;
    }

    Rows supplies() const
    {
        Rows rows;
        for (const Catalogue::Supply& supply : m_catalogue.supplies)
            rows.append({supply.sku, joined(supply.kinds), QString::number(supply.material),
                         QString::number(supply.format), colourKey(supply.colour),
                         supply.secondColour ? colourKey(*supply.secondColour) : QString(),
                         realOrEmpty(supply.secondColourWidth), real(supply.width),
                         real(supply.length), realOrEmpty(supply.labelLength),
                         realOrEmpty(supply.separatorWidth),
                         supply.isLandscape ? QStringLiteral("yes") : QStringLiteral("no"),
                         supply.background ? m_catalogue.backgrounds.at(*supply.background).file
                                           : QString(),
                         QString::number(supply.multiUpCount), realOrEmpty(supply.multiUpGap)});
        return rows;
    }

    Rows ribbons() const
    {
        Rows rows;
        for (const Catalogue::Ribbon& ribbon : m_catalogue.ribbons) {
            QStringList panels;
            for (const qsizetype colour : ribbon.panelColours)
                panels.append(colourKey(colour));
            rows.append({ribbon.sku, joined(ribbon.numbers), ribbon.type, real(ribbon.width),
                         real(ribbon.length), panels.join(u' ')});
        }
        return rows;
    }

    Rows settings() const
    {
        Rows rows;
        for (const Catalogue::PrintSetting& setting : m_catalogue.settings)
            rows.append({setting.ribbonSku, QString::number(setting.panel), setting.supplySku,
                         QString::number(setting.heat), QString::number(setting.heatOffset),
                         QString::number(setting.maxSpeed), QString::number(setting.tension)});
        return rows;
    }

    Rows printerFormats() const
    {
        Rows rows;
        for (const Catalogue::PrinterFormat& entry : m_catalogue.printerFormats)
            rows.append({entry.model.isEmpty() ? table_layouts::anyModel : entry.model,
                         QString::number(entry.format)});
        return rows;
    }

    const Catalogue& m_catalogue;
    QMap<QString, QByteArray> m_files;
};

Name named(const char* english, const QList<const char*>& translations)
{
    static const QList<int> languages = [] {
        QList<int> numbers;
        for (const char* tag : {"de", "es", "fr", "it", "ja", "zh-Hans"})
            numbers.append(languageNumber(QString::fromLatin1(tag)).value());
        return numbers;
    }();
    Name name{QString::fromUtf8(english), {}};
    for (qsizetype i = 0; i < translations.size(); ++i)
        name.translations.insert(languages.at(i), QString::fromUtf8(translations.at(i)));
    return name;
}

} // namespace

QMap<QString, QByteArray> catalogueFiles(const Catalogue& catalogue)
{
    const Catalogue wanted = ordered(catalogue);
    const QMap<QString, QByteArray> files = Tables(wanted).files();
    // A database of another origin may have what no table can say, or names that lead out of the
    // folder. So the tables are read again before anything is written.
    const Catalogue found =
        readCatalogue([&files](const QString& name) -> std::optional<QByteArray> {
            const auto file = files.constFind(name);
            return file == files.constEnd() ? std::nullopt : std::optional(*file);
        });
    if (ordered(found) != wanted)
        throw Failure(ToolText::tr("it has content that the tables cannot express"));
    return files;
}

Catalogue templateCatalogue()
{
    Catalogue catalogue;
    for (const char* tag : {"en", "de", "es", "fr", "it", "ja", "zh-Hans"}) {
        const QString text = QString::fromLatin1(tag);
        catalogue.languages.insert(languageNumber(text).value(), text);
    }
    catalogue.colours = {
        {QStringLiteral("white"), 0xffffff,
         named("White", {"Weiß", "Blanco", "Blanc", "Bianco", "白", "白色"})},
        {QStringLiteral("black"), 0x000000,
         named("Black", {"Schwarz", "Negro", "Noir", "Nero", "黒", "黑色"})},
    };
    catalogue.materials = {
        {1, named("Vinyl", {"Vinyl", "Vinilo", "Vinyle", "Vinile", "ビニール", "乙烯基"})}};
    catalogue.formats = {
        {1, QStringLiteral("continuous"),
         named("Continuous tape", {"Endlosband", "Cinta continua", "Ruban continu",
                                   "Nastro continuo", "連続テープ", "连续带"})},
        {2, QStringLiteral("die-cut"),
         named("Die-cut labels",
               {"Vorgestanzte Etiketten", "Etiquetas troqueladas", "Étiquettes prédécoupées",
                "Etichette fustellate", "型抜きラベル", "模切标签"})},
    };
    catalogue.supplies = {
        {.sku = QStringLiteral("EXAMPLE-LABEL"),
         .material = 1,
         .format = 2,
         .colour = 0,
         .secondColour = 1,
         .secondColourWidth = 0.5,
         .width = 2,
         .length = 1200,
         .labelLength = 1,
         .separatorWidth = 0.125,
         .isLandscape = true,
         .background = {},
         .multiUpCount = 2,
         .multiUpGap = 0.1,
         .kinds = {100003}},
        {.sku = QStringLiteral("EXAMPLE-TAPE"),
         .material = 1,
         .format = 1,
         .colour = 0,
         .secondColour = {},
         .secondColourWidth = {},
         .width = 4,
         .length = 1200,
         .labelLength = {},
         .separatorWidth = {},
         .isLandscape = false,
         .background = {},
         .multiUpCount = 1,
         .multiUpGap = {},
         .kinds = {100001, 100002}},
    };
    catalogue.ribbons = {
        {QStringLiteral("EXAMPLE-RIBBON"), QStringLiteral("resin"), 4.33, 4725, {1}, {2001, 2002}}};
    for (const Catalogue::Supply& supply : std::as_const(catalogue.supplies))
        catalogue.settings.append({QStringLiteral("EXAMPLE-RIBBON"), 1, supply.sku, 58, 0, 4, 30});
    catalogue.printerFormats = {{QString(), 0, 1}, {QString(), 1, 2}};
    return catalogue;
}
