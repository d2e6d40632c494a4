// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Adds a driver and then a printer to the system's spooler. It needs no DLLs but the system's, so
// it also starts where those of the package cannot be found.
//
//     add_printer NAME DRIVER PORT
#include <cstdio>
#include <cwchar>

#include <windows.h>
#include <winspool.h>

namespace {

wchar_t environment[] = L"Windows x64";
wchar_t driverFile[] = L"localspl.dll";
wchar_t processor[] = L"WinPrint";
wchar_t datatype[] = L"RAW";

bool addDriver(wchar_t* name)
{
    DRIVER_INFO_3W info{};
    info.cVersion = 3;
    info.pName = name;
    info.pEnvironment = environment;
    info.pDriverPath = driverFile;
    info.pDataFile = driverFile;
    info.pConfigFile = driverFile;
    return AddPrinterDriverExW(nullptr, 3, reinterpret_cast<LPBYTE>(&info), APD_COPY_NEW_FILES);
}

bool addPrinter(wchar_t* name, wchar_t* driver, wchar_t* port)
{
    PRINTER_INFO_2W info{};
    info.pPrinterName = name;
    info.pDriverName = driver;
    info.pPortName = port;
    info.pPrintProcessor = processor;
    info.pDatatype = datatype;
    info.Attributes = PRINTER_ATTRIBUTE_LOCAL;
    const HANDLE printer = AddPrinterW(nullptr, 2, reinterpret_cast<LPBYTE>(&info));
    return printer && ClosePrinter(printer);
}

int fail(const wchar_t* what, const wchar_t* name)
{
    std::fwprintf(stderr, L"add_printer: the %ls \"%ls\" cannot be added: error %lu\n", what, name,
                  GetLastError());
    return 1;
}

} // namespace

int wmain(int argc, wchar_t* argv[])
{
    if (argc != 4) {
        std::fputs("add_printer: expected NAME DRIVER PORT\n", stderr);
        return 2;
    }
    if (!addDriver(argv[2]))
        return fail(L"driver", argv[2]);
    if (!addPrinter(argv[1], argv[2], argv[3]))
        return fail(L"printer", argv[1]);
    return 0;
}
