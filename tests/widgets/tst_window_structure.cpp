// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the window shows where, as screen readers are told, compared with the readings: for fleets
// of several sizes with hostile names, in every language, at several widths, in light and dark, and
// with larger fonts.
#include "parts_of_window.h"
#include "patience.h"
#include "run_in_english.h"
#include "view_colors.h"
#include "window_on_readings.h"

#include <printer_details.h>

#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtGui/QAccessible>
#include <QtWidgets/QListView>

#include <algorithm>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Severity;
using VxKit::Slot;

namespace {

/// The list of the printers and those that it shows, as screen readers see them.
struct AccessibleRow
{
    QString name;
    QString description;
    QRect place; ///< on the screen
};

QListView& rowsOf(MainWindow& window)
{
    return *window.list().findChild<QListView*>();
}

QList<AccessibleRow> accessibleRows(MainWindow& window)
{
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&rowsOf(window));
    QList<AccessibleRow> rows;
    for (int number = 0; list && number < list->childCount(); ++number) {
        const QAccessibleInterface* const row = list->child(number);
        rows.append(
            {row->text(QAccessible::Name), row->text(QAccessible::Description), row->rect()});
    }
    return rows;
}

/// The texts of the window and everything in it, but those of the rows of its views.
void collectTexts(QAccessibleInterface* part, QStringList* texts)
{
    if (!part || part->state().invisible)
        return;
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
        texts->append(part->text(kind));
    if (part->role() == QAccessible::List || part->role() == QAccessible::Tree ||
        part->role() == QAccessible::Table)
        return;
    for (int number = 0; number < part->childCount(); ++number) {
        QAccessibleInterface* child = part->child(number);
        if (child && !child->isValid()) {
            // Of an object that was at this place in memory before: Qt keeps it too long.
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(child));
            child = part->child(number);
        }
        collectTexts(child, texts);
    }
}

/// A character that may change how a text is read; none if the value is empty.
QString forbiddenIn(const QString& text)
{
    for (const QChar each : text) {
        const bool isLayout = each == u'\n' || each == QChar::Nbsp;
        if (!isLayout &&
            (each.category() == QChar::Other_Control || each.category() == QChar::Other_Format ||
             each.category() == QChar::Separator_Line ||
             each.category() == QChar::Separator_Paragraph))
            return QStringLiteral("%1 in \"%2\"").arg(each.unicode(), 4, 16).arg(text.left(200));
    }
    return {};
}

int rankOf(const PrinterReading& reading)
{
    return reading.presence() == PrinterReading::Presence::Gone
               ? -1
               : static_cast<int>(VxKit::statusSeverity(reading.statusCode()));
}

/// How the name is to be shown.
QString shownNameOf(const PrinterReading& reading)
{
    const QList<hostile_fleet::Name> special = hostile_fleet::names();
    const auto found = std::ranges::find(special, reading.name(), &hostile_fleet::Name::name);
    return found == special.end() ? reading.name() : found->shown;
}

/// Whether a text says zero percent, in whatever language.
bool saysZeroPercent(const QString& text)
{
    static const QRegularExpression zero(QStringLiteral("(^|[^\\d.,])0\\s*(%|\u066a|\uff05)"));
    return zero.match(text).hasMatch();
}

/// What is wrong with what is said of a level; empty if nothing is.
QString faultOf(const QString& description, const Level& level)
{
    if (level.ratio) {
        const QString percent = QLocale().toString(level.percentage().value_or(-1));
        return description.contains(percent) ? QString() : QStringLiteral("lacks ") + percent;
    }
    if (level.state == Level::State::Loaded && !description.contains(level.name))
        return QStringLiteral("lacks ") + level.name;
    return {};
}

} // namespace

class WindowStructureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { view_colors::use(QStringLiteral("system")); }
    void saysOfEachPrinterWhatIsKnown_data();
    void saysOfEachPrinterWhatIsKnown();
    void placesEachPrinterInItsRow_data();
    void placesEachPrinterInItsRow();
    void neverSaysZeroOfWhatIsNotKnown_data();
    void neverSaysZeroOfWhatIsNotKnown();
    void takesNoMarkupFromNames_data();
    void takesNoMarkupFromNames();

private:
    static void addLanguages();
};

void WindowStructureTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    for (const ViewLanguage::Choice& choice : ViewLanguage::choices())
        QTest::newRow(qPrintable(choice.tag)) << choice.tag;
}

