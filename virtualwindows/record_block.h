// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "internals.h"

#include <cstring>
#include <span>
#include <type_traits>

namespace virtualwindows {

/// A block with records, followed by the texts that they point to.
class RecordBlock
{
public:
    RecordBlock(LPBYTE start, std::size_t sizeOfRecords)
        : m_start(start)
        , m_used(sizeOfRecords)
    {}

    /// Appends the texts as one. Without a block, only their size is counted.
    template <typename... Texts>
    LPWSTR add(const Texts&... texts)
    {
        const LPBYTE place = m_start ? m_start + m_used : nullptr;
        (append(texts), ...);
        append(QStringView(u"\0", 1));
        return reinterpret_cast<LPWSTR>(place);
    }
    /// The same for a text that may be null.
    LPWSTR addIfAny(const QString& text) { return text.isNull() ? nullptr : add(text); }

    DWORD used() const { return static_cast<DWORD>(m_used); }

private:
    void append(QStringView text)
    {
        const auto size = static_cast<std::size_t>(text.size()) * sizeof(WCHAR);
        if (m_start && size)
            std::memcpy(m_start + m_used, text.utf16(), size);
        m_used += size;
    }

    LPBYTE m_start;
    std::size_t m_used;
};

/// Sizes or fills a block with one record for each source: a printer, a print provider or a job.
/// `describe` makes the record of a source, with its texts in the block.
template <typename Source, typename Describe>
BOOL fillRecords(std::span<const Source* const> sources, LPBYTE start, DWORD size, LPDWORD needed,
                 Describe describe)
{
    using Record = std::invoke_result_t<Describe, const Source&, RecordBlock&>;
    const std::size_t sizeOfRecords = sources.size() * sizeof(Record);
    RecordBlock sizing(nullptr, sizeOfRecords);
    for (const Source* source : sources)
        describe(*source, sizing);
    *needed = sizing.used();
    if (size < *needed)
        return failWith(ERROR_INSUFFICIENT_BUFFER, FALSE);

    RecordBlock block(start, sizeOfRecords);
    LPBYTE place = start;
    for (const Source* source : sources) {
        const Record record = describe(*source, block);
        std::memcpy(place, &record, sizeof record);
        place += sizeof record;
    }
    return TRUE;
}

} // namespace virtualwindows
