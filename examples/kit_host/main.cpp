// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host on the kit. It prints a line for each of the maker's label printers, and again at every
// change, until it is interrupted or for the given number of seconds. Printers that come, go or are
// renamed are noticed.
//
// Usage: kit_host [--log FILE] [SECONDS]
//
// Each example is complete, so that you can copy it: all of them contain keepLog and the lines that
// load the texts.
#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>
#include <printer_discovery.h>
#include <printer_readings.h>
#include <printer_status_controller.h>
#include <status_info.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>

#include <cerrno>
#include <cstring>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

static QTextStream out(stdout);
static int outputError = 0; // errno of the first failed write

/// The host's own texts. KitHost::tr() translates one.
struct KitHost
{
    Q_DECLARE_TR_FUNCTIONS(KitHost)
};

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

static QString describe(const Level& level)
{
    switch (level.state) {
    case Level::State::NotKnown:
        return KitHost::tr("not known");
    case Level::State::Empty:
        return KitHost::tr("empty");
    case Level::State::NotInCatalogue:
        return KitHost::tr("%1, not in the catalogue").arg(level.identifier);
    case Level::State::Loaded:
        break;
    }
    // How much is left may not be known, which is something else than nothing.
    const QLocale locale;
    if (level.labels)
        return KitHost::tr("%1, %n label(s)", nullptr, *level.labels).arg(level.name);
    if (level.meters)
        return KitHost::tr("%1, %2 m").arg(level.name, locale.toString(*level.meters, 'f', 1));
    return level.name;
}

static QString titleOf(Slot slot)
{
    switch (slot) {
    case Slot::Supply:
        return KitHost::tr("supply");
    case Slot::Ribbon1:
        return KitHost::tr("ribbon 1");
    case Slot::Ribbon2:
        break;
    }
    return KitHost::tr("ribbon 2");
}

static QString describe(const PrinterReading& printer)
{
    QString line = printer.name() + ": ";
    if (printer.presence() == PrinterReading::Presence::Gone)
        line += KitHost::tr("removed from Windows");
    else
        line += VxKit::statusInfo(printer.statusCode()).shortTitle;
    const QList<Slot> slotsOfPrinter = printer.slotList();
    for (const Slot slot : slotsOfPrinter)
        line += "; " + titleOf(slot) + ' ' + describe(printer.level(slot));
    return line;
}

static void print(const PrinterReading& printer)
{
    // Many reports change nothing that is printed.
    static QHash<QString, QString> printed;
    const QString line = describe(printer);
    QString& last = printed[printer.name()];
    if (line == last)
        return;
    last = line;
    out << line << Qt::endl;
    if (out.status() != QTextStream::Ok && outputError == 0) {
        outputError = errno;
        QCoreApplication::exit();
    }
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    loadTexts("vxprinterstatus");
    loadTexts("vxprinterstatuskit");
    loadTexts("kit_host");

    QStringList arguments = QCoreApplication::arguments().mid(1);
    QString logFile;
    if (arguments.size() > 1 && arguments.first() == "--log") {
        logFile = arguments.at(1);
        arguments = arguments.mid(2);
    }
    bool readable = true;
    const int seconds = arguments.isEmpty() ? 0 : arguments.first().toInt(&readable);
    if (!readable || seconds < 0) {
        QTextStream(stderr) << "kit_host: " << KitHost::tr("expected a number of seconds") << '\n';
        return 2;
    }
    keepLog(logFile);

    PrinterStatusController controller;
    VxKit::PrinterReadings readings(&controller);
    VxKit::PrinterDiscovery discovery(&controller);
    QObject::connect(&discovery, &VxKit::PrinterDiscovery::printersChanged, &readings,
                     &VxKit::PrinterReadings::refresh);

    const auto printOne = [&readings](const QString& name) {
        print(readings.reading(name));
    };
    QObject::connect(&readings, &VxKit::PrinterReadings::added, printOne);
    QObject::connect(&readings, &VxKit::PrinterReadings::changed, printOne);
    QObject::connect(&readings, &VxKit::PrinterReadings::gone, printOne);
    QObject::connect(
        &readings, &VxKit::PrinterReadings::renamed,
        [printOne](const QString& /*oldName*/, const QString& newName) { printOne(newName); });
    const QList<PrinterReading> printers = readings.readings();
    for (const PrinterReading& printer : printers)
        print(printer);

    if (!arguments.isEmpty())
        QTimer::singleShot(std::chrono::seconds(seconds), qApp, &QCoreApplication::quit);
    if (outputError == 0)
        QCoreApplication::exec();
    // A reader that closes the pipe has read all it wants, so that is no error.
    if (outputError == 0 || outputError == EPIPE)
        return 0;
    QTextStream(stderr) << "kit_host: "
                        << KitHost::tr("standard output could not be written: %1")
                               .arg(QString::fromLocal8Bit(std::strerror(outputError)))
                        << '\n';
    return 1;
}
