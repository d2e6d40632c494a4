// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What `vxprintmon status` shows, and what it says of a printer without a status.
#include "monitor_test.h"
#include "printer_status_information.h"

namespace {

const QString shipping = QStringLiteral("Shipping");
const QString warehouse = QStringLiteral("Warehouse");

} // namespace

class MonitorStatusTest : public MonitorTest
{
    Q_OBJECT

private Q_SLOTS:
    void printsATable();
    void tableNeverExceedsTheWidth();
    void wideCharactersCountDouble();
    void whatIsNotKnownIsNeverZero();
    void detailsOfOnePrinterArePrinted();
    void detailsSayWhatToDo();
    void detailsFitTheWidth();
    void detailsSayWhyAPrinterIsNotWatched();
    void letterCaseDoesNotMatter();
    void saysWhyAPrinterHasNoStatus_data();
    void saysWhyAPrinterHasNoStatus();
    void longListOfOfflinePrintersIsCutShort();
    void withoutPrintersSaysSo();

    void printsRecordsAsJson();
    void recordOfOnePrinterIsPrintedAsJson();
    void tableAgreesWithTheJson();
    void jsonStopsWaitingForASilentPrinter();
    void jsonFailsWhenInterrupted();

    void namesAndTitlesAreInTheUsersLanguage_data();
    void namesAndTitlesAreInTheUsersLanguage();
    void namesOfSuppliesFollowTheLanguage_data();
    void namesOfSuppliesFollowTheLanguage();
    void samplesHaveAnOutlineAndTheDepthOfTheTerminal_data();
    void samplesHaveAnOutlineAndTheDepthOfTheTerminal();
    void samplesGiveWayOnANarrowTerminal();

    void missingCatalogueIsSaidOnce();
    void damagedCatalogueIsSaidOnce();
    void anotherCatalogueIsUsed();
    void catalogueOfTheCommandLineComesFirst();

private:
    QList<QByteArray> linesOf(const QStringList& arguments, const char* columns)
    {
        QProcessEnvironment narrow = environment();
        narrow.insert(QStringLiteral("COLUMNS"), QString::fromLatin1(columns));
        const QByteArray output = run(arguments, QStringLiteral(VXPRINTMON), narrow).output;
        return output.chopped(1).split('\n');
    }
    /// A catalogue without the file beside the monitor.
    QProcessEnvironment withCatalogue(const QString& file) const
    {
        QProcessEnvironment changed = environment();
        changed.insert(QStringLiteral("VX_ROLL_DB"), file);
        return changed;
    }
};

