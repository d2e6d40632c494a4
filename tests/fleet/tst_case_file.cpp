// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Case files: how they are read, what is refused, and how they are played as a fleet.
#include "machine_test.h"

#include "virtualwindows/recorded_case.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <span>
#include <vector>

#include <windows.h>
#include <winspool.h>

using namespace virtualwindows;
using namespace std::chrono_literals;

namespace {

const QByteArray header = R"({"kind":"case","version":"1.0","from":"start"})"
                          "\n";
const QByteArray printer =
    R"({"kind":"printer","name":"Shipping","driver":"Stratamark Alder","port":"USB001",)"
    R"("attributes":64,"status":0,"administrable":true,"values":[)"
    R"({"name":"StatusCode","type":1,"text":"1"},{"name":"Mileage","type":4,"number":76}]})"
    "\n";
const QByteArray begun = "{\"kind\":\"begun\"}\n";

Case caseOf(const QByteArray& text)
{
    return parseCase(text, QStringLiteral("day.vxcase"));
}

/// A case of one printer with some more lines.
Case caseWith(const QByteArray& lines)
{
    return caseOf(header + printer + begun + lines);
}

QString errorOf(const QByteArray& text)
{
    try {
        caseOf(text);
    } catch (const FleetError& error) {
        return error.message();
    }
    return QStringLiteral("accepted");
}

/// The bytes that the spooler gives for a value; nothing if there is no such value.
std::optional<QByteArray> valueOf(const QByteArray& printerName, const QByteArray& name)
{
    HANDLE handle = nullptr;
    QByteArray openName = printerName;
    if (!OpenPrinterA(openName.data(), &handle, nullptr))
        return std::nullopt;
    QByteArray bytes(100, '\0');
    QByteArray valueName = name;
    DWORD type = 0;
    DWORD size = 0;
    const DWORD error =
        GetPrinterDataA(handle, valueName.data(), &type, reinterpret_cast<BYTE*>(bytes.data()),
                        static_cast<DWORD>(bytes.size()), &size);
    ClosePrinter(handle);
    if (error != ERROR_SUCCESS)
        return std::nullopt;
    return bytes.first(size);
}

/// The error of reading a value; 0 if it can be read.
DWORD errorOfReading(const QByteArray& printerName, const QByteArray& name)
{
    HANDLE handle = nullptr;
    QByteArray openName = printerName;
    if (!OpenPrinterA(openName.data(), &handle, nullptr))
        return GetLastError();
    QByteArray bytes(100, '\0');
    QByteArray valueName = name;
    DWORD type = 0;
    DWORD size = 0;
    const DWORD error =
        GetPrinterDataA(handle, valueName.data(), &type, reinterpret_cast<BYTE*>(bytes.data()),
                        static_cast<DWORD>(bytes.size()), &size);
    ClosePrinter(handle);
    return error;
}

QString textOf(const WCHAR* text)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text));
}

/// The jobs in a printer's queue as the spooler lists them: number, document, user, data type,
/// pages, bytes and status.
QStringList queueOf(const QByteArray& printerName)
{
    HANDLE handle = nullptr;
    QByteArray openName = printerName;
    if (!OpenPrinterA(openName.data(), &handle, nullptr))
        return {};
    DWORD needed = 0;
    DWORD count = 0;
    EnumJobsW(handle, 0, 9999, 2, nullptr, 0, &needed, &count);
    std::vector<BYTE> block(needed);
    EnumJobsW(handle, 0, 9999, 2, block.data(), needed, &needed, &count);
    ClosePrinter(handle);
    QStringList queue;
    for (const JOB_INFO_2W& job :
         std::span(reinterpret_cast<const JOB_INFO_2W*>(block.data()), count))
        queue.append(QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
                         .arg(job.JobId)
                         .arg(textOf(job.pDocument), textOf(job.pUserName), textOf(job.pDatatype))
                         .arg(job.TotalPages)
                         .arg(job.Size)
                         .arg(job.Status));
    return queue;
}

void playUpTo(const QList<StoryEvent>& story, std::chrono::milliseconds time)
{
    for (const StoryEvent& event : story) {
        if (event.at <= time)
            event.happen(Machine::instance());
    }
}

} // namespace

class CaseFileTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheHeader();
    void beginsWithTheRecordedSystem();
    void readsValuesOfEachKind();
    void putsWhatHadChangedBeforeItsStep();
    void putsFailuresToTheirStep();
    void readsOutputs();
    void readsAHigherMinorVersion();
    void skipsUnknownKindsAndKeys();
    void skipsALastLineThatIsNotComplete();
    void readsALastLineWithoutItsEnd();
    void beginsAChapterAfterAGap();
    void refusesWhatIsWrong_data();
    void refusesWhatIsWrong();
    void refusesMoreThanItCanHold();
    void messagesAreOneLine();
    void namesOfCaseFilesAreKnown();
    void playsChangesInTheirOrder();
    void jobsAreInTheirQueue();
    void jobsOfTheBeginningAreTheOnlyOnes();
    void jobsNeverFillTheQueue();
    void gapCanComeBeforeABeginningIsComplete();
    void changesOfUnknownPrintersHaveNoEffect();
    void playsCallsThatFailed();
    void failuresThatDidNotHappenAreForgotten();
    void defaultPrinterOutlivesItsPrinter();
    void systemAfterAGapReplacesTheOneBefore();
    void spoolerCanBeStoppedFromTheBeginning();
    void rowsOfTheCatalogueAreKept();
};

void CaseFileTest::readsTheHeader()
{
    const Case recorded =
        caseOf(R"({"kind":"case","version":"1.0","product":"VxPrinterStatus 1.0",)"
               R"("locale":"de_DE","from":"running","redacted":true})"
               "\n");
    QCOMPARE(recorded.version, QStringLiteral("1.0"));
    QCOMPARE(recorded.product, QStringLiteral("VxPrinterStatus 1.0"));
    QCOMPARE(recorded.locale, QStringLiteral("de_DE"));
    QVERIFY(recorded.isRedacted);
    QVERIFY(recorded.isCut);
    QCOMPARE(recorded.chapters.size(), 1);
    QVERIFY(!recorded.chapters.first().isFromStart);
    QVERIFY(!recorded.chapters.first().hasBegun);
}

void CaseFileTest::beginsWithTheRecordedSystem()
{
    const Fleet fleet = fleetOf(caseOf(
        header + printer +
        R"({"kind":"printer","name":"Café","driver":null,"port":null,"attributes":16,"status":128,)"
        R"("administrable":false,"values":[]})"
        "\n"
        R"({"kind":"device","class":"{c}","interface":"key","portNumber":3,"serialNumber":"S1"})"
        "\n"
        R"({"kind":"default","printer":"Café"})"
        "\n" +
        begun));
    populate(machine(), fleet);
    QCOMPARE(machine().printers(), QStringList({QStringLiteral("Shipping"), u"Café"_qs}));
    QCOMPARE(machine().defaultPrinter(), u"Café"_qs);
    QCOMPARE(machine().valueNames(QStringLiteral("Shipping")),
             QList<QByteArray>({"mileage", "statuscode"}));
    const FleetPrinter& second = fleet.printers.at(1);
    QVERIFY(second.setup.driver.isNull());
    QVERIFY(second.setup.port.isNull());
    QCOMPARE(second.setup.attributes, 16U);
    QCOMPARE(second.setup.status, 128U);
    QVERIFY(!second.setup.administrable);
    QCOMPARE(fleet.devices.size(), 1);
    QCOMPARE(fleet.devices.first().interfaceKey, QStringLiteral("key"));
    QCOMPARE(fleet.devices.first().portNumber, QVariant(3U));
    QCOMPARE(fleet.devices.first().serialNumber, QVariant(QStringLiteral("S1")));
}

void CaseFileTest::readsValuesOfEachKind()
{
    const Case recorded =
        caseWith(R"({"kind":"values","t":1,"n":1,"printer":"Shipping","changed":[)"
                 R"({"name":"A","type":1,"text":"ä"},{"name":"B","type":4,"number":258},)"
                 R"({"name":"C","type":3,"base64":"AP8="},{"name":"D","type":1,"size":3}],)"
                 R"("missing":["Mileage"]})"
                 "\n");
    const CaseStep& step = recorded.chapters.first().steps.at(1);
    QCOMPARE(step.kind, CaseStep::Kind::Values);
    QCOMPARE(step.printer, QStringLiteral("Shipping"));
    QCOMPARE(step.missing, QList<QByteArray>{"Mileage"});
    QCOMPARE(step.changed.size(), 4);
    QCOMPARE(step.changed.at(0).data, QByteArray("\xC3\xA4\0", 3));
    QCOMPARE(step.changed.at(1).data, QByteArray("\x02\x01\0\0", 4));
    QCOMPARE(step.changed.at(1).type, 4U);
    QCOMPARE(step.changed.at(2).data, QByteArray("\0\xFF", 2));
    QCOMPARE(step.changed.at(2).type, 3U);
    QCOMPARE(step.changed.at(3).data, QByteArray(3, '\0'));
}

