// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue.h"

#include "csv_table.h"
#include "failure.h"
#include "shown_text.h"
#include "tool_text.h"

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
// More pixels than any label needs. A small file can decode to far more, and showing a picture
// takes memory for each pixel.
constexpr int maxImageSide = 4096;
// Enough for every file that is accepted: the limits on tables and pictures are lower.
constexpr qint64 maxBytesRead = qint64{32} << 20;

const QString englishTag = QStringLiteral("en");
const QString backgroundFolder = QStringLiteral("backgrounds/");
const QString continuousType = QStringLiteral("continuous");
const QStringList formatTypes{continuousType, QStringLiteral("die-cut"), QStringLiteral("sleeve"),
                              QStringLiteral("tag")};
// Stands for all printers whose model has no list of its own.
const QString anyModel = QStringLiteral("*");

// The columns of a table, besides the names. Unknown columns are refused: nobody would read them.
struct TableLayout
{
    const char* file;
    QStringList columns;
    bool hasNames;
};
const TableLayout colourLayout{
    "colours.csv", {QStringLiteral("colour"), QStringLiteral("rgb")}, true};
const TableLayout materialLayout{"materials.csv", {QStringLiteral("material")}, true};
const TableLayout formatLayout{
    "formats.csv", {QStringLiteral("format"), QStringLiteral("type")}, true};
const TableLayout supplyLayout{
    "supplies.csv",
    {QStringLiteral("sku"), QStringLiteral("kinds"), QStringLiteral("material"),
     QStringLiteral("format"), QStringLiteral("colour"), QStringLiteral("second_colour"),
     QStringLiteral("second_colour_width"), QStringLiteral("width"), QStringLiteral("length"),
     QStringLiteral("label_length"), QStringLiteral("separator_width"), QStringLiteral("landscape"),
     QStringLiteral("background"), QStringLiteral("multi_up_count"),
     QStringLiteral("multi_up_gap")},
    false};
const TableLayout ribbonLayout{"ribbons.csv",
                               {QStringLiteral("sku"), QStringLiteral("numbers"),
                                QStringLiteral("type"), QStringLiteral("width"),
                                QStringLiteral("length"), QStringLiteral("panels")},
                               false};
const TableLayout settingLayout{"print_settings.csv",
                                {QStringLiteral("ribbon"), QStringLiteral("panel"),
                                 QStringLiteral("supply"), QStringLiteral("heat"),
                                 QStringLiteral("heat_offset"), QStringLiteral("max_speed"),
                                 QStringLiteral("tension")},
                                false};
const TableLayout printerFormatLayout{
    "printer_formats.csv", {QStringLiteral("model"), QStringLiteral("format")}, false};

QLatin1String column(const char* name)
{
    return QLatin1String(name);
}

/// Looks up the fields of one row by their column.
auto fieldsOf(const CsvTable& table, qsizetype row)
{
    return [&table, row](const char* name) {
        return table.field(row, column(name));
    };
}

void requireVisible(const CsvField& field)
{
    if (const std::optional<char32_t> character = invisibleCharacter(field.text))
        throw field.failure(ToolText::tr("the character U+%1 is invisible; remove it")
                                .arg(QString::number(*character, 16).toUpper(), 4, u'0'));
}

QString textOf(const CsvField& field, qsizetype maxLength)
{
    if (field.text.isEmpty())
        throw field.failure(ToolText::tr("empty"));
    requireVisible(field);
    if (field.text.size() > maxLength)
        throw field.failure(ToolText::tr("longer than %1 characters").arg(maxLength));
    return field.text;
}

