// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "coalesced_call.h"
#include "command_line.h"
#include "records.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QJsonValue>
#include <QtCore/QMetaMethod>

/// Prints a line for every signal of the controller. As text, the changes in the records are
/// printed instead of the records, once for all signals that were queued together.
class Reporter : public QObject
{
public:
    using Controller = PrinterStatusController;
    using Record = records::Record;
    /// `recordsOf` reads all records of the controller, which takes longer the more there are.
    Reporter(const CommandLine& line, Output& output, Controller& controller,
             std::function<QList<Record>(const Controller&)> recordsOf = records::of);

    /// Prints the records as they are before the first signal.
    void printInitialRecords();
    /// Prints the caption of an event in the story of virtual printers.
    void printCaption(const QString& caption);
    /// Has the controller look for printers, as a host does when a device is added, and prints
    /// those that are new: no signal reports them.
    void lookForPrinters();
    /// Prints the changes that are scheduled to be printed. Call it when watching ends.
    void printPendingChanges() { m_changes.runIfScheduled(); }

    /// How many printers the library watches.
    int watchedPrinters() const { return m_watchedPrinters; }

private:
    /// A signal as text.
    struct Words
    {
        QString printer; ///< empty: no particular printer
        QList<Cell> cells;
    };

    template <typename... Arguments, typename PrintText>
    void listen(void (Controller::*signal)(Arguments...), PrintText printText);
    void printJson(const QMetaMethod& signal, const QList<QJsonValue>& arguments);
    void print(const char* label, const Words& words);
    QString clock() const;
    void remember(const Record& record);
    void printChanges();

    bool m_json;
    Output& m_output;
    Controller& m_controller;
    std::function<QList<Record>(const Controller&)> m_recordsOf;
    qsizetype m_labelWidth;
    QElapsedTimer m_clock;
    QHash<QString, Record> m_known;
    records::JsonTexts m_jsonTexts;
    CoalescedCall m_changes;
    int m_watchedPrinters = 0;
    qsizetype m_nameWidth = 0;
};
