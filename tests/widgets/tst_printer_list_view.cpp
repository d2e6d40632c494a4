// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The list of printers. With VX_PICTURE=FOLDER in the environment the test also saves pictures of
// it.
#include "fleet_of_readings.h"
#include "patience.h"
#include "printer_delegate.h"
#include "printer_order.h"
#include "run_in_english.h"

#include <printer_list_model.h>
#include <printer_list_view.h>

#include <QtGui/QAccessible>
#include <QtGui/QClipboard>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollBar>

#include <algorithm>

using fleet_of_readings::codeOf;
using fleet_of_readings::reading;
using VxKit::Level;
using VxKit::PrinterDelegate;
using VxKit::PrinterListModel;
using VxKit::PrinterListView;
using VxKit::PrinterReading;
using VxKit::Severity;
using VxKit::Slot;

namespace {

constexpr int coverIsOpen = 4;

QString nameOf(int number)
{
    return QStringLiteral("Printer %1").arg(number);
}

QListView& rowsOf(const PrinterListView& view)
{
    return *view.findChild<QListView*>();
}

QStringList texts(const PrinterListView& view, int role)
{
    QStringList result;
    const QAbstractItemModel& model = *rowsOf(view).model();
    for (int row = 0; row < model.rowCount(); ++row)
        result.append(model.index(row, 0).data(role).toString());
    return result;
}

/// Records what is painted.
class PaintRecorder : public QObject
{
public:
    explicit PaintRecorder(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion region;
};

void savePicture(QWidget& widget, const char* name)
{
    const QString folder = qEnvironmentVariable("VX_PICTURE");
    if (!folder.isEmpty())
        widget.grab().save(QStringLiteral("%1/%2.png").arg(folder, QLatin1String(name)));
}

} // namespace

class PrinterListViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsEachPrinterInARowOfEvenHeight_data();
    void showsEachPrinterInARowOfEvenHeight();
    void putsTheWorstFirst();
    void sortsNamesAsPeopleCount();
    void movesAPrinterToTheTopWhenItFailsAndKeepsItChosen();
    void showsThoseThatFitEachWordOfTheFilter();
    void showsThoseOfOneSeverity();
    void saysThatNoPrinterFitsTheFilter();
    void isUsedByKeyboardAlone();
    void offersTheActionsOfTheHostOnly();
    void copiesEverythingThatIsKnown();
    void tellsScreenReadersEverything();
    void namesEveryControl();
    void doesNotShowWhatIsNotKnownAsZero();
    void escapesNames();
    void layoutNeverOverlaps_data();
    void layoutNeverOverlaps();
    void marksAFailedPrinterWithAStripeOnTheLeadingSide_data();
    void marksAFailedPrinterWithAStripeOnTheLeadingSide();
    void paintsOnlyTheRowThatChanged();
    void doesNotSortWhatIsInOrder();
    void looksWellInOtherPalettes();

private:
    static void fill(PrinterListModel& model, int count);
};

void PrinterListViewTest::fill(PrinterListModel& model, int count)
{
    for (int number = 1; number <= count; ++number)
        model.setReading(reading(nameOf(number)));
}

void PrinterListViewTest::showsEachPrinterInARowOfEvenHeight_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 40, 1000})
        QTest::addRow("%d", count) << count;
}

void PrinterListViewTest::showsEachPrinterInARowOfEvenHeight()
{
    QFETCH(const int, count);
    PrinterListModel model;
    for (int number = 1; number <= count; ++number) {
        PrinterReading each = reading(
            number % 2 == 0 ? nameOf(number) : nameOf(number).leftJustified(60, QChar(u'W')),
            number % 3 == 0 ? coverIsOpen : VXPrinting::StatusCodes::networkPrinter);
        if (number % 5 == 0)
            each.setLevel(Slot::Supply, Level());
        model.setReading(each);
    }
    PrinterListView view;
    view.setModel(&model);
    for (const QSize size : {QSize(1200, 600), QSize(360, 600)}) {
        view.resize(size);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        const QListView& rows = rowsOf(view);
        QCOMPARE(rows.model()->rowCount(), count);
        QSet<int> heights;
        for (int row = 0; row < count; ++row)
            heights.insert(rows.visualRect(rows.model()->index(row, 0)).height());
        QVERIFY(heights.size() <= 1);
        QCOMPARE(rows.horizontalScrollBar()->maximum(), 0);
    }
}

