// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What a recorder writes, line by line.
//
// VX_CASE_SEED=4711 kills at the same moments again.
#include "case_recorder.h"
#include "case_session.h"
#include "machine_test.h"
#include "patience.h"
#include "printer_status_controller.h"
#include "test_file.h"
#include "vx_ipc_supplyd_controller.h"

#include <virtualwindows/fleet.h>
#include <virtualwindows/recorded_case.h>

#include <cute_logger.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QScopeGuard>

#include <optional>
#include <thread>

#include <windows.h>
#include <winspool.h>

using namespace std::chrono_literals;
using virtualwindows::PrinterSetup;
using virtualwindows::PrinterValue;
using VxKit::CaseRecorder;
using VxKit::CaseRecorderOptions;

namespace {

const QString shipping = QStringLiteral("Shipping");
const QString returns = QStringLiteral("Returns");
constexpr qint64 mebibyte = qint64(1024) * 1024;

/// The lines of a file. A line that is not a JSON object is empty.
QList<QJsonObject> linesOf(const QByteArray& text)
{
    QList<QJsonObject> lines;
    QList<QByteArray> parts = text.split('\n');
    // What follows the last line feed is a line that was cut.
    parts.removeLast();
    for (const QByteArray& part : std::as_const(parts))
        lines.append(QJsonDocument::fromJson(part).object());
    return lines;
}

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString kindOf(const QJsonObject& line)
{
    return line.value(u"kind").toString();
}

/// The values on a line, by name.
QJsonObject valueOf(const QJsonObject& line, const QString& name)
{
    const QString key =
        line.contains(u"changed") ? QStringLiteral("changed") : QStringLiteral("values");
    for (const QJsonArray values = line.value(key).toArray(); const QJsonValue& value : values) {
        if (value.toObject().value(u"name").toString() == name)
            return value.toObject();
    }
    return {};
}

/// Why the steps of a file are not numbered one after the other; empty if they are.
QString faultOfSteps(const QList<QJsonObject>& lines)
{
    int last = -1;
    for (const QJsonObject& line : lines) {
        if (line.isEmpty())
            return QStringLiteral("a line is not a JSON object");
        if (kindOf(line) == QLatin1String("begun")) {
            last = line.value(u"n").toInt(0);
        } else if (line.contains(u"n")) {
            const int step = line.value(u"n").toInt();
            if (step != last + 1)
                return QStringLiteral("step %1 follows step %2").arg(step).arg(last);
            last = step;
        }
    }
    return {};
}

} // namespace

class CaseRecorderTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void beginsWithEverythingThereIs();
    void writesValuesBeforeTheirSignals();
    void writesNothingWhenNothingIsDifferent();
    void writesValuesThatAreNoLongerPublished();
    void writesAValueOfAnotherType();
    void writesReadsThatFailed();
    void writesWhatTheFirstReadFindsDifferent();
    void writesThePollsOfAStoppedSpooler();
    void writesADiscovery();
    void writesFailuresOfTheController();
    void writesThatThePrinterIsOfflineBeforeTheStep();
    void writesChangesOfPrinters();
    void writesARename();
    void writesWhatARenamedPrinterDoesNotPublish();
    void writesJobs();
    void jobsThatWaitBelongToABeginning();
    void writesValuesThatTheLibraryDoesNotRead();
    void saysThatChangesWereFaster_data();
    void saysThatChangesWereFaster();
    void writesRowsOfTheCatalogue();
    void beginsWithTheRecordsOfAControllerThatExists();
    void endsWithCounts();
    void replacesNamesUnlessPlain();
    void secretsAreNotInTheFile();
    void doesNotReplaceAFile();
    void keepsTheLimit();
    void savesWhatItKeepsInMemory();
    void dropsTheOldestInMemory();
    void recordsAgainAfterItStopped();
    void sharesWithAnotherRecorder();
    void goesOnAfterTheDiskWasFull();
    void leavesAValidFileWhenKilled();
    void recordsAHostWithoutCodeForIt();
    void leavesTheLogWhereItWas();

private:
    CaseRecorderOptions options() const;
    QString fileName() const { return m_folder->filePath(QStringLiteral("test.vxcase")); }
    void addPrinter(const QString& name, const QString& port = QStringLiteral("USB001"));
    void start(const CaseRecorderOptions& wanted);
    /// Waits until all threads and the host have done what there is to do.
    void settle();
    QList<QJsonObject> recorded();
    QList<QJsonObject> recorded(const char* kind);
    QJsonObject firstOf(const char* kind);
    /// Waits for a line of a kind, and returns it.
    QJsonObject awaited(const char* kind, const char* key, const QJsonValue& value);
    int threads() const;

    std::optional<QTemporaryDir> m_folder;
    std::unique_ptr<CaseRecorder> m_recorder;
    std::unique_ptr<PrinterStatusController> m_controller;
};

void CaseRecorderTest::init()
{
    MachineTest::init();
    m_folder.emplace();
}

void CaseRecorderTest::cleanup()
{
    m_controller.reset();
    m_recorder.reset();
    m_folder.reset();
    MachineTest::cleanup();
}

CaseRecorderOptions CaseRecorderTest::options() const
{
    CaseRecorderOptions options;
    options.fileName = fileName();
    options.isPlain = true;
    options.lookInterval = 0ms;
    return options;
}

void CaseRecorderTest::addPrinter(const QString& name, const QString& port)
{
    PrinterSetup setup;
    setup.name = name;
    setup.driver = QStringLiteral("Stratamark AlderMax");
    setup.port = port;
    machine().addPrinter(setup);
    machine().publish(name,
                      {PrinterValue::text("StatusCode", "1"), PrinterValue::number("Mileage", 5000),
                       PrinterValue::binary("Odd", "\x01\x02")});
}

void CaseRecorderTest::start(const CaseRecorderOptions& wanted)
{
    m_recorder = std::make_unique<CaseRecorder>(wanted);
    m_controller = std::make_unique<PrinterStatusController>();
    m_recorder->setController(m_controller.get());
    settle();
}

