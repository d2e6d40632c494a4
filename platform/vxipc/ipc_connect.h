// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <chrono>

class QLocalSocket;

/// Connects `socket` to the user's own endpoint `name`, within `limit`. If the socket is not
/// connected afterwards, the returned text says why, unless simply no endpoint answers.
QString connectToEndpoint(QLocalSocket& socket, const QString& name,
                          std::chrono::milliseconds limit);
