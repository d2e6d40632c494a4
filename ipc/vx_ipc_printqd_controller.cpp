// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vx_ipc_printqd_controller.h"

#include "server_types.h"

namespace {
constexpr bool Succeeded = true;
}

VXIPCPRINTQDController::VXIPCPRINTQDController(QObject* parent)
    : IVXIPCPRINTQD(PrintQueueServer, parent)
{
    qRegisterMetaType<PrintJobMetaData>("PrintJobMetaData");
}

VXIPCPRINTQDController::~VXIPCPRINTQDController() = default;

// One line an answer.
// clang-format off
bool             VXIPCPRINTQDController::printQueueFull(uint)                           { return Succeeded; }
bool             VXIPCPRINTQDController::printQueueComplete(uint)                       { return Succeeded; }
void             VXIPCPRINTQDController::addJob(QString, QString, QString, int, int)    { }
QStringList      VXIPCPRINTQDController::getJobList()                                   { return {}; }
PrintJobMetaData VXIPCPRINTQDController::getJobInfo(QString)                            { return {}; }
bool             VXIPCPRINTQDController::reprintPrintJob()                              { return Succeeded; }
bool             VXIPCPRINTQDController::retryPrintJob()                                { return Succeeded; }
bool             VXIPCPRINTQDController::clearPrintJob()                                { return Succeeded; }
bool             VXIPCPRINTQDController::clearAllPrintJobs()                            { return Succeeded; }
// clang-format on
