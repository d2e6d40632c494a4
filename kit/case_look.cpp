// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_look.h"

#include "case_session.h"
#include "growing_block.h"
#include "printer_listing.h"
#include "value_names.h"
#include "windows_printer_info.h"

#include <device_registry.h>
#include <device_registry_names.h>

#include <QtCore/QSet>

#include <algorithm>
#include <array>
#include <span>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// Without a notification, and for what the spooler does not report.
constexpr auto tick = 1s;
/// How many printers' rights are tried each time, because each takes a call to the spooler.
constexpr qsizetype rightsAtOnce = 8;
/// How many printers' other values are read each time, and how often those of one printer are.
constexpr qsizetype valuesAtOnce = 8;
constexpr auto valuesInterval = 5s;
/// How much of a value is read.
constexpr DWORD largestValue = 64 * 1024;
/// Printers and jobs beyond these are left out.
constexpr DWORD mostJobs = 256;
constexpr qsizetype mostValues = 256;

constexpr DWORD watchedChanges = PRINTER_CHANGE_ADD_PRINTER | PRINTER_CHANGE_SET_PRINTER |
                                 PRINTER_CHANGE_DELETE_PRINTER | PRINTER_CHANGE_ADD_JOB |
                                 PRINTER_CHANGE_SET_JOB | PRINTER_CHANGE_DELETE_JOB;

struct ServiceCloser
{
    void operator()(SC_HANDLE handle) const { CloseServiceHandle(handle); }
};
using ServiceOwner = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, ServiceCloser>;

std::optional<DWORD> queryService()
{
    const ServiceOwner manager(OpenSCManagerW(nullptr, nullptr, 0));
    if (!manager)
        return std::nullopt;
    const ServiceOwner spooler(
        OpenServiceW(manager.get(), wideText(QStringLiteral("Spooler")), SERVICE_QUERY_STATUS));
    SERVICE_STATUS status{};
    if (!spooler || !QueryServiceStatus(spooler.get(), &status))
        return std::nullopt;
    return status.dwCurrentState;
}

/// Reads a value as the library does, but whatever its size.
void readValue(HANDLE printer, const QByteArray& name, PublishedValues& values)
{
    std::vector<BYTE> bytes(128);
    for (int attempt = 0; attempt < 4; ++attempt) {
        DWORD type = 0;
        DWORD needed = 0;
        const auto size = static_cast<DWORD>(bytes.size());
        const DWORD result = GetPrinterDataA(printer, const_cast<char*>(name.constData()), &type,
                                             bytes.data(), size, &needed);
        if (result == ERROR_SUCCESS && needed <= size) {
            values.add(name, type, needed, bytes.data());
            return;
        }
        if (result != ERROR_MORE_DATA || needed <= size)
            return;
        if (needed > largestValue) {
            values.add(name, type, needed, nullptr);
            return;
        }
        bytes.resize(needed);
    }
}

bool isLibraryValue(QByteArrayView name)
{
    return std::ranges::any_of(libraryValues, [name](const char* known) {
        return name.compare(known, Qt::CaseInsensitive) == 0;
    });
}

/// The names of values that the library does not read.
QList<QByteArray> otherNames(const QString& name, HANDLE printer)
{
    QList<QByteArray> names = publishedValueNames(name, printer);
    names.removeIf([](const QByteArray& value) { return isLibraryValue(value); });
    return names.first(std::min(names.size(), mostValues));
}

PublishedValues readOtherValues(const QString& name, HANDLE printer)
{
    PublishedValues values;
    for (const QList<QByteArray> names = otherNames(name, printer); const QByteArray& value : names)
        readValue(printer, value, values);
    return values;
}

PublishedValues readAllValues(const QString& name)
{
    const PrinterOwner printer = openPrinter(name);
    if (!printer)
        return {};
    PublishedValues values;
    for (const char* value : libraryValues)
        readValue(printer.get(), value, values);
    for (const QList<QByteArray> names = otherNames(name, printer.get());
         const QByteArray& value : names)
        readValue(printer.get(), value, values);
    values.squeeze();
    return values;
}

std::optional<bool> readRights(const QString& name)
{
    if (openPrinter(name, PRINTER_ALL_ACCESS))
        return true;
    return GetLastError() == ERROR_ACCESS_DENIED ? std::optional(false) : std::nullopt;
}

