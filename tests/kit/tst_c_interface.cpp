// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The C interface in a host that has a Qt application. c_host.c is a host without one.
#include "log_recorder.h"
#include "machine_test.h"
#include "patience.h"

#include <printer_reading.h>
#include <usage_history.h>
#include <usage_history_reader.h>
#include <vxkit.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <atomic>
#include <cmath>
#include <mutex>
#include <stdexcept>
#include <thread>

using virtualwindows::PrinterValue;

namespace {

/// What happened to a session whose application was destroyed, which is tried out before the
/// application of the tests exists.
struct EndOfApplication
{
    vxkit_result start = VXKIT_ERROR_FAILED;
    int64_t runningBefore = -1;
    int64_t runningAfter = -1;
    vxkit_result startWithoutApplication = VXKIT_ERROR_FAILED;
    bool hasNoApplicationAfterwards = false;
};
EndOfApplication endOfApplication;

void tryEndOfApplication(int& argumentCount, char** arguments)
{
    vxkit_session* session = nullptr;
    {
        const QCoreApplication application(argumentCount, arguments);
        vxkit_create(&session);
        endOfApplication.start = vxkit_start(session);
        vxkit_is_running(session, &endOfApplication.runningBefore);
    }
    vxkit_is_running(session, &endOfApplication.runningAfter);
    endOfApplication.startWithoutApplication = vxkit_start(session);
    vxkit_destroy(session);
    endOfApplication.hasNoApplicationAfterwards = !QCoreApplication::instance();
}

/// What a session has called back with, as "CHANGED Packing".
class Recorder
{
public:
    static void record(vxkit_session* /*session*/, int32_t change, const char* printer,
                       const char* oldName, uint32_t fields, void* userData)
    {
        auto& self = *static_cast<Recorder*>(userData);
        static constexpr std::array names{"", "ADDED", "CHANGED", "GONE", "RENAMED", "ACTIVE"};
        QString line = QStringLiteral("%1 %2").arg(QLatin1String(names.at(change)),
                                                   QString::fromUtf8(printer));
        if (*oldName)
            line += QStringLiteral(" was %1").arg(QString::fromUtf8(oldName));
        const std::lock_guard guard(self.m_mutex);
        self.m_lines.append(line);
        self.m_fields |= fields;
    }

    bool has(const QString& line) const
    {
        const std::lock_guard guard(m_mutex);
        return m_lines.contains(line);
    }
    int count() const
    {
        const std::lock_guard guard(m_mutex);
        return static_cast<int>(m_lines.size());
    }
    void clear()
    {
        const std::lock_guard guard(m_mutex);
        m_lines.clear();
        m_fields = 0;
    }
    uint32_t fields() const
    {
        const std::lock_guard guard(m_mutex);
        return m_fields;
    }

private:
    mutable std::mutex m_mutex;
    QStringList m_lines;
    uint32_t m_fields = 0;
};

QString lastError()
{
    std::array<char, 1024> text{};
    return vxkit_last_error(text.data(), text.size(), nullptr) == VXKIT_OK
               ? QString::fromUtf8(text.data())
               : QString();
}

} // namespace

class CInterfaceTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void anApplicationThatEndsStopsTheSession();
    void theApplicationOfTheHostIsUsed();
    void theHostsApplicationDeterminesLanguageAndLog_data();
    void theHostsApplicationDeterminesLanguageAndLog();
    void unknownEmptyAndZeroAreToldApart_data();
    void unknownEmptyAndZeroAreToldApart();
    void fieldsAndJsonTellTheSame();
    void aFailedIdentityIsNoValue();
    void estimatesFromItsHistory();
    void estimatesNothingWithoutAHistory();
    void worksWithoutTheHistoryThatCannotBeWritten();
    void everyKindOfChangeIsReported();
    void theFieldsOfAChangeAreNamed();
    void namesAreUtf8();
    void aCommandIsPrinted();
    void aFailedCommandSaysWhy();
    void aRemovedCallbackIsNotCalledAgain();
    void aCallbackRemovesItself();
    void aCallbackThatThrowsDoesNoHarm();
    void stoppingWaitsForACallback();
    void noCallbackIsCalledAfterStop();

