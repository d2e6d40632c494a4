// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Random fleets with random stories are recorded and replayed: the file has the signals and log
// lines that were seen, and so has the replay, for each printer in the same order.
//
// VX_CASE_SEED=4711 runs one story again; VX_CASE_ROUNDS=2000 runs more of them;
// VX_CASE_KEEP=FOLDER keeps the files of stories that failed.
#include "case_listener.h"
#include "case_replay.h"
#include "case_story.h"
#include "machine_test.h"

#include <case_file.h>
#include <case_redaction.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <array>
#include <random>

#include <windows.h>
#include <winspool.h>

using namespace std::chrono_literals;
using virtualwindows::Case;
using virtualwindows::CaseOutput;
using virtualwindows::CaseStep;
using virtualwindows::PrinterSetup;
using virtualwindows::PrinterValue;

namespace {

constexpr int usualRounds = 200;

class Dice
{
public:
    explicit Dice(quint32 seed)
        : m_engine(seed)
    {}

    /// From 0 to `count` - 1.
    int below(qsizetype count)
    {
        return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(m_engine);
    }
    bool oneIn(int count) { return below(count) == 0; }
    template <typename List>
    auto oneOf(const List& list)
    {
        return list[static_cast<decltype(std::size(list))>(
            below(static_cast<qsizetype>(std::size(list))))];
    }

private:
    std::mt19937 m_engine;
};

constexpr std::array textNames{"SupplyIdentifier", "StatusCode", "SoftwareVersion",
                               "EthernetConfig"};
constexpr std::array numberNames{"Ribbon1Identifier", "Ribbon2Identifier", "Mileage",
                                 "Ribbon1Mileage",    "Ribbon2Mileage",    "UpdateProgress",
                                 "UpdateError"};
constexpr std::array otherNames{"Odd", "LastService", "Heads"};

/// Functions whose calls fail in the stories, those of the library.
constexpr std::array functions{"CreateEventW",
                               "EnumPrintersW",
                               "FindFirstPrinterChangeNotification",
                               "FindNextPrinterChangeNotification",
                               "GetDefaultPrinterW",
                               "GetPrinterDataA",
                               "GetPrinterDataA",
                               "GetPrinterDataA",
                               "GetPrinterW",
                               "OpenPrinterA",
                               "OpenPrinterA",
                               "OpenSCManagerW",
                               "OpenServiceW",
                               "QueryServiceStatus"};
constexpr std::array<quint32, 4> errors{ERROR_ACCESS_DENIED, ERROR_INVALID_HANDLE,
                                        ERROR_NOT_ENOUGH_MEMORY, RPC_S_SERVER_UNAVAILABLE};

/// A story that depends on nothing but its seed.
class Story
{
public:
    Story(quint32 seed, const QString& catalogue)
        : m_dice(seed)
        , m_catalogue(catalogue)
    {}

    /// Plays the story to a controller of its own and records it.
    /// Returns what went wrong; null: nothing.
    QString record(const QString& fileName);
    /// What the story saw itself: the controller's signals and the library's log lines.
    const QList<CaseOutput>& seen() const { return m_seen; }

private:
    static virtualwindows::Machine& machine() { return virtualwindows::Machine::instance(); }

    QString newName();
    QString someName();
    QString someDriver();
    QString somePort();
    quint32 someAttributes();
    quint32 someStatus();
    PrinterValue someValue();
    QList<PrinterValue> someValues(int most);
    PrinterSetup somePrinter();
    void addPrinter();
    void happen();

