// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "level_plot.h"

#include "curve_drawing.h"
#include "device_pixels.h"
#include "level_curve.h"
#include "plain_line.h"
#include "run_out_forecast.h"
#include "status_icons.h"
#include "time_axis.h"
#include "view_palette.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtCore/QStringList>
#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtGui/QPen>
#include <QtGui/QPolygonF>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace VxKit {

namespace {

constexpr int spacing = 4;
constexpr double markSize = 14.0;
constexpr double curveWidth = 2.0;
constexpr double areaOpacity = 0.16;
constexpr double bandOpacity = 0.28;
constexpr double hatchStep = 7.0;
/// A narrower stretch in which nothing is known is only left out.
constexpr double narrowestHatch = 3.0;
constexpr int keyboardSteps = 100;
constexpr qsizetype mostMarksReadOut = 3;

/// A number of which at most the second digit is not 0, and at least as large as another: where an
/// axis of metres ends.
double roundedUp(double number)
{
    if (!(number > 0))
        return 1.0;
    const double power = std::pow(10.0, std::floor(std::log10(number)));
    for (const double step : {1.0, 1.2, 1.6, 2.0, 3.0, 4.0, 6.0, 8.0}) {
        if (step * power >= number)
            return step * power;
    }
    return 10.0 * power;
}

struct Forecast
{
    qint64 from;
    double value;
    RemainingTime remaining;
};

struct Stretch
{
    qint64 since;
    qint64 until;
};

struct TimedMark
{
    qint64 time;
    Severity severity;
    QString text;
};

/// Marks that are so near to each other that one icon stands for all of them.
struct MarkCluster
{
    double x = 0;
    Severity severity = Severity::Ok;
    int count = 0;
};

} // namespace

class LevelPlot::Private
{
public:
    explicit Private(LevelPlot* plot)
        : q(plot)
    {}

    /// Something other than the read-out has changed.
    void changed()
    {
        isPictureOld = true;
        q->update();
        tellReadOut();
    }

    qint64 knownUntilTime() const
    {
        qint64 time = until;
        if (knownUntil)
            time = *knownUntil;
        else if (forecast)
            time = std::min(time, forecast->from);
        return curve.size() == 0 ? time : std::max(time, curve.lastTime());
    }
    double largestValue() const
    {
        return unit == Unit::Ratio ? 1.0 : roundedUp(curve.largest().value_or(1.0));
    }
    std::optional<double> valueAt(qint64 time) const
    {
        if (time > knownUntilTime() || isInGap(time))
            return std::nullopt;
        const auto value = curve.valueAt(time);
        return value ? std::optional(std::clamp(*value, 0.0, largestValue())) : std::nullopt;
    }
    bool isInGap(qint64 time) const
    {
        return std::any_of(gaps.begin(), gaps.end(), [time](const Stretch& gap) {
            return gap.since <= time && time < gap.until;
        });
    }

    QString axisLabel(double value) const
    {
        if (unit == Unit::Ratio)
            return LevelPlot::tr("%1 %").arg(QLocale().toString(std::lround(value * 100)));
        return LevelPlot::tr("%1 m").arg(QLocale().toString(value, 'g', 4));
    }
    QString valueText(double value) const
    {
        const auto metersText = [](double meters) {
            return LevelPlot::tr("%1 m").arg(QLocale().toString(meters, 'f', 1));
        };
        if (unit == Unit::Meters)
            return metersText(value);
        // Rounded down like all percentages of the library.
        const QString percent =
            LevelPlot::tr("%1 %").arg(QLocale().toString(std::floor(value * 100 + 1e-6), 'f', 0));
        return totalMeters ? LevelPlot::tr("%1 (%2)", "a percentage and a length")
                                 .arg(percent, metersText(value * *totalMeters))
                           : percent;
    }
    QDateTime localTime(qint64 time) const
    {
        return QDateTime::fromMSecsSinceEpoch(time, Qt::UTC).toTimeZone(zone);
    }
    QString timeText(qint64 time) const
    {
        return QLocale().toString(localTime(time), QLocale::ShortFormat);
    }
    QStringList readOutLines() const;
    void tellReadOut();
    void moveReadOut(double share);

