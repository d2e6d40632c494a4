// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "metrics_server.h"

#include "descriptor_limit.h"
#include "failure.h"

#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto clockInterval = 250ms;
/// How long a client that goes on sending may take to read why its request was refused.
constexpr auto refusalTime = 1s;
constexpr qint64 thrownAwayAtOnce = 16384;
constexpr auto pauseAfterFailedAccept = 100ms;
/// So many clients may wait until they are accepted. The system's own limit is often lower.
constexpr int backlog = 4096;
/// After so many, everything else has its turn.
constexpr int acceptedInATurn = 32;

constexpr const char* path = "/metrics";

struct RequestLine
{
    QByteArray method;
    QByteArray path;
    QByteArray version;
};

/// Empty for what is no HTTP.
std::optional<RequestLine> parseRequestLine(const QByteArray& line)
{
    const QList<QByteArray> words = line.split(' ');
    if (words.size() != 3 || words.at(0).isEmpty() || !words.at(2).startsWith("HTTP/"))
        return {};
    QByteArray target = words.at(1);
    // A client may name the whole address, as it would to a proxy.
    constexpr QByteArrayView scheme = "http://";
    if (target.startsWith(scheme)) {
        const qsizetype slash = target.indexOf('/', scheme.size());
        target = slash < 0 ? QByteArrayLiteral("/") : target.sliced(slash);
    }
    if (!target.startsWith('/'))
        return {};
    const qsizetype query = target.indexOf('?');
    return RequestLine{words.at(0), query < 0 ? target : target.first(query), words.at(2)};
}

/// The values of a header, joined by commas.
QByteArray headerValue(const QList<QByteArray>& lines, const QByteArray& name)
{
    QByteArrayList values;
    for (const QByteArray& line : lines) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.first(colon).compare(name, Qt::CaseInsensitive) == 0)
            values.append(line.sliced(colon + 1).trimmed());
    }
    return values.join(',');
}

/// Where the head of a request ends, with the empty line; -1 when it has not been received yet.
qsizetype headSize(const QByteArray& received)
{
    for (qsizetype end = received.indexOf('\n'); end >= 0; end = received.indexOf('\n', end + 1)) {
        const QByteArrayView rest = QByteArrayView(received).sliced(end + 1);
        if (rest.startsWith('\n'))
            return end + 2;
        if (rest.startsWith("\r\n"))
            return end + 3;
    }
    return -1;
}

} // namespace

class MetricsServer::Listener : public QTcpServer
{
public:
    explicit Listener(MetricsServer& server)
        : m_server(server)
    {
        setListenBacklogSize(backlog);
        // Accepting ends when it fails once, such as for want of a file descriptor.
        connect(this, &QTcpServer::acceptError, this, [this] {
            QTimer::singleShot(pauseAfterFailedAccept, this, &QTcpServer::resumeAccepting);
        });
    }

protected:
    void incomingConnection(qintptr descriptor) override
    {
        m_server.take(descriptor);
        if (++m_accepted < acceptedInATurn)
            return;
        // Otherwise it would go on for as long as clients come, and nothing else would happen.
        setMaxPendingConnections(0);
        QTimer::singleShot(0, this, [this] {
            m_accepted = 0;
            setMaxPendingConnections(1);
            resumeAccepting();
        });
    }

private:
    MetricsServer& m_server;
    int m_accepted = 0;
};

struct MetricsServer::Connection
{
    enum class Phase
    {
        Request, ///< the request has not been received completely
        Answer,
        Refusal, ///< what the client still sends is thrown away until it has read the answer
    };

    /// Deletes a socket also while it emits a signal.
    struct Later
    {
        void operator()(QTcpSocket* socket) const
        {
            socket->disconnect();
            socket->abort();
            socket->deleteLater();
        }
    };

    std::unique_ptr<QTcpSocket, Later> socket;
    Phase phase = Phase::Request;
    Time until{};
    QByteArray received{};
};

MetricsServer::MetricsServer(std::function<QByteArray(Format)> makeText, Limits limits,
                             QObject* parent)
    : QObject(parent)
    , m_makeText(std::move(makeText))
    , m_limits(limits)
{
    m_limits.connections = connectionsAllowed(m_limits.connections);
    m_clock.setInterval(clockInterval);
    connect(&m_clock, &QTimer::timeout, this, &MetricsServer::endLate);
}

MetricsServer::~MetricsServer() = default;

void MetricsServer::listen(const QHostAddress& address, quint16 port)
{
    auto listener = std::make_unique<Listener>(*this);
    if (!listener->listen(address, port))
        throw Failure(listener->errorString());
    m_listener = std::move(listener);
}

quint16 MetricsServer::port() const
{
    return m_listener ? m_listener->serverPort() : quint16(0);
}