void WindowStructureTest::saysOfEachPrinterWhatIsKnown_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("count");
    for (const ViewLanguage::Choice& choice : ViewLanguage::choices()) {
        for (const int count : {0, 1, 40, 1000})
            QTest::addRow("%s %d", qPrintable(choice.tag), count) << choice.tag << count;
    }
}

void WindowStructureTest::saysOfEachPrinterWhatIsKnown()
{
    QFETCH(const QString, language);
    QFETCH(const int, count);
    WindowOnReadings window(language);
    QVERIFY(window.isSpeaking());
    const QList<PrinterReading> readings = hostile_fleet::readings(count);
    window.show(readings);
    window->show();

    QHash<QString, PrinterReading> byName;
    for (const PrinterReading& reading : readings)
        byName.insert(reading.name(), reading);
    const QStringList shownPrinters = window->list().shownPrinters();
    QCOMPARE(shownPrinters.size(), count);
    const QList<AccessibleRow> rows = accessibleRows(*window);
    QCOMPARE(rows.size(), count);
    QCOMPARE(window->showsMessage(), count == 0);
    std::array<int, 4> counts{};
    int before = static_cast<int>(Severity::Error);
    for (int number = 0; number < count; ++number) {
        const PrinterReading reading = byName.value(shownPrinters.at(number));
        const AccessibleRow& row = rows.at(number);
        const VxKit::StatusInfo info = VxKit::statusInfo(reading.statusCode(), language);
        QVERIFY2(row.name.startsWith(shownNameOf(reading)), qPrintable(row.name));
        for (const QString& part : {info.shortTitle, VxKit::severityName(info.severity, language)})
            QVERIFY2(row.name.contains(part), qPrintable(row.name + u'|' + part));
        QVERIFY2(row.description.contains(info.explanation), qPrintable(row.description));
        QVERIFY2(row.description.contains(info.remedy), qPrintable(row.description));
        for (const Slot slot : reading.slotList()) {
            const QString fault = faultOf(row.description, reading.level(slot));
            QVERIFY2(fault.isEmpty(), qPrintable(row.description + u'|' + fault));
        }
        QCOMPARE(forbiddenIn(row.name), QString());
        QCOMPARE(forbiddenIn(row.description), QString());
        // The worst first.
        const int rank = rankOf(reading);
        QVERIFY(rank <= before);
        before = rank;
        if (rank >= 0)
            ++counts[static_cast<std::size_t>(rank)];
    }
    if (count == 0)
        return;
    const QList<QToolButton*> buttons = window->overview().findChildren<QToolButton*>();
    QCOMPARE(buttons.size(), 4);
    for (std::size_t number = 0; number < counts.size(); ++number) {
        const int expected = counts[counts.size() - 1 - number];
        const QString told = QAccessible::queryAccessibleInterface(buttons.at(qsizetype(number)))
                                 ->text(QAccessible::Name);
        const QString figure = QLocale().toString(expected);
        QVERIFY2(told.split(u' ').contains(figure) || told.contains(figure),
                 qPrintable(told + u'|' + figure));
    }
}

void WindowStructureTest::placesEachPrinterInItsRow_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("percent");
    QTest::addColumn<QString>("colors");
    for (const ViewLanguage::Choice& choice : ViewLanguage::choices()) {
        for (const int percent : {100, 150, 200}) {
            for (const char* colors : {"light", "dark"})
                QTest::addRow("%s %d %% %s", qPrintable(choice.tag), percent, colors)
                    << choice.tag << percent << QString::fromLatin1(colors);
        }
    }
}

void WindowStructureTest::placesEachPrinterInItsRow()
{
    QFETCH(const QString, language);
    QFETCH(const int, percent);
    QFETCH(const QString, colors);
    const FontOfSize font(percent);
    view_colors::use(colors);
    WindowOnReadings window(language);
    const QList<PrinterReading> readings = hostile_fleet::readings(40);
    window.show(readings);
    window->show();
    window->showPrinter(readings.at(1).name());
    for (const int width : {400, 640, 1000, 1600}) {
        window->resize(width, 900);
        QVERIFY(QTest::qWaitForWindowExposed(&*window));
        QCoreApplication::processEvents();
        const QListView& list = rowsOf(*window);
        const QList<AccessibleRow> rows = accessibleRows(*window);
        QCOMPARE(rows.size(), 40);
        const int height = rows.first().place.height();
        QVERIFY(height >= 3 * list.fontMetrics().height());
        for (int number = 0; number < rows.size(); ++number) {
            const QRect place = rows.at(number).place;
            QCOMPARE(place.height(), height);
            QCOMPARE(place.width(), list.viewport()->width());
            QCOMPARE(list.viewport()->mapFromGlobal(place.topLeft()).x(), 0);
            if (number > 0)
                QCOMPARE(place.top(), rows.at(number - 1).place.bottom() + 1);
        }
        // The details are those of the chosen printer, whose row is seen.
        const auto* const details = window->findChild<VxKit::PrinterDetails*>();
        const PrinterReading& chosen = readings.at(1);
        QCOMPARE(details->printer(), chosen.name());
        QStringList texts;
        collectTexts(QAccessible::queryAccessibleInterface(window->centralWidget()), &texts);
        for (const QString& part :
             {shownNameOf(chosen), VxKit::statusInfo(chosen.statusCode(), language).shortTitle})
            QVERIFY2(texts.contains(part), qPrintable(part));
        const QRect current = list.visualRect(list.currentIndex());
        QVERIFY(current.intersects(list.viewport()->rect()));
    }
}

