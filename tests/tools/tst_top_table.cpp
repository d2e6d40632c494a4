// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "key_decoder.h"
#include "text_layout.h"
#include "top_table.h"

#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

using top_table::Order;
using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;
using VXPrinting::PrinterType;

namespace {

PrinterReading reading(const QString& name, int status, std::optional<double> ratio,
                       PrinterType model = PrinterType::AlderMax)
{
    PrinterReading reading;
    reading.setName(name);
    reading.setModel(model);
    reading.setStatusCode(status);
    reading.setPresent();
    Level level;
    if (ratio) {
        level.state = Level::State::Loaded;
        level.ratio = ratio;
        level.colors = {QStringLiteral("#ffffff")};
    }
    reading.setLevel(Slot::Supply, level);
    return reading;
}

QStringList names(const QList<PrinterReading>& readings)
{
    QStringList names;
    for (const PrinterReading& each : readings)
        names.append(each.name());
    return names;
}

QString withoutEscapes(QString line)
{
    static const QRegularExpression escapes(QStringLiteral("\033\\[[0-9;]*m"));
    return line.remove(escapes);
}

} // namespace

class TestTopTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ordersAreAsTheySay();
    void linesFitEveryTerminal_data();
    void linesFitEveryTerminal();
    void helpNamesAllKeysWhereThereIsRoom();
    void longStatusTakesTheBarsOfTheRibbons();
    void narrowScreensLoseBarsFirstAndThenRibbons();
    void knownEndsHaveAColumn();
    void lowScreensLoseTheHelpFirst();
    void emptyAndUnknownLevelsAreTold();
    void barsAreRoundedUp();
    void goneAndActivePrintersAreMarked();
    void namesOfASiteKeepTheirEnds();
    void whatIsOldHasNoColours();
    void whatIsTheMatterIsSaid();
    void scrollingIsBounded();
    void keysAreDecoded_data();
    void keysAreDecoded();
    void endlessSequenceIsNotKept();
};

void TestTopTable::ordersAreAsTheySay()
{
    Level empty;
    empty.state = Level::State::Empty;
    PrinterReading withoutLabels = reading(QStringLiteral("empty"), 1, std::nullopt);
    withoutLabels.setLevel(Slot::Supply, empty);
    QList<PrinterReading> readings{
        reading(QStringLiteral("unknown level"), 1, std::nullopt),
        reading(QStringLiteral("low"), 1, 0.1),
        reading(QStringLiteral("jam"), 5, 0.9),
        reading(QStringLiteral("warm"), 8, 0.5),
        withoutLabels,
        reading(QStringLiteral("jam and low"), 5, 0.2),
        reading(QStringLiteral("updating"), 21, 0.5),
    };
    top_table::sort(readings, Order::Severity);
    QCOMPARE(names(readings), QStringList({QStringLiteral("jam and low"), QStringLiteral("jam"),
                                           QStringLiteral("warm"), QStringLiteral("updating"),
                                           QStringLiteral("empty"), QStringLiteral("low"),
                                           QStringLiteral("unknown level")}));
    top_table::sort(readings, Order::Level);
    QCOMPARE(names(readings).mid(0, 3), QStringList({QStringLiteral("empty"), QStringLiteral("low"),
                                                     QStringLiteral("jam and low")}));
    QCOMPARE(names(readings).last(), QStringLiteral("unknown level"));
    top_table::sort(readings, Order::Name);
    QStringList sorted = names(readings);
    sorted.sort();
    QCOMPARE(names(readings), sorted);
}

void TestTopTable::linesFitEveryTerminal_data()
{
    QTest::addColumn<QStringList>("printers");
    QTest::newRow("none") << QStringList();
    QTest::newRow("short") << QStringList{QStringLiteral("A"), QStringLiteral("B")};
    QTest::newRow("long") << QStringList{QString(500, u'x')};
    QTest::newRow("wide") << QStringList{
        QString::fromUtf8("出荷台の向こうのプリンター").repeated(4)};
    QTest::newRow("hostile") << QStringList{QStringLiteral("P\033[31m\r\n\x07\u2028") +
                                            QChar(0x202e)};
    QTest::newRow("pairs") << QStringList{QString::fromUtf8("😀").repeated(60)};
}