    /// The part of the widget in which the curve is.
    QRectF area() const;
    double xOf(qint64 time, const QRectF& in) const
    {
        return in.left() + (static_cast<double>(time) - static_cast<double>(from)) /
                               (static_cast<double>(until) - static_cast<double>(from)) *
                               in.width();
    }
    double yOf(double value, const QRectF& in) const
    {
        return in.bottom() - std::clamp(value / largestValue(), 0.0, 1.0) * in.height();
    }
    qint64 timeAt(double x, const QRectF& in) const
    {
        const double share = std::clamp((x - in.left()) / in.width(), 0.0, 1.0);
        return from + static_cast<qint64>(std::llround(
                          share * (static_cast<double>(until) - static_cast<double>(from))));
    }

    void paintPicture();
    void paintGrid(QPainter& painter, const ViewPalette& colors, const QRectF& in) const;
    std::vector<LevelCurve::Column> columnsOf(int count, double scale, const QRectF& in) const;
    void paintCurve(const std::vector<LevelCurve::Column>& columns, const ViewPalette& colors,
                    const QRectF& in);
    void paintUnknown(QPainter& painter, const ViewPalette& colors, const QRectF& in,
                      const std::vector<LevelCurve::Column>& columns) const;
    void paintHatch(QPainter& painter, const ViewPalette& colors, const QRectF& in, double left,
                    double right) const;
    void paintForecast(QPainter& painter, const ViewPalette& colors, const QRectF& in) const;
    void paintMarks(QPainter& painter, const ViewPalette& colors, const QRectF& in) const;
    void paintReadOut(QPainter& painter) const;
    QList<MarkCluster> clusters(const QRectF& in) const;
    QColor curveColorOn(const ViewPalette& colors) const
    {
        return curveColor.isValid() ? ViewPalette::readable(curveColor, colors.background(),
                                                            ViewPalette::outlineContrast)
                                    : colors.curve(colors.background());
    }

    LevelPlot* const q;
    QString title;
    LevelCurve curve;
    Unit unit = Unit::Ratio;
    std::optional<qint64> knownUntil;
    std::optional<double> totalMeters;
    QColor curveColor;
    QList<TimedMark> marks; ///< in the order of their times
    QList<Stretch> gaps;
    std::optional<Forecast> forecast;
    qint64 from = 0;
    qint64 until = 1;
    QTimeZone zone = QTimeZone::systemTimeZone();
    std::optional<qint64> readOutTime;
    QString lastReadOut;

    QImage picture; ///< everything but the read-out
    bool isPictureOld = true;
};

QStringList LevelPlot::Private::readOutLines() const
{
    if (!readOutTime)
        return {};
    QStringList lines{timeText(*readOutTime)};
    if (const auto value = valueAt(*readOutTime))
        lines.append(valueText(*value));
    else if (forecast && *readOutTime > forecast->from)
        lines.append(
            LevelPlot::tr("Will probably be used up %1, between %2 and %3")
                .arg(timeText(forecast->from + std::llround(forecast->remaining.p50 * 1000)),
                     timeText(forecast->from + std::llround(forecast->remaining.p10 * 1000)),
                     timeText(forecast->from + std::llround(forecast->remaining.p90 * 1000))));
    else
        lines.append(LevelPlot::tr("not known"));
    const QRectF in = area();
    const double x = xOf(*readOutTime, in);
    qsizetype found = 0;
    for (const TimedMark& mark : marks) {
        if (std::abs(xOf(mark.time, in) - x) > markSize / 2 || ++found > mostMarksReadOut)
            continue;
        lines.append(LevelPlot::tr("%1: %2", "a time and what happened then")
                         .arg(QLocale().toString(localTime(mark.time).time(), QLocale::ShortFormat),
                              mark.text));
    }
    if (found > mostMarksReadOut)
        lines.append(LevelPlot::tr("and %1 more").arg(found - mostMarksReadOut));
    return lines;
}

void LevelPlot::Private::tellReadOut()
{
    const QString text = readOutLines().join(QLatin1Char('\n'));
    if (text == lastReadOut)
        return;
    lastReadOut = text;
    q->setAccessibleDescription(text);
    q->update();
    Q_EMIT q->readOutChanged(text);
}

void LevelPlot::Private::moveReadOut(double share)
{
    const double width = static_cast<double>(until) - static_cast<double>(from);
    const qint64 now = readOutTime.value_or(std::min(knownUntilTime(), until));
    const double moved = static_cast<double>(now) + share * width;
    readOutTime = static_cast<qint64>(
        std::clamp(moved, static_cast<double>(from), static_cast<double>(until)));
    q->update();
    tellReadOut();
}

