// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_reading.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace VxKit {

/// What is known of a printer, in words for people and in the application's language. All texts are
/// plain text on one line unless it is said otherwise.
struct ReadingTexts
{
    Q_DECLARE_TR_FUNCTIONS(VxKit::ReadingTexts)

public:
    static QString notKnown();
    /// "AlderMax".
    static QString model(const PrinterReading& reading);
    /// A time in the user's own time zone; empty if it is not valid.
    static QString time(const QDateTime& time);
    /// The same, without the date for a time of today.
    static QString shortTime(const QDateTime& time);
    /// The status in short.
    static QString status(const PrinterReading& reading);
    /// Why the values need not be true any more: "Removed", "Offline", "Not watched: network
    /// printer". Empty for a printer that is watched and online.
    static QString presence(const PrinterReading& reading);
    /// Whether the values are those of the last report, and may have changed since.
    static bool isStale(const PrinterReading& reading);
    /// How long ago something was: "just now", "5 min ago", "3 h ago", or the date.
    static QString age(const QDateTime& then, const QDateTime& now);
    /// The age of the last report: "Last report 5 min ago", "No report yet".
    static QString lastReport(const PrinterReading& reading, const QDateTime& now);

    /// Name, status and model in one line, for those who hear it.
    static QString spokenName(const PrinterReading& reading);
    /// What is loaded, the explanation and the remedy, for those who hear it.
    static QString spokenDetails(const PrinterReading& reading, const QDateTime& now);
    /// Everything that a row has no room for, as rich text.
    static QString toolTip(const PrinterReading& reading, const QDateTime& now);
    /// Everything on lines of "Name: value", to be sent to somebody.
    static QString details(const PrinterReading& reading);
};

} // namespace VxKit
