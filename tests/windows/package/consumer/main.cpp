// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <print_job_meta_data.h>
#include <printer_status_controller.h>
#include <printer_status_information.h>
#include <printer_status_thread.h>
#include <printer_types.h>
#include <status_codes.h>
#include <supply_information.h>
#include <vx_ipc_m4_controller.h>
#include <vx_ipc_printqd_controller.h>
#include <vx_ipc_supplyd_controller.h>
#include <windows_printer_info.h>

#include <QtCore/QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    for (const QMetaObject* each :
         {&PrinterStatusController::staticMetaObject, &PrinterStatusThread::staticMetaObject,
          &VXIPCM4Controller::staticMetaObject, &VXIPCPRINTQDController::staticMetaObject,
          &VXIPCSUPPLYDController::staticMetaObject})
        std::printf("%s\n", each->className());

    // There is no such printer; its thread runs until it is stopped.
    PrinterStatusThread thread;
    thread.setMonitoredPrinterName(QStringLiteral("No Such Printer"));
    thread.start();
    while (!thread.wait(10))
        thread.stop();
    std::printf("type %d\n", static_cast<int>(WindowsPrinterInfo::printerType(
                                 QStringLiteral("Stratamark CedarMax"))));
    return 0;
}
