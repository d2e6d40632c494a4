// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "failure.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace VxKit {
class PrinterReadings;
}

/// Printers by the names that people type.
namespace printer_names {

/// The name that is meant: the same one, or else the only one that differs in the case of its
/// letters alone. Without a value if there is none.
std::optional<QString> meant(const QString& typed, const QStringList& names);

/// The names that differ least from what was typed, at most three, the nearest first. Empty if all
/// differ much.
QStringList nearest(const QString& typed, const QStringList& names);
/// The same as a text, each in quotation marks.
QString quotedNearest(const QString& typed, const QStringList& names);

/// The name by which the spooler lists a printer. What was typed if it does not list it: it may
/// open printers that it does not list.
QString asListed(const QString& typed);
/// That the spooler lists no printer of that name, and which one may be meant. Without a value if
/// it lists one.
std::optional<Failure> missing(const QString& typed);
/// The name of a printer that has a reading. Throws a `Failure` that says why there is none, or
/// which printer may be meant.
QString withReading(const QString& typed, const VxKit::PrinterReadings& readings);
/// The same for a printer of which the controller has a record.
QString withRecord(const QString& typed, const VxKit::PrinterReadings& readings);

} // namespace printer_names