QRectF LevelPlot::Private::area() const
{
    const QFontMetricsF metrics(q->font());
    const double labels = std::max(metrics.horizontalAdvance(axisLabel(largestValue())),
                                   metrics.horizontalAdvance(axisLabel(largestValue() / 2)));
    return QRectF(q->rect()).adjusted(labels + 2 * spacing, markSize + 2 * spacing, -2 * spacing,
                                      -metrics.height() - 2 * spacing);
}

void LevelPlot::Private::paintPicture()
{
    const ViewPalette colors(q->palette());
    picture.fill(colors.background());
    QPainter painter(&picture);
    painter.setFont(q->font());
    const QRectF in = DevicePixels(painter).snapped(area());
    if (in.width() < 1 || in.height() < 1)
        return;
    const double scale = picture.devicePixelRatio();
    const auto columns = columnsOf(static_cast<int>(std::lround(in.width() * scale)), scale, in);
    paintGrid(painter, colors, in);
    painter.setClipRect(in);
    paintForecast(painter, colors, in);
    paintUnknown(painter, colors, in, columns);
    painter.end();
    paintCurve(columns, colors, in);

    painter.begin(&picture);
    painter.setFont(q->font());
    paintMarks(painter, colors, in);
    DevicePixels(painter).horizontalLine(in.left(), in.right(), in.bottom(),
                                         colors.outline(colors.background()));
}

void LevelPlot::Private::paintGrid(QPainter& painter, const ViewPalette& colors,
                                   const QRectF& in) const
{
    const QColor background = colors.background();
    const DevicePixels pixels(painter);
    const QFontMetricsF metrics(painter.font());
    painter.setPen(colors.fadedText(background));
    const int parts = in.height() >= 6 * metrics.height()   ? 4
                      : in.height() >= 3 * metrics.height() ? 2
                                                            : 1;
    for (int part = 0; part <= parts; ++part) {
        const double value = largestValue() * part / parts;
        const double y = yOf(value, in);
        pixels.horizontalLine(in.left(), in.right(), y, colors.faintLine(background));
        painter.drawText(QRectF(0, y - metrics.height() / 2, in.left() - spacing, metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, axisLabel(value));
    }

    const QLocale locale;
    const double widest =
        metrics.horizontalAdvance(QLatin1String("00/00/00")) + 2 * metrics.averageCharWidth();
    const QList<TimeTick> ticks = timeTicks(QDateTime::fromMSecsSinceEpoch(from, Qt::UTC),
                                            QDateTime::fromMSecsSinceEpoch(until, Qt::UTC),
                                            static_cast<int>(in.width() / widest), zone, locale);
    double free = 0;
    for (const TimeTick& tick : ticks) {
        const double x = xOf(tick.time, in);
        pixels.verticalLine(x, in.top(), in.bottom(),
                            tick.isMajor
                                ? ViewPalette::mixed(colors.outline(background), background, 0.6)
                                : colors.faintLine(background));
        const double width = metrics.horizontalAdvance(tick.label);
        const double left = std::clamp(x - width / 2, 0.0, q->width() - width);
        if (left < free)
            continue;
        painter.setPen(tick.isMajor ? colors.text(background) : colors.fadedText(background));
        painter.drawText(QPointF(left, in.bottom() + spacing + metrics.ascent()), tick.label);
        free = left + width + metrics.averageCharWidth();
    }
}

void LevelPlot::Private::paintHatch(QPainter& painter, const ViewPalette& colors, const QRectF& in,
                                    double left, double right) const
{
    if (right - left < narrowestHatch)
        return;
    painter.save();
    const QRectF box(left, in.top(), right - left, in.height());
    painter.setClipRect(box, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors.faintLine(colors.background()), 1.0));
    // From the plot's own edge on, so that the lines of all stretches go on from each other.
    const double first =
        in.left() + std::floor((left - in.left() - in.height()) / hatchStep) * hatchStep;
    const int lines = static_cast<int>(std::ceil((right - first) / hatchStep));
    for (int line = 0; line < lines; ++line) {
        const double x = first + line * hatchStep;
        painter.drawLine(QPointF(x, in.bottom()), QPointF(x + in.height(), in.top()));
    }
    const QString text = LevelPlot::tr("not known");
    const QFontMetricsF metrics(painter.font());
    const double width = metrics.horizontalAdvance(text) + 4 * spacing;
    if (width < box.width() && in.height() > 3 * metrics.height()) {
        QRectF label(0, 0, width, metrics.height() + spacing);
        label.moveCenter(box.center());
        painter.fillRect(label, colors.background());
        painter.setPen(colors.fadedText(colors.background()));
        painter.drawText(label, Qt::AlignCenter, text);
    }
    painter.restore();
}

