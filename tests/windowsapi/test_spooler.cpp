// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "test_spooler.h"

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QRegularExpression>
#include <QtCore/QThread>

#include <algorithm>
#include <memory>
#include <optional>

#include <winspool.h>

namespace {

using test_spooler::Problem;

constexpr wchar_t environment[] = L"Windows x64";

/// A text for calls that take a pointer to non-const characters.
std::wstring wide(const QString& text)
{
    return text.toStdWString();
}

QString text(const wchar_t* characters)
{
    return characters ? QString::fromWCharArray(characters) : QString();
}

Problem failed(const char* step, DWORD error = GetLastError())
{
    return {QString::fromLatin1(step), error};
}

struct ClosesPrinter
{
    void operator()(HANDLE printer) const { ClosePrinter(printer); }
};
using PrinterHandle = std::unique_ptr<void, ClosesPrinter>;

PrinterHandle open(const QString& name, DWORD access)
{
    PRINTER_DEFAULTSW defaults{};
    defaults.DesiredAccess = access;
    HANDLE handle = nullptr;
    std::wstring wideName = wide(name);
    return PrinterHandle(OpenPrinterW(wideName.data(), &handle, &defaults) ? handle : nullptr);
}

/// The records of a call that sizes and fills, with the memory that they point into.
template <typename Record>
class Records
{
public:
    template <typename Call>
    explicit Records(Call call)
    {
        DWORD needed = 0;
        DWORD count = 0;
        // What is listed may grow between two calls.
        constexpr int attempts = 5;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            if (call(reinterpret_cast<BYTE*>(m_block.data()), static_cast<DWORD>(m_block.size()),
                     &needed, &count)) {
                m_count = count;
                return;
            }
            if (GetLastError() != ERROR_INSUFFICIENT_BUFFER)
                return;
            m_block.resize(static_cast<qsizetype>(needed));
        }
    }

    const Record* begin() const { return reinterpret_cast<const Record*>(m_block.data()); }
    const Record* end() const { return begin() + m_count; }

private:
    QByteArray m_block;
    DWORD m_count = 0;
};

Records<DRIVER_INFO_6W> driverRecords()
{
    return Records<DRIVER_INFO_6W>([](BYTE* block, DWORD size, DWORD* needed, DWORD* count) {
        std::wstring name(environment);
        return EnumPrinterDriversW(nullptr, name.data(), 6, block, size, needed, count);
    });
}

Records<PORT_INFO_2W> portRecords()
{
    return Records<PORT_INFO_2W>([](BYTE* block, DWORD size, DWORD* needed, DWORD* count) {
        return EnumPortsW(nullptr, 2, block, size, needed, count);
    });
}

Problem addDriverLike(const DRIVER_INFO_6W& pattern, const QString& name)
{
    DRIVER_INFO_6W info = pattern;
    std::wstring wideName = wide(name);
    info.pName = wideName.data();
    // It has no monitor of its own, no former names and no package.
    info.pMonitorName = nullptr;
    info.pszzPreviousNames = nullptr;
    if (!AddPrinterDriverExW(nullptr, 6, reinterpret_cast<BYTE*>(&info),
                             APD_COPY_ALL_FILES | APD_COPY_FROM_DIRECTORY))
        return failed("AddPrinterDriverExW");
    return {};
}

/// Wine's spooler takes any file for a driver.
Problem addDriverOfAnyFile(const QString& name)
{
    std::wstring wideName = wide(name);
    std::wstring wideEnvironment(environment);
    std::wstring file(L"localspl.dll");
    DRIVER_INFO_3W info{};
    info.cVersion = 3;
    info.pName = wideName.data();
    info.pEnvironment = wideEnvironment.data();
    info.pDriverPath = file.data();
    info.pDataFile = file.data();
    info.pConfigFile = file.data();
    if (!AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE*>(&info), APD_COPY_NEW_FILES))
        return failed("AddPrinterDriverExW");
    return {};
}

/// Installs the driver that belongs to Windows. Nothing if this system cannot do so, as Wine.
std::optional<Problem> installDriverOfWindows()
{
    using Install = HRESULT(WINAPI*)(LPCWSTR, LPCWSTR, LPCWSTR, LPCWSTR, DWORD);
    const HMODULE spooler = GetModuleHandleW(L"winspool.drv");
    // Two casts, because the compiler warns of one between such different functions.
    const auto install = reinterpret_cast<Install>(
        reinterpret_cast<void*>(GetProcAddress(spooler, "InstallPrinterDriverFromPackageW")));
    if (!install)
        return {};
    const std::wstring name = wide(test_spooler::driverOfWindows());
    const HRESULT result = install(nullptr, nullptr, name.c_str(), environment, 0);
    if (result == E_NOTIMPL)
        return {};
    if (FAILED(result))
        return failed("InstallPrinterDriverFromPackageW", static_cast<DWORD>(result));
    return Problem();
}

