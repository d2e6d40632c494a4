// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue.h"

#include "csv_table.h"
#include "fault.h"
#include "visible_text.h"

#include <supplydb_schema.h>
#include <vxlocalelanguages.h>

#include <QtCore/QBuffer>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>
#include <QtGui/QImageReader>

#include <algorithm>
#include <cctype>
#include <cmath>

namespace {

constexpr int maxPanels = 16;
constexpr int maxSetting = 1000;
constexpr double maxWidth = 100.0;
constexpr double longestRoll = 100000.0;
constexpr qsizetype maxWordLength = 40;
constexpr qsizetype maxTagLength = 20;
// Of a picture: more than any label is printed with. A small file can hold far more, and whoever
// shows it needs memory for each pixel.
constexpr int maxImageSide = 4096;
// Enough for any file that is let through, whose own limits are lower.
constexpr qint64 maxBytesRead = qint64{32} << 20;

const QString EnglishTag = QStringLiteral("en");
const QString BackgroundFolder = QStringLiteral("backgrounds/");
const QString ContinuousType = QStringLiteral("continuous");
const QStringList FormatTypes{ContinuousType, QStringLiteral("die-cut"), QStringLiteral("sleeve"),
                              QStringLiteral("tag")};
// Stands for all printers of no model that has a list of its own.
const QString AnyModel = QStringLiteral("*");

// What a column holds beside names: a table refuses any column that nobody would read.
struct TableLayout
{
    const char* file;
    QStringList columns;
    bool hasNames;
};
const TableLayout ColourLayout{
    "colours.csv", {QStringLiteral("colour"), QStringLiteral("rgb")}, true};
const TableLayout MaterialLayout{"materials.csv", {QStringLiteral("material")}, true};
const TableLayout FormatLayout{
    "formats.csv", {QStringLiteral("format"), QStringLiteral("type")}, true};
const TableLayout SupplyLayout{
    "supplies.csv",
    {QStringLiteral("sku"), QStringLiteral("kinds"), QStringLiteral("material"),
     QStringLiteral("format"), QStringLiteral("colour"), QStringLiteral("second_colour"),
     QStringLiteral("second_colour_width"), QStringLiteral("width"), QStringLiteral("length"),
     QStringLiteral("label_length"), QStringLiteral("separator_width"), QStringLiteral("landscape"),
     QStringLiteral("background"), QStringLiteral("multi_up_count"),
     QStringLiteral("multi_up_gap")},
    false};
const TableLayout RibbonLayout{"ribbons.csv",
                               {QStringLiteral("sku"), QStringLiteral("numbers"),
                                QStringLiteral("type"), QStringLiteral("width"),
                                QStringLiteral("length"), QStringLiteral("panels")},
                               false};
const TableLayout SettingLayout{"print_settings.csv",
                                {QStringLiteral("ribbon"), QStringLiteral("panel"),
                                 QStringLiteral("supply"), QStringLiteral("heat"),
                                 QStringLiteral("heat_offset"), QStringLiteral("max_speed"),
                                 QStringLiteral("tension")},
                                false};
const TableLayout PrinterFormatLayout{
    "printer_formats.csv", {QStringLiteral("model"), QStringLiteral("format")}, false};

QLatin1String column(const char* name)
{
    return QLatin1String(name);
}

void requireVisible(const CsvField& field)
{
    if (const std::optional<char32_t> character = invisibleCharacter(field.text))
        throw field.fault(QStringLiteral("the character U+%1 cannot be seen; take it out")
                              .arg(QString::number(*character, 16).toUpper(), 4, u'0'));
}

QString textOf(const CsvField& field, qsizetype maxLength)
{
    if (field.text.isEmpty())
        throw field.fault(QStringLiteral("empty"));
    requireVisible(field);
    if (field.text.size() > maxLength)
        throw field.fault(QStringLiteral("longer than %1 characters").arg(maxLength));
    return field.text;
}

int integerOf(const CsvField& field, const QString& text, int least, int most)
{
    bool isInteger = false;
    const int value = text.toInt(&isInteger);
    if (!isInteger || value < least || value > most)
        throw field.fault(QStringLiteral("\"%1\" is no whole number from %2 to %3")
                              .arg(text)
                              .arg(least)
                              .arg(most));
    return value;
}

int integerOf(const CsvField& field, int least, int most)
{
    return integerOf(field, field.text, least, most);
}

QString skuOf(const CsvField& field)
{
    if (!supplydb_schema::isSku(field.text))
        throw field.fault(
            QStringLiteral("\"%1\" is no SKU: at most %2 letters from A to Z, digits, dots, "
                           "underscores and hyphens, a letter or digit first")
                .arg(field.text)
                .arg(supplydb_schema::maxSkuLength));
    return field.text;
}

int rgbOf(const CsvField& field)
{
    const bool isHex = field.text.size() == 7 && field.text.startsWith(u'#') &&
                       std::all_of(field.text.begin() + 1, field.text.end(), [](QChar digit) {
                           return digit.unicode() < 0x80 && std::isxdigit(digit.unicode()) != 0;
                       });
    if (!isHex)
        throw field.fault(
            QStringLiteral("\"%1\" is no colour of the form #RRGGBB").arg(field.text));
    return field.text.mid(1).toInt(nullptr, 16);
}

bool yesOrNoOf(const CsvField& field)
{
    if (field.text == QLatin1String("yes"))
        return true;
    if (field.text == QLatin1String("no"))
        return false;
    throw field.fault(QStringLiteral("\"%1\" is neither yes nor no").arg(field.text));
}

QStringList wordsOf(const CsvField& field)
{
    return field.text.split(u' ', Qt::SkipEmptyParts);
}

class Reader
{
public:
    explicit Reader(const ReadFile& readFile)
        : m_readFile(readFile)
    {}