/// The devices of the class that the maker's devices have.
QList<QJsonObject> readDevices()
{
    using namespace device_registry;
    QList<QJsonObject> devices;
    const QString guid = WindowsPrinterInfo::getDriverGUID();
    if (guid.isEmpty())
        return devices;
    const QString classKey = deviceClassesKey + guid;
    for (const QStringList keys = childKeys(classKey); const QString& key : keys) {
        const DeviceParameters parameters = deviceParameters(classKey + QLatin1Char('\\') + key);
        QJsonObject device{{QStringLiteral("kind"), QStringLiteral("device")},
                           {QStringLiteral("class"), guid},
                           {QStringLiteral("interface"), key}};
        if (parameters.portNumber.isValid())
            device.insert(QStringLiteral("portNumber"), qint64(parameters.portNumber.toUInt()));
        if (parameters.serialNumber.isValid())
            device.insert(QStringLiteral("serialNumber"), parameters.serialNumber.toString());
        devices.append(device);
    }
    return devices;
}

bool listPrinters(std::vector<BYTE>& block, DWORD& count)
{
    return fillBlock(block, [&](LPBYTE start, DWORD size, DWORD* needed) {
        return EnumPrintersW(PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS, nullptr, 2, start, size,
                             needed, &count);
    });
}

} // namespace

SpoolerReading readSpooler()
{
    SpoolerReading reading;
    if (!listPrinters(reading.block, reading.count))
        reading.count = 0;
    for (const PRINTER_INFO_2W& record : std::span(reading.records(), reading.count)) {
        const QString name = textFrom(record.pPrinterName);
        reading.values.push_back(record.pPrinterName ? readAllValues(name) : PublishedValues());
        reading.rights.push_back(record.pPrinterName ? readRights(name) : std::nullopt);
    }
    reading.defaultPrinter = queryDefaultPrinter();
    if (reading.defaultPrinter && reading.defaultPrinter->isEmpty())
        reading.defaultPrinter->clear();
    reading.service = queryService();
    reading.devices = readDevices();
    return reading;
}

CaseLook::CaseLook(CaseSession& session, std::chrono::milliseconds interval)
    : m_session(session)
    , m_interval(interval)
    , m_thread([this] { run(); })
{}

CaseLook::~CaseLook()
{
    m_isEnding = true;
    m_wakeUp.wake();
    m_thread.join();
}

void CaseLook::run()
{
    while (waitForNext()) {
        if (m_session.isResyncWanted()) {
            m_session.resync();
            m_jobs.clear(); // the next look tells of all again
        }
        if (m_interval > 0ms)
            look();
    }
}

bool CaseLook::waitForNext()
{
    // A rest first, so that drivers that publish all the time cost next to nothing.
    if (m_interval == 0ms) {
        m_wakeUp.wait(std::chrono::hours(1));
        return !m_isEnding;
    }
    if (m_wakeUp.wait(m_interval).why == Waited::Why::Woken || m_isEnding)
        return !m_isEnding;
    if (!m_notification) {
        HANDLE handle = nullptr;
        m_server.reset(OpenPrinterW(nullptr, &handle, nullptr) ? handle : nullptr);
        if (m_server)
            m_notification = watchChanges(m_server, watchedChanges);
    }
    m_changes = 0;
    if (m_notification) {
        const std::array handles{m_notification.get()};
        m_wakeUp.wait(tick, handles);
        if (!FindNextPrinterChangeNotification(m_notification.get(), &m_changes, nullptr,
                                               nullptr)) {
            m_notification.reset();
            m_server.reset();
        }
    }
    return !m_isEnding;
}

void CaseLook::look()
{
    lookAtPrinters();
    lookAtRights();
    const unsigned version = m_session.stateVersion();
    if (std::optional<QString> name = queryDefaultPrinter()) {
        if (name->isEmpty())
            name->clear();
        m_session.lookedAtDefault(*name, version);
    }
    if (const std::optional<DWORD> state = queryService())
        m_session.lookedAtService(*state, version);
    lookAtValues();
    lookAtJobs();
}

void CaseLook::lookAtPrinters()
{
    const unsigned version = m_session.stateVersion();
    std::vector<BYTE> block;
    DWORD count = 0;
    if (!listPrinters(block, count))
        return;
    const bool mayBeRenamed =
        (m_changes & PRINTER_CHANGE_SET_PRINTER) &&
        !(m_changes & (PRINTER_CHANGE_ADD_PRINTER | PRINTER_CHANGE_DELETE_PRINTER));
    m_session.lookedAtPrinters(reinterpret_cast<const PRINTER_INFO_2W*>(block.data()), count,
                               version, mayBeRenamed);
    m_names = m_session.printers();
}

