// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "metrics_text.h"

#include "shown_text.h"

#include <status_codes.h>
#include <status_info.h>

#include <QtCore/QLocale>
#include <QtCore/QMetaEnum>
#include <QtCore/QSet>
#include <QtCore/QTimeZone>

#include <cmath>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace {

using Format = metrics_text::Format;
using Printer = metrics_text::Printer;

constexpr qsizetype longestLabel = 256;
constexpr QByteArrayView counterEnding = "_total";

enum class Type
{
    Gauge,
    Counter,
    /// Quantiles of something that is not a sum of observations, so no summary.
    Untyped,
};

/// One metric: its samples stand together in the text.
class Family
{
public:
    /// `name` is that of the samples, with the "_total" of a counter.
    Family(QByteArray& text, Format format, const char* name, Type type, const char* help)
        : m_text(text)
        , m_name(name)
    {
        QByteArray described = m_name;
        if (format == Format::OpenMetrics && type == Type::Counter)
            described.chop(counterEnding.size());
        m_heading = "# HELP " + described + ' ' + help + "\n# TYPE " + described + ' ' +
                    typeName(type, format) + '\n';
    }

    void add(const QByteArray& labels, double value)
    {
        if (!std::isfinite(value))
            return;
        // A metric without samples is left out as a whole.
        m_text += m_heading;
        m_heading.clear();
        m_text += m_name;
        if (!labels.isEmpty())
            m_text.append('{').append(labels).append('}');
        m_text.append(' ')
            .append(QByteArray::number(value, 'g', QLocale::FloatingPointShortest))
            .append('\n');
    }
    void add(const QByteArray& labels, const std::optional<double>& value)
    {
        if (value)
            add(labels, *value);
    }

private:
    static const char* typeName(Type type, Format format)
    {
        switch (type) {
        case Type::Gauge:
            return "gauge";
        case Type::Counter:
            return "counter";
        case Type::Untyped:
            break;
        }
        return format == Format::OpenMetrics ? "unknown" : "untyped";
    }

    QByteArray& m_text;
    QByteArray m_name;
    QByteArray m_heading;
};

QByteArray label(const char* name, const QByteArray& value)
{
    return name + QByteArrayLiteral("=\"") + value + '"';
}

/// Preceded by a comma; empty for a text that is not known.
QByteArray furtherLabel(const char* name, const QString& text)
{
    return text.isEmpty() ? QByteArray() : ',' + label(name, metrics_text::labelValue(text));
}

/// A slot of a printer, with its labels, which many series have.
struct NamedSlot
{
    QByteArray labels;
    Level level;
    std::optional<VxKit::RemainingTime> remaining;
    std::optional<double> consumedMeters;
};

/// A printer with the label of its name.
struct Named
{
    PrinterReading reading;
    QByteArray label;
    QList<NamedSlot> slotList;
};

QList<NamedSlot> slotsOf(const Printer& printer, const QByteArray& printerLabel)
{
    QList<NamedSlot> named;
    for (const QList<Slot> all = printer.reading.slotList(); const Slot slot : all)
        named.append({printerLabel + furtherLabel("slot", VxKit::slotName(slot)),
                      printer.reading.level(slot), printer.reading.estimatedSecondsRemaining(slot),
                      printer.consumedMeters.at(static_cast<std::size_t>(slot))});
    return named;
}

QList<Named> presentPrinters(const QList<Printer>& printers)
{
    QList<Named> present;
    QSet<QByteArray> taken;
    for (const Printer& printer : printers) {
        if (printer.reading.presence() == PrinterReading::Presence::Gone)
            continue;
        const QByteArray name = metrics_text::labelValue(printer.reading.name());
        // One series too many would cost the whole scrape.
        QByteArray own = name;
        for (int number = 2; taken.contains(own); ++number)
            own = name + " (" + QByteArray::number(number) + ')';
        taken.insert(own);
        const QByteArray printerLabel = label("printer", own);
        present.append({printer.reading, printerLabel, slotsOf(printer, printerLabel)});
    }
    return present;
}

