// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxsupplydatabase.h"

#include "kept_query.h"
#include "supplyc.h"
#include "supplydb_connection.h"
#include "supplydb_schema.h"

#include <QtCore/QHash>

#include <memory>
#include <utility>

namespace {

// The SKU of an empty place in a printer.
const QString NothingLoaded = QStringLiteral("-1");
const QString BlankSupplyId = QStringLiteral("00000000000000000000");
const QStringList BlankRibbonIds{QString(), QStringLiteral("-1"), QStringLiteral("4294967295"),
                                 QStringLiteral("0")};

constexpr qsizetype keptRecords = 256;
constexpr qsizetype keptSettings = 2048;
constexpr qsizetype keptListEntries = 16384;
constexpr qsizetype keptImageBytes = qsizetype{4} << 20;

// What is asked of one thing goes in small groups. Qt prepares each column of an answer anew, so a
// first question that had to read all there is would take several times as long. Keys are bound
// after the language, where the tables ask for one.

class Question
{
public:
    Question(const char* columns, const char* tables, const char* keys)
        : m_forAll(QStringLiteral("SELECT %1, %3 FROM %2")
                       .arg(QLatin1String(columns), QLatin1String(tables), QLatin1String(keys)))
    {
        const QString keyColumns = QString::fromLatin1(keys);
        const QStringList marks(keyColumns.count(u',') + 1, QStringLiteral("?"));
        m_forOne = QStringLiteral("SELECT %1 FROM %2 WHERE (%3) = (%4)")
                       .arg(QLatin1String(columns), QLatin1String(tables), keyColumns,
                            marks.join(QStringLiteral(", ")));
    }

    const QString& forOne() const { return m_forOne; }
    const QString& forAll() const { return m_forAll; }

private:
    QString m_forOne;
    QString m_forAll;
};

struct Colour
{
    int rgb = -1;
    QString name;
    QString nameEn;
};
const Question ColourQuestion{R"(c.rgb, n.english, t.text)",
                              R"(supply s
    JOIN colour c ON c.id = s.colour_id
    JOIN name n ON n.id = c.name_id
    LEFT JOIN translation t ON t.name_id = n.id AND t.language_id = ?)",
                              "s.sku"};

struct SecondColour : Colour
{
    double width = -1.0;
};
const Question SecondColourQuestion{R"(c.rgb, n.english, t.text, s.second_colour_width)",
                                    R"(supply s
    JOIN colour c ON c.id = s.second_colour_id
    JOIN name n ON n.id = c.name_id
    LEFT JOIN translation t ON t.name_id = n.id AND t.language_id = ?)",
                                    "s.sku"};

struct Material
{
    int id = -1;
    QString name;
};
const Question MaterialQuestion{R"(m.id, coalesce(t.text, n.english))",
                                R"(supply s
    JOIN material m ON m.id = s.material_id
    JOIN name n ON n.id = m.name_id
    LEFT JOIN translation t ON t.name_id = n.id AND t.language_id = ?)",
                                "s.sku"};

struct Format
{
    int id = -1;
    QString name;
    QString type;
};
const Question FormatQuestion{R"(f.id, coalesce(t.text, n.english), f.type)",
                              R"(supply s
    JOIN format f ON f.id = s.format_id
    JOIN name n ON n.id = f.name_id
    LEFT JOIN translation t ON t.name_id = n.id AND t.language_id = ?)",
                              "s.sku"};

struct Size
{
    double width = -1.0;
    double length = -1.0;
    double labelLength = -1.0;
    double separatorWidth = -1.0;
};
const Question SizeQuestion{
    R"(width, length, coalesce(label_length, -1.0), coalesce(separator_width, -1.0))", R"(supply)",
    "sku"};

struct Arrangement
{
    int isLandscape = 1;
    int multiUpCount = 1;
    double multiUpGap = -1.0;
};
const Question ArrangementQuestion{R"(is_landscape, multi_up_count, coalesce(multi_up_gap, -1.0))",
                                   R"(supply)", "sku"};

const QString BackgroundSql = QStringLiteral(R"(
    SELECT b.image
    FROM supply s
    JOIN background b ON b.id = s.background_id
    WHERE s.sku = ?)");

