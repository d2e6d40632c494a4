// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which database object the supply-database service queries for which printer name.
//
// The service opens the file beside this executable, so the executable has its own folder.
#include "run_statement.h"
#include "small_catalogue.h"

#include <supply_information.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QTemporaryDir>
#include <QtSql/QSqlDatabase>
#include <QtTest/QtTest>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

const QString tape = QStringLiteral("TAPE-1");
const QString label = QStringLiteral("LABEL-1");
const QString ribbonK = QStringLiteral("RIBBON-K");
const QString ribbonRK = QStringLiteral("RIBBON-RK");
const QString tapeId = QStringLiteral("000001F41000420000A7");
const QString labelId = QStringLiteral("00000064100050000001");
const QStringList ribbonIds{QStringLiteral("2001"), QStringLiteral("2003")};

const QString addedPrinter = QStringLiteral("Added printer");
const QString neverAddedPrinter = QStringLiteral("Never added printer");

QString databasePath()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/roll.db");
}

bool change(const char* statement)
{
    return runStatement(databasePath(), statement);
}

/// Changes every answer that the small catalogue gives.
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
    QVariant before; ///< The answer from the catalogue.
    QVariant after;  ///< The answer after changeEveryAnswer().
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

/// Returns records that contain the arguments of the call.
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
    void init();
    void cleanup();

    void publishesItsMethodsInTheirOrder();
    void canBeCalledByName();
    void queriesTheRightDatabase_data();
    void queriesTheRightDatabase();
    void typeIndexDependsOnThePrintersName();
    void emptyNameHasNoSupplyButTheSharedRibbons();
    void emptyNameSetsNothing();
    void printerNeverAddedUsesTheSharedDatabase();
    void eachAddedPrinterHasItsOwnDatabase();
    void addingAPrinterAgainKeepsItsDatabase();
    void anotherCatalogueAnswersForAllPrinters();
    void missingCatalogueMakesEverythingUnknown();
    void namesItsConnections();
    void panelDefaultsToTheFirst();
    void placeholderQueriesHaveFixedAnswers();
    void placeholderCommandsHaveNoEffect();
    void worksWithoutAFile();
    void twoEndpointsAreIndependent();
    void fillsEveryFieldOfARecord();
    void fillsARecordOfLabelsInSeveralColumns();
    void recordUsesRibbonsByTheirPlace_data();
    void recordUsesRibbonsByTheirPlace();
    void recordOfNoSupplyHasDefaults();
    void emptyNameHasTheSharedRecord();
    void recordOfAPrinterIsThatOfItsSkus();
    void recordOfAPrinterComesFromTheVirtualSlot();
    void registersTheRecord();

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
            {"supplyColorHash", false, [](Endpoint& e, const QString&) { return e.supplyColorHash().value(tape); }, 0xFFFFFF, 0},
            {"supplyRibbonColorHash", false, [](Endpoint& e, const QString&) { return e.supplyRibbonColorHash().value(ribbonK); }, 0, 0xFFFFFF},
            {"supplySupplyRGB", true, [](Endpoint& e, const QString& p) { return e.supplySupplyRGB(p); }, text(teal), text(inverse(teal))},
            {"supplyRibbon1RGBs", true, [](Endpoint& e, const QString& p) { return e.supplyRibbon1RGBs(p); }, QStringList{text(0)}, QStringList{text(0xFFFFFF)}},
            {"supplyRibbon2RGBs", true, [](Endpoint& e, const QString& p) { return e.supplyRibbon2RGBs(p); }, QStringList{text(red), text(0)}, QStringList{text(inverse(red)), text(0xFFFFFF)}},
            {"supplyInformation", true, [](Endpoint& e, const QString& p) { return e.supplyInformation(p).colorRGB; }, teal, inverse(teal)},
            {"supplyInformation of ribbons", true, [](Endpoint& e, const QString& p) { return e.supplyInformation(p).ribbonHeats; }, QVariantList{44, -1}, QVariantList{544, -1}},
            {"supplyInformationBySKUs", true, [](Endpoint& e, const QString& p) { return e.supplyInformationBySKUs(tape, {ribbonK}, p).ribbonHeats; }, QVariantList{52}, QVariantList{552}},
            {"supplyMaterialName", true, [](Endpoint& e, const QString& p) { return e.supplyMaterialName(tape, p); }, QStringLiteral("Vinyl"), QStringLiteral("new Vinyl")},
            {"supplyFormatName", true, [](Endpoint& e, const QString& p) { return e.supplyFormatName(tape, p); }, QStringLiteral("Tape"), QStringLiteral("new Tape")},
            {"supplyColorRGB", true, [](Endpoint& e, const QString& p) { return e.supplyColorRGB(tape, p); }, 0xFFFFFF, 0},
            {"supplyColorName", true, [](Endpoint& e, const QString& p) { return e.supplyColorName(tape, p); }, QStringLiteral("White"), QStringLiteral("new White")},
            {"supplyWidth", true, [](Endpoint& e, const QString& p) { return e.supplyWidth(tape, p); }, 4.0, 14.0},
            {"supplyNonContinuousLength", true, [](Endpoint& e, const QString& p) { return e.supplyNonContinuousLength(label, p); }, 1.5, 2.5},
            {"supplyTypeIndex", true, [](Endpoint& e, const QString& p) { return e.supplyTypeIndex(label, p); }, 1, 11},
            {"supplyIsLandscape", false, [](Endpoint& e, const QString&) { return e.supplyIsLandscape(label); }, 0, 1},
            {"supplyBackgroundImage", false, [](Endpoint& e, const QString&) { return e.supplyBackgroundImage(tape); }, picture, QByteArray()},
            {"supplyRibbonPanels", false, [](Endpoint& e, const QString&) { return e.supplyRibbonPanels(ribbonRK); }, 2, -1},
            {"supplyRibbonWidth", false, [](Endpoint& e, const QString&) { return e.supplyRibbonWidth(ribbonK); }, 4.33, 14.33},
            {"supplyRibbonLength", false, [](Endpoint& e, const QString&) { return e.supplyRibbonLength(ribbonK); }, 4725.0, 4735.0},
            {"supplyRibbonColorName", false, [](Endpoint& e, const QString&) { return e.supplyRibbonColorName(ribbonK); }, QStringLiteral("Black"), QStringLiteral("new Black")},
            {"supplyRibbonColorRGB", false, [](Endpoint& e, const QString&) { return e.supplyRibbonColorRGB(ribbonRK, 2); }, 0, 0xFFFFFF},
            {"supplyRibbonHeat", false, [](Endpoint& e, const QString&) { return e.supplyRibbonHeat(ribbonK, 1, label); }, 44, 544},
            {"supplyRibbonHeatOffset", false, [](Endpoint& e, const QString&) { return e.supplyRibbonHeatOffset(ribbonRK, 1, tape); }, 2, 502},
            {"supplyRibbonMaxSpeed", false, [](Endpoint& e, const QString&) { return e.supplyRibbonMaxSpeed(ribbonK, 1, label); }, 8, 508},
            {"supplyRibbonTension", false, [](Endpoint& e, const QString&) { return e.supplyRibbonTension(ribbonK, 1, label); }, 26, 526},
            {"supplyRibbonType", false, [](Endpoint& e, const QString&) { return e.supplyRibbonType(ribbonK); }, QStringLiteral("wax"), QStringLiteral("new")},
        };
        // clang-format on
    }

    std::unique_ptr<VXIPCSUPPLYDController> m_endpoint;
};

