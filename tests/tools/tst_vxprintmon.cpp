// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The monitor as its users see it: which arguments lead to which text, JSON and exit status.
#include "patience.h"
#include "printer_status_controller.h"
#include "status_info.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <array>
#include <csignal>

namespace {

struct Result
{
    int exitStatus = -1;
    QByteArray output;
    QByteArray errors;
};

/// One line of `watch --json`, as text and as an object.
struct Line
{
    QByteArray text;
    QJsonObject object;

    QString signal() const { return object.value(QStringLiteral("signal")).toString(); }
    QString printer() const { return object.value(QStringLiteral("printerName")).toString(); }
    QJsonObject record(const QString& printer) const
    {
        const QJsonArray printers = object.value(QStringLiteral("printers")).toArray();
        for (const QJsonValue& entry : printers) {
            if (entry[QStringLiteral("printerName")] == printer)
                return entry.toObject();
        }
        return {};
    }
};

QByteArrayList keysOf(const QMetaObject& type)
{
    QByteArrayList keys;
    for (int i = 0; i < type.propertyCount(); ++i)
        keys.append(type.property(i).name());
    return keys;
}

/// Whether the text of a JSON object has these keys in this order.
bool hasInOrder(const QByteArray& text, const QByteArrayList& keys)
{
    qsizetype place = 0;
    for (const QByteArray& key : keys) {
        place = text.indexOf('"' + key + "\":", place);
        if (place < 0)
            return false;
    }
    return true;
}

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

const QString updated = QStringLiteral("availablePrintersUpdated");
const QString inError = QStringLiteral("printerErrorChangedSignal");
const QString statusChanged = QStringLiteral("statusChangedSignal");
const QString supplyChanged = QStringLiteral("supplyIdChangedSignal");
const QString ribbonsChanged = QStringLiteral("ribbonIdsChangedSignal");
const QString activeSet = QStringLiteral("activeDefaultPrinterSetSignal");

const QString shipping = QStringLiteral("Shipping");
const QString warehouse = QStringLiteral("Warehouse");
const QString returns = QStringLiteral("Returns");

} // namespace

class VxPrintMonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void listPrintsATable();
    void listPrintsJson();
    void fleetOfHostsIsIgnored();
    void listWithoutPrintersSaysSo();

    void statusPrintsATable();
    void statusOfOnePrinterPrintsItsDetails();
    void statusPrintsRecordsAsJson();
    void statusOfOnePrinterPrintsItsRecordAsJson();
    void statusOfAnUnknownPrinterFails();
    void statusWithoutPrintersSaysSo();
    void statusStopsWaitingForASilentPrinter();
    void statusFailsWhenInterrupted();
    void namesAndTitlesAreInTheUsersLanguage_data();
    void namesAndTitlesAreInTheUsersLanguage();

    void sendPrintsThePrintJob();
    void sendPrintsThePrintJobAsJson();
    void sendToAnUnknownPrinterFails();
    void sendNeedsForce_data();
    void sendNeedsForce();
    void sendWaitsUntilTheJobIsPrinted();
    void sendSaysWhatHoldsTheJob();
    void sendFailsIfTheJobIsLost();
    void titleIsPrinted_data();
    void titleIsPrinted();
    void titlesOfAllCodesArePrinted();
    void titlesOfAllCodesArePrintedAsJson();

    void watchPrintsEverySignalAsJson();
    void watchPrintsSignalsAndChangesAsText();
    void watchEndsAfterTheGivenTime();
    void watchReportsAPrinterThatIsAddedLater();
    void watchEndsWhenInterrupted_data();
    void watchEndsWhenInterrupted();
    void twoMonitorsRunSideBySide();

    void everyLineHasTheArgumentsOfItsSignal();
    void storyReportsWhenErrorsBeginAndEnd();
    void storyReportsTheActivePrinter();
    void storyReportsASupplyThatRunsOut();
    void storyReportsARibbonThatIsReplaced();
    void storyReportsAPrinterThatIsFound();
    void storyReportsThatTheSpoolerStops();
    void storyReportsAPrinterThatGoesOffline();

    void coloursAppearOnlyOnATerminal();
    void wrongUsageIsRefused_data();
    void wrongUsageIsRefused();
    void brokenFleetIsRefused();
    void helpAndVersionArePrinted();
    void logIsAppendedToAFile();
    void logThatCannotBeWrittenIsAFailure();
    void leavesNothingBehind();

