// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

/// The serial numbers of the USB devices of the maker's device class, by port. The device registry
/// is read once, when this object is created.
class DeviceSerialNumbers
{
public:
    DeviceSerialNumbers();

    /// The device-interface class of the maker's devices; empty when there is no such device.
    static QString driverGuid();

    struct Answer
    {
        QString serialNumber;
        bool onPort = false; ///< false when it is not on the port, but the last device listed
    };
    Answer onPort(unsigned short port) const;

    /// Those of the maker's devices that have a port and a serial number, by port.
    QHash<quint16, QString> ofMakersDevices() const { return m_ofMakersDevices; }

private:
    QHash<quint16, QString> m_byPort;
    QHash<quint16, QString> m_ofMakersDevices;
    QString m_last;
};
