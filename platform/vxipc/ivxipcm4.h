// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxipcserver.h"

#include <QtCore/QSet>
#include <QtCore/QString>

/// The printer-controller service: queries and commands for a printer's controller board.
///
/// The order of the slots, their argument names and their default arguments form the service's
/// method table, which clients rely on.
///
/// An endpoint may also have a slot `onStatusChanged(int status, QString printerName)` and store
/// each name for as long as it lives. Other processes may therefore report at most 4096 names to
/// it, of at most 478 characters, which is the longest a printer's name can be on Windows with its
/// print server's.
class IVXIPCM4 : public VXIPCServer
{
    Q_OBJECT

public:
    /// Publishes the endpoint as VXIPCServer does.
    IVXIPCM4(int serverType, QObject* parent);
    ~IVXIPCM4() override;
    Q_DISABLE_COPY_MOVE(IVXIPCM4)

public Q_SLOTS:
    /// @name The service's methods
    /// `VXIPCM4Controller` is this library's implementation, and its header says what each does.
    /// @{
    virtual int getError() = 0;
    virtual int getAlert() = 0;
    virtual bool isPrinterReady() = 0;
    virtual bool emitError(int value) = 0;
    virtual bool emitAlert(int value) = 0;
    virtual int getPrinterStatus(QString printerName) = 0;
    virtual bool resetCutter() = 0;
    virtual bool resetPrinter() = 0;
    virtual bool cycleCutter() = 0;
    virtual bool calibrateSupply() = 0;
    virtual bool calibrateTach() = 0;
    virtual bool setClearTailRibbon1(bool value) = 0;
    virtual bool setClearTailRibbon2(bool value) = 0;
    virtual bool setSupplySensor(int value, bool override) = 0;
    virtual bool setSupplyWidth(bool value) = 0;
    virtual bool setSupplyLED(bool value) = 0;
    virtual bool setRibbon1Tension(float motor1Tension, float motor2Tension) = 0;
    virtual bool setRibbon2Tension(float motor1Tension, float motor2Tension) = 0;
    virtual bool cancelPrintJob() = 0;
    virtual QString m4Version() = 0;
    virtual QString getSupplySKU() = 0;
    virtual int getBatteryStatus() = 0;
    virtual uint bMark() = 0;
    virtual uint gap() = 0;
    virtual uint preCutter() = 0;
    virtual uint ribbonClr1() = 0;
    virtual uint ribbonClr2() = 0;
    virtual uint ribbonEnc1() = 0;
    virtual uint ribbonEnc2() = 0;
    virtual uint ribbonEnc3() = 0;
    virtual uint ribbonEnc4() = 0;
    virtual bool cutterCover() = 0;
    virtual bool cutterHome() = 0;
    virtual bool printerLid() = 0;
    virtual uint supplySensor() = 0;
    virtual int ribbon1Mileage() = 0;
    virtual int ribbon2Mileage() = 0;
    virtual int supplyMileage() = 0;
    virtual int printerMileage() = 0;
    virtual bool sendMCCMessage(int type, int definedMessage, qulonglong value = 0) = 0;
    virtual bool sendMCCMessage(int type, int definedMessage, QString value) = 0;
    virtual bool forwardFeed(uint steps) = 0;
    virtual bool backwardFeed(uint steps) = 0;
    virtual bool solenoid1() = 0;
    virtual bool resetSolenoid1() = 0;
    virtual bool solenoid2() = 0;
    virtual bool resetSolenoid2() = 0;
    virtual bool ribbon1() = 0;
    virtual bool resetRibbon1() = 0;
    virtual bool ribbon2() = 0;
    virtual bool resetRibbon2() = 0;
    virtual bool resetPaperMotor1() = 0;
    virtual bool resetMotor() = 0;
    virtual bool setUserSetting(int setting, int value) = 0;
    virtual bool refreshSettings() = 0;
    virtual bool refreshSensors() = 0;
    virtual bool refreshAll() = 0;
    virtual bool rfidTest() = 0;
    virtual bool dumpSettings() = 0;
    virtual bool reqTph1Therm() = 0;
    virtual bool reqTph2Therm() = 0;
    virtual bool reqTph1HeatIndex() = 0;
    virtual bool reqTph2HeatIndex() = 0;
    virtual bool reqTach1Tension() = 0;
    virtual bool reqTach2Tension() = 0;
    virtual bool reqTach3Tension() = 0;
    virtual bool reqTach4Tension() = 0;
    virtual bool reqRibbon1Mileage() = 0;
    virtual bool reqRibbon2Mileage() = 0;
    virtual bool reqSupplyMileage() = 0;
    virtual int tph1Therm() = 0;
    virtual int tph2Therm() = 0;
    virtual int tph1HeatIndexOffset() = 0;
    virtual int tph2HeatIndexOffset() = 0;
    virtual int tach1Tension() = 0;
    virtual int tach2Tension() = 0;
    virtual int tach3Tension() = 0;
    virtual int tach4Tension() = 0;
    virtual void printJobStart(uint addr) = 0;
    virtual void printJobAdded(uint addr) = 0;

private:
    QString objectionToStoring(const QString& printerName);

    /// Those that other processes have reported.
    QSet<QString> m_reportedPrinters;
    /// @}
};
