// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "top_table.h"

#include "forecast_words.h"
#include "printer_words.h"
#include "shown_text.h"
#include "text_layout.h"
#include "tool_text.h"

#include <status_info.h>

#include <QtCore/QHash>
#include <QtGui/QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <tuple>

using Depth = std::optional<palette::Depth>;
using VxKit::allSlots;
using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Severity;
using VxKit::Slot;
using VxKit::StatusInfo;

namespace {

const QLatin1String plain("\033[0m");
constexpr qsizetype gap = 2;
constexpr qsizetype percentWidth = 4; ///< "100%"
constexpr qsizetype leastBar = 5;
constexpr qsizetype mostBar = 20;
constexpr qsizetype leastName = 8;
constexpr qsizetype leastStatus = 10;
constexpr qsizetype markWidth = 2;

/// The titles and severities of codes. Looking one up in a thousand rows would take longer than
/// drawing.
class Infos
{
public:
    const StatusInfo& of(int code)
    {
        auto found = m_infos.find(code);
        if (found == m_infos.end())
            found = m_infos.insert(code, VxKit::statusInfo(code));
        return *found;
    }

private:
    QHash<int, StatusInfo> m_infos;
};

/// Below all others for a slot that is empty, above all others for one that is not known.
double urgency(const Level& level)
{
    if (level.state == Level::State::Empty)
        return -1.0;
    return level.ratio.value_or(std::numeric_limits<double>::infinity());
}

double lowestLevel(const PrinterReading& reading)
{
    double lowest = std::numeric_limits<double>::infinity();
    for (const Slot slot : reading.slotList())
        lowest = std::min(lowest, urgency(reading.level(slot)));
    return lowest;
}

/// The text in exactly as many columns.
QString fitted(const QString& text, qsizetype columns)
{
    return text_layout::padded(text_layout::elided(text, columns), columns);
}

/// The same for a name that ends with the name of a computer.
QString fittedInMiddle(const QString& text, qsizetype columns)
{
    if (text_layout::width(text) <= columns || columns < 3)
        return fitted(text, columns);
    // From the end, so much as half of the columns have room for.
    qsizetype start = text.size();
    while (start > 0 && text_layout::width(text.sliced(start - 1)) <= columns / 2)
        --start;
    // Not in the middle of a letter.
    while (start < text.size() && (text.at(start).isLowSurrogate() || text.at(start).isMark()))
        ++start;
    const QString end = text.sliced(start);
    const QString begin = text_layout::elided(text.left(start), columns - text_layout::width(end));
    return text_layout::padded(begin + end, columns);
}

QString painted(const QString& text, const char* escape, Depth depth)
{
    if (!depth || *escape == '\0')
        return text;
    return QLatin1String(escape) + text + plain;
}

const char* escapeOf(Severity severity)
{
    switch (severity) {
    case Severity::Ok:
        return "\033[32m";
    case Severity::Information:
        return "";
    case Severity::Warning:
        return "\033[33m";
    case Severity::Error:
        return "\033[1;31m";
    }
    return "";
}
constexpr char headingEscape[] = "\033[1m";
constexpr char faintEscape[] = "\033[2m";
constexpr char invertedEscape[] = "\033[7m";

/// The level as one short word.
QString levelText(const PrinterReading& reading, Slot slot)
{
    if (!reading.hasSlot(slot))
        return {};
    const Level level = reading.level(slot);
    if (level.state == Level::State::Empty)
        return ToolText::tr("empty");
    const auto percentage = level.percentage();
    if (!percentage)
        return QStringLiteral("-");
    return QStringLiteral("%1%").arg(*percentage);
}

/// Makes a colour the background, and writes in black or white, whichever can be read on it.
QString filling(QRgb colour, palette::Depth depth)
{
    constexpr int middle = 128000;
    const bool isLight = 299 * qRed(colour) + 587 * qGreen(colour) + 114 * qBlue(colour) > middle;
    return QStringLiteral("\033[%1;%2m")
        .arg(isLight ? 30 : 97)
        .arg(palette::background(colour, depth));
}

/// A bar in brackets, which can be seen on every background, filled in the colour of what is
/// loaded. Its characters show the level without colours too.
QString bar(const Level& level, qsizetype width, Depth depth)
{
    const auto filledWidth = std::clamp<qsizetype>(
        static_cast<qsizetype>(std::ceil(*level.ratio * static_cast<double>(width))), 0, width);
    const QString filled(filledWidth, u'=');
    const QColor colour(level.colors.value(0));
    const bool isPainted = depth && colour.isValid() && filledWidth > 0;
    return u'[' + (isPainted ? filling(colour.rgb(), *depth) + filled + plain : filled) +
           QString(width - filledWidth, u' ') + u']';
}

struct Layout
{
    qsizetype name = 0;
    qsizetype status = 0; ///< 0: the name alone
    qsizetype slotCount = 0;
    qsizetype barCount = 0; ///< so many of the slots have bars, the others percentages only
    qsizetype bar = leastBar;
    qsizetype percentage = 0; ///< the width of a slot without a bar
    qsizetype end = 0;        ///< how long the first slot lasts; 0: not shown

