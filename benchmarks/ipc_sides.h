// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <memory>
#include <vector>

/// The ways to call another process that are compared.
namespace ipc_sides {

/// The one call that all sides make: the name of a supply's colour.
struct Call
{
    QString sku;
    QString printer;
    QString answer;
    /// Request and answer as lines of JSON-RPC 2.0.
    QByteArray requestLine;
    QByteArray answerLine;
};

/// A number of connected clients of a server in another process.
class Clients
{
public:
    virtual ~Clients() = default;

    /// Makes one call from the first client and waits for it. False when the answer is wrong.
    virtual bool callAndWait() = 0;

    /// Has the first `clients` make `calls` calls in all, each with `inFlight` of them in flight,
    /// from an event loop. False when an answer is wrong or a connection breaks.
    virtual bool callTogether(int clients, int inFlight, int calls) = 0;
};

/// One side: what a process serves, and its clients.
struct Side
{
    const char* name;
    /// Creates what answers calls; it lives as long as the server's process.
    std::shared_ptr<void> (*serve)(const QString& address, const Call& call);
    /// Null when there is no server.
    std::unique_ptr<Clients> (*connect)(const QString& address, const Call& call, int count);
};

/// What the library is compared with besides the floor; empty where Qt Remote Objects is missing.
std::vector<Side> remoteObjects();

} // namespace ipc_sides
