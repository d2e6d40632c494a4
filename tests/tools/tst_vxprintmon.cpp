// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The command line of the monitor, and its commands that do not watch: which arguments lead to
// which text, JSON and exit status.
#include "monitor_test.h"
#include "status_info.h"

#include <printer_reading.h>
#include <run_out_forecast.h>
#include <usage_history.h>

namespace {

QString withoutSpaces(const QString& text)
{
    return text.simplified().remove(QLatin1Char(' '));
}

/// What title --json prints.
QJsonObject jsonOf(const VxKit::StatusInfo& info)
{
    QJsonObject object = info.toJson();
    object.insert(QStringLiteral("statusEnum"), object.take(QStringLiteral("code")));
    return object;
}

const QString shipping = QStringLiteral("Shipping");

} // namespace

class VxPrintMonTest : public MonitorTest
{
    Q_OBJECT

private Q_SLOTS:

    void listPrintsATable();
    void listNeverExceedsTheWidth();
    void widthIsThatOfTheTerminal();
    void listPrintsJson();
    void listWithoutPrintersSaysSo();

    void sendPrintsThePrintJob();
    void sendPrintsThePrintJobAsJson();
    void sendToAnUnknownPrinterFails();
    void sendKnowsPrintersByAnyLetterCase();
    void sendNeedsForce_data();
    void sendNeedsForce();
    void sendWaitsUntilTheJobIsPrinted();
    void sendSaysWhatHoldsTheJob();
    void sendFailsIfTheJobIsLost();
    void titleIsPrinted_data();
    void titleIsPrinted();
    void titlesOfAllCodesArePrinted();
    void titlesOfAllCodesArePrintedAsJson();

    void enoughAnswersByItsExitStatus_data();
    void enoughAnswersByItsExitStatus();
    void enoughAnswersAsJson();
    void enoughTakesSkusAsPeopleTypeThem();
    void enoughWithoutACatalogueIsNotKnown();

    void forecastWithoutAHistoryIsNotKnown();
    void forecastLearnsFromTheUsersHistory();
    void forecastReadsAnotherHistory();
    void forecastSaysWhatWouldBeWarnedOf();
    void historyThatCannotBeReadIsSaid();

    void coloursAppearOnlyOnATerminal();
    void wrongUsageIsRefused_data();
    void wrongUsageIsRefused();
    void brokenFleetIsRefused();
    void helpAndVersionArePrinted();
    void everyCommandHasItsHelp();
    void fleetOfTheEnvironmentIsUsed();
    void logIsAppendedToAFile();
    void logThatCannotBeWrittenIsAFailure();
};

// list ////////////////////////////////////////////////////////////////////////////////////////////