int integerOf(const CsvField& field, const QString& text, int least, int most)
{
    bool isInteger = false;
    const int value = text.toInt(&isInteger);
    if (!isInteger || value < least || value > most)
        throw field.failure(ToolText::tr("\"%1\" is not a whole number between %2 and %3")
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
        throw field.failure(
            ToolText::tr("\"%1\" is not a SKU: at most %2 letters from A to Z, digits, dots, "
                         "underscores and hyphens, starting with a letter or digit")
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
        throw field.failure(
            ToolText::tr("\"%1\" is not a colour of the form #RRGGBB").arg(field.text));
    return field.text.mid(1).toInt(nullptr, 16);
}

bool yesOrNoOf(const CsvField& field)
{
    if (field.text == QLatin1String("yes"))
        return true;
    if (field.text == QLatin1String("no"))
        return false;
    throw field.failure(ToolText::tr("\"%1\" is neither yes nor no").arg(field.text));
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
        m_catalogue.languages.insert(supplydb_schema::fallbackLanguage, englishTag);
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
            throw Failure(ToolText::tr("%1: no such file, or it cannot be read").arg(file));
        CsvTable table = CsvTable::parse(file, *bytes);
        for (const QString& wanted : layout.columns) {
            if (!table.hasColumn(wanted))
                throw table.failureInFile(ToolText::tr("the column %1 is missing").arg(wanted));
        }
        if (layout.hasNames && !table.hasColumn(englishTag))
            throw table.failureInFile(ToolText::tr("the column en is missing"));
        for (const QString& found : table.columns()) {
            if (layout.columns.contains(found))
                continue;
            const std::optional<int> language = languageNumber(found);
            if (!layout.hasNames || !language)
                throw table.failureInHeader(
                    found, layout.hasNames
                               ? ToolText::tr("neither a column of this table nor a known language")
                               : ToolText::tr("not a column of this table"));
            if (m_catalogue.languages.value(*language, found) != found)
                throw table.failureInHeader(found,
                                            ToolText::tr("the same language as the column %1")
                                                .arg(m_catalogue.languages.value(*language)));
            m_catalogue.languages.insert(*language, found);
        }
        return table;
    }

    Name nameOf(const CsvTable& table, qsizetype row) const
    {
        Name name;
        name.english = textOf(table.field(row, englishTag), supplydb_schema::maxNameLength);
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
            throw field.failure(ToolText::tr("\"%1\" is not a number between %2 and %3")
                                    .arg(field.text)
                                    .arg(least)
                                    .arg(most));
        return value;
    }

    static double sizeOf(const CsvTable& table, const CsvField& field, double most)
    {
        const double value = realOf(table, field, 0.0, most);
        if (value <= 0.0)
            throw field.failure(ToolText::tr("\"%1\" is not greater than 0").arg(field.text));
        return value;
    }

    qsizetype colourOf(const CsvField& field, const QString& key) const
    {
        const auto found = m_colours.constFind(key);
        if (found == m_colours.constEnd())
            throw field.failure(ToolText::tr("\"%1\" is not in colours.csv").arg(key));
        return *found;
    }

    void readColours()
    {
        const CsvTable source = table(colourLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField key = source.field(row, column("colour"));
            if (key.text.contains(u' '))
                throw key.failure(ToolText::tr("a space in a colour's key"));
            if (m_colours.contains(textOf(key, maxWordLength)))
                throw key.failure(ToolText::tr("duplicate colour \"%1\"").arg(key.text));
            m_colours.insert(key.text, m_catalogue.colours.size());
            m_catalogue.colours.append(
                {key.text, rgbOf(source.field(row, column("rgb"))), nameOf(source, row)});
        }
    }

    void readMaterials()
    {
        const CsvTable source = table(materialLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField field = source.field(row, column("material"));
            const int number = integerOf(field, 0, supplydb_schema::maxKind);
            if (m_materials.contains(number))
                throw field.failure(ToolText::tr("duplicate material %1").arg(number));
            m_materials.insert(number);
            m_catalogue.materials.append({number, nameOf(source, row)});
        }
    }

    void readFormats()
    {
        const CsvTable source = table(formatLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField field = source.field(row, column("format"));
            const int number = integerOf(field, 0, supplydb_schema::maxKind);
            if (m_formats.contains(number))
                throw field.failure(ToolText::tr("duplicate format %1").arg(number));
            const CsvField type = source.field(row, column("type"));
            if (!formatTypes.contains(type.text))
                throw type.failure(ToolText::tr("\"%1\" is not one of %2")
                                       .arg(type.text, formatTypes.join(QStringLiteral(", "))));
            m_formats.insert(number, type.text);
            m_catalogue.formats.append({number, type.text, nameOf(source, row)});
        }
    }

    int formatOf(const CsvField& field) const
    {
        const int format = integerOf(field, 0, supplydb_schema::maxKind);
        if (!m_formats.contains(format))
            throw field.failure(ToolText::tr("format %1 is not in formats.csv").arg(format));
        return format;
    }

    QList<int> uniqueNumbers(const CsvField& field, int most, QSet<int>& taken) const
    {
        QList<int> numbers;
        for (const QString& word : wordsOf(field)) {
            const int number = integerOf(field, word, 1, most);
            if (taken.contains(number))
                throw field.failure(ToolText::tr("duplicate number %1").arg(number));
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
        // A catalogue must not read files from outside its folder.
        if (field.text.contains(u'/') || field.text.contains(u'\\') || field.text.contains(u':') ||
            field.text.startsWith(u'.') || field.text.size() > supplydb_schema::maxNameLength)
            throw field.failure(ToolText::tr("\"%1\" is not a plain file name").arg(field.text));
        std::optional<QByteArray> image;
        try {
            image = m_readFile(backgroundFolder + field.text);
        } catch (const Failure& failure) {
            throw field.failure(failure.message());
        }
        if (!image)
            throw field.failure(
                ToolText::tr("%1%2 cannot be read").arg(backgroundFolder, field.text));
        if (image->size() > supplydb_schema::maxImageBytes)
            throw field.failure(ToolText::tr("%1%2 is larger than %3 KiB")
                                    .arg(backgroundFolder, field.text)
                                    .arg(supplydb_schema::maxImageBytes / 1024));
        QBuffer buffer;
        buffer.setData(*image);
        buffer.open(QIODevice::ReadOnly);
        QImageReader reader(&buffer);
        const QSize size = reader.size();
        if (!reader.canRead() || size.isEmpty())
            throw field.failure(
                ToolText::tr("%1%2 is not a readable image").arg(backgroundFolder, field.text));
        if (size.width() > maxImageSide || size.height() > maxImageSide)
            throw field.failure(ToolText::tr("%1%2 has %3 by %4 pixels; the maximum is %5 by %5")
                                    .arg(backgroundFolder, field.text)
                                    .arg(size.width())
                                    .arg(size.height())
                                    .arg(maxImageSide));
        const qsizetype place = m_catalogue.backgrounds.size();
        m_backgrounds.insert(field.text, place);
        m_catalogue.backgrounds.append({field.text, *image});
        return place;
    }

    // For tables that a reader of the database loads completely.
    CsvTable listedTable(const TableLayout& layout)
    {
        CsvTable source = table(layout);
        if (source.rowCount() > supplydb_schema::maxListedRows)
            throw source.failureInFile(
                ToolText::tr("more than %1 rows").arg(supplydb_schema::maxListedRows));
        return source;
    }

    void readSupplies()
    {
        const CsvTable source = listedTable(supplyLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            Catalogue::Supply supply{};
            supply.sku = skuOf(field("sku"));
            if (m_supplies.contains(supply.sku))
                throw field("sku").failure(ToolText::tr("duplicate SKU %1").arg(supply.sku));
            m_supplies.insert(supply.sku);
            supply.kinds = uniqueNumbers(field("kinds"), supplydb_schema::maxKind, m_kinds);
            supply.material = integerOf(field("material"), 0, supplydb_schema::maxKind);
            if (!m_materials.contains(supply.material))
                throw field("material")
                    .failure(
                        ToolText::tr("material %1 is not in materials.csv").arg(supply.material));
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
            throw width.failure(
                ToolText::tr("a second colour and its width must be given together or not at all"));
        if (colour.text.isEmpty())
            return;
        supply.secondColour = colourOf(colour, colour.text);
        supply.secondColourWidth = sizeOf(source, width, supply.width);
    }

    void readLabelLength(const CsvTable& source, qsizetype row, Catalogue::Supply& supply) const
    {
        const CsvField field = source.field(row, column("label_length"));
        const bool isContinuous = m_formats.value(supply.format) == continuousType;
        if (isContinuous != field.text.isEmpty())
            throw field.failure(
                isContinuous ? ToolText::tr("a label length is given, but the format is continuous")
                             : ToolText::tr("empty, but the format is not continuous"));
        if (!isContinuous)
            supply.labelLength = sizeOf(source, field, supply.length);
    }

    static void readMultiUp(const CsvTable& source, qsizetype row, Catalogue::Supply& supply)
    {
        supply.multiUpCount = integerOf(source.field(row, column("multi_up_count")), 1, 100);
        const CsvField gap = source.field(row, column("multi_up_gap"));
        if ((supply.multiUpCount == 1) != gap.text.isEmpty())
            throw gap.failure(
                supply.multiUpCount == 1
                    ? ToolText::tr("a gap is given, but there is only one label across")
                    : ToolText::tr("empty, but there are several labels across"));
        if (!gap.text.isEmpty())
            supply.multiUpGap = realOf(source, gap, 0.0, maxWidth);
    }

    void readRibbons()
    {
        const CsvTable source = listedTable(ribbonLayout);
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            Catalogue::Ribbon ribbon{};
            ribbon.sku = skuOf(field("sku"));
            if (m_panels.contains(ribbon.sku))
                throw field("sku").failure(ToolText::tr("duplicate SKU %1").arg(ribbon.sku));
            if (m_supplies.contains(ribbon.sku))
                throw field("sku").failure(ToolText::tr("%1 is a supply's SKU").arg(ribbon.sku));
            ribbon.numbers =
                uniqueNumbers(field("numbers"), supplydb_schema::maxRibbonNumber, m_ribbonNumbers);
            ribbon.type = textOf(field("type"), maxWordLength);
            ribbon.width = sizeOf(source, field("width"), maxWidth);
            ribbon.length = sizeOf(source, field("length"), longestRoll);
            const CsvField panels = field("panels");
            for (const QString& key : wordsOf(panels))
                ribbon.panelColours.append(colourOf(panels, key));
            if (ribbon.panelColours.isEmpty() || ribbon.panelColours.size() > maxPanels)
                throw panels.failure(ToolText::tr("%1 panels; a ribbon has 1 to %2")
                                         .arg(ribbon.panelColours.size())
                                         .arg(maxPanels));
            m_panels.insert(ribbon.sku, static_cast<int>(ribbon.panelColours.size()));
            m_catalogue.ribbons.append(ribbon);
        }
    }

    void readSettings()
    {
        const CsvTable source = table(settingLayout);
        QSet<QString> seen;
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            const auto setting = [&field](const char* name, int least) {
                return integerOf(field(name), least, maxSetting);
            };
            const CsvField ribbon = field("ribbon");
            if (!m_panels.contains(ribbon.text))
                throw ribbon.failure(ToolText::tr("\"%1\" is not in ribbons.csv").arg(ribbon.text));
            const int panel = integerOf(field("panel"), 1, m_panels.value(ribbon.text));
            const CsvField supply = field("supply");
            if (!m_supplies.contains(supply.text))
                throw supply.failure(
                    ToolText::tr("\"%1\" is not in supplies.csv").arg(supply.text));
            const QString key =
                QStringLiteral("%1 %2 %3").arg(ribbon.text).arg(panel).arg(supply.text);
            if (seen.contains(key))
                throw ribbon.failure(
                    ToolText::tr("duplicate print setting for panel %1 of %2 with %3")
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
        const CsvTable source = listedTable(printerFormatLayout);
        QHash<QString, QList<int>> lists;
        QHash<QString, QString> spellings; // models are compared without regard to case
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const CsvField modelField = source.field(row, column("model"));
            const QString text = textOf(modelField, maxWordLength);
            const QString model = text == anyModel ? QString() : text;
            const QString spelling = spellings.value(text.toLower(), text);
            if (spelling != text)
                throw modelField.failure(
                    ToolText::tr(R"("%1" is the same model as "%2")").arg(text, spelling));
            spellings.insert(text.toLower(), text);
            const CsvField formatField = source.field(row, column("format"));
            const int format = formatOf(formatField);
            QList<int>& list = lists[model];
            if (list.contains(format))
                throw formatField.failure(
                    ToolText::tr("duplicate format %1 for %2").arg(format).arg(text));
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
        throw Failure(ToolText::tr("%1: no such directory").arg(directory));
    return readCatalogue([&dir](const QString& name) -> std::optional<QByteArray> {
        const QFileInfo info(dir.filePath(name));
        // Opening a pipe would block until another process writes to it.
        if (info.exists() && !info.isFile())
            throw Failure(ToolText::tr("%1 is not a file").arg(name));
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
    // Languages without a number also get the number of English.
    if (number == supplydb_schema::fallbackLanguage && tag != englishTag)
        return std::nullopt;
    return number;
}
