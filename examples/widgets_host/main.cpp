// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_window.h"

#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QTranslator titles;
    if (titles.load(QLocale(), "vxprinterstatus", "_", ":/vxprinterstatus/translations"))
        QCoreApplication::installTranslator(&titles);

    PrinterWindow window;
    window.show();
    return QApplication::exec();
}