void CaseLook::lookAtRights()
{
    const qsizetype count = std::min(rightsAtOnce, m_names.size());
    for (qsizetype i = 0; i < count && !m_isEnding; ++i) {
        const QString name = m_names.at(m_nextRights++ % m_names.size());
        const unsigned version = m_session.stateVersion();
        if (const std::optional<bool> rights = readRights(name))
            m_session.lookedAtRights(name, *rights, version);
    }
    m_nextRights = m_names.isEmpty() ? 0 : m_nextRights % m_names.size();
}

void CaseLook::lookAtValues()
{
    for (const QStringList notified = m_session.takeNotified(); const QString& name : notified) {
        if (!m_waitingForValues.contains(name))
            m_waitingForValues.append(name);
    }
    const auto now = std::chrono::steady_clock::now();
    qsizetype count = valuesAtOnce;
    QStringList later;
    for (const QStringList names = std::exchange(m_waitingForValues, {});
         const QString& name : names) {
        if (m_isEnding)
            return;
        if (count == 0 ||
            (m_valuesRead.contains(name) && now - m_valuesRead.value(name) < valuesInterval)) {
            later.append(name);
            continue;
        }
        --count;
        m_valuesRead.insert(name, now);
        const PrinterOwner printer = openPrinter(name);
        if (!printer)
            continue;
        const PublishedValues values = readOtherValues(name, printer.get());
        PublishedValues& before = m_otherValues[name];
        PublishedValues changed;
        values.forEach([&](const PublishedValues::Value& value) {
            PublishedValues::Value known;
            if (!before.find(value.name, known) || known.type != value.type ||
                known.size != value.size || known.bytes != value.bytes)
                changed.add(value.name, value.type, value.size,
                            value.bytes.isNull()
                                ? nullptr
                                : reinterpret_cast<const BYTE*>(value.bytes.data()));
        });
        before.forEach([&](const PublishedValues::Value& value) {
            PublishedValues::Value known;
            if (!values.find(value.name, known))
                changed.addMissing(value.name);
        });
        before = values;
        if (!changed.isEmpty())
            m_session.lookedAtValues(name, changed);
    }
    m_waitingForValues = later;
}

void CaseLook::lookAtJobs()
{
    QStringList names = m_session.printersWithJobs();
    for (auto known = m_jobs.cbegin(); known != m_jobs.cend(); ++known) {
        if (!names.contains(known.key()))
            names.append(known.key());
    }
    for (const QString& name : std::as_const(names)) {
        lookAtJobs(name, m_jobs[name]);
        if (m_jobs.value(name).isEmpty())
            m_jobs.remove(name);
    }
}

void CaseLook::lookAtJobs(const QString& printer, QMap<DWORD, QJsonObject>& known)
{
    QMap<DWORD, QJsonObject> jobs;
    if (const PrinterOwner owner = openPrinter(printer)) {
        std::vector<BYTE> block;
        DWORD count = 0;
        const bool isListed = fillBlock(block, [&](LPBYTE start, DWORD size, DWORD* needed) {
            return EnumJobsW(owner.get(), 0, mostJobs, 2, start, size, needed, &count);
        });
        if (!isListed)
            return;
        for (const JOB_INFO_2W& job :
             std::span(reinterpret_cast<const JOB_INFO_2W*>(block.data()), count))
            jobs.insert(job.JobId, {{QStringLiteral("kind"), QStringLiteral("job")},
                                    {QStringLiteral("printer"), printer},
                                    {QStringLiteral("id"), qint64(job.JobId)},
                                    {QStringLiteral("document"), textFrom(job.pDocument)},
                                    {QStringLiteral("user"), textFrom(job.pUserName)},
                                    {QStringLiteral("datatype"), textFrom(job.pDatatype)},
                                    {QStringLiteral("pages"), qint64(job.TotalPages)},
                                    {QStringLiteral("bytes"), qint64(job.Size)},
                                    {QStringLiteral("status"), qint64(job.Status)}});
    }
    for (auto job = jobs.cbegin(); job != jobs.cend(); ++job) {
        if (known.value(job.key()) != job.value())
            m_session.lookedAtJob(job.value());
    }
    for (auto job = known.cbegin(); job != known.cend(); ++job) {
        if (jobs.contains(job.key()))
            continue;
        QJsonObject gone = job.value();
        gone.insert(QStringLiteral("status"), QJsonValue::Null);
        m_session.lookedAtJob(gone);
    }
    known = jobs;
}

} // namespace VxKit
