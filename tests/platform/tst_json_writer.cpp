// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "json_writer.h"

#include <QtCore/QByteArrayList>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QTest>

#include <limits>

namespace {

/// What a reader makes of the JSON; undefined when it is not valid.
QJsonValue read(const JsonWriter& json)
{
    return QJsonDocument::fromJson('[' + json.json() + ']').array().at(0);
}

/// The JSON of a number, written as a number and as a value.
template <typename Number>
QByteArrayList written(Number number)
{
    JsonWriter writer;
    writer.number(number);
    JsonWriter value;
    value.value(number);
    return {writer.json(), value.json()};
}

} // namespace

class JsonWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTexts_data();
    void writesTexts();
    void writesWholeNumbers_data();
    void writesWholeNumbers();
    void writesNumbers_data();
    void writesNumbers();
    void writesValues_data();
    void writesValues();
    void writesManyPieces();
};

void JsonWriterTest::writesTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("json");

    const auto row = [](const char* name, const QString& text, const QByteArray& json) {
        QTest::newRow(name) << text << json;
    };
    row("empty", QString(), R"("")");
    row("plain", QStringLiteral("a~/ b"), R"("a~/ b")");
    row("in two bytes", QStringLiteral(u"K\u00f6\u07ff"), "\"K\xc3\xb6\xdf\xbf\"");
    row("in three bytes", QStringLiteral(u"\u0800\ud7ff\ufffd"),
        "\"\xe0\xa0\x80\xed\x9f\xbf\xef\xbf\xbd\"");
    row("in four bytes", QStringLiteral(u"\U0001F600"), "\"\xf0\x9f\x98\x80\"");
    row("quotation mark", QStringLiteral("a\"b"), R"("a\"b")");
    row("backslash", QStringLiteral("a\\b"), R"("a\\b")");
    row("line end", QStringLiteral("a\nb"), R"("a\nb")");
    row("control character", QStringLiteral(u"\u001f"), R"("\u001f")");
    row("zero", QString(QChar(u'\0')), R"("\u0000")");
    row("delete", QStringLiteral(u"\u007f"), "\"\x7f\"");
    row("half a pair", QString(QChar(0xd83d)), R"("\ud83d")");
    row("long", QString(100'000, QChar(0x20ac)),
        '"' + QByteArray("\xe2\x82\xac").repeated(100'000) + '"');
}

void JsonWriterTest::writesTexts()
{
    QFETCH(const QString, text);
    QFETCH(const QByteArray, json);

    JsonWriter writer;
    writer.text(text);
    QCOMPARE(writer.json(), json);
    QCOMPARE(writer.size(), json.size());
}

void JsonWriterTest::writesWholeNumbers_data()
{
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("zero") << qint64{0} << QByteArray("0");
    QTest::newRow("negative") << qint64{-17} << QByteArray("-17");
    QTest::newRow("least") << std::numeric_limits<qint64>::min()
                           << QByteArray("-9223372036854775808");
    QTest::newRow("greatest") << std::numeric_limits<qint64>::max()
                              << QByteArray("9223372036854775807");
}

void JsonWriterTest::writesWholeNumbers()
{
    QFETCH(const qint64, number);
    QFETCH(const QByteArray, json);

    QCOMPARE(written(number), (QByteArrayList{json, json}));
}

void JsonWriterTest::writesNumbers_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("whole") << 3.0 << QByteArray("3");
    QTest::newRow("fraction") << 0.1 << QByteArray("0.1");
    QTest::newRow("float") << double{0.1F} << QByteArray("0.10000000149011612");
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min() << QByteArray("5e-324");
    QTest::newRow("greatest") << std::numeric_limits<double>::max()
                              << QByteArray("1.7976931348623157e+308");
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QByteArray("null");
    QTest::newRow("none") << std::numeric_limits<double>::quiet_NaN() << QByteArray("null");
}

void JsonWriterTest::writesNumbers()
{
    QFETCH(const double, number);
    QFETCH(const QByteArray, json);

    QCOMPARE(written(number), (QByteArrayList{json, json}));
}

void JsonWriterTest::writesValues_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("true") << QByteArray("true");
    QTest::newRow("false") << QByteArray("false");
    QTest::newRow("empty list") << QByteArray("[]");
    QTest::newRow("list") << QByteArray(R"([1,"a",[0.5,[]],null])");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("object") << QByteArray(R"({"a":[{"b":"\n"}],"c":-1.5})");
}

void JsonWriterTest::writesValues()
{
    QFETCH(const QByteArray, json);

    JsonWriter writer;
    writer.value(QJsonDocument::fromJson('[' + json + ']').array().at(0));
    QCOMPARE(writer.json(), json);
}

void JsonWriterTest::writesManyPieces()
{
    // Beyond the initial capacity, with pieces of all sizes.
    QJsonArray expected;
    JsonWriter writer;
    writer.raw("[");
    for (int i = 0; i < 1000; ++i) {
        if (i > 0)
            writer.raw(",");
        const QString text(i % 97, QChar(0x00e9));
        writer.text(text);
        writer.raw(",");
        writer.number(qint64{i});
        expected.append(text);
        expected.append(i);
    }
    writer.raw("]");
    QCOMPARE(read(writer).toArray(), expected);
}

QTEST_GUILESS_MAIN(JsonWriterTest)
#include "tst_json_writer.moc"