int CaseRecorderTest::threads() const
{
    int count = 0;
    for (const QVariantList records = m_controller->getAvailablePrinters();
         const QVariant& record : records)
        count += m_controller->statusThread(record.value<PrinterStatusInformation>().printerName)
                     ? 1
                     : 0;
    return count;
}

void CaseRecorderTest::settle()
{
    // The recorder's look waits too, while it records.
    machine().waitForWaitingThreads(threads() + (m_recorder && m_recorder->isRecording() ? 1 : 0));
    QCoreApplication::sendPostedEvents();
}

QList<QJsonObject> CaseRecorderTest::recorded()
{
    m_recorder->flush(QDeadlineTimer::Forever);
    return linesOf(contentOf(fileName()));
}

QList<QJsonObject> CaseRecorderTest::recorded(const char* kind)
{
    QList<QJsonObject> lines = recorded();
    lines.removeIf([kind](const QJsonObject& line) { return kindOf(line) != QLatin1String(kind); });
    return lines;
}

QJsonObject CaseRecorderTest::firstOf(const char* kind)
{
    const QList<QJsonObject> lines = recorded(kind);
    return lines.isEmpty() ? QJsonObject() : lines.first();
}

QJsonObject CaseRecorderTest::awaited(const char* kind, const char* key, const QJsonValue& value)
{
    QDeadlineTimer limit(std::chrono::minutes(2));
    while (!limit.hasExpired()) {
        for (const QList<QJsonObject> lines = recorded(kind); const QJsonObject& line : lines) {
            if (line.value(QLatin1String(key)) == value)
                return line;
        }
        QTest::qWait(10);
    }
    return {};
}

void CaseRecorderTest::beginsWithEverythingThereIs()
{
    addPrinter(shipping);
    PrinterSetup other;
    other.name = returns;
    other.driver = QStringLiteral("Everyday Office Laser 400");
    other.port = QStringLiteral("LPT1:");
    other.administrable = false;
    machine().addPrinter(other);
    machine().setDefaultPrinter(returns);
    machine().addDevice({QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}"),
                         QStringLiteral("##?#USB#VID_3E7A&PID_0104#AM-20871"), 1,
                         QStringLiteral("AM-20871")});
    start(options());
    const QList<QJsonObject> lines = recorded();
    QVERIFY(lines.size() > 6);
    QCOMPARE(kindOf(lines[0]), QStringLiteral("case"));
    QCOMPARE(lines[0].value(u"version").toString(), QStringLiteral("1.0"));
    QCOMPARE(lines[0].value(u"from").toString(), QStringLiteral("start"));
    QCOMPARE(lines[0].value(u"redacted"), QJsonValue(false));
    QVERIFY(QDateTime::fromString(lines[0].value(u"time").toString(), Qt::ISODateWithMs).isValid());
    QCOMPARE(kindOf(lines[1]), QStringLiteral("printer"));
    QCOMPARE(lines[1].value(u"name").toString(), shipping);
    QCOMPARE(lines[1].value(u"driver").toString(), QStringLiteral("Stratamark AlderMax"));
    QCOMPARE(lines[1].value(u"port").toString(), QStringLiteral("USB001"));
    QCOMPARE(lines[1].value(u"attributes").toInt(), 64);
    QCOMPARE(lines[1].value(u"administrable"), QJsonValue(true));
    QCOMPARE(valueOf(lines[1], QStringLiteral("StatusCode")).value(u"text").toString(),
             QStringLiteral("1"));
    QCOMPARE(valueOf(lines[1], QStringLiteral("Mileage")).value(u"number").toInt(), 5000);
    QCOMPARE(valueOf(lines[1], QStringLiteral("odd")).value(u"base64").toString(),
             QStringLiteral("AQI="));
    QCOMPARE(lines[2].value(u"name").toString(), returns);
    QCOMPARE(lines[2].value(u"port").toString(), QStringLiteral("LPT1:"));
    QCOMPARE(lines[2].value(u"administrable"), QJsonValue(false));
    QCOMPARE(kindOf(lines[3]), QStringLiteral("device"));
    QCOMPARE(lines[3].value(u"portNumber").toInt(), 1);
    QCOMPARE(lines[3].value(u"serialNumber").toString(), QStringLiteral("AM-20871"));
    QCOMPARE(kindOf(lines[4]), QStringLiteral("service"));
    QCOMPARE(lines[4].value(u"state").toInt(), 4);
    QCOMPARE(kindOf(lines[5]), QStringLiteral("default"));
    QCOMPARE(lines[5].value(u"printer").toString(), returns);
    QCOMPARE(kindOf(lines[6]), QStringLiteral("begun"));
    QCOMPARE(recorded("printerAdded").size(), 0);
    QCOMPARE(recorded("discover").size(), 0);
    QCOMPARE(firstOf("started").value(u"at"), QJsonValue(0));
}

void CaseRecorderTest::writesValuesBeforeTheirSignals()
{
    addPrinter(shipping);
    start(options());
    machine().publish(shipping, {PrinterValue::text("StatusCode", "12"),
                                 PrinterValue::number("Ribbon1Identifier", 2001)});
    settle();
    const QList<QJsonObject> lines = recorded();
    qsizetype values = -1;
    qsizetype signal = -1;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (kindOf(lines[i]) == QLatin1String("values"))
            values = i;
        if (lines[i].value(u"arguments").toObject().value(u"status") == QJsonValue(12))
            signal = i;
    }
    QVERIFY(values > 0);
    QVERIFY(signal > values);
    QCOMPARE(lines[values].value(u"n").toInt(), 2); // after the first read
    QCOMPARE(lines[values].value(u"printer").toString(), shipping);
    QCOMPARE(lines[values].value(u"seenBy").toString(), QStringLiteral("library"));
    QCOMPARE(lines[values].value(u"changed").toArray().size(), 2);
    QCOMPARE(valueOf(lines[values], QStringLiteral("Ribbon1Identifier")).value(u"number").toInt(),
             2001);
    QCOMPARE(lines[signal].value(u"name").toString(), QStringLiteral("statusChangedSignal"));
    QCOMPARE(lines[signal].value(u"arguments").toObject().value(u"printerName").toString(),
             shipping);
}

