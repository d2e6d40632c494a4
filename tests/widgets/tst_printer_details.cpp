// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "pictures.h"

#include <level_plot.h>
#include <printer_details.h>
#include <printer_list_model.h>
#include <usage_history.h>

#include <QtCore/QBuffer>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QtTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QToolButton>

using VxKit::Level;
using VxKit::LevelPlot;
using VxKit::PrinterDetails;
using VxKit::PrinterEvent;
using VxKit::PrinterListModel;
using VxKit::PrinterReading;
using VxKit::RemainingTime;
using VxKit::Severity;
using VxKit::Slot;

namespace {

const QString name = QStringLiteral("Shipping");

QDateTime now()
{
    return {QDate(2026, 11, 18), QTime(14, 0), Qt::UTC};
}

Level levelOf(double ratio)
{
    Level level;
    level.state = Level::State::Loaded;
    level.identifier = QStringLiteral("000000641000050000A7");
    level.sku = QStringLiteral("YV-400200");
    level.name = QStringLiteral("Yellow Vinyl");
    level.material = QStringLiteral("vinyl");
    level.colors = {QStringLiteral("#ffcc00")};
    level.totalMeters = 30.48;
    level.ratio = ratio;
    level.meters = ratio * 30.48;
    level.mileage = static_cast<quint32>(ratio * 30480);
    return level;
}

PrinterReading readingOf(const QString& printer = name, int statusCode = 1)
{
    PrinterReading reading;
    reading.setName(printer);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setPresent();
    reading.setWatching(PrinterReading::Watching::Watched);
    reading.setStatusCode(statusCode);
    reading.setOnline(true);
    reading.setSerialNumber(QStringLiteral("SN1"));
    reading.setLevel(Slot::Supply, levelOf(0.5));
    return reading;
}

PrinterEvent faultAt(const QDateTime& time, int code = 5)
{
    PrinterEvent event;
    event.time = time;
    event.printer = name;
    event.severity = Severity::Error;
    event.kind = PrinterEvent::Kind::Status;
    event.code = code;
    return event;
}

/// Details of the printer "Shipping" at a time that stands still.
struct Shown
{
    Shown()
    {
        model.setReading(readingOf());
        details.setClock(now);
        details.setModel(&model);
        details.setPrinter(name);
        details.resize(480, 900);
        details.show();
    }

    QList<LevelPlot*> plots() const
    {
        QList<LevelPlot*> visible;
        const auto all = details.findChildren<LevelPlot*>();
        for (LevelPlot* plot : all) {
            if (plot->isVisible())
                visible.append(plot);
        }
        return visible;
    }
    QStringList lines() const { return details.toPlainText().split(QLatin1Char('\n')); }
    void set(const PrinterReading& reading) { model.setReading(reading); }

    PrinterListModel model;
    PrinterDetails details;
};

QByteArray pngOf(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray content;
    QBuffer buffer(&content);
    image.save(&buffer, "PNG");
    return content;
}

} // namespace

class PrinterDetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void statusIsShownWithItsExplanationAndRemedy();
    void readyPrinterNeedsNoRemedy();
    void whatIsNotKnownIsNeverZero();
    void changeOfTheModelIsShown();
    void otherPrintersChangeNothing();
    void withoutAPrinterItSaysWhatToDo();
    void printerThatIsGoneSaysSince();
    void printerThatAppearsLaterIsShown();
    void renamedPrinterStays();
    void modelMayBeDestroyedFirst();
    void firmwareUpdateIsShownAsProgress();
    void updateOfUnknownProgressIsUnderWay();
    void eventsAreShownTheNewestFirst();
    void eventsOfOtherPrintersAreNotShown();
    void eventsAreMarkedInThePlots();
    void onlyTheLastEventsAreKept();
    void forecastIsShown();
    void historyIsShownBeforeWhatIsSeenNow();
    void historyThatCannotBeReadIsSaid();
    void spansShowMoreAndMoreOfThePast();
    void hostileTextsAreEscaped();
    void longNamesBreakNoLayout_data();
    void longNamesBreakNoLayout();
    void pictureOfTheCatalogueIsShown();
    void hostilePicturesAreRefused_data();
    void hostilePicturesAreRefused();
    void everythingWithAFocusHasAName();
    void plotOfAnUnknownSlotTakesNoRoom();
};

void PrinterDetailsTest::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
}