void MonitorStatusTest::printsATable()
{
    const Result result = run({QStringLiteral("status")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    // Without the firmware, which does not fit 80 columns.
    const QByteArray expected =
        R"(PRINTER        STATUS           SUPPLY             RIBBON 1    RIBBON 2
Branch Office  Network printer  -                  -           -
Shipping       Ready            80 % Yellow Vinyl  80 % Black  35 % Red
Warehouse      Ready            82 % White Paper   3 % Blue    57 % Black
Offline since they were found, so without a status: Laboratory, Returns
Active printer: Warehouse
)";
    QCOMPARE(result.output, expected);
    QCOMPARE(
        linesOf({QStringLiteral("status")}, "100").value(2),
        QByteArray("Shipping       Ready            80 % Yellow Vinyl  80 % Black  35 % Red    "
                   "4.2.0"));
}

void MonitorStatusTest::tableNeverExceedsTheWidth()
{
    // In the order in which it gives way: the firmware, the second space, the status, ribbon 2,
    // ribbon 1, the supply, the printer.
    const auto shippingIn = [this](const char* columns) {
        return linesOf({QStringLiteral("status")}, columns).value(2);
    };
    QCOMPARE(shippingIn("80"),
             QByteArray("Shipping       Ready            80 % Yellow Vinyl  80 % Black  35 % Red"));
    QCOMPARE(shippingIn("70"),
             QByteArray("Shipping      Ready           80 % Yellow Vinyl 80 % Black 35 % Red"));
    QCOMPARE(shippingIn("62"),
             QByteArray("Shipping      Ready           80 % Yell\u2026 80 % Black 35 % Red"));
    QCOMPARE(shippingIn("59"),
             QByteArray("Shipping   Ready           80 % Yell\u2026 80 % Black 35 % Red"));
    for (int columns = 20; columns <= 130; columns += widthStep) {
        const QList<QByteArray> lines =
            linesOf({QStringLiteral("status")}, QByteArray::number(columns).constData());
        QVERIFY(lines.size() >= 6);
        for (const QByteArray& line : lines) {
            const QString text = QString::fromUtf8(line);
            QVERIFY2(text.size() <= columns, line.constData());
            QVERIFY(!text.endsWith(QLatin1Char(' ')));
        }
    }
}

void MonitorStatusTest::wideCharactersCountDouble()
{
    const QString fleet = fleetFile(R"({"printers": [
        {"name": "\u51fa\u8377\u5834\u306e\u5370\u5237\u6a5f", "driver": "Stratamark BirchMax",
         "values": {"StatusCode": "1", "SoftwareVersion": "1"}}]})");
    const QStringList arguments{QStringLiteral("status"), QStringLiteral("--virtual"), fleet};
    const QList<QByteArray> lines = linesOf(arguments, "80");
    QCOMPARE(lines.value(0), QByteArray("PRINTER         STATUS  SUPPLY     RIBBON 1   RIBBON 2  "
                                        "FIRMWARE"));
    QCOMPARE(lines.value(1),
             QByteArray("\u51fa\u8377\u5834\u306e\u5370\u5237\u6a5f  Ready   not known  "
                        "not known  -         1"));
    // An ellipsis and a space replace a character of two columns.
    QVERIFY(linesOf(arguments, "46").value(1).startsWith("\u51fa\u8377\u5834\u306e\u2026  Ready"));
}

void MonitorStatusTest::whatIsNotKnownIsNeverZero()
{
    const QString fleet = fleetFile(R"({"printers": [
        {"name": "Mute", "driver": "Stratamark Alder"},
        {"name": "Half", "driver": "Stratamark BirchMax", "values": {"StatusCode": "1",
            "SupplyIdentifier": "000000641000030000A7", "Ribbon1Identifier": 99999}},
        {"name": "Used up", "driver": "Stratamark Alder", "values": {"StatusCode": "1",
            "SupplyIdentifier": "00000000000000000000", "Ribbon1Identifier": 2001,
            "Ribbon1Mileage": 0, "Ribbon2Identifier": 99999, "Ribbon2Mileage": 40}}]})");
    QCOMPARE(
        linesOf({QStringLiteral("status"), QStringLiteral("--virtual"), fleet}, "100").mid(1, 3),
        (QList<QByteArray>{
            "Half     Ready      Yellow Vinyl, level not known  unknown kind  -"
            "                  -",
            "Mute     not known  not known                      not known     not known"
            "          -",
            "Used up  Ready      none                           0 % Black     40 % unknown kind"
            "  -",
        }));
    const QByteArray details =
        run({QStringLiteral("status"), QStringLiteral("Half"), QStringLiteral("--virtual"), fleet})
            .output;
    QVERIFY(details.contains("supply         Yellow Vinyl (VT-400-YL)\n"
                             "supply left    not known\n"
                             "ribbon 1       unknown kind (99999)\n"
                             "ribbon 1 left  not known\n"
                             "firmware       not known\n"));
}

void MonitorStatusTest::detailsOfOnePrinterArePrinted()
{
    const Result result = run({QStringLiteral("status"), warehouse});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QByteArray expected = R"(printer        Warehouse
status         Ready
online         yes
active         yes
supply         White Paper (DE-400200-WH)
supply left    82 %, 150.0 m, 2778 labels
ribbon 1       Blue wax-resin (RX-43-BL)
ribbon 1 left  3 %, 3.6 m
ribbon 2       Black wax-resin (RX-43-BK)
ribbon 2 left  57 %, 68.4 m
firmware       4.1.3
boot loader    boot 1.7
model          Alder
driver         Stratamark Alder
port           002
serial number  AL-00342
watched        yes
)";
    QCOMPARE(result.output, expected);
}