void CaseFileTest::putsWhatHadChangedBeforeItsStep()
{
    const Case recorded = caseWith("{\"kind\":\"default\",\"t\":1,\"printer\":null,\"at\":2}\n"
                                   "{\"kind\":\"discover\",\"t\":2,\"n\":1}\n"
                                   "{\"kind\":\"service\",\"t\":3,\"state\":1}\n"
                                   "{\"kind\":\"discover\",\"t\":3,\"n\":2}\n"
                                   "{\"kind\":\"service\",\"t\":4,\"state\":4,\"at\":1}\n"
                                   "{\"kind\":\"service\",\"t\":5,\"state\":2}\n");
    const CaseChapter& chapter = recorded.chapters.first();
    const auto linesOf = [](const QList<CaseChange>& changes) {
        QList<int> lines;
        for (const CaseChange& change : changes)
            lines.append(change.line);
        return lines;
    };
    QCOMPARE(chapter.steps.size(), 3);
    QCOMPARE(linesOf(chapter.steps.at(0).before), QList<int>());
    QCOMPARE(linesOf(chapter.steps.at(1).before), QList<int>{8});
    QCOMPARE(linesOf(chapter.steps.at(2).before), QList<int>({4, 6}));
    QCOMPARE(linesOf(chapter.after), QList<int>{9});
}

void CaseFileTest::putsFailuresToTheirStep()
{
    const Case recorded = caseWith(
        R"({"kind":"started","t":0,"printer":"Shipping","at":0,)"
        R"("failed":[{"call":"FindFirstPrinterChangeNotification","error":8}]})"
        "\n"
        R"({"kind":"failed","t":0,"at":1,"call":"GetDefaultPrinterW","error":2,"after":1})"
        "\n"
        R"({"kind":"poll","t":5,"n":1,"printer":"Shipping","failed":[{"call":"GetPrinterDataA",)"
        R"("printer":"Shipping","value":"Mileage","error":1722}]})"
        "\n");
    const QList<CaseStep>& steps = recorded.chapters.first().steps;
    QCOMPARE(steps.size(), 2);
    QCOMPARE(steps.at(0).starts.size(), 1);
    const CallFailure& start = steps.at(0).starts.first().failures.first();
    QCOMPARE(start.function, QStringLiteral("FindFirstPrinterChangeNotification"));
    QCOMPARE(start.printer, QStringLiteral("Shipping"));
    QCOMPARE(start.caller, CallFailure::Caller::OtherThreads);
    QCOMPARE(steps.at(1).threadFailures.size(), 1);
    QCOMPARE(steps.at(1).threadFailures.first().value, QByteArray("Mileage"));
    QCOMPARE(steps.at(1).threadFailures.first().error, 1722U);
    QCOMPARE(steps.at(1).hostFailures.size(), 1);
    QCOMPARE(steps.at(1).hostFailures.first().caller, CallFailure::Caller::ThisThread);
    QCOMPARE(steps.at(1).hostFailures.first().after, 1);
}

void CaseFileTest::readsOutputs()
{
    const Case recorded = caseWith(
        R"({"kind":"signal","t":1.25,"name":"statusChangedSignal",)"
        R"("arguments":{"status":12,"printerName":"Shipping"}})"
        "\n"
        R"({"kind":"log","t":1.5,"level":"Debug","file":"f","line":7,"function":"g","message":"m"})"
        "\n"
        R"({"kind":"end","t":2,"steps":0,"signals":1,"logLines":1,"faster":0})"
        "\n");
    QVERIFY(!recorded.isCut);
    QCOMPARE(recorded.length, 2000ms);
    const QList<CaseOutput>& outputs = recorded.chapters.first().outputs;
    QCOMPARE(outputs.size(), 2);
    QCOMPARE(outputs.at(0).kind, CaseOutput::Kind::Signal);
    QCOMPARE(outputs.at(0).line, 4);
    QCOMPARE(outputs.at(0).at, 1250ms);
    QCOMPARE(outputs.at(0).name, QStringLiteral("statusChangedSignal"));
    QCOMPARE(outputs.at(0).arguments.value(QStringLiteral("status")), QVariant(12));
    QCOMPARE(outputs.at(1).kind, CaseOutput::Kind::LogLine);
    QCOMPARE(outputs.at(1).level, QStringLiteral("Debug"));
    QCOMPARE(outputs.at(1).sourceLine, 7);
    QCOMPARE(outputs.at(1).message, QStringLiteral("m"));
}

