// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Every Windows call that readings make fails once, at each of its uses, while they are made, while
// the list of printers is read again, and while printers are read again after the spooler was down.
//
// Whatever fails, nothing is shown that is not true, no printer is gone that is listed, and the
// readings are complete after the next change. The library's own calls on its threads have a matrix
// of their own, so the threads wait while calls fail here.
#include "readings_test.h"

#include <algorithm>

#include <windows.h>

class ReadingsFaultMatrixTest : public ReadingsTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void callMayFailWhileReadingsAreMade_data();
    void callMayFailWhileReadingsAreMade();
    void callMayFailInARefresh_data();
    void callMayFailInARefresh();
    void openingMayFailAfterTheSpoolerWasDown_data();
    void openingMayFailAfterTheSpoolerWasDown();

private:
    using Uses = QList<QPair<QString, int>>;

    static inline const QString packing = QStringLiteral("Packing");
    static inline const QString shipping = QStringLiteral("Shipping");
    static inline const QString asleep = QStringLiteral("Asleep");
    static inline const QString archive = QStringLiteral("Archive");
    static constexpr int watched = 3;

    static quint32 errorOf(const QString& function)
    {
        return function == QLatin1String("GetPrinterDataA") ? ERROR_FILE_NOT_FOUND
                                                            : RPC_S_SERVER_UNAVAILABLE;
    }
    void addFleet();
    void publishMoment(const QString& printer, int number);
    /// Makes a controller of the fleet and waits until its threads wait.
    [[nodiscard]] bool begin()
    {
        addFleet();
        return makeSettledController(watched);
    }
    /// What a refresh has to find: one printer more, and one on another port.
    void changeFleet()
    {
        machine().addPrinter({.name = archive,
                              .driver = QStringLiteral("Stratamark CedarMax"),
                              .port = QStringLiteral("USB004")});
        machine().setPort(shipping, QStringLiteral("USB003"));
    }
    void end()
    {
        endReadings();
        endController();
        machine().reset();
        machine().driveTime();
    }
    static Uses difference(const Uses& after, const Uses& before);
    static void addRows(const Uses& uses);

    /// How readings differ from those that are made now; a value that is not known is allowed.
    QString untruth();
    /// How readings differ from those that are made now, except in the time of the last report.
    QString incompleteness();
    /// The same after every value has changed and the list has been read once more.
    QString incompletenessAfterAChange(int threads);

    Uses m_making;
    Uses m_refreshing;
};

void ReadingsFaultMatrixTest::publishMoment(const QString& printer, int number)
{
    const auto word = [number](quint32 value) {
        return value + quint32(number);
    };
    machine().publish(
        printer,
        {PrinterValue::text("StatusCode", printer == asleep && number == 0
                                              ? QByteArray("0")
                                              : QByteArray::number(2 + number)),
         PrinterValue::text("SupplyIdentifier",
                            QByteArray("000000641000") + (number ? "04" : "03") + "0000A7"),
         PrinterValue::number("Ribbon1Identifier", word(2001)),
         PrinterValue::number("Ribbon2Identifier", word(2004)),
         PrinterValue::number("Mileage", word(15240)),
         PrinterValue::number("Ribbon1Mileage", word(60000)),
         PrinterValue::number("Ribbon2Mileage", word(70000)),
         PrinterValue::text("SoftwareVersion", "4." + QByteArray::number(number) + ",boot 1.7"),
         PrinterValue::text("EthernetConfig", "dhcp," + QByteArray::number(number)),
         PrinterValue::number("UpdateProgress", word(5)),
         PrinterValue::number("UpdateError", word(1))});
}

void ReadingsFaultMatrixTest::addFleet()
{
    const QString guid = QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
    machine().addDeviceClass(guid);
    int port = 0;
    for (const QString& name : {packing, shipping, asleep}) {
        ++port;
        machine().addDevice({guid, QStringLiteral("##?#USB#VID_3E7A&PID_0104#AM-%1").arg(port),
                             port, QStringLiteral("AM-%1").arg(port)});
        machine().addPrinter({.name = name,
                              .driver = QStringLiteral("Stratamark AlderMax"),
                              .port = QStringLiteral("USB00%1").arg(port)});
        publishMoment(name, 0);
    }
}