void PrinterListViewTest::putsTheWorstFirst()
{
    PrinterListModel model;
    model.setReading(reading(QStringLiteral("A ready")));
    model.setReading(reading(QStringLiteral("B information"), codeOf(Severity::Information)));
    model.setReading(reading(QStringLiteral("C warning"), codeOf(Severity::Warning)));
    model.setReading(reading(QStringLiteral("D error"), coverIsOpen));
    PrinterReading gone = reading(QStringLiteral("A gone"), 0);
    gone.setGone(QDateTime::currentDateTimeUtc());
    gone.setWatching(PrinterReading::Watching::Gone);
    model.setReading(gone);
    PrinterListView view;
    view.setModel(&model);
    QCOMPARE(view.shownPrinters().join(u'|'),
             QStringLiteral("D error|C warning|B information|A ready|A gone"));
}

void PrinterListViewTest::sortsNamesAsPeopleCount()
{
    PrinterListModel model;
    for (const char* name : {"Printer 10", "printer 2", "Printer 1", "Bench"})
        model.setReading(reading(QLatin1String(name)));
    model.setReading(reading(QStringLiteral("Zebra crossing"), coverIsOpen));
    PrinterListView view;
    view.setModel(&model);
    view.setOrder(PrinterListView::Order::ByName);
    QCOMPARE(view.shownPrinters().join(u'|'),
             QStringLiteral("Bench|Printer 1|printer 2|Printer 10|Zebra crossing"));
    QCOMPARE(view.findChild<QComboBox*>()->currentText(), QStringLiteral("By name"));
    view.setOrder(PrinterListView::Order::WorstFirst);
    QCOMPARE(view.shownPrinters().first(), QStringLiteral("Zebra crossing"));
}

void PrinterListViewTest::movesAPrinterToTheTopWhenItFailsAndKeepsItChosen()
{
    PrinterListModel model;
    fill(model, 40);
    PrinterListView view;
    view.setModel(&model);
    view.resize(1000, 700);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.setCurrentPrinter(nameOf(31));
    QSignalSpy spy(&view, &PrinterListView::currentPrinterChanged);
    model.setReading(reading(nameOf(31), coverIsOpen));
    QTRY_COMPARE(view.shownPrinters().first(), nameOf(31));
    QCOMPARE(view.currentPrinter(), nameOf(31));
    QCOMPARE(spy.size(), 0);
    rowsOf(view).scrollToTop();
    view.setCurrentPrinter(nameOf(2));
    savePicture(view, "jam-of-forty");
}

void PrinterListViewTest::showsThoseThatFitEachWordOfTheFilter()
{
    PrinterListModel model;
    fill(model, 30);
    PrinterReading other = reading(QStringLiteral("Shipping"), coverIsOpen);
    other.setSerialNumber(QStringLiteral("VX-4711"));
    model.setReading(other);
    PrinterListView view;
    view.setModel(&model);
    view.setFilterText(QStringLiteral("  vx-47 cover "));
    QCOMPARE(view.shownPrinters(), QStringList{QStringLiteral("Shipping")});
    view.setFilterText(QStringLiteral("polypropylene printer"));
    QCOMPARE(view.shownPrinters().size(), 30);
    // A printer that fits from now on.
    model.setReading(reading(QStringLiteral("Printer 99")));
    QTRY_COMPARE(view.shownPrinters().size(), 31);
    view.setFilterText(QString());
    QCOMPARE(view.shownPrinters().size(), 32);
}

void PrinterListViewTest::showsThoseOfOneSeverity()
{
    PrinterListModel model;
    fill(model, 5);
    model.setReading(reading(nameOf(3), coverIsOpen));
    PrinterListView view;
    view.setModel(&model);
    view.setSeverityFilter(Severity::Error);
    QCOMPARE(view.shownPrinters(), QStringList{nameOf(3)});
    model.setReading(reading(nameOf(3)));
    QTRY_VERIFY(view.shownPrinters().isEmpty());
    view.setSeverityFilter(std::nullopt);
    QCOMPARE(view.shownPrinters().size(), 5);
}

void PrinterListViewTest::saysThatNoPrinterFitsTheFilter()
{
    PrinterListModel model;
    PrinterListView view;
    view.setModel(&model);
    const auto isSaid = [&view] {
        const QList<QLabel*> labels = view.findChildren<QLabel*>();
        return std::ranges::any_of(labels, [&](const QLabel* label) {
            return label->isVisibleTo(&view) &&
                   label->text().startsWith(QLatin1String("No printer"));
        });
    };
    QVERIFY(!isSaid()); // without any printer, the host says why
    fill(model, 3);
    view.setFilterText(QStringLiteral("nothing like it"));
    QVERIFY(isSaid());
    view.setFilterText(QString());
    QVERIFY(!isSaid());
}