protected Q_SLOTS:
    void init() override
    {
        MachineTest::init();
        QCOMPARE(vxkit_create(&m_session), VXKIT_OK);
        QCOMPARE(vxkit_set_option(m_session, VXKIT_OPTION_CATALOGUE, VX_ROLL_DB), VXKIT_OK);
    }
    void cleanup() override
    {
        QCOMPARE(vxkit_destroy(m_session), VXKIT_OK);
        MachineTest::cleanup();
    }

private:
    static inline const QString packing = QStringLiteral("Packing");
    static inline const QString shipping = QStringLiteral("Shipping");

    void addPrinter(const QString& name, const QList<PrinterValue>& values = {},
                    const QString& driver = QStringLiteral("Stratamark CedarMax"))
    {
        machine().addPrinter({.name = name, .driver = driver});
        machine().publish(name, PrinterValue::text("StatusCode", "1"));
        machine().publish(name, values);
    }
    [[nodiscard]] bool start()
    {
        if (vxkit_start(m_session) != VXKIT_OK || !machine().waitForWaitingThreads(2))
            return false;
        report();
        return true;
    }
    /// Has every printer report something new. What it reported while the session started may have
    /// been read with the list of printers.
    void report()
    {
        const QByteArray version = QByteArray::number(++m_version);
        const QStringList printers = machine().printers();
        for (const QString& printer : printers)
            machine().publish(printer, PrinterValue::text("SoftwareVersion", version));
    }
    uint64_t add(vxkit_callback callback, void* userData)
    {
        uint64_t id = 0;
        vxkit_add_callback(m_session, callback, userData, &id);
        return id;
    }
    /// An integer of a printer; VXKIT_NO_INTEGER when there is none.
    int64_t integerOf(const QString& printer, int32_t field)
    {
        vxkit_readings* readings = nullptr;
        int64_t value = VXKIT_NO_INTEGER;
        vxkit_read(m_session, printer.toUtf8().constData(), &readings);
        vxkit_reading_integer(readings, 0, field, &value);
        vxkit_readings_free(readings);
        return value;
    }
    double numberOf(const QString& printer, int32_t slot, int32_t field, vxkit_result* result)
    {
        vxkit_readings* readings = nullptr;
        double value = 0;
        vxkit_read(m_session, printer.toUtf8().constData(), &readings);
        *result = vxkit_slot_number(readings, 0, slot, field, &value);
        vxkit_readings_free(readings);
        return value;
    }
    QJsonObject jsonOf(const QString& printer)
    {
        vxkit_readings* readings = nullptr;
        std::array<char, 16384> text{};
        vxkit_read(m_session, printer.toUtf8().constData(), &readings);
        vxkit_reading_json(readings, 0, text.data(), text.size(), nullptr);
        vxkit_readings_free(readings);
        return QJsonDocument::fromJson(text.data()).object();
    }

    vxkit_session* m_session = nullptr;
    int m_version = 0;
};

// The host's application //////////////////////////////////////////////////////////////////////////

void CInterfaceTest::anApplicationThatEndsStopsTheSession()
{
    QCOMPARE(endOfApplication.start, VXKIT_OK);
    QCOMPARE(endOfApplication.runningBefore, 1);
    QCOMPARE(endOfApplication.runningAfter, 0);
    QCOMPARE(endOfApplication.startWithoutApplication, VXKIT_OK);
    QVERIFY(endOfApplication.hasNoApplicationAfterwards);
}

void CInterfaceTest::theApplicationOfTheHostIsUsed()
{
    const QCoreApplication* const application = QCoreApplication::instance();
    QCOMPARE(vxkit_start(m_session), VXKIT_OK);
    QCOMPARE(QCoreApplication::instance(), application);
    QCOMPARE(vxkit_stop(m_session), VXKIT_OK);
    QCOMPARE(QCoreApplication::instance(), application);
}

void CInterfaceTest::theHostsApplicationDeterminesLanguageAndLog_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("language") << int{VXKIT_OPTION_LANGUAGE} << QByteArray("de");
    QTest::newRow("log") << int{VXKIT_OPTION_LOG_FILE} << QByteArray("printers.log");
}

