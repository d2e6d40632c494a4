// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "supplydb_test.h"
#include "test_file.h"

#include <QtTest/QtTest>

#include <limits>
#include <memory>

class VXSupplyDatabaseTest : public SupplyDatabaseTest
{
    Q_OBJECT

private Q_SLOTS:
    void knowsASupply();
    void knowsLabelsSideBySide();
    void answersDefaultsForWhatASupplyDoesNotHave();
    void namesAreInTheLanguageOrInEnglish_data();
    void namesAreInTheLanguageOrInEnglish();
    void namesFollowAChangeOfLanguage();
    void setupKeepsTheLanguage();
    void knowsNothingOfAnUnknownSku_data();
    void knowsNothingOfAnUnknownSku();
    void knowsNothingBeforeASetup();
    void distinguishesSuppliesFromRibbons();
    void knowsARibbon();
    void knowsNothingOfAMissingPanel_data();
    void knowsNothingOfAMissingPanel();
    void knowsThePrintSettingsOfAPanelOnASupply();
    void listsHaveAnEntryForEachRibbon();
    void listsOfNoRibbonAreEmpty();
    void listsAllSuppliesAndRibbons();
    void theSupplyIdentifierDecidesTheSku_data();
    void theSupplyIdentifierDecidesTheSku();
    void theRibbonIdentifiersDecideTheSkus_data();
    void theRibbonIdentifiersDecideTheSkus();
    void setupKeepsWhatIsLoaded();
    void looksUpWhatIsLoadedAgainAfterASetup();
    void theTypeIndexIsThePositionInTheModelsList_data();
    void theTypeIndexIsThePositionInTheModelsList();
    void objectsAreIndependent();
    void oneConnectionNameServesTwoObjects();
    void agreesWithTheSampleDatabase();
};

void VXSupplyDatabaseTest::knowsASupply()
{
    QCOMPARE(m_database->supplyMaterial(tape), 7);
    QCOMPARE(m_database->supplyMaterialName(tape), QStringLiteral("Vinyl"));
    QCOMPARE(m_database->supplyFormat(tape), 1);
    QCOMPARE(m_database->supplyFormatName(tape), QStringLiteral("Tape"));
    QCOMPARE(m_database->supplyFormatType(tape), QStringLiteral("continuous"));
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
    QCOMPARE(m_database->supplyColorNameEn(tape), QStringLiteral("White"));
    QCOMPARE(m_database->supplySecColorRGB(tape), 0xC8102E);
    QCOMPARE(m_database->supplySecColorName(tape), QStringLiteral("Red"));
    QCOMPARE(m_database->supplySecColorNameEn(tape), QStringLiteral("Red"));
    QCOMPARE(m_database->supplySecColorWidth(tape), 1.25);
    QCOMPARE(m_database->supplyWidth(tape), 4.0);
    QCOMPARE(m_database->supplyLength(tape), 6000.0);
    QCOMPARE(m_database->supplyIsLandscape(tape), 1);
    QCOMPARE(m_database->supplyBackgroundImage(tape),
             SmallCatalogue().files.value(QStringLiteral("backgrounds/dot.png")));
}

void VXSupplyDatabaseTest::knowsLabelsSideBySide()
{
    QCOMPARE(m_database->supplyMaterial(label), 0);
    QCOMPARE(m_database->supplyFormatType(label), QStringLiteral("die-cut"));
    QCOMPARE(m_database->supplyNonContinuousLength(label), 1.5);
    QCOMPARE(m_database->supplySeparatorWidth(label), 0.125);
    QCOMPARE(m_database->supplyIsLandscape(label), 0);
    QCOMPARE(m_database->supplyMultiUpCount(label), 3);
    QCOMPARE(m_database->supplyMultiUpGapSize(label), 0.1);
}

void VXSupplyDatabaseTest::answersDefaultsForWhatASupplyDoesNotHave()
{
    QCOMPARE(m_database->supplyNonContinuousLength(tape), -1.0);
    QCOMPARE(m_database->supplySeparatorWidth(tape), -1.0);
    QCOMPARE(m_database->supplyMultiUpCount(tape), 1);
    QCOMPARE(m_database->supplyMultiUpGapSize(tape), -1.0);
    QCOMPARE(m_database->supplySecColorRGB(label), -1);
    QCOMPARE(m_database->supplySecColorName(label), QString());
    QCOMPARE(m_database->supplySecColorNameEn(label), QString());
    QCOMPARE(m_database->supplySecColorWidth(label), -1.0);
    QCOMPARE(m_database->supplyBackgroundImage(label), QByteArray());
    QCOMPARE(m_database->supplySeparatorWidth(spare), 0.0); // labels that touch
}

