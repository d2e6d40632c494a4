// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The monitor as its users see it: arguments in, text, JSON and exit status out.
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <csignal>

namespace {

struct Result
{
    int exitStatus = -1;
    QByteArray output;
    QByteArray errors;
};

QProcessEnvironment environment(const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("NO_COLOR"));
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home + QStringLiteral("/config"));
    return environment;
}

} // namespace

class VxPrintMonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_home.isValid()); }
    void listForPeople();
    void listForPrograms();
    void listWithoutPrinters();
    void watchForPrograms();
    void watchForPeople();
    void watchTellsTheWholeStory();
    void watchWithoutAnyPrinter();
    void watchEndsWhenInterrupted_data();
    void watchEndsWhenInterrupted();
    void coloursOnATerminal();
    void wrongUsage_data();
    void wrongUsage();
    void brokenFleet();
    void helpAndVersion();
    void leavesNothingBehind();

private:
    Result run(const QStringList& arguments, const QString& program = QStringLiteral(VXPRINTMON),
               const QProcessEnvironment& changed = {})
    {
        QProcess process;
        process.setProcessEnvironment(changed.isEmpty() ? environment(m_home.path()) : changed);
        process.start(program, arguments);
        if (!process.waitForFinished(30000))
            return {};
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
    static QList<QJsonObject> objects(const QByteArray& lines)
    {
        QList<QJsonObject> found;
        const QList<QByteArray> texts = lines.trimmed().split('\n');
        for (const QByteArray& text : texts)
            found.append(QJsonDocument::fromJson(text).object());
        return found;
    }

    QTemporaryDir m_home;
    int m_fleets = 0;
};

void VxPrintMonTest::listForPeople()
{
    const Result result = run({QStringLiteral("list")});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QByteArray expected =
        R"(PRINTER           MODEL     PORT          SERIAL    DRIVER                     FLAGS
Shipping          AlderMax  001           AM-20871  Stratamark AlderMax        shared
Warehouse         Alder     002           AL-00342  Stratamark Alder           default
Returns           BirchMax  003           BM-11500  Stratamark BirchMax        offline
Laboratory        CedarMax  004           CM-00077  Stratamark CedarMax        not managed
Branch Office     BirchMax  192.168.1.20  -         Stratamark BirchMax        network
Front Desk Laser  -         LPT1:         -         Everyday Office Laser 400  
)";
    QCOMPARE(result.output, expected);
}

