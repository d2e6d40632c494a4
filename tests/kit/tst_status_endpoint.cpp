// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// What the status service answers and reports to other processes.
#include "ipc_json.h"
#include "ipc_raw_client.h"
#include "readings_test.h"

#include <status_endpoint.h>
#include <vx_ipc_supplyd_controller.h>

#include <QtCore/QPointer>
#include <QtTest/QSignalSpy>

using namespace ipc_json;
using VxKit::StatusEndpoint;

class StatusEndpointTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;

    void answersAllPrinters();
    void answersOnePrinter();
    void answersAnErrorForAnUnknownPrinter();
    void answersWhatTheCatalogueKnows();
    void answersFromTheFileThatTheServiceReads();
    void callsASupplyAsItsReadingDoes();
    void answersWhetherAJobFits();
    void answersByTheCatalogueWhetherARibbonSuits();
    void answersFromMemoryWhenTheControllerIsGone();
    void describesItself();
    void reportsAChangeAsTheWholeReading();
    void reportsOnlyTheLatestReadingOfAPrinterToAClientThatIsLate();
    void reportsPrintersThatComeAndGo();
    void reportsARenamedPrinter();
    void reportsWhatChangedBeforeAPrinterWasGone();
    void reportsWhatChangedBeforeARenamingUnderTheNewName();
    void reportsAPrinterThatReturnsOnce();
    void aClientThatSubscribesAndThenAsksEndsWithTheLatest();
    void survivesTheReadings();
    void mayBeDestroyedInASlot();

private:
    /// Makes readings of one printer and a service that is published.
    [[nodiscard]] bool makeEndpoint()
    {
        machine().addPrinter({.name = packing,
                              .driver = QStringLiteral("Stratamark BirchMax"),
                              .port = QStringLiteral("USB001")});
        publishText(packing, "StatusCode", "1");
        if (!makeSettledController(1))
            return false;
        m_endpoint = std::make_unique<StatusEndpoint>(&makeReadings());
        return QTest::qWaitFor([this] { return !m_endpoint->serverName().isEmpty(); }, patience);
    }

    QJsonObject readingOf(const QString& name) { return reading(name).toJson(); }

    /// The next notification of a client.
    static QJsonObject nextNotification(RawClient& client) { return object(client.receive()); }

    static inline const QString packing = QStringLiteral("Packing");
    static inline const QString shipping = QStringLiteral("Shipping");

    std::unique_ptr<StatusEndpoint> m_endpoint;
};

void StatusEndpointTest::cleanup()
{
    m_endpoint.reset();
    ReadingsTest::cleanup();
}

void StatusEndpointTest::answersAllPrinters()
{
    addNetworkPrinter(QStringLiteral("Far"));
    QVERIFY(makeEndpoint());
    QVERIFY(m_endpoint->serverName().startsWith(QStringLiteral("vxipc-3")));
    RawClient client(m_endpoint->serverName());
    const QJsonArray printers = client.call("printers")[QStringLiteral("result")].toArray();
    QCOMPARE(printers, (QJsonArray{readingOf(QStringLiteral("Far")), readingOf(packing)}));
    QCOMPARE(printers.at(1)[QStringLiteral("name")].toString(), packing);
    QVERIFY(VxKit::PrinterReading::fromJson(printers.at(1).toObject()).has_value());
}

void StatusEndpointTest::answersOnePrinter()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    QCOMPARE(client.call("printer", R"(["Packing"])")[QStringLiteral("result")].toObject(),
             readingOf(packing));
    QCOMPARE(m_endpoint->printer(packing), readingOf(packing));
}

