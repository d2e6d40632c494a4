// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The signals of the controller as `watch --json --signals` prints them, for those who write hosts.
#include "monitor_test.h"
#include "printer_status_controller.h"

#include <QtCore/QMetaMethod>

#include <array>
#include <csignal>

namespace {

/// One line of `watch --json --signals`, as text and as an object.
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

class MonitorSignalsTest : public MonitorTest
{
    Q_OBJECT

private Q_SLOTS:
    void watchPrintsEverySignal();
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

private:
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

    QList<Line> m_story;
};

void MonitorSignalsTest::watchPrintsEverySignal()
{
    const QString printer = QStringLiteral("P \"1\"");
    const QString fleet = fleetFile(R"({
        "printers": [{"name": "P \"1\"", "driver": "Stratamark Alder", "values":
            {"StatusCode": "1", "Ribbon1Identifier": 2004, "Mileage": 50}}],
        "defaultPrinter": "P \"1\"",
        "timeline": [{"at": 100, "say": "a caption", "printer": "P \"1\"",
                      "values": {"StatusCode": "42", "SoftwareVersion": "end"}}]})");
    const Result result = runUntil(R"("softwareVersion":"end")",
                                   {QStringLiteral("watch"), QStringLiteral("--json"),
                                    QStringLiteral("--signals"), QStringLiteral("--speed"),
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

void MonitorSignalsTest::watchEndsWhenInterrupted_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("interrupted") << SIGINT;
    QTest::newRow("terminated") << SIGTERM;
}

void MonitorSignalsTest::watchEndsWhenInterrupted()
{
    QFETCH(const int, number);
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(QStringLiteral(VXPRINTMON),
                  {QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--signals")});
    QTRY_VERIFY_WITH_TIMEOUT(process.bytesAvailable() > 0, patience);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), number), 0);
    QVERIFY(process.waitForFinished(patience));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
}

void MonitorSignalsTest::twoMonitorsRunSideBySide()
{
    // Each has its own endpoints and watches all printers.
    std::array<QProcess, 2> processes;
    qsizetype endpointCount = 0;
    for (QProcess& process : processes) {
        process.setProcessEnvironment(environment());
        process.start(
            QStringLiteral(VXPRINTMON),
            {QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--signals")});
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

const QList<Line>& MonitorSignalsTest::story()
{
    if (m_story.isEmpty()) {
        const Result result = runUntil(
            R"("printerName":"Warehouse","statusEnum":1,"printerOnline":true,)"
            R"("printerRemote":false,"printerNonAdmin":false,)"
            R"("printerDefault":true,"ribbon1Percentage":100,)"
            R"("ribbon1ColorHex":"#00843d","ribbon1ColorName":"Green",)"
            R"("ribbon1SKU":"RS-43-GN","ribbon2Percentage":57,)"
            R"("ribbon2ColorHex":"#000000","ribbon2ColorName":"Black",)"
            R"("ribbon2SKU":"RX-43-BK","softwareVersion":"4.2.0,boot 1.7")",
            {QStringLiteral("watch"), QStringLiteral("--json"), QStringLiteral("--signals"),
             QStringLiteral("--speed"), QStringLiteral("200")});
        m_story = linesOf(result.output);
        if (result.exitStatus != 0 || !result.errors.isEmpty())
            qFatal("the story ended with status %d: %s\n%s", result.exitStatus,
                   result.errors.constData(), result.output.constData());
    }
    return m_story;
}

QList<Line> MonitorSignalsTest::linesOfStoryFrom(const QString& printer, int status)
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

void MonitorSignalsTest::everyLineHasTheArgumentsOfItsSignal()
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

void MonitorSignalsTest::storyReportsWhenErrorsBeginAndEnd()
{
    QList<bool> states;
    for (const Line& line : linesOfStory(inError))
        states.append(line.object.value(QStringLiteral("printerInErrorState")).toBool());
    // Out of labels, lid, pause, spooler, firmware: each error begins and ends.
    QCOMPARE(states,
             (QList<bool>{true, false, true, false, true, false, true, false, true, false}));
}

void MonitorSignalsTest::storyReportsTheActivePrinter()
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

void MonitorSignalsTest::storyReportsASupplyThatRunsOut()
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

void MonitorSignalsTest::storyReportsARibbonThatIsReplaced()
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

void MonitorSignalsTest::storyReportsAPrinterThatIsFound()
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

void MonitorSignalsTest::storyReportsThatTheSpoolerStops()
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

void MonitorSignalsTest::storyReportsAPrinterThatGoesOffline()
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

QTEST_GUILESS_MAIN(MonitorSignalsTest)
#include "tst_monitor_signals.moc"
