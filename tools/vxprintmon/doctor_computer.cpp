// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "doctor_check.h"
#include "doctor_system.h"
#include "tool_text.h"

#include "vxipcclient.h"
#include "vxsupplydatabase.h"
#include "windows_printer_info.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonValue>
#include <QtCore/QSysInfo>
#include <QtCore/QtEndian>

#include <algorithm>
#include <array>
#include <exception>

using namespace std::chrono_literals;
using doctor::Check;
using doctor::finding;
using doctor::Remedy;
using doctor::Verdict;
using doctor_system::CallFailure;

namespace {

/// Drivers of unsupported models have numbers up to this one.
constexpr int lastUnsupportedType = 100;

bool isSupported(const AvailablePrinters& printer)
{
    return static_cast<int>(WindowsPrinterInfo::printerType(printer.driverName)) >
           lastUnsupportedType;
}

Check named(const char* name, Check check)
{
    check.check = QString::fromLatin1(name);
    return check;
}

Check checkService()
{
    const auto state = doctor_system::spoolerState();
    if (const auto* const failure = std::get_if<CallFailure>(&state))
        return finding(Verdict::Problem, failure->text(), Remedy::StartSpooler);
    if (std::get<DWORD>(state) != SERVICE_RUNNING)
        return finding(Verdict::Problem,
                       ToolText::tr("The service \"Spooler\" is not running (state %1).")
                           .arg(std::get<DWORD>(state)),
                       Remedy::StartSpooler);
    return {.text = ToolText::tr("The service \"Spooler\" is running.")};
}

Check checkListing(std::optional<QList<AvailablePrinters>>& printers)
{
    const auto count = doctor_system::countPrinters();
    if (const auto* const failure = std::get_if<CallFailure>(&count))
        return finding(Verdict::Problem, failure->text(), Remedy::RestartSpooler);
    try {
        printers = WindowsPrinterInfo::getAvailablePrinters();
    } catch (const std::exception&) {
        return finding(Verdict::Problem,
                       ToolText::tr("The print spooler lists a printer without a name, a port or a "
                                    "driver, so the library cannot look for printers."),
                       Remedy::InstallAgain);
    }
    const auto supported = std::ranges::count_if(*printers, isSupported);
    if (supported == 0)
        return finding(
            Verdict::Problem,
            ToolText::tr("The print spooler lists no label printer that can be watched. Printers: "
                         "%1.")
                .arg(std::get<DWORD>(count)),
            Remedy::InstallDriver);
    return {.text = ToolText::tr("The print spooler answers. Printers: %1, label printers: %2.")
                        .arg(std::get<DWORD>(count))
                        .arg(supported)};
}

Check checkDevices()
{
    const QString guid = WindowsPrinterInfo::getDriverGUID();
    if (guid.isEmpty())
        return finding(Verdict::Note,
                       ToolText::tr("The device registry has no USB device of a label printer."),
                       Remedy::InstallDriver);
    QHash<unsigned short, QString> numbers = WindowsPrinterInfo::getDeviceSerialNumbers();
    QList<unsigned short> ports = numbers.keys();
    std::ranges::sort(ports);
    QStringList devices;
    for (const unsigned short port : std::as_const(ports))
        devices.append(
            QStringLiteral("USB%1 %2").arg(port, 3, 10, QLatin1Char('0')).arg(numbers.value(port)));
    return {.text = ToolText::tr("USB devices of class %1: %2.")
                        .arg(guid, devices.isEmpty() ? QStringLiteral("-")
                                                     : devices.join(QStringLiteral(", ")))};
}

/// What docs/supply-database.md says of the beginning of the file.
struct CatalogueHeader
{
    static constexpr quint32 applicationId = 0x56585344;
    static constexpr quint32 schemaVersion = 1;
    static constexpr qsizetype size = 100;

    bool isDatabase = false;
    quint32 application = 0;
    quint32 schema = 0;

