// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "pictures.h"

#include <level_plot.h>
#include <view_palette.h>

#include <QtGui/QMouseEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>

#include <cmath>

using VxKit::LevelPlot;
using VxKit::RemainingTime;
using VxKit::Severity;
using VxKit::ViewPalette;

namespace {

const QTimeZone berlin("Europe/Berlin");
const QColor curveColor(0x00, 0x00, 0xc8);

/// Of 18 November 2026.
QDateTime at(int hour, int minute = 0)
{
    return {QDate(2026, 11, 18), QTime(hour, minute), berlin};
}

LevelPlot::Sample sample(int hour, double value)
{
    return {at(hour).toMSecsSinceEpoch(), value};
}

/// A plot of the day with a light palette.
class Plot : public LevelPlot
{
public:
    Plot()
    {
        setPalette(pictures::lightPalette());
        setCurveColor(curveColor);
        setTimeZone(berlin);
        setTimeRange(at(0), at(23, 59));
        resize(600, 200);
    }
};

/// In how many columns of a picture the curve or its area is seen between two shares of the width.
int columnsWithCurve(const QImage& image, double from, double until)
{
    int count = 0;
    for (int x = static_cast<int>(from * image.width()); x < until * image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) == curveColor.rgb()) {
                ++count;
                break;
            }
        }
    }
    return count;
}

void moveMouse(LevelPlot& plot, int x)
{
    const QPointF place(x, plot.height() / 2.0);
    QMouseEvent move(QEvent::MouseMove, place, plot.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&plot, &move);
}

} // namespace

class LevelPlotTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void valueHoldsUntilTheNextSample();
    void whatWasNotKnownIsNotDrawn();
    void gapOfTheRecordingIsNotDrawn();
    void futureHasNoValue();
    void keyboardReadsOut();
    void mouseReadsOut();
    void marksAreReadOutWhereTheyAre();
    void forecastIsReadOutInTheFuture();
    void readOutIsToldToScreenReaders();
    void lengthIsReadOutBesideThePercentage();
    void levelWithoutAWholeIsInMeters();
    void textOfAMarkStaysOnItsLine();
    void linesAreSharpAtEveryScale_data();
    void linesAreSharpAtEveryScale();
    void colorsAreThoseOfThePalette();
    void curveIsSeenWhateverItsColor();
    void impossibleRangesAreIgnored();
    void forecastOfYearsIsDrawnInADay();
    void hostileSamplesAreDrawn();
    void tinyPlotIsDrawn();
    void plotOfNothingIsDrawn();
};

void LevelPlotTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
}

void LevelPlotTest::valueHoldsUntilTheNextSample()
{
    Plot plot;
    plot.setSamples({sample(6, 0.8), sample(12, 0.4)});
    QVERIFY(!plot.valueAt(at(5)));
    QVERIFY(std::abs(plot.valueAt(at(11)).value() - 0.8) < 1e-6);
    QVERIFY(std::abs(plot.valueAt(at(13)).value() - 0.4) < 1e-6);
    QCOMPARE(plot.sampleCount(), qsizetype(2));
    plot.addSample(sample(14, 0.2));
    QVERIFY(std::abs(plot.valueAt(at(15)).value() - 0.2) < 1e-6);
}

void LevelPlotTest::whatWasNotKnownIsNotDrawn()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5), sample(8, qQNaN()), sample(16, 0.5)});
    QVERIFY(!plot.valueAt(at(12)));
    const QImage image = pictures::pictureOf(plot);
    QVERIFY(columnsWithCurve(image, 0.15, 0.35) > 100);
    QCOMPARE(columnsWithCurve(image, 0.45, 0.65), 0);
    QVERIFY(columnsWithCurve(image, 0.75, 0.95) > 100);
}