ReadingsFaultMatrixTest::Uses ReadingsFaultMatrixTest::difference(const Uses& after,
                                                                  const Uses& before)
{
    Uses uses;
    for (const auto& [function, count] : after) {
        const auto same = std::ranges::find(before, function, &QPair<QString, int>::first);
        const int more = count - (same == before.end() ? 0 : same->second);
        if (more > 0)
            uses.append({function, more});
    }
    return uses;
}

void ReadingsFaultMatrixTest::addRows(const Uses& uses)
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<int>("uses");
    for (const auto& [function, count] : uses)
        QTest::newRow(qPrintable(function)) << function << count;
}

QString ReadingsFaultMatrixTest::untruth()
{
    const VxKit::PrinterReadings now(&controller());
    const QList<Reading> all = readings().readings();
    for (const Reading& reading : all) {
        const Reading truth = now.reading(reading.name());
        const auto wrong = [&](const char* what) {
            return QStringLiteral("%1: wrong %2").arg(reading.name(), QLatin1String(what));
        };
        const auto isTrueOrEmpty = [](const auto& value, const auto& right) {
            return value == right || value == std::decay_t<decltype(value)>();
        };
        if (truth.isNull() || reading.presence() != truth.presence())
            return wrong("presence");
        if (reading.statusCode() != truth.statusCode() && reading.statusCode() != 255 &&
            reading.statusCode() != 257) // a printer whose state cannot be read is offline
            return wrong("status");
        if (!isTrueOrEmpty(reading.serialNumber(), truth.serialNumber()))
            return wrong("serial number");
        if (!isTrueOrEmpty(reading.firmwareVersion(), truth.firmwareVersion()) ||
            !isTrueOrEmpty(reading.ethernetConfig(), truth.ethernetConfig()) ||
            !isTrueOrEmpty(reading.updateProgress(), truth.updateProgress()) ||
            !isTrueOrEmpty(reading.updateError(), truth.updateError()))
            return wrong("value");
        const QList<Slot> slotList = reading.slotList();
        for (const Slot slot : slotList) {
            const VxKit::Level level = reading.level(slot);
            const VxKit::Level right = truth.level(slot);
            if ((level.state != right.state && level.state != State::NotKnown) ||
                !isTrueOrEmpty(level.identifier, right.identifier) ||
                !isTrueOrEmpty(level.sku, right.sku) || !isTrueOrEmpty(level.ratio, right.ratio) ||
                !isTrueOrEmpty(level.meters, right.meters) ||
                !isTrueOrEmpty(level.mileage, right.mileage))
                return wrong(qPrintable(VxKit::slotName(slot)));
        }
    }
    return {};
}

QString ReadingsFaultMatrixTest::incompleteness()
{
    const VxKit::PrinterReadings now(&controller());
    if (now.names() != readings().names())
        return QStringLiteral("there are readings of ") +
               readings().names().join(QStringLiteral(", "));
    const QList<Reading> all = readings().readings();
    for (const Reading& reading : all) {
        Reading::Fields fields = reading.differences(now.reading(reading.name()));
        fields.setFlag(Reading::Field::LastReport, false);
        if (fields)
            return QStringLiteral("%1 differs in fields %2")
                .arg(reading.name())
                .arg(int(fields), 0, 16);
    }
    return {};
}

QString ReadingsFaultMatrixTest::incompletenessAfterAChange(int threads)
{
    for (const QString& name : {packing, shipping, asleep})
        publishMoment(name, 1);
    if (!settleAll(threads))
        return QStringLiteral("the threads do not wait");
    readings().refresh();
    return incompleteness();
}

