// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Fleet files: how they set up a machine, how their story is played, and how mistakes are reported.
#include "machine_test.h"
#include "patience.h"

#include "printer_status_thread.h"
#include "printer_values.h"
#include "virtualwindows/fleet.h"
#include "windows_printer_info.h"

#include <numeric>

#include <windows.h>
#include <winspool.h>

using namespace virtualwindows;
using namespace std::chrono_literals;
using VXPrinting::PrinterType;

namespace {

Fleet fleetOf(const QByteArray& text)
{
    return parseFleet(text, QStringLiteral("fleet.json"));
}

/// The message of the error that reading a fleet ends with.
template <typename Read>
QString errorOfReading(Read read)
{
    try {
        read();
    } catch (const FleetError& error) {
        return error.message();
    }
    return QStringLiteral("accepted");
}

QString errorOf(const QByteArray& text)
{
    return errorOfReading([&] { return fleetOf(text); });
}

QString errorOfFile(const QString& fileName)
{
    return errorOfReading([&] { return readFleet(fileName); });
}

/// A fleet of one printer whose driver publishes one value, on the second line.
QByteArray fleetWith(const QByteArray& name, const QByteArray& value)
{
    return "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\", \"values\": {\n\"" + name +
           "\": " + value + "}}]}";
}

} // namespace

class FleetTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void builtInFleetHasEveryKindOfPrinter();
    void builtInStoryLastsTwoMinutes();
    void builtInStoryCanBePlayed();
    void smallestFleetHasDefaults();
    void printerTakesAllItsKeys();
    void valuesAreOfEachKind();
    void everyValueThatTheLibraryReadsIsKnown_data();
    void everyValueThatTheLibraryReadsIsKnown();
    void unknownValuesArePublishedAsTheyAre();
    void rawValuesDescribeABrokenDriver();
    void nameThatIsNearlyKnownIsRefused_data();
    void nameThatIsNearlyKnownIsRefused();
    void bytesMayBeOfAnyLength_data();
    void bytesMayBeOfAnyLength();
    void devicesReachTheRegistry();
    void eventsChangeTheMachine_data();
    void eventsChangeTheMachine();
    void storyAddsRenamesAndRemovesPrinters();
    void brokenFileIsRefusedWithItsLine_data();
    void brokenFileIsRefusedWithItsLine();
    void fileBeyondTheLimitsIsRefused_data();
    void fileBeyondTheLimitsIsRefused();
    void messageIsOneShortLine_data();
    void messageIsOneShortLine();
    void longListOfPrintersIsCutShort();
    void unreadableFileIsReported();
    void fileNameIsEscapedInMessages();
    void endlessFileIsRefused();
    void fileIsReadFromDisk();
    void playerNarratesInOrderAndOnTime();
    void watchingThreadMissesNothing();
    void storyDoesNotWaitForeverForItsWatchers();
};

void FleetTest::builtInFleetHasEveryKindOfPrinter()
{
    populate(machine(), builtInFleet());
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    QCOMPARE(printers.size(), 6);

    QSet<PrinterType> types;
    int network = 0;
    int offline = 0;
    int notManaged = 0;
    for (const AvailablePrinters& printer : printers) {
        types.insert(WindowsPrinterInfo::printerType(printer.driverName));
        network += printer.isNetworkPrinter;
        offline += printer.isOffline;
        notManaged += !WindowsPrinterInfo::isPrinterAdmin(printer.printerName);
    }
    QCOMPARE(types,
             (QSet<PrinterType>{PrinterType::Unknown, PrinterType::Alder, PrinterType::BirchMax,
                                PrinterType::CedarMax, PrinterType::AlderMax}));
    QCOMPARE(network, 1);
    QCOMPARE(offline, 2);
    QCOMPARE(notManaged, 1);
    QCOMPARE(WindowsPrinterInfo::getDefaultPrinterName(), QStringLiteral("Warehouse"));
    QCOMPARE(printers.first().serialNumber, QStringLiteral("AM-20871"));
}

void FleetTest::builtInStoryLastsTwoMinutes()
{
    const Fleet fleet = builtInFleet();
    QCOMPARE(fleet.story.last().at, 120s);
    QVERIFY(fleet.story.size() > 15);
}