void VxPrintMonTest::listPrintsATable()
{
    const Result result = run({QStringLiteral("list")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QByteArray expected =
        R"(PRINTER          MODEL    PORT         SERIAL   FLAGS        DRIVER
Shipping         AlderMax 001          AM-20871 shared       Stratamark AlderMax
Warehouse        Alder    002          AL-00342 default      Stratamark Alder
Returns          BirchMax 003          BM-11500 offline      Stratamark BirchMax
Laboratory       CedarMax 004          CM-00077 not managed, Stratamark CedarMax
                                                offline
Branch Office    BirchMax 192.168.1.20 -        network      Stratamark BirchMax
Front Desk Laser -        LPT1:        -                     Everyday Office
                                                             Laser 400
)";
    QCOMPARE(result.output, expected);
}

void VxPrintMonTest::listNeverExceedsTheWidth()
{
    const auto list = [this](int columns) {
        QProcessEnvironment wide = environment();
        wide.insert(QStringLiteral("COLUMNS"), QString::number(columns));
        return run({QStringLiteral("list")}, QStringLiteral(VXPRINTMON), wide).output;
    };
    // The flags and the driver take more lines first. Then the driver is cut short, the port, the
    // flags, the serial number and the name.
    QVERIFY(list(100).contains("Warehouse         Alder     002           AL-00342  default"
                               "               Stratamark Alder\n"));
    QVERIFY(list(92).contains("Laboratory       CedarMax 004          CM-00077 not managed,    "
                              "   Stratamark CedarMax\n" +
                              QByteArray(48, ' ') + "offline\n"));
    QVERIFY(list(77).contains("Laboratory       CedarMax 004          CM-00077 not managed, "
                              "Stratamark\n" +
                              QByteArray(48, ' ') + "offline      CedarMax\n"));
    QVERIFY(list(70).contains("Branch Office    BirchMax 192.168.1.20 -        network      "
                              "Stratama…\n"));
    QVERIFY(list(65).contains("Branch Office    BirchMax 192.168… -        network      "
                              "Stratam…\n"));
    QVERIFY(list(56).contains("Front Des… "));
    for (int columns = 24; columns <= 120; columns += widthStep) {
        const QStringList lines = QString::fromUtf8(list(columns)).split(QLatin1Char('\n'));
        QVERIFY(lines.size() >= 8);
        for (const QString& line : lines)
            QVERIFY2(line.size() <= columns && !line.endsWith(QLatin1Char(' ')), qPrintable(line));
    }
}

void VxPrintMonTest::widthIsThatOfTheTerminal()
{
    QProcessEnvironment plain = terminalEnvironment();
    plain.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    const QByteArray wide = runInTerminal(QStringLiteral("list"), plain, 120);
    if (wide.isEmpty())
        QSKIP("there is no script(1) here to give the tool a terminal");
    QVERIFY(wide.contains("Everyday Office Laser 400"));
    QVERIFY(runInTerminal(QStringLiteral("list"), plain, 69).contains("Everyda…\n"));
    // COLUMNS comes first, unless no terminal is like that.
    plain.insert(QStringLiteral("COLUMNS"), QStringLiteral("69"));
    QVERIFY(runInTerminal(QStringLiteral("list"), plain, 120).contains("Everyda…\n"));
    for (const char* odd : {"0", "3", "-80", "1000000", "wide"}) {
        plain.insert(QStringLiteral("COLUMNS"), QString::fromLatin1(odd));
        QVERIFY(runInTerminal(QStringLiteral("list"), plain, 120)
                    .contains("Everyday Office Laser 400"));
    }
}

void VxPrintMonTest::listPrintsJson()
{
    const Result result = run({QStringLiteral("list"), QStringLiteral("--json")});
    QCOMPARE(result.exitStatus, 0);
    const QJsonArray printers = QJsonDocument::fromJson(result.output).array();
    QCOMPARE(printers.size(), 6);
    QCOMPARE(printers.first().toObject(),
             (QJsonObject{
                 {QStringLiteral("printerName"), shipping},
                 {QStringLiteral("portName"), QStringLiteral("001")},
                 {QStringLiteral("driverName"), QStringLiteral("Stratamark AlderMax")},
                 {QStringLiteral("serialNumber"), QStringLiteral("AM-20871")},
                 {QStringLiteral("isNetworkPrinter"), false},
                 {QStringLiteral("isShared"), true},
                 {QStringLiteral("isOffline"), false},
                 {QStringLiteral("printerType"), 104},
             }));
    QCOMPARE(printers.at(2).toObject().value(QStringLiteral("isOffline")).toBool(), true);
    QCOMPARE(printers.at(4).toObject().value(QStringLiteral("isNetworkPrinter")).toBool(), true);
    QCOMPARE(printers.at(5).toObject().value(QStringLiteral("printerType")).toInt(-1), 0);
}

void VxPrintMonTest::listWithoutPrintersSaysSo()
{
    const QString fleet = fleetFile(R"({"printers": []})");
    const Result json =
        run({QStringLiteral("list"), QStringLiteral("--json"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(json.exitStatus, 0);
    QCOMPARE(json.output, QByteArray("[]\n"));
    const Result people = run({QStringLiteral("list"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(people.exitStatus, 0);
    QVERIFY(people.output.contains("There are no printers"));
}

// send and title //////////////////////////////////////////////////////////////////////////////////

void VxPrintMonTest::sendPrintsThePrintJob()
{
    const Result result = run({QStringLiteral("send"), shipping, QStringLiteral("FEED 2")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output, QByteArray("Sent to Shipping: FEED 2\n"
                                       "Print job 1, \"FEED 2\": RAW, pages: 1, bytes: 8.\n"));
}

void VxPrintMonTest::sendPrintsThePrintJobAsJson()
{
    const Result result = run(
        {QStringLiteral("send"), shipping, QStringLiteral("Ä \"1\""), QStringLiteral("--json")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output,
             QByteArray(R"({"printerName":"Shipping","command":"Ä \"1\"","job":{"id":1,"bytes":8,)"
                        R"("document":"Ä \"1\"","datatype":"RAW","pages":["Ä \"1\"\r\n"]}})"
                        "\n"));
}

void VxPrintMonTest::sendToAnUnknownPrinterFails()
{
    for (const bool json : {false, true}) {
        QStringList arguments{QStringLiteral("send"), QStringLiteral("Nowhere"),
                              QStringLiteral("FEED")};
        if (json)
            arguments.append(QStringLiteral("--json"));
        const Result result = run(arguments);
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.errors, QByteArray("vxprintmon: there is no printer \"Nowhere\"; "
                                           "\"vxprintmon list\" shows all printers\n"));
    }
    QCOMPARE(
        run(words("send Shippin FEED")).errors,
        QByteArray("vxprintmon: there is no printer \"Shippin\"; did you mean \"Shipping\"?\n"));
}

void VxPrintMonTest::sendKnowsPrintersByAnyLetterCase()
{
    const Result result = run(words("send sHIPPING FEED"));
    QCOMPARE(result.exitStatus, 0);
    QVERIFY2(result.output.startsWith("Sent to Shipping: FEED\n"), result.output.constData());
    const Result json = run(words("send sHIPPING FEED --json"));
    QCOMPARE(QJsonDocument::fromJson(json.output)[QStringLiteral("printerName")].toString(),
             shipping);
}

void VxPrintMonTest::sendNeedsForce_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("why");
    QTest::newRow("printer of another maker")
        << QStringLiteral("Front Desk Laser") << QStringLiteral("FEED 2")
        << QByteArray("\"Front Desk Laser\" is not a label printer of a supported model.");
    QTest::newRow("empty command") << shipping << QString() << QByteArray("The command is empty.");
}

void VxPrintMonTest::sendNeedsForce()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, command);
    QFETCH(const QByteArray, why);
    const Result refused = run({QStringLiteral("send"), printer, command});
    QCOMPARE(refused.exitStatus, 1);
    QCOMPARE(refused.output, QByteArray());
    QCOMPARE(refused.errors,
             "vxprintmon: the command was not sent: " + why + " --force sends it nevertheless.\n");
    const Result forced =
        run({QStringLiteral("send"), QStringLiteral("--force"), printer, command});
    QCOMPARE(forced.exitStatus, 0);
    QCOMPARE(forced.errors, QByteArray());
    QVERIFY(forced.output.contains("Print job 1"));
}

void VxPrintMonTest::sendWaitsUntilTheJobIsPrinted()
{
    const Result result =
        run({QStringLiteral("send"), QStringLiteral("--wait"), shipping, QStringLiteral("FEED 2")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output, QByteArray("Sent to Shipping: FEED 2\n"
                                       "Print job 1, \"FEED 2\": RAW, pages: 1, bytes: 8.\n"
                                       "The job is being printed.\n"
                                       "The job has been printed.\n"));
    const Result json = run({QStringLiteral("send"), QStringLiteral("--wait"),
                             QStringLiteral("--json"), shipping, QStringLiteral("FEED 2")});
    QCOMPARE(json.exitStatus, 0);
    const QJsonObject state =
        QJsonDocument::fromJson(json.output).object()[QStringLiteral("state")].toObject();
    QCOMPARE(state[QStringLiteral("stage")].toString(), QStringLiteral("printed"));
    QCOMPARE(state[QStringLiteral("statusCode")].toInt(), 1);
}

void VxPrintMonTest::sendSaysWhatHoldsTheJob()
{
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "A", "driver": "Stratamark Alder", "values": {"StatusCode": "4"}}],
        "timeline": [{"at": 0.5, "printer": "A", "values": {"StatusCode": "1"}}]})");
    const Result result =
        run({QStringLiteral("send"), QStringLiteral("--wait"), QStringLiteral("--virtual"), fleet,
             QStringLiteral("A"), QStringLiteral("FEED")});
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.exitStatus, 0);
    QVERIFY2(result.output.contains("The job is being printed. The driver cannot print the job. "
                                    "The cover is open"),
             result.output.constData());
    QVERIFY2(result.output.endsWith("The job has been printed.\n"), result.output.constData());
}

