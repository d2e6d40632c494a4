// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "forecast_words.h"

#include "command_line.h"
#include "printer_words.h"
#include "tool_text.h"

#include <printer_forecasts.h>
#include <usage_history_reader.h>

#include <algorithm>
#include <cmath>

using Reason = VxKit::RunOutForecast::Reason;

QString forecast_words::duration(double seconds)
{
    constexpr double minute = 60;
    constexpr double hour = 60 * minute;
    constexpr double day = 24 * hour;
    // Up to twice a unit, the smaller one says more.
    if (seconds >= VxKit::RunOutForecast::horizonSeconds)
        return ToolText::tr("over 2 years");
    if (seconds >= 2 * day)
        return ToolText::tr("%1 d").arg(std::lround(seconds / day));
    if (seconds >= 2 * hour)
        return ToolText::tr("%1 h").arg(std::lround(seconds / hour));
    return ToolText::tr("%1 min").arg(std::lround(seconds / minute));
}

std::optional<double> forecast_words::soonestEnd(const VxKit::PrinterReading& reading)
{
    std::optional<double> soonest;
    for (const QList<VxKit::Slot> all = reading.slotList(); const VxKit::Slot slot : all) {
        if (const auto remaining = reading.estimatedSecondsRemaining(slot))
            soonest = std::min(soonest.value_or(remaining->p50), remaining->p50);
    }
    return soonest;
}

Cell forecast_words::soonestEndCell(const VxKit::PrinterReading& reading)
{
    const auto seconds = soonestEnd(reading);
    return seconds ? Cell{duration(*seconds)} : Cell{QStringLiteral("-"), Colour::Faint};
}

QString forecast_words::reason(Reason reason)
{
    switch (reason) {
    case Reason::NothingLoaded:
        return ToolText::tr("none");
    case Reason::NotKnownYet:
        return ToolText::tr("not known yet");
    case Reason::None:
    case Reason::NeverReported:
    case Reason::LevelNotKnown:
        break;
    }
    return printer_words::notKnown();
}

bool forecast_words::learn(VxKit::PrinterForecasts& forecasts, const QString& historyFile,
                           const Output* output)
{
    const VxKit::UsageHistoryReader history(historyFile);
    if (history.isMissing())
        return false;
    if (!history.errorString().isEmpty()) {
        if (output)
            output->complain(
                ToolText::tr("the history cannot be read: %1").arg(history.errorString()));
        return true;
    }
    forecasts.learn(history);
    return true;
}

VxKit::RunOutForecast::WarningSettings forecast_words::warningSettings(const CommandLine& line,
                                                                       std::optional<int> fewLabels)
{
    VxKit::RunOutForecast::WarningSettings settings;
    settings.labels = line.warnBelow ? line.warnBelow : fewLabels;
    if (settings.labels == 0)
        settings.labels.reset();
    settings.shiftEnds = line.shiftEnds;
    return settings;
}

QString forecast_words::concern(VxKit::RunOutForecast::Concern concern)
{
    using Concern = VxKit::RunOutForecast::Concern;
    switch (concern) {
    case Concern::FewLabels:
        return QStringLiteral("fewLabels");
    case Concern::JobTooLong:
        return QStringLiteral("jobTooLong");
    case Concern::EndsInShift:
        return QStringLiteral("endsInShift");
    }
    return {};
}