    Dice m_dice;
    QString m_catalogue;
    int m_names = 0;
    CaseStory* m_told = nullptr;
    QList<CaseOutput> m_seen;
};

QString Story::newName()
{
    constexpr std::array names{"Shipping", "Returns",     "Büro 3",        "Label \"Max\"",
                               "倉庫",     "A: B ( C ).", "x went offline"};
    return QString::fromUtf8(m_dice.oneOf(names)) + QLatin1Char(' ') + QString::number(++m_names);
}

QString Story::someName()
{
    const QStringList names = machine().printers();
    return names.isEmpty() ? QString() : m_dice.oneOf(names);
}

QString Story::someDriver()
{
    constexpr std::array drivers{
        "Stratamark Alder",    "Stratamark AlderMax", "Stratamark BirchMax",
        "Stratamark CedarMax", "Stratamark CedarMax", "stratamark aldermax",
        "Stratamark Oak",      "Harlow Devices X",    "Other Maker 12"};
    return QString::fromLatin1(m_dice.oneOf(drivers));
}

QString Story::somePort()
{
    constexpr std::array ports{"USB001", "USB002", "USB003", "USB017", "FILE:", "10.0.0.7"};
    return QString::fromLatin1(m_dice.oneOf(ports));
}

quint32 Story::someAttributes()
{
    constexpr std::array<quint32, 7> attributes{0x40, 0x40, 0x40, 0x48, 0x440, 0x10, 0x50};
    return m_dice.oneOf(attributes);
}

quint32 Story::someStatus()
{
    constexpr std::array<quint32, 5> statuses{0, 0, 0, PRINTER_STATUS_OFFLINE,
                                              PRINTER_STATUS_ERROR};
    return m_dice.oneOf(statuses);
}

PrinterValue Story::someValue()
{
    const auto number = [&] {
        constexpr std::array<quint32, 8> numbers{0, 1, 50, 2006, 2001, 76200, 91440, 0xFFFFFFFF};
        return m_dice.oneOf(numbers);
    };
    const auto text = [&]() -> QByteArray {
        constexpr std::array texts{"1",
                                   "1",
                                   "4",
                                   "12",
                                   "255",
                                   "257",
                                   "0",
                                   "-3",
                                   "x",
                                   "",
                                   "65536",
                                   "000001F41000420000A7",
                                   "00000000000000000000",
                                   "000000C81000010000FF",
                                   "1.2.3,4",
                                   "Fähre"};
        return m_dice.oneOf(texts);
    };
    const auto bytes = [&]() -> QByteArray {
        // Short, without an end, longer than the library reads, and nothing at all.
        constexpr std::array<int, 8> sizes{0, 1, 3, 4, 5, 20, 255, 3000};
        QByteArray data(m_dice.oneOf(sizes), '7');
        if (!data.isEmpty() && m_dice.oneIn(2))
            data.back() = '\0';
        return data;
    };
    QByteArray name;
    bool isText = false;
    switch (m_dice.below(8)) {
    case 0:
        name = m_dice.oneOf(otherNames);
        isText = m_dice.oneIn(2);
        break;
    case 1:
    case 2:
    case 3:
        name = m_dice.oneOf(numberNames);
        break;
    case 4:
    case 5:
        name = "StatusCode"; // what most signals come from
        isText = true;
        break;
    default:
        name = m_dice.oneOf(textNames);
        isText = true;
        break;
    }
    if (m_dice.oneIn(8))
        isText = !isText;
    if (m_dice.oneIn(8)) {
        constexpr std::array<quint32, 6> types{0, 1, 2, 3, 4, 7};
        return {name, m_dice.oneOf(types), bytes()};
    }
    return isText ? PrinterValue::text(name, text()) : PrinterValue::number(name, number());
}

QList<PrinterValue> Story::someValues(int most)
{
    QList<PrinterValue> values;
    for (int count = 1 + m_dice.below(most); count > 0; --count)
        values.append(someValue());
    return values;
}

PrinterSetup Story::somePrinter()
{
    PrinterSetup setup;
    setup.name = newName();
    setup.driver = someDriver();
    setup.port = somePort();
    setup.attributes = someAttributes();
    setup.status = someStatus();
    setup.administrable = !m_dice.oneIn(6);
    return setup;
}

void Story::addPrinter()
{
    const PrinterSetup setup = somePrinter();
    machine().addPrinter(setup);
    if (!m_dice.oneIn(4))
        machine().publish(setup.name, someValues(12));
}

/// One thing that drivers, users or the system do.
void Story::happen()
{
    const QString name = someName();
    const int what = m_dice.below(40);
    if (what < 16 && !name.isNull()) {
        machine().publish(name, someValues(4));
    } else if (what < 18 && !name.isNull()) {
        machine().unpublish(name,
                            m_dice.oneIn(2) ? m_dice.oneOf(textNames) : m_dice.oneOf(numberNames));
    } else if (what < 20 && !name.isNull()) {
        machine().setAttributes(name, someAttributes());
    } else if (what < 22 && !name.isNull()) {
        machine().setStatus(name, someStatus());
    } else if (what == 22 && !name.isNull()) {
        m_told->settle();
        machine().setAdministrable(name, m_dice.oneIn(2));
    } else if (what < 25) {
        machine().setDefaultPrinter(m_dice.oneIn(4) ? QString() : name);
    } else if (what == 25) {
        addPrinter();
    } else if (what == 26 && !name.isNull()) {
        m_told->settle();
        machine().removePrinter(name);
    } else if (what == 27 && !name.isNull() && machine().spoolerState() == SERVICE_RUNNING) {
        // Nobody can rename a printer while the spooler is stopped. It would look like another one.
        m_told->settle();
        machine().renamePrinter(name, newName());
    } else if (what == 28 && !name.isNull()) {
        machine().setPort(name, somePort());
    } else if (what == 29 && !name.isNull()) {
        machine().setDriver(name, someDriver());
    } else if (what < 32) {
        // Between which of a thread's calls the service, a name or rights change cannot be told
        // from what they return.
        m_told->settle();
        constexpr std::array<quint32, 6> states{1, 1, 2, 3, 4, 7};
        machine().setSpoolerState(m_dice.oneOf(states));
    } else if (what < 35) {
        m_told->settle();
        machine().startSpooler();
        machine().advance(5s);
    } else if (what == 35) {
        m_told->settle();
        machine().advance(5s);
    } else if (what == 36 && !name.isNull()) {
        machine().notify(name, PRINTER_CHANGE_SET_PRINTER);
    } else if (what == 37) {
        m_told->controller().checkForPrinters();
    } else {
        machine().failCall(QString::fromLatin1(m_dice.oneOf(functions)), 1 + m_dice.below(12),
                           m_dice.oneOf(errors));
    }
}

QString Story::record(const QString& fileName)
{
    machine().driveTime();
    for (int count = m_dice.below(6); count >= 0; --count)
        addPrinter();
    if (m_dice.oneIn(2))
        machine().setDefaultPrinter(someName());
    for (int count = m_dice.below(3); count > 0; --count)
        machine().addDevice({QStringLiteral("{9B45D7A2-1C0E-4F6B-8E55-3D1A7C2F0B16}"),
                             QStringLiteral("device %1").arg(count), count,
                             QStringLiteral("S%1").arg(count)});
    if (m_dice.oneIn(8))
        machine().stopSpooler();

    CaseListener listener;
    VxKit::CaseRecorderOptions options;
    options.fileName = fileName;
    options.isPlain = true;
    if (m_dice.oneIn(2))
        options.lookInterval = 0ms;
    CaseStory told(options, m_dice.oneIn(4) ? m_catalogue + QStringLiteral(".none") : m_catalogue);
    m_told = &told;
    listener.listen(told.controller());

    // Whether a thread opened its printer before or after a renaming cannot be told either.
    told.settle();
    // Sometimes everything is at rest before the next thing happens, and sometimes not.
    for (int count = 10 + m_dice.below(30); count > 0; --count) {
        if (!m_dice.oneIn(3))
            told.settle();
        if (!m_dice.oneIn(3))
            CaseStory::deliver();
        happen();
    }
    machine().clearFailures();
    const QString error = told.end();

    m_seen = listener.take();
    return error;
}

/// Takes the names out of a case file.
bool redact(const QString& from, const QString& to)
{
    QStringList names;
    QList<QJsonObject> lines;
    VxKit::CaseFile file(from);
    while (const std::optional<VxKit::CaseLine> line = file.next()) {
        lines.append(line->object);
        if (line->kind.startsWith(QLatin1String("printer"))) {
            names.append(line->object.value(QLatin1String("name")).toString());
            names.append(line->object.value(QLatin1String("newName")).toString());
        }
    }
    VxKit::CaseRedaction redaction;
    redaction.learnPrinters(names);
    QFile out(to);
    if (!file.errorString().isEmpty() || !out.open(QIODevice::WriteOnly))
        return false;
    for (const QJsonObject& line : lines)
        out.write(QJsonDocument(redaction.redacted(line)).toJson(QJsonDocument::Compact) + '\n');
    return out.flush();
}

} // namespace

class CaseRoundTripTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void replayIsWhatWasRecorded_data();
    void replayIsWhatWasRecorded();
    void reportsOnTheirWayAreHandledAfterASearch();
};

void CaseRoundTripTest::replayIsWhatWasRecorded_data()
{
    QTest::addColumn<quint32>("seed");
    bool isGiven = false;
    const quint32 given = qEnvironmentVariable("VX_CASE_SEED").toUInt(&isGiven);
    const int wanted = qEnvironmentVariableIntValue("VX_CASE_ROUNDS");
    const int rounds = isGiven ? 1 : (wanted > 0 ? wanted : usualRounds);
    const quint32 first = isGiven ? given : std::random_device()() % 1'000'000'000;
    for (int round = 0; round < rounds; ++round) {
        const quint32 seed = first + static_cast<quint32>(round);
        QTest::addRow("VX_CASE_SEED=%u", seed) << seed;
    }
}

void CaseRoundTripTest::replayIsWhatWasRecorded()
{
    QFETCH(const quint32, seed);
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString file = folder.filePath(QStringLiteral("story.vxcase"));
    Story story(seed, QStringLiteral(VX_SAMPLE_DATABASE));
    QCOMPARE(story.record(file), QString());

    const Case recorded = virtualwindows::readCase(file);
    const auto seen = case_replay::compare(recorded, {story.seen()});
    const auto replayed = case_replay::compare(recorded, case_replay::replay(recorded, file));
    const QString kept = qEnvironmentVariable("VX_CASE_KEEP");
    if (!kept.isEmpty() && (seen.first || replayed.first))
        QFile::copy(file, QDir(kept).filePath(QStringLiteral("%1.vxcase").arg(seed)));
    QVERIFY(!recorded.isCut);
    // The recording has all that was seen.
    QCOMPARE(case_replay::described(seen.first), QString());
    QCOMPARE(case_replay::described(replayed.first), QString());

    // Without its names, the case is played in the same way.
    const QString redactedFile = folder.filePath(QStringLiteral("redacted.vxcase"));
    QVERIFY(redact(file, redactedFile));
    const Case redacted = virtualwindows::readCase(redactedFile);
    const auto again = case_replay::compare(redacted, case_replay::replay(redacted, file));
    if (!kept.isEmpty() && again.first)
        QFile::copy(file, QDir(kept).filePath(QStringLiteral("%1.vxcase").arg(seed)));
    QCOMPARE(case_replay::described(again.first), QString());
}

