// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "virtualwindows/fleet.h"

#include "message_text.h"

#include <QtCore/QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace {

using virtualwindows::Fleet;
using virtualwindows::FleetError;
using virtualwindows::RunningFleet;

double speedOf(const QString& text)
{
    if (text.isEmpty())
        return 1;
    bool readable = false;
    const double speed = text.toDouble(&readable);
    if (!readable || !(speed > 0 && speed <= 1000))
        throw FleetError(
            QStringLiteral(
                "VX_VIRTUAL_SPEED: expected a number above 0 and up to 1000, found \"%1\"")
                .arg(virtualwindows::escaped(virtualwindows::shortened(text))));
    return speed;
}

/// The fleet of a program, which lives as long as its application.
class EnvironmentFleet : public QObject
{
public:
    EnvironmentFleet(const Fleet& fleet, double speed, QObject* parent)
        : QObject(parent)
        , m_fleet(fleet, speed)
    {
        // The story starts with the event loop, when the program is ready for it.
        QMetaObject::invokeMethod(
            this, [this] { m_fleet.start(); }, Qt::QueuedConnection);
    }

private:
    RunningFleet m_fleet;
};

} // namespace

/// Fills the machine with the fleet that the environment names, and plays its story. Ends the
/// program when the fleet cannot be used: nothing in it could handle the failure.
extern "C" Q_DECL_EXPORT void virtualwindowsLoadFleetFromEnvironment()
{
    try {
        const Fleet fleet = virtualwindows::fleetNamed(qEnvironmentVariable("VX_VIRTUAL_FLEET"));
        const double speed = speedOf(qEnvironmentVariable("VX_VIRTUAL_SPEED"));
        new EnvironmentFleet(fleet, speed, QCoreApplication::instance());
    } catch (const FleetError& error) {
        std::fprintf(stderr, "virtualwindows: %s\n", error.what());
        std::exit(EXIT_FAILURE);
    }
}