void VXSupplyDatabaseTest::namesAreInTheLanguageOrInEnglish_data()
{
    QTest::addColumn<int>("language");
    QTest::addColumn<QString>("white");
    QTest::addColumn<QString>("black");
    QTest::addColumn<QString>("teal");
    QTest::addColumn<QString>("vinyl");
    QTest::addColumn<QString>("tape");

    QTest::newRow("English") << 0 << "White"
                             << "Black"
                             << "Teal"
                             << "Vinyl"
                             << "Tape";
    QTest::newRow("German") << germanId << QStringLiteral("Weiß") << "Schwarz"
                            << "Teal"
                            << "Vinylfolie"
                            << "Band";
    QTest::newRow("Japanese") << japanese << QStringLiteral("白") << "Black"
                              << "Teal"
                              << "Vinyl"
                              << "Tape";
    QTest::newRow("a language without any name") << polish << "White"
                                                 << "Black"
                                                 << "Teal"
                                                 << "Vinyl"
                                                 << "Tape";
    QTest::newRow("not the number of a language") << -7 << "White"
                                                  << "Black"
                                                  << "Teal"
                                                  << "Vinyl"
                                                  << "Tape";
}

void VXSupplyDatabaseTest::namesAreInTheLanguageOrInEnglish()
{
    QFETCH(int, language);
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
    m_database->setLanguageId(language);
    QTEST(m_database->supplyColorName(tape), "white");
    QTEST(m_database->supplyColorName(spare), "black");
    QTEST(m_database->supplyColorName(label), "teal");
    QTEST(m_database->supplyMaterialName(tape), "vinyl");
    QTEST(m_database->supplyFormatName(tape), "tape");
    QTEST(m_database->supplyRibbonColorName(ribbonK, 1), "black");
    QCOMPARE(m_database->supplyColorNameEn(tape), QStringLiteral("White"));
    QCOMPARE(m_database->supplySecColorNameEn(tape), QStringLiteral("Red"));
}

void VXSupplyDatabaseTest::namesFollowAChangeOfLanguage()
{
    const auto names = [this] {
        return QStringList{m_database->supplyColorName(tape),
                           m_database->supplySecColorName(tape),
                           m_database->supplyMaterialName(tape),
                           m_database->supplyFormatName(tape),
                           m_database->supplyRibbonColorName(ribbonK, 1),
                           m_database->supplyRibbonsColorNames({ribbonRK}).value(0)};
    };
    const QStringList english{QStringLiteral("White"), QStringLiteral("Red"),
                              QStringLiteral("Vinyl"), QStringLiteral("Tape"),
                              QStringLiteral("Black"), QStringLiteral("Red")};
    QCOMPARE(names(), english);
    m_database->setLanguageId(germanId);
    QCOMPARE(names(), (QStringList{QStringLiteral("Weiß"), QStringLiteral("Rot"),
                                   QStringLiteral("Vinylfolie"), QStringLiteral("Band"),
                                   QStringLiteral("Schwarz"), QStringLiteral("Rot")}));
    m_database->setLanguageId(0);
    QCOMPARE(names(), english);
}

void VXSupplyDatabaseTest::setupKeepsTheLanguage()
{
    m_database->setLanguageId(germanId);
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplySecColorName(tape), QStringLiteral("Rot"));
}

void VXSupplyDatabaseTest::knowsNothingOfAnUnknownSku_data()
{
    QTest::addColumn<QString>("sku");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << "";
    QTest::newRow("nothing loaded") << "-1";
    QTest::newRow("not in the file") << unknownSku;
    QTest::newRow("other case") << "tape-1";
    QTest::newRow("a trailing space") << "TAPE-1 ";
    QTest::newRow("a statement") << "' OR 1 = 1 --";
    QTest::newRow("a trailing NUL") << tape + QChar(0);
    QTest::newRow("other script") << QStringLiteral("白");
    QTest::newRow("of the maximum length") << QString(40, u'A');
    QTest::newRow("a million characters") << QString(1000000, u'A');
}