// The place of a supply's format, by printer model.
using TypeIndices = QHash<QString, int>;
const QString TypeIndicesSql = QStringLiteral(R"(
    SELECT p.model, p.position
    FROM supply s
    JOIN printer_format p ON p.format_id = s.format_id
    WHERE s.sku = ?)");

// Longer models first, so that the first one found in a printer's name is the one meant. The model
// of all other printers is the empty text, which is found in any name.
const QString ModelsSql = QStringLiteral(R"(
    SELECT DISTINCT model FROM printer_format ORDER BY length(model) DESC, model)");

struct Ribbon
{
    QString type;
    double width = -1.0;
    double length = -1.0;
    int panels = -1;
};
const Question RibbonQuestion{
    R"(type, width, length, (SELECT count(*) FROM
        (SELECT 1 FROM ribbon_panel WHERE ribbon_sku = sku LIMIT 16)))",
    R"(ribbon)", "sku"};

using PanelKey = std::pair<QString, int>;
const Question PanelColourQuestion{R"(c.rgb, n.english, t.text)",
                                   R"(ribbon_panel p
    JOIN colour c ON c.id = p.colour_id
    JOIN name n ON n.id = c.name_id
    LEFT JOIN translation t ON t.name_id = n.id AND t.language_id = ?)",
                                   "p.ribbon_sku, p.panel"};

struct SettingKey
{
    QString ribbonSku;
    int panel;
    QString supplySku;

    friend bool operator==(const SettingKey&, const SettingKey&) = default;
    friend size_t qHash(const SettingKey& key, size_t seed = 0)
    {
        return qHashMulti(seed, key.ribbonSku, key.panel, key.supplySku);
    }
};
struct PrintSetting
{
    int heat = -1;
    int heatOffset = -1;
    int maxSpeed = -1;
    int tension = -1;
};
// One column for the four numbers, none of which is above 1000: settings are asked for one by one,
// and what Qt does for a column takes longer than all else that it does for an answer.
const Question SettingQuestion{
    R"(heat | (heat_offset << 16) | (max_speed << 32) | (tension << 48))", R"(print_setting)",
    "ribbon_sku, panel, supply_sku"};

PrintSetting unpacked(qulonglong numbers)
{
    const auto numberAt = [numbers](unsigned int place) {
        constexpr unsigned int bits = 16;
        return static_cast<int>(numbers >> place * bits & 0xffffU);
    };
    return {numberAt(0), numberAt(1), numberAt(2), numberAt(3)};
}

const QString SupplyOfKindSql = QStringLiteral("SELECT supply_sku FROM supply_kind WHERE kind = ?");
const QString RibbonOfNumberSql =
    QStringLiteral("SELECT ribbon_sku FROM ribbon_number WHERE number = ?");

struct Catalogue
{
    QStringList skus;
    QVariantHash colours;
};
const QString SuppliesSql = QStringLiteral(R"(
    SELECT s.sku, c.rgb
    FROM supply s
    JOIN colour c ON c.id = s.colour_id
    ORDER BY s.sku)");
const QString RibbonsSql = QStringLiteral(R"(
    SELECT r.sku, c.rgb
    FROM ribbon r
    LEFT JOIN ribbon_panel p ON p.ribbon_sku = r.sku AND p.panel = 1
    LEFT JOIN colour c ON c.id = p.colour_id
    ORDER BY r.sku)");

template <int Column>
QString textAt(const QSqlQuery& row)
{
    return row.value(Column).toString();
}

// The key of an answer to a question that takes none.
constexpr int whole = 0;

QString textOr(const QVariant& translation, const QString& english)
{
    return translation.isNull() ? english : translation.toString();
}

void readColour(const QSqlQuery& row, Colour& colour)
{
    colour.rgb = row.value(0).toInt();
    colour.nameEn = row.value(1).toString();
    colour.name = textOr(row.value(2), colour.nameEn);
}

void readText(const QSqlQuery& row, QString& text)
{
    text = row.value(0).toString();
}

void readCatalogue(const QSqlQuery& row, Catalogue& catalogue)
{
    const QString sku = row.value(0).toString();
    catalogue.skus.append(sku);
    catalogue.colours.insert(sku, row.isNull(1) ? -1 : row.value(1).toInt());
}

qsizetype imageBytes(const QByteArray& image)
{
    return 1 + image.size();
}