void CaseFileTest::readsAHigherMinorVersion()
{
    QCOMPARE(errorOf("{\"kind\":\"case\",\"version\":\"1.17\",\"later\":{}}\n"),
             QStringLiteral("accepted"));
}

void CaseFileTest::skipsUnknownKindsAndKeys()
{
    const Case recorded =
        caseWith("{\"kind\":\"weather\",\"rain\":[1,2]}\n"
                 "{\"kind\":\"job\",\"printer\":\"Shipping\",\"id\":3,\"ink\":1}\n"
                 "{\"kind\":\"discover\",\"t\":1,\"n\":1,\"why\":\"sun\"}\n");
    QCOMPARE(recorded.chapters.first().steps.size(), 2);
}

void CaseFileTest::skipsALastLineThatIsNotComplete()
{
    const QByteArray whole = header + printer + begun + "{\"kind\":\"discover\",\"t\":1,\"n\":1}\n";
    const QByteArray last = R"({"kind":"service","t":2,"state":1})";
    for (qsizetype size = 0; size < last.size(); ++size) {
        const Case recorded = caseOf(whole + last.first(size));
        QCOMPARE(recorded.chapters.first().steps.size(), 2);
        QVERIFY(recorded.chapters.first().after.isEmpty());
        QVERIFY(recorded.isCut);
    }
}

void CaseFileTest::readsALastLineWithoutItsEnd()
{
    QVERIFY(!caseWith("{\"kind\":\"end\",\"t\":2}").isCut);
}

void CaseFileTest::beginsAChapterAfterAGap()
{
    const Case recorded = caseWith("{\"kind\":\"discover\",\"t\":1,\"n\":1}\n"
                                   "{\"kind\":\"gap\",\"t\":1,\"lines\":40,\"until\":9}\n"
                                   "{\"kind\":\"printer\",\"name\":\"Returns\",\"driver\":\"D\","
                                   "\"port\":\"P\",\"values\":[]}\n" +
                                   begun + "{\"kind\":\"discover\",\"t\":9,\"n\":41}\n");
    QCOMPARE(recorded.chapters.size(), 2);
    QVERIFY(recorded.chapters.at(0).isFromStart);
    QVERIFY(!recorded.chapters.at(1).isFromStart);
    QCOMPARE(recorded.chapters.at(1).beginning.printers.first().setup.name,
             QStringLiteral("Returns"));
    QCOMPARE(recorded.chapters.at(1).steps.last().number, 41);
}

