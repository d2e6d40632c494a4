// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "log_line.h"

/// The log lines of WindowsPrinterInfo.
namespace log_lines {

inline constexpr char infoFile[] = "windows_printer_info";
inline constexpr char getPrinterInfo2[] =
    "static PRINTER_INFO_2* WindowsPrinterInfo::getPrinterInfo2(HANDLE)";
inline constexpr LogLine printerInfoSizing{infoFile, 224, getPrinterInfo2, nullptr};
inline constexpr LogLine printerInfoMemory{infoFile, 233, getPrinterInfo2, nullptr};
inline constexpr LogLine printerInfoReading{infoFile, 244, getPrinterInfo2, nullptr};

} // namespace log_lines
