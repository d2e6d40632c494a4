// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "pictures.h"

#include <view_palette.h>

#include <QtTest/QtTest>

#include <algorithm>
#include <array>
#include <cmath>

using VxKit::Severity;
using VxKit::ViewPalette;

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>;

constexpr std::array severities{Severity::Ok, Severity::Information, Severity::Warning,
                                Severity::Error};

/// How colours look to people with a colour blindness, for linear channels. From G. M. Machado,
/// M. M. Oliveira, L. A. F. Fernandes, "A Physiologically-based Model for Simulation of Color
/// Vision Deficiency", 2009, severity 1.0:
/// https://www.inf.ufrgs.br/~oliveira/pubs_files/CVD_Simulation/CVD_Simulation.html
constexpr Matrix normal{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix protanopia{{{0.152286, 1.052583, -0.204868},
                             {0.114503, 0.786281, 0.099216},
                             {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix deuteranopia{{{0.367322, 0.860646, -0.227968},
                               {0.280085, 0.672501, 0.047413},
                               {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix tritanopia{{{1.255528, -0.076749, -0.178779},
                             {-0.078411, 0.930809, 0.147602},
                             {0.004733, 0.691367, 0.303900}}};

/// sRGB to CIE XYZ, relative to its white: IEC 61966-2-1.
constexpr Matrix toXyz{{{0.4124564 / 0.95047, 0.3575761 / 0.95047, 0.1804375 / 0.95047},
                        {0.2126729, 0.7151522, 0.0721750},
                        {0.0193339 / 1.08883, 0.1191920 / 1.08883, 0.9503041 / 1.08883}}};

Vector product(const Matrix& matrix, const Vector& vector)
{
    Vector result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            result[row] += matrix[row][column] * vector[column];
    }
    return result;
}

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// The colour in CIE L*a*b*, as somebody sees it.
Vector seen(const QColor& color, const Matrix& eyes)
{
    Vector channels =
        product(eyes, {linear(color.redF()), linear(color.greenF()), linear(color.blueF())});
    for (double& channel : channels)
        channel = std::clamp(channel, 0.0, 1.0);
    Vector xyz = product(toXyz, channels);
    for (double& each : xyz)
        each = each > 0.008856 ? std::cbrt(each) : 7.787 * each + 16.0 / 116.0;
    return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

double difference(const Vector& one, const Vector& other)
{
    return std::hypot(one[0] - other[0], one[1] - other[1], one[2] - other[2]);
}

QList<QPalette> palettes()
{
    return {pictures::lightPalette(), pictures::darkPalette(),
            pictures::paletteOf(Qt::black, Qt::yellow, Qt::cyan), // high contrast
            pictures::paletteOf(QColor(0xff, 0xff, 0xcc), QColor(0x33, 0x33, 0x33), Qt::darkBlue),
            pictures::paletteOf(QColor(0x77, 0x77, 0x77), QColor(0x88, 0x88, 0x88), Qt::gray)};
}

} // namespace

class ViewPaletteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsReadableOnEveryBackgroundOfEveryPalette();
    void anyColorCanBeMadeReadableOnAnyGrey();
    void readableColorIsLeftAlone();
    void contrastIsThatOfTheGuidelines_data();
    void contrastIsThatOfTheGuidelines();
    void severitiesDifferForColorBlindPeopleToo_data();
    void severitiesDifferForColorBlindPeopleToo();
    void errorsAndWarningsHaveABackgroundOfTheirOwn();
    void paletteDecidesWhatIsDark();
};

void ViewPaletteTest::textIsReadableOnEveryBackgroundOfEveryPalette()
{
    for (const QPalette& palette : palettes()) {
        const ViewPalette colors(palette);
        QList<QColor> backgrounds{colors.background(), colors.selection()};
        for (const Severity severity : severities)
            backgrounds.append(colors.severityBackground(severity));
        for (const QColor& background : std::as_const(backgrounds)) {
            QVERIFY(ViewPalette::contrast(colors.text(background), background) >= 4.5);
            QVERIFY(ViewPalette::contrast(colors.fadedText(background), background) >= 4.5);
            QVERIFY(ViewPalette::contrast(colors.outline(background), background) >= 3.0);
            QVERIFY(ViewPalette::contrast(colors.curve(background), background) >= 3.0);
            for (const Severity severity : severities)
                QVERIFY(ViewPalette::contrast(colors.severityText(severity, background),
                                              background) >= 4.5);
        }
        QVERIFY(ViewPalette::contrast(colors.selectionEdge(), colors.background()) >= 3.0);
    }
}

void ViewPaletteTest::anyColorCanBeMadeReadableOnAnyGrey()
{
    for (int grey = 0; grey < 256; ++grey) {
        const QColor background(grey, grey, grey);
        for (const QColor& wanted : {QColor(Qt::red), QColor(Qt::yellow), QColor(Qt::blue),
                                     QColor(Qt::green), background}) {
            const QColor readable = ViewPalette::readable(wanted, background);
            QVERIFY2(ViewPalette::contrast(readable, background) >= 4.5,
                     qPrintable(QStringLiteral("%1 on %2").arg(wanted.name(), background.name())));
        }
    }
}

void ViewPaletteTest::readableColorIsLeftAlone()
{
    QCOMPARE(ViewPalette::readable(Qt::darkRed, Qt::white), QColor(Qt::darkRed));
    // What is changed keeps its hue.
    const QColor changed = ViewPalette::readable(Qt::red, Qt::white, 6.0);
    QVERIFY(changed != QColor(Qt::red));
    QCOMPARE(changed.hue(), 0);
    QCOMPARE(changed.green(), 0);
}

void ViewPaletteTest::contrastIsThatOfTheGuidelines_data()
{
    // https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio and, for the grey,
    // https://webaim.org/resources/contrastchecker/
    QTest::addColumn<QColor>("one");
    QTest::addColumn<QColor>("other");
    QTest::addColumn<double>("contrast");
    QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
    QTest::newRow("equal") << QColor(Qt::red) << QColor(Qt::red) << 1.0;
    QTest::newRow("grey that just suffices")
        << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
    QTest::newRow("red on white") << QColor(Qt::red) << QColor(Qt::white) << 4.0;
}

void ViewPaletteTest::contrastIsThatOfTheGuidelines()
{
    QFETCH(const QColor, one);
    QFETCH(const QColor, other);
    QFETCH(const double, contrast);
    QVERIFY(std::abs(ViewPalette::contrast(one, other) - contrast) < 0.005);
    QCOMPARE(ViewPalette::contrast(one, other), ViewPalette::contrast(other, one));
}

void ViewPaletteTest::severitiesDifferForColorBlindPeopleToo_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << pictures::lightPalette();
    QTest::newRow("dark") << pictures::darkPalette();
}

void ViewPaletteTest::severitiesDifferForColorBlindPeopleToo()
{
    // Colours that differ by 10 are told apart at a glance; 2.3 is what can just be noticed.
    constexpr double atAGlance = 20.0;
    QFETCH(const QPalette, palette);
    const ViewPalette colors(palette);
    const QColor background = colors.background();
    for (const Matrix& eyes : {normal, protanopia, deuteranopia, tritanopia}) {
        for (const Severity one : severities) {
            for (const Severity other : severities) {
                if (one == other)
                    continue;
                QVERIFY(difference(seen(colors.severityText(one, background), eyes),
                                   seen(colors.severityText(other, background), eyes)) >=
                        atAGlance);
            }
        }
    }
}

void ViewPaletteTest::errorsAndWarningsHaveABackgroundOfTheirOwn()
{
    for (const QPalette& palette : {pictures::lightPalette(), pictures::darkPalette()}) {
        const ViewPalette colors(palette);
        QCOMPARE(colors.severityBackground(Severity::Ok), colors.background());
        QCOMPARE(colors.severityBackground(Severity::Information), colors.background());
        QVERIFY(colors.severityBackground(Severity::Warning) != colors.background());
        QVERIFY(colors.severityBackground(Severity::Error) != colors.background());
        QVERIFY(colors.severityBackground(Severity::Error) !=
                colors.severityBackground(Severity::Warning));
    }
}

void ViewPaletteTest::paletteDecidesWhatIsDark()
{
    QVERIFY(!ViewPalette(pictures::lightPalette()).isDark());
    QVERIFY(ViewPalette(pictures::darkPalette()).isDark());
    QCOMPARE(ViewPalette(pictures::darkPalette()).background(), QColor(0x1e, 0x1e, 0x20));
}

QTEST_MAIN(ViewPaletteTest)

#include "tst_view_palette.moc"
