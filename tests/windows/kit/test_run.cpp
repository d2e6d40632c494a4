// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "test_run.h"

#include "start_process.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <memory>

#include <windows.h>

namespace {

using Outcome = TestResult::Outcome;

struct ClosesHandle
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, ClosesHandle>;

/// A group of processes that ends when this object does, also if that is because the kit was
/// killed.
class ProcessGroup
{
public:
    ProcessGroup()
        : m_job(CreateJobObjectW(nullptr, nullptr))
    {
        JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
        limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
        SetInformationJobObject(m_job.get(), JobObjectExtendedLimitInformation, &limits,
                                sizeof limits);
    }
    void add(qint64 process)
    {
        const Handle handle(
            OpenProcess(PROCESS_SET_QUOTA | PROCESS_TERMINATE, FALSE, static_cast<DWORD>(process)));
        if (handle)
            AssignProcessToJobObject(m_job.get(), handle.get());
    }
    void end() { TerminateJobObject(m_job.get(), 1); }

private:
    Handle m_job;
};

QProcessEnvironment environmentOf(const KitTest& test, const RunSettings& settings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Qt and the product are set up by such variables, and the person may have set some.
    const QStringList names = environment.keys();
    for (const QString& name : names) {
        if (name.startsWith(QLatin1String("QT_"), Qt::CaseInsensitive) ||
            name.startsWith(QLatin1String("VX_"), Qt::CaseInsensitive))
            environment.remove(name);
    }
    for (auto variable = test.environment.begin(); variable != test.environment.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    const QString bin = QDir::toNativeSeparators(settings.folder + QStringLiteral("/bin"));
    environment.insert(QStringLiteral("PATH"),
                       bin + QLatin1Char(';') + environment.value(QStringLiteral("PATH")));
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), bin);
    environment.insert(QStringLiteral("VX_TEST_ROOT"), settings.folder);
    environment.insert(QStringLiteral("VX_SPOOLER_MAY_STOP"),
                       settings.maySpoolerStop ? QStringLiteral("1") : QStringLiteral("0"));
    const QString scratch = QDir::toNativeSeparators(settings.scratch);
    environment.insert(QStringLiteral("TEMP"), scratch);
    environment.insert(QStringLiteral("TMP"), scratch);
    return environment;
}

/// The beginning and the end of a file, in which faults are.
QString boundedContent(const QString& path)
{
    constexpr qint64 most = 48 * 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    if (file.size() <= 2 * most)
        return QString::fromUtf8(file.readAll());
    const QByteArray begin = file.read(most);
    const qint64 left = file.size() - 2 * most;
    file.seek(file.size() - most);
    return QString::fromUtf8(begin) + QStringLiteral("\n[... %1 bytes left out ...]\n").arg(left) +
           QString::fromUtf8(file.readAll());
}

qint64 sizeOf(const QString& path)
{
    return QFileInfo(path).size();
}

/// Reads the last line of Qt Test, if there is one.
bool readTotals(TestResult& result)
{
    static const QRegularExpression totals(
        QStringLiteral("^Totals: ([0-9]+) passed, ([0-9]+) failed, ([0-9]+) skipped"),
        QRegularExpression::MultilineOption);
    QRegularExpressionMatchIterator all = totals.globalMatch(result.output);
    bool isFound = false;
    // A program may run several test objects.
    while (all.hasNext()) {
        const QRegularExpressionMatch match = all.next();
        result.passed += match.captured(1).toInt();
        result.failed += match.captured(2).toInt();
        result.skipped += match.captured(3).toInt();
        isFound = true;
    }
    return isFound;
}

