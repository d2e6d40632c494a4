// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_event.h"
#include "printer_reading.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>

namespace VxKit {

struct CaseLine;

/// What was true of the printers of a case file (docs/case-files.md), line by line, and what
/// happened to them.
///
/// @code
/// VxKit::CaseReadings readings;
/// while (const std::optional<VxKit::CaseLine> line = file.next()) {
///     for (const VxKit::PrinterEvent& event : readings.apply(*line))
///         qInfo() << event.time << event.printer << VxKit::eventText(event);
/// }
/// @endcode
///
/// The status is that of the library's signals. What is loaded is read as the library reads it, and
/// looked up in the catalogue's rows that the case holds. The first 4096 printers are followed.
class VX_KIT_EXPORT CaseReadings
{
public:
    CaseReadings();
    ~CaseReadings();
    Q_DISABLE_COPY_MOVE(CaseReadings)

    /// Follows a line. Returns what happened, as `PrinterEvents` reports it of readings. Until the
    /// line "begun", nothing has happened yet.
    QList<PrinterEvent> apply(const CaseLine& line);

    /// What is true now, in the order of the names, also of printers that are gone.
    QList<PrinterReading> readings() const;
    /// A null reading for a name that is not known.
    PrinterReading reading(const QString& name) const;

    /// A text or number that the library reads from a driver's value, as a text; empty when there
    /// is no such value, or none that the library accepts. `value` is its name.
    QString published(const QString& printer, const QString& value) const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
