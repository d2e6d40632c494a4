// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "endurance_test.h"

#include <ConsoleAppender.h>
#include <Logger.h>

#include <QtCore/QDir>
#include <QtCore/QMetaProperty>

#include <algorithm>
#include <array>
#include <atomic>
#include <filesystem>
#include <fstream>

#include <malloc.h>
#include <unistd.h>

using VXPrinting::PrinterType;
namespace StatusCodes = VXPrinting::StatusCodes;

// Qt does not count its objects, but calls the functions entered here when an object is created or
// destroyed. The positions in this table are fixed, because debugging tools rely on them.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace {

std::atomic<int> objectCount = 0;

void onObjectCreated(QObject* /*object*/)
{
    ++objectCount;
}

void onObjectDestroyed(QObject* /*object*/)
{
    --objectCount;
}

void countObjects()
{
    constexpr std::size_t creation = 3;
    constexpr std::size_t destruction = 4;
    qtHookData[creation] = reinterpret_cast<quintptr>(&onObjectCreated);
    qtHookData[destruction] = reinterpret_cast<quintptr>(&onObjectDestroyed);
}

/// Supplies and ribbons of one colour in the sample catalogue.
struct Colour
{
    const char* suffix;
    int supplyKind;
    quint32 ribbonNumber;
    const char* hex;
    const char* name;

    QString supplySku() const { return QStringLiteral("VT-400-") + QLatin1String(suffix); }
    QString ribbonSku() const { return QStringLiteral("RS-43-") + QLatin1String(suffix); }
};
constexpr std::array colours{
    Colour{"WH", 100001, 2003, "#ffffff", "White"}, Colour{"YL", 100003, 2007, "#ffd100", "Yellow"},
    Colour{"RD", 100004, 2004, "#c8102e", "Red"},   Colour{"BL", 100005, 2005, "#0057b8", "Blue"},
    Colour{"GN", 100006, 2006, "#00843d", "Green"}, Colour{"OR", 100007, 2008, "#ff6a13", "Orange"},
    Colour{"BK", 100009, 2001, "#000000", "Black"},
};
/// Ready, two errors of the driver, and the two codes after which the controller checks whether the
/// printer is offline.
constexpr std::array statusCodes{StatusCodes::ready, 21, StatusCodes::unknown, 42,
                                 StatusCodes::disconnected};

// In the catalogue, the rolls of these supplies are 1200 inches long and the ribbons 4725 inches.
// One percent is this many millimetres, rounded up so that the controller's rounding down gives the
// same percentage.
constexpr int rollFeet = 100;
constexpr quint32 supplyMillimetresPerPercent = 305;
constexpr quint32 ribbonMillimetresPerPercent = 1201;

constexpr std::array longForms{"VX_LIFECYCLE_ROUNDS", "VX_STORM_SECONDS", "VX_DAY_HOURS"};

template <typename Table>
const auto& at(const Table& table, int number)
{
    return table[static_cast<std::size_t>(number) % table.size()];
}

} // namespace

QString LabelPrinter::driver() const
{
    switch (type) {
    case PrinterType::Alder:
        return QStringLiteral("Stratamark Alder");
    case PrinterType::AlderMax:
        return QStringLiteral("Stratamark AlderMax");
    case PrinterType::BirchMax:
        return QStringLiteral("Stratamark BirchMax");
    case PrinterType::CedarMax:
        return QStringLiteral("Stratamark CedarMax");
    default:
        return QStringLiteral("Everyday Office Laser 400");
    }
}

