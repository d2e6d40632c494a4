// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Cases that are written by hand, replayed by a controller: each step reaches it as it would have
// on the recorded system, and differences from what was recorded are found.
#include "case_replay.h"
#include "failure.h"
#include "machine_test.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

using virtualwindows::Case;
using virtualwindows::CaseOutput;

namespace {

const QString caseName = QStringLiteral("day.vxcase");

QByteArray header(const QByteArray& from = "start")
{
    return R"({"kind":"case","version":"1.0","locale":"en_US","from":")" + from + "\"}\n";
}

QByteArray printer(const QByteArray& name, const QByteArray& values = {},
                   const QByteArray& kind = "printer")
{
    return R"({"kind":")" + kind + R"(","name":")" + name +
           "\",\"driver\":\"Stratamark CedarMax\",\"port\":\"USB001\",\"attributes\":64,"
           "\"status\":0,\"administrable\":true,\"values\":[" +
           values + "]}\n";
}

QByteArray status(const QByteArray& code)
{
    return R"({"name":"StatusCode","type":1,"text":")" + code + "\"}";
}

QByteArray values(int number, const QByteArray& name, const QByteArray& changed,
                  const QByteArray& more = {})
{
    return R"({"kind":"values","t":)" + QByteArray::number(number) +
           ",\"n\":" + QByteArray::number(number) + R"(,"printer":")" + name + R"(","changed":[)" +
           changed + "]" + more + "}\n";
}

QByteArray statusSignal(int code, const QByteArray& name)
{
    return R"({"kind":"signal","t":1.5,"name":"statusChangedSignal","arguments":{"status":)" +
           QByteArray::number(code) + R"(,"printerName":")" + name + "\"}}\n";
}

const QByteArray begun = "{\"kind\":\"begun\"}\n";

Case caseOf(const QByteArray& text)
{
    return virtualwindows::parseCase(text, caseName);
}

QList<CaseOutput> replayed(const QByteArray& text)
{
    return case_replay::replay(caseOf(text), caseName).constLast();
}

/// The outputs that name a text, one a line, without those that say nothing of a printer.
QString linesAbout(const QList<CaseOutput>& outputs, const QString& text)
{
    QStringList lines;
    for (const CaseOutput& output : outputs) {
        const QString line = case_replay::described(output);
        if (line.contains(text))
            lines.append(line);
    }
    return lines.join(u'\n');
}

/// The statuses that a printer reported.
QList<int> statusesOf(const QList<CaseOutput>& outputs, const QString& name)
{
    QList<int> codes;
    for (const CaseOutput& output : outputs) {
        if (output.name == QLatin1String("statusChangedSignal") &&
            output.arguments.value(QStringLiteral("printerName")) == name)
            codes.append(output.arguments.value(QStringLiteral("status")).toInt());
    }
    return codes;
}

/// The same day with everything that happens in it recorded.
Case complete(const QByteArray& text)
{
    Case recorded = caseOf(text);
    const case_replay::Outputs outputs = case_replay::replay(recorded, caseName);
    for (qsizetype place = 0; place < outputs.size(); ++place)
        recorded.chapters[place].outputs = outputs.at(place);
    recorded.isCut = false;
    return recorded;
}

QString differenceFrom(const Case& recorded)
{
    return case_replay::described(
        case_replay::compare(recorded, case_replay::replay(recorded, caseName)).first);
}

qsizetype placeOf(const QList<CaseOutput>& outputs, const QString& name)
{
    const auto found = std::ranges::find(outputs, name, &CaseOutput::name);
    return found == outputs.end() ? -1 : found - outputs.begin();
}

} // namespace

class CaseReplayTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesReachTheController();
    void pollEndsTheWaitOfItsPrinterAlone();
    void callsFailAsRecorded();
    void discoveryIsTheHosts();
    void defaultThatWasReadEarlyOutlivesARename();
    void changeThatWasReadEarlyIsThatOfTheRenamedPrinter();
    void threadsBeginInTheRecordedOrder();
    void startOfAThreadCanBeAStepOfItsOwn();
    void threadComparesWithWhatItFoundFirst();
    void heldThreadsEndWithTheirCase();
    void renamedPrinterIsStillWatched();
    void removedPrinterIsReadAsRecorded();
    void statesAreThoseOfTheirStep();
    void rowsOfTheCatalogueGiveNames();
    void wrongRowIsRefused();
    void sameDayHasNoDifference();
    void firstDifferenceHasBothSides();
    void missingAndNewSignalsAreDifferences();
    void cutDayIsComparedUpToTheCut();
    void whatTheHostWroteIsNotCompared();
    void runningHostsFirstReportsAreNotCompared();
    void controllerBeginsAnewAfterAGap();
    void logAloneIsComparedWithoutSignals();
    void fileIsTestedInOneLine();
};

