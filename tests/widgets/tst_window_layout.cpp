// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// That nothing in the window and its dialogs overlaps or is cut off, in every language, at several
// widths and with larger fonts. With VX_PICTURE=FOLDER in the environment the test also saves
// pictures of them.
#include "doctor_dialog.h"
#include "parts_of_window.h"
#include "patience.h"
#include "run_in_english.h"
#include "view_colors.h"
#include "window_on_readings.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenu>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QTreeWidget>

#include <algorithm>
#include <functional>

using VxKit::PrinterReading;

namespace {

void savePicture(QWidget& widget, const QString& name)
{
    const QString folder = qEnvironmentVariable("VX_PICTURE");
    if (!folder.isEmpty())
        widget.grab().save(QStringLiteral("%1/%2.png").arg(folder, name));
}

/// The dialog that is open; null if there is none.
QDialog* openDialog()
{
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<QDialog*>(each);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/// The first flaw when layouts have come to rest, which takes several rounds.
QString flawOf(QWidget& window, int* seen)
{
    constexpr int mostRounds = 20;
    QString flaw;
    for (int round = 0; round < mostRounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        *seen = 0;
        flaw = parts_of_window::flawOf(window, seen);
        if (flaw.isEmpty())
            break;
    }
    return flaw;
}

/// Does what opens a dialog, looks at the dialog and closes it. Returns what was seen.
QString flawOfDialog(const std::function<void()>& open, const QString& picture)
{
    QString flaw = QStringLiteral("no dialog was opened");
    const auto look = [&] {
        QDialog* const dialog = openDialog();
        if (!dialog)
            return;
        int seen = 0;
        flaw = flawOf(*dialog, &seen);
        savePicture(*dialog, picture);
        for (const QLabel* const label : dialog->findChildren<QLabel*>()) {
            // What a name says is no markup.
            if (label->text().contains(QLatin1String("<b>Bold")) &&
                label->textFormat() != Qt::PlainText)
                flaw = QStringLiteral("may be taken for markup: ") + label->text();
        }
        if (seen < 3)
            flaw = QStringLiteral("the dialog has nothing in it");
        dialog->reject();
    };
    QTimer::singleShot(0, look);
    open();
    if (openDialog())
        look();
    return flaw;
}

QList<doctor::Check> checks()
{
    using doctor::Verdict;
    QList<doctor::Check> result;
    for (const hostile_fleet::Name& each : hostile_fleet::names()) {
        doctor::Check check;
        check.subject = each.name;
        check.verdict = Verdict::Problem;
        check.text = QStringLiteral("The driver publishes <b>nothing</b> for this printer, ") +
                     QStringLiteral("or something else altogether. ").repeated(10);
        check.remedy = QStringLiteral("Install the driver again. ").repeated(10);
        result.append(check);
        check.verdict = Verdict::Ok;
        check.remedy.clear();
        result.append(check);
    }
    return result;
}

} // namespace

class WindowLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { view_colors::use(QStringLiteral("system")); }
    void showsPrinters_data() { addCases(); }
    void showsPrinters();
    void showsMessages_data() { addCases(); }
    void showsMessages();
    void showsDialogs_data() { addCases(); }
    void showsDialogs();
    void showsTheDoctor_data() { addCases(); }
    void showsTheDoctor();
    void elidesOnlyWhatAToolTipTells();

private:
    static void addCases();
};

void WindowLayoutTest::addCases()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("percent");
    for (const ViewLanguage::Choice& choice : ViewLanguage::choices()) {
        for (const int percent : {100, 150, 200})
            QTest::addRow("%s %d %%", qPrintable(choice.tag), percent) << choice.tag << percent;
    }
}

void WindowLayoutTest::showsPrinters()
{
    QFETCH(const QString, language);
    QFETCH(const int, percent);
    const FontOfSize font(percent);
    view_colors::use(QLatin1String(percent == 150 ? "dark" : "light"));
    for (const int count : {1, 40, 1000}) {
        WindowOnReadings window(language);
        const QList<PrinterReading> readings = hostile_fleet::readings(count);
        window.show(readings);
        window->addEvents(hostile_fleet::events());
        window->show();
        for (const int width : {400, 640, 1000, 1600}) {
            window->resize(width, 900);
            QCoreApplication::processEvents();
            savePicture(
                *window,
                QStringLiteral("%1-%2-%3-%4").arg(language).arg(percent).arg(count).arg(width));
            // Larger letters may take more room, but not more than that.
            QVERIFY2(window->width() <= std::max(width, 400 * percent / 100),
                     qPrintable(QString::number(window->width())));
            int seen = 0;
            QCOMPARE(flawOf(*window, &seen), QString());
            QVERIFY(seen > 30);
        }
        // The details of each of the special printers, too.
        for (const hostile_fleet::Name& each : hostile_fleet::names()) {
            if (count != 40)
                break;
            window->showPrinter(each.name);
            int seen = 0;
            QCOMPARE(flawOf(*window, &seen), QString());
        }
    }
}

