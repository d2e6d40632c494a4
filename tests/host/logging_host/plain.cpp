// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host that links only the library and ignores its log.
#include <printer_status_controller.h>

#include <QtCore/QCoreApplication>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    PrinterStatusController printers;
    printers.sendToLogger("host is up");
    return 0;
}
