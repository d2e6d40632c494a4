// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The window, on readings that the test makes. With VX_PICTURE=FOLDER in the environment the test
// also saves pictures of it.
#include "fleet_of_readings.h"
#include "main_window.h"
#include "patience.h"
#include "run_in_english.h"
#include "sample_database.h"
#include "supply_pictures.h"
#include "test_file.h"
#include "view_colors.h"
#include "view_language.h"
#include "view_settings.h"

#include <printer_details.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QTreeView>

#include <algorithm>

using fleet_of_readings::reading;
using Message = MessagePage::Message;
using VxKit::PrinterReading;
using VxKit::Severity;

namespace {

constexpr int coverIsOpen = 4;

QList<PrinterReading> fleet(int count)
{
    QList<PrinterReading> readings;
    for (int number = 1; number <= count; ++number)
        readings.append(reading(QStringLiteral("Printer %1").arg(number),
                                number == 17 ? coverIsOpen : VXPrinting::StatusCodes::ready));
    return readings;
}

VxKit::PrinterEvent coverOpened(const QString& printer)
{
    VxKit::PrinterEvent event;
    event.time = QDateTime::currentDateTimeUtc();
    event.kind = VxKit::PrinterEvent::Kind::Status;
    event.severity = Severity::Error;
    event.key = QStringLiteral("cover_open");
    event.printer = printer;
    event.code = coverIsOpen;
    event.before.code = VXPrinting::StatusCodes::ready;
    return event;
}

/// The widgets that are seen, but not what is inside a scroll area, which may be larger than it.
QList<QWidget*> visibleParts(QWidget& window)
{
    QList<QWidget*> parts;
    for (QWidget* child : window.findChildren<QWidget*>()) {
        if (child->isVisible() && (qobject_cast<QAbstractButton*>(child) ||
                                   qobject_cast<QLabel*>(child) || qobject_cast<QComboBox*>(child)))
            parts.append(child);
    }
    return parts;
}

/// What of a text does not fit into its widget; empty if all of it does.
QString cutOff(const QWidget& part)
{
    if (const auto* label = qobject_cast<const QLabel*>(&part)) {
        const bool fits = label->hasHeightForWidth()
                              ? label->heightForWidth(label->width()) <= label->height()
                              : label->sizeHint().width() <= label->width();
        return fits ? QString() : label->text();
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&part)) {
        QStyleOptionComboBox option;
        option.initFrom(box);
        const QRect field = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                         QStyle::SC_ComboBoxEditField, box);
        const int needed = box->fontMetrics().horizontalAdvance(box->currentText());
        return needed <= field.width() ? QString() : box->currentText();
    }
    const auto& button = static_cast<const QAbstractButton&>(part);
    const int needed =
        QFontMetrics(button.font()).size(Qt::TextShowMnemonic, button.text()).width();
    return button.text().isEmpty() || needed <= button.width() ? QString() : button.text();
}

/// The first text that is cut off or overlaps another part beside it; empty if there is none.
QString problemOf(QWidget& window)
{
    const QList<QWidget*> parts = visibleParts(window);
    for (qsizetype one = 0; one < parts.size(); ++one) {
        if (const QString text = cutOff(*parts.at(one)); !text.isEmpty())
            return QStringLiteral("cut off: ") + text;
        for (qsizetype other = 0; other < one; ++other) {
            if (parts.at(one)->parentWidget() == parts.at(other)->parentWidget() &&
                parts.at(one)->geometry().intersects(parts.at(other)->geometry()))
                return QStringLiteral("overlaps: %1 %2").arg(one).arg(other);
        }
    }
    return {};
}

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void saysWhatToDoWhenThereIsNothingToShow();
    void showsTheLastStateWhileTheSpoolerIsStoppedWhenAsked();
    void saysWhoMayManageThePrinters();
    void countsPrintersBySeverity();
    void showsTheFailedOneOfFortyFirst();
    void tellsOfAFaultOnce();
    void doesNotListWhatIsFoundInOrder();
    void showsTheWorstUntilSomebodyChooses();
    void takesPicturesOfSuppliesFromTheCatalogue();
    void keepsAPrinterChosenThatIsRenamed();
    void speaksAnotherLanguageAtOnce();
    void cutsNothingOff_data();
    void cutsNothingOff();
    void namesEveryControl();
    void remembersItsLayout();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ViewSettings> m_settings;
    std::unique_ptr<ViewLanguage> m_language;
    std::unique_ptr<MainWindow> m_window;

    MainWindow& window() { return *m_window; }
    void makeWindow(const QString& catalogueFile = {})
    {
        m_window.reset();
        m_window = std::make_unique<MainWindow>(*m_settings, *m_language, QString(), catalogueFile);
        m_window->show();
    }
    std::optional<Message> message()
    {
        return window().showsMessage() ? std::optional(window().messagePage().message())
                                       : std::nullopt;
    }
    void savePicture(const QString& name)
    {
        const QString folder = qEnvironmentVariable("VX_PICTURE");
        if (!folder.isEmpty())
            window().grab().save(QStringLiteral("%1/%2.png").arg(folder, name));
    }
};

void MainWindowTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<ViewSettings>(m_folder->filePath(QStringLiteral("view.ini")));
    m_language = std::make_unique<ViewLanguage>();
    QVERIFY(m_language->use(QStringLiteral("en")));
    makeWindow();
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    m_language.reset();
    m_settings.reset();
    m_folder.reset();
}

void MainWindowTest::saysWhatToDoWhenThereIsNothingToShow()
{
    QCOMPARE(message(), Message::Loading);
    window().setListed();
    QCOMPARE(message(), Message::Empty);
    QVERIFY(window().messagePage().text().contains(QLatin1String("Connect a printer by USB")));
    savePicture(QStringLiteral("empty"));
    window().setReadings(fleet(1));
    QTRY_COMPARE(message(), std::nullopt);
}

void MainWindowTest::showsTheLastStateWhileTheSpoolerIsStoppedWhenAsked()
{
    window().setReadings(fleet(3));
    window().setListed();
    window().setSpoolerRunning(false);
    QCOMPARE(message(), Message::SpoolerStopped);
    QVERIFY(window().messagePage().text().contains(QLatin1String("Print Spooler")));
    savePicture(QStringLiteral("spooler-stopped"));
    auto* const button = window().messagePage().findChild<QPushButton*>();
    button->click();
    QCOMPARE(message(), std::nullopt);
    window().setReadings({reading(QStringLiteral("Printer 1"), coverIsOpen)});
    QTRY_VERIFY(window().overview().findChild<QToolButton*>()->text().startsWith(u'2') ||
                window().overview().findChild<QToolButton*>()->text().startsWith(u'1'));
    QCOMPARE(message(), std::nullopt); // and it stays so
    window().setSpoolerRunning(true);
    QCOMPARE(message(), std::nullopt);
    window().setSpoolerRunning(false);
    QCOMPARE(message(), Message::SpoolerStopped); // the next time it is said again
}

void MainWindowTest::saysWhoMayManageThePrinters()
{
    QList<PrinterReading> readings = fleet(2);
    for (PrinterReading& each : readings)
        each.setWatching(PrinterReading::Watching::NotManaged);
    window().setReadings(readings);
    window().setListed();
    QCOMPARE(message(), Message::NoRights);
    QVERIFY(window().messagePage().text().contains(QLatin1String("Manage this printer")));
    // One that may be managed is reason enough to show all.
    window().setReadings({reading(QStringLiteral("Mine"))});
    QTRY_COMPARE(message(), std::nullopt);
}

void MainWindowTest::countsPrintersBySeverity()
{
    QList<PrinterReading> readings = fleet(40);
    PrinterReading gone = reading(QStringLiteral("Printer 3"), coverIsOpen);
    gone.setGone(QDateTime::currentDateTimeUtc());
    readings.append(gone);
    window().setReadings(readings);
    window().setListed();
    const QList<QToolButton*> buttons = window().overview().findChildren<QToolButton*>();
    QCOMPARE(buttons.size(), 4);
    QCOMPARE(buttons.at(0)->text(), QStringLiteral("1 error"));
    QCOMPARE(buttons.at(1)->text(), QStringLiteral("0 warnings"));
    QCOMPARE(buttons.at(3)->text(), QStringLiteral("38 ready"));
    buttons.at(0)->click();
    QCOMPARE(window().list().shownPrinters(), QStringList{QStringLiteral("Printer 17")});
    buttons.at(0)->click();
    QCOMPARE(window().list().shownPrinters().size(), 40);
}

