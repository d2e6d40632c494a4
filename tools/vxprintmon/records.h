// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"

#include "printer_status_controller.h"

#include <QtCore/QHash>

#include <functional>
#include <utility>

/// The status records of the label printers, as programs and as people get them.
namespace records {

using Record = PrinterStatusInformation;
using TitleOf = std::function<QString(int statusCode)>;

QList<Record> of(const PrinterStatusController& controller);
/// Whether a thread of the library watches the printer; the others are listed only.
bool isWatched(const Record& record);

/// The first line of a status code's title: the second, where there is one, says the same again.
TitleOf titlesOf(PrinterStatusController& controller);
/// The same, but short about a status that is not known, as that of a printer that has not reported
/// yet.
TitleOf shortTitlesOf(PrinterStatusController& controller);

/// Whether two records agree in every property.
bool areSame(const Record& left, const Record& right);

/// All properties under their own names.
QString json(const Record& record);

/// The JSON of many records, time and again: what has not changed is not put together again.
class JsonTexts
{
public:
    explicit JsonTexts(std::function<QString(const Record&)> textOf = json)
        : m_textOf(std::move(textOf))
    {}

    QStringList of(const QList<Record>& all);

private:
    struct Entry
    {
        Record record;
        QString text;
    };
    std::function<QString(const Record&)> m_textOf;
    QHash<QString, Entry> m_entries;
};

/// One line for each record.
void printTable(Output& output, const QList<Record>& all, const QString& activePrinter,
                const TitleOf& titleOf);
/// One line for each thing to know of the printer.
void printDetails(Output& output, const Record& record, const QString& activePrinter,
                  const TitleOf& titleOf);

/// What is different, in words; empty when nothing is.
QList<Cell> difference(const Record& before, const Record& after, const TitleOf& titleOf);

} // namespace records