void CaseFileTest::refusesWhatIsWrong_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const QByteArray beginning = header + printer + begun; // three lines

    QTest::newRow("nothing") << QByteArray()
                             << "1: expected the first line of a case file, "
                                "{\"kind\": \"case\", …}";
    QTest::newRow("no JSON") << QByteArray("hello\n")
                             << "1: not JSON: Syntax error: value, object or array expected.";
    QTest::newRow("a fleet") << QByteArray("{\"printers\": []}\n")
                             << "1: expected the first line of a case file, "
                                "{\"kind\": \"case\", …}";
    QTest::newRow("higher major version")
        << QByteArray("{\"kind\":\"case\",\"version\":\"2.0\"}\n")
        << "1: version: cannot read version 2.0, only version 1; use a newer program";
    QTest::newRow("no version") << QByteArray("{\"kind\":\"case\"}\n")
                                << "1: version: expected a string, found null";
    QTest::newRow("version in words")
        << QByteArray("{\"kind\":\"case\",\"version\":\"one\"}\n")
        << R"(1: version: expected a version such as "1.0", found "one")";
    QTest::newRow("value that is a number")
        << beginning + "{\"kind\":\"values\",\"n\":1,\"printer\":\"A\",\"changed\":[1]}\n"
        << "4: changed[0]: expected an object, found 1";
    QTest::newRow("not an object") << beginning + "[1]\n"
                                   << "4: expected an object, found a list";
    QTest::newRow("broken line in the middle")
        << beginning + "{\"kind\":\"se\n{\"kind\":\"end\"}\n"
        << "4: not JSON: Syntax error: value, object or array expected.";
    QTest::newRow("no kind") << beginning + "{\"t\":1}\n"
                             << "4: kind: expected a string, found null";
    QTest::newRow("time in words")
        << beginning + "{\"kind\":\"end\",\"t\":\"now\"}\n"
        << "4: t: expected a number of seconds between 0 and one year, found \"now\"";
    QTest::newRow("duplicate printer")
        << header + printer + QByteArray(printer).replace("Shipping", "SHIPPING")
        << "3: name: duplicate printer \"SHIPPING\"";
    QTest::newRow("printer without a name") << header + "{\"kind\":\"printer\",\"name\":\"\"}\n"
                                            << "2: name: expected a non-empty string";
    QTest::newRow("value without content")
        << header +
               "{\"kind\":\"printer\",\"name\":\"A\",\"values\":[{\"name\":\"X\",\"type\":1}]}\n"
        << R"(2: values[0]: expected one of the keys "text", "number", "base64" and "size")";
    QTest::newRow("no Base64")
        << header + "{\"kind\":\"printer\",\"name\":\"A\",\"values\":[{\"name\":\"X\",\"type\":3,"
                    "\"base64\":\"%\"}]}\n"
        << "2: values[0].base64: expected bytes in Base64, found \"%\"";
    QTest::newRow("huge value")
        << header + "{\"kind\":\"printer\",\"name\":\"A\",\"values\":[{\"name\":\"X\",\"type\":3,"
                    "\"size\":1048577}]}\n"
        << "2: values[0].size: expected at most 1048576 bytes, found 1048577";
    QTest::newRow("negative number")
        << beginning + "{\"kind\":\"service\",\"state\":-1}\n"
        << "4: state: expected a whole number between 0 and 4294967295, found -1";
    QTest::newRow("step numbers fall")
        << beginning + "{\"kind\":\"discover\",\"n\":5}\n{\"kind\":\"discover\",\"n\":5}\n"
        << "5: n: expected a number above 5, found 5";
    QTest::newRow("poll without a number")
        << beginning + "{\"kind\":\"poll\",\"printer\":\"Shipping\"}\n"
        << "4: n: expected a whole number between 0 and 4294967295, found null";
    QTest::newRow("failure without an error")
        << beginning + "{\"kind\":\"failed\",\"at\":0,\"call\":\"GetPrinterW\"}\n"
        << "4: error: expected a whole number between 0 and 4294967295, found null";
}

void CaseFileTest::refusesWhatIsWrong()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QString, message);
    QCOMPARE(errorOf(text), QStringLiteral("day.vxcase:") + message);
}

void CaseFileTest::refusesMoreThanItCanHold()
{
    const QByteArray blanks(qsizetype(4) * 1024 * 1024, ' ');
    QCOMPARE(errorOf(header + "{\"kind\":" + blanks + "\"end\"}\n"),
             QStringLiteral("day.vxcase:2: expected a line of at most 4 MiB"));
    QCOMPARE(errorOf(header + "{\"kind\":" + QByteArray(100, '[') + "\n"),
             QStringLiteral("day.vxcase:2: expected at most 32 levels of lists and objects"));
    QByteArray values;
    for (int i = 0; i < 257; ++i)
        values += R"({"name":"X","type":3,"size":1048576},)";
    values.chop(1);
    QCOMPARE(
        errorOf(header + "{\"kind\":\"printer\",\"name\":\"A\",\"values\":[" + values + "]}\n"),
        QStringLiteral("day.vxcase:2: expected at most 256 MiB in all values"));
}

void CaseFileTest::messagesAreOneLine()
{
    const QString message = errorOf(header + "{\"kind\":\"printer\",\"name\":7,\"\\u001b\":1}\n" +
                                    "{\"kind\":\"gap\\n\\u001b[31m\",\"t\":\"\\n\\u001b[31m\"}\n");
    QCOMPARE(message, QStringLiteral("day.vxcase:2: name: expected a string, found 7"));
    const QString second = errorOf(header + "{\"kind\":\"end\",\"t\":\"\\n\\u001b[31m\"}\n");
    QVERIFY2(!second.contains(u'\n') && !second.contains(u'\x1b'), qPrintable(second));
}