void VxPrintMonTest::sendFailsIfTheJobIsLost()
{
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "A", "driver": "Stratamark Alder", "status": ["paused"]}],
        "timeline": [{"at": 0.5, "printer": "A", "remove": true}]})");
    const Result result =
        run({QStringLiteral("send"), QStringLiteral("--wait"), QStringLiteral("--virtual"), fleet,
             QStringLiteral("A"), QStringLiteral("FEED")});
    QCOMPARE(result.exitStatus, 1);
    QVERIFY2(result.output.contains("The job waits in the queue. The printer is paused.\n"),
             result.output.constData());
    QCOMPARE(result.errors,
             QByteArray("vxprintmon: print job 1 was not printed: The print job cannot be "
                        "followed: The printer has been deleted.\n"));
}

void VxPrintMonTest::titleIsPrinted_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("title");
    const auto row = [](const char* code, const char* title) {
        QTest::newRow(code) << QString::fromLatin1(code) << QString::fromLatin1(title);
    };
    row("0", "Disconnected");
    row("1", "Ready");
    row("4", "The cover is open");
    row("254", "The print spooler is not running");
    row("255", "Unable To Retrieve Printer Info. (Code 255)");
    row("256", "Printer Is Remotely Connected.\nUnable to retrieve printer info.");
    row("257", "Disconnected");
    row("258", "Printer Is Not Managed.\nUnable to retrieve printer info.");
    row("-5", "Printer error -5");
    row("-2147483648", "Printer error -2147483648");
    row("2147483647", "Printer error 2147483647");
}

void VxPrintMonTest::titleIsPrinted()
{
    QFETCH(const QString, code);
    QFETCH(const QString, title);
    const Result people = run({QStringLiteral("title"), code});
    QCOMPARE(people.exitStatus, 0);
    QCOMPARE(people.errors, QByteArray());
    QCOMPARE(people.output, title.toUtf8() + '\n');

    const Result json = run({QStringLiteral("title"), code, QStringLiteral("--json")});
    QCOMPARE(json.exitStatus, 0);
    QCOMPARE(QJsonDocument::fromJson(json.output).object(),
             jsonOf(VxKit::statusInfo(code.toInt(), QStringLiteral("en"))));
    QVERIFY(hasInOrder(json.output, {"statusEnum", "title", "shortTitle", "key", "severity",
                                     "explanation", "remedy"}));
}

