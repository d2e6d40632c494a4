// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "log_line.h"

/// The log lines of the monitoring thread and of the controller.
namespace log_lines {

// Lines of the monitoring thread. %s is the monitored printer.
inline constexpr char threadFile[] = "printer_status_thread";
inline constexpr char initPrinterHandles[] =
    "bool PrinterStatusThread::initPrinterHandles(PHANDLE, PHANDLE)";
inline constexpr LogLine openingFailed{threadFile, 198, initPrinterHandles,
                                       "%s: Failed to open printer"};
// The failure is that of the change notification, although the text speaks of event objects.
inline constexpr LogLine notificationFailed{threadFile, 208, initPrinterHandles,
                                            "%s: Failed to create event objects"};
inline constexpr LogLine fullAccessFailed{
    threadFile, 264,
    "void PrinterStatusThread::getLatestPrinterData(bool, HANDLE, QString&, QString&, QString&, "
    "QString&, QString&, QString&, QString&, QString&, QString&, QString&, QString&, QString&)",
    "%s: Failed to open printer with PRINTER_ALL_ACCESS"};

// Lines of the controller. %s is a printer; the second one of evaluatingPrinter is its driver.
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

} // namespace log_lines