void FleetTest::builtInStoryCanBePlayed()
{
    const Fleet fleet = builtInFleet();
    populate(machine(), fleet);
    bool wasStopped = false;
    for (const StoryEvent& event : fleet.story) {
        event.happen(machine());
        wasStopped = wasStopped || machine().spoolerState() == SERVICE_STOPPED;
    }
    QVERIFY(wasStopped);
    QCOMPARE(machine().spoolerState(), quint32(SERVICE_RUNNING));
    QVERIFY(!WindowsPrinterInfo::isPrinterOffline(QStringLiteral("Returns")));
}

void FleetTest::smallestFleetHasDefaults()
{
    const Fleet empty = fleetOf(R"({"printers": []})");
    QVERIFY(empty.printers.isEmpty() && empty.devices.isEmpty() && empty.story.isEmpty());
    QVERIFY(empty.defaultPrinter.isNull());

    const Fleet one = fleetOf(R"({"printers": [{"name": "P", "driver": "D"}]})");
    QCOMPARE(one.printers.size(), 1);
    QCOMPARE(one.printers.first().setup.port, QStringLiteral("USB001"));
    QCOMPARE(one.printers.first().setup.attributes, quint32(PRINTER_ATTRIBUTE_LOCAL));
    QVERIFY(one.printers.first().setup.administrable);
}

void FleetTest::printerTakesAllItsKeys()
{
    const PrinterSetup setup =
        fleetOf(R"({"printers": [{"name": "Étiquettes", "driver": "D", "port": "LPT1:",
                   "attributes": ["local", "shared", "work-offline"], "status": ["paused", "offline"],
                   "administrable": false}]})")
            .printers.first()
            .setup;
    QCOMPARE(setup.name, QStringLiteral("Étiquettes"));
    QCOMPARE(setup.driver, QStringLiteral("D"));
    QCOMPARE(setup.port, QStringLiteral("LPT1:"));
    QCOMPARE(setup.attributes, 0x448U);
    QCOMPARE(setup.status, 0x81U);
    QVERIFY(!setup.administrable);

    const PrinterSetup numbers = fleetOf(R"({"printers": [{"name": "P", "driver": "D",
                                            "attributes": 4294967295, "status": 0}]})")
                                     .printers.first()
                                     .setup;
    QCOMPARE(numbers.attributes, 0xFFFFFFFFU);
    QCOMPARE(numbers.status, 0U);
}

void FleetTest::valuesAreOfEachKind()
{
    const QList<PrinterValue> values =
        fleetOf(R"({"printers": [{"name": "P", "driver": "D", "values":
                   {"A": "tëxt", "B": 4294967295, "C": {"binary": "00fF10"}, "D": ""}}]})")
            .printers.first()
            .values;
    QCOMPARE(values.size(), 4);
    QCOMPARE(values.at(0).type, quint32(REG_SZ));
    QCOMPARE(values.at(0).data, QByteArray("t\xc3\xabxt\0", 6));
    QCOMPARE(values.at(1).type, quint32(REG_DWORD));
    QCOMPARE(values.at(1).data, QByteArray("\xff\xff\xff\xff"));
    QCOMPARE(values.at(2).type, quint32(REG_BINARY));
    QCOMPARE(values.at(2).data, QByteArray("\x00\xff\x10", 3));
    QCOMPARE(values.at(3).data, QByteArray("\0", 1));
}

// The fleet reader cannot include the library's table of values, so it has one of its own.
void FleetTest::everyValueThatTheLibraryReadsIsKnown_data()
{
    QTest::addColumn<bool>("isText");

    int count = 0;
    for (const auto& value : {printer_values::supplyId, printer_values::statusCode,
                              printer_values::softwareVersion, printer_values::ethernetConfig}) {
        QTest::newRow(value.name) << true;
        ++count;
    }
    for (const auto& value :
         {printer_values::ribbon1Id, printer_values::ribbon2Id, printer_values::supplyMileage,
          printer_values::ribbon1Mileage, printer_values::ribbon2Mileage,
          printer_values::updateProgress, printer_values::updateError}) {
        QTest::newRow(value.name) << false;
        ++count;
    }
    QCOMPARE(count, 11);
}

