// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtTest/QtTest>

/// The main function of a test that reads names, titles and messages. They are in the language of
/// the system, which must not decide the test, so the test and the programs that it starts run in
/// English.
template <typename Application, typename Test>
int runInEnglish(int argc, char* argv[])
{
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("LANGUAGE", "en");
    const Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
