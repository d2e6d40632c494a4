// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Two hundred printers that all change ten times a second (fifty with a sanitizer): the host sees
// the last of every value, and its event loop keeps running. Prints the time that a report takes on
// the host's thread.
#include "endurance_test.h"
#include "supply_information.h"
#include "vx_ipc_supplyd_controller.h"

#include <QtCore/QTimer>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include <ctime>

using VXPrinting::PrinterType;

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
/// The sanitizers see the same threads, reports and queue with fewer printers. Each mileage lists
/// all printers, so the time grows with the square of their number.
constexpr int printerCount = 50;
#else
constexpr int printerCount = 200;
#endif
constexpr int changesPerSecond = 10;
/// A change of all values causes this many reports to the controller, one per connected signal.
constexpr int reportsPerChange = 7;
/// A slow machine needs minutes for a storm, and a test without output for that long is taken for
/// hung. So progress is printed once per this many reports.
constexpr qint64 reportsPerProgressLine = 5000;

/// The processor time of the calling thread, which does not include that of other programs.
double threadMicroseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e6 + double(time.tv_nsec) / 1e3;
}

/// The kinds of reports, distinguished by what the controller does on them.
enum class Kind
{
    Status,
    Supply,
    Ribbons,
    Mileage,
    Firmware,
};
constexpr std::array kindNames{"status", "supply", "ribbons", "mileage", "firmware"};

struct Cost
{
    int count = 0;
    double total = 0;
    double longest = 0;

    void add(double microseconds)
    {
        ++count;
        total += microseconds;
        longest = std::max(longest, microseconds);
    }
    double mean() const { return count ? total / count : 0; }
};

/// The host's application. It measures its own event loop: the time for each report to the
/// controller, the time for all other events, and which objects receive those.
class Host : public QCoreApplication
{
public:
    using QCoreApplication::QCoreApplication;

    void watch(PrinterStatusController* controller)
    {
        m_controller = controller;
        reports = {};
        others = {};
        delivered = 0;
        handledTwo = false;
        strangers.clear();
        using Controller = PrinterStatusController;
        connect(controller, &Controller::statusChangedSignal, this,
                [this] { m_kind = Kind::Status; });
        connect(controller, &Controller::supplyIdChangedSignal, this,
                [this] { m_kind = Kind::Supply; });
        connect(controller, &Controller::ribbonIdsChangedSignal, this,
                [this] { m_kind = Kind::Ribbons; });
        connect(controller, &Controller::availablePrintersUpdated, this, [this] { ++m_updates; });
    }

    /// Excludes an object of the test from `strangers`.
    void expectEventsFor(const QObject* object) { m_expected.append(object); }

    std::array<Cost, kindNames.size()> reports;
    Cost others;                       ///< events that are not reports
    std::atomic<qint64> delivered = 0; ///< reports
    bool handledTwo = false;           ///< more than one report in one event
    QStringList strangers;             ///< classes of unexpected receivers of other events
    std::atomic<bool> isInReport = false;

    bool notify(QObject* receiver, QEvent* event) override
    {
        if (!m_controller || QThread::currentThread() != thread() || m_depth > 0)
            return QCoreApplication::notify(receiver, event);
        const bool isReport = receiver == m_controller && event->type() == QEvent::MetaCall;
        if (!isReport && !m_expected.contains(receiver))
            strangers.append(QString::fromLatin1(receiver->metaObject()->className()));
        m_kind = Kind::Firmware;
        m_updates = 0;
        const int listings = callsOfListing();
        ++m_depth;
        isInReport = isReport;
        const double begin = threadMicroseconds();
        const bool result = QCoreApplication::notify(receiver, event);
        const double taken = threadMicroseconds() - begin;
        isInReport = false;
        --m_depth;
        if (!isReport) {
            others.add(taken);
            return result;
        }
        if (++delivered % reportsPerProgressLine == 0)
            qInfo("%lld reports so far", static_cast<long long>(delivered));
        handledTwo = handledTwo || m_updates > 1;
        const Kind kind = callsOfListing() != listings ? Kind::Mileage : m_kind;
        reports[static_cast<std::size_t>(kind)].add(taken);
        return result;
    }

private:
    static int callsOfListing()
    {
        return virtualwindows::Machine::instance().callCount(QStringLiteral("EnumPrintersW"));
    }

    QPointer<PrinterStatusController> m_controller;
    QList<const QObject*> m_expected;
    Kind m_kind = Kind::Firmware;
    int m_updates = 0;
    int m_depth = 0;
};

/// A timer in the host's event loop that measures how long the loop is busy between two beats.
class Heartbeat
{
public:
    explicit Heartbeat(Host& host)
        : m_host(host)
    {
        host.expectEventsFor(&m_timer);
        constexpr auto interval = 10ms;
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(interval);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { beat(); });
        m_timer.start();
        m_lastOwn = threadMicroseconds();
        m_sinceLast.start();
    }

    /// Includes the time since the last beat.
    void end()
    {
        m_timer.stop();
        beat();
    }

    /// The longest processor time of the loop between two beats, in microseconds, and the number of
    /// reports in it.
    double longest = 0;
    qint64 reportsInLongest = 0;
    /// The longest elapsed time between two beats, in milliseconds.
    qint64 longestElapsed = 0;

