// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "status_codes.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

/// The status record of one printer: a plain value, which the controller passes in a `QVariant`.
///
/// A host reads its members in C++, or its properties by name in QML:
/// @code
/// for (const QVariant& entry : controller.getAvailablePrinters()) {
///     const auto printer = entry.value<PrinterStatusInformation>();
///     qDebug() << printer.printerName << controller.getStatusTitle(printer.statusEnum);
/// }
/// @endcode
/// Texts are empty and percentages are 0 until the printer has reported them.
class VX_PRINTERSTATUS_EXPORT PrinterStatusInformation
{
    Q_GADGET
    Q_PROPERTY(QString printerName MEMBER printerName)
    Q_PROPERTY(int statusEnum MEMBER statusEnum)
    Q_PROPERTY(bool printerOnline MEMBER printerOnline)
    Q_PROPERTY(bool printerRemote MEMBER printerRemote)
    Q_PROPERTY(bool printerNonAdmin MEMBER printerNonAdmin)
    Q_PROPERTY(bool printerDefault MEMBER printerDefault)
    Q_PROPERTY(int ribbon1Percentage MEMBER ribbon1Percentage)
    Q_PROPERTY(QString ribbon1ColorHex MEMBER ribbon1ColorHex)
    Q_PROPERTY(QString ribbon1ColorName MEMBER ribbon1ColorName)
    Q_PROPERTY(QString ribbon1SKU MEMBER ribbon1SKU)
    Q_PROPERTY(int ribbon2Percentage MEMBER ribbon2Percentage)
    Q_PROPERTY(QString ribbon2ColorHex MEMBER ribbon2ColorHex)
    Q_PROPERTY(QString ribbon2ColorName MEMBER ribbon2ColorName)
    Q_PROPERTY(QString ribbon2SKU MEMBER ribbon2SKU)
    Q_PROPERTY(QString softwareVersion MEMBER softwareVersion)
    Q_PROPERTY(int supplyPercentage MEMBER supplyPercentage)
    Q_PROPERTY(QString supplyColorHex MEMBER supplyColorHex)
    Q_PROPERTY(QString supplyColorName MEMBER supplyColorName)
    Q_PROPERTY(QString supplySKU MEMBER supplySKU)
    Q_PROPERTY(QString supplyMaterialName MEMBER supplyMaterialName)
    Q_PROPERTY(bool ribbon2Visible MEMBER ribbon2Visible)

public:
    /// The printer's name in the Windows print spooler.
    QString printerName;
    /// Status code: one of `VXPrinting::StatusCodes`, anything else is the driver's error code.
    /// `PrinterStatusController::getStatusTitle` gives its title.
    int statusEnum = VXPrinting::StatusCodes::unknown;
    /// False when the printer was offline at its last status report.
    bool printerOnline = true;
    /// Whether it is a network printer, which is listed but never watched.
    bool printerRemote = false;
    /// Whether the user may not administer the printer, which is then listed but never watched.
    bool printerNonAdmin = false;
    /// Set when the printer becomes the active printer, and never cleared. Several records can have
    /// it set; `PrinterStatusController::activeDefaultPrinter` names the active printer.
    bool printerDefault = false;
    /// What is left of ribbon 1, in percent from 0 to 100; 0 also when that is not known.
    int ribbon1Percentage = 0;
    /// Ribbon 1's colour as "#rrggbb".
    QString ribbon1ColorHex;
    /// The name of ribbon 1's colour, in the application's language.
    QString ribbon1ColorName;
    /// Ribbon 1's stock-keeping unit.
    QString ribbon1SKU;
    /// What is left of ribbon 2, in percent from 0 to 100; 0 also when that is not known.
    int ribbon2Percentage = 0;
    /// Ribbon 2's colour as "#rrggbb".
    QString ribbon2ColorHex;
    /// The name of ribbon 2's colour, in the application's language.
    QString ribbon2ColorName;
    /// Ribbon 2's stock-keeping unit.
    QString ribbon2SKU;
    /// The firmware's version, with all its parts, as the printer reports it.
    QString softwareVersion;
    /// What is left of the supply, in percent from 0 to 100; 0 also when that is not known.
    int supplyPercentage = 0;
    /// The supply's colour as "#rrggbb".
    QString supplyColorHex;
    /// The name of the supply's colour, in the application's language.
    QString supplyColorName;
    /// The supply's stock-keeping unit; `VXPrinting::nothingLoaded` when no supply is loaded.
    QString supplySKU;
    /// The name of the supply's material, in the application's language.
    QString supplyMaterialName;
    /// Whether the model has a second ribbon.
    bool ribbon2Visible = false;
};
Q_DECLARE_METATYPE(PrinterStatusInformation)
