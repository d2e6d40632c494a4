// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What the test kit takes out of a report, and how it understands answers.
#include "questions.h"
#include "redaction.h"
#include "report.h"

#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>

class TestKitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAreReplaced_data();
    void namesAreReplaced();
    void longerNamesFirst();
    void reportHasNoNames();
    void answers_data();
    void answers();
};

void TestKitTest::namesAreReplaced_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("replaced");
    const auto row = [](const char* name, const char* text, const char* replaced) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(replaced);
    };
    row("alone", "ann", "<user>");
    row("in a path", "C:/Users/Ann/x", "C:/Users/<user>/x");
    row("part of a word", "Joanna and annual", "Joanna and annual");
    row("twice", "ANN, ann", "<user>, <user>");
    row("other letters beside it", "Annä", "Annä");
    row("at the end", "by ann", "by <user>");
    row("sign at its end", "at Büro (2)!", "at <printer 1>!");
    row("without its letters", "at B?ro (2), B\uFFFDro (2)", "at <printer 1>, <printer 1>");
    row("in upper case", "AT BÜRO (2)", "AT <printer 1>");
}

void TestKitTest::namesAreReplaced()
{
    QFETCH(const QString, text);
    QFETCH(const QString, replaced);
    Redaction redaction;
    redaction.add(QStringLiteral("ann"), QStringLiteral("<user>"));
    redaction.add(QStringLiteral("Büro (2)"), QStringLiteral("<printer 1>"));
    redaction.add(QStringLiteral("x"), QStringLiteral("<too short>"));
    redaction.add(QString(), QStringLiteral("<empty>"));
    QCOMPARE(redaction.redacted(text), replaced);
}

void TestKitTest::longerNamesFirst()
{
    Redaction redaction;
    redaction.add(QStringLiteral("Lager"), QStringLiteral("<printer 1>"));
    redaction.add(QStringLiteral("Lager Süd"), QStringLiteral("<printer 2>"));
    redaction.add(QStringLiteral("lager"), QStringLiteral("<user>"));
    QCOMPARE(redaction.redacted(QStringLiteral("Lager Süd, Lager")),
             QStringLiteral("<printer 2>, <printer 1>"));
    QCOMPARE(redaction.replacements(),
             (QStringList{QStringLiteral("<printer 1>"), QStringLiteral("<printer 2>")}));
}

void TestKitTest::reportHasNoNames()
{
    Redaction redaction;
    redaction.add(QStringLiteral("Lager Süd"), QStringLiteral("<printer 1>"));
    Report report;
    report.version = QStringLiteral("1.2");
    report.begun = report.ended = QDateTime::currentDateTimeUtc();
    report.leftBehind = {QStringLiteral("missing: Lager Süd")};
    TestResult test;
    test.name = QStringLiteral("tst_one");
    test.outcome = TestResult::Outcome::Failed;
    test.reason = QStringLiteral("because of lager süd");
    test.output = QStringLiteral("</script><b>%1 Lager Süd & \"more\"</b>");
    test.failed = 1;
    report.tests = {test};

    const QByteArray html = report.html(redaction);

    QVERIFY(!QString::fromUtf8(html).contains(QStringLiteral("Lager Süd"), Qt::CaseInsensitive));
    QVERIFY(!html.contains("<b>%1"));
    const QByteArray opening("<script type=\"application/json\" id=\"report\">");
    const qsizetype begin = html.indexOf(opening) + opening.size();
    const QByteArray json = html.mid(begin, html.indexOf("</script>", begin) - begin);
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    QCOMPARE(object[QLatin1String("tests")][0][QLatin1String("output")].toString(),
             QStringLiteral("</script><b>%1 <printer 1> & \"more\"</b>"));
    QCOMPARE(object[QLatin1String("counts")][QLatin1String("failed")].toInt(), 1);
    QCOMPARE(object[QLatin1String("leftBehind")][0].toString(),
             QStringLiteral("missing: <printer 1>"));
}

void TestKitTest::answers_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("answer");
    for (const char* word : {"y", "Yes", " J ", "ja", "Sí", "s", "o", "OUI", "はい", "是"})
        QTest::newRow(word) << QString::fromUtf8(word) << QStringLiteral("yes");
    for (const char* word : {"n", "No", "NEIN", "non", "いいえ", "否"})
        QTest::newRow(word) << QString::fromUtf8(word) << QStringLiteral("no");
    for (const char* word : {"", "yy", "1", "nyet", "maybe"})
        QTest::newRow(*word ? word : "nothing") << QString::fromUtf8(word) << QString();
}

void TestKitTest::answers()
{
    QFETCH(const QString, word);
    QFETCH(const QString, answer);
    const std::optional<bool> found = answerOf(word);
    const QString text = !found ? QString() : *found ? QStringLiteral("yes") : QStringLiteral("no");
    QCOMPARE(text, answer);
}

QTEST_GUILESS_MAIN(TestKitTest)
#include "tst_test_kit.moc"
