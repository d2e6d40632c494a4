// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <printer_reading.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>

#include <functional>
#include <limits>

using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;

class TestPrinterReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readingOfNoPrinterIsNull();
    void copiesAreIndependent();
    void onlyModelsWithTwoRibbonsHaveASecond();
    void differencesNameEveryField_data();
    void differencesNameEveryField();
    void aCopyIsAsCheapAsThatOfAText();
    void percentageIsRoundedDown();
    void slotsHaveFixedNames();

    void explainsItsStatus();

    void jsonHoldsEverything();
    void jsonOfNothingIsEmpty();
    void unknownMembersAreIgnored();
    void impossibleJsonIsRefused_data();
    void impossibleJsonIsRefused();
    void everyMissingMemberIsNamed();

private:
    static PrinterReading fullReading();
};

PrinterReading TestPrinterReading::fullReading()
{
    PrinterReading reading;
    reading.setName(QStringLiteral("Shipping \x1b[31m"));
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setDriver(QStringLiteral("Stratamark AlderMax"));
    reading.setPort(QStringLiteral("001"));
    reading.setSerialNumber(QStringLiteral("AM-20871"));
    reading.setGone(QDateTime(QDate(2026, 1, 31), QTime(12, 0, 0, 1), Qt::OffsetFromUTC, -12600));
    reading.setWatching(PrinterReading::Watching::Replaced);
    reading.setStatusCode(-7);
    reading.setOnline(true);
    reading.setActive(true);
    reading.setFirmwareVersion(QStringLiteral("4.2.0"));
    reading.setBootVersion(QStringLiteral("boot 1.7"));
    reading.setUpdateProgress(0xFFFFFFFF);
    reading.setUpdateError(0);
    reading.setEthernetConfig(QStringLiteral("dhcp"));
    reading.setLastReport(QDateTime(QDate(2026, 1, 31), QTime(12, 0), Qt::UTC));
    Level level;
    level.state = Level::State::Loaded;
    level.identifier = QStringLiteral("000000641000030000A7");
    level.sku = QStringLiteral("VT-400-YL");
    level.name = QStringLiteral("Yellow Vinyl");
    level.material = QStringLiteral("Vinyl");
    level.colorName = QStringLiteral("Yellow");
    level.colors = {QStringLiteral("#ffd100")};
    level.totalMeters = 30.48;
    level.meters = 15.24;
    level.ratio = 0.5;
    level.labels = 12;
    level.coarse = true;
    level.mileage = 15240;
    level.mileageUnit = Level::MileageUnit::Percent;
    reading.setLevel(Slot::Supply, level);
    level.ratio = 0;
    reading.setLevel(Slot::Ribbon2, level);
    return reading;
}

void TestPrinterReading::readingOfNoPrinterIsNull()
{
    const PrinterReading none;
    QVERIFY(none.isNull());
    QCOMPARE(none.statusCode(), VXPrinting::StatusCodes::unknown);
    QCOMPARE(none.level(Slot::Supply).state, Level::State::NotKnown);
    QVERIFY(!none.level(Slot::Supply).ratio);
}

void TestPrinterReading::copiesAreIndependent()
{
    PrinterReading reading;
    reading.setName(QStringLiteral("Shipping"));
    PrinterReading copy = reading;
    QVERIFY(copy == reading);
    copy.setStatusCode(2);
    QCOMPARE(copy.differences(reading), PrinterReading::Field::Status);
    QCOMPARE(reading.statusCode(), VXPrinting::StatusCodes::unknown);
}

