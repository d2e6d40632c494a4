// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"

#include "failure.h"
#include "tool_text.h"

#include <QtCore/QTimer>

namespace {

/// Windows notifies only programs with a window of new devices, so this backend polls for printers.
class SystemBackend : public Backend
{
public:
    SystemBackend() { connect(&m_clock, &QTimer::timeout, this, &Backend::printersMayHaveChanged); }

    void start(const std::function<int()>& /*watchedPrinters*/) override
    {
        m_clock.start(std::chrono::seconds(5));
    }
    std::optional<Job> lastJob(const QString& /*printer*/) const override { return std::nullopt; }

private:
    QTimer m_clock;
};

} // namespace

std::unique_ptr<Backend> Backend::create(const CommandLine& line)
{
    if (!line.fleetFile.isEmpty())
        throw wrongUsage(ToolText::tr("--virtual: this build uses the system's own print spooler"));
    return std::make_unique<SystemBackend>();
}
