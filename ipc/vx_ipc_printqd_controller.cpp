// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vx_ipc_printqd_controller.h"

#include "server_types.h"

namespace {
constexpr bool succeeded = true;
}

VXIPCPRINTQDController::VXIPCPRINTQDController(QObject* parent)
    : IVXIPCPRINTQD(PrintQueueServer, parent)
{
    qRegisterMetaType<PrintJobMetaData>("PrintJobMetaData");
}

VXIPCPRINTQDController::~VXIPCPRINTQDController() = default;

// One line for each function.
// clang-format off
bool             VXIPCPRINTQDController::printQueueFull(uint)                           { return succeeded; }
bool             VXIPCPRINTQDController::printQueueComplete(uint)                       { return succeeded; }
void             VXIPCPRINTQDController::addJob(QString, QString, QString, int, int)    { }
QStringList      VXIPCPRINTQDController::getJobList()                                   { return {}; }
PrintJobMetaData VXIPCPRINTQDController::getJobInfo(QString)                            { return {}; }
bool             VXIPCPRINTQDController::reprintPrintJob()                              { return succeeded; }
bool             VXIPCPRINTQDController::retryPrintJob()                                { return succeeded; }
bool             VXIPCPRINTQDController::clearPrintJob()                                { return succeeded; }
bool             VXIPCPRINTQDController::clearAllPrintJobs()                            { return succeeded; }
// clang-format on