void LevelPlotTest::gapOfTheRecordingIsNotDrawn()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    plot.setGaps({{at(8), at(16)}, {QDateTime(), at(3)}});
    QVERIFY(plot.valueAt(at(2)));
    QVERIFY(!plot.valueAt(at(12)));
    const QImage image = pictures::pictureOf(plot);
    QVERIFY(columnsWithCurve(image, 0.15, 0.35) > 100);
    QCOMPARE(columnsWithCurve(image, 0.45, 0.65), 0);
}

void LevelPlotTest::futureHasNoValue()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    plot.setKnownUntil(at(12));
    QVERIFY(plot.valueAt(at(11)));
    QVERIFY(!plot.valueAt(at(13)));
    const QImage image = pictures::pictureOf(plot);
    QVERIFY(columnsWithCurve(image, 0.15, 0.45) > 100);
    QCOMPARE(columnsWithCurve(image, 0.6, 1.0), 0);
}

void LevelPlotTest::keyboardReadsOut()
{
    Plot plot;
    plot.setSamples({sample(0, 0.75), sample(12, 0.25)});
    plot.setKnownUntil(at(20));
    QSignalSpy spy(&plot, &LevelPlot::readOutChanged);
    QTest::keyClick(&plot, Qt::Key_Home);
    QVERIFY(plot.readOut().endsWith(QStringLiteral("\n75 %")));
    QTest::keyClick(&plot, Qt::Key_End);
    QVERIFY(plot.readOut().endsWith(QStringLiteral("\nnot known")));
    for (int press = 0; press < 3; ++press)
        QTest::keyClick(&plot, Qt::Key_PageUp);
    QVERIFY(plot.readOut().endsWith(QStringLiteral("\n25 %")));
    QTest::keyClick(&plot, Qt::Key_Left);
    QTest::keyClick(&plot, Qt::Key_Right);
    QCOMPARE(spy.size(), 7);
    QTest::keyClick(&plot, Qt::Key_Escape);
    QVERIFY(plot.readOut().isEmpty());
}

void LevelPlotTest::mouseReadsOut()
{
    Plot plot;
    plot.setSamples({sample(0, 0.75), sample(12, 0.25)});
    const QImage before = pictures::pictureOf(plot);
    moveMouse(plot, 200);
    QVERIFY(plot.readOut().endsWith(QStringLiteral("\n75 %")));
    QVERIFY(pictures::pictureOf(plot) != before);
    moveMouse(plot, 500);
    QVERIFY(plot.readOut().endsWith(QStringLiteral("\n25 %")));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&plot, &leave);
    QVERIFY(plot.readOut().isEmpty());
    QCOMPARE(pictures::pictureOf(plot), before);
}

void LevelPlotTest::marksAreReadOutWhereTheyAre()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    const QImage without = pictures::pictureOf(plot);
    QList<LevelPlot::Mark> marks;
    for (int minute = 0; minute < 5; ++minute)
        marks.prepend({at(10, minute), Severity::Error, QStringLiteral("Fault %1").arg(minute)});
    marks.append({QDateTime(), Severity::Error, QStringLiteral("Never")});
    plot.setMarks(marks);
    QVERIFY(pictures::pictureOf(plot) != without);
    plot.showReadOutAt(at(10));
    QCOMPARE(plot.readOut(), QStringLiteral("18/11/2026 10:00\n50 %\n10:00: Fault 0\n"
                                            "10:01: Fault 1\n10:02: Fault 2\nand 2 more"));
    plot.showReadOutAt(at(14));
    QCOMPARE(plot.readOut(), QStringLiteral("18/11/2026 14:00\n50 %"));
}

void LevelPlotTest::forecastIsReadOutInTheFuture()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    plot.setForecast(at(12), 0.5, RemainingTime{2 * 3600.0, 4 * 3600.0, 8 * 3600.0});
    QVERIFY(!plot.valueAt(at(13)));
    plot.showReadOutAt(at(13));
    QCOMPARE(plot.readOut(),
             QStringLiteral("18/11/2026 13:00\nWill probably be used up 18/11/2026 16:00, between "
                            "18/11/2026 14:00 and 18/11/2026 20:00"));
    plot.setForecast(at(12), 0.5, std::nullopt);
    QCOMPARE(plot.readOut(), QStringLiteral("18/11/2026 13:00\n50 %"));
}

