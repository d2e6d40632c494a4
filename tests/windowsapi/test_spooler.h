// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <windows.h>

/// Drivers and ports for the printers of the tests, on the spooler of this computer.
///
/// Windows adds a printer only on a driver whose files exist and on a port that exists. The drivers
/// that the tests need are those of label printers, which a computer need not have. So they are
/// made of the files of a driver that belongs to Windows.
namespace test_spooler {

/// The driver that belongs to Windows and only passes bytes on to the port.
QString driverOfWindows();

/// A step that has failed, and why. Empty if none has.
struct Problem
{
    QString step; ///< the name of the Windows function
    DWORD error = ERROR_SUCCESS;

    bool isNone() const { return step.isEmpty(); }
    QString text() const;
};

/// Installs a driver of that name with the files of driverOfWindows(), which is installed first if
/// it is not yet. Where Windows has no such driver (under Wine), any file will do.
[[nodiscard]] Problem installDriver(const QString& name);
/// Removes the driver, but no files. The spooler may hold a driver for a while after its last
/// printer was removed, so this tries for some seconds.
[[nodiscard]] Problem removeDriver(const QString& name);
QStringList drivers();

/// Adds a local port, which prints into a file of its name in the folder of the system.
///
/// A port of that name that belongs to a device or to another printer is not used: the problem is
/// then ERROR_BUSY.
[[nodiscard]] Problem addPort(const QString& name);
[[nodiscard]] Problem removePort(const QString& name);
QStringList ports();

/// The local printers. Empty when the spooler does not run.
struct Printer
{
    QString name;
    QString driver;
    QString port;
};
QList<Printer> printers();
[[nodiscard]] Problem removePrinter(const QString& name);

/// Whether a printer, a driver or a port of that name is one that tests add.
bool isNameOfTestPrinter(const QString& name);
bool isNameOfTestDriver(const QString& name);
bool isNameOfTestPort(const QString& name);

} // namespace test_spooler