void CaseRecorderTest::writesNothingWhenNothingIsDifferent()
{
    addPrinter(shipping);
    start(options());
    const qsizetype before = recorded().size() - recorded("faster").size();
    machine().notify(shipping, PRINTER_CHANGE_SET_PRINTER);
    settle();
    machine().publish(shipping, PrinterValue::text("StatusCode", "1"));
    settle();
    QCOMPARE(recorded().size() - recorded("faster").size(), before);
}

void CaseRecorderTest::writesValuesThatAreNoLongerPublished()
{
    addPrinter(shipping);
    start(options());
    machine().unpublish(shipping, "Mileage");
    settle();
    QCOMPARE(firstOf("values").value(u"missing").toArray(), QJsonArray{QStringLiteral("Mileage")});
}

void CaseRecorderTest::writesAValueOfAnotherType()
{
    addPrinter(shipping);
    machine().publish(shipping, {PrinterValue::number("Ribbon1Identifier", 0)});
    start(options());
    machine().publish(shipping, {PrinterValue::text("Ribbon1Identifier", "")});
    settle();
    const QJsonArray changed = firstOf("values").value(u"changed").toArray();
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().toObject().value(u"text"), QJsonValue(QString()));
}

void CaseRecorderTest::writesReadsThatFailed()
{
    addPrinter(shipping);
    start(options());
    machine().failNextCall({.function = QStringLiteral("GetPrinterDataA"),
                            .value = "Mileage",
                            .error = RPC_S_SERVER_UNAVAILABLE});
    machine().notify(shipping, PRINTER_CHANGE_SET_PRINTER);
    settle();
    const QJsonArray failed = firstOf("values").value(u"failed").toArray();
    QCOMPARE(failed.size(), 1);
    const QJsonObject failure = failed.first().toObject();
    QCOMPARE(failure.value(u"call").toString(), QStringLiteral("GetPrinterDataA"));
    QCOMPARE(failure.value(u"value").toString(), QStringLiteral("Mileage"));
    QCOMPARE(failure.value(u"error").toInt(), int(RPC_S_SERVER_UNAVAILABLE));
    // The library sees the same value again as a change.
    machine().notify(shipping, PRINTER_CHANGE_SET_PRINTER);
    settle();
    const QList<QJsonObject> steps = recorded("values");
    QCOMPARE(steps.size(), 2);
    QCOMPARE(valueOf(steps.last(), QStringLiteral("Mileage")).value(u"number").toInt(), 5000);
}

void CaseRecorderTest::writesWhatTheFirstReadFindsDifferent()
{
    addPrinter(shipping);
    m_recorder = std::make_unique<CaseRecorder>(options());
    machine().publish(shipping, PrinterValue::text("StatusCode", "9"));
    m_controller = std::make_unique<PrinterStatusController>();
    m_recorder->setController(m_controller.get());
    settle();
    const QJsonObject line = firstOf("values");
    QVERIFY(!line.contains(u"n"));
    QCOMPARE(line.value(u"at"), firstOf("started").value(u"n"));
    QCOMPARE(line.value(u"changed").toArray().size(), 1);
    QCOMPARE(valueOf(line, QStringLiteral("StatusCode")).value(u"text").toString(),
             QStringLiteral("9"));
}

void CaseRecorderTest::writesThePollsOfAStoppedSpooler()
{
    addPrinter(shipping);
    machine().driveTime();
    start(options());
    machine().stopSpooler();
    machine().advance(6s);
    settle();
    machine().startSpooler();
    machine().advance(6s);
    settle();
    QStringList kinds;
    for (const QList<QJsonObject> lines = recorded(); const QJsonObject& line : lines) {
        const QString kind = kindOf(line);
        if (kind == QLatin1String("service") || kind == QLatin1String("poll"))
            kinds.append(kind + QString::number(line.value(u"state").toInt()));
    }
    QCOMPARE(kinds, QStringList({QStringLiteral("service4"), QStringLiteral("service1"),
                                 QStringLiteral("poll0"), QStringLiteral("service4"),
                                 QStringLiteral("poll0")}));
    QCOMPARE(faultOfSteps(recorded()), QString());
}

void CaseRecorderTest::writesADiscovery()
{
    addPrinter(shipping);
    start(options());
    addPrinter(returns, QStringLiteral("USB002"));
    m_controller->checkForPrinters();
    settle();
    QList<QJsonObject> lines = recorded();
    lines.removeIf([](const QJsonObject& line) {
        return !QStringList({QStringLiteral("printerAdded"), QStringLiteral("discover"),
                             QStringLiteral("started")})
                    .contains(kindOf(line));
    });
    QCOMPARE(lines.size(), 4);
    QCOMPARE(kindOf(lines[1]), QStringLiteral("printerAdded"));
    QCOMPARE(lines[1].value(u"name").toString(), returns);
    QCOMPARE(kindOf(lines[2]), QStringLiteral("discover"));
    QCOMPARE(lines[2].value(u"n").toInt(), 2);
    QCOMPARE(kindOf(lines[3]), QStringLiteral("started"));
    QCOMPARE(lines[3].value(u"at").toInt(), 2);
    QCOMPARE(lines[3].value(u"n").toInt(), 3);
    QCOMPARE(firstOf("values").value(u"at").toInt(), 3);
    // Looking again finds nothing, and is no discovery.
    m_controller->checkForPrinters();
    settle();
    QCOMPARE(recorded("discover").size(), 1);
}

