// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <chrono>
#include <functional>
#include <memory>

namespace virtualwindows {

/// A printer as it is added to the virtual spooler.
struct PrinterSetup
{
    QString name{};
    QString driver{};                        ///< null: the spooler reports a null pointer
    QString port = QStringLiteral("USB001"); ///< null: the spooler reports a null pointer
    quint32 attributes = 0x40;               ///< PRINTER_ATTRIBUTE_* (default: local)
    quint32 status = 0;                      ///< PRINTER_STATUS_*
    bool administrable = true;               ///< false: PRINTER_ALL_ACCESS is refused with error 5
};

/// A value that a driver publishes, as the registry types it (REG_SZ 1, REG_BINARY 3, REG_DWORD 4).
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

/// A job that went through StartDocPrinterW … EndDocPrinter.
struct PrintJob
{
    quint32 id = 0;
    QString document;
    QString outputFile; ///< null when none was given
    QString datatype;   ///< null when none was given
    QList<QByteArray> pages;
    bool finished = false; ///< EndDocPrinter was called
};

/// One call of a Windows function, in the order in which the calls began.
struct Call
{
    QString function;
    QStringList arguments; ///< names and numbers as text, handles in hexadecimal
    Qt::HANDLE thread = nullptr;
    quint32 plannedError = 0; ///< the error that failCall() made it fail with; 0: none
};

/// What was done wrong with a handle.
struct HandleMisuse
{
    enum class Kind
    {
        UsedAfterClose,
        ClosedTwice,
        NotAHandle, ///< never handed out, or of another kind than the function takes
        Leaked,     ///< still open when the ledger was settled
    };
    Kind kind = Kind::Leaked;
    quintptr handle = 0;
    QString function; ///< the function that was handed it; for Leaked the one that opened it
    QString text;     ///< one readable line
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

/// The one virtual Windows machine of this process: what the calls of <windows.h> and <winspool.h>
/// act on, and the handle by which a test or a demonstration drives it.
///
/// All members may be called on any thread. Changes made here are what drivers, users and the
/// system do: they do not appear in the log of calls and need no running spooler, but they signal
/// change notifications as the real thing does.
class VIRTUALWINDOWS_EXPORT Machine
{
public:
    static Machine& instance();

    /// A machine as new: no printers, no devices, the spooler running, real time, nothing recorded,
    /// no failures planned, an empty ledger. Handles still open go dead.
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
    /// A null name: there is no default printer.
    void setDefaultPrinter(const QString& name);
    QStringList printers() const;

    /// Publishes a driver's values; several at once make one notification.
    void publish(const QString& printer, const PrinterValue& value);
    void publish(const QString& printer, const QList<PrinterValue>& values);
    void unpublish(const QString& printer, const QByteArray& valueName);
    /// Signals the printer's change notifications though nothing changed.
    void notify(const QString& printer, quint32 change);
    QList<PrintJob> jobs(const QString& printer) const;

    // The service "Spooler". Leaving SERVICE_RUNNING (4) kills printer and notification handles.
    void setSpoolerState(quint32 state);
    quint32 spoolerState() const;
    void stopSpooler() { setSpoolerState(1); }
    void startSpooler() { setSpoolerState(4); }

    // The device registry, classes and devices in the order in which they are listed.
    void addDeviceClass(const QString& classGuid);
    /// A key that the class has already stays as it is.
    void addDevice(const DeviceSetup& device);

    // The log of calls. Nothing is recorded until it is asked for.
    void recordCalls(bool record = true);
    QList<Call> calls() const;
    QList<Call> calls(const QString& function) const;
    void clearCalls();
    /// Called on the calling thread, without locks, as each call begins; null takes it out. It may
    /// block the caller, which is how a test holds a thread at a point of its choice.
    void setCallHook(std::function<void(const Call&)> hook);

    // Planned failures: the call does nothing and fails with the error. nth counts from 1, from
    // now. A call that closes a handle closes it all the same: nobody closes twice. Readings of the
    // device registry go by the name "RegistryKey" and find nothing when they fail.
    void failCall(const QString& function, int nth, quint32 error);
    void failCallsFrom(const QString& function, int nth, quint32 error);
    void clearFailures();
    /// How often each function was called since the last reset, failed calls included.
    int callCount(const QString& function) const;
    /// All functions called since the last reset with their counts, in alphabetical order.
    QList<QPair<QString, int>> callCounts() const;

    // Time, as the waits see it. Driven time stands still but for advance(), which wakes every wait
    // whose time-out is reached on the way.
    void driveTime(bool driven = true);
    void advance(std::chrono::milliseconds time);
    /// Waits, in real time, until at least count threads are blocked in a wait; false when that has
    /// not happened within the limit. A thread whose wait has been satisfied or timed out no longer
    /// counts, even if it has not run yet: after publish() or advance() this is how to wait until
    /// the threads have done their work and are waiting again.
    bool waitForWaitingThreads(int count,
                               std::chrono::milliseconds limit = std::chrono::seconds(20));
    int waitingThreads() const;

    // The ledger of handles.
    int openHandles() const;
    /// Everything done wrong with handles since the last reset, in order; leaks are not in it.
    QList<HandleMisuse> misuses() const;
    /// The misuses, and a Leaked entry for each handle that is open.
    QList<HandleMisuse> settle() const;

private:
    Machine();
    ~Machine();
    Q_DISABLE_COPY_MOVE(Machine)

public:
    /// For the implementation of the calls alone.
    struct Private;
    Private& internals() { return *d; }

private:
    std::unique_ptr<Private> d;
};

/// The device registry as the library reads it: paths with backslashes, from the name of the hive.
namespace registry {
/// Names of the keys right below a key; empty when there is no such key.
VIRTUALWINDOWS_EXPORT QStringList childGroups(const QString& path);
/// A value of a key; invalid when the key or the value is absent.
VIRTUALWINDOWS_EXPORT QVariant value(const QString& path, const QString& valueName);
} // namespace registry

} // namespace virtualwindows