void TestPrinterReading::onlyModelsWithTwoRibbonsHaveASecond()
{
    Level ribbon;
    ribbon.state = Level::State::Empty;
    PrinterReading reading;
    reading.setModel(VXPrinting::PrinterType::BirchMax);
    reading.setLevel(Slot::Ribbon2, ribbon);
    QVERIFY(!reading.hasSlot(Slot::Ribbon2));
    QCOMPARE(reading.level(Slot::Ribbon2).state, Level::State::NotKnown);

    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setLevel(Slot::Ribbon2, ribbon);
    QCOMPARE(reading.slotList(), (QList{Slot::Supply, Slot::Ribbon1, Slot::Ribbon2}));
    QCOMPARE(reading.level(Slot::Ribbon2).state, Level::State::Empty);
}

void TestPrinterReading::differencesNameEveryField_data()
{
    QTest::addColumn<std::function<void(PrinterReading&)>>("change");
    QTest::addColumn<PrinterReading::Field>("field");
    using Field = PrinterReading::Field;
    const auto add = [](const char* row, Field field,
                        const std::function<void(PrinterReading&)>& change) {
        QTest::newRow(row) << change << field;
    };
    const QString other = QStringLiteral("other");
    add("name", Field::Name, [=](auto& reading) { reading.setName(other); });
    add("driver", Field::Driver, [=](auto& reading) { reading.setDriver(other); });
    add("port", Field::Port, [=](auto& reading) { reading.setPort(other); });
    add("serial", Field::SerialNumber, [=](auto& reading) { reading.setSerialNumber(other); });
    add("presence", Field::Presence, [](auto& reading) { reading.setPresent(); });
    add("gone since", Field::Presence,
        [](auto& reading) { reading.setGone(reading.goneSince().addMSecs(1)); });
    add("watching", Field::Watching,
        [](auto& reading) { reading.setWatching(PrinterReading::Watching::Watched); });
    add("status", Field::Status, [](auto& reading) { reading.setStatusCode(0); });
    add("online", Field::Online, [](auto& reading) { reading.setOnline(false); });
    add("active", Field::Active, [](auto& reading) { reading.setActive(false); });
    add("firmware", Field::Firmware, [=](auto& reading) { reading.setFirmwareVersion(other); });
    add("boot", Field::Firmware, [=](auto& reading) { reading.setBootVersion(other); });
    add("progress", Field::Update, [](auto& reading) { reading.setUpdateProgress({}); });
    add("error", Field::Update, [](auto& reading) { reading.setUpdateError({}); });
    add("network", Field::EthernetConfig, [=](auto& reading) { reading.setEthernetConfig(other); });
    add("time", Field::LastReport, [](auto& reading) { reading.setLastReport({}); });
    const auto changeLevel = [](Slot slot) {
        return [slot](PrinterReading& reading) {
            Level level = reading.level(slot);
            level.labels = 5;
            reading.setLevel(slot, level);
        };
    };
    add("supply", Field::Supply, changeLevel(Slot::Supply));
    add("ribbon 1", Field::Ribbon1, changeLevel(Slot::Ribbon1));
    add("ribbon 2", Field::Ribbon2, changeLevel(Slot::Ribbon2));
}

void TestPrinterReading::differencesNameEveryField()
{
    QFETCH(const std::function<void(PrinterReading&)>, change);
    QFETCH(const PrinterReading::Field, field);
    const PrinterReading before = fullReading();
    PrinterReading after = before;
    change(after);
    QCOMPARE(after.differences(before), PrinterReading::Fields(field));
    QVERIFY(!(after == before));
    QCOMPARE(before, fullReading());
}

void TestPrinterReading::aCopyIsAsCheapAsThatOfAText()
{
    QCOMPARE(sizeof(PrinterReading), sizeof(void*));
    const PrinterReading reading = fullReading();
    PrinterReading copy = reading;
    // A value that is the same does not separate the copies.
    copy.setName(reading.name());
    copy.setLevel(Slot::Supply, reading.level(Slot::Supply));
    QCOMPARE(copy.differences(reading), PrinterReading::Fields());
}

