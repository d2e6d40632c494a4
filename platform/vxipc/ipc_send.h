// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>

class QLocalSocket;

/// Sends what the system accepts at once and leaves the rest to the socket. Meant for a message
/// that no other follows soon: the socket buffers what is written to it until the event loop runs,
/// and waking that takes more system calls than sending the message. The socket reports errors
/// later.
void sendNow(QLocalSocket& socket, const QByteArray& bytes);
