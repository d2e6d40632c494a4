// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What `vxprintmon watch` prints when it is run: the built-in story for people, and JSON.
#include "monitor_test.h"

namespace {

const QString shipping = QStringLiteral("Shipping");

/// The lines of `watch` after the table, without their times. What a busy computer printed on two
/// lines, because the values arrived late, is joined.
QStringList eventsOf(const QByteArray& output)
{
    static const QRegularExpression time(QStringLiteral("^\\d\\d:\\d\\d:\\d\\d  "));
    const QString text = QString::fromUtf8(output);
    const QStringList lines = text.sliced(text.indexOf(QLatin1String("\n\n")) + 2)
                                  .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QStringList events;
    for (const QString& line : lines) {
        const QString event =
            time.match(line).hasMatch() ? line.sliced(10) : QStringLiteral("no time: ") + line;
        const QString printer = event.section(QStringLiteral("  "), 0, 0);
        if (!events.isEmpty() && !event.startsWith(QLatin1Char('>')) &&
            event.contains(QLatin1String("  ")) && !event.contains(QLatin1String(" left (")) &&
            events.last().section(QStringLiteral("  "), 0, 0) == printer)
            events.last() +=
                QStringLiteral("; ") +
                event.section(QStringLiteral("  "), 1, -1, QString::SectionSkipEmpty).trimmed();
        else
            events.append(event);
    }
    return events;
}

/// The default printer is compared with each report and every five seconds. So a change of it may
/// be told just before the next report, in the same line or in one of its own, and is moved to its
/// end.
QStringList withTheActivePrinterLast(QStringList events)
{
    const QString paused = QStringLiteral("> Shipping is paused.");
    const QString status = QStringLiteral("The printer is paused (warning)");
    const QString active = QStringLiteral("now the active printer");
    const QString name = QStringLiteral("Shipping       ");
    const qsizetype from =
        events.indexOf(QStringLiteral("> Shipping becomes the Windows default printer; its next "
                                      "report will show it.")) +
        1;
    const qsizetype to = events.indexOf(QStringLiteral("> Shipping is resumed."));
    QStringList told = events.mid(from, to - from)
                           .join(QLatin1String("; "))
                           .remove(name)
                           .split(QLatin1String("; "));
    told.sort();
    if (to > from && told == QStringList{paused, status, active}) {
        events.remove(from, to - from);
        events.insert(from, paused);
        events.insert(from + 1, name + status + QLatin1String("; ") + active);
    }
    return events;
}

QList<QJsonObject> objectsOf(const QByteArray& output)
{
    QList<QJsonObject> objects;
    const QList<QByteArray> lines = output.trimmed().split('\n');
    for (const QByteArray& line : lines)
        objects.append(QJsonDocument::fromJson(line).object());
    return objects;
}

QString textOf(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

} // namespace

class MonitorWatchTest : public MonitorTest
{
    Q_OBJECT

private Q_SLOTS:
    void builtInStoryIsToldOneLineAnEvent();
    void linesFitATerminal();
    void linesAreWholeElsewhere();
    void endsAfterTheGivenTime();
    void reportsAPrinterThatIsAddedLater();
    void namedPrintersMustExist();

    void jsonBeginsWithASnapshot();
    void jsonHasOnlyTheReadingThatChanged();
    void jsonNamesWhatChanged();
    void jsonOfNamedPrintersIsNarrowed();
    void jsonSaysWhenThePrintersOrTheSpoolerChange();

