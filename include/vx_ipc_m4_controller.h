// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ivxipcm4.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QMap>
#include <QtCore/QString>

/// The printer-controller service: the status of each printer when it was found, and fixed answers
/// to everything else.
///
/// `PrinterStatusController` creates the service, and `getm4Controller()` returns it. Other
/// processes of the same user call its slots by the names and argument names below.
///
/// The service is deliberately a placeholder and reaches no printer. Every command does nothing and
/// returns true; every flag is true; every reading is 1 unless its comment says otherwise.
///
/// @code
/// VXIPCM4Controller* printers = controller.getm4Controller();
/// const int status = printers->getPrinterStatus(printerName);
/// @endcode
///
/// There are no locks: call all members on the thread that created the service, on which the calls
/// of other processes are answered too. The service has no signals.
class VX_PRINTERSTATUS_EXPORT VXIPCM4Controller : public IVXIPCM4
{
    Q_OBJECT

public:
    VXIPCM4Controller();
    ~VXIPCM4Controller() override;
    Q_DISABLE_COPY_MOVE(VXIPCM4Controller)

public Q_SLOTS:
    /// @name Status
    /// @{
    int getError() override;
    int getAlert() override;
    bool isPrinterReady() override;
    /// Emits nothing.
    bool emitError(int value) override;
    /// Emits nothing.
    bool emitAlert(int value) override;
    /// The status code that `onStatusChanged` stored last for exactly this printer name;
    /// `VXPrinting::StatusCodes::unknown` when there is none.
    int getPrinterStatus(QString printerName) override;
    /// Stores a printer's status code, which may be any number. The controller calls it once for
    /// each printer, when the printer gets its record; it does not pass on later changes of the
    /// status.
    void onStatusChanged(int status, const QString& printerName);
    /// @}

    /// @name Commands
    /// @{
    bool resetCutter() override;
    bool resetPrinter() override;
    bool cycleCutter() override;
    bool calibrateSupply() override;
    bool calibrateTach() override;
    bool setClearTailRibbon1(bool value) override;
    bool setClearTailRibbon2(bool value) override;
    bool setSupplySensor(int value, bool override) override;
    bool setSupplyWidth(bool value) override;
    bool setSupplyLED(bool value) override;
    bool setRibbon1Tension(float motor1Tension, float motor2Tension) override;
    bool setRibbon2Tension(float motor1Tension, float motor2Tension) override;
    bool cancelPrintJob() override;
    /// @}

    /// @name Identity and sensors
    /// @{

    /// Always "test".
    QString m4Version() override;
    /// Always "booga-booga".
    QString getSupplySKU() override;
    /// Always 0.
    int getBatteryStatus() override;
    uint bMark() override;
    uint gap() override;
    uint preCutter() override;
    uint ribbonClr1() override;
    uint ribbonClr2() override;
    uint ribbonEnc1() override;
    uint ribbonEnc2() override;
    uint ribbonEnc3() override;
    uint ribbonEnc4() override;
    bool cutterCover() override;
    bool cutterHome() override;
    bool printerLid() override;
    uint supplySensor() override;
    int ribbon1Mileage() override;
    int ribbon2Mileage() override;
    int supplyMileage() override;
    int printerMileage() override;
    /// @}

    /// @name Messages, motors and settings
    /// @{
    bool sendMCCMessage(int type, int definedMessage, qulonglong value = 0) override;
    bool sendMCCMessage(int type, int definedMessage, QString value) override;
    bool forwardFeed(uint steps) override;
    bool backwardFeed(uint steps) override;
    bool solenoid1() override;
    bool resetSolenoid1() override;
    bool solenoid2() override;
    bool resetSolenoid2() override;
    bool ribbon1() override;
    bool resetRibbon1() override;
    bool ribbon2() override;
    bool resetRibbon2() override;
    bool resetPaperMotor1() override;
    bool resetMotor() override;
    bool setUserSetting(int setting, int value) override;
    bool refreshSettings() override;
    bool refreshSensors() override;
    bool refreshAll() override;
    bool rfidTest() override;
    bool dumpSettings() override;
    /// @}

    /// @name Requests, and the readings that they ask for
    /// @{
    bool reqTph1Therm() override;
    bool reqTph2Therm() override;
    bool reqTph1HeatIndex() override;
    bool reqTph2HeatIndex() override;
    bool reqTach1Tension() override;
    bool reqTach2Tension() override;
    bool reqTach3Tension() override;
    bool reqTach4Tension() override;
    bool reqRibbon1Mileage() override;
    bool reqRibbon2Mileage() override;
    bool reqSupplyMileage() override;
    int tph1Therm() override;
    int tph2Therm() override;
    int tph1HeatIndexOffset() override;
    int tph2HeatIndexOffset() override;
    int tach1Tension() override;
    int tach2Tension() override;
    int tach3Tension() override;
    int tach4Tension() override;
    /// @}

    /// @name Accepted without effect
    /// @{
    void printJobStart(uint addr) override;
    void printJobAdded(uint addr) override;
    /// @}

private:
    QMap<QString, int> printerStatuses;
};
