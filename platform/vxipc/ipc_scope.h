// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Where the endpoints of the user who runs this process are found: names are the user's own, other
/// users' endpoints of the same name are elsewhere.
namespace ipc_scope {

/// The name by which QLocalSocket and QLocalServer find the endpoint `name`.
QString address(const QString& name);

/// Creates what addresses rely on, such as their folder. Empty on success, otherwise the reason why
/// no endpoint can be published.
QString prepare();

/// Why the endpoint `name`, or any endpoint when no name is given, may belong to another user.
/// Empty when it can be trusted or does not exist.
QString distrust(const QString& name = {});

/// Add a published name to names(), and remove it.
void announce(const QString& name);
void withdraw(const QString& name);

/// The names that begin with `prefix` and may be reachable; some may belong to dead processes.
QStringList names(const QString& prefix);

} // namespace ipc_scope
