// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "catalogue.h"

#include <QtCore/QString>

/// Checks a whole database and reads it. Throws a Failure with all that is wrong.
Catalogue readDatabase(const QString& path);