void VXSupplyDatabaseTest::knowsNothingOfAnUnknownSku()
{
    QFETCH(QString, sku);
    QVERIFY(knowsNothing(*m_database, sku, sku));
    QVERIFY(knowsNothing(*m_database, sku, sku)); // also from the cache
    QCOMPARE(m_database->supplyRibbonHeat(ribbonK, 1, sku), -1);
    QCOMPARE(m_database->supplyRibbonHeat(sku, 1, tape), -1);
}

void VXSupplyDatabaseTest::knowsNothingBeforeASetup()
{
    VXSupplyDatabase fresh;
    QVERIFY(knowsNothing(fresh, tape, ribbonK));
    QVERIFY(holdsNothing(fresh));
    QCOMPARE(fresh.supplyId(), QString());
    QCOMPARE(fresh.supplySKU(), QStringLiteral("-1"));
    QCOMPARE(fresh.supplyRibbonSKUs(), QStringList());
    QCOMPARE(fresh.supplySupplyRGB(), QString());
    QCOMPARE(fresh.supplyRibbon1RGBs(), QStringList());
    QCOMPARE(fresh.supplyRibbon2RGBs(), QStringList());
}

void VXSupplyDatabaseTest::distinguishesSuppliesFromRibbons()
{
    QVERIFY(knowsNothing(*m_database, ribbonK, tape));
}

void VXSupplyDatabaseTest::knowsARibbon()
{
    QCOMPARE(m_database->supplyRibbonType(ribbonRK), QStringLiteral("resin"));
    QCOMPARE(m_database->supplyRibbonPanels(ribbonRK), 2);
    QCOMPARE(m_database->supplyRibbonPanels(ribbonK), 1);
    QCOMPARE(m_database->supplyRibbonWidth(ribbonRK), 4.33);
    QCOMPARE(m_database->supplyRibbonLength(ribbonRK), 2360.0);
    QCOMPARE(m_database->supplyRibbonColorName(ribbonRK, 1), QStringLiteral("Red"));
    QCOMPARE(m_database->supplyRibbonColorRGB(ribbonRK, 1), 0xC8102E);
    QCOMPARE(m_database->supplyRibbonColorName(ribbonRK, 2), QStringLiteral("Black"));
    QCOMPARE(m_database->supplyRibbonColorRGB(ribbonRK, 2), 0x000000);
}

void VXSupplyDatabaseTest::knowsNothingOfAMissingPanel_data()
{
    QTest::addColumn<int>("panel");
    for (const int panel : {0, 3, -1, std::numeric_limits<int>::max()})
        QTest::addRow("panel %d", panel) << panel;
}

void VXSupplyDatabaseTest::knowsNothingOfAMissingPanel()
{
    QFETCH(int, panel);
    QCOMPARE(m_database->supplyRibbonColorName(ribbonRK, panel), QString());
    QCOMPARE(m_database->supplyRibbonColorRGB(ribbonRK, panel), -1);
    QCOMPARE(m_database->supplyRibbonHeat(ribbonRK, panel, tape), -1);
}

void VXSupplyDatabaseTest::knowsThePrintSettingsOfAPanelOnASupply()
{
    QCOMPARE(m_database->supplyRibbonHeat(ribbonRK, 2, tape), 55);
    QCOMPARE(m_database->supplyRibbonHeatOffset(ribbonRK, 2, tape), 1);
    QCOMPARE(m_database->supplyRibbonMaxSpeed(ribbonRK, 2, tape), 4);
    QCOMPARE(m_database->supplyRibbonTension(ribbonRK, 2, tape), 33);
    QCOMPARE(m_database->supplyRibbonHeat(ribbonRK, 1, tape), 58);
    QCOMPARE(m_database->supplyRibbonHeat(ribbonK, 1, label), 44);
    QCOMPARE(m_database->supplyRibbonHeat(ribbonRK, 1, label),
             -1); // this ribbon does not print on this supply
}