void CaseReplayTest::valuesReachTheController()
{
    const QList<CaseOutput> outputs =
        replayed(header() + printer("Shipping", status("1")) + printer("Returns", status("4")) +
                 begun + values(1, "Shipping", status("2")) + values(2, "Returns", status("1")) +
                 values(3, "Shipping", {}, R"(,"missing":["StatusCode"])"));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>({1, 2, 255}));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Returns")), QList<int>({4, 1}));
}

void CaseReplayTest::pollEndsTheWaitOfItsPrinterAlone()
{
    const QList<CaseOutput> outputs = replayed(
        header() + printer("Shipping", status("1")) + printer("Returns", status("1")) + begun +
        "{\"kind\":\"service\",\"t\":1,\"state\":1}\n"
        "{\"kind\":\"poll\",\"t\":5,\"n\":1,\"printer\":\"Shipping\"}\n"
        "{\"kind\":\"service\",\"t\":6,\"state\":4}\n"
        "{\"kind\":\"poll\",\"t\":10,\"n\":2,\"printer\":\"Shipping\"}\n");
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>({1, 254, 1}));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Returns")), QList<int>{1});
}

void CaseReplayTest::callsFailAsRecorded()
{
    const QList<CaseOutput> outputs = replayed(
        header() + printer("Shipping", status("1")) + printer("Returns", status("1")) + begun +
        "{\"kind\":\"started\",\"printer\":\"Returns\",\"at\":0,\"failed\":["
        "{\"call\":\"OpenPrinterA\",\"error\":1722}]}\n"
        "{\"kind\":\"started\",\"printer\":\"Shipping\",\"at\":0}\n" +
        values(1, "Shipping", {},
               ",\"failed\":[{\"call\":\"GetPrinterDataA\",\"value\":\"StatusCode\","
               "\"error\":1722}]") +
        "{\"kind\":\"failed\",\"at\":2,\"call\":\"GetPrinterW\",\"printer\":\"Shipping\","
        "\"error\":1722,\"after\":1}\n" +
        values(2, "Shipping", status("0")) + values(3, "Shipping", status("1")));
    QCOMPARE(linesAbout(outputs, QStringLiteral("Returns: ")),
             QStringLiteral("[Debug] printer_status_thread:198 Returns: Failed to open printer"));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Returns")), QList<int>());
    // A printer whose record cannot be read counts as offline.
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>({1, 255, 257, 1}));
    QVERIFY(linesAbout(outputs, QStringLiteral("windows_printer_info:244"))
                .contains(QStringLiteral("Failure to access the printer")));
}

void CaseReplayTest::discoveryIsTheHosts()
{
    const QList<CaseOutput> outputs =
        replayed(header() + begun + printer("Shipping", status("1"), "printerAdded") +
                 "{\"kind\":\"service\",\"t\":2,\"state\":4}\n"
                 "{\"kind\":\"discover\",\"t\":2,\"n\":1}\n");
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>{1});
    QVERIFY(!linesAbout(outputs, QStringLiteral("Evaluating Printer: Shipping")).isEmpty());
}

void CaseReplayTest::defaultThatWasReadEarlyOutlivesARename()
{
    // The controller handled the first step after the printer had got its new name.
    const QList<CaseOutput> outputs =
        replayed(header() + printer("Shipping", status("1")) + printer("Returns", status("1")) +
                 begun + values(1, "Shipping", status("2")) +
                 "{\"kind\":\"printerRenamed\",\"name\":\"Returns\",\"newName\":\"Archive\"}\n" +
                 values(2, "Shipping", status("1")) +
                 "{\"kind\":\"default\",\"at\":1,\"printer\":\"Archive\"}\n"
                 "{\"kind\":\"discover\",\"n\":3}\n");
    QVERIFY(!linesAbout(outputs, QStringLiteral("Archive from user-selected default")).isEmpty());
}

void CaseReplayTest::changeThatWasReadEarlyIsThatOfTheRenamedPrinter()
{
    const QList<CaseOutput> outputs =
        replayed(header() + printer("Shipping", status("1")) + printer("Returns", status("1")) +
                 begun + values(1, "Shipping", status("2")) +
                 "{\"kind\":\"printerRenamed\",\"name\":\"Returns\",\"newName\":\"Archive\"}\n" +
                 values(2, "Shipping", status("1")) +
                 "{\"kind\":\"printerChanged\",\"at\":1,\"name\":\"Archive\","
                 "\"driver\":\"Stratamark AlderMax\"}\n"
                 "{\"kind\":\"discover\",\"n\":3}\n");
    QVERIFY(!linesAbout(outputs, QStringLiteral("Archive ( Stratamark AlderMax )")).isEmpty());
}