void PrinterDetailsTest::statusIsShownWithItsExplanationAndRemedy()
{
    Shown shown;
    shown.set(readingOf(name, 5));
    const VxKit::StatusInfo info = VxKit::statusInfo(5);
    QVERIFY(shown.lines().contains(info.shortTitle));
    QVERIFY(shown.lines().contains(info.explanation));
    QVERIFY(shown.lines().contains(info.remedy));
    QVERIFY(shown.lines().contains(QStringLiteral("Status code: 5")));
    QVERIFY(shown.lines().contains(QStringLiteral("Supply: Yellow Vinyl, 50 %, 15.2 m")));
}

void PrinterDetailsTest::readyPrinterNeedsNoRemedy()
{
    Shown shown;
    QVERIFY(shown.lines().contains(VxKit::statusInfo(1).shortTitle));
    QVERIFY(!shown.lines().contains(VxKit::statusInfo(1).remedy));
}

void PrinterDetailsTest::whatIsNotKnownIsNeverZero()
{
    Shown shown;
    PrinterReading reading;
    reading.setName(name);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setPresent();
    reading.setStatusCode(VXPrinting::StatusCodes::unknown);
    shown.set(reading);
    const QStringList lines = shown.lines();
    QVERIFY(lines.contains(QStringLiteral("Supply: not known")));
    QVERIFY(lines.contains(QStringLiteral("Ribbon 1: not known")));
    QVERIFY(lines.contains(QStringLiteral("Supply, identifier: not known")));
    QVERIFY(lines.contains(QStringLiteral("Update progress: not known")));
    for (const QString& line : lines)
        QVERIFY2(!line.contains(QRegularExpression(QStringLiteral("\\b0\\b"))), qPrintable(line));
}

void PrinterDetailsTest::changeOfTheModelIsShown()
{
    Shown shown;
    PrinterReading reading = readingOf();
    reading.setLevel(Slot::Supply, levelOf(0.25));
    shown.set(reading);
    QVERIFY(shown.lines().contains(QStringLiteral("Supply: Yellow Vinyl, 25 %, 7.6 m")));
}

void PrinterDetailsTest::otherPrintersChangeNothing()
{
    Shown shown;
    const QStringList before = shown.lines();
    shown.set(readingOf(QStringLiteral("A printer"), 5));
    shown.set(readingOf(QStringLiteral("Z printer"), 5));
    shown.model.removeReading(QStringLiteral("A printer"));
    QCOMPARE(shown.lines(), before);
}

void PrinterDetailsTest::withoutAPrinterItSaysWhatToDo()
{
    PrinterDetails details;
    QCOMPARE(details.toPlainText(), QStringLiteral("Choose a printer to see everything about it."));
    details.setPrinter(QStringLiteral("Nowhere"));
    QCOMPARE(details.toPlainText(), QStringLiteral("There is no printer \"Nowhere\"."));
}

void PrinterDetailsTest::printerThatIsGoneSaysSince()
{
    Shown shown;
    PrinterReading reading = readingOf();
    reading.setGone(now());
    reading.setWatching(PrinterReading::Watching::Gone);
    shown.set(reading);
    QVERIFY(shown.lines().contains(
        QStringLiteral("Removed on %1")
            .arg(QLocale().toString(now().toLocalTime(), QLocale::ShortFormat))));
    shown.model.clear();
    QCOMPARE(shown.details.toPlainText(), QStringLiteral("There is no printer \"Shipping\"."));
}

void PrinterDetailsTest::printerThatAppearsLaterIsShown()
{
    Shown shown;
    shown.details.setPrinter(QStringLiteral("Later"));
    QVERIFY(!shown.lines().contains(QStringLiteral("Later")));
    shown.set(readingOf(QStringLiteral("Later")));
    QVERIFY(shown.lines().contains(QStringLiteral("Later")));
}

void PrinterDetailsTest::renamedPrinterStays()
{
    Shown shown;
    shown.details.addEvent(faultAt(now()));
    QSignalSpy spy(&shown.details, &PrinterDetails::printerChanged);
    shown.model.renameReading(name, QStringLiteral("Another"));
    QCOMPARE(shown.details.printer(), QStringLiteral("Another"));
    QCOMPARE(spy.size(), 1);
    QVERIFY(shown.lines().contains(QStringLiteral("Another")));
    QVERIFY(shown.details.toPlainText().contains(VxKit::statusInfo(5).shortTitle));
}