qsizetype catalogueEntries(const Catalogue& catalogue)
{
    return 1 + catalogue.skus.size();
}

/// All statements and their kept answers.
struct KeptQueries
{
    KeptQuery<QString, Colour> colours{
        ColourQuestion.forOne(), readColour, keptRecords, {ColourQuestion.forAll(), textAt<3>}};
    KeptQuery<QString, SecondColour> secondColours{SecondColourQuestion.forOne(),
                                                   [](const QSqlQuery& row, SecondColour& colour) {
                                                       readColour(row, colour);
                                                       colour.width = row.value(3).toDouble();
                                                   },
                                                   keptRecords,
                                                   {SecondColourQuestion.forAll(), textAt<4>}};
    KeptQuery<QString, Material> materials{
        MaterialQuestion.forOne(),
        [](const QSqlQuery& row, Material& material) {
            material = {row.value(0).toInt(), row.value(1).toString()};
        },
        keptRecords,
        {MaterialQuestion.forAll(), textAt<2>}};
    KeptQuery<QString, Format> formats{
        FormatQuestion.forOne(),
        [](const QSqlQuery& row, Format& format) {
            format = {row.value(0).toInt(), row.value(1).toString(), row.value(2).toString()};
        },
        keptRecords,
        {FormatQuestion.forAll(), textAt<3>}};
    KeptQuery<QString, Size> sizes{SizeQuestion.forOne(),
                                   [](const QSqlQuery& row, Size& size) {
                                       size = {row.value(0).toDouble(), row.value(1).toDouble(),
                                               row.value(2).toDouble(), row.value(3).toDouble()};
                                   },
                                   keptRecords,
                                   {SizeQuestion.forAll(), textAt<4>}};
    KeptQuery<QString, Arrangement> arrangements{
        ArrangementQuestion.forOne(),
        [](const QSqlQuery& row, Arrangement& arrangement) {
            arrangement = {row.value(0).toInt(), row.value(1).toInt(), row.value(2).toDouble()};
        },
        keptRecords,
        {ArrangementQuestion.forAll(), textAt<3>}};
    KeptQuery<QString, QByteArray> backgrounds{
        BackgroundSql,
        [](const QSqlQuery& row, QByteArray& image) { image = row.value(0).toByteArray(); },
        keptImageBytes, imageBytes};
    KeptQuery<QString, TypeIndices> typeIndices{TypeIndicesSql,
                                                [](const QSqlQuery& row, TypeIndices& indices) {
                                                    indices.insert(row.value(0).toString(),
                                                                   row.value(1).toInt());
                                                },
                                                keptRecords};
    KeptQuery<int, QStringList> models{
        ModelsSql,
        [](const QSqlQuery& row, QStringList& names) { names.append(row.value(0).toString()); }, 1};
    KeptQuery<QString, Ribbon> ribbons{RibbonQuestion.forOne(),
                                       [](const QSqlQuery& row, Ribbon& ribbon) {
                                           ribbon = {row.value(0).toString(),
                                                     row.value(1).toDouble(),
                                                     row.value(2).toDouble(), row.value(3).toInt()};
                                       },
                                       keptRecords,
                                       {RibbonQuestion.forAll(), textAt<4>}};
    KeptQuery<PanelKey, Colour> panelColours{
        PanelColourQuestion.forOne(),
        readColour,
        keptRecords,
        {PanelColourQuestion.forAll(), [](const QSqlQuery& row) {
             return PanelKey(row.value(3).toString(), row.value(4).toInt());
         }}};
    // Not all at once: a printer asks for the few of what it has loaded, and there are many.
    KeptQuery<SettingKey, PrintSetting> settings{SettingQuestion.forOne(),
                                                 [](const QSqlQuery& row, PrintSetting& setting) {
                                                     setting = unpacked(row.value(0).toULongLong());
                                                 },
                                                 keptSettings};
    KeptQuery<int, QString> suppliesOfKinds{SupplyOfKindSql, readText, keptRecords};
    KeptQuery<int, QString> ribbonsOfNumbers{RibbonOfNumberSql, readText, keptRecords};
    KeptQuery<int, Catalogue> supplies{SuppliesSql, readCatalogue, keptListEntries,
                                       catalogueEntries};
    KeptQuery<int, Catalogue> allRibbons{RibbonsSql, readCatalogue, keptListEntries,
                                         catalogueEntries};

