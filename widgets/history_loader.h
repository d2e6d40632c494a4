// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "usage_history_reader.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QThreadPool>

namespace VxKit {

/// What a history holds of one printer.
struct PrinterHistory
{
    struct OfSlot
    {
        QDateTime loadedSince; ///< invalid when nothing is loaded
        QList<UsageSample> samples;
    };

    QString printerKey;
    QHash<Slot, OfSlot> ofSlots;
    QList<UsageGap> gaps;
    /// Why the history could not be read. Empty when it could, and when there is none yet.
    QString error;
};

/// Reads histories on a thread of its own. The destructor waits for the one that is being read.
class HistoryLoader : public QObject
{
    Q_OBJECT

public:
    explicit HistoryLoader(QObject* parent = nullptr);
    ~HistoryLoader() override;

    /// Has what a file holds of a printer since a time, and of what is loaded since it was loaded,
    /// read and reported. What was asked for before and is not being read yet is not read.
    void load(const QString& fileName, const QString& printerKey, const QDateTime& since);

Q_SIGNALS:
    void loaded(const VxKit::PrinterHistory& history);

private:
    QThreadPool m_pool;
};

} // namespace VxKit
