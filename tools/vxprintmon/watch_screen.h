// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "command_line.h"
#include "output.h"
#include "watched_names.h"

#include <printer_events.h>
#include <printer_readings.h>
#include <run_out_forecast.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QTimer>

/// Prints what happens to printers for people, one line an event.
///
/// A driver publishes what belongs to one event, such as a new roll, as several values, which
/// arrive one after the other. So what happens to a printer is printed a moment later and together.
class WatchScreen : public QObject
{
public:
    WatchScreen(const CommandLine& line, Output& output, VxKit::PrinterReadings& readings,
                const QStringList& printers);

    /// Prints the printers as they are before the first event.
    void printTable();
    /// Prints the caption of an event in the story of virtual printers, after what happened before.
    void printCaption(const QString& caption);
    /// Prints that a roll or ribbon of a printer will soon not be enough.
    void printWarning(const QString& printer, const VxKit::RunOutForecast::Warning& warning);
    /// Prints what is still to be printed. Call it when watching ends.
    void printPending();

private:
    /// One thing that happened to a printer.
    struct Happening
    {
        VxKit::PrinterEvent event;
        QList<Cell> words{}; ///< of what is no event of the kit
    };
    struct Line
    {
        QDateTime time;
        qint64 elapsed = 0; ///< in milliseconds since the start
        QString printer;    ///< empty: no particular printer
        QList<Happening> happenings;
    };

    /// Something that is no event of the kit.
    static Happening other(const char* key, const QString& words);

    void onEvent(const VxKit::PrinterEvent& event);
    void onChanged(const QString& name);
    void onRenamed(const QString& oldName, const QString& newName);
    void add(const QString& printer, const Happening& happening);
    void print(const Line& line);
    QList<Cell> wordsOf(const Line& line, const Happening& happening) const;
    QList<Cell> loadedWords(const Line& line, const VxKit::PrinterEvent& event) const;
    QString clock(const Line& line) const;
    void remember(const QString& name);

    Output& m_output;
    VxKit::PrinterReadings& m_readings;
    VxKit::PrinterEvents m_events;
    WatchedNames m_watched;
    const bool m_isRelative;
    const bool m_isVerbose;
    QElapsedTimer m_clock;
    QTimer m_timer;
    QList<Line> m_pending;
    QHash<QString, qsizetype> m_places;            ///< in `m_pending`, by printer
    QHash<QString, VxKit::PrinterReading> m_known; ///< only when verbose
    qsizetype m_nameWidth = 0;
};