void VxPrintMonTest::listForPrograms()
{
    const Result result = run({QStringLiteral("list"), QStringLiteral("--json")});
    QCOMPARE(result.exitStatus, 0);
    const QJsonArray printers = QJsonDocument::fromJson(result.output).array();
    QCOMPARE(printers.size(), 6);
    QCOMPARE(printers.first().toObject(),
             (QJsonObject{
                 {QStringLiteral("printerName"), QStringLiteral("Shipping")},
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

void VxPrintMonTest::listWithoutPrinters()
{
    const QString fleet = fleetFile(R"({"printers": []})");
    const Result json =
        run({QStringLiteral("list"), QStringLiteral("--json"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(json.exitStatus, 0);
    QCOMPARE(json.output, QByteArray("[]\n"));
    const Result people = run({QStringLiteral("list"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(people.exitStatus, 0);
    QVERIFY(people.output.contains("knows no printers"));
}

void VxPrintMonTest::watchForPrograms()
{
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "P \"1\"", "driver": "Stratamark Alder", "values":
            {"StatusCode": "1", "Ribbon1Identifier": 7, "Mileage": 50}}],
        "timeline": [{"at": 100, "say": "a caption", "printer": "P \"1\"",
                      "values": {"StatusCode": "42"}}]})");
    const Result result =
        run({QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--for"),
             QStringLiteral("3"), QStringLiteral("--speed"), QStringLiteral("500"),
             QStringLiteral("--virtual"), fleet});
    QCOMPARE(result.exitStatus, 0);
    QCOMPARE(result.errors, QByteArray());
    const QString printer = QStringLiteral("P \"1\"");
    const auto object = [&](const char* signal, const char* argument, const QJsonValue& value) {
        return QJsonObject{{QStringLiteral("signal"), QString::fromLatin1(signal)},
                           {QStringLiteral("dashboardPrinterName"), printer},
                           {QString::fromLatin1(argument), value}};
    };
    QCOMPARE(objects(result.output),
             (QList<QJsonObject>{
                 object("printerStatusChanged", "newStatus", QStringLiteral("1")),
                 object("ribbonIdsChanged", "newIds",
                        QJsonArray{QStringLiteral("7"), QString::fromLatin1("")}),
                 object("supplyIntMileageChanged", "newMileage", QStringLiteral("50")),
                 object("printerNameChangedSignal", "newName", printer),
                 object("printerStatusChanged", "newStatus", QStringLiteral("42")),
             }));
    QVERIFY(result.output.startsWith(
        R"({"signal":"printerStatusChanged","dashboardPrinterName":"P \"1\"","newStatus":"1"})"));
}

void VxPrintMonTest::watchForPeople()
{
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "P", "driver": "Stratamark Alder", "values": {"StatusCode": "1"}}],
        "timeline": [{"at": 100, "say": "The lid is opened.", "printer": "P",
                      "values": {"StatusCode": "4"}}]})");
    const Result result =
        run({QStringLiteral("watch"), QStringLiteral("--for"), QStringLiteral("3"),
             QStringLiteral("--speed"), QStringLiteral("500"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(result.exitStatus, 0);
    const QList<QByteArray> lines = result.output.trimmed().split('\n');
    QCOMPARE(lines.size(), 4);
    const auto withoutClock = [&](int line) {
        return lines.at(line).trimmed().mid(7).trimmed();
    };
    QCOMPARE(withoutClock(0), QByteArray("P  status           1"));
    QCOMPARE(withoutClock(1), QByteArray("P  name             P"));
    QCOMPARE(withoutClock(2), QByteArray("The lid is opened."));
    QCOMPARE(withoutClock(3), QByteArray("P  status           4"));
    QVERIFY(!result.output.contains('\033'));
}

void VxPrintMonTest::watchTellsTheWholeStory()
{
    const Result result =
        run({QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--for"),
             QStringLiteral("8"), QStringLiteral("--speed"), QStringLiteral("20")});
    QCOMPARE(result.exitStatus, 0);
    QStringList statusOfShipping;
    QSet<QString> printers;
    const QList<QJsonObject> signalObjects = objects(result.output);
    for (const QJsonObject& object : signalObjects) {
        const QString printer = object.value(QStringLiteral("dashboardPrinterName")).toString();
        printers.insert(printer);
        if (printer == QLatin1String("Shipping") && object.contains(QStringLiteral("newStatus")))
            statusOfShipping.append(object.value(QStringLiteral("newStatus")).toString());
    }
    QCOMPARE(statusOfShipping,
             (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("1"),
                          QStringLiteral("254"), QStringLiteral("1")}));
    QCOMPARE(printers, (QSet<QString>{QStringLiteral("Shipping"), QStringLiteral("Warehouse"),
                                      QStringLiteral("Returns")}));
}

void VxPrintMonTest::watchWithoutAnyPrinter()
{
    const QString fleet = fleetFile(
        R"({"printers": [{"name": "A", "driver": "Some Office Printer"},
            {"name": "B", "driver": "Stratamark Alder", "administrable": false},
            {"name": "C", "driver": "Stratamark Alder", "port": "10.0.0.1"}]})");
    const Result result = run({QStringLiteral("watch"), QStringLiteral("--virtual"), fleet});
    QCOMPARE(result.exitStatus, 1);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(result.errors,
             QByteArray("vxprintmon: there is no supported, local printer that may be managed\n"));
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
    process.setProcessEnvironment(environment(m_home.path()));
    process.start(QStringLiteral(VXPRINTMON), {QStringLiteral("watch"), QStringLiteral("--json")});
    QTRY_VERIFY(process.bytesAvailable() > 0);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), number), 0);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