void CaseReplayTest::threadsBeginInTheRecordedOrder()
{
    const auto activeAfter = [](const QByteArray& first, const QByteArray& second) {
        const QList<CaseOutput> outputs = replayed(
            header() + begun + printer("A", status("1"), "printerAdded") +
            printer("B", status("1"), "printerAdded") + printer("C", status("1"), "printerAdded") +
            "{\"kind\":\"discover\",\"t\":1,\"n\":1}\n"
            "{\"kind\":\"started\",\"t\":1,\"at\":1,\"printer\":\"" +
            first + "\"}\n{\"kind\":\"started\",\"t\":1,\"at\":1,\"printer\":\"" + second +
            "\"}\n");
        const qsizetype place = placeOf(outputs, QStringLiteral("activeDefaultPrinterSetSignal"));
        return place < 0 ? QVariant()
                         : outputs.at(place).arguments.value(QStringLiteral("activePrinterName"));
    };
    // Without an active printer, the first that reports becomes active.
    QCOMPARE(activeAfter("C", "A"), QVariant(QStringLiteral("C")));
    QCOMPARE(activeAfter("B", "C"), QVariant(QStringLiteral("B")));
}

void CaseReplayTest::startOfAThreadCanBeAStepOfItsOwn()
{
    // The controller saw another flag when it found the printers than when it handled the reports.
    const QList<CaseOutput> outputs = replayed(
        header() + printer("Shipping", status("0")) + printer("Returns", status("0")) + begun +
        "{\"kind\":\"started\",\"t\":1,\"n\":1,\"at\":0,\"printer\":\"Returns\"}\n"
        "{\"kind\":\"printerChanged\",\"t\":2,\"name\":\"Shipping\",\"status\":128,"
        "\"at\":2}\n"
        "{\"kind\":\"started\",\"t\":2,\"n\":2,\"at\":0,\"printer\":\"Shipping\"}\n"
        "{\"kind\":\"started\",\"t\":2,\"at\":0,\"printer\":\"Shipping\",\"failed\":["
        "{\"call\":\"CreateEventW\",\"error\":8}]}\n" +
        values(3, "Shipping", status("1")) + values(4, "Returns", status("1")));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Returns")), QList<int>({0, 1}));
    // Without its event, the thread has ended after its first read.
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>{257});
}

void CaseReplayTest::threadComparesWithWhatItFoundFirst()
{
    // The service was stopped between the first read and the first question for its state.
    const QList<CaseOutput> outputs =
        replayed(header() + printer("Shipping", status("1")) + begun +
                 "{\"kind\":\"started\",\"t\":0,\"n\":1,\"at\":0,\"printer\":\"Shipping\"}\n"
                 "{\"kind\":\"service\",\"t\":0,\"state\":1,\"printer\":\"Shipping\"}\n"
                 "{\"kind\":\"service\",\"t\":4,\"state\":4}\n"
                 "{\"kind\":\"poll\",\"t\":5,\"n\":2,\"printer\":\"Shipping\",\"failed\":["
                 "{\"call\":\"OpenPrinterA\",\"error\":1722}]}\n");
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>({1, 254}));
    QCOMPARE(linesAbout(outputs, QStringLiteral("Shipping: ")),
             QStringLiteral("[Debug] printer_status_thread:198 Shipping: Failed to open printer"));
}

void CaseReplayTest::heldThreadsEndWithTheirCase()
{
    for (int round = 0; round < 20; ++round) {
        const QList<CaseOutput> outputs = replayed(
            header() + printer("Shipping", status("1")) + printer("Returns", status("1")) + begun +
            "{\"kind\":\"started\",\"t\":0,\"n\":1,\"at\":0,\"printer\":\"Shipping\"}\n"
            "{\"kind\":\"service\",\"t\":0,\"state\":1,\"printer\":\"Shipping\"}\n");
        QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>{1});
    }
}

void CaseReplayTest::renamedPrinterIsStillWatched()
{
    const QList<CaseOutput> outputs = replayed(
        header() + printer("Shipping", status("1")) + begun +
        "{\"kind\":\"printerRenamed\",\"t\":1,\"name\":\"Shipping\",\"newName\":\"Packing\"}\n" +
        printer("Shipping", status("7"), "printerAdded") + values(1, "Shipping", status("4")));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>({1, 4}));
}