void SupplydControllerTest::init()
{
    SmallCatalogue().write(databasePath());
    m_endpoint = std::make_unique<VXIPCSUPPLYDController>();
}

void SupplydControllerTest::cleanup()
{
    m_endpoint.reset();
    QFile::remove(databasePath());
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
}

void SupplydControllerTest::publishesItsMethodsInTheirOrder()
{
    const QMetaObject& type = IVXIPCSUPPLYD::staticMetaObject;
    QStringList methods;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        const QMetaMethod method = type.method(i);
        if (method.attributes() & QMetaMethod::Cloned)
            continue; // the form without the default argument
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

void SupplydControllerTest::canBeCalledByName()
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
                                      Q_RETURN_ARG(QString, name), Q_ARG(QString, tape),
                                      Q_ARG(QString, addedPrinter)));
    QCOMPARE(name, QStringLiteral("White"));
}

void SupplydControllerTest::queriesTheRightDatabase_data()
{
    QTest::addColumn<QString>("name");
    for (const Query& query : queries())
        QTest::newRow(query.name) << QString::fromLatin1(query.name);
}

// The added printer's database object is the only one that has not cached the old answers.
void SupplydControllerTest::queriesTheRightDatabase()
{
    QFETCH(QString, name);
    const QList<Query> all = queries();
    const auto query = std::ranges::find_if(
        all, [&name](const Query& each) { return name == QLatin1String(each.name); });
    QVERIFY(query->before != query->after);
    m_endpoint->setSupplyId(labelId, neverAddedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, neverAddedPrinter);
    QCOMPARE(query->ask(*m_endpoint, {}), query->before);

    QVERIFY(changeEveryAnswer());
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->setSupplyId(labelId, addedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, addedPrinter);
    QCOMPARE(query->ask(*m_endpoint, addedPrinter),
             query->isByPrinter ? query->after : query->before);
    QCOMPARE(query->ask(*m_endpoint, {}), query->before);
    QCOMPARE(query->ask(*m_endpoint, QStringLiteral("-")), query->before);
    QCOMPARE(query->ask(*m_endpoint, neverAddedPrinter), query->before);
}

