// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "level_bar.h"
#include "pictures.h"
#include "plain_line.h"

#include <QtCore/QLocale>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

using VxKit::Level;
using VxKit::LevelBar;
using VxKit::Slot;
using VxKit::ViewPalette;

namespace {

constexpr int width = 102;
constexpr int height = 14;

QImage drawn(const LevelBar& bar, const ViewPalette& colors,
             Qt::LayoutDirection direction = Qt::LeftToRight)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colors.background());
    QPainter painter(&image);
    bar.paint(painter, QRect(0, 0, width, height), colors, colors.background(), direction);
    return image;
}

LevelBar loaded(double ratio, const QStringList& colors)
{
    return {Level::State::Loaded, colors, ratio};
}

Level levelOf(double ratio)
{
    Level level;
    level.state = Level::State::Loaded;
    level.name = QStringLiteral("Yellow Vinyl");
    level.sku = QStringLiteral("YV-400200");
    level.ratio = ratio;
    return level;
}

} // namespace

class LevelBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void notKnownEmptyAndUsedUpLookDifferent_data();
    void notKnownEmptyAndUsedUpLookDifferent();
    void outlineIsSeenOnEveryBackground_data();
    void outlineIsSeenOnEveryBackground();
    void endOfTheFillingIsSeenInTheColorOfTheBackground();
    void fillingIsAsLongAsWhatIsLeft();
    void fillingBeginsWhereTextBegins();
    void ribbonOfSeveralColorsHasABandForEach();
    void linesAreSharpAtEveryScale_data();
    void linesAreSharpAtEveryScale();
    void whatIsNoColorIsLeftOut();
    void textsTellNotKnownFromEmpty();
    void coarseLevelIsSaidToBeAbout();
    void sentenceHasEverythingThatIsKnown();
    void textFromElsewhereStaysOnItsLine();
};

void LevelBarTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
}

void LevelBarTest::notKnownEmptyAndUsedUpLookDifferent_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << pictures::lightPalette();
    QTest::newRow("dark") << pictures::darkPalette();
}

void LevelBarTest::notKnownEmptyAndUsedUpLookDifferent()
{
    QFETCH(const QPalette, palette);
    const ViewPalette colors(palette);
    const QImage notKnown = drawn({}, colors);
    const QImage nothingLoaded = drawn({Level::State::Empty, {}, {}}, colors);
    const QImage usedUp = drawn(loaded(0.0, {QStringLiteral("#ffcc00")}), colors);
    const QImage amountNotKnown =
        drawn({Level::State::Loaded, {QStringLiteral("#ffcc00")}, {}}, colors);
    const int pixels = width * height;
    // The inside of a bar with nothing in it is plain, that of a used one has a colour of its own,
    // and one of which nothing is known has a pattern.
    QVERIFY(pictures::pixelsOf(nothingLoaded, colors.background()) > pixels * 8 / 10);
    QCOMPARE(pictures::pixelsOf(nothingLoaded, colors.trough(colors.background())), 0);
    QVERIFY(pictures::pixelsOf(usedUp, colors.trough(colors.background())) > pixels * 7 / 10);
    QCOMPARE(pictures::pixelsOf(usedUp, QColor(0xff, 0xcc, 0x00)), 0);
    QVERIFY(pictures::pixelsOf(notKnown, colors.background()) < pixels * 7 / 10);
    QCOMPARE(pictures::pixelsOf(notKnown, colors.trough(colors.background())), 0);
    QVERIFY(pictures::pixelsOf(amountNotKnown, QColor(0xff, 0xcc, 0x00)) > 0);
    QVERIFY(pictures::pixelsOf(amountNotKnown, QColor(0xff, 0xcc, 0x00)) < pixels / 4);
}

void LevelBarTest::outlineIsSeenOnEveryBackground_data()
{
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << pictures::lightPalette();
    QTest::newRow("dark") << pictures::darkPalette();
    QTest::newRow("grey") << pictures::paletteOf(Qt::gray, Qt::black, Qt::blue);
}

void LevelBarTest::outlineIsSeenOnEveryBackground()
{
    QFETCH(const QPalette, palette);
    const ViewPalette colors(palette);
    for (const QString& color :
         {QStringLiteral("#ffffff"), QStringLiteral("#000000"), colors.background().name()}) {
        const QImage image = drawn(loaded(1.0, {color}), colors);
        for (const QPoint at : {QPoint(0, 7), QPoint(101, 7), QPoint(50, 0), QPoint(50, 13)})
            QVERIFY(ViewPalette::contrast(image.pixelColor(at), colors.background()) >= 3.0);
    }
}

void LevelBarTest::endOfTheFillingIsSeenInTheColorOfTheBackground()
{
    const ViewPalette colors(pictures::lightPalette());
    const QImage image = drawn(loaded(0.5, {QStringLiteral("#ffffff")}), colors);
    QCOMPARE(image.pixelColor(50, 7), QColor(Qt::white));
    QCOMPARE(image.pixelColor(51, 7), colors.outline(colors.background()));
    QCOMPARE(image.pixelColor(52, 7), colors.trough(colors.background()));
}

void LevelBarTest::fillingIsAsLongAsWhatIsLeft()
{
    const ViewPalette colors(pictures::lightPalette());
    for (const double ratio : {0.0, 0.25, 0.8, 1.0, -1.0, 7.0}) {
        const QImage image = drawn(loaded(ratio, {QStringLiteral("#ff0000")}), colors);
        const int expected = static_cast<int>(std::lround(std::clamp(ratio, 0.0, 1.0) * 100));
        QCOMPARE(pictures::pixelsOf(image.copy(0, 7, width, 1), Qt::red), expected);
    }
}