    void eventsAreAppendedToALog();
    void logThatCannotBeWrittenIsAFailure();
};

void MonitorWatchTest::builtInStoryIsToldOneLineAnEvent()
{
    const Result result =
        runUntil("The day is over.",
                 {QStringLiteral("watch"), QStringLiteral("--speed"), QStringLiteral("100")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    QVERIFY(result.output.startsWith(run({QStringLiteral("status")}).output + '\n'));
    const auto line = [](const char* text) {
        return QString::fromUtf8(text);
    };
    QCOMPARE(withTheActivePrinterLast(eventsOf(result.output)),
             (QStringList{
                 line("> Shipping prints a long batch of labels."),
                 line("Shipping       Supply: 20 % left (6.1 m), was 40 %"),
                 line("Shipping       Supply: 2 % left (0.6 m), was 20 %"),
                 line("> Shipping runs out of labels."),
                 line("Shipping       The printer is out of labels (error); Yellow Vinyl used up"),
                 line("> An orange roll is loaded into Shipping."),
                 line("Shipping       Ready (was: The printer is out of labels); Orange Vinyl "
                      "loaded, 100 %"),
                 line("> Warehouse is opened: its ribbon is used up."),
                 line("Warehouse      The cover is open (error)"),
                 line("> A green ribbon is put into Warehouse."),
                 line("Warehouse      Ribbon 1: Green resin loaded, 100 % (was Blue wax-resin)"),
                 line("> Warehouse is closed again."),
                 line("Warehouse      Ready (was: The cover is open)"),
                 line("> Returns is switched on."),
                 line("Returns        Ready (was: Disconnected); Yellow Reflective film loaded, "
                      "90 %; Ribbon 1: Blue wax-resin loaded, 92 %"),
                 line("> Shipping becomes the Windows default printer; its next report will show "
                      "it."),
                 line("> Shipping is paused."),
                 line("Shipping       The printer is paused (warning); now the active printer"),
                 line("> Shipping is resumed."),
                 line("Shipping       Ready (was: The printer is paused)"),
                 line("> The print spooler is stopped."),
                 line("Print spooler stopped, no printer can be read (error)"),
                 line("> The print spooler is started again."),
                 line("Print spooler is running again"),
                 line("> Shipping is switched off."),
                 line("Shipping       Disconnected (warning)"),
                 line("Returns        now the active printer"),
                 line("> Shipping is switched on again."),
                 line("Shipping       Ready (was: Disconnected); now the active printer"),
                 line("> Warehouse gets new firmware."),
                 line("Warehouse      The firmware is being updated; Ready (was: The firmware is "
                      "being updated); Firmware 4.2.0 (was 4.1.3)"),
                 line("> Warehouse prints the rest of the day's labels."),
                 line("Warehouse      Supply: 12 % left (21.9 m, 406 labels), was 40 %"),
                 line("> Laboratory is switched on; this user may not manage it."),
                 line("Laboratory     Printer Is Not Managed (warning)"),
                 line("Warehouse      Supply: 2 % left (3.7 m, 67 labels), was 12 %; Supply: "
                      "few labels left: 67 (warning)"),
                 line("> The day is over."),
             }));
}

void MonitorWatchTest::linesFitATerminal()
{
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "A printer with a very long name", "driver": "Stratamark AlderMax",
                      "values": {"StatusCode": "1"}}],
        "timeline": [{"at": 1, "printer": "A printer with a very long name", "values": {
            "StatusCode": "2", "SupplyIdentifier": "000000641000030000A7", "Mileage": 30480,
            "Ribbon1Identifier": 2001, "Ribbon2Identifier": 2004}}]})");
    const QByteArray output = runInTerminal(
        QStringLiteral("watch --speed 100 --for 3 --virtual '%1'").arg(fleet),
        [this] {
            QProcessEnvironment plain = terminalEnvironment();
            plain.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
            return plain;
        }(),
        60);
    if (output.isEmpty())
        QSKIP("there is no script(1) here to give the tool a terminal");
    const QStringList lines = QString::fromUtf8(output).split(QLatin1Char('\n'));
    for (const QString& line : lines)
        QVERIFY2(line.size() <= 60, qPrintable(line));
    const QString text = QString::fromUtf8(output.mid(output.indexOf("\n\n") + 2));
    QCOMPARE(text.simplified().sliced(9),
             QStringLiteral("A printer with a ve\u2026 The printer is out of labels (error); "
                            "Yellow Vinyl loaded, 100 %; Ribbon 1: Black resin loaded; "
                            "Ribbon 2: Red resin loaded"));
    QVERIFY(text.contains(QLatin1String("\n") + QString(32, QLatin1Char(' ')) +
                          QLatin1String("Yellow Vinyl loaded")));
}

void MonitorWatchTest::linesAreWholeElsewhere()
{
    // For grep, one line an event, however long.
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "A printer with a very long name", "driver": "Stratamark AlderMax",
                      "values": {"StatusCode": "1"}}],
        "timeline": [{"at": 1, "printer": "A printer with a very long name", "values": {
            "StatusCode": "2", "SupplyIdentifier": "000000641000030000A7", "Mileage": 30480}}]})");
    const Result result =
        runUntil("Yellow", {QStringLiteral("watch"), QStringLiteral("--speed"),
                            QStringLiteral("100"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(eventsOf(result.output),
             (QStringList{QStringLiteral("A printer with a very long name  The printer is out of "
                                         "labels (error); Yellow Vinyl loaded, 100 %")}));
}

void MonitorWatchTest::endsAfterTheGivenTime()
{
    for (const char* arguments :
         {"watch --for 0.5", "watch --json --for 0.5", "watch --json --signals --for 0.5"}) {
        QElapsedTimer clock;
        clock.start();
        const Result result = run(words(arguments));
        QVERIFY(clock.elapsed() >= 500);
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.errors, QByteArray());
    }
}

void MonitorWatchTest::reportsAPrinterThatIsAddedLater()
{
    const QString fleet = fleetFile(R"({"printers": [], "timeline": [
        {"at": 100, "add": {"name": "P", "driver": "Stratamark Alder",
                            "values": {"StatusCode": "1"}}},
        {"at": 200, "say": "end"}]})");
    const QStringList arguments{QStringLiteral("watch"), QStringLiteral("--speed"),
                                QStringLiteral("500"), QStringLiteral("--virtual"), fleet};
    const Result people = runUntil("> end", arguments);
    QCOMPARE(people.exitStatus, 0);
    QVERIFY(people.output.startsWith("There are no label printers yet.\n\n"));
    QVERIFY(eventsOf(people.output).value(0).startsWith(QLatin1String("P  Printer added; ")));
    QVERIFY(people.output.contains("now the active printer"));

    const Result json = runUntil(R"("event":"added","printer":"P")",
                                 arguments + QStringList{QStringLiteral("--json")});
    QCOMPARE(json.exitStatus, 0);
    const Result signalLines =
        runUntil("availablePrintersUpdated",
                 arguments + QStringList{QStringLiteral("--json"), QStringLiteral("--signals")});
    QCOMPARE(signalLines.exitStatus, 0);
    QVERIFY(signalLines.output.startsWith(
        R"({"signal":"activeDefaultPrinterSetSignal","activePrinterName":"P","isVX":true})"));
}

