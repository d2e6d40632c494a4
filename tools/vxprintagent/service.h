// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <functional>

class AgentHost;
class AgentLog;

/// The agent as a service of the system. Each system has its own source file.
namespace service {

/// Installs the agent as a service that runs with a configuration, which is read to see whether it
/// is right. What is unwise is written to `log`. Throws a `Failure` if the service cannot be
/// installed or this system has no such services.
void install(const QString& configFile, AgentLog& log);

/// Stops the service if it runs, and removes it.
void uninstall();

/// Does the work of the service in the process that the service manager has started. `work` runs on
/// the calling thread, which has the event loop; a `Failure` that it throws goes to the system's
/// log. Throws a `Failure` if the service manager has not started this process.
void run(const std::function<void(AgentHost&)>& work);

} // namespace service
