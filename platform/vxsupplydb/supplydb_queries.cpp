// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplydb_queries.h"

#include <tuple>
#include <type_traits>

// A struct describes each query: the columns with the members that they are read into, the tables
// that they come from, and the keys. The statements and the order of their columns follow from it.
//
// A supply's data are split into several small queries. Qt prepares the description of each column
// anew for every result, so one query for everything would make the first answer several times
// slower.

namespace supplydb_queries {
namespace {

constexpr qsizetype recordCapacity = 256;
constexpr qsizetype settingCapacity = 2048;
constexpr qsizetype listCapacity = 16384;
constexpr qsizetype imageCapacity = qsizetype{4} << 20;

/// An SQL expression, and the member of a row that its value is read into.
template <typename Owner, typename Value>
struct Column
{
    const char* expression;
    Value Owner::*member;
};
template <typename Owner, typename Value>
Column(const char*, Value Owner::*) -> Column<Owner, Value>;

/// An SQL expression that is compared with a bound value, which is part of the cache's key.
template <typename Value>
struct KeyColumn
{
    const char* expression;
};

/// The answer is one row.
template <typename Record>
struct RecordQuery
{
    using Row = Record;
    using Answer = Record;
};

struct BySupplySku
{
    using Key = QString;
    static constexpr std::tuple keys{KeyColumn<QString>{"s.sku"}};
};

struct WithoutKey
{
    using Key = int;
    static constexpr std::tuple<> keys{};
};

// A query with `namedThing` joins the name of the table with that alias, in English and, where
// there is a translation, in the language that is bound before the keys.
constexpr const char* nameEnExpression = "n.english";
constexpr const char* nameExpression = "coalesce(t.text, n.english)";

struct ColourQuery : RecordQuery<Colour>, BySupplySku
{
    static constexpr std::tuple columns{Column{"c.rgb", &Colour::rgb},
                                        Column{nameExpression, &Colour::name},
                                        Column{nameEnExpression, &Colour::nameEn}};
    static constexpr const char* tables = "supply s JOIN colour c ON c.id = s.colour_id";
    static constexpr const char* namedThing = "c";
};

struct SecondColourQuery : RecordQuery<SecondColour>, BySupplySku
{
    static constexpr std::tuple columns = std::tuple_cat(
        ColourQuery::columns, std::tuple{Column{"s.second_colour_width", &SecondColour::width}});
    static constexpr const char* tables = "supply s JOIN colour c ON c.id = s.second_colour_id";
    static constexpr const char* namedThing = "c";
};

struct MaterialQuery : RecordQuery<Material>, BySupplySku
{
    static constexpr std::tuple columns{Column{"m.id", &Material::id},
                                        Column{nameExpression, &Material::name}};
    static constexpr const char* tables = "supply s JOIN material m ON m.id = s.material_id";
    static constexpr const char* namedThing = "m";
};

struct FormatQuery : RecordQuery<Format>, BySupplySku
{
    static constexpr std::tuple columns{Column{"f.id", &Format::id},
                                        Column{nameExpression, &Format::name},
                                        Column{"f.type", &Format::type}};
    static constexpr const char* tables = "supply s JOIN format f ON f.id = s.format_id";
    static constexpr const char* namedThing = "f";
};

struct SizeQuery : RecordQuery<Size>, BySupplySku
{
    static constexpr std::tuple columns{
        Column{"s.width", &Size::width}, Column{"s.length", &Size::length},
        Column{"coalesce(s.label_length, -1.0)", &Size::labelLength},
        Column{"coalesce(s.separator_width, -1.0)", &Size::separatorWidth}};
    static constexpr const char* tables = "supply s";
};

struct ArrangementQuery : RecordQuery<Arrangement>, BySupplySku
{
    static constexpr std::tuple columns{
        Column{"s.is_landscape", &Arrangement::isLandscape},
        Column{"s.multi_up_count", &Arrangement::multiUpCount},
        Column{"coalesce(s.multi_up_gap, -1.0)", &Arrangement::multiUpGap}};
    static constexpr const char* tables = "supply s";
};

struct BackgroundQuery : BySupplySku
{
    struct Row
    {
        QByteArray image;
    };
    using Answer = QByteArray;
    static constexpr std::tuple columns{Column{"b.image", &Row::image}};
    static constexpr const char* tables = "supply s JOIN background b ON b.id = s.background_id";

    static void add(const Row& row, QByteArray& image) { image = row.image; }
    static qsizetype cost(const QByteArray& image) { return 1 + image.size(); }
};

struct TypeIndicesQuery : BySupplySku
{
    struct Row
    {
        QString model;
        int position = -1;
    };
    using Answer = TypeIndices;
    static constexpr std::tuple columns{Column{"p.model", &Row::model},
                                        Column{"p.position", &Row::position}};
    static constexpr const char* tables =
        "supply s JOIN printer_format p ON p.format_id = s.format_id";