void LevelBarTest::fillingBeginsWhereTextBegins()
{
    const ViewPalette colors(pictures::lightPalette());
    const LevelBar bar = loaded(0.25, {QStringLiteral("#ff0000")});
    QCOMPARE(drawn(bar, colors).pixelColor(5, 7), QColor(Qt::red));
    const QImage mirrored = drawn(bar, colors, Qt::RightToLeft);
    QCOMPARE(mirrored.pixelColor(96, 7), QColor(Qt::red));
    QCOMPARE(mirrored.pixelColor(5, 7), colors.trough(colors.background()));
}

void LevelBarTest::ribbonOfSeveralColorsHasABandForEach()
{
    const ViewPalette colors(pictures::lightPalette());
    const QImage image = drawn(loaded(1.0, {QStringLiteral("#ff0000"), QStringLiteral("#00ff00"),
                                            QStringLiteral("#0000ff")}),
                               colors);
    QCOMPARE(image.pixelColor(50, 2), QColor(Qt::red));
    QCOMPARE(image.pixelColor(50, 7), QColor(Qt::green));
    QCOMPARE(image.pixelColor(50, 11), QColor(Qt::blue));
}

void LevelBarTest::linesAreSharpAtEveryScale_data()
{
    QTest::addColumn<double>("scale");
    QTest::newRow("100 %") << 1.0;
    QTest::newRow("150 %") << 1.5;
    QTest::newRow("200 %") << 2.0;
}

void LevelBarTest::linesAreSharpAtEveryScale()
{
    QFETCH(const double, scale);
    const ViewPalette colors(pictures::lightPalette());
    QImage image((QSizeF(width, height) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(colors.background());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing); // as a view may have it
    loaded(0.37, {QStringLiteral("#ff0000")})
        .paint(painter, QRect(1, 1, width - 3, height - 3), colors, colors.background(),
               Qt::LeftToRight);
    painter.end();
    // Every pixel has one of these colours and no mixture of two.
    const int known = pictures::pixelsOf(image, Qt::red) +
                      pictures::pixelsOf(image, colors.background()) +
                      pictures::pixelsOf(image, colors.outline(colors.background())) +
                      pictures::pixelsOf(image, colors.trough(colors.background()));
    QCOMPARE(known, image.width() * image.height());
}

void LevelBarTest::whatIsNoColorIsLeftOut()
{
    const ViewPalette colors(pictures::lightPalette());
    const QImage image = drawn(
        loaded(1.0, {QStringLiteral("red"), QStringLiteral("#12345"), QStringLiteral("#00ff00")}),
        colors);
    QCOMPARE(image.pixelColor(50, 2), QColor(Qt::green));
    QCOMPARE(image.pixelColor(50, 11), QColor(Qt::green));
}

void LevelBarTest::textsTellNotKnownFromEmpty()
{
    QCOMPARE(VxKit::levelText({}), QStringLiteral("not known"));
    Level level;
    level.state = Level::State::Empty;
    QCOMPARE(VxKit::levelText(level), QStringLiteral("nothing loaded"));
    level.state = Level::State::Loaded;
    QCOMPARE(VxKit::levelText(level), QStringLiteral("not known"));
    QCOMPARE(VxKit::levelText(levelOf(0.0)), QStringLiteral("0 %"));
    QCOMPARE(VxKit::levelText(levelOf(0.629)), QStringLiteral("62 %"));
}

void LevelBarTest::coarseLevelIsSaidToBeAbout()
{
    Level level = levelOf(0.5);
    level.coarse = true;
    QCOMPARE(VxKit::levelText(level), QStringLiteral("about 50 %"));
}

void LevelBarTest::sentenceHasEverythingThatIsKnown()
{
    Level level = levelOf(0.5);
    QCOMPARE(VxKit::levelSentence(Slot::Supply, level),
             QStringLiteral("Supply: Yellow Vinyl, 50 %"));
    level.meters = 1234.56;
    level.labels = 1;
    QCOMPARE(VxKit::levelSentence(Slot::Supply, level),
             QStringLiteral("Supply: Yellow Vinyl, 50 %, 1,234.6 m, 1 label"));
    QCOMPARE(VxKit::levelSentence(Slot::Ribbon2, {}), QStringLiteral("Ribbon 2: not known"));
    level.state = Level::State::NotInCatalogue;
    level.identifier = QStringLiteral("2099");
    QCOMPARE(VxKit::levelName(level), QStringLiteral("not in the catalogue (2099)"));
}

void LevelBarTest::textFromElsewhereStaysOnItsLine()
{
    QCOMPARE(VxKit::plainLine(QStringLiteral("Caf\u00e9 \u30d7\u30ea \U0001f5a8")),
             QStringLiteral("Caf\u00e9 \u30d7\u30ea \U0001f5a8"));
    QCOMPARE(VxKit::plainLine(QStringLiteral("a\nb\u202ec")), QStringLiteral("a\\u000ab\\u202ec"));
    QCOMPARE(VxKit::plainLine(QString(1000, u'x'), 10), QString(10, u'x') + QChar(0x2026));
    QCOMPARE(VxKit::plainLine(QString(QChar(0xd800))), QString(QChar(0xfffd)));
}

QTEST_MAIN(LevelBarTest)

#include "tst_level_bar.moc"
