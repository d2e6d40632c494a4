// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "run_out_forecast.h"

#include "local_clock.h"
#include "printer_level.h"
#include "slot_usage.h"

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>

namespace VxKit {

namespace {

constexpr quint32 stateMark = 0x56785246; // "VxRF"
constexpr quint32 stateVersion = 1;
constexpr qint32 mostPrinters = 100000;

/// A level is well above a mark, so that a warning may be given again when it falls.
constexpr double wellAbove = 1.1;
constexpr int labelsWellAbove = 2;

double seconds(const QDateTime& time)
{
    return double(time.toMSecsSinceEpoch()) / 1000.0;
}

bool isWellAbove(int labels, int mark)
{
    return labels >= mark * wellAbove + labelsWellAbove;
}

} // namespace

class RunOutForecast::Private
{
public:
    struct Place
    {
        SlotUsage usage;
        std::optional<int> job;
    };
    struct Printer
    {
        std::array<std::unique_ptr<Place>, 3> places;
    };

    explicit Private(const QTimeZone& zone)
        : clock(zone)
    {}

    Place* find(const QString& key, Slot slot) const
    {
        const auto printer = printers.find(key);
        return printer == printers.cend() ? nullptr : printer->second.places.at(int(slot)).get();
    }
    Place& ensure(const QString& key, Slot slot)
    {
        auto& place = printers[key].places.at(int(slot));
        if (!place)
            place = std::make_unique<Place>();
        return *place;
    }
    std::optional<QDateTime> endOfShift(const QDateTime& now) const;

