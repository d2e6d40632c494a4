// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

/// The serial numbers of the USB devices of the maker's device class by port, as the device
/// registry held them when this object was made: the registry is read once, however many ports are
/// asked for.
class DeviceSerialNumbers
{
public:
    DeviceSerialNumbers();

    /// The device-interface class that the maker's devices are registered under; empty when there
    /// is none.
    static QString driverGuid();

    struct Answer
    {
        QString serialNumber;
        bool onPort = false; ///< the device is on the port; otherwise it is the last one listed
    };
    Answer onPort(unsigned short port) const;

private:
    QHash<quint16, QString> m_byPort;
    QString m_last;
};