void TestTopTable::linesFitEveryTerminal()
{
    QFETCH(QStringList, printers);
    QList<PrinterReading> readings;
    for (const QString& name : printers) {
        readings.append(reading(name, 16, 0.5));
        readings.last().setEstimatedSecondsRemaining(Slot::Supply,
                                                     VxKit::RemainingTime{1.0, 1e6, 1e8});
    }
    for (int columns = 1; columns <= 240; ++columns) {
        for (const int rows : {0, 1, 2, 3, 4, 5, 24}) {
            for (const auto depth :
                 {std::optional<palette::Depth>(), std::optional(palette::Depth::AllColours)}) {
                const QStringList lines = top_table::lines(
                    readings,
                    {.size = {columns, rows}, .depth = depth, .clock = QStringLiteral("12:34:56")});
                QCOMPARE(lines.size(), rows);
                for (const QString& line : lines) {
                    const QString plain = withoutEscapes(line);
                    QVERIFY2(text_layout::width(plain) <= columns,
                             qPrintable(QStringLiteral("%1: %2").arg(columns).arg(plain)));
                    QVERIFY(!plain.contains(u'\033') && !plain.contains(QChar(0x202e)));
                    QVERIFY(depth || plain == line);
                }
            }
        }
    }
}

void TestTopTable::helpNamesAllKeysWhereThereIsRoom()
{
    const auto help = [](int columns) {
        return top_table::lines({}, {.size = {columns, 24}}).last();
    };
    QCOMPARE(help(100), QStringLiteral("q quit  [s by severity]  n by name  l by level  "
                                       "arrows, Page Up, Page Down: scroll"));
    QCOMPARE(help(80), QStringLiteral("q quit  [s by severity]  n by name  l by level"));
}

void TestTopTable::longStatusTakesTheBarsOfTheRibbons()
{
    PrinterReading first = reading(QStringLiteral("Shipping"), 2, 0.5);
    const PrinterReading second = reading(QStringLiteral("Branch Office"), 1, 0.5);
    const QStringList lines = top_table::lines({first, second}, {.size = {80, 24}});
    QVERIFY2(lines.at(2).contains(QStringLiteral("The printer is out of labels  [")),
             qPrintable(lines.at(2)));
    QCOMPARE(lines.at(3).count(u'['), 1);
    QVERIFY2(lines.at(1).endsWith(QStringLiteral("RIBBON 1  RIBBON 2")), qPrintable(lines.at(1)));
    // Without a long status there is room for all.
    QVERIFY(top_table::lines({second}, {.size = {80, 24}})
                .at(1)
                .contains(QStringLiteral("RIBBON 1      ")));
    first.setWatching(PrinterReading::Watching::NetworkPrinter);
    first.setStatusCode(256);
    QVERIFY(top_table::lines({first}, {.size = {80, 24}})
                .at(2)
                .contains(QStringLiteral("Network printer  ")));
}

void TestTopTable::narrowScreensLoseBarsFirstAndThenRibbons()
{
    const QList<PrinterReading> readings{reading(QStringLiteral("Shipping"), 16, 0.5)};
    const auto heading = [&readings](int columns) {
        return top_table::lines(readings, {.size = {columns, 24}}).at(1);
    };
    const auto row = [&readings](int columns) {
        return top_table::lines(readings, {.size = {columns, 24}}).at(2);
    };
    const QRegularExpression bar(QStringLiteral("\\[=+ *\\] +50%"));
    QVERIFY(row(80).contains(bar));
    QVERIFY(heading(80).contains(QStringLiteral("RIBBON 2")));
    QVERIFY(!row(64).contains(bar));
    QVERIFY(row(64).contains(QStringLiteral(" 50%")));
    QVERIFY(heading(64).contains(QStringLiteral("RIBBON 2")));
    QVERIFY(!heading(54).contains(QStringLiteral("RIBBON 2")));
    QVERIFY(heading(54).contains(QStringLiteral("RIBBON 1")));
    QVERIFY(!heading(44).contains(QStringLiteral("RIBBON 1")));
    QVERIFY(heading(44).contains(QStringLiteral("SUPPLY")));
    QVERIFY(!heading(34).contains(QStringLiteral("SUPPLY")));
    QVERIFY(heading(34).contains(QStringLiteral("STATUS")));
    QVERIFY(row(34).contains(QStringLiteral("Shipping")));
    QVERIFY(!heading(12).contains(QStringLiteral("STATUS")));
    QVERIFY(row(12).contains(QStringLiteral("Shipping")));

    // No printer has a second ribbon.
    const QList<PrinterReading> small{
        reading(QStringLiteral("Returns"), 1, 0.5, PrinterType::BirchMax)};
    QVERIFY(
        !top_table::lines(small, {.size = {120, 24}}).at(1).contains(QStringLiteral("RIBBON 2")));
}