void CaseRoundTripTest::reportsOnTheirWayAreHandledAfterASearch()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    VxKit::CaseRecorderOptions options;
    options.fileName = folder.filePath(QStringLiteral("search.vxcase"));
    options.isPlain = true;
    const QString returns = QStringLiteral("Returns");
    const QString archive = QStringLiteral("Archive");
    machine().driveTime();
    machine().addPrinter({.name = returns, .driver = QStringLiteral("Stratamark AlderMax")});
    machine().publish(returns, {PrinterValue::text("StatusCode", "1")});
    CaseStory story(options, QStringLiteral(VX_SAMPLE_DATABASE));
    QVERIFY(story.settle());
    CaseStory::deliver();
    // The printer is not found by its old name, so the controller chooses another active printer
    // when it handles the report. It has found the new name by then.
    machine().renamePrinter(returns, archive);
    machine().publish(archive, {PrinterValue::text("StatusCode", "not known")});
    QVERIFY(story.settle());
    story.controller().checkForPrinters();
    QCOMPARE(story.end(), QString());
    const Case recorded = virtualwindows::readCase(options.fileName);
    const QList<CaseStep>& steps = recorded.chapters.first().steps;
    const auto search = std::ranges::find(steps, CaseStep::Kind::Discovery, &CaseStep::kind);
    QVERIFY(search != steps.end());
    QVERIFY(search->handledBefore.has_value());
    QVERIFY(*search->handledBefore < search->number);
    const auto replayed =
        case_replay::compare(recorded, case_replay::replay(recorded, options.fileName));
    QCOMPARE(case_replay::described(replayed.first), QString());
}

QTEST_GUILESS_MAIN(CaseRoundTripTest)
#include "tst_case_round_trip.moc"
