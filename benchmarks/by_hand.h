// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The floors that several benchmarks share: the least hand-written code that gives the same result.
#pragma once

#include <virtualwindows/machine.h>
#include <windows_printer_info.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QThread>

#include <array>
#include <functional>

#include <windows.h>
#include <winspool.h>

namespace by_hand {

/// A device of the maker on the port with a number, with a unique serial number.
virtualwindows::DeviceSetup deviceOnPort(int number);
/// The name of the port with a number.
QString portName(int number);

struct ValueRead
{
    const char* name;
    DWORD capacity;
    bool isText;
};

/// The order and the sizes of the library's reads.
inline constexpr std::array<ValueRead, 11> valueReads{{
    {"SupplyIdentifier", 21, true},
    {"Ribbon1Identifier", 4, false},
    {"Ribbon2Identifier", 4, false},
    {"StatusCode", 128, true},
    {"SoftwareVersion", 37, true},
    {"EthernetConfig", 74, true},
    {"Mileage", 4, false},
    {"Ribbon1Mileage", 4, false},
    {"Ribbon2Mileage", 4, false},
    {"UpdateProgress", 4, false},
    {"UpdateError", 4, false},
}};

/// The least that a thread can do to report a printer's values to its host. It makes the library's
/// calls in the same order and nothing else: no checks, and no texts except for the requested
/// values.
class WatchingThread final : public QThread
{
public:
    /// For each of the named values, a queued call to `host` calls `receive` with the name, the
    /// printer and the value as text.
    using Receive = std::function<void(const QByteArray& valueName, const QString& printer,
                                       const QString& value)>;
    WatchingThread(const QString& printerName, const QList<QByteArray>& valueNames, QObject& host,
                   Receive receive);
    ~WatchingThread() override;
    Q_DISABLE_COPY_MOVE(WatchingThread)

protected:
    void run() override;

private:
    struct Reading
    {
        DWORD type = REG_NONE;
        DWORD size = 0;
        std::array<BYTE, 128> bytes{};

        bool operator==(const Reading&) const = default;
    };

    void readAll(HANDLE printer);
    void report(const ValueRead& read, const Reading& reading);

    const QString m_printerName;
    const QList<QByteArray> m_valueNames;
    QObject& m_host;
    const Receive m_receive;
    const HANDLE m_stopEvent;
    std::array<Reading, valueReads.size()> m_lastSeen;
};

/// The devices of the registry.
struct Devices
{
    QHash<quint16, QString> serialNumbers; ///< by port
    QString last;
};
Devices readDevices();

/// Gives the same result as the library and writes the same serial numbers, in one function and
/// with nothing that these printers do not need.
QList<AvailablePrinters> enumerate();

} // namespace by_hand
