// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_types.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>

#include <windows.h>
#include <winspool.h>

/// One printer as the Windows print spooler lists it. In a default record all texts are empty and
/// all flags false.
struct AvailablePrinters
{
    /// The printer's name in the spooler.
    QString printerName;
    /// The port's name with every "USB" removed: 001 for USB001.
    QString portName;
    /// The driver's name, by which the model is recognised (`WindowsPrinterInfo::printerType`).
    QString driverName;
    /// The serial number of the USB device on the port with this number. When there is no device on
    /// the port, it is that of the last device in the registry, so it does not prove a match.
    QString serialNumber;
    /// Whether the printer is reached over a network: it is a connection to another machine's
    /// printer, or its port is named like an IPv4 address.
    bool isNetworkPrinter = false;
    /// Whether this machine shares the printer.
    bool isShared = false;
    /// Whether the printer is set to work offline, or its port reports it offline.
    bool isOffline = false;
};

/// Queries of the Windows print spooler and the device registry.
///
/// All functions are static, store nothing between calls and may be called on any thread. They
/// block for as long as the spooler does. Unless a comment says otherwise, a failure is neither
/// raised nor logged; the function returns the result that its comment gives for a failure.
class VX_PRINTERSTATUS_EXPORT WindowsPrinterInfo
{
public:
    WindowsPrinterInfo() = delete;

    /// The level-2 record of an open printer, in a block that the caller releases with `free`. Null
    /// when it cannot be read; the reason is logged.
    static PRINTER_INFO_2W* getPrinterInfo2(HANDLE printer);

    /// Whether the printer is offline according to its level-2 record, which must not be null. A
    /// printer that is paused, out of paper or in error is not offline.
    static bool isPrinterOffline(PRINTER_INFO_2W* info);
    /// Whether an open printer is offline; true also when its record cannot be read.
    static bool isPrinterOffline(HANDLE printer);
    /// Whether the printer with that name is offline; true also when it cannot be opened or read.
    static bool isPrinterOffline(const QString& printerName);

    /// The name of the user's default printer; empty when there is none or it cannot be queried.
    static QString getDefaultPrinterName();

    /// Whether the caller may administer the printer, that is, open it with full access.
    static bool isPrinterAdmin(const QString& printerName);

    /// The model with that driver name, in any letter case: `Unknown` when the driver is not the
    /// maker's, `Generic` when it is the maker's but not that of a supported model.
    static VXPrinting::PrinterType printerType(const QString& name);

    /// All local printers and printer connections, in the spooler's order; empty when there are
    /// none or the spooler does not answer. Like `getDeviceSerialNumber`, it records new serial
    /// numbers in the printer-serial file.
    ///
    /// @throws std::logic_error when the spooler lists a printer without a name, port or driver.
    static QList<AvailablePrinters> getAvailablePrinters();

    /// The record of one printer. `printerName` is always the name that was passed; when the
    /// printer cannot be opened or read, everything else has its default.
    static AvailablePrinters getAvailablePrinterInfo(const QString& printerName);

    /// The GUID of the interface class of the maker's USB devices, as it is spelt in the registry,
    /// with braces; empty when there is no such device.
    static QString getDriverGUID();

    /// The serial number of the USB device on a port, which is also recorded in the printer-serial
    /// file. When no device is on the port, it is that of the last device in the registry, which is
    /// not recorded; empty when there is no device at all.
    static QString getDeviceSerialNumber(unsigned short port);

    /// The serial numbers of the maker's USB devices by the number of their port, which is 1 for
    /// USB001. A device without a port or a serial number is not among them. Unlike the two
    /// functions that return a serial number for a port, it never returns that of a device on
    /// another port, and it records nothing. The registry is read once for all devices.
    static QHash<unsigned short, QString> getDeviceSerialNumbers();

    /// Records a serial number with the current local time in the user's printer-serial file,
    /// unless it is empty or already recorded.
    static void addPrinterSerialToIniFile(const QString& serialNumber);
};
