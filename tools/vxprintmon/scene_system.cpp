// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "scene.h"

namespace {

class SystemScene : public Scene
{
};

} // namespace

std::variant<std::unique_ptr<Scene>, Scene::Failure> Scene::make(const CommandLine& line)
{
    if (!line.fleetFile.isEmpty())
        return Failure{
            QStringLiteral("--virtual: this build runs on the system's own print spooler"), 2};
    return std::make_unique<SystemScene>();
}
