// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QLatin1String>

namespace device_registry {

/// Deliberately control set 001 and not the current one: this is where the maker's driver is.
inline constexpr QLatin1String
    deviceClassesKey(R"(HKEY_LOCAL_MACHINE\SYSTEM\ControlSet001\Control\DeviceClasses\)");
inline constexpr QLatin1String parametersSuffix(R"(\#\Device Parameters)");
inline constexpr QLatin1String portNumberValue("Port Number");
inline constexpr QLatin1String serialNumberValue("Serial Number");

} // namespace device_registry