void MainWindowTest::showsTheFailedOneOfFortyFirst()
{
    window().setReadings(fleet(40));
    window().setListed();
    QCOMPARE(window().list().shownPrinters().first(), QStringLiteral("Printer 17"));
    QCOMPARE(window().list().currentPrinter(), QStringLiteral("Printer 17"));
    window().addEvents({coverOpened(QStringLiteral("Printer 17"))});
    savePicture(QStringLiteral("forty"));
}

void MainWindowTest::tellsOfAFaultOnce()
{
    QSignalSpy noticed(&window(), &MainWindow::noticed);
    const QString printer = QStringLiteral("Printer 1");
    window().addEvents({coverOpened(printer), coverOpened(printer)});
    QCOMPARE(noticed.size(), 1);
    window().notices().setPrinterMuted(QStringLiteral("Printer 2"), true);
    window().addEvents({coverOpened(QStringLiteral("Printer 2"))});
    QCOMPARE(noticed.size(), 1);
}

void MainWindowTest::showsTheWorstUntilSomebodyChooses()
{
    window().setReadings(fleet(5));
    window().setListed();
    QCOMPARE(window().list().currentPrinter(), QStringLiteral("Printer 1"));
    window().setReadings({reading(QStringLiteral("Printer 4"), coverIsOpen)});
    QTRY_COMPARE(window().list().currentPrinter(), QStringLiteral("Printer 4"));

    auto* const rows = window().list().findChild<QListView*>();
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                      rows->visualRect(rows->model()->index(1, 0)).center());
    QCOMPARE(window().list().currentPrinter(), QStringLiteral("Printer 1"));
    window().setReadings({reading(QStringLiteral("Printer 2"), coverIsOpen)});
    QTRY_COMPARE(window().overview().findChild<QToolButton*>()->text(), QStringLiteral("2 errors"));
    QCOMPARE(window().list().shownPrinters().first(), QStringLiteral("Printer 2"));
    QCOMPARE(window().list().currentPrinter(), QStringLiteral("Printer 1"));
}

