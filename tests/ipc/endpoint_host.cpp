// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host application that serves all three endpoints, for tests that call them from another
// process.
//
//     endpoint_host [PRINTER]...
//
// prints the names of the endpoints of the supply database, the printer controller and the print
// queue, and serves them until its standard input ends. Each PRINTER has its own database object.
// The database is the file roll.db beside this program.
#include "ipc_host_main.h"

#include <vx_ipc_m4_controller.h>
#include <vx_ipc_printqd_controller.h>
#include <vx_ipc_supplyd_controller.h>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    VXIPCSUPPLYDController supplies;
    const VXIPCM4Controller printers;
    const VXIPCPRINTQDController printQueue;
    QStringList printerNames = QCoreApplication::arguments();
    printerNames.removeFirst();
    for (const QString& name : std::as_const(printerNames))
        supplies.addNewPrinter(name);
    return serveUntilInputEnds({&supplies, &printers, &printQueue});
}
