// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// The title of a status code in the application's language: a text of our own for the codes that
/// hosts show most, and the status-messages library's for every other one. Never empty.
QString statusTitle(int statusCode);
