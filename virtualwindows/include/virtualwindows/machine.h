// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <chrono>
#include <functional>
#include <memory>

namespace virtualwindows {

/// A printer to be added to the virtual spooler.
struct PrinterSetup
{
    QString name{};
    QString driver{};                         ///< null: the spooler reports a null pointer
    QString port = QStringLiteral("USB001");  ///< null: the spooler reports a null pointer
    quint32 attributes = 0x40;                ///< PRINTER_ATTRIBUTE_* (default: local)
    quint32 status = 0;                       ///< PRINTER_STATUS_*
    bool administrable = true;                ///< false: PRINTER_ALL_ACCESS is refused with error 5
    std::chrono::milliseconds printingTime{}; ///< how long a job takes to print (default: no time)
};

/// A value that a driver publishes, with its registry type (REG_SZ 1, REG_BINARY 3, REG_DWORD 4).
struct VIRTUALWINDOWS_EXPORT PrinterValue
{
    QByteArray name;
    quint32 type = 0;
    QByteArray data;

    /// REG_SZ with its terminating zero.
    static PrinterValue text(const QByteArray& name, const QByteArray& value);
    /// REG_DWORD, little-endian.
    static PrinterValue number(const QByteArray& name, quint32 value);
    static PrinterValue binary(const QByteArray& name, const QByteArray& bytes);
};

/// A job that somebody else has put into a printer's queue.
struct JobSetup
{
    quint32 id = 0;
    QString document{};
    QString user{};     ///< null: "User"
    QString datatype{}; ///< null: "RAW"
    quint32 pages = 0;
    quint32 bytes = 0;
    quint32 status = 0; ///< JOB_STATUS_*
};

/// A job that was printed with StartDocPrinterW … EndDocPrinter, or set with setJob().
struct PrintJob
{
    quint32 id = 0;
    QString document;
    QString user;       ///< null: "User"
    QString outputFile; ///< null when none was given
    QString datatype;   ///< null when none was given
    QList<QByteArray> pages;
    bool finished = false; ///< EndDocPrinter was called
    bool queued = true;    ///< it is still in the printer's queue
    quint32 status = 0;    ///< JOB_STATUS_*; when it has left the queue, those that it left with
    QDateTime submitted;
    bool isSet = false; ///< with setJob(): it has no pages, but these numbers
    quint32 pageCount = 0;
    quint32 byteCount = 0;
};

/// One call of a Windows function, in the order in which the calls began.
struct Call
{
    QString function;
    QStringList arguments; ///< names and numbers as text, handles in hexadecimal
    Qt::HANDLE thread = nullptr;
    quint32 plannedError = 0; ///< the error that failCall() made it fail with; 0: none
};

/// A call that is to fail, described by what it is about instead of by its number.
struct CallFailure
{
    enum class Caller
    {
        Any,
        ThisThread,   ///< the thread that planned the failure
        OtherThreads, ///< all threads but that one
    };

    QString function;
    /// The printer's name as the caller opened it, or that of the printer which the calling thread
    /// opened last if the call is about none. Null: any.
    QString printer{};
    QByteArray value{}; ///< the name of the value that is read; null: any
    quint32 error = 0;
    int after = 0; ///< so many matching calls do not fail before
    Caller caller = Caller::Any;
};

/// A mistake in the use of a handle.
struct HandleMisuse
{
    enum class Kind
    {
        UsedAfterClose,
        ClosedTwice,
        NotAHandle, ///< not a handle, or one of another kind than the function takes
        Leaked,     ///< still open when settle() was called
    };
    Kind kind = Kind::Leaked;
    quintptr handle = 0;
    QString function; ///< the function that it was passed to; for Leaked, the one that opened it
    QString text;     ///< a description in one line
};

/// A device of the virtual device registry, below
/// HKEY_LOCAL_MACHINE\SYSTEM\ControlSet001\Control\DeviceClasses\.
struct DeviceSetup
{
    QString classGuid;     ///< key name of the interface class, braces included
    QString interfaceKey;  ///< key name of the device interface; any length, any characters
    QVariant portNumber;   ///< "Port Number"; invalid: the value is absent
    QVariant serialNumber; ///< "Serial Number"; invalid: the value is absent
};

/// The virtual Windows machine of this process. The calls of <windows.h> and <winspool.h> act on
/// it, and tests and demonstrations control it through this class.
///
/// All members may be called on any thread. Changes made here stand for those of drivers, users and
/// the system: they are not recorded as calls and need no running spooler, but they signal change
/// notifications as on Windows.
class VIRTUALWINDOWS_EXPORT Machine
{
public:
    static Machine& instance();

