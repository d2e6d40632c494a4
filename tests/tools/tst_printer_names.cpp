// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which printer is meant by what a person types.
#include <palette.h>
#include <printer_names.h>
#include <text_layout.h>

#include <QtTest/QtTest>

class PrinterNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void meansTheSameNameInAnyLetterCase();
    void nearestNamesComeFirst_data();
    void nearestNamesComeFirst();
    void longTextsAreNotCompared();
    void nearestColourOfThePaletteIsTaken_data();
    void nearestColourOfThePaletteIsTaken();
    void cutTextsEndWithAnEllipsis_data();
    void cutTextsEndWithAnEllipsis();
};

void PrinterNamesTest::meansTheSameNameInAnyLetterCase()
{
    const QStringList names{QStringLiteral("Desk"), QStringLiteral("DESK"), QStringLiteral("Bü.o")};
    QCOMPARE(printer_names::meant(QStringLiteral("DESK"), names), QStringLiteral("DESK"));
    QCOMPARE(printer_names::meant(QStringLiteral("desk"), names), std::nullopt);
    QCOMPARE(printer_names::meant(QStringLiteral("BÜ.O"), names), QStringLiteral("Bü.o"));
    QCOMPARE(printer_names::meant(QStringLiteral("bü-o"), names), std::nullopt);
    QCOMPARE(printer_names::meant(QStringLiteral("bü.o "), names), std::nullopt);
    QCOMPARE(printer_names::meant(QString(), names), std::nullopt);
    const QString text(100000, QLatin1Char('x'));
    QCOMPARE(printer_names::meant(text, names), std::nullopt);
    QCOMPARE(printer_names::meant(text.toUpper(), {text}), text);
}

void PrinterNamesTest::nearestNamesComeFirst_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("near");
    const auto row = [](const char* name, const char* typed, const QStringList& near) {
        QTest::newRow(name) << QString::fromUtf8(typed) << near;
    };
    const QString shipping = QStringLiteral("Shipping");
    row("missing", "Shiping", {shipping});
    row("too much", "Shippping", {shipping});
    row("wrong", "Shopping", {shipping});
    row("swapped", "Sihpping", {shipping});
    row("letter case", "SHIPPNIG", {shipping});
    row("two of eight", "Shoppinh", {shipping});
    row("three of eight", "Shopqinh", {});
    row("nearest first", "Desk 22", {QStringLiteral("Desk 2"), QStringLiteral("Desk 1")});
    row("only three", "Desk", {QStringLiteral("Desk 1")});
    row("beginning", "ware", {QStringLiteral("Warehouse")});
    row("beginning of several", "desk", {QStringLiteral("Desk 1"), QStringLiteral("Desk 2")});
    row("nothing", "", {});
}

void PrinterNamesTest::nearestNamesComeFirst()
{
    QFETCH(const QString, typed);
    QFETCH(const QStringList, near);
    const QStringList names{QStringLiteral("Shipping"), QStringLiteral("Desk 1"),
                            QStringLiteral("Desk 2"), QStringLiteral("Warehouse")};
    if (qstrcmp(QTest::currentDataTag(), "only three") == 0) {
        const QStringList many = printer_names::nearest(
            QStringLiteral("Desk 0"), {QStringLiteral("Desk 4"), QStringLiteral("Desk 3"),
                                       QStringLiteral("Desk 2"), QStringLiteral("Desk 1")});
        QCOMPARE(many, (QStringList{QStringLiteral("Desk 1"), QStringLiteral("Desk 2"),
                                    QStringLiteral("Desk 3")}));
        return;
    }
    QCOMPARE(printer_names::nearest(typed, names), near);
}

void PrinterNamesTest::longTextsAreNotCompared()
{
    const QString text(100000, QLatin1Char('x'));
    QCOMPARE(printer_names::nearest(text, {text + QLatin1Char('y')}), QStringList());
}

void PrinterNamesTest::nearestColourOfThePaletteIsTaken_data()
{
    QTest::addColumn<QRgb>("colour");
    QTest::addColumn<QString>("of16");
    QTest::addColumn<QString>("of256");
    QTest::newRow("black") << QRgb(0xff000000) << "40"
                           << "48;5;16";
    QTest::newRow("white") << QRgb(0xffffffff) << "107"
                           << "48;5;231";
    QTest::newRow("red") << QRgb(0xffc8102e) << "41"
                         << "48;5;160";
    QTest::newRow("bright red") << QRgb(0xffff0000) << "101"
                                << "48;5;196";
    QTest::newRow("grey") << QRgb(0xff808080) << "100"
                          << "48;5;244";
    QTest::newRow("blue") << QRgb(0xff0000ee) << "44"
                          << "48;5;21";
}

void PrinterNamesTest::nearestColourOfThePaletteIsTaken()
{
    QFETCH(const QRgb, colour);
    QTEST(palette::background(colour, palette::Depth::Colours16), "of16");
    QTEST(palette::background(colour, palette::Depth::Colours256), "of256");
    QCOMPARE(
        palette::background(colour, palette::Depth::AllColours),
        QStringLiteral("48;2;%1;%2;%3").arg(qRed(colour)).arg(qGreen(colour)).arg(qBlue(colour)));
}

void PrinterNamesTest::cutTextsEndWithAnEllipsis_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("columns");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* text, int columns, const char* expected) {
        QTest::newRow(name) << QString::fromUtf8(text) << columns << QString::fromUtf8(expected);
    };
    row("fits", "Shipping", 8, "Shipping");
    row("one too many", "Shipping", 7, "Shippi…");
    row("one column", "Shipping", 1, "…");
    row("no column", "Shipping", 0, "…");
    row("wide fits", "印刷機", 6, "印刷機");
    row("wide", "印刷機", 5, "印刷…");
    row("half a wide character", "印刷機", 4, "印…");
    row("accent", "e\u0301e\u0301e\u0301", 2, "e\u0301…");
    row("empty", "", 0, "");
}

void PrinterNamesTest::cutTextsEndWithAnEllipsis()
{
    QFETCH(const QString, text);
    QFETCH(const int, columns);
    QTEST(text_layout::elided(text, columns), "expected");
}

QTEST_GUILESS_MAIN(PrinterNamesTest)
#include "tst_printer_names.moc"
