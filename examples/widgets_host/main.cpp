// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host with a window. Usage: widgets_host [--log FILE]
#include <FileAppender.h>
#include <Logger.h>
#include <printer_discovery.h>
#include <printer_list_model.h>
#include <printer_list_view.h>
#include <printer_readings.h>
#include <printer_status_controller.h>

#include <QtWidgets/QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    if (QCoreApplication::arguments().value(1) == "--log")
        Logger::globalInstance()->registerAppender(
            new FileAppender(QCoreApplication::arguments().value(2)));

    PrinterStatusController controller;
    VxKit::PrinterReadings readings(&controller);
    VxKit::PrinterDiscovery discovery(&controller);
    QObject::connect(&discovery, &VxKit::PrinterDiscovery::printersChanged, &readings,
                     &VxKit::PrinterReadings::refresh);
    VxKit::PrinterListModel printers;
    printers.setReadings(&readings);
    VxKit::PrinterListView view;
    view.setModel(&printers);
    view.show();
    return QApplication::exec();
}