void SupplydControllerTest::typeIndexDependsOnThePrintersName()
{
    // "-" and an empty name use the list for any model, a printer the list of the model in its
    // name.
    QCOMPARE(m_endpoint->supplyTypeIndex(label, {}), 1);
    QCOMPARE(m_endpoint->supplyTypeIndex(label, QStringLiteral("-")), 1);
    QCOMPARE(m_endpoint->supplyTypeIndex(label, QStringLiteral("Stratamark AlderMax")), 0);
    QCOMPARE(m_endpoint->supplyTypeIndex(tape, QStringLiteral("Stratamark Alder")), -1);
}

void SupplydControllerTest::emptyNameHasNoSupplyButTheSharedRibbons()
{
    m_endpoint->setSupplyId(tapeId, neverAddedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, neverAddedPrinter);
    QCOMPARE(m_endpoint->supplySKUCached({}), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("-")), tape);
    QCOMPARE(m_endpoint->supplyRibbonSKUsCached({}), (QStringList{ribbonK, ribbonRK}));
}

void SupplydControllerTest::emptyNameSetsNothing()
{
    m_endpoint->setSupplyId(tapeId, {});
    m_endpoint->setRibbonIds(ribbonIds, {});
    QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("-")), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplySKUCached(neverAddedPrinter), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplyRibbonSKUsCached({}), QStringList());

    m_endpoint->setSupplyId(tapeId, neverAddedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, neverAddedPrinter);
    m_endpoint->setSupplyId(labelId, {});
    m_endpoint->setRibbonIds({}, {});
    QCOMPARE(m_endpoint->supplySKUCached(neverAddedPrinter), tape);
    QCOMPARE(m_endpoint->supplyRibbonSKUsCached(neverAddedPrinter),
             (QStringList{ribbonK, ribbonRK}));
}

void SupplydControllerTest::printerNeverAddedUsesTheSharedDatabase()
{
    m_endpoint->setSupplyId(tapeId, neverAddedPrinter);
    QCOMPARE(m_endpoint->supplySKUCached(neverAddedPrinter), tape);
    QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("another one")), tape);
    QCOMPARE(m_endpoint->supplySKUCached({}), QStringLiteral("-1"));
}

void SupplydControllerTest::eachAddedPrinterHasItsOwnDatabase()
{
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->addNewPrinter(QStringLiteral("Second"));
    m_endpoint->setSupplyId(tapeId, addedPrinter);
    m_endpoint->setSupplyId(labelId, QStringLiteral("Second"));
    QCOMPARE(m_endpoint->supplySKUCached(addedPrinter), tape);
    QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("Second")), label);
    QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("second")), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplySKUCached(neverAddedPrinter), QStringLiteral("-1"));
}

