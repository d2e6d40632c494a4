// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <optional>

/// Files with passwords and private keys.
namespace secret_file {

/// Why the file must not be used: it cannot be read, or others than its owner and the
/// administrators of the computer may read or change it. Empty if it may be used. Each system has
/// its own source file.
QString objection(const QString& path);

/// The first line of a file, without its end: a password. Empty, with the reason in `*reason`, if
/// the file must not be used, is longer than any password, or has no text. The reason does not
/// quote it.
std::optional<QByteArray> password(const QString& path, QString* reason);

} // namespace secret_file