void MonitorStatusTest::detailsSayWhatToDo()
{
    const QString fleet = fleetFile(R"({"printers": [{"name": "P", "driver": "Stratamark BirchMax",
        "values": {"StatusCode": "4", "SupplyIdentifier": "000000641000030000A7", "Mileage": 51}}]})");
    const Result result =
        run({QStringLiteral("status"), QStringLiteral("P"), QStringLiteral("--virtual"), fleet});
    QVERIFY2(result.output.startsWith(
                 R"(printer        P
status         The cover is open (error)
meaning        The printer's cover is open or not latched. For safety the
               printer does not print with an open cover.
what to do     Close the cover and press it down on both sides until it clicks.
               If it does not close, check that labels and ribbon are seated
               correctly.
online         yes
)"),
             result.output.constData());
}

void MonitorStatusTest::detailsFitTheWidth()
{
    for (const char* columns : {"30", "80", "120"}) {
        const QList<QByteArray> lines =
            linesOf({QStringLiteral("status"), QStringLiteral("Branch Office")}, columns);
        QVERIFY(lines.size() > 10);
        for (const QByteArray& line : lines)
            QVERIFY2(QString::fromUtf8(line).size() <= QByteArray(columns).toInt(),
                     line.constData());
    }
}

void MonitorStatusTest::detailsSayWhyAPrinterIsNotWatched()
{
    const auto last = [this](const QString& printer, const QString& fleet) {
        return run({QStringLiteral("status"), printer, QStringLiteral("--virtual"), fleet})
            .output.trimmed()
            .split('\n')
            .last();
    };
    QCOMPARE(last(QStringLiteral("Branch Office"), QStringLiteral("built-in")),
             QByteArray("watched        no, it is a network printer"));
    const QString fleet = fleetFile(R"({"printers": [{"name": "P", "driver": "Stratamark Alder",
        "administrable": false}]})");
    QCOMPARE(last(QStringLiteral("P"), fleet),
             QByteArray("watched        no, you may not manage it"));
    QCOMPARE(linesOf({QStringLiteral("status"), QStringLiteral("--virtual"), fleet}, "80").value(1),
             QByteArray("P        Not managed  -       -         -         -"));
}

void MonitorStatusTest::letterCaseDoesNotMatter()
{
    const Result expected = run({QStringLiteral("status"), warehouse});
    for (const char* name : {"warehouse", "WAREHOUSE", "wAREHOUSE"})
        QCOMPARE(run({QStringLiteral("status"), QString::fromLatin1(name)}).output,
                 expected.output);
    // Characters with a meaning in patterns are letters like others.
    const QString fleet =
        fleetFile(R"({"printers": [{"name": "\u00c4 [a-z]*.+?", "driver": "Stratamark Alder"}]})");
    const Result other = run({QStringLiteral("status"), QStringLiteral("\u00e4 [A-Z]*.+?"),
                              QStringLiteral("--virtual"), fleet});
    QCOMPARE(other.exitStatus, 0);
    QVERIFY(other.output.startsWith("printer        \u00c4 [a-z]*.+?\n"));
}

void MonitorStatusTest::saysWhyAPrinterHasNoStatus_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* name, const char* reason) {
        QTest::newRow(*name ? name : "empty") << QString::fromUtf8(name) << QByteArray(reason);
    };
    const char* const offline =
        R"("Returns" has no status: it has been offline since it was found; )"
        R"(switch it on and check its cable)";
    row("Returns", offline);
    row("RETURNS", offline);
    row("front desk laser",
        R"("Front Desk Laser" has no status: its driver "Everyday Office Laser )"
        R"(400" is not one of the label printers' maker)");
    row("Cellar", R"("Cellar" has no status: its driver "Stratamark Rowan" is for a model that is )"
                  R"(not supported)");
    row("Retruns", R"(there is no printer "Retruns"; did you mean "Returns"?)");
    row("celar", R"(there is no printer "celar"; did you mean "Cellar"?)");
    row("Nowhere", R"(there is no printer "Nowhere"; "vxprintmon list" shows all printers)");
    row("", R"(there is no printer ""; "vxprintmon list" shows all printers)");
}

