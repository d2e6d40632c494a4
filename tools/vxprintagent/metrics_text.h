// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_reading.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <array>
#include <optional>

/// What is known of printers, as text that Prometheus and its relatives read.
///
/// What is not known has no series. docs/fleet.md lists the metrics.
namespace metrics_text {

enum class Format
{
    /// The text format 0.0.4: what `promtool check metrics` and the collectors of text files read.
    Prometheus,
    /// OpenMetrics 1.0, which Prometheus asks for. The two differ in the name that describes a
    /// counter, in the word for a metric without a type, and in the last line.
    OpenMetrics,
};

/// The media type of an answer in this format.
QByteArray contentType(Format format);
/// The format for a client that sends this "Accept" header, which may be empty.
Format acceptedFormat(const QByteArray& accept);

/// A printer, and what the agent has counted of it.
struct Printer
{
    VxKit::PrinterReading reading;
    /// What was used in each slot since the agent started, in the order of `VxKit::Slot`.
    std::array<std::optional<double>, 3> consumedMeters{};
};

/// The agent itself.
struct Agent
{
    QString version;
    QString site;
};

/// The whole text. Printers that are gone have no series. Two printers whose names would be the
/// same label get different ones.
QByteArray text(const Agent& agent, const QList<Printer>& printers, Format format);

/// A text from elsewhere as the value of a label, without quotation marks: characters that are not
/// printable are written as JSON escapes, at most 256 characters are left, and what the format
/// needs is escaped.
QByteArray labelValue(const QString& text);

} // namespace metrics_text