void WindowStructureTest::neverSaysZeroOfWhatIsNotKnown_data()
{
    addLanguages();
}

void WindowStructureTest::neverSaysZeroOfWhatIsNotKnown()
{
    QFETCH(const QString, language);
    WindowOnReadings window(language);
    PrinterReading unknown =
        fleet_of_readings::reading(QStringLiteral("Unknown"), VXPrinting::StatusCodes::unknown);
    PrinterReading usedUp = unknown;
    usedUp.setName(QStringLiteral("Used up"));
    for (const Slot slot : unknown.slotList()) {
        unknown.setLevel(slot, Level());
        usedUp.setLevel(slot, fleet_of_readings::loaded(QStringLiteral("Vinyl"), {}, 0.0, 30.0));
    }
    unknown.setLastReport({});
    window.show({unknown, usedUp});
    window->show();
    QStringList told;
    for (const QString& name : {unknown.name(), usedUp.name()}) {
        window->showPrinter(name);
        QStringList texts;
        collectTexts(QAccessible::queryAccessibleInterface(window->centralWidget()), &texts);
        const QList<AccessibleRow> rows = accessibleRows(*window);
        const auto row = std::ranges::find_if(
            rows, [&](const AccessibleRow& each) { return each.name.startsWith(name); });
        QVERIFY(row != rows.end());
        const QModelIndex index = rowsOf(*window).currentIndex();
        told.append(row->description + index.data(Qt::ToolTipRole).toString() + texts.join(u'\n') +
                    window->findChild<VxKit::PrinterDetails*>()->toPlainText());
    }
    QVERIFY2(!saysZeroPercent(told.first()), qPrintable(told.first()));
    QVERIFY2(saysZeroPercent(told.last()), qPrintable(told.last()));
}

void WindowStructureTest::takesNoMarkupFromNames_data()
{
    addLanguages();
}

void WindowStructureTest::takesNoMarkupFromNames()
{
    QFETCH(const QString, language);
    WindowOnReadings window(language);
    const QList<PrinterReading> readings = hostile_fleet::readings(40);
    window.show(readings);
    window->addEvents(hostile_fleet::events());
    window->show();
    for (const hostile_fleet::Name& each : hostile_fleet::names()) {
        window->showPrinter(each.name);
        QCOMPARE(window->list().currentPrinter(), each.name);
        QStringList texts;
        collectTexts(QAccessible::queryAccessibleInterface(&*window), &texts);
        QVERIFY(texts.contains(each.shown));
        for (const QString& text : std::as_const(texts))
            QCOMPARE(forbiddenIn(text), QString());
        for (const QLabel* label : window->findChildren<QLabel*>()) {
            if (label->text().contains(QLatin1String("<b>Bold")))
                QCOMPARE(label->textFormat(), Qt::PlainText);
        }
    }
    // Also what is pointed at: markup that comes from a name would be obeyed.
    for (const QAbstractItemView* view : window->findChildren<QAbstractItemView*>()) {
        const QAbstractItemModel& model = *view->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QString tip = model.index(row, column).data(Qt::ToolTipRole).toString();
                QCOMPARE(forbiddenIn(tip), QString());
                QVERIFY2(!tip.contains(QLatin1String("<b>Bold</b>")) || !Qt::mightBeRichText(tip),
                         qPrintable(tip));
                // What is not markup is shown as it is, so that it must not be escaped.
                QVERIFY2(!tip.contains(QLatin1String("&lt;")) || Qt::mightBeRichText(tip),
                         qPrintable(tip));
            }
        }
    }
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, WindowStructureTest>(argc, argv);
}
#include "tst_window_structure.moc"
