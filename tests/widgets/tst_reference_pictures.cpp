// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the widgets and the window look like, compared with pictures that were looked at. Only where
// letters look the same; elsewhere each picture is skipped. With VX_RENEW_REFERENCES=1 in the
// environment the pictures are made anew, to be looked at; with VX_PICTURE=FOLDER those that differ
// are saved there.
#include "patience.h"
#include "run_in_english.h"
#include "view_colors.h"
#include "window_on_readings.h"

#include <level_plot.h>
#include <printer_details.h>
#include <printer_list_model.h>
#include <printer_list_view.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtGui/QPainter>

#include <algorithm>
#include <array>
#include <cmath>

using fleet_of_readings::codeOf;
using VxKit::Level;
using VxKit::LevelPlot;
using VxKit::PrinterDetails;
using VxKit::PrinterListModel;
using VxKit::PrinterListView;
using VxKit::PrinterReading;
using VxKit::Severity;
using VxKit::Slot;

namespace {

/// So much a channel of a pixel may differ, of 255.
constexpr int mostDifference = 24;
/// So many pixels may differ more, of 10,000.
constexpr double mostPixels = 2;
constexpr qint64 mostBytes = qint64(400) * 1024;

QDateTime now()
{
    return {QDate(2026, 11, 18), QTime(14, 0), Qt::UTC};
}

/// Always "just now": nothing is reported in the future.
QDateTime later()
{
    return {QDate(2099, 1, 1), QTime(0, 0), Qt::UTC};
}

QList<PrinterReading> readings()
{
    using Watching = PrinterReading::Watching;
    const auto reading = [](const char* name, int code) {
        PrinterReading result = fleet_of_readings::reading(QString::fromLatin1(name), code);
        result.setLastReport(later());
        return result;
    };
    const auto level = [](const char* name, const char* color, double ratio) {
        return fleet_of_readings::loaded(QString::fromLatin1(name), {QString::fromLatin1(color)},
                                         ratio, 45.7);
    };
    QList<PrinterReading> result{reading("Packing", hostile_fleet::coverIsOpen),
                                 reading("Returns", codeOf(Severity::Warning)),
                                 reading("Shipping", codeOf(Severity::Information)),
                                 reading("Bench", VXPrinting::StatusCodes::ready),
                                 reading("Laboratory", VXPrinting::StatusCodes::ready),
                                 reading("Cellar", VXPrinting::StatusCodes::offline),
                                 reading("Old one", VXPrinting::StatusCodes::ready)};
    result[1].setLevel(Slot::Supply, level("Yellow Vinyl", "#ffcc00", 0.02));
    result[2].setLevel(Slot::Supply, level("Red Vinyl", "#cc0000", 0.5));
    result[3].setActive(true);
    result[4].setLevel(Slot::Supply, Level());
    Level nothing;
    nothing.state = Level::State::Empty;
    result[4].setLevel(Slot::Ribbon1, nothing);
    result[5].setOnline(false);
    result[5].setLastReport(now().addDays(-1));
    result[6].setGone(now().addDays(-2));
    result[6].setWatching(Watching::Gone);
    return result;
}

void fill(LevelPlot& plot)
{
    QList<LevelPlot::Sample> samples;
    const qint64 begin = now().addDays(-1).toMSecsSinceEpoch();
    constexpr qint64 step = qint64(10) * 60 * 1000;
    for (int number = 0; number < 140; ++number) {
        const double value = number > 60 && number < 75 ? qQNaN() : 0.9 - number * 0.005;
        samples.append({begin + number * step, value});
    }
    plot.setTimeZone(QTimeZone::utc());
    plot.setTitle(QStringLiteral("Supply: Yellow Vinyl"));
    plot.setSamples(samples);
    plot.setKnownUntil(now());
    plot.setCurveColor(QColor(0xff, 0xcc, 0x00));
    plot.setMarks({{now().addSecs(-20000), Severity::Error, QStringLiteral("The cover is open")},
                   {now().addSecs(-60000), Severity::Warning, QStringLiteral("Low")}});
    plot.setForecast(now(), 0.2, VxKit::RemainingTime{.p10 = 9000, .p50 = 15000, .p90 = 30000});
    plot.setTimeRange(now().addDays(-1), now().addSecs(36000));
}

/// What letters look like here.
QByteArray fingerprintOfFonts()
{
    QImage image(400, 80, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QFont font = QApplication::font();
    painter.setFont(font);
    painter.drawText(4, 24, QStringLiteral("Handgloves 0123456789 %·… äöüß"));
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    painter.setFont(font);
    painter.drawText(4, 60, QStringLiteral("Handgloves 0123456789 %·… äöüß"));
    painter.end();
    const QByteArray bits(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    return QCryptographicHash::hash(bits, QCryptographicHash::Sha256).toHex();
}

/// How many of 10,000 pixels differ; all of them when the sizes do.
double differenceOf(const QImage& one, const QImage& other)
{
    if (one.size() != other.size() || one.isNull())
        return 10000;
    qint64 count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            const int difference =
                std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b))});
            count += difference > mostDifference ? 1 : 0;
        }
    }
    return 10000.0 * static_cast<double>(count) / (static_cast<double>(one.width()) * one.height());
}

