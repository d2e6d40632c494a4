// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "spooler_owners.h"

#include <vector>

namespace VxKit {

/// The level-2 record of an open printer.
class PrinterRecord
{
public:
    /// Reads the record. When that fails, the last error says why.
    explicit PrinterRecord(const PrinterOwner& printer);

    bool isValid() const { return m_isValid; }
    PRINTER_INFO_2W* get() { return reinterpret_cast<PRINTER_INFO_2W*>(m_block.data()); }
    const PRINTER_INFO_2W* operator->() const
    {
        return reinterpret_cast<const PRINTER_INFO_2W*>(m_block.data());
    }

private:
    std::vector<BYTE> m_block;
    bool m_isValid;
};

} // namespace VxKit
