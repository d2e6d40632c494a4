// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What rolldb prints about a database: its list, its supplies and ribbons, and identifiers.
#include "failure_of.h"
#include "small_catalogue.h"

#include <catalogue_list.h>
#include <identifier_search.h>
#include <sku_report.h>
#include <text_layout.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtTest/QtTest>

#include <memory>

class RollDbReportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void listsSuppliesAndRibbons();
    void listFitsThe80ColumnsOfATerminal();
    void listAsJsonHasEveryProperty();
    void showsASkuAsJson();
    void findsASupply();
    void saysIfTheLengthIsAnother();
    void findsARibbon();
    void findsAsJson();
    void saysWhatAnIdentifierIsNot_data();
    void saysWhatAnIdentifierIsNot();
    void listsFewOfManySimilarOnes();

private:
    QString path() const { return m_folder->filePath(QStringLiteral("roll.db")); }
    QString found(const char* identifier, const ReportStyle& style = {}) const
    {
        return identifierReport(path(), QString::fromUtf8(identifier), style);
    }
    static QJsonValue jsonOf(const QString& text)
    {
        const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
        return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void RollDbReportsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    SmallCatalogue().write(path());
}

void RollDbReportsTest::cleanup()
{
    m_folder.reset();
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void RollDbReportsTest::listsSuppliesAndRibbons()
{
    QCOMPARE(catalogueList(path(), {}),
             QStringLiteral("SUPPLY   KINDS          NAME\n"
                            "LABEL-1  100050         Teal, Paper, Labels\n"
                            "SPARE-1                 Black, Paper, Labels\n"
                            "TAPE-1   100042 100043  White + Red, Vinyl, Tape\n"
                            "\n"
                            "RIBBON     NUMBERS    NAME\n"
                            "RIBBON-K   2001 2002  Black, wax\n"
                            "RIBBON-RK  2003       Red + Black, resin\n"
                            "RIBBON-T              Teal, resin\n"));
    QVERIFY(catalogueList(path(), {.language = 1})
                .contains(QStringLiteral("Weiß + Rot, Vinylfolie, Band\n")));
}

void RollDbReportsTest::listFitsThe80ColumnsOfATerminal()
{
    SmallCatalogue catalogue;
    catalogue.replace("supplies.csv", "LABEL-1", QByteArray(40, 'L'));
    catalogue.replace("print_settings.csv", "LABEL-1", QByteArray(40, 'L'));
    catalogue.replace("supplies.csv", "100050", "100050 100051 100052 100053 100054");
    catalogue.replace("colours.csv", "Teal", "A colour with a name of many words \xf0\x9f\x98\x80");
    catalogue.replace("materials.csv", "Paper", "\xe7\x99\xbd\xe8\xb5\xa4\xe9\xbb\x92\xe7\x99\xbd");
    catalogue.write(path());
    const QStringList lines = catalogueList(path(), {}).split(u'\n');
    for (const QString& line : lines) {
        QVERIFY2(text_layout::width(line) <= 80, qPrintable(line));
        QVERIFY2(!line.endsWith(u' '), qPrintable(line));
    }
    QVERIFY(lines.size() > 12);
}

void RollDbReportsTest::listAsJsonHasEveryProperty()
{
    const QString text = catalogueList(path(), {.language = 1, .isJson = true});
    QCOMPARE(text.count(u'\n'), 8); // the brackets and one line for each
    const QJsonArray list = jsonOf(text).toArray();
    QCOMPARE(list.size(), 6);
    QCOMPARE(
        list.at(2).toObject(),
        QJsonDocument::fromJson(R"({"type": "supply", "sku": "TAPE-1", "kinds": [100042, 100043],
                 "material": {"number": 7, "name": "Vinylfolie"},
                 "format": {"number": 1, "type": "continuous", "name": "Band"},
                 "colour": {"key": "white", "rgb": "#ffffff", "name": "Weiß"},
                 "secondColour": {"key": "red", "rgb": "#c8102e", "name": "Rot"},
                 "secondColourWidth": 1.25, "width": 4, "length": 6000, "labelLength": null,
                 "separatorWidth": null, "landscape": true, "background": "dot.png",
                 "multiUpCount": 1, "multiUpGap": null})")
            .object());
    QCOMPARE(list.at(0).toObject().value(QStringLiteral("multiUpGap")), QJsonValue(0.1));
    QCOMPARE(list.at(4).toObject(),
             QJsonDocument::fromJson(R"({"type": "ribbon", "sku": "RIBBON-RK", "numbers": [2003],
                 "ribbonType": "resin", "width": 4.33, "length": 2360,
                 "panels": [{"key": "red", "rgb": "#c8102e", "name": "Rot"},
                            {"key": "black", "rgb": "#000000", "name": "Schwarz"}]})")
                 .object());
}

void RollDbReportsTest::showsASkuAsJson()
{
    const QJsonArray settings =
        QJsonDocument::fromJson(R"([{"ribbon": "RIBBON-K", "panel": 1, "supply": "LABEL-1",
                                     "heat": 44, "heatOffset": 0, "maxSpeed": 8, "tension": 26}])")
            .array();
    for (const char* sku : {"LABEL-1", "RIBBON-K"}) {
        const QString text = skuReport(path(), QString::fromLatin1(sku), {.isJson = true});
        QCOMPARE(text.count(u'\n'), 1);
        const QJsonObject object = jsonOf(text).toObject();
        QCOMPARE(object.value(QStringLiteral("sku")).toString(), QLatin1String(sku));
        QVERIFY(object.value(QStringLiteral("printSettings")).toArray().contains(settings.at(0)));
    }
}

