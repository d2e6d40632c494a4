// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_status_controller.h"

#include <QtCore/QHash>

#include <functional>
#include <utility>

/// The status records of the label printers, as JSON.
namespace records {

using Record = PrinterStatusInformation;

QList<Record> of(const PrinterStatusController& controller);
/// Whether the library monitors the printer. Printers that it does not monitor are only listed.
bool isWatched(const Record& record);
/// How many printers the library monitors.
int watchedPrinters(const PrinterStatusController& controller);

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

} // namespace records