void VXSupplyDatabaseTest::listsHaveAnEntryForEachRibbon()
{
    const QStringList ribbons{ribbonRK, unknownSku, ribbonK, QString(), ribbonT};
    QCOMPARE(m_database->supplyRibbonsColorNames(ribbons),
             (QStringList{QStringLiteral("Red"), QString(), QStringLiteral("Black"), QString(),
                          QStringLiteral("Teal")}));
    QCOMPARE(m_database->supplyRibbonsColorRGBs(ribbons),
             (QVariantList{0xC8102E, -1, 0, -1, 0x008080}));
    QCOMPARE(m_database->supplyRibbonsHeats(ribbons, tape), (QVariantList{58, -1, 52, -1, -1}));
    QCOMPARE(m_database->supplyRibbonsHeatOffsets(ribbons, tape), (QVariantList{2, -1, 0, -1, -1}));
    QCOMPARE(m_database->supplyRibbonsMaxSpeeds(ribbons, tape), (QVariantList{3, -1, 4, -1, -1}));
    QCOMPARE(m_database->supplyRibbonsTensions(ribbons, tape), (QVariantList{32, -1, 30, -1, -1}));
    QCOMPARE(m_database->supplyRibbonsHeats(ribbons, QString()),
             (QVariantList{-1, -1, -1, -1, -1}));
}

void VXSupplyDatabaseTest::listsOfNoRibbonAreEmpty()
{
    QCOMPARE(m_database->supplyRibbonsColorNames({}), QStringList());
    QCOMPARE(m_database->supplyRibbonsColorRGBs({}), QVariantList());
    QCOMPARE(m_database->supplyRibbonsHeats({}, tape), QVariantList());
    QCOMPARE(m_database->supplyRibbonsHeatOffsets({}, tape), QVariantList());
    QCOMPARE(m_database->supplyRibbonsMaxSpeeds({}, tape), QVariantList());
    QCOMPARE(m_database->supplyRibbonsTensions({}, tape), QVariantList());
}

void VXSupplyDatabaseTest::listsAllSuppliesAndRibbons()
{
    QCOMPARE(m_database->supplySKUList(), (QStringList{label, spare, tape}));
    QCOMPARE(m_database->supplyRibbonSKUList(), (QStringList{ribbonK, ribbonRK, ribbonT}));
    QCOMPARE(m_database->supplyColorHash(),
             (QVariantHash{{label, 0x008080}, {spare, 0}, {tape, 0xFFFFFF}}));
    QCOMPARE(m_database->supplyRibbonColorHash(),
             (QVariantHash{{ribbonK, 0}, {ribbonRK, 0xC8102E}, {ribbonT, 0x008080}}));
}

void VXSupplyDatabaseTest::theSupplyIdentifierDecidesTheSku_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("sku");
    QTest::addColumn<QString>("rgb");

    QTest::newRow("a kind") << tapeId << tape << "16777215";
    QTest::newRow("another kind of the SKU") << "00000064100043000001" << tape << "16777215";
    QTest::newRow("another SKU") << "00000064100050000001" << label << "32896";
    QTest::newRow("nothing loaded") << "-1"
                                    << "-1"
                                    << "";
    QTest::newRow("empty") << ""
                           << "-1"
                           << "";
    QTest::newRow("twenty zeros") << "00000000000000000000"
                                  << "-1"
                                  << "";
    QTest::newRow("nineteen zeros") << "0000000000000000000"
                                    << ""
                                    << "";
    QTest::newRow("a kind not in the file") << "00000064999999000001"
                                            << ""
                                            << "";
    QTest::newRow("cannot be decoded") << "what is this roll ?!"
                                       << ""
                                       << "";
}

void VXSupplyDatabaseTest::theSupplyIdentifierDecidesTheSku()
{
    QFETCH(QString, id);
    m_database->setSupplyId(tapeId);
    QCOMPARE(m_database->supplySKU(), tape);
    m_database->setSupplyId(id);
    QCOMPARE(m_database->supplyId(), id);
    QTEST(m_database->supplySKU(), "sku");
    QTEST(m_database->supplySupplyRGB(), "rgb");
}