Moment moment(const LabelPrinter& printer, int number)
{
    const Colour& supply = at(colours, number);
    const Colour& ribbon1 = at(colours, number + 1);
    const Colour& ribbon2 = at(colours, number + 2);
    const int status = at(statusCodes, number);
    // The steps are coprime to 101, the number of percentages.
    const int supplyLeft = number * 7 % 101;
    const int ribbon1Left = (number * 11 + 3) % 101;
    const int ribbon2Left = (number * 13 + 5) % 101;
    const QString version = QStringLiteral("4.%1.0,boot 1.7").arg(number);

    const bool inPercent = printer.type == PrinterType::Alder;
    const auto mileage = [inPercent](int percent, quint32 millimetresPerPercent) {
        return static_cast<quint32>(percent) * (inPercent ? 1 : millimetresPerPercent);
    };

    Moment result;
    result.values = {
        PrinterValue::text("StatusCode", QByteArray::number(status)),
        PrinterValue::text("SupplyIdentifier", QStringLiteral("%1%2%3")
                                                   .arg(rollFeet, 8, 16, QLatin1Char('0'))
                                                   .arg(supply.supplyKind)
                                                   .arg(number % 0x1000000, 6, 16, QLatin1Char('0'))
                                                   .toUpper()
                                                   .toLatin1()),
        PrinterValue::number("Ribbon1Identifier", ribbon1.ribbonNumber),
        PrinterValue::number("Ribbon2Identifier", ribbon2.ribbonNumber),
        PrinterValue::number("Mileage", mileage(supplyLeft, supplyMillimetresPerPercent)),
        PrinterValue::number("Ribbon1Mileage", mileage(ribbon1Left, ribbonMillimetresPerPercent)),
        PrinterValue::number("Ribbon2Mileage", mileage(ribbon2Left, ribbonMillimetresPerPercent)),
        PrinterValue::text("SoftwareVersion", version.toLatin1()),
        PrinterValue::text("EthernetConfig", "dhcp," + QByteArray::number(number)),
        PrinterValue::number("UpdateProgress", static_cast<quint32>(number)),
        PrinterValue::number("UpdateError", static_cast<quint32>(number)),
    };

    PrinterStatusInformation& record = result.record;
    record.printerName = printer.name;
    record.statusEnum = status;
    record.ribbon2Visible =
        printer.type == PrinterType::Alder || printer.type == PrinterType::AlderMax;
    record.supplySKU = supply.supplySku();
    record.supplyColorHex = QLatin1String(supply.hex);
    record.supplyColorName = QLatin1String(supply.name);
    record.supplyMaterialName = QStringLiteral("Vinyl");
    record.supplyPercentage = supplyLeft;
    record.ribbon1SKU = ribbon1.ribbonSku();
    record.ribbon1ColorHex = QLatin1String(ribbon1.hex);
    record.ribbon1ColorName = QLatin1String(ribbon1.name);
    record.ribbon1Percentage = ribbon1Left;
    record.ribbon2SKU = ribbon2.ribbonSku();
    record.ribbon2ColorHex = QLatin1String(ribbon2.hex);
    record.ribbon2ColorName = QLatin1String(ribbon2.name);
    record.ribbon2Percentage = ribbon2Left;
    record.softwareVersion = version;
    return result;
}

QList<PrinterValue> withoutMileages(const QList<PrinterValue>& values)
{
    QList<PrinterValue> others = values;
    others.removeIf([](const PrinterValue& value) { return value.name.endsWith("Mileage"); });
    return others;
}

QString difference(const PrinterStatusInformation& actual, const PrinterStatusInformation& expected)
{
    QStringList differences;
    const QMetaObject& type = PrinterStatusInformation::staticMetaObject;
    for (int index = 0; index < type.propertyCount(); ++index) {
        const QMetaProperty property = type.property(index);
        if (qstrcmp(property.name(), "printerDefault") == 0)
            continue;
        const QVariant is = property.readOnGadget(&actual);
        const QVariant should = property.readOnGadget(&expected);
        if (is != should)
            differences.append(
                QStringLiteral("%1 is \"%2\" instead of \"%3\"")
                    .arg(QLatin1String(property.name()), is.toString(), should.toString()));
    }
    return differences.join(QStringLiteral(", "));
}

Footprint Footprint::now()
{
    // QDir and QFile would open files and create objects of their own.
    const auto entries = [](const char* folder) {
        int count = 0;
        std::error_code error;
        for ([[maybe_unused]] const auto& entry :
             std::filesystem::directory_iterator(folder, error))
            ++count;
        return count;
    };
    Footprint footprint;
    footprint.threads = entries("/proc/self/task");
    footprint.openFiles = entries("/proc/self/fd");
    footprint.objects = objectCount;
    footprint.usedBytes = usedBytesNow();
    // The allocator keeps released memory in pools for each thread; this returns it to the system.
    malloc_trim(0);
    qint64 totalPages = 0;
    qint64 residentPages = 0;
    std::ifstream("/proc/self/statm") >> totalPages >> residentPages;
    footprint.residentBytes = residentPages * sysconf(_SC_PAGESIZE);
    return footprint;
}

qint64 Footprint::usedBytesNow()
{
    const struct mallinfo2 allocator = mallinfo2();
    return static_cast<qint64>(allocator.uordblks) + static_cast<qint64>(allocator.hblkhd);
}

HeldCalls::HeldCalls(virtualwindows::Machine& machine, const char* function)
    : m_machine(machine)
    , m_function(QString::fromLatin1(function))
    , m_host(QThread::currentThreadId())
{
    machine.setCallHook([this](const Call& call) { hold(call); });
}

HeldCalls::~HeldCalls()
{
    m_machine.setCallHook(nullptr);
    release();
}

void HeldCalls::hold(const Call& call)
{
    if (call.thread == m_host || call.function != m_function)
        return;
    std::unique_lock guard(m_mutex);
    ++m_held;
    m_changed.notify_all();
    m_changed.wait(guard, [&] { return m_isOver; });
}

bool HeldCalls::waitUntilHeld(int threads)
{
    std::unique_lock guard(m_mutex);
    return m_changed.wait_for(guard, std::chrono::milliseconds(patience),
                              [&] { return m_held >= threads; });
}