void VxPrintMonTest::titlesOfAllCodesArePrinted()
{
    const Result result = run({QStringLiteral("title"), QStringLiteral("--all")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QStringList blocks =
        QString::fromUtf8(result.output).split(QStringLiteral("\n\n"), Qt::SkipEmptyParts);
    const QList<VxKit::StatusInfo> all = VxKit::allStatusInfo(QStringLiteral("en"));
    QCOMPARE(blocks.size(), all.size());
    for (qsizetype i = 0; i < all.size(); ++i) {
        const VxKit::StatusInfo& info = all.at(i);
        QCOMPARE(withoutSpaces(blocks.at(i)),
                 withoutSpaces(QStringLiteral("%1 %2 (%3) %4 What to do: %5")
                                   .arg(QString::number(info.code), info.shortTitle,
                                        VxKit::severityName(info.severity), info.explanation,
                                        info.remedy)));
    }
    QCOMPARE(
        blocks.at(2),
        QStringLiteral("  2  The printer is out of labels (error)\n"
                       "     The labels that were loaded are used up. What has not been printed "
                       "yet\n     waits in the print queue.\n"
                       "     What to do: Open the cover, take out the empty core and load a new "
                       "roll of\n     the same labels. Close the cover; printing continues."));
}

void VxPrintMonTest::titlesOfAllCodesArePrintedAsJson()
{
    const Result result =
        run({QStringLiteral("title"), QStringLiteral("--all"), QStringLiteral("--json")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    QJsonArray expected;
    const QList<VxKit::StatusInfo> all = VxKit::allStatusInfo(QStringLiteral("en"));
    for (const VxKit::StatusInfo& info : all)
        expected.append(jsonOf(info));
    QCOMPARE(QJsonDocument::fromJson(result.output).array(), expected);
}

// The command line ////////////////////////////////////////////////////////////////////////////////

// enough //////////////////////////////////////////////////////////////////////////////////////////

void VxPrintMonTest::enoughAnswersByItsExitStatus_data()
{
    QTest::addColumn<QString>("question");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("text");
    const auto add = [](const char* question, int status, const char* text) {
        QTest::newRow(question) << QString::fromLatin1(question) << status << QByteArray(text);
    };
    // Warehouse reports whole percents: 82 of 3388 labels, and 57 of a ribbon for 2223.
    add("Warehouse DE-400200-WH 500", 0, "Ready. Labels left: 1245 to 1289, needed: 500.\n");
    add("Warehouse DE-400200-WH 1000 RX-43-BK", 0,
        "Ready. Labels left: 1245 to 1289, needed: 1000.\n");
    add("Warehouse DE-400200-WH 3000 RX-43-BK", 3,
        "Supply: not enough. Labels left: 2744 to 2812, needed: 3000, missing: at least\n188.\n"
        "Ribbon 2: not enough. Labels left: 1245 to 1289, needed: 3000, missing: at "
        "least\n1711.\n");
    add("Warehouse DE-400200-WH 1260", 4,
        "Ribbon 2: it is not known whether it lasts, because the printer reports whole\n"
        "percents only. Labels left: 1245 to 1289, needed: 1260.\n");
    add("Warehouse VT-400-YL 1", 3,
        "Supply: DE-400200-WH (White Paper) is loaded, the job needs VT-400-YL.\n");
    add("Warehouse DE-400200-WH 1 RS-43-BK", 3,
        "Ribbon 1: RX-43-BL (Blue wax-resin) is loaded, the job needs RS-43-BK.\n");
    add("Shipping VT-400-YL 1", 4,
        "Supply: it is not known how many labels are left, because the catalogue has no\n"
        "length of a label for VT-400-YL (Yellow Vinyl).\n");
    add("Returns DE-400200-WH 1", 3,
        "The printer is not ready: Disconnected.\n"
        "It is not known what is loaded, because the printer is not watched.\n");
}

void VxPrintMonTest::enoughAnswersByItsExitStatus()
{
    QFETCH(const QString, question);
    QFETCH(const int, status);
    QFETCH(const QByteArray, text);
    const Result result =
        run(QStringList{QStringLiteral("enough")} + question.split(QLatin1Char(' ')));
    QCOMPARE(result.errors, QByteArray());
    QCOMPARE(result.output, text);
    QCOMPARE(result.exitStatus, status);
}

void VxPrintMonTest::enoughAnswersAsJson()
{
    const Result result = run(words("enough Warehouse DE-400200-WH 3000 RW-43-BK --json"));
    QCOMPARE(result.exitStatus, 3);
    QCOMPARE(result.errors, QByteArray());
    const QJsonObject answer = QJsonDocument::fromJson(result.output).object();
    QCOMPARE(answer[QStringLiteral("answer")].toString(), QStringLiteral("no"));
    QCOMPARE(answer[QStringLiteral("verdict")].toString(), QStringLiteral("wrongRibbon"));
    QCOMPARE(answer[QStringLiteral("findings")][1][QStringLiteral("shortBy")].toInt(), 188);
    QCOMPARE(answer[QStringLiteral("ribbonSkus")],
             QJsonValue(QJsonArray{QStringLiteral("RW-43-BK")}));
}

void VxPrintMonTest::enoughTakesSkusAsPeopleTypeThem()
{
    const Result other = run(words("enough warehouse de-400200-wh 5 rx-43-bk"));
    QCOMPARE(other.exitStatus, 0);
    QCOMPARE(other.errors, QByteArray());
    const Result mistyped = run(words("enough Warehouse DE-400200-HW 5 nothing"));
    QCOMPARE(mistyped.exitStatus, 3);
    QVERIFY2(
        mistyped.errors.startsWith("vxprintmon: the catalogue has no DE-400200-HW; did you mean "
                                   "DE-400200-WH, "),
        mistyped.errors.constData());
    QVERIFY2(mistyped.errors.endsWith("vxprintmon: the catalogue has no nothing\n"),
             mistyped.errors.constData());
    const Result nowhere = run(words("enough Nowhere DE-400200-WH 5"));
    QCOMPARE(nowhere.exitStatus, 1);
    QCOMPARE(nowhere.output, QByteArray());
}

void VxPrintMonTest::enoughWithoutACatalogueIsNotKnown()
{
    const Result result =
        run(words("enough Warehouse DE-400200-WH 5 --catalogue /no/such/roll.db"));
    QCOMPARE(result.exitStatus, 4);
    QVERIFY2(result.errors.contains("there is no catalogue /no/such/roll.db"),
             result.errors.constData());
    QCOMPARE(QString::fromUtf8(result.output).simplified(),
             QStringLiteral("Supply: it is not known what is loaded, because 00000258100039000013 "
                            "is not in the catalogue. Ribbon 1: it is not known what is loaded, "
                            "because 2012 is not in the catalogue."));
}

// forecast ////////////////////////////////////////////////////////////////////////////////////////

namespace {

/// The environment of a user who has this folder for data.
QProcessEnvironment withData(QProcessEnvironment environment, const QTemporaryDir& data)
{
    environment.insert(QStringLiteral("XDG_DATA_HOME"), data.path());
    return environment;
}

QString historyIn(const QTemporaryDir& data)
{
    return data.filePath(QStringLiteral("VxPrinterStatus/history.db"));
}

/// Records four weeks of Shipping, in which its roll loses 8 mm an hour, up to what it has now. The
/// forecast learns the same without a file.
bool recordShipping(const QString& fileName, VxKit::RunOutForecast& forecast)
{
    VxKit::UsageHistoryOptions options;
    options.fileName = fileName;
    VxKit::UsageHistory history(options);
    VxKit::PrinterReading reading;
    reading.setName(shipping);
    reading.setSerialNumber(QStringLiteral("AM-20871"));
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    VxKit::Level level;
    level.state = VxKit::Level::State::Loaded;
    level.identifier = QStringLiteral("000000641000030000A7");
    level.sku = QStringLiteral("VT-400-YL");
    level.name = level.material = QStringLiteral("Vinyl");
    level.totalMeters = 30.48;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    constexpr int hours = 24 * 28;
    for (int hour = hours; hour >= 1; --hour) {
        level.meters = 24.385 + 0.008 * hour;
        level.ratio = *level.meters / *level.totalMeters;
        reading.setLevel(VxKit::Slot::Supply, level);
        const QDateTime time = now.addSecs(-3600 * qint64(hour));
        history.record(reading, time);
        forecast.addSample(shipping, VxKit::Slot::Supply,
                           VxKit::RunOutForecast::sampleOf(level, time));
    }
    level.meters = 24.385;
    level.ratio = *level.meters / *level.totalMeters;
    forecast.addSample(shipping, VxKit::Slot::Supply, VxKit::RunOutForecast::sampleOf(level, now));
    return history.flush(QDeadlineTimer(patience));
}

} // namespace

void VxPrintMonTest::forecastWithoutAHistoryIsNotKnown()
{
    const QTemporaryDir data;
    const QProcessEnvironment user = withData(environment(), data);
    const Result people = run(words("forecast"), QStringLiteral(VXPRINTMON), user);
    QCOMPARE(people.exitStatus, 0);
    QCOMPARE(people.errors, QByteArray("vxprintmon: forecasts need a history of what printers use; "
                                       "\"vxprintmon watch --history\" records one\n"));
    const QString table = QString::fromUtf8(people.output).simplified();
    QVERIFY2(table.contains(QStringLiteral("Shipping supply 80 %, 24.4 m not known yet")),
             people.output.constData());

    const Result json = run(words("forecast shipping --json"), QStringLiteral(VXPRINTMON), user);
    QCOMPARE(json.exitStatus, 0);
    QCOMPARE(json.errors, QByteArray());
    const QJsonArray places = QJsonDocument::fromJson(json.output).array();
    QCOMPARE(places.size(), 3);
    QCOMPARE(places[0][QStringLiteral("printer")].toString(), shipping);
    QCOMPARE(places[0][QStringLiteral("slot")].toString(), QStringLiteral("supply"));
    QCOMPARE(places[0][QStringLiteral("reason")].toString(), QStringLiteral("notKnownYet"));
    QVERIFY(places[0][QStringLiteral("estimatedSecondsRemaining")].isNull());
    QVERIFY(places[0][QStringLiteral("labels")].isNull());
    QVERIFY(std::abs(places[0][QStringLiteral("meters")].toDouble() - 24.385) < 0.01);
    // A printer that has never reported.
    const QJsonArray returns =
        QJsonDocument::fromJson(
            run(words("forecast Returns --json"), QStringLiteral(VXPRINTMON), user).output)
            .array();
    QCOMPARE(returns[0][QStringLiteral("reason")].toString(), QStringLiteral("neverReported"));
    QVERIFY(returns[0][QStringLiteral("meters")].isNull());
}

void VxPrintMonTest::forecastLearnsFromTheUsersHistory()
{
    const QTemporaryDir data;
    VxKit::RunOutForecast forecast;
    QVERIFY(recordShipping(historyIn(data), forecast));
    const auto expected =
        forecast.forecast(shipping, VxKit::Slot::Supply, QDateTime::currentDateTimeUtc());
    QVERIFY(expected.has_value());
    const QProcessEnvironment user = withData(environment(), data);
    const auto output = [&](const char* command) {
        const Result result = run(words(command), QStringLiteral(VXPRINTMON), user);
        return result.exitStatus == 0 ? result.output + result.errors : QByteArray("failed");
    };
    const QJsonArray places = QJsonDocument::fromJson(output("forecast Shipping --json")).array();
    const QJsonValue supply = places[0];
    const double days =
        supply[QStringLiteral("estimatedSecondsRemaining")][QStringLiteral("p50")].toDouble() /
        86400;
    const double expectedDays = expected->secondsLeft.p50 / 86400;
    QVERIFY2(std::abs(days - expectedDays) < 0.02 * expectedDays,
             qPrintable(QStringLiteral("%1, not %2").arg(days).arg(expectedDays)));
    QVERIFY(supply[QStringLiteral("reason")].isNull());
    QVERIFY(places[1][QStringLiteral("estimatedSecondsRemaining")].isNull());

    const QByteArray time = QByteArray::number(qRound(days)) + " d";
    for (const char* command : {"forecast", "status", "status Shipping"}) {
        const QByteArray text = output(command);
        QVERIFY2(text.contains(time), text.constData());
    }
    QVERIFY(output("status").contains(" LASTS"));
    QVERIFY(output("forecast").contains("LASTS ABOUT"));
    QVERIFY(output("forecast").contains("PROBABLY"));
    QVERIFY(output("status Shipping").contains("about " + time + ", probably "));
}

void VxPrintMonTest::forecastReadsAnotherHistory()
{
    const QTemporaryDir data;
    const QString file = data.filePath(QStringLiteral("another.db"));
    VxKit::RunOutForecast forecast;
    QVERIFY(recordShipping(file, forecast));
    const QProcessEnvironment user = withData(environment(), data);
    const auto from = [&](const QString& name) {
        return run({QStringLiteral("forecast"), QStringLiteral("Shipping"),
                    QStringLiteral("--json"), QStringLiteral("--file"), name},
                   QStringLiteral(VXPRINTMON), user);
    };
    const QJsonArray places = QJsonDocument::fromJson(from(file).output).array();
    QVERIFY(places[0][QStringLiteral("estimatedSecondsRemaining")].isObject());

    const Result missing = from(QStringLiteral("/nowhere/none.db"));
    QCOMPARE(missing.exitStatus, 1);
    QCOMPARE(missing.output, QByteArray());
    QCOMPARE(missing.errors, QByteArray("vxprintmon: /nowhere/none.db: no such file\n"));
}

void VxPrintMonTest::forecastSaysWhatWouldBeWarnedOf()
{
    const QTemporaryDir data;
    const auto output = [&](const QString& arguments) {
        const Result result = run(QStringLiteral("forecast Warehouse ")
                                      .append(arguments)
                                      .split(QLatin1Char(' '), Qt::SkipEmptyParts),
                                  QStringLiteral(VXPRINTMON), withData(environment(), data));
        return result.exitStatus == 0 ? result.output : QByteArray("failed");
    };
    QVERIFY(!output({}).contains("few labels"));
    // 82 percent of 182.88 m, of which a label takes 53.975 mm.
    QVERIFY(!output(QStringLiteral("--warn-below 2778 --job 2778")).contains(" left: 2778"));
    const QByteArray both = output(QStringLiteral("--warn-below 2779 --job 2779"));
    QVERIFY2(both.contains("\nWarehouse: Supply: few labels left: 2778\nWarehouse: Supply: not "
                           "enough for the job. Labels left: 2778, needed: 2779\n"),
             both.constData());
    const QJsonArray places =
        QJsonDocument::fromJson(output(QStringLiteral("--json --warn-below 2779 --job 2779")))
            .array();
    QStringList concerns;
    for (const QJsonValue& warning : places[0][QStringLiteral("warnings")].toArray())
        concerns.append(warning[QStringLiteral("concern")].toString());
    QCOMPARE(concerns, (QStringList{QStringLiteral("fewLabels"), QStringLiteral("jobTooLong")}));
    QCOMPARE(places[0][QStringLiteral("warnings")][0][QStringLiteral("text")].toString(),
             QStringLiteral("Supply: few labels left: 2778"));
    QVERIFY(places[1][QStringLiteral("warnings")].isArray());
}

void VxPrintMonTest::historyThatCannotBeReadIsSaid()
{
    const QTemporaryDir data;
    QVERIFY(QDir(data.path()).mkpath(QStringLiteral("VxPrinterStatus")));
    QFile file(historyIn(data));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("this is no history");
    file.close();
    for (const char* command : {"forecast", "status"}) {
        const Result result =
            run(words(command), QStringLiteral(VXPRINTMON), withData(environment(), data));
        QCOMPARE(result.exitStatus, 0);
        QVERIFY2(result.errors.startsWith("vxprintmon: the history cannot be read: "),
                 result.errors.constData());
        QVERIFY(result.output.contains("Shipping"));
    }
}

void VxPrintMonTest::coloursAppearOnlyOnATerminal()
{
    QProcessEnvironment terminal = terminalEnvironment();
    const QByteArray coloured = runInTerminal(QStringLiteral("list"), terminal);
    if (coloured.isEmpty())
        QSKIP("there is no script(1) here to give the tool a terminal");
    QVERIFY(coloured.contains("\033[32mShipping\033[0m"));
    QVERIFY(!run({QStringLiteral("list")}, QStringLiteral(VXPRINTMON), terminal)
                 .output.contains('\033'));
    terminal.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    const QByteArray plain = runInTerminal(QStringLiteral("list"), terminal);
    QVERIFY(plain.contains("Shipping"));
    QVERIFY(!plain.contains('\033'));
    terminal.remove(QStringLiteral("NO_COLOR"));
    terminal.insert(QStringLiteral("TERM"), QStringLiteral("dumb"));
    QVERIFY(!runInTerminal(QStringLiteral("list"), terminal).contains('\033'));
}

void VxPrintMonTest::wrongUsageIsRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char* arguments, const char* complaint) {
        QTest::newRow(*arguments ? arguments : "nothing")
            << QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
            << QString::fromUtf8(complaint);
    };
    row("", "expected a command: list, watch, status, log, record, case, history, send, title, "
            "forecast, enough, doctor, top");
    row("lst",
        R"(unknown command "lst"; expected one of list, watch, status, log, record, case, history, send, title, forecast, enough, doctor, top)");
    row("list Shipping", R"(list takes no arguments, found "Shipping")");
    row("watch --signals", "--signals is valid only with --json");
    row("watch Shipping --json --signals",
        "watch --signals takes no printers: it prints every signal");
    row("watch --json --relative", "--relative and --verbose are not valid with --json");
    row("watch --json --verbose", "--relative and --verbose are not valid with --json");
    row("status --relative", "--relative is valid only with watch");
    row("list --log x", "--log is valid only with watch");
    row("help status watch", R"(help takes at most one command, found "status" "watch")");
    row("help lst",
        R"(unknown command "lst"; expected one of list, watch, status, log, record, case, history, send, title, forecast, enough, doctor, top)");
    row("lst --help",
        R"(unknown command "lst"; expected one of list, watch, status, log, record, case, history, send, title, forecast, enough, doctor, top)");
    row("status A B", R"(status takes at most one printer, found "A" "B")");
    row("send", "send takes a printer and a command, found nothing");
    row("send Shipping", R"(send takes a printer and a command, found "Shipping")");
    row("send Shipping A B", R"(send takes a printer and a command, found "Shipping" "A" "B")");
    row("title", "title takes a status code or --all, found nothing");
    row("title 1 2", R"(title takes a status code or --all, found "1" "2")");
    for (const char* code : {"x", "1.5", "0x10", "2147483648", "-2147483649"}) {
        const QByteArray arguments = QByteArray("title ") + code;
        const QByteArray complaint =
            QByteArray("title takes a status code between -2147483648 and 2147483647, found \"") +
            code + '"';
        row(arguments.constData(), complaint.constData());
    }
    row("enough Warehouse X", "enough takes a printer, the SKU of a supply, a number of labels and "
                              "SKUs of ribbons, found "
                              R"("Warehouse" "X")");
    for (const char* labels : {"0", "many", "1.5", "2147483648"}) {
        const QByteArray arguments = QByteArray("enough Warehouse X ") + labels;
        const QByteArray complaint =
            QByteArray("enough takes a number of labels between 1 and 2147483647, found \"") +
            labels + '"';
        row(arguments.constData(), complaint.constData());
    }
    row("forecast --warn-below few",
        R"(--warn-below: expected a whole number from 0 to 2147483647, found "few")");
    row("watch --warn-below -1",
        R"(--warn-below: expected a whole number from 0 to 2147483647, found "-1")");
    row("watch --job 0", R"(--job: expected a whole number from 1 to 2147483647, found "0")");
    row("watch --shift-end 14:00,24:30",
        R"(--shift-end: expected times such as 14:00,22:00, found "24:30")");
    row("watch --shift-end 2pm", R"(--shift-end: expected times such as 14:00,22:00, found "2pm")");
    row("status --job 5", "--job is valid only with watch, forecast");
    row("title 1 --all", "title takes a status code or --all, not both");
    row("list --all", "--all is valid only with title");
    row("list --jsn", "Unknown option 'jsn'");
    row("list --for 3", "--for is valid only with watch, record, top");
    row("status --for 3", "--for is valid only with watch, record, top");
    row("list --speed 3", "--speed is valid only with watch, record, top");
    row("watch --for", "Missing value after '--for'");
    row("watch --for soon", R"(--for: expected a number above 0 and up to 1000000, found "soon")");
    row("watch --for 0", R"(--for: expected a number above 0 and up to 1000000, found "0")");
    row("watch --for nan", R"(--for: expected a number above 0 and up to 1000000, found "nan")");
    row("watch --for 1e9", R"(--for: expected a number above 0 and up to 1000000, found "1e9")");
    row("watch --speed -2", R"(--speed: expected a number above 0 and up to 1000000, found "-2")");
    row("watch --virtual=", "--virtual: expected a file name");
    row("watch --log=", "--log: expected a file name");
    row("list --library-log=", "--library-log: expected a file name");
    row("status --catalogue=", "--catalogue: expected a file name");
}

void VxPrintMonTest::wrongUsageIsRefused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, complaint);
    const Result result = run(arguments);
    QCOMPARE(result.exitStatus, 2);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(QString::fromUtf8(result.errors),
             QStringLiteral("vxprintmon: %1 (see vxprintmon --help)\n").arg(complaint));
}

