// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "virtualwindows/fleet.h"

#include <QtCore/QFile>
#include <QtCore/QSettings>

// The macro requires a function outside of every namespace.
static void initializeFleetResources()
{
    Q_INIT_RESOURCE(fleet);
}

namespace virtualwindows {

QByteArray builtInFleetText()
{
    initializeFleetResources();
    QFile file(QStringLiteral(":/virtualwindows/built_in_fleet.json"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("virtualwindows: the built-in fleet is missing");
    return file.readAll();
}

Fleet builtInFleet()
{
    return parseFleet(builtInFleetText(), QStringLiteral("built-in fleet"));
}

Fleet fleetNamed(const QString& name)
{
    return name == QLatin1String("built-in") ? builtInFleet() : readFleet(name);
}

RunningFleet::RunningFleet(const Fleet& fleet, double speed)
    : m_player(Machine::instance(), fleet.story, speed)
    , m_hasStory(!fleet.story.isEmpty())
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
    populate(Machine::instance(), fleet);
}

void RunningFleet::start()
{
    if (m_hasStory)
        m_player.start();
}

StoryPlayer::StoryPlayer(Machine& machine, const QList<StoryEvent>& story, double speed,
                         QObject* parent)
    : QObject(parent)
    , m_machine(machine)
    , m_story(story)
    , m_speed(speed)
{
    constexpr std::chrono::milliseconds interval(10);
    m_clock.setInterval(interval);
    m_clock.setTimerType(Qt::PreciseTimer);
    connect(&m_clock, &QTimer::timeout, this, &StoryPlayer::tick);
}

StoryPlayer::~StoryPlayer()
{
    if (m_clock.isActive())
        m_machine.driveTime(false);
}

void StoryPlayer::start()
{
    m_next = 0;
    m_now = {};
    m_begin = Clock::now();
    m_waitingSince.reset();
    m_machine.driveTime();
    m_clock.start();
}

bool StoryPlayer::areWatchersReady()
{
    // A thread that never waits again must not stop the story for good.
    constexpr std::chrono::seconds patience(1);
    if (m_machine.waitingThreads() >= m_watchingThreads()) {
        m_waitingSince.reset();
        return true;
    }
    const auto now = Clock::now();
    if (!m_waitingSince)
        m_waitingSince = now;
    return now - *m_waitingSince > patience;
}

void StoryPlayer::tick()
{
    // Queued, so that it comes after the calls that the threads queued before they waited again.
    if (areWatchersReady())
        QMetaObject::invokeMethod(this, &StoryPlayer::proceed, Qt::QueuedConnection);
}

void StoryPlayer::proceed()
{
    // Measured from the start and not from the previous tick, so that delays do not add up.
    const auto passed =
        std::chrono::duration_cast<std::chrono::milliseconds>((Clock::now() - m_begin) * m_speed);
    if (m_next == m_story.size() || m_story.at(m_next).at > passed) {
        advanceTo(passed);
        return;
    }

    const StoryEvent& event = m_story.at(m_next);
    if (event.at > m_now) {
        advanceTo(event.at); // waits that time out on the way have to be seen before the event
        return;
    }
    ++m_next;
    if (!event.caption.isEmpty())
        Q_EMIT narrated(event.caption);
    event.happen(m_machine);
    Q_EMIT happened();
    if (m_next == m_story.size())
        Q_EMIT finished();
}

void StoryPlayer::advanceTo(std::chrono::milliseconds moment)
{
    m_machine.advance(moment - m_now);
    m_now = moment;
}

} // namespace virtualwindows
