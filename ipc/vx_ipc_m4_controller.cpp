// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vx_ipc_m4_controller.h"

#include "server_types.h"
#include "status_codes.h"

namespace {

// The placeholder's answers, which clients rely on.
constexpr bool succeeded = true;
constexpr bool yes = true;
constexpr int reading = 1;

} // namespace

VXIPCM4Controller::VXIPCM4Controller()
    : IVXIPCM4(PrinterControllerServer, nullptr)
{}

VXIPCM4Controller::~VXIPCM4Controller() = default;

int VXIPCM4Controller::getPrinterStatus(QString printerName)
{
    return printerStatuses.value(printerName, VXPrinting::StatusCodes::unknown);
}

void VXIPCM4Controller::onStatusChanged(int status, const QString& printerName)
{
    printerStatuses.insert(printerName, status);
}

// One line for each function.
// clang-format off
int     VXIPCM4Controller::getError()                           { return reading; }
int     VXIPCM4Controller::getAlert()                           { return reading; }
bool    VXIPCM4Controller::isPrinterReady()                     { return yes; }
bool    VXIPCM4Controller::emitError(int)                       { return succeeded; }
bool    VXIPCM4Controller::emitAlert(int)                       { return succeeded; }
bool    VXIPCM4Controller::resetCutter()                        { return succeeded; }
bool    VXIPCM4Controller::resetPrinter()                       { return succeeded; }
bool    VXIPCM4Controller::cycleCutter()                        { return succeeded; }
bool    VXIPCM4Controller::calibrateSupply()                    { return succeeded; }
bool    VXIPCM4Controller::calibrateTach()                      { return succeeded; }
bool    VXIPCM4Controller::setClearTailRibbon1(bool)            { return succeeded; }
bool    VXIPCM4Controller::setClearTailRibbon2(bool)            { return succeeded; }
bool    VXIPCM4Controller::setSupplySensor(int, bool)           { return succeeded; }
bool    VXIPCM4Controller::setSupplyWidth(bool)                 { return succeeded; }
bool    VXIPCM4Controller::setSupplyLED(bool)                   { return succeeded; }
bool    VXIPCM4Controller::setRibbon1Tension(float, float)      { return succeeded; }
bool    VXIPCM4Controller::setRibbon2Tension(float, float)      { return succeeded; }
bool    VXIPCM4Controller::cancelPrintJob()                     { return succeeded; }
QString VXIPCM4Controller::m4Version()                          { return QStringLiteral("test"); }
QString VXIPCM4Controller::getSupplySKU()                       { return QStringLiteral("booga-booga"); }
int     VXIPCM4Controller::getBatteryStatus()                   { return 0; }
uint    VXIPCM4Controller::bMark()                              { return reading; }
uint    VXIPCM4Controller::gap()                                { return reading; }
uint    VXIPCM4Controller::preCutter()                          { return reading; }
uint    VXIPCM4Controller::ribbonClr1()                         { return reading; }
uint    VXIPCM4Controller::ribbonClr2()                         { return reading; }
uint    VXIPCM4Controller::ribbonEnc1()                         { return reading; }
uint    VXIPCM4Controller::ribbonEnc2()                         { return reading; }
uint    VXIPCM4Controller::ribbonEnc3()                         { return reading; }
uint    VXIPCM4Controller::ribbonEnc4()                         { return reading; }
bool    VXIPCM4Controller::cutterCover()                        { return yes; }
bool    VXIPCM4Controller::cutterHome()                         { return yes; }
bool    VXIPCM4Controller::printerLid()                         { return yes; }
uint    VXIPCM4Controller::supplySensor()                       { return reading; }
int     VXIPCM4Controller::ribbon1Mileage()                     { return reading; }
int     VXIPCM4Controller::ribbon2Mileage()                     { return reading; }
int     VXIPCM4Controller::supplyMileage()                      { return reading; }
int     VXIPCM4Controller::printerMileage()                     { return reading; }
bool    VXIPCM4Controller::sendMCCMessage(int, int, qulonglong) { return succeeded; }
bool    VXIPCM4Controller::sendMCCMessage(int, int, QString)    { return succeeded; }
bool    VXIPCM4Controller::forwardFeed(uint)                    { return succeeded; }
bool    VXIPCM4Controller::backwardFeed(uint)                   { return succeeded; }
bool    VXIPCM4Controller::solenoid1()                          { return succeeded; }
bool    VXIPCM4Controller::resetSolenoid1()                     { return succeeded; }
bool    VXIPCM4Controller::solenoid2()                          { return succeeded; }
bool    VXIPCM4Controller::resetSolenoid2()                     { return succeeded; }
bool    VXIPCM4Controller::ribbon1()                            { return succeeded; }
bool    VXIPCM4Controller::resetRibbon1()                       { return succeeded; }
bool    VXIPCM4Controller::ribbon2()                            { return succeeded; }
bool    VXIPCM4Controller::resetRibbon2()                       { return succeeded; }
bool    VXIPCM4Controller::resetPaperMotor1()                   { return succeeded; }
bool    VXIPCM4Controller::resetMotor()                         { return succeeded; }
bool    VXIPCM4Controller::setUserSetting(int, int)             { return succeeded; }
bool    VXIPCM4Controller::refreshSettings()                    { return succeeded; }
bool    VXIPCM4Controller::refreshSensors()                     { return succeeded; }
bool    VXIPCM4Controller::refreshAll()                         { return succeeded; }
bool    VXIPCM4Controller::rfidTest()                           { return succeeded; }
bool    VXIPCM4Controller::dumpSettings()                       { return succeeded; }
bool    VXIPCM4Controller::reqTph1Therm()                       { return succeeded; }
bool    VXIPCM4Controller::reqTph2Therm()                       { return succeeded; }
bool    VXIPCM4Controller::reqTph1HeatIndex()                   { return succeeded; }
bool    VXIPCM4Controller::reqTph2HeatIndex()                   { return succeeded; }
bool    VXIPCM4Controller::reqTach1Tension()                    { return succeeded; }
bool    VXIPCM4Controller::reqTach2Tension()                    { return succeeded; }
bool    VXIPCM4Controller::reqTach3Tension()                    { return succeeded; }
bool    VXIPCM4Controller::reqTach4Tension()                    { return succeeded; }
bool    VXIPCM4Controller::reqRibbon1Mileage()                  { return succeeded; }
bool    VXIPCM4Controller::reqRibbon2Mileage()                  { return succeeded; }
bool    VXIPCM4Controller::reqSupplyMileage()                   { return succeeded; }
int     VXIPCM4Controller::tph1Therm()                          { return reading; }
int     VXIPCM4Controller::tph2Therm()                          { return reading; }
int     VXIPCM4Controller::tph1HeatIndexOffset()                { return reading; }
int     VXIPCM4Controller::tph2HeatIndexOffset()                { return reading; }
int     VXIPCM4Controller::tach1Tension()                       { return reading; }
int     VXIPCM4Controller::tach2Tension()                       { return reading; }
int     VXIPCM4Controller::tach3Tension()                       { return reading; }
int     VXIPCM4Controller::tach4Tension()                       { return reading; }
void    VXIPCM4Controller::printJobStart(uint)                  { }
void    VXIPCM4Controller::printJobAdded(uint)                  { }
// clang-format on
