// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host for tst_case_recorder, in one of these ways:
//
//   storm FILE LIMIT   printers change all the time, and everything is recorded until it is killed
//   full FILE          its files cannot grow, as on a full disk, and then they can
//   host               has no code for recording; VX_RECORD may ask for it
//   unlogged [FILE]    registers no appender for its log, and is recorded if there is a file
#include <case_recorder.h>
#include <printer_readings.h>
#include <printer_status_controller.h>
#include <virtualwindows/machine.h>

#include <ConsoleAppender.h>
#include <Logger.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>

#include <csignal>
#include <cstdio>
#include <memory>

#include <sys/resource.h>

using virtualwindows::Machine;
using virtualwindows::PrinterValue;

namespace {

constexpr int printerCount = 20;

QString nameOf(int number)
{
    return QStringLiteral("Label printer %1").arg(number);
}

void addPrinters()
{
    for (int number = 0; number < printerCount; ++number) {
        virtualwindows::PrinterSetup setup;
        setup.name = nameOf(number);
        setup.driver = QStringLiteral("Stratamark AlderMax");
        setup.port = QStringLiteral("USB%1").arg(number + 1, 3, 10, QLatin1Char('0'));
        Machine::instance().addPrinter(setup);
    }
    Machine::instance().setDefaultPrinter(nameOf(3));
}

void change(quint32 number)
{
    for (int printer = 0; printer < printerCount; ++printer)
        Machine::instance().publish(
            nameOf(printer),
            {PrinterValue::text("StatusCode", QByteArray::number(1 + number % 3)),
             PrinterValue::text("SupplyIdentifier",
                                "00000064" + QByteArray::number(100001 + number % 9) + "00000A"),
             PrinterValue::number("Mileage", number % 30000)});
}

int storm(const QString& fileName, qint64 limit)
{
    VxKit::CaseRecorderOptions options;
    options.fileName = fileName;
    options.maxFileSize = limit;
    options.lookInterval = std::chrono::milliseconds(20);
    const VxKit::CaseRecorder recorder(options);
    PrinterStatusController controller;
    const_cast<VxKit::CaseRecorder&>(recorder).setController(&controller);
    quint32 number = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &controller, [&number] { change(++number); });
    timer.start(2);
    std::puts("recording");
    std::fflush(stdout);
    return QCoreApplication::exec();
}

bool limitFiles(rlim_t size)
{
    rlimit limit = {};
    if (getrlimit(RLIMIT_FSIZE, &limit) != 0)
        return false;
    limit.rlim_cur = size;
    return setrlimit(RLIMIT_FSIZE, &limit) == 0;
}

/// Prints what was lost.
int full(const QString& fileName)
{
    std::signal(SIGXFSZ, SIG_IGN);
    VxKit::CaseRecorderOptions options;
    options.fileName = fileName;
    options.isPlain = true;
    VxKit::CaseRecorder recorder(options);
    PrinterStatusController controller;
    recorder.setController(&controller);
    const auto play = [&](quint32 number) {
        change(number);
        Machine::instance().waitForWaitingThreads(printerCount);
        QCoreApplication::processEvents();
        return recorder.flush(QDeadlineTimer::Forever);
    };
    if (!play(1) || !limitFiles(rlim_t(recorder.summary().bytes) + 501))
        return 1;
    if (play(2) || recorder.errorString().isEmpty() || !limitFiles(RLIM_INFINITY))
        return 1;
    // It is tried again after a second.
    for (quint32 number = 3; !play(number); ++number)
        continue;
    recorder.stop();
    std::printf("%lld\n", static_cast<long long>(recorder.summary().lost));
    return recorder.errorString().isEmpty() ? 0 : 1;
}

int host()
{
    PrinterStatusController controller;
    const VxKit::PrinterReadings readings(&controller);
    change(7);
    Machine::instance().waitForWaitingThreads(printerCount);
    QTimer::singleShot(0, qApp, [] { QCoreApplication::quit(); });
    return QCoreApplication::exec();
}

int unlogged(const QString& fileName)
{
    VxKit::CaseRecorderOptions options;
    options.fileName = fileName;
    options.lookInterval = std::chrono::milliseconds::zero();
    std::unique_ptr<VxKit::CaseRecorder> recorder;
    if (!fileName.isEmpty())
        recorder = std::make_unique<VxKit::CaseRecorder>(options);
    const PrinterStatusController controller;
    const auto settle = [&] {
        Machine::instance().waitForWaitingThreads(printerCount + (recorder ? 1 : 0));
        QCoreApplication::processEvents();
    };
    settle();
    change(7);
    settle();
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    addPrinters();
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1);
    if (what == QLatin1String("unlogged"))
        return unlogged(arguments.value(2));
    auto* const console = new ConsoleAppender;
    console->setDetailsLevel(Logger::Warning);
    Logger::globalInstance()->registerAppender(console);
    if (what == QLatin1String("storm"))
        return storm(arguments.value(2), arguments.value(3).toLongLong());
    return what == QLatin1String("full") ? full(arguments.value(2)) : host();
}