private:
    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("NO_COLOR"));
        environment.remove(QStringLiteral("LANGUAGE"));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        // Settings, endpoints and temporary files are all written here.
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
            environment.insert(QString::fromLatin1(name), m_home.path());
        return environment;
    }
    Result run(const QStringList& arguments, const QString& program = QStringLiteral(VXPRINTMON),
               const QProcessEnvironment& changed = {})
    {
        QProcess process;
        process.setProcessEnvironment(changed.isEmpty() ? environment() : changed);
        process.start(program, arguments);
        if (!process.waitForFinished(patience))
            return {};
        return resultOf(process);
    }
    /// Runs the monitor until it has printed a text, then terminates it.
    Result runUntil(const QByteArray& last, const QStringList& arguments)
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral(VXPRINTMON), arguments);
        QByteArray output;
        while (!output.contains(last)) {
            if (!process.waitForReadyRead(patience))
                return {-1, output + "\n... and no \"" + last + '"',
                        process.readAllStandardError()};
            output += process.readAllStandardOutput();
        }
        process.terminate();
        process.waitForFinished(patience);
        Result result = resultOf(process);
        result.output.prepend(output);
        return result;
    }
    static Result resultOf(QProcess& process)
    {
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }
    QString fleetFile(const QByteArray& text)
    {
        const QString name = m_home.filePath(QStringLiteral("fleet %1.json").arg(++m_fleets));
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(name));
        return name;
    }
    static QList<Line> linesOf(const QByteArray& output)
    {
        QList<Line> lines;
        const QList<QByteArray> texts = output.trimmed().split('\n');
        for (const QByteArray& text : texts)
            lines.append({text, QJsonDocument::fromJson(text).object()});
        return lines;
    }
    /// The built-in story as `watch --json` prints it. It is played once for all tests.
    const QList<Line>& story();
    /// The lines of the story for the signal of that name.
    QList<Line> linesOfStory(const QString& signal)
    {
        QList<Line> found = story();
        found.removeIf([&](const Line& line) { return line.signal() != signal; });
        return found;
    }
    /// The lines of the story from the one that first reports this status of this printer.
    QList<Line> linesOfStoryFrom(const QString& printer, int status);
    QStringList entries() const
    {
        return QDir(m_home.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_home;
    int m_fleets = 0;
    QList<Line> m_story;
};

void VxPrintMonTest::initTestCase()
{
    QVERIFY(m_home.isValid());
}

// list ////////////////////////////////////////////////////////////////////////////////////////////

void VxPrintMonTest::listPrintsATable()
{
    const Result result = run({QStringLiteral("list")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QByteArray expected =
        R"(PRINTER           MODEL     PORT          SERIAL    DRIVER                     FLAGS
Shipping          AlderMax  001           AM-20871  Stratamark AlderMax        shared
Warehouse         Alder     002           AL-00342  Stratamark Alder           default
Returns           BirchMax  003           BM-11500  Stratamark BirchMax        offline
Laboratory        CedarMax  004           CM-00077  Stratamark CedarMax        not managed, offline
Branch Office     BirchMax  192.168.1.20  -         Stratamark BirchMax        network
Front Desk Laser  -         LPT1:         -         Everyday Office Laser 400  
)";
    QCOMPARE(result.output, expected);
}

void VxPrintMonTest::fleetOfHostsIsIgnored()
{
    QProcessEnvironment hosts = environment();
    hosts.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QStringLiteral("built-in"));
    const Result result = run({QStringLiteral("list")}, QStringLiteral(VXPRINTMON), hosts);
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.output, run({QStringLiteral("list")}).output);
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

// status //////////////////////////////////////////////////////////////////////////////////////////

void VxPrintMonTest::statusPrintsATable()
{
    const Result result = run({QStringLiteral("status")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QByteArray expected =
        R"(PRINTER        STATUS                         SUPPLY              RIBBON 1     RIBBON 2     FIRMWARE        ACTIVE
Branch Office  Printer Is Remotely Connected  -                   -            -            -               
Shipping       Ready                          Yellow Vinyl, 80 %  Black, 80 %  Red, 35 %    4.2.0,boot 1.7  
Warehouse      Ready                          White Paper, 82 %   Blue, 3 %    Black, 57 %  4.1.3,boot 1.7  yes
)";
    QCOMPARE(result.output, expected);
}

void VxPrintMonTest::statusOfOnePrinterPrintsItsDetails()
{
    const Result result = run({QStringLiteral("status"), warehouse});
    QCOMPARE(result.exitStatus, 0);
    const QByteArray expected = R"(printer          Warehouse
active           yes
status           Ready
online           yes
supply           White Paper (DE-400200-WH)
supply left      82 %
ribbon 1         Blue (RS-43-BL)
ribbon 1 left    3 %
ribbon 2         Black (RS-43-BK)
ribbon 2 left    57 %
has a ribbon 2   yes
firmware         4.1.3,boot 1.7
network printer  no
managed          yes
has been active  yes
)";
    QCOMPARE(result.output, expected);
}

void VxPrintMonTest::statusPrintsRecordsAsJson()
{
    const Result result = run({QStringLiteral("status"), QStringLiteral("--json")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QByteArrayList keys = keysOf(PrinterStatusInformation::staticMetaObject);
    QCOMPARE(keys.size(), 21);
    const QList<QByteArray> lines = result.output.trimmed().split('\n');
    QCOMPARE(lines.size(), 5); // three printers between the brackets
    for (const QByteArray& line : lines.mid(1, 3))
        QVERIFY2(hasInOrder(line, keys), line.constData());

    const QJsonArray records = QJsonDocument::fromJson(result.output).array();
    QCOMPARE(records.size(), 3);
    for (const QJsonValue& record : records)
        QCOMPARE(record.toObject().size(), 21);
    QCOMPARE(records.at(0)[QStringLiteral("printerName")].toString(),
             QStringLiteral("Branch Office"));
    QCOMPARE(records.at(0)[QStringLiteral("statusEnum")].toInt(), 256);
    QCOMPARE(records.at(1).toObject(),
             (QJsonObject{
                 {QStringLiteral("printerName"), shipping},
                 {QStringLiteral("statusEnum"), 1},
                 {QStringLiteral("printerOnline"), true},
                 {QStringLiteral("printerRemote"), false},
                 {QStringLiteral("printerNonAdmin"), false},
                 {QStringLiteral("printerDefault"), false},
                 {QStringLiteral("ribbon1Percentage"), 80},
                 {QStringLiteral("ribbon1ColorHex"), QStringLiteral("#000000")},
                 {QStringLiteral("ribbon1ColorName"), QStringLiteral("Black")},
                 {QStringLiteral("ribbon1SKU"), QStringLiteral("RS-43-BK")},
                 {QStringLiteral("ribbon2Percentage"), 35},
                 {QStringLiteral("ribbon2ColorHex"), QStringLiteral("#c8102e")},
                 {QStringLiteral("ribbon2ColorName"), QStringLiteral("Red")},
                 {QStringLiteral("ribbon2SKU"), QStringLiteral("RS-43-RD")},
                 {QStringLiteral("softwareVersion"), QStringLiteral("4.2.0,boot 1.7")},
                 {QStringLiteral("supplyPercentage"), 80},
                 {QStringLiteral("supplyColorHex"), QStringLiteral("#ffd100")},
                 {QStringLiteral("supplyColorName"), QStringLiteral("Yellow")},
                 {QStringLiteral("supplySKU"), QStringLiteral("VT-400-YL")},
                 {QStringLiteral("supplyMaterialName"), QStringLiteral("Vinyl")},
                 {QStringLiteral("ribbon2Visible"), true},
             }));
}

void VxPrintMonTest::statusOfOnePrinterPrintsItsRecordAsJson()
{
    const Result all = run({QStringLiteral("status"), QStringLiteral("--json")});
    const Result one = run({QStringLiteral("status"), warehouse, QStringLiteral("--json")});
    QCOMPARE(one.exitStatus, 0);
    const QJsonArray records = QJsonDocument::fromJson(one.output).array();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first(), QJsonDocument::fromJson(all.output).array().at(2));
}

void VxPrintMonTest::statusOfAnUnknownPrinterFails()
{
    // Names are compared exactly. Printers of other makers and printers that are offline from the
    // beginning have no record.
    for (const char* name : {"shipping", "Nowhere", "", "Front Desk Laser", "Returns"}) {
        for (const bool json : {false, true}) {
            QStringList arguments{QStringLiteral("status"), QString::fromLatin1(name)};
            if (json)
                arguments.append(QStringLiteral("--json"));
            const Result result = run(arguments);
            QCOMPARE(result.exitStatus, 1);
            QCOMPARE(result.output, QByteArray());
            QCOMPARE(result.errors,
                     QByteArray("vxprintmon: there is no record of a printer \"") + name +
                         "\"; \"vxprintmon status\" shows the printers that have one\n");
        }
    }
}

void VxPrintMonTest::statusWithoutPrintersSaysSo()
{
    const QString fleet =
        fleetFile(R"({"printers": [{"name": "A", "driver": "Some Office Printer"}]})");
    const Result json = run(
        {QStringLiteral("status"), QStringLiteral("--json"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(json.exitStatus, 0);
    QCOMPARE(json.output, QByteArray("[]\n"));
    const Result people = run({QStringLiteral("status"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(people.exitStatus, 0);
    QCOMPARE(people.output, QByteArray("There are no label printers yet.\n"));
}

void VxPrintMonTest::statusStopsWaitingForASilentPrinter()
{
    const QString fleet = fleetFile(R"({"printers": [
        {"name": "Mute", "driver": "Stratamark Alder"},
        {"name": "P", "driver": "Stratamark Alder", "values": {"StatusCode": "4"}}]})");
    QElapsedTimer clock;
    clock.start();
    const Result result = run(
        {QStringLiteral("status"), QStringLiteral("--json"), QStringLiteral("--virtual"), fleet});
    QVERIFY(clock.elapsed() >= 1900);
    QCOMPARE(result.exitStatus, 0);
    const QJsonArray records = QJsonDocument::fromJson(result.output).array();
    QCOMPARE(records.size(), 2);
    QCOMPARE(records.at(0)[QStringLiteral("statusEnum")].toInt(), 255);
    QCOMPARE(records.at(1)[QStringLiteral("statusEnum")].toInt(), 4);
}

void VxPrintMonTest::statusFailsWhenInterrupted()
{
    const QString fleet =
        fleetFile(R"({"printers": [{"name": "Mute", "driver": "Stratamark Alder"}]})");
    // It waits no longer than 2 seconds, and on a busy computer the signal may come too late.
    int exitStatus = 0;
    for (int attempt = 0; exitStatus == 0 && attempt < 10; ++attempt) {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral(VXPRINTMON),
                      {QStringLiteral("status"), QStringLiteral("--virtual"), fleet});
        // The endpoint appears once the event loop runs, in which the monitor waits.
        QTRY_VERIFY_WITH_TIMEOUT(entries().contains(QStringLiteral("vxipc-0")) ||
                                     process.state() == QProcess::NotRunning,
                                 patience);
        process.terminate();
        QVERIFY(process.state() == QProcess::NotRunning || process.waitForFinished(patience));
        const Result result = resultOf(process);
        exitStatus = result.exitStatus;
        if (exitStatus != 0) {
            QCOMPARE(result.output, QByteArray());
            QCOMPARE(result.errors, QByteArray("vxprintmon: interrupted\n"));
        }
    }
    QCOMPARE(exitStatus, 1);
}

void VxPrintMonTest::namesAndTitlesAreInTheUsersLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<QString>("material");
    QTest::addColumn<QString>("ribbon");
    QTest::addColumn<QString>("title");
    const auto row = [](const char* language, const QString& colour, const QString& material,
                        const QString& ribbon, const QString& title) {
        QTest::newRow(language) << QString::fromLatin1(language) << colour << material << ribbon
                                << title;
    };
    row("de", QStringLiteral("Gelb"), QStringLiteral("Vinyl"), QStringLiteral("Schwarz"),
        QStringLiteral("Bereit"));
    row("ja", QStringLiteral("黄"), QStringLiteral("ビニール"), QStringLiteral("黒"),
        QStringLiteral("準備完了"));
    // There are Italian titles, but the catalogue has no Italian names.
    row("it", QStringLiteral("Yellow"), QStringLiteral("Vinyl"), QStringLiteral("Black"),
        QStringLiteral("Pronta"));
}

void VxPrintMonTest::namesAndTitlesAreInTheUsersLanguage()
{
    QFETCH(const QString, language);
    QProcessEnvironment changed = environment();
    changed.insert(QStringLiteral("LANGUAGE"), language);
    const Result result = run({QStringLiteral("status"), shipping, QStringLiteral("--json")},
                              QStringLiteral(VXPRINTMON), changed);
    const QJsonObject record = QJsonDocument::fromJson(result.output).array().first().toObject();
    QTEST(record.value(QStringLiteral("supplyColorName")).toString(), "colour");
    QTEST(record.value(QStringLiteral("supplyMaterialName")).toString(), "material");
    QTEST(record.value(QStringLiteral("ribbon1ColorName")).toString(), "ribbon");
    const Result title =
        run({QStringLiteral("title"), QStringLiteral("1")}, QStringLiteral(VXPRINTMON), changed);
    QTEST(QString::fromUtf8(title.output).trimmed(), "title");
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
        QCOMPARE(result.errors,
                 QByteArray("vxprintmon: the command was not sent: \"Nowhere\" cannot be opened: "
                            "The printer's name is not valid.\n"));
    }
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

// watch ///////////////////////////////////////////////////////////////////////////////////////////

void VxPrintMonTest::watchPrintsEverySignalAsJson()
{
    const QString printer = QStringLiteral("P \"1\"");
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "P \"1\"", "driver": "Stratamark Alder", "values":
            {"StatusCode": "1", "Ribbon1Identifier": 2004, "Mileage": 50}}],
        "defaultPrinter": "P \"1\"",
        "timeline": [{"at": 100, "say": "a caption", "printer": "P \"1\"",
                      "values": {"StatusCode": "42", "SoftwareVersion": "end"}}]})");
    const Result result =
        runUntil(R"("softwareVersion":"end")",
                 {QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--speed"),
                  QStringLiteral("500"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());

    QByteArrayList texts;
    const QList<Line> lines = linesOf(result.output);
    for (const Line& line : lines) {
        if (line.signal() != updated) {
            texts.append(line.text);
            continue;
        }
        // Of the record, only the properties that change in this story.
        const QJsonObject record = line.record(printer);
        QCOMPARE(record.size(), 21);
        texts.append("updated " +
                     QByteArray::number(record.value(QStringLiteral("statusEnum")).toInt()) + ' ' +
                     record.value(QStringLiteral("ribbon1ColorName")).toString().toUtf8() + ' ' +
                     QByteArray::number(record.value(QStringLiteral("supplyPercentage")).toInt()) +
                     ' ' + record.value(QStringLiteral("softwareVersion")).toString().toUtf8());
    }
    QCOMPARE(texts, (QByteArrayList{
                        R"({"signal":"statusChangedSignal","status":1,"printerName":"P \"1\""})",
                        "updated 1  0 ",
                        R"({"signal":"ribbonIdsChangedSignal","printerName":"P \"1\""})",
                        "updated 1 Red 0 ",
                        "updated 1 Red 50 ",
                        R"({"signal":"printerErrorChangedSignal","printerInErrorState":true})",
                        R"({"signal":"statusChangedSignal","status":42,"printerName":"P \"1\""})",
                        "updated 42 Red 50 ",
                        "updated 42 Red 50 end",
                    }));
}

