// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Adds a driver and then a printer to the system's spooler, and publishes values as the driver
// does: texts (StatusCode=1) and numbers (Mileage=#76200). It needs no DLLs but the system's, so it
// also starts where those of the package cannot be found.
//
//     add_printer NAME DRIVER PORT [VALUE=TEXT | VALUE=#NUMBER]...
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>

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

bool publish(HANDLE printer, const std::wstring& assignment)
{
    const std::size_t sign = assignment.find(L'=');
    std::wstring name = assignment.substr(0, sign);
    std::wstring text = sign == std::wstring::npos ? std::wstring() : assignment.substr(sign + 1);
    DWORD number = 0;
    DWORD type = REG_SZ;
    auto* data = reinterpret_cast<BYTE*>(text.data());
    auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    if (text.starts_with(L'#')) {
        number = static_cast<DWORD>(std::wcstoul(text.c_str() + 1, nullptr, 10));
        type = REG_DWORD;
        data = reinterpret_cast<BYTE*>(&number);
        size = sizeof(number);
    }
    const DWORD error = SetPrinterDataW(printer, name.data(), type, data, size);
    SetLastError(error);
    return error == ERROR_SUCCESS;
}

bool publishAll(wchar_t* printer, int count, wchar_t** assignments)
{
    HANDLE handle = nullptr;
    PRINTER_DEFAULTSW rights{nullptr, nullptr, PRINTER_ACCESS_ADMINISTER};
    if (!OpenPrinterW(printer, &handle, &rights))
        return false;
    bool isPublished = true;
    for (int number = 0; number < count && isPublished; ++number)
        isPublished = publish(handle, assignments[number]);
    const DWORD error = GetLastError();
    ClosePrinter(handle);
    SetLastError(error);
    return isPublished;
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
    if (argc < 4) {
        std::fputs("add_printer: expected NAME DRIVER PORT [VALUE=TEXT | VALUE=#NUMBER]...\n",
                   stderr);
        return 2;
    }
    if (!addDriver(argv[2]))
        return fail(L"driver", argv[2]);
    if (!addPrinter(argv[1], argv[2], argv[3]))
        return fail(L"printer", argv[1]);
    if (!publishAll(argv[1], argc - 4, argv + 4))
        return fail(L"value of", argv[1]);
    return 0;
}
