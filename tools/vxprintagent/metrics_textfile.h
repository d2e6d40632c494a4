// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>

#include <chrono>
#include <functional>

/// Writes metrics to a file for a collector that reads such files, again and again.
///
/// The file always has a complete text. It is removed at the end, because a collector would go on
/// telling what it says.
class MetricsTextfile : public QObject
{
    Q_OBJECT

public:
    MetricsTextfile(const QString& path, std::function<QByteArray()> makeText,
                    std::chrono::milliseconds interval, QObject* parent = nullptr);
    ~MetricsTextfile() override;
    Q_DISABLE_COPY_MOVE(MetricsTextfile)

    /// Writes the file now, and from now on in the interval.
    void start();
    /// Removes the file and writes it no more.
    void stop();

Q_SIGNALS:
    /// Emitted once until the file can be written again. Writing is tried again in the interval.
    void writingFailed(const QString& reason);
    void writingResumed();

private:
    void write();

    QString m_path;
    std::function<QByteArray()> m_makeText;
    QTimer m_clock;
    bool m_hasFailed = false;
    bool m_isWritten = false;
};
