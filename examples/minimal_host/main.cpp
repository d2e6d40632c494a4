// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host in one file. It prints the maker's label printers, and prints them again at every change,
// until it is interrupted or for the given number of seconds.
//
// Usage: minimal_host [--log FILE] [SECONDS]
//
// Each example is complete, so that you can copy it: all of them contain keepLog and the lines that
// load the translations, those of the titles and their own.
#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>
#include <printer_status_controller.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>

#include <cerrno>
#include <cstring>

static QTextStream out(stdout);
static int outputError = 0; // errno of the first failed write

/// The host's own texts. MinimalHost::tr() translates one.
struct MinimalHost
{
    Q_DECLARE_TR_FUNCTIONS(MinimalHost)
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

static void print(PrinterStatusController& printers)
{
    const QVariantList records = printers.getAvailablePrinters();
    for (const QVariant& entry : records) {
        const auto printer = entry.value<PrinterStatusInformation>();
        out << MinimalHost::tr("%1: %2, supply %3 %4 %, ribbon %5 %6 %")
                   .arg(printer.printerName,
                        printers.getStatusTitle(printer.statusEnum).simplified(), printer.supplySKU,
                        QString::number(printer.supplyPercentage), printer.ribbon1ColorName,
                        QString::number(printer.ribbon1Percentage))
            << '\n';
    }
    if (records.isEmpty())
        out << MinimalHost::tr("no printers") << '\n';
    out << MinimalHost::tr("active printer: %1").arg(printers.activeDefaultPrinter()) << '\n'
        << Qt::endl;
    if (out.status() != QTextStream::Ok && outputError == 0) {
        outputError = errno;
        QCoreApplication::exit();
    }
}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QTranslator titles;
    if (titles.load(QLocale(), "vxprinterstatus", "_", ":/vxprinterstatus/translations"))
        QCoreApplication::installTranslator(&titles);
    QTranslator texts;
    if (texts.load(QLocale(), "minimal_host", "_", ":/minimal_host/translations"))
        QCoreApplication::installTranslator(&texts);

    QStringList arguments = QCoreApplication::arguments().mid(1);
    QString logFile;
    if (arguments.size() > 1 && arguments.first() == "--log") {
        logFile = arguments.at(1);
        arguments = arguments.mid(2);
    }
    bool readable = true;
    const int seconds = arguments.isEmpty() ? 0 : arguments.first().toInt(&readable);
    if (!readable || seconds < 0) {
        QTextStream(stderr) << "minimal_host: " << MinimalHost::tr("expected a number of seconds")
                            << '\n';
        return 2;
    }
    keepLog(logFile);

    PrinterStatusController printers;
    print(printers);
    QObject::connect(&printers, &PrinterStatusController::availablePrintersUpdated,
                     [&printers] { print(printers); });

    if (!arguments.isEmpty())
        QTimer::singleShot(std::chrono::seconds(seconds), qApp, &QCoreApplication::quit);
    if (outputError == 0)
        QCoreApplication::exec();
    // A reader that closes the pipe has read all it wants, so that is no error.
    if (outputError == 0 || outputError == EPIPE)
        return 0;
    QTextStream(stderr) << "minimal_host: "
                        << MinimalHost::tr("standard output could not be written: %1")
                               .arg(QString::fromLocal8Bit(std::strerror(outputError)))
                        << '\n';
    return 1;
}