void MonitorStatusTest::saysWhyAPrinterHasNoStatus()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, reason);
    const QString fleet = fleetFile(R"({"printers": [
        {"name": "Shipping", "driver": "Stratamark AlderMax"},
        {"name": "Returns", "driver": "Stratamark BirchMax", "status": ["offline"]},
        {"name": "Cellar", "driver": "Stratamark Rowan"},
        {"name": "Front Desk Laser", "driver": "Everyday Office Laser 400"}]})");
    for (const bool json : {false, true}) {
        QStringList arguments{QStringLiteral("status"), name, QStringLiteral("--virtual"), fleet};
        if (json)
            arguments.append(QStringLiteral("--json"));
        const Result result = run(arguments);
        QCOMPARE(result.exitStatus, 1);
        QCOMPARE(result.output, QByteArray());
        QCOMPARE(result.errors, "vxprintmon: " + reason + '\n');
    }
}

void MonitorStatusTest::longListOfOfflinePrintersIsCutShort()
{
    QByteArrayList printers;
    for (int i = 10; i < 23; ++i)
        printers.append(R"({"name": "P)" + QByteArray::number(i) +
                        R"(", "driver": "Stratamark Alder", "status": ["offline"]})");
    const QString fleet = fleetFile(R"({"printers": [)" + printers.join(',') + "]}");
    QCOMPARE(run({QStringLiteral("status"), QStringLiteral("--virtual"), fleet}).output,
             QByteArray("Offline since they were found, so without a status: P10, P11, P12, P13, "
                        "P14,\nP15, P16, P17, P18, P19 and 3 more\n"));
}

void MonitorStatusTest::printsRecordsAsJson()
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

void MonitorStatusTest::recordOfOnePrinterIsPrintedAsJson()
{
    const Result all = run({QStringLiteral("status"), QStringLiteral("--json")});
    const Result one = run({QStringLiteral("status"), warehouse, QStringLiteral("--json")});
    QCOMPARE(one.exitStatus, 0);
    const QJsonArray records = QJsonDocument::fromJson(one.output).array();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first(), QJsonDocument::fromJson(all.output).array().at(2));
}

void MonitorStatusTest::jsonStopsWaitingForASilentPrinter()
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

void MonitorStatusTest::jsonFailsWhenInterrupted()
{
    const QString fleet =
        fleetFile(R"({"printers": [{"name": "Mute", "driver": "Stratamark Alder"}]})");
    // It waits no longer than 2 seconds, and on a busy computer the signal may come too late.
    int exitStatus = 0;
    for (int attempt = 0; exitStatus == 0 && attempt < 10; ++attempt) {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral(VXPRINTMON),
                      {QStringLiteral("status"), QStringLiteral("--json"),
                       QStringLiteral("--virtual"), fleet});
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

void MonitorStatusTest::namesAndTitlesAreInTheUsersLanguage_data()
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

void MonitorStatusTest::namesAndTitlesAreInTheUsersLanguage()
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

void MonitorStatusTest::withoutPrintersSaysSo()
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
    const Result offline =
        run({QStringLiteral("status"), QStringLiteral("--virtual"), fleetFile(R"({"printers": [
            {"name": "A", "driver": "Stratamark Alder", "status": ["offline"]}]})")});
    QCOMPARE(offline.output, QByteArray("Offline since they were found, so without a status: A\n"));
}

void MonitorStatusTest::tableAgreesWithTheJson()
{
    const QJsonArray records =
        QJsonDocument::fromJson(run({QStringLiteral("status"), QStringLiteral("--json")}).output)
            .array();
    const QList<QByteArray> rows = linesOf({QStringLiteral("status")}, "200");
    QVERIFY(rows.size() > records.size());
    for (qsizetype i = 0; i < records.size(); ++i) {
        const QJsonObject record = records.at(i).toObject();
        const QByteArray row = rows.at(i + 1);
        QVERIFY(row.startsWith(record.value(QStringLiteral("printerName")).toString().toUtf8()));
        for (const char* slot : {"supply", "ribbon1", "ribbon2"}) {
            const QString name = QString::fromLatin1(slot);
            const QByteArray colour =
                record.value(name + QStringLiteral("ColorName")).toString().toUtf8();
            const int percentage = record.value(name + QStringLiteral("Percentage")).toInt();
            if (!colour.isEmpty())
                QVERIFY2(row.contains(QByteArray::number(percentage) + " % " + colour),
                         row.constData());
        }
    }
    QVERIFY(rows.contains("Active printer: Warehouse"));
}