void CInterfaceTest::theHostsApplicationDeterminesLanguageAndLog()
{
    QFETCH(const int, option);
    QFETCH(const QByteArray, value);
    QCOMPARE(vxkit_set_option(m_session, option, value.constData()), VXKIT_OK);
    QCOMPARE(vxkit_start(m_session), VXKIT_ERROR_FAILED);
    QVERIFY2(lastError().contains(QStringLiteral("has a Qt application")), qPrintable(lastError()));
    QCOMPARE(vxkit_set_option(m_session, option, nullptr), VXKIT_OK);
    QCOMPARE(vxkit_start(m_session), VXKIT_OK);
}

// Values //////////////////////////////////////////////////////////////////////////////////////////

void CInterfaceTest::unknownEmptyAndZeroAreToldApart_data()
{
    QTest::addColumn<QList<PrinterValue>>("values");
    QTest::addColumn<int>("slot");
    QTest::addColumn<vxkit_result>("result");
    QTest::addColumn<double>("meters");
    const PrinterValue roll = PrinterValue::text("SupplyIdentifier", "000000641000010000A7");
    const double none = std::nan("");
    using Values = QList<PrinterValue>;
    QTest::newRow("nothing reported")
        << Values{} << int{VXKIT_SLOT_SUPPLY} << vxkit_result{VXKIT_UNKNOWN} << none;
    QTest::newRow("nothing loaded")
        << Values{PrinterValue::text("SupplyIdentifier", "00000000000000000000"),
                  PrinterValue::number("Mileage", 0)}
        << int{VXKIT_SLOT_SUPPLY} << vxkit_result{VXKIT_EMPTY} << none;
    QTest::newRow("no mileage") << Values{roll} << int{VXKIT_SLOT_SUPPLY}
                                << vxkit_result{VXKIT_UNKNOWN} << none;
    QTest::newRow("used up") << Values{roll, PrinterValue::number("Mileage", 0)}
                             << int{VXKIT_SLOT_SUPPLY} << vxkit_result{VXKIT_OK} << 0.0;
    QTest::newRow("half") << Values{roll, PrinterValue::number("Mileage", 15240)}
                          << int{VXKIT_SLOT_SUPPLY} << vxkit_result{VXKIT_OK} << 15.24;
    QTest::newRow("no ribbon loaded")
        << Values{PrinterValue::number("Ribbon1Identifier", 0)} << int{VXKIT_SLOT_RIBBON1}
        << vxkit_result{VXKIT_EMPTY} << none;
    QTest::newRow("no such slot") << Values{PrinterValue::number("Ribbon2Identifier", 2001)}
                                  << int{VXKIT_SLOT_RIBBON2} << vxkit_result{VXKIT_NO_SLOT} << none;
}

void CInterfaceTest::unknownEmptyAndZeroAreToldApart()
{
    QFETCH(const QList<PrinterValue>, values);
    QFETCH(const int, slot);
    QFETCH(const vxkit_result, result);
    QFETCH(const double, meters);
    addPrinter(packing, values);
    QVERIFY(start());
    QTRY_COMPARE(integerOf(packing, VXKIT_INTEGER_STATUS_CODE), 1);

    vxkit_readings* readings = nullptr;
    QCOMPARE(vxkit_read_all(m_session, &readings), VXKIT_OK);
    double value = 0.0;
    QCOMPARE(vxkit_slot_number(readings, 0, slot, VXKIT_NUMBER_METERS, &value), result);
    QCOMPARE(std::isnan(value), std::isnan(meters));
    if (result == VXKIT_OK)
        QCOMPARE(std::round(value * 1000), std::round(meters * 1000));
    int64_t labels = 0;
    QCOMPARE(vxkit_slot_integer(readings, 0, slot, VXKIT_SLOT_INTEGER_LABELS, &labels),
             result == VXKIT_OK ? vxkit_result{VXKIT_UNKNOWN} : result);
    QCOMPARE(labels, VXKIT_NO_INTEGER);
    QCOMPARE(vxkit_readings_free(readings), VXKIT_OK);
}

