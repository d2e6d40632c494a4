// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Writes a history of a week that ends now, in which a printer used two rolls of labels and a
// ribbon in two shifts a day, and was out of labels for a night. The pictures of the window show
// it.
//
//     vx_week_of_use FILE PRINTER METERS-LEFT
//
// At the end, METERS-LEFT are left of the roll of yellow vinyl 000000641000030000A7.
#include <printer_reading.h>
#include <usage_history.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QRandomGenerator>

#include <algorithm>
#include <cstdio>

namespace {

constexpr double rollMeters = 30.48;
constexpr double ribbonMeters = 120.0;
constexpr qint64 step = 600; // seconds

VxKit::Level levelOf(const QString& identifier, const QString& sku, const QString& name,
                     double meters, double total)
{
    VxKit::Level level;
    level.state = VxKit::Level::State::Loaded;
    level.identifier = identifier;
    level.sku = sku;
    level.name = name;
    level.meters = std::max(meters, 0.0);
    level.totalMeters = total;
    level.ratio = *level.meters / total;
    return level;
}

/// What is used in ten minutes: nothing at night, less around noon.
double useAt(const QDateTime& time, QRandomGenerator& random)
{
    const int hour = time.toLocalTime().time().hour();
    if (hour < 6 || hour >= 22)
        return 0;
    const double usual = hour == 12 ? 0.05 : 0.13;
    return usual * random.bounded(2.0);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        std::fputs("vx_week_of_use: expected FILE PRINTER METERS-LEFT\n", stderr);
        return 2;
    }
    QRandomGenerator random(1);

    // Backwards from what is left now.
    const QDateTime now = QDateTime::currentDateTimeUtc();
    struct Point
    {
        QDateTime time;
        double supply;
        double ribbon;
    };
    QList<Point> points;
    double supply = arguments.at(3).toDouble();
    double ribbon = 50.4;
    for (QDateTime time = now.addSecs(-step); time > now.addDays(-7); time = time.addSecs(-step)) {
        const double use = useAt(time, random);
        supply += use;
        ribbon = std::min(ribbon + use, ribbonMeters);
        if (supply > rollMeters)
            supply = use;
        points.prepend({time, supply, ribbon});
    }

    VxKit::UsageHistoryOptions options;
    options.fileName = arguments.at(1);
    options.maxQueuedSamples = 100000;
    VxKit::UsageHistory history(options);
    VxKit::PrinterReading reading;
    reading.setName(arguments.at(2));
    for (const Point& point : std::as_const(points)) {
        reading.setLevel(VxKit::Slot::Supply,
                         levelOf(QStringLiteral("000000641000030000A7"),
                                 QStringLiteral("VT-400-YL"), QStringLiteral("Yellow Vinyl"),
                                 point.supply, rollMeters));
        reading.setLevel(VxKit::Slot::Ribbon1,
                         levelOf(QStringLiteral("2001"), QStringLiteral("RS-43-BK"),
                                 QStringLiteral("Black resin"), point.ribbon, ribbonMeters));
        history.record(reading, point.time);
    }
    if (!history.flush(QDeadlineTimer(60000))) {
        std::fprintf(stderr, "vx_week_of_use: %s\n", qPrintable(history.errorString()));
        return 1;
    }
    return 0;
}