void MetricsServer::take(qintptr descriptor)
{
    if (connectionCount() >= m_limits.connections)
        end(m_connections.begin()->first);

    const quint64 number = m_nextNumber++;
    std::unique_ptr<QTcpSocket, Connection::Later> socket(new QTcpSocket);
    if (!socket->setSocketDescriptor(descriptor))
        return;
    socket->setReadBufferSize(m_limits.requestBytes);
    connect(socket.get(), &QTcpSocket::readyRead, this, [this, number] { onReadyRead(number); });
    connect(socket.get(), &QTcpSocket::bytesWritten, this,
            [this, number] { onBytesWritten(number); });
    connect(socket.get(), &QTcpSocket::disconnected, this, [this, number] { end(number); });
    QTcpSocket& accepted = *socket;
    m_connections[number] = std::make_unique<Connection>(
        Connection{.socket = std::move(socket), .until = Clock::now() + m_limits.requestTime});
    if (!m_clock.isActive())
        m_clock.start();
    // The request has usually been sent already. It is read before the next client is accepted,
    // which might take this one's place.
    accepted.waitForReadyRead(0);
}

void MetricsServer::onReadyRead(quint64 number)
{
    const auto found = m_connections.find(number);
    if (found == m_connections.end())
        return;
    Connection& connection = *found->second;
    if (connection.phase != Connection::Phase::Request) {
        connection.socket->skip(connection.socket->bytesAvailable());
        return;
    }
    connection.received +=
        connection.socket->read(m_limits.requestBytes - connection.received.size());
    const qsizetype size = headSize(connection.received);
    if (size >= 0) {
        Answer answer = answerTo(connection.received.first(size));
        answer.isAllReceived = answer.isAllReceived && size == connection.received.size();
        send(connection, answer);
    } else if (connection.received.size() >= m_limits.requestBytes) {
        send(connection, {.status = "431 Request Header Fields Too Large", .isAllReceived = false});
    }
}

MetricsServer::Answer MetricsServer::answerTo(const QByteArray& head)
{
    QList<QByteArray> lines = head.split('\n');
    for (QByteArray& line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
    }
    const std::optional<RequestLine> request = parseRequestLine(lines.takeFirst());
    if (!request)
        return {.status = "400 Bad Request"};
    if (request->version != "HTTP/1.0" && request->version != "HTTP/1.1")
        return {.status = "505 HTTP Version Not Supported"};
    if (request->path != path)
        return {.status = "404 Not Found", .body = "The metrics are at /metrics.\n"};
    const bool isHead = request->method == "HEAD";
    if (!isHead && request->method != "GET")
        return {.status = "405 Method Not Allowed",
                .furtherHeaders = "Allow: GET, HEAD\r\n",
                .isAllReceived = false};
    const Format format = metrics_text::acceptedFormat(headerValue(lines, "Accept"));
    return {.status = "200 OK",
            .type = metrics_text::contentType(format),
            .furtherHeaders = "Vary: Accept\r\n",
            .body = text(format),
            .isBodySent = !isHead};
}

void MetricsServer::send(Connection& connection, const Answer& answer)
{
    using Phase = Connection::Phase;
    connection.received.clear();
    // The system throws the answer away when a socket is closed that has still something to read.
    connection.phase = answer.isAllReceived ? Phase::Answer : Phase::Refusal;
    connection.until = Clock::now() + (answer.isAllReceived ? m_limits.answerTime : refusalTime);
    QTcpSocket& socket = *connection.socket;
    socket.write("HTTP/1.1 " + answer.status + "\r\nContent-Type: " + answer.type +
                 "\r\nContent-Length: " + QByteArray::number(answer.body.size()) +
                 "\r\nConnection: close\r\nCache-Control: no-store\r\n"
                 "X-Content-Type-Options: nosniff\r\n" +
                 answer.furtherHeaders + "\r\n");
    // Separately, so that all connections share the bytes of one text.
    if (answer.isBodySent)
        socket.write(answer.body);
    if (!answer.isAllReceived) {
        socket.setReadBufferSize(thrownAwayAtOnce);
        socket.skip(socket.bytesAvailable());
    }
    // A small answer is on its way with this, and the connection is free for others.
    socket.flush();
}

void MetricsServer::onBytesWritten(quint64 number)
{
    const auto found = m_connections.find(number);
    if (found == m_connections.end())
        return;
    Connection& connection = *found->second;
    if (connection.phase == Connection::Phase::Answer && connection.socket->bytesToWrite() == 0)
        connection.socket->disconnectFromHost();
}

void MetricsServer::end(quint64 number)
{
    m_connections.erase(number);
    if (m_connections.empty())
        m_clock.stop();
}

void MetricsServer::endLate()
{
    const Time now = Clock::now();
    std::vector<quint64> late;
    for (const auto& [number, connection] : m_connections) {
        if (connection->until <= now)
            late.push_back(number);
    }
    for (const quint64 number : late) {
        const auto found = m_connections.find(number);
        if (found == m_connections.end())
            continue;
        Connection& connection = *found->second;
        if (connection.phase == Connection::Phase::Request && !connection.received.isEmpty())
            send(connection, {.status = "408 Request Timeout"});
        else
            end(number);
    }
}

QByteArray MetricsServer::text(Format format)
{
    std::optional<Text>& kept = m_texts.at(static_cast<std::size_t>(format));
    const Time now = Clock::now();
    if (!kept || now - kept->made >= m_limits.textTime)
        kept = Text{m_makeText(format), now};
    return kept->bytes;
}
