// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the tests of the Windows calls need besides these calls, for either system they run on.
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

/// Behaviours that a system without them lets a test skip. Windows and the virtual Windows have
/// them all.
enum class Behaviour
{
    AccessRights,        ///< a handle is good for no more than it was opened for
    ChangeNotifications, ///< changes of printers can be waited for
    DeletedPrinters,     ///< handles of a deleted printer know that it is deleted
    DistinctWaitObjects, ///< waiting for all of a list refuses an object that is in it twice
    EmptyPrinterNames,   ///< an empty name is refused as a name, not as a parameter
    JobCounts,           ///< a printer's record counts its jobs
    LevelsFirst,         ///< EnumPrintersW writes nothing when it does not know the level
    MissingWaitLists,    ///< waiting without a list is refused
    PageCalls,           ///< pages belong to a document
    PrintProviders,      ///< EnumPrintersW lists print providers
    PrinterCommands,     ///< SetPrinterW pauses and resumes
    PrinterRecordChecks, ///< AddPrinterW refuses a record without a driver or a port
    PseudoHandleChecks,  ///< waiting for several objects refuses pseudo handles
    UniquePrinterNames,  ///< AddPrinterW refuses a name that is taken
};

/// Leaves the test function when the system lacks the behaviour.
#define NEEDS_BEHAVIOUR(behaviour)                                                                 \
    do {                                                                                           \
        if (!fixture::has(behaviour))                                                              \
            QSKIP("this system is without " #behaviour);                                           \
    } while (false)

namespace fixture {

struct PrinterSetup
{
    QString name;
    QString driver = QStringLiteral("Vx Test Driver");
    QString port = QStringLiteral("USB001");
    DWORD attributes = PRINTER_ATTRIBUTE_LOCAL;
};

/// The stem, made unlike that of any other call in any process.
QString uniqueName(const QString& stem);

/// Makes the printer through AddPrinterW, and its driver first. The printer is removed at the end
/// of the test function; false: the last error says why there is none.
bool addPrinter(const PrinterSetup& setup);
/// Removes a printer that addPrinter() made.
bool removePrinter(const QString& name);

/// Starts or stops the service "Spooler" and waits until it has; it is put back at the end of the
/// test function.
bool setSpoolerRunning(bool running);

bool has(Behaviour behaviour);

/// What the printer was sent in its last document, whose output file was given.
QByteArray printedBytes(const QString& printer, const QString& outputFile);

/// The time for which the calling thread had a processor.
std::chrono::nanoseconds processorTimeOfThisThread();

// What differs between the systems, for the fixture itself.
namespace system {
void begin();
/// Puts the system back, and says what the test function did wrong with handles, calls of these
/// functions left out: one misuse for each name.
QStringList end(const QStringList& allowedMisuses);
bool installDriver(const QString& name);
} // namespace system

} // namespace fixture

/// A wide text as the calls take it, which is not as constant as they treat it.
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
    /// With the terminating zero.
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

/// An empty text for a null pointer.
inline QString fromWide(LPCWSTR text)
{
    return text ? QString::fromUtf16(reinterpret_cast<const char16_t*>(text)) : QString();
}

/// What a call's failure leaves as the last error; ERROR_SUCCESS when the call succeeds.
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

/// Null when the printer cannot be opened so; the last error then says why.
PrinterHandle openPrinter(const QString& name, DWORD access = PRINTER_ALL_ACCESS);

/// Base of these tests: each test function starts on a system without its printers and leaves none,
/// and fails when it leaked or misused a handle where the system can tell.
class WindowsApiTest : public QObject
{
    Q_OBJECT

protected:
    /// Handing a bad handle to that function is what the test function is about.
    void expectMisuse(const QString& function) { m_allowedMisuses.append(function); }

protected Q_SLOTS:
    virtual void init();
    virtual void cleanup();

private:
    QStringList m_allowedMisuses;
};
