// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// The device registry, read through the one place that knows where it is kept: the build chooses
/// the source file that implements this.
namespace device_registry {

/// Names of the keys right below a key, in the registry's order; empty when there is no such key.
/// The key is that of the device classes or one below it that a listing has just named.
QStringList childKeys(const QString& path);

/// The parameters of a device interface that a listing has just named; a value that is absent is
/// invalid.
struct DeviceParameters
{
    QVariant portNumber;
    QVariant serialNumber;
};
DeviceParameters deviceParameters(const QString& devicePath);

} // namespace device_registry
