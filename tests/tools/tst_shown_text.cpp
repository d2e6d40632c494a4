// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How the tools escape text from elsewhere before they print it.
#include <json_text.h>
#include <shown_text.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>

class ShownTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printableTextIsUnchanged_data();
    void printableTextIsUnchanged();
    void charactersThatControlATerminalAreEscaped_data();
    void charactersThatControlATerminalAreEscaped();
    void everyCharacterOfTheseCategoriesIsEscaped();
    void longMessageIsShortened();
    void escapedJsonIsTheSameJson();
};

void ShownTextTest::printableTextIsUnchanged_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("words") << QStringLiteral("Front Desk ~ {1}");
    QTest::newRow("network path") << QStringLiteral("\\\\server\\u001b");
    QTest::newRow("letters of other languages") << QStringLiteral("Jägergrün 黄 ビニール שלום");
    QTest::newRow("beyond the first plane") << QStringLiteral("\U0001F5A8 \U00020000");
    QTest::newRow("combining") << QStringLiteral("e\u0301");
    QTest::newRow("for private use") << QStringLiteral("\uE000");
}

void ShownTextTest::printableTextIsUnchanged()
{
    QFETCH(const QString, text);
    QCOMPARE(shown(text), text);
}

void ShownTextTest::charactersThatControlATerminalAreEscaped_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    const auto row = [](const char* name, const QString& text, const char* escaped) {
        QTest::newRow(name) << text << QString::fromLatin1(escaped);
    };
    const auto unit = [](char16_t number) {
        return QString(QChar(number));
    };
    row("escape", unit(0x1B) + QStringLiteral("[31m"), "\\u001b[31m");
    row("bell", unit(7), "\\u0007");
    row("carriage return", unit(0x0D), "\\u000d");
    row("line feed", QStringLiteral("a\nb"), "a\\u000ab");
    row("null", unit(0), "\\u0000");
    row("delete", unit(0x7F), "\\u007f");
    row("control sequence introducer", unit(0x9B), "\\u009b");
    row("soft hyphen", unit(0xAD), "\\u00ad");
    row("right-to-left override", unit(0x202E), "\\u202e");
    row("isolate", unit(0x2066), "\\u2066");
    row("zero-width joiner", unit(0x200D), "\\u200d");
    row("line separator", unit(0x2028), "\\u2028");
    row("paragraph separator", unit(0x2029), "\\u2029");
    row("byte order mark", unit(0xFEFF), "\\ufeff");
    row("tag", QStringLiteral("\U000E0001"), "\\udb40\\udc01");
    row("high half alone", unit(0xD83D), "\\ud83d");
    row("halves in the wrong order", unit(0xDC00) + unit(0xD83D), "\\udc00\\ud83d");
    row("noncharacter", unit(0xFFFE), "\\ufffe");
    row("noncharacter beyond the first plane", QString::fromUcs4(U"\U0010FFFF"), "\\udbff\\udfff");
}

void ShownTextTest::charactersThatControlATerminalAreEscaped()
{
    QFETCH(const QString, text);
    QTEST(shown(text), "escaped");
    QTEST(shown(shown(text)), "escaped");
}

void ShownTextTest::everyCharacterOfTheseCategoriesIsEscaped()
{
    for (char32_t character = 0; character <= QChar::LastValidCodePoint; ++character) {
        const QChar::Category category = QChar::category(character);
        const bool isEscaped =
            category == QChar::Other_Control || category == QChar::Other_Format ||
            category == QChar::Other_Surrogate || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph || QChar::isNonCharacter(character);
        const QString text = QStringView(QChar::fromUcs4(character)).toString();
        if ((shown(text) != text) != isEscaped)
            QFAIL(qPrintable(QStringLiteral("U+%1 becomes \"%2\"")
                                 .arg(uint(character), 4, 16, QLatin1Char('0'))
                                 .arg(shown(text))));
    }
}

void ShownTextTest::longMessageIsShortened()
{
    const QString fits(messageLength, QLatin1Char('x'));
    QCOMPARE(shownAsMessage(fits), fits);
    const QString begin = QStringLiteral("found \n\"");
    const QString end = QStringLiteral("\", expected less");
    const QString message = shownAsMessage(begin + QString(1000000, QLatin1Char('x')) + end);
    QVERIFY(message.size() <= messageLength + 20);
    QVERIFY(message.startsWith(QStringLiteral("found \\u000a\"xxx")));
    QVERIFY(message.contains(QStringLiteral("x ... x")));
    QVERIFY(message.endsWith(end));
}

void ShownTextTest::escapedJsonIsTheSameJson()
{
    QString hostile = QStringLiteral("\"\\ \u001b\u009b\u202e\u2028\U000E0001");
    hostile += QChar(0xD83D);
    const QString json = json_text::value(hostile);
    for (const QChar character : json)
        QVERIFY(character >= QLatin1Char(' ') && character <= QLatin1Char('~'));
    QCOMPARE(QJsonDocument::fromJson('[' + json.toUtf8() + ']').array().first().toString(),
             hostile);
}

QTEST_GUILESS_MAIN(ShownTextTest)
#include "tst_shown_text.moc"
