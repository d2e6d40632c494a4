// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"

#include <printer_event.h>

#include <QtCore/QDate>
#include <QtCore/QStringList>

/// Prints events for people: the day as a heading, and below it a line for each event.
class EventPage
{
public:
    /// A longer name of a printer has a line of its own.
    static constexpr qsizetype widestName = 18;

    /// `nameWidth` is what the names of printers take at most, as far as they are in a column.
    EventPage(Output& output, qsizetype nameWidth);

    /// `time` is the event's time as it is to be shown.
    void print(const VxKit::PrinterEvent& event, const QDateTime& time);

private:
    Output& m_output;
    QDate m_day;
    qsizetype m_nameWidth;
    qsizetype m_severityWidth = 0;
};

/// The text on lines of at most `columns`, also where it has no place at which a line may end.
QStringList linesOf(const QString& text, qsizetype columns);