void VxPrintMonTest::watchPrintsSignalsAndChangesAsText()
{
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "P", "driver": "Stratamark BirchMax", "values": {"StatusCode": "1",
            "SupplyIdentifier": "000000641000030000A7"}}],
        "defaultPrinter": "P",
        "timeline": [
            {"at": 100, "say": "The lid is opened.", "printer": "P",
             "values": {"StatusCode": "4", "SupplyIdentifier": "00000000000000000000"}},
            {"at": 200, "say": "A ribbon comes.", "printer": "P",
             "values": {"Ribbon1Identifier": 2005, "Ribbon1Mileage": 120015}},
            {"at": 250, "printer": "P", "values": {"Ribbon1Mileage": 120014}},
            {"at": 300, "say": "A printer comes.",
             "add": {"name": "Quill", "driver": "Stratamark Alder", "port": "10.0.0.1"}},
            {"at": 400, "say": "The lid is closed.", "printer": "P",
             "values": {"StatusCode": "1", "SoftwareVersion": "1.0"}}]})");
    const Result result =
        runUntil("firmware 1.0", {QStringLiteral("watch"), QStringLiteral("--speed"),
                                  QStringLiteral("500"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());

    const QList<QByteArray> lines = result.output.trimmed().split('\n');
    QCOMPARE(lines.mid(0, 3),
             (QByteArrayList{
                 "PRINTER  STATUS     SUPPLY  RIBBON 1  RIBBON 2  FIRMWARE  ACTIVE",
                 "P        not known  -       -         -         -         yes",
                 "",
             }));
    // Changes in the records are printed once for all signals that were queued together, so the
    // number of lines is a matter of chance. The changes in each part of the story are not.
    const QByteArray label = "records  ";
    QByteArrayList printed;
    QByteArrayList changed;
    const auto endPart = [&] {
        if (!changed.isEmpty())
            printed.append("records: " + changed.join(", "));
        changed.clear();
    };
    for (const QByteArray& line : lines.mid(3)) {
        const QByteArray text = line.mid(QByteArray("   0.0 s  ").size());
        const qsizetype records = text.indexOf(label);
        if (text.endsWith('.'))
            endPart();
        if (records < 0)
            printed.append(text);
        else
            changed.append(text.mid(records + label.size()));
    }
    endPart();
    QCOMPARE(printed,
             (QByteArrayList{
                 "P  status     1  Ready",
                 "P  supply   changed or removed",
                 "records: status not known → Ready, supply Yellow Vinyl (VT-400-YL)",
                 "The lid is opened.",
                 "   errors   a printer is in error",
                 "P  status     4  The cover is open",
                 "P  supply   changed or removed",
                 QByteArray("records: status Ready → The cover is open, "
                            "supply Yellow Vinyl (VT-400-YL) → none"),
                 "A ribbon comes.",
                 "P  ribbons  changed or removed",
                 QByteArray("records: ribbon 1 Blue (RS-43-BL), ribbon 1 left 0 % → 100 %, "
                            "ribbon 1 left 100 % → 99 %"),
                 "A printer comes.",
                 "Quill  found    Printer Is Remotely Connected",
                 "The lid is closed.",
                 "       errors   no printer is in error",
                 "P      status     1  Ready",
                 "records: status The cover is open → Ready, firmware 1.0",
             }));
}

void VxPrintMonTest::watchEndsAfterTheGivenTime()
{
    QElapsedTimer clock;
    clock.start();
    const Result result = run({QStringLiteral("watch"), QStringLiteral("--json"),
                               QStringLiteral("--for"), QStringLiteral("0.5")});
    QVERIFY(clock.elapsed() >= 500);
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
}

void VxPrintMonTest::watchReportsAPrinterThatIsAddedLater()
{
    const QString fleet = fleetFile(R"({"printers": [], "timeline": [
        {"at": 100, "add": {"name": "P", "driver": "Stratamark Alder",
                            "values": {"StatusCode": "1"}}}]})");
    const QStringList arguments{QStringLiteral("watch"), QStringLiteral("--speed"),
                                QStringLiteral("500"), QStringLiteral("--virtual"), fleet};
    const Result people = runUntil("not known → Ready", arguments);
    QCOMPARE(people.exitStatus, 0);
    QVERIFY(people.output.startsWith("There are no label printers yet.\n\n"));
    QVERIFY(people.output.contains("P  found    is now watched\n"));

    const Result json =
        runUntil("availablePrintersUpdated", arguments + QStringList{QStringLiteral("--json")});
    QCOMPARE(json.exitStatus, 0);
    QVERIFY(json.output.startsWith(
        R"({"signal":"activeDefaultPrinterSetSignal","activePrinterName":"P","isVX":true})"));
}

