// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatuskit_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <memory>
#include <optional>

namespace VxKit {

/// A line of a case file.
struct CaseLine
{
    qint64 number = 0; ///< in the file, from 1
    QString kind;    ///< "printer", "values", "signal" and so on; it may be one of a later version
    double time = 0; ///< in seconds since the start; that of the line before if it has none
    QJsonObject object;
};

/// An object as a line of a case file with its line feed. "kind", "t" and "n" come first, for those
/// who read it.
VX_KIT_EXPORT QByteArray caseLine(const QJsonObject& object);

/// Reads a case file (docs/case-files.md) from its beginning to its end.
///
/// @code
/// VxKit::CaseFile file(fileName);
/// while (const std::optional<VxKit::CaseLine> line = file.next())
///     qInfo() << line->number << line->time << line->kind;
/// if (!file.errorString().isEmpty())
///     qWarning() << file.errorString();
/// @endcode
///
/// The file may come from anywhere. Memory is bounded by the longest line that is accepted. What is
/// not a case file, has a later major version, or is damaged elsewhere than at its end is refused:
/// `errorString()` says where and why. A file that was cut is read up to the cut.
///
/// An object may be used on one thread at a time.
class VX_KIT_EXPORT CaseFile
{
public:
    /// The major version of the format that this version reads.
    static constexpr int majorVersion = 1;
    /// In bytes, with the line feed.
    static constexpr qint64 longestLine = qint64(1024) * 1024;
    static constexpr qint64 largestFile = qint64(1024) * 1024 * 1024;

    explicit CaseFile(const QString& fileName);
    ~CaseFile();
    Q_DISABLE_COPY_MOVE(CaseFile)

    /// The next line, beginning with the header; empty at the end, and after an error.
    std::optional<CaseLine> next();

    /// The first line. It is there from the start, and empty when the file was refused.
    QJsonObject header() const;
    /// After the last line: whether the file ends without its line "end", because the recording
    /// stopped in the middle.
    bool isCut() const;
    /// Why the file was refused, in the application's language, with its name and the number of the
    /// line; empty when it was not.
    QString errorString() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
