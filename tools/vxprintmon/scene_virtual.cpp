// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "scene.h"

#include "virtualwindows/fleet.h"

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

namespace {

using virtualwindows::Fleet;
using virtualwindows::FleetError;
using virtualwindows::Machine;
using virtualwindows::StoryPlayer;

class VirtualScene : public Scene
{
public:
    VirtualScene(const Fleet& fleet, double speed)
        : m_player(Machine::instance(), fleet.story, speed)
        , m_hasStory(!fleet.story.isEmpty())
    {
        // The serial numbers of virtual printers have no business among the user's.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        virtualwindows::populate(Machine::instance(), fleet);
        connect(&m_player, &StoryPlayer::narrated, this, &Scene::told);
        connect(&m_player, &StoryPlayer::happened, this, &Scene::printersMayHaveCome);
    }

    void begin(const std::function<int()>& audience) override
    {
        m_player.setWatchingThreads(audience);
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

} // namespace

std::variant<std::unique_ptr<Scene>, Scene::Failure> Scene::make(const CommandLine& line)
{
    try {
        const Fleet fleet = line.fleetFile.isEmpty() ? virtualwindows::builtInFleet()
                                                     : virtualwindows::readFleet(line.fleetFile);
        return std::make_unique<VirtualScene>(fleet, line.speed);
    } catch (const FleetError& error) {
        return Failure{error.message()};
    }
}
