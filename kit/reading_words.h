// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The enumerators of readings and events as other programs see them, in JSON, in the event log and
// in the model's roles.
#pragma once

#include "printer_reading.h"
#include "status_info.h"

#include <algorithm>
#include <array>
#include <optional>

namespace VxKit {

template <typename Value>
struct Word
{
    Value value;
    const char* text;
};

inline constexpr std::array watchingWords{
    Word<PrinterReading::Watching>{PrinterReading::Watching::Watched, "watched"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::OfflineSinceDiscovery,
                                   "offlineSinceDiscovery"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::NetworkPrinter, "networkPrinter"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::NotManaged, "notManaged"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::NotDiscovered, "notDiscovered"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::Replaced, "replaced"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::Gone, "gone"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::AgentOffline, "agentOffline"},
    Word<PrinterReading::Watching>{PrinterReading::Watching::NotConnected, "notConnected"},
};
inline constexpr std::array allSeverities{Severity::Ok, Severity::Information, Severity::Warning,
                                          Severity::Error};
inline constexpr std::array stateWords{
    Word<Level::State>{Level::State::NotKnown, "notKnown"},
    Word<Level::State>{Level::State::Empty, "empty"},
    Word<Level::State>{Level::State::Loaded, "loaded"},
    Word<Level::State>{Level::State::NotInCatalogue, "notInCatalogue"},
};

/// The word for a value; the first one for a value that is not in the table.
template <typename Words, typename Value>
QString wordOf(const Words& words, Value value)
{
    const auto found = std::ranges::find(words, value, &Word<Value>::value);
    return QLatin1String(found == words.end() ? words.front().text : found->text);
}

/// The value of a word; empty for a word that is not in the table.
template <typename Value, std::size_t size>
std::optional<Value> valueOf(const std::array<Word<Value>, size>& words, const QString& text)
{
    const auto found = std::ranges::find_if(
        words, [&](const Word<Value>& word) { return text == QLatin1String(word.text); });
    return found == words.end() ? std::nullopt : std::optional(found->value);
}

} // namespace VxKit
