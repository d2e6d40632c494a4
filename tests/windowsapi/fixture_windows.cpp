// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "fixture.h"
#include "is_wine.h"
#include "test_spooler.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QFile>
#include <QtCore/QThread>

#include <algorithm>
#include <array>
#include <optional>

namespace {

QStringList& installedDrivers()
{
    static QStringList names;
    return names;
}

QStringList& addedPorts()
{
    static QStringList names;
    return names;
}

std::optional<bool>& spoolerRanBefore()
{
    static std::optional<bool> ran;
    return ran;
}

/// Every behaviour that Wine's spooler, kernel and service manager lack.
constexpr std::array wineLacks{
    Behaviour::AccessRights,        Behaviour::ChangeNotifications, Behaviour::DeletedPrinters,
    Behaviour::DistinctWaitObjects, Behaviour::EmptyPrinterNames,   Behaviour::JobCounts,
    Behaviour::JobQueues,           Behaviour::LevelsFirst,         Behaviour::MissingWaitLists,
    Behaviour::PageCalls,           Behaviour::PrintProviders,      Behaviour::PrinterCommands,
    Behaviour::PrinterRecordChecks, Behaviour::PseudoHandleChecks,  Behaviour::UniquePrinterNames,
};

ServiceHandle openSpooler()
{
    const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    if (!manager)
        return {};
    return ServiceHandle(OpenServiceW(manager.get(), L"Spooler",
                                      SERVICE_QUERY_STATUS | SERVICE_START | SERVICE_STOP));
}

DWORD stateOf(const ServiceHandle& service)
{
    SERVICE_STATUS status{};
    return QueryServiceStatus(service.get(), &status) ? status.dwCurrentState : 0;
}

/// The service manager has no notification of a service's state, so it is polled.
bool waitForState(const ServiceHandle& service, DWORD state)
{
    const QDeadlineTimer limit(20000);
    while (stateOf(service) != state) {
        if (limit.hasExpired())
            return false;
        QThread::msleep(10);
    }
    return true;
}

} // namespace

void fixture::system::begin()
{
    spoolerRanBefore().reset();
}

QStringList fixture::system::end(const QStringList& /*allowedMisuses*/)
{
    QStringList wrong;
    const auto check = [&wrong](const test_spooler::Problem& problem, const QString& what) {
        if (!problem.isNone())
            wrong.append(QStringLiteral("the %1 cannot be removed: %2").arg(what, problem.text()));
    };
    const QStringList drivers = std::exchange(installedDrivers(), {});
    for (const QString& driver : drivers)
        check(test_spooler::removeDriver(driver), QStringLiteral("driver \"%1\"").arg(driver));
    const QStringList ports = std::exchange(addedPorts(), {});
    for (const QString& port : ports)
        check(test_spooler::removePort(port), QStringLiteral("port \"%1\"").arg(port));
    if (spoolerRanBefore().has_value() && !setSpoolerRunning(*spoolerRanBefore()))
        wrong.append(
            QStringLiteral("the former state of the service \"Spooler\" could not be restored"));
    return wrong;
}

bool fixture::system::installDriver(const QString& name)
{
    if (installedDrivers().contains(name))
        return true;
    const test_spooler::Problem problem = test_spooler::installDriver(name);
    if (!problem.isNone()) {
        qWarning("the driver \"%s\" cannot be installed: %s", qPrintable(name),
                 qPrintable(problem.text()));
        SetLastError(problem.error);
        return false;
    }
    installedDrivers().append(name);
    return true;
}

bool fixture::system::addPort(const QString& name)
{
    if (addedPorts().contains(name, Qt::CaseInsensitive))
        return true;
    // Wine takes any port, and does not list all of them.
    if (isWine())
        return true;
    const test_spooler::Problem problem = test_spooler::addPort(name);
    if (!problem.isNone()) {
        qWarning("the port \"%s\" cannot be added: %s", qPrintable(name),
                 qPrintable(problem.text()));
        SetLastError(problem.error);
        return false;
    }
    addedPorts().append(name);
    return true;
}

bool fixture::maySpoolerStop()
{
    return qEnvironmentVariable("VX_SPOOLER_MAY_STOP") != QLatin1String("0");
}

bool fixture::setSpoolerRunning(bool running)
{
    if (!running && !maySpoolerStop()) {
        qWarning("the print spooler must not be stopped (VX_SPOOLER_MAY_STOP is 0)");
        return false;
    }
    const ServiceHandle service = openSpooler();
    if (!service)
        return false;
    const bool runs = stateOf(service) == SERVICE_RUNNING;
    if (!spoolerRanBefore().has_value())
        spoolerRanBefore() = runs;
    if (runs == running)
        return true;
    SERVICE_STATUS status{};
    const BOOL isRequested = running ? StartServiceW(service.get(), 0, nullptr)
                                     : ControlService(service.get(), SERVICE_CONTROL_STOP, &status);
    return isRequested && waitForState(service, running ? SERVICE_RUNNING : SERVICE_STOPPED);
}

bool fixture::has(Behaviour behaviour)
{
    return !isWine() || std::find(wineLacks.begin(), wineLacks.end(), behaviour) == wineLacks.end();
}

QByteArray fixture::printedBytes(const QString& /*printer*/, const QString& outputFile)
{
    QFile file(outputFile);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::chrono::nanoseconds fixture::processorTimeOfThisThread()
{
    FILETIME created{};
    FILETIME ended{};
    FILETIME kernel{};
    FILETIME user{};
    GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user);
    const auto hundredsOfNanoseconds = [](const FILETIME& time) {
        return (static_cast<qint64>(time.dwHighDateTime) << 32) | time.dwLowDateTime;
    };
    return std::chrono::nanoseconds(100 *
                                    (hundredsOfNanoseconds(kernel) + hundredsOfNanoseconds(user)));
}