void VxPrintMonTest::brokenFleetIsRefused()
{
    const QString fleet = fleetFile("{\"printers\": [\n{\"name\": 7}]}");
    for (const char* verb : {"list", "watch", "status", "send P X", "title 1"}) {
        const Result result = run(QString::fromLatin1(verb).split(QLatin1Char(' ')) +
                                  QStringList{QStringLiteral("--virtual"), fleet});
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(QString::fromUtf8(result.errors),
                 QStringLiteral("vxprintmon: %1:2: printers[0]: expected the key \"driver\"\n")
                     .arg(fleet));
    }
    const Result missing =
        run({QStringLiteral("list"), QStringLiteral("--virtual"), QStringLiteral("/no/such/file")});
    QCOMPARE(missing.exitStatus, 1);
    QCOMPARE(missing.errors, QByteArray("vxprintmon: /no/such/file: No such file or directory\n"));
}

void VxPrintMonTest::helpAndVersionArePrinted()
{
    const Result help = run({QStringLiteral("--help")});
    QCOMPARE(help.exitStatus, 0);
    QCOMPARE(help.errors, QByteArray());
    QVERIFY(help.output.startsWith("Usage: vxprintmon COMMAND"));
    for (const char* said :
         {"list ", "watch [PRINTER]... ", "status [PRINTER]", "send PRINTER COMMAND", "title CODE",
          "help [COMMAND]", "-h, --help", "--catalogue FILE", "--library-log FILE", "VX_ROLL_DB"})
        QVERIFY2(help.output.contains(said), said);
    QCOMPARE(run({QStringLiteral("-h")}).output, help.output);
    QCOMPARE(run({QStringLiteral("help")}).output, help.output);
    const Result version = run({QStringLiteral("--version")});
    QCOMPARE(version.exitStatus, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^vxprintmon \\d+\\.\\d+\\.\\d+\n$"))
                .match(QString::fromUtf8(version.output))
                .hasMatch());
    QCOMPARE(run(words("status --version")).output, version.output);
}

