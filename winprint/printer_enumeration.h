// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "spooler_block.h"

#include <span>

#include <winspool.h>

/// The printers that the spooler lists at the moment at which this object is made: local ones and
/// those of other machines that it is connected to, in the spooler's order. None when it cannot be
/// asked.
class PrinterEnumeration
{
public:
    PrinterEnumeration();

    std::span<const PRINTER_INFO_2W> printers() const
    {
        return {m_block.as<const PRINTER_INFO_2W>(), m_count};
    }

private:
    explicit PrinterEnumeration(DWORD bytes);
    static DWORD bytesNeeded();

    SpoolerBlock m_block;
    DWORD m_count = 0;
};

/// Which text a listed printer lacks that each has to have: "name", "port" or "driver"; null when
/// it has them all. A listing with one that lacks something is no listing.
const char* missingText(const PRINTER_INFO_2W& printer);
