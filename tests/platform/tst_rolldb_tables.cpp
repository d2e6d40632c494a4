// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "failure_of.h"
#include "small_catalogue.h"
#include "test_file.h"

#include <csv_table.h>
#include <shown_text.h>

#include <QtCore/QDataStream>
#include <QtCore/QSet>
#include <QtTest/QtTest>

namespace {

const QString sampleCatalogue = testFile(VX_SAMPLE_CATALOGUE);

/// The header of a bitmap file with a size, without any pixels.
QByteArray bitmapHeader(qint32 width, qint32 height)
{
    constexpr quint32 headerSize = 54;
    constexpr quint32 infoSize = 40;
    QByteArray header;
    QDataStream stream(&header, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << quint8{'B'} << quint8{'M'} << headerSize << quint32{0} << headerSize << infoSize
           << width << height << quint16{1} << quint16{24};
    for (int i = 0; i < 6; ++i)
        stream << quint32{0};
    return header;
}

/// Adds the columns of a test function that changes a text of a file, and returns what adds a row.
auto rowsOfMistakes()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("fault");
    return [](const char* name, const char* file, const char* before, const char* after,
              const char* fault) {
        QTest::newRow(name) << QString::fromLatin1(file) << QByteArray(before) << QByteArray(after)
                            << QString::fromUtf8(fault);
    };
}

} // namespace

class RollDbTablesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesAnInvalidRow_data();
    void refusesAnInvalidRow();
    void reportsAllMistakesInTheOrderOfTheFiles();
    void reportsTheFirst50MistakesAndCountsTheOthers();
    void reportsNoMistakeThatFollowsFromAnother_data();
    void reportsNoMistakeThatFollowsFromAnother();
    void goesOnAfterALineThatIsNoRow();
    void reportsOneUnclosedQuotationMark();
    void namesTheLineOfAHeaderBelowEmptyLines();
    void refusesInvisibleCharacters_data();
    void refusesInvisibleCharacters();
    void recognisesInvisibleCharacters();
    void refusesAPictureOfTooManyPixels_data();
    void refusesAPictureOfTooManyPixels();
    void refusesMoreRowsThanAReaderAccepts();
    void refusesAMissingTable_data();
    void refusesAMissingTable();
    void refusesWhatExceedsALimit();
    void readsTheVariantsThatSpreadsheetsWrite_data();
    void readsTheVariantsThatSpreadsheetsWrite();
    void readsQuotedFields();
    void acceptsSemicolonsAndDecimalCommas();
    void acceptsTabs_data();
    void acceptsTabs();
    void refusesATableInTwoFiles();
    void theSampleCatalogueHasEveryNameInEachLanguage();
    void everySampleSupplyHasAKindAndAPrintSetting();
};