void CaseRecorderTest::writesFailuresOfTheController()
{
    addPrinter(shipping);
    start(options());
    machine().failNextCall(
        {.function = QStringLiteral("GetDefaultPrinterW"), .error = RPC_S_SERVER_UNAVAILABLE});
    machine().publish(shipping, PrinterValue::text("StatusCode", "3"));
    settle();
    const QJsonObject line = firstOf("failed");
    QCOMPARE(line.value(u"call").toString(), QStringLiteral("GetDefaultPrinterW"));
    QCOMPARE(line.value(u"at"), firstOf("values").value(u"n"));
    QCOMPARE(line.value(u"error").toInt(), int(RPC_S_SERVER_UNAVAILABLE));
}

void CaseRecorderTest::writesThatThePrinterIsOfflineBeforeTheStep()
{
    addPrinter(shipping);
    start(options());
    machine().publish(shipping, PrinterValue::text("StatusCode", "0"));
    machine().waitForWaitingThreads(2);
    machine().setStatus(shipping, PRINTER_STATUS_OFFLINE);
    settle();
    const QJsonObject line = firstOf("printerChanged");
    QCOMPARE(line.value(u"at"), firstOf("values").value(u"n"));
    QCOMPARE(line.value(u"name").toString(), shipping);
    QCOMPARE(line.value(u"status").toInt(), int(PRINTER_STATUS_OFFLINE));
}

void CaseRecorderTest::writesChangesOfPrinters()
{
    addPrinter(shipping);
    addPrinter(returns, QStringLiteral("USB002"));
    CaseRecorderOptions looking = options();
    looking.lookInterval = 5ms;
    start(looking);
    machine().setAttributes(shipping, PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE);
    QVERIFY(!awaited("printerChanged", "attributes", 0x440).isEmpty());
    machine().setPort(shipping, QStringLiteral("USB009"));
    QVERIFY(!awaited("printerChanged", "port", QStringLiteral("USB009")).isEmpty());
    machine().setDriver(returns, QStringLiteral("Stratamark Alder"));
    QVERIFY(!awaited("printerChanged", "driver", QStringLiteral("Stratamark Alder")).isEmpty());
    machine().setAdministrable(returns, false);
    QVERIFY(!awaited("printerChanged", "administrable", false).isEmpty());
    machine().setDefaultPrinter(returns);
    QVERIFY(!awaited("default", "printer", returns).isEmpty());
    machine().removePrinter(returns);
    QVERIFY(!awaited("printerRemoved", "name", returns).isEmpty());
    QCOMPARE(faultOfSteps(recorded()), QString());
}

void CaseRecorderTest::writesARename()
{
    addPrinter(shipping);
    start(options());
    machine().renamePrinter(shipping, returns);
    settle();
    const QJsonObject line = firstOf("printerRenamed");
    QCOMPARE(line.value(u"name").toString(), shipping);
    QCOMPARE(line.value(u"newName").toString(), returns);
}

void CaseRecorderTest::writesWhatARenamedPrinterDoesNotPublish()
{
    addPrinter(shipping);
    start(options());
    machine().renamePrinter(shipping, returns);
    settle();
    // Nobody has read the value since, so the file still has it.
    machine().holdNotifications();
    machine().unpublish(returns, "Mileage");
    m_controller->checkForPrinters();
    settle();
    const QList<QJsonObject> lines = recorded("values");
    const auto first = std::ranges::find_if(lines, [](const QJsonObject& line) {
        return line.value(u"printer").toString() == returns;
    });
    QVERIFY(first != lines.end());
    QVERIFY(first->value(u"missing").toArray().contains(QStringLiteral("Mileage")));
}

void CaseRecorderTest::writesJobs()
{
    addPrinter(shipping);
    CaseRecorderOptions looking = options();
    looking.lookInterval = 5ms;
    start(looking);
    machine().setPrintingTime(shipping, std::chrono::hours(1));
    m_controller->sendCommandToPrinter(QStringLiteral("FEED"), shipping);
    const QJsonObject line = awaited("job", "printer", shipping);
    QVERIFY(line.value(u"id").toInt() > 0);
    QCOMPARE(line.value(u"datatype").toString(), QStringLiteral("RAW"));
    QVERIFY(line.value(u"status").isDouble());
    machine().setPrintingTime(shipping, 0ms);
}

void CaseRecorderTest::jobsThatWaitBelongToABeginning()
{
    addPrinter(shipping);
    CaseRecorderOptions looking = options();
    looking.lookInterval = 5ms;
    start(looking);
    machine().setJob(shipping, {.id = 7,
                                .document = QStringLiteral("Labels"),
                                .user = QStringLiteral("Ann"),
                                .datatype = QStringLiteral("TEXT"),
                                .pages = 2,
                                .bytes = 300,
                                .status = JOB_STATUS_PAUSED});
    machine().setJob(shipping, {.id = 8});
    QVERIFY(!awaited("job", "id", 8).isEmpty());
    machine().removeJob(shipping, 8);
    QVERIFY(!awaited("job", "status", QJsonValue::Null).isEmpty());
    CaseRecorderOptions later = options();
    later.fileName += QStringLiteral("2.vxcase");
    CaseRecorder second(later);
    second.stop();
    m_controller.reset();
    m_recorder.reset();

    const QList<virtualwindows::JobSetup> atTheBeginning =
        virtualwindows::readCase(later.fileName).chapters.first().beginning.printers.first().jobs;
    QCOMPARE(atTheBeginning.size(), 1);
    QCOMPARE(atTheBeginning.first().id, 7U);
    // In the first file, the job comes later.
    machine().reset();
    const virtualwindows::Fleet fleet = virtualwindows::readFleet(fileName());
    virtualwindows::populate(machine(), fleet);
    QCOMPARE(machine().jobs(shipping).size(), 0);
    for (const virtualwindows::StoryEvent& event : fleet.story)
        event.happen(machine());
    const QList<virtualwindows::PrintJob> jobs = machine().jobs(shipping);
    QCOMPARE(jobs.size(), 1);
    QCOMPARE(jobs.first().id, 7U);
    QCOMPARE(jobs.first().document, QStringLiteral("Labels"));
    QCOMPARE(jobs.first().user, QStringLiteral("Ann"));
    QCOMPARE(jobs.first().datatype, QStringLiteral("TEXT"));
    QCOMPARE(jobs.first().pageCount, 2U);
    QCOMPARE(jobs.first().byteCount, 300U);
    QCOMPARE(jobs.first().status, quint32(JOB_STATUS_PAUSED));
}