void StatusEndpointTest::answersAnErrorForAnUnknownPrinter()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    for (const QByteArray name : {"\"Nowhere\"", "\"\"", "\"packing\""}) {
        const QJsonObject answer = client.call("printer", '[' + name + ']');
        QCOMPARE(errorCode(answer), -32004);
        QVERIFY2(errorMessage(answer).contains(QString::fromUtf8(name)),
                 qPrintable(errorMessage(answer)));
        QVERIFY(!answer.contains(QStringLiteral("result")));
    }
    QVERIFY(errorMessage(client.call("printer", '[' + textOfSize(4096) + ']')).size() < 600);
    QCOMPARE(m_endpoint->printer(QStringLiteral("Nowhere")), QJsonObject());
}

void StatusEndpointTest::answersWhatTheCatalogueKnows()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    const QJsonObject catalogue = client.call("supplies")[QStringLiteral("result")].toObject();
    QCOMPARE(catalogue.keys(),
             (QStringList{QStringLiteral("ribbons"), QStringLiteral("supplies")}));
    VXIPCSUPPLYDController& service = *controller().getSupplyIdController();
    const auto skusOf = [](const QJsonValue& list) {
        QStringList skus;
        for (const QJsonArray entries = list.toArray(); const QJsonValue& entry : entries)
            skus.append(entry[QStringLiteral("sku")].toString());
        return skus;
    };
    QCOMPARE(skusOf(catalogue[QStringLiteral("supplies")]), service.supplySKUList());
    QCOMPARE(skusOf(catalogue[QStringLiteral("ribbons")]), service.supplyRibbonSKUList());
    QVERIFY(service.supplySKUList().size() >= 40);

    for (const QJsonArray supplies = catalogue[QStringLiteral("supplies")].toArray();
         const QJsonValue& supply : supplies) {
        const QString sku = supply[QStringLiteral("sku")].toString();
        const SupplyInformation record = service.supplyInformationBySKUs(sku, {}, {});
        // The record has its numbers as floats.
        const auto inches = [&](const QString& member) {
            return static_cast<float>(supply[member].toDouble() / 0.0254);
        };
        QCOMPARE(inches(QStringLiteral("widthMeters")), record.supplyWidth);
        QCOMPARE(inches(QStringLiteral("totalMeters")), record.supplyLength);
        QCOMPARE(supply[QStringLiteral("labelMeters")].isNull(), record.nonContinuousLength < 0);
        QCOMPARE(supply[QStringLiteral("separatorMeters")].isNull(),
                 record.nonContinuousLength < 0);
        QCOMPARE(supply[QStringLiteral("colorName")].toString(), record.colorName);
        QCOMPARE(supply[QStringLiteral("colors")][0].toString(),
                 QStringLiteral("#%1").arg(record.colorRGB, 6, 16, QLatin1Char('0')));
        QCOMPARE(supply[QStringLiteral("labelsAcross")].toInt(), record.multiUpCount);
        QVERIFY(supply[QStringLiteral("name")].toString().contains(record.materialName));
    }
    const QJsonValue ribbon = catalogue[QStringLiteral("ribbons")][0];
    const QString sku = ribbon[QStringLiteral("sku")].toString();
    QCOMPARE(ribbon[QStringLiteral("panels")].toInt(), service.supplyRibbonPanels(sku));
    QCOMPARE(ribbon[QStringLiteral("material")].toString(), service.supplyRibbonType(sku));
    QCOMPARE(ribbon[QStringLiteral("colors")].toArray().size(), service.supplyRibbonPanels(sku));
}

void StatusEndpointTest::answersFromTheFileThatTheServiceReads()
{
    QVERIFY(makeEndpoint());
    const QString usual = QCoreApplication::applicationDirPath() + QStringLiteral("/roll.db");
    VXIPCSUPPLYDController& service = *controller().getSupplyIdController();
    QCOMPARE(service.catalogueFile(), usual);
    QVERIFY(!m_endpoint->supplies()[QStringLiteral("supplies")].toArray().isEmpty());

    service.setCatalogueFile(usual + QStringLiteral(".missing"));
    VxKit::PrinterReadings readings(&controller());
    QCOMPARE(readings.catalogueFile(), service.catalogueFile());
    StatusEndpoint endpoint(&readings);
    QCOMPARE(endpoint.supplies(), (QJsonObject{{QStringLiteral("ribbons"), QJsonArray()},
                                               {QStringLiteral("supplies"), QJsonArray()}}));
}

