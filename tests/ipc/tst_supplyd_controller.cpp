// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which database the supply-database service asks, and what it makes of printer names.
//
// The service opens the file beside this executable, so the executable lies in a folder of its own.
#include "small_catalogue.h"

#include <supply_information.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

const QString Tape = QStringLiteral("TAPE-1");
const QString Label = QStringLiteral("LABEL-1");
const QString RibbonK = QStringLiteral("RIBBON-K");
const QString RibbonRK = QStringLiteral("RIBBON-RK");
const QString TapeId = QStringLiteral("000001F41000420000A7");
const QString LabelId = QStringLiteral("00000064100050000001");
const QStringList RibbonIds{QStringLiteral("2001"), QStringLiteral("2003")};

const QString Added = QStringLiteral("Added printer");
const QString NeverAdded = QStringLiteral("Never added printer");

QString databasePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/roll.db");
}

bool change(const char* statement)
{
    const QString name = QStringLiteral("change");
    bool isDone = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(databasePath());
        database.open();
        QSqlQuery query(database);
        isDone = query.exec(QString::fromUtf8(statement));
        if (!isDone)
            qWarning("%s", qPrintable(query.lastError().text()));
    }
    QSqlDatabase::removeDatabase(name);
    return isDone;
}

/// Turns every answer that the small catalogue gives into another one.
bool changeEveryAnswer()
{
    return change("UPDATE colour SET rgb = 16777215 - rgb") &&
           change("UPDATE name SET english = 'new ' || english") &&
           change("DELETE FROM translation") &&
           change("UPDATE supply SET width = width + 10, length = length + 10,"
                  " label_length = label_length + 1, is_landscape = 1 - is_landscape,"
                  " background_id = NULL") &&
           change("UPDATE ribbon SET width = width + 10, length = length + 10, type = 'new'") &&
           change("UPDATE print_setting SET heat = heat + 500, heat_offset = heat_offset + 500,"
                  " max_speed = max_speed + 500, tension = tension + 500") &&
           change("UPDATE printer_format SET position = position + 10");
}

using Ask = std::function<QVariant(VXIPCSUPPLYDController&, const QString& printerName)>;

struct Query
{
    const char* name;
    bool isByPrinter;
    Ask ask;
    QVariant before; ///< What the catalogue has.
    QVariant after;  ///< What it has after changeEveryAnswer().
};

QVariantMap properties(const SupplyInformation& record)
{
    QVariantMap values;
    const QMetaObject& type = SupplyInformation::staticMetaObject;
    for (int i = 0; i < type.propertyCount(); ++i)
        values.insert(QString::fromLatin1(type.property(i).name()),
                      type.property(i).readOnGadget(&record));
    return values;
}

QVariantMap information(VXIPCSUPPLYDController& endpoint, const QString& printerName)
{
    return properties(endpoint.supplyInformation(printerName));
}

/// Answers records of its own, which tell who was asked.
class DerivedEndpoint : public VXIPCSUPPLYDController
{
public:
    SupplyInformation supplyInformationBySKUs(QString supplySku, QStringList ribbonSkus,
                                              QString printerName) override
    {
        SupplyInformation record;
        record.supplySku = supplySku;
        record.ribbonSkus = ribbonSkus;
        record.materialName = printerName;
        return record;
    }
};

} // namespace

class SupplydControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        SmallCatalogue().write(databasePath());
        m_endpoint = std::make_unique<VXIPCSUPPLYDController>();
    }
    void cleanup()
    {
        m_endpoint.reset();
        QFile::remove(databasePath());
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    }

    void publishesItsMethodsInTheirOrder()
    {
        const QMetaObject& type = IVXIPCSUPPLYD::staticMetaObject;
        QStringList methods;
        for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
            const QMetaMethod method = type.method(i);
            if (method.attributes() & QMetaMethod::Cloned)
                continue; // the form without the argument that has a default
            QStringList arguments;
            for (const QByteArray& name : method.parameterNames())
                arguments.append(QString::fromLatin1(name));
            methods.append(QStringLiteral("%1 %2(%3)")
                               .arg(QString::fromLatin1(method.typeName()),
                                    QString::fromLatin1(method.name()),
                                    arguments.join(QStringLiteral(", "))));
        }
        const QStringList expected{
            QStringLiteral("QStringList supplySKUList()"),
            QStringLiteral("QStringList supplyRibbonSKUList()"),
            QStringLiteral("QVariantHash supplyColorHash()"),
            QStringLiteral("QVariantHash supplyRibbonColorHash()"),
            QStringLiteral("QString supplyId()"),
            QStringLiteral("QString supplySKUCached(printerName)"),
            QStringLiteral("QStringList supplyRibbonSKUsCached(printerName)"),
            QStringLiteral("double supplySupplyPercent()"),
            QStringLiteral("double supplyRibbon1Percent()"),
            QStringLiteral("double supplyRibbon2Percent()"),
            QStringLiteral("QString supplySupplyRGB(printerName)"),
            QStringLiteral("QStringList supplyRibbon1RGBs(printerName)"),
            QStringLiteral("QStringList supplyRibbon2RGBs(printerName)"),
            QStringLiteral("QString supplySupplyUID()"),
            QStringLiteral("QString supplyRibbon1UID()"),
            QStringLiteral("QString supplyRibbon2UID()"),
            QStringLiteral("SupplyInformation supplyInformation(printerName)"),
            QStringLiteral(
                "SupplyInformation supplyInformationBySKUs(supplySku, ribbonSkus, printerName)"),
            QStringLiteral("QString supplyMaterialName(sku, printerName)"),
            QStringLiteral("QString supplyFormatName(sku, printerName)"),
            QStringLiteral("int supplyColorRGB(sku, printerName)"),
            QStringLiteral("QString supplyColorName(sku, printerName)"),
            QStringLiteral("double supplyWidth(sku, printerName)"),
            QStringLiteral("int supplyIsLandscape(sku)"),
            QStringLiteral("QByteArray supplyBackgroundImage(sku)"),
            QStringLiteral("double supplyNonContinuousLength(sku, printerName)"),
            QStringLiteral("int supplyTypeIndex(sku, printerName)"),
            QStringLiteral("int supplyRibbonPanels(ribbonSku)"),
            QStringLiteral("double supplyRibbonWidth(ribbonSku)"),
            QStringLiteral("double supplyRibbonLength(ribbonSku)"),
            QStringLiteral("QString supplyRibbonColorName(ribbonSku, panel)"),
            QStringLiteral("int supplyRibbonColorRGB(ribbonSku, panel)"),
            QStringLiteral("int supplyRibbonHeat(ribbonSku, panel, supplySku)"),
            QStringLiteral("int supplyRibbonHeatOffset(ribbonSku, panel, supplySku)"),
            QStringLiteral("int supplyRibbonMaxSpeed(ribbonSku, panel, supplySku)"),
            QStringLiteral("int supplyRibbonTension(ribbonSku, panel, supplySku)"),
            QStringLiteral("QString supplyRibbonType(ribbonSku)"),
            QStringLiteral("void supplyModuleReady(windowId, processId, applicationName)"),
            QStringLiteral("void applicationWasClicked()"),
            QStringLiteral("void setModulePrinterName(printerName)"),
            QStringLiteral("void openLabelFile(filePath)"),
        };
        QCOMPARE(methods, expected);
    }

    void canBeCalledByName()
    {
        const QMetaObject* type = m_endpoint->metaObject();
        for (const char* signature :
             {"supplyRibbonColorName(QString)", "supplyRibbonColorName(QString,int)",
              "supplyRibbonColorRGB(QString)", "supplyRibbonColorRGB(QString,int)",
              "setSupplyId(QString,QString)", "setRibbonIds(QStringList,QString)"})
            QVERIFY2(type->indexOfSlot(signature) >= 0, signature);
        QCOMPARE(type->indexOfMethod("addNewPrinter(QString)"), -1);

        QString name;
        QVERIFY(QMetaObject::invokeMethod(m_endpoint.get(), "supplyColorName",
                                          Q_RETURN_ARG(QString, name), Q_ARG(QString, Tape),
                                          Q_ARG(QString, Added)));
        QCOMPARE(name, QStringLiteral("White"));
    }

    void asksTheDatabaseThatTheRuleChooses_data()
    {
        QTest::addColumn<QString>("name");
        for (const Query& query : queries())
            QTest::newRow(query.name) << QString::fromLatin1(query.name);
    }
    // The added printer's database object is the only one that has not kept the old answers.
    void asksTheDatabaseThatTheRuleChooses()
    {
        QFETCH(QString, name);
        const QList<Query> all = queries();
        const auto query = std::ranges::find_if(
            all, [&name](const Query& each) { return name == QLatin1String(each.name); });
        QVERIFY(query->before != query->after);
        m_endpoint->setSupplyId(LabelId, NeverAdded);
        m_endpoint->setRibbonIds(RibbonIds, NeverAdded);
        QCOMPARE(query->ask(*m_endpoint, {}), query->before);

        QVERIFY(changeEveryAnswer());
        m_endpoint->addNewPrinter(Added);
        m_endpoint->setSupplyId(LabelId, Added);
        m_endpoint->setRibbonIds(RibbonIds, Added);
        QCOMPARE(query->ask(*m_endpoint, Added), query->isByPrinter ? query->after : query->before);
        QCOMPARE(query->ask(*m_endpoint, {}), query->before);
        QCOMPARE(query->ask(*m_endpoint, QStringLiteral("-")), query->before);
        QCOMPARE(query->ask(*m_endpoint, NeverAdded), query->before);
    }

    void asksForTheTypeIndexWithTheName()
    {
        // "-" and an empty name have the list of no model, a printer the one of the model it names.
        QCOMPARE(m_endpoint->supplyTypeIndex(Label, {}), 1);
        QCOMPARE(m_endpoint->supplyTypeIndex(Label, QStringLiteral("-")), 1);
        QCOMPARE(m_endpoint->supplyTypeIndex(Label, QStringLiteral("Stratamark AlderMax")), 0);
        QCOMPARE(m_endpoint->supplyTypeIndex(Tape, QStringLiteral("Stratamark Alder")), -1);
    }

    void anEmptyNameHasNoSupplyButTheSharedRibbons()
    {
        m_endpoint->setSupplyId(TapeId, NeverAdded);
        m_endpoint->setRibbonIds(RibbonIds, NeverAdded);
        QCOMPARE(m_endpoint->supplySKUCached({}), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("-")), Tape);
        QCOMPARE(m_endpoint->supplyRibbonSKUsCached({}), (QStringList{RibbonK, RibbonRK}));
    }

    void anEmptyNameIsToldNothing()
    {
        m_endpoint->setSupplyId(TapeId, {});
        m_endpoint->setRibbonIds(RibbonIds, {});
        QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("-")), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplySKUCached(NeverAdded), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplyRibbonSKUsCached({}), QStringList());

        m_endpoint->setSupplyId(TapeId, NeverAdded);
        m_endpoint->setRibbonIds(RibbonIds, NeverAdded);
        m_endpoint->setSupplyId(LabelId, {});
        m_endpoint->setRibbonIds({}, {});
        QCOMPARE(m_endpoint->supplySKUCached(NeverAdded), Tape);
        QCOMPARE(m_endpoint->supplyRibbonSKUsCached(NeverAdded), (QStringList{RibbonK, RibbonRK}));
    }

    void aPrinterNeverAddedSharesTheSharedDatabase()
    {
        m_endpoint->setSupplyId(TapeId, NeverAdded);
        QCOMPARE(m_endpoint->supplySKUCached(NeverAdded), Tape);
        QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("another one")), Tape);
        QCOMPARE(m_endpoint->supplySKUCached({}), QStringLiteral("-1"));
    }

    void eachAddedPrinterHasItsOwn()
    {
        m_endpoint->addNewPrinter(Added);
        m_endpoint->addNewPrinter(QStringLiteral("Second"));
        m_endpoint->setSupplyId(TapeId, Added);
        m_endpoint->setSupplyId(LabelId, QStringLiteral("Second"));
        QCOMPARE(m_endpoint->supplySKUCached(Added), Tape);
        QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("Second")), Label);
        QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("second")), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplySKUCached(NeverAdded), QStringLiteral("-1"));
    }

    void addingAPrinterAgainKeepsWhatIsLoaded()
    {
        m_endpoint->addNewPrinter(Added);
        m_endpoint->setSupplyId(TapeId, Added);
        m_endpoint->setRibbonIds(RibbonIds, Added);
        QCOMPARE(m_endpoint->supplySKUCached(Added), Tape);
        const QStringList connections = QSqlDatabase::connectionNames();
        QCOMPARE(connections.size(), 1);
        m_endpoint->addNewPrinter(Added);
        QCOMPARE(m_endpoint->supplySKUCached(Added), Tape);
        QCOMPARE(m_endpoint->supplyRibbonSKUsCached(Added), (QStringList{RibbonK, RibbonRK}));
        QCOMPARE(QSqlDatabase::connectionNames(), connections);
    }

    void namesItsConnections()
    {
        m_endpoint->addNewPrinter(Added);
        m_endpoint->addNewPrinter({}); // no query reaches this one, so that it is never connected
        QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
        m_endpoint->supplyColorName(Tape, Added);
        m_endpoint->supplyColorName(Tape, {});
        QStringList names = QSqlDatabase::connectionNames();
        names.sort();
        QCOMPARE(names, (QStringList{QStringLiteral("Added printer_CONNECTION_NAME"),
                                     QStringLiteral("SUPPLY_INFO_QT_SQL_CONNECTION_NAME")}));
        m_endpoint->setSupplyId(TapeId, QStringLiteral("-"));
        QCOMPARE(m_endpoint->supplyInformation({}).supplySku, Tape);
    }

    void thePanelIsTheFirstUnlessItIsSaid()
    {
        QCOMPARE(m_endpoint->supplyRibbonColorName(RibbonRK), QStringLiteral("Red"));
        QCOMPARE(m_endpoint->supplyRibbonColorName(RibbonRK),
                 m_endpoint->supplyRibbonColorName(RibbonRK, 1));
        QCOMPARE(m_endpoint->supplyRibbonColorName(RibbonRK, 2), QStringLiteral("Black"));
        QCOMPARE(m_endpoint->supplyRibbonColorRGB(RibbonRK), 0xC8102E);
        QCOMPARE(m_endpoint->supplyRibbonColorRGB(RibbonRK),
                 m_endpoint->supplyRibbonColorRGB(RibbonRK, 1));
        QCOMPARE(m_endpoint->supplyRibbonColorRGB(RibbonRK, 2), 0);
    }

    void someAnswersAreFixed()
    {
        m_endpoint->addNewPrinter(Added);
        m_endpoint->setSupplyId(TapeId, Added);
        m_endpoint->setSupplyId(TapeId, QStringLiteral("-"));
        QCOMPARE(m_endpoint->supplyId(), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplySupplyUID(), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplyRibbon1UID(), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplyRibbon2UID(), QStringLiteral("-1"));
        QCOMPARE(m_endpoint->supplySupplyPercent(), 0.0);
        QCOMPARE(m_endpoint->supplyRibbon1Percent(), 0.0);
        QCOMPARE(m_endpoint->supplyRibbon2Percent(), 0.0);
    }

    void someCallsHaveNoEffect()
    {
        m_endpoint->setSupplyId(TapeId, QStringLiteral("-"));
        const QVariantMap before = information(*m_endpoint, {});
        m_endpoint->supplyModuleReady(1, 2, QStringLiteral("application"));
        m_endpoint->applicationWasClicked();
        m_endpoint->setModulePrinterName(Added);
        m_endpoint->openLabelFile(databasePath());
        QCOMPARE(information(*m_endpoint, {}), before);
    }

    void worksWithoutAFile()
    {
        m_endpoint.reset();
        QVERIFY(QFile::remove(databasePath()));
        m_endpoint = std::make_unique<VXIPCSUPPLYDController>();
        m_endpoint->addNewPrinter(Added);
        m_endpoint->setSupplyId(TapeId, Added);
        m_endpoint->setRibbonIds(RibbonIds, Added);
        QCOMPARE(m_endpoint->supplySKUCached(Added), QString());
        QCOMPARE(m_endpoint->supplySKUList(), QStringList());
        const SupplyInformation record = m_endpoint->supplyInformation(Added);
        QCOMPARE(record.supplyId, TapeId);
        QCOMPARE(record.supplyLength, -1.0F);
        QCOMPARE(record.multiUpCount, 1);
        QVERIFY(!QFile::exists(databasePath()));
    }

    void twoEndpointsWorkBesideEachOther()
    {
        VXIPCSUPPLYDController second;
        second.setSupplyId(LabelId, QStringLiteral("-"));
        m_endpoint->setSupplyId(TapeId, QStringLiteral("-"));
        QCOMPARE(second.supplySKUCached(QStringLiteral("-")), Label);
        QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("-")), Tape);
    }

    void fillsARecord()
    {
        m_endpoint->addNewPrinter(Added);
        m_endpoint->setSupplyId(LabelId, Added); // what is loaded need not be what is asked about
        const SupplyInformation record =
            m_endpoint->supplyInformationBySKUs(Tape, {RibbonRK, RibbonK}, Added);
        const QVariantMap expected{
            {QStringLiteral("supplyId"), LabelId},
            {QStringLiteral("supplySku"), Tape},
            {QStringLiteral("ribbonSkus"), QStringList{RibbonRK, RibbonK}},
            {QStringLiteral("secColorWidth"), 1.25F},
            {QStringLiteral("secColorRGB"), 0xC8102E},
            {QStringLiteral("secColorName"), QStringLiteral("Red")},
            {QStringLiteral("secColorNameEn"), QStringLiteral("Red")},
            {QStringLiteral("supplyLength"), 6000.0F},
            {QStringLiteral("material"), 7},
            {QStringLiteral("materialName"), QStringLiteral("Vinyl")},
            {QStringLiteral("format"), 1},
            {QStringLiteral("formatName"), QStringLiteral("Tape")},
            {QStringLiteral("formatType"), QStringLiteral("continuous")},
            {QStringLiteral("colorRGB"), 0xFFFFFF},
            {QStringLiteral("colorName"), QStringLiteral("White")},
            {QStringLiteral("colorNameEn"), QStringLiteral("White")},
            {QStringLiteral("supplyWidth"), 4.0F},
            {QStringLiteral("isLandscape"), 1},
            {QStringLiteral("backgroundImage"),
             SmallCatalogue().files.value(QStringLiteral("backgrounds/dot.png"))},
            {QStringLiteral("separatorWidth"), -1.0F},
            {QStringLiteral("nonContinuousLength"), -1.0F},
            {QStringLiteral("typeIndex"), 0},
            {QStringLiteral("ribbon1Panels"), 2},
            {QStringLiteral("ribbon2Panels"), 1},
            {QStringLiteral("ribbon1Width"), 4.33F},
            {QStringLiteral("ribbon2Width"), 4.33F},
            {QStringLiteral("ribbon1Length"), 2360.0F},
            {QStringLiteral("ribbon2Length"), 4725.0F},
            {QStringLiteral("ribbonColorNames"),
             QStringList{QStringLiteral("Red"), QStringLiteral("Black")}},
            {QStringLiteral("ribbonColorRGBs"), QVariantList{0xC8102E, 0}},
            {QStringLiteral("ribbonHeats"), QVariantList{58, 52}},
            {QStringLiteral("ribbonHeatOffsets"), QVariantList{2, 0}},
            {QStringLiteral("ribbonMaxSpeeds"), QVariantList{3, 4}},
            {QStringLiteral("ribbonTensions"), QVariantList{32, 30}},
            {QStringLiteral("ribbonTypes"),
             QStringList{QStringLiteral("resin"), QStringLiteral("wax")}},
            {QStringLiteral("multiUpCount"), 1},
            {QStringLiteral("multiUpGapSize"), -1.0F},
        };
        QCOMPARE(expected.size(), 37);
        QCOMPARE(properties(record), expected);
    }

    void fillsARecordOfLabelsSideBySide()
    {
        const SupplyInformation record = m_endpoint->supplyInformationBySKUs(Label, {}, {});
        QCOMPARE(record.nonContinuousLength, 1.5F);
        QCOMPARE(record.separatorWidth, 0.125F);
        QCOMPARE(record.isLandscape, 0);
        QCOMPARE(record.multiUpCount, 3);
        QCOMPARE(record.multiUpGapSize, 0.1F);
        QCOMPARE(record.typeIndex, 1);
        QCOMPARE(record.material, 0);
    }

    void aRecordTakesRibbonsByTheirPlace_data()
    {
        QTest::addColumn<QStringList>("skus");
        QTest::addColumn<QList<int>>("panels");
        QTest::addColumn<QList<float>>("lengths");
        QTest::addColumn<QStringList>("types");
        QTest::addColumn<QVariantList>("heats");
        QTest::addColumn<QStringList>("colours");

        QTest::newRow("none") << QStringList{} << QList<int>{-1, -1} << QList<float>{-1.0F, -1.0F}
                              << QStringList{QString(), QString()} << QVariantList{}
                              << QStringList{};
        QTest::newRow("one") << QStringList{RibbonRK} << QList<int>{2, -1}
                             << QList<float>{2360.0F, -1.0F}
                             << QStringList{QStringLiteral("resin"), QString()} << QVariantList{58}
                             << QStringList{QStringLiteral("Red")};
        QTest::newRow("three") << QStringList{RibbonK, RibbonRK, QStringLiteral("RIBBON-T")}
                               << QList<int>{1, 2} << QList<float>{4725.0F, 2360.0F}
                               << QStringList{QStringLiteral("wax"), QStringLiteral("resin")}
                               << QVariantList{52, 58, -1}
                               << QStringList{QStringLiteral("Black"), QStringLiteral("Red"),
                                              QStringLiteral("Teal")};
        QTest::newRow("nothing in the first place")
            << QStringList{QStringLiteral("-1"), RibbonK} << QList<int>{-1, 1}
            << QList<float>{-1.0F, 4725.0F} << QStringList{QString(), QStringLiteral("wax")}
            << QVariantList{-1, 52} << QStringList{QString(), QStringLiteral("Black")};
    }
    void aRecordTakesRibbonsByTheirPlace()
    {
        QFETCH(QStringList, skus);
        const SupplyInformation record = m_endpoint->supplyInformationBySKUs(Tape, skus, {});
        QCOMPARE(record.ribbonSkus, skus);
        QTEST((QList<int>{record.ribbon1Panels, record.ribbon2Panels}), "panels");
        QTEST((QList<float>{record.ribbon1Length, record.ribbon2Length}), "lengths");
        QTEST(record.ribbonTypes, "types");
        QTEST(record.ribbonHeats, "heats");
        QTEST(record.ribbonColorNames, "colours");
        for (const QVariantList& list : {record.ribbonColorRGBs, record.ribbonHeatOffsets,
                                         record.ribbonMaxSpeeds, record.ribbonTensions})
            QCOMPARE(list.size(), skus.size());
    }

    void aRecordOfNothingIsARecordOfDefaults()
    {
        QVariantMap expected = properties(SupplyInformation());
        expected.insert(QStringLiteral("ribbonTypes"), QStringList{QString(), QString()});
        QCOMPARE(properties(m_endpoint->supplyInformationBySKUs({}, {}, {})), expected);
        expected.insert(QStringLiteral("supplySku"), QStringLiteral("-1"));
        QCOMPARE(information(*m_endpoint, {}), expected); // nothing was reported yet
    }

    void aRecordIsTheSameForAnEmptyNameAndTheSharedOne()
    {
        m_endpoint->setSupplyId(TapeId, QStringLiteral("-"));
        m_endpoint->setRibbonIds(RibbonIds, QStringLiteral("-"));
        const QVariantMap shared = information(*m_endpoint, QStringLiteral("-"));
        QCOMPARE(shared.value(QStringLiteral("supplySku")), Tape);
        QCOMPARE(information(*m_endpoint, {}), shared);

        // A printer never added has the shared record, but for the type index of its own name.
        QVariantMap unknown = information(*m_endpoint, QStringLiteral("Stratamark AlderMax"));
        QCOMPARE(unknown.value(QStringLiteral("typeIndex")), 1);
        QCOMPARE(shared.value(QStringLiteral("typeIndex")), 0);
        unknown.insert(QStringLiteral("typeIndex"), 0);
        QCOMPARE(unknown, shared);
    }

    void theRecordOfAPrinterIsThatOfItsSkus()
    {
        m_endpoint->addNewPrinter(Added);
        m_endpoint->setSupplyId(TapeId, Added);
        m_endpoint->setRibbonIds(RibbonIds, Added);
        QCOMPARE(information(*m_endpoint, Added),
                 properties(m_endpoint->supplyInformationBySKUs(
                     m_endpoint->supplySKUCached(Added), m_endpoint->supplyRibbonSKUsCached(Added),
                     Added)));
    }

    void theRecordOfAPrinterComesThroughTheVirtualSlot()
    {
        DerivedEndpoint derived;
        derived.setSupplyId(TapeId, QStringLiteral("-"));
        derived.setRibbonIds(RibbonIds, QStringLiteral("-"));
        const SupplyInformation record = derived.supplyInformation({});
        QCOMPARE(record.supplySku, Tape);
        QCOMPARE(record.ribbonSkus, (QStringList{RibbonK, RibbonRK}));
        QCOMPARE(record.materialName, QStringLiteral("-"));
    }

    void registersTheRecord()
    {
        const QMetaType type = QMetaType::fromName("SupplyInformation");
        QVERIFY(type.isValid());
        QCOMPARE(type, QMetaType::fromType<SupplyInformation>());
        QVERIFY(!type.hasRegisteredDataStreamOperators());
    }

