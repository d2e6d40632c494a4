// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <chrono>

class QLocalSocket;

/// Connects `socket` to the user's own endpoint `name`, which takes `limit` at most. A socket that
/// is not connected then has not been: the text says why where there is more to say than that
/// nobody answers.
QString connectToEndpoint(QLocalSocket& socket, const QString& name,
                          std::chrono::milliseconds limit);