void LevelPlotTest::readOutIsToldToScreenReaders()
{
    Plot plot;
    plot.setTitle(QStringLiteral("Supply: Yellow Vinyl"));
    plot.setSamples({sample(0, 0.5)});
    QCOMPARE(plot.accessibleName(), QStringLiteral("Supply: Yellow Vinyl"));
    plot.showReadOutAt(at(14));
    QCOMPARE(plot.accessibleDescription(), plot.readOut());
    QVERIFY(plot.focusPolicy() & Qt::TabFocus);
}

void LevelPlotTest::lengthIsReadOutBesideThePercentage()
{
    Plot plot;
    plot.setSamples({sample(0, 0.629)});
    plot.setTotalMeters(30.48);
    plot.showReadOutAt(at(14));
    QVERIFY(plot.readOut().endsWith(QStringLiteral("62 % (19.2 m)")));
}

void LevelPlotTest::levelWithoutAWholeIsInMeters()
{
    Plot plot;
    plot.setSamples({sample(0, 41.2), sample(12, 20.0)}, LevelPlot::Unit::Meters);
    plot.showReadOutAt(at(2));
    QVERIFY(plot.readOut().endsWith(QStringLiteral("\n41.2 m")));
    QVERIFY(columnsWithCurve(pictures::pictureOf(plot), 0.2, 0.9) > 300);
}

void LevelPlotTest::textOfAMarkStaysOnItsLine()
{
    Plot plot;
    plot.setMarks({{at(10), Severity::Error, QStringLiteral("a\nb\u202e") + QString(5000, u'x')}});
    plot.showReadOutAt(at(10));
    QCOMPARE(plot.readOut().count(QLatin1Char('\n')), 2);
    QVERIFY(plot.readOut().size() < 600);
    QVERIFY(plot.readOut().contains(QStringLiteral("a\\u000ab\\u202exx")));
    pictures::pictureOf(plot);
}

void LevelPlotTest::linesAreSharpAtEveryScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("100 %") << 1.0;
    QTest::newRow("125 %") << 1.25;
    QTest::newRow("150 %") << 1.5;
    QTest::newRow("200 %") << 2.0;
}

void LevelPlotTest::linesAreSharpAtEveryScale()
{
    QFETCH(const double, scale);
    Plot plot;
    plot.setSamples({sample(6, 0.62), sample(18, 0.31)});
    plot.setKnownUntil(at(20));
    const QImage image = pictures::pictureOf(plot, scale);
    // To the right of what is known there are only the lines of the grid, which are whole pixels.
    const ViewPalette colors(plot.palette());
    const QColor background = colors.background();
    const int x = static_cast<int>(image.width() * 0.94);
    QSet<QRgb> found;
    for (int y = static_cast<int>(30 * scale); y < image.height() - 40 * scale; ++y)
        found.insert(image.pixel(x, y));
    const QSet<QRgb> expected{background.rgb(), colors.faintLine(background).rgb()};
    QCOMPARE(found, expected);
    // The curve begins from one pixel to the next.
    const auto rowOfCurve = [&] {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(image.width() / 2, y) == curveColor.rgb())
                return y;
        }
        return -1;
    }();
    QVERIFY(rowOfCurve > 0);
    int first = 0;
    while (first < image.width() && image.pixel(first, rowOfCurve) != curveColor.rgb())
        ++first;
    const QColor beside = image.pixelColor(first - 1, rowOfCurve);
    QVERIFY(ViewPalette::contrast(beside, background) < 1.6);
}

void LevelPlotTest::colorsAreThoseOfThePalette()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    QCOMPARE(pictures::pictureOf(plot).pixelColor(598, 2), QColor(Qt::white));
    plot.setPalette(pictures::darkPalette());
    QCOMPARE(pictures::pictureOf(plot).pixelColor(598, 2),
             ViewPalette(pictures::darkPalette()).background());
}