void CInterfaceTest::fieldsAndJsonTellTheSame()
{
    addPrinter(packing, {PrinterValue::text("SupplyIdentifier", "000000641000030000A7"),
                         PrinterValue::number("Mileage", 12345),
                         PrinterValue::number("Ribbon1Identifier", 2001),
                         PrinterValue::text("SoftwareVersion", "4.2.0,boot 1.7"),
                         PrinterValue::number("UpdateError", 0)});
    QVERIFY(start());
    QTRY_COMPARE(integerOf(packing, VXKIT_INTEGER_STATUS_CODE), 1);
    vxkit_readings* readings = nullptr;
    QCOMPARE(vxkit_read(m_session, "Packing", &readings), VXKIT_OK);

    std::array<char, 16384> text{};
    QCOMPARE(vxkit_reading_json(readings, 0, text.data(), text.size(), nullptr), VXKIT_OK);
    const QJsonObject json = QJsonDocument::fromJson(text.data()).object();
    QString error;
    const auto reading = VxKit::PrinterReading::fromJson(json, &error);
    QVERIFY2(reading, qPrintable(error));

    const auto textOf = [&](int32_t field) {
        return vxkit_reading_text(readings, 0, field, text.data(), text.size(), nullptr) == VXKIT_OK
                   ? QString::fromUtf8(text.data())
                   : QStringLiteral("none");
    };
    QCOMPARE(textOf(VXKIT_TEXT_NAME), packing);
    QCOMPARE(textOf(VXKIT_TEXT_MODEL), QStringLiteral("CedarMax"));
    QCOMPARE(textOf(VXKIT_TEXT_DRIVER), reading->driver());
    QCOMPARE(textOf(VXKIT_TEXT_PORT), reading->port());
    QCOMPARE(textOf(VXKIT_TEXT_SERIAL_NUMBER), QStringLiteral("none"));
    QCOMPARE(textOf(VXKIT_TEXT_PRESENCE), QStringLiteral("present"));
    QCOMPARE(textOf(VXKIT_TEXT_WATCHING), QStringLiteral("watched"));
    QCOMPARE(textOf(VXKIT_TEXT_FIRMWARE_VERSION), reading->firmwareVersion());
    QCOMPARE(textOf(VXKIT_TEXT_LAST_REPORT), json.value(QStringLiteral("lastReport")).toString());
    QCOMPARE(textOf(VXKIT_TEXT_STATUS_KEY), QStringLiteral("ready"));
    QCOMPARE(textOf(VXKIT_TEXT_SEVERITY), QStringLiteral("ok"));
    QCOMPARE(textOf(VXKIT_TEXT_STATUS_TITLE), reading->statusInfo().title);
    QCOMPARE(textOf(VXKIT_TEXT_STATUS_REMEDY), reading->statusInfo().remedy);

    const auto integer = [&](int32_t field) {
        int64_t value = 0;
        vxkit_reading_integer(readings, 0, field, &value);
        return value;
    };
    QCOMPARE(integer(VXKIT_INTEGER_SEVERITY), VXKIT_SEVERITY_OK);
    QCOMPARE(integer(VXKIT_INTEGER_ONLINE), 1);
    QCOMPARE(integer(VXKIT_INTEGER_PRESENT), 1);
    QCOMPARE(integer(VXKIT_INTEGER_WATCHED), 1);
    QCOMPARE(integer(VXKIT_INTEGER_MODEL), VXKIT_MODEL_CEDAR_MAX);
    QCOMPARE(integer(VXKIT_INTEGER_UPDATE_ERROR), 0);
    QCOMPARE(integer(VXKIT_INTEGER_UPDATE_PROGRESS), VXKIT_NO_INTEGER);
    QCOMPARE(integer(VXKIT_INTEGER_LAST_REPORT), reading->lastReport().toMSecsSinceEpoch());

    const VxKit::Level level = reading->level(VxKit::Slot::Supply);
    int64_t mileage = 0;
    QCOMPARE(
        vxkit_slot_integer(readings, 0, VXKIT_SLOT_SUPPLY, VXKIT_SLOT_INTEGER_MILEAGE, &mileage),
        VXKIT_OK);
    QCOMPARE(mileage, 12345);
    int64_t state = 0;
    QCOMPARE(vxkit_slot_integer(readings, 0, VXKIT_SLOT_SUPPLY, VXKIT_SLOT_INTEGER_STATE, &state),
             VXKIT_OK);
    QCOMPARE(state, static_cast<int64_t>(level.state));
    QCOMPARE(vxkit_slot_text(readings, 0, VXKIT_SLOT_SUPPLY, VXKIT_SLOT_TEXT_IDENTIFIER,
                             text.data(), text.size(), nullptr),
             VXKIT_OK);
    QCOMPARE(QString::fromUtf8(text.data()), level.identifier);
    QCOMPARE(vxkit_readings_free(readings), VXKIT_OK);
}