void RollDbTablesTest::refusesAnInvalidRow_data()
{
    const auto row = rowsOfMistakes();
    const char* const colours = "colours.csv";
    row("a colour without #", colours, "#ffffff", "ffffff",
        "colours.csv:2, column 2 (rgb): \"ffffff\" is not a colour of the form #RRGGBB");
    row("a colour with an invalid digit", colours, "#ffffff", "#fffffg",
        "colours.csv:2, column 2 (rgb): \"#fffffg\" is not a colour of the form #RRGGBB");
    row("a short colour", colours, "#ffffff", "#fff",
        "colours.csv:2, column 2 (rgb): \"#fff\" is not a colour of the form #RRGGBB");
    row("a colour twice", colours, "red,#C8102E", "white,#C8102E",
        "colours.csv:3, column 1 (colour): duplicate colour \"white\"");
    row("a colour without a key", colours, "red,#C8102E", ",#C8102E",
        "colours.csv:3, column 1 (colour): empty; expected a text of at most 40 characters");
    row("a space in a key", colours, "teal,", "dark teal,",
        "colours.csv:5, column 1 (colour): \"dark teal\" has a space; expected a key without "
        "spaces");
    row("no English name", colours, "Teal,,", ",Petrol,",
        "colours.csv:5, column 3 (en): empty; expected a text of at most 200 characters");
    row("one field too many", colours, "Teal,,", "Teal,,,,x",
        "colours.csv:5: 7 fields, but there are 5 columns");
    row("one field too few", colours, "Teal,,", "Teal,",
        "colours.csv:5: 4 fields, but there are 5 columns");
    row("an unknown column", colours, "en,de,ja", "en,de,color",
        "colours.csv:1, column 5 (color): neither a column of this table nor a known language; "
        "expected colour, rgb and languages such as en or de");
    row("a column of another table", "ribbons.csv", "panels\n", "panels,heat\n",
        "ribbons.csv:1, column 7 (heat): not a column of this table; expected sku, numbers, type, "
        "width, length, panels\n"
        "ribbons.csv:2: 6 fields, but there are 7 columns\n"
        "ribbons.csv:3: 6 fields, but there are 7 columns\n"
        "ribbons.csv:4: 6 fields, but there are 7 columns");
    row("a column twice", colours, "en,de,ja", "en,de,de",
        "colours.csv:1, column 5 (de): duplicate column");
    row("a column without a name", colours, "en,de,ja", "en,,ja",
        "colours.csv:1, column 4 (): a column without a name");
    row("a language twice", colours, "en,de,ja", "en,de,de-CH",
        "colours.csv:1, column 5 (de-CH): the same language as the column de");
    row("no column of English names", colours, "en,de,ja", "de,fr,ja",
        "colours.csv: the column en is missing");
    row("a missing column", colours, "colour,rgb", "colour,es",
        "colours.csv: the column rgb is missing");
    row("an open quotation mark", colours, "Teal", "\"Teal",
        "colours.csv:5: an unclosed quotation mark");
    row("text after a quotation mark", colours, "Teal", "\"Te\"al",
        "colours.csv:5: text after a closing quotation mark");
    row("a quotation mark inside", colours, "Teal", "Te\"al",
        "colours.csv:5: a quotation mark inside a field that is not quoted");
    row("a carriage return", colours, "Teal", "Te\ral",
        "colours.csv:5: a carriage return without a line feed");
    row("bytes that are not text", colours, "Teal",
        "T\xe9"
        "al",
        "colours.csv:5: not UTF-8 text; save the table as UTF-8");
    row("half a character at the end", colours, "Teal,,\n", "Teal,,\xe7",
        "colours.csv:5: not UTF-8 text; save the table as UTF-8");

    row("a material that is not a number", "materials.csv", "7,Vinyl", "vinyl,Vinyl",
        "materials.csv:2, column 1 (material): \"vinyl\" is not a whole number between 0 and "
        "999999");
    row("a material below zero", "materials.csv", "7,Vinyl", "-1,Vinyl",
        "materials.csv:2, column 1 (material): \"-1\" is not a whole number between 0 and 999999");
    row("a material twice", "materials.csv", "0,Paper", "7,Paper",
        "materials.csv:3, column 1 (material): duplicate material 7");
    row("an unknown type", "formats.csv", "continuous", "endless",
        "formats.csv:2, column 2 (type): \"endless\" is not one of continuous, die-cut, sleeve, "
        "tag");
    row("a format twice", "formats.csv", "2,die-cut", "1,die-cut",
        "formats.csv:3, column 1 (format): duplicate format 1");

    const char* const supplies = "supplies.csv";
    row("an invalid SKU", supplies, "TAPE-1,100042", "-1,100042",
        "supplies.csv:2, column 1 (sku): \"-1\" is not a SKU: at most 40 letters from A to Z, "
        "digits, dots, underscores and hyphens, starting with a letter or digit");
    row("a SKU of two lines", supplies, "SPARE-1", "\"SPARE\n\x1b[2J\"",
        "supplies.csv:4, column 1 (sku): \"SPARE\\u000a\\u001b[2J\" is not a SKU: at most 40 "
        "letters from A to Z, digits, dots, underscores and hyphens, starting with a letter or "
        "digit");
    row("a SKU twice", supplies, "SPARE-1", "TAPE-1",
        "supplies.csv:4, column 1 (sku): duplicate SKU TAPE-1");
    row("a kind twice", supplies, "100050", "100043",
        "supplies.csv:3, column 2 (kinds): duplicate number 100043");
    row("a kind of zero", supplies, "100050", "0",
        "supplies.csv:3, column 2 (kinds): \"0\" is not a whole number between 1 and 999999");
    row("a kind of seven digits", supplies, "100050", "1000500",
        "supplies.csv:3, column 2 (kinds): \"1000500\" is not a whole number between 1 and 999999");
    row("an unknown material", supplies, ",7,1,white", ",8,1,white",
        "supplies.csv:2, column 3 (material): material 8 is not in materials.csv");
    row("an unknown format", supplies, ",7,1,white", ",7,3,white",
        "supplies.csv:2, column 4 (format): format 3 is not in formats.csv");
    row("an unknown colour", supplies, "1,white", "1,snow",
        "supplies.csv:2, column 5 (colour): \"snow\" is not in colours.csv");
    row("a second colour without a width", supplies, "red,1.25", "red,",
        "supplies.csv:2, column 7 (second_colour_width): a second colour and its width must be "
        "given together or not at all");
    row("a stripe wider than the supply", supplies, "red,1.25", "red,4.5",
        "supplies.csv:2, column 7 (second_colour_width): \"4.5\" is not a number between 0 and 4");
    row("no width", supplies, "1.25,4,6000", "1.25,,6000",
        "supplies.csv:2, column 8 (width): \"\" is not a number between 0 and 100");
    row("a width of zero", supplies, "1.25,4,6000", "1.25,0,6000",
        "supplies.csv:2, column 8 (width): \"0\" is not greater than 0");
    row("a width with a decimal comma", supplies, "1.25,4,6000", "1.25,\"4,5\",6000",
        "supplies.csv:2, column 8 (width): \"4,5\" is not a number between 0 and 100");
    row("an infinite length", supplies, "1.25,4,6000", "1.25,4,inf",
        "supplies.csv:2, column 9 (length): \"inf\" is not a number between 0 and 100000");
    row("a length that is not a number", supplies, "1.25,4,6000", "1.25,4,nan",
        "supplies.csv:2, column 9 (length): \"nan\" is not a number between 0 and 100000");
    row("a label length of a continuous supply", supplies, "6000,,", "6000,2,",
        "supplies.csv:2, column 10 (label_length): a label length is given, but the format is "
        "continuous");
    row("labels without a length", supplies, "1500,1.5,", "1500,,",
        "supplies.csv:3, column 10 (label_length): empty, but the format is not continuous");
    row("labels longer than the roll", supplies, "1500,1.5,", "1500,1501,",
        "supplies.csv:3, column 10 (label_length): \"1501\" is not a number between 0 and 1500");
    row("a separator below zero", supplies, "1.5,0.125", "1.5,-0.125",
        "supplies.csv:3, column 11 (separator_width): \"-0.125\" is not a number between 0 and "
        "100");
    row("neither yes nor no", supplies, "yes,dot.png", "true,dot.png",
        "supplies.csv:2, column 12 (landscape): \"true\" is neither yes nor no");
    row("a picture that is missing", supplies, "dot.png", "spot.png",
        "supplies.csv:2, column 13 (background): backgrounds/spot.png cannot be read");
    row("a picture from elsewhere", supplies, "dot.png", "../dot.png",
        "supplies.csv:2, column 13 (background): \"../dot.png\" is not a plain file name");
    row("a picture from the root", supplies, "dot.png", "/dot.png",
        "supplies.csv:2, column 13 (background): \"/dot.png\" is not a plain file name");
    row("a file that is not a picture", "backgrounds/dot.png", "PNG", "GNP",
        "supplies.csv:2, column 13 (background): backgrounds/dot.png is not a readable image");
    row("no labels side by side", supplies, ",3,0.1", ",0,0.1",
        "supplies.csv:3, column 14 (multi_up_count): \"0\" is not a whole number between 1 and "
        "100");
    row("labels without a gap", supplies, ",3,0.1", ",3,",
        "supplies.csv:3, column 15 (multi_up_gap): empty, but there are several labels across");
    row("a gap beside one label", supplies, ",3,0.1", ",1,0.1",
        "supplies.csv:3, column 15 (multi_up_gap): a gap is given, but there is only one label "
        "across");

    const char* const ribbons = "ribbons.csv";
    row("a ribbon twice", ribbons, "RIBBON-T", "RIBBON-K",
        "ribbons.csv:4, column 1 (sku): duplicate SKU RIBBON-K");
    row("a ribbon with a supply's SKU", ribbons, "RIBBON-T", "TAPE-1",
        "ribbons.csv:4, column 1 (sku): TAPE-1 is a supply's SKU");
    row("a ribbon's number twice", ribbons, "2003", "2001",
        "ribbons.csv:3, column 2 (numbers): duplicate number 2001");
    row("a number that no driver publishes", ribbons, "2003", "100001",
        "ribbons.csv:3, column 2 (numbers): \"100001\" is not a whole number between 1 and 100000");
    row("no panels", ribbons, ",red black", ",",
        "ribbons.csv:3, column 6 (panels): 0 panels; a ribbon has 1 to 16");
    row("too many panels", ribbons, ",red black",
        ",red red red red red red red red red red red red red red red red red",
        "ribbons.csv:3, column 6 (panels): 17 panels; a ribbon has 1 to 16");
    row("a panel of an unknown colour", ribbons, "red black", "red blue",
        "ribbons.csv:3, column 6 (panels): \"blue\" is not in colours.csv");

    const char* const settings = "print_settings.csv";
    row("a setting of an unknown ribbon", settings, "RIBBON-K,1,LABEL-1", "RIBBON-X,1,LABEL-1",
        "print_settings.csv:5, column 1 (ribbon): \"RIBBON-X\" is not in ribbons.csv");
    row("a setting of an unknown panel", settings, "RIBBON-K,1,LABEL-1", "RIBBON-K,2,LABEL-1",
        "print_settings.csv:5, column 2 (panel): \"2\" is not a whole number between 1 and 1");
    row("a setting of an unknown supply", settings, "RIBBON-K,1,LABEL-1", "RIBBON-K,1,RIBBON-K",
        "print_settings.csv:5, column 3 (supply): \"RIBBON-K\" is not in supplies.csv");
    row("a setting twice", settings, "RIBBON-K,1,LABEL-1", "RIBBON-K,1,TAPE-1",
        "print_settings.csv:5, column 1 (ribbon): duplicate print setting for panel 1 of RIBBON-K "
        "with TAPE-1");
    row("a negative offset", settings, "44,0,8", "44,-1,8",
        "print_settings.csv:5, column 5 (heat_offset): \"-1\" is not a whole number between 0 and "
        "1000");
    row("a speed of zero", settings, "44,0,8", "44,0,0",
        "print_settings.csv:5, column 6 (max_speed): \"0\" is not a whole number between 1 and "
        "1000");
    row("a fraction", settings, "44,0,8", "44.5,0,8",
        "print_settings.csv:5, column 4 (heat): \"44.5\" is not a whole number between 0 and 1000");

    row("a model twice", "printer_formats.csv", "AlderMax,1", "alderMAX,1",
        "printer_formats.csv:4, column 1 (model): \"alderMAX\" is the same model as "
        "\"AlderMax\"");
    row("a format twice in a list", "printer_formats.csv", "AlderMax,1", "AlderMax,2",
        "printer_formats.csv:4, column 2 (format): duplicate format 2 for AlderMax");
    row("an unknown format in a list", "printer_formats.csv", "AlderMax,1", "AlderMax,9",
        "printer_formats.csv:4, column 2 (format): format 9 is not in formats.csv");
    row("a list without a model", "printer_formats.csv", "AlderMax,1", ",1",
        "printer_formats.csv:4, column 1 (model): empty; expected a text of at most 40 characters");
}