void WindowLayoutTest::showsMessages()
{
    QFETCH(const QString, language);
    QFETCH(const int, percent);
    using Message = MessagePage::Message;
    const FontOfSize font(percent);
    for (const Message message :
         {Message::Loading, Message::Empty, Message::SpoolerStopped, Message::NoRights}) {
        WindowOnReadings window(language);
        window->show();
        if (message == Message::SpoolerStopped)
            window->setSpoolerRunning(false);
        if (message == Message::NoRights) {
            PrinterReading reading = hostile_fleet::readingOf(0);
            reading.setWatching(PrinterReading::Watching::NotManaged);
            window->setReadings({reading});
        }
        if (message != Message::Loading)
            window->setListed();
        QVERIFY(window->showsMessage());
        QCOMPARE(window->messagePage().message(), message);
        for (const int width : {400, 640, 1000, 1600}) {
            window->resize(width, 480 * percent / 100);
            QCoreApplication::processEvents();
            savePicture(*window, QStringLiteral("message-%1-%2-%3-%4")
                                     .arg(static_cast<int>(message))
                                     .arg(language)
                                     .arg(percent)
                                     .arg(width));
            QVERIFY(window->width() <= std::max(width, 400 * percent / 100));
            int seen = 0;
            QCOMPARE(flawOf(*window, &seen), QString());
            QVERIFY(seen > 5);
        }
    }
}

void WindowLayoutTest::showsDialogs()
{
    QFETCH(const QString, language);
    QFETCH(const int, percent);
    const FontOfSize font(percent);
    WindowOnReadings window(language);
    window.show(hostile_fleet::readings(8));
    window->show();
    const QList<QAction*> menus = window->menuBar()->actions();
    QCOMPARE(menus.size(), 4);
    const auto open = [](const QAction* action) {
        return [action] {
            const_cast<QAction*>(action)->trigger();
        };
    };
    const QString name = QStringLiteral("%1-%2-%3").arg(language).arg(percent);
    // The about box is the last entry of the last menu.
    QCOMPARE(flawOfDialog(open(menus.last()->menu()->actions().last()),
                          name.arg(QStringLiteral("about"))),
             QString());
    // The threshold of warnings is a setting with a dialog.
    const QList<QAction*> notices = menus.at(2)->menu()->actions();
    const auto threshold = std::ranges::find_if(
        notices, [](const QAction* action) { return action->text().endsWith(QChar(0x2026)); });
    QVERIFY(threshold != notices.end());
    QCOMPARE(flawOfDialog(open(*threshold), name.arg(QStringLiteral("threshold"))), QString());
    // A label is printed with a dialog that names the printer.
    for (const hostile_fleet::Name& each : hostile_fleet::names()) {
        QCOMPARE(flawOfDialog(
                     [&] {
                         Q_EMIT window->list().actionRequested(
                             each.name, VxKit::PrinterListView::Action::PrintTestLabel);
                     },
                     name.arg(QStringLiteral("label"))),
                 QString());
    }
}

void WindowLayoutTest::showsTheDoctor()
{
    QFETCH(const QString, language);
    QFETCH(const int, percent);
    const FontOfSize font(percent);
    ViewLanguage speaking;
    QVERIFY(speaking.use(language));
    DoctorDialog dialog(hostile_fleet::names().first().name, QString());
    QSignalSpy checked(&dialog, &DoctorDialog::checked);
    dialog.open();
    QTRY_COMPARE(checked.size(), 1);
    dialog.show(checks());
    for (const int width : {400, 640, 1000, 1600}) {
        dialog.resize(width, 700);
        QCoreApplication::processEvents();
        savePicture(dialog,
                    QStringLiteral("doctor-%1-%2-%3").arg(language).arg(percent).arg(width));
        QVERIFY(dialog.width() <= std::max(width, 400 * percent / 100));
        int seen = 0;
        QCOMPARE(flawOf(dialog, &seen), QString());
        QVERIFY(seen > 3);
        for (QTreeWidgetItemIterator each(dialog.findChild<QTreeWidget*>()); *each; ++each) {
            const QString tip = (*each)->toolTip(0);
            QVERIFY2(tip.isEmpty() || Qt::mightBeRichText(tip) || !tip.contains(u'&'),
                     qPrintable(tip));
            QVERIFY2(!tip.contains(QLatin1String("<b>")), qPrintable(tip));
        }
        // Long texts are wrapped, not cut off.
        auto& tree = *dialog.findChild<QTreeWidget*>();
        for (QTreeWidgetItemIterator each(&tree); *each; ++each) {
            const QString text = (*each)->text(0);
            const QRect place = tree.visualItemRect(*each);
            const int needed = tree.fontMetrics()
                                   .boundingRect(QRect(0, 0, place.width(), QWIDGETSIZE_MAX),
                                                 Qt::TextWordWrap, text)
                                   .height();
            QVERIFY2(place.height() >= needed, qPrintable(text));
            QVERIFY((*each)->toolTip(0).contains(text.toHtmlEscaped()));
        }
        QCOMPARE(tree.horizontalScrollBar()->maximum(), 0);
    }
}

void WindowLayoutTest::elidesOnlyWhatAToolTipTells()
{
    WindowOnReadings window(QStringLiteral("en"));
    window.show(hostile_fleet::readings(40));
    window->addEvents(hostile_fleet::events());
    window->resize(400, 900);
    window->show();
    int cut = 0;
    for (const QTreeView* view : window->findChildren<QTreeView*>()) {
        const QAbstractItemModel& model = *view->model();
        QCOMPARE(view->textElideMode(), Qt::ElideRight);
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex index = model.index(row, column);
                const QString text = index.data().toString();
                if (view->sizeHintForIndex(index).width() <= view->columnWidth(column))
                    continue;
                ++cut;
                const QString tip = index.data(Qt::ToolTipRole).toString();
                QVERIFY2(tip.contains(text) || tip.contains(text.toHtmlEscaped()), qPrintable(tip));
            }
        }
    }
    QVERIFY(cut > 0);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, WindowLayoutTest>(argc, argv);
}
#include "tst_window_layout.moc"