    LocalClock clock;
    std::unordered_map<QString, Printer> printers;
    CommonWeek everybody;
    WarningSettings settings;
};

/// The end of the shift that now is in, or of the next one.
std::optional<QDateTime> RunOutForecast::Private::endOfShift(const QDateTime& now) const
{
    std::optional<QDateTime> next;
    const QDate today = now.toTimeZone(clock.zone()).date();
    for (const QDate& day : {today, today.addDays(1)}) {
        for (const QTime& time : settings.shiftEnds) {
            const QDateTime end(day, time, clock.zone());
            if (end.isValid() && end > now && (!next || end < *next))
                next = end;
        }
    }
    return next;
}

// Has the kit's DLL contain the constant, to which hosts may refer.
// NOLINTNEXTLINE(readability-redundant-declaration)
constexpr double RunOutForecast::horizonSeconds;

RunOutForecast::RunOutForecast(const QTimeZone& zone)
    : d(std::make_unique<Private>(zone))
{}

RunOutForecast::~RunOutForecast() = default;

RunOutForecast::Sample RunOutForecast::sampleOf(const Level& level, const QDateTime& time)
{
    Sample sample;
    sample.time = time;
    sample.state = level.state;
    sample.identifier = level.identifier;
    sample.meters = level.meters;
    sample.ratio = level.ratio;
    sample.resolution = level.coarse ? coarseStep : 0.0;
    if (level.labelPitchMeters && level.labelsAcross)
        sample.labelMeters = *level.labelPitchMeters / *level.labelsAcross;
    return sample;
}

void RunOutForecast::addSample(const QString& key, Slot slot, const Sample& sample)
{
    if (!sample.time.isValid())
        return;
    d->ensure(key, slot).usage.add(sample, seconds(sample.time), d->clock, d->everybody);
}

std::optional<RunOutForecast::Forecast>
RunOutForecast::forecast(const QString& key, Slot slot, const QDateTime& now, Reason* reason) const
{
    static const SlotUsage none;
    const Private::Place* place = d->find(key, slot);
    return (place ? place->usage : none).forecast(seconds(now), d->clock, d->everybody, reason);
}

void RunOutForecast::setWarningSettings(const WarningSettings& settings)
{
    d->settings = settings;
}

RunOutForecast::WarningSettings RunOutForecast::warningSettings() const
{
    return d->settings;
}

void RunOutForecast::setJob(const QString& key, Slot slot, std::optional<int> labels)
{
    Private::Place& place = d->ensure(key, slot);
    if (place.job == labels)
        return;
    place.job = labels;
    place.usage.allowWarning(Concern::JobTooLong);
}

QList<RunOutForecast::Warning> RunOutForecast::takeWarnings(const QString& key, Slot slot,
                                                            const QDateTime& now)
{
    QList<Warning> warnings;
    Private::Place* place = d->find(key, slot);
    if (!place || !place->usage.isLevelKnown())
        return warnings;

    SlotUsage& usage = place->usage;
    Warning warning;
    warning.key = key;
    warning.slot = slot;
    warning.labelsLeft = usage.left().labelsLeft;
    warning.forecast = usage.forecast(seconds(now), d->clock, d->everybody, nullptr);
    const auto tell = [&](Concern concern, std::optional<int> wanted, const QDateTime& shiftEnd) {
        warning.concern = concern;
        warning.labelsWanted = wanted;
        warning.shiftEnd = shiftEnd;
        warnings.append(warning);
    };

    const std::pair<Concern, std::optional<int>> marks[] = {
        {Concern::FewLabels, d->settings.labels},
        {Concern::JobTooLong, place->job},
    };
    for (const auto& [concern, mark] : marks) {
        if (mark && warning.labelsLeft &&
            usage.takeWarning(concern, *warning.labelsLeft < *mark,
                              isWellAbove(*warning.labelsLeft, *mark)))
            tell(concern, mark, {});
    }

    const auto shiftEnd = d->endOfShift(now);
    if (shiftEnd && warning.forecast) {
        const double untilThen = seconds(*shiftEnd) - seconds(now);
        const double left = warning.forecast->secondsLeft.p50;
        if (usage.takeWarning(Concern::EndsInShift, left<untilThen, left> untilThen * wellAbove))
            tell(Concern::EndsInShift, std::nullopt, *shiftEnd);
    }
    return warnings;
}

void RunOutForecast::remove(const QString& key)
{
    const auto printer = d->printers.find(key);
    if (printer == d->printers.end())
        return;
    for (const auto& place : printer->second.places) {
        if (place && place->usage.isFollowedForAWeek())
            d->everybody.removeSlot();
    }
    d->printers.erase(printer);
}

QByteArray RunOutForecast::state() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << stateMark << stateVersion << qint32(d->printers.size());
    for (const auto& [key, printer] : d->printers) {
        stream << key;
        for (const auto& place : printer.places) {
            stream << bool(place);
            if (place)
                place->usage.save(stream);
        }
    }
    d->everybody.save(stream);
    return bytes;
}

bool RunOutForecast::restore(const QByteArray& state)
{
    QDataStream stream(state);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 mark = 0;
    quint32 version = 0;
    qint32 count = 0;
    stream >> mark >> version >> count;
    if (mark != stateMark || version != stateVersion || count < 0 || count > mostPrinters)
        return false;

    std::unordered_map<QString, Private::Printer> printers;
    CommonWeek everybody;
    for (qint32 number = 0; number < count; ++number) {
        QString key;
        stream >> key;
        Private::Printer printer;
        for (auto& place : printer.places) {
            bool isThere = false;
            stream >> isThere;
            if (!isThere)
                continue;
            place = std::make_unique<Private::Place>();
            if (!place->usage.load(stream))
                return false;
            if (place->usage.isFollowedForAWeek())
                everybody.addSlot();
        }
        if (stream.status() != QDataStream::Ok)
            return false;
        printers[key] = std::move(printer);
    }
    if (!everybody.load(stream) || !stream.atEnd())
        return false;

    // Jobs are the host's, not what was learned.
    for (auto& [key, old] : d->printers) {
        for (std::size_t slot = 0; slot < old.places.size(); ++slot) {
            if (!old.places[slot] || !old.places[slot]->job)
                continue;
            auto& place = printers[key].places[slot];
            if (!place)
                place = std::make_unique<Private::Place>();
            place->job = old.places[slot]->job;
        }
    }
    d->printers = std::move(printers);
    d->everybody = everybody;
    return true;
}

} // namespace VxKit
