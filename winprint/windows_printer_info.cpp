// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "windows_printer_info.h"

#include "device_serial_numbers.h"
#include "printer_info_log_lines.h"
#include "printer_serial_file.h"
#include "spooler_record.h"
#include "wide_text.h"
#include "windows_handles.h"

#include <windowserrors.h>

#include <QtCore/QDebug>

#include <memory>
#include <stdexcept>
#include <string>

using VXPrinting::PrinterType;

namespace {

constexpr QLatin1String brandPrefix("Stratamark ");
constexpr QLatin1String makerPrefix("Harlow Devices ");

struct Model
{
    QLatin1String name;
    PrinterType type;
};
constexpr Model models[] = {
    {QLatin1String("Alder"), PrinterType::Alder},
    {QLatin1String("AlderMax"), PrinterType::AlderMax},
    {QLatin1String("BirchMax"), PrinterType::BirchMax},
    {QLatin1String("CedarMax"), PrinterType::CedarMax},
};

constexpr int partsOfAnIpv4Address = 4;

bool isOffline(const PRINTER_INFO_2W& info)
{
    return (info.Attributes & PRINTER_ATTRIBUTE_WORK_OFFLINE) ||
           (info.Status & PRINTER_STATUS_OFFLINE);
}

/// What is read or opened once for a whole enumeration.
struct Lookups
{
    DeviceSerialNumbers serialNumbers;
    PrinterSerialFile serialFile;

    QString serialNumberOnPort(unsigned short port)
    {
        const DeviceSerialNumbers::Answer answer = serialNumbers.onPort(port);
        if (answer.onPort)
            serialFile.record(answer.serialNumber);
        return answer.serialNumber;
    }
};

/// Fills everything of a record that depends on the port and the flags. `portName` must hold the
/// port's name in the spooler.
void fillFromPortAndFlags(AvailablePrinters& printer, const PRINTER_INFO_2W& info, Lookups& lookups)
{
    printer.portName.remove(QLatin1String("USB"));
    printer.serialNumber =
        lookups.serialNumberOnPort(static_cast<unsigned short>(printer.portName.toUInt()));

    constexpr DWORD reach = PRINTER_ATTRIBUTE_NETWORK | PRINTER_ATTRIBUTE_LOCAL;
    printer.isNetworkPrinter =
        (info.Attributes & reach) != PRINTER_ATTRIBUTE_LOCAL ||
        printer.portName.split(QLatin1Char('.')).size() == partsOfAnIpv4Address;
    printer.isShared = (info.Attributes & PRINTER_ATTRIBUTE_SHARED) != 0;
    printer.isOffline = isOffline(info);
}

using PrinterRecord = SpoolerRecord<PRINTER_INFO_2W, 2>;

/// Owns what `getPrinterInfo2` returns.
struct RecordDeleter
{
    void operator()(PRINTER_INFO_2W* info) const { std::free(info); }
};
using OwnedRecord = std::unique_ptr<PRINTER_INFO_2W, RecordDeleter>;

/// Which of the texts that every record must have is absent: "name", "port" or "driver"; null when
/// none is.
const char* missingText(const PRINTER_INFO_2W& info)
{
    if (!info.pPrinterName)
        return "name";
    if (!info.pPortName)
        return "port";
    return info.pDriverName ? nullptr : "driver";
}

/// Writes the code and the text of a Windows error as the log shows them.
void streamError(QDebug& stream, DWORD error)
{
    stream.noquote() << error << windows_errors::winError(error);
}

} // namespace

PRINTER_INFO_2W* WindowsPrinterInfo::getPrinterInfo2(HANDLE printer)
{
    auto record = PrinterRecord::ofPrinter(printer);
    switch (record.failure()) {
    case SpoolerRecordFailure::None:
        break;
    case SpoolerRecordFailure::Sizing:
        log_lines::stream(log_lines::printerInfoSizing,
                          [&](QDebug& line) { streamError(line, record.error()); });
        return nullptr;
    case SpoolerRecordFailure::Allocation:
        log_lines::stream(log_lines::printerInfoMemory,
                          [](QDebug& line) { line << "Failure to allocate memory."; });
        return nullptr;
    case SpoolerRecordFailure::Filling:
        log_lines::stream(log_lines::printerInfoReading, [&](QDebug& line) {
            line << "Failure to access the printer ";
            streamError(line, record.error());
        });
        return nullptr;
    }
    return record.release();
}

