// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Runs the host in plain C, c_host.c: on a virtual fleet, and on Windows on the system's spooler.
#include "patience.h"
#include "start_process.h"

#include <QtCore/QProcess>
#include <QtTest/QtTest>

#ifdef Q_OS_WIN
#include "fixture.h"
using CHostTestBase = WindowsApiTest;
#else
using CHostTestBase = QObject;
#endif

class CHostTest : public CHostTestBase
{
    Q_OBJECT

private Q_SLOTS:
    void carelessCallersGetErrors();
    void aPrinterIsReadAndWatched();
    void sessionsNeedNotBeStopped();
    void nothingOfTheProcessIsChanged();

private:
    /// Runs the host until it ends. Its output is printed when it does not end with 0.
    [[nodiscard]] static bool run(const QStringList& arguments);
};

bool CHostTest::run(const QStringList& arguments)
{
    const QString program = QStringLiteral(VX_C_HOST);
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("VX_VIRTUAL_FLEET"), QStringLiteral("built-in"));
    variables.insert(QStringLiteral("VX_VIRTUAL_SPEED"), QStringLiteral("8"));
    // A locale that all systems have, and that differs from that of a C program at its start.
    variables.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setProcessEnvironment(variables);
    startProcess(process, program, arguments);
    QByteArray output;
    while (process.waitForReadyRead(patience)) {
        // The lines show that the host is alive.
        const QByteArray part = process.readAll();
        std::fprintf(stderr, "%s", part.constData());
        output += part;
    }
    if (!process.waitForFinished(patience))
        process.kill();
    const bool hasPassed = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    // Neither sanitizers nor Qt have anything to say.
    const bool isQuiet = !output.contains("WARNING") && !output.contains("QObject");
    if (!hasPassed || !isQuiet)
        qWarning("%s: exit status %d, %s", qPrintable(program), process.exitCode(),
                 qPrintable(process.errorString()));
    return hasPassed && isQuiet;
}

void CHostTest::carelessCallersGetErrors()
{
    QVERIFY(run({QStringLiteral("careless")}));
}

void CHostTest::aPrinterIsReadAndWatched()
{
#ifdef Q_OS_WIN
    QVERIFY(fixture::setSpoolerRunning(true));
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    QVERIFY(fixture::addPrinter({printer, QStringLiteral("Stratamark AlderMax")}));
    // Wine does not tell of changes, so that nothing is reported there.
    QVERIFY(run({QStringLiteral("list"), printer}));
#else
    QVERIFY(run({QStringLiteral("list"), QStringLiteral("Branch Office")}));
    QVERIFY(run({QStringLiteral("watch"), QStringLiteral("Warehouse")}));
#endif
}

void CHostTest::sessionsNeedNotBeStopped()
{
    QVERIFY(run({QStringLiteral("forgetful")}));
}

void CHostTest::nothingOfTheProcessIsChanged()
{
    QVERIFY(run({QStringLiteral("locale")}));
}

QTEST_GUILESS_MAIN(CHostTest)
#include "tst_c_host.moc"
