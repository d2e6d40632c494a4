// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "event_page.h"

#include "printer_words.h"
#include "shown_text.h"
#include "text_layout.h"

#include <QtCore/QLocale>
#include <QtCore/QTextBoundaryFinder>

#include <algorithm>
#include <array>

namespace {

using VxKit::PrinterEvent;
using VxKit::Severity;

constexpr std::array severities{Severity::Ok, Severity::Information, Severity::Warning,
                                Severity::Error};
constexpr qsizetype gap = 2;

/// Most events are information, so that it is the plain colour here.
Colour colourOf(Severity severity)
{
    return severity == Severity::Information ? Colour::None : printer_words::colourOf(severity);
}

/// Only what is wrong is named, so that it is seen among all the rest.
QString wordFor(Severity severity)
{
    return severity == Severity::Warning || severity == Severity::Error
               ? VxKit::severityName(severity)
               : QString();
}

/// The characters at the beginning of a text that take at most `columns`.
QString beginningOf(const QString& text, qsizetype columns)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype next = finder.toNextBoundary();
         next > 0 && text_layout::width(text.first(next)) <= columns;
         next = finder.toNextBoundary())
        end = next;
    return text.first(end);
}

} // namespace

QStringList linesOf(const QString& text, qsizetype columns)
{
    QStringList lines;
    for (QString rest : text_layout::wrapped(text, columns)) {
        while (text_layout::width(rest) > columns) {
            const QString beginning = beginningOf(rest, columns);
            lines.append(beginning);
            rest.remove(0, std::max<qsizetype>(beginning.size(), 1));
        }
        lines.append(rest);
    }
    return lines;
}

EventPage::EventPage(Output& output, qsizetype nameWidth)
    : m_output(output)
    , m_nameWidth(nameWidth)
{
    for (const Severity severity : severities)
        m_severityWidth = std::max(m_severityWidth, text_layout::width(wordFor(severity)));
}

void EventPage::print(const PrinterEvent& event, const QDateTime& time)
{
    if (time.date() != m_day) {
        m_day = time.date();
        m_output.line({{QLocale().toString(m_day, QLocale::LongFormat), Colour::Heading}});
    }
    const Cell clock{time.toString(QStringLiteral("HH:mm:ss  ")), Colour::Faint};
    const qsizetype clockWidth = text_layout::width(clock.text);
    const QString name = shown(event.printer);
    const qsizetype nameWidth = text_layout::width(name);
    const QString place(m_nameWidth + gap, QLatin1Char(' '));
    const Colour colour = colourOf(event.severity);
    const Cell severity{text_layout::padded(wordFor(event.severity), m_severityWidth + gap),
                        colour};
    const qsizetype indent = clockWidth + place.size() + text_layout::width(severity.text);
    const QStringList lines =
        linesOf(shownAsMessage(VxKit::eventText(event)), text_layout::lineWidth - indent);

    if (nameWidth <= m_nameWidth) {
        m_output.line(
            {clock, {text_layout::padded(name, place.size())}, severity, {lines.first(), colour}});
    } else {
        const Cell noClock{QString(clockWidth, QLatin1Char(' '))};
        const QStringList names = linesOf(name, text_layout::lineWidth - clockWidth);
        for (const QString& part : names)
            m_output.line({&part == &names.first() ? clock : noClock, {part}});
        m_output.line({noClock, {place}, severity, {lines.first(), colour}});
    }
    for (const QString& line : lines.sliced(1))
        m_output.line({{QString(indent, QLatin1Char(' '))}, {line, colour}});
}
