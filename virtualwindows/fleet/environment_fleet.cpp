// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "virtualwindows/fleet.h"

#include "message_text.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

using virtualwindows::Fleet;
using virtualwindows::FleetError;
using virtualwindows::Machine;
using virtualwindows::StoryPlayer;

[[noreturn]] void refuse(const QString& why)
{
    std::fprintf(stderr, "virtualwindows: %s\n", qUtf8Printable(why));
    std::exit(EXIT_FAILURE);
}

Fleet fleetOf(const QString& name)
{
    if (name == QStringLiteral("built-in"))
        return virtualwindows::builtInFleet();
    const auto fleet = virtualwindows::readFleet(name);
    if (const auto* error = std::get_if<FleetError>(&fleet))
        refuse(error->message);
    return std::get<Fleet>(fleet);
}

double speedOf(const QString& text)
{
    if (text.isEmpty())
        return 1;
    bool readable = false;
    const double speed = text.toDouble(&readable);
    if (!readable || !(speed > 0 && speed <= 1000))
        refuse(QStringLiteral(
                   "VX_VIRTUAL_SPEED: expected a number above 0 and up to 1000, found \"%1\"")
                   .arg(virtualwindows::escaped(virtualwindows::shortened(text))));
    return speed;
}

/// The fleet's life in a program: as long as its application.
class EnvironmentFleet : public QObject
{
public:
    EnvironmentFleet(const Fleet& fleet, double speed, QObject* parent)
        : QObject(parent)
        , m_player(Machine::instance(), fleet.story, speed)
    {
        // The serial numbers of virtual printers have no business among the user's.
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        virtualwindows::populate(Machine::instance(), fleet);
        // The story begins when the program is ready to hear of it.
        if (!fleet.story.isEmpty())
            QMetaObject::invokeMethod(&m_player, &StoryPlayer::start, Qt::QueuedConnection);
    }

private:
    QTemporaryDir m_settings;
    StoryPlayer m_player;
};

} // namespace

/// Fills the machine with the fleet that the environment names and lets its story happen.
extern "C" Q_DECL_EXPORT void virtualwindowsTakeFleetFromEnvironment()
{
    const Fleet fleet = fleetOf(qEnvironmentVariable("VX_VIRTUAL_FLEET"));
    const double speed = speedOf(qEnvironmentVariable("VX_VIRTUAL_SPEED"));
    new EnvironmentFleet(fleet, speed, QCoreApplication::instance());
}