void CaseFileTest::namesOfCaseFilesAreKnown()
{
    QVERIFY(isCaseFile(QStringLiteral("/tmp/Monday.vxcase")));
    QVERIFY(isCaseFile(QStringLiteral("MONDAY.VXCASE")));
    QVERIFY(!isCaseFile(QStringLiteral("fleet.json")));
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.vxcase")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(header + printer + begun);
    file.close();
    QCOMPARE(readFleet(file.fileName()).printers.size(), 1);
}

void CaseFileTest::playsChangesInTheirOrder()
{
    const Fleet fleet = fleetOf(caseWith(
        "{\"kind\":\"printerAdded\",\"t\":1,\"name\":\"Returns\",\"driver\":\"D\",\"port\":\"P\","
        "\"values\":[]}\n"
        "{\"kind\":\"printerRenamed\",\"t\":2,\"name\":\"Returns\",\"newName\":\"Office\"}\n"
        "{\"kind\":\"values\",\"t\":3,\"n\":1,\"printer\":\"Shipping\",\"changed\":[{\"name\":"
        "\"StatusCode\",\"type\":1,\"text\":\"12\"}],\"missing\":[\"Mileage\"]}\n"
        "{\"kind\":\"values\",\"t\":4,\"printer\":\"Office\",\"changed\":[{\"name\":"
        "\"Odd\",\"type\":1,\"text\":\"x\"}],\"missing\":[],\"seenBy\":\"look\"}\n"
        "{\"kind\":\"printerRemoved\",\"t\":5,\"name\":\"Shipping\"}\n"
        "{\"kind\":\"service\",\"t\":6,\"state\":1}\n"));
    populate(machine(), fleet);
    playUpTo(fleet.story, 2500ms);
    QCOMPARE(machine().printers(),
             QStringList({QStringLiteral("Shipping"), QStringLiteral("Office")}));
    playUpTo(fleet.story.sliced(2), 4s);
    QCOMPARE(valueOf("Shipping", "StatusCode"), QByteArray("12\0", 3));
    QCOMPARE(valueOf("Shipping", "Mileage"), std::nullopt);
    QCOMPARE(valueOf("Office", "Odd"), QByteArray("x\0", 2));
    playUpTo(fleet.story.sliced(4), 10s);
    QCOMPARE(machine().printers(), QStringList{QStringLiteral("Office")});
    QCOMPARE(machine().spoolerState(), 1U);
}

void CaseFileTest::jobsAreInTheirQueue()
{
    const Fleet fleet = fleetOf(caseWith(
        "{\"kind\":\"job\",\"t\":1,\"printer\":\"Shipping\",\"id\":7,\"document\":\"Labels\","
        "\"user\":"
        "\"Ann\",\"datatype\":\"NT EMF 1.008\",\"pages\":2,\"bytes\":4096,\"status\":16}\n"
        "{\"kind\":\"job\",\"t\":2,\"printer\":\"Shipping\",\"id\":0,\"status\":8}\n"
        "{\"kind\":\"job\",\"t\":3,\"printer\":\"Shipping\",\"id\":7,\"document\":\"Labels\","
        "\"user\":"
        "\"Ann\",\"datatype\":\"NT EMF 1.008\",\"pages\":2,\"bytes\":4096,\"status\":18}\n"
        "{\"kind\":\"values\",\"t\":3,\"n\":1,\"printer\":\"Shipping\",\"changed\":[{\"name\":"
        "\"StatusCode\",\"type\":1,\"text\":\"12\"}]}\n"
        "{\"kind\":\"job\",\"t\":4,\"printer\":\"Shipping\",\"id\":7,\"status\":null}\n"));
    populate(machine(), fleet);
    QCOMPARE(queueOf("Shipping"), QStringList());
    playUpTo(fleet.story, 2s);
    QCOMPARE(queueOf("Shipping"),
             QStringList({QStringLiteral("7 Labels Ann NT EMF 1.008 2 4096 16"),
                          QStringLiteral("0  User RAW 0 0 8")}));
    playUpTo(fleet.story.sliced(2), 3s);
    QCOMPARE(queueOf("Shipping"),
             QStringList({QStringLiteral("7 Labels Ann NT EMF 1.008 2 4096 18"),
                          QStringLiteral("0  User RAW 0 0 8")}));
    playUpTo(fleet.story.sliced(4), 4s);
    QCOMPARE(queueOf("Shipping"), QStringList{QStringLiteral("0  User RAW 0 0 8")});
}

