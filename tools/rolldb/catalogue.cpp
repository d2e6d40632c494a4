// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "catalogue.h"

#include "csv_table.h"
#include "failure.h"
#include "mistakes.h"
#include "shown_text.h"
#include "table_layouts.h"
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
#include <tuple>
#include <utility>

using table_layouts::anyModel;
using table_layouts::backgroundFolder;
using table_layouts::englishTag;

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

const QString continuousType = QStringLiteral("continuous");
const QStringList formatTypes{continuousType, QStringLiteral("die-cut"), QStringLiteral("sleeve"),
                              QStringLiteral("tag")};
/// Thrown instead of a field whose column is missing, which has been reported for the whole table.
class ColumnIsMissing : public std::exception
{
};

/// Looks up the fields of one row by their column.
auto fieldsOf(const CsvTable& table, qsizetype row)
{
    return [&table, row](const char* name) {
        if (!table.hasColumn(QLatin1String(name)))
            throw ColumnIsMissing();
        return table.field(row, QLatin1String(name));
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
        throw field.failure(
            ToolText::tr("empty; expected a text of at most %1 characters").arg(maxLength));
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

/// What refers to a row of another table can only be checked if that table is known.
template <typename Key, typename Value>
struct KnownRows
{
    QHash<Key, Value> rows;
    /// Whether every row could be read and has a key of its own. If not, a missing row may be one
    /// of the others.
    bool isComplete = true;
};

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
        m_mistakes.throwIfAny();
        return std::move(m_catalogue);
    }

private:
    void note(const Mistake& mistake) { m_mistakes.add(m_layout->number, mistake); }

    /// What `read` returns, or `otherwise` if it throws. A mistake is noted.
    template <typename Value, typename Read>
    Value attempt(Value otherwise, Read read)
    {
        try {
            return read();
        } catch (const ColumnIsMissing&) {
            return otherwise;
        } catch (const Mistake& mistake) {
            note(mistake);
            return otherwise;
        }
    }

    /// The same for reading that returns nothing. True if it does not throw.
    template <typename Read>
    bool attempt(Read read)
    {
        return attempt(false, [&read] {
            read();
            return true;
        });
    }

    /// The table in whichever of its files there is. Nothing if there is none.
    std::optional<CsvTable> parsed(const TableLayout& layout)
    {
        const auto report = [this](const Mistake& mistake) {
            note(mistake);
        };
        std::optional<CsvTable> table;
        for (const QString& file : {layout.fileName(), layout.tabbedFileName()}) {
            std::optional<QByteArray> bytes;
            try {
                bytes = m_readFile(file);
            } catch (const Failure& failure) {
                note(Mistake(0, 0, failure.message()));
                return std::nullopt;
            }
            if (!bytes)
                continue;
            if (table)
                note(Mistake(0, 0,
                             ToolText::tr("%1: there is also %2; remove one of them")
                                 .arg(layout.fileName(), file)));
            else
                table = CsvTable::parse(file, *bytes, report);
        }
        if (!table)
            note(Mistake(
                0, 0,
                ToolText::tr("%1: no such file, or it cannot be read").arg(layout.fileName())));
        return table;
    }

    /// The table, with mistakes in its header noted.
    CsvTable table(const TableLayout& layout)
    {
        m_layout = &layout;
        std::optional<CsvTable> found = parsed(layout);
        if (!found || found->columns().isEmpty())
            return {};
        const CsvTable& table = *found;
        m_fileNames.insert(layout.number, table.fileName());
        QStringList wanted = layout.columns;
        if (layout.hasNames)
            wanted.append(englishTag);
        for (const QString& name : std::as_const(wanted)) {
            if (!table.hasColumn(name))
                note(table.failureInFile(ToolText::tr("the column %1 is missing").arg(name)));
        }
        for (const QString& name : table.columns()) {
            if (!name.isEmpty() && !layout.columns.contains(name))
                attempt([&] { takeLanguage(layout, table, name); });
        }
        return *std::move(found);
    }

    void takeLanguage(const TableLayout& layout, const CsvTable& table, const QString& name)
    {
        const QString expected = layout.columns.join(QStringLiteral(", "));
        if (!layout.hasNames)
            throw table.failureInHeader(
                name, ToolText::tr("not a column of this table; expected %1").arg(expected));
        const std::optional<int> language = languageNumber(name);
        if (!language)
            throw table.failureInHeader(
                name, ToolText::tr("neither a column of this table nor a known language; expected "
                                   "%1 and languages such as en or de")
                          .arg(expected));
        const QString taken = m_catalogue.languages.value(*language, name);
        if (taken != name)
            throw table.failureInHeader(
                name, ToolText::tr("the same language as the column %1").arg(taken));
        m_catalogue.languages.insert(*language, name);
    }

    // For tables that a reader of the database loads completely.
    CsvTable listedTable(const TableLayout& layout)
    {
        CsvTable source = table(layout);
        if (source.rowCount() > supplydb_schema::maxListedRows)
            note(source.failureInFile(
                ToolText::tr("more than %1 rows").arg(supplydb_schema::maxListedRows)));
        return source;
    }

    QString fileOf(const TableLayout& layout) const
    {
        return m_fileNames.value(layout.number, layout.fileName());
    }

    Name nameOf(const CsvTable& table, qsizetype row)
    {
        Name name;
        name.english = attempt(QString(), [&] {
            return textOf(fieldsOf(table, row)("en"), supplydb_schema::maxNameLength);
        });
        for (auto language = m_catalogue.languages.begin(); language != m_catalogue.languages.end();
             ++language) {
            if (language.key() == supplydb_schema::fallbackLanguage ||
                !table.hasColumn(language.value()))
                continue;
            const CsvField field = table.field(row, language.value());
            attempt([&] {
                if (!field.text.isEmpty())
                    name.translations.insert(language.key(),
                                             textOf(field, supplydb_schema::maxNameLength));
            });
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
        const auto found = m_colours.rows.constFind(key);
        if (found != m_colours.rows.constEnd())
            return *found;
        if (m_colours.isComplete)
            throw field.failure(
                ToolText::tr("\"%1\" is not in %2").arg(key, fileOf(table_layouts::colours)));
        return 0;
    }

    void readColours()
    {
        const CsvTable source = table(table_layouts::colours);
        m_colours.isComplete = source.isComplete();
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            const QString key = attempt(QString(), [&] {
                const CsvField keyField = field("colour");
                if (keyField.text.contains(u' '))
                    throw keyField.failure(
                        ToolText::tr("\"%1\" has a space; expected a key without spaces")
                            .arg(keyField.text));
                return textOf(keyField, maxWordLength);
            });
            if (key.isEmpty()) {
                m_colours.isComplete = false;
            } else if (m_colours.rows.contains(key)) {
                m_colours.isComplete = false; // the row may be meant for another key
                note(field("colour").failure(ToolText::tr("duplicate colour \"%1\"").arg(key)));
            } else {
                m_colours.rows.insert(key, m_catalogue.colours.size());
            }
            const int rgb = attempt(0, [&] { return rgbOf(field("rgb")); });
            m_catalogue.colours.append({key, rgb, nameOf(source, row)});
        }
    }

    /// The number that a row of materials or formats has as its key.
    template <typename Rows>
    int numberOf(Rows& known, const CsvTable& source, qsizetype row, const char* name,
                 const QString& duplicate)
    {
        const auto field = fieldsOf(source, row);
        const int number =
            attempt(-1, [&] { return integerOf(field(name), 0, supplydb_schema::maxKind); });
        const bool isDuplicate = known.rows.contains(number);
        if (isDuplicate)
            note(field(name).failure(duplicate.arg(number)));
        known.isComplete = known.isComplete && number >= 0 && !isDuplicate;
        return number;
    }

    void readMaterials()
    {
        const CsvTable source = table(table_layouts::materials);
        m_materials.isComplete = source.isComplete();
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const int number = numberOf(m_materials, source, row, "material",
                                        ToolText::tr("duplicate material %1"));
            if (number >= 0)
                m_materials.rows.insert(number, true);
            m_catalogue.materials.append({number, nameOf(source, row)});
        }
    }

    void readFormats()
    {
        const CsvTable source = table(table_layouts::formats);
        m_formats.isComplete = source.isComplete();
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const int number =
                numberOf(m_formats, source, row, "format", ToolText::tr("duplicate format %1"));
            const QString type = attempt(QString(), [&] {
                const CsvField typeField = fieldsOf(source, row)("type");
                if (!formatTypes.contains(typeField.text))
                    throw typeField.failure(
                        ToolText::tr("\"%1\" is not one of %2")
                            .arg(typeField.text, formatTypes.join(QStringLiteral(", "))));
                return typeField.text;
            });
            if (number >= 0 && !m_formats.rows.contains(number))
                m_formats.rows.insert(number, type);
            m_catalogue.formats.append({number, type, nameOf(source, row)});
        }
    }

    /// The number of a row of materials or formats. `missing` is the message if there is none.
    template <typename Rows>
    int numberIn(const Rows& known, const CsvField& field, const QString& missing,
                 const TableLayout& layout) const
    {
        const int number = integerOf(field, 0, supplydb_schema::maxKind);
        if (known.isComplete && !known.rows.contains(number))
            throw field.failure(missing.arg(number).arg(fileOf(layout)));
        return number;
    }

    int formatOf(const CsvField& field) const
    {
        return numberIn(m_formats, field, ToolText::tr("format %1 is not in %2"),
                        table_layouts::formats);
    }

    int materialOf(const CsvField& field) const
    {
        return numberIn(m_materials, field, ToolText::tr("material %1 is not in %2"),
                        table_layouts::materials);
    }

    QList<int> uniqueNumbers(const CsvField& field, int most, QSet<int>& taken)
    {
        QList<int> numbers;
        for (const QString& word : wordsOf(field)) {
            attempt([&] {
                const int number = integerOf(field, word, 1, most);
                if (taken.contains(number))
                    throw field.failure(ToolText::tr("duplicate number %1").arg(number));
                taken.insert(number);
                numbers.append(number);
            });
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

    /// The SKU of a row. Empty if it is wrong or not new, which is noted.
    QString newSku(const CsvTable& source, qsizetype row)
    {
        return attempt(QString(), [&] {
            const CsvField field = fieldsOf(source, row)("sku");
            const QString sku = skuOf(field);
            if (m_supplies.rows.contains(sku) && m_layout == &table_layouts::ribbons)
                throw field.failure(ToolText::tr("%1 is a supply's SKU").arg(sku));
            if (m_supplies.rows.contains(sku) || m_panels.rows.contains(sku))
                throw field.failure(ToolText::tr("duplicate SKU %1").arg(sku));
            return sku;
        });
    }

    void readSupplies()
    {
        const CsvTable source = listedTable(table_layouts::supplies);
        m_supplies.isComplete = source.isComplete();
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            Catalogue::Supply supply{};
            supply.sku = newSku(source, row);
            if (supply.sku.isEmpty())
                m_supplies.isComplete = false;
            else
                m_supplies.rows.insert(supply.sku, true);
            attempt([&] {
                supply.kinds = uniqueNumbers(field("kinds"), supplydb_schema::maxKind, m_kinds);
            });
            attempt([&] { supply.material = materialOf(field("material")); });
            supply.format = attempt(-1, [&] { return formatOf(field("format")); });
            attempt([&] { supply.colour = colourOf(field("colour"), field("colour").text); });
            const bool hasWidth =
                attempt([&] { supply.width = sizeOf(source, field("width"), maxWidth); });
            const bool hasLength =
                attempt([&] { supply.length = sizeOf(source, field("length"), longestRoll); });
            readSecondColour(source, row, supply, hasWidth ? supply.width : maxWidth);
            attempt([&] {
                readLabelLength(source, row, supply, hasLength ? supply.length : longestRoll);
            });
            attempt([&] {
                if (const CsvField separator = field("separator_width"); !separator.text.isEmpty())
                    supply.separatorWidth = realOf(source, separator, 0.0, maxWidth);
            });
            attempt([&] { supply.isLandscape = yesOrNoOf(field("landscape")); });
            attempt([&] { supply.background = backgroundOf(field("background")); });
            readMultiUp(source, row, supply);
            m_catalogue.supplies.append(supply);
        }
    }

    void readSecondColour(const CsvTable& source, qsizetype row, Catalogue::Supply& supply,
                          double widest)
    {
        const auto field = fieldsOf(source, row);
        attempt([&] {
            if (field("second_colour").text.isEmpty() !=
                field("second_colour_width").text.isEmpty())
                throw field("second_colour_width")
                    .failure(ToolText::tr("a second colour and its width must be given together or "
                                          "not at all"));
        });
        attempt([&] {
            const CsvField colour = field("second_colour");
            if (!colour.text.isEmpty())
                supply.secondColour = colourOf(colour, colour.text);
        });
        attempt([&] {
            const CsvField width = field("second_colour_width");
            if (!width.text.isEmpty())
                supply.secondColourWidth = sizeOf(source, width, widest);
        });
    }

    void readLabelLength(const CsvTable& source, qsizetype row, Catalogue::Supply& supply,
                         double longest) const
    {
        const CsvField field = fieldsOf(source, row)("label_length");
        const QString type = m_formats.rows.value(supply.format);
        const bool isContinuous = type == continuousType;
        // If the format is wrong, its type is unknown.
        if (!type.isEmpty() && isContinuous != field.text.isEmpty())
            throw field.failure(
                isContinuous ? ToolText::tr("a label length is given, but the format is continuous")
                             : ToolText::tr("empty, but the format is not continuous"));
        if (!field.text.isEmpty())
            supply.labelLength = sizeOf(source, field, longest);
    }

    void readMultiUp(const CsvTable& source, qsizetype row, Catalogue::Supply& supply)
    {
        const auto field = fieldsOf(source, row);
        const bool hasCount =
            attempt([&] { supply.multiUpCount = integerOf(field("multi_up_count"), 1, 100); });
        attempt([&] {
            const CsvField gap = field("multi_up_gap");
            if (hasCount && (supply.multiUpCount == 1) != gap.text.isEmpty())
                throw gap.failure(
                    supply.multiUpCount == 1
                        ? ToolText::tr("a gap is given, but there is only one label across")
                        : ToolText::tr("empty, but there are several labels across"));
            if (!gap.text.isEmpty())
                supply.multiUpGap = realOf(source, gap, 0.0, maxWidth);
        });
    }

    void readRibbons()
    {
        const CsvTable source = listedTable(table_layouts::ribbons);
        m_panels.isComplete = source.isComplete();
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            Catalogue::Ribbon ribbon{};
            ribbon.sku = newSku(source, row);
            attempt([&] {
                ribbon.numbers = uniqueNumbers(field("numbers"), supplydb_schema::maxRibbonNumber,
                                               m_ribbonNumbers);
            });
            attempt([&] { ribbon.type = textOf(field("type"), maxWordLength); });
            attempt([&] { ribbon.width = sizeOf(source, field("width"), maxWidth); });
            attempt([&] { ribbon.length = sizeOf(source, field("length"), longestRoll); });
            const bool hasPanels = attempt([&] { readPanels(field("panels"), ribbon); });
            if (ribbon.sku.isEmpty())
                m_panels.isComplete = false;
            else
                m_panels.rows.insert(ribbon.sku, hasPanels
                                                     ? static_cast<int>(ribbon.panelColours.size())
                                                     : maxPanels);
            m_catalogue.ribbons.append(ribbon);
        }
    }

    void readPanels(const CsvField& field, Catalogue::Ribbon& ribbon)
    {
        const QStringList keys = wordsOf(field);
        if (keys.isEmpty() || keys.size() > maxPanels)
            throw field.failure(
                ToolText::tr("%1 panels; a ribbon has 1 to %2").arg(keys.size()).arg(maxPanels));
        for (const QString& key : keys)
            ribbon.panelColours.append(attempt(qsizetype{0}, [&] { return colourOf(field, key); }));
    }

    void readSettings()
    {
        const CsvTable source = table(table_layouts::settings);
        QSet<QString> seen;
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            const auto number = [&](const char* name, int least, int most) {
                return attempt(-1, [&] { return integerOf(field(name), least, most); });
            };
            const QString ribbon = attempt(QString(), [&] {
                return knownSku(field("ribbon"), m_panels, table_layouts::ribbons);
            });
            const int panel = number("panel", 1, m_panels.rows.value(ribbon, maxPanels));
            const QString supply = attempt(QString(), [&] {
                return knownSku(field("supply"), m_supplies, table_layouts::supplies);
            });
            const QString key = QStringLiteral("%1 %2 %3").arg(ribbon).arg(panel).arg(supply);
            if (!ribbon.isEmpty() && !supply.isEmpty() && panel > 0) {
                if (seen.contains(key))
                    note(field("ribbon").failure(
                        ToolText::tr("duplicate print setting for panel %1 of %2 with %3")
                            .arg(panel)
                            .arg(ribbon, supply)));
                seen.insert(key);
            }
            m_catalogue.settings.append({ribbon, panel, supply, number("heat", 0, maxSetting),
                                         number("heat_offset", 0, maxSetting),
                                         number("max_speed", 1, maxSetting),
                                         number("tension", 0, maxSetting)});
        }
    }

    template <typename Rows>
    QString knownSku(const CsvField& field, const Rows& known, const TableLayout& layout) const
    {
        if (known.isComplete && !known.rows.contains(field.text))
            throw field.failure(
                ToolText::tr("\"%1\" is not in %2").arg(field.text, fileOf(layout)));
        return field.text;
    }

    void readPrinterFormats()
    {
        const CsvTable source = listedTable(table_layouts::printerFormats);
        QHash<QString, QList<int>> lists;
        QHash<QString, QString> spellings; // models are compared without regard to case
        for (qsizetype row = 0; row < source.rowCount(); ++row) {
            const auto field = fieldsOf(source, row);
            const QString text = attempt(QString(), [&] {
                const CsvField modelField = field("model");
                const QString word = textOf(modelField, maxWordLength);
                const QString spelling = spellings.value(word.toLower(), word);
                if (spelling != word)
                    throw modelField.failure(
                        ToolText::tr(R"("%1" is the same model as "%2")").arg(word, spelling));
                spellings.insert(word.toLower(), word);
                return word;
            });
            attempt([&] {
                const CsvField formatField = field("format");
                const int format = formatOf(formatField);
                if (text.isEmpty())
                    return;
                const QString model = text == anyModel ? QString() : text;
                QList<int>& list = lists[model];
                if (list.contains(format))
                    throw formatField.failure(
                        ToolText::tr("duplicate format %1 for %2").arg(format).arg(text));
                m_catalogue.printerFormats.append({model, static_cast<int>(list.size()), format});
                list.append(format);
            });
        }
    }

    const ReadFile& m_readFile;
    Catalogue m_catalogue;
    Mistakes m_mistakes;
    const TableLayout* m_layout = nullptr; ///< of the table that is being read
    QHash<int, QString> m_fileNames;       ///< by the number of the layout
    KnownRows<QString, qsizetype> m_colours;
    KnownRows<int, bool> m_materials;
    KnownRows<int, QString> m_formats; ///< their types
    QHash<QString, qsizetype> m_backgrounds;
    KnownRows<QString, bool> m_supplies;
    QSet<int> m_kinds;
    QSet<int> m_ribbonNumbers;
    KnownRows<QString, int> m_panels; ///< how many each ribbon has
};

} // namespace