private:
    void beat()
    {
        const double own = threadMicroseconds();
        if (own - m_lastOwn > longest) {
            longest = own - m_lastOwn;
            reportsInLongest = m_host.delivered - m_lastDelivered;
        }
        m_lastOwn = own;
        m_lastDelivered = m_host.delivered;
        longestElapsed = std::max(longestElapsed, m_sinceLast.restart());
    }

    const Host& m_host;
    QTimer m_timer;
    double m_lastOwn = 0;
    qint64 m_lastDelivered = 0;
    QElapsedTimer m_sinceLast;
};

Host& host()
{
    return *static_cast<Host*>(QCoreApplication::instance());
}

} // namespace

class StormTest : public EnduranceTest
{
    Q_OBJECT

private Q_SLOTS:
    void hostCallsTheSystemOnlyInReports();
    void hostSeesTheLastOfEveryValue_data();
    void hostSeesTheLastOfEveryValue();

private:
    void addPrinters(int count, bool withMileages);
    QList<PrinterValue> valuesOf(const LabelPrinter& printer, int number) const;
    /// Changes every printer `rounds` times, evenly spread at ten times a second if this machine is
    /// fast enough.
    void changePrinters(int firstNumber, int rounds);
    /// The state at the end of the changes.
    struct Aftermath
    {
        double seconds = 0; ///< duration of the changes
        qint64 delivered = 0;
        Footprint footprint;
    };
    /// Runs the host's event loop while the printers change.
    Aftermath runStorm(int firstNumber, int rounds);
    QString firstMismatch(const PrinterStatusController& controller, int number) const;
    static void reserveEventQueue(int count);
    static void printCosts();
    static void printMileageParts(PrinterStatusController& controller, const QString& printer);

    bool m_withMileages = true;
    std::vector<LabelPrinter> m_printers;
};

void StormTest::addPrinters(int count, bool withMileages)
{
    machine().driveTime(false);
    constexpr std::array types{PrinterType::Alder, PrinterType::AlderMax, PrinterType::BirchMax,
                               PrinterType::CedarMax};
    m_withMileages = withMileages;
    m_printers.clear();
    for (int index = 0; index < count; ++index) {
        const LabelPrinter printer{QStringLiteral("Printer %1").arg(index, 3, 10, QLatin1Char('0')),
                                   types[static_cast<std::size_t>(index) % types.size()]};
        addPrinter(printer, QStringLiteral("USB%1").arg(index));
        machine().publish(printer.name, valuesOf(printer, 0));
        machine().addDevice({QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}"),
                             QStringLiteral("##?#USB#VID_3E7A&PID_0104#%1").arg(index), index,
                             QStringLiteral("AM-%1").arg(index)});
        m_printers.push_back(printer);
    }
    machine().setDefaultPrinter(m_printers.front().name);
}

QList<PrinterValue> StormTest::valuesOf(const LabelPrinter& printer, int number) const
{
    const QList<PrinterValue> values = moment(printer, number).values;
    return m_withMileages ? values : withoutMileages(values);
}

void StormTest::changePrinters(int firstNumber, int rounds)
{
    using Clock = std::chrono::steady_clock;
    const auto step = std::chrono::nanoseconds(1s) / (changesPerSecond * m_printers.size());
    auto next = Clock::now();
    for (int round = 0; round < rounds; ++round) {
        for (const LabelPrinter& printer : m_printers) {
            machine().publish(printer.name, valuesOf(printer, firstNumber + round));
            next += step;
            std::this_thread::sleep_until(next);
        }
    }
}

QString StormTest::firstMismatch(const PrinterStatusController& controller, int number) const
{
    const QVariantList records = controller.getAvailablePrinters();
    if (records.size() != static_cast<qsizetype>(m_printers.size()))
        return QStringLiteral("%1 records").arg(records.size());
    for (qsizetype index = 0; index < records.size(); ++index) {
        const LabelPrinter& printer = m_printers[static_cast<std::size_t>(index)];
        PrinterStatusInformation expected = moment(printer, number).record;
        if (!m_withMileages) {
            expected.supplyPercentage = 0;
            expected.ribbon1Percentage = 0;
            expected.ribbon2Percentage = 0;
        }
        const QString found =
            difference(records[index].value<PrinterStatusInformation>(), expected);
        if (!found.isEmpty())
            return printer.name + QStringLiteral(": ") + found;
    }
    return {};
}

/// Qt's event queue never shrinks, and how long it gets in a storm depends on how far the host
/// falls behind. With a capacity for twice the events of a storm, it does not grow during the test.
void StormTest::reserveEventQueue(int count)
{
    QObject receiver;
    for (int posted = 0; posted < 2 * count; ++posted)
        QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
    QCoreApplication::processEvents();
}