void TestPrinterReading::percentageIsRoundedDown()
{
    Level level;
    QVERIFY(!level.percentage());
    level.ratio = 0.999;
    QCOMPARE(level.percentage(), std::optional<int>(99));
    level.ratio = 0.0;
    QCOMPARE(level.percentage(), std::optional<int>(0));
    level.coarse = true;
    for (int percentage = 0; percentage <= 100; ++percentage) {
        level.ratio = percentage / 100.0;
        QCOMPARE(level.percentage(), std::optional<int>(percentage));
    }
}

void TestPrinterReading::slotsHaveFixedNames()
{
    QCOMPARE(VxKit::slotName(Slot::Supply), QStringLiteral("supply"));
    QCOMPARE(VxKit::slotName(Slot::Ribbon1), QStringLiteral("ribbon1"));
    QCOMPARE(VxKit::slotName(Slot::Ribbon2), QStringLiteral("ribbon2"));
}

void TestPrinterReading::explainsItsStatus()
{
    for (int code = -3; code < 300; ++code) {
        PrinterReading reading;
        reading.setStatusCode(code);
        QCOMPARE(reading.statusInfo(), VxKit::statusInfo(code));
        QCOMPARE(VxKit::statusSeverity(code), VxKit::statusInfo(code).severity);
        QCOMPARE(VxKit::statusKey(code), VxKit::statusInfo(code).key);
    }
}

// JSON ////////////////////////////////////////////////////////////////////////////////////////////

void TestPrinterReading::jsonHoldsEverything()
{
    const PrinterReading reading = fullReading();
    const QByteArray text = QJsonDocument(reading.toJson()).toJson(QJsonDocument::Compact);
    QVERIFY(!text.contains('\x1b'));
    QVERIFY(text.contains(R"("goneSince":"2026-01-31T12:00:00.001-03:30")"));
    QVERIFY(text.contains(R"("lastReport":"2026-01-31T12:00:00.000Z")"));
    QVERIFY(text.contains(R"("ratio":0,)"));
    QVERIFY(text.contains(R"("severity":"error")"));
    QVERIFY(text.contains(R"("statusKey":"printer_error")"));

    QString error;
    const auto again = PrinterReading::fromJson(QJsonDocument::fromJson(text).object(), &error);
    QVERIFY2(again, qPrintable(error));
    QCOMPARE(again->differences(reading), PrinterReading::Fields());
    QCOMPARE(error, QString());
}

void TestPrinterReading::jsonOfNothingIsEmpty()
{
    QCOMPARE(PrinterReading().toJson(), QJsonObject());
    QString error;
    QVERIFY(!PrinterReading::fromJson({}, &error));
    QCOMPARE(error, QStringLiteral("name is missing"));
}

void TestPrinterReading::unknownMembersAreIgnored()
{
    QJsonObject json = fullReading().toJson();
    json.insert(QStringLiteral("forecast"), QJsonArray{1, 2});
    const auto reading = PrinterReading::fromJson(json);
    QVERIFY(reading);
    QCOMPARE(*reading, fullReading());
}

