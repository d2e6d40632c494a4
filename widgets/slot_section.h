// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "level_plot.h"
#include "printer_event.h"
#include "printer_reading.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtWidgets/QWidget>

#include <functional>

namespace VxKit {

class LoadedPicture;
class LevelBarWidget;
class WrappedLabel;

/// One slot of a printer in its details: what is loaded, how much of it is left, and how much there
/// was.
class SlotSection : public QWidget
{
    Q_OBJECT

public:
    explicit SlotSection(Slot slot, QWidget* parent = nullptr);

    Slot slot() const { return m_slot; }
    LevelPlot& plot() { return *m_plot; }

    /// Forgets the past.
    void begin();
    /// Shows what is in the slot now, and remembers it for the plot if it differs from before.
    void show(const PrinterReading& reading, const QDateTime& now,
              const std::function<QByteArray(const QString& sku)>& pictures);
    /// What was in the slot before the section was shown. The times are milliseconds since 1970.
    void setPast(const QList<LevelPlot::Sample>& ratios, const QList<LevelPlot::Sample>& meters);
    /// When the first value of the plot was there; invalid without one.
    QDateTime plotBegin() const;

    /// What is in the slot, as lines of text.
    QStringList lines() const;

private:
    LevelPlot::Unit unit() const;
    /// What was seen since the section was shown.
    const QList<LevelPlot::Sample>& newSamples() const;
    void addToPlot(const LevelPlot::Sample& sample);
    void showSamples();

    Slot m_slot;
    Level m_level;
    std::optional<RemainingTime> m_remaining;
    QString m_pictureSku;
    bool m_isFirst = true;
    QList<LevelPlot::Sample> m_pastRatios;
    QList<LevelPlot::Sample> m_pastMeters;
    QList<LevelPlot::Sample> m_newRatios;
    QList<LevelPlot::Sample> m_newMeters;
    LoadedPicture* m_picture;
    WrappedLabel* m_title;
    WrappedLabel* m_amount;
    WrappedLabel* m_end;
    LevelBarWidget* m_bar;
    LevelPlot* m_plot;
};

} // namespace VxKit