void CaseRecorderTest::writesValuesThatTheLibraryDoesNotRead()
{
    addPrinter(shipping);
    CaseRecorderOptions looking = options();
    looking.lookInterval = 5ms;
    start(looking);
    machine().publish(shipping, PrinterValue::number("Odd", 17));
    const QJsonObject line = awaited("values", "seenBy", QStringLiteral("look"));
    QVERIFY(!line.isEmpty());
    QVERIFY(!line.contains(u"n"));
    QCOMPARE(valueOf(line, QStringLiteral("odd")).value(u"number").toInt(), 17);
}

void CaseRecorderTest::saysThatChangesWereFaster_data()
{
    QTest::addColumn<std::chrono::nanoseconds>("shortWait");
    QTest::addColumn<bool>("isFaster");
    // No wait takes that long, or no time.
    QTest::newRow("every change") << std::chrono::nanoseconds(std::chrono::hours(1)) << true;
    QTest::newRow("no change") << std::chrono::nanoseconds(-1) << false;
}

void CaseRecorderTest::saysThatChangesWereFaster()
{
    QFETCH(const std::chrono::nanoseconds, shortWait);
    QFETCH(const bool, isFaster);
    VxKit::setShortWait(shortWait);
    const auto restore = qScopeGuard([] { VxKit::setShortWait(20us); });
    addPrinter(shipping);
    start(options());
    for (int status = 2; status < 10; ++status) {
        machine().publish(shipping, PrinterValue::text("StatusCode", QByteArray::number(status)));
        settle();
    }
    // It says so once in ten seconds.
    const QJsonObject line = firstOf("faster");
    QCOMPARE(line.isEmpty(), !isFaster);
    if (isFaster)
        QCOMPARE(line.value(u"printer").toString(), shipping);
    m_recorder->stop();
    const qint64 counted = m_recorder->summary().faster;
    QVERIFY2(isFaster ? counted == 8 : counted == 0, qPrintable(QString::number(counted)));
}

void CaseRecorderTest::writesRowsOfTheCatalogue()
{
    addPrinter(shipping);
    m_recorder = std::make_unique<CaseRecorder>(options());
    m_controller = std::make_unique<PrinterStatusController>();
    m_controller->getSupplyIdController()->setCatalogueFile(testFile(VX_ROLL_DB));
    m_recorder->setController(m_controller.get());
    settle();
    QCOMPARE(recorded("catalogue").size(), 0);
    const QList<PrinterValue> roll{PrinterValue::text("SupplyIdentifier", "000000641000030000A7"),
                                   PrinterValue::number("Ribbon1Identifier", 2001)};
    machine().publish(shipping, roll);
    settle();
    const QJsonObject tables = firstOf("catalogue").value(u"tables").toObject();
    QVERIFY(tables.value(u"supply_kind").toArray().first().toObject().value(u"kind").toInt() ==
            100003);
    QVERIFY(!tables.value(u"supply").toArray().isEmpty());
    QCOMPARE(tables.value(u"ribbon_number").toArray().first().toObject().value(u"number").toInt(),
             2001);
    QVERIFY(!tables.value(u"name").toArray().isEmpty());
    // Each row once.
    machine().publish(shipping, PrinterValue::text("SupplyIdentifier", "000000641000030000A8"));
    settle();
    QCOMPARE(recorded("catalogue").size(), 1);
}

void CaseRecorderTest::beginsWithTheRecordsOfAControllerThatExists()
{
    addPrinter(shipping);
    m_controller = std::make_unique<PrinterStatusController>();
    settle();
    m_recorder = std::make_unique<CaseRecorder>(options(), m_controller.get());
    machine().publish(shipping, PrinterValue::text("StatusCode", "4"));
    settle();
    const QList<QJsonObject> lines = recorded();
    QCOMPARE(lines[0].value(u"from").toString(), QStringLiteral("running"));
    const QJsonArray records = firstOf("records").value(u"printers").toArray();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records.first().toObject().size(), 21);
    QCOMPARE(records.first().toObject().value(u"printerName").toString(), shipping);
    QCOMPARE(records.first().toObject().value(u"statusEnum").toInt(), 1);
    // Its threads are known, and their first wake is compared with the beginning.
    const QJsonObject line = firstOf("values");
    QCOMPARE(line.value(u"n").toInt(), 1);
    QCOMPARE(line.value(u"changed").toArray().size(), 1);
}

void CaseRecorderTest::endsWithCounts()
{
    addPrinter(shipping);
    start(options());
    machine().publish(shipping, PrinterValue::text("StatusCode", "4"));
    settle();
    m_recorder->stop();
    const QList<QJsonObject> lines = linesOf(contentOf(fileName()));
    QCOMPARE(kindOf(lines.last()), QStringLiteral("end"));
    QCOMPARE(lines.last().value(u"steps").toInt(), 2);
    const auto count = [&](const char* kind) {
        return std::ranges::count_if(
            lines, [kind](const QJsonObject& line) { return kindOf(line) == QLatin1String(kind); });
    };
    QCOMPARE(lines.last().value(u"signals").toInt(), int(count("signal")));
    QCOMPARE(lines.last().value(u"logLines").toInt(), int(count("log")));
    QCOMPARE(m_recorder->summary().bytes, contentOf(fileName()).size());
    // Nothing is added.
    machine().publish(shipping, PrinterValue::text("StatusCode", "5"));
    settle();
    QCOMPARE(linesOf(contentOf(fileName())).size(), lines.size());
}