void StatusEndpointTest::callsASupplyAsItsReadingDoes()
{
    QVERIFY(makeEndpoint());
    publishText(packing, "SupplyIdentifier", "000001F41000420000A7");
    publishNumber(packing, "Ribbon1Identifier", 2001);
    QVERIFY(settleAll(1));
    const QJsonObject catalogue = m_endpoint->supplies();
    const auto check = [&](Slot slot, const QString& list) {
        const VxKit::Level loaded = level(packing, slot);
        for (const QJsonArray entries = catalogue[list].toArray();
             const QJsonValue& entry : entries) {
            if (entry[QStringLiteral("sku")].toString() != loaded.sku)
                continue;
            return entry[QStringLiteral("name")].toString() == loaded.name &&
                   entry[QStringLiteral("material")].toString() == loaded.material &&
                   entry[QStringLiteral("colors")] ==
                       QJsonValue(QJsonArray::fromStringList(loaded.colors)) &&
                   std::abs(entry[QStringLiteral("totalMeters")].toDouble() -
                            loaded.totalMeters.value_or(0)) < 1e-5;
        }
        return false;
    };
    QVERIFY(check(Slot::Supply, QStringLiteral("supplies")));
    QVERIFY(check(Slot::Ribbon1, QStringLiteral("ribbons")));
}

void StatusEndpointTest::answersWhetherAJobFits()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    const auto ask = [&](const QByteArray& arguments) -> QJsonValue {
        return client.call("preflight", arguments)[QStringLiteral("result")];
    };
    const auto reasonOf = [](const QJsonValue& answer) {
        return answer[QStringLiteral("findings")][0][QStringLiteral("reason")].toString();
    };
    // The printer has not said what is loaded.
    const QJsonValue open = ask(R"(["Packing","DN-2UP-WH",100])");
    QCOMPARE(open[QStringLiteral("answer")].toString(), QStringLiteral("notKnown"));
    QCOMPARE(reasonOf(open), QStringLiteral("slotNotKnown"));

    // 20000 of 38100 mm, with two labels side by side: 968 labels. See docs/readings.md.
    publishText(packing, "SupplyIdentifier", "0000007D100038000001");
    publishNumber(packing, "Mileage", 20000);
    publishNumber(packing, "Ribbon1Identifier", 2001);
    publishNumber(packing, "Ribbon1Mileage", 60000);
    QVERIFY(settleAll(1));
    const QJsonValue yes = ask(R"(["Packing","DN-2UP-WH",968,["RS-43-BK"]])");
    QCOMPARE(yes[QStringLiteral("answer")].toString(), QStringLiteral("yes"));
    QCOMPARE(yes[QStringLiteral("labelsAtLeast")].toInt(), 968);
    const QJsonValue no = ask(R"(["Packing","DN-2UP-WH",1000])");
    QCOMPARE(no[QStringLiteral("verdict")].toString(), QStringLiteral("notEnough"));
    QCOMPARE(no[QStringLiteral("findings")][0][QStringLiteral("shortBy")].toInt(), 32);
    QCOMPARE(no.toObject(), m_endpoint->preflight(packing, QStringLiteral("DN-2UP-WH"), 1000));

    // A roll that the catalogue lacks.
    publishText(packing, "SupplyIdentifier", "0000007D100999000001");
    QVERIFY(settleAll(1));
    const QJsonValue lacking = ask(R"(["Packing","DN-2UP-WH",100])");
    QCOMPARE(lacking[QStringLiteral("answer")].toString(), QStringLiteral("notKnown"));
    QCOMPARE(reasonOf(lacking), QStringLiteral("notInCatalogue"));
    QVERIFY(lacking[QStringLiteral("labelsAtMost")].isNull());

    const QJsonObject unknown = client.call("preflight", R"(["Nowhere","X",1])");
    QCOMPARE(errorCode(unknown), -32004);
    QVERIFY(errorMessage(unknown).contains(QStringLiteral("Nowhere")));
    QCOMPARE(errorCode(client.call("preflight", R"(["Packing","DN-2UP-WH",1e10])")), -32602);
    QCOMPARE(m_endpoint->preflight(QStringLiteral("Nowhere"), {}, 1), QJsonObject());
}