void StormTest::printCosts()
{
    for (std::size_t kind = 0; kind < kindNames.size(); ++kind) {
        const Cost& cost = host().reports[kind];
        if (cost.count)
            qInfo("%-8s %7d reports, %8.1f us each, the longest %8.1f us", kindNames[kind],
                  cost.count, cost.mean(), cost.longest);
    }
    qInfo("%-8s %7d events,  %8.1f us each, the longest %8.1f us", "others", host().others.count,
          host().others.mean(), host().others.longest);
}

void StormTest::printMileageParts(PrinterStatusController& controller, const QString& printer)
{
    constexpr int calls = 50;
    const auto time = [](const std::function<void()>& call) {
        const double begin = threadMicroseconds();
        for (int count = 0; count < calls; ++count)
            call();
        return (threadMicroseconds() - begin) / calls;
    };
    const double listing = time([&] { controller.getPrinterTypeEnum(printer); });
    const double database =
        time([&] { controller.getSupplyIdController()->supplyInformation(printer); });
    qInfo("of a mileage report: listing %d printers for one's type %.1f us, querying the supply "
          "database %.1f us",
          printerCount, listing, database);
}

StormTest::Aftermath StormTest::runStorm(int firstNumber, int rounds)
{
    QElapsedTimer clock;
    clock.start();
    Aftermath aftermath;
    QEventLoop loop;
    host().expectEventsFor(&loop);
    std::thread drivers([&] {
        changePrinters(firstNumber, rounds);
        aftermath = {double(clock.elapsed()) / 1000, host().delivered, Footprint::now()};
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    loop.exec();
    drivers.join();
    return aftermath;
}

void StormTest::hostSeesTheLastOfEveryValue_data()
{
    QTest::addColumn<bool>("withMileages");
    QTest::addColumn<int>("rounds");
    const int rounds = fromEnvironment("VX_STORM_SECONDS", 3) * changesPerSecond;
    QTest::newRow("status, supply, ribbons, firmware") << false << rounds;
    QTest::newRow("everything") << true << rounds;
}

void StormTest::hostSeesTheLastOfEveryValue()
{
    QFETCH(const bool, withMileages);
    QFETCH(const int, rounds);
    addPrinters(printerCount, withMileages);
    auto controller = std::make_unique<PrinterStatusController>();
    QVERIFY(settle(printerCount));

    // After a short storm, everything that is kept for good has been allocated.
    constexpr int warmUp = changesPerSecond;
    reserveEventQueue(printerCount * rounds * reportsPerChange);
    runStorm(1, warmUp);
    QVERIFY(settle(printerCount));
    QCOMPARE(firstMismatch(*controller, warmUp), QString());
    const Footprint before = Footprint::now();

    host().watch(controller.get());
    Heartbeat heartbeat(host());
    const int last = warmUp + rounds;
    QElapsedTimer clock;
    clock.start();
    const Aftermath aftermath = runStorm(warmUp + 1, rounds);
    QVERIFY(settle(printerCount));
    const double passed = double(clock.elapsed()) / 1000;
    heartbeat.end();
    QCOMPARE(firstMismatch(*controller, last), QString());
    const Footprint after = Footprint::now();

    qInfo("%d printers, %d changes each in %.1f s: %lld reports, %lld of them delivered in that "
          "time and all after %.1f s",
          printerCount, rounds, aftermath.seconds, static_cast<long long>(host().delivered),
          static_cast<long long>(aftermath.delivered), passed);
    qInfo("%s before; %s at the end of the storm; %s when all reports were delivered",
          qPrintable(before.memory()), qPrintable(aftermath.footprint.memory()),
          qPrintable(after.memory()));
    printCosts();
    qInfo(
        "between two beats of a timer, the host's loop used at most %.1f us of processor time, for "
        "%lld reports, and at most %lld ms passed",
        heartbeat.longest, static_cast<long long>(heartbeat.reportsInLongest),
        static_cast<long long>(heartbeat.longestElapsed));
    printMileageParts(*controller, m_printers.back().name);

    QCOMPARE(memoryGrowth(before, after), QString());
    // The reports are the only work in the loop, and each is an event of its own.
    QVERIFY(!host().handledTwo);
    QCOMPARE(host().strangers, QStringList());
}

void StormTest::hostCallsTheSystemOnlyInReports()
{
    constexpr int few = 20;
    addPrinters(few, true);
    auto controller = std::make_unique<PrinterStatusController>();
    QVERIFY(settle(few));
    host().watch(controller.get());

    // On the host's thread, only calls of the system can take long.
    std::mutex mutex;
    QStringList outside;
    machine().setCallHook([&, hostThread = QThread::currentThreadId()](const Call& call) {
        if (call.thread != hostThread || host().isInReport)
            return;
        const std::lock_guard guard(mutex);
        outside.append(call.function);
    });
    for (const LabelPrinter& printer : m_printers)
        publish(printer, moment(printer, 1));
    QVERIFY(settle(few));
    QCOMPARE(firstMismatch(*controller, 1), QString());
    QVERIFY(!host().handledTwo);
    QCOMPARE(outside, QStringList());
    controller.reset();
}

int main(int argc, char* argv[])
{
    StormTest::initMain();
    Host application(argc, argv);
    StormTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_storm.moc"
