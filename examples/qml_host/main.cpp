// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host with a window in QML.
//
// Usage: qml_host [--log FILE]
//
// Each example is complete, so that you can copy it: all of them contain keepLog and the lines that
// load the texts.
#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>
#include <printer_discovery.h>
#include <printer_list_model.h>
#include <printer_readings.h>
#include <printer_status_controller.h>

#include <QtCore/QTranslator>
#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickView>

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

static void loadTexts(const QString& name)
{
    auto* texts = new QTranslator(qApp);
    if (texts->load(QLocale(), name, "_", ":/" + name + "/translations"))
        QCoreApplication::installTranslator(texts);
}

int main(int argc, char* argv[])
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    keepLog(arguments.value(1) == "--log" ? arguments.value(2) : QString());

    loadTexts("vxprinterstatus");
    loadTexts("vxprinterstatuskit");
    loadTexts("qml_host");

    PrinterStatusController controller;
    VxKit::PrinterReadings readings(&controller);
    VxKit::PrinterDiscovery discovery(&controller);
    QObject::connect(&discovery, &VxKit::PrinterDiscovery::printersChanged, &readings,
                     &VxKit::PrinterReadings::refresh);
    VxKit::PrinterListModel printers;
    printers.setReadings(&readings);

    QQuickView view;
    view.setInitialProperties({{"printers", QVariant::fromValue(&printers)}});
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    view.setTitle(QCoreApplication::translate("Main", "Label printers"));
    view.setSource(QUrl("qrc:/Main.qml"));
    if (view.status() == QQuickView::Error)
        return 1;
    view.resize(560, 420);
    view.show();
    return QGuiApplication::exec();
}
