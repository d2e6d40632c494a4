// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The cost of the record of everything that is loaded in a printer.
#include "benchmark_support.h"
#include "sqlite_statement.h"
#include "vx_ipc_supplyd_controller.h"

#include <vxlocalelanguages.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaProperty>

#include <benchmark/benchmark.h>

#include <chrono>
#include <vector>

namespace {

using benchmark_support::Samples;
using Clock = std::chrono::steady_clock;

constexpr double warmLimit = 1.0;
constexpr int recordsPerBlock = 200;
constexpr int blocks = 100;
constexpr int repetitions = 5;

const QString printerName = QStringLiteral("Stratamark CedarMax 4 (warehouse)");
const QString printerModel = QStringLiteral("CedarMax");

QString databasePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/roll.db");
}

/// What is loaded in the printer.
struct Load
{
    QString supplyId;
    QStringList ribbonIds;
    QString supplySku;
    QStringList ribbonSkus;
};

/// A supply with as many properties as possible, and two ribbons that print on it.
Load readLoad()
{
    const SqliteFile file(databasePath());
    SqliteStatement statement(file, R"(
        SELECT printf('%08X%06d%06X', 500, k.kind, 167), n.number || '', m.number || '',
            s.sku, n.ribbon_sku, m.ribbon_sku
        FROM supply s
        JOIN supply_kind k ON k.supply_sku = s.sku
        JOIN print_setting t ON t.supply_sku = s.sku AND t.panel = 1
        JOIN ribbon_number n ON n.ribbon_sku = t.ribbon_sku
        JOIN print_setting u ON u.supply_sku = s.sku AND u.panel = 1
        JOIN ribbon_number m ON m.ribbon_sku = u.ribbon_sku AND m.ribbon_sku <> n.ribbon_sku
        ORDER BY s.background_id IS NULL, s.label_length IS NULL
        LIMIT 1)");
    if (!statement.step())
        return {};
    return {statement.text(0),
            {statement.text(1), statement.text(2)},
            statement.text(3),
            {statement.text(4), statement.text(5)}};
}

/// The floor: one statement, prepared once, that returns the whole record in one row.
class JoinedStatement
{
public:
    explicit JoinedStatement(Load load)
        : m_load(std::move(load))
        , m_file(databasePath())
        , m_statement(m_file, sql)
    {}

    SupplyInformation record()
    {
        m_statement.bind(1, m_load.supplySku);
        m_statement.bind(2, m_load.ribbonSkus.at(0));
        m_statement.bind(3, m_load.ribbonSkus.at(1));
        m_statement.bind(4, m_languageId);
        m_statement.bind(5, printerModel);

        SupplyInformation record;
        record.supplyId = m_load.supplyId;
        record.supplySku = m_load.supplySku;
        record.ribbonSkus = m_load.ribbonSkus;
        if (m_statement.step())
            read(record);
        m_statement.reset();
        return record;
    }

private:
    void read(SupplyInformation& record)
    {
        int column = 0;
        const auto real = [&] {
            return static_cast<float>(m_statement.real(column++));
        };
        const auto integer = [&] {
            return m_statement.integer(column++);
        };
        const auto text = [&] {
            return m_statement.text(column++);
        };

        record.secColorWidth = real();
        record.secColorRGB = integer();
        record.secColorName = text();
        record.secColorNameEn = text();
        record.supplyLength = real();
        record.material = integer();
        record.materialName = text();
        record.format = integer();
        record.formatName = text();
        record.formatType = text();
        record.colorRGB = integer();
        record.colorName = text();
        record.colorNameEn = text();
        record.supplyWidth = real();
        record.isLandscape = integer();
        record.backgroundImage = m_statement.bytes(column++);
        record.separatorWidth = real();
        record.nonContinuousLength = real();
        record.typeIndex = integer();
        record.multiUpCount = integer();
        record.multiUpGapSize = real();
        record.ribbon1Panels = integer();
        record.ribbon2Panels = integer();
        record.ribbon1Width = real();
        record.ribbon2Width = real();
        record.ribbon1Length = real();
        record.ribbon2Length = real();
        record.ribbonTypes = {text(), text()};
        record.ribbonColorNames = {text(), text()};
        record.ribbonColorRGBs = {integer(), integer()};
        record.ribbonHeats = {integer(), integer()};
        record.ribbonHeatOffsets = {integer(), integer()};
        record.ribbonMaxSpeeds = {integer(), integer()};
        record.ribbonTensions = {integer(), integer()};
    }