void VxPrintMonTest::watchEndsWhenInterrupted_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("interrupted") << SIGINT;
    QTest::newRow("terminated") << SIGTERM;
}

void VxPrintMonTest::watchEndsWhenInterrupted()
{
    QFETCH(const int, number);
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral(VXPRINTMON), {QStringLiteral("watch"), QStringLiteral("--json")});
    QTRY_VERIFY_WITH_TIMEOUT(process.bytesAvailable() > 0, patience);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), number), 0);
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

void VxPrintMonTest::twoMonitorsRunSideBySide()
{
    // Each has its own endpoints and watches all printers.
    std::array<QProcess, 2> processes;
    qsizetype endpointCount = 0;
    for (QProcess& process : processes) {
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral(VXPRINTMON),
                      {QStringLiteral("watch"), QStringLiteral("--json")});
        QByteArray output;
        QTRY_VERIFY_WITH_TIMEOUT((output += process.readAllStandardOutput())
                                     .contains(R"("softwareVersion":"4.1.3,boot 1.7")"),
                                 patience);
        endpointCount += 2;
        QTRY_COMPARE_WITH_TIMEOUT(entries().filter(QStringLiteral("vxipc-")).size(), endpointCount,
                                  patience);
    }
    const QStringList endpoints = entries().filter(QStringLiteral("vxipc-"));
    QVERIFY(endpoints.contains(QStringLiteral("vxipc-0")));
    QVERIFY(endpoints.contains(QStringLiteral("vxipc-0-%1").arg(processes[1].processId())));

    for (QProcess& process : processes) {
        QCOMPARE(process.state(), QProcess::Running);
        process.terminate();
        QVERIFY(process.waitForFinished(patience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardError(), QByteArray());
    }
    QCOMPARE(entries().filter(QStringLiteral("vxipc-")), QStringList());
}

