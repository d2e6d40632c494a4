// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtTest/QtTest>

/// How long a test waits for something that must happen, in milliseconds. The limit is there for
/// things that never happen; on a busy machine, those that do may take long.
inline constexpr int patience = 60000;

// Qt's default limit of five seconds is too short for a busy machine.
#undef QTRY_VERIFY
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, patience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, patience)
