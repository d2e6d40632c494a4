// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_enumeration.h"

namespace {

constexpr DWORD kinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
constexpr DWORD level = 2;

} // namespace

PrinterEnumeration::PrinterEnumeration()
    : PrinterEnumeration(bytesNeeded())
{}

PrinterEnumeration::PrinterEnumeration(DWORD bytes)
    : m_block(bytes)
{
    DWORD needed = 0;
    if (m_block.isNull() ||
        !EnumPrintersW(kinds, nullptr, level, m_block.bytes(), m_block.size(), &needed, &m_count))
        m_count = 0;
}

DWORD PrinterEnumeration::bytesNeeded()
{
    DWORD needed = 0;
    DWORD count = 0;
    EnumPrintersW(kinds, nullptr, level, nullptr, 0, &needed, &count);
    return needed;
}

const char* missingText(const PRINTER_INFO_2W& printer)
{
    if (!printer.pPrinterName)
        return "name";
    if (!printer.pPortName)
        return "port";
    return printer.pDriverName ? nullptr : "driver";
}
