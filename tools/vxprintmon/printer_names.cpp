// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_names.h"

#include "printer_words.h"
#include "tool_text.h"

#include <printer_readings.h>
#include <printer_types.h>
#include <windows_printer_info.h>

#include <algorithm>
#include <stdexcept>
#include <vector>

using VxKit::PrinterReadings;
using VXPrinting::PrinterType;

namespace {

/// Longer names are not compared: the spooler has none.
constexpr qsizetype longestName = 256;

/// How many letters have to be inserted, removed, replaced or swapped with their neighbours to make
/// one text of the other.
qsizetype distance(const QString& left, const QString& right)
{
    std::vector<qsizetype> beforeLast(static_cast<std::size_t>(right.size()) + 1);
    std::vector<qsizetype> last(beforeLast.size());
    std::vector<qsizetype> now(beforeLast.size());
    for (std::size_t i = 0; i < last.size(); ++i)
        last[i] = static_cast<qsizetype>(i);
    for (qsizetype row = 1; row <= left.size(); ++row) {
        now[0] = row;
        for (qsizetype column = 1; column <= right.size(); ++column) {
            const auto place = static_cast<std::size_t>(column);
            const bool isSame = left.at(row - 1) == right.at(column - 1);
            now[place] =
                std::min({last[place] + 1, now[place - 1] + 1, last[place - 1] + (isSame ? 0 : 1)});
            if (row > 1 && column > 1 && left.at(row - 1) == right.at(column - 2) &&
                left.at(row - 2) == right.at(column - 1))
                now[place] = std::min(now[place], beforeLast[place - 2] + 1);
        }
        std::swap(beforeLast, last);
        std::swap(last, now);
    }
    return last.back();
}

Failure noSuchPrinter(const QString& typed, const QStringList& names)
{
    const QString similar = printer_names::quotedNearest(typed, names);
    if (!similar.isEmpty())
        return Failure(
            ToolText::tr("there is no printer \"%1\"; did you mean %2?").arg(typed, similar));
    return Failure(ToolText::tr(R"(there is no printer "%1"; "vxprintmon list" shows all printers)")
                       .arg(typed));
}

QStringList namesOf(const QList<AvailablePrinters>& printers)
{
    QStringList names;
    for (const AvailablePrinters& printer : printers)
        names.append(printer.printerName);
    return names;
}

/// Empty when the library refuses the whole list because of one printer. That one need not be the
/// one that is named.
QStringList listedNames()
{
    try {
        return namesOf(WindowsPrinterInfo::getAvailablePrinters());
    } catch (const std::logic_error&) {
        return {};
    }
}

/// Why a printer has no reading, although the spooler lists it, or that it does not.
Failure withoutReading(const QString& typed)
{
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    const QStringList names = namesOf(printers);
    const std::optional<QString> name = printer_names::meant(typed, names);
    if (!name)
        return noSuchPrinter(typed, names);
    const QString driver = printers.at(names.indexOf(*name)).driverName;
    if (WindowsPrinterInfo::printerType(driver) == PrinterType::Unknown)
        return Failure(ToolText::tr("\"%1\" has no status: its driver \"%2\" is not one of the "
                                    "label printers' maker")
                           .arg(*name, driver));
    return Failure(ToolText::tr("\"%1\" has no status: its driver \"%2\" is for a model that is "
                                "not supported")
                       .arg(*name, driver));
}

} // namespace

std::optional<QString> printer_names::meant(const QString& typed, const QStringList& names)
{
    if (names.contains(typed))
        return typed;
    std::optional<QString> same;
    for (const QString& name : names) {
        if (name.compare(typed, Qt::CaseInsensitive) != 0)
            continue;
        if (same)
            return std::nullopt;
        same = name;
    }
    return same;
}

QStringList printer_names::nearest(const QString& typed, const QStringList& names)
{
    constexpr qsizetype most = 3;
    const QString wanted = typed.toCaseFolded();
    if (wanted.isEmpty() || wanted.size() > longestName)
        return {};
    // One letter in three may differ.
    const qsizetype farthest = std::max<qsizetype>(1, wanted.size() / 3);
    std::vector<std::pair<qsizetype, QString>> similar;
    for (const QString& name : names) {
        const QString folded = name.toCaseFolded();
        if (folded.startsWith(wanted)) {
            similar.emplace_back(0, name);
            continue;
        }
        if (std::abs(folded.size() - wanted.size()) > farthest)
            continue;
        const qsizetype found = distance(wanted, folded);
        if (found <= farthest)
            similar.emplace_back(found, name);
    }
    std::ranges::sort(similar);
    QStringList result;
    for (std::size_t i = 0; i < similar.size() && i < most; ++i)
        result.append(similar[i].second);
    return result;
}

QString printer_names::quotedNearest(const QString& typed, const QStringList& names)
{
    QStringList quoted;
    for (const QStringList similar = nearest(typed, names); const QString& name : similar)
        quoted.append(QStringLiteral("\"%1\"").arg(name));
    return quoted.join(QStringLiteral(", "));
}

QString printer_names::asListed(const QString& typed)
{
    return meant(typed, listedNames()).value_or(typed);
}

std::optional<Failure> printer_names::missing(const QString& typed)
{
    const QStringList names = listedNames();
    return names.isEmpty() || meant(typed, names) ? std::nullopt
                                                  : std::optional(noSuchPrinter(typed, names));
}

QString printer_names::withReading(const QString& typed, const PrinterReadings& readings)
{
    if (const std::optional<QString> name = meant(typed, readings.names()))
        return *name;
    throw withoutReading(typed);
}

QString printer_names::withRecord(const QString& typed, const PrinterReadings& readings)
{
    const QString name = withReading(typed, readings);
    if (!printer_words::hasRecord(readings.reading(name)))
        throw Failure(ToolText::tr("\"%1\" has no status: it has been offline since it was found; "
                                   "switch it on and check its cable")
                          .arg(name));
    return name;
}
