// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "printer_status_thread.h"
#include "windows_printer_info.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonArray>
#include <QtCore/QTimer>

#include <csignal>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

void interrupt(int /*number*/)
{
    isInterrupted = 1;
}

using ValueSignal = void (PrinterStatusThread::*)(QString, const QString&);

/// How a signal is shown: under its own name and its argument's to programs, in words to people.
struct SignalText
{
    const char* name;
    const char* argument;
    const char* label;
};

constexpr SignalText ribbonsText{"ribbonIdsChanged", "newIds", "ribbons"};

struct WatchedSignal
{
    ValueSignal signal;
    SignalText text;
};
const WatchedSignal watchedSignals[] = {
    {&PrinterStatusThread::supplyIdChanged, {"supplyIdChanged", "newId", "supply"}},
    {&PrinterStatusThread::printerStatusChanged, {"printerStatusChanged", "newStatus", "status"}},
    {&PrinterStatusThread::supplyIntMileageChanged,
     {"supplyIntMileageChanged", "newMileage", "supply left"}},
    {&PrinterStatusThread::ribbon1IntMileageChanged,
     {"ribbon1IntMileageChanged", "newMileage", "ribbon 1 left"}},
    {&PrinterStatusThread::ribbon2IntMileageChanged,
     {"ribbon2IntMileageChanged", "newMileage", "ribbon 2 left"}},
    {&PrinterStatusThread::printerNameChangedSignal,
     {"printerNameChangedSignal", "newName", "name"}},
    {&PrinterStatusThread::softwareVersionChanged,
     {"softwareVersionChanged", "newVersion", "firmware"}},
    {&PrinterStatusThread::updateProgressChanged,
     {"updateProgressChanged", "newProgress", "update progress"}},
    {&PrinterStatusThread::updateErrorChanged, {"updateErrorChanged", "newError", "update error"}},
    {&PrinterStatusThread::ethernetConfigChanged,
     {"ethernetConfigChanged", "newEthernetConfig", "network"}},
};

Colour colourOf(const SignalText& text, const QString& value)
{
    if (qstrcmp(text.name, "printerStatusChanged") != 0)
        return Colour::None;
    return value == QLatin1String("1") ? Colour::Good : Colour::Bad;
}

/// Prints what the threads report, on the thread that the tool runs on.
class Reporter : public QObject
{
public:
    Reporter(const CommandLine& line, Output& output, qsizetype nameWidth)
        : m_json(line.json)
        , m_output(output)
        , m_nameWidth(nameWidth)
    {
        m_clock.start();
    }

    void watch(PrinterStatusThread& thread)
    {
        for (const WatchedSignal& watched : watchedSignals) {
            connect(&thread, watched.signal, this,
                    [this, text = watched.text](const QString& printer, const QString& value) {
                        report(text, printer, value, value);
                    });
        }
        connect(&thread, &PrinterStatusThread::ribbonIdsChanged, this,
                [this](const QString& printer, const QList<QString>& ids) {
                    report(ribbonsText, printer, QJsonArray::fromStringList(ids),
                           ids.join(QStringLiteral(", ")));
                });
    }

    void tell(const QString& caption)
    {
        if (!m_json)
            m_output.line({{clock(), Colour::Faint}, {caption, Colour::Heading}});
    }

private:
    QString clock() const
    {
        return QStringLiteral("%1 s  ").arg(static_cast<double>(m_clock.elapsed()) / 1000, 6, 'f',
                                            1);
    }

    void report(const SignalText& text, const QString& printer, const QJsonValue& value,
                const QString& words)
    {
        if (m_json) {
            m_output.text(Output::jsonObject({
                              {QStringLiteral("signal"), QString::fromLatin1(text.name)},
                              {QStringLiteral("dashboardPrinterName"), printer},
                              {QString::fromLatin1(text.argument), value},
                          }) +
                          QLatin1Char('\n'));
            return;
        }
        constexpr int labelWidth = 17;
        m_output.line({{clock(), Colour::Faint},
                       {printer.leftJustified(m_nameWidth + 2)},
                       {QString::fromLatin1(text.label).leftJustified(labelWidth), Colour::Faint},
                       {words.isEmpty() ? QStringLiteral("-") : words, colourOf(text, words)}});
    }

    bool m_json;
    Output& m_output;
    qsizetype m_nameWidth;
    QElapsedTimer m_clock;
};

/// The printers that a thread of the library can watch: of a supported model, attached to this
/// machine and managed by its user.
QStringList watchablePrinters()
{
    QStringList names;
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    for (const AvailablePrinters& printer : printers) {
        const bool isSupported =
            WindowsPrinterInfo::printerType(printer.driverName) > VXPrinting::PrinterType::Generic;
        if (isSupported && !printer.isNetworkPrinter &&
            WindowsPrinterInfo::isPrinterAdmin(printer.printerName))
            names.append(printer.printerName);
    }
    return names;
}

} // namespace

int runWatch(const CommandLine& line, Output& output, Scene& scene)
{
    const QStringList printers = watchablePrinters();
    if (printers.isEmpty()) {
        std::fputs("vxprintmon: there is no supported, local printer that may be managed\n",
                   stderr);
        return 1;
    }
    qsizetype nameWidth = 0;
    for (const QString& printer : printers)
        nameWidth = std::max(nameWidth, printer.size());

    Reporter reporter(line, output, nameWidth);
    QObject::connect(&scene, &Scene::told, &reporter, &Reporter::tell);
    std::vector<std::unique_ptr<PrinterStatusThread>> threads;
    for (const QString& printer : printers) {
        const auto& thread = threads.emplace_back(std::make_unique<PrinterStatusThread>());
        reporter.watch(*thread);
        thread->setMonitoredPrinterName(printer);
        thread->start();
    }

    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
    QTimer interruption;
    QObject::connect(&interruption, &QTimer::timeout, QCoreApplication::instance(), [] {
        if (isInterrupted)
            QCoreApplication::quit();
    });
    interruption.start(std::chrono::milliseconds(50));
    if (line.seconds)
        QTimer::singleShot(qRound(*line.seconds * 1000), Qt::PreciseTimer,
                           QCoreApplication::instance(), &QCoreApplication::quit);

    scene.begin();
    QCoreApplication::exec();

    // All are told first, so that they end beside each other.
    for (const auto& thread : threads)
        thread->stop();
    for (const auto& thread : threads) {
        while (!thread->wait(10))
            thread->stop();
    }
    return 0;
}