    /// Returns to the initial state: no printers, no devices, the spooler running, real time, no
    /// recorded calls, no planned failures, an empty ledger. Open handles become invalid.
    void reset();

    // Printers, in the order in which they are enumerated.
    void addPrinter(const PrinterSetup& setup);
    void removePrinter(const QString& name);
    void renamePrinter(const QString& name, const QString& newName);
    void setAttributes(const QString& name, quint32 attributes);
    void setStatus(const QString& name, quint32 status);
    void setPort(const QString& name, const QString& port);
    void setDriver(const QString& name, const QString& driver);
    void setAdministrable(const QString& name, bool administrable);
    /// With a null name, there is no default printer.
    void setDefaultPrinter(const QString& name);
    QString defaultPrinter() const;
    QStringList printers() const;
    /// Whether the spooler lists a printer with that name, in any letter case.
    bool hasPrinter(const QString& name) const;

    /// Publishes values as a driver does. A list of values is signalled as one change.
    void publish(const QString& printer, const PrinterValue& value);
    void publish(const QString& printer, const QList<PrinterValue>& values);
    /// The same, and takes other values away, as one change.
    void publish(const QString& printer, const QList<PrinterValue>& values,
                 const QList<QByteArray>& unpublished);
    void unpublish(const QString& printer, const QByteArray& valueName);
    /// The names of the values that the driver publishes, in lower case and alphabetical order.
    QList<QByteArray> valueNames(const QString& printer) const;
    /// Signals the printer's change notifications without a change.
    void notify(const QString& printer, quint32 change);
    /// While notifications are held, changes signal nothing. notify() and endWaitByNotification()
    /// still do. Changes that were made in the meantime are not signalled afterwards.
    void holdNotifications(bool hold = true);
    /// While this is set, handles stay valid when their printer is removed or the spooler is
    /// stopped, and a stopped spooler takes calls: what fails then has to be planned.
    void failOnlyAsPlanned(bool only = true);
    /// The jobs that are in the printer's queue or have been printed. Deleted jobs are not listed.
    QList<PrintJob> jobs(const QString& printer) const;
    /// Puts a job at the end of the printer's queue, or changes the one that has its number. The
    /// printer does not print it: it stays as it is until it is set again, removed or deleted.
    void setJob(const QString& printer, const JobSetup& job);
    /// Takes a job out of the printer's queue. Has no effect if there is none with this number.
    void removeJob(const QString& printer, quint32 id);
    /// How long the printer's jobs take to print, from the next one that starts. Machine time: it
    /// passes in advance() while the time is driven.
    void setPrintingTime(const QString& printer, std::chrono::milliseconds time);
    /// How many bytes of each call of WritePrinter the printer's queue takes. The call succeeds
    /// nevertheless and reports that number.
    void limitWrites(const QString& printer, quint32 bytes);

    // The service "Spooler". In any state but SERVICE_RUNNING (4), all printer handles and change
    // notifications become invalid.
    void setSpoolerState(quint32 state);
    quint32 spoolerState() const;
    void stopSpooler() { setSpoolerState(1); }
    void startSpooler() { setSpoolerState(4); }