void PrinterDetailsTest::modelMayBeDestroyedFirst()
{
    PrinterDetails details;
    {
        PrinterListModel model;
        model.setReading(readingOf());
        details.setModel(&model);
        details.setPrinter(name);
        QVERIFY(details.toPlainText().contains(QStringLiteral("Yellow Vinyl")));
    }
    QVERIFY(!details.model());
    QCOMPARE(details.toPlainText(), QStringLiteral("There is no printer \"Shipping\"."));
}

void PrinterDetailsTest::firmwareUpdateIsShownAsProgress()
{
    Shown shown;
    auto* progress = shown.details.findChild<QProgressBar*>();
    QVERIFY(!progress->isVisible());
    PrinterReading reading = readingOf(name, 21);
    reading.setUpdateProgress(42);
    shown.set(reading);
    QVERIFY(progress->isVisible());
    QCOMPARE(progress->value(), 42);
    QCOMPARE(progress->maximum(), 100);
    reading.setStatusCode(22);
    reading.setUpdateError(7);
    shown.set(reading);
    QVERIFY(!progress->isVisible());
    QVERIFY(shown.lines().contains(QStringLiteral("Firmware update failed, error 7")));
}

void PrinterDetailsTest::updateOfUnknownProgressIsUnderWay()
{
    Shown shown;
    auto* progress = shown.details.findChild<QProgressBar*>();
    PrinterReading reading = readingOf(name, 21);
    shown.set(reading);
    QVERIFY(progress->isVisible());
    QCOMPARE(progress->maximum(), 0);
    reading.setUpdateProgress(4294967295U);
    shown.set(reading);
    QCOMPARE(progress->maximum(), 0);
}

void PrinterDetailsTest::eventsAreShownTheNewestFirst()
{
    Shown shown;
    shown.details.addEvent(faultAt(now(), 5));
    shown.details.addEvent(faultAt(now().addSecs(-60), 4)); // from a log
    shown.details.addEvent(faultAt(QDateTime(), 2));        // happens now
    const auto* list = shown.details.findChild<QListWidget*>();
    QCOMPARE(list->count(), 3);
    QVERIFY(list->item(0)->text().contains(VxKit::statusInfo(2).shortTitle));
    QVERIFY(list->item(1)->text().contains(VxKit::statusInfo(5).shortTitle));
    QVERIFY(list->item(2)->text().contains(VxKit::statusInfo(4).shortTitle));
}

void PrinterDetailsTest::eventsOfOtherPrintersAreNotShown()
{
    Shown shown;
    PrinterEvent event = faultAt(now());
    event.printer = QStringLiteral("Another");
    shown.details.addEvent(event);
    const auto* list = shown.details.findChild<QListWidget*>();
    QCOMPARE(list->item(0)->text(), QStringLiteral("Nothing has happened yet."));
    shown.set(readingOf(QStringLiteral("Another")));
    shown.details.setPrinter(QStringLiteral("Another"));
    QVERIFY(list->item(0)->text().contains(VxKit::statusInfo(5).shortTitle));
}

void PrinterDetailsTest::eventsAreMarkedInThePlots()
{
    Shown shown;
    shown.details.addEvent(faultAt(now().addSecs(-3600)));
    LevelPlot* plot = shown.plots().value(0);
    QVERIFY(plot);
    plot->showReadOutAt(now().addSecs(-3600));
    QVERIFY(plot->readOut().contains(VxKit::statusInfo(5).shortTitle));
}

void PrinterDetailsTest::onlyTheLastEventsAreKept()
{
    Shown shown;
    for (int event = 0; event < 300; ++event)
        shown.details.addEvent(faultAt(now().addSecs(event)));
    QCOMPARE(shown.details.findChild<QListWidget*>()->count(), 200);
}

void PrinterDetailsTest::forecastIsShown()
{
    Shown shown;
    PrinterReading reading = readingOf();
    reading.setLevel(Slot::Supply, levelOf(0.4));
    reading.setEstimatedSecondsRemaining(Slot::Supply,
                                         RemainingTime{3600.0, 5 * 3600.0, 3 * 86400.0});
    shown.set(reading);
    QVERIFY(shown.lines().contains(
        QStringLiteral("Will probably be used up in 5 hours (60 minutes to 3 days)")));
    LevelPlot* plot = shown.plots().value(0);
    QVERIFY(plot);
    QVERIFY(plot->visibleUntil() > now().addSecs(3600));
}