    void clearNames()
    {
        colours.clear();
        secondColours.clear();
        materials.clear();
        formats.clear();
        panelColours.clear();
    }
};

} // namespace

class VXSupplyDatabase::Private
{
public:
    int languageId = SupplyDbSchema::fallbackLanguage;
    QString supplyId;
    QStringList ribbonIds;

    void setup(const QString& path, const QString& name)
    {
        m_kept.reset();
        connection.setUp(path, name);
    }

    // Opened when it is first needed: that takes longer than everything else that is done for a
    // printer when it is found, and an application that has found a hundred asks about a few.
    const QSqlDatabase& database()
    {
        connection.open();
        return connection.database();
    }

    void clearNames()
    {
        if (m_kept)
            m_kept->clearNames();
    }

    // Made when something is first asked: an application that has found a hundred printers asks
    // about a few.
    KeptQueries& kept()
    {
        if (!m_kept)
            m_kept = std::make_unique<KeptQueries>();
        return *m_kept;
    }

    // A text that cannot be a SKU is not asked for: what is kept would be as long as callers like.
    template <typename Answer>
    const Answer& ofSku(KeptQuery<QString, Answer>& query, const QString& sku)
    {
        static const Answer unknown{};
        if (!SupplyDbSchema::isSku(sku))
            return unknown;
        return query.answer(database(), sku, sku);
    }
    template <typename Answer>
    const Answer& named(KeptQuery<QString, Answer>& query, const QString& sku)
    {
        static const Answer unknown{};
        if (!SupplyDbSchema::isSku(sku))
            return unknown;
        return query.answer(database(), sku, languageId, sku);
    }

    const Colour& panelColour(const QString& ribbonSku, int panel)
    {
        static const Colour unknown{};
        if (!SupplyDbSchema::isSku(ribbonSku))
            return unknown;
        return kept().panelColours.answer(database(), {ribbonSku, panel}, languageId, ribbonSku,
                                          panel);
    }

    const PrintSetting& setting(const QString& ribbonSku, int panel, const QString& supplySkuText)
    {
        static const PrintSetting unknown{};
        if (!SupplyDbSchema::isSku(ribbonSku) || !SupplyDbSchema::isSku(supplySkuText))
            return unknown;
        return kept().settings.answer(database(), {ribbonSku, panel, supplySkuText}, ribbonSku,
                                      panel, supplySkuText);
    }

    QVariantList firstPanelSettings(const QStringList& skus, const QString& supplySkuText,
                                    int PrintSetting::*wanted)
    {
        QVariantList values;
        values.reserve(skus.size());
        for (const QString& sku : skus)
            values.append(setting(sku, 1, supplySkuText).*wanted);
        return values;
    }

    QStringList panelRgbs(const QString& ribbonSku)
    {
        QStringList rgbs;
        const int panels = ofSku(kept().ribbons, ribbonSku).panels;
        for (int panel = 1; panel <= panels; ++panel)
            rgbs.append(QString::number(panelColour(ribbonSku, panel).rgb));
        return rgbs;
    }

    QString loadedSupplySku()
    {
        if (supplyId.isEmpty() || supplyId == NothingLoaded || supplyId == BlankSupplyId)
            return NothingLoaded;
        const SupplyC decoded(supplyId);
        if (!decoded.isDecoded())
            return {};
        return kept().suppliesOfKinds.answer(database(), decoded.kind, decoded.kind);
    }

    QString loadedRibbonSku(const QString& id)
    {
        if (BlankRibbonIds.contains(id))
            return NothingLoaded;
        bool isNumber = false;
        const int number = id.toInt(&isNumber);
        if (!isNumber)
            return {};
        return kept().ribbonsOfNumbers.answer(database(), number, number);
    }

    QString model(const QString& printerName)
    {
        const QStringList& names = kept().models.answer(database(), whole);
        for (const QString& name : names) {
            if (printerName.contains(name, Qt::CaseInsensitive))
                return name;
        }
        return {};
    }