void VxPrintMonTest::everyCommandHasItsHelp()
{
    const QByteArray all = run({QStringLiteral("--help")}).output;
    const qsizetype begin = all.indexOf("Commands:\n");
    const QList<QByteArray> rows =
        all.sliced(begin, all.indexOf("\n\n", begin) - begin).split('\n');
    int commands = 0;
    for (const QByteArray& row : rows) {
        if (!row.startsWith("  ") || row.at(2) == ' ' || row.startsWith("  help"))
            continue;
        ++commands;
        const QString name = QString::fromUtf8(row.trimmed()).section(QLatin1Char(' '), 0, 0);
        const Result help = run({QStringLiteral("help"), name});
        QCOMPARE(help.exitStatus, 0);
        QVERIFY2(help.output.startsWith("Usage: vxprintmon " + name.toUtf8() + ' '),
                 help.output.constData());
        QVERIFY(help.output.contains("\n  --json "));
        // Also without the arguments that the command needs.
        QCOMPARE(run({name, QStringLiteral("--help")}).output, help.output);
        QCOMPARE(run({name, QStringLiteral("-h")}).output, help.output);
        // Only the options that are valid with it.
        QCOMPARE(help.output.contains("\n  --signals "), name == QLatin1String("watch"));
    }
    QVERIFY(commands >= 5);
    QVERIFY(run(words("help status")).output.contains("no longer than 2 seconds"));
    QVERIFY(run(words("help watch")).output.contains("25, 10 and 5 %"));
}