void TestTopTable::knownEndsHaveAColumn()
{
    QList<PrinterReading> readings{reading(QStringLiteral("Shipping"), 1, 0.5),
                                   reading(QStringLiteral("Returns"), 1, 0.5)};
    const auto lines = [&readings](int columns) {
        return top_table::lines(readings, {.size = {columns, 24}});
    };
    QVERIFY(!lines(120).at(1).contains(QStringLiteral("LASTS")));
    // What ends first counts.
    readings[0].setEstimatedSecondsRemaining(Slot::Supply,
                                             VxKit::RemainingTime{1e5, 12.0 * 86400, 1e8});
    readings[0].setEstimatedSecondsRemaining(Slot::Ribbon1,
                                             VxKit::RemainingTime{1e3, 5.0 * 3600, 1e8});
    QVERIFY(lines(120).at(1).contains(QStringLiteral("LASTS")));
    QVERIFY(lines(120).at(2).contains(QStringLiteral(" 5 h ")));
    QVERIFY(lines(120).at(3).contains(QStringLiteral(" - ")));
    // It gives way before the ribbons do.
    for (int columns = 1; columns <= 120; ++columns) {
        const QString heading = lines(columns).at(1);
        QVERIFY2(!heading.contains(QStringLiteral("LASTS")) ||
                     heading.contains(QStringLiteral("RIBBON 2")),
                 qPrintable(heading));
    }
    // Of what is used up, the level says enough.
    readings[0].setEstimatedSecondsRemaining(Slot::Ribbon1, VxKit::RemainingTime{});
    readings[0].setEstimatedSecondsRemaining(Slot::Supply, std::nullopt);
    QVERIFY(!lines(120).at(1).contains(QStringLiteral("LASTS")));
}

void TestTopTable::lowScreensLoseTheHelpFirst()
{
    const QList<PrinterReading> readings{reading(QStringLiteral("Shipping"), 1, 0.5)};
    const auto screen = [&readings](int rows) {
        return top_table::lines(readings, {.size = {80, rows}});
    };
    QVERIFY(screen(4).at(3).startsWith(QStringLiteral("q quit")));
    QVERIFY(screen(3).at(0).contains(QStringLiteral("Printers: 1")));
    QVERIFY(screen(3).at(2).contains(QStringLiteral("Shipping")));
    QVERIFY(screen(2).at(0).contains(QStringLiteral("PRINTER")));
    QVERIFY(screen(1).at(0).contains(QStringLiteral("Shipping")));
}

void TestTopTable::emptyAndUnknownLevelsAreTold()
{
    Level empty;
    empty.state = Level::State::Empty;
    PrinterReading printer = reading(QStringLiteral("P"), 1, std::nullopt);
    printer.setLevel(Slot::Ribbon1, empty);
    const QString row = top_table::lines({printer}, {.size = {80, 24}}).at(2);
    QVERIFY2(row.contains(QRegularExpression(QStringLiteral("Ready +- +empty +-"))),
             qPrintable(row));
}

