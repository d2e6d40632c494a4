// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QString>

/// Printers that the agent's account cannot see. Each system has its own source file.
namespace hidden_printers {

struct Connection
{
    QString printer;
    QString user;
};

/// Connections to printers that belong to single users who are logged on, other than the agent's
/// account. Empty on systems where all users see the same printers.
QList<Connection> ofOtherUsers();

} // namespace hidden_printers