void RollDbTablesTest::refusesAnInvalidRow()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    SmallCatalogue catalogue;
    QVERIFY(catalogue.files.value(file).contains(before));
    catalogue.files[file].replace(before, after);
    const QString fault = failureOf([&catalogue] { catalogue.read(); });
    QTEST(fault, "fault");
}

void RollDbTablesTest::reportsAllMistakesInTheOrderOfTheFiles()
{
    SmallCatalogue catalogue;
    catalogue.replace("colours.csv", "#ffffff,White", "white,");
    catalogue.replace("materials.csv", "en,de", "en,color");
    catalogue.replace("formats.csv", "2,die-cut", "2,cut");
    // A row's mistakes are found in another order than that of its columns.
    catalogue.replace("supplies.csv", "0.9,1500,1.5,0.125,no,,3,0.1", "wide,0,1.5,x,maybe,,0,0.1");
    catalogue.replace("ribbons.csv", "RIBBON-K,2001 2002,wax,4.33",
                      "RIBBON-K,2001 0 2002 x,,4.33 in");
    catalogue.replace("print_settings.csv", "RIBBON-K,1,LABEL-1,44,0,8,26",
                      "RIBBON-X,17,LABEL-1,44,-1,0,1001");
    catalogue.replace("printer_formats.csv", "Alder,2\n", "Alder,3\n");
    QCOMPARE(
        failureOf([&catalogue] { catalogue.read(); }).split(u'\n'),
        (QStringList{
            QStringLiteral("colours.csv:2, column 2 (rgb): \"white\" is not a colour of the form "
                           "#RRGGBB"),
            QStringLiteral("colours.csv:2, column 3 (en): empty; expected a text of at most 200 "
                           "characters"),
            QStringLiteral("materials.csv:1, column 3 (color): neither a column of this table "
                           "nor a known language; expected material and languages such as en "
                           "or de"),
            QStringLiteral("formats.csv:3, column 2 (type): \"cut\" is not one of continuous, "
                           "die-cut, sleeve, tag"),
            QStringLiteral("supplies.csv:3, column 8 (width): \"wide\" is not a number between "
                           "0 and 100"),
            QStringLiteral("supplies.csv:3, column 9 (length): \"0\" is not greater than 0"),
            QStringLiteral("supplies.csv:3, column 11 (separator_width): \"x\" is not a number "
                           "between 0 and 100"),
            QStringLiteral("supplies.csv:3, column 12 (landscape): \"maybe\" is neither yes nor "
                           "no"),
            QStringLiteral("supplies.csv:3, column 14 (multi_up_count): \"0\" is not a whole "
                           "number between 1 and 100"),
            QStringLiteral("ribbons.csv:2, column 2 (numbers): \"0\" is not a whole number "
                           "between 1 and 100000"),
            QStringLiteral("ribbons.csv:2, column 2 (numbers): \"x\" is not a whole number "
                           "between 1 and 100000"),
            QStringLiteral("ribbons.csv:2, column 3 (type): empty; expected a text of at most "
                           "40 characters"),
            QStringLiteral("ribbons.csv:2, column 4 (width): \"4.33 in\" is not a number between "
                           "0 and 100"),
            QStringLiteral("print_settings.csv:5, column 1 (ribbon): \"RIBBON-X\" is not in "
                           "ribbons.csv"),
            QStringLiteral("print_settings.csv:5, column 2 (panel): \"17\" is not a whole number "
                           "between 1 and 16"),
            QStringLiteral("print_settings.csv:5, column 5 (heat_offset): \"-1\" is not a whole "
                           "number between 0 and 1000"),
            QStringLiteral("print_settings.csv:5, column 6 (max_speed): \"0\" is not a whole "
                           "number between 1 and 1000"),
            QStringLiteral("print_settings.csv:5, column 7 (tension): \"1001\" is not a whole "
                           "number between 0 and 1000"),
            QStringLiteral("printer_formats.csv:2, column 2 (format): format 3 is not in "
                           "formats.csv"),
        }));
}

