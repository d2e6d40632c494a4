// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_source.h"

#include "failure.h"

#include "virtualwindows/fleet.h"

namespace {

using virtualwindows::Fleet;
using virtualwindows::FleetError;
using virtualwindows::RunningFleet;

class VirtualPrinters : public PrinterSource
{
public:
    VirtualPrinters(const Fleet& fleet, double speed)
        : m_fleet(fleet, speed)
    {}

    void start(const std::function<int()>& watchedPrinters) override
    {
        m_fleet.player().setWatchingThreads(watchedPrinters);
        m_fleet.start();
    }

private:
    RunningFleet m_fleet;
};

} // namespace

std::unique_ptr<PrinterSource> PrinterSource::create(const QString& fleetFile, double speed)
{
    try {
        return std::make_unique<VirtualPrinters>(fleetFile.isEmpty()
                                                     ? virtualwindows::builtInFleet()
                                                     : virtualwindows::fleetNamed(fleetFile),
                                                 speed);
    } catch (const FleetError& error) {
        throw Failure(error.message());
    }
}