void VxPrintMonTest::coloursOnATerminal()
{
    const QString script = QStandardPaths::findExecutable(QStringLiteral("script"));
    if (script.isEmpty())
        QSKIP("there is no script(1) here to give the tool a terminal");
    const QStringList inTerminal{QStringLiteral("-qec"), QStringLiteral("'" VXPRINTMON "' list"),
                                 QStringLiteral("/dev/null")};
    QProcessEnvironment terminal = environment(m_home.path());
    terminal.insert(QStringLiteral("TERM"), QStringLiteral("xterm"));
    QVERIFY(run(inTerminal, script, terminal).output.contains("\033[32mShipping\033[0m"));
    terminal.insert(QStringLiteral("NO_COLOR"), QStringLiteral("1"));
    const Result plain = run(inTerminal, script, terminal);
    QVERIFY(plain.output.contains("Shipping"));
    QVERIFY(!plain.output.contains('\033'));
    terminal.remove(QStringLiteral("NO_COLOR"));
    terminal.insert(QStringLiteral("TERM"), QStringLiteral("dumb"));
    QVERIFY(!run(inTerminal, script, terminal).output.contains('\033'));
}

void VxPrintMonTest::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char* arguments, const char* complaint) {
        QTest::newRow(*arguments ? arguments : "nothing")
            << QString::fromUtf8(arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts)
            << QString::fromUtf8(complaint);
    };
    row("", "expected a verb: list, watch");
    row("lst", "\"lst\" is no verb; expected one of list, watch");
    row("list Shipping", "list takes no argument, found \"Shipping\"");
    row("list --jsn", "Unknown option 'jsn'");
    row("list --for 3", "--for goes with watch only");
    row("list --speed 3", "--speed goes with watch only");
    row("watch --for", "Missing value after '--for'");
    row("watch --for soon", "--for: expected a number above 0, at most 1000000, found \"soon\"");
    row("watch --for 0", "--for: expected a number above 0, at most 1000000, found \"0\"");
    row("watch --for nan", "--for: expected a number above 0, at most 1000000, found \"nan\"");
    row("watch --for 1e9", "--for: expected a number above 0, at most 1000000, found \"1e9\"");
    row("watch --speed -2", "--speed: expected a number above 0, at most 1000000, found \"-2\"");
    row("watch --virtual=", "--virtual: expected a file's name");
}

void VxPrintMonTest::wrongUsage()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, complaint);
    const Result result = run(arguments);
    QCOMPARE(result.exitStatus, 2);
    QCOMPARE(result.output, QByteArray());
    QCOMPARE(QString::fromUtf8(result.errors),
             QStringLiteral("vxprintmon: %1 (vxprintmon --help tells more)\n").arg(complaint));
}

void VxPrintMonTest::brokenFleet()
{
    const QString fleet = fleetFile("{\"printers\": [\n{\"name\": 7}]}");
    for (const char* verb : {"list", "watch"}) {
        const Result result = run({QString::fromLatin1(verb), QStringLiteral("--virtual"), fleet});
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

void VxPrintMonTest::helpAndVersion()
{
    const Result help = run({QStringLiteral("--help")});
    QCOMPARE(help.exitStatus, 0);
    QVERIFY(help.output.startsWith("Usage: vxprintmon VERB"));
    const Result version = run({QStringLiteral("--version")});
    QCOMPARE(version.exitStatus, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^vxprintmon \\d+\\.\\d+\\.\\d+\n$"))
                .match(QString::fromUtf8(version.output))
                .hasMatch());
}

void VxPrintMonTest::leavesNothingBehind()
{
    const QDir home(m_home.path());
    const QStringList entries =
        home.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    for (const QString& entry : entries)
        QVERIFY2(entry.startsWith(QLatin1String("fleet ")), qPrintable(entry));
}

QTEST_GUILESS_MAIN(VxPrintMonTest)
#include "tst_vxprintmon.moc"