void CaseReplayTest::removedPrinterIsReadAsRecorded()
{
    // It may only have another name, which the recorder did not know.
    const QList<CaseOutput> outputs =
        replayed(header() + printer("Shipping", status("1")) + begun +
                 "{\"kind\":\"printerRemoved\",\"t\":1,\"name\":\"Shipping\"}\n" +
                 values(1, "Shipping", status("4")) +
                 values(2, "Shipping", {},
                        ",\"failed\":[{\"call\":\"GetPrinterDataA\",\"value\":\"StatusCode\","
                        "\"error\":1905}]"));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>({1, 4, 257}));
}

void CaseReplayTest::statesAreThoseOfTheirStep()
{
    // The flag was noticed later, but was set when the first of the two reports was handled.
    const QList<CaseOutput> outputs =
        replayed(header() + printer("Shipping", status("1")) + begun +
                 values(1, "Shipping", status("0")) + values(2, "Shipping", status("4")) +
                 "{\"kind\":\"printerChanged\",\"t\":2,\"name\":\"Shipping\",\"status\":128,"
                 "\"at\":1}\n");
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>({1, 257, 4}));
}

void CaseReplayTest::rowsOfTheCatalogueGiveNames()
{
    const QByteArray catalogue =
        "{\"kind\":\"catalogue\",\"t\":0,\"file\":\"roll.db\",\"schema\":1,\"tables\":{"
        "\"language\":[{\"id\":0,\"tag\":\"en\"}],"
        "\"name\":[{\"id\":1,\"english\":\"Night\"},{\"id\":2,\"english\":\"Paper\"}],"
        "\"colour\":[{\"id\":1,\"key\":\"night\",\"rgb\":66,\"name_id\":1}],"
        "\"material\":[{\"id\":3,\"name_id\":2}],"
        "\"format\":[{\"id\":4,\"type\":\"continuous\",\"name_id\":2}],"
        "\"supply\":[{\"sku\":\"NP-1\",\"material_id\":3,\"format_id\":4,\"colour_id\":1,"
        "\"width\":4,\"length\":1200,\"is_landscape\":0,\"multi_up_count\":1}],"
        "\"supply_kind\":[{\"kind\":100003,\"supply_sku\":\"NP-1\"}]}}\n";
    const QList<CaseOutput> outputs =
        replayed(header() +
                 printer("Shipping", "{\"name\":\"SupplyIdentifier\",\"type\":1,\"text\":"
                                     "\"000000641000030000A7\"}") +
                 catalogue + begun + QByteArray(catalogue).replace("\"id\":3", "\"id\":5"));
    QCOMPARE(linesAbout(outputs, QStringLiteral("NP-1")),
             QStringLiteral("[Debug] printer_status_controller:583 \n \"Shipping\" true \"NP-1\" "
                            "\"#000042\" \"Night\" \"Paper\" "));
}

void CaseReplayTest::wrongRowIsRefused()
{
    const Case recorded =
        caseOf(header() + begun +
               "{\"kind\":\"catalogue\",\"tables\":{\"material\":[{\"id\":-1,\"name_id\":2}]}}\n");
    QString message;
    try {
        case_replay::replay(recorded, caseName);
    } catch (const Failure& failure) {
        message = failure.message();
    }
    QVERIFY2(message.startsWith(QStringLiteral(
                 "day.vxcase:3: a row does not fit the table \"material\" of a catalogue: ")),
             qPrintable(message));
}

const QByteArray ordinaryDay =
    header() + printer("Shipping", status("1")) + printer("Returns", status("4")) + begun +
    values(1, "Shipping", status("2")) + values(2, "Returns", status("1")) +
    values(3, "Shipping", status("1"));

void CaseReplayTest::sameDayHasNoDifference()
{
    const Case recorded = complete(ordinaryDay);
    QVERIFY(recorded.chapters.first().outputs.size() > 10);
    QCOMPARE(differenceFrom(recorded), QString());
}

void CaseReplayTest::firstDifferenceHasBothSides()
{
    Case recorded = complete(ordinaryDay);
    QList<CaseOutput>& outputs = recorded.chapters.first().outputs;
    for (CaseOutput& output : outputs) {
        if (output.name != QLatin1String("statusChangedSignal"))
            continue;
        QVariant& code = output.arguments[QStringLiteral("status")];
        if (code == 2) {
            code = 3;
            output.line = 40;
            output.at = std::chrono::milliseconds(1250);
        }
    }
    QCOMPARE(differenceFrom(recorded),
             QStringLiteral(
                 "Signals and log lines of \"Shipping\": the first difference is at number 3\n"
                 "  recorded: statusChangedSignal(printerName: \"Shipping\", status: 3) "
                 "(line 40, after 1.250 s)\n"
                 "  replayed: statusChangedSignal(printerName: \"Shipping\", status: 2) "
                 "(line 5, after 1.000 s)"));
}

