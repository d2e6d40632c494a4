// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_record.h"

#include "growing_block.h"

namespace VxKit {

PrinterRecord::PrinterRecord(const PrinterOwner& printer)
    : m_isValid(fillBlock(m_block, [&](LPBYTE block, DWORD size, DWORD* needed) {
        return GetPrinterW(printer.get(), 2, block, size, needed);
    }))
{}

} // namespace VxKit
