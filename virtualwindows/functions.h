// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QLatin1String>

#include <array>

namespace virtualwindows {

/// Every function that is counted and recorded and can be planned to fail. The enumerators and the
/// names below are both generated from this table. "RegistryKey" stands for reading the registry.
#define VIRTUALWINDOWS_FUNCTIONS(ENTRY)                                                            \
    ENTRY(AddPrinterW)                                                                             \
    ENTRY(CloseHandle)                                                                             \
    ENTRY(ClosePrinter)                                                                            \
    ENTRY(CloseServiceHandle)                                                                      \
    ENTRY(CreateEventW)                                                                            \
    ENTRY(DeletePrinter)                                                                           \
    ENTRY(EndDocPrinter)                                                                           \
    ENTRY(EndPagePrinter)                                                                          \
    ENTRY(EnumJobsW)                                                                               \
    ENTRY(EnumPrintersW)                                                                           \
    ENTRY(FindClosePrinterChangeNotification)                                                      \
    ENTRY(FindFirstPrinterChangeNotification)                                                      \
    ENTRY(FindNextPrinterChangeNotification)                                                       \
    ENTRY(FreePrinterNotifyInfo)                                                                   \
    ENTRY(GetDefaultPrinterW)                                                                      \
    ENTRY(GetJobW)                                                                                 \
    ENTRY(GetPrinterDataA)                                                                         \
    ENTRY(GetPrinterDataW)                                                                         \
    ENTRY(GetPrinterW)                                                                             \
    ENTRY(OpenPrinterA)                                                                            \
    ENTRY(OpenPrinterW)                                                                            \
    ENTRY(OpenSCManagerW)                                                                          \
    ENTRY(OpenServiceW)                                                                            \
    ENTRY(QueryServiceStatus)                                                                      \
    ENTRY(RegistryKey)                                                                             \
    ENTRY(ResetEvent)                                                                              \
    ENTRY(SetDefaultPrinterW)                                                                      \
    ENTRY(SetEvent)                                                                                \
    ENTRY(SetJobW)                                                                                 \
    ENTRY(SetPrinterDataA)                                                                         \
    ENTRY(SetPrinterDataW)                                                                         \
    ENTRY(SetPrinterW)                                                                             \
    ENTRY(StartDocPrinterW)                                                                        \
    ENTRY(StartPagePrinter)                                                                        \
    ENTRY(WaitForMultipleObjects)                                                                  \
    ENTRY(WaitForSingleObject)                                                                     \
    ENTRY(WritePrinter)

#define VIRTUALWINDOWS_ENUMERATOR(function) function,
enum class Function
{
    VIRTUALWINDOWS_FUNCTIONS(VIRTUALWINDOWS_ENUMERATOR)
};
#undef VIRTUALWINDOWS_ENUMERATOR

#define VIRTUALWINDOWS_NAME(function) QLatin1String(#function),
inline constexpr std::array functionNames{VIRTUALWINDOWS_FUNCTIONS(VIRTUALWINDOWS_NAME)};
#undef VIRTUALWINDOWS_NAME

constexpr std::size_t indexOf(Function function)
{
    return static_cast<std::size_t>(function);
}

constexpr QLatin1String nameOf(Function function)
{
    return functionNames[indexOf(function)];
}

} // namespace virtualwindows
