// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Prints metrics of printers of which everything is known, nothing, or something hostile, for
// test_metrics.py and test_prometheus.py. With "--open", as OpenMetrics.
#include <metrics_text.h>

#include <QtCore/QStringList>

#include <cstdio>
#include <limits>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace {

PrinterReading named(const QString& name)
{
    PrinterReading reading;
    reading.setName(name);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setDriver(name);
    reading.setPort(name);
    reading.setSerialNumber(name);
    reading.setFirmwareVersion(name);
    reading.setPresent();
    reading.setWatching(PrinterReading::Watching::Watched);
    reading.setStatusCode(2);
    reading.setOnline(true);
    reading.setLastReport(QDateTime::currentDateTimeUtc());
    return reading;
}

Level level(double ratio, const QString& text)
{
    Level level;
    level.state = Level::State::Loaded;
    level.identifier = text;
    level.sku = text;
    level.material = text;
    level.ratio = ratio;
    level.meters = 1e-9 + ratio * 1e6;
    level.labels = std::numeric_limits<int>::max();
    return level;
}

} // namespace

int main(int argc, char* argv[])
{
    const QStringList names{
        QStringLiteral("Shipping"),
        QStringLiteral("\"} 1\nvx_printer_online{printer=\"forged\"} 1"),
        QStringLiteral("back\\slash\\"),
        QStringLiteral("\\n"),
        QStringLiteral("東京 \U0001F5A8"),
        QStringLiteral("a\u202eb"),
        QStringLiteral("a\\u202eb"),
        QString(QChar(0xd800)) + QChar(0) + u'\r' + QChar(0x7f),
        QString(5000, u'x'),
        QString(5001, u'x'),
        QStringLiteral(" "),
    };
    QList<metrics_text::Printer> printers;
    for (const QString& name : names) {
        PrinterReading reading = named(name);
        for (const Slot slot : VxKit::allSlots) {
            reading.setLevel(slot, level(1.0 / 3, name));
            reading.setEstimatedSecondsRemaining(slot, VxKit::RemainingTime{0.5, 7200, 1e9});
        }
        printers.append({reading, {0.0, 1e-7, 123456789.125}});
    }
    PrinterReading unknown;
    unknown.setName(QStringLiteral("Unknown"));
    unknown.setPresent();
    unknown.setStatusCode(255);
    printers.append({unknown});

    const bool isOpen = argc > 1 && QByteArrayView(argv[1]) == "--open";
    const QByteArray text = metrics_text::text({QStringLiteral("1.0"), names.at(1)}, printers,
                                               isOpen ? metrics_text::Format::OpenMetrics
                                                      : metrics_text::Format::Prometheus);
    return std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout) ==
                   static_cast<std::size_t>(text.size())
               ? 0
               : 1;
}