void RollDbReportsTest::findsASupply()
{
    QCOMPARE(
        found("000001F41000420000A7"),
        QStringLiteral("Roll 167 of the kind 100042, which was 500 feet (6000 inches) long when "
                       "it was\nnew.\n\n") +
            skuReport(path(), QStringLiteral("TAPE-1"), {}));
    QVERIFY(found("000001f41000430000a7").contains(QStringLiteral("TAPE-1")));
}

void RollDbReportsTest::saysIfTheLengthIsAnother()
{
    const QString text = found("000000641000420000A7").simplified();
    QVERIFY2(text.startsWith(QStringLiteral(
                 "Roll 167 of the kind 100042, which was 100 feet (1200 inches) long when it was "
                 "new. The catalogue has another length, so the library cannot tell how much of "
                 "the roll is left. supply: TAPE-1")),
             qPrintable(text));
}

void RollDbReportsTest::findsARibbon()
{
    QCOMPARE(found("2003", {.language = 1}),
             skuReport(path(), QStringLiteral("RIBBON-RK"), {.language = 1}));
}

void RollDbReportsTest::findsAsJson()
{
    const QString supply = found("FFFFFFFF1000420000A7", {.isJson = true});
    QCOMPARE(supply.count(u'\n'), 1);
    QJsonObject object = jsonOf(supply).toObject();
    QCOMPARE(object.take(QStringLiteral("found")),
             jsonOf(skuReport(path(), QStringLiteral("TAPE-1"), {.isJson = true})));
    QCOMPARE(object, QJsonDocument::fromJson(R"({"identifier": "FFFFFFFF1000420000A7",
                         "lengthInFeet": -1, "kind": 100042, "roll": 167})")
                         .object());

    object = jsonOf(found("2003", {.isJson = true})).toObject();
    QCOMPARE(object.take(QStringLiteral("found")),
             jsonOf(skuReport(path(), QStringLiteral("RIBBON-RK"), {.isJson = true})));
    QCOMPARE(object, QJsonDocument::fromJson(R"({"identifier": "2003", "number": 2003})").object());
}

void RollDbReportsTest::saysWhatAnIdentifierIsNot_data()
{
    QTest::addColumn<QByteArray>("identifier");
    QTest::addColumn<QString>("fault");

    const QString form =
        QStringLiteral("@: \"%1\" is no identifier; expected the 20 characters of a supply (8 "
                       "hexadecimal, 6 decimal and 6 hexadecimal digits) or the number of a ribbon "
                       "from 1 to 100000");
    const QString nothing =
        QStringLiteral("\"%1\" is what a printer reports when nothing is loaded");
    QTest::newRow("an unknown kind") << QByteArray("000001F43000420000A7")
                                     << QStringLiteral("@: no supply of the kind 300042; similar: "
                                                       "100042 (TAPE-1)");
    QTest::newRow("a kind with swapped digits")
        << QByteArray("000001F41000240000A7")
        << QStringLiteral("@: no supply of the kind 100024; similar: 100042 (TAPE-1)");
    QTest::newRow("a kind like no other")
        << QByteArray("000001F40000070000A7") << QStringLiteral("@: no supply of the kind 000007");
    QTest::newRow("an unknown number")
        << QByteArray("2004")
        << QStringLiteral("@: no ribbon with the number 2004; similar: 2001 (RIBBON-K), 2002 "
                          "(RIBBON-K), 2003 (RIBBON-RK)");
    QTest::newRow("a number like no other")
        << QByteArray("99999") << QStringLiteral("@: no ribbon with the number 99999");
    for (const char* text :
         {"000001F41000420000A", "000001F41000420000A7 ", "000001F4100A420000A7",
          "G00001F41000420000A7", "100001", "+2003", "02003", "2003.0", "x", "%2"})
        QTest::newRow(text) << QByteArray(text)
                            << QString(form).replace(QLatin1String("%1"), QLatin1String(text));
    QTest::newRow("a control character")
        << QByteArray("\x1b[2J") << form.arg(QStringLiteral("\\u001b[2J"));
    QTest::newRow("a SKU") << QByteArray("TAPE-1")
                           << QStringLiteral(
                                  "@: \"TAPE-1\" is a SKU; show prints what the file has "
                                  "about it");
    QTest::newRow("a ribbon's SKU")
        << QByteArray("RIBBON-K")
        << QStringLiteral("@: \"RIBBON-K\" is a SKU; show prints what the "
                          "file has about it");
    for (const char* text : {"", "-1", "0", "4294967295", "00000000000000000000"})
        QTest::newRow(*text ? text : "empty")
            << QByteArray(text) << nothing.arg(QLatin1String(text));
}

void RollDbReportsTest::saysWhatAnIdentifierIsNot()
{
    QFETCH(const QByteArray, identifier);
    QFETCH(QString, fault);
    QCOMPARE(failureOf([&] { found(identifier.constData()); }), fault.replace(u'@', path()));
}

void RollDbReportsTest::listsFewOfManySimilarOnes()
{
    SmallCatalogue catalogue;
    catalogue.replace("ribbons.csv", "2003", "2003 2005 2006 2007 2008 2009");
    catalogue.write(path());
    QCOMPARE(failureOf([this] { found("2004"); }).count(QStringLiteral(" (RIBBON-")), 5);
}

QTEST_GUILESS_MAIN(RollDbReportsTest)
#include "tst_rolldb_reports.moc"