void SupplydControllerTest::anotherCatalogueAnswersForAllPrinters()
{
    const QTemporaryDir folder;
    const QString other = folder.filePath(QStringLiteral("other.db"));
    SmallCatalogue catalogue;
    catalogue.files[QStringLiteral("materials.csv")].replace("Vinyl", "Cloth");
    catalogue.write(other);

    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->setSupplyId(tapeId, addedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, addedPrinter);
    // Answers that the databases have kept must not survive.
    QCOMPARE(m_endpoint->supplyMaterialName(tape, addedPrinter), QStringLiteral("Vinyl"));
    QCOMPARE(m_endpoint->supplyMaterialName(tape, {}), QStringLiteral("Vinyl"));
    QCOMPARE(m_endpoint->catalogueFile(), databasePath());
    const QStringList connections = QSqlDatabase::connectionNames();

    m_endpoint->setCatalogueFile(other);
    QCOMPARE(m_endpoint->catalogueFile(), other);
    m_endpoint->addNewPrinter(QStringLiteral("Later"));
    for (const QString& printer : {addedPrinter, QString(), QStringLiteral("Later")})
        QCOMPARE(m_endpoint->supplyMaterialName(tape, printer), QStringLiteral("Cloth"));
    QCOMPARE(m_endpoint->supplySKUCached(addedPrinter), tape);
    QCOMPARE(m_endpoint->supplyRibbonSKUsCached(addedPrinter), (QStringList{ribbonK, ribbonRK}));
    QCOMPARE(QSqlDatabase::connectionNames().size(), connections.size() + 1);

    m_endpoint->setCatalogueFile({});
    QCOMPARE(m_endpoint->catalogueFile(), databasePath());
    QCOMPARE(m_endpoint->supplyMaterialName(tape, QStringLiteral("Later")),
             QStringLiteral("Vinyl"));
}

void SupplydControllerTest::missingCatalogueMakesEverythingUnknown()
{
    m_endpoint->setCatalogueFile(databasePath() + QStringLiteral(".missing"));
    QCOMPARE(m_endpoint->supplySKUList(), QStringList());
    QCOMPARE(m_endpoint->supplyMaterialName(tape, {}), QString());
    // Other processes cannot choose the file: the functions are not among the service's methods.
    QVERIFY(m_endpoint->metaObject()->indexOfMethod("setCatalogueFile(QString)") < 0);
    QVERIFY(m_endpoint->metaObject()->indexOfMethod("catalogueFile()") < 0);
}

void SupplydControllerTest::addingAPrinterAgainKeepsItsDatabase()
{
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->setSupplyId(tapeId, addedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, addedPrinter);
    QCOMPARE(m_endpoint->supplySKUCached(addedPrinter), tape);
    const QStringList connections = QSqlDatabase::connectionNames();
    QCOMPARE(connections.size(), 1);
    m_endpoint->addNewPrinter(addedPrinter);
    QCOMPARE(m_endpoint->supplySKUCached(addedPrinter), tape);
    QCOMPARE(m_endpoint->supplyRibbonSKUsCached(addedPrinter), (QStringList{ribbonK, ribbonRK}));
    QCOMPARE(QSqlDatabase::connectionNames(), connections);
}

void SupplydControllerTest::namesItsConnections()
{
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->addNewPrinter({}); // no query reaches this one, so it is never connected
    QCOMPARE(QSqlDatabase::connectionNames(), QStringList());
    m_endpoint->supplyColorName(tape, addedPrinter);
    m_endpoint->supplyColorName(tape, {});
    QStringList names = QSqlDatabase::connectionNames();
    names.sort();
    QCOMPARE(names, (QStringList{QStringLiteral("Added printer_CONNECTION_NAME"),
                                 QStringLiteral("SUPPLY_INFO_QT_SQL_CONNECTION_NAME")}));
    m_endpoint->setSupplyId(tapeId, QStringLiteral("-"));
    QCOMPARE(m_endpoint->supplyInformation({}).supplySku, tape);
}

void SupplydControllerTest::panelDefaultsToTheFirst()
{
    QCOMPARE(m_endpoint->supplyRibbonColorName(ribbonRK), QStringLiteral("Red"));
    QCOMPARE(m_endpoint->supplyRibbonColorName(ribbonRK),
             m_endpoint->supplyRibbonColorName(ribbonRK, 1));
    QCOMPARE(m_endpoint->supplyRibbonColorName(ribbonRK, 2), QStringLiteral("Black"));
    QCOMPARE(m_endpoint->supplyRibbonColorRGB(ribbonRK), 0xC8102E);
    QCOMPARE(m_endpoint->supplyRibbonColorRGB(ribbonRK),
             m_endpoint->supplyRibbonColorRGB(ribbonRK, 1));
    QCOMPARE(m_endpoint->supplyRibbonColorRGB(ribbonRK, 2), 0);
}