void TestTopTable::barsAreRoundedUp()
{
    const auto bar = [](double ratio) {
        static const QRegularExpression pattern(QStringLiteral("\\[(=*) *\\] +(\\d+%)"));
        const QString row =
            top_table::lines({reading(QStringLiteral("P"), 1, ratio)}, {.size = {80, 24}}).at(2);
        const QRegularExpressionMatch match = pattern.match(row);
        return match.captured(1) + match.captured(2);
    };
    QCOMPARE(bar(0.0), QStringLiteral("0%"));
    QCOMPARE(bar(0.001), QStringLiteral("=0%"));
    QVERIFY(bar(1.0).startsWith(QStringLiteral("=====")));
    QVERIFY(bar(1.0).endsWith(QStringLiteral("100%")));
}

void TestTopTable::goneAndActivePrintersAreMarked()
{
    PrinterReading active = reading(QStringLiteral("active"), 1, 0.5);
    active.setActive(true);
    PrinterReading gone = reading(QStringLiteral("gone"), 0, 0.5);
    gone.setGone(QDateTime::currentDateTime());
    const QStringList lines = top_table::lines({active, gone}, {.size = {80, 24}});
    QVERIFY(lines.at(2).startsWith(QStringLiteral("* active")));
    QVERIFY(lines.at(3).startsWith(QStringLiteral("  gone")));
    QVERIFY(lines.at(3).contains(QStringLiteral("removed")));
}

void TestTopTable::namesOfASiteKeepTheirEnds()
{
    const QList<PrinterReading> readings{
        reading(QStringLiteral("Labels for the long line in hall seven (pc-hall-7)"), 1, 0.5),
        reading(QString::fromUtf8("出荷台の向こうのプリンター (出荷-7)"), 1, 0.5)};
    top_table::View view{.size = {80, 6}, .about = {.isOfSite = true}};
    const auto nameIn = [&](qsizetype row) {
        return top_table::lines(readings, view)
            .at(2 + row)
            .sliced(2)
            .section(QStringLiteral("  "), 0, 0);
    };
    QCOMPARE(nameIn(0), QStringLiteral("Labels for … (pc-hall-7)"));
    QVERIFY2(nameIn(1).endsWith(QString::fromUtf8("(出荷-7)")), qPrintable(nameIn(1)));
    // Of this computer, the beginning is what tells printers apart.
    view.about.isOfSite = false;
    QVERIFY2(nameIn(0).endsWith(u'…'), qPrintable(nameIn(0)));
    view.about.isOfSite = true;
    for (int columns = 1; columns <= 240; ++columns) {
        view.size = {columns, 6};
        for (const QStringList lines = top_table::lines(readings, view);
             const QString& line : lines)
            QVERIFY2(text_layout::width(line) <= columns, qPrintable(line));
    }
}

void TestTopTable::whatIsOldHasNoColours()
{
    PrinterReading live = reading(QStringLiteral("live"), 4, 0.5);
    PrinterReading unconnected = live;
    unconnected.setName(QStringLiteral("unconnected"));
    unconnected.setWatching(PrinterReading::Watching::NotConnected);
    PrinterReading offline = reading(QStringLiteral("offline"), 255, 0.5);
    offline.setWatching(PrinterReading::Watching::AgentOffline);
    offline.setUnheardSince(QDateTime::currentDateTimeUtc());
    const top_table::View view{.size = {120, 8}, .depth = palette::Depth::AllColours};
    const QStringList lines = top_table::lines({live, unconnected, offline}, view);
    // 3x is the colour of text, 4x that of the background, 2 is faint.
    static const QRegularExpression colours(QStringLiteral("\033\\[(\\d+;)*[1349][0-9]*[;m]"));
    QVERIFY(lines.at(2).contains(colours));
    QVERIFY2(!lines.at(3).contains(colours), qPrintable(lines.at(3)));
    QVERIFY(lines.at(3).contains(QStringLiteral("The cover is open")));
    QVERIFY(lines.at(3).contains(QStringLiteral("\033[2m")));
    QVERIFY2(!lines.at(4).contains(colours), qPrintable(lines.at(4)));
    QVERIFY(lines.at(4).contains(QStringLiteral("No agent since ")));
    offline.setUnheardSince({});
    QVERIFY(top_table::lines({offline}, view).at(2).contains(QStringLiteral("Agent offline")));
}

