// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How texts fit the columns of a terminal.
#include "text_layout.h"

#include <QtTest/QtTest>

class TextLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widthCountsColumns_data();
    void widthCountsColumns();
    void paddedTextTakesTheColumns_data();
    void paddedTextTakesTheColumns();
    void textIsWrappedWhereItsLanguageAllowsIt_data();
    void textIsWrappedWhereItsLanguageAllowsIt();
    void numbersAndSkusAreNotDivided();
    void everyLineOfALongTextFits_data();
    void everyLineOfALongTextFits();
    void paragraphIsIndented();
    void rowsStandBesideEachOther();
};

void TextLayoutTest::widthCountsColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qsizetype>("columns");
    const auto row = [](const char* name, const QString& text, qsizetype columns) {
        QTest::newRow(name) << text << columns;
    };
    row("empty", QString(), 0);
    row("English", QStringLiteral("Ready"), 5);
    row("German", QStringLiteral("Größe"), 5);
    row("Japanese", QStringLiteral("準備完了"), 8);
    row("Chinese", QStringLiteral("就绪。"), 6);
    row("Korean", QStringLiteral("한국"), 4);
    row("wide brackets", QStringLiteral("（A）"), 5);
    row("half-width katakana", QStringLiteral("ｶﾅ"), 2);
    row("combining accent", QStringLiteral("e\u0301"), 1);
    row("beyond the first plane", QStringLiteral("𠮷"), 2);
    row("emoji", QStringLiteral("🖨"), 2);
    row("half a surrogate pair", QString(QChar(0xd842)), 1);
}

void TextLayoutTest::widthCountsColumns()
{
    QFETCH(const QString, text);
    QTEST(text_layout::width(text), "columns");
}

void TextLayoutTest::paddedTextTakesTheColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("padded");
    QTest::newRow("narrow") << QStringLiteral("ab") << QStringLiteral("ab    ");
    QTest::newRow("wide") << QStringLiteral("状態") << QStringLiteral("状態  ");
    QTest::newRow("full") << QStringLiteral("状態名") << QStringLiteral("状態名");
    QTest::newRow("too wide") << QStringLiteral("abcdefgh") << QStringLiteral("abcdefgh");
}

void TextLayoutTest::paddedTextTakesTheColumns()
{
    QFETCH(const QString, text);
    QTEST(text_layout::padded(text, 6), "padded");
}

void TextLayoutTest::textIsWrappedWhereItsLanguageAllowsIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("empty") << QString() << QStringList{QString()};
    QTest::newRow("short") << QStringLiteral("one two") << QStringList{QStringLiteral("one two")};
    QTest::newRow("exactly full") << QStringLiteral("abcde ghij next")
                                  << QStringList{QStringLiteral("abcde ghij"),
                                                 QStringLiteral("next")};
    QTest::newRow("one too many") << QStringLiteral("abcde ghijk")
                                  << QStringList{QStringLiteral("abcde"), QStringLiteral("ghijk")};
    QTest::newRow("a long word") << QStringLiteral("a services.msc.services b")
                                 << QStringList{QStringLiteral("a"),
                                                QStringLiteral("services.msc.services"),
                                                QStringLiteral("b")};
    // A full stop does not begin a line.
    QTest::newRow("Japanese") << QStringLiteral("準備完了。次へ")
                              << QStringList{QStringLiteral("準備完了。"), QStringLiteral("次へ")};
    QTest::newRow("Japanese, full stop")
        << QStringLiteral("準備完了中。")
        << QStringList{QStringLiteral("準備完了"), QStringLiteral("中。")};
}

void TextLayoutTest::textIsWrappedWhereItsLanguageAllowsIt()
{
    QFETCH(const QString, text);
    QTEST(text_layout::wrapped(text, 10), "lines");
}

void TextLayoutTest::numbersAndSkusAreNotDivided()
{
    QCOMPARE(text_layout::wrapped(QStringLiteral("Vinyl, only 80 % left"), 14),
             (QStringList{QStringLiteral("Vinyl, only"), QStringLiteral("80 % left")}));
    QCOMPARE(text_layout::wrapped(QStringLiteral("roll VT-400-YL"), 12),
             (QStringList{QStringLiteral("roll"), QStringLiteral("VT-400-YL")}));
}

void TextLayoutTest::everyLineOfALongTextFits_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("English") << QStringLiteral("The labels that were loaded are used up. ");
    QTest::newRow("Chinese") << QStringLiteral(
        "装入的标签已用完。尚未打印的内容在打印队列中等待。");
    QTest::newRow("mixed") << QStringLiteral(
        "管理者として services.msc を開き、「Print Spooler」を");
}

void TextLayoutTest::everyLineOfALongTextFits()
{
    QFETCH(const QString, text);
    const QString all = text.repeated(20).trimmed();
    for (const int columns : {30, 61, 80}) {
        const QStringList lines = text_layout::wrapped(all, columns);
        for (const QString& line : lines) {
            QVERIFY2(text_layout::width(line) <= columns, qPrintable(line));
            QCOMPARE(line, line.trimmed());
        }
        // Nothing is lost.
        const auto withoutSpaces = [](QString some) {
            return some.remove(QLatin1Char(' '));
        };
        QCOMPARE(withoutSpaces(lines.join(QString())), withoutSpaces(all));
        // Every line but the last is about full: no word of these texts is longer than 14 columns.
        for (qsizetype i = 0; i + 1 < lines.size(); ++i)
            QVERIFY2(text_layout::width(lines.at(i)) > columns - 16, qPrintable(lines.at(i)));
    }
}

void TextLayoutTest::paragraphIsIndented()
{
    const QString text = QStringLiteral("abcdefghij ").repeated(8).trimmed();
    QCOMPARE(
        text_layout::paragraph(text, 5),
        QStringLiteral("     abcdefghij abcdefghij abcdefghij abcdefghij abcdefghij abcdefghij\n"
                       "     abcdefghij abcdefghij\n"));
}

void TextLayoutTest::rowsStandBesideEachOther()
{
    const QString right = QStringLiteral("abcdefghij ").repeated(6).trimmed();
    QCOMPARE(text_layout::rows({{QStringLiteral("--状態"), QStringLiteral("short")},
                                {QStringLiteral("--a-very-long-option VALUE"), right}}),
             QStringLiteral("  --状態                 short\n"
                            "  --a-very-long-option VALUE\n"
                            "                         abcdefghij abcdefghij abcdefghij abcdefghij "
                            "abcdefghij\n"
                            "                         abcdefghij\n"));
}

QTEST_GUILESS_MAIN(TextLayoutTest)
#include "tst_text_layout.moc"