bool WindowsPrinterInfo::isPrinterOffline(PRINTER_INFO_2W* info)
{
    return isOffline(*info);
}

bool WindowsPrinterInfo::isPrinterOffline(HANDLE printer)
{
    const OwnedRecord info(getPrinterInfo2(printer));
    return !info || isOffline(*info);
}

bool WindowsPrinterInfo::isPrinterOffline(const QString& printerName)
{
    const PrinterHandle printer = openPrinter(printerName);
    return !printer.isValid() || isPrinterOffline(printer.get());
}

QString WindowsPrinterInfo::getDefaultPrinterName()
{
    DWORD length = 0;
    GetDefaultPrinterW(nullptr, &length);
    if (length == 0)
        return {};

    const auto name = std::make_unique<WCHAR[]>(length);
    if (!GetDefaultPrinterW(name.get(), &length))
        return {};
    return fromWide(name.get());
}

bool WindowsPrinterInfo::isPrinterAdmin(const QString& printerName)
{
    return openPrinterForAdministration(printerName).isValid();
}

PrinterType WindowsPrinterInfo::printerType(const QString& name)
{
    if (name.startsWith(brandPrefix, Qt::CaseInsensitive)) {
        const QStringView model = QStringView(name).sliced(brandPrefix.size());
        for (const Model& known : models) {
            if (model.compare(known.name, Qt::CaseInsensitive) == 0)
                return known.type;
        }
        return PrinterType::Generic;
    }
    if (name.startsWith(makerPrefix, Qt::CaseInsensitive))
        return PrinterType::Generic;
    return PrinterType::Unknown;
}

QList<AvailablePrinters> WindowsPrinterInfo::getAvailablePrinters()
{
    constexpr DWORD localAndConnected = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
    const auto records = PrinterRecord::ofPrinters(localAndConnected);
    if (records.all().empty())
        return {};

    QList<AvailablePrinters> printers;
    printers.reserve(static_cast<qsizetype>(records.all().size()));
    Lookups lookups;
    for (const PRINTER_INFO_2W& info : records.all()) {
        if (const char* const missing = missingText(info))
            throw std::logic_error(std::string("the print spooler lists a printer without a ") +
                                   missing);
        AvailablePrinters printer;
        printer.printerName = fromWide(info.pPrinterName);
        printer.portName = fromWide(info.pPortName);
        printer.driverName = fromWide(info.pDriverName);
        fillFromPortAndFlags(printer, info, lookups);
        printers.append(printer);
    }
    return printers;
}

AvailablePrinters WindowsPrinterInfo::getAvailablePrinterInfo(const QString& printerName)
{
    AvailablePrinters printer;
    printer.printerName = printerName;

    const PrinterHandle handle = openPrinter(printerName);
    if (!handle.isValid())
        return printer;
    const OwnedRecord info(getPrinterInfo2(handle.get()));
    if (!info)
        return printer;

    printer.portName = fromWide(info->pPortName);
    printer.driverName = fromWide(info->pDriverName);
    Lookups lookups;
    fillFromPortAndFlags(printer, *info, lookups);
    return printer;
}

QString WindowsPrinterInfo::getDriverGUID()
{
    return DeviceSerialNumbers::driverGuid();
}

QString WindowsPrinterInfo::getDeviceSerialNumber(unsigned short port)
{
    return Lookups().serialNumberOnPort(port);
}

QHash<unsigned short, QString> WindowsPrinterInfo::getDeviceSerialNumbers()
{
    return DeviceSerialNumbers().ofMakersDevices();
}

void WindowsPrinterInfo::addPrinterSerialToIniFile(const QString& serialNumber)
{
    PrinterSerialFile().record(serialNumber);
}