void RollDbTablesTest::reportsTheFirst50MistakesAndCountsTheOthers()
{
    SmallCatalogue catalogue;
    QByteArray& colours = catalogue.files[QStringLiteral("colours.csv")];
    for (int i = 0; i < 1000; ++i)
        colours += "c" + QByteArray::number(i) + ",,Name,,\n";
    catalogue.replace("ribbons.csv", "2003", "x");
    const QStringList lines = failureOf([&catalogue] { catalogue.read(); }).split(u'\n');
    QCOMPARE(lines.size(), 51);
    for (int i = 0; i < 50; ++i)
        QVERIFY2(
            lines.at(i).startsWith(QStringLiteral("colours.csv:%1, column 2 (rgb): ").arg(6 + i)),
            qPrintable(lines.at(i)));
    QCOMPARE(lines.last(), QStringLiteral("... and 951 more"));

    catalogue = {};
    QByteArray& materials = catalogue.files[QStringLiteral("materials.csv")];
    for (int i = 0; i < 50; ++i)
        materials += "m,Name,\n";
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }).count(u'\n'), 49);
}

void RollDbTablesTest::reportsNoMistakeThatFollowsFromAnother_data()
{
    const auto row = rowsOfMistakes();
    row("a colour that cannot be read", "colours.csv", "red,#C8102E,Red,", "red,#C8102E,Red,,",
        "colours.csv:3: 6 fields, but there are 5 columns");
    row("a colour without a valid key", "colours.csv", "red,", "bright red,",
        "colours.csv:3, column 1 (colour): \"bright red\" has a space; expected a key without "
        "spaces");
    row("a colour with another mistake", "colours.csv", "red,#C8102E", "red,C8102E",
        "colours.csv:3, column 2 (rgb): \"C8102E\" is not a colour of the form #RRGGBB");
    row("a column of keys that is missing", "colours.csv", "colour,", "color,",
        "colours.csv: the column colour is missing\n"
        "colours.csv:1, column 1 (color): neither a column of this table nor a known language; "
        "expected colour, rgb and languages such as en or de");
    row("a table without a header", "materials.csv", "material,en,de\n", "mat\"erial,en,de\n",
        "materials.csv:1: a quotation mark inside a field that is not quoted");
    row("a table in another encoding", "formats.csv", "Etiketten", "\xc4tiketten",
        "formats.csv:3: not UTF-8 text; save the table as UTF-8");
    row("a material without a number", "materials.csv", "7,Vinyl", ",Vinyl",
        "materials.csv:2, column 1 (material): \"\" is not a whole number between 0 and 999999");
    row("a format of an unknown type", "formats.csv", "continuous", "endless",
        "formats.csv:2, column 2 (type): \"endless\" is not one of continuous, die-cut, sleeve, "
        "tag");
    row("a format without a number", "formats.csv", "2,die-cut", "x,die-cut",
        "formats.csv:3, column 1 (format): \"x\" is not a whole number between 0 and 999999");
    row("a supply without a format", "supplies.csv", ",7,1,white", ",7,x,white",
        "supplies.csv:2, column 4 (format): \"x\" is not a whole number between 0 and 999999");
    row("a supply without a width", "supplies.csv", "1.25,4,6000", "1.25,-4,6000",
        "supplies.csv:2, column 8 (width): \"-4\" is not a number between 0 and 100");
    row("a supply without a length", "supplies.csv", "0.9,1500", "0.9,",
        "supplies.csv:3, column 9 (length): \"\" is not a number between 0 and 100000");
    row("a supply without a SKU", "supplies.csv", "TAPE-1,", "tape 1,",
        "supplies.csv:2, column 1 (sku): \"tape 1\" is not a SKU: at most 40 letters from A to Z, "
        "digits, dots, underscores and hyphens, starting with a letter or digit");
    row("a ribbon without its panels", "ribbons.csv", "red black", "red blue",
        "ribbons.csv:3, column 6 (panels): \"blue\" is not in colours.csv");
    row("a ribbon without any panels", "ribbons.csv", "2360,red black", "2360,",
        "ribbons.csv:3, column 6 (panels): 0 panels; a ribbon has 1 to 16");
    row("a ribbon without a SKU", "ribbons.csv", "RIBBON-RK,", ",",
        "ribbons.csv:3, column 1 (sku): \"\" is not a SKU: at most 40 letters from A to Z, digits, "
        "dots, underscores and hyphens, starting with a letter or digit");
}