void PrinterDetailsTest::historyIsShownBeforeWhatIsSeenNow()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("history.db"));
    {
        VxKit::UsageHistoryOptions options;
        options.fileName = file;
        options.clock = now;
        VxKit::UsageHistory history(options);
        PrinterReading reading = readingOf();
        for (int day = 5; day > 0; --day) {
            reading.setLevel(Slot::Supply, levelOf(0.5 + 0.05 * day));
            history.record(reading, now().addDays(-day));
        }
        QVERIFY(history.flush(QDeadlineTimer(QDeadlineTimer::Forever)));
    }
    Shown shown;
    LevelPlot* plot = shown.plots().value(0);
    QVERIFY(plot);
    QVERIFY(!plot->valueAt(now().addDays(-2)));
    shown.details.setHistoryFile(file);
    QTRY_VERIFY(plot->valueAt(now().addDays(-2)));
    QVERIFY(std::abs(*plot->valueAt(now().addDays(-2)) - 0.6) < 0.001);
    QVERIFY(std::abs(*plot->valueAt(now()) - 0.5) < 0.001);
    shown.details.setSpan(PrinterDetails::Span::Roll);
    QCOMPARE(plot->visibleFrom(), now().addDays(-5));
}

void PrinterDetailsTest::historyThatCannotBeReadIsSaid()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("history.db")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("This is no history.");
    file.close();
    Shown shown;
    shown.details.setHistoryFile(file.fileName());
    const auto said = [&] {
        const auto labels = shown.details.findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->text().startsWith(QStringLiteral("The history cannot be read: "));
        });
    };
    QTRY_VERIFY(said());
    shown.details.setHistoryFile(folder.filePath(QStringLiteral("missing.db")));
    QTRY_VERIFY(!said());
}

void PrinterDetailsTest::spansShowMoreAndMoreOfThePast()
{
    Shown shown;
    LevelPlot* plot = shown.plots().value(0);
    QVERIFY(plot);
    QCOMPARE(plot->visibleFrom(), now().addDays(-1));
    QSignalSpy spy(&shown.details, &PrinterDetails::spanChanged);
    const auto buttons = shown.details.findChildren<QToolButton*>();
    QVERIFY(buttons.size() >= 3);
    for (QToolButton* button : buttons) {
        if (button->text() == QStringLiteral("Week"))
            button->click();
    }
    QCOMPARE(spy.size(), 1);
    QCOMPARE(shown.details.span(), PrinterDetails::Span::Week);
    QCOMPARE(plot->visibleFrom(), now().addDays(-7));
}

void PrinterDetailsTest::hostileTextsAreEscaped()
{
    Shown shown;
    const QString hostile = QStringLiteral("<b>x</b>\u202e\n<img src=\"file:///etc/passwd\">");
    const QString escaped =
        QStringLiteral("<b>x</b>\\u202e\\u000a<img src=\"file:///etc/passwd\">");
    PrinterReading reading = readingOf(hostile);
    reading.setFirmwareVersion(hostile);
    Level level = levelOf(0.5);
    level.name = hostile;
    reading.setLevel(Slot::Supply, level);
    shown.set(reading);
    shown.details.setPrinter(hostile);
    QVERIFY(shown.lines().contains(escaped));
    QVERIFY(shown.lines().contains(QStringLiteral("Firmware: ") + escaped));
    const auto labels = shown.details.findChildren<QLabel*>();
    for (const QLabel* label : labels)
        QVERIFY(label->textFormat() == Qt::PlainText || label->text().isEmpty());
}

void PrinterDetailsTest::longNamesBreakNoLayout_data()
{
    QTest::addColumn<QString>("longName");
    QTest::addColumn<int>("width");
    for (const int width : {240, 320, 480, 1200}) {
        QTest::addRow("no spaces, %d", width) << QString(60, u'W') << width;
        QTest::addRow("Japanese, %d", width) << QString(60, QChar(0x5370)) << width;
        QTest::addRow("words, %d", width)
            << QStringLiteral("Etikettendrucker im Versand ").repeated(3) << width;
    }
}