    Catalogue read()
    {
        m_catalogue.languages.insert(supplydb_schema::fallbackLanguage, EnglishTag);
        readColours();
        readMaterials();
        readFormats();
        readSupplies();
        readRibbons();
        readSettings();
        readPrinterFormats();
        return std::move(m_catalogue);
    }

private:
    CsvTable table(const TableLayout& layout)
    {
        const QString file = QString::fromLatin1(layout.file);
        const std::optional<QByteArray> bytes = m_readFile(file);
        if (!bytes)
            throw Fault(QStringLiteral("%1: no such file, or it cannot be read").arg(file));
        CsvTable table = CsvTable::parse(file, *bytes);
        for (const QString& wanted : layout.columns) {
            if (!table.hasColumn(wanted))
                throw table.faultInFile(QStringLiteral("the column %1 is missing").arg(wanted));
        }
        if (layout.hasNames && !table.hasColumn(EnglishTag))
            throw table.faultInFile(QStringLiteral("the column en is missing"));
        for (const QString& found : table.columns()) {
            if (layout.columns.contains(found))
                continue;
            const std::optional<int> language = languageNumber(found);
            if (!layout.hasNames || !language)
                throw table.faultInHeader(
                    found, layout.hasNames ? QStringLiteral("neither a column of this table nor a "
                                                            "language that names can be had in")
                                           : QStringLiteral("not a column of this table"));
            if (m_catalogue.languages.value(*language, found) != found)
                throw table.faultInHeader(found,
                                          QStringLiteral("the same language as the column %1")
                                              .arg(m_catalogue.languages.value(*language)));
            m_catalogue.languages.insert(*language, found);
        }
        return table;
    }

    Name nameOf(const CsvTable& table, qsizetype row) const
    {
        Name name;
        name.english = textOf(table.field(row, EnglishTag), supplydb_schema::maxNameLength);
        for (auto language = m_catalogue.languages.begin(); language != m_catalogue.languages.end();
             ++language) {
            if (language.key() == supplydb_schema::fallbackLanguage ||
                !table.hasColumn(language.value()))
                continue;
            const CsvField field = table.field(row, language.value());
            if (!field.text.isEmpty())
                name.translations.insert(language.key(),
                                         textOf(field, supplydb_schema::maxNameLength));
        }
        return name;
    }

    static double realOf(const CsvTable& table, const CsvField& field, double least, double most)
    {
        QString text = field.text;
        if (table.hasDecimalCommas())
            text.replace(u',', u'.');
        bool isReal = false;
        const double value = text.toDouble(&isReal);
        if (!isReal || !std::isfinite(value) || value < least || value > most)
            throw field.fault(QStringLiteral("\"%1\" is no number from %2 to %3")
                                  .arg(field.text)
                                  .arg(least)
                                  .arg(most));
        return value;
    }

    static double sizeOf(const CsvTable& table, const CsvField& field, double most)
    {
        const double value = realOf(table, field, 0.0, most);
        if (value <= 0.0)
            throw field.fault(QStringLiteral("\"%1\" is not above 0").arg(field.text));
        return value;
    }

