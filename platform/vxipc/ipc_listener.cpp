// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_listener.h"

#include <QtCore/QLoggingCategory>
#include <QtNetwork/QLocalSocket>

#include <algorithm>

using namespace std::chrono_literals;

Q_DECLARE_LOGGING_CATEGORY(vxIpc)

namespace {

constexpr std::chrono::milliseconds firstPause = 50ms;
constexpr std::chrono::milliseconds longestPause = 1s;

} // namespace

IpcListener::IpcListener(QObject* parent)
    : QObject(parent)
    // A child, so that it moves to another thread with this object.
    , m_pause(this)
    , m_pauseTime(firstPause)
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &IpcListener::acceptWaiting);
}

QLocalSocket* IpcListener::nextClient()
{
    return m_clients.isEmpty() ? nullptr : m_clients.dequeue();
}

IpcListener::Outcome IpcListener::failed(const QString& what, const QString& why)
{
    m_errorString = QStringLiteral("%1: %2").arg(what, why);
    return Outcome::Failed;
}

bool IpcListener::accept(qintptr descriptor)
{
    m_pauseTime = firstPause;
    auto socket = std::make_unique<QLocalSocket>(this);
    if (!socket->setSocketDescriptor(descriptor))
        return false;
    m_clients.enqueue(socket.release());
    return true;
}

void IpcListener::pause(const QString& what, const QString& why)
{
    if (m_pauseTime == firstPause) {
        qCWarning(vxIpc, "%s cannot accept clients for now: %s", qUtf8Printable(what),
                  qUtf8Printable(why));
    }
    m_pause.start(m_pauseTime);
    m_pauseTime = std::min(2 * m_pauseTime, longestPause);
}
