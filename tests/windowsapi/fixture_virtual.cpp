// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "fixture.h"

#include "virtualwindows/machine.h"

#include <ctime>

using virtualwindows::HandleMisuse;
using virtualwindows::Machine;

void fixture::system::begin()
{
    Machine::instance().reset();
}

QStringList fixture::system::end(const QStringList& allowedMisuses)
{
    QStringList allowed = allowedMisuses;
    QStringList wrong;
    const QList<HandleMisuse> misuses = Machine::instance().settle();
    for (const HandleMisuse& misuse : misuses) {
        const bool isAllowed =
            misuse.kind != HandleMisuse::Kind::Leaked && allowed.removeOne(misuse.function);
        if (!isAllowed)
            wrong.append(misuse.text);
    }
    for (const QString& function : std::as_const(allowed))
        wrong.append(QStringLiteral("expected a misuse by %1, but there was none").arg(function));
    Machine::instance().reset();
    return wrong;
}

bool fixture::system::installDriver(const QString& /*name*/)
{
    return true; // the virtual spooler accepts any driver's name
}

bool fixture::system::addPort(const QString& /*name*/)
{
    return true; // nor does it check ports
}

bool fixture::maySpoolerStop()
{
    return true;
}

bool fixture::setSpoolerRunning(bool running)
{
    Machine::instance().setSpoolerState(running ? SERVICE_RUNNING : SERVICE_STOPPED);
    return true;
}

bool fixture::has(Behaviour /*behaviour*/)
{
    return true;
}

QByteArray fixture::printedBytes(const QString& printer, const QString& outputFile)
{
    const QList<virtualwindows::PrintJob> jobs = Machine::instance().jobs(printer);
    if (jobs.isEmpty() || jobs.last().outputFile != outputFile || !jobs.last().finished)
        return {};
    return jobs.last().pages.join();
}

std::chrono::nanoseconds fixture::processorTimeOfThisThread()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}