void SupplydControllerTest::placeholderQueriesHaveFixedAnswers()
{
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->setSupplyId(tapeId, addedPrinter);
    m_endpoint->setSupplyId(tapeId, QStringLiteral("-"));
    QCOMPARE(m_endpoint->supplyId(), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplySupplyUID(), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplyRibbon1UID(), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplyRibbon2UID(), QStringLiteral("-1"));
    QCOMPARE(m_endpoint->supplySupplyPercent(), 0.0);
    QCOMPARE(m_endpoint->supplyRibbon1Percent(), 0.0);
    QCOMPARE(m_endpoint->supplyRibbon2Percent(), 0.0);
}

void SupplydControllerTest::placeholderCommandsHaveNoEffect()
{
    m_endpoint->setSupplyId(tapeId, QStringLiteral("-"));
    const QVariantMap before = information(*m_endpoint, {});
    m_endpoint->supplyModuleReady(1, 2, QStringLiteral("application"));
    m_endpoint->applicationWasClicked();
    m_endpoint->setModulePrinterName(addedPrinter);
    m_endpoint->openLabelFile(databasePath());
    QCOMPARE(information(*m_endpoint, {}), before);
}

void SupplydControllerTest::worksWithoutAFile()
{
    m_endpoint.reset();
    QVERIFY(QFile::remove(databasePath()));
    m_endpoint = std::make_unique<VXIPCSUPPLYDController>();
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->setSupplyId(tapeId, addedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, addedPrinter);
    QCOMPARE(m_endpoint->supplySKUCached(addedPrinter), QString());
    QCOMPARE(m_endpoint->supplySKUList(), QStringList());
    const SupplyInformation record = m_endpoint->supplyInformation(addedPrinter);
    QCOMPARE(record.supplyId, tapeId);
    QCOMPARE(record.supplyLength, -1.0F);
    QCOMPARE(record.multiUpCount, 1);
    QVERIFY(!QFile::exists(databasePath()));
}

void SupplydControllerTest::twoEndpointsAreIndependent()
{
    VXIPCSUPPLYDController second;
    second.setSupplyId(labelId, QStringLiteral("-"));
    m_endpoint->setSupplyId(tapeId, QStringLiteral("-"));
    QCOMPARE(second.supplySKUCached(QStringLiteral("-")), label);
    QCOMPARE(m_endpoint->supplySKUCached(QStringLiteral("-")), tape);
}

