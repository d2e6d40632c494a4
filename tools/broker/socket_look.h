// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

/// What libmosquitto does not say of its socket. Each system has its own source file.
namespace socket_look {

/// Writing to a connection that the other side has closed fails from now on, in place of ending the
/// program.
void survivesClosedConnections();

/// Why the connection could not be made, in the system's words; empty if it was made.
struct ConnectionError
{
    QString text{};
    bool isReset = false; ///< it was made, and the other side has ended it
};
ConnectionError connectionError(qintptr socket);

struct Arrived
{
    QByteArray bytes;      ///< the first of those that have arrived; they can be read again
    bool isClosed = false; ///< nothing more will come, and nothing is there
    QString error{};       ///< why it is closed; empty if the other side closed it
};
Arrived arrived(qintptr socket);

} // namespace socket_look