void PrinterListViewTest::isUsedByKeyboardAlone()
{
    PrinterListModel model;
    fill(model, 12);
    PrinterListView view;
    view.setModel(&model);
    view.show();
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    QListView& rows = rowsOf(view);
    auto* const filter = view.findChild<QLineEdit*>();
    rows.setFocus();

    QTest::keyClick(&rows, Qt::Key_Home);
    QCOMPARE(view.currentPrinter(), nameOf(1));
    QTest::keyClick(&rows, Qt::Key_Down);
    QCOMPARE(view.currentPrinter(), nameOf(2));
    QTest::keyClick(&rows, Qt::Key_End);
    QCOMPARE(view.currentPrinter(), nameOf(12));

    QSignalSpy activated(&view, &PrinterListView::printerActivated);
    QTest::keyClick(&rows, Qt::Key_Return);
    QCOMPARE(activated, (QList<QVariantList>{{nameOf(12)}}));

    QTest::keyClick(&rows, Qt::Key_Slash);
    QVERIFY(filter->hasFocus());
    QTest::keyClicks(filter, QStringLiteral("printer 7"));
    QCOMPARE(view.shownPrinters(), QStringList{nameOf(7)});
    QTest::keyClick(filter, Qt::Key_Down);
    QVERIFY(rows.hasFocus());
    QCOMPARE(view.currentPrinter(), nameOf(7));
    QTest::keyClick(&rows, Qt::Key_Escape);
    QCOMPARE(view.shownPrinters().size(), 12);
    QCOMPARE(view.currentPrinter(), nameOf(7));
}

void PrinterListViewTest::offersTheActionsOfTheHostOnly()
{
    PrinterListModel model;
    fill(model, 3);
    PrinterListView view;
    view.setModel(&model);
    view.show();
    view.setCurrentPrinter(nameOf(2));
    const auto menuOf = [&view] {
        rowsOf(view).customContextMenuRequested(QPoint(-1, -1)); // as the menu key does
        QList<QAction*> actions;
        for (const QMenu* menu : view.findChildren<QMenu*>()) {
            if (menu->isVisible())
                actions = menu->actions();
        }
        return actions;
    };
    QCOMPARE(menuOf().size(), 1);
    for (QMenu* menu : view.findChildren<QMenu*>())
        menu->close();
    view.setActions(PrinterListView::Action::Doctor);
    const QList<QAction*> actions = menuOf();
    QCOMPARE(actions.size(), 2);
    QSignalSpy spy(&view, &PrinterListView::actionRequested);
    actions.first()->trigger();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(), nameOf(2));
    QCOMPARE(spy.first().at(1).value<PrinterListView::Action>(), PrinterListView::Action::Doctor);
}

void PrinterListViewTest::copiesEverythingThatIsKnown()
{
    PrinterListModel model;
    PrinterReading each = reading(QStringLiteral("Packing"), coverIsOpen);
    each.setSerialNumber(QStringLiteral("VX-1"));
    model.setReading(each);
    PrinterListView view;
    view.setModel(&model);
    view.setCurrentPrinter(QStringLiteral("Packing"));
    QTest::keyClick(&rowsOf(view), Qt::Key_C, Qt::ControlModifier);
    const QString copied = QGuiApplication::clipboard()->text();
    for (const char* part : {"Packing", "AlderMax", "VX-1", "The cover is open", "code 4", "62 %",
                             "White Polypropylene", "Firmware: Not known"})
        QVERIFY2(copied.contains(QLatin1String(part)), part);
}

void PrinterListViewTest::tellsScreenReadersEverything()
{
    PrinterListModel model;
    PrinterReading each = reading(QStringLiteral("Packing"), coverIsOpen);
    each.setActive(true);
    model.setReading(each);
    model.setReading(reading(QStringLiteral("Returns")));
    PrinterListView view;
    view.setModel(&model);
    view.show();
    const QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&rowsOf(view));
    QVERIFY(list);
    QCOMPARE(list->childCount(), 2);
    QCOMPARE(list->child(0)->text(QAccessible::Name),
             QStringLiteral("Packing, active printer, The cover is open (error), AlderMax"));
    const QString description = list->child(0)->text(QAccessible::Description);
    for (const char* part : {"Supply: White Polypropylene, 62 %", "Ribbon 1: Black, 7 %",
                             "Ribbon 2: CMYK", "not known", "Last report: just now."})
        QVERIFY2(description.contains(QLatin1String(part)), qPrintable(description));
    QVERIFY(description.contains(VxKit::statusInfo(coverIsOpen).remedy));
}