    static void add(const Row& row, TypeIndices& indices)
    {
        indices.insert(row.model, row.position);
    }
};

struct RibbonQuery : RecordQuery<Ribbon>
{
    using Key = QString;
    static constexpr std::tuple columns{
        Column{"r.type", &Ribbon::type}, Column{"r.width", &Ribbon::width},
        Column{"r.length", &Ribbon::length},
        Column{"(SELECT count(*) FROM "
               "(SELECT 1 FROM ribbon_panel WHERE ribbon_sku = r.sku LIMIT 16))",
               &Ribbon::panels}};
    static constexpr const char* tables = "ribbon r";
    static constexpr std::tuple keys{KeyColumn<QString>{"r.sku"}};
};

struct PanelColourQuery : RecordQuery<Colour>
{
    using Key = PanelKey;
    static constexpr std::tuple columns = ColourQuery::columns;
    static constexpr const char* tables = "ribbon_panel p JOIN colour c ON c.id = p.colour_id";
    static constexpr const char* namedThing = "c";
    static constexpr std::tuple keys{KeyColumn<QString>{"p.ribbon_sku"}, KeyColumn<int>{"p.panel"}};
};

struct SettingQuery
{
    /// All four numbers in one column, each at most 1000. Settings are queried one by one, and what
    /// Qt does for each column takes longer than the rest of such a query.
    struct Row
    {
        qulonglong numbers = 0;
    };
    using Key = SettingKey;
    using Answer = PrintSetting;
    static constexpr std::tuple columns{
        Column{"heat | (heat_offset << 16) | (max_speed << 32) | (tension << 48)", &Row::numbers}};
    static constexpr const char* tables = "print_setting";
    static constexpr std::tuple keys{KeyColumn<QString>{"ribbon_sku"}, KeyColumn<int>{"panel"},
                                     KeyColumn<QString>{"supply_sku"}};

    static void add(const Row& row, PrintSetting& setting)
    {
        const auto numberAt = [&row](unsigned int bit) {
            return static_cast<int>(row.numbers >> bit & 0xffffU);
        };
        setting = {numberAt(0), numberAt(16), numberAt(32), numberAt(48)};
    }
};

/// The SKU that a number from an identifier stands for.
struct SkuOfNumberQuery
{
    struct Row
    {
        QString sku;
    };
    using Key = int;
    using Answer = QString;

    static void add(const Row& row, QString& sku) { sku = row.sku; }
};

struct SupplySkuQuery : SkuOfNumberQuery
{
    static constexpr std::tuple columns{Column{"supply_sku", &Row::sku}};
    static constexpr const char* tables = "supply_kind";
    static constexpr std::tuple keys{KeyColumn<int>{"kind"}};
};

struct RibbonSkuQuery : SkuOfNumberQuery
{
    static constexpr std::tuple columns{Column{"ribbon_sku", &Row::sku}};
    static constexpr const char* tables = "ribbon_number";
    static constexpr std::tuple keys{KeyColumn<int>{"number"}};
};

struct ModelsQuery : WithoutKey
{
    struct Row
    {
        QString model;
    };
    using Answer = QStringList;
    static constexpr std::tuple columns{Column{"model", &Row::model}};
    static constexpr const char* tables =
        "printer_format GROUP BY model ORDER BY length(model) DESC, model";

    static void add(const Row& row, QStringList& models) { models.append(row.model); }
};

struct SkuListQuery : WithoutKey
{
    struct Row
    {
        QString sku;
        int rgb = -1;
    };
    using Answer = SkuList;

