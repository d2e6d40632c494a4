// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QCoreApplication>

/// Creates the application object that Qt needs, at the first input. It lives until the process
/// ends.
inline void ensureCoreApplication()
{
    static int argc = 1;
    static char name[] = "fuzzer";
    static char* argv[] = {name, nullptr};
    static const QCoreApplication application(argc, argv);
}
