// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "palette.h"

#include <printer_reading.h>

#include <QtCore/QList>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// The screen of `vxprintmon top` as lines of text.
namespace top_table {

enum class Order
{
    Severity, ///< the worst status first; of equal ones the lowest level first
    Name,
    Level, ///< the lowest level first
};

/// Sorts readings. Equal ones are in the order of their names.
void sort(QList<VxKit::PrinterReading>& readings, Order order);

/// What the screen says besides the printers.
struct About
{
    /// The names have the printers' computers at their end. What a name has no room for is left out
    /// in its middle.
    bool isOfSite = false;
    QStringList notes{};  ///< in the title
    bool isAlert = false; ///< the notes are as bad as an error
    QString footer{};     ///< in place of the keys
    QString empty{};      ///< in place of printers when there is none; empty: the usual text
};

struct View
{
    QSize size; ///< columns and rows of the terminal
    Order order = Order::Severity;
    qsizetype first = 0; ///< the reading in the first row, which scrolling changes
    std::optional<palette::Depth> depth{}; ///< empty: no colours
    QString clock{};                       ///< the time, as it is shown
    About about{};
};

/// How many readings fit on a screen with as many rows.
qsizetype readingsOn(int rows);

/// The largest useful `View::first`.
qsizetype lastFirst(qsizetype readings, int rows);

/// The lines of the screen, as many as it has rows, each at most as wide as it has columns.
///
/// If it is known of any printer for how long what is loaded will last, and that is not used up
/// already, there is a column for it.
///
/// What a narrow screen has no room for gives way in this order: the bars, so that percentages
/// remain; the column for how long it lasts; ribbon 2; ribbon 1; the supply. The name and the
/// status stay and are cut off at the end. On a low screen the help gives way first, then the
/// title, then the heading.
QStringList lines(const QList<VxKit::PrinterReading>& readings, const View& view);

} // namespace top_table
