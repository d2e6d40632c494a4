// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the tests of the Windows calls need besides these calls, on Windows and on the virtual
// Windows.
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <memory>
#include <type_traits>

#include <windows.h>
#include <winspool.h>
#include <winsvc.h>

/// Behaviours that Wine lacks; tests that need them are skipped there. Windows and the virtual
/// Windows have all of them.
enum class Behaviour
{
    AccessRights,        ///< a handle allows only the access that it was opened with
    ChangeNotifications, ///< changes of printers can be waited for
    DeletedPrinters,     ///< calls with a handle of a deleted printer fail accordingly
    DistinctWaitObjects, ///< waiting for all objects of a list refuses duplicates
    EmptyPrinterNames,   ///< an empty name is refused as a name, not as a parameter
    JobCounts,           ///< a printer's record counts its jobs
    JobQueues,           ///< the jobs of a queue can be listed, and an unknown one is refused
    LevelsFirst,         ///< EnumPrintersW writes nothing when the level is unknown
    MissingWaitLists,    ///< waiting without a list is refused
    PageCalls,           ///< pages belong to a document
    PrintProviders,      ///< EnumPrintersW lists print providers
    PrinterCommands,     ///< SetPrinterW pauses and resumes
    PrinterRecordChecks, ///< AddPrinterW refuses a record without a driver or a port
    PseudoHandleChecks,  ///< waiting for several objects refuses pseudo handles
    UniquePrinterNames,  ///< AddPrinterW refuses a name that is taken
};

/// Skips the test function when the system lacks the behaviour.
#define NEEDS_BEHAVIOUR(behaviour)                                                                 \
    do {                                                                                           \
        if (!fixture::has(behaviour))                                                              \
            QSKIP("this system lacks " #behaviour);                                                \
    } while (false)

/// Skips the test function when the service "Spooler" must not be stopped.
#define STOPS_SPOOLER()                                                                            \
    do {                                                                                           \
        if (!fixture::maySpoolerStop())                                                            \
            QSKIP("the print spooler must not be stopped");                                        \
    } while (false)

/// A wide text for calls that take a pointer to non-const characters.
class WideText
{
public:
    explicit WideText(const QString& text)
        : m_text(text)
    {
        m_text.detach();
    }
    operator LPWSTR() { return reinterpret_cast<LPWSTR>(m_text.data()); }
    LPBYTE bytes() { return reinterpret_cast<LPBYTE>(m_text.data()); }
    /// In bytes, including the terminating zero.
    DWORD size() const { return static_cast<DWORD>(m_text.size() + 1) * sizeof(WCHAR); }

private:
    QString m_text;
};

/// The same for an 8-bit text, in the system's code page.
class NarrowText
{
public:
    explicit NarrowText(const QString& text)
        : m_text(text.toLocal8Bit())
    {}
    operator LPSTR() { return m_text.data(); }
    LPBYTE bytes() { return reinterpret_cast<LPBYTE>(m_text.data()); }
    DWORD size() const { return static_cast<DWORD>(m_text.size() + 1); }

private:
    QByteArray m_text;
};

namespace fixture {

struct PrinterSetup
{
    QString name;
    QString driver = QStringLiteral("Vx Test Driver");
    QString port = QStringLiteral("USB901");
    DWORD attributes = PRINTER_ATTRIBUTE_LOCAL;
};

/// The record of a printer, for AddPrinterW.
struct NewPrinter
{
    explicit NewPrinter(const PrinterSetup& setup);
    Q_DISABLE_COPY_MOVE(NewPrinter)

    /// The result of AddPrinterW.
    HANDLE add(DWORD level = 2);

    WideText name;
    WideText driver;
    WideText port;
    WideText processor{QStringLiteral("WinPrint")};
    WideText datatype{QStringLiteral("RAW")};
    PRINTER_INFO_2W info{};
};

/// A name that begins with the stem and differs from those of all other calls in all processes.
QString uniqueName(const QString& stem);

/// Installs the driver and adds the printer with AddPrinterW. The printer is removed at the end of
/// the test function. False when that fails; the last error then says why.
bool addPrinter(const PrinterSetup& setup);
/// Removes a printer that was added by addPrinter().
bool removePrinter(const QString& name);

/// Starts or stops the service "Spooler" and waits until that is done. Its former state is restored
/// at the end of the test function. A function that stops it begins with STOPS_SPOOLER.
bool setSpoolerRunning(bool running);
/// Whether the service may be stopped. On a computer that others print with, it may not: then the
/// environment variable VX_SPOOLER_MAY_STOP is 0.
bool maySpoolerStop();

bool has(Behaviour behaviour);

/// The bytes of the printer's last document, which was printed to that output file.
QByteArray printedBytes(const QString& printer, const QString& outputFile);

/// The processor time of the calling thread.
std::chrono::nanoseconds processorTimeOfThisThread();

// The parts of the fixture that differ between the systems.
namespace system {
void begin();
/// Restores the system. Returns the test function's mistakes with handles, except one misuse by
/// each of the functions listed.
QStringList end(const QStringList& allowedMisuses);
bool installDriver(const QString& name);
/// Adds the port, if the system needs it. It is removed at the end of the test function.
bool addPort(const QString& name);
} // namespace system

} // namespace fixture

/// An empty text for a null pointer.
inline QString fromWide(LPCWSTR text)
{
    return text ? QString::fromUtf16(reinterpret_cast<const char16_t*>(text)) : QString();
}

/// The last error after a failed call; ERROR_SUCCESS when the call succeeds.
template <typename Call>
DWORD errorOf(Call call)
{
    constexpr DWORD untouched = 0x2000DEAD; // bit 29 marks codes that no system function uses
    SetLastError(untouched);
    if (call())
        return ERROR_SUCCESS;
    const DWORD error = GetLastError();
    return error == ERROR_SUCCESS ? untouched : error;
}

struct EventCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
struct PrinterCloser
{
    void operator()(HANDLE handle) const { ClosePrinter(handle); }
};
struct ServiceCloser
{
    void operator()(SC_HANDLE handle) const { CloseServiceHandle(handle); }
};
using EventHandle = std::unique_ptr<void, EventCloser>;
using PrinterHandle = std::unique_ptr<void, PrinterCloser>;
using ServiceHandle = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, ServiceCloser>;

/// Null when the printer cannot be opened with that access; the last error then says why.
PrinterHandle openPrinter(const QString& name, DWORD access = PRINTER_ALL_ACCESS);

/// Base of these tests. The printers that a test function adds are removed after it. On the virtual
/// Windows, a test function fails when it leaks or misuses a handle.
class WindowsApiTest : public QObject
{
    Q_OBJECT

protected:
    /// The test function is going to pass a bad handle to that function, once.
    void expectMisuse(const QString& function) { m_allowedMisuses.append(function); }

protected Q_SLOTS:
    virtual void init();
    virtual void cleanup();

private:
    QStringList m_allowedMisuses;
};
