// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "history_loader.h"

#include <QtCore/QMetaObject>

#include <algorithm>

namespace VxKit {

namespace {

PrinterHistory historyOf(const QString& fileName, const QString& printerKey, const QDateTime& since)
{
    PrinterHistory history;
    history.printerKey = printerKey;
    const UsageHistoryReader reader(fileName);
    if (!reader.errorString().isEmpty()) {
        if (!reader.isMissing())
            history.error = reader.errorString();
        return history;
    }
    const QList<UsageSegment> segments = reader.segments(printerKey);
    for (const UsageSegment& segment : segments) {
        if (segment.printerKey == printerKey && segment.isLoaded)
            history.ofSlots[segment.slot].loadedSince = segment.from;
    }
    for (const Slot slot : allSlots) {
        PrinterHistory::OfSlot& ofSlot = history.ofSlots[slot];
        const QDateTime from =
            ofSlot.loadedSince.isValid() ? std::min(ofSlot.loadedSince, since) : since;
        ofSlot.samples = reader.samples(printerKey, slot, from);
    }
    history.gaps = reader.gaps();
    return history;
}

} // namespace

HistoryLoader::HistoryLoader(QObject* parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(1);
}

HistoryLoader::~HistoryLoader()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void HistoryLoader::load(const QString& fileName, const QString& printerKey, const QDateTime& since)
{
    m_pool.clear();
    m_pool.start([this, fileName, printerKey, since] {
        const PrinterHistory history = historyOf(fileName, printerKey, since);
        QMetaObject::invokeMethod(
            this, [this, history] { Q_EMIT loaded(history); }, Qt::QueuedConnection);
    });
}

} // namespace VxKit
