// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>

class QLocalSocket;

/// Sends what the system takes at once and leaves the rest to the socket. For a message that none
/// follows soon: the socket gathers what is written to it until its event loop runs, and waking
/// that takes more system calls than a message alone does. Errors come later, from the socket.
void sendNow(QLocalSocket& socket, const QByteArray& bytes);