void CaseRecorderTest::replacesNamesUnlessPlain()
{
    addPrinter(QStringLiteral("Secret Xq81"));
    CaseRecorderOptions redacted = options();
    redacted.isPlain = false;
    start(redacted);
    machine().publish(QStringLiteral("Secret Xq81"),
                      {PrinterValue::text("SupplyIdentifier", "000000641000030000A7"),
                       PrinterValue::text("StatusCode", "3"),
                       PrinterValue::text("EthernetConfig", "host-xq81.example")});
    settle();
    m_recorder->stop();
    const QByteArray text = contentOf(fileName());
    QVERIFY(!text.contains("Xq81"));
    QVERIFY(!text.contains("xq81"));
    QVERIFY(text.contains("\"printerName\":\"Printer 1\""));
    QVERIFY(text.contains(R"("message":"\n \"Printer 1\" true)"));
}

void CaseRecorderTest::secretsAreNotInTheFile()
{
    int planted = 0;
    const auto secret = [&planted](const char* shape = "zqx@") {
        return QByteArray(shape).replace("@", QByteArray::number(++planted).rightJustified(4, '0'));
    };
    const auto secretText = [&secret](const char* shape = "zqx@") {
        return QString::fromLatin1(secret(shape));
    };
    // "zqxz", as an address could be.
    constexpr quint32 number = 0x7a78717a;
    // Values that the library reads and others, of all forms, at the beginning and later.
    const auto publish = [&](const QString& printer) {
        QList<PrinterValue> values;
        for (const char* name :
             {"SupplyIdentifier", "StatusCode", "SoftwareVersion", "EthernetConfig", "Mileage",
              "Ribbon1Identifier", "Ribbon2Identifier", "Ribbon1Mileage", "Ribbon2Mileage",
              "UpdateProgress", "UpdateError", "Oem"}) {
            for (const quint32 type : {1U, 3U, 7U}) {
                for (const char* shape :
                     {"zqx@", "000000641000zqx@A7", "4.2.0,boot zqx@", "10.20.zqx@.40", "1 zqx@"}) {
                    values.append({name, type, secret(shape) + '\0'});
                    machine().publish(printer, values.last());
                    settle();
                }
            }
        }
        for (const char* name :
             {"SupplyIdentifier", "StatusCode", "SoftwareVersion", "EthernetConfig", "Oem"})
            machine().publish(printer, PrinterValue::number(name, number));
        settle();
        machine().publish(printer, PrinterValue::text("SupplyIdentifier", "0000006410000300zqxz"));
        machine().publish(printer, PrinterValue::text(secret(), "1"));
        settle();
    };
    const QString first = secretText("Label zqx@");
    addPrinter(first, secretText("USB001zqx@"));
    addPrinter(shipping);
    machine().publish(shipping, {PrinterValue::text(secret(), secret()),
                                 PrinterValue::text("EthernetConfig", secret()),
                                 PrinterValue::number("SoftwareVersion", number)});
    machine().setDefaultPrinter(first);
    machine().addDevice({QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}"),
                         secretText("##?#USB#VID_3E7A&PID_0104#zqx@"), 1, secretText()});
    CaseRecorderOptions redacted = options();
    redacted.isPlain = false;
    redacted.lookInterval = 5ms;
    CaseRecorderOptions inMemory = redacted;
    inMemory.fileName.clear();
    CaseRecorder ring(inMemory);
    start(redacted);

    publish(shipping);
    machine().setJob(shipping, {.id = 1,
                                .document = secretText("zqx@.pdf"),
                                .user = secretText(),
                                .datatype = secretText("RAW zqx@")});
    const auto isRecorded = [this](const char* kind) {
        return QTest::qWaitFor([&] { return !firstOf(kind).isEmpty(); }, 120000);
    };
    QVERIFY(isRecorded("job"));
    const QString second = secretText("zqx@ Office");
    addPrinter(second, secretText("10.20.30.40_zqx@"));
    m_controller->checkForPrinters();
    settle();
    machine().failNextCall({.function = QStringLiteral("GetPrinterDataA"),
                            .printer = first,
                            .value = "Mileage",
                            .error = RPC_S_SERVER_UNAVAILABLE});
    machine().notify(first, PRINTER_CHANGE_SET_PRINTER);
    settle();
    machine().setPort(second, secretText("COM1zqx@:"));
    machine().setDriver(second, secretText("Stratamark Alder zqx@"));
    QVERIFY(isRecorded("printerChanged"));
    machine().renamePrinter(second, secretText("zqx@ Shipping"));
    // The look may take a new name for that of another printer.
    const auto areGone = [this](qsizetype count) {
        return QTest::qWaitFor(
            [=, this] {
                return recorded("printerRenamed").size() + recorded("printerRemoved").size() >=
                       count;
            },
            120000);
    };
    QVERIFY(areGone(1));
    machine().removePrinter(first);
    QVERIFY(areGone(2));
    for (const char* file :
         {"printer_status_controller", "printer_status_thread", "windows_printer_info", "host"}) {
        for (const char* shape :
             {"zqx@", "Evaluating Printer: zqx@ ( Stratamark Alder ).", "zqx@ went offline",
              "\n \"Shipping\" true \"zqx@\" \"#ffd100\" \"Gelb\" \"Vinyl\" ",
              "Shipping: Failed to open printer zqx@"})
            VX_GLOBAL_LOGGER()->write(Logger::Info, file, 1, "run", nullptr, secretText(shape));
    }
    settle();
    QCOMPARE(ring.save(fileName() + QStringLiteral("2.vxcase")), QString());
    m_recorder->stop();
    QVERIFY2(planted >= 200, qPrintable(QString::number(planted)));

    for (const QString& name : {fileName(), fileName() + QStringLiteral("2.vxcase")}) {
        const QByteArray text = contentOf(name);
        QVERIFY(linesOf(text).size() > 200);
        for (const QByteArray& line : text.split('\n')) {
            QByteArray all = line;
            for (const QByteArray& part : line.split('"'))
                all += '\n' + QByteArray::fromBase64(part);
            all.replace('\0', QByteArray());
            QVERIFY2(!all.toLower().contains("zqx"), line.constData());
            QVERIFY2(!all.contains(QByteArray::number(number)), line.constData());
        }
    }
}

