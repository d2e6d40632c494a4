// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The icon in the system's tray. Offscreen there is no tray, which the program must bear.
#include "patience.h"
#include "run_in_english.h"
#include "tray.h"
#include "window_on_readings.h"

#include <QtGui/QImage>

using VxKit::Severity;

namespace {

QImage pictureOf(const Tray& tray)
{
    return tray.icon().pixmap(QSize(32, 32)).toImage();
}

} // namespace

class TrayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hasAnIconForEachState();
    void showsTheWorstStateOfTheFleet();
    void doesItsWorkWithoutATray();
    void offersWhatIsDoneWithoutTheWindow();
    void speaksTheLanguageOfTheWindow();
};

void TrayTest::hasAnIconForEachState()
{
    Tray tray;
    QList<QImage> pictures{pictureOf(tray)}; // nothing is known yet
    for (const Severity severity :
         {Severity::Ok, Severity::Information, Severity::Warning, Severity::Error}) {
        tray.setState(severity, QStringLiteral("text"));
        const QImage picture = pictureOf(tray);
        QCOMPARE(picture.size(), QSize(32, 32));
        QVERIFY(!pictures.contains(picture));
        pictures.append(picture);
        QCOMPARE(tray.toolTip(), QStringLiteral("text"));
    }
    tray.setState(std::nullopt, {});
    QCOMPARE(pictureOf(tray), pictures.first());
}

void TrayTest::showsTheWorstStateOfTheFleet()
{
    WindowOnReadings window(QStringLiteral("en"));
    const Tray* const tray = window->findChild<Tray*>();
    QVERIFY(tray);
    Tray other;
    const auto pictureFor = [&](Severity severity) {
        other.setState(severity, {});
        return pictureOf(other);
    };
    const auto reading = [](int number, int code) {
        return fleet_of_readings::reading(QStringLiteral("Printer %1").arg(number), code);
    };
    window.show({reading(1, VXPrinting::StatusCodes::ready)});
    QCOMPARE(pictureOf(*tray), pictureFor(Severity::Ok));
    QCOMPARE(tray->toolTip(),
             QStringLiteral("Printers: 0 with an error, 0 with a warning, 1 others"));
    window.show({reading(2, hostile_fleet::coverIsOpen)});
    QCOMPARE(pictureOf(*tray), pictureFor(Severity::Error));
    QCOMPARE(tray->toolTip(),
             QStringLiteral("Printers: 1 with an error, 0 with a warning, 1 others"));
    window.show({reading(2, VXPrinting::StatusCodes::ready)});
    QCOMPARE(pictureOf(*tray), pictureFor(Severity::Ok));
}

void TrayTest::doesItsWorkWithoutATray()
{
    Tray tray;
    if (tray.isAvailable())
        QSKIP("this system has a tray");
    tray.show();
    Notices::Notice notice;
    notice.printer = hostile_fleet::names().at(1).name;
    notice.text = QStringLiteral("<b>The cover is open</b>");
    notice.severity = Severity::Error;
    tray.tell(notice);
    // Without a tray, the window is the only way to the program: closing it ends the program.
    WindowOnReadings window(QStringLiteral("en"));
    window.show(hostile_fleet::readings(3));
    window->show();
    QTimer::singleShot(0, &*window, [&] { window->close(); });
    QTimer::singleShot(patience, qApp, [] { QCoreApplication::exit(1); });
    QCOMPARE(QCoreApplication::exec(), 0);
}

void TrayTest::offersWhatIsDoneWithoutTheWindow()
{
    Tray tray;
    QSignalSpy opened(&tray, &Tray::openRequested);
    QSignalSpy muted(&tray, &Tray::muteRequested);
    QSignalSpy ended(&tray, &Tray::quitRequested);
    const QList<QAction*> actions = tray.menu().actions();
    QCOMPARE(actions.size(), 3);
    for (QAction* const action : actions) {
        QVERIFY(!action->text().isEmpty());
        action->trigger();
    }
    QCOMPARE(opened.size(), 1);
    QCOMPARE(muted, (QList<QVariantList>{{true}}));
    QCOMPARE(ended.size(), 1);
    tray.setMuted(false);
    QVERIFY(!actions.at(1)->isChecked());
}

void TrayTest::speaksTheLanguageOfTheWindow()
{
    WindowOnReadings window(QStringLiteral("de"));
    Tray* const tray = window->findChild<Tray*>();
    const QString german = tray->menu().actions().last()->text();
    window.show({fleet_of_readings::reading(QStringLiteral("Printer 1"))});
    const QString germanState = tray->toolTip();
    QVERIFY(window.language().use(QStringLiteral("en")));
    QCoreApplication::processEvents();
    QCOMPARE(tray->menu().actions().last()->text(), QStringLiteral("&Quit"));
    QVERIFY(german != QLatin1String("&Quit"));
    QVERIFY(tray->toolTip() != germanState);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, TrayTest>(argc, argv);
}
#include "tst_tray.moc"