void FleetTest::everyValueThatTheLibraryReadsIsKnown()
{
    QFETCH(const bool, isText);
    const QByteArray name = QTest::currentDataTag();
    const QString place =
        QStringLiteral("fleet.json:2: printers[0].values.%1: ").arg(QLatin1String(name));
    const QString remedy =
        QStringLiteral(". For a driver that publishes it wrongly, write {\"raw\": VALUE}");
    const QByteArray text = "\"5\"";
    const QByteArray number = "5";
    const QByteArray bytes = R"({"binary": "05000000"})";
    QCOMPARE(errorOf(fleetWith(name, isText ? text : number)), QStringLiteral("accepted"));
    QCOMPARE(errorOf(fleetWith(name, bytes)), QStringLiteral("accepted"));
    QCOMPARE(errorOf(fleetWith(name, isText ? number : text)),
             place +
                 (isText ? QStringLiteral("expected a string or {\"binary\": \"hexadecimal "
                                          "digits\"}, as the library reads it; found 5")
                         : QStringLiteral("expected a number or {\"binary\": \"hexadecimal "
                                          "digits\"}, as the library reads it; found \"5\"")) +
                 remedy);
    // The spooler does not distinguish upper and lower case.
    QVERIFY(errorOf(fleetWith(name.toUpper(), isText ? number : text)).endsWith(remedy));
}

void FleetTest::unknownValuesArePublishedAsTheyAre()
{
    for (const char* name : {"HeadTemperature", "Ribbon3Identifier", "Ribbon3Mileage", "Status",
                             "Code", "SupplyMileage", "UpdateTime", "A", ""}) {
        for (const char* value : {"\"5\"", "5", R"({"binary": ""})"})
            QCOMPARE(errorOf(fleetWith(name, value)), QStringLiteral("accepted"));
    }
}

void FleetTest::rawValuesDescribeABrokenDriver()
{
    const QList<PrinterValue> values =
        fleetOf(R"({"printers": [{"name": "P", "driver": "D", "values": {
                   "StatusCode": {"raw": 5}, "Mileage": {"raw": "76200"},
                   "StatusCod": {"raw": {"binary": "00ff"}}}}],
                   "timeline": [{"at": 1, "printer": "P", "values": {"Mileage": {"raw": "1"}},
                                 "unpublish": ["StatusCode", {"raw": "StatusCod"}]}]})")
            .printers.first()
            .values;
    QCOMPARE(values.size(), 3);
    QCOMPARE(values.at(0).type, quint32(REG_DWORD));
    QCOMPARE(values.at(1).type, quint32(REG_SZ));
    QCOMPARE(values.at(1).data, QByteArray("76200\0", 6));
    QCOMPARE(values.at(2).name, QByteArray("StatusCod"));
    QCOMPARE(values.at(2).data, QByteArray("\x00\xff", 2));

    const QString place = QStringLiteral("fleet.json:2: printers[0].values.");
    QCOMPARE(errorOf(fleetWith("Mileage", R"({"raw": true})")),
             place + QStringLiteral("Mileage.raw: expected a string, a number or {\"binary\": "
                                    "\"hexadecimal digits\"}"));
    QCOMPARE(errorOf(fleetWith("Mileage", R"({"raw": 1, "binary": "00"})")),
             place + QStringLiteral("Mileage.binary: unknown key; expected one of raw"));
}

void FleetTest::nameThatIsNearlyKnownIsRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("meant");
    QTest::newRow("a character left out") << QByteArray("StatusCod") << "StatusCode";
    QTest::newRow("a character added") << QByteArray("StatusCodes") << "StatusCode";
    QTest::newRow("a character exchanged") << QByteArray("MiLaage") << "Mileage";
    QTest::newRow("two characters swapped") << QByteArray("Mielage") << "Mileage";
    QTest::newRow("twice") << QByteArray("EtherntConfg") << "EthernetConfig";
    QTest::newRow("another case") << QByteArray("UPDATEPROGRES") << "UpdateProgress";
    QTest::newRow("a space") << QByteArray("Software Version") << "SoftwareVersion";
    QTest::newRow("no digit") << QByteArray("RibbonIdentifier") << "Ribbon1Identifier";
    QTest::newRow("the nearest of two") << QByteArray("Ribon2Mileage") << "Ribbon2Mileage";
}