/// Whether it is known that the printer has an error, or that it has none.
bool isErrorKnown(const PrinterReading& reading)
{
    using Watching = PrinterReading::Watching;
    return reading.statusCode() != VXPrinting::StatusCodes::unknown &&
           (reading.watching() == Watching::Watched ||
            reading.watching() == Watching::OfflineSinceDiscovery);
}

bool isInError(const PrinterReading& reading)
{
    return VxKit::statusSeverity(reading.statusCode()) == VxKit::Severity::Error;
}

class Text
{
public:
    Text(const QList<Named>& printers, Format format)
        : m_printers(printers)
        , m_format(format)
    {}

    void addAgent(const metrics_text::Agent& agent)
    {
        family("vx_agent_info", Type::Gauge, "The agent that publishes these metrics.")
            .add(label("version", metrics_text::labelValue(agent.version)) +
                     furtherLabel("site", agent.site),
                 1);
        family("vx_agent_printers", Type::Gauge, "How many label printers the agent sees.")
            .add({}, static_cast<double>(m_printers.size()));
    }

    void addPrinters()
    {
        const auto models = QMetaEnum::fromType<VXPrinting::PrinterType>();
        forEach(family("vx_printer_info", Type::Gauge, "A printer that the print spooler lists."),
                [&models](Family& family, const Named& each) {
                    const PrinterReading& reading = each.reading;
                    const char* model = models.valueToKey(static_cast<int>(reading.model()));
                    family.add(each.label + furtherLabel("model", QLatin1String(model)) +
                                   furtherLabel("driver", reading.driver()) +
                                   furtherLabel("port", reading.port()) +
                                   furtherLabel("serial", reading.serialNumber()) +
                                   furtherLabel("firmware", reading.firmwareVersion()),
                               1);
                });
        forEach(family("vx_printer_status_code", Type::Gauge,
                       "The status code; docs/status-codes.md says what each means."),
                [](Family& family, const Named& each) {
                    family.add(each.label, each.reading.statusCode());
                });
        forEach(family("vx_printer_status_info", Type::Gauge,
                       "The name and the severity of the status code."),
                [](Family& family, const Named& each) {
                    const int code = each.reading.statusCode();
                    family.add(each.label + furtherLabel("status", VxKit::statusKey(code)) +
                                   furtherLabel("severity",
                                                VxKit::severityKey(VxKit::statusSeverity(code))),
                               1);
                });
        forEach(family("vx_printer_online", Type::Gauge,
                       "1 unless the print spooler calls the printer offline, else 0."),
                [](Family& family, const Named& each) {
                    family.add(each.label, each.reading.isOnline() ? 1 : 0);
                });
        forEach(family("vx_printer_error", Type::Gauge,
                       "1 while the printer does not print until somebody helps it, else 0."),
                [](Family& family, const Named& each) {
                    if (isErrorKnown(each.reading))
                        family.add(each.label, isInError(each.reading) ? 1 : 0);
                });
        forEach(family("vx_printer_last_report_timestamp_seconds", Type::Gauge,
                       "When the printer last reported that anything had changed."),
                [](Family& family, const Named& each) {
                    const QDateTime time = each.reading.lastReport();
                    constexpr double millisecondsPerSecond = 1000;
                    if (time.isValid())
                        family.add(each.label, static_cast<double>(time.toMSecsSinceEpoch()) /
                                                   millisecondsPerSecond);
                });
    }

