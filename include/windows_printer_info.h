// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_types.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <windows.h>
#include <winspool.h>

/// One printer as the Windows print spooler lists it. A default record has empty texts and all
/// flags false.
struct AvailablePrinters
{
    /// The spooler's name of the printer.
    QString printerName;
    /// The port's name with every "USB" taken out of it: USB001 reads 001.
    QString portName;
    /// The driver's name, which tells the model (`WindowsPrinterInfo::printerType`).
    QString driverName;
    /// The USB serial number found for the port's number. It is not a proof of a match: a port that
    /// no device is on gets the serial number of the last device looked at.
    QString serialNumber;
    /// Reached over a network: a connection to another machine's printer, or a port that is named
    /// like an IPv4 address.
    bool isNetworkPrinter = false;
    /// Shared with others by this machine.
    bool isShared = false;
    /// Set to work offline, or reported offline by its port.
    bool isOffline = false;
};

/// Questions to the Windows print spooler and the device registry.
///
/// All functions are static, keep nothing between calls and may be called on any thread; they block
/// as long as the spooler does. Unless said otherwise nothing is raised or logged: a failure is the
/// answer that each function names.
class VX_PRINTERSTATUS_EXPORT WindowsPrinterInfo
{
public:
    WindowsPrinterInfo() = delete;

    /// The level-2 record of an open printer in a block of `malloc`, which the caller releases with
    /// `free`. Null when it cannot be read; the reason is logged.
    static PRINTER_INFO_2W* getPrinterInfo2(HANDLE printer);

    /// Whether a level-2 record says offline. Paper out, errors and pauses are not offline. `info`
    /// must not be null.
    static bool isPrinterOffline(PRINTER_INFO_2W* info);
    /// Whether an open printer is offline; true also when its record cannot be read.
    static bool isPrinterOffline(HANDLE printer);
    /// Whether the printer of that name is offline; true also when it cannot be opened or read.
    static bool isPrinterOffline(const QString& printerName);

    /// The name of the user's default printer; empty when there is none or it cannot be asked for.
    static QString getDefaultPrinterName();

    /// Whether the caller may administer the printer, that is, whether it opens with full access.
    static bool isPrinterAdmin(const QString& printerName);

    /// The model that a driver's name stands for, in any letter case: `Unknown` when it is not the
    /// maker's, `Generic` when it is the maker's but no supported model.
    static VXPrinting::PrinterType printerType(const QString& name);

    /// All local printers and printer connections in the spooler's order; empty when there are none
    /// or the spooler does not answer. Serial numbers seen for the first time are recorded in the
    /// printer-serial file, as `getDeviceSerialNumber` does.
    ///
    /// @throws std::logic_error when the spooler lists a printer without a name, port or driver.
    static QList<AvailablePrinters> getAvailablePrinters();

    /// The record of one printer. `printerName` is always the name given; everything else stays at
    /// its default when the printer cannot be opened or read.
    static AvailablePrinters getAvailablePrinterInfo(const QString& printerName);

    /// The interface-class GUID that the maker's USB devices are registered under, as the registry
    /// spells it, braces included; empty when there is no such device.
    static QString getDriverGUID();

    /// The serial number of the USB device on a port, which is then recorded in the printer-serial
    /// file. When no device is on the port, the serial number of the last one looked at,
    /// unrecorded; empty when there is none at all.
    static QString getDeviceSerialNumber(unsigned short port);

    /// Records a serial number with the present local time in the user's printer-serial file,
    /// unless it is there already or empty.
    static void addPrinterSerialToIniFile(const QString& serialNumber);
};