void CaseRecorderTest::doesNotReplaceAFile()
{
    QFile file(fileName());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("mine");
    file.close();
    CaseRecorder recorder(options());
    QVERIFY(!recorder.isRecording());
    QVERIFY(!recorder.errorString().isEmpty());
    QCOMPARE(contentOf(fileName()), QByteArray("mine"));
}

void CaseRecorderTest::keepsTheLimit()
{
    for (int number = 0; number < 20; ++number)
        addPrinter(QStringLiteral("Printer of the test %1").arg(number),
                   QStringLiteral("USB%1").arg(number + 1, 3, 10, QLatin1Char('0')));
    CaseRecorderOptions limited = options();
    limited.maxFileSize = mebibyte;
    start(limited);
    qint64 largest = 0;
    for (quint32 round = 1; m_recorder->summary().dropped == 0 || round % 50 != 0; ++round) {
        for (int number = 0; number < 20; ++number)
            machine().publish(QStringLiteral("Printer of the test %1").arg(number),
                              PrinterValue::text("StatusCode", QByteArray::number(2 + round % 9)));
        settle();
        m_recorder->flush(QDeadlineTimer::Forever);
        largest = std::max(largest, QFileInfo(fileName()).size());
    }
    m_recorder->stop();
    QVERIFY2(largest <= mebibyte, qPrintable(QString::number(largest)));
    QVERIFY(!QFileInfo::exists(fileName() + QStringLiteral(".part")));
    const QList<QJsonObject> lines = linesOf(contentOf(fileName()));
    QCOMPARE(faultOfSteps(lines), QString());
    QCOMPARE(kindOf(lines.first()), QStringLiteral("case"));
    QCOMPARE(kindOf(lines.last()), QStringLiteral("end"));
    qsizetype gap = 0;
    while (gap < lines.size() && kindOf(lines[gap]) != QLatin1String("gap"))
        ++gap;
    QVERIFY(gap > 20 && gap < lines.size());
    QCOMPARE(lines[gap].value(u"lines").toInteger(), m_recorder->summary().dropped);
    QCOMPARE(kindOf(lines[gap + 1]), QStringLiteral("printer"));
    // What the tools read is a case of two chapters.
    const virtualwindows::Case recordedCase = virtualwindows::readCase(fileName());
    QCOMPARE(recordedCase.chapters.size(), 2);
}

void CaseRecorderTest::savesWhatItKeepsInMemory()
{
    addPrinter(shipping);
    CaseRecorderOptions inMemory = options();
    inMemory.fileName.clear();
    start(inMemory);
    machine().publish(shipping, PrinterValue::text("StatusCode", "4"));
    settle();
    QCOMPARE(m_recorder->save(fileName()), QString());
    QVERIFY(!m_recorder->save(fileName()).isEmpty()); // it exists
    const QList<QJsonObject> lines = linesOf(contentOf(fileName()));
    QCOMPARE(faultOfSteps(lines), QString());
    QCOMPARE(kindOf(lines.first()), QStringLiteral("case"));
    QCOMPARE(lines.first().value(u"from").toString(), QStringLiteral("start"));
    QCOMPARE(kindOf(lines.last()), QStringLiteral("end"));
    QVERIFY(contentOf(fileName()).contains(R"("status":4,"printerName":"Shipping")"));
    // It goes on.
    machine().publish(shipping, PrinterValue::text("StatusCode", "5"));
    settle();
    QCOMPARE(m_recorder->save(fileName() + QLatin1Char('2')), QString());
    QVERIFY(contentOf(fileName() + QLatin1Char('2')).contains("\"status\":5,"));
}

void CaseRecorderTest::dropsTheOldestInMemory()
{
    addPrinter(shipping);
    CaseRecorderOptions inMemory = options();
    inMemory.fileName.clear();
    inMemory.ringSize = 65536;
    start(inMemory);
    int code = 2;
    for (; m_recorder->summary().dropped < 1000; ++code) {
        machine().publish(shipping, PrinterValue::text("StatusCode", QByteArray::number(code)));
        settle();
        m_recorder->flush(QDeadlineTimer::Forever);
    }
    QVERIFY(m_recorder->summary().bytes <= 65536);
    QCOMPARE(m_recorder->save(fileName()), QString());
    const QList<QJsonObject> lines = linesOf(contentOf(fileName()));
    QCOMPARE(faultOfSteps(lines), QString());
    QCOMPARE(lines.first().value(u"from").toString(), QStringLiteral("running"));
    // The beginning is the world as it was before the first step that is kept.
    int before = 0;
    int first = 0;
    for (const QJsonObject& line : lines) {
        const int status =
            valueOf(line, QStringLiteral("StatusCode")).value(u"text").toString().toInt();
        if (kindOf(line) == QLatin1String("printer"))
            before = status;
        else if (kindOf(line) == QLatin1String("values") && first == 0)
            first = status;
    }
    QVERIFY(before > 2);
    QCOMPARE(first, before + 1);
    QCOMPARE(virtualwindows::readCase(fileName()).chapters.size(), 1);
}

void CaseRecorderTest::recordsAgainAfterItStopped()
{
    addPrinter(shipping);
    start(options());
    m_recorder->stop();
    CaseRecorderOptions again = options();
    again.fileName += QStringLiteral("2.vxcase");
    m_recorder = std::make_unique<CaseRecorder>(again, m_controller.get());
    machine().publish(shipping, PrinterValue::text("StatusCode", "6"));
    settle();
    m_recorder->stop();
    const QList<QJsonObject> lines = linesOf(contentOf(again.fileName));
    QCOMPARE(faultOfSteps(lines), QString());
    QVERIFY(contentOf(again.fileName).contains("\"status\":6,"));
}

