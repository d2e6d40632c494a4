// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "by_hand.h"

#include <QtCore/QDateTime>
#include <QtCore/QSettings>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <optional>
#include <span>

#include <winsvc.h>

namespace {
constexpr QLatin1String
    classesKey("HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001\\Control\\DeviceClasses\\");
constexpr QLatin1String classGuid("{4d36e979-e325-11ce-bfc1-08002be10318}");
} // namespace

namespace by_hand {

virtualwindows::DeviceSetup deviceOnPort(int number)
{
    const QString serialNumber = QStringLiteral("BM%1").arg(number, 8, 10, QLatin1Char('0'));
    virtualwindows::DeviceSetup device;
    device.classGuid = classGuid;
    device.interfaceKey =
        QStringLiteral("##?#USB#VID_3E7A&PID_0102#%1#%2").arg(serialNumber, QString(classGuid));
    device.portNumber = number;
    device.serialNumber = serialNumber;
    return device;
}

QString portName(int number)
{
    return QStringLiteral("USB%1").arg(number, 3, 10, QLatin1Char('0'));
}

WatchingThread::WatchingThread(const QString& printerName, const QList<QByteArray>& valueNames,
                               QObject& host, Receive receive)
    : m_printerName(printerName)
    , m_valueNames(valueNames)
    , m_host(host)
    , m_receive(std::move(receive))
    , m_stopEvent(CreateEventW(nullptr, TRUE, FALSE, nullptr))
{}

WatchingThread::~WatchingThread()
{
    SetEvent(m_stopEvent);
    wait();
    CloseHandle(m_stopEvent);
}

void WatchingThread::run()
{
    HANDLE printer = nullptr;
    OpenPrinterA(m_printerName.toLocal8Bit().data(), &printer, nullptr);
    const HANDLE change = FindFirstPrinterChangeNotification(printer, 0x7777FFFF, 0, nullptr);
    // Like the library, reads first through a handle with full access and queries the service.
    HANDLE fullAccess = nullptr;
    PRINTER_DEFAULTSA defaults{};
    defaults.DesiredAccess = PRINTER_ALL_ACCESS;
    OpenPrinterA(m_printerName.toLocal8Bit().data(), &fullAccess, &defaults);
    readAll(fullAccess);
    ClosePrinter(fullAccess);
    const SC_HANDLE manager = OpenSCManagerW(nullptr, nullptr, 0);
    const SC_HANDLE spooler =
        OpenServiceW(manager, reinterpret_cast<const WCHAR*>(u"Spooler"), SERVICE_QUERY_STATUS);
    SERVICE_STATUS status{};
    QueryServiceStatus(spooler, &status);

    const std::array<HANDLE, 2> handles{m_stopEvent, change};
    for (;;) {
        switch (WaitForMultipleObjects(2, handles.data(), FALSE, 5000)) {
        case WAIT_OBJECT_0:
            FindClosePrinterChangeNotification(change);
            ClosePrinter(printer);
            CloseServiceHandle(spooler);
            CloseServiceHandle(manager);
            return;
        case WAIT_OBJECT_0 + 1: {
            DWORD changes = 0;
            FindNextPrinterChangeNotification(change, &changes, nullptr, nullptr);
            readAll(printer);
            break;
        }
        default:
            break;
        }
    }
}

void WatchingThread::readAll(HANDLE printer)
{
    std::array<Reading, valueReads.size()> readings;
    for (std::size_t index = 0; index < valueReads.size(); ++index) {
        Reading& reading = readings[index];
        GetPrinterDataA(printer, const_cast<char*>(valueReads[index].name), &reading.type,
                        reading.bytes.data(), valueReads[index].capacity, &reading.size);
    }
    DWORD needed = 0;
    GetPrinterW(printer, 1, nullptr, 0, &needed);
    const std::unique_ptr<BYTE[]> block(new BYTE[needed]);
    GetPrinterW(printer, 1, block.get(), needed, &needed);
    benchmark::DoNotOptimize(block.get());

    for (std::size_t index = 0; index < valueReads.size(); ++index) {
        if (readings[index] == m_lastSeen[index])
            continue;
        m_lastSeen[index] = readings[index];
        if (m_valueNames.contains(valueReads[index].name))
            report(valueReads[index], readings[index]);
    }
}

void WatchingThread::report(const ValueRead& read, const Reading& reading)
{
    QString value;
    if (read.isText) {
        value = QString::fromUtf8(reinterpret_cast<const char*>(reading.bytes.data()));
    } else {
        quint32 number = 0;
        std::memcpy(&number, reading.bytes.data(), sizeof number);
        value = QString::number(number);
    }
    QMetaObject::invokeMethod(
        &m_host, [this, name = read.name, value] { m_receive(name, m_printerName, value); },
        Qt::QueuedConnection);
}

Devices readDevices()
{
    using namespace virtualwindows;
    const QStringList guids = registry::childGroups(classesKey);
    for (const QString& guid : guids) {
        const QString classKey = classesKey + guid;
        const QStringList keys = registry::childGroups(classKey);
        const bool isMakers = std::any_of(keys.begin(), keys.end(), [](const QString& key) {
            return key.contains(QLatin1String("VID_3E7A"), Qt::CaseInsensitive);
        });
        if (!isMakers)
            continue;

        Devices devices;
        for (const QString& key : keys) {
            const QString path =
                classKey + QLatin1Char('\\') + key + QLatin1String("\\#\\Device Parameters");
            const auto port =
                static_cast<quint16>(registry::value(path, QStringLiteral("Port Number")).toUInt());
            devices.last = registry::value(path, QStringLiteral("Serial Number")).toString();
            if (!devices.serialNumbers.contains(port))
                devices.serialNumbers.insert(port, devices.last);
        }
        return devices;
    }
    return {};
}

QList<AvailablePrinters> enumerate()
{
    constexpr DWORD kinds = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    DWORD needed = 0;
    DWORD count = 0;
    EnumPrintersW(kinds, nullptr, 2, nullptr, 0, &needed, &count);
    const std::unique_ptr<std::byte[]> block(new std::byte[needed]);
    EnumPrintersW(kinds, nullptr, 2, reinterpret_cast<BYTE*>(block.get()), needed, &needed, &count);

    const Devices devices = readDevices();
    std::optional<QSettings> settings; // opened for the first number that is recorded

    QList<AvailablePrinters> printers;
    printers.reserve(count);
    for (const PRINTER_INFO_2W& info :
         std::span(reinterpret_cast<const PRINTER_INFO_2W*>(block.get()), count)) {
        AvailablePrinters& printer = printers.emplaceBack();
        printer.printerName = QString::fromUtf16(info.pPrinterName);
        printer.portName = QString::fromUtf16(info.pPortName).remove(QLatin1String("USB"));
        printer.driverName = QString::fromUtf16(info.pDriverName);

        const auto found =
            devices.serialNumbers.constFind(static_cast<quint16>(printer.portName.toUInt()));
        const bool isOnPort = found != devices.serialNumbers.cend();
        printer.serialNumber = isOnPort ? *found : devices.last;
        if (isOnPort && !settings) {
            settings.emplace(QSettings::IniFormat, QSettings::UserScope,
                             QStringLiteral("Harlow Devices Inc"), QStringLiteral("Quillmark"));
            settings->setFallbacksEnabled(false);
            settings->beginGroup(QStringLiteral("associatedPrinters"));
        }
        if (isOnPort && !settings->contains(printer.serialNumber))
            settings->setValue(printer.serialNumber, QDateTime::currentDateTime().toString(
                                                         QStringLiteral("yyyy-MM-dd hh:mm:ss")));

        constexpr DWORD reach = PRINTER_ATTRIBUTE_NETWORK | PRINTER_ATTRIBUTE_LOCAL;
        printer.isNetworkPrinter = (info.Attributes & reach) != PRINTER_ATTRIBUTE_LOCAL ||
                                   printer.portName.count(QLatin1Char('.')) == 3;
        printer.isShared = (info.Attributes & PRINTER_ATTRIBUTE_SHARED) != 0;
        printer.isOffline = (info.Attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE) ||
                            (info.Status & PRINTER_STATUS_OFFLINE);
    }
    return printers;
}

} // namespace by_hand