void PrinterListViewTest::namesEveryControl()
{
    PrinterListModel model;
    fill(model, 2);
    PrinterListView view;
    view.setModel(&model);
    view.show();
    const QList<QWidget*> children = view.findChildren<QWidget*>();
    int controls = 0;
    for (QWidget* child : children) {
        if (!child->isVisible() || child->focusPolicy() == Qt::NoFocus ||
            qobject_cast<QScrollBar*>(child))
            continue;
        ++controls;
        const QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(child);
        QVERIFY(accessible);
        QVERIFY2(!accessible->text(QAccessible::Name).isEmpty(), child->metaObject()->className());
    }
    QVERIFY(controls >= 3);
}

void PrinterListViewTest::doesNotShowWhatIsNotKnownAsZero()
{
    PrinterListModel model;
    PrinterReading each = reading(QStringLiteral("Packing"), VXPrinting::StatusCodes::unknown);
    for (const Slot slot : each.slotList())
        each.setLevel(slot, Level());
    each.setLastReport({});
    model.setReading(each);
    PrinterListView view;
    view.setModel(&model);
    const QString told = texts(view, Qt::AccessibleDescriptionRole).first();
    QVERIFY(told.contains(QLatin1String("not known"), Qt::CaseInsensitive));
    QVERIFY(told.contains(QLatin1String("No report yet")));
    QVERIFY2(!told.contains(QLatin1String("0 %")), qPrintable(told));
    const QString toolTip = texts(view, Qt::ToolTipRole).first();
    QVERIFY2(!toolTip.contains(QLatin1String("0 %")), qPrintable(toolTip));
}

void PrinterListViewTest::escapesNames()
{
    PrinterListModel model;
    model.setReading(reading(QStringLiteral("<b>A</b>\n\u202eB\u001b[31m")));
    PrinterListView view;
    view.setModel(&model);
    const QString name = texts(view, Qt::AccessibleTextRole).first();
    QVERIFY(name.startsWith(QLatin1String("<b>A</b>\\u000a\\u202eB\\u001b[31m")));
    const QString toolTip = texts(view, Qt::ToolTipRole).first();
    QVERIFY(toolTip.contains(QLatin1String("&lt;b&gt;A&lt;/b&gt;\\u000a")));
    QVERIFY(!toolTip.contains(QChar(0x202e)));
}

void PrinterListViewTest::layoutNeverOverlaps_data()
{
    QTest::addColumn<int>("pixelSize");
    for (const int size : {9, 13, 16, 26, 40})
        QTest::addRow("%d pixels", size) << size;
}

void PrinterListViewTest::layoutNeverOverlaps()
{
    QFETCH(const int, pixelSize);
    QFont font;
    font.setPixelSize(pixelSize);
    const QFontMetrics metrics(font);
    for (int width = PrinterDelegate::leastWidth(metrics); width < 3000; width += 7) {
        const QRect row(10, 20, width, PrinterDelegate::heightOf(width, metrics));
        const PrinterDelegate::Layout layout = PrinterDelegate::layoutOf(row, metrics);
        QList<QRect> parts{layout.stripe, layout.icon, layout.name, layout.status, layout.note};
        for (const auto& part : layout.slotParts)
            parts << part.title << part.bar << part.text;
        for (qsizetype one = 0; one < parts.size(); ++one) {
            QVERIFY(parts.at(one).isValid());
            QVERIFY2(row.contains(parts.at(one)), qPrintable(QString::number(width)));
            for (qsizetype other = 0; other < one; ++other)
                QVERIFY(!parts.at(one).intersects(parts.at(other)));
        }
        for (const QRect& line : {layout.name, layout.status, layout.note})
            QVERIFY(line.height() >= metrics.height());
    }
}

void PrinterListViewTest::marksAFailedPrinterWithAStripeOnTheLeadingSide_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("left to right") << Qt::LeftToRight;
    QTest::newRow("right to left") << Qt::RightToLeft;
}

