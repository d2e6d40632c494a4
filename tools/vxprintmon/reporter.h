// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "command_line.h"
#include "gathering.h"
#include "records.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QJsonValue>
#include <QtCore/QMetaMethod>

/// Prints a line for every signal of the controller. To people, who get what has changed in the
/// records instead of the records, it tells that once for all signals that were queued together.
class Reporter : public QObject
{
public:
    using Controller = PrinterStatusController;
    using Record = records::Record;
    /// `recordsOf` asks the controller for all of its records, which costs as much as there are.
    Reporter(const CommandLine& line, Output& output, Controller& controller,
             std::function<QList<Record>(const Controller&)> recordsOf = records::of);

    /// What is there when the watching begins, of which no signal tells.
    void tellBeginning();
    void tellStory(const QString& caption);
    /// As a host does when it hears of a new device. No signal tells of printers that are found.
    void lookForPrinters();
    /// What is still to be told when the watching ends.
    void tellEnd() { m_changes.actIfWished(); }

    /// How many printers the library watches.
    int watchedPrinters() const { return m_watchedPrinters; }

private:
    /// What a signal says to people.
    struct Words
    {
        QString printer; ///< empty: none in particular
        QList<Cell> cells;
    };

    template <typename... Arguments, typename Tell>
    void listen(void (Controller::*signal)(Arguments...), Tell tell);
    void printJson(const QMetaMethod& signal, const QList<QJsonValue>& arguments);
    void print(const char* label, const Words& words);
    QString clock() const;
    void remember(const Record& record);
    void tellChanges();

    bool m_json;
    Output& m_output;
    Controller& m_controller;
    std::function<QList<Record>(const Controller&)> m_recordsOf;
    records::TitleOf m_titleOf;
    QElapsedTimer m_clock;
    QHash<QString, Record> m_known;
    records::JsonTexts m_jsonTexts;
    Gathering m_changes;
    int m_watchedPrinters = 0;
    qsizetype m_nameWidth = 0;
};
