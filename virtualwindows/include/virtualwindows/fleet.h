// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "machine.h"

#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>

#include <chrono>
#include <exception>
#include <functional>
#include <optional>

namespace virtualwindows {

/// A printer of a fleet with the values that its driver publishes from the beginning.
struct FleetPrinter
{
    PrinterSetup setup;
    QList<PrinterValue> values;
    QList<JobSetup> jobs{}; ///< in its queue
};

/// One event of a fleet's story.
struct StoryEvent
{
    std::chrono::milliseconds at{}; ///< since the start of the story
    QString caption;                ///< describes the event to people; may be empty
    std::function<void(Machine&)> happen;
};

/// A row of a supply database.
struct CatalogueRow
{
    int line = 0; ///< of the file that it was read from
    QString table;
    QMap<QString, QVariant> columns; ///< by name
};

/// The printers and devices of a virtual machine, and a story of how they change over time.
struct Fleet
{
    QList<FleetPrinter> printers;
    QString defaultPrinter; ///< null: no default printer
    QList<DeviceSetup> devices;
    quint32 spoolerState = 4; ///< SERVICE_*
    /// What else has to happen before anybody uses the machine.
    QList<std::function<void(Machine&)>> preparations;
    QList<StoryEvent> story; ///< in chronological order
    /// The rows of the supply database that its supplies and ribbons need. Null: it has none.
    std::optional<QList<CatalogueRow>> catalogue;
};

/// Why a fleet cannot be used, in one line that is safe to print: the file, the line, what is wrong
/// and what was expected.
class FleetError : public std::exception
{
public:
    explicit FleetError(const QString& message)
        : m_message(message)
        , m_utf8(message.toUtf8())
    {}

    QString message() const { return m_message; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};

/// Reads a fleet file in the format of docs/virtual-printers.md, or a case file, whose name ends in
/// .vxcase. Throws FleetError at the first mistake in the file.
Fleet readFleet(const QString& fileName);

/// The same for the text of a file. Error messages call the file `name`.
Fleet parseFleet(const QByteArray& text, const QString& name);

/// The built-in fleet if the name is "built-in", otherwise what readFleet() reads.
Fleet fleetNamed(const QString& name);

/// Six printers of all four models, with a story of two minutes.
Fleet builtInFleet();
/// The text of the built-in fleet's file, as a start for a fleet of your own.
QByteArray builtInFleetText();

/// Adds a fleet's printers, values and devices to the machine.
void populate(Machine& machine, const Fleet& fleet);

/// Plays a story in real time, or faster.
///
/// From start() until it is destroyed, the player drives the machine's time, so that waits and
/// their time-outs run at the speed of the story, even after the last event.
///
/// If the player knows how many threads are watching the machine, they miss nothing, however fast
/// the story and however busy the computer is. Each event, and each time-out before it, happens
/// only after every watching thread has seen the previous one and waits again, and after the calls
/// that it queued for the player's thread have been delivered. A story that was held up this way
/// catches up afterwards.
class StoryPlayer : public QObject
{
    Q_OBJECT

public:
    /// `speed` 8 plays a story of two minutes in 15 seconds.
    StoryPlayer(Machine& machine, const QList<StoryEvent>& story, double speed,
                QObject* parent = nullptr);
    ~StoryPlayer() override;
    Q_DISABLE_COPY_MOVE(StoryPlayer)

    /// `watchingThreads` returns how many threads are watching the machine at that moment.
    void setWatchingThreads(const std::function<int()>& watchingThreads)
    {
        m_watchingThreads = watchingThreads;
    }
    void start();

Q_SIGNALS:
    /// Announces an event, right before it happens.
    void narrated(const QString& caption);
    /// An event has just happened.
    void happened();
    /// The last event has happened.
    void finished();

private:
    using Clock = std::chrono::steady_clock;

    bool areWatchersReady();
    void tick();
    void proceed();
    void advanceTo(std::chrono::milliseconds moment);

    Machine& m_machine;
    QList<StoryEvent> m_story;
    double m_speed;
    std::function<int()> m_watchingThreads = [] {
        return 0;
    };
    std::optional<Clock::time_point> m_waitingSince; ///< for the watching threads
    qsizetype m_next = 0;
    std::chrono::milliseconds m_now{};
    Clock::time_point m_begin;
    QTimer m_clock;
};

/// A fleet on the machine of this process, for a program that people run: populated, with its story
/// ready to start.
///
/// As long as it lives, the serial numbers of virtual printers stay out of the user's own settings.
class RunningFleet
{
public:
    RunningFleet(const Fleet& fleet, double speed);

    StoryPlayer& player() { return m_player; }
    /// Starts the story, if there is one.
    void start();

private:
    QTemporaryDir m_settings;
    StoryPlayer m_player;
    bool m_hasStory;
};

} // namespace virtualwindows
