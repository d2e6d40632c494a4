// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The window as a whole: how long it takes from the start of its process until printers are seen,
// and, with --storm [PRINTERS], how much memory an hour in which every printer changes ten times a
// second leaves behind.
#include "backend.h"
#include "benchmark_support.h"
#include "changing_reading.h"
#include "main_window.h"
#include "printer_source.h"
#include "view_language.h"
#include "view_settings.h"

#include <printer_list_view.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>

#include <malloc.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

using namespace std::chrono_literals;
using VxKit::PrinterEvent;
using VxKit::PrinterReading;

namespace {

constexpr int starts = 11;
constexpr int fleetSize = 40;
constexpr double startLimit = 500; // milliseconds
constexpr auto hangsAfter = 60s;
constexpr int changesPerSecond = 10;
constexpr int rounds = 3600 * changesPerSecond;
/// In rounds, of a printer: as many as are kept have happened within the first tenth of the hour.
constexpr int eventInterval = 15;
constexpr double mebibyte = 1024.0 * 1024.0;
/// What an hour may leave behind beyond what the first tenth of it needed.
constexpr double growthLimit = 1; // MiB
/// In rounds: another printer is chosen, and another roll is loaded. Curves grow meanwhile, so
/// memory is always counted at the same time after both.
constexpr int choiceInterval = rounds / 10 / 9;
constexpr int rollInterval = rounds / 10 / 4;

double sinceBoot()
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Milliseconds since this process was started. The system counts them in steps of 10.
double sinceStart()
{
    QFile file(QStringLiteral("/proc/self/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray line = file.readAll();
    // The name of the program, which is in brackets, may have spaces.
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    constexpr qsizetype startTime = 19; // field 22 of proc(5), counted from the third
    const double ticks = fields.value(startTime).toDouble();
    return sinceBoot() - ticks * 1e3 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// Ends the program at the first picture that has rows of printers.
class FirstPicture : public QObject
{
public:
    explicit FirstPicture(QListView& rows)
        : m_rows(rows)
    {
        rows.viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && m_rows.model()->rowCount() > 0)
            QTimer::singleShot(0, this, [] { // when it has been painted
                std::printf("%.1f\n", sinceStart());
                QCoreApplication::exit(0);
            });
        return false;
    }

private:
    QListView& m_rows;
};

/// What vxprintview does at its start.
int startOnce(const QString& fleetFile)
{
    const QTemporaryDir folder;
    CommandLine line;
    line.fleetFile = fleetFile;
    const std::unique_ptr<Backend> backend = Backend::create(line, {});
    ViewSettings settings(folder.filePath(QStringLiteral("view.ini")));
    ViewLanguage language;
    language.use(QStringLiteral("de"));
    PrinterSource::Options options;
    options.catalogueFile = backend->catalogueFile();
    PrinterSource source(options);
    MainWindow window(settings, language, {}, options.catalogueFile);
    window.setSource(source);
    window.show();
    const FirstPicture picture(*window.list().findChild<QListView*>());
    QObject::connect(&source, &PrinterSource::listed, &window,
                     [&] { backend->start([&source] { return source.watchedPrinters(); }); });
    source.start();
    QTimer::singleShot(hangsAfter, &window, [] { QCoreApplication::exit(1); });
    return QCoreApplication::exec();
}

QByteArray fleet()
{
    QByteArrayList printers;
    for (int number = 1; number <= fleetSize; ++number)
        printers.append(QStringLiteral(R"({"name": "Printer %1", "driver": "Stratamark AlderMax", )"
                                       R"("values": {"StatusCode": "1"}})")
                            .arg(number)
                            .toUtf8());
    return "{\"printers\": [" + printers.join(',') + "]}";
}

int measureStarts(const QString& program)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("fleet.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(fleet()) < 0)
        return 2;
    file.close();
    std::vector<double> times;
    for (int start = 0; start < starts; ++start) {
        QProcess process;
        process.start(program, {QStringLiteral("--once"), file.fileName()});
        if (!process.waitForFinished(-1) || process.exitCode() != 0) {
            std::fprintf(stderr, "a start failed: %s\n", process.readAllStandardError().data());
            return 2;
        }
        times.push_back(process.readAllStandardOutput().trimmed().toDouble());
    }
    std::printf("from the start of the process to the first picture of %d printers: median %.0f "
                "ms, worst of %d: %.0f ms\n",
                fleetSize, benchmark_support::median(times), starts,
                benchmark_support::quantile(times, 1.0));
    benchmark_support::Limits limits;
    limits.atMost("the first picture of the window", benchmark_support::median(times), startLimit,
                  "ms");
    return limits.conclude() ? 0 : 1;
}

struct Memory
{
    double used = 0;     ///< MiB that the program has allocated
    double resident = 0; ///< MiB that it occupies
};

Memory memory()
{
    Memory result;
    const struct mallinfo2 info = mallinfo2();
    result.used = static_cast<double>(info.uordblks + info.hblkhd) / mebibyte;
    QFile file(QStringLiteral("/proc/self/statm"));
    if (file.open(QIODevice::ReadOnly))
        result.resident = file.readAll().split(' ').value(1).toDouble() *
                          static_cast<double>(sysconf(_SC_PAGESIZE)) / mebibyte;
    return result;
}

PrinterReading readingOf(int number, int round)
{
    return changingReading(number, round, rollInterval,
                           QStringLiteral("%1").arg(round / rollInterval));
}

PrinterEvent eventOf(int number, int round)
{
    PrinterEvent event;
    event.time = QDateTime::currentDateTimeUtc();
    event.kind = PrinterEvent::Kind::Status;
    event.severity = VxKit::Severity::Error;
    event.printer = QStringLiteral("Printer %1").arg(number);
    event.code = 4;
    event.key = QStringLiteral("cover_open_%1").arg(round % rollInterval); // many kinds of notices
    event.before.code = VXPrinting::StatusCodes::ready;
    return event;
}

/// An hour of a fleet in which everything changes all the time, as fast as it goes.
int storm(int printerCount)
{
    const QTemporaryDir folder;
    ViewSettings settings(folder.filePath(QStringLiteral("view.ini")));
    ViewLanguage language;
    MainWindow window(settings, language, {}, {});
    int notices = 0;
    QObject::connect(&window, &MainWindow::noticed, [&notices] { ++notices; });
    window.resize(1200, 900);
    window.show();
    window.setListed();
    QElapsedTimer clock;
    clock.start();
    Memory early;
    for (int round = 0; round < rounds; ++round) {
        QList<PrinterReading> readings;
        QList<PrinterEvent> events;
        for (int number = 0; number < printerCount; ++number) {
            readings.append(readingOf(number, round));
            if ((round + number) % eventInterval == 0)
                events.append(eventOf(number, round));
        }
        window.setReadings(readings);
        window.addEvents(events);
        if (round % choiceInterval == 0)
            window.showPrinter(readings.at(round / choiceInterval % printerCount).name());
        QCoreApplication::processEvents();
        if ((round + 1) % (rounds / 10) == 0) {
            readings.clear();
            const Memory now = memory();
            if (early.used == 0)
                early = now;
            std::printf("%3d min: %.2f MiB in use, %.1f MiB resident (%.0f s, %d notices)\n",
                        (round + 1) / changesPerSecond / 60, now.used, now.resident,
                        static_cast<double>(clock.elapsed()) / 1e3, notices);
            std::fflush(stdout);
        }
    }
    benchmark_support::Limits limits;
    limits.atMost("memory left behind by an hour of " + std::to_string(printerCount) +
                      " printers that change ten times a second",
                  memory().used - early.used, growthLimit, "MiB");
    return limits.conclude() ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--once"))
        return startOnce(arguments.value(2));
    if (arguments.value(1) == QLatin1String("--storm"))
        return storm(arguments.size() > 2 ? arguments.at(2).toInt() : 200);
    return measureStarts(QCoreApplication::applicationFilePath());
}
