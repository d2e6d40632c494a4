// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatuskit_export.h"

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace VxKit {

/// Takes the names of people, computers and printers, serial numbers and addresses out of the lines
/// of a case file (docs/case-files.md).
///
/// @code
/// VxKit::CaseRedaction redaction;
/// redaction.learnPrinters(names);
/// for (const QJsonObject& line : lines) {
///     const QJsonObject safe = redaction.redacted(line);
///     if (!safe.isEmpty())
///         file.write(VxKit::caseLine(safe));
/// }
/// @endcode
///
/// A name gets the same pseudonym on all lines: "Printer 1", "User 2". What decides how the library
/// behaves is kept, so that a redacted case plays like the original: status codes, what is loaded,
/// mileages, firmware versions, names of supported drivers and USB ports. A text that is none of
/// these is left out: the object has no member for it, or the value has its size alone. Members and
/// kinds of lines that are not known are left out too, because nobody can tell what they hold.
///
/// An object is used on one thread at a time, and for one file.
class VX_KIT_EXPORT CaseRedaction
{
public:
    CaseRedaction();
    ~CaseRedaction();
    CaseRedaction(CaseRedaction&& other) noexcept;
    CaseRedaction& operator=(CaseRedaction&& other) noexcept;
    Q_DISABLE_COPY(CaseRedaction)

    /// Gives printers their pseudonyms, in the order of their names. Calling it first with all
    /// names that are known makes the numbers plain. A name that is only met later gets a
    /// pseudonym such as "Printer 2.5", because the library chooses printers by the order of their
    /// names.
    void learnPrinters(const QStringList& names);

    /// The line without what could identify anybody. Empty when nothing can be kept of it.
    QJsonObject redacted(const QJsonObject& line);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace VxKit
