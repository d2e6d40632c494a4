// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "full_screen.h"
#include "top_table.h"

#include <printer_reading.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>
#include <functional>

class Output;

/// The table of `vxprintmon top` on the terminal: draws it when readings change and as the clock
/// goes, and answers to keys.
class TopScreen : public QObject
{
public:
    using Readings = std::function<QList<VxKit::PrinterReading>()>;

    /// `readings` returns all that are to be shown.
    TopScreen(Output& output, FullScreen& screen, const Readings& readings);

    /// The readings have changed.
    void noteChange();
    /// What the screen says besides the printers.
    void setAbout(const top_table::About& about);

    /// For objects whose many queued calls would keep the event loop from keys and timers: it
    /// delivers everything that is queued before it looks at them, which can take seconds when
    /// thousands of printers report. So these are seen to between two calls, and when the program
    /// must end, no call is delivered any more.
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    /// Of two drawings: people do not see more.
    static constexpr std::chrono::milliseconds interval{100};

    void scheduleDrawing();
    void sort() { top_table::sort(m_sorted, m_view.order); }
    void draw();
    void onPressed(KeyPress press);
    void onCharacter(char character);

    Output& m_output;
    FullScreen& m_screen;
    Readings m_readings;
    top_table::View m_view;
    QList<VxKit::PrinterReading> m_sorted;
    QStringList m_drawn; ///< the lines that are on the screen
    QTimer m_drawing;
    QTimer m_clock;
    QElapsedTimer m_sinceDrawn;
    QElapsedTimer m_sincePolled;
    bool m_hasChanged = true;
    bool m_mustClear = false;
    bool m_isQuitting = false;
};

/// Keeps the warnings of Qt and the kit off the screen, and prints them when this object is
/// destroyed.
class HeldBackMessages
{
public:
    HeldBackMessages();
    ~HeldBackMessages();
    Q_DISABLE_COPY_MOVE(HeldBackMessages)
};

/// Prints readings as JSON, those that need help first.
void printTopJson(Output& output, QList<VxKit::PrinterReading> readings);
