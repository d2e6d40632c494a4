// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "device_serial_numbers.h"

#include "device_registry.h"
#include "device_registry_names.h"

using namespace device_registry;

namespace {

constexpr QLatin1String usbVendorToken("VID_3E7A");

bool isMakersDevice(const QString& interfaceKey)
{
    return interfaceKey.contains(usbVendorToken, Qt::CaseInsensitive);
}

} // namespace

QString DeviceSerialNumbers::driverGuid()
{
    const QStringList classes = childKeys(deviceClassesKey);
    for (const QString& guid : classes) {
        const QStringList devices = childKeys(deviceClassesKey + guid);
        if (std::any_of(devices.begin(), devices.end(), isMakersDevice))
            return guid;
    }
    return {};
}

DeviceSerialNumbers::DeviceSerialNumbers()
{
    const QString guid = driverGuid();
    if (guid.isEmpty())
        return;

    // All devices of the class count, also those of other makers.
    const QString classKey = deviceClassesKey + guid;
    const QStringList devices = childKeys(classKey);
    for (const QString& device : devices) {
        const DeviceParameters parameters = deviceParameters(classKey + QLatin1Char('\\') + device);
        m_last = parameters.serialNumber.toString();
        const auto port = static_cast<quint16>(parameters.portNumber.toUInt());
        if (!m_byPort.contains(port))
            m_byPort.insert(port, m_last);
        if (isMakersDevice(device) && parameters.portNumber.isValid() && !m_last.isEmpty() &&
            !m_ofMakersDevices.contains(port))
            m_ofMakersDevices.insert(port, m_last);
    }
}

DeviceSerialNumbers::Answer DeviceSerialNumbers::onPort(unsigned short port) const
{
    const auto found = m_byPort.constFind(port);
    if (found != m_byPort.cend())
        return {*found, true};
    return {m_last, false};
}
