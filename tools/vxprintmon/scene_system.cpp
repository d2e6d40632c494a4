// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "scene.h"

#include <QtCore/QTimer>

namespace {

/// A program with a window is told by Windows of devices that come; this one looks for itself.
class SystemScene : public Scene
{
public:
    SystemScene() { connect(&m_clock, &QTimer::timeout, this, &Scene::printersMayHaveCome); }

    void begin(const std::function<int()>& /*audience*/) override
    {
        m_clock.start(std::chrono::seconds(5));
    }
    std::optional<Job> lastJob(const QString& /*printer*/) const override { return std::nullopt; }

private:
    QTimer m_clock;
};

} // namespace

std::variant<std::unique_ptr<Scene>, Scene::Failure> Scene::make(const CommandLine& line)
{
    if (!line.fleetFile.isEmpty())
        return Failure{
            QStringLiteral("--virtual: this build runs on the system's own print spooler"), 2};
    return std::make_unique<SystemScene>();
}