void CaseReplayTest::missingAndNewSignalsAreDifferences()
{
    Case fewer = complete(ordinaryDay);
    fewer.chapters.first().outputs.removeLast();
    QVERIFY2(differenceFrom(fewer).contains(QStringLiteral("recorded: nothing")),
             qPrintable(differenceFrom(fewer)));

    Case more = complete(ordinaryDay);
    CaseOutput error;
    error.name = QStringLiteral("printerErrorChangedSignal");
    error.arguments.insert(QStringLiteral("printerInErrorState"), true);
    more.chapters.first().outputs.append(error);
    QVERIFY2(differenceFrom(more).contains(QStringLiteral("replayed: nothing")),
             qPrintable(differenceFrom(more)));

    Case line = complete(ordinaryDay);
    line.chapters.first().outputs.first().message += QLatin1Char('!');
    QVERIFY(!differenceFrom(line).isNull());
}

void CaseReplayTest::cutDayIsComparedUpToTheCut()
{
    Case recorded = complete(ordinaryDay);
    recorded.isCut = true;
    recorded.chapters.first().outputs.resize(recorded.chapters.first().outputs.size() - 4);
    QCOMPARE(differenceFrom(recorded), QString());
    // What is there has to be right.
    recorded.chapters.first().outputs.removeFirst();
    QVERIFY(!differenceFrom(recorded).isNull());
}

void CaseReplayTest::whatTheHostWroteIsNotCompared()
{
    Case recorded = complete(ordinaryDay);
    CaseOutput line;
    line.kind = CaseOutput::Kind::LogLine;
    line.sourceFile = QStringLiteral("printer_status_controller");
    line.function = QStringLiteral("void PrinterStatusController::sendToLogger(QString)");
    line.message = QStringLiteral("Shipping: hello");
    recorded.chapters.first().outputs.append(line);
    line.function =
        QStringLiteral("void PrinterStatusController::sendCommandToPrinter(QString, QString)");
    recorded.chapters.first().outputs.append(line);
    line.sourceFile = QStringLiteral("my_host");
    recorded.chapters.first().outputs.append(line);
    QCOMPARE(differenceFrom(recorded), QString());
}

void CaseReplayTest::runningHostsFirstReportsAreNotCompared()
{
    const QByteArray day = header("running") + printer("Shipping", status("1")) + begun;
    QCOMPARE(replayed(day).size(), 0);
    QCOMPARE(
        statusesOf(replayed(day + values(7, "Shipping", status("2"))), QStringLiteral("Shipping")),
        QList<int>{2});
}

void CaseReplayTest::controllerBeginsAnewAfterAGap()
{
    const QList<CaseOutput> outputs = replayed(
        header() + printer("Shipping", status("1")) + begun + values(1, "Shipping", status("2")) +
        "{\"kind\":\"gap\",\"t\":2,\"lines\":9,\"until\":8}\n" + printer("Returns", status("3")) +
        begun + values(11, "Returns", status("1")));
    QCOMPARE(statusesOf(outputs, QStringLiteral("Shipping")), QList<int>());
    QCOMPARE(statusesOf(outputs, QStringLiteral("Returns")), QList<int>{1});
}

void CaseReplayTest::logAloneIsComparedWithoutSignals()
{
    Case recorded = complete(ordinaryDay);
    recorded.chapters.first().outputs.removeIf(
        [](const CaseOutput& output) { return output.kind == CaseOutput::Kind::Signal; });
    QCOMPARE(differenceFrom(recorded), QString());
    recorded.chapters.first().outputs.removeLast();
    QVERIFY(!differenceFrom(recorded).isNull());
}

void CaseReplayTest::fileIsTestedInOneLine()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(caseName));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(header("running") + printer("Shipping", status("1")) + begun +
               values(1, "Shipping", status("4")) + statusSignal(4, "Shipping"));
    file.close();
    QCOMPARE(case_replay::differenceOf(file.fileName()), QString());
    QVERIFY(file.open(QIODevice::Append));
    file.write(statusSignal(5, "Shipping"));
    file.close();
    QVERIFY(!case_replay::differenceOf(file.fileName()).isNull());
}

QTEST_GUILESS_MAIN(CaseReplayTest)
#include "tst_case_replay.moc"