void LevelPlotTest::curveIsSeenWhateverItsColor()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    for (const QPalette& palette : {pictures::lightPalette(), pictures::darkPalette()}) {
        plot.setPalette(palette);
        const QColor background = ViewPalette(palette).background();
        for (const QColor& color : {QColor(Qt::white), QColor(Qt::black), background, QColor()}) {
            plot.setCurveColor(color);
            const QImage image = pictures::pictureOf(plot);
            double best = 0;
            for (int y = 30; y < image.height() - 40; ++y)
                best = std::max(best, ViewPalette::contrast(image.pixelColor(310, y), background));
            QVERIFY(best >= 3.0);
        }
    }
}

void LevelPlotTest::impossibleRangesAreIgnored()
{
    Plot plot;
    plot.setTimeRange(at(5), at(5));
    plot.setTimeRange(at(6), at(5));
    plot.setTimeRange(QDateTime(), at(5));
    plot.setTimeZone(QTimeZone());
    QCOMPARE(plot.visibleFrom(), at(0));
    QCOMPARE(plot.visibleUntil(), at(23, 59));
}

void LevelPlotTest::forecastOfYearsIsDrawnInADay()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    // Longer than any forecast of the kit, as it may come from elsewhere.
    constexpr double years = 1e15;
    plot.setForecast(at(12), 0.5, RemainingTime{years, years, years});
    // Nearly level, so that it is seen in the middle of the plot up to its edge.
    const QImage image = pictures::pictureOf(plot);
    bool isSeen = false;
    for (int x = image.width() - 60; x < image.width() - 10; ++x) {
        for (int y = 90; y < 110; ++y)
            isSeen = isSeen || image.pixelColor(x, y) == curveColor;
    }
    QVERIFY(isSeen);
}

void LevelPlotTest::hostileSamplesAreDrawn()
{
    Plot plot;
    constexpr qint64 last = std::numeric_limits<qint64>::max();
    plot.setSamples({{std::numeric_limits<qint64>::min(), -1e300},
                     {0, 1e300},
                     sample(6, 5.0),
                     sample(7, -5.0),
                     {at(8).toMSecsSinceEpoch(), qInf()},
                     {last, 0.5}});
    plot.setForecast(at(9), 1e300, RemainingTime{-1e300, 1e300, qInf()});
    pictures::pictureOf(plot);
    plot.setForecast(at(9), -1.0, RemainingTime{-1e300, 1e300, 1e300});
    QCOMPARE(plot.valueAt(at(6)), std::optional(1.0));
    QCOMPARE(plot.valueAt(at(7)), std::optional(0.0));
    QVERIFY(!plot.valueAt(at(8)));
    plot.showReadOutAt(at(10));
    pictures::pictureOf(plot);
    plot.setTimeRange(QDateTime::fromMSecsSinceEpoch(-(1LL << 60)),
                      QDateTime::fromMSecsSinceEpoch(1LL << 60));
    pictures::pictureOf(plot);
}

void LevelPlotTest::tinyPlotIsDrawn()
{
    Plot plot;
    plot.setSamples({sample(0, 0.5)});
    plot.showReadOutAt(at(10));
    for (const QSize size : {QSize(1, 1), QSize(40, 12), QSize(600, 3), QSize(3, 600)}) {
        plot.resize(size);
        QVERIFY(!pictures::pictureOf(plot).isNull());
    }
}

void LevelPlotTest::plotOfNothingIsDrawn()
{
    Plot plot;
    plot.setTimeRange(at(0), at(12));
    const QImage image = pictures::pictureOf(plot);
    QCOMPARE(columnsWithCurve(image, 0, 1), 0);
    // It is not an empty plot either: what is not known has a pattern.
    const ViewPalette colors(plot.palette());
    QVERIFY(pictures::pixelsOf(image, colors.background()) <
            image.width() * image.height() * 9 / 10);
}

QTEST_MAIN(LevelPlotTest)

#include "tst_level_plot.moc"