void CInterfaceTest::aFailedIdentityIsNoValue()
{
    addPrinter(packing);
    machine().addPrinter({.name = shipping,
                          .driver = QStringLiteral("Stratamark Alder"),
                          .attributes = 0x10}); // on a network
    QVERIFY(start());
    QCOMPARE(integerOf(shipping, VXKIT_INTEGER_STATUS_CODE), 256);
    QCOMPARE(integerOf(shipping, VXKIT_INTEGER_WATCHED), 0);
    QCOMPARE(integerOf(shipping, VXKIT_INTEGER_LAST_REPORT), VXKIT_NO_INTEGER);
    QCOMPARE(integerOf(QStringLiteral("No such printer"), VXKIT_INTEGER_ONLINE), VXKIT_NO_INTEGER);
}

// Changes /////////////////////////////////////////////////////////////////////////////////////////

namespace {

const QString rollOfHistory = QStringLiteral("00000258100039000013");
constexpr double metersAnHour = 0.06;

/// Four weeks in which a roll lost as much in each hour, until 100 m were left.
[[nodiscard]] bool writeHistory(const QString& fileName, const QString& printer)
{
    VxKit::UsageHistoryOptions options;
    options.fileName = fileName;
    VxKit::UsageHistory history(options);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    constexpr int hours = 24 * 28;
    for (int hour = hours; hour > 0; --hour) {
        VxKit::PrinterReading reading;
        reading.setName(printer);
        reading.setModel(VXPrinting::PrinterType::BirchMax);
        VxKit::Level level;
        level.state = VxKit::Level::State::Loaded;
        level.identifier = rollOfHistory;
        level.sku = QStringLiteral("DE-400200-WH");
        level.totalMeters = 182.88;
        level.meters = 100.0 + metersAnHour * hour;
        level.ratio = *level.meters / *level.totalMeters;
        reading.setLevel(VxKit::Slot::Supply, level);
        history.record(reading, now.addSecs(qint64(-3600) * hour));
    }
    return history.flush(QDeadlineTimer(patience));
}

} // namespace

void CInterfaceTest::estimatesFromItsHistory()
{
    const LogRecorder log;
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(QStringLiteral("history.db"));
    QVERIFY(writeHistory(fileName, packing));
    QCOMPARE(vxkit_set_option(m_session, VXKIT_OPTION_HISTORY, fileName.toUtf8().constData()),
             VXKIT_OK);
    addPrinter(packing,
               {PrinterValue::text("SupplyIdentifier", rollOfHistory.toUtf8()),
                PrinterValue::number("Mileage", 100000)},
               QStringLiteral("Stratamark BirchMax"));
    QVERIFY(start());
    vxkit_result result = VXKIT_ERROR_FAILED;
    const auto seconds = [&](int32_t field) {
        return numberOf(packing, VXKIT_SLOT_SUPPLY, field, &result);
    };
    QTRY_VERIFY((seconds(VXKIT_NUMBER_SECONDS_REMAINING_P50), result == VXKIT_OK));
    const double p50 = seconds(VXKIT_NUMBER_SECONDS_REMAINING_P50);
    constexpr double expected = 100.0 / metersAnHour * 3600;
    QVERIFY2(std::abs(p50 - expected) < 0.1 * expected, qPrintable(QString::number(p50)));
    QVERIFY(seconds(VXKIT_NUMBER_SECONDS_REMAINING_P10) <= p50);
    QVERIFY(seconds(VXKIT_NUMBER_SECONDS_REMAINING_P90) >= p50);
    const QJsonValue estimate = jsonOf(packing)[QStringLiteral("supply")].toObject().value(
        QStringLiteral("estimatedSecondsRemaining"));
    QVERIFY(estimate[QStringLiteral("p50")].isDouble());
    seconds(VXKIT_NUMBER_SECONDS_REMAINING_P90 + 1);
    QCOMPARE(result, VXKIT_ERROR_INVALID_ARGUMENT);

    // What it reports now is recorded, too.
    machine().publish(packing, PrinterValue::number("Mileage", 90000));
    QTRY_COMPARE(qRound(seconds(VXKIT_NUMBER_METERS)), 90);
    QCOMPARE(vxkit_stop(m_session), VXKIT_OK);
    const QList<VxKit::UsageSegment> rolls = VxKit::UsageHistoryReader(fileName).segments(packing);
    QCOMPARE(rolls.size(), 1);
    QCOMPARE(rolls.first().metersLeft, 90.0);

    // Qt warns when something of the session cannot start its timer.
    const QList<LogRecord> records = log.records();
    for (const LogRecord& record : records)
        QVERIFY2(record.level < Logger::Warning, qPrintable(record.message));
}