/// Shows a widget in a size until its layout has come to rest, and takes its picture.
QImage pictureOf(QWidget& widget, const QSize& size)
{
    constexpr int rounds = 20;
    widget.resize(size);
    widget.show();
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage listPicture()
{
    PrinterListModel model;
    for (const PrinterReading& each : readings())
        model.setReading(each);
    PrinterListView view;
    view.setModel(&model);
    return pictureOf(view, QSize(900, 520));
}

QImage narrowListPicture()
{
    PrinterListModel model;
    for (const PrinterReading& each : readings())
        model.setReading(each);
    PrinterListView view;
    view.setLayoutDirection(Qt::RightToLeft);
    view.setModel(&model);
    return pictureOf(view, QSize(360, 480));
}

QImage plotPicture()
{
    LevelPlot plot;
    fill(plot);
    return pictureOf(plot, QSize(640, 200));
}

QImage detailsPicture()
{
    PrinterListModel model;
    PrinterReading each = readings().first();
    each.setEstimatedSecondsRemaining(
        Slot::Supply, VxKit::RemainingTime{.p10 = 40000, .p50 = 60000, .p90 = 90000});
    model.setReading(each);
    PrinterDetails details;
    details.setClock(&now);
    details.setModel(&model);
    details.setPrinter(each.name());
    VxKit::PrinterEvent event = hostile_fleet::events().first();
    event.printer = each.name();
    details.addEvent(event);
    return pictureOf(details, QSize(420, 760));
}

QImage windowPicture()
{
    WindowOnReadings window(QStringLiteral("en"));
    window->findChild<PrinterDetails*>()->setClock(&now);
    window.show(readings());
    VxKit::PrinterEvent event = hostile_fleet::events().first();
    event.printer = QStringLiteral("Packing");
    window->addEvents({event});
    return pictureOf(*window, QSize(960, 640));
}

QImage messagePicture()
{
    WindowOnReadings window(QStringLiteral("en"));
    window->setListed();
    window->setSpoolerRunning(false);
    return pictureOf(*window, QSize(640, 420));
}

const QString folder = QStringLiteral(VX_REFERENCES);

bool isRenewed()
{
    return qEnvironmentVariableIntValue("VX_RENEW_REFERENCES") == 1;
}

} // namespace

class ReferencePicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup() { view_colors::use(QStringLiteral("system")); }
    void looksAsItDid_data();
    void looksAsItDid();
    void noticesWhatIsMissing();
    void areSmall();

private:
    static QByteArray savedFingerprint()
    {
        QFile file(folder + QStringLiteral("/fonts.txt"));
        return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
    }
};

void ReferencePicturesTest::initTestCase()
{
    if (!isRenewed())
        return;
    QVERIFY(QDir().mkpath(folder));
    QFile file(folder + QStringLiteral("/fonts.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(fingerprintOfFonts() + '\n') > 0);
}

void ReferencePicturesTest::looksAsItDid_data()
{
    QTest::addColumn<QString>("colors");
    QTest::addColumn<QImage (*)()>("make");
    const auto row = [](const char* name, const char* colors, QImage (*make)()) {
        QTest::newRow(name) << QString::fromLatin1(colors) << make;
    };
    row("list-light", "light", &listPicture);
    row("list-narrow-mirrored", "light", &narrowListPicture);
    row("plot-light", "light", &plotPicture);
    row("plot-dark", "dark", &plotPicture);
    row("details-dark", "dark", &detailsPicture);
    row("window-dark", "dark", &windowPicture);
    row("spooler-stopped", "light", &messagePicture);
}

void ReferencePicturesTest::looksAsItDid()
{
    QFETCH(const QString, colors);
    using Make = QImage (*)();
    QFETCH(const Make, make);
    view_colors::use(colors);
    if (qApp->devicePixelRatio() != 1.0)
        QSKIP("the pictures are for a screen that is not scaled");
    if (savedFingerprint() != fingerprintOfFonts())
        QSKIP("letters look different here than in the pictures");
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QString file = QStringLiteral("%1/%2.png").arg(folder, name);
    const QImage picture = make();
    if (isRenewed())
        QVERIFY(picture.save(file, "PNG", 0));
    const QImage reference(file);
    QVERIFY2(!reference.isNull(), qPrintable(file));
    const double difference = differenceOf(picture, reference);
    if (const QString to = qEnvironmentVariable("VX_PICTURE");
        !to.isEmpty() && difference > mostPixels)
        picture.save(QStringLiteral("%1/%2.png").arg(to, name));
    QVERIFY2(difference <= mostPixels,
             qPrintable(QStringLiteral("%1 of 10,000 pixels differ").arg(difference)));
}

void ReferencePicturesTest::noticesWhatIsMissing()
{
    view_colors::use(QStringLiteral("light"));
    const QImage picture = listPicture();
    QCOMPARE(differenceOf(picture, listPicture()), 0.0);
    // Without the outline of one bar, and with another colour of a status.
    QImage other = picture;
    const QRgb red = picture.pixel(1, 70); // the stripe of the first row
    int changed = 0;
    for (int y = 0; y < other.height(); ++y) {
        for (int x = 0; x < other.width(); ++x) {
            if (other.pixel(x, y) == red) {
                other.setPixel(x, y, qRgb(0, 128, 0));
                ++changed;
            }
        }
    }
    QVERIFY(changed > 0);
    QVERIFY(differenceOf(picture, other) > mostPixels);
    QVERIFY(differenceOf(picture, picture.copy(0, 0, 100, 100)) > mostPixels);
}

void ReferencePicturesTest::areSmall()
{
    qint64 bytes = 0;
    for (const QFileInfo& each : QDir(folder).entryInfoList(QDir::Files))
        bytes += each.size();
    QVERIFY(bytes > 0);
    QVERIFY2(bytes <= mostBytes, qPrintable(QString::number(bytes)));
}

int main(int argc, char* argv[])
{
    qputenv("TZ", "UTC");
    return runInEnglish<QApplication, ReferencePicturesTest>(argc, argv);
}
#include "tst_reference_pictures.moc"
