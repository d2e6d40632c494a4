// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "slot_section.h"

#include "level_bar.h"
#include "loaded_picture.h"
#include "view_palette.h"
#include "wrapped_label.h"

#include <QtCore/QLocale>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace VxKit {

/// A level as a bar.
class LevelBarWidget : public QWidget
{
public:
    explicit LevelBarWidget(QWidget* parent)
        : QWidget(parent)
    {
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    void show(Slot slot, const Level& level)
    {
        m_bar = LevelBar::of(level);
        setAccessibleName(levelSentence(slot, level));
        update();
    }

    QSize sizeHint() const override
    {
        const int line = QFontMetrics(font()).height();
        return {8 * line, std::max(10, line * 3 / 4)};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        m_bar.paint(painter, rect(), ViewPalette(palette()), palette().color(QPalette::Window),
                    layoutDirection());
    }

private:
    LevelBar m_bar;
};

namespace {

/// So many changes are kept of a printer that is looked at all the time.
constexpr qsizetype mostNewSamples = 100000;
/// Less colourful curves look like the lines of the plot.
constexpr float leastSaturation = 0.25F;

/// A time for people, in its largest unit: "30 minutes", "12 days".
QString durationText(double seconds)
{
    constexpr double hour = 3600;
    constexpr double day = 24 * hour;
    const QLocale locale;
    if (seconds >= 2 * day)
        return SlotSection::tr("%1 days").arg(locale.toString(std::lround(seconds / day)));
    if (seconds >= 2 * hour)
        return SlotSection::tr("%1 hours").arg(locale.toString(std::lround(seconds / hour)));
    return SlotSection::tr("%1 minutes").arg(locale.toString(std::lround(seconds / 60)));
}

void appendIfNew(QList<LevelPlot::Sample>& samples, qint64 time, std::optional<double> value)
{
    const LevelPlot::Sample sample{time, value.value_or(qQNaN())};
    const bool isKept = !samples.isEmpty() && (samples.last().value == sample.value ||
                                               (std::isnan(samples.last().value) && !value));
    if (isKept)
        return;
    if (samples.size() >= mostNewSamples)
        samples.remove(0, mostNewSamples / 10);
    samples.append(sample);
}

QColor curveColorOf(const Level& level)
{
    if (level.colors.size() != 1)
        return {};
    const QColor color(level.colors.first());
    return color.isValid() && color.hsvSaturationF() >= leastSaturation ? color : QColor();
}

} // namespace

SlotSection::SlotSection(Slot slot, QWidget* parent)
    : QWidget(parent)
    , m_slot(slot)
    , m_picture(new LoadedPicture(slot, this))
    , m_title(new WrappedLabel(this))
    , m_amount(new WrappedLabel(this))
    , m_end(new WrappedLabel(this))
    , m_bar(new LevelBarWidget(this))
    , m_plot(new LevelPlot(this))
{
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    auto* words = new QVBoxLayout;
    for (QWidget* each : {static_cast<QWidget*>(m_title), static_cast<QWidget*>(m_bar),
                          static_cast<QWidget*>(m_amount), static_cast<QWidget*>(m_end)})
        words->addWidget(each);
    words->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(m_picture, 0, Qt::AlignTop);
    top->addLayout(words, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_plot, 1);
}

void SlotSection::begin()
{
    m_isFirst = true;
    m_pictureSku.clear();
    for (QList<LevelPlot::Sample>* samples :
         {&m_pastRatios, &m_pastMeters, &m_newRatios, &m_newMeters})
        samples->clear();
}

void SlotSection::show(const PrinterReading& reading, const QDateTime& now,
                       const std::function<QByteArray(const QString& sku)>& pictures)
{
    const LevelPlot::Unit before = unit();
    m_level = reading.level(m_slot);
    m_remaining = reading.estimatedSecondsRemaining(m_slot);
    const QString name = levelName(m_level);
    m_title->setLine(name.isEmpty()
                         ? slotTitle(m_slot)
                         : tr("%1: %2", "a slot and what is in it").arg(slotTitle(m_slot), name));
    m_bar->show(m_slot, m_level);
    const QString amount = levelAmount(m_level);
    m_amount->setLine(
        amount.isEmpty()
            ? levelText(m_level)
            : tr("%1, %2", "a percentage and amounts").arg(levelText(m_level), amount));
    m_end->setLine(m_remaining
                       ? tr("Will probably be used up in %1 (%2 to %3)")
                             .arg(durationText(m_remaining->p50), durationText(m_remaining->p10),
                                  durationText(m_remaining->p90))
                       : QString());
    if (m_isFirst || m_pictureSku != m_level.sku) {
        m_pictureSku = m_level.sku;
        m_picture->show(m_level,
                        pictures && !m_level.sku.isEmpty() ? pictures(m_level.sku) : QByteArray());
    } else if (!m_picture->hasPicture()) {
        m_picture->show(m_level, {});
    }

    const qint64 time = now.toMSecsSinceEpoch();
    const qsizetype seen = newSamples().size();
    appendIfNew(m_newRatios, time, m_level.ratio);
    appendIfNew(m_newMeters, time, m_level.meters);
    m_plot->setTitle(m_title->text());
    m_plot->setTotalMeters(m_level.totalMeters);
    m_plot->setCurveColor(curveColorOf(m_level));
    const QList<LevelPlot::Sample>& samples = newSamples();
    if (m_isFirst || unit() != before || samples.size() < seen)
        showSamples();
    else if (samples.size() > seen)
        addToPlot(samples.last());
    m_isFirst = false;
    const auto value = unit() == LevelPlot::Unit::Ratio ? m_level.ratio : m_level.meters;
    m_plot->setForecast(now, value.value_or(qQNaN()), value ? m_remaining : std::nullopt);
    m_plot->setKnownUntil(now);
}

void SlotSection::setPast(const QList<LevelPlot::Sample>& ratios,
                          const QList<LevelPlot::Sample>& meters)
{
    m_pastRatios = ratios;
    m_pastMeters = meters;
    showSamples();
}

QDateTime SlotSection::plotBegin() const
{
    const QList<LevelPlot::Sample>& past =
        unit() == LevelPlot::Unit::Ratio ? m_pastRatios : m_pastMeters;
    const QList<LevelPlot::Sample>& recent = newSamples();
    if (past.isEmpty() && recent.isEmpty())
        return {};
    return QDateTime::fromMSecsSinceEpoch((past.isEmpty() ? recent : past).first().time, Qt::UTC);
}

QStringList SlotSection::lines() const
{
    QStringList lines{levelSentence(m_slot, m_level)};
    if (!m_end->text().isEmpty())
        lines.append(m_end->text());
    return lines;
}

LevelPlot::Unit SlotSection::unit() const
{
    return !m_level.ratio && m_level.meters ? LevelPlot::Unit::Meters : LevelPlot::Unit::Ratio;
}

const QList<LevelPlot::Sample>& SlotSection::newSamples() const
{
    return unit() == LevelPlot::Unit::Ratio ? m_newRatios : m_newMeters;
}

void SlotSection::addToPlot(const LevelPlot::Sample& sample)
{
    m_plot->addSample(sample);
    if (!std::isnan(sample.value))
        m_plot->setVisible(true);
}

void SlotSection::showSamples()
{
    const QList<LevelPlot::Sample>& recent = newSamples();
    QList<LevelPlot::Sample> samples =
        unit() == LevelPlot::Unit::Ratio ? m_pastRatios : m_pastMeters;
    // The history also has what was seen here meanwhile.
    if (!recent.isEmpty()) {
        const auto overlap = std::lower_bound(
            samples.begin(), samples.end(), recent.first().time,
            [](const LevelPlot::Sample& sample, qint64 time) { return sample.time < time; });
        samples.erase(overlap, samples.end());
    }
    samples += recent;
    m_plot->setSamples(samples, unit());
    // A plot of nothing would only take the room of the others.
    m_plot->setVisible(
        std::any_of(samples.begin(), samples.end(),
                    [](const LevelPlot::Sample& each) { return !std::isnan(each.value); }));
}

} // namespace VxKit