    static void add(const Row& row, SkuList& list)
    {
        list.skus.append(row.sku);
        list.colours.insert(row.sku, row.rgb);
    }
    static qsizetype cost(const SkuList& list) { return 1 + list.skus.size(); }
};

struct SupplyListQuery : SkuListQuery
{
    static constexpr std::tuple columns{Column{"s.sku", &Row::sku}, Column{"c.rgb", &Row::rgb}};
    static constexpr const char* tables =
        "supply s JOIN colour c ON c.id = s.colour_id ORDER BY s.sku";
};

struct RibbonListQuery : SkuListQuery
{
    static constexpr std::tuple columns{Column{"r.sku", &Row::sku},
                                        Column{"coalesce(c.rgb, -1)", &Row::rgb}};
    static constexpr const char* tables =
        "ribbon r LEFT JOIN ribbon_panel p ON p.ribbon_sku = r.sku AND p.panel = 1 "
        "LEFT JOIN colour c ON c.id = p.colour_id ORDER BY r.sku";
};

/// The expressions of a tuple of columns, with commas between them.
template <typename Columns>
QString listed(const Columns& columns)
{
    return std::apply(
        [](const auto&... column) {
            return QStringList{QString::fromLatin1(column.expression)...}.join(
                QStringLiteral(", "));
        },
        columns);
}

template <typename Query>
QString tablesOf()
{
    const QString tables = QString::fromLatin1(Query::tables);
    if constexpr (requires { Query::namedThing; }) {
        return tables + QStringLiteral(" JOIN name n ON n.id = %1.name_id LEFT JOIN translation t "
                                       "ON t.name_id = n.id AND t.language_id = ?")
                            .arg(QLatin1String(Query::namedThing));
    } else {
        return tables;
    }
}

template <typename Query>
QString statementForOne()
{
    const QString statement =
        QStringLiteral("SELECT %1 FROM %2").arg(listed(Query::columns), tablesOf<Query>());
    constexpr std::size_t keyCount = std::tuple_size_v<decltype(Query::keys)>;
    if constexpr (keyCount == 0)
        return statement;
    const QStringList placeholders(keyCount, QStringLiteral("?"));
    return statement + QStringLiteral(" WHERE (%1) = (%2)")
                           .arg(listed(Query::keys), placeholders.join(QStringLiteral(", ")));
}

template <typename Query>
QString statementForAll()
{
    return QStringLiteral("SELECT %1, %2 FROM %3")
        .arg(listed(Query::columns), listed(Query::keys), tablesOf<Query>());
}

template <typename Query>
void readRow(const QSqlQuery& result, typename Query::Answer& answer)
{
    const auto readInto = [&result](typename Query::Row& row) {
        int index = 0;
        const auto readColumn =
            [&]<typename Owner, typename Value>(const Column<Owner, Value>& column) {
                row.*column.member = result.value(index++).template value<Value>();
            };
        std::apply([&](const auto&... column) { (readColumn(column), ...); }, Query::columns);
    };
    if constexpr (std::is_same_v<typename Query::Row, typename Query::Answer>) {
        readInto(answer);
    } else {
        typename Query::Row row{};
        readInto(row);
        Query::add(row, answer);
    }
}

/// The key in a row of the statement for all keys, where it is behind the columns.
template <typename Query>
typename Query::Key keyOf(const QSqlQuery& result)
{
    int index = std::tuple_size_v<decltype(Query::columns)>;
    const auto readKey = [&]<typename Value>(const KeyColumn<Value>&) {
        return result.value(index++).template value<Value>();
    };
    return std::apply([&](const auto&... key) { return typename Query::Key{readKey(key)...}; },
                      Query::keys);
}

template <typename Query>
using CachedQueryOf = CachedQuery<typename Query::Key, typename Query::Answer>;

/// A query that is only run for one key at a time.
template <typename Query>
CachedQueryOf<Query> oneByOne(qsizetype capacity)
{
    static const QString statement = statementForOne<Query>();
    if constexpr (requires { Query::cost; })
        return {statement, readRow<Query>, capacity, Query::cost};
    else
        return {statement, readRow<Query>, capacity};
}

/// A query that is run for all keys when the second one is asked for.
template <typename Query>
CachedQueryOf<Query> allAtOnce()
{
    static const QString forOne = statementForOne<Query>();
    static const QString forAll = statementForAll<Query>();
    return {forOne, readRow<Query>, recordCapacity, {forAll, keyOf<Query>}};
}

} // namespace

Queries::Queries()
    : colours(allAtOnce<ColourQuery>())
    , secondColours(allAtOnce<SecondColourQuery>())
    , materials(allAtOnce<MaterialQuery>())
    , formats(allAtOnce<FormatQuery>())
    , sizes(allAtOnce<SizeQuery>())
    , arrangements(allAtOnce<ArrangementQuery>())
    , backgrounds(oneByOne<BackgroundQuery>(imageCapacity))
    , typeIndices(oneByOne<TypeIndicesQuery>(recordCapacity))
    , ribbons(allAtOnce<RibbonQuery>())
    , panelColours(allAtOnce<PanelColourQuery>())
    // There are many settings, and a printer needs only the few of what it has loaded.
    , settings(oneByOne<SettingQuery>(settingCapacity))
    , supplySkus(oneByOne<SupplySkuQuery>(recordCapacity))
    , ribbonSkus(oneByOne<RibbonSkuQuery>(recordCapacity))
    , models(oneByOne<ModelsQuery>(1))
    , supplyList(oneByOne<SupplyListQuery>(listCapacity))
    , ribbonList(oneByOne<RibbonListQuery>(listCapacity))
{}

void Queries::clearNames()
{
    colours.clear();
    secondColours.clear();
    materials.clear();
    formats.clear();
    panelColours.clear();
}

} // namespace supplydb_queries
