// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "preflight_check.h"

#include "printer_level.h"
#include "status_info.h"

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace VxKit {

namespace StatusCodes = VXPrinting::StatusCodes;
using Kind = PreflightFinding::Kind;
using Reason = PreflightFinding::Reason;
using State = Level::State;

namespace {

/// Codes of states that are no faults, but in which a printer does not print until somebody has
/// done something or it has finished.
constexpr int paused = 19;
constexpr int firmwareIsUpdated = 21;

/// For how many labels something lasts: at least and at most.
struct Labels
{
    int least = 0;
    int most = 0;
};
/// What a slot's content lasts for.
struct Stock
{
    Reason reason = Reason::None; ///< why it is not known, or not known exactly
    std::optional<Labels> labels{};
};

Stock stockOf(Reason reason, std::optional<int> least, std::optional<int> most)
{
    if (!least || !most)
        return {Reason::LevelNotKnown};
    return {reason, Labels{*least, *most}};
}

/// What was found about one slot.
struct SlotAnswer
{
    std::optional<PreflightFinding> finding{}; ///< what stands in the way there
    std::optional<Labels> labels{};            ///< none unless what the job needs is loaded
};

/// Between which lengths the true one is, in metres; a level of which the length is known. Whether
/// a printer that reports whole percents rounds up, down or to the nearest is not known.
std::pair<double, double> lengthsOf(const Level& level)
{
    if (!level.coarse || !level.totalMeters || !level.ratio)
        return {*level.meters, *level.meters};
    return {*level.totalMeters * std::max(*level.ratio - coarseStep, 0.0),
            *level.totalMeters * std::min(*level.ratio + coarseStep, 1.0)};
}

Stock stockOfSupply(const Level& supply)
{
    if (!supply.labelPitchMeters || !supply.labelsAcross)
        return {Reason::NoLabelLength};
    if (!supply.meters)
        return {Reason::LevelNotKnown};
    // The reading's own number, so that the two never differ by a label.
    if (!supply.coarse)
        return stockOf(Reason::None, supply.labels, supply.labels);
    const auto [shortest, longest] = lengthsOf(supply);
    const double pitch = *supply.labelPitchMeters;
    const int across = *supply.labelsAcross;
    return stockOf(Reason::WholePercents, labelsOn(shortest, pitch, across),
                   labelsOn(longest, pitch, across));
}

/// A ribbon moves with the supply that it prints on, so a row of labels takes as much of it. The
/// catalogue does not say how much a row takes of a ribbon with several panels.
Stock stockOfRibbon(const Level& ribbon, const Level& supply)
{
    if (!supply.labelPitchMeters || !supply.labelsAcross)
        return {Reason::NoLabelLength};
    if (!ribbon.meters)
        return {Reason::LevelNotKnown};
    const auto [shortest, longest] = lengthsOf(ribbon);
    const double pitch = *supply.labelPitchMeters;
    const int across = *supply.labelsAcross;
    const auto panels = static_cast<double>(std::max<qsizetype>(ribbon.colors.size(), 1));
    return stockOf(panels > 1 ? Reason::SeveralPanels : Reason::WholePercents,
                   labelsOn(shortest, pitch * panels, across), labelsOn(longest, pitch, across));
}

PreflightFinding findingOf(Slot slot, const Level& level, const QString& wantedSku)
{
    PreflightFinding finding;
    finding.slot = slot;
    finding.loadedSku = level.sku;
    finding.loadedName = level.name;
    finding.loadedIdentifier = level.identifier;
    finding.wantedSku = wantedSku;
    return finding;
}

SlotAnswer unknown(PreflightFinding finding, Reason reason)
{
    finding.kind = Kind::NotKnown;
    finding.reason = reason;
    return {finding};
}

SlotAnswer wrong(PreflightFinding finding, Kind kind)
{
    finding.kind = kind;
    return {finding};
}

/// Why it is not known what is in a slot.
Reason whyNotIdentified(const Level& level)
{
    if (level.state == State::NotKnown)
        return Reason::SlotNotKnown;
    return level.state == State::NotInCatalogue ? Reason::NotInCatalogue : Reason::None;
}

/// Whether the right content of a slot lasts for the job.
SlotAnswer lasts(PreflightFinding finding, const Stock& stock, int wanted)
{
    if (!stock.labels)
        return wanted > 0 ? unknown(finding, stock.reason) : SlotAnswer();
    const Labels labels = *stock.labels;
    if (wanted <= labels.least)
        return {.labels = labels};
    finding.labelsAtLeast = labels.least;
    finding.labelsAtMost = labels.most;
    if (wanted > labels.most) {
        finding.kind = Kind::NotEnough;
        finding.shortBy = wanted - labels.most;
    } else {
        finding.reason = stock.reason;
    }
    return {finding, labels};
}

/// A place of a printer for a ribbon.
struct Place
{
    Slot slot = Slot::Ribbon1;
    Level level{};
    bool isTaken = false;
};

QList<Place> placesFor(const PrinterReading& reading)
{
    QList<Place> places;
    for (const Slot slot : {Slot::Ribbon1, Slot::Ribbon2}) {
        if (reading.hasSlot(slot))
            places.append({slot, reading.level(slot)});
    }
    return places;
}

/// The checks of one job, which collect what they find.
class Check
{
public:
    Check(PreflightResult& result, const PrinterReading& reading, const RibbonSuits& ribbonSuits)
        : m_result(result)
        , m_reading(reading)
        , m_ribbonSuits(ribbonSuits)
        , m_supply(reading.level(Slot::Supply))
    {}

    void run()
    {
        if (m_reading.isNull()) {
            m_result.findings = {{.reason = Reason::NoSuchPrinter}};
            return;
        }
        checkPrinter();
        if (isReported()) {
            add(checkSupply());
            if (m_result.ribbonSkus.isEmpty())
                add(anyRibbon());
            else
                checkNamedRibbons();
            if (m_isEverythingCounted) {
                m_result.labelsAtLeast = m_atLeast;
                m_result.labelsAtMost = m_atMost;
            }
        }
        std::ranges::stable_sort(m_result.findings, {}, &PreflightFinding::kind);
    }

private:
    void checkPrinter()
    {
        const int code = m_reading.statusCode();
        const bool isFault = statusSeverity(code) == Severity::Error ||
                             code == StatusCodes::disconnected || code == StatusCodes::offline ||
                             code == paused || code == firmwareIsUpdated;
        if (!isFault && m_reading.isOnline())
            return;
        PreflightFinding finding{.kind = Kind::PrinterNotReady};
        finding.statusCode = isFault ? code : StatusCodes::offline;
        m_result.findings.append(finding);
    }

    /// Whether the printer has reported what is loaded. Enters why not.
    bool isReported()
    {
        if (m_reading.presence() == PrinterReading::Presence::Gone)
            return false;
        Reason reason = Reason::None;
        if (m_reading.watching() != PrinterReading::Watching::Watched)
            reason = Reason::NotWatched;
        else if (!m_reading.lastReport().isValid())
            reason = Reason::NeverReported;
        else if (m_reading.statusCode() == StatusCodes::unknown)
            reason = Reason::StatusNotKnown;
        if (reason != Reason::None)
            m_result.findings.append({.reason = reason});
        return reason == Reason::None || reason == Reason::StatusNotKnown;
    }

    SlotAnswer checkSupply()
    {
        const PreflightFinding finding = findingOf(Slot::Supply, m_supply, m_result.supplySku);
        if (const Reason reason = whyNotIdentified(m_supply); reason != Reason::None)
            return unknown(finding, reason);
        if (m_supply.state != State::Loaded || m_supply.sku != m_result.supplySku)
            return wrong(finding, Kind::WrongSupply);
        m_isSupplyRight = true;
        return lasts(finding, stockOfSupply(m_supply), m_result.labels);
    }

    void checkNamedRibbons()
    {
        QList<Place> places = placesFor(m_reading);
        QStringList missing;
        for (const QString& sku : std::as_const(m_result.ribbonSkus)) {
            const auto place = std::ranges::find_if(places, [&](const Place& each) {
                return !each.isTaken && each.level.state == State::Loaded && each.level.sku == sku;
            });
            if (place == places.end()) {
                missing.append(sku);
                continue;
            }
            place->isTaken = true;
            add(checkRibbon(*place, sku));
        }
        // A place of which it is not known what it holds may hold the ribbon that is missing.
        std::ranges::stable_sort(places, {}, [](const Place& place) {
            return whyNotIdentified(place.level) == Reason::None;
        });
        for (const QString& sku : std::as_const(missing)) {
            const auto place = std::ranges::find(places, false, &Place::isTaken);
            if (place == places.end()) {
                PreflightFinding finding;
                finding.wantedSku = sku;
                add(wrong(finding, Kind::WrongRibbon));
                continue;
            }
            place->isTaken = true;
            add(checkRibbon(*place, sku));
        }
    }

    /// The answer of the ribbon that is best for the job.
    SlotAnswer anyRibbon()
    {
        const auto rank = [](const SlotAnswer& answer) {
            // Of the kinds, the later one is less in the way.
            constexpr int nothing = static_cast<int>(Kind::NotKnown) + 1;
            return std::tuple(answer.finding ? static_cast<int>(answer.finding->kind) : nothing,
                              answer.labels ? answer.labels->least : -1,
                              answer.finding && !answer.finding->loadedSku.isEmpty());
        };
        std::optional<SlotAnswer> best;
        for (const QList<Place> places = placesFor(m_reading); const Place& place : places) {
            const SlotAnswer answer = checkRibbon(place, {});
            if (!best || rank(answer) > rank(*best))
                best = answer;
        }
        return *best;
    }

    /// Without a name, any ribbon is wanted.
    SlotAnswer checkRibbon(const Place& place, const QString& wantedSku)
    {
        const Level& level = place.level;
        PreflightFinding finding = findingOf(place.slot, level, wantedSku);
        if (const Reason reason = whyNotIdentified(level); reason != Reason::None)
            return unknown(finding, reason);
        if (level.state != State::Loaded)
            return wrong(finding, Kind::WrongRibbon);
        finding.suitsSupply = m_ribbonSuits(level.sku, m_result.supplySku);
        const bool isOther = !wantedSku.isEmpty() && level.sku != wantedSku;
        if (isOther || finding.suitsSupply == false)
            return wrong(finding, Kind::WrongRibbon);
        // How long the labels are is known of the supply that is loaded. For another one there is
        // an answer already.
        if (!m_isSupplyRight)
            return {};
        if (!finding.suitsSupply)
            return unknown(finding, Reason::SuitsNotKnown);
        const Stock stock = stockOfRibbon(level, m_supply);
        // The supply has said so.
        if (stock.reason == Reason::NoLabelLength)
            return {};
        return lasts(finding, stock, m_result.labels);
    }

    void add(const SlotAnswer& answer)
    {
        if (answer.finding)
            m_result.findings.append(*answer.finding);
        if (!answer.labels) {
            m_isEverythingCounted = false;
            return;
        }
        m_atLeast = std::min(m_atLeast, answer.labels->least);
        m_atMost = std::min(m_atMost, answer.labels->most);
    }

    PreflightResult& m_result;
    const PrinterReading& m_reading;
    const RibbonSuits& m_ribbonSuits;
    const Level m_supply;
    bool m_isSupplyRight = false;
    bool m_isEverythingCounted = true;
    int m_atLeast = std::numeric_limits<int>::max();
    int m_atMost = std::numeric_limits<int>::max();
};

} // namespace

void checkJob(PreflightResult& result, const PrinterReading& reading,
              const RibbonSuits& ribbonSuits)
{
    Check(result, reading, ribbonSuits).run();
}

} // namespace VxKit