void StatusEndpointTest::answersByTheCatalogueWhetherARibbonSuits()
{
    QVERIFY(makeEndpoint());
    const VxKit::PrinterReadings& all = readings();
    const QString paper = QStringLiteral("DE-400200-WH");
    QCOMPARE(all.ribbonSuits(QStringLiteral("RX-43-BK"), paper), std::optional(true));
    QCOMPARE(all.ribbonSuits(QStringLiteral("RS-43-BK"), paper), std::optional(false));
    QCOMPARE(all.ribbonSuits(QStringLiteral("RP-43-KR"), QStringLiteral("VT-400-YL")),
             std::optional(true));
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(all.ribbonSuits(QStringLiteral("RS-43-BK"), QStringLiteral("nothing")),
                 std::optional<bool>());
        QCOMPARE(all.ribbonSuits(QStringLiteral("nothing"), paper), std::optional<bool>());
        QCOMPARE(all.ribbonSuits({}, {}), std::optional<bool>());
    }
    // More pairs than are kept at a time.
    for (int pair = 0; pair < 3000; ++pair)
        QCOMPARE(all.ribbonSuits(QStringLiteral("R-%1").arg(pair), paper), std::optional<bool>());
    QCOMPARE(all.ribbonSuits(QStringLiteral("RX-43-BK"), paper), std::optional(true));
}

void StatusEndpointTest::answersFromMemoryWhenTheControllerIsGone()
{
    QVERIFY(makeEndpoint());
    publishText(packing, "SupplyIdentifier", "0000007D100038000001");
    publishNumber(packing, "Mileage", 20000);
    publishNumber(packing, "Ribbon1Identifier", 2001);
    publishNumber(packing, "Ribbon1Mileage", 60000);
    QVERIFY(settleAll(1));
    endControllerBeforeReadings();
    const QJsonObject answer = m_endpoint->preflight(packing, QStringLiteral("DN-2UP-WH"), 10);
    QCOMPARE(answer[QStringLiteral("findings")][0][QStringLiteral("reason")].toString(),
             QStringLiteral("suitsNotKnown"));
    endReadings();
    QCOMPARE(m_endpoint->preflight(packing, QStringLiteral("DN-2UP-WH"), 10), QJsonObject());
}

void StatusEndpointTest::describesItself()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    const QJsonValue document = client.call("rpc.discover")[QStringLiteral("result")];
    const auto namesIn = [&](const QString& list) {
        QStringList names;
        for (const QJsonArray entries = document[list].toArray(); const QJsonValue& entry : entries)
            names.append(entry[QStringLiteral("name")].toString());
        return names;
    };
    QCOMPARE(namesIn(QStringLiteral("methods")),
             (QStringList{QStringLiteral("printers"), QStringLiteral("printer"),
                          QStringLiteral("statusInfo"), QStringLiteral("supplies"),
                          QStringLiteral("preflight")}));
    QCOMPARE(namesIn(QStringLiteral("x-signals")),
             (QStringList{QStringLiteral("printerChanged"), QStringLiteral("printerAdded"),
                          QStringLiteral("printerGone"), QStringLiteral("printerRenamed")}));
    QCOMPARE(document[QStringLiteral("x-signals")][0][QStringLiteral("params")],
             parsed(R"([{"name":"reading","schema":{"type":"object"},"x-type":"QJsonObject"}])"));
}

