// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The cost of a query about a supply or a ribbon by its SKU, cached and not cached.
#include "benchmark_support.h"
#include "sqlite_statement.h"
#include "vx_ipc_supplyd_controller.h"

#include <vxlocalelanguages.h>

#include <QtCore/QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace {

using benchmark_support::Samples;
using Clock = std::chrono::steady_clock;

constexpr double warmLimit = 1.0;
constexpr double coldLimit = 1.5;
constexpr int warmRounds = 20;
constexpr int warmBlocks = 200;
constexpr int coldBlocks = 200;
constexpr int repetitions = 5;

const QString anyPrinter;

QString databasePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/roll.db");
}

int languageId()
{
    static const int id = VXLocaleLanguages().getCurrentLanguageId();
    return id;
}

// The queries: the call of the endpoint, the equivalent statement, and the keys.

struct ColourName
{
    static constexpr const char* name = "supplyColorName";
    static constexpr const char* sql = R"(
        SELECT coalesce(t.text, n.english)
        FROM supply s
        JOIN colour c ON c.id = s.colour_id
        JOIN name n ON n.id = c.name_id
        LEFT JOIN translation t ON t.name_id = n.id AND t.language_id = ?2
        WHERE s.sku = ?1)";
    static constexpr const char* keysSql = "SELECT sku FROM supply";

    struct Key
    {
        QString sku;
    };
    static Key key(const SqliteStatement& row) { return {row.text(0)}; }
    static QString ask(VXIPCSUPPLYDController& endpoint, const Key& key)
    {
        return endpoint.supplyColorName(key.sku, anyPrinter);
    }
    static void bind(SqliteStatement& statement, const Key& key)
    {
        statement.bind(1, key.sku);
        statement.bind(2, languageId());
    }
    static QString read(const SqliteStatement& row) { return row.text(0); }
};

struct Width
{
    static constexpr const char* name = "supplyWidth";
    static constexpr const char* sql = "SELECT width FROM supply WHERE sku = ?1";
    static constexpr const char* keysSql = ColourName::keysSql;

    using Key = ColourName::Key;
    static Key key(const SqliteStatement& row) { return ColourName::key(row); }
    static double ask(VXIPCSUPPLYDController& endpoint, const Key& key)
    {
        return endpoint.supplyWidth(key.sku, anyPrinter);
    }
    static void bind(SqliteStatement& statement, const Key& key) { statement.bind(1, key.sku); }
    static double read(const SqliteStatement& row) { return row.real(0); }
};

struct RibbonHeat
{
    static constexpr const char* name = "supplyRibbonHeat";
    static constexpr const char* sql =
        "SELECT heat FROM print_setting WHERE ribbon_sku = ?1 AND panel = ?2 AND supply_sku = ?3";
    // One setting for each panel of a ribbon, as many as a host queries in a session.
    static constexpr const char* keysSql =
        "SELECT ribbon_sku, panel, min(supply_sku) FROM print_setting GROUP BY ribbon_sku, panel";

    struct Key
    {
        QString ribbon;
        int panel;
        QString supply;
    };
    static Key key(const SqliteStatement& row)
    {
        return {row.text(0), row.integer(1), row.text(2)};
    }
    static int ask(VXIPCSUPPLYDController& endpoint, const Key& key)
    {
        return endpoint.supplyRibbonHeat(key.ribbon, key.panel, key.supply);
    }
    static void bind(SqliteStatement& statement, const Key& key)
    {
        statement.bind(1, key.ribbon);
        statement.bind(2, key.panel);
        statement.bind(3, key.supply);
    }
    static int read(const SqliteStatement& row) { return row.integer(0); }
};

template <typename Query>
std::vector<typename Query::Key> readKeys()
{
    const SqliteFile file(databasePath());
    SqliteStatement statement(file, Query::keysSql);
    std::vector<typename Query::Key> keys;
    while (statement.step())
        keys.push_back(Query::key(statement));
    return keys;
}

/// The floor: the statement, which is prepared at the first query, when the file is opened, and
/// then reused.
template <typename Query>
class Floor
{
public:
    auto ask(const typename Query::Key& key)
    {
        if (!m_statement) {
            m_file.emplace(databasePath());
            m_statement.emplace(*m_file, Query::sql);
        }
        Query::bind(*m_statement, key);
        m_statement->step();
        auto answer = Query::read(*m_statement);
        m_statement->reset();
        return answer;
    }

private:
    std::optional<SqliteFile> m_file;
    std::optional<SqliteStatement> m_statement;
};