void TestPrinterReading::impossibleJsonIsRefused_data()
{
    QTest::addColumn<QString>("member");
    QTest::addColumn<QJsonValue>("value");
    int number = 0;
    const auto add = [&](const char* member, const QJsonValue& value) {
        QTest::addRow("%d %s", ++number, member) << QString::fromLatin1(member) << value;
    };
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const double infinite = std::numeric_limits<double>::infinity();
    const QString endless(5000000, QLatin1Char('x'));
    add("name", {});
    add("name", QString());
    add("name", 1);
    add("name", endless);
    add("model", QStringLiteral("Oak"));
    add("model", QStringLiteral("Alder|BirchMax"));
    add("model", endless);
    add("model", 104);
    add("driver", QJsonArray());
    add("port", true);
    add("serialNumber", endless);
    add("presence", QStringLiteral("Gone"));
    add("presence", QStringLiteral("present")); // with a time since when it is gone
    add("goneSince", QStringLiteral("yesterday"));
    add("goneSince", QStringLiteral("2026-01-31T12:00:00")); // of which place?
    add("goneSince", 0);
    add("watching", {});
    add("statusCode", {});
    add("statusCode", 0.5);
    add("statusCode", 2147483648.0);
    add("statusCode", notANumber);
    add("online", {});
    add("active", 1);
    add("firmwareVersion", 4.2);
    add("updateProgress", -1);
    add("updateProgress", 4294967296.0);
    add("updateError", infinite);
    add("lastReport", endless);
    add("supply", {});
    add("ribbon1", QJsonArray());
    add("ribbon2", {}); // the model has one
    add("supply.state", QStringLiteral("full"));
    add("supply.sku", 1);
    add("supply.colors", {});
    add("supply.colors", QJsonArray{QStringLiteral("red")});
    add("supply.colors", QJsonArray{QStringLiteral("#FF0000")});
    add("supply.colors", QJsonArray{1});
    QJsonArray many;
    for (int color = 0; color < 65; ++color)
        many.append(QStringLiteral("#ff0000"));
    add("supply.colors", many);
    add("supply.ratio", 1.001);
    add("supply.ratio", -0.001);
    add("supply.ratio", notANumber);
    add("supply.ratio", QStringLiteral("0.5"));
    add("supply.meters", infinite);
    add("supply.totalMeters", -1);
    add("supply.labels", 1.5);
    add("supply.labels", 3e9);
    add("supply.labelPitchMeters", -1);
    add("supply.labelsAcross", 0);
    add("supply.estimatedSecondsRemaining", 60);
    add("supply.estimatedSecondsRemaining", QJsonObject{{QStringLiteral("p10"), 3},
                                                        {QStringLiteral("p50"), 2},
                                                        {QStringLiteral("p90"), 4}});
    add("supply.coarse", {});
    add("supply.mileage", -1);
    add("supply.mileageUnit", QStringLiteral("inches"));
}

void TestPrinterReading::impossibleJsonIsRefused()
{
    QFETCH(const QString, member);
    QFETCH(const QJsonValue, value);
    QJsonObject json = fullReading().toJson();
    const QStringList path = member.split(QLatin1Char('.'));
    if (path.size() == 2) {
        QJsonObject level = json.value(path.first()).toObject();
        level.insert(path.last(), value);
        json.insert(path.first(), level);
    } else {
        json.insert(member, value);
    }
    QString error;
    QVERIFY(!PrinterReading::fromJson(json, &error));
    const QString named = member == QLatin1String("presence") && value == QStringLiteral("present")
                              ? QStringLiteral("goneSince")
                              : member;
    QVERIFY2(error.startsWith(named + QLatin1Char(' ')), qPrintable(error));
    QVERIFY2(error.size() < 200, qPrintable(error));
}

void TestPrinterReading::everyMissingMemberIsNamed()
{
    const QJsonObject json = fullReading().toJson();
    QStringList members = json.keys();
    // They follow from the code.
    members.removeAll(QStringLiteral("statusKey"));
    members.removeAll(QStringLiteral("severity"));
    for (const QString& member : members) {
        QJsonObject less = json;
        less.remove(member);
        QString error;
        QVERIFY(!PrinterReading::fromJson(less, &error));
        QCOMPARE(error, member + QStringLiteral(" is missing"));
    }
    const QJsonObject level = json.value(QStringLiteral("ribbon2")).toObject();
    const QStringList levelMembers = level.keys();
    for (const QString& member : levelMembers) {
        QJsonObject lessLevel = level;
        lessLevel.remove(member);
        QJsonObject less = json;
        less.insert(QStringLiteral("ribbon2"), lessLevel);
        QString error;
        QVERIFY(!PrinterReading::fromJson(less, &error));
        QCOMPARE(error, QStringLiteral("ribbon2.%1 is missing").arg(member));
    }
}

QTEST_GUILESS_MAIN(TestPrinterReading)
#include "tst_printer_reading.moc"
