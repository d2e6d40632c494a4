// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "status_info.h"
#include "vxprinterstatuswidgets_export.h"

#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QTimeZone>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>

namespace VxKit {

/// A level over time, with what happened meanwhile and when it will come to its end.
///
/// @code
/// auto* plot = new VxKit::LevelPlot(this);
/// QList<VxKit::LevelPlot::Sample> samples;
/// for (const VxKit::UsageSample& sample : history.samples(key, VxKit::Slot::Supply))
///     samples.append({sample.time.toMSecsSinceEpoch(), sample.ratio.value_or(qQNaN())});
/// plot->setSamples(samples);
/// plot->setTimeRange(QDateTime::currentDateTime().addDays(-7), QDateTime::currentDateTime());
/// @endcode
///
/// **What it shows.** A value holds until the next sample, as the printer reports changes only. A
/// sample without a value begins a gap, in which nothing is drawn: it was not known. The last value
/// holds until `knownUntil`. Times on the axis are those of the user's time zone. Two changes of
/// the clock a year make an hour of the axis be missing or appear twice, as it was.
///
/// **Reading values.** With the mouse over the plot, or with the keys Left, Right, Home and End,
/// the value at a time is shown together with what happened then. Escape ends it. `readOut()` has
/// the same as text, and screen readers get it as the widget's accessible description.
///
/// **How many samples.** A million take less than 16 ms to draw at the width of a screen: no matter
/// how many there are, no detail is left out that is as wide as a pixel.
///
/// The widget is painted with the colours of its palette, and drawn for the resolution of its
/// screen.
class VX_WIDGETS_EXPORT LevelPlot : public QWidget
{
    Q_OBJECT
    /// What is read out at the mark of the mouse or the keyboard; empty without a mark.
    Q_PROPERTY(QString readOut READ readOut NOTIFY readOutChanged)

public:
    /// What the values are.
    enum class Unit
    {
        Ratio,  ///< from 0 to 1, shown as percents
        Meters, ///< for what the catalogue does not know, so that its whole length is not known
    };
    Q_ENUM(Unit)

    /// The value from a time on.
    struct Sample
    {
        qint64 time = 0;        ///< milliseconds since 1970 in UTC
        double value = qQNaN(); ///< NaN: not known from then on

        bool operator==(const Sample&) const = default;
    };
    /// Something that happened.
    struct Mark
    {
        QDateTime time;
        Severity severity = Severity::Information;
        QString text; ///< plain text on one line
    };
    /// A time in which nothing could be recorded.
    struct Gap
    {
        QDateTime since;
        QDateTime until;
    };

    explicit LevelPlot(QWidget* parent = nullptr);
    ~LevelPlot() override;
    Q_DISABLE_COPY_MOVE(LevelPlot)

    /// What the plot is of, such as "Supply: Yellow Vinyl". It becomes the accessible name.
    void setTitle(const QString& title);
    QString title() const;

    /// The samples in the order of their times. One whose time lies before that of the sample
    /// before it is shown at the time of the latter. Values beyond 0 and 1 are drawn at the edge.
    void setSamples(const QList<Sample>& samples, Unit unit = Unit::Ratio);
    /// Adds a sample at the end.
    void addSample(const Sample& sample);
    qsizetype sampleCount() const;
    /// Until when the last sample holds. Invalid, which it is at first: to the end of the range,
    /// but not into the future of `forecastFrom`.
    void setKnownUntil(const QDateTime& time);
    /// The length of a new roll in metres, to read out lengths beside percents.
    void setTotalMeters(std::optional<double> meters);
    /// The colour of the curve, such as that of the ribbon. Invalid: one that suits the palette. It
    /// is changed as far as needed to be seen on the background.
    void setCurveColor(const QColor& color);

    void setMarks(const QList<Mark>& marks);
    void setGaps(const QList<Gap>& gaps);
    /// When what is left will have been used up, from a time on at which so much was left. Empty
    /// for no forecast.
    void setForecast(const QDateTime& from, double value,
                     const std::optional<RemainingTime>& remaining);

    /// What is visible. Ignored when a time is invalid or `until` is not later than `from`.
    void setTimeRange(const QDateTime& from, const QDateTime& until);
    QDateTime visibleFrom() const;
    QDateTime visibleUntil() const;
    /// The zone of the times on the axis; at first that of the system.
    void setTimeZone(const QTimeZone& zone);

    /// The value at a time; empty where it is not known.
    std::optional<double> valueAt(const QDateTime& time) const;
    QString readOut() const;
    /// Marks a time and reads it out. Invalid: no mark.
    void showReadOutAt(const QDateTime& time);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void readOutChanged(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