/// The library, with the same interface.
template <typename Query>
class Library
{
public:
    auto ask(const typename Query::Key& key) { return Query::ask(m_endpoint, key); }

private:
    VXIPCSUPPLYDController m_endpoint;
};

// The measurement.

enum Temperature
{
    Warm,      ///< everything has been queried before
    ColdFirst, ///< the first query, which opens the file
    ColdAll,   ///< every key once, the first of which opens the file
    TemperatureCount,
};

/// Nanoseconds per query.
template <typename Query>
Samples samplesOf[TemperatureCount];

template <typename Side, typename Keys>
double nanosecondsEach(Side& side, const Keys& keys, std::size_t count, int rounds)
{
    const Clock::time_point start = Clock::now();
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < count; ++i)
            benchmark::DoNotOptimize(side.ask(keys[i]));
    }
    const std::chrono::duration<double, std::nano> time = Clock::now() - start;
    return time.count() / static_cast<double>(count) / rounds;
}

template <typename Query>
bool answersAlike(const std::vector<typename Query::Key>& keys)
{
    Library<Query> library;
    Floor<Query> floor;
    return !keys.empty() && std::all_of(keys.begin(), keys.end(), [&](const auto& key) {
        return library.ask(key) == floor.ask(key);
    });
}

template <typename Query>
void measure(benchmark::State& state, Temperature temperature)
{
    const std::vector<typename Query::Key> keys = readKeys<Query>();
    if (!answersAlike<Query>(keys)) {
        state.SkipWithError("the library and the floor answer differently");
        return;
    }
    const std::size_t count = temperature == ColdFirst ? 1 : keys.size();
    const int rounds = temperature == Warm ? warmRounds : 1;

    auto library = std::make_unique<Library<Query>>();
    auto floor = std::make_unique<Floor<Query>>();
    nanosecondsEach(*library, keys, keys.size(), 1);
    nanosecondsEach(*floor, keys, keys.size(), 1);

    Samples samples;
    const auto takeLibrary = [&] {
        if (temperature != Warm)
            library = std::make_unique<Library<Query>>();
        samples.library.push_back(nanosecondsEach(*library, keys, count, rounds));
        state.SetIterationTime(samples.library.back() * 1e-9);
    };
    const auto takeFloor = [&] {
        if (temperature != Warm)
            floor = std::make_unique<Floor<Query>>();
        samples.floor.push_back(nanosecondsEach(*floor, keys, count, rounds));
    };
    benchmark_support::Turns turns;
    for ([[maybe_unused]] auto iteration : state) {
        turns.take(takeLibrary, takeFloor);
    }
    state.counters["library_ns"] = benchmark_support::median(samples.library);
    state.counters["floor_ns"] = benchmark_support::median(samples.floor);
    state.counters["ratio"] = samples.ratio();

    Samples& all = samplesOf<Query>[temperature];
    all.append(samples);
}

struct Setting
{
    Temperature temperature;
    const char* name;
    int blocks;
    double limit;
};
constexpr Setting settings[]{
    {Warm, "warm", warmBlocks, warmLimit},
    {ColdFirst, "cold, first query", coldBlocks, coldLimit},
    {ColdAll, "cold, every SKU once", coldBlocks, coldLimit},
};

template <typename Query>
void registerQuery()
{
    for (const Setting& setting : settings) {
        const std::string name = std::string(Query::name) + "/" + setting.name;
        benchmark::RegisterBenchmark(name.c_str(), &measure<Query>, setting.temperature)
            ->Iterations(setting.blocks)
            ->Repetitions(repetitions)
            ->DisplayAggregatesOnly(true)
            ->UseManualTime()
            ->Unit(benchmark::kNanosecond);
    }
}

template <typename Query>
void enterLimits(benchmark_support::Limits& limits)
{
    for (const Setting& setting : settings) {
        limits.atMost(std::string(Query::name) + ", " + setting.name +
                          ", over a prepared statement",
                      samplesOf<Query>[setting.temperature].ratio(), setting.limit, "");
    }
}

} // namespace

int main(int argc, char* argv[])
{
    benchmark_support::useTranslatedNames();
    const QCoreApplication application(argc, argv);
    registerQuery<ColourName>();
    registerQuery<Width>();
    registerQuery<RibbonHeat>();
    return benchmark_support::run(argc, argv, [](benchmark_support::Limits& limits) {
        enterLimits<ColourName>(limits);
        enterLimits<Width>(limits);
        enterLimits<RibbonHeat>(limits);
    });
}