void CaseRecorderTest::sharesWithAnotherRecorder()
{
    addPrinter(shipping);
    start(options());
    machine().publish(shipping, PrinterValue::text("StatusCode", "6"));
    settle();
    CaseRecorderOptions second = options();
    second.fileName += QStringLiteral("2.vxcase");
    CaseRecorder other(second);
    machine().publish(shipping, PrinterValue::text("StatusCode", "7"));
    settle();
    other.stop();
    machine().publish(shipping, PrinterValue::text("StatusCode", "8"));
    settle();
    m_recorder->stop();
    const QList<QJsonObject> first = linesOf(contentOf(fileName()));
    const QList<QJsonObject> lines = linesOf(contentOf(second.fileName));
    QCOMPARE(first.last().value(u"steps").toInt(), 4);
    QCOMPARE(lines.last().value(u"steps").toInt(), 1);
    QCOMPARE(faultOfSteps(first), QString());
    QCOMPARE(faultOfSteps(lines), QString());
    QCOMPARE(valueOf(lines[1], QStringLiteral("StatusCode")).value(u"text").toString(),
             QStringLiteral("6"));
}

void CaseRecorderTest::goesOnAfterTheDiskWasFull()
{
    QProcess process;
    process.start(testFile(VX_CASE_RECORDER_CHILD), {QStringLiteral("full"), fileName()});
    QVERIFY2(process.waitForFinished(-1), qPrintable(process.errorString()));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    const qint64 lost = process.readAllStandardOutput().trimmed().toLongLong();
    const QList<QJsonObject> lines = linesOf(contentOf(fileName()));
    QVERIFY(lost > 0);
    QCOMPARE(faultOfSteps(lines), QString());
    qint64 said = 0;
    for (const QJsonObject& line : lines) {
        if (kindOf(line) == QLatin1String("gap"))
            said += line.value(u"lines").toInteger();
    }
    QCOMPARE(said, lost);
    QCOMPARE(kindOf(lines.last()), QStringLiteral("end"));
    QCOMPARE(virtualwindows::readCase(fileName()).chapters.size(), 2);
}

void CaseRecorderTest::leavesAValidFileWhenKilled()
{
    constexpr int kills = 50;
    bool hasSeed = false;
    auto seed = static_cast<quint32>(qEnvironmentVariableIntValue("VX_CASE_SEED", &hasSeed));
    if (!hasSeed)
        seed = QRandomGenerator::system()->generate() & 0x7FFFFFFF;
    qInfo("VX_CASE_SEED=%u", seed);
    QRandomGenerator random(seed);
    for (int number = 0; number < kills; ++number) {
        const QString name = m_folder->filePath(QStringLiteral("%1.vxcase").arg(number));
        QProcess process;
        // Half of them reach the limit.
        const qint64 limit = number % 2 == 0 ? mebibyte : 64 * mebibyte;
        process.start(testFile(VX_CASE_RECORDER_CHILD),
                      {QStringLiteral("storm"), name, QString::number(limit)});
        QVERIFY2(process.waitForReadyRead(-1), qPrintable(process.errorString()));
        QTest::qWait(random.bounded(number % 10 == 0 ? 1500 : 150));
        process.kill();
        process.waitForFinished(-1);
        const QList<QJsonObject> lines = linesOf(contentOf(name));
        QVERIFY2(!lines.isEmpty(), qPrintable(QString::number(number)));
        QVERIFY2(faultOfSteps(lines).isEmpty(),
                 qPrintable(QStringLiteral("%1: %2").arg(number).arg(faultOfSteps(lines))));
        QVERIFY(QFileInfo(name).size() <= limit);
        const virtualwindows::Case cut = virtualwindows::readCase(name);
        QVERIFY(cut.isCut);
        QFile::remove(name);
    }
}

void CaseRecorderTest::recordsAHostWithoutCodeForIt()
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VX_RECORD"), fileName());
    environment.insert(QStringLiteral("VX_RECORD_PLAIN"), QStringLiteral("1"));
    process.setProcessEnvironment(environment);
    // The second run does not replace the file of the first.
    for (int run = 0; run < 2; ++run) {
        process.start(testFile(VX_CASE_RECORDER_CHILD), {QStringLiteral("host")});
        QVERIFY2(process.waitForFinished(-1), qPrintable(process.errorString()));
        QCOMPARE(process.exitCode(), 0);
    }
    for (const QString& name : {fileName(), m_folder->filePath(QStringLiteral("test-2.vxcase"))}) {
        const QList<QJsonObject> lines = linesOf(contentOf(name));
        QVERIFY2(lines.size() > 25, qPrintable(name));
        QCOMPARE(faultOfSteps(lines), QString());
        QCOMPARE(lines.first().value(u"from").toString(), QStringLiteral("start"));
        QCOMPARE(kindOf(lines[1]), QStringLiteral("printer"));
        QCOMPARE(kindOf(lines.last()), QStringLiteral("end"));
        QVERIFY(contentOf(name).contains("\"kind\":\"signal\""));
    }
}

void CaseRecorderTest::leavesTheLogWhereItWas()
{
    // Without an appender, the log goes to standard error.
    const auto logOf = [](const QStringList& arguments) {
        QProcess process;
        process.start(testFile(VX_CASE_RECORDER_CHILD), arguments);
        process.waitForFinished(-1);
        QList<QByteArray> lines = process.readAllStandardError().split('\n');
        std::ranges::sort(lines); // threads write some of them
        return lines;
    };
    const QList<QByteArray> log = logOf({QStringLiteral("unlogged")});
    QVERIFY(std::ranges::any_of(
        log, [](const QByteArray& line) { return line.contains("Evaluating Printer: "); }));
    QCOMPARE(logOf({QStringLiteral("unlogged"), fileName()}), log);
    QVERIFY(contentOf(fileName()).contains("\"kind\":\"log\""));
}

QTEST_GUILESS_MAIN(CaseRecorderTest)
#include "tst_case_recorder.moc"
