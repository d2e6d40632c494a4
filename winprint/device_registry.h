// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// Reads the device registry: that of Windows, or that of the virtual machine. The build chooses
/// the source file that implements these functions.
namespace device_registry {

/// The names of the keys directly below a key, in the registry's order; empty when there is no such
/// key. `path` must be `deviceClassesKey`, or a key below it that this function has just listed.
QStringList childKeys(const QString& path);

/// The parameters of a device interface; an absent value is an invalid QVariant. `devicePath` must
/// be a key that `childKeys` has just listed.
struct DeviceParameters
{
    QVariant portNumber;
    QVariant serialNumber;
};
DeviceParameters deviceParameters(const QString& devicePath);

} // namespace device_registry