    bool hasBar(qsizetype slot) const { return slot < barCount; }
    /// The width of a bar in its brackets, a space and a percentage.
    qsizetype barAndPercentage() const { return bar + 3 + percentWidth; }
    qsizetype cell(qsizetype slot) const
    {
        return hasBar(slot) ? std::max(barAndPercentage(), percentage) : percentage;
    }
    qsizetype fixed() const
    {
        qsizetype width = markWidth + gap + (end > 0 ? gap + end : 0);
        for (qsizetype slot = 0; slot < slotCount; ++slot)
            width += gap + cell(slot);
        return width;
    }
};

QString titleOf(Slot slot)
{
    switch (slot) {
    case Slot::Supply:
        return ToolText::tr("SUPPLY");
    case Slot::Ribbon1:
        return ToolText::tr("RIBBON 1");
    case Slot::Ribbon2:
        return ToolText::tr("RIBBON 2");
    }
    return {};
}

/// What a heading, a percentage and the word for an empty slot need.
qsizetype widestWithoutBar()
{
    qsizetype widest = std::max(percentWidth, text_layout::width(ToolText::tr("empty")));
    for (const Slot slot : allSlots)
        widest = std::max(widest, text_layout::width(titleOf(slot)));
    return widest;
}

Layout layoutOf(qsizetype columns, qsizetype widestName, qsizetype widestStatus,
                qsizetype usedSlots, qsizetype widestEnd, bool isOfSite)
{
    const qsizetype wantedName = std::max(leastName, widestName);
    const qsizetype wantedStatus = std::max(leastStatus, widestStatus);
    // Of a site, names end with those of computers.
    const qsizetype comfortableName = isOfSite ? 24 : 12;
    const qsizetype shortName = isOfSite ? 16 : 12;
    // "The printer is out of labels": what is wrong is often said last.
    constexpr qsizetype comfortableStatus = 28;
    constexpr qsizetype cutStatus = 24;
    constexpr qsizetype shortStatus = 18;
    const auto neededFor = [&](qsizetype name, qsizetype status) {
        return std::min(name, wantedName) + std::min(status, wantedStatus);
    };

    Layout layout{.slotCount = usedSlots,
                  .barCount = usedSlots,
                  .percentage = widestWithoutBar(),
                  .end = widestEnd};
    // A long status takes the bars of the ribbons; that of the supply stays longer.
    while (layout.barCount > 1 &&
           columns - layout.fixed() < neededFor(comfortableName, comfortableStatus))
        --layout.barCount;
    if (columns - layout.fixed() < neededFor(comfortableName, cutStatus))
        layout.barCount = 0;
    if (columns - layout.fixed() < neededFor(shortName, shortStatus))
        layout.end = 0;
    while (layout.slotCount > 0 && columns - layout.fixed() < neededFor(shortName, shortStatus))
        --layout.slotCount;

    qsizetype left = columns - layout.fixed();
    if (left < leastName + 1) {
        layout.name = std::max<qsizetype>(columns - markWidth, 0);
        return layout;
    }
    const qsizetype tenthsForStatus = isOfSite ? 5 : 6;
    layout.name = std::min(wantedName, left - std::min(wantedStatus, left * tenthsForStatus / 10));
    layout.status = std::min(wantedStatus, left - layout.name);
    left -= layout.name + layout.status;
    if (layout.barCount > 0)
        layout.bar = std::min(mostBar, layout.bar + left / layout.barCount);
    return layout;
}

class Screen
{
public:
    Screen(const QList<PrinterReading>& readings, const top_table::View& view)
        : m_readings(readings)
        , m_view(view)
        , m_columns(std::max(view.size.width(), 0))
    {}

