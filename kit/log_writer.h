// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "event_log.h"
#include "log_file.h"

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QElapsedTimer>
#include <QtCore/QList>
#include <QtCore/QString>

namespace VxKit {

/// The name of a rotated file; that of the file itself for 0.
QString rotatedLogName(const QString& fileName, int number);

/// The highest number of a rotated file.
inline constexpr int mostRotatedFiles = 99;

/// The size of the longest line with its line feed.
inline constexpr qsizetype longestLogLine = 65536;

/// Appends lines to a log and rotates it. The files are open only while it works, under the lock,
/// so that it need not notice what other processes have done in between.
class LogWriter
{
public:
    /// `options` have valid values.
    explicit LogWriter(EventLogOptions options);

    struct Outcome
    {
        qsizetype written = 0; ///< lines
        QString error{};       ///< empty if all have been written
    };
    /// Writes lines, each of which ends with a line feed. Waits for the lock until `end`.
    Outcome write(const QList<QByteArray>& lines, QDeadlineTimer end);

private:
    bool open();
    bool mustRotate(qint64 added);
    bool rotate();
    bool isOld();
    void removeOldFiles();
    bool writeChunk(Outcome& outcome, QByteArray& chunk, QList<qsizetype>& ends);

    EventLogOptions m_options;
    LogFile m_file;
    qint64 m_size = 0; ///< of the open file
    QString m_error;
    QElapsedTimer m_sinceRemoval;
};

} // namespace VxKit