    explicit CatalogueHeader(const QByteArray& header)
    {
        constexpr qsizetype schemaOffset = 60;
        constexpr qsizetype applicationOffset = 68;
        if (header.size() < size || !header.startsWith("SQLite format 3"))
            return;
        isDatabase = true;
        schema = qFromBigEndian<quint32>(header.constData() + schemaOffset);
        application = qFromBigEndian<quint32>(header.constData() + applicationOffset);
    }
};

Check checkCatalogueFile(const QString& path)
{
    const QString shownPath = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.exists())
        return finding(Verdict::Problem, ToolText::tr("There is no catalogue %1.").arg(shownPath),
                       Remedy::ProvideCatalogue);
    if (!file.open(QIODevice::ReadOnly))
        return finding(
            Verdict::Problem,
            ToolText::tr("The catalogue %1 cannot be read: %2.").arg(shownPath, file.errorString()),
            Remedy::ProvideCatalogue);
    const CatalogueHeader header(file.read(CatalogueHeader::size));
    if (!header.isDatabase || header.application != CatalogueHeader::applicationId)
        return finding(Verdict::Problem,
                       ToolText::tr("The file %1 is no supply catalogue.").arg(shownPath),
                       Remedy::ProvideCatalogue);
    if (header.schema != CatalogueHeader::schemaVersion)
        return finding(Verdict::Problem,
                       ToolText::tr("The catalogue %1 has the schema version %2; only version %3 "
                                    "can be read.")
                           .arg(shownPath)
                           .arg(header.schema)
                           .arg(CatalogueHeader::schemaVersion),
                       Remedy::ProvideCatalogue);
    VXSupplyDatabase database;
    database.setup(path, QStringLiteral("doctor catalogue"));
    const qsizetype supplies = database.supplySKUList().size();
    const qsizetype ribbons = database.supplyRibbonSKUList().size();
    if (supplies == 0 && ribbons == 0)
        return finding(Verdict::Problem,
                       ToolText::tr("The catalogue %1 is damaged or empty.").arg(shownPath),
                       Remedy::ProvideCatalogue);
    return {.text = ToolText::tr("Catalogue %1, schema version %2. Supplies: %3, ribbons: %4.")
                        .arg(shownPath)
                        .arg(header.schema)
                        .arg(supplies)
                        .arg(ribbons)};
}

Check checkEndpoint(int serverType, const QStringList& running)
{
    const QString name = VXIPCClient(serverType).serverName();
    if (!running.contains(name))
        return finding(Verdict::Note, ToolText::tr("The endpoint %1 is not running.").arg(name),
                       Remedy::StartHost);
    VXIPCClient client(name);
    const VXIPCReply reply = client.callAndWait(QStringLiteral("rpc.discover"), {}, 3s);
    if (!reply.isOk())
        return finding(
            Verdict::Problem,
            ToolText::tr("The endpoint %1 does not answer: %2.").arg(name, reply.error->message),
            Remedy::RestartHost);
    const QJsonValue info = reply.result[QStringLiteral("info")];
    return {.text = ToolText::tr("The endpoint %1 answers: %2, process %3.")
                        .arg(name, info[QStringLiteral("x-application")].toString())
                        .arg(info[QStringLiteral("x-process")].toInteger())};
}

} // namespace

QList<Check> doctor::checkSpooler(std::optional<QList<AvailablePrinters>>* printers)
{
    const Check service = checkService();
    Check listing = checkListing(*printers);
    // Without its service the spooler lists nothing, whatever is connected.
    if (service.verdict == Verdict::Problem && listing.verdict == Verdict::Problem)
        listing.remedy = service.remedy;
    return {named("service", service), named("spooler", listing), named("devices", checkDevices())};
}

QList<Check> doctor::checkCatalogue(const QString& file)
{
    return {named("catalogue", checkCatalogueFile(file))};
}

QList<Check> doctor::checkEndpoints()
{
    if (const QString obstacle = VXIPCClient::distrust(); !obstacle.isEmpty())
        return {named("endpoints", finding(Verdict::Problem, obstacle, Remedy::TrustFolder))};
    const QStringList running = VXIPCClient::runningServers();
    QList<Check> checks;
    for (const int serverType : {0, 1, 3})
        checks.append(named("endpoint", checkEndpoint(serverType, running)));
    return checks;
}

QList<Check> doctor::checkVersions()
{
    return {named(
        "versions",
        {.text = QStringLiteral("vxprintmon %1, Qt %2, %3, %4.")
                     .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion()),
                          QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())})};
}
