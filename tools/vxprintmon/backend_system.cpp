// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"

#include "failure.h"
#include "tool_text.h"

#include <printer_discovery.h>

#include <QtCore/QTimer>

namespace {

class SystemBackend : public Backend
{
public:
    SystemBackend()
    {
        m_secondLook.setSingleShot(true);
        connect(&m_secondLook, &QTimer::timeout, this, &Backend::printersMayHaveChanged);
    }

    void start(const std::function<int()>& /*watchedPrinters*/) override
    {
        using VxKit::PrinterDiscovery;
        // Without a controller: the commands tell their own one to look for printers.
        m_discovery.emplace(nullptr);
        connect(&*m_discovery, &PrinterDiscovery::printersChanged, this, &SystemBackend::look);
        connect(&*m_discovery, &PrinterDiscovery::defaultPrinterChanged, this,
                &SystemBackend::look);
    }
    std::optional<Job> lastJob(const QString& /*printer*/) const override { return std::nullopt; }

private:
    /// The commands list the printers a moment after discovery. A printer that is added in that
    /// moment and removed before discovery lists again would stay on the screen, so the commands
    /// list them once more when discovery has listed them again.
    void look()
    {
        constexpr auto longerThanBetweenListings = std::chrono::seconds(6);
        Q_EMIT printersMayHaveChanged();
        m_secondLook.start(longerThanBetweenListings);
    }

    std::optional<VxKit::PrinterDiscovery> m_discovery;
    QTimer m_secondLook;
};

} // namespace

std::unique_ptr<Backend> Backend::create(const CommandLine& line,
                                         const QString& /*fleetOfEnvironment*/)
{
    if (!line.fleetFile.isEmpty())
        throw wrongUsage(ToolText::tr("--virtual: this build uses the system's own print spooler"));
    return std::make_unique<SystemBackend>();
}