void RollDbTablesTest::reportsNoMistakeThatFollowsFromAnother()
{
    refusesAnInvalidRow();
}

void RollDbTablesTest::goesOnAfterALineThatIsNoRow()
{
    QStringList mistakes;
    const CsvTable table = CsvTable::parse(
        QStringLiteral("t.csv"),
        QByteArray("key,size\na,\"1\" 2\nb,2\nc\"c,3\n\"q\nq\"q,4\ne,5\rf,6\ng,7,8\n") +
            QByteArray("h,") + QByteArray(5000, 'x') + "\ni," + '\0' + "\nj,10\n",
        [&mistakes](const Mistake& mistake) { mistakes.append(mistake.message()); });
    QCOMPARE(mistakes,
             (QStringList{
                 QStringLiteral("t.csv:2: text after a closing quotation mark"),
                 QStringLiteral("t.csv:4: a quotation mark inside a field that is not quoted"),
                 QStringLiteral("t.csv:6: text after a closing quotation mark"),
                 QStringLiteral("t.csv:7: a carriage return without a line feed"),
                 QStringLiteral("t.csv:8: 3 fields, but there are 2 columns"),
                 QStringLiteral("t.csv:9: a field of more than 4096 characters"),
                 QStringLiteral("t.csv:10: a NUL character"),
             }));
    QVERIFY(!table.isComplete());
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.field(0, QStringLiteral("key")).text, QStringLiteral("b"));
    QCOMPARE(table.field(1, QStringLiteral("key")).text, QStringLiteral("j"));
    QCOMPARE(table.field(1, QStringLiteral("key")).line, 11);
}

