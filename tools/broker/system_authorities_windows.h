// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>

#include <windows.h>

#include <wincrypt.h>

namespace system_authorities {

/// The certificates of one store that may vouch for servers and are not in the other, as OpenSSL
/// reads them.
QByteArray certificates(HCERTSTORE trusted, HCERTSTORE distrusted);

} // namespace system_authorities
