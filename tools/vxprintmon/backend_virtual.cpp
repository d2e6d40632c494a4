// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"

#include "failure.h"
#include "recorded_catalogue.h"

#include "virtualwindows/fleet.h"

namespace {

using virtualwindows::Fleet;
using virtualwindows::FleetError;
using virtualwindows::Machine;
using virtualwindows::RunningFleet;
using virtualwindows::StoryPlayer;

class VirtualBackend : public Backend
{
public:
    VirtualBackend(const Fleet& fleet, const QString& fleetFile, double speed)
        : m_fleet(fleet, speed)
    {
        if (fleet.catalogue)
            m_catalogue.emplace(*fleet.catalogue, fleetFile);
        const StoryPlayer& player = m_fleet.player();
        connect(&player, &StoryPlayer::narrated, this, &Backend::narrated);
        connect(&player, &StoryPlayer::happened, this, &Backend::printersMayHaveChanged);
    }

    QString catalogueFile() const override { return m_catalogue ? m_catalogue->file() : QString(); }

    void start(const std::function<int()>& watchedPrinters) override
    {
        m_fleet.player().setWatchingThreads(watchedPrinters);
        m_fleet.start();
    }

    std::optional<Job> lastJob(const QString& printer) const override
    {
        QList<virtualwindows::PrintJob> jobs = Machine::instance().jobs(printer);
        jobs.removeIf([](const virtualwindows::PrintJob& job) { return job.isSet; });
        if (jobs.isEmpty())
            return std::nullopt;
        const virtualwindows::PrintJob& job = jobs.last();
        return Job{static_cast<int>(job.id), job.document, job.datatype, job.pages};
    }

private:
    std::optional<RecordedCatalogue> m_catalogue;
    RunningFleet m_fleet;
};

Fleet fleetOf(const QString& fileName)
{
    try {
        return fileName.isEmpty() ? virtualwindows::builtInFleet()
                                  : virtualwindows::fleetNamed(fileName);
    } catch (const FleetError& error) {
        throw Failure(error.message());
    }
}

} // namespace

std::unique_ptr<Backend> Backend::create(const CommandLine& line, const QString& fleetOfEnvironment)
{
    const QString& file = line.fleetFile.isEmpty() ? fleetOfEnvironment : line.fleetFile;
    return std::make_unique<VirtualBackend>(fleetOf(file), file, line.speed);
}