void CaseFileTest::jobsOfTheBeginningAreTheOnlyOnes()
{
    const QByteArray job = "{\"kind\":\"job\",\"printer\":\"Shipping\",\"id\":1,\"status\":8}\n";
    const Fleet fleet =
        fleetOf(caseOf(header + printer + job + QByteArray(job).replace("1,", "2,") +
                       QByteArray(job).replace("Shipping", "Nobody") + begun +
                       "{\"kind\":\"gap\",\"t\":5,\"lines\":3,\"until\":5}\n" + printer +
                       QByteArray(job).replace("1,", "2,") + begun));
    populate(machine(), fleet);
    QCOMPARE(queueOf("Shipping"), QStringList({QStringLiteral("1  User RAW 0 0 8"),
                                               QStringLiteral("2  User RAW 0 0 8")}));
    playUpTo(fleet.story, 5s);
    QCOMPARE(queueOf("Shipping"), QStringList{QStringLiteral("2  User RAW 0 0 8")});
}

void CaseFileTest::gapCanComeBeforeABeginningIsComplete()
{
    const QByteArray gap = "{\"kind\":\"gap\",\"t\":5,\"lines\":3,\"until\":5}\n";
    const QByteArray job = "{\"kind\":\"job\",\"printer\":\"Shipping\",\"id\":1,\"status\":8}\n";
    // The printer is none of the chapter that begins with the gap, and then it is.
    QCOMPARE(caseOf(header + printer + gap + job + begun).chapters.last().beginning.printers.size(),
             0);
    const Case recorded = caseOf(header + printer + gap + printer + job + begun);
    QCOMPARE(recorded.chapters.last().beginning.printers.size(), 1);
    QCOMPARE(recorded.chapters.last().beginning.printers.first().jobs.size(), 1);
}

void CaseFileTest::jobsNeverFillTheQueue()
{
    QByteArray lines;
    for (int id = 1; id <= 3000; ++id)
        lines += R"({"kind":"job","t":1,"printer":"Shipping","id":)" + QByteArray::number(id) +
                 ",\"status\":0}\n";
    const Fleet fleet = fleetOf(caseWith(lines));
    populate(machine(), fleet);
    playUpTo(fleet.story, 1s);
    QCOMPARE(queueOf("Shipping").size(), 1024);
}

void CaseFileTest::changesOfUnknownPrintersHaveNoEffect()
{
    const Fleet fleet = fleetOf(
        caseWith("{\"kind\":\"printerRemoved\",\"name\":\"X\"}\n"
                 "{\"kind\":\"printerRenamed\",\"name\":\"X\",\"newName\":\"Y\"}\n"
                 "{\"kind\":\"printerChanged\",\"name\":\"X\",\"status\":1}\n"
                 "{\"kind\":\"values\",\"n\":1,\"printer\":\"X\",\"changed\":[],\"missing\":[]}\n"
                 "{\"kind\":\"job\",\"printer\":\"X\",\"id\":1,\"status\":0}\n"
                 "{\"kind\":\"job\",\"printer\":\"Shipping\",\"id\":1,\"status\":null}\n"
                 "{\"kind\":\"printerAdded\",\"name\":\"SHIPPING\"}\n"));
    populate(machine(), fleet);
    playUpTo(fleet.story, 1s);
    QCOMPARE(machine().printers(), QStringList{QStringLiteral("Shipping")});
}

void CaseFileTest::playsCallsThatFailed()
{
    const Fleet fleet =
        fleetOf(caseWith("{\"kind\":\"failed\",\"t\":1,\"at\":1,\"call\":\"GetPrinterDataA\","
                         "\"printer\":\"Shipping\",\"value\":\"Mileage\",\"error\":1722}\n"
                         "{\"kind\":\"discover\",\"t\":1,\"n\":1}\n"));
    populate(machine(), fleet);
    playUpTo(fleet.story, 1s);
    QCOMPARE(errorOfReading("Shipping", "StatusCode"), DWORD(ERROR_SUCCESS));
    QCOMPARE(errorOfReading("Shipping", "Mileage"), DWORD(RPC_S_SERVER_UNAVAILABLE));
    QCOMPARE(errorOfReading("Shipping", "Mileage"), DWORD(ERROR_SUCCESS));
}