void MonitorStatusTest::namesOfSuppliesFollowTheLanguage_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("supply");
    QTest::newRow("de") << QStringLiteral("de") << QStringLiteral("Vinyl Gelb (VT-400-YL)");
    QTest::newRow("fr") << QStringLiteral("fr") << QStringLiteral("Vinyle Jaune (VT-400-YL)");
    QTest::newRow("ja") << QStringLiteral("ja") << QStringLiteral("黄 ビニール (VT-400-YL)");
}

void MonitorStatusTest::namesOfSuppliesFollowTheLanguage()
{
    QFETCH(const QString, language);
    QFETCH(const QString, supply);
    QProcessEnvironment changed = environment();
    changed.insert(QStringLiteral("LANGUAGE"), language);
    const Result result =
        run({QStringLiteral("status"), shipping}, QStringLiteral(VXPRINTMON), changed);
    QVERIFY2(QString::fromUtf8(result.output).contains(supply), result.output.constData());
}

void MonitorStatusTest::samplesHaveAnOutlineAndTheDepthOfTheTerminal_data()
{
    QTest::addColumn<QString>("term");
    QTest::addColumn<QString>("colorTerm");
    QTest::addColumn<QByteArray>("yellow");
    QTest::addColumn<QByteArray>("black");
    const auto row = [](const char* name, const char* term, const char* colorTerm,
                        const char* yellow, const char* black) {
        QTest::newRow(name) << QString::fromLatin1(term) << QString::fromLatin1(colorTerm)
                            << QByteArray(yellow) << QByteArray(black);
    };
    row("24 bits", "xterm", "truecolor", "48;2;255;209;0", "48;2;0;0;0");
    row("24 bits, other name", "xterm-256color", "24bit", "48;2;255;209;0", "48;2;0;0;0");
    row("256 colours", "xterm-256color", "", "48;5;220", "48;5;16");
    row("16 colours", "xterm", "", "43", "40");
}

void MonitorStatusTest::samplesHaveAnOutlineAndTheDepthOfTheTerminal()
{
    QFETCH(const QString, term);
    QFETCH(const QString, colorTerm);
    QFETCH(const QByteArray, yellow);
    QFETCH(const QByteArray, black);
    QProcessEnvironment terminal = terminalEnvironment();
    terminal.insert(QStringLiteral("TERM"), term);
    terminal.insert(QStringLiteral("COLORTERM"), colorTerm);
    const QByteArray output = runInTerminal(QStringLiteral("status Shipping"), terminal);
    if (output.isEmpty())
        QSKIP("there is no script(1) here to give the tool a terminal");
    // Half blocks in the terminal's own colour stand at both sides.
    QVERIFY2(output.contains("\033[" + yellow + "m\u258c\u2590\033[0m Yellow Vinyl"),
             output.constData());
    // Without a colour the words stay.
    QVERIFY(!runInTerminal(QStringLiteral("status"), terminal).isEmpty());
    terminal.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    const QByteArray plain = runInTerminal(QStringLiteral("status Shipping"), terminal);
    QVERIFY(plain.contains("Yellow Vinyl"));
    QVERIFY(!plain.contains("\u258c"));
    QVERIFY(!plain.contains('\033'));
    terminal.remove(QStringLiteral("NO_COLOR"));
    QVERIFY(runInTerminal(QStringLiteral("status Warehouse"), terminal)
                .contains("\033[" + black + "m\u258c\u2590\033[0m Black wax-resin"));
}