void VxPrintMonTest::fleetOfTheEnvironmentIsUsed()
{
    const QByteArray builtIn = run({QStringLiteral("list")}).output;
    const QString fleet =
        fleetFile(R"({"printers": [{"name": "Only", "driver": "Stratamark Alder"}]})");
    QProcessEnvironment hosts = environment();
    const auto list = [&](const QStringList& more = {}) {
        return run(QStringList{QStringLiteral("list")} + more, QStringLiteral(VXPRINTMON), hosts);
    };
    hosts.insert(QStringLiteral("VX_VIRTUAL_FLEET"), fleet);
    QCOMPARE(list().output.count('\n'), 2);
    QVERIFY(list().output.contains("\nOnly "));
    // The command line comes first, and "built-in" needs no file.
    QCOMPARE(list({QStringLiteral("--virtual"), QStringLiteral("built-in")}).output, builtIn);
    hosts.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QStringLiteral("built-in"));
    QCOMPARE(list().output, builtIn);
    hosts.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QStringLiteral("/no/such/file"));
    const Result missing = list();
    QCOMPARE(missing.exitStatus, 1);
    QCOMPARE(missing.errors, QByteArray("vxprintmon: /no/such/file: No such file or directory\n"));
    hosts.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QString());
    QCOMPARE(list().output, builtIn);
}