void judge(TestResult& result, const QProcess& process)
{
    const bool hasTotals = readTotals(result);
    const int code = process.exitCode();
    if (process.exitStatus() == QProcess::CrashExit || !hasTotals) {
        result.outcome = Outcome::Crashed;
        result.reason = QStringLiteral("ended with 0x%1 and without a summary")
                            .arg(static_cast<quint32>(code), 0, 16);
        if (hasTotals)
            result.reason = QStringLiteral("crashed with 0x%1 after its summary")
                                .arg(static_cast<quint32>(code), 0, 16);
        return;
    }
    // initTestCase and cleanupTestCase pass in any case.
    constexpr int own = 2;
    if (result.failed > 0 || code != 0)
        result.outcome = Outcome::Failed;
    else if (result.skipped > 0 && result.passed <= own)
        result.outcome = Outcome::Skipped;
    else
        result.outcome = Outcome::Passed;
    if (result.failed == 0 && code != 0)
        result.reason = QStringLiteral("ended with exit status %1").arg(code);
}

} // namespace

QString TestResult::word(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Passed:
        return QStringLiteral("passed");
    case Outcome::Failed:
        return QStringLiteral("failed");
    case Outcome::Crashed:
        return QStringLiteral("crashed");
    case Outcome::Silent:
        return QStringLiteral("silent");
    case Outcome::Skipped:
        return QStringLiteral("skipped");
    case Outcome::NotRun:
        return QStringLiteral("not run");
    case Outcome::Interrupted:
        return QStringLiteral("interrupted");
    }
    return {};
}

TestResult runTest(const KitTest& test, const RunSettings& settings)
{
    TestResult result;
    result.name = test.name;
    const QString program = settings.folder + QLatin1Char('/') + test.program;
    // Qt Test writes to no output that is not a console, but to files.
    const QString log = settings.scratch + QLatin1Char('/') + test.name + QStringLiteral(".txt");
    const QString console =
        settings.scratch + QLatin1Char('/') + test.name + QStringLiteral(".console.txt");
    QElapsedTimer clock;
    clock.start();
    {
        ProcessGroup group;
        QProcess process;
        process.setProcessEnvironment(environmentOf(test, settings));
        process.setWorkingDirectory(QFileInfo(program).path());
        process.setStandardInputFile(QProcess::nullDevice());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setStandardOutputFile(console);
        // A console of its own, which nobody sees: Ctrl+C in that of the kit is for the kit.
        process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
            arguments->flags |= CREATE_NO_WINDOW;
        });
        startProcess(process, program,
                     test.arguments +
                         QStringList{QStringLiteral("-o"),
                                     QDir::toNativeSeparators(log) + QStringLiteral(",txt")});
        if (process.state() == QProcess::NotRunning) {
            result.outcome = Outcome::Crashed;
            result.reason = QStringLiteral("cannot be started: %1").arg(process.errorString());
            return result;
        }
        group.add(process.processId());
        qint64 size = -1;
        QElapsedTimer silence;
        silence.start();
        while (!process.waitForFinished(100)) {
            const qint64 now = sizeOf(log) + sizeOf(console);
            if (now != size) {
                size = now;
                silence.restart();
            }
            const bool isInterrupted = settings.isInterrupted && *settings.isInterrupted;
            if (isInterrupted) {
                result.outcome = Outcome::Interrupted;
                result.reason = QStringLiteral("ended by the person");
            } else if (silence.hasExpired(std::chrono::milliseconds(settings.silence).count())) {
                result.outcome = Outcome::Silent;
                result.reason = QStringLiteral("printed nothing for %1 s and was ended")
                                    .arg(settings.silence.count());
            } else {
                continue;
            }
            group.end();
            process.kill();
            process.waitForFinished(30000);
            break;
        }
        // What it has started and left behind.
        group.end();
        result.seconds = static_cast<double>(clock.elapsed()) / 1000;
        result.output = boundedContent(console) + boundedContent(log);
        result.output.remove(QLatin1Char('\r'));
        if (result.outcome == Outcome::NotRun)
            judge(result, process);
        else
            readTotals(result);
    }
    QFile::remove(log);
    QFile::remove(console);
    return result;
}