private:
    static QList<Query> queries()
    {
        using Endpoint = VXIPCSUPPLYDController;
        const QByteArray picture =
            SmallCatalogue().files.value(QStringLiteral("backgrounds/dot.png"));
        const auto inverse = [](int rgb) {
            return 0xFFFFFF - rgb;
        };
        const auto text = [](int number) {
            return QString::number(number);
        };
        constexpr int red = 0xC8102E;
        constexpr int teal = 0x008080;
        // clang-format off
        return {
            {"supplyColorHash", false, [](Endpoint& e, const QString&) { return e.supplyColorHash().value(Tape); }, 0xFFFFFF, 0},
            {"supplyRibbonColorHash", false, [](Endpoint& e, const QString&) { return e.supplyRibbonColorHash().value(RibbonK); }, 0, 0xFFFFFF},
            {"supplySupplyRGB", true, [](Endpoint& e, const QString& p) { return e.supplySupplyRGB(p); }, text(teal), text(inverse(teal))},
            {"supplyRibbon1RGBs", true, [](Endpoint& e, const QString& p) { return e.supplyRibbon1RGBs(p); }, QStringList{text(0)}, QStringList{text(0xFFFFFF)}},
            {"supplyRibbon2RGBs", true, [](Endpoint& e, const QString& p) { return e.supplyRibbon2RGBs(p); }, QStringList{text(red), text(0)}, QStringList{text(inverse(red)), text(0xFFFFFF)}},
            {"supplyInformation", true, [](Endpoint& e, const QString& p) { return e.supplyInformation(p).colorRGB; }, teal, inverse(teal)},
            {"supplyInformation of ribbons", true, [](Endpoint& e, const QString& p) { return e.supplyInformation(p).ribbonHeats; }, QVariantList{44, -1}, QVariantList{544, -1}},
            {"supplyInformationBySKUs", true, [](Endpoint& e, const QString& p) { return e.supplyInformationBySKUs(Tape, {RibbonK}, p).ribbonHeats; }, QVariantList{52}, QVariantList{552}},
            {"supplyMaterialName", true, [](Endpoint& e, const QString& p) { return e.supplyMaterialName(Tape, p); }, QStringLiteral("Vinyl"), QStringLiteral("new Vinyl")},
            {"supplyFormatName", true, [](Endpoint& e, const QString& p) { return e.supplyFormatName(Tape, p); }, QStringLiteral("Tape"), QStringLiteral("new Tape")},
            {"supplyColorRGB", true, [](Endpoint& e, const QString& p) { return e.supplyColorRGB(Tape, p); }, 0xFFFFFF, 0},
            {"supplyColorName", true, [](Endpoint& e, const QString& p) { return e.supplyColorName(Tape, p); }, QStringLiteral("White"), QStringLiteral("new White")},
            {"supplyWidth", true, [](Endpoint& e, const QString& p) { return e.supplyWidth(Tape, p); }, 4.0, 14.0},
            {"supplyNonContinuousLength", true, [](Endpoint& e, const QString& p) { return e.supplyNonContinuousLength(Label, p); }, 1.5, 2.5},
            {"supplyTypeIndex", true, [](Endpoint& e, const QString& p) { return e.supplyTypeIndex(Label, p); }, 1, 11},
            {"supplyIsLandscape", false, [](Endpoint& e, const QString&) { return e.supplyIsLandscape(Label); }, 0, 1},
            {"supplyBackgroundImage", false, [](Endpoint& e, const QString&) { return e.supplyBackgroundImage(Tape); }, picture, QByteArray()},
            {"supplyRibbonPanels", false, [](Endpoint& e, const QString&) { return e.supplyRibbonPanels(RibbonRK); }, 2, -1},
            {"supplyRibbonWidth", false, [](Endpoint& e, const QString&) { return e.supplyRibbonWidth(RibbonK); }, 4.33, 14.33},
            {"supplyRibbonLength", false, [](Endpoint& e, const QString&) { return e.supplyRibbonLength(RibbonK); }, 4725.0, 4735.0},
            {"supplyRibbonColorName", false, [](Endpoint& e, const QString&) { return e.supplyRibbonColorName(RibbonK); }, QStringLiteral("Black"), QStringLiteral("new Black")},
            {"supplyRibbonColorRGB", false, [](Endpoint& e, const QString&) { return e.supplyRibbonColorRGB(RibbonRK, 2); }, 0, 0xFFFFFF},
            {"supplyRibbonHeat", false, [](Endpoint& e, const QString&) { return e.supplyRibbonHeat(RibbonK, 1, Label); }, 44, 544},
            {"supplyRibbonHeatOffset", false, [](Endpoint& e, const QString&) { return e.supplyRibbonHeatOffset(RibbonRK, 1, Tape); }, 2, 502},
            {"supplyRibbonMaxSpeed", false, [](Endpoint& e, const QString&) { return e.supplyRibbonMaxSpeed(RibbonK, 1, Label); }, 8, 508},
            {"supplyRibbonTension", false, [](Endpoint& e, const QString&) { return e.supplyRibbonTension(RibbonK, 1, Label); }, 26, 526},
            {"supplyRibbonType", false, [](Endpoint& e, const QString&) { return e.supplyRibbonType(RibbonK); }, QStringLiteral("wax"), QStringLiteral("new")},
        };
        // clang-format on
    }

    std::unique_ptr<VXIPCSUPPLYDController> m_endpoint;
};

int main(int argc, char* argv[])
{
    // Names come in the language of the system, which a test must not depend on.
    qputenv("LC_ALL", "C");
    qputenv("LANGUAGE", "en");
    QCoreApplication application(argc, argv);
    SupplydControllerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_supplyd_controller.moc"
