// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatuskit_export.h"

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

namespace VxKit {

/// How much a status matters to the person who wants to print.
enum class Severity
{
    Ok,          ///< the printer can print
    Information, ///< nothing is wrong: wait, or look elsewhere
    Warning, ///< it does not print at the moment, or soon will not, but nothing is broken or used
             ///< up
    Error,   ///< it does not print until somebody has done what the remedy says
};

/// The severity's name in JSON and for programs, never translated: "ok", "information", "warning"
/// or "error". "error" for a value that is not a `Severity`.
VX_KIT_EXPORT QString severityKey(Severity severity);
/// The severity's name for people. `language` is meant as in `statusInfo`.
VX_KIT_EXPORT QString severityName(Severity severity, const QString& language = QString());

/// What a status code means and what to do about it, in words for people. All texts are plain text.
/// No text is empty.
struct VX_KIT_EXPORT StatusInfo
{
    /// The status code, as in `PrinterStatusInformation::statusEnum`.
    int code = 0;
    /// A name for programs that never changes and is never translated, such as "out_of_labels". It
    /// consists of lower-case letters and underscores. All codes without an entry of their own have
    /// "printer_error".
    QString key;
    Severity severity = Severity::Error;
    /// The library's title: the same text as that of `PrinterStatusController::getStatusTitle`.
    /// Some titles contain a line break.
    QString title;
    /// The title in short, for tables: its first line, without the code that one title repeats in
    /// brackets, and without the full stop.
    QString shortTitle;
    /// What has happened, and what is not meant by it: one to three sentences on one line.
    QString explanation;
    /// What to do, step by step: sentences on one line.
    QString remedy;

    /// The info as it is written everywhere: an object with the members "code", "key", "severity"
    /// (as in `severityKey`), "title", "shortTitle", "explanation" and "remedy".
    QJsonObject toJson() const;

    bool operator==(const StatusInfo&) const = default;
};

/// What a status code means. Every number has an answer: a code that is not known gets the key
/// "printer_error", the severity `Error`, and texts that contain the number.
///
/// The texts are in the application's language: that of the translators that the host has
/// installed. The kit carries its translations, and a host loads them like those of the library:
/// @code
/// QTranslator titles;
/// if (titles.load(QLocale(), "vxprinterstatus", "_", ":/vxprinterstatus/translations"))
///     QCoreApplication::installTranslator(&titles);
/// QTranslator infos;
/// if (infos.load(QLocale(), "vxprinterstatuskit", "_", ":/vxprinterstatuskit/translations"))
///     QCoreApplication::installTranslator(&infos);
///
/// const VxKit::StatusInfo info = VxKit::statusInfo(record.statusEnum);
/// label->setText(info.title);
/// label->setToolTip(info.explanation + '\n' + info.remedy);
/// @endcode
///
/// May be called on any thread.
VX_KIT_EXPORT StatusInfo statusInfo(int code);

/// The same in a given language, for another process or person. The host needs no translator for
/// it.
///
/// `language` is a language tag such as "de", "zh-CN" or "de-AT", with hyphens or underscores, in
/// any case. There are texts in English, German, Spanish, French, Italian, Japanese and simplified
/// Chinese. A tag with a region takes the texts of its language: "de-AT" those of "de". "zh" alone
/// means simplified Chinese; there is no traditional Chinese. When the tag is empty or has no
/// texts, they are in the application's language.
///
/// A language is loaded when it is first asked for and then stays loaded. May be called on any
/// thread.
VX_KIT_EXPORT StatusInfo statusInfo(int code, const QString& language);

/// The severity and the key that `statusInfo` gives a status code, without making its texts.
VX_KIT_EXPORT Severity statusSeverity(int code);
VX_KIT_EXPORT QString statusKey(int code);

/// All codes that have an entry of their own, in ascending order: those of
/// `VXPrinting::StatusCodes` and the faults that the printers report. `language` is meant as in
/// `statusInfo`.
VX_KIT_EXPORT QList<StatusInfo> allStatusInfo(const QString& language = QString());

} // namespace VxKit