    static constexpr const char* sql = R"(
        SELECT coalesce(s.second_colour_width, -1), coalesce(d.rgb, -1),
            coalesce(dt.text, dn.english), dn.english, s.length,
            m.id, coalesce(mt.text, mn.english), f.id, coalesce(ft.text, fn.english), f.type,
            c.rgb, coalesce(ct.text, cn.english), cn.english, s.width, s.is_landscape, b.image,
            coalesce(s.separator_width, -1), coalesce(s.label_length, -1),
            coalesce(o.position, -1), s.multi_up_count, coalesce(s.multi_up_gap, -1),
            (SELECT count(*) FROM ribbon_panel WHERE ribbon_sku = ?2),
            (SELECT count(*) FROM ribbon_panel WHERE ribbon_sku = ?3),
            r1.width, r2.width, r1.length, r2.length, r1.type, r2.type,
            coalesce(t1.text, n1.english), coalesce(t2.text, n2.english), c1.rgb, c2.rgb,
            s1.heat, s2.heat, s1.heat_offset, s2.heat_offset, s1.max_speed, s2.max_speed,
            s1.tension, s2.tension
        FROM supply s
        JOIN material m ON m.id = s.material_id
        JOIN name mn ON mn.id = m.name_id
        LEFT JOIN translation mt ON mt.name_id = mn.id AND mt.language_id = ?4
        JOIN format f ON f.id = s.format_id
        JOIN name fn ON fn.id = f.name_id
        LEFT JOIN translation ft ON ft.name_id = fn.id AND ft.language_id = ?4
        JOIN colour c ON c.id = s.colour_id
        JOIN name cn ON cn.id = c.name_id
        LEFT JOIN translation ct ON ct.name_id = cn.id AND ct.language_id = ?4
        LEFT JOIN colour d ON d.id = s.second_colour_id
        LEFT JOIN name dn ON dn.id = d.name_id
        LEFT JOIN translation dt ON dt.name_id = dn.id AND dt.language_id = ?4
        LEFT JOIN background b ON b.id = s.background_id
        LEFT JOIN printer_format o ON o.model = ?5 AND o.format_id = s.format_id
        JOIN ribbon r1 ON r1.sku = ?2
        JOIN ribbon_panel p1 ON p1.ribbon_sku = r1.sku AND p1.panel = 1
        JOIN colour c1 ON c1.id = p1.colour_id
        JOIN name n1 ON n1.id = c1.name_id
        LEFT JOIN translation t1 ON t1.name_id = n1.id AND t1.language_id = ?4
        JOIN print_setting s1 ON s1.ribbon_sku = r1.sku AND s1.panel = 1 AND s1.supply_sku = s.sku
        JOIN ribbon r2 ON r2.sku = ?3
        JOIN ribbon_panel p2 ON p2.ribbon_sku = r2.sku AND p2.panel = 1
        JOIN colour c2 ON c2.id = p2.colour_id
        JOIN name n2 ON n2.id = c2.name_id
        LEFT JOIN translation t2 ON t2.name_id = n2.id AND t2.language_id = ?4
        JOIN print_setting s2 ON s2.ribbon_sku = r2.sku AND s2.panel = 1 AND s2.supply_sku = s.sku
        WHERE s.sku = ?1)";

    Load m_load;
    int m_languageId = VXLocaleLanguages().getCurrentLanguageId();
    SqliteFile m_file;
    SqliteStatement m_statement;
};

bool isSame(const SupplyInformation& left, const SupplyInformation& right)
{
    const QMetaObject& type = SupplyInformation::staticMetaObject;
    for (int i = 0; i < type.propertyCount(); ++i) {
        if (type.property(i).readOnGadget(&left) != type.property(i).readOnGadget(&right)) {
            std::fprintf(stderr, "the records differ in %s\n", type.property(i).name());
            return false;
        }
    }
    return true;
}

// The measurement.

/// Microseconds per record.
Samples allSamples;

template <typename Make>
double microsecondsEach(Make make)
{
    const Clock::time_point start = Clock::now();
    for (int i = 0; i < recordsPerBlock; ++i) {
        const SupplyInformation record = make();
        benchmark::DoNotOptimize(record.typeIndex);
    }
    const std::chrono::duration<double, std::micro> time = Clock::now() - start;
    return time.count() / recordsPerBlock;
}

void supplyRecord(benchmark::State& state)
{
    const Load load = readLoad();
    if (load.supplySku.isEmpty()) {
        state.SkipWithError("the database has nothing to load");
        return;
    }
    VXIPCSUPPLYDController endpoint;
    endpoint.addNewPrinter(printerName);
    endpoint.setSupplyId(load.supplyId, printerName);
    endpoint.setRibbonIds(load.ribbonIds, printerName);
    JoinedStatement floor(load);
    if (!isSame(endpoint.supplyInformation(printerName), floor.record())) {
        state.SkipWithError("the library and the floor have different records");
        return;
    }

    Samples samples;
    const auto takeLibrary = [&] {
        samples.library.push_back(
            microsecondsEach([&] { return endpoint.supplyInformation(printerName); }));
        state.SetIterationTime(samples.library.back() * 1e-6);
    };
    const auto takeFloor = [&] {
        samples.floor.push_back(microsecondsEach([&] { return floor.record(); }));
    };
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state) {
        turns.take(takeLibrary, takeFloor);
    }
    state.counters["library_us"] = benchmark_support::median(samples.library);
    state.counters["floor_us"] = benchmark_support::median(samples.floor);
    state.counters["ratio"] = samples.ratio();
    allSamples.append(samples);
}

BENCHMARK(supplyRecord)
    ->Iterations(blocks)
    ->Repetitions(repetitions)
    ->DisplayAggregatesOnly(true)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char* argv[])
{
    benchmark_support::useTranslatedNames();
    const QCoreApplication application(argc, argv);
    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        limits.atMost("supplyInformation of a loaded printer, warm, over one joined statement",
                      allSamples.ratio(), warmLimit, "");
    });
}