    qsizetype colourOf(const CsvField& field, const QString& key) const
    {
        const auto found = m_colours.constFind(key);
        if (found == m_colours.constEnd())
            throw field.fault(QStringLiteral("\"%1\" is not in colours.csv").arg(key));
        return *found;
    }

    void readColours()
    {
        const CsvTable source = table(ColourLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField key = source.field(row, column("colour"));
            if (key.text.contains(u' '))
                throw key.fault(QStringLiteral("a space in a colour's key"));
            if (m_colours.contains(textOf(key, maxWordLength)))
                throw key.fault(QStringLiteral("\"%1\" is there twice").arg(key.text));
            m_colours.insert(key.text, m_catalogue.colours.size());
            m_catalogue.colours.append(
                {key.text, rgbOf(source.field(row, column("rgb"))), nameOf(source, row)});
        }
    }

    void readMaterials()
    {
        const CsvTable source = table(MaterialLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField field = source.field(row, column("material"));
            const int number = integerOf(field, 0, supplydb_schema::maxKind);
            if (m_materials.contains(number))
                throw field.fault(QStringLiteral("material %1 is there twice").arg(number));
            m_materials.insert(number);
            m_catalogue.materials.append({number, nameOf(source, row)});
        }
    }

    void readFormats()
    {
        const CsvTable source = table(FormatLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField field = source.field(row, column("format"));
            const int number = integerOf(field, 0, supplydb_schema::maxKind);
            if (m_formats.contains(number))
                throw field.fault(QStringLiteral("format %1 is there twice").arg(number));
            const CsvField type = source.field(row, column("type"));
            if (!FormatTypes.contains(type.text))
                throw type.fault(QStringLiteral("\"%1\" is none of %2")
                                     .arg(type.text, FormatTypes.join(QStringLiteral(", "))));
            m_formats.insert(number, type.text);
            m_catalogue.formats.append({number, type.text, nameOf(source, row)});
        }
    }

    int formatOf(const CsvField& field) const
    {
        const int format = integerOf(field, 0, supplydb_schema::maxKind);
        if (!m_formats.contains(format))
            throw field.fault(QStringLiteral("format %1 is not in formats.csv").arg(format));
        return format;
    }

    QList<int> freeNumbers(const CsvField& field, int most, QSet<int>& taken) const
    {
        QList<int> numbers;
        for (const QString& word : wordsOf(field)) {
            const int number = integerOf(field, word, 1, most);
            if (taken.contains(number))
                throw field.fault(QStringLiteral("%1 is there twice").arg(number));
            taken.insert(number);
            numbers.append(number);
        }
        return numbers;
    }

    std::optional<qsizetype> backgroundOf(const CsvField& field)
    {
        if (field.text.isEmpty())
            return std::nullopt;
        const auto found = m_backgrounds.constFind(field.text);
        if (found != m_backgrounds.constEnd())
            return *found;
        requireVisible(field);
        // A plain name: a catalogue takes no file from outside its folder.
        if (field.text.contains(u'/') || field.text.contains(u'\\') || field.text.contains(u':') ||
            field.text.startsWith(u'.') || field.text.size() > supplydb_schema::maxNameLength)
            throw field.fault(QStringLiteral("\"%1\" is no plain file name").arg(field.text));
        std::optional<QByteArray> image;
        try {
            image = m_readFile(BackgroundFolder + field.text);
        } catch (const Fault& fault) {
            throw field.fault(fault.message());
        }
        if (!image)
            throw field.fault(
                QStringLiteral("%1%2 cannot be read").arg(BackgroundFolder, field.text));
        if (image->size() > supplydb_schema::maxImageBytes)
            throw field.fault(QStringLiteral("%1%2 is larger than %3 KiB")
                                  .arg(BackgroundFolder, field.text)
                                  .arg(supplydb_schema::maxImageBytes / 1024));
        QBuffer buffer;
        buffer.setData(*image);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer);
        const QSize size = reader.size();
        if (!reader.canRead() || size.isEmpty())
            throw field.fault(QStringLiteral("%1%2 is no image that can be read")
                                  .arg(BackgroundFolder, field.text));
        if (size.width() > maxImageSide || size.height() > maxImageSide)
            throw field.fault(QStringLiteral("%1%2 has %3 by %4 pixels, where %5 by %5 can be")
                                  .arg(BackgroundFolder, field.text)
                                  .arg(size.width())
                                  .arg(size.height())
                                  .arg(maxImageSide));
        const qsizetype place = m_catalogue.backgrounds.size();
        m_backgrounds.insert(field.text, place);
        m_catalogue.backgrounds.append({field.text, *image});
        return place;
    }