void CaseFileTest::failuresThatDidNotHappenAreForgotten()
{
    const Fleet fleet =
        fleetOf(caseWith("{\"kind\":\"failed\",\"t\":1,\"at\":1,\"call\":\"GetPrinterDataA\","
                         "\"printer\":\"Shipping\",\"value\":\"Mileage\",\"error\":1722}\n"
                         "{\"kind\":\"discover\",\"t\":1,\"n\":1}\n"
                         "{\"kind\":\"values\",\"t\":2,\"n\":2,\"printer\":\"Shipping\"}\n"));
    populate(machine(), fleet);
    playUpTo(fleet.story, 2s);
    QCOMPARE(errorOfReading("Shipping", "Mileage"), DWORD(ERROR_SUCCESS));
}

void CaseFileTest::defaultPrinterOutlivesItsPrinter()
{
    const Fleet fleet =
        fleetOf(caseOf(header + printer + "{\"kind\":\"default\",\"printer\":\"Shipping\"}\n" +
                       begun + "{\"kind\":\"printerRemoved\",\"name\":\"Shipping\"}\n"));
    populate(machine(), fleet);
    playUpTo(fleet.story, 1s);
    QCOMPARE(machine().printers(), QStringList());
    QCOMPARE(machine().defaultPrinter(), QStringLiteral("Shipping"));
}

void CaseFileTest::systemAfterAGapReplacesTheOneBefore()
{
    const Fleet fleet = fleetOf(
        caseOf(header + printer + QByteArray(printer).replace("Shipping", "Returns") + begun +
               "{\"kind\":\"gap\",\"t\":5,\"lines\":3,\"until\":5}\n"
               "{\"kind\":\"printer\",\"name\":\"Shipping\",\"driver\":\"D\",\"port\":\"P\","
               "\"status\":128,\"values\":[{\"name\":\"New\",\"type\":4,\"number\":1}]}\n"
               "{\"kind\":\"printer\",\"name\":\"Office\",\"driver\":\"D\",\"port\":\"P\"}\n"
               "{\"kind\":\"service\",\"state\":1}\n" +
               begun));
    populate(machine(), fleet);
    playUpTo(fleet.story, 5s);
    QCOMPARE(machine().printers(),
             QStringList({QStringLiteral("Shipping"), QStringLiteral("Office")}));
    QCOMPARE(machine().valueNames(QStringLiteral("Shipping")), QList<QByteArray>{"new"});
    QCOMPARE(machine().spoolerState(), 1U);
}

void CaseFileTest::spoolerCanBeStoppedFromTheBeginning()
{
    populate(machine(),
             fleetOf(caseOf(header + printer + "{\"kind\":\"service\",\"state\":1}\n" + begun)));
    QCOMPARE(machine().spoolerState(), 1U);
    QCOMPARE(machine().printers(), QStringList{QStringLiteral("Shipping")});
}

void CaseFileTest::rowsOfTheCatalogueAreKept()
{
    QVERIFY(!caseWith({}).catalogue);
    const Case recorded = caseWith(
        "{\"kind\":\"catalogue\",\"t\":1,\"file\":\"roll.db\",\"schema\":1,\"tables\":{\"ribbon\":["
        "{"
        "\"sku\":\"R-1\",\"width\":4.5,\"length\":300}]}}\n"
        "{\"kind\":\"catalogue\",\"t\":2,\"tables\":{\"language\":[{\"id\":0,\"tag\":\"en\"}]}}\n");
    QVERIFY(recorded.catalogue);
    QCOMPARE(recorded.catalogue->size(), 2);
    const CatalogueRow& ribbon = recorded.catalogue->first();
    QCOMPARE(ribbon.table, QStringLiteral("ribbon"));
    QCOMPARE(ribbon.line, 4);
    QCOMPARE(ribbon.columns.value(QStringLiteral("width")), QVariant(4.5));
    QCOMPARE(recorded.catalogue->last().columns.value(QStringLiteral("tag")),
             QVariant(QStringLiteral("en")));
}

QTEST_GUILESS_MAIN(CaseFileTest)
#include "tst_case_file.moc"