// The built-in story //////////////////////////////////////////////////////////////////////////////

const QList<Line>& VxPrintMonTest::story()
{
    if (m_story.isEmpty()) {
        const Result result =
            runUntil(R"("printerName":"Warehouse","statusEnum":1,"printerOnline":true,)"
                     R"("printerRemote":false,"printerNonAdmin":false,)"
                     R"("printerDefault":true,"ribbon1Percentage":100,)"
                     R"("ribbon1ColorHex":"#00843d","ribbon1ColorName":"Green",)"
                     R"("ribbon1SKU":"RS-43-GN","ribbon2Percentage":57,)"
                     R"("ribbon2ColorHex":"#000000","ribbon2ColorName":"Black",)"
                     R"("ribbon2SKU":"RS-43-BK","softwareVersion":"4.2.0,boot 1.7")",
                     {QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--speed"),
                      QStringLiteral("200")});
        m_story = linesOf(result.output);
        if (result.exitStatus != 0 || !result.errors.isEmpty())
            qFatal("the story ended with status %d: %s\n%s", result.exitStatus,
                   result.errors.constData(), result.output.constData());
    }
    return m_story;
}

QList<Line> VxPrintMonTest::linesOfStoryFrom(const QString& printer, int status)
{
    const QList<Line>& lines = story();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const Line& line = lines.at(i);
        if (line.signal() == statusChanged && line.printer() == printer &&
            line.object.value(QStringLiteral("status")).toInt() == status)
            return lines.sliced(i);
    }
    return {};
}