void StatusEndpointTest::reportsAChangeAsTheWholeReading()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    QVERIFY(
        client.call("rpc.subscribe", R"(["printerChanged"])").contains(QStringLiteral("result")));
    publishText(packing, "StatusCode", "2");
    QVERIFY(settleAll(1));
    QCOMPARE(reading(packing).statusCode(), 2);
    QCOMPARE(nextNotification(client),
             (QJsonObject{{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
                          {QStringLiteral("method"), QStringLiteral("printerChanged")},
                          {QStringLiteral("params"),
                           QJsonObject{{QStringLiteral("reading"), readingOf(packing)}}}}));
}

void StatusEndpointTest::reportsOnlyTheLatestReadingOfAPrinterToAClientThatIsLate()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    QVERIFY(
        client.call("rpc.subscribe", R"(["printerChanged"])").contains(QStringLiteral("result")));
    // Without a return to the event loop in which the service could send anything.
    const QSignalSpy changes(&readings(), &VxKit::PrinterReadings::changed);
    for (const char* status : {"2", "3", "4"}) {
        publishText(packing, "StatusCode", status);
        QVERIFY(machine().waitForWaitingThreads(1));
        QCoreApplication::sendPostedEvents(&controller(), QEvent::MetaCall);
        QCoreApplication::sendPostedEvents(&readings(), QEvent::MetaCall);
    }
    QVERIFY2(changes.size() >= 2, qPrintable(QString::number(changes.size())));
    const QJsonValue received = nextNotification(client)[QStringLiteral("params")];
    QCOMPARE(received[QStringLiteral("reading")].toObject(), readingOf(packing));
    // And nothing after it.
    QVERIFY(client.call("printers").contains(QStringLiteral("result")));
}

void StatusEndpointTest::reportsPrintersThatComeAndGo()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    QVERIFY(client.call("rpc.subscribe", R"(["printerAdded","printerGone"])")
                .contains(QStringLiteral("result")));
    addPrinter(shipping);
    readings().refresh();
    const QJsonObject added = nextNotification(client);
    QCOMPARE(added[QStringLiteral("method")].toString(), QStringLiteral("printerAdded"));
    QCOMPARE(added[QStringLiteral("params")][QStringLiteral("reading")].toObject(),
             readingOf(shipping));
    machine().removePrinter(shipping);
    readings().refresh();
    const QJsonObject gone = nextNotification(client);
    QCOMPARE(gone[QStringLiteral("method")].toString(), QStringLiteral("printerGone"));
    QCOMPARE(gone[QStringLiteral("params")],
             QJsonValue(QJsonObject{{QStringLiteral("name"), shipping}}));
    QCOMPARE(client.call("printer", R"(["Shipping"])")[QStringLiteral("result")].toObject(),
             readingOf(shipping));
}

void StatusEndpointTest::reportsARenamedPrinter()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    QVERIFY(
        client.call("rpc.subscribe", R"(["printerRenamed"])").contains(QStringLiteral("result")));
    machine().renamePrinter(packing, shipping);
    QVERIFY(settleAll(1));
    const QJsonObject renamed = nextNotification(client);
    QCOMPARE(renamed[QStringLiteral("method")].toString(), QStringLiteral("printerRenamed"));
    QCOMPARE(renamed[QStringLiteral("params")],
             QJsonValue(QJsonObject{{QStringLiteral("oldName"), packing},
                                    {QStringLiteral("newName"), shipping}}));
}

void StatusEndpointTest::reportsWhatChangedBeforeAPrinterWasGone()
{
    QVERIFY(makeEndpoint());
    QStringList told;
    connect(m_endpoint.get(), &StatusEndpoint::printerChanged, this,
            [&](const QJsonObject& reading) {
                told.append(reading[QStringLiteral("name")].toString());
            });
    connect(m_endpoint.get(), &StatusEndpoint::printerGone, this,
            [&](const QString& name) { told.append(name + QStringLiteral(" gone")); });
    // Without a return to the event loop, so that the change still waits.
    Q_EMIT readings().changed(packing);
    Q_EMIT readings().gone(packing);
    QCOMPARE(told, (QStringList{packing, QStringLiteral("Packing gone")}));
    QCoreApplication::processEvents();
    QCOMPARE(told.size(), 2);
}

