// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <memory>

class QTemporaryFile;

/// The authorities that the system trusts to sign certificates.
namespace system_authorities {

/// Writes their certificates to a file for OpenSSL, which exists as long as the result. Null with a
/// reason if that is not possible, and without one where OpenSSL finds them itself. Each system has
/// its own source file.
std::unique_ptr<QTemporaryFile> write(QString* reason);

} // namespace system_authorities