    QStringList lines()
    {
        const int rows = std::max(m_view.size.height(), 0);
        const qsizetype room = top_table::readingsOn(rows);
        const qsizetype first =
            std::clamp<qsizetype>(m_view.first, 0, top_table::lastFirst(m_readings.size(), rows));
        chooseLayout();

        QStringList all;
        constexpr int rowsForHeading = 2;
        constexpr int rowsForTitle = 3;
        constexpr int rowsForHelp = 4;
        if (rows >= rowsForTitle)
            all.append(title(first, std::min(first + room, m_readings.size())));
        if (rows >= rowsForHeading)
            all.append(heading());
        for (qsizetype index = first; index < std::min(first + room, m_readings.size()); ++index)
            all.append(row(m_readings.at(index)));
        if (m_readings.isEmpty() && room > 0)
            all.append(text_layout::elided(m_view.about.empty.isEmpty()
                                               ? ToolText::tr("There are no label printers yet.")
                                               : m_view.about.empty,
                                           m_columns));
        const qsizetype body = rows - (rows >= rowsForHelp ? 1 : 0);
        while (all.size() < body)
            all.append(QString());
        if (rows >= rowsForHelp)
            all.append(m_view.about.footer.isEmpty() ? help() : footer());
        return all;
    }

private:
    void chooseLayout()
    {
        qsizetype widestName = 0;
        qsizetype widestStatus = 0;
        qsizetype widestEnd = 0;
        for (const PrinterReading& reading : m_readings) {
            widestName = std::max(widestName, text_layout::width(shown(reading.name())));
            widestStatus = std::max(widestStatus, text_layout::width(statusOf(reading)));
            if (reading.hasSlot(Slot::Ribbon2))
                m_usedSlots = allSlots.size();
            if (forecast_words::soonestEnd(reading).value_or(0) > 0)
                widestEnd = std::max(
                    {widestEnd, text_layout::width(forecast_words::soonestEndCell(reading).text),
                     text_layout::width(ToolText::tr("LASTS"))});
        }
        m_layout = layoutOf(m_columns, widestName, widestStatus, m_usedSlots, widestEnd,
                            m_view.about.isOfSite);
    }

    /// As short as in the table of `status`.
    QString statusOf(const PrinterReading& reading)
    {
        using Watching = PrinterReading::Watching;
        const bool isWatched = reading.watching() != Watching::NetworkPrinter &&
                               reading.watching() != Watching::NotManaged &&
                               reading.watching() != Watching::AgentOffline;
        return isWatched ? m_infos.of(reading.statusCode()).shortTitle
                         : printer_words::status(reading).text;
    }

    QString title(qsizetype first, qsizetype end)
    {
        const auto inError = std::ranges::count_if(m_readings, [this](const auto& reading) {
            return reading.presence() == PrinterReading::Presence::Present &&
                   m_infos.of(reading.statusCode()).severity == Severity::Error;
        });
        QStringList parts{m_view.clock};
        parts += m_view.about.notes;
        parts += {ToolText::tr("Printers: %1").arg(m_readings.size()),
                  ToolText::tr("with errors: %1").arg(inError)};
        if (first > 0 || end < m_readings.size())
            parts.append(ToolText::tr("shown: %1 to %2").arg(first + 1).arg(end));
        return painted(text_layout::elided(parts.join(QLatin1String("  ")), m_columns),
                       inError > 0 || m_view.about.isAlert ? escapeOf(Severity::Error)
                                                           : headingEscape,
                       m_view.depth);
    }

    QString heading() const
    {
        QString text = QString(markWidth, u' ') + fitted(ToolText::tr("PRINTER"), m_layout.name);
        if (m_layout.status > 0)
            text += QString(gap, u' ') + fitted(ToolText::tr("STATUS"), m_layout.status);
        if (m_layout.status > 0 && m_layout.end > 0)
            text += QString(gap, u' ') + fitted(ToolText::tr("LASTS"), m_layout.end);
        for (qsizetype slot = 0; m_layout.status > 0 && slot < m_layout.slotCount; ++slot)
            text +=
                QString(gap, u' ') +
                fitted(titleOf(allSlots.at(static_cast<std::size_t>(slot))), m_layout.cell(slot));
        return painted(text_layout::elided(text, m_columns), invertedEscape, m_view.depth);
    }

    QString nameCell(const PrinterReading& reading) const
    {
        const QString name = shown(reading.name());
        return painted(m_view.about.isOfSite ? fittedInMiddle(name, m_layout.name)
                                             : fitted(name, m_layout.name),
                       reading.isUnheard() ? faintEscape : headingEscape, m_view.depth);
    }

    /// What is not known to be so now has no colours.
    QString oldLevelCell(const PrinterReading& reading, Slot slot) const
    {
        return painted(levelCell(reading, slot, {}), faintEscape, m_view.depth);
    }

