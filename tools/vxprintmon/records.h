// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "output.h"

#include "printer_status_controller.h"

#include <QtCore/QHash>

#include <functional>
#include <utility>

/// The status records of the label printers, as JSON and as text.
namespace records {

using Record = PrinterStatusInformation;
using TitleOf = QString (*)(int statusCode);

QList<Record> of(const PrinterStatusController& controller);
/// Whether the library monitors the printer. Printers that it does not monitor are only listed.
bool isWatched(const Record& record);

/// The title of a status code in short.
QString titleOf(int statusCode);
/// The same, but only "not known" for an unknown status, as that of a printer that has not reported
/// yet.
QString titleOrNotKnown(int statusCode);

/// Whether two records are equal in every property.
bool areSame(const Record& left, const Record& right);

/// An object with all properties under their own names.
QString json(const Record& record);

/// Caches the JSON of records, so that only records that have changed are written again.
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

/// Prints one line for each record.
void printTable(Output& output, const QList<Record>& all, const QString& activePrinter,
                TitleOf titleOf);
/// Prints one line for each detail of the record.
void printDetails(Output& output, const Record& record, const QString& activePrinter,
                  TitleOf titleOf);

/// The differences as text. Empty if there are none.
QList<Cell> difference(const Record& before, const Record& after, TitleOf titleOf);

} // namespace records