// The mark hides the rows below it, which are read as if it were not there.
void RollDbTablesTest::reportsOneUnclosedQuotationMark()
{
    QStringList mistakes;
    const CsvTable table = CsvTable::parse(
        QStringLiteral("t.csv"), "key,size\na,1\n\"b,2\nc,3\nq,4,5\n",
        [&mistakes](const Mistake& mistake) { mistakes.append(mistake.message()); });
    QCOMPARE(mistakes, (QStringList{QStringLiteral("t.csv:3: an unclosed quotation mark"),
                                    QStringLiteral("t.csv:5: 3 fields, but there are 2 columns")}));
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.field(1, QStringLiteral("key")).text, QStringLiteral("c"));
}

void RollDbTablesTest::namesTheLineOfAHeaderBelowEmptyLines()
{
    SmallCatalogue catalogue;
    catalogue.files[QStringLiteral("materials.csv")].prepend("\n\n");
    catalogue.replace("materials.csv", "en,de", "en,en");
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("materials.csv:3, column 3 (en): duplicate column"));
}

void RollDbTablesTest::refusesInvisibleCharacters_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("place");

    const auto row = [](const char* name, const char* file, const char* text, const char* place) {
        QTest::newRow(name) << QString::fromLatin1(file) << QByteArray(text)
                            << QString::fromLatin1(place);
    };
    row("an English name", "colours.csv", "Teal", "colours.csv:5, column 3 (en)");
    row("a translation", "colours.csv", "Schwarz", "colours.csv:4, column 4 (de)");
    row("a colour's key", "colours.csv", "teal", "colours.csv:5, column 1 (colour)");
    row("a material", "materials.csv", "Vinyl", "materials.csv:2, column 2 (en)");
    row("a format", "formats.csv", "Etiketten", "formats.csv:3, column 4 (de)");
    row("a ribbon's type", "ribbons.csv", "wax", "ribbons.csv:2, column 3 (type)");
    row("a model", "printer_formats.csv", "Alder,", "printer_formats.csv:2, column 1 (model)");
    row("a picture's file", "supplies.csv", "dot.png", "supplies.csv:2, column 13 (background)");
}

void RollDbTablesTest::refusesInvisibleCharacters()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, text);
    QFETCH(QString, place);
    SmallCatalogue catalogue;
    QByteArray& table = catalogue.files[file];
    QVERIFY(table.contains(text));
    table.insert(table.indexOf(text) + 1, QString(QChar(0x202e)).toUtf8());
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             place + QStringLiteral(": the character U+202E is invisible; remove it"));
}

void RollDbTablesTest::recognisesInvisibleCharacters()
{
    for (const char32_t character :
         {U'\0',           U'\a',     U'\t',         U'\n',         U'\r',
          U'\x1b',         U'\x7f',   U'\x9b',       U'\xad',       U'\u061c',
          U'\u200b',       U'\u200c', U'\u200d',     U'\u200e',     U'\u2028',
          U'\u2029',       U'\u202e', U'\u2066',     U'\ufeff',     U'\ufffe',
          U'\uffff',       U'\ufdd0', U'\U000e0041', U'\U0010ffff', char32_t{0xd800},
          char32_t{0xdfff}}) {
        QString text = QStringLiteral("a");
        if (QChar::requiresSurrogates(character))
            text += QChar(QChar::highSurrogate(character));
        text += QChar::requiresSurrogates(character) ? QChar(QChar::lowSurrogate(character))
                                                     : QChar(static_cast<char16_t>(character));
        QCOMPARE(invisibleCharacter(text + QStringLiteral("b")), character);
    }
    for (const QString& text :
         {QString(), QStringLiteral("Weiß, matt"), QStringLiteral("白 / 赤"),
          QStringLiteral("no-break\u00a0space"), QStringLiteral("é by a combining e\u0301"),
          QStringLiteral("葛\U000e0100"), QStringLiteral("😀"),
          QStringLiteral("\ue000 of private use")})
        QVERIFY2(!invisibleCharacter(text), qPrintable(text));
}