void VXSupplyDatabaseTest::theRibbonIdentifiersDecideTheSkus_data()
{
    QTest::addColumn<QStringList>("ids");
    QTest::addColumn<QStringList>("skus");
    QTest::addColumn<QStringList>("rgbs1");
    QTest::addColumn<QStringList>("rgbs2");

    const QStringList none;
    const QStringList black{QStringLiteral("0")};
    const QStringList redBlack{QStringLiteral("13111342"), QStringLiteral("0")};
    QTest::newRow("none") << none << none << none << none;
    QTest::newRow("two") << QStringList{QStringLiteral("2001"), QStringLiteral("2003")}
                         << QStringList{ribbonK, ribbonRK} << black << redBlack;
    QTest::newRow("another number of the SKU")
        << QStringList{QStringLiteral("2002")} << QStringList{ribbonK} << black << none;
    QTest::newRow("nothing in the first place")
        << QStringList{QStringLiteral("-1"), QStringLiteral("2003")}
        << QStringList{QStringLiteral("-1"), ribbonRK} << none << redBlack;
    QTest::newRow("all bits set") << QStringList{QStringLiteral("4294967295")}
                                  << QStringList{QStringLiteral("-1")} << none << none;
    QTest::newRow("zero") << QStringList{QStringLiteral("0")} << QStringList{QStringLiteral("-1")}
                          << none << none;
    QTest::newRow("empty") << QStringList{QStringLiteral(""), QStringLiteral("2001")}
                           << QStringList{QStringLiteral("-1"), ribbonK} << none << black;
    QTest::newRow("not in the file")
        << QStringList{QStringLiteral("2099")} << QStringList{QStringLiteral("")} << none << none;
    QTest::newRow("no number") << QStringList{QStringLiteral("ribbon")}
                               << QStringList{QStringLiteral("")} << none << none;
    QTest::newRow("three") << QStringList{QStringLiteral("2001"), QStringLiteral("2003"),
                                          QStringLiteral("2002")}
                           << QStringList{ribbonK, ribbonRK, ribbonK} << black << redBlack;
}

void VXSupplyDatabaseTest::theRibbonIdentifiersDecideTheSkus()
{
    QFETCH(QStringList, ids);
    m_database->setRibbonIds({QStringLiteral("2003")});
    QCOMPARE(m_database->supplyRibbonSKUs(), QStringList{ribbonRK});
    m_database->setRibbonIds(ids);
    QTEST(m_database->supplyRibbonSKUs(), "skus");
    QTEST(m_database->supplyRibbon1RGBs(), "rgbs1");
    QTEST(m_database->supplyRibbon2RGBs(), "rgbs2");
}

void VXSupplyDatabaseTest::setupKeepsWhatIsLoaded()
{
    VXSupplyDatabase database;
    database.setSupplyId(tapeId);
    database.setRibbonIds({QStringLiteral("2001")});
    QCOMPARE(database.supplySKU(), QString()); // loaded, but of an unknown kind
    database.setup(path(), QStringLiteral("late"));
    QCOMPARE(database.supplySKU(), tape);
    QCOMPARE(database.supplyRibbonSKUs(), QStringList{ribbonK});
}

void VXSupplyDatabaseTest::looksUpWhatIsLoadedAgainAfterASetup()
{
    m_database->setSupplyId(tapeId);
    m_database->setRibbonIds({QStringLiteral("2001"), QStringLiteral("2003")});
    QCOMPARE(m_database->supplySKU(), tape);
    QCOMPARE(m_database->supplyRibbonSKUs(), (QStringList{ribbonK, ribbonRK}));
    {
        const TestConnection other(path());
        QVERIFY(other.run("UPDATE supply_kind SET supply_sku = 'LABEL-1' WHERE kind = 100042"));
        QVERIFY(other.run("UPDATE ribbon_number SET ribbon_sku = 'RIBBON-T' WHERE number = 2003"));
    }
    m_database->setup(path(), connectionName);
    QCOMPARE(m_database->supplySKU(), label);
    QCOMPARE(m_database->supplyRibbonSKUs(), (QStringList{ribbonK, ribbonT}));
}

void VXSupplyDatabaseTest::theTypeIndexIsThePositionInTheModelsList_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<int>("tape");
    QTest::addColumn<int>("label");

    QTest::newRow("a model") << "Stratamark AlderMax" << 1 << 0;
    QTest::newRow("a model within a name") << "warehouse aldermax (Copy 2)" << 1 << 0;
    QTest::newRow("a model that begins another's name") << "Stratamark Alder" << -1 << 0;
    QTest::newRow("no model") << "Label printer" << 0 << 1;
    QTest::newRow("no particular printer") << "-" << 0 << 1;
    QTest::newRow("no name") << "" << 0 << 1;
}

