// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "device_registry.h"

#include "device_registry_names.h"

#include "virtualwindows/machine.h"

namespace device_registry {

QStringList childKeys(const QString& path)
{
    return virtualwindows::registry::childGroups(path);
}

DeviceParameters deviceParameters(const QString& devicePath)
{
    const QString path = devicePath + parametersSuffix;
    return {virtualwindows::registry::value(path, portNumberValue),
            virtualwindows::registry::value(path, serialNumberValue)};
}

} // namespace device_registry
