// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// Why a call has no result.
struct VXIPCError
{
    /// Codes of this client, beside those that the endpoint answers (JSON-RPC 2.0's own, -32700 to
    /// -32600, and -32000 to -32099).
    enum Code : int
    {
        /// No endpoint answers under the name. The call was not made.
        NotReachable = 1,
        /// The connection broke. Whether the call was made is not known.
        ConnectionLost = 2,
        /// No answer came in time. The call may still be made.
        TimedOut = 3,
        /// The response is not JSON-RPC 2.0.
        BadAnswer = 4,
    };

    int code = 0;
    /// One line for people, in English.
    QString message;
    /// What the endpoint added: for invalid parameters an object with `argument` and `expected`.
    QJsonValue data;
};

/// The outcome of a call.
struct VXIPCReply
{
    /// Null for a method without a result, and on an error.
    QJsonValue result;
    std::optional<VXIPCError> error;

    bool isOk() const { return !error; }
};

/// Calls the methods of an endpoint in another process, or in this one.
///
/// @code
/// using namespace std::chrono_literals;
/// VXIPCClient supplies(0);
/// const VXIPCReply reply =
///     supplies.callAndWait("supplyColorName", QJsonArray{"SKU", "PRINTER"}, 2s);
/// if (reply.isOk())
///     qInfo() << reply.result.toString();
/// supplies.call("supplySKUList", {}, [](const VXIPCReply& skus) { … });
/// @endcode
///
/// Parameters are a QJsonArray, by position, or a QJsonObject, by name; docs/ipc.md says how each
/// type is written. A client connects with its first call. When the connection is lost, it
/// reconnects by itself, at growing intervals; a call tries to reconnect at once.
///
/// A client that subscribes receives what the endpoint's signals emit:
///
/// @code
/// connect(&status, &VXIPCClient::notificationReceived, this, &Table::update);
/// connect(&status, &VXIPCClient::resubscribed, this, &Table::askForAll);
/// status.subscribe({"printerChanged", "printerAdded"},
///                  [this](const VXIPCReply&) { askForAll(); });
/// @endcode
///
/// Whoever subscribes first and then asks for the state misses nothing: the state is that of the
/// answer, and every change after it is notified. What is emitted while the client is not connected
/// is lost; resubscribed() says when to ask again.
///
/// Lives in one thread, which the blocking form blocks; the other forms need its event loop.
class VXIPCClient : public QObject
{
    Q_OBJECT

public:
    using Callback = std::function<void(const VXIPCReply&)>;

    /// For the endpoint of a service: 0 the supply database, 1 the printer controller, 2 the print
    /// queue, 3 the status of the printers.
    explicit VXIPCClient(int serverType, QObject* parent = nullptr);
    /// For the endpoint of that name, as VXIPCServer::serverName() and runningServers() give it.
    explicit VXIPCClient(QString serverName, QObject* parent = nullptr);
    ~VXIPCClient() override;
    Q_DISABLE_COPY_MOVE(VXIPCClient)

    QString serverName() const;
    bool isConnected() const;

    /// How long a call waits for its answer, 30 s unless set. Applies to later calls.
    void setTimeout(std::chrono::milliseconds timeout);
    std::chrono::milliseconds timeout() const;

    /// Connects unless it is connected. False when no endpoint of this user answers under the name;
    /// endpoints of other users do not count.
    bool connectToServer();
    /// Closes the connection and stops reconnecting. Calls in flight end with ConnectionLost.
    void disconnectFromServer();

    /// Makes a call and returns. `done` is called with the outcome later, exactly once and never
    /// from within this function; not at all if the client is destroyed before. It may make calls,
    /// wait for them, run an event loop and destroy the client.
    void call(const QString& method, const QJsonValue& parameters, Callback done);

    /// Makes a call and waits for its outcome, up to timeout() or the time given. The outcomes of
    /// other calls are delivered later, from the event loop.
    VXIPCReply callAndWait(const QString& method, const QJsonValue& parameters = {});
    VXIPCReply callAndWait(const QString& method, const QJsonValue& parameters,
                           std::chrono::milliseconds timeout);

    /// Sends a notification, a call without an answer. False when no endpoint answers under the
    /// name.
    bool notify(const QString& method, const QJsonValue& parameters = {});

    /// Subscribes to signals of the endpoint, in addition to those before. Their emissions lead to
    /// notificationReceived() from then on. `done` is called with the outcome as call() does it;
    /// the result is the list of all signals that this client has subscribed to.
    ///
    /// The client remembers the names and subscribes again whenever it has connected again, also
    /// when no endpoint answers yet. It forgets the names that this call adds if the endpoint
    /// refuses them.
    void subscribe(const QStringList& signalNames, Callback done = {});
    /// Ends subscriptions. Notifications that have arrived before are still delivered. Does not
    /// connect.
    void unsubscribe(const QStringList& signalNames, Callback done = {});
    /// The names that the client subscribes to.
    QStringList subscriptions() const;

    /// The names of the user's endpoints that answer now.
    static QStringList runningServers();
    /// Why endpoints are not trusted: other users may have put theirs where the user's are
    /// expected. Empty when they are trusted.
    static QString distrust();
    /// Where the endpoint of that name listens: a socket's path, a pipe's name on Windows.
    static QString address(const QString& serverName);

Q_SIGNALS:
    void connected();
    /// The connection has ended. The calls in flight get their outcomes after this.
    void disconnected();
    /// The endpoint has emitted a signal that this client has subscribed to. `arguments` has them
    /// by their names, as docs/ipc.md says how each type is written.
    ///
    /// Notifications and the outcomes of call() are delivered in the order in which they arrived,
    /// from the event loop of the client's thread; those that arrive during callAndWait() after it.
    void notificationReceived(const QString& signalName, const QJsonObject& arguments);
    /// The subscriptions hold again, after a reconnect or because the endpoint could not be reached
    /// before. Emissions in between were missed, so this is the time to ask for the state. Emitted
    /// before the first notification of the new connection.
    void resubscribed();
    /// The endpoint that the client has connected to does not have the signals any more: none of
    /// the subscriptions holds. `reason` is one line for people. The client tries again at the next
    /// connection.
    void subscriptionLost(const QString& reason);

private:
    class Private;
    std::unique_ptr<Private> d;
};