void RollDbTablesTest::refusesAPictureOfTooManyPixels_data()
{
    QTest::addColumn<QByteArray>("image");
    QTest::addColumn<QString>("fault");

    const QString place =
        QStringLiteral("supplies.csv:2, column 13 (background): backgrounds/dot.png has ");
    QTest::newRow("the maximum") << bitmapHeader(4096, 4096) << QString();
    QTest::newRow("wide") << bitmapHeader(4097, 1)
                          << place +
                                 QStringLiteral("4097 by 1 pixels; the maximum is 4096 by 4096");
    QTest::newRow("high") << bitmapHeader(1, 4097)
                          << place +
                                 QStringLiteral("1 by 4097 pixels; the maximum is 4096 by 4096");
    QTest::newRow("a few bytes of 60,000 by 60,000")
        << QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAA6mAAAOpgCAIAAAAPsOIVAAAA"
                                  "CElEQVR4nAMAAAAAAUgGidIAAAAASUVORK5CYII=")
        << place + QStringLiteral("60000 by 60000 pixels; the maximum is 4096 by 4096");
}

void RollDbTablesTest::refusesAPictureOfTooManyPixels()
{
    QFETCH(QByteArray, image);
    SmallCatalogue catalogue;
    catalogue.files[QStringLiteral("backgrounds/dot.png")] = image;
    QTEST(failureOf([&catalogue] { catalogue.read(); }), "fault");
}

void RollDbTablesTest::refusesMoreRowsThanAReaderAccepts()
{
    SmallCatalogue catalogue;
    QByteArray& supplies = catalogue.files[QStringLiteral("supplies.csv")];
    for (int i = 3; i < 16384; ++i)
        supplies += "S" + QByteArray::number(i) + ",,0,2,black,,,2,300,1,0,yes,,1,\n";
    QCOMPARE(catalogue.read().supplies.size(), 16384);
    supplies += "S16384,,0,2,black,,,2,300,1,0,yes,,1,\n";
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("supplies.csv: more than 16384 rows"));
}

void RollDbTablesTest::refusesAMissingTable_data()
{
    QTest::addColumn<QString>("file");
    for (const char* file : {"colours.csv", "materials.csv", "formats.csv", "supplies.csv",
                             "ribbons.csv", "print_settings.csv", "printer_formats.csv"})
        QTest::newRow(file) << QString::fromLatin1(file);
}

void RollDbTablesTest::refusesAMissingTable()
{
    QFETCH(QString, file);
    SmallCatalogue catalogue;
    catalogue.files.remove(file);
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             file + QStringLiteral(": no such file, or it cannot be read"));
    catalogue.files.insert(file, "\n \n");
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             file + QStringLiteral(": empty; expected a line of column names"));
}

void RollDbTablesTest::refusesWhatExceedsALimit()
{
    SmallCatalogue catalogue;
    catalogue.replace("colours.csv", "Teal", QByteArray(201, 'x'));
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("colours.csv:5, column 3 (en): longer than 200 characters"));

    catalogue = {};
    catalogue.replace("colours.csv", "Teal", QByteArray(5000, 'x'));
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("colours.csv:5: a field of more than 4096 characters"));

    catalogue = {};
    catalogue.files[QStringLiteral("backgrounds/dot.png")].append(
        QByteArray(qsizetype{256} * 1024, '\0'));
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral(
                 "supplies.csv:2, column 13 (background): backgrounds/dot.png is larger than 256 "
                 "KiB"));

    catalogue = {};
    catalogue.files[QStringLiteral("colours.csv")] = QByteArray(16 * 1024 * 1024 + 1, '\n');
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("colours.csv: larger than 16 MiB"));

    catalogue = {};
    catalogue.files[QStringLiteral("colours.csv")] = QByteArray("a,").repeated(100);
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("colours.csv:1: more than 64 columns"));
}

void RollDbTablesTest::readsTheVariantsThatSpreadsheetsWrite_data()
{
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("plain") << QByteArray("key,size\na,1.5\nb,2\n");
    QTest::newRow("no line feed at the end") << QByteArray("key,size\na,1.5\nb,2");
    QTest::newRow("carriage returns") << QByteArray("key,size\r\na,1.5\r\nb,2\r\n");
    QTest::newRow("a byte order mark") << QByteArray("\xef\xbb\xbfkey,size\na,1.5\nb,2\n");
    QTest::newRow("quotation marks") << QByteArray("\"key\",\"size\"\n\"a\",\"1.5\"\n\"b\",2\n");
    QTest::newRow("spaces") << QByteArray(" key , size\n a,\t1.5 \n \"b\" , 2\n");
    QTest::newRow("empty rows") << QByteArray("\nkey,size\n\na,1.5\n,\n  \nb,2\n\n");
    QTest::newRow("empty columns") << QByteArray("key,size,,\na,1.5,,\nb,2,,\n");
}