void SupplydControllerTest::fillsEveryFieldOfARecord()
{
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->setSupplyId(labelId,
                            addedPrinter); // not the one that is queried
    const SupplyInformation record =
        m_endpoint->supplyInformationBySKUs(tape, {ribbonRK, ribbonK}, addedPrinter);
    const QVariantMap expected{
        {QStringLiteral("supplyId"), labelId},
        {QStringLiteral("supplySku"), tape},
        {QStringLiteral("ribbonSkus"), QStringList{ribbonRK, ribbonK}},
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

void SupplydControllerTest::fillsARecordOfLabelsInSeveralColumns()
{
    const SupplyInformation record = m_endpoint->supplyInformationBySKUs(label, {}, {});
    QCOMPARE(record.nonContinuousLength, 1.5F);
    QCOMPARE(record.separatorWidth, 0.125F);
    QCOMPARE(record.isLandscape, 0);
    QCOMPARE(record.multiUpCount, 3);
    QCOMPARE(record.multiUpGapSize, 0.1F);
    QCOMPARE(record.typeIndex, 1);
    QCOMPARE(record.material, 0);
}

void SupplydControllerTest::recordUsesRibbonsByTheirPlace_data()
{
    QTest::addColumn<QStringList>("skus");
    QTest::addColumn<QList<int>>("panels");
    QTest::addColumn<QList<float>>("lengths");
    QTest::addColumn<QStringList>("types");
    QTest::addColumn<QVariantList>("heats");
    QTest::addColumn<QStringList>("colours");

    QTest::newRow("none") << QStringList{} << QList<int>{-1, -1} << QList<float>{-1.0F, -1.0F}
                          << QStringList{QString(), QString()} << QVariantList{} << QStringList{};
    QTest::newRow("one") << QStringList{ribbonRK} << QList<int>{2, -1}
                         << QList<float>{2360.0F, -1.0F}
                         << QStringList{QStringLiteral("resin"), QString()} << QVariantList{58}
                         << QStringList{QStringLiteral("Red")};
    QTest::newRow("three") << QStringList{ribbonK, ribbonRK, QStringLiteral("RIBBON-T")}
                           << QList<int>{1, 2} << QList<float>{4725.0F, 2360.0F}
                           << QStringList{QStringLiteral("wax"), QStringLiteral("resin")}
                           << QVariantList{52, 58, -1}
                           << QStringList{QStringLiteral("Black"), QStringLiteral("Red"),
                                          QStringLiteral("Teal")};
    QTest::newRow("nothing in the first place")
        << QStringList{QStringLiteral("-1"), ribbonK} << QList<int>{-1, 1}
        << QList<float>{-1.0F, 4725.0F} << QStringList{QString(), QStringLiteral("wax")}
        << QVariantList{-1, 52} << QStringList{QString(), QStringLiteral("Black")};
}

void SupplydControllerTest::recordUsesRibbonsByTheirPlace()
{
    QFETCH(QStringList, skus);
    const SupplyInformation record = m_endpoint->supplyInformationBySKUs(tape, skus, {});
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

void SupplydControllerTest::recordOfNoSupplyHasDefaults()
{
    QVariantMap expected = properties(SupplyInformation());
    expected.insert(QStringLiteral("ribbonTypes"), QStringList{QString(), QString()});
    QCOMPARE(properties(m_endpoint->supplyInformationBySKUs({}, {}, {})), expected);
    expected.insert(QStringLiteral("supplySku"), QStringLiteral("-1"));
    QCOMPARE(information(*m_endpoint, {}), expected); // nothing has been reported yet
}

void SupplydControllerTest::emptyNameHasTheSharedRecord()
{
    m_endpoint->setSupplyId(tapeId, QStringLiteral("-"));
    m_endpoint->setRibbonIds(ribbonIds, QStringLiteral("-"));
    const QVariantMap shared = information(*m_endpoint, QStringLiteral("-"));
    QCOMPARE(shared.value(QStringLiteral("supplySku")), tape);
    QCOMPARE(information(*m_endpoint, {}), shared);

    // A printer that was never added has the shared record, except for the type index of its own
    // name.
    QVariantMap unknown = information(*m_endpoint, QStringLiteral("Stratamark AlderMax"));
    QCOMPARE(unknown.value(QStringLiteral("typeIndex")), 1);
    QCOMPARE(shared.value(QStringLiteral("typeIndex")), 0);
    unknown.insert(QStringLiteral("typeIndex"), 0);
    QCOMPARE(unknown, shared);
}

void SupplydControllerTest::recordOfAPrinterIsThatOfItsSkus()
{
    m_endpoint->addNewPrinter(addedPrinter);
    m_endpoint->setSupplyId(tapeId, addedPrinter);
    m_endpoint->setRibbonIds(ribbonIds, addedPrinter);
    QCOMPARE(information(*m_endpoint, addedPrinter),
             properties(m_endpoint->supplyInformationBySKUs(
                 m_endpoint->supplySKUCached(addedPrinter),
                 m_endpoint->supplyRibbonSKUsCached(addedPrinter), addedPrinter)));
}

void SupplydControllerTest::recordOfAPrinterComesFromTheVirtualSlot()
{
    DerivedEndpoint derived;
    derived.setSupplyId(tapeId, QStringLiteral("-"));
    derived.setRibbonIds(ribbonIds, QStringLiteral("-"));
    const SupplyInformation record = derived.supplyInformation({});
    QCOMPARE(record.supplySku, tape);
    QCOMPARE(record.ribbonSkus, (QStringList{ribbonK, ribbonRK}));
    QCOMPARE(record.materialName, QStringLiteral("-"));
}

void SupplydControllerTest::registersTheRecord()
{
    const QMetaType type = QMetaType::fromName("SupplyInformation");
    QVERIFY(type.isValid());
    QCOMPARE(type, QMetaType::fromType<SupplyInformation>());
    QVERIFY(!type.hasRegisteredDataStreamOperators());
}

int main(int argc, char* argv[])
{
    // Names are in the language of the system, on which a test must not depend.
    qputenv("LC_ALL", "C");
    qputenv("LANGUAGE", "en");
    QCoreApplication application(argc, argv);
    SupplydControllerTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_supplyd_controller.moc"
