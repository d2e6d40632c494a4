// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "virtualwindows/fleet.h"

#include <QtCore/QFile>

// Outside of every namespace, as the macro wants it.
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
    const auto fleet = parseFleet(builtInFleetText(), QStringLiteral("built-in fleet"));
    if (const auto* error = std::get_if<FleetError>(&fleet))
        qFatal("virtualwindows: %s", qPrintable(error->message));
    return std::get<Fleet>(fleet);
}

StoryPlayer::StoryPlayer(Machine& machine, const QList<StoryEvent>& story, double speed,
                         QObject* parent)
    : QObject(parent)
    , m_machine(machine)
    , m_story(story)
    , m_speed(speed)
{
    constexpr std::chrono::milliseconds tick(10);
    m_clock.setInterval(tick);
    m_clock.setTimerType(Qt::PreciseTimer);
    connect(&m_clock, &QTimer::timeout, this, &StoryPlayer::goOn);
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
    m_begin = std::chrono::steady_clock::now();
    m_machine.driveTime();
    m_clock.start();
}

void StoryPlayer::goOn()
{
    // From the beginning, not from the tick before: delays do not add up.
    const auto passed = std::chrono::duration_cast<std::chrono::milliseconds>(
        (std::chrono::steady_clock::now() - m_begin) * m_speed);
    while (m_next < m_story.size() && m_story.at(m_next).at <= passed) {
        const StoryEvent& event = m_story.at(m_next++);
        passTo(event.at);
        if (!event.caption.isEmpty())
            Q_EMIT told(event.caption);
        event.happen(m_machine);
        if (m_next == m_story.size())
            Q_EMIT finished();
    }
    passTo(passed);
}

void StoryPlayer::passTo(std::chrono::milliseconds moment)
{
    m_machine.advance(moment - m_now);
    m_now = moment;
}

} // namespace virtualwindows