void RollDbTablesTest::readsTheVariantsThatSpreadsheetsWrite()
{
    QFETCH(QByteArray, text);
    const CsvTable table = CsvTable::parse(QStringLiteral("t.csv"), text);
    QCOMPARE(table.columns(), (QStringList{QStringLiteral("key"), QStringLiteral("size")}));
    QCOMPARE(table.rowCount(), 2);
    QCOMPARE(table.field(0, QStringLiteral("key")).text, QStringLiteral("a"));
    QCOMPARE(table.field(0, QStringLiteral("size")).text, QStringLiteral("1.5"));
    QCOMPARE(table.field(1, QStringLiteral("key")).text, QStringLiteral("b"));
    QCOMPARE(table.field(1, QStringLiteral("size")).text, QStringLiteral("2"));
}

void RollDbTablesTest::readsQuotedFields()
{
    const CsvTable table = CsvTable::parse(
        QStringLiteral("t.csv"), "key,name\na,\"one, \"\"two\"\"\nthree\"\nb,\"\"\nc,x\n");
    QCOMPARE(table.rowCount(), 3);
    QCOMPARE(table.field(0, QStringLiteral("name")).text, QStringLiteral("one, \"two\"\nthree"));
    QCOMPARE(table.field(1, QStringLiteral("name")).text, QString());
    QCOMPARE(table.field(2, QStringLiteral("name")).place(),
             QStringLiteral("t.csv:5, column 2 (name)"));
}

void RollDbTablesTest::acceptsSemicolonsAndDecimalCommas()
{
    SmallCatalogue catalogue;
    QByteArray& supplies = catalogue.files[QStringLiteral("supplies.csv")];
    supplies.replace(',', ';').replace('.', ',').replace("dot,png", "dot.png");
    QCOMPARE(catalogue.read().supplies.at(0).secondColourWidth, std::optional(1.25));
    supplies.replace("1,25", "1.25");
    QCOMPARE(catalogue.read().supplies.at(0).secondColourWidth, std::optional(1.25));
}

void RollDbTablesTest::acceptsTabs_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("decimalPoint");
    for (const char* file : {"supplies.csv", "supplies.tsv"}) {
        for (const char* point : {".", ","})
            QTest::addRow("%s with %s", file, point)
                << QString::fromLatin1(file) << QByteArray(point);
    }
}

void RollDbTablesTest::acceptsTabs()
{
    QFETCH(const QString, file);
    QFETCH(const QByteArray, decimalPoint);
    SmallCatalogue catalogue;
    const Catalogue expected = catalogue.read();
    QByteArray supplies = catalogue.files.take(QStringLiteral("supplies.csv"));
    supplies.replace(',', '\t').replace('.', decimalPoint).replace("dot,png", "dot.png");
    catalogue.files.insert(file, supplies);
    QVERIFY(catalogue.read() == expected);

    // A field may have a tab if it is quoted, and messages name the file that was read.
    catalogue.files[file].replace("TAPE-1", "\"TAPE\t1\"");
    QVERIFY(
        failureOf([&catalogue] {
            catalogue.read();
        }).startsWith(file + QStringLiteral(":2, column 1 (sku): \"TAPE\\u00091\" is not a SKU")));
    catalogue.files[file] = supplies;
    catalogue.replace("print_settings.csv", "TAPE-1,52", "TAPE-2,52");
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("print_settings.csv:2, column 3 (supply): \"TAPE-2\" is not in ") +
                 file);
}

void RollDbTablesTest::refusesATableInTwoFiles()
{
    SmallCatalogue catalogue;
    catalogue.files.insert(QStringLiteral("ribbons.tsv"),
                           catalogue.files.value(QStringLiteral("ribbons.csv")));
    QCOMPARE(failureOf([&catalogue] { catalogue.read(); }),
             QStringLiteral("ribbons.csv: there is also ribbons.tsv; remove one of them"));
}

void RollDbTablesTest::theSampleCatalogueHasEveryNameInEachLanguage()
{
    const Catalogue catalogue = readCatalogueDirectory(sampleCatalogue);
    QCOMPARE(catalogue.languages.values(),
             (QStringList{QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr"),
                          QStringLiteral("es"), QStringLiteral("ja")}));
    const QList<int> others{1, 2, 3, 4};
    for (const Catalogue::Colour& colour : catalogue.colours)
        QCOMPARE(colour.name.translations.keys(), others);
    for (const Catalogue::Material& material : catalogue.materials)
        QCOMPARE(material.name.translations.keys(), others);
    for (const Catalogue::Format& format : catalogue.formats)
        QCOMPARE(format.name.translations.keys(), others);
}

void RollDbTablesTest::everySampleSupplyHasAKindAndAPrintSetting()
{
    const Catalogue catalogue = readCatalogueDirectory(sampleCatalogue);
    QSet<QString> printed;
    for (const Catalogue::PrintSetting& setting : catalogue.settings)
        printed.insert(setting.supplySku);
    for (const Catalogue::Supply& supply : catalogue.supplies) {
        QVERIFY2(printed.contains(supply.sku), qPrintable(supply.sku));
        QVERIFY2(!supply.kinds.isEmpty(), qPrintable(supply.sku));
    }
}

QTEST_GUILESS_MAIN(RollDbTablesTest)
#include "tst_rolldb_tables.moc"