void FleetTest::nameThatIsNearlyKnownIsRefused()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, meant);
    const QString shown = QString::fromLatin1(name);
    const QString question =
        QStringLiteral("unknown value \"%1\"; did you mean \"%2\"? If the driver has a value of "
                       "that name, write {\"raw\": ")
            .arg(shown, meant);
    QCOMPARE(errorOf(fleetWith(name, "1")),
             QStringLiteral("fleet.json:2: printers[0].values.%1: ").arg(shown) + question +
                 QStringLiteral("VALUE}"));
    QCOMPARE(errorOf(R"({"printers": [{"name": "P", "driver": "D"}], "timeline": [{"at": 1,
             "printer": "P", "unpublish": [")" +
                     name + R"("]}]})"),
             QStringLiteral("fleet.json:2: timeline[0].unpublish[0]: ") + question +
                 QStringLiteral("\"NAME\"}"));
}

void FleetTest::bytesMayBeOfAnyLength_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 21844, 21845, 70000, 1 << 20})
        QTest::addRow("%d", count) << count;
}

void FleetTest::bytesMayBeOfAnyLength()
{
    QFETCH(const int, count);
    const QByteArray digits = QByteArray("a7").repeated(count);
    const Fleet fleet = fleetOf(R"({"printers": [{"name": "P", "driver": "D", "values":
        {"A": {"binary": ")" + digits +
                                R"("}}}]})");
    QCOMPARE(fleet.printers.first().values.first().data, QByteArray(count, '\xa7'));
}

void FleetTest::devicesReachTheRegistry()
{
    populate(machine(), fleetOf(R"({"printers": [], "devices": [
        {"class": "{c}", "key": "##?#USB#VID_3E7A#1#", "port": 65538, "serialNumber": "TWO"},
        {"class": "{c}", "key": "##?#USB#VID_3E7A#2#"}]})"));
    QCOMPARE(WindowsPrinterInfo::getDriverGUID(), QStringLiteral("{c}"));
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(2), QStringLiteral("TWO"));
    QVERIFY(WindowsPrinterInfo::getDeviceSerialNumber(0).isEmpty());
}

void FleetTest::eventsChangeTheMachine_data()
{
    QTest::addColumn<QByteArray>("event");
    QTest::addColumn<QString>("function");

    QTest::newRow("status") << QByteArray(R"("printer": "P", "status": ["offline"])") << "offline";
    QTest::newRow("attributes") << QByteArray(R"("printer": "P", "attributes": ["work-offline"])")
                                << "offline";
    QTest::newRow("administrable")
        << QByteArray(R"("printer": "P", "administrable": false)") << "not managed";
    QTest::newRow("rename") << QByteArray(R"("printer": "P", "rename": "Q")") << "renamed";
    QTest::newRow("remove") << QByteArray(R"("printer": "P", "remove": true)") << "gone";
    QTest::newRow("add") << QByteArray(R"("add": {"name": "Q", "driver": "D"})") << "another";
    QTest::newRow("spooler") << QByteArray(R"("spooler": "stopped")") << "gone";
    QTest::newRow("default printer") << QByteArray(R"("defaultPrinter": "P")") << "default";
}

void FleetTest::eventsChangeTheMachine()
{
    QFETCH(const QByteArray, event);
    QFETCH(const QString, function);
    const auto state = [] {
        QStringList words;
        const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
        if (printers.isEmpty())
            return QStringLiteral("gone");
        if (printers.size() == 2)
            return QStringLiteral("another");
        if (printers.first().isOffline)
            return QStringLiteral("offline");
        if (printers.first().printerName == QLatin1String("Q"))
            return QStringLiteral("renamed");
        if (!WindowsPrinterInfo::isPrinterAdmin(QStringLiteral("P")))
            return QStringLiteral("not managed");
        return WindowsPrinterInfo::getDefaultPrinterName().isEmpty() ? QStringLiteral("plain")
                                                                     : QStringLiteral("default");
    };
    const Fleet fleet =
        fleetOf(R"({"printers": [{"name": "P", "driver": "D"}], "timeline": [{"at": 1.5, )" +
                event + "}]}");
    populate(machine(), fleet);
    QCOMPARE(state(), QStringLiteral("plain"));
    QCOMPARE(fleet.story.size(), 1);
    QCOMPARE(fleet.story.first().at, 1500ms);
    fleet.story.first().happen(machine());
    QCOMPARE(state(), function);
}

