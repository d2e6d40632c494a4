// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "value_names.h"

#include "growing_block.h"

#include <span>

#include <winspool.h>

namespace VxKit {

QList<QByteArray> publishedValueNames(const QString& /*printerName*/, HANDLE printer)
{
    std::vector<BYTE> block;
    DWORD count = 0;
    const bool isListed = fillBlock(block, [&](LPBYTE start, DWORD size, DWORD* needed) {
        const DWORD result =
            EnumPrinterDataExA(printer, "PrinterDriverData", start, size, needed, &count);
        // The function returns the error instead of setting it.
        SetLastError(result == ERROR_MORE_DATA ? ERROR_INSUFFICIENT_BUFFER : result);
        return result == ERROR_SUCCESS;
    });
    QList<QByteArray> names;
    if (!isListed)
        return names;
    for (const PRINTER_ENUM_VALUESA& value :
         std::span(reinterpret_cast<const PRINTER_ENUM_VALUESA*>(block.data()), count)) {
        if (value.pValueName)
            names.append(value.pValueName);
    }
    return names;
}

} // namespace VxKit