    // The device registry. Classes and devices are listed in the order in which they are added.
    void addDeviceClass(const QString& classGuid);
    /// Has no effect if the class already has a device with that key.
    void addDevice(const DeviceSetup& device);

    // The log of calls. Calls are recorded only after recordCalls().
    void recordCalls(bool record = true);
    QList<Call> calls() const;
    QList<Call> calls(const QString& function) const;
    void clearCalls();
    /// The hook is called at the start of each call, on the calling thread and without locks. It
    /// may block, so that a test can hold a thread at a chosen call. Null removes the hook.
    void setCallHook(std::function<void(const Call&)> hook);

    // Planned failures: the n-th call from now (the next one is 1) has no effect and fails with the
    // error. A call that closes a handle closes it nevertheless, because callers do not try again.
    // Reads of the device registry have the name "RegistryKey" and find nothing when they fail.
    void failCall(const QString& function, int nth, quint32 error);
    void failCallsFrom(const QString& function, int nth, quint32 error);
    /// Plans that the next call that matches fails. Several plans for the same calls are used up
    /// one after the other. A function that this machine does not have never matches.
    void failNextCall(const CallFailure& failure);
    /// Drops the failures planned with failNextCall() that have not happened: those of a printer,
    /// or all of them if the name is null. Returns their number.
    int forgetNextFailures(const QString& printer = {});
    void clearFailures();
    /// The number of calls of a function since the last reset, including failed ones.
    int callCount(const QString& function) const;
    /// All functions that were called since the last reset, with their counts, in alphabetical
    /// order.
    QList<QPair<QString, int>> callCounts() const;

    // The time that waits are measured in. Driven time passes only in advance(), which ends every
    // wait whose time-out is reached.
    void driveTime(bool driven = true);
    void advance(std::chrono::milliseconds time);
    /// Waits, in real time, until at least `count` threads are blocked in a wait. False when that
    /// does not happen within the limit. A thread whose wait has ended no longer counts, even if it
    /// has not run yet. So after publish() or advance(), this waits until the threads have done
    /// their work and wait again.
    bool waitForWaitingThreads(int count,
                               std::chrono::milliseconds limit = std::chrono::seconds(20));
    int waitingThreads() const;
    /// Ends the wait of a thread by its time-out, whatever the time is: of the waiting thread that
    /// opened, or tried to open, a printer by this name last. False if no such thread waits.
    bool endWaitByTimeOut(const QString& printer);
    /// The same as by a change notification. False if no such thread waits for one.
    bool endWaitByNotification(const QString& printer);
    /// The current name of the printer whose change notification that thread waits for, which
    /// differs from the name that it was opened by after the printer was renamed. Null if there is
    /// no such thread or the printer was removed.
    QString watchedPrinter(const QString& printer) const;
    /// Publishes values to the printer whose change notification that thread waits for, whether it
    /// is still listed or not. False if there is no such thread.
    bool publishWatched(const QString& printer, const QList<PrinterValue>& values,
                        const QList<QByteArray>& unpublished);

    // The ledger of handles.
    int openHandles() const;
    /// All misuses of handles since the last reset, in order, without leaks.
    QList<HandleMisuse> misuses() const;
    /// The misuses, and a Leaked entry for each open handle.
    QList<HandleMisuse> settle() const;

private:
    Machine();
    ~Machine();
    Q_DISABLE_COPY_MOVE(Machine)

public:
    /// Only for the implementation of the calls.
    struct Private;
    Private& internals() { return *d; }

private:
    std::unique_ptr<Private> d;
};

/// The device registry as the library reads it. Paths begin with the hive and have backslashes.
namespace registry {
/// The names of a key's direct subkeys; empty when the key does not exist.
VIRTUALWINDOWS_EXPORT QStringList childGroups(const QString& path);
/// A value of a key; invalid when the key or the value does not exist.
VIRTUALWINDOWS_EXPORT QVariant value(const QString& path, const QString& valueName);
} // namespace registry

} // namespace virtualwindows