    // Tables that a reader of the file reads in whole.
    CsvTable listedTable(const TableLayout& layout)
    {
        CsvTable source = table(layout);
        if (source.rowCount() > supplydb_schema::maxListedRows)
            throw source.faultInFile(
                QStringLiteral("more than %1 rows").arg(supplydb_schema::maxListedRows));
        return source;
    }

    void readSupplies()
    {
        const CsvTable source = listedTable(SupplyLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = [&source, row](const char* name) {
                return source.field(row, column(name));
            };
            Catalogue::Supply supply{};
            supply.sku = skuOf(field("sku"));
            if (m_supplies.contains(supply.sku))
                throw field("sku").fault(QStringLiteral("%1 is there twice").arg(supply.sku));
            m_supplies.insert(supply.sku);
            supply.kinds = freeNumbers(field("kinds"), supplydb_schema::maxKind, m_kinds);
            supply.material = integerOf(field("material"), 0, supplydb_schema::maxKind);
            if (!m_materials.contains(supply.material))
                throw field("material")
                    .fault(
                        QStringLiteral("material %1 is not in materials.csv").arg(supply.material));
            supply.format = formatOf(field("format"));
            supply.colour = colourOf(field("colour"), field("colour").text);
            supply.width = sizeOf(source, field("width"), maxWidth);
            supply.length = sizeOf(source, field("length"), longestRoll);
            readSecondColour(source, row, supply);
            readLabelLength(source, row, supply);
            if (const CsvField separator = field("separator_width"); !separator.text.isEmpty())
                supply.separatorWidth = realOf(source, separator, 0.0, maxWidth);
            supply.isLandscape = yesOrNoOf(field("landscape"));
            supply.background = backgroundOf(field("background"));
            readMultiUp(source, row, supply);
            m_catalogue.supplies.append(supply);
        }
    }

    void readSecondColour(const CsvTable& source, qsizetype row, Catalogue::Supply& supply) const
    {
        const CsvField colour = source.field(row, column("second_colour"));
        const CsvField width = source.field(row, column("second_colour_width"));
        if (colour.text.isEmpty() != width.text.isEmpty())
            throw width.fault(
                QStringLiteral("a second colour and its width come together or not at all"));
        if (colour.text.isEmpty())
            return;
        supply.secondColour = colourOf(colour, colour.text);
        supply.secondColourWidth = sizeOf(source, width, supply.width);
    }

    void readLabelLength(const CsvTable& source, qsizetype row, Catalogue::Supply& supply) const
    {
        const CsvField field = source.field(row, column("label_length"));
        const bool isContinuous = m_formats.value(supply.format) == ContinuousType;
        if (isContinuous != field.text.isEmpty())
            throw field.fault(
                isContinuous ? QStringLiteral("a label's length, where the format is continuous")
                             : QStringLiteral("empty, where the format is not continuous"));
        if (!isContinuous)
            supply.labelLength = sizeOf(source, field, supply.length);
    }

    static void readMultiUp(const CsvTable& source, qsizetype row, Catalogue::Supply& supply)
    {
        supply.multiUpCount = integerOf(source.field(row, column("multi_up_count")), 1, 100);
        const CsvField gap = source.field(row, column("multi_up_gap"));
        if ((supply.multiUpCount == 1) != gap.text.isEmpty())
            throw gap.fault(supply.multiUpCount == 1
                                ? QStringLiteral("a gap, where one label lies alone")
                                : QStringLiteral("empty, where labels lie side by side"));
        if (!gap.text.isEmpty())
            supply.multiUpGap = realOf(source, gap, 0.0, maxWidth);
    }

    void readRibbons()
    {
        const CsvTable source = listedTable(RibbonLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = [&source, row](const char* name) {
                return source.field(row, column(name));
            };
            Catalogue::Ribbon ribbon{};
            ribbon.sku = skuOf(field("sku"));
            if (m_panels.contains(ribbon.sku))
                throw field("sku").fault(QStringLiteral("%1 is there twice").arg(ribbon.sku));
            if (m_supplies.contains(ribbon.sku))
                throw field("sku").fault(QStringLiteral("%1 is a supply's SKU").arg(ribbon.sku));
            ribbon.numbers =
                freeNumbers(field("numbers"), supplydb_schema::maxRibbonNumber, m_ribbonNumbers);
            ribbon.type = textOf(field("type"), maxWordLength);
            ribbon.width = sizeOf(source, field("width"), maxWidth);
            ribbon.length = sizeOf(source, field("length"), longestRoll);
            const CsvField panels = field("panels");
            for (const QString& key : wordsOf(panels))
                ribbon.panelColours.append(colourOf(panels, key));
            if (ribbon.panelColours.isEmpty() || ribbon.panelColours.size() > maxPanels)
                throw panels.fault(QStringLiteral("%1 panels, where 1 to %2 can be")
                                       .arg(ribbon.panelColours.size())
                                       .arg(maxPanels));
            m_panels.insert(ribbon.sku, static_cast<int>(ribbon.panelColours.size()));
            m_catalogue.ribbons.append(ribbon);
        }
    }