void PrinterListViewTest::marksAFailedPrinterWithAStripeOnTheLeadingSide()
{
    QFETCH(const Qt::LayoutDirection, direction);
    PrinterListModel model;
    fill(model, 3);
    model.setReading(reading(nameOf(2), coverIsOpen));
    PrinterListView view;
    view.setModel(&model);
    view.setLayoutDirection(direction);
    view.resize(1000, 500);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QListView& rows = rowsOf(view);
    const QImage picture = rows.viewport()->grab().toImage();
    const VxKit::ViewPalette colors(view.palette());
    const QColor stripe =
        colors.severityText(Severity::Error, colors.severityBackground(Severity::Error));
    const int y = rows.visualRect(rows.model()->index(0, 0)).center().y();
    const int left = 1;
    const int right = picture.width() - 2;
    const bool isLeftToRight = direction == Qt::LeftToRight;
    QCOMPARE(picture.pixelColor(isLeftToRight ? left : right, y), stripe);
    QVERIFY(picture.pixelColor(isLeftToRight ? right : left, y) != stripe);
    const int next = rows.visualRect(rows.model()->index(1, 0)).center().y();
    QVERIFY(picture.pixelColor(isLeftToRight ? left : right, next) != stripe);
    savePicture(view, isLeftToRight ? "left-to-right" : "right-to-left");
}

void PrinterListViewTest::paintsOnlyTheRowThatChanged()
{
    PrinterListModel model;
    fill(model, 40);
    PrinterListView view;
    view.setModel(&model);
    view.resize(1000, 700);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    const QListView& rows = rowsOf(view);
    PaintRecorder recorder(*rows.viewport());
    const auto isQuiet = [&recorder] {
        recorder.region = {};
        QCoreApplication::processEvents();
        return recorder.region.isEmpty();
    };
    QTRY_VERIFY(isQuiet());
    PrinterReading each = reading(nameOf(3));
    each.setLevel(Slot::Supply, fleet_of_readings::loaded(QStringLiteral("Blue"),
                                                          {QStringLiteral("#0000ff")}, 0.3));
    model.setReading(each);
    QTRY_VERIFY(!recorder.region.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(recorder.region.boundingRect(), rows.visualRect(rows.model()->index(2, 0)));
}

void PrinterListViewTest::doesNotSortWhatIsInOrder()
{
    PrinterListModel model;
    fill(model, 40);
    VxKit::PrinterOrder order;
    order.setSourceModel(&model);
    QSignalSpy spy(&order, &QAbstractItemModel::layoutChanged);
    model.setReading(reading(nameOf(1), coverIsOpen)); // it was the first already
    order.arrange();
    QCOMPARE(spy.size(), 0);
    model.setReading(reading(nameOf(7), coverIsOpen));
    order.arrange();
    QVERIFY(!spy.isEmpty());
    QCOMPARE(order.index(1, 0).data().toString(), nameOf(7));
}

void PrinterListViewTest::looksWellInOtherPalettes()
{
    PrinterListModel model;
    fill(model, 6);
    model.setReading(reading(nameOf(2), coverIsOpen));
    model.setReading(reading(nameOf(3), codeOf(Severity::Warning)));
    PrinterReading stale = reading(nameOf(4), VXPrinting::StatusCodes::offline);
    stale.setOnline(false);
    stale.setLastReport(QDateTime::currentDateTimeUtc().addSecs(-7200));
    model.setReading(stale);
    PrinterReading active = reading(nameOf(5));
    active.setActive(true);
    active.setLevel(Slot::Supply, [] {
        Level level;
        level.state = Level::State::Empty;
        return level;
    }());
    active.setLevel(Slot::Ribbon1, Level());
    model.setReading(active);
    PrinterListView view;
    view.setModel(&model);
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x18, 0x1a, 0x1d));
    dark.setColor(QPalette::Text, QColor(0xe8, 0xe8, 0xe8));
    dark.setColor(QPalette::Window, QColor(0x20, 0x22, 0x25));
    dark.setColor(QPalette::WindowText, QColor(0xe8, 0xe8, 0xe8));
    view.resize(1100, 560);
    savePicture(view, "light");
    view.setPalette(dark);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    const QImage picture = rowsOf(view).viewport()->grab().toImage();
    QVERIFY(qGray(picture.pixel(picture.width() / 2, picture.height() - 2)) < 64);
    savePicture(view, "dark");
    view.resize(420, 560);
    QCoreApplication::processEvents();
    savePicture(view, "narrow");
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, PrinterListViewTest>(argc, argv);
}
#include "tst_printer_list_view.moc"
