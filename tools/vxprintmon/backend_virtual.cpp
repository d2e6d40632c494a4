// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"

#include "failure.h"

#include "virtualwindows/fleet.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

namespace {

using virtualwindows::Fleet;
using virtualwindows::FleetError;
using virtualwindows::Machine;
using virtualwindows::StoryPlayer;

class VirtualBackend : public Backend
{
public:
    VirtualBackend(const Fleet& fleet, double speed)
        : m_player(Machine::instance(), fleet.story, speed)
        , m_hasStory(!fleet.story.isEmpty())
    {
        // The serial numbers of virtual printers must not end up in the user's own settings.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        virtualwindows::populate(Machine::instance(), fleet);
        connect(&m_player, &StoryPlayer::narrated, this, &Backend::narrated);
        connect(&m_player, &StoryPlayer::happened, this, &Backend::printersMayHaveChanged);
    }

    void start(const std::function<int()>& watchedPrinters) override
    {
        m_player.setWatchingThreads(watchedPrinters);
        if (m_hasStory)
            m_player.start();
    }

    std::optional<Job> lastJob(const QString& printer) const override
    {
        const QList<virtualwindows::PrintJob> jobs = Machine::instance().jobs(printer);
        if (jobs.isEmpty())
            return std::nullopt;
        const virtualwindows::PrintJob& job = jobs.last();
        return Job{static_cast<int>(job.id), job.document, job.datatype, job.pages};
    }

private:
    QTemporaryDir m_settings;
    StoryPlayer m_player;
    bool m_hasStory;
};

Fleet fleetOf(const QString& fileName)
{
    if (fileName.isEmpty())
        return virtualwindows::builtInFleet();
    try {
        return virtualwindows::readFleet(fileName);
    } catch (const FleetError& error) {
        throw Failure(error.message());
    }
}

} // namespace

std::unique_ptr<Backend> Backend::create(const CommandLine& line)
{
    return std::make_unique<VirtualBackend>(fleetOf(line.fleetFile), line.speed);
}
