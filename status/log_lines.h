// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QDebug>
#include <QtCore/QString>

#include <cute_logger.h>

/// The fixed lines of the library's log.
///
/// People who support printers search logs for these, by text and by place, and logs of many
/// versions are compared. So the place that a line names is its identity, kept here, and does not
/// follow the source when that is edited. Every line is written at debug level, the "ERROR:" ones
/// too.
namespace log_lines {

struct LogLine
{
    const char* file;
    int number;
    const char* function;
    const char* message; ///< printf-style; null for the lines that are streamed
};

// The monitoring thread's; %s is the monitored printer.
inline constexpr char threadFile[] = "printer_status_thread";
inline constexpr char initPrinterHandles[] =
    "bool PrinterStatusThread::initPrinterHandles(PHANDLE, PHANDLE)";
inline constexpr LogLine openingFailed{threadFile, 198, initPrinterHandles,
                                       "%s: Failed to open printer"};
// What fails is the change notification; the wording is older than it.
inline constexpr LogLine notificationFailed{threadFile, 208, initPrinterHandles,
                                            "%s: Failed to create event objects"};
inline constexpr LogLine fullAccessFailed{
    threadFile, 264,
    "void PrinterStatusThread::getLatestPrinterData(bool, HANDLE, QString&, QString&, QString&, "
    "QString&, QString&, QString&, QString&, QString&, QString&, QString&, QString&, QString&)",
    "%s: Failed to open printer with PRINTER_ALL_ACCESS"};

// The printer information's.
inline constexpr char infoFile[] = "windows_printer_info";
inline constexpr char getPrinterInfo2[] =
    "static PRINTER_INFO_2* WindowsPrinterInfo::getPrinterInfo2(HANDLE)";
inline constexpr LogLine printerInfoSizing{infoFile, 224, getPrinterInfo2, nullptr};
inline constexpr LogLine printerInfoMemory{infoFile, 233, getPrinterInfo2, nullptr};
inline constexpr LogLine printerInfoReading{infoFile, 244, getPrinterInfo2, nullptr};

// The controller's; %s is a printer, and in evaluatingPrinter the second its driver.
inline constexpr char controllerFile[] = "printer_status_controller";
inline constexpr LogLine evaluatingPrinter{
    controllerFile, 141, "void PrinterStatusController::checkForNewPrinter(AvailablePrinters)",
    "Evaluating Printer: %s ( %s )."};
inline constexpr LogLine activeFromUsersDefault{
    controllerFile, 187, "void PrinterStatusController::checkForNewPrinter(AvailablePrinters)",
    "Setting defaultActivePrinter %s from user-selected default."};
inline constexpr LogLine activeChosen{controllerFile, 263,
                                      "void PrinterStatusController::initializeDefaultPrinter()",
                                      "Setting defaultActivePrinter %s."};
inline constexpr char sendCommandToPrinter[] =
    "void PrinterStatusController::sendCommandToPrinter(QString, QString)";
inline constexpr LogLine commandOpeningFailed{controllerFile, 338, sendCommandToPrinter,
                                              "%s: OpenPrinter call failed"};
inline constexpr LogLine commandDocumentFailed{controllerFile, 350, sendCommandToPrinter,
                                               "ERROR: failed to start print job"};
inline constexpr LogLine commandPageFailed{controllerFile, 358, sendCommandToPrinter,
                                           "ERROR: failed to start new (virtual) page"};
inline constexpr LogLine commandWritingFailed{controllerFile, 367, sendCommandToPrinter,
                                              "ERROR: printer does not accept (all) data\n"};
inline constexpr LogLine hostsLine{controllerFile, 451,
                                   "void PrinterStatusController::sendToLogger(QString)", nullptr};
inline constexpr char onPrinterStatusChanged[] =
    "void PrinterStatusController::onPrinterStatusChanged(QString, QString)";
inline constexpr LogLine wentOffline{controllerFile, 486, onPrinterStatusChanged,
                                     "%s went offline"};
inline constexpr LogLine activeFromWindowsDefault{
    controllerFile, 535, onPrinterStatusChanged,
    "Setting defaultActivePrinter %s from Windows default."};
inline constexpr LogLine supplyChanged{
    controllerFile, 583, "void PrinterStatusController::onSupplyIdChanged(QString, QString)",
    nullptr};

/// Writes a line whose message is printf-style, with 8-bit text.
template <typename... Text>
void print(const LogLine& line, const Text&... text)
{
    CuteMessageLogger(VX_GLOBAL_LOGGER(), Logger::Debug, line.file, line.number, line.function)
        .write(line.message, static_cast<const char*>(text)...);
}

/// Writes a text as it stands.
inline void write(const LogLine& line, const QString& text)
{
    CuteMessageLogger(VX_GLOBAL_LOGGER(), Logger::Debug, line.file, line.number, line.function)
        .write(text);
}

/// Writes a line item by item: `items` streams them, each of which is followed by a blank.
template <typename Items>
void stream(const LogLine& line, Items&& items)
{
    QString text;
    {
        QDebug debug(&text);
        items(debug);
    }
    write(line, text);
}

} // namespace log_lines