void VxPrintMonTest::everyLineHasTheArgumentsOfItsSignal()
{
    QMap<QString, QByteArrayList> argumentsOf;
    const QMetaObject& type = PrinterStatusController::staticMetaObject;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() == QMetaMethod::Signal)
            argumentsOf.insert(QString::fromLatin1(type.method(i).name()),
                               type.method(i).parameterNames());
    }
    QCOMPARE(argumentsOf.size(), 7);
    argumentsOf[updated] = {"printers"};

    const QByteArrayList properties = keysOf(PrinterStatusInformation::staticMetaObject);
    QSet<QString> seen;
    for (const Line& line : story()) {
        QVERIFY2(argumentsOf.contains(line.signal()), line.text.constData());
        seen.insert(line.signal());
        const QByteArrayList keys = QByteArrayList{"signal"} + argumentsOf.value(line.signal());
        QCOMPARE(line.object.size(), keys.size());
        QVERIFY2(hasInOrder(line.text, keys), line.text.constData());
        const QJsonArray records = line.object.value(QStringLiteral("printers")).toArray();
        for (const QJsonValue& record : records)
            QCOMPARE(record.toObject().size(), properties.size());
        if (!records.isEmpty())
            QVERIFY2(hasInOrder(line.text, properties), line.text.constData());
    }
    // Every signal but the one that the library never emits.
    QCOMPARE(seen.size(), 6);
    QVERIFY(!seen.contains(QStringLiteral("softwareVersionUpdated")));
}

void VxPrintMonTest::storyReportsWhenErrorsBeginAndEnd()
{
    QList<bool> states;
    for (const Line& line : linesOfStory(inError))
        states.append(line.object.value(QStringLiteral("printerInErrorState")).toBool());
    // Out of labels, lid, pause, spooler, firmware: each error begins and ends.
    QCOMPARE(states,
             (QList<bool>{true, false, true, false, true, false, true, false, true, false}));
}

void VxPrintMonTest::storyReportsTheActivePrinter()
{
    QStringList names;
    for (const Line& line : linesOfStory(activeSet)) {
        QVERIFY(line.object.value(QStringLiteral("isVX")).toBool());
        names.append(line.object.value(QStringLiteral("activePrinterName")).toString());
    }
    // Shipping becomes the Windows default printer. It is switched off, so the first printer by
    // name becomes active. It comes back.
    QCOMPARE(names, (QStringList{shipping, returns, shipping}));

    // The library notices the new default printer at the printer's next report, and signals it
    // before that report.
    const QList<Line>& lines = story();
    const auto paused = std::ranges::find_if(lines, [](const Line& line) {
        return line.object.value(QStringLiteral("status")).toInt() == 19;
    });
    QVERIFY(paused != lines.end());
    QCOMPARE(std::prev(paused, 1)->signal(), activeSet);
    QCOMPARE(std::prev(paused, 2)->signal(), inError);
}

void VxPrintMonTest::storyReportsASupplyThatRunsOut()
{
    const auto supplyOf = [](const QJsonObject& record) {
        return QStringLiteral("%1 %2 %3 %4 %5")
            .arg(record.value(QStringLiteral("supplyPercentage")).toInt())
            .arg(record.value(QStringLiteral("supplyColorName")).toString(),
                 record.value(QStringLiteral("supplyMaterialName")).toString(),
                 record.value(QStringLiteral("supplyColorHex")).toString(),
                 record.value(QStringLiteral("supplySKU")).toString());
    };
    QStringList states;
    for (const Line& line : linesOfStory(updated)) {
        const QString state = supplyOf(line.record(shipping));
        if (states.isEmpty() || states.last() != state)
            states.append(state);
    }
    QCOMPARE(states, (QStringList{
                         QStringLiteral("0    "),
                         QStringLiteral("0 Yellow Vinyl #ffd100 VT-400-YL"),
                         QStringLiteral("80 Yellow Vinyl #ffd100 VT-400-YL"),
                         QStringLiteral("60 Yellow Vinyl #ffd100 VT-400-YL"),
                         QStringLiteral("40 Yellow Vinyl #ffd100 VT-400-YL"),
                         QStringLiteral("20 Yellow Vinyl #ffd100 VT-400-YL"),
                         QStringLiteral("2 Yellow Vinyl #ffd100 VT-400-YL"),
                         QStringLiteral("2   #ffffff -1"),
                         QStringLiteral("0   #ffffff -1"),
                         QStringLiteral("0 Orange Vinyl #ff6a13 VT-400-OR"),
                         QStringLiteral("100 Orange Vinyl #ff6a13 VT-400-OR"),
                     }));

    // When the labels run out, the status is reported first and then the supply.
    const QList<Line> moment = linesOfStoryFrom(shipping, 2);
    QVERIFY(moment.size() > 4);
    QCOMPARE(moment.at(1).signal(), updated);
    QCOMPARE(moment.at(1).record(shipping).value(QStringLiteral("statusEnum")).toInt(), 2);
    QCOMPARE(moment.at(2).signal(), supplyChanged);
    QCOMPARE(moment.at(2).printer(), shipping);
    QCOMPARE(moment.at(3).signal(), updated);
    QCOMPARE(moment.at(3).record(shipping).value(QStringLiteral("supplySKU")).toString(),
             QStringLiteral("-1"));
}

