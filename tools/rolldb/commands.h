// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "failure.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Carries out a command line, whose first argument is the program, and returns what it prints.
/// Throws a Failure.
QString rolldbAnswer(const QStringList& arguments);
