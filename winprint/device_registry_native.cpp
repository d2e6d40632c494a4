// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "device_registry.h"

#include "device_registry_names.h"

#include <QtCore/QSettings>

namespace device_registry {

QStringList childKeys(const QString& path)
{
    return QSettings(path, QSettings::NativeFormat).childGroups();
}

DeviceParameters deviceParameters(const QString& path)
{
    const QSettings key(path, QSettings::NativeFormat);
    return {key.value(portNumberValue), key.value(serialNumberValue)};
}

} // namespace device_registry
