// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "spooler_block.h"

#include <algorithm>
#include <span>

#include <winspool.h>

/// The stage at which a `SpoolerRecord` could not be read.
enum class SpoolerRecordFailure
{
    None,
    Sizing,     ///< the spooler did not say how many bytes it needs
    Allocation, ///< there was no memory for that many bytes
    Filling,    ///< the spooler did not fill the block
};

/// A record that the spooler writes into a block of the size that it asks for, with all texts that
/// the record points to: PRINTER_INFO_1W with level 1, PRINTER_INFO_2W with level 2.
///
/// It takes two calls of the same function: the first, without a block, asks for the size.
template <typename Record, DWORD level>
class SpoolerRecord
{
public:
    /// The record of an open printer.
    static SpoolerRecord ofPrinter(HANDLE printer)
    {
        const auto query = [printer](BYTE* block, DWORD size, DWORD* needed) {
            return GetPrinterW(printer, level, block, size, needed);
        };
        SpoolerRecord record;
        DWORD needed = 0;
        if (!query(nullptr, 0, &needed)) {
            record.m_error = GetLastError();
            if (record.m_error != ERROR_INSUFFICIENT_BUFFER) {
                record.m_failure = SpoolerRecordFailure::Sizing;
                return record;
            }
        }
        // The record is read after a failed filling too, so all of it must be there.
        record.fill(query, std::max<DWORD>(needed, sizeof(Record)));
        return record;
    }

    /// The records of all printers of these kinds (PRINTER_ENUM_...), in the spooler's order.
    /// Whether the sizing call failed is not checked: if it did, the filling fails too.
    static SpoolerRecord ofPrinters(DWORD kinds)
    {
        SpoolerRecord records;
        const auto query = [kinds, &records](BYTE* block, DWORD size, DWORD* needed) {
            return EnumPrintersW(kinds, nullptr, level, block, size, needed, &records.m_count);
        };
        DWORD needed = 0;
        query(nullptr, 0, &needed);
        records.fill(query, needed);
        return records;
    }

    SpoolerRecordFailure failure() const { return m_failure; }
    /// Windows' error code where sizing or filling failed.
    DWORD error() const { return m_error; }

    /// Null when there is no block, that is, when sizing or allocation failed. After a failed
    /// filling, a record of zeros and of what the spooler wrote before it failed.
    const Record* get() const { return m_block.template as<const Record>(); }
    /// What `ofPrinters` read; empty when it failed.
    std::span<const Record> all() const
    {
        if (m_failure != SpoolerRecordFailure::None)
            return {};
        return {get(), m_count};
    }

    /// Passes the ownership of the block to the caller, who releases it with free.
    Record* release() { return m_block.template release<Record>(); }

private:
    SpoolerRecord() = default;

    template <typename Query>
    void fill(const Query& query, DWORD bytes)
    {
        m_block = SpoolerBlock(bytes);
        DWORD needed = 0;
        if (m_block.isNull()) {
            m_failure = SpoolerRecordFailure::Allocation;
        } else if (!query(m_block.bytes(), m_block.size(), &needed)) {
            m_error = GetLastError();
            m_failure = SpoolerRecordFailure::Filling;
        }
    }

    SpoolerBlock m_block;
    DWORD m_count = 0;
    DWORD m_error = ERROR_SUCCESS;
    SpoolerRecordFailure m_failure = SpoolerRecordFailure::None;
};
