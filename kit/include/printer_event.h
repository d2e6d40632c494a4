// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "status_info.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <optional>

namespace VxKit {

/// Something that happened to a printer, or to all of them, at one time.
///
/// `PrinterEvents` makes events from readings. A host makes those that only it knows, such as a
/// command that failed. `EventLog` writes them to a file, one a line.
///
/// What is not known is empty or has no value. It is never 0.
struct VX_KIT_EXPORT PrinterEvent
{
    enum class Kind
    {
        Status,         ///< the printer has another status
        Supply,         ///< another supply is loaded, or none
        Ribbon,         ///< another ribbon is loaded, or none
        Level,          ///< what is left in a slot has fallen to a mark
        CommandFailed,  ///< a command could not be sent
        PrinterAdded,   ///< the spooler lists a printer that it did not list before
        PrinterGone,    ///< the spooler no longer lists the printer
        PrinterRenamed, ///< the printer has another name; `before.printer` is the old one
        SpoolerStopped, ///< the print spooler is not running, so that no printer can be read
        SpoolerRunning, ///< the print spooler runs again
        Firmware,       ///< another version, or an update that failed
        EventsLost,     ///< the log could not be written; `lost` says how many events it lacks
    };

    /// The values that the event changed, before or after it. Those that it did not concern are
    /// not known.
    struct VX_KIT_EXPORT Values
    {
        std::optional<int> code; ///< the status code
        std::optional<Level::State> state;
        QString identifier;
        QString sku;
        /// The name of a supply or ribbon, in the language of the program that recorded the event.
        QString name;
        std::optional<double> ratio; ///< from 0 to 1
        std::optional<double> meters;
        std::optional<int> labels;
        QString printer; ///< the name of the printer
        QString firmwareVersion;
        QString bootVersion;

        bool operator==(const Values&) const = default;
    };

    /// Invalid means the time at which the event is written. It is written with milliseconds.
    QDateTime time;
    Severity severity = Severity::Information;
    Kind kind = Kind::Status;
    /// Empty for an event that concerns all printers.
    QString printer;
    /// The printer's serial number.
    QString serial;
    /// The status code, the system's error of a command that failed, or the printer's error of an
    /// update that failed.
    std::optional<int> code;
    /// A name for programs: `StatusInfo::key` for a status, else such as "ribbon_empty",
    /// "level_10" or "printer_gone". It consists of lower-case letters, digits and underscores.
    QString key;
    /// What happened, in English, so that a log can be searched whatever language its program
    /// spoke. When it is empty, it is written as `eventText(event, "en")`.
    QString text;
    std::optional<Slot> slot;
    /// The mark that a level has fallen to, in percent.
    std::optional<int> mark;
    Values before;
    Values after;
    /// Why a command failed, in the system's words and language.
    QString reason;
    /// How many events were lost.
    std::optional<qint64> lost;
    /// Since when events were lost.
    QDateTime since;

    bool operator==(const PrinterEvent&) const = default;

    /// The event of a command that could not be sent. `call` is the call that failed, such as
    /// "OpenPrinter", `error` the system's error, and `reason` the same in words.
    static PrinterEvent commandFailed(const QString& printer, const QString& call, int error,
                                      const QString& reason);

    /// The event as one line of JSON in UTF-8, without a line feed at its end. It has fewer than
    /// 65536 bytes. Texts of more than 500 characters are cut off. Characters that could control a
    /// terminal are escaped. docs/event-log.md describes the members.
    QByteArray toLine() const;
    /// The event that `toLine` wrote. Unknown members are ignored. Empty, with a reason in
    /// `*error`, when the line is not a JSON object, or when a required member is missing or has
    /// an invalid value.
    static std::optional<PrinterEvent> fromLine(const QByteArray& line, QString* error = nullptr);
};

/// The kind's name in the log: "status", "supply", "ribbon", "level", "command_failed",
/// "printer_added", "printer_gone", "printer_renamed", "spooler_stopped", "spooler_running",
/// "firmware" or "events_lost".
VX_KIT_EXPORT QString eventKindName(PrinterEvent::Kind kind);

/// What happened, in words for people, on one line, without the name of the printer: "Out of
/// labels", or "Supply: Yellow Vinyl (YV-400200), 80 % left". It is in the application's language,
/// see `statusInfo`, or in English when `language` is "en". English texts have no names of
/// supplies, which are in the language of their program.
VX_KIT_EXPORT QString eventText(const PrinterEvent& event, const QString& language = QString());

} // namespace VxKit

Q_DECLARE_METATYPE(VxKit::PrinterEvent)