void FleetTest::storyAddsRenamesAndRemovesPrinters()
{
    const Fleet fleet = fleetOf(R"({"printers": [{"name": "P", "driver": "D"}], "timeline": [
        {"at": 1, "add": {"name": "Q", "driver": "D", "values": {"StatusCode": "1"}}},
        {"at": 2, "printer": "Q", "rename": "R"},
        {"at": 3, "printer": "R", "values": {"StatusCode": "2"}, "unpublish": ["StatusCode"]},
        {"at": 3, "printer": "R", "remove": true},
        {"at": 4, "add": {"name": "Q", "driver": "D"}}]})");
    populate(machine(), fleet);
    for (const StoryEvent& event : fleet.story)
        event.happen(machine());
    QCOMPARE(machine().printers(), (QStringList{QStringLiteral("P"), QStringLiteral("Q")}));
}

void FleetTest::brokenFileIsRefusedWithItsLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* title, const char* text, const char* message) {
        QTest::newRow(title) << QByteArray(text) << QString::fromUtf8(message);
    };
    row("empty", "", "fleet.json:1: not JSON: Syntax error: value, object or array expected.");
    row("cut off", "{\n\"printers\": [\n",
        "fleet.json:3: not JSON: Syntax error: value, object or array expected.");
    row("text after the end", "{\"printers\": []}\n\n}",
        "fleet.json:3: not JSON: Extra non-whitespace after JSON value.");
    row("duplicate key", "{\"printers\": [],\n\"printers\": []}",
        "fleet.json:2: not JSON: Duplicate key: 'printers'");
    row("a list", "[]", "fleet.json:1: expected an object, found a list");
    row("no printers", "{}", "fleet.json:1: expected the key \"printers\"");
    row("unknown key", "{\n\"printers\": [],\n\"printer\": 1}",
        "fleet.json:3: printer: unknown key; expected one of printers, defaultPrinter, "
        "devices, timeline");
    row("printers not a list", "{\"printers\":\n7}",
        "fleet.json:2: printers: expected a list, found 7");
    row("printer not an object", "{\"printers\": [\n[]]}",
        "fleet.json:2: printers[0]: expected an object, found a list");
    row("no driver", "{\"printers\": [\n{\"name\": \"P\"}]}",
        "fleet.json:2: printers[0]: expected the key \"driver\"");
    row("empty name", "{\"printers\": [{\"driver\": \"D\",\n\"name\": \"\"}]}",
        "fleet.json:2: printers[0].name: expected a non-empty string");
    row("name not a string", "{\"printers\": [{\"driver\": \"D\",\n\"name\": null}]}",
        "fleet.json:2: printers[0].name: expected a string, found null");
    row("duplicate name",
        "{\"printers\": [{\"driver\": \"D\", \"name\": \"P\"},\n{\"driver\": \"D\",\n\"name\": "
        "\"p\"}]}",
        "fleet.json:3: printers[1].name: duplicate printer \"p\"");
    row("unknown attribute",
        "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\", \"attributes\": "
        "[\"local\",\n\"fast\"]}]}",
        "fleet.json:2: printers[0].attributes[1]: unknown name \"fast\"; expected one of local, "
        "network, shared, hidden, work-offline");
    row("negative status", R"({"printers": [{"name": "P", "driver": "D", "status": -1}]})",
        "fleet.json:1: printers[0].status: expected a whole number between 0 and 4294967295, found "
        "-1");
    row("administrable not a boolean",
        R"({"printers": [{"name": "P", "driver": "D", "administrable": "no"}]})",
        "fleet.json:1: printers[0].administrable: expected true or false, found \"no\"");
    row("number too large",
        "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\",\n\"values\": {\"A\": 4294967296}}]}",
        "fleet.json:2: printers[0].values.A: expected a whole number between 0 and 4294967295, "
        "found "
        "4294967296");
    row("number with a fraction",
        "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\",\n\"values\": {\"A\": 1.5}}]}",
        "fleet.json:2: printers[0].values.A: expected a whole number between 0 and 4294967295, "
        "found "
        "1.5");
    row("value of an unknown kind",
        R"({"printers": [{"name": "P", "driver": "D", "values": {"A": true}}]})",
        "fleet.json:1: printers[0].values.A: expected a string, a number or {\"binary\": "
        "\"hexadecimal digits\"}");
    row("bytes not hexadecimal",
        R"({"printers": [{"name": "P", "driver": "D", "values": {"A": {"binary": "0g"}}}]})",
        "fleet.json:1: printers[0].values.A.binary: expected bytes as pairs of hexadecimal digits, "
        "found \"0g\"");
    row("default printer",
        "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\"}],\n\"defaultPrinter\": \"Q\"}",
        "fleet.json:2: defaultPrinter: there is no printer \"Q\"; expected one of P");
    row("device with a path",
        "{\"printers\": [], \"devices\": [{\"class\": \"{c}\",\n\"key\": \"a\\\\b\"}]}",
        "fleet.json:2: devices[0].key: expected the name of a registry key, without a backslash");
    row("duplicate device",
        "{\"printers\": [], \"devices\": [{\"class\": \"{c}\", \"key\": \"a\"}, {\"class\": "
        "\"{d}\", \"key\": \"a\"},\n{\"class\": \"{C}\", \"key\": \"A\"}]}",
        "fleet.json:2: devices[2].key: duplicate device \"A\"");
    row("event without a time", "{\"printers\": [], \"timeline\": [\n{}]}",
        "fleet.json:2: timeline[0]: expected the key \"at\"");
    row("negative time", R"({"printers": [], "timeline": [{"at": -1}]})",
        "fleet.json:1: timeline[0].at: expected a number of seconds between 0 and one year, found "
        "-1");
    row("events out of order", "{\"printers\": [], \"timeline\": [{\"at\": 2},\n{\"at\": 1}]}",
        "fleet.json:2: timeline[1].at: expected a time no earlier than that of the previous event");
    row("event without its printer", R"({"printers": [], "timeline": [{"at": 2, "values": {}}]})",
        "fleet.json:1: timeline[0].values: valid only together with the key \"printer\"");
    row("event of an unknown printer",
        "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\"}],\n\"timeline\": [{\"at\": "
        "2,\n\"printer\": \"Q\"}]}",
        "fleet.json:3: timeline[0].printer: there is no printer \"Q\" at this time; expected one "
        "of P");
    row("event of a removed printer",
        "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\"}], \"timeline\": [{\"at\": 2, "
        "\"printer\": "
        "\"P\", \"remove\": true},\n{\"at\": 3, \"printer\": \"P\"}]}",
        "fleet.json:2: timeline[1].printer: there is no printer \"P\" at this time; expected one "
        "of ");
    row("printer added twice",
        "{\"printers\": [{\"name\": \"P\", \"driver\": \"D\"}], \"timeline\": [{\"at\": "
        "2,\n\"add\": "
        "{\"name\": \"P\", \"driver\": \"D\"}}]}",
        "fleet.json:2: timeline[0].add.name: duplicate printer \"P\"");
    row("unknown state of the spooler",
        R"({"printers": [], "timeline": [{"at": 2, "spooler": "off"}]})",
        R"(fleet.json:1: timeline[0].spooler: expected "stopped" or "running", found "off")");
}