void VxPrintMonTest::storyReportsARibbonThatIsReplaced()
{
    // The lid is opened, with which the printer also reports that the ribbon is used up. Then the
    // new ribbon is loaded.
    const QList<Line> moment = linesOfStoryFrom(warehouse, 4);
    QVERIFY(moment.size() > 6);
    QCOMPARE(moment.at(1).signal(), updated);
    QCOMPARE(moment.at(2).signal(), updated);
    QCOMPARE(moment.at(2).record(warehouse).value(QStringLiteral("ribbon1Percentage")).toInt(-1),
             0);
    QCOMPARE(moment.at(2).record(warehouse).value(QStringLiteral("ribbon1ColorName")).toString(),
             QStringLiteral("Blue"));

    QCOMPARE(moment.at(3).signal(), ribbonsChanged);
    QCOMPARE(moment.at(3).printer(), warehouse);
    QCOMPARE(moment.at(4).signal(), updated);
    const QJsonObject record = moment.at(4).record(warehouse);
    QCOMPARE(record.value(QStringLiteral("ribbon1ColorName")).toString(), QStringLiteral("Green"));
    QCOMPARE(record.value(QStringLiteral("ribbon1ColorHex")).toString(), QStringLiteral("#00843d"));
    QCOMPARE(record.value(QStringLiteral("ribbon1SKU")).toString(), QStringLiteral("RS-43-GN"));
    QCOMPARE(record.value(QStringLiteral("ribbon2ColorName")).toString(), QStringLiteral("Black"));
    QCOMPARE(record.value(QStringLiteral("ribbon1Percentage")).toInt(-1), 0);
    QCOMPARE(moment.at(5).signal(), updated);
    QCOMPARE(moment.at(5).record(warehouse).value(QStringLiteral("ribbon1Percentage")).toInt(),
             100);
    QCOMPARE(moment.at(6).signal(), inError);
}

void VxPrintMonTest::storyReportsAPrinterThatIsFound()
{
    const QList<Line> moment = linesOfStoryFrom(returns, 1);
    QVERIFY(moment.size() > 8);
    QStringList signalNames;
    for (const Line& line : moment.first(8))
        signalNames.append(line.signal());
    QCOMPARE(signalNames, (QStringList{statusChanged, updated, supplyChanged, updated,
                                       ribbonsChanged, updated, updated, updated}));
    const QJsonObject record = moment.at(7).record(returns);
    QCOMPARE(record.value(QStringLiteral("supplyColorName")).toString(), QStringLiteral("Yellow"));
    QCOMPARE(record.value(QStringLiteral("supplyMaterialName")).toString(),
             QStringLiteral("Reflective film"));
    QCOMPARE(record.value(QStringLiteral("supplyPercentage")).toInt(), 90);
    QCOMPARE(record.value(QStringLiteral("ribbon1ColorName")).toString(), QStringLiteral("Blue"));
    QCOMPARE(record.value(QStringLiteral("ribbon1Percentage")).toInt(), 92);
    QCOMPARE(record.value(QStringLiteral("ribbon2Visible")).toBool(true), false);
}

void VxPrintMonTest::storyReportsThatTheSpoolerStops()
{
    // For each printer separately, because the threads notice it in no fixed order.
    QMap<QString, QList<int>> statuses;
    for (const Line& line : linesOfStory(statusChanged))
        statuses[line.printer()].append(line.object.value(QStringLiteral("status")).toInt());
    QCOMPARE(statuses, (QMap<QString, QList<int>>{
                           {shipping, {1, 2, 1, 19, 1, 254, 1, 257, 1}},
                           {warehouse, {1, 4, 1, 254, 1, 21, 1}},
                           {returns, {1, 254, 1}},
                       }));
}

void VxPrintMonTest::storyReportsAPrinterThatGoesOffline()
{
    const QList<Line> moment = linesOfStoryFrom(shipping, 257);
    QVERIFY(moment.size() > 4);
    const QJsonObject offline = moment.at(1).record(shipping);
    QCOMPARE(offline.value(QStringLiteral("statusEnum")).toInt(), 257);
    QCOMPARE(offline.value(QStringLiteral("printerOnline")).toBool(true), false);
    // When it comes back, it first becomes active and then has its status.
    QCOMPARE(moment.at(2).signal(), activeSet);
    QCOMPARE(moment.at(3).signal(), statusChanged);
    QCOMPARE(moment.at(4).record(shipping).value(QStringLiteral("printerOnline")).toBool(), true);
}