void MainWindowTest::takesPicturesOfSuppliesFromTheCatalogue()
{
    writeSampleDatabase(m_folder->path());
    const QString catalogue = m_folder->filePath(QStringLiteral("roll.db"));
    QFile file(testFile(VX_SAMPLE_PICTURES "/danger_header.png"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const SupplyPictures pictures(catalogue);
    QCOMPARE(pictures(QStringLiteral("VH-400-RW")), file.readAll());
    QCOMPARE(pictures(QStringLiteral("VT-400-WH")), QByteArray());
    QCOMPARE(pictures(QStringLiteral("none")), QByteArray());

    PrinterReading loaded = reading(QStringLiteral("Printer 1"));
    VxKit::Level supply = loaded.level(VxKit::Slot::Supply);
    supply.sku = QStringLiteral("VH-400-RW");
    loaded.setLevel(VxKit::Slot::Supply, supply);
    const auto pictureInDetails = [&] {
        window().setReadings({loaded});
        window().setListed();
        window().showPrinter(loaded.name());
        const QList<QWidget*> parts =
            window().findChild<VxKit::PrinterDetails*>()->findChildren<QWidget*>();
        const auto picture = std::ranges::find_if(
            parts, [](const QWidget* part) { return part->inherits("VxKit::LoadedPicture"); });
        return picture == parts.end() ? QImage() : (*picture)->grab().toImage();
    };
    const QImage without = pictureInDetails();
    QVERIFY(!without.isNull());
    makeWindow(catalogue);
    QVERIFY(pictureInDetails() != without);
}

void MainWindowTest::doesNotListWhatIsFoundInOrder()
{
    const QAbstractItemModel* const list = window().findChild<QTreeView*>()->model();
    VxKit::PrinterEvent found;
    found.kind = VxKit::PrinterEvent::Kind::Status;
    found.severity = Severity::Ok;
    found.printer = QStringLiteral("Printer 1");
    found.code = VXPrinting::StatusCodes::ready;
    VxKit::PrinterEvent broken = coverOpened(found.printer);
    broken.before = {};
    window().addEvents({found, broken});
    QCOMPARE(list->rowCount(), 1);
    found.before.code = coverIsOpen; // the cover was closed
    window().addEvents({found});
    QCOMPARE(list->rowCount(), 2);
}

void MainWindowTest::keepsAPrinterChosenThatIsRenamed()
{
    window().setReadings(fleet(5));
    window().setListed();
    window().showPrinter(QStringLiteral("Printer 3"));
    window().renamePrinter(QStringLiteral("Printer 3"), QStringLiteral("Alpha"));
    QCOMPARE(window().list().currentPrinter(), QStringLiteral("Alpha"));
}

void MainWindowTest::speaksAnotherLanguageAtOnce()
{
    window().setReadings(fleet(17));
    window().setListed();
    const auto firstMenu = [this] {
        return window().menuBar()->actions().first()->text();
    };
    QCOMPARE(firstMenu(), QStringLiteral("&Printers"));
    QVERIFY(m_language->use(QStringLiteral("de")));
    QCoreApplication::processEvents();
    QCOMPARE(firstMenu(), QStringLiteral("&Drucker"));
    const QDialogButtonBox buttons(QDialogButtonBox::Cancel);
    QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text().remove(u'&'),
             QStringLiteral("Abbrechen"));
    QCOMPARE(window().overview().findChild<QToolButton*>()->text(), QStringLiteral("1 Fehler"));
    const QModelIndex row = window().list().findChild<QAbstractItemView*>()->model()->index(0, 0);
    const QString title = VxKit::statusInfo(coverIsOpen, QStringLiteral("de")).shortTitle;
    QVERIFY(title != VxKit::statusInfo(coverIsOpen, QStringLiteral("en")).shortTitle);
    const QString told = row.data(Qt::AccessibleTextRole).toString();
    QVERIFY2(told.contains(title), qPrintable(told));
    QVERIFY(!m_language->use(QStringLiteral("xx")));
    QVERIFY(m_language->use(QStringLiteral("en")));
    QCoreApplication::processEvents();
    QCOMPARE(firstMenu(), QStringLiteral("&Printers"));
}

void MainWindowTest::cutsNothingOff_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("isMessage");
    for (const ViewLanguage::Choice& choice : ViewLanguage::choices()) {
        for (const int width : {640, 900, 1400}) {
            QTest::addRow("%s %d", qPrintable(choice.tag), width) << choice.tag << width << false;
            QTest::addRow("%s %d message", qPrintable(choice.tag), width)
                << choice.tag << width << true;
        }
    }
}

void MainWindowTest::cutsNothingOff()
{
    QFETCH(const QString, language);
    QFETCH(const int, width);
    QFETCH(const bool, isMessage);
    QVERIFY(m_language->use(language));
    QList<PrinterReading> readings = fleet(40);
    readings.append(reading(QString(60, QChar(u'W')), coverIsOpen));
    window().setReadings(readings);
    window().setListed();
    if (isMessage)
        window().setSpoolerRunning(false);
    window().resize(width, 700);
    QCoreApplication::processEvents();
    savePicture(QStringLiteral("%1-%2%3").arg(language).arg(width).arg(
        QLatin1String(isMessage ? "-message" : "")));
    QCOMPARE(window().width(), width); // nothing makes it wider
    QVERIFY(visibleParts(window()).size() > 1);
    QTRY_COMPARE(problemOf(window()), QString()); // layouts need several rounds
}

void MainWindowTest::namesEveryControl()
{
    window().setReadings(fleet(3));
    window().setListed();
    int controls = 0;
    for (QWidget* child : window().findChildren<QWidget*>()) {
        if (!child->isVisible() || child->focusPolicy() == Qt::NoFocus ||
            qobject_cast<QScrollBar*>(child) || qobject_cast<QScrollArea*>(child))
            continue; // an area has the name of the widget around it
        ++controls;
        const QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(child);
        QVERIFY(accessible);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(),
                 qPrintable(QStringLiteral("%1 %2").arg(
                     QLatin1String(child->metaObject()->className()), child->objectName())));
    }
    QVERIFY(controls >= 5);
}

void MainWindowTest::remembersItsLayout()
{
    window().resize(1111, 777);
    window().list().setOrder(VxKit::PrinterListView::Order::ByName);
    window().close();
    makeWindow();
    QCOMPARE(window().size(), QSize(1111, 777));
    QCOMPARE(window().list().order(), VxKit::PrinterListView::Order::ByName);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, MainWindowTest>(argc, argv);
}
#include "tst_main_window.moc"