void MonitorStatusTest::samplesGiveWayOnANarrowTerminal()
{
    const QByteArray wide = runInTerminal(QStringLiteral("status"), terminalEnvironment(), 80);
    if (wide.isEmpty())
        QSKIP("there is no script(1) here to give the tool a terminal");
    QVERIFY(wide.contains("\u258c\u2590\033[0m 80 % Yellow Vinyl"));
    QVERIFY(wide.contains("\033[32mReady\033[0m"));
    // A long status takes a second line first.
    const QString fleet = fleetFile(R"({"printers": [
        {"name": "Shipping", "driver": "Stratamark AlderMax", "values": {"StatusCode": "2",
            "SupplyIdentifier": "000000641000030000A7", "Mileage": 30480,
            "Ribbon1Identifier": 2001, "Ribbon1Mileage": 120015,
            "Ribbon2Identifier": 2004, "Ribbon2Mileage": 120015}}]})");
    const QByteArray wrapped = runInTerminal(QStringLiteral("status --virtual '%1'").arg(fleet),
                                             terminalEnvironment(), 80);
    QVERIFY(wrapped.contains("The printer is out of\033[0m \033["));
    QVERIFY(wrapped.contains("\n         \033[1;31mlabels\033[0m\n"));
    QVERIFY(wrapped.contains("\u258c\u2590\033[0m 100 % Yellow Vinyl"));
    QVERIFY(wrapped.contains("\u258c\u2590\033[0m 100 % Red"));
    const QByteArray narrow = runInTerminal(QStringLiteral("status"), terminalEnvironment(), 66);
    QVERIFY(narrow.contains("80 % Yellow"));
    QVERIFY(!narrow.contains("\u258c"));
}

void MonitorStatusTest::missingCatalogueIsSaidOnce()
{
    const QString missing = fileInHome("no.db");
    for (const char* arguments : {"status", "status Shipping", "status --json", "watch --for 0.1",
                                  "watch --json --for 0.1"}) {
        const Result result =
            run(words(arguments), QStringLiteral(VXPRINTMON), withCatalogue(missing));
        QCOMPARE(result.exitStatus, 0);
        QVERIFY(!result.output.isEmpty());
        QCOMPARE(QString::fromUtf8(result.errors),
                 QStringLiteral("vxprintmon: supplies and ribbons have no names: there is no "
                                "catalogue %1; put it there, or name another one with --catalogue "
                                "or VX_ROLL_DB\n")
                     .arg(missing));
    }
    // What names nothing does not need one.
    QCOMPARE(run(words("list"), QStringLiteral(VXPRINTMON), withCatalogue(missing)).errors,
             QByteArray());
}

void MonitorStatusTest::damagedCatalogueIsSaidOnce()
{
    const QString damaged = fleetFile("not a database");
    const Result result = run({QStringLiteral("status"), QStringLiteral("--catalogue"), damaged});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(QString::fromUtf8(result.errors),
             QStringLiteral("vxprintmon: supplies and ribbons have no names: nothing can be read "
                            "from the catalogue %1; \"rolldb check\" says what is wrong with it\n")
                 .arg(damaged));
    QVERIFY2(result.output.contains("unknown kind"), result.output.constData());
    QVERIFY(!result.output.contains("Vinyl"));
}

void MonitorStatusTest::anotherCatalogueIsUsed()
{
    const QString copy = fileInHome("fleet catalogue.db");
    QVERIFY(QFile::copy(QStringLiteral(VX_SAMPLE_DATABASE), copy));
    const QByteArray expected = run({QStringLiteral("status")}).output;
    const Result byOption = run({QStringLiteral("status"), QStringLiteral("--catalogue"), copy});
    QCOMPARE(byOption.errors, QByteArray());
    QCOMPARE(byOption.output, expected);
    const Result byEnvironment =
        run({QStringLiteral("status")}, QStringLiteral(VXPRINTMON), withCatalogue(copy));
    QCOMPARE(byEnvironment.errors, QByteArray());
    QCOMPARE(byEnvironment.output, expected);
    const QByteArray records = run(words("status --json")).output;
    QCOMPARE(run(words("status --json"), QStringLiteral(VXPRINTMON), withCatalogue(copy)).output,
             records);
}

void MonitorStatusTest::catalogueOfTheCommandLineComesFirst()
{
    const Result result = run({QStringLiteral("status"), QStringLiteral("--catalogue"),
                               QStringLiteral(VX_SAMPLE_DATABASE)},
                              QStringLiteral(VXPRINTMON), withCatalogue(fileInHome("no.db")));
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(result.output.contains("80 % Yellow Vinyl"));
}

QTEST_GUILESS_MAIN(MonitorStatusTest)
#include "tst_monitor_status.moc"