    const Catalogue& supplyCatalogue() { return kept().supplies.answer(database(), whole); }
    const Catalogue& ribbonCatalogue() { return kept().allRibbons.answer(database(), whole); }

private:
    SupplyDbConnection connection;
    std::unique_ptr<KeptQueries> m_kept; // goes before the connection that its statements hold
};

VXSupplyDatabase::VXSupplyDatabase(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}

VXSupplyDatabase::~VXSupplyDatabase() = default;

void VXSupplyDatabase::setup(const QString& databasePath, const QString& connectionName)
{
    d->setup(databasePath, connectionName);
}

void VXSupplyDatabase::setLanguageId(int languageId)
{
    if (d->languageId == languageId)
        return;
    d->languageId = languageId;
    d->clearNames();
}

void VXSupplyDatabase::setSupplyId(const QString& id)
{
    d->supplyId = id;
}

void VXSupplyDatabase::setRibbonIds(const QStringList& ids)
{
    d->ribbonIds = ids;
}

QString VXSupplyDatabase::supplyId() const
{
    return d->supplyId;
}

QString VXSupplyDatabase::supplySKU() const
{
    return d->loadedSupplySku();
}

QStringList VXSupplyDatabase::supplyRibbonSKUs() const
{
    QStringList skus;
    skus.reserve(d->ribbonIds.size());
    for (const QString& id : std::as_const(d->ribbonIds))
        skus.append(d->loadedRibbonSku(id));
    return skus;
}

QString VXSupplyDatabase::supplySupplyRGB() const
{
    const int rgb = supplyColorRGB(supplySKU());
    return rgb < 0 ? QString() : QString::number(rgb);
}

QStringList VXSupplyDatabase::supplyRibbon1RGBs() const
{
    return d->panelRgbs(supplyRibbonSKUs().value(0));
}

QStringList VXSupplyDatabase::supplyRibbon2RGBs() const
{
    return d->panelRgbs(supplyRibbonSKUs().value(1));
}

QStringList VXSupplyDatabase::supplySKUList() const
{
    return d->supplyCatalogue().skus;
}

QStringList VXSupplyDatabase::supplyRibbonSKUList() const
{
    return d->ribbonCatalogue().skus;
}

QVariantHash VXSupplyDatabase::supplyColorHash() const
{
    return d->supplyCatalogue().colours;
}

QVariantHash VXSupplyDatabase::supplyRibbonColorHash() const
{
    return d->ribbonCatalogue().colours;
}

int VXSupplyDatabase::supplyMaterial(const QString& sku) const
{
    return d->named(d->kept().materials, sku).id;
}

QString VXSupplyDatabase::supplyMaterialName(const QString& sku) const
{
    return d->named(d->kept().materials, sku).name;
}

int VXSupplyDatabase::supplyFormat(const QString& sku) const
{
    return d->named(d->kept().formats, sku).id;
}

QString VXSupplyDatabase::supplyFormatName(const QString& sku) const
{
    return d->named(d->kept().formats, sku).name;
}

QString VXSupplyDatabase::supplyFormatType(const QString& sku) const
{
    return d->named(d->kept().formats, sku).type;
}

int VXSupplyDatabase::supplyColorRGB(const QString& sku) const
{
    return d->named(d->kept().colours, sku).rgb;
}

QString VXSupplyDatabase::supplyColorName(const QString& sku) const
{
    return d->named(d->kept().colours, sku).name;
}

QString VXSupplyDatabase::supplyColorNameEn(const QString& sku) const
{
    return d->named(d->kept().colours, sku).nameEn;
}

int VXSupplyDatabase::supplySecColorRGB(const QString& sku) const
{
    return d->named(d->kept().secondColours, sku).rgb;
}

QString VXSupplyDatabase::supplySecColorName(const QString& sku) const
{
    return d->named(d->kept().secondColours, sku).name;
}

QString VXSupplyDatabase::supplySecColorNameEn(const QString& sku) const
{
    return d->named(d->kept().secondColours, sku).nameEn;
}

double VXSupplyDatabase::supplySecColorWidth(const QString& sku) const
{
    return d->named(d->kept().secondColours, sku).width;
}

double VXSupplyDatabase::supplyWidth(const QString& sku) const
{
    return d->ofSku(d->kept().sizes, sku).width;
}

double VXSupplyDatabase::supplyLength(const QString& sku) const
{
    return d->ofSku(d->kept().sizes, sku).length;
}