void ReadingsFaultMatrixTest::initTestCase()
{
    init();
    QVERIFY(begin());
    const Uses before = machine().callCounts();
    makeReadings();
    const Uses made = machine().callCounts();
    m_making = difference(made, before);
    QCOMPARE(incompleteness(), QString());
    changeFleet();
    QVERIFY(settleAll(watched));
    const Uses settledUses = machine().callCounts();
    readings().refresh();
    m_refreshing = difference(machine().callCounts(), settledUses);
    QCOMPARE(incompleteness(), QString());
    cleanup();
    const auto isUsed = [](const Uses& uses, const char* function) {
        return std::ranges::any_of(
            uses, [&](const auto& use) { return use.first == QLatin1String(function); });
    };
    for (const char* function : {"EnumPrintersW", "OpenPrinterW", "GetPrinterDataA", "ClosePrinter",
                                 "RegistryKey", "OpenPrinterA", "GetPrinterW"})
        QVERIFY2(isUsed(m_making, function), function);
    for (const char* function : {"EnumPrintersW", "RegistryKey"})
        QVERIFY2(isUsed(m_refreshing, function), function);
}

void ReadingsFaultMatrixTest::callMayFailWhileReadingsAreMade_data()
{
    addRows(m_making);
}

void ReadingsFaultMatrixTest::callMayFailWhileReadingsAreMade()
{
    QFETCH(const QString, function);
    QFETCH(const int, uses);
    for (int nth = 1; nth <= uses; ++nth) {
        QVERIFY(begin());
        machine().failCall(function, nth, errorOf(function));
        makeReadings();
        machine().clearFailures();
        const QString fault = untruth();
        QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(fault)));
        const QString later = incompletenessAfterAChange(watched);
        QVERIFY2(later.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(later)));
        end();
    }
}

void ReadingsFaultMatrixTest::callMayFailInARefresh_data()
{
    addRows(m_refreshing);
}

void ReadingsFaultMatrixTest::callMayFailInARefresh()
{
    QFETCH(const QString, function);
    QFETCH(const int, uses);
    for (int nth = 1; nth <= uses; ++nth) {
        QVERIFY(begin());
        makeReadings();
        changeFleet();
        QVERIFY(settleAll(watched));
        takeLines();
        const QList<Reading> before = readings().readings();
        machine().failCall(function, nth, errorOf(function));
        readings().refresh();
        machine().clearFailures();
        // A list that cannot be read changes nothing.
        const QString fault = readings().readings() == before ? QString() : untruth();
        QVERIFY2(fault.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(fault)));
        const QStringList lines = takeLines();
        QVERIFY2(std::ranges::none_of(lines,
                                      [](const QString& line) { return line.startsWith(u"gone"); }),
                 qPrintable(lines.join(QLatin1Char(' '))));
        const QString later = incompletenessAfterAChange(watched);
        QVERIFY2(later.isEmpty(), qPrintable(QStringLiteral("use %1: %2").arg(nth).arg(later)));
        end();
    }
}

void ReadingsFaultMatrixTest::openingMayFailAfterTheSpoolerWasDown_data()
{
    QTest::addColumn<int>("nth");
    for (int nth = 1; nth <= watched; ++nth)
        QTest::addRow("use %d", nth) << nth;
}

void ReadingsFaultMatrixTest::openingMayFailAfterTheSpoolerWasDown()
{
    QFETCH(const int, nth);
    QVERIFY(begin());
    makeReadings();
    machine().stopSpooler();
    QVERIFY(pollAll(watched));
    machine().failCall(QStringLiteral("OpenPrinterW"), nth, RPC_S_SERVER_UNAVAILABLE);
    const int before = machine().callCount(QStringLiteral("OpenPrinterW"));
    machine().startSpooler();
    QVERIFY(pollAll(watched));
    QVERIFY(machine().callCount(QStringLiteral("OpenPrinterW")) >= before + watched);
    machine().clearFailures();
    const QString fault = untruth();
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
    const QString later = incompletenessAfterAChange(watched);
    QVERIFY2(later.isEmpty(), qPrintable(later));
}

QTEST_GUILESS_MAIN(ReadingsFaultMatrixTest)
#include "tst_readings_fault_matrix.moc"
