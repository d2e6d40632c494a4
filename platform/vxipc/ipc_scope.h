// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Where the endpoints of the user who runs this process are found: names are the user's own, other
/// users' endpoints of the same name are elsewhere.
namespace IpcScope {

/// What QLocalSocket and QLocalServer know the endpoint `name` by.
QString address(const QString& name);

/// Makes what addresses stand on. Empty when that succeeded, else why no endpoint can be published.
QString prepare();

/// Why the endpoint `name`, or without one any endpoint, may be somebody else's although it is
/// where the user's own is expected. Empty where nothing speaks against it, also where nothing is.
QString distrust(const QString& name = {});

/// Makes a published name one of names(), and ends that.
void announce(const QString& name);
void withdraw(const QString& name);

/// The names that begin with `prefix` and may be reachable; some may belong to dead processes.
QStringList names(const QString& prefix);

} // namespace IpcScope