void CInterfaceTest::estimatesNothingWithoutAHistory()
{
    addPrinter(packing, {PrinterValue::text("SupplyIdentifier", rollOfHistory.toUtf8()),
                         PrinterValue::number("Mileage", 100000)});
    QVERIFY(start());
    vxkit_result result = VXKIT_ERROR_FAILED;
    QTRY_VERIFY(
        (numberOf(packing, VXKIT_SLOT_SUPPLY, VXKIT_NUMBER_METERS, &result), result == VXKIT_OK));
    const double value =
        numberOf(packing, VXKIT_SLOT_SUPPLY, VXKIT_NUMBER_SECONDS_REMAINING_P50, &result);
    QCOMPARE(result, VXKIT_UNKNOWN);
    QVERIFY(std::isnan(value));
    numberOf(packing, VXKIT_SLOT_RIBBON2, VXKIT_NUMBER_SECONDS_REMAINING_P50, &result);
    QCOMPARE(result, VXKIT_NO_SLOT);
}

void CInterfaceTest::worksWithoutTheHistoryThatCannotBeWritten()
{
    const QTemporaryDir folder; // which is no file
    QCOMPARE(vxkit_set_option(m_session, VXKIT_OPTION_HISTORY, folder.path().toUtf8().constData()),
             VXKIT_OK);
    addPrinter(packing);
    QVERIFY(start());
    QTRY_COMPARE(integerOf(packing, VXKIT_INTEGER_STATUS_CODE), 1);
    QCOMPARE(vxkit_stop(m_session), VXKIT_OK);
    QVERIFY(QDir(folder.path()).isEmpty());
}

void CInterfaceTest::everyKindOfChangeIsReported()
{
    addPrinter(packing);
    Recorder recorder;
    add(Recorder::record, &recorder);
    QVERIFY(start());
    QTRY_VERIFY(recorder.has(QStringLiteral("CHANGED Packing")));
    std::array<char, 64> name{};
    QCOMPARE(vxkit_active_printer(m_session, name.data(), name.size(), nullptr), VXKIT_OK);
    QCOMPARE(name.data(), "Packing");

    addPrinter(shipping);
    QTRY_VERIFY(recorder.has(QStringLiteral("ADDED Shipping")));
    QTRY_COMPARE(integerOf(shipping, VXKIT_INTEGER_STATUS_CODE), 1);
    // Only a thread that has opened its printer follows it to another name.
    QVERIFY(machine().waitForWaitingThreads(3));
    machine().renamePrinter(shipping, QStringLiteral("Archive"));
    QTRY_VERIFY(recorder.has(QStringLiteral("RENAMED Archive was Shipping")));
    QCOMPARE(integerOf(QStringLiteral("Archive"), VXKIT_INTEGER_STATUS_CODE), 1);
    QCOMPARE(integerOf(shipping, VXKIT_INTEGER_STATUS_CODE), VXKIT_NO_INTEGER);

    machine().setDefaultPrinter(QStringLiteral("Archive"));
    QTRY_VERIFY(recorder.has(QStringLiteral("ACTIVE Archive")));
    machine().removePrinter(QStringLiteral("Archive"));
    QTRY_VERIFY(recorder.has(QStringLiteral("GONE Archive")));
    QCOMPARE(integerOf(QStringLiteral("Archive"), VXKIT_INTEGER_PRESENT), 0);
    QVERIFY(integerOf(QStringLiteral("Archive"), VXKIT_INTEGER_GONE_SINCE) > 0);
}