void MonitorWatchTest::namedPrintersMustExist()
{
    const Result result = run(words("watch Shipping Retruns --for 1"));
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray("vxprintmon: there is no printer \"Retruns\"; did you mean "
                                       "\"Returns\"?\n"));
    // One that is switched off may be switched on while it is watched.
    const Result offline = runUntil("Ready", words("watch RETURNS --speed 100"));
    QCOMPARE(offline.exitStatus, 0);
    QVERIFY(offline.output.startsWith("Offline since they were found, so without a status: "
                                      "Returns\n\n"));
}

void MonitorWatchTest::jsonBeginsWithASnapshot()
{
    const Result result = run(words("watch --json --for 0.2"));
    QCOMPARE(result.exitStatus, 0);
    const QJsonObject first = objectsOf(result.output).value(0);
    QCOMPARE(first.keys(), (QStringList{QStringLiteral("event"), QStringLiteral("printers"),
                                        QStringLiteral("time")}));
    QVERIFY(result.output.startsWith("{\"time\":\""));
    QCOMPARE(textOf(first, "event"), QStringLiteral("snapshot"));
    QStringList names;
    const QJsonArray printers = first.value(QStringLiteral("printers")).toArray();
    for (const QJsonValue& reading : printers)
        names.append(reading[QStringLiteral("name")].toString());
    // Also those without a status, but not those of other makers.
    QCOMPARE(names,
             (QStringList{QStringLiteral("Branch Office"), QStringLiteral("Laboratory"),
                          QStringLiteral("Returns"), shipping, QStringLiteral("Warehouse")}));
    const QDateTime time = QDateTime::fromString(textOf(first, "time"), Qt::ISODateWithMs);
    QVERIFY(time.isValid());
    QVERIFY(time.timeSpec() != Qt::LocalTime);
    QVERIFY(std::abs(time.secsTo(QDateTime::currentDateTime())) < 3600);
}

void MonitorWatchTest::jsonHasOnlyTheReadingThatChanged()
{
    const Result result = runUntil(R"("supply":{"coarse":false,"colorName":"Orange")",
                                   words("watch --json --speed 100"));
    const QList<QJsonObject> objects = objectsOf(result.output);
    QVERIFY(objects.size() > 3);
    for (const QJsonObject& object : objects.mid(1)) {
        QVERIFY(!object.contains(QStringLiteral("printers")));
        QVERIFY(!textOf(object, "time").isEmpty());
        if (textOf(object, "event") != QLatin1String("changed"))
            continue;
        QCOMPARE(object.keys(), (QStringList{QStringLiteral("event"), QStringLiteral("printer"),
                                             QStringLiteral("reading"), QStringLiteral("time"),
                                             QStringLiteral("what")}));
        QCOMPARE(object.value(QStringLiteral("reading"))[QStringLiteral("name")],
                 object.value(QStringLiteral("printer")));
        QVERIFY(!object.value(QStringLiteral("what")).toArray().isEmpty());
    }
}

void MonitorWatchTest::jsonNamesWhatChanged()
{
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "P", "driver": "Stratamark AlderMax", "values": {"StatusCode": "1"}}],
        "timeline": [
            {"at": 100, "printer": "P", "values": {"StatusCode": "1"}},
            {"at": 200, "printer": "P", "values": {"StatusCode": "4"}},
            {"at": 300, "printer": "P", "values": {"Ribbon2Identifier": 2001}},
            {"at": 400, "printer": "P", "values": {"SoftwareVersion": "7"}}]})");
    const Result result =
        runUntil(R"("what":["firmware"])",
                 {QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--speed"),
                  QStringLiteral("500"), QStringLiteral("--virtual"), fleet});
    QList<QJsonArray> what;
    for (const QJsonObject& object : objectsOf(result.output)) {
        if (textOf(object, "event") == QLatin1String("changed"))
            what.append(object.value(QStringLiteral("what")).toArray());
    }
    // A report that repeats the status is no event.
    QCOMPARE(what, (QList<QJsonArray>{{QStringLiteral("status")},
                                      {QStringLiteral("ribbon2")},
                                      {QStringLiteral("firmware")}}));
}