std::vector<LevelCurve::Column> LevelPlot::Private::columnsOf(int count, double scale,
                                                              const QRectF& in) const
{
    auto columns = curve.columns(from, until, count, knownUntilTime());
    const auto columnOf = [&](qint64 time) {
        return static_cast<std::size_t>(
            std::clamp((xOf(time, in) - in.left()) * scale, 0.0, static_cast<double>(count)));
    };
    for (const Stretch& gap : gaps) {
        for (std::size_t at = columnOf(gap.since); at < columnOf(gap.until); ++at)
            columns[at] = {.isUnknown = true};
    }
    return columns;
}

void LevelPlot::Private::paintUnknown(QPainter& painter, const ViewPalette& colors,
                                      const QRectF& in,
                                      const std::vector<LevelCurve::Column>& columns) const
{
    const auto xAt = [&](std::size_t column) {
        return in.left() + static_cast<double>(column) / picture.devicePixelRatio();
    };
    for (std::size_t begin = 0; begin < columns.size();) {
        std::size_t end = begin + 1;
        while (end < columns.size() && columns[end].isUnknown == columns[begin].isUnknown)
            ++end;
        if (columns[begin].isUnknown)
            paintHatch(painter, colors, in, xAt(begin), xAt(end));
        begin = end;
    }
}

void LevelPlot::Private::paintCurve(const std::vector<LevelCurve::Column>& columns,
                                    const ViewPalette& colors, const QRectF& in)
{
    const double scale = picture.devicePixelRatio();
    const auto rowOf = [&](float value) {
        return (yOf(static_cast<double>(value), in) - in.top()) * scale;
    };
    CurveDrawing drawing(static_cast<int>(columns.size()), curveColorOn(colors),
                         static_cast<int>(curveWidth * scale), areaOpacity);
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (columns[column].isKnown)
            drawing.addColumn(static_cast<int>(column), rowOf(columns[column].most),
                              rowOf(columns[column].least));
    }
    drawing.draw(picture, (in.topLeft() * scale).toPoint(),
                 static_cast<int>(std::lround(in.height() * scale)));
}

void LevelPlot::Private::paintForecast(QPainter& painter, const ViewPalette& colors,
                                       const QRectF& in) const
{
    if (!forecast || forecast->from >= until)
        return;
    const double start = xOf(forecast->from, in);
    const double top = yOf(forecast->value, in);
    const double perSecond =
        1000.0 * in.width() / (static_cast<double>(until) - static_cast<double>(from));
    const auto endOf = [&](double seconds) {
        return QPointF(start + seconds * perSecond, in.bottom());
    };
    const QPolygonF band{QPointF(start, top), endOf(forecast->remaining.p90),
                         endOf(forecast->remaining.p10)};

    const QColor color = curveColorOn(colors);
    QColor bandColor = color;
    bandColor.setAlphaF(static_cast<float>(bandOpacity));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(bandColor);
    painter.drawPolygon(band);
    painter.setPen(QPen(color, curveWidth, Qt::DashLine, Qt::FlatCap));
    painter.drawLine(QPointF(start, top), endOf(forecast->remaining.p50));
    painter.restore();
    DevicePixels(painter).verticalLine(start, in.top(), in.bottom(),
                                       colors.outline(colors.background()));
}

QList<MarkCluster> LevelPlot::Private::clusters(const QRectF& in) const
{
    QList<MarkCluster> clusters;
    for (const TimedMark& mark : marks) {
        if (mark.time < from || mark.time > until)
            continue;
        const double x = xOf(mark.time, in);
        if (clusters.isEmpty() || x - clusters.last().x > markSize + 2)
            clusters.append({x, mark.severity, 0});
        clusters.last().severity = std::max(clusters.last().severity, mark.severity);
        ++clusters.last().count;
    }
    return clusters;
}