void CInterfaceTest::theFieldsOfAChangeAreNamed()
{
    addPrinter(packing);
    Recorder recorder;
    QVERIFY(start());
    QTRY_COMPARE(integerOf(packing, VXKIT_INTEGER_STATUS_CODE), 1);
    QVERIFY(machine().waitForWaitingThreads(2));
    add(Recorder::record, &recorder);
    machine().publish(packing, PrinterValue::text("StatusCode", "2"));
    QTRY_VERIFY(recorder.fields() & VXKIT_CHANGED_STATUS);
    QVERIFY(!(recorder.fields() & VXKIT_CHANGED_SUPPLY));
    recorder.clear();
    machine().publish(packing, PrinterValue::text("SupplyIdentifier", "000000641000030000A7"));
    QTRY_VERIFY(recorder.fields() & VXKIT_CHANGED_SUPPLY);
    QVERIFY(!(recorder.fields() & VXKIT_CHANGED_STATUS));
}

void CInterfaceTest::namesAreUtf8()
{
    const QString name = QStringLiteral("Étiquettes 標籤 \U0001F5A8 \u202E");
    addPrinter(name);
    Recorder recorder;
    add(Recorder::record, &recorder);
    QVERIFY(start());
    QTRY_VERIFY(recorder.has(QStringLiteral("CHANGED ") + name));
    QCOMPARE(jsonOf(name).value(QStringLiteral("name")).toString(), name);
    vxkit_readings* readings = nullptr;
    QCOMPARE(vxkit_read_all(m_session, &readings), VXKIT_OK);
    size_t index = 7;
    QCOMPARE(vxkit_readings_find(readings, name.toUtf8().constData(), &index), VXKIT_OK);
    QCOMPARE(index, size_t{0});
    QCOMPARE(vxkit_readings_free(readings), VXKIT_OK);
}

// Commands ////////////////////////////////////////////////////////////////////////////////////////

void CInterfaceTest::aCommandIsPrinted()
{
    addPrinter(packing);
    QVERIFY(start());
    vxkit_command_result result{};
    result.size = sizeof result;
    QCOMPARE(vxkit_send_text(m_session, "Packing", "FEED 3", 0, &result), VXKIT_OK);
    QCOMPARE(result.failure, VXKIT_FAILURE_NONE);
    QCOMPARE(result.bytes, 8);
    QCOMPARE(vxkit_send_bytes(m_session, "Packing", "\0\1", 2, 0, nullptr), VXKIT_OK);
    const auto jobs = machine().jobs(packing);
    QCOMPARE(jobs.size(), 2);
    QCOMPARE(jobs.at(0).id, result.job);
    QCOMPARE(jobs.at(0).pages, QList<QByteArray>{"FEED 3\r\n"});
    QCOMPARE(jobs.at(1).pages, (QList<QByteArray>{QByteArray("\0\1", 2)}));
}

void CInterfaceTest::aFailedCommandSaysWhy()
{
    addPrinter(packing);
    machine().addPrinter({.name = shipping, .driver = QStringLiteral("Everyday Office Laser 400")});
    QVERIFY(start());
    vxkit_command_result result{};
    result.size = sizeof result;
    QCOMPARE(vxkit_send_text(m_session, "Shipping", "FEED", 0, &result), VXKIT_ERROR_COMMAND);
    QCOMPARE(result.failure, VXKIT_FAILURE_FOREIGN_PRINTER);
    QCOMPARE(lastError(),
             QStringLiteral("\"Shipping\" is not a label printer of a supported model."));
    QCOMPARE(vxkit_send_text(m_session, "Shipping", "FEED", VXKIT_SEND_TO_ANY_PRINTER, &result),
             VXKIT_OK);
    QCOMPARE(vxkit_send_text(m_session, "Packing", "", 0, &result), VXKIT_ERROR_COMMAND);
    QCOMPARE(result.failure, VXKIT_FAILURE_EMPTY);
    QCOMPARE(vxkit_send_text(m_session, "Packing", "", VXKIT_SEND_EVEN_EMPTY, &result), VXKIT_OK);
    QCOMPARE(machine().jobs(packing).size(), 1);
}

// Careless callbacks //////////////////////////////////////////////////////////////////////////////

namespace {

/// A callback that takes its time, and what is done meanwhile on another thread.
struct Slow
{
    std::atomic<bool> isInside = false;
    std::atomic<bool> mayLeave = false;
    std::atomic<bool> hasLeft = false;

