// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_listing.h"

#include "growing_block.h"
#include "printer_record.h"

#include "printer_types.h"
#include "windows_printer_info.h"

#include <QtCore/QSet>

#include <span>
#include <utility>

namespace VxKit {

namespace {

bool isNamed(QStringView text, LPCWSTR name)
{
    return name && text == QStringView(reinterpret_cast<const char16_t*>(name));
}

bool isSameText(const QString& text, LPCWSTR other)
{
    return other ? isNamed(text, other) : text.isEmpty();
}

bool isSame(const SpoolerEntry& printer, PRINTER_INFO_2W& record)
{
    return isNamed(printer.name, record.pPrinterName) && printer.attributes == record.Attributes &&
           printer.isOnline == !WindowsPrinterInfo::isPrinterOffline(&record) &&
           isSameText(printer.driver, record.pDriverName) &&
           isSameText(printer.port, record.pPortName);
}

bool isSame(const SpoolerEntry& printer, const PRINTER_INFO_4W& record)
{
    return isNamed(printer.name, record.pPrinterName) && printer.attributes == record.Attributes;
}

/// The records at the start of a block, without those that have no name.
template <typename Record>
bool matches(const QList<SpoolerEntry>& printers, std::span<Record> records)
{
    auto printer = printers.begin();
    for (Record& record : records) {
        if (!record.pPrinterName)
            continue;
        if (printer == printers.end() || !isSame(*printer, record))
            return false;
        ++printer;
    }
    return printer == printers.end();
}

QHash<QString, const SpoolerEntry*> byName(const QList<SpoolerEntry>& printers)
{
    QHash<QString, const SpoolerEntry*> index;
    index.reserve(printers.size());
    for (const SpoolerEntry& printer : printers)
        index.insert(printer.name, &printer);
    return index;
}

/// The printers of one list whose names the other list does not have.
QList<const SpoolerEntry*> missing(const QList<SpoolerEntry>& printers,
                                   const QHash<QString, const SpoolerEntry*>& others)
{
    QList<const SpoolerEntry*> found;
    for (const SpoolerEntry& printer : printers) {
        if (!others.contains(printer.name))
            found.append(&printer);
    }
    return found;
}

bool mayBeOne(const SpoolerEntry& before, const SpoolerEntry& after)
{
    return before.driver == after.driver && before.port == after.port;
}

/// The only printer of the list that may be the same as this one; null if there are several or
/// none.
const SpoolerEntry* onlyMatch(const SpoolerEntry& printer, const QList<const SpoolerEntry*>& others)
{
    const SpoolerEntry* match = nullptr;
    for (const SpoolerEntry* other : others) {
        if (!mayBeOne(printer, *other))
            continue;
        if (match)
            return nullptr;
        match = other;
    }
    return match;
}

/// Whether the user may administer the printer; no value when that cannot be told.
std::optional<bool> tryRights(const QString& name, PrinterOwner& printer)
{
    printer = openPrinter(name, PRINTER_ALL_ACCESS);
    if (printer)
        return true;
    if (GetLastError() == ERROR_ACCESS_DENIED)
        return false;
    return std::nullopt;
}

} // namespace

bool PrinterListing::fetch(DWORD level)
{
    const bool isFetched = fillBlock(m_block, [&](LPBYTE block, DWORD size, DWORD* needed) {
        return EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, level, block,
                             size, needed, &m_count);
    });
    if (!isFetched)
        m_error = GetLastError();
    return isFetched;
}

PrinterListing::Outcome PrinterListing::listNames()
{
    if (!fetch(4))
        return Outcome::Failed;
    return matches(m_printers,
                   std::span(reinterpret_cast<PRINTER_INFO_4W*>(m_block.data()), m_count))
               ? Outcome::Same
               : Outcome::Different;
}

