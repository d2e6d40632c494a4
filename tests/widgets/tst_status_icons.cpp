// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "pictures.h"
#include "svg_drawing.h"
#include "test_file.h"

#include <status_codes.h>
#include <status_icons.h>

#include <QtCore/QDir>
#include <QtCore/QSet>
#include <QtGui/QPainter>
#include <QtTest/QtTest>

using VxKit::PrinterReading;
using VxKit::Severity;
using VxKit::StatusIcon;
using VxKit::SvgDrawing;
using VxKit::ViewPalette;

namespace {

constexpr int iconCount = static_cast<int>(StatusIcon::Muted) + 1;

/// An icon in black on white, as somebody sees it who sees no colours at all.
QImage shapeOf(StatusIcon icon, int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    VxKit::paintIcon(painter, image.rect(), icon, Qt::black, Qt::white);
    return image;
}

/// The share of the pixels in which two pictures differ, from 0 to 1.
double difference(const QImage& one, const QImage& other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) / 255.0;
    }
    return sum / (one.width() * one.height());
}

PrinterReading readingOf(int statusCode)
{
    PrinterReading reading;
    reading.setName(QStringLiteral("Shipping"));
    reading.setPresent();
    reading.setStatusCode(statusCode);
    return reading;
}

} // namespace

class StatusIconsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySourceIsDrawnByTheWidgets();
    void whatCannotBeDrawnIsRefused_data();
    void whatCannotBeDrawnIsRefused();
    void iconsAreToldApartWithoutColors_data();
    void iconsAreToldApartWithoutColors();
    void everyIconHasANameOfItsOwn();
    void iconIsAsLargeAsTheScreenNeeds();
    void disabledIconIsFainter();
    void signInAShapeIsSeen();
    void readingHasTheIconOfWhatItSays();
};

void StatusIconsTest::everySourceIsDrawnByTheWidgets()
{
    const QDir folder(testFile(VX_ICONS));
    const QStringList sources = folder.entryList({QStringLiteral("*.svg")});
    QCOMPARE(sources.size(), qsizetype(iconCount));
    for (const QString& name : sources) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY2(SvgDrawing::parse(file.readAll()), qPrintable(name));
    }
    for (int icon = 0; icon < iconCount; ++icon)
        QVERIFY(pictures::pixelsOf(shapeOf(static_cast<StatusIcon>(icon), 32), Qt::black) > 20);
}

void StatusIconsTest::whatCannotBeDrawnIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no XML") << QByteArray("icon");
    QTest::newRow("no view box") << QByteArray("<svg><circle r=\"1\"/></svg>");
    QTest::newRow("empty") << QByteArray("<svg viewBox=\"0 0 1 1\"/>");
    QTest::newRow("another element") << QByteArray("<svg viewBox=\"0 0 1 1\"><text>a</text></svg>");
    for (const char* path : {"M 0 0 A 1 1 0 0 0 2 2", "m 1 1", "M 1", "L x y", "C 1 2 3 4 5", "H"})
        QTest::newRow(path) << R"(<svg viewBox="0 0 1 1"><path d=")" + QByteArray(path) +
                                   "\"/></svg>";
}

void StatusIconsTest::whatCannotBeDrawnIsRefused()
{
    QFETCH(const QByteArray, content);
    QVERIFY(!SvgDrawing::parse(content));
}

void StatusIconsTest::iconsAreToldApartWithoutColors_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("in a list") << 16;
    QTest::newRow("large") << 48;
}

void StatusIconsTest::iconsAreToldApartWithoutColors()
{
    QFETCH(const int, side);
    for (int one = 0; one < iconCount; ++one) {
        for (int other = one + 1; other < iconCount; ++other) {
            const double share = difference(shapeOf(static_cast<StatusIcon>(one), side),
                                            shapeOf(static_cast<StatusIcon>(other), side));
            QVERIFY2(share > 0.08,
                     qPrintable(QStringLiteral("%1 and %2: %3").arg(one).arg(other).arg(share)));
        }
    }
}