double VXSupplyDatabase::supplyNonContinuousLength(const QString& sku) const
{
    return d->ofSku(d->kept().sizes, sku).labelLength;
}

double VXSupplyDatabase::supplySeparatorWidth(const QString& sku) const
{
    return d->ofSku(d->kept().sizes, sku).separatorWidth;
}

int VXSupplyDatabase::supplyIsLandscape(const QString& sku) const
{
    return d->ofSku(d->kept().arrangements, sku).isLandscape;
}

int VXSupplyDatabase::supplyMultiUpCount(const QString& sku) const
{
    return d->ofSku(d->kept().arrangements, sku).multiUpCount;
}

double VXSupplyDatabase::supplyMultiUpGapSize(const QString& sku) const
{
    return d->ofSku(d->kept().arrangements, sku).multiUpGap;
}

QByteArray VXSupplyDatabase::supplyBackgroundImage(const QString& sku) const
{
    return d->ofSku(d->kept().backgrounds, sku);
}

int VXSupplyDatabase::supplyTypeIndex(const QString& sku, const QString& printerName) const
{
    return d->ofSku(d->kept().typeIndices, sku).value(d->model(printerName), -1);
}

QString VXSupplyDatabase::supplyRibbonType(const QString& ribbonSku) const
{
    return d->ofSku(d->kept().ribbons, ribbonSku).type;
}

int VXSupplyDatabase::supplyRibbonPanels(const QString& ribbonSku) const
{
    return d->ofSku(d->kept().ribbons, ribbonSku).panels;
}

double VXSupplyDatabase::supplyRibbonWidth(const QString& ribbonSku) const
{
    return d->ofSku(d->kept().ribbons, ribbonSku).width;
}

double VXSupplyDatabase::supplyRibbonLength(const QString& ribbonSku) const
{
    return d->ofSku(d->kept().ribbons, ribbonSku).length;
}

QString VXSupplyDatabase::supplyRibbonColorName(const QString& ribbonSku, int panel) const
{
    return d->panelColour(ribbonSku, panel).name;
}

int VXSupplyDatabase::supplyRibbonColorRGB(const QString& ribbonSku, int panel) const
{
    return d->panelColour(ribbonSku, panel).rgb;
}

int VXSupplyDatabase::supplyRibbonHeat(const QString& ribbonSku, int panel,
                                       const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).heat;
}

int VXSupplyDatabase::supplyRibbonHeatOffset(const QString& ribbonSku, int panel,
                                             const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).heatOffset;
}

int VXSupplyDatabase::supplyRibbonMaxSpeed(const QString& ribbonSku, int panel,
                                           const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).maxSpeed;
}

int VXSupplyDatabase::supplyRibbonTension(const QString& ribbonSku, int panel,
                                          const QString& supplySku) const
{
    return d->setting(ribbonSku, panel, supplySku).tension;
}

QStringList VXSupplyDatabase::supplyRibbonsColorNames(const QStringList& ribbonSkus) const
{
    QStringList names;
    names.reserve(ribbonSkus.size());
    for (const QString& sku : ribbonSkus)
        names.append(d->panelColour(sku, 1).name);
    return names;
}

QVariantList VXSupplyDatabase::supplyRibbonsColorRGBs(const QStringList& ribbonSkus) const
{
    QVariantList rgbs;
    rgbs.reserve(ribbonSkus.size());
    for (const QString& sku : ribbonSkus)
        rgbs.append(d->panelColour(sku, 1).rgb);
    return rgbs;
}

QVariantList VXSupplyDatabase::supplyRibbonsHeats(const QStringList& ribbonSkus,
                                                  const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::heat);
}

QVariantList VXSupplyDatabase::supplyRibbonsHeatOffsets(const QStringList& ribbonSkus,
                                                        const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::heatOffset);
}

QVariantList VXSupplyDatabase::supplyRibbonsMaxSpeeds(const QStringList& ribbonSkus,
                                                      const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::maxSpeed);
}

QVariantList VXSupplyDatabase::supplyRibbonsTensions(const QStringList& ribbonSkus,
                                                     const QString& supplySku) const
{
    return d->firstPanelSettings(ribbonSkus, supplySku, &PrintSetting::tension);
}
