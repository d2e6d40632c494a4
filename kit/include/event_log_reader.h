// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_event.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <memory>
#include <optional>

namespace VxKit {

/// Reads what `EventLog` has written: the rotated files and then the file itself, the oldest event
/// first.
///
/// @code
/// VxKit::EventLogReader log(fileName);
/// while (const std::optional<VxKit::PrinterEvent> event = log.next())
///     qInfo() << event->time << event->printer << event->text;
/// if (!log.errorString().isEmpty())
///     qWarning() << log.errorString();
/// @endcode
///
/// All files are opened when the reader is created, so that the log may be rotated while it is
/// read. What is written later to the files that were opened is read too, as far as it is there
/// when `next` reaches the end.
///
/// The files may come from anywhere. Memory is bounded by the longest line that is accepted, which
/// is 65536 bytes. A longer line, and one that is no event, is skipped and counted.
///
/// A reader may be used on one thread at a time.
class VX_KIT_EXPORT EventLogReader
{
public:
    /// `fileName` is the name that the log was given, without the number of a rotated file. The
    /// file itself or all rotated files may be missing.
    explicit EventLogReader(const QString& fileName);
    ~EventLogReader();
    Q_DISABLE_COPY_MOVE(EventLogReader)

    /// The next event; empty at the end.
    std::optional<PrinterEvent> next();
    /// The line of the event that `next` returned last, without the line feed.
    QByteArray line() const;

    /// How many lines have been skipped so far. Empty lines are not counted.
    qint64 badLines() const;
    /// Why a file could not be opened or read, or that there is no file at all. Empty when every
    /// file could be read.
    QString errorString() const;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