void LevelPlot::Private::paintMarks(QPainter& painter, const ViewPalette& colors,
                                    const QRectF& in) const
{
    const QColor background = colors.background();
    const DevicePixels pixels(painter);
    for (const MarkCluster& cluster : clusters(in)) {
        const StatusIcon icon = severityIcon(cluster.severity);
        QColor line = iconColor(icon, colors, background);
        line.setAlphaF(0.5F);
        pixels.verticalLine(cluster.x, in.top() - spacing, in.bottom(), line);
        const QRectF box(cluster.x - markSize / 2, spacing, markSize, markSize);
        paintIcon(painter, pixels.snapped(box), icon, colors, background);
        if (cluster.count > 1) {
            // A second one behind it.
            DevicePixels(painter).horizontalLine(box.left() + 2, box.right() - 2, spacing / 2.0,
                                                 iconColor(icon, colors, background));
        }
    }
}

void LevelPlot::Private::paintReadOut(QPainter& painter) const
{
    const QStringList lines = readOutLines();
    const QRectF in = area();
    if (lines.isEmpty() || in.width() < 1 || in.height() < 1)
        return;
    const ViewPalette colors(q->palette());
    const QColor background = colors.background();
    const double x = xOf(*readOutTime, in);
    DevicePixels(painter).verticalLine(x, in.top(), in.bottom(), colors.text(background));
    painter.setRenderHint(QPainter::Antialiasing);
    if (const auto value = valueAt(*readOutTime)) {
        painter.setPen(QPen(background, 1.5));
        painter.setBrush(curveColorOn(colors));
        painter.drawEllipse(QPointF(x, yOf(*value, in)), 4.5, 4.5);
    }

    painter.setFont(q->font());
    const QFontMetricsF metrics(q->font());
    const double widest = q->width() - 2.0 * spacing;
    QStringList shown;
    double width = 0;
    for (const QString& line : lines) {
        shown.append(metrics.elidedText(line, Qt::ElideRight, widest - 4 * spacing));
        width = std::max(width, metrics.horizontalAdvance(shown.last()));
    }
    QRectF box(0, 0, width + 4 * spacing,
               metrics.height() * static_cast<double>(shown.size()) + 2 * spacing);
    const bool fitsRight = x + 2 * spacing + box.width() <= q->width() - spacing;
    box.moveTopLeft(
        QPointF(fitsRight ? x + 2 * spacing : x - 2 * spacing - box.width(), in.top() + spacing));
    box.moveLeft(std::clamp(box.left(), double(spacing),
                            std::max(double(spacing), q->width() - spacing - box.width())));
    painter.setPen(Qt::NoPen);
    painter.fillRect(box, background);
    DevicePixels(painter).outline(box, colors.outline(background));
    painter.setPen(colors.text(background));
    double y = box.top() + spacing + metrics.ascent();
    for (const QString& line : std::as_const(shown)) {
        painter.drawText(QPointF(box.left() + 2 * spacing, y), line);
        y += metrics.height();
    }
}

