// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host with a window.
//
// Usage: widgets_host [--log FILE]
//
// Each example is complete, so that you can copy it: all of them contain keepLog and the lines that
// load the translations, those of the titles and their own.
#include "printer_window.h"

#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>

#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>

static void keepLog(const QString& fileName)
{
    auto* console = new ConsoleAppender;
    console->setDetailsLevel(Logger::Warning); // above every line of the library
    Logger::globalInstance()->registerAppender(console);
    if (fileName.isEmpty())
        return;
    auto* file = new FileAppender(fileName);
    file->setDetailsLevel(Logger::Debug); // every line of the library is at this level
    Logger::globalInstance()->registerAppender(file);
}

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    keepLog(arguments.value(1) == "--log" ? arguments.value(2) : QString());

    QTranslator titles;
    if (titles.load(QLocale(), "vxprinterstatus", "_", ":/vxprinterstatus/translations"))
        QCoreApplication::installTranslator(&titles);
    QTranslator texts;
    if (texts.load(QLocale(), "widgets_host", "_", ":/widgets_host/translations"))
        QCoreApplication::installTranslator(&texts);

    PrinterWindow window;
    window.show();
    return QApplication::exec();
}