void TestTopTable::whatIsTheMatterIsSaid()
{
    top_table::View view{.size = {60, 6}, .clock = QStringLiteral("12:00:00")};
    view.about.notes = {QStringLiteral("agents offline: 2")};
    view.about.footer = QStringLiteral("the broker\033[2J is ") + QString(100, u'x');
    view.about.empty = QStringLiteral("nobody");
    const QStringList lines = top_table::lines({}, view);
    QCOMPARE(lines.at(0),
             QStringLiteral("12:00:00  agents offline: 2  Printers: 0  with errors: 0"));
    QCOMPARE(lines.at(2), QStringLiteral("nobody"));
    QVERIFY2(lines.last().startsWith(QStringLiteral("the broker\\u001b[2J is xxx")),
             qPrintable(lines.last()));
    QCOMPARE(text_layout::width(lines.last()), 60);
}

void TestTopTable::scrollingIsBounded()
{
    QList<PrinterReading> readings;
    for (int index = 0; index < 10; ++index)
        readings.append(reading(QString::number(index), 1, 0.5));
    QCOMPARE(top_table::readingsOn(7), 4);
    QCOMPARE(top_table::lastFirst(10, 7), 6);
    QCOMPARE(top_table::lastFirst(3, 7), 0);
    for (const qsizetype first : {qsizetype(6), qsizetype(100)}) {
        const QStringList lines =
            top_table::lines(readings, {.size = {80, 7}, .first = first, .clock = {}});
        QVERIFY(lines.at(0).contains(QStringLiteral("shown: 7 to 10")));
        QVERIFY(lines.at(2).startsWith(QStringLiteral("  6")));
        QVERIFY(lines.at(5).startsWith(QStringLiteral("  9")));
    }
    QVERIFY(top_table::lines(readings, {.size = {80, 7}, .first = -5})
                .at(2)
                .startsWith(QStringLiteral("  0")));
}

void TestTopTable::keysAreDecoded_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<int>>("keys");
    const auto row = [](const char* bytes, const QList<Key>& keys) {
        QList<int> numbers;
        for (const Key key : keys)
            numbers.append(static_cast<int>(key));
        QTest::newRow(QByteArray(bytes).toPercentEncoding().constData())
            << QByteArray(bytes) << numbers;
    };
    row("\033[A", {Key::Up});
    row("\033OB", {Key::Down});
    row("\033[1;5A", {Key::Up});
    row("\033[5~\033[6~", {Key::PageUp, Key::PageDown});
    row("\033[H\033[1~\033[7~\033OH", {Key::Home, Key::Home, Key::Home, Key::Home});
    row("\033[F\033[4~\033[8~", {Key::End, Key::End, Key::End});
    row("\033[15~", {Key::Other});
    row("\033[99999999999999999999~", {Key::Other});
    row("q\033", {Key::Character});
    row("\033q", {Key::Other, Key::Character});
    row("\033\033[A", {Key::Other, Key::Up});
    row("\x01\xc3\xa9", {Key::Other, Key::Other, Key::Other});
    row("\033[\xff", {Key::Other, Key::Other});
}

void TestTopTable::keysAreDecoded()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QList<int>, keys);
    const auto kinds = [](const QList<KeyPress>& presses) {
        QList<int> all;
        for (const KeyPress& press : presses)
            all.append(static_cast<int>(press.key));
        return all;
    };
    KeyDecoder atOnce;
    QCOMPARE(kinds(atOnce.decode(bytes)), keys);
    KeyDecoder byteByByte;
    QList<KeyPress> presses;
    for (const char byte : bytes)
        presses += byteByByte.decode(QByteArray(1, byte));
    QCOMPARE(kinds(presses), keys);
}

void TestTopTable::endlessSequenceIsNotKept()
{
    KeyDecoder decoder;
    QVERIFY(!decoder.decode("\033[" + QByteArray(1000, '1')).isEmpty());
    QCOMPARE(decoder.decode("q"), (QList<KeyPress>{{Key::Character, 'q'}}));
}

QTEST_GUILESS_MAIN(TestTopTable)
#include "tst_top_table.moc"