// The command line ////////////////////////////////////////////////////////////////////////////////

void VxPrintMonTest::coloursAppearOnlyOnATerminal()
{
    const QString script = QStandardPaths::findExecutable(QStringLiteral("script"));
    if (script.isEmpty())
        QSKIP("there is no script(1) here to give the tool a terminal");
    const auto inTerminal = [](const char* verb) {
        return QStringList{QStringLiteral("-qec"),
                           QStringLiteral("'" VXPRINTMON "' ") + QString::fromLatin1(verb),
                           QStringLiteral("/dev/null")};
    };
    QProcessEnvironment terminal = environment();
    terminal.insert(QStringLiteral("TERM"), QStringLiteral("xterm"));
    QVERIFY(run(inTerminal("list"), script, terminal).output.contains("\033[32mShipping\033[0m"));
    const QByteArray coloured = run(inTerminal("status"), script, terminal).output;
    QVERIFY(coloured.contains("\033[32mReady\033[0m"));
    QVERIFY(coloured.contains("\033[38;2;255;209;0m██ \033[0mYellow Vinyl, 80 %"));
    terminal.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    const Result plain = run(inTerminal("status"), script, terminal);
    QVERIFY(plain.output.contains("Yellow"));
    QVERIFY(!plain.output.contains('\033'));
    QVERIFY(!plain.output.contains("█"));
    terminal.remove(QStringLiteral("NO_COLOR"));
    terminal.insert(QStringLiteral("TERM"), QStringLiteral("dumb"));
    QVERIFY(!run(inTerminal("list"), script, terminal).output.contains('\033'));
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
    row("", "expected a command: list, watch, status, send, title");
    row("lst", R"(unknown command "lst"; expected one of list, watch, status, send, title)");
    row("list Shipping", R"(list takes no arguments, found "Shipping")");
    row("watch Shipping", R"(watch takes no arguments, found "Shipping")");
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
    row("title 1 --all", "title takes a status code or --all, not both");
    row("list --all", "--all is valid only with title");
    row("list --jsn", "Unknown option 'jsn'");
    row("list --for 3", "--for is valid only with watch");
    row("status --for 3", "--for is valid only with watch");
    row("list --speed 3", "--speed is valid only with watch");
    row("watch --for", "Missing value after '--for'");
    row("watch --for soon", R"(--for: expected a number above 0 and up to 1000000, found "soon")");
    row("watch --for 0", R"(--for: expected a number above 0 and up to 1000000, found "0")");
    row("watch --for nan", R"(--for: expected a number above 0 and up to 1000000, found "nan")");
    row("watch --for 1e9", R"(--for: expected a number above 0 and up to 1000000, found "1e9")");
    row("watch --speed -2", R"(--speed: expected a number above 0 and up to 1000000, found "-2")");
    row("watch --virtual=", "--virtual: expected a file name");
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
    QVERIFY(help.output.startsWith("Usage: vxprintmon COMMAND"));
    for (const char* said : {"list ", "watch ", "status [PRINTER]", "send PRINTER COMMAND",
                             "title CODE", "--all ", "no longer than 2 seconds"})
        QVERIFY2(help.output.contains(said), said);
    const Result version = run({QStringLiteral("--version")});
    QCOMPARE(version.exitStatus, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^vxprintmon \\d+\\.\\d+\\.\\d+\n$"))
                .match(QString::fromUtf8(version.output))
                .hasMatch());
}

void VxPrintMonTest::logIsAppendedToAFile()
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("library.log"));
    const auto lines = [&log] {
        QFile file(log);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const Result first = run({QStringLiteral("status"), QStringLiteral("--log"), log});
    QCOMPARE(first.exitStatus, 0);
    QCOMPARE(first.errors, QByteArray());
    const qsizetype once = lines().count("Evaluating Printer: Warehouse");
    QCOMPARE(once, 1);
    // A second run appends to the file.
    QCOMPARE(run({QStringLiteral("status"), QStringLiteral("--log"), log}).exitStatus, 0);
    QCOMPARE(lines().count("Evaluating Printer: Warehouse"), 2 * once);

    const Result without = run({QStringLiteral("status")});
    QCOMPARE(without.exitStatus, 0);
    QCOMPARE(without.output, first.output);
    QCOMPARE(without.errors, QByteArray());
}

void VxPrintMonTest::logThatCannotBeWrittenIsAFailure()
{
    const Result result =
        run({QStringLiteral("list"), QStringLiteral("--log"), QStringLiteral("no/such/folder")});
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray("vxprintmon: cannot write the log no/such/folder: "
                                       "No such file or directory\n"));
    const Result empty = run({QStringLiteral("list"), QStringLiteral("--log"), QString()});
    QCOMPARE(empty.exitStatus, 2);
    QVERIFY2(empty.errors.startsWith("vxprintmon: --log: expected a file name"),
             empty.errors.constData());
}

void VxPrintMonTest::leavesNothingBehind()
{
    const QStringList left = entries();
    for (const QString& entry : left)
        QVERIFY2(entry.startsWith(QLatin1String("fleet ")), qPrintable(entry));
}

QTEST_GUILESS_MAIN(VxPrintMonTest)
#include "tst_vxprintmon.moc"