void PrinterDetailsTest::longNamesBreakNoLayout()
{
    QFETCH(const QString, longName);
    QFETCH(const int, width);
    Shown shown;
    PrinterReading reading = readingOf(longName, 5);
    Level level = levelOf(0.5);
    level.name = longName;
    reading.setLevel(Slot::Supply, level);
    reading.setFirmwareVersion(longName);
    shown.set(reading);
    shown.details.setPrinter(longName);
    shown.details.resize(width, 700);
    QTRY_COMPARE(shown.details.width(), width);
    const auto* scroll = shown.details.findChild<QScrollArea*>();
    QTRY_VERIFY(scroll->widget()->width() <= scroll->viewport()->width());
    const auto labels = shown.details.findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (!label->isVisible() || label->text().isEmpty() || !label->hasHeightForWidth())
            continue;
        QTRY_VERIFY2(label->height() >= label->heightForWidth(label->width()),
                     qPrintable(label->text()));
        // However it is broken, there is room for all of it.
        const QFontMetrics metrics(label->font());
        const int lines = label->height() / metrics.height();
        QVERIFY2(metrics.horizontalAdvance(label->text()) <= lines * label->width(),
                 qPrintable(label->text()));
        const QPoint end = label->mapTo(scroll->widget(), QPoint(label->width(), 0));
        QVERIFY2(end.x() <= scroll->viewport()->width(), qPrintable(label->text()));
    }
}

void PrinterDetailsTest::pictureOfTheCatalogueIsShown()
{
    Shown shown;
    const int before = pictures::pixelsOf(pictures::pictureOf(shown.details), Qt::red);
    QStringList asked;
    shown.details.setPictureSource([&asked](const QString& sku) {
        asked.append(sku);
        return pngOf(40, 20);
    });
    PrinterReading reading = readingOf();
    Level level = levelOf(0.4);
    level.sku = QStringLiteral("TG-300575-WH");
    reading.setLevel(Slot::Supply, level);
    shown.set(reading);
    QVERIFY(asked.contains(QStringLiteral("TG-300575-WH")));
    QVERIFY(pictures::pixelsOf(pictures::pictureOf(shown.details), Qt::red) > before + 300);
    // It is not asked for again with each level.
    const qsizetype count = asked.size();
    level.ratio = 0.3;
    reading.setLevel(Slot::Supply, level);
    shown.set(reading);
    QCOMPARE(asked.size(), count);
}

void PrinterDetailsTest::hostilePicturesAreRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no image") << QByteArray("<svg/>");
    QTest::newRow("cut off") << pngOf(40, 20).left(30);
    QTest::newRow("too wide") << pngOf(4100, 3000);
    QTest::newRow("too many bytes") << pngOf(40, 20) + QByteArray(qsizetype(300) * 1024, 'x');
}

void PrinterDetailsTest::hostilePicturesAreRefused()
{
    QFETCH(const QByteArray, content);
    Shown shown;
    shown.details.setPictureSource([&content](const QString&) { return content; });
    PrinterReading reading = readingOf();
    Level level = levelOf(0.4);
    level.sku = QStringLiteral("TG-300575-WH");
    reading.setLevel(Slot::Supply, level);
    shown.set(reading);
    QCOMPARE(pictures::pixelsOf(pictures::pictureOf(shown.details), Qt::red), 0);
}

void PrinterDetailsTest::everythingWithAFocusHasAName()
{
    Shown shown;
    const auto widgets = shown.details.findChildren<QWidget*>();
    int found = 0;
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus) ||
            qobject_cast<const QAbstractScrollArea*>(widget->parent()) ||
            qobject_cast<const QScrollArea*>(widget))
            continue;
        const auto* button = qobject_cast<const QToolButton*>(widget);
        const QString own = button ? button->text() : widget->accessibleName();
        QVERIFY2(!own.isEmpty(), widget->metaObject()->className());
        ++found;
    }
    QVERIFY(found >= 5); // three spans, a plot and the events
}

void PrinterDetailsTest::plotOfAnUnknownSlotTakesNoRoom()
{
    Shown shown;
    QCOMPARE(shown.plots().size(), qsizetype(1));
    PrinterReading reading = readingOf();
    reading.setLevel(Slot::Ribbon1, levelOf(0.9));
    shown.set(reading);
    QCOMPARE(shown.plots().size(), qsizetype(2));
}

QTEST_MAIN(PrinterDetailsTest)

#include "tst_printer_details.moc"
