// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vx_ipc_m4_controller.h"

#include "server_types.h"

namespace {

constexpr int NeverReported = 255;

// What the placeholder answers: clients were written against exactly these.
constexpr bool Succeeded = true;
constexpr bool Yes = true;
constexpr int Reading = 1;

} // namespace

VXIPCM4Controller::VXIPCM4Controller()
    : IVXIPCM4(PrinterControllerServer, nullptr)
{}

VXIPCM4Controller::~VXIPCM4Controller() = default;

int VXIPCM4Controller::getPrinterStatus(QString printerName)
{
    return printerStatuses.value(printerName, NeverReported);
}

void VXIPCM4Controller::onStatusChanged(int status, const QString& printerName)
{
    printerStatuses.insert(printerName, status);
}

// One line an answer.
// clang-format off
int     VXIPCM4Controller::getError()                           { return Reading; }
int     VXIPCM4Controller::getAlert()                           { return Reading; }
bool    VXIPCM4Controller::isPrinterReady()                     { return Yes; }
bool    VXIPCM4Controller::emitError(int)                       { return Succeeded; }
bool    VXIPCM4Controller::emitAlert(int)                       { return Succeeded; }
bool    VXIPCM4Controller::resetCutter()                        { return Succeeded; }
bool    VXIPCM4Controller::resetPrinter()                       { return Succeeded; }
bool    VXIPCM4Controller::cycleCutter()                        { return Succeeded; }
bool    VXIPCM4Controller::calibrateSupply()                    { return Succeeded; }
bool    VXIPCM4Controller::calibrateTach()                      { return Succeeded; }
bool    VXIPCM4Controller::setClearTailRibbon1(bool)            { return Succeeded; }
bool    VXIPCM4Controller::setClearTailRibbon2(bool)            { return Succeeded; }
bool    VXIPCM4Controller::setSupplySensor(int, bool)           { return Succeeded; }
bool    VXIPCM4Controller::setSupplyWidth(bool)                 { return Succeeded; }
bool    VXIPCM4Controller::setSupplyLED(bool)                   { return Succeeded; }
bool    VXIPCM4Controller::setRibbon1Tension(float, float)      { return Succeeded; }
bool    VXIPCM4Controller::setRibbon2Tension(float, float)      { return Succeeded; }
bool    VXIPCM4Controller::cancelPrintJob()                     { return Succeeded; }
QString VXIPCM4Controller::m4Version()                          { return QStringLiteral("test"); }
QString VXIPCM4Controller::getSupplySKU()                       { return QStringLiteral("booga-booga"); }
int     VXIPCM4Controller::getBatteryStatus()                   { return 0; }
uint    VXIPCM4Controller::bMark()                              { return Reading; }
uint    VXIPCM4Controller::gap()                                { return Reading; }
uint    VXIPCM4Controller::preCutter()                          { return Reading; }
uint    VXIPCM4Controller::ribbonClr1()                         { return Reading; }
uint    VXIPCM4Controller::ribbonClr2()                         { return Reading; }
uint    VXIPCM4Controller::ribbonEnc1()                         { return Reading; }
uint    VXIPCM4Controller::ribbonEnc2()                         { return Reading; }
uint    VXIPCM4Controller::ribbonEnc3()                         { return Reading; }
uint    VXIPCM4Controller::ribbonEnc4()                         { return Reading; }
bool    VXIPCM4Controller::cutterCover()                        { return Yes; }
bool    VXIPCM4Controller::cutterHome()                         { return Yes; }
bool    VXIPCM4Controller::printerLid()                         { return Yes; }
uint    VXIPCM4Controller::supplySensor()                       { return Reading; }
int     VXIPCM4Controller::ribbon1Mileage()                     { return Reading; }
int     VXIPCM4Controller::ribbon2Mileage()                     { return Reading; }
int     VXIPCM4Controller::supplyMileage()                      { return Reading; }
int     VXIPCM4Controller::printerMileage()                     { return Reading; }
bool    VXIPCM4Controller::sendMCCMessage(int, int, qulonglong) { return Succeeded; }
bool    VXIPCM4Controller::sendMCCMessage(int, int, QString)    { return Succeeded; }
bool    VXIPCM4Controller::forwardFeed(uint)                    { return Succeeded; }
bool    VXIPCM4Controller::backwardFeed(uint)                   { return Succeeded; }
bool    VXIPCM4Controller::solenoid1()                          { return Succeeded; }
bool    VXIPCM4Controller::resetSolenoid1()                     { return Succeeded; }
bool    VXIPCM4Controller::solenoid2()                          { return Succeeded; }
bool    VXIPCM4Controller::resetSolenoid2()                     { return Succeeded; }
bool    VXIPCM4Controller::ribbon1()                            { return Succeeded; }
bool    VXIPCM4Controller::resetRibbon1()                       { return Succeeded; }
bool    VXIPCM4Controller::ribbon2()                            { return Succeeded; }
bool    VXIPCM4Controller::resetRibbon2()                       { return Succeeded; }
bool    VXIPCM4Controller::resetPaperMotor1()                   { return Succeeded; }
bool    VXIPCM4Controller::resetMotor()                         { return Succeeded; }
bool    VXIPCM4Controller::setUserSetting(int, int)             { return Succeeded; }
bool    VXIPCM4Controller::refreshSettings()                    { return Succeeded; }
bool    VXIPCM4Controller::refreshSensors()                     { return Succeeded; }
bool    VXIPCM4Controller::refreshAll()                         { return Succeeded; }
bool    VXIPCM4Controller::rfidTest()                           { return Succeeded; }
bool    VXIPCM4Controller::dumpSettings()                       { return Succeeded; }
bool    VXIPCM4Controller::reqTph1Therm()                       { return Succeeded; }
bool    VXIPCM4Controller::reqTph2Therm()                       { return Succeeded; }
bool    VXIPCM4Controller::reqTph1HeatIndex()                   { return Succeeded; }
bool    VXIPCM4Controller::reqTph2HeatIndex()                   { return Succeeded; }
bool    VXIPCM4Controller::reqTach1Tension()                    { return Succeeded; }
bool    VXIPCM4Controller::reqTach2Tension()                    { return Succeeded; }
bool    VXIPCM4Controller::reqTach3Tension()                    { return Succeeded; }
bool    VXIPCM4Controller::reqTach4Tension()                    { return Succeeded; }
bool    VXIPCM4Controller::reqRibbon1Mileage()                  { return Succeeded; }
bool    VXIPCM4Controller::reqRibbon2Mileage()                  { return Succeeded; }
bool    VXIPCM4Controller::reqSupplyMileage()                   { return Succeeded; }
int     VXIPCM4Controller::tph1Therm()                          { return Reading; }
int     VXIPCM4Controller::tph2Therm()                          { return Reading; }
int     VXIPCM4Controller::tph1HeatIndexOffset()                { return Reading; }
int     VXIPCM4Controller::tph2HeatIndexOffset()                { return Reading; }
int     VXIPCM4Controller::tach1Tension()                       { return Reading; }
int     VXIPCM4Controller::tach2Tension()                       { return Reading; }
int     VXIPCM4Controller::tach3Tension()                       { return Reading; }
int     VXIPCM4Controller::tach4Tension()                       { return Reading; }
void    VXIPCM4Controller::printJobStart(uint)                  { }
void    VXIPCM4Controller::printJobAdded(uint)                  { }
// clang-format on