    static void call(vxkit_session* /*session*/, int32_t /*change*/, const char* /*printer*/,
                     const char* /*oldName*/, uint32_t /*fields*/, void* userData)
    {
        auto& self = *static_cast<Slow*>(userData);
        self.isInside = true;
        while (!self.mayLeave)
            std::this_thread::yield();
        // Whoever does not wait for the callback is most likely back before this.
        for (int i = 0; i < 100; ++i)
            std::this_thread::yield();
        self.hasLeft = true;
    }
};

} // namespace

void CInterfaceTest::aRemovedCallbackIsNotCalledAgain()
{
    addPrinter(packing);
    Slow slow;
    const uint64_t id = add(&Slow::call, &slow);
    QVERIFY(start());
    QTRY_VERIFY(slow.isInside);
    slow.mayLeave = true;
    QCOMPARE(vxkit_remove_callback(m_session, id), VXKIT_OK);
    QVERIFY(slow.hasLeft);
    slow.isInside = false;

    Recorder recorder;
    add(Recorder::record, &recorder);
    machine().publish(packing, PrinterValue::text("StatusCode", "2"));
    QTRY_COMPARE(integerOf(packing, VXKIT_INTEGER_STATUS_CODE), 2);
    QTRY_VERIFY(recorder.has(QStringLiteral("CHANGED Packing")));
    QVERIFY(!slow.isInside);
}

void CInterfaceTest::stoppingWaitsForACallback()
{
    addPrinter(packing);
    Slow slow;
    add(&Slow::call, &slow);
    QVERIFY(start());
    QTRY_VERIFY(slow.isInside);
    slow.mayLeave = true;
    QCOMPARE(vxkit_stop(m_session), VXKIT_OK);
    QVERIFY(slow.hasLeft);
}

void CInterfaceTest::aCallbackRemovesItself()
{
    struct Self
    {
        std::atomic<uint64_t> id = 0;
        std::atomic<int> calls = 0;
        std::atomic<vxkit_result> result = VXKIT_ERROR_FAILED;

        static void call(vxkit_session* session, int32_t /*change*/, const char* /*printer*/,
                         const char* /*oldName*/, uint32_t /*fields*/, void* userData)
        {
            auto& self = *static_cast<Self*>(userData);
            self.result = vxkit_remove_callback(session, self.id);
            ++self.calls;
        }
    } self;
    Recorder recorder;
    addPrinter(packing);
    self.id = add(&Self::call, &self);
    add(Recorder::record, &recorder);
    QVERIFY(start());
    QTRY_VERIFY(recorder.has(QStringLiteral("CHANGED Packing")));
    recorder.clear();
    machine().publish(packing, PrinterValue::text("StatusCode", "2"));
    QTRY_VERIFY(recorder.has(QStringLiteral("CHANGED Packing")));
    QCOMPARE(self.result, VXKIT_OK);
    QCOMPARE(self.calls, 1);
}

void CInterfaceTest::aCallbackThatThrowsDoesNoHarm()
{
    const auto throwing = [](vxkit_session*, int32_t, const char*, const char*, uint32_t, void*) {
        throw std::runtime_error("nobody catches this");
    };
    Recorder recorder;
    addPrinter(packing);
    add(throwing, nullptr);
    add(Recorder::record, &recorder);
    QVERIFY(start());
    QTRY_VERIFY(recorder.has(QStringLiteral("CHANGED Packing")));
    QTRY_COMPARE(integerOf(packing, VXKIT_INTEGER_STATUS_CODE), 1);
}

void CInterfaceTest::noCallbackIsCalledAfterStop()
{
    Recorder recorder;
    addPrinter(packing);
    add(Recorder::record, &recorder);
    QVERIFY(start());
    QTRY_COMPARE(integerOf(packing, VXKIT_INTEGER_STATUS_CODE), 1);
    for (int code = 2; code < 20; ++code)
        machine().publish(packing, PrinterValue::text("StatusCode", QByteArray::number(code)));
    QCOMPARE(vxkit_stop(m_session), VXKIT_OK);
    const int count = recorder.count();
    QCoreApplication::processEvents();
    QCOMPARE(recorder.count(), count);
    // The callback is still there for the next start.
    recorder.clear();
    QVERIFY(start());
    QTRY_VERIFY(recorder.has(QStringLiteral("CHANGED Packing")));
}

int main(int argc, char* argv[])
{
    tryEndOfApplication(argc, argv);
    const QCoreApplication application(argc, argv);
    CInterfaceTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_c_interface.moc"
