// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The exit status of a tool that succeeds, fails or throws.
#include <failure.h>
#include <standard_output.h>

#include <QtTest/QtTest>

#include <stdexcept>

class FailureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void successHasExitStatus0();
    void failureHasExitStatus1();
    void wrongUsageHasExitStatus2();
    void exceptionOfTheLibraryIsAFailure();

private:
    StandardOutput m_output{"tst_failure"};
};

void FailureTest::successHasExitStatus0()
{
    QCOMPARE(runTool(m_output, [] {}), 0);
}

void FailureTest::failureHasExitStatus1()
{
    QCOMPARE(runTool(m_output, [] { throw Failure(QStringLiteral("the printer is gone")); }), 1);
}

void FailureTest::wrongUsageHasExitStatus2()
{
    QCOMPARE(runTool(m_output,
                     [] { throw Failure(QStringLiteral("no printer"), ExitStatus::WrongUsage); }),
             2);
}

void FailureTest::exceptionOfTheLibraryIsAFailure()
{
    QCOMPARE(runTool(m_output, [] { throw std::invalid_argument("a printer without a name"); }), 1);
}

QTEST_GUILESS_MAIN(FailureTest)
#include "tst_failure.moc"