void VXSupplyDatabaseTest::theTypeIndexIsThePositionInTheModelsList()
{
    QFETCH(QString, printer);
    QTEST(m_database->supplyTypeIndex(tape, printer), "tape");
    QTEST(m_database->supplyTypeIndex(label, printer), "label");
    QCOMPARE(m_database->supplyTypeIndex(unknownSku, printer), -1);
}

void VXSupplyDatabaseTest::objectsAreIndependent()
{
    VXSupplyDatabase german;
    german.setup(path(), QStringLiteral("second"));
    german.setLanguageId(germanId);
    german.setRibbonIds({QStringLiteral("2003")});
    m_database->setSupplyId(tapeId);
    {
        VXSupplyDatabase empty;
        empty.setup(m_folder->filePath(QStringLiteral("none.db")), QStringLiteral("third"));
        QCOMPARE(empty.supplyColorName(tape), QString());
    }
    QCOMPARE(german.supplyColorName(tape), QStringLiteral("Weiß"));
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
    QCOMPARE(german.supplySKU(), QStringLiteral("-1"));
    QCOMPARE(m_database->supplySKU(), tape);
    QCOMPARE(m_database->supplyRibbonSKUs(), QStringList());
    german.setup(QString(), QStringLiteral("second"));
    QCOMPARE(m_database->supplyColorName(label), QStringLiteral("Teal"));
}

void VXSupplyDatabaseTest::oneConnectionNameServesTwoObjects()
{
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList()); // until the first query
    QCOMPARE(m_database->supplyColorRGB(tape), 0xFFFFFF);
    auto second = std::make_unique<VXSupplyDatabase>();
    second->setup(path(), connectionName);
    QCOMPARE(second->supplyColorName(tape), QStringLiteral("White"));
    QCOMPARE(m_database->supplyColorName(tape), QStringLiteral("White"));
    second.reset();
    QCOMPARE(m_database->supplyColorName(label), QStringLiteral("Teal"));
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList{connectionName});
}

// Compares every answer with the result of a separate statement.
void VXSupplyDatabaseTest::agreesWithTheSampleDatabase()
{
    const QString sample = m_folder->filePath(QStringLiteral("sample.db"));
    writeDatabase(readCatalogueDirectory(testFile(VX_SAMPLE_CATALOGUE)), sample);
    m_database->setup(sample, connectionName);
    m_database->setLanguageId(japanese);
    const TestConnection other(sample);

    QSqlQuery supplies(other.database());
    QVERIFY(supplies.exec(QStringLiteral(
        "SELECT s.sku, s.width, s.length, c.rgb, t.text FROM supply s, colour c, translation t "
        "WHERE c.id = s.colour_id AND t.name_id = c.name_id AND t.language_id = 4")));
    int supplyCount = 0;
    for (; supplies.next(); ++supplyCount) {
        const QString sku = supplies.value(0).toString();
        QCOMPARE(m_database->supplyWidth(sku), supplies.value(1).toDouble());
        QCOMPARE(m_database->supplyLength(sku), supplies.value(2).toDouble());
        QCOMPARE(m_database->supplyColorRGB(sku), supplies.value(3).toInt());
        QCOMPARE(m_database->supplyColorName(sku), supplies.value(4).toString());
    }
    QCOMPARE(m_database->supplySKUList().size(), supplyCount);
    QVERIFY(supplyCount >= 40);

    QSqlQuery settings(other.database());
    QVERIFY(settings.exec(QStringLiteral("SELECT * FROM print_setting")));
    int settingCount = 0;
    for (; settings.next(); ++settingCount) {
        const QString ribbon = settings.value(0).toString();
        const int panel = settings.value(1).toInt();
        const QString sku = settings.value(2).toString();
        QCOMPARE(m_database->supplyRibbonHeat(ribbon, panel, sku), settings.value(3).toInt());
        QCOMPARE(m_database->supplyRibbonHeatOffset(ribbon, panel, sku), settings.value(4).toInt());
        QCOMPARE(m_database->supplyRibbonMaxSpeed(ribbon, panel, sku), settings.value(5).toInt());
        QCOMPARE(m_database->supplyRibbonTension(ribbon, panel, sku), settings.value(6).toInt());
    }
    QVERIFY(settingCount > 0);
    QVERIFY(m_database->supplyRibbonSKUList().size() >= 20);
}

QTEST_GUILESS_MAIN(VXSupplyDatabaseTest)
#include "tst_vxsupplydb.moc"