    QString levelCell(const PrinterReading& reading, Slot slot, Depth depth) const
    {
        const auto place = static_cast<qsizetype>(slot);
        const QString text = levelText(reading, slot);
        const Level level = reading.level(slot);
        if (!level.ratio || level.state == Level::State::Empty)
            return fitted(text, m_layout.cell(place));
        const QString percent =
            QString(std::max<qsizetype>(percentWidth - text.size(), 0), u' ') + text;
        if (!m_layout.hasBar(place))
            return fitted(percent, m_layout.cell(place));
        const QString cell = bar(level, m_layout.bar, depth) + u' ' + percent;
        return cell + QString(m_layout.cell(place) - m_layout.barAndPercentage(), u' ');
    }

    QString row(const PrinterReading& reading)
    {
        const StatusInfo& info = m_infos.of(reading.statusCode());
        const bool isGone = reading.presence() == PrinterReading::Presence::Gone;
        if (m_columns <= markWidth)
            return text_layout::elided(shown(reading.name()), m_columns);
        QString text = reading.isActive() ? QStringLiteral("* ") : QString(markWidth, u' ');
        text += nameCell(reading);
        if (m_layout.status == 0)
            return text;
        const QString status = isGone ? ToolText::tr("removed") : statusOf(reading);
        text += QString(gap, u' ') +
                painted(fitted(shown(status), m_layout.status),
                        reading.isUnheard() ? faintEscape : escapeOf(info.severity), m_view.depth);
        if (m_layout.end > 0)
            text += QString(gap, u' ') +
                    fitted(forecast_words::soonestEndCell(reading).text, m_layout.end);
        for (qsizetype number = 0; number < m_layout.slotCount; ++number) {
            const Slot slot = allSlots.at(static_cast<std::size_t>(number));
            text +=
                QString(gap, u' ') + (reading.isUnheard() ? oldLevelCell(reading, slot)
                                                          : levelCell(reading, slot, m_view.depth));
        }
        return text;
    }

    QString footer() const
    {
        return painted(text_layout::elided(shown(m_view.about.footer), m_columns),
                       escapeOf(Severity::Error), m_view.depth);
    }

    QString help() const
    {
        using top_table::Order;
        struct Item
        {
            QString text;
            bool isChosen;
        };
        const std::array items{
            Item{ToolText::tr("q quit"), false},
            Item{ToolText::tr("s by severity"), m_view.order == Order::Severity},
            Item{ToolText::tr("n by name"), m_view.order == Order::Name},
            Item{ToolText::tr("l by level"), m_view.order == Order::Level},
            Item{ToolText::tr("arrows, Page Up, Page Down: scroll"), false},
        };
        QString text;
        qsizetype width = 0;
        for (const Item& item : items) {
            // Brackets, because words must not depend on colours.
            const QString word = item.isChosen ? u'[' + item.text + u']' : item.text;
            const qsizetype space = text.isEmpty() ? 0 : gap;
            if (width + space + text_layout::width(word) > m_columns)
                break;
            text += QString(space, u' ') +
                    painted(word, item.isChosen ? headingEscape : "", m_view.depth);
            width += space + text_layout::width(word);
        }
        return text;
    }

    const QList<PrinterReading>& m_readings;
    const top_table::View& m_view;
    qsizetype m_columns;
    Infos m_infos;
    qsizetype m_usedSlots = 2;
    Layout m_layout;
};

} // namespace

void top_table::sort(QList<PrinterReading>& readings, Order order)
{
    struct Entry
    {
        PrinterReading reading;
        int severity;
        double level;
        QString name;
    };
    Infos infos;
    QList<Entry> entries;
    entries.reserve(readings.size());
    for (const PrinterReading& reading : readings) {
        const int severity = order == Order::Severity
                                 ? -static_cast<int>(infos.of(reading.statusCode()).severity)
                                 : 0;
        entries.append(
            {reading, severity, order == Order::Name ? 0.0 : lowestLevel(reading), reading.name()});
    }
    std::ranges::sort(entries, [](const Entry& left, const Entry& right) {
        return std::tie(left.severity, left.level, left.name) <
               std::tie(right.severity, right.level, right.name);
    });
    std::ranges::transform(entries, readings.begin(), &Entry::reading);
}

qsizetype top_table::readingsOn(int rows)
{
    constexpr int mostOthers = 3;
    return std::max(rows - std::clamp(rows - 1, 0, mostOthers), 0);
}

qsizetype top_table::lastFirst(qsizetype readings, int rows)
{
    return std::max<qsizetype>(readings - readingsOn(rows), 0);
}

QStringList top_table::lines(const QList<PrinterReading>& readings, const View& view)
{
    return Screen(readings, view).lines();
}