void MonitorWatchTest::jsonOfNamedPrintersIsNarrowed()
{
    const Result result =
        runUntil(R"("colorName":"Green")", words("watch --json warehouse --speed 100"));
    const QList<QJsonObject> objects = objectsOf(result.output);
    QCOMPARE(objects.value(0).value(QStringLiteral("printers")).toArray().size(), 1);
    for (const QJsonObject& object : objects.mid(1)) {
        if (object.contains(QStringLiteral("printer")))
            QCOMPARE(textOf(object, "printer"), QStringLiteral("Warehouse"));
        QVERIFY(textOf(object, "event") != QLatin1String("error"));
    }
}

void MonitorWatchTest::jsonSaysWhenThePrintersOrTheSpoolerChange()
{
    const QString fleet = fleetFile(R"({
        "printers": [
            {"name": "A", "driver": "Stratamark BirchMax", "values": {"StatusCode": "1"}},
            {"name": "B", "driver": "Stratamark BirchMax", "values": {"StatusCode": "1"}}],
        "defaultPrinter": "A",
        "timeline": [
            {"at": 100, "printer": "A", "values": {"StatusCode": "4"}},
            {"at": 200, "printer": "A", "values": {"StatusCode": "1"}},
            {"at": 300, "printer": "B", "rename": "C"},
            {"at": 310, "printer": "C", "values": {"StatusCode": "19"}},
            {"at": 400, "defaultPrinter": "C"},
            {"at": 410, "printer": "C", "values": {"StatusCode": "1"}},
            {"at": 500, "add": {"name": "D", "driver": "Stratamark BirchMax"}},
            {"at": 600, "printer": "D", "remove": true},
            {"at": 700, "spooler": "stopped"},
            {"at": 800, "spooler": "running"}]})");
    const Result result =
        runUntil(R"("event":"spooler","running":true)",
                 {QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--speed"),
                  QStringLiteral("500"), QStringLiteral("--virtual"), fleet});
    QByteArrayList events;
    for (QJsonObject object : objectsOf(result.output).mid(1)) {
        if (textOf(object, "event") == QLatin1String("changed"))
            continue;
        object.remove(QStringLiteral("time"));
        if (object.contains(QStringLiteral("reading")))
            object.insert(QStringLiteral("reading"),
                          object.value(QStringLiteral("reading"))[QStringLiteral("name")]);
        events.append(QJsonDocument(object).toJson(QJsonDocument::Compact));
    }
    for (const char* expected : {
             R"({"event":"error","inError":true,"printersInError":1})",
             R"({"event":"error","inError":false,"printersInError":0})",
             R"({"event":"renamed","oldName":"B","printer":"C","reading":"C"})",
             R"({"event":"active","printer":"C"})",
             R"({"event":"added","printer":"D","reading":"D"})",
             R"({"event":"gone","printer":"D","reading":"D"})",
             R"({"event":"spooler","running":false})",
             R"({"event":"spooler","running":true})",
         })
        QVERIFY2(events.contains(expected), events.join('\n').constData());
}

void MonitorWatchTest::eventsAreAppendedToALog()
{
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("events.log"));
    for (const auto& [more, last] :
         {std::pair("", "labels (error)"), std::pair("--json", R"("statusKey":"out_of_labels")"),
          std::pair("--json --signals", R"("status":19,)")}) {
        const Result result =
            runUntil(last, words("watch --speed 100 --log") + QStringList{log} + words(more));
        QCOMPARE(result.exitStatus, 0);
        QCOMPARE(result.errors, QByteArray());
    }
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QJsonObject> events = objectsOf(file.readAll());
    QCOMPARE(std::ranges::count_if(events,
                                   [](const QJsonObject& event) {
                                       return textOf(event, "key") ==
                                              QLatin1String("out_of_labels");
                                   }),
             3);
}

void MonitorWatchTest::logThatCannotBeWrittenIsAFailure()
{
    const Result result = run(words("watch --for 1 --log no/such/folder"));
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors, QByteArray("vxprintmon: cannot write the log no/such/folder: "
                                       "No such file or directory\n"));
}

QTEST_GUILESS_MAIN(MonitorWatchTest)
#include "tst_monitor_watch.moc"
