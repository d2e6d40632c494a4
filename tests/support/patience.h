// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtTest/QtTest>

/// How long a test waits for what has to happen, in milliseconds. It ends a wait for what will
/// never come; on a machine that is busy, what comes may take long.
inline constexpr int patience = 60000;

// Qt's own limit of five seconds is too short for that.
#undef QTRY_VERIFY
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, patience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, patience)