void VxPrintMonTest::logIsAppendedToAFile()
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("library.log"));
    const auto lines = [&log] {
        QFile file(log);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const Result first = run({QStringLiteral("status"), QStringLiteral("--library-log"), log});
    QCOMPARE(first.exitStatus, 0);
    QCOMPARE(first.errors, QByteArray());
    const qsizetype once = lines().count("Evaluating Printer: Warehouse");
    QCOMPARE(once, 1);
    // A second run appends to the file.
    QCOMPARE(run({QStringLiteral("status"), QStringLiteral("--library-log"), log}).exitStatus, 0);
    QCOMPARE(lines().count("Evaluating Printer: Warehouse"), 2 * once);

    const Result without = run({QStringLiteral("status")});
    QCOMPARE(without.exitStatus, 0);
    QCOMPARE(without.output, first.output);
    QCOMPARE(without.errors, QByteArray());
}

void VxPrintMonTest::logThatCannotBeWrittenIsAFailure()
{
    const Result result = run({QStringLiteral("list"), QStringLiteral("--library-log"),
                               QStringLiteral("no/such/folder")});
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray("vxprintmon: cannot write the log no/such/folder: "
                                       "No such file or directory\n"));
    const Result empty = run({QStringLiteral("list"), QStringLiteral("--library-log"), QString()});
    QCOMPARE(empty.exitStatus, 2);
    QVERIFY2(empty.errors.startsWith("vxprintmon: --library-log: expected a file name"),
             empty.errors.constData());
}

QTEST_GUILESS_MAIN(VxPrintMonTest)
#include "tst_vxprintmon.moc"