PrinterListing::Outcome PrinterListing::list()
{
    if (!fetch(2))
        return Outcome::Failed;
    const std::span records(reinterpret_cast<PRINTER_INFO_2W*>(m_block.data()), m_count);
    if (matches(m_printers, records))
        return Outcome::Same;

    const QHash<QString, const SpoolerEntry*> known = byName(m_printers);
    m_fetched.clear();
    m_fetched.reserve(static_cast<qsizetype>(records.size()));
    for (PRINTER_INFO_2W& record : records) {
        if (!record.pPrinterName)
            continue;
        SpoolerEntry printer;
        printer.name = textFrom(record.pPrinterName);
        printer.driver = textFrom(record.pDriverName);
        printer.port = textFrom(record.pPortName);
        printer.attributes = record.Attributes;
        printer.isOnline = !WindowsPrinterInfo::isPrinterOffline(&record);
        printer.isSupported =
            VXPrinting::isSupported(WindowsPrinterInfo::printerType(printer.driver));
        if (const SpoolerEntry* const before = known.value(printer.name))
            printer.isAdministrable = before->isAdministrable;
        m_fetched.append(printer);
    }
    return Outcome::Different;
}

bool PrinterListing::hasRenameCandidates() const
{
    return !missing(m_printers, byName(m_fetched)).isEmpty() &&
           !missing(m_fetched, byName(m_printers)).isEmpty();
}

ListingChanges PrinterListing::differences(bool mayBeRenamed) const
{
    const QHash<QString, const SpoolerEntry*> before = byName(m_printers);
    const QList<const SpoolerEntry*> gone = missing(m_printers, byName(m_fetched));
    const QList<const SpoolerEntry*> fresh = missing(m_fetched, before);

    ListingChanges changes;
    changes.any = true;
    QSet<const SpoolerEntry*> paired;
    for (const SpoolerEntry* printer : gone) {
        const SpoolerEntry* const match = mayBeRenamed ? onlyMatch(*printer, fresh) : nullptr;
        if (!match || onlyMatch(*match, gone) != printer) {
            changes.gone.append(printer->name);
            continue;
        }
        paired.insert(match);
        changes.renamed.append({printer->name, match->name});
        if (printer->isOnline != match->isOnline)
            changes.online.append({match->name, match->isOnline});
    }
    for (const SpoolerEntry* printer : fresh) {
        if (!paired.contains(printer))
            changes.added.append(printer->name);
    }
    for (const SpoolerEntry& printer : m_fetched) {
        const SpoolerEntry* const same = before.value(printer.name);
        if (same && same->isOnline != printer.isOnline)
            changes.online.append({printer.name, printer.isOnline});
    }
    return changes;
}

void PrinterListing::takeOver()
{
    m_printers = std::exchange(m_fetched, {});
}

ListingChanges PrinterListing::inspect(int count, bool alsoOnline)
{
    ListingChanges changes;
    const qsizetype size = m_printers.size();
    for (qsizetype seen = 0; seen < size && count > 0; ++seen) {
        SpoolerEntry& printer = m_printers[m_nextToInspect++ % size];
        if (!printer.isSupported)
            continue;
        --count;
        PrinterOwner handle;
        const std::optional<bool> rights = tryRights(printer.name, handle);
        if (rights && printer.isAdministrable && *rights != *printer.isAdministrable)
            changes.administrable.append({printer.name, *rights});
        if (rights)
            printer.isAdministrable = rights;
        if (!alsoOnline)
            continue;
        if (!handle)
            handle = openPrinter(printer.name);
        if (!handle)
            continue;
        PrinterRecord record(handle);
        const bool isOnline =
            record.isValid() && !WindowsPrinterInfo::isPrinterOffline(record.get());
        if (record.isValid() && isOnline != printer.isOnline) {
            printer.isOnline = isOnline;
            changes.online.append({printer.name, isOnline});
        }
    }
    m_nextToInspect = size ? m_nextToInspect % size : 0;
    changes.any = !changes.administrable.isEmpty() || !changes.online.isEmpty();
    return changes;
}

QStringList PrinterListing::names() const
{
    QStringList names;
    names.reserve(m_printers.size());
    for (const SpoolerEntry& printer : m_printers)
        names.append(printer.name);
    return names;
}

std::optional<QString> queryDefaultPrinter()
{
    std::vector<WCHAR> name(260);
    auto size = static_cast<DWORD>(name.size());
    BOOL isKnown = GetDefaultPrinterW(name.data(), &size);
    if (!isKnown && GetLastError() == ERROR_INSUFFICIENT_BUFFER && size > name.size()) {
        name.resize(size);
        isKnown = GetDefaultPrinterW(name.data(), &size);
    }
    if (isKnown)
        return textFrom(name.data());
    return GetLastError() == ERROR_FILE_NOT_FOUND ? std::optional(QString()) : std::nullopt;
}

} // namespace VxKit