Problem callPortMonitor(const wchar_t* request, const QString& port)
{
    const PrinterHandle monitor =
        open(QStringLiteral(",XcvMonitor Local Port"), SERVER_ACCESS_ADMINISTER);
    if (!monitor)
        return failed("OpenPrinterW");
    std::wstring name = wide(port);
    DWORD needed = 0;
    DWORD status = ERROR_SUCCESS;
    if (!XcvDataW(monitor.get(), request, reinterpret_cast<BYTE*>(name.data()),
                  static_cast<DWORD>((name.size() + 1) * sizeof(wchar_t)), nullptr, 0, &needed,
                  &status))
        return failed("XcvDataW");
    return status == ERROR_SUCCESS ? Problem() : failed("XcvDataW", status);
}

} // namespace

QString test_spooler::driverOfWindows()
{
    return QStringLiteral("Generic / Text Only");
}

QString test_spooler::Problem::text() const
{
    return QStringLiteral("%1 failed with error %2").arg(step, QString::number(error));
}

QStringList test_spooler::drivers()
{
    QStringList names;
    for (const DRIVER_INFO_6W& driver : driverRecords())
        names.append(text(driver.pName));
    return names;
}

Problem test_spooler::installDriver(const QString& name)
{
    const auto add = [&]() -> std::optional<Problem> {
        const Records<DRIVER_INFO_6W> all = driverRecords();
        const auto* const found = std::find_if(all.begin(), all.end(), [](const auto& driver) {
            return text(driver.pName) == driverOfWindows();
        });
        if (found == all.end())
            return {};
        return addDriverLike(*found, name);
    };
    if (const std::optional<Problem> problem = add())
        return *problem;
    const std::optional<Problem> installation = installDriverOfWindows();
    if (!installation)
        return addDriverOfAnyFile(name);
    if (!installation->isNone())
        return *installation;
    return add().value_or(failed("EnumPrinterDriversW", ERROR_UNKNOWN_PRINTER_DRIVER));
}

Problem test_spooler::removeDriver(const QString& name)
{
    const QDeadlineTimer limit(10000);
    std::wstring wideName = wide(name);
    std::wstring wideEnvironment(environment);
    while (!DeletePrinterDriverExW(nullptr, wideEnvironment.data(), wideName.data(), 0, 0)) {
        const DWORD error = GetLastError();
        if (error != ERROR_PRINTER_DRIVER_IN_USE || limit.hasExpired())
            return failed("DeletePrinterDriverExW", error);
        QThread::msleep(100);
    }
    return {};
}

QStringList test_spooler::ports()
{
    QStringList names;
    for (const PORT_INFO_2W& port : portRecords())
        names.append(text(port.pPortName));
    return names;
}

Problem test_spooler::addPort(const QString& name)
{
    const Records<PORT_INFO_2W> all = portRecords();
    const bool exists = std::any_of(all.begin(), all.end(), [&](const PORT_INFO_2W& port) {
        return text(port.pPortName).compare(name, Qt::CaseInsensitive) == 0;
    });
    if (exists)
        return failed("addPort", ERROR_BUSY);
    return callPortMonitor(L"AddPort", name);
}

Problem test_spooler::removePort(const QString& name)
{
    return callPortMonitor(L"DeletePort", name);
}

QList<test_spooler::Printer> test_spooler::printers()
{
    const Records<PRINTER_INFO_2W> records(
        [](BYTE* block, DWORD size, DWORD* needed, DWORD* count) {
            return EnumPrintersW(PRINTER_ENUM_LOCAL, nullptr, 2, block, size, needed, count);
        });
    QList<Printer> printers;
    for (const PRINTER_INFO_2W& record : records)
        printers.append(
            {text(record.pPrinterName), text(record.pDriverName), text(record.pPortName)});
    return printers;
}

Problem test_spooler::removePrinter(const QString& name)
{
    const PrinterHandle printer = open(name, PRINTER_ALL_ACCESS);
    if (!printer)
        return failed("OpenPrinterW");
    // A printer with jobs is only removed when they are done.
    SetPrinterW(printer.get(), 0, nullptr, PRINTER_CONTROL_PURGE);
    return DeletePrinter(printer.get()) ? Problem() : failed("DeletePrinter");
}

bool test_spooler::isNameOfTestPrinter(const QString& name)
{
    // fixture::uniqueName() makes the numbers.
    static const QRegularExpression pattern(
        QStringLiteral(R"(\A(Label Printer|Office Printer|Vx [A-Z][a-z]+)\b.* [0-9]+-[0-9]+\z)"));
    return pattern.match(name).hasMatch();
}

bool test_spooler::isNameOfTestDriver(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral(
        R"(\A(Stratamark .+|Vx [A-Z][a-z]+ Driver|Harlow Devices Old|Some Office Printer)\z)"));
    return pattern.match(name).hasMatch();
}

bool test_spooler::isNameOfTestPort(const QString& name)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(\A(USB90[0-9]|192\.0\.2\.[0-9]+)\z)"));
    return pattern.match(name).hasMatch();
}
