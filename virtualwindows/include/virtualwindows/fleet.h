// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "machine.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>
#include <functional>
#include <optional>
#include <variant>

namespace virtualwindows {

/// A printer of a fleet with the values that its driver publishes from the beginning.
struct FleetPrinter
{
    PrinterSetup setup;
    QList<PrinterValue> values;
};

/// A moment of a fleet's story.
struct StoryEvent
{
    std::chrono::milliseconds at{}; ///< since the story's beginning
    QString caption;                ///< what happens, for people; may be empty
    std::function<void(Machine&)> happen;
};

/// What a virtual machine is filled with, and what happens to it in the course of time.
struct Fleet
{
    QList<FleetPrinter> printers;
    QString defaultPrinter; ///< null: there is none
    QList<DeviceSetup> devices;
    QList<StoryEvent> story; ///< in order of time
};

/// Why a fleet file was refused, in one line: file, line, what is wrong and what was expected.
struct FleetError
{
    QString message;
};

/// Reads a fleet file; the format is described in docs/virtual-printers.md. Nothing of a file that
/// is wrong anywhere is used.
std::variant<Fleet, FleetError> readFleet(const QString& fileName);

/// The same from the text itself; `name` stands for the file in error messages.
std::variant<Fleet, FleetError> parseFleet(const QByteArray& text, const QString& name);

/// Six printers of all four models and a story of two minutes.
Fleet builtInFleet();
/// The built-in fleet's file, to start one's own from.
QByteArray builtInFleetText();

/// Adds a fleet's printers, values and devices to the machine.
void populate(Machine& machine, const Fleet& fleet);

/// Lets a story happen in real time, or faster.
///
/// From its start to its end of life the player drives the machine's time, so that waits and their
/// time-outs pass at the same speed as the story, also after the last event.
///
/// With an audience nothing is missed, however fast the story is told and however busy the computer
/// is: each event, and each time-out that comes before it, happens when all threads that watch have
/// seen the one before and wait again, and what they then queued for the player's thread has been
/// delivered. A story that is held up like this catches up afterwards.
class StoryPlayer : public QObject
{
    Q_OBJECT

public:
    /// `speed` 8 tells a story of two minutes in 15 seconds.
    StoryPlayer(Machine& machine, const QList<StoryEvent>& story, double speed,
                QObject* parent = nullptr);
    ~StoryPlayer() override;
    Q_DISABLE_COPY_MOVE(StoryPlayer)

    /// `audience` answers how many threads watch the machine at that moment.
    void setAudience(const std::function<int()>& audience) { m_audience = audience; }
    void start();

Q_SIGNALS:
    /// Right before the event happens.
    void told(const QString& caption);
    /// Right after the event has happened.
    void happened();
    /// After the last event has happened.
    void finished();

private:
    using Clock = std::chrono::steady_clock;

    bool isAudienceReady();
    void tick();
    void goOn();
    void passTo(std::chrono::milliseconds moment);

    Machine& m_machine;
    QList<StoryEvent> m_story;
    double m_speed;
    std::function<int()> m_audience = [] {
        return 0;
    };
    std::optional<Clock::time_point> m_waitingSince; ///< for the audience
    qsizetype m_next = 0;
    std::chrono::milliseconds m_now{};
    Clock::time_point m_begin;
    QTimer m_clock;
};

} // namespace virtualwindows