void FleetTest::brokenFileIsRefusedWithItsLine()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, message);
    QCOMPARE(errorOf(text), message);
}

void FleetTest::fileBeyondTheLimitsIsRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const QString unknownKey = QStringLiteral(
        "fleet.json:1: a: unknown key; expected one of printers, defaultPrinter, devices, "
        "timeline");
    const auto nested = [](int depth) {
        return "{\"a\":\n" + QByteArray(depth - 1, '[') + QByteArray(depth - 1, ']') + "}";
    };
    const auto wide = [](int values) {
        return "{\"a\":[\n" + QByteArray("0,").repeated(values - 3) + "0]}";
    };
    const QString tooDeep =
        QStringLiteral("fleet.json:2: expected at most 32 levels of lists and objects");
    QTest::newRow("deepest allowed nesting")
        << nested(32) << QString(unknownKey).replace(QLatin1String(":1:"), QLatin1String(":2:"));
    QTest::newRow("one level deeper") << nested(33) << tooDeep;
    QTest::newRow("deeper than JsonCpp reads") << nested(1001) << tooDeep;
    QTest::newRow("much deeper") << nested(1'000'000) << tooDeep;
    QTest::newRow("brackets in a text")
        << R"({"a": "\")" + QByteArray(100, '[') + "\"}" << unknownKey;
    QTest::newRow("largest allowed number of values") << wide(1'000'000) << unknownKey;
    QTest::newRow("one value more")
        << wide(1'000'001) << QStringLiteral("fleet.json:2: expected at most 1000000 values");
}