void HeldCalls::release()
{
    const std::lock_guard guard(m_mutex);
    m_isOver = true;
    m_changed.notify_all();
}

void EnduranceTest::initMain()
{
    // Names of colours and materials are in the user's language.
    qputenv("LC_ALL", "C");
    qunsetenv("LANGUAGE");
    // Qt ends a test function after five minutes, but the long forms take longer.
    const bool isLong = std::ranges::any_of(longForms, qEnvironmentVariableIsSet);
    if (isLong && !qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT"))
        qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000");
    // Without an appender, each line goes to standard error, which takes longer than the report
    // that it is about.
    auto* console = new ConsoleAppender;
    console->setDetailsLevel(Logger::Warning);
    Logger::globalInstance()->registerAppender(console);
    countObjects();
}

void EnduranceTest::addPrinter(const LabelPrinter& printer, const QString& port)
{
    machine().addPrinter({.name = printer.name, .driver = printer.driver(), .port = port});
}

void EnduranceTest::publish(const LabelPrinter& printer, const Moment& moment)
{
    machine().publish(printer.name, moment.values);
}

int EnduranceTest::fromEnvironment(const char* variable, int shortForm)
{
    if (!qEnvironmentVariableIsSet(variable))
        return shortForm;
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    if (!isNumber || value < 1)
        qFatal("%s: expected a number of at least 1, found \"%s\"", variable,
               qgetenv(variable).constData());
    return value;
}

bool EnduranceTest::settle(int watchingThreads)
{
    if (!machine().waitForWaitingThreads(watchingThreads, std::chrono::milliseconds(patience)))
        return false;
    QCoreApplication::processEvents();
    return true;
}

bool EnduranceTest::letThreadsPoll(int watchingThreads)
{
    machine().advance(spoolerPoll);
    return settle(watchingThreads);
}

int EnduranceTest::watchedPrinters(const PrinterStatusController& controller)
{
    const QVariantList records = controller.getAvailablePrinters();
    return static_cast<int>(std::ranges::count_if(records, [](const QVariant& entry) {
        const auto record = entry.value<PrinterStatusInformation>();
        return !record.printerNonAdmin && !record.printerRemote;
    }));
}

std::optional<PrinterStatusInformation>
EnduranceTest::recordOf(const PrinterStatusController& controller, const QString& name)
{
    const QVariantList records = controller.getAvailablePrinters();
    for (const QVariant& entry : records) {
        auto record = entry.value<PrinterStatusInformation>();
        if (record.printerName == name)
            return record;
    }
    return std::nullopt;
}

QString EnduranceTest::mismatch(const PrinterStatusController& controller,
                                const LabelPrinter& printer, const Moment& moment)
{
    const auto record = recordOf(controller, printer.name);
    if (!record)
        return printer.name + QStringLiteral(" has no record");
    const QString found = difference(*record, moment.record);
    return found.isEmpty() ? QString() : printer.name + QStringLiteral(": ") + found;
}

QString EnduranceTest::memoryGrowth(const Footprint& before, const Footprint& after)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    // The sanitizers keep released memory, and records of accesses. The address sanitizer finds
    // leaks itself.
    Q_UNUSED(before)
    Q_UNUSED(after)
    return {};
#else
    // Only memory in use indicates a leak. How much released memory stays resident depends on the
    // allocator, which keeps stacks of ended threads and pages with a single live block. It differs
    // by several MiB from run to run.
    constexpr qint64 tolerance = mebibyte; // a test's own lists grow a little
    const qint64 growth = after.usedBytes - before.usedBytes;
    if (growth <= tolerance)
        return {};
    return QStringLiteral("%1 KiB more in use than before").arg(growth / 1024);
#endif
}

QString EnduranceTest::leftBehind()
{
    const virtualwindows::Machine& windows = virtualwindows::Machine::instance();
    if (const int waiting = windows.waitingThreads())
        return QStringLiteral("%1 threads still wait").arg(waiting);
    if (const int open = windows.openHandles())
        return QStringLiteral("%1 handles are still open").arg(open);
    return {};
}

QString Footprint::memory() const
{
    return QStringLiteral("%1 MiB resident, %2 MiB in use")
        .arg(double(residentBytes) / mebibyte, 0, 'f', 1)
        .arg(double(usedBytes) / mebibyte, 0, 'f', 2);
}

QStringList EnduranceTest::publishedEndpoints()
{
    return QDir(qEnvironmentVariable("XDG_RUNTIME_DIR"))
        .entryList({QStringLiteral("vxipc-*")}, QDir::System, QDir::Name);
}

void EnduranceTest::init()
{
    MachineTest::init();
    machine().driveTime();
}

void EnduranceTest::cleanup()
{
    machine().setCallHook(nullptr);
    machine().clearFailures();
    const QStringList left = publishedEndpoints();
    MachineTest::cleanup();
    QVERIFY2(left.isEmpty(), qPrintable(left.join(QLatin1Char(' '))));
}