    void addSlots()
    {
        forEachSlot(family("vx_supply_info", Type::Gauge, "What is loaded in a slot of a printer."),
                    [](Family& family, const NamedSlot& slot) {
                        const Level& level = slot.level;
                        if (level.state == Level::State::Loaded)
                            family.add(slot.labels + furtherLabel("sku", level.sku) +
                                           furtherLabel("material", level.material),
                                       1);
                    });
        forEachSlot(family("vx_supply_remaining_ratio", Type::Gauge,
                           "What is left of a roll or ribbon, from 0 to 1."),
                    [](Family& family, const NamedSlot& slot) {
                        family.add(slot.labels, slot.level.ratio);
                    });
        forEachSlot(family("vx_supply_remaining_meters", Type::Gauge,
                           "What is left of a roll or ribbon, in metres."),
                    [](Family& family, const NamedSlot& slot) {
                        family.add(slot.labels, slot.level.meters);
                    });
        forEachSlot(
            family("vx_supply_remaining_labels", Type::Gauge, "How many whole labels are left."),
            [](Family& family, const NamedSlot& slot) {
                if (slot.level.labels)
                    family.add(slot.labels, *slot.level.labels);
            });
        forEachSlot(family("vx_supply_estimated_seconds_remaining", Type::Untyped,
                           "How long what is left will last: with a probability of the quantile "
                           "at most so many seconds."),
                    [](Family& family, const NamedSlot& slot) {
                        if (!slot.remaining)
                            return;
                        family.add(slot.labels + R"(,quantile="0.1")", slot.remaining->p10);
                        family.add(slot.labels + R"(,quantile="0.5")", slot.remaining->p50);
                        family.add(slot.labels + R"(,quantile="0.9")", slot.remaining->p90);
                    });
        forEachSlot(family("vx_supply_consumed_meters_total", Type::Counter,
                           "What was used in a slot since the agent started, in metres."),
                    [](Family& family, const NamedSlot& slot) {
                        family.add(slot.labels, slot.consumedMeters);
                    });
    }

    QByteArray take()
    {
        if (m_format == Format::OpenMetrics)
            m_text += "# EOF\n";
        return std::move(m_text);
    }

private:
    Family family(const char* name, Type type, const char* help)
    {
        return {m_text, m_format, name, type, help};
    }

    template <typename Add>
    void forEach(Family family, const Add& add) const
    {
        for (const Named& each : m_printers)
            add(family, each);
    }

    template <typename Add>
    void forEachSlot(Family family, const Add& add) const
    {
        for (const Named& each : m_printers) {
            for (const NamedSlot& slot : each.slotList)
                add(family, slot);
        }
    }

    const QList<Named>& m_printers;
    Format m_format;
    QByteArray m_text;
};

} // namespace

QByteArray metrics_text::contentType(Format format)
{
    return format == Format::OpenMetrics
               ? QByteArrayLiteral("application/openmetrics-text; version=1.0.0; charset=utf-8")
               : QByteArrayLiteral("text/plain; version=0.0.4; charset=utf-8");
}

Format metrics_text::acceptedFormat(const QByteArray& accept)
{
    // Prometheus prefers OpenMetrics wherever it names it, and so does everybody else who does.
    for (const QByteArray& range : accept.toLower().split(',')) {
        const QList<QByteArray> parts = range.split(';');
        if (parts.first().trimmed() != "application/openmetrics-text")
            continue;
        bool isRefused = false;
        for (const QByteArray& parameter : parts.mid(1)) {
            const QByteArray trimmed = parameter.trimmed();
            if (trimmed.startsWith("q="))
                isRefused = trimmed.mid(2).toDouble() <= 0;
        }
        if (!isRefused)
            return Format::OpenMetrics;
    }
    return Format::Prometheus;
}

QByteArray metrics_text::labelValue(const QString& text)
{
    QString printable = shown(text.left(longestLabel));
    printable.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return printable.toUtf8();
}

QByteArray metrics_text::text(const Agent& agent, const QList<Printer>& printers, Format format)
{
    const QList<Named> present = presentPrinters(printers);
    Text text(present, format);
    text.addAgent(agent);
    text.addPrinters();
    text.addSlots();
    return text.take();
}