void StatusIconsTest::everyIconHasANameOfItsOwn()
{
    QSet<QString> names;
    for (int icon = 0; icon < iconCount; ++icon)
        names.insert(VxKit::iconName(static_cast<StatusIcon>(icon)));
    QCOMPARE(names.size(), qsizetype(iconCount));
    QVERIFY(!names.contains(QString()));
}

void StatusIconsTest::iconIsAsLargeAsTheScreenNeeds()
{
    const ViewPalette colors(pictures::lightPalette());
    const QIcon icon = VxKit::statusIcon(StatusIcon::Error, colors, colors.background());
    for (const double scale : {1.0, 1.5, 2.0}) {
        const QPixmap pixmap = icon.pixmap(QSize(16, 16), scale);
        QCOMPARE(pixmap.size(), (QSizeF(16, 16) * scale).toSize());
        QCOMPARE(pixmap.devicePixelRatio(), scale);
    }
    // The left edge of the octagon is a straight line: at 24 pixels it is one from the border.
    const QImage image = icon.pixmap(QSize(24, 24), 1.0).toImage();
    QCOMPARE(qAlpha(image.pixel(0, 12)), 0);
    QCOMPARE(image.pixelColor(1, 12), colors.severityText(Severity::Error, colors.background()));
}

void StatusIconsTest::disabledIconIsFainter()
{
    const ViewPalette colors(pictures::lightPalette());
    const QIcon icon = VxKit::statusIcon(StatusIcon::Ok, colors, colors.background());
    const auto opacity = [&icon](QIcon::Mode mode) {
        return icon.pixmap(QSize(24, 24), 1.0, mode).toImage().pixelColor(4, 12).alpha();
    };
    QCOMPARE(opacity(QIcon::Normal), 255);
    QVERIFY(opacity(QIcon::Disabled) > 0);
    QVERIFY(opacity(QIcon::Disabled) < 200);
}

void StatusIconsTest::signInAShapeIsSeen()
{
    for (const QPalette& palette : {pictures::lightPalette(), pictures::darkPalette()}) {
        const ViewPalette colors(palette);
        const QColor background = colors.background();
        QImage image(48, 48, QImage::Format_RGB32);
        image.fill(background);
        QPainter painter(&image);
        VxKit::paintIcon(painter, image.rect(), StatusIcon::Error, colors, background);
        painter.end();
        const QColor shape = image.pixelColor(6, 24);
        const QColor sign = image.pixelColor(24, 24);
        QCOMPARE(shape, colors.severityText(Severity::Error, background));
        QVERIFY(ViewPalette::contrast(shape, sign) >= 4.5);
    }
}

void StatusIconsTest::readingHasTheIconOfWhatItSays()
{
    namespace Codes = VXPrinting::StatusCodes;
    QCOMPARE(VxKit::readingIcon({}), StatusIcon::NotKnown);
    QCOMPARE(VxKit::readingIcon(readingOf(Codes::unknown)), StatusIcon::NotKnown);
    QCOMPARE(VxKit::readingIcon(readingOf(Codes::ready)), StatusIcon::Ok);
    QCOMPARE(VxKit::readingIcon(readingOf(Codes::offline)), StatusIcon::Warning);
    QCOMPARE(VxKit::readingIcon(readingOf(5)), StatusIcon::Error);
    QCOMPARE(VxKit::readingIcon(readingOf(21)), StatusIcon::Updating);
    QCOMPARE(VxKit::readingIcon(readingOf(4711)), StatusIcon::Error);
    PrinterReading gone = readingOf(Codes::disconnected);
    gone.setGone(QDateTime::currentDateTimeUtc());
    QCOMPARE(VxKit::readingIcon(gone), StatusIcon::Gone);
}

QTEST_MAIN(StatusIconsTest)

#include "tst_status_icons.moc"
