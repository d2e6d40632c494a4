// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// The title of a status code in the application's language. The codes that hosts show most have
/// titles here; all others have those of the status-messages library. Never empty.
QString statusTitle(int statusCode);