    void readSettings()
    {
        const CsvTable source = table(SettingLayout);
        QSet<QString> seen;
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = [&source, row](const char* name) {
                return source.field(row, column(name));
            };
            const auto setting = [&field](const char* name, int least) {
                return integerOf(field(name), least, maxSetting);
            };
            const CsvField ribbon = field("ribbon");
            if (!m_panels.contains(ribbon.text))
                throw ribbon.fault(QStringLiteral("\"%1\" is not in ribbons.csv").arg(ribbon.text));
            const int panel = integerOf(field("panel"), 1, m_panels.value(ribbon.text));
            const CsvField supply = field("supply");
            if (!m_supplies.contains(supply.text))
                throw supply.fault(
                    QStringLiteral("\"%1\" is not in supplies.csv").arg(supply.text));
            const QString key =
                QStringLiteral("%1 %2 %3").arg(ribbon.text).arg(panel).arg(supply.text);
            if (seen.contains(key))
                throw ribbon.fault(QStringLiteral("panel %1 of %2 with %3 is there twice")
                                       .arg(panel)
                                       .arg(ribbon.text, supply.text));
            seen.insert(key);
            m_catalogue.settings.append({ribbon.text, panel, supply.text, setting("heat", 0),
                                         setting("heat_offset", 0), setting("max_speed", 1),
                                         setting("tension", 0)});
        }
    }

    void readPrinterFormats()
    {
        const CsvTable source = listedTable(PrinterFormatLayout);
        QHash<QString, QList<int>> lists;
        QHash<QString, QString> spellings; // models are looked for in any case
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField modelField = source.field(row, column("model"));
            const QString text = textOf(modelField, maxWordLength);
            const QString model = text == AnyModel ? QString() : text;
            const QString spelling = spellings.value(text.toLower(), text);
            if (spelling != text)
                throw modelField.fault(
                    QStringLiteral("\"%1\" is the same model as \"%2\"").arg(text, spelling));
            spellings.insert(text.toLower(), text);
            const CsvField formatField = source.field(row, column("format"));
            const int format = formatOf(formatField);
            QList<int>& list = lists[model];
            if (list.contains(format))
                throw formatField.fault(
                    QStringLiteral("format %1 is there twice for %2").arg(format).arg(text));
            m_catalogue.printerFormats.append({model, static_cast<int>(list.size()), format});
            list.append(format);
        }
    }

    const ReadFile& m_readFile;
    Catalogue m_catalogue;
    QHash<QString, qsizetype> m_colours;
    QSet<int> m_materials;
    QHash<int, QString> m_formats;
    QHash<QString, qsizetype> m_backgrounds;
    QSet<QString> m_supplies;
    QSet<int> m_kinds;
    QSet<int> m_ribbonNumbers;
    QHash<QString, int> m_panels;
};

} // namespace

Catalogue readCatalogue(const ReadFile& readFile)
{
    return Reader(readFile).read();
}

Catalogue readCatalogueDirectory(const QString& directory)
{
    const QDir dir(directory);
    if (!dir.exists())
        throw Fault(QStringLiteral("%1: no such directory").arg(directory));
    return readCatalogue([&dir](const QString& name) -> std::optional<QByteArray> {
        const QFileInfo info(dir.filePath(name));
        // Whoever opens a pipe waits for somebody who writes into it.
        if (info.exists() && !info.isFile())
            throw Fault(QStringLiteral("%1 is not a file").arg(name));
        QFile file(info.filePath());
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        return file.read(maxBytesRead);
    });
}

std::optional<int> languageNumber(const QString& tag)
{
    if (tag.size() > maxTagLength)
        return std::nullopt;
    const int number = VXLocaleLanguages::languageId({tag});
    // English stands for every language without a number, too.
    if (number == supplydb_schema::fallbackLanguage && tag != EnglishTag)
        return std::nullopt;
    return number;
}