Catalogue readCatalogue(const ReadFile& readFile)
{
    return Reader(readFile).read();
}

Catalogue ordered(Catalogue catalogue)
{
    std::ranges::sort(catalogue.materials, {}, &Catalogue::Material::number);
    std::ranges::sort(catalogue.formats, {}, &Catalogue::Format::number);
    std::ranges::sort(catalogue.supplies, {}, &Catalogue::Supply::sku);
    std::ranges::sort(catalogue.ribbons, {}, &Catalogue::Ribbon::sku);
    for (Catalogue::Supply& supply : catalogue.supplies)
        std::ranges::sort(supply.kinds);
    for (Catalogue::Ribbon& ribbon : catalogue.ribbons)
        std::ranges::sort(ribbon.numbers);
    std::ranges::sort(catalogue.settings, {}, [](const Catalogue::PrintSetting& setting) {
        return std::tuple(setting.ribbonSku, setting.panel, setting.supplySku);
    });
    // As SQLite compares texts.
    std::ranges::sort(catalogue.printerFormats, {}, [](const Catalogue::PrinterFormat& entry) {
        return std::pair(entry.model.toUtf8(), entry.position);
    });
    // Pictures in the order in which the supplies use them.
    const QList<Catalogue::Background> pictures = std::exchange(catalogue.backgrounds, {});
    QHash<qsizetype, qsizetype> places;
    for (Catalogue::Supply& supply : catalogue.supplies) {
        if (!supply.background)
            continue;
        if (!places.contains(*supply.background)) {
            places.insert(*supply.background, catalogue.backgrounds.size());
            catalogue.backgrounds.append(pictures.at(*supply.background));
        }
        supply.background = places.value(*supply.background);
    }
    return catalogue;
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