void FleetTest::fileBeyondTheLimitsIsRefused()
{
    brokenFileIsRefusedWithItsLine();
}

void FleetTest::messageIsOneShortLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message"); // its beginning

    const QByteArray hostile = R"(a\n\r\t\u0000\u001b]\u0085\u2028\u2029\u202e\udb40\udc01)";
    const QString shown =
        QStringLiteral(R"(a\u000a\u000d\u0009\u0000\u001b]\u0085\u2028\u2029\u202e\udb40\udc01)");
    const QByteArray longOne(100'000, 'x');
    const QString shortOne = QString(80, QLatin1Char('x')) + QStringLiteral("…");
    const auto row = [](const char* title, const QByteArray& text, const QString& message) {
        QTest::newRow(title) << text << QStringLiteral("fleet.json:1: ") + message;
    };
    const auto rows = [&](const char* title, const auto& text, const auto& message) {
        row(qPrintable(QString::fromLatin1(title) + QStringLiteral(", hostile")), text(hostile),
            message(shown));
        row(qPrintable(QString::fromLatin1(title) + QStringLiteral(", long")), text(longOne),
            message(shortOne));
    };
    rows(
        "value", [](const QByteArray& value) { return R"({"printers": ")" + value + "\"}"; },
        [](const QString& value) {
            return QStringLiteral("printers: expected a list, found \"%1\"").arg(value);
        });
    rows(
        "key", [](const QByteArray& key) { return "{\"" + key + "\": 1}"; },
        [](const QString& key) { return key + QStringLiteral(": unknown key; expected one of "); });
    rows(
        "value's name",
        [](const QByteArray& name) {
            return R"({"printers": [{"name": "P", "driver": "D", "values": {")" + name +
                   "\": null}}]}";
        },
        [](const QString& name) {
            return QStringLiteral("printers[0].values.%1: expected a string, ").arg(name);
        });
    rows(
        "printer",
        [](const QByteArray& name) {
            return R"({"printers": [{"name": ")" + name +
                   R"(", "driver": "D"}], "defaultPrinter": "P"})";
        },
        [](const QString& name) {
            return QStringLiteral("defaultPrinter: there is no printer \"P\"; expected one of %1")
                .arg(name);
        });
    row("key twice",
        R"({"a": 1, ")" + hostile + R"(": 1, ")" + hostile + R"(": 1, "b": )" + longOne,
        QStringLiteral("not JSON: "));
    row("number", R"({"printers": )" + QByteArray(100'000, '9') + "}",
        QStringLiteral("not JSON: '99999"));
}

void FleetTest::messageIsOneShortLine()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, message);
    const QString error = errorOf(text);
    QVERIFY2(error.startsWith(message), qPrintable(error.left(1000)));
    constexpr qsizetype few = 500;
    QVERIFY2(error.size() < few, qPrintable(QString::number(error.size())));
    for (const QChar character : error)
        QVERIFY2(character.isPrint(), qPrintable(error));
}

void FleetTest::longListOfPrintersIsCutShort()
{
    QByteArray printers;
    for (int number = 1; number <= 20'000; ++number)
        printers += R"({"name": "P)" + QByteArray::number(number) + R"(", "driver": "D"},)";
    printers.chop(1);
    QCOMPARE(errorOf(R"({"printers": [)" + printers + R"(], "defaultPrinter": "Q"})"),
             QStringLiteral("fleet.json:1: defaultPrinter: there is no printer \"Q\"; expected one "
                            "of P1, P2, P3, P4, P5, P6, P7, P8, P9, P10, P11, P12, P13, P14, P15, "
                            "P16 and 19984 more"));
}

void FleetTest::unreadableFileIsReported()
{
    QCOMPARE(errorOfFile(settingsFolder() + QStringLiteral("/none.json")),
             settingsFolder() + QStringLiteral("/none.json: No such file or directory"));
    QCOMPARE(errorOfFile(settingsFolder()),
             settingsFolder() + QStringLiteral(": expected a file, found a folder"));
}

void FleetTest::fileNameIsEscapedInMessages()
{
    const QString name = settingsFolder() + QStringLiteral("/a\nb\x1b%2.json");
    const QString shown = settingsFolder() + QStringLiteral("/a\\u000ab\\u001b%2.json");
    QCOMPARE(errorOfFile(name), shown + QStringLiteral(": No such file or directory"));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[]");
    file.close();
    QCOMPARE(errorOfFile(name), shown + QStringLiteral(":1: expected an object, found a list"));
}

void FleetTest::endlessFileIsRefused()
{
    QCOMPARE(errorOfFile(QStringLiteral("/dev/zero")),
             QStringLiteral("/dev/zero: expected at most 16 MiB"));

    // A file of exactly that size is read, and is then found not to be JSON.
    const QString name = settingsFolder() + QStringLiteral("/large.json");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(16LL * 1024 * 1024));
    QVERIFY(errorOfFile(name).contains(QLatin1String(":1: not JSON: ")));
    QVERIFY(file.resize(file.size() + 1));
    QCOMPARE(errorOfFile(name), name + QStringLiteral(": expected at most 16 MiB"));
}

