// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host that writes the library's log to a file. Usage: logging_host FILE
#include <FileAppender.h>
#include <Logger.h>
#include <printer_status_controller.h>

#include <QtCore/QCoreApplication>

static void keepLog(const QString& fileName)
{
    auto* file = new FileAppender(fileName);
    file->setDetailsLevel(Logger::Debug); // every line of the library is at this level
    Logger::globalInstance()->registerAppender(file);
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return 2;
    keepLog(QCoreApplication::arguments().at(1));
    PrinterStatusController printers;
    printers.sendToLogger("host is up");
    return 0;
}
