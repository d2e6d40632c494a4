// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host application with the status service, for tests of its clients. The printers are those of
// the fleet that the environment names.
//
//     status_host
//
// prints the name of the service and serves it until its standard input ends.
#include "ipc_host_main.h"

#include <printer_readings.h>
#include <printer_status_controller.h>
#include <status_endpoint.h>

#include <chrono>

using namespace std::chrono_literals;

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    PrinterStatusController controller;
    VxKit::PrinterReadings readings(&controller);
    const VxKit::StatusEndpoint endpoint(&readings);
    // Finds the printers that the fleet's story adds and removes.
    QTimer refresh;
    QObject::connect(&refresh, &QTimer::timeout, &readings, &VxKit::PrinterReadings::refresh);
    refresh.start(50ms);
    return serveUntilInputEnds({&endpoint});
}