LevelPlot::LevelPlot(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

LevelPlot::~LevelPlot() = default;

void LevelPlot::setTitle(const QString& title)
{
    d->title = plainLine(title);
    setAccessibleName(d->title);
}

QString LevelPlot::title() const
{
    return d->title;
}

void LevelPlot::setSamples(const QList<Sample>& samples, Unit unit)
{
    d->curve.clear();
    d->curve.reserve(static_cast<std::size_t>(samples.size()));
    for (const Sample& sample : samples)
        d->curve.append(sample.time, sample.value);
    d->unit = unit;
    d->changed();
}

void LevelPlot::addSample(const Sample& sample)
{
    d->curve.append(sample.time, sample.value);
    d->changed();
}

qsizetype LevelPlot::sampleCount() const
{
    return static_cast<qsizetype>(d->curve.size());
}

void LevelPlot::setKnownUntil(const QDateTime& time)
{
    d->knownUntil = time.isValid() ? std::optional(time.toMSecsSinceEpoch()) : std::nullopt;
    d->changed();
}

void LevelPlot::setTotalMeters(std::optional<double> meters)
{
    d->totalMeters = meters;
    d->changed();
}

void LevelPlot::setCurveColor(const QColor& color)
{
    d->curveColor = color;
    d->changed();
}

void LevelPlot::setMarks(const QList<Mark>& marks)
{
    d->marks.clear();
    for (const Mark& mark : marks) {
        if (mark.time.isValid())
            d->marks.append({mark.time.toMSecsSinceEpoch(), mark.severity, plainLine(mark.text)});
    }
    std::stable_sort(
        d->marks.begin(), d->marks.end(),
        [](const TimedMark& one, const TimedMark& other) { return one.time < other.time; });
    d->changed();
}

void LevelPlot::setGaps(const QList<Gap>& gaps)
{
    d->gaps.clear();
    for (const Gap& gap : gaps) {
        if (gap.since.isValid() && gap.until.isValid())
            d->gaps.append({gap.since.toMSecsSinceEpoch(), gap.until.toMSecsSinceEpoch()});
    }
    d->changed();
}

void LevelPlot::setForecast(const QDateTime& from, double value,
                            const std::optional<RemainingTime>& remaining)
{
    // Of what lasts longer, forecasts say so long.
    const auto bounded = [](double seconds) {
        return std::clamp(std::isnan(seconds) ? 0.0 : seconds, 0.0, RunOutForecast::horizonSeconds);
    };
    d->forecast.reset();
    if (remaining && from.isValid() && std::isfinite(value))
        d->forecast = {from.toMSecsSinceEpoch(),
                       value,
                       {bounded(remaining->p10), bounded(remaining->p50), bounded(remaining->p90)}};
    d->changed();
}

void LevelPlot::setTimeRange(const QDateTime& from, const QDateTime& until)
{
    if (!from.isValid() || !until.isValid() || from >= until)
        return;
    d->from = from.toMSecsSinceEpoch();
    d->until = until.toMSecsSinceEpoch();
    d->changed();
}

QDateTime LevelPlot::visibleFrom() const
{
    return d->localTime(d->from);
}

QDateTime LevelPlot::visibleUntil() const
{
    return d->localTime(d->until);
}

void LevelPlot::setTimeZone(const QTimeZone& zone)
{
    if (!zone.isValid())
        return;
    d->zone = zone;
    d->changed();
}

std::optional<double> LevelPlot::valueAt(const QDateTime& time) const
{
    return time.isValid() ? d->valueAt(time.toMSecsSinceEpoch()) : std::nullopt;
}

QString LevelPlot::readOut() const
{
    return d->lastReadOut;
}

void LevelPlot::showReadOutAt(const QDateTime& time)
{
    d->readOutTime = time.isValid() ? std::optional(time.toMSecsSinceEpoch()) : std::nullopt;
    update();
    d->tellReadOut();
}

QSize LevelPlot::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {60 * metrics.averageCharWidth(), 11 * metrics.height()};
}

QSize LevelPlot::minimumSizeHint() const
{
    const QFontMetrics metrics(font());
    return {24 * metrics.averageCharWidth(), 7 * metrics.height()};
}

void LevelPlot::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const double scale = painter.deviceTransform().m11();
    const QSize pixels = (QSizeF(size()) * scale).toSize();
    if (d->isPictureOld || d->picture.size() != pixels || d->picture.devicePixelRatio() != scale) {
        if (d->picture.size() != pixels)
            d->picture = QImage(pixels, QImage::Format_RGB32);
        d->picture.setDevicePixelRatio(scale);
        d->paintPicture();
        d->isPictureOld = false;
    }
    painter.drawImage(0, 0, d->picture);
    d->paintReadOut(painter);
    if (hasFocus()) {
        const ViewPalette colors(palette());
        DevicePixels(painter).outline(rect(), colors.selectionEdge());
    }
}

void LevelPlot::changeEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::LocaleChange:
    case QEvent::EnabledChange:
        d->changed();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

void LevelPlot::keyPressEvent(QKeyEvent* event)
{
    const double step = 1.0 / keyboardSteps;
    switch (event->key()) {
    case Qt::Key_Left:
        return d->moveReadOut(-step);
    case Qt::Key_Right:
        return d->moveReadOut(step);
    case Qt::Key_PageUp:
        return d->moveReadOut(-10 * step);
    case Qt::Key_PageDown:
        return d->moveReadOut(10 * step);
    case Qt::Key_Home:
        return d->moveReadOut(-1.0);
    case Qt::Key_End:
        return d->moveReadOut(1.0);
    case Qt::Key_Escape:
        if (d->readOutTime)
            return showReadOutAt({});
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void LevelPlot::mouseMoveEvent(QMouseEvent* event)
{
    const QRectF in = d->area();
    if (in.width() < 1)
        return;
    d->readOutTime = d->timeAt(event->position().x(), in);
    update();
    d->tellReadOut();
}

void LevelPlot::leaveEvent(QEvent* event)
{
    showReadOutAt({});
    QWidget::leaveEvent(event);
}

} // namespace VxKit