void StatusEndpointTest::reportsWhatChangedBeforeARenamingUnderTheNewName()
{
    // Stands for the printer under its new name.
    addNetworkPrinter(QStringLiteral("Far"));
    QVERIFY(makeEndpoint());
    QStringList told;
    connect(m_endpoint.get(), &StatusEndpoint::printerChanged, this,
            [&](const QJsonObject& reading) {
                told.append(reading[QStringLiteral("name")].toString());
            });
    connect(m_endpoint.get(), &StatusEndpoint::printerRenamed, this,
            [&](const QString&, const QString& newName) {
                told.append(QStringLiteral("renamed ") + newName);
            });
    // Without a return to the event loop, so that the change still waits.
    Q_EMIT readings().changed(packing);
    Q_EMIT readings().renamed(packing, QStringLiteral("Far"));
    QTRY_COMPARE(told.size(), 2);
    QCOMPARE(told, (QStringList{QStringLiteral("renamed Far"), QStringLiteral("Far")}));
}

void StatusEndpointTest::reportsAPrinterThatReturnsOnce()
{
    QVERIFY(makeEndpoint());
    const QSignalSpy changed(m_endpoint.get(), &StatusEndpoint::printerChanged);
    const QSignalSpy added(m_endpoint.get(), &StatusEndpoint::printerAdded);
    // What is added is told as it is now; the change before it is part of that.
    Q_EMIT readings().changed(packing);
    Q_EMIT readings().added(packing);
    QCOMPARE(added.size(), 1);
    QCoreApplication::processEvents();
    QVERIFY(changed.isEmpty());
}

void StatusEndpointTest::aClientThatSubscribesAndThenAsksEndsWithTheLatest()
{
    QVERIFY(makeEndpoint());
    VXIPCClient client(m_endpoint->serverName());
    QJsonObject latest;
    connect(&client, &VXIPCClient::notificationReceived, this,
            [&](const QString&, const QJsonObject& arguments) {
                latest = arguments[QStringLiteral("reading")].toObject();
            });
    client.subscribe({QStringLiteral("printerChanged")});
    client.call(QStringLiteral("printers"), {},
                [&](const VXIPCReply& reply) { latest = reply.result[0].toObject(); });
    QTRY_VERIFY(!latest.isEmpty());
    QCOMPARE(latest, readingOf(packing));
    publishText(packing, "StatusCode", "3");
    QTRY_COMPARE(latest[QStringLiteral("statusCode")].toInt(), 3);
    QTRY_COMPARE(latest, readingOf(packing));
}

void StatusEndpointTest::survivesTheReadings()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    QVERIFY(
        client.call("rpc.subscribe", R"(["printerChanged"])").contains(QStringLiteral("result")));
    endReadings();
    QCOMPARE(client.call("printers")[QStringLiteral("result")], QJsonValue(QJsonArray()));
    QCOMPARE(errorCode(client.call("printer", R"(["Packing"])")), -32004);
    QVERIFY(!client.call("statusInfo", "[2,\"\"]").contains(QStringLiteral("error")));
}

void StatusEndpointTest::mayBeDestroyedInASlot()
{
    QVERIFY(makeEndpoint());
    RawClient client(m_endpoint->serverName());
    QVERIFY(
        client.call("rpc.subscribe", R"(["printerChanged"])").contains(QStringLiteral("result")));
    const QPointer<StatusEndpoint> alive(m_endpoint.get());
    connect(&readings(), &VxKit::PrinterReadings::changed, this, [this] { m_endpoint.reset(); });
    publishText(packing, "StatusCode", "2");
    QTRY_VERIFY(!alive);
    QVERIFY(client.waitForClose());
}

QTEST_GUILESS_MAIN(StatusEndpointTest)
#include "tst_status_endpoint.moc"