void FleetTest::fileIsReadFromDisk()
{
    const QString name = settingsFolder() + QStringLiteral("/fleet.json");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(builtInFleetText());
    file.close();
    QCOMPARE(readFleet(name).printers.size(), 6);
}

void FleetTest::playerNarratesInOrderAndOnTime()
{
    const Fleet fleet = fleetOf(R"({"printers": [{"name": "P", "driver": "D"}], "timeline": [
        {"at": 1, "say": "first"}, {"at": 2}, {"at": 100, "say": "second"},
        {"at": 100, "say": "third"}]})");
    StoryPlayer player(machine(), fleet.story, 1000);
    QStringList captions;
    bool isFinished = false;
    connect(&player, &StoryPlayer::narrated, this,
            [&](const QString& caption) { captions.append(caption); });
    connect(&player, &StoryPlayer::finished, this, [&] { isFinished = true; });

    QElapsedTimer clock;
    clock.start();
    player.start();
    QTRY_VERIFY(isFinished);
    QVERIFY(clock.elapsed() >= 99);
    QCOMPARE(captions, (QStringList{QStringLiteral("first"), QStringLiteral("second"),
                                    QStringLiteral("third")}));
}

void FleetTest::watchingThreadMissesNothing()
{
    constexpr int values = 50;
    QByteArray timeline;
    QStringList expected{QStringLiteral("0")};
    for (int value = 1; value <= values; ++value) {
        timeline += QByteArray(timeline.isEmpty() ? "" : ",") + R"({"at": )" +
                    QByteArray::number(0.01 * value) +
                    R"(, "printer": "P", "values": {"Mileage": )" + QByteArray::number(value) +
                    "}}";
        expected.append(QString::number(value));
    }
    const Fleet fleet = fleetOf(R"({"printers": [{"name": "P", "driver": "D",
        "values": {"Mileage": 0}}], "timeline": [)" +
                                timeline + "]}");
    populate(machine(), fleet);

    QStringList reported;
    PrinterStatusThread thread;
    connect(&thread, &PrinterStatusThread::supplyIntMileageChanged, this,
            [&](const QString&, const QString& mileage) { reported.append(mileage); });
    thread.setMonitoredPrinterName(QStringLiteral("P"));
    thread.start();

    StoryPlayer player(machine(), fleet.story, 1e6);
    player.setWatchingThreads([] { return 1; });
    QList<qsizetype> reportsAtEvents;
    connect(&player, &StoryPlayer::happened, this,
            [&] { reportsAtEvents.append(reported.size()); });
    player.start();
    QTRY_COMPARE_WITH_TIMEOUT(reported.size(), expected.size(), patience);
    QCOMPARE(reported, expected);
    // Queued reports, too, have arrived before the next event happens.
    QList<qsizetype> expectedReports(values);
    std::iota(expectedReports.begin(), expectedReports.end(), 1);
    QCOMPARE(reportsAtEvents, expectedReports);

    while (!thread.wait(10))
        thread.stop();
}

void FleetTest::storyDoesNotWaitForeverForItsWatchers()
{
    StoryPlayer player(machine(), fleetOf(R"({"printers": [], "timeline": [{"at": 1}]})").story,
                       1000);
    player.setWatchingThreads([] { return 1; });
    QSignalSpy finished(&player, &StoryPlayer::finished);
    player.start();
    QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 1, patience);
}

QTEST_GUILESS_MAIN(FleetTest)
#include "tst_fleet.moc"
