// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Runs the packed tests on this computer: says what it is going to do, asks, runs them, removes
// what they have left behind, and writes a report that can be sent back.
#include "failure.h"
#include "manifest.h"
#include "questions.h"
#include "report.h"
#include "standard_output.h"
#include "system_facts.h"
#include "system_state.h"
#include "test_run.h"
#include "test_spooler.h"
#include "text_layout.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>
#include <QtCore/QScopeGuard>
#include <QtCore/QTranslator>

#include <algorithm>
#include <atomic>
#include <memory>

#include <windows.h>

namespace {

using Outcome = TestResult::Outcome;

struct Kit
{
    Q_DECLARE_TR_FUNCTIONS(vxtestkit)
};

enum class KitStatus
{
    AllPassed = 0,
    SomeFailed = 1,
    WrongUsage = 2,
    NotAgreed = 3,
    Interrupted = 4,
};

std::atomic<bool> isInterrupted = false;
std::atomic<bool> hasEnded = false;

BOOL WINAPI interrupt(DWORD event)
{
    isInterrupted = true;
    if (event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT)
        return TRUE;
    // The window is being closed or the person logs off: Windows ends the process when this
    // returns, or after some seconds. What is not removed by then, the next start removes.
    while (!hasEnded)
        Sleep(50);
    return TRUE;
}

struct Options
{
    bool isAgreed = false;
    bool maySpoolerStop = false;
    bool mustSpoolerRun = false;
    bool isWithoutAdministrator = false;
    QString language;
    QString reportFolder;
    QRegularExpression only;
    int silence = 180;
};

Options readOptions()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Kit::tr("Runs the tests of VxPrinterStatus on this computer and "
                "writes a report about them."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  Kit::tr("Shows this help."));
    const QCommandLineOption yes(QStringLiteral("yes"), Kit::tr("Runs the tests without asking."));
    const QCommandLineOption stop(
        QStringLiteral("allow-spooler-stop"),
        Kit::tr("Allows tests to stop and start the print spooler, without asking."));
    const QCommandLineOption noStop(
        QStringLiteral("no-spooler-stop"),
        Kit::tr("Leaves out the tests that stop the print spooler, without asking."));
    const QCommandLineOption noRights(
        QStringLiteral("without-administrator"),
        Kit::tr("Leaves out the tests that need an administrator's rights."));
    const QCommandLineOption only(QStringLiteral("only"),
                                  Kit::tr("Runs only the tests whose names match this regular "
                                          "expression."),
                                  QStringLiteral("EXPRESSION"));
    const QCommandLineOption silence(
        QStringLiteral("silence"),
        Kit::tr("Ends a test that prints nothing for so many seconds (180)."),
        QStringLiteral("SECONDS"), QStringLiteral("180"));
    const QCommandLineOption folder(QStringLiteral("report-folder"),
                                    Kit::tr("Writes the report into this folder."),
                                    QStringLiteral("FOLDER"));
    const QCommandLineOption language(
        QStringLiteral("language"), Kit::tr("Speaks this language: de, en, es, fr, it, ja or zh."),
        QStringLiteral("TAG"));
    parser.addOptions({help, yes, stop, noStop, noRights, only, silence, folder, language});
    if (!parser.parse(QCoreApplication::arguments()))
        throw wrongUsage(parser.errorText());
    if (parser.isSet(help))
        throw Failure(parser.helpText(), ExitStatus::Done);
    if (!parser.positionalArguments().isEmpty())
        throw wrongUsage(
            Kit::tr("unexpected argument \"%1\"").arg(parser.positionalArguments().constFirst()));
    if (parser.isSet(stop) && parser.isSet(noStop))
        throw wrongUsage(
            Kit::tr("--allow-spooler-stop and --no-spooler-stop contradict each other"));
    Options options;
    options.isAgreed = parser.isSet(yes);
    options.maySpoolerStop = parser.isSet(stop);
    options.mustSpoolerRun = parser.isSet(noStop);
    options.isWithoutAdministrator = parser.isSet(noRights);
    options.language = parser.value(language);
    options.reportFolder = parser.value(folder);
    options.only = QRegularExpression(parser.value(only));
    if (!options.only.isValid())
        throw wrongUsage(Kit::tr("\"%1\" is not a regular expression: %2")
                             .arg(parser.value(only), options.only.errorString()));
    bool isNumber = false;
    options.silence = parser.value(silence).toInt(&isNumber);
    constexpr int day = 86400;
    if (!isNumber || options.silence < 1 || options.silence > day)
        throw wrongUsage(
            Kit::tr("--silence: expected a number of seconds from 1 to %1, found \"%2\"")
                .arg(QString::number(day), parser.value(silence)));
    return options;
}

/// The option is looked for before all others, whose mistakes are reported in that language.
void speak()
{
    const QStringList arguments = QCoreApplication::arguments();
    const qsizetype place = arguments.indexOf(QStringLiteral("--language"));
    const QLocale locale = place >= 0 && place + 1 < arguments.size()
                               ? QLocale(arguments.at(place + 1))
                               : QLocale::system();
    auto* const translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(locale, QStringLiteral("vxtestkit"), QStringLiteral("_"),
                         QStringLiteral(":/vxtestkit/translations")))
        QCoreApplication::installTranslator(translator);
}

QString paragraph(const QString& text)
{
    return text_layout::paragraph(text) + QLatin1Char('\n');
}

QString shownPath(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

/// Remembers what was there before the tests, until everything of theirs is removed.
class Journal
{
public:
    Journal()
        : m_folder(QDir::fromNativeSeparators(qEnvironmentVariable("LOCALAPPDATA")) +
                   QStringLiteral("/VxPrinterStatusTestKit"))
    {}
    QString file() const { return m_folder + QStringLiteral("/before.json"); }
    bool exists() const { return QFile::exists(file()); }
    std::optional<SystemState> read() const
    {
        QFile content(file());
        if (!content.open(QIODevice::ReadOnly))
            return {};
        const QJsonDocument document = QJsonDocument::fromJson(content.readAll());
        if (!document.isObject())
            return {};
        return SystemState::fromJson(document.object());
    }
    void write(const SystemState& before) const
    {
        QSaveFile content(file());
        const QByteArray bytes = QJsonDocument(before.toJson()).toJson();
        if (!QDir().mkpath(m_folder) || !content.open(QIODevice::WriteOnly) ||
            content.write(bytes) != bytes.size() || !content.commit())
            throw Failure(
                Kit::tr("%1 cannot be written: %2").arg(shownPath(file()), content.errorString()));
    }
    void remove() const
    {
        QFile::remove(file());
        QDir().rmdir(m_folder);
    }

private:
    QString m_folder;
};

/// Why a test is not run; empty if it is.
QString obstacle(const KitTest& test, const SystemState& before, bool isAdministrator,
                 bool maySpoolerStop)
{
    if (!test.notPossible.isEmpty())
        return test.notPossible;
    if (test.needsAdministrator && !isAdministrator)
        return QStringLiteral("needs an administrator's rights");
    if (test.onlyStopsSpooler && !maySpoolerStop)
        return QStringLiteral("the print spooler must not be stopped");
    if (test.locks.contains(QStringLiteral("windows_agent")) &&
        before.services().contains(QStringLiteral("vxprintagent"), Qt::CaseInsensitive))
        return QStringLiteral(
            "the agent is installed on this computer, and the test would remove it");
    return {};
}

/// A printer is added and removed before all tests: if that fails, many tests fail for that reason.
QString checkPrinter(bool isAdministrator)
{
    if (!isAdministrator)
        return QStringLiteral("not tried: needs an administrator's rights");
    const QString driver = QStringLiteral("Vx Kit Driver");
    const QString port = QStringLiteral("USB900");
    const test_spooler::Problem driverProblem = test_spooler::installDriver(driver);
    if (!driverProblem.isNone())
        return QStringLiteral("the driver cannot be installed: %1").arg(driverProblem.text());
    QString verdict = QStringLiteral("a driver and a port can be added and removed");
    const test_spooler::Problem portProblem = test_spooler::addPort(port);
    if (!portProblem.isNone()) {
        verdict = QStringLiteral("the port cannot be added: %1").arg(portProblem.text());
    } else {
        const test_spooler::Problem removal = test_spooler::removePort(port);
        if (!removal.isNone())
            verdict = QStringLiteral("the port cannot be removed: %1").arg(removal.text());
    }
    const test_spooler::Problem removal = test_spooler::removeDriver(driver);
    if (!removal.isNone())
        verdict += QStringLiteral("; the driver cannot be removed: %1").arg(removal.text());
    return verdict;
}

QString shownOutcome(const TestResult& result)
{
    switch (result.outcome) {
    case Outcome::Passed:
        return Kit::tr("passed");
    case Outcome::Failed:
        return Kit::tr("FAILED");
    case Outcome::Crashed:
        return Kit::tr("CRASHED");
    case Outcome::Silent:
        return Kit::tr("HANGS, was ended");
    case Outcome::Skipped:
        return Kit::tr("skipped");
    case Outcome::NotRun:
        return Kit::tr("not run");
    case Outcome::Interrupted:
        return Kit::tr("interrupted");
    }
    return {};
}

class KitRun
{
public:
    KitRun(StandardOutput& output, const Options& options)
        : m_output(output)
        , m_options(options)
        , m_questions(output)
        , m_folder(QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/..")))
        , m_manifest(Manifest::read(m_folder + QStringLiteral("/manifest.json")))
        , m_isAdministrator(!options.isWithoutAdministrator && system_facts::isAdministrator())
    {}

    KitStatus run()
    {
        cleanUpAfterInterruption();
        if (!isAgreed()) {
            m_output.write(Kit::tr("Nothing was changed.") + QLatin1Char('\n'));
            return KitStatus::NotAgreed;
        }
        const SystemState before = SystemState::current(m_folder);
        prepareReport(before);
        m_journal.write(before);
        m_scratch = QDir::fromNativeSeparators(qEnvironmentVariable("TEMP")) +
                    QStringLiteral("/vxtestkit-%1").arg(QCoreApplication::applicationPid());
        if (!QDir().mkpath(m_scratch))
            throw Failure(Kit::tr("The folder %1 cannot be created.").arg(shownPath(m_scratch)));
        if (m_isAdministrator && before.spooler() != QLatin1String("running") &&
            !SystemState::startSpooler())
            m_report.notes.append(QStringLiteral(
                "the print spooler did not run before the tests, and cannot be started"));
        m_report.printerCheck = checkPrinter(m_isAdministrator);
        runTests(before);
        finish(before);
        return summary();
    }

private:
    void cleanUpAfterInterruption()
    {
        if (!m_journal.exists())
            return;
        m_output.write(paragraph(Kit::tr(
            "An earlier run did not end by itself. What it has left behind is removed now.")));
        const std::optional<SystemState> before = m_journal.read();
        if (!before)
            throw Failure(
                Kit::tr("%1 cannot be read, so it is not known what there was before that "
                        "run. Remove the file if its printers are gone.")
                    .arg(shownPath(m_journal.file())));
        QStringList problems;
        const QStringList done = SystemState::restore(*before, m_folder, problems);
        m_output.write(Kit::tr("Removed: %1. Could not be removed: %2.")
                           .arg(QString::number(done.size()), QString::number(problems.size())) +
                       QLatin1Char('\n'));
        for (const QString& line : std::as_const(problems))
            m_output.complain(line);
        m_report.notes.append(
            QStringLiteral("an earlier run did not end by itself; %1 things that it "
                           "had left behind were removed, %2 could not be")
                .arg(done.size())
                .arg(problems.size()));
        if (problems.isEmpty())
            m_journal.remove();
        m_output.write(QStringLiteral("\n"));
    }

    bool isAgreed()
    {
        const auto needAdministrator = std::count_if(
            m_manifest.tests.begin(), m_manifest.tests.end(), [](const KitTest& test) {
                return test.needsAdministrator && test.notPossible.isEmpty();
            });
        m_output.write(
            Kit::tr("Tests of VxPrinterStatus %1").arg(m_manifest.version) +
            QStringLiteral("\n\n") +
            paragraph(
                Kit::tr("This program runs the tests of VxPrinterStatus on this computer. It adds "
                        "printers, drivers and ports of its own names, but prints nothing on your "
                        "printers. It writes keys of its own into the registry, adds a service "
                        "of its own, and shows windows that come and go. It removes all of this "
                        "again. For a moment, one of its printers is the default printer.")) +
            paragraph(
                Kit::tr("It leaves one file, a report, which you can read before you send it. "
                        "Names of people, computers and your printers are not in it. Nothing is "
                        "sent by itself.")) +
            paragraph(Kit::tr("It takes 10 to 30 minutes. Ctrl+C ends it at any time, and it then "
                              "removes what it has added.")));
        if (!m_isAdministrator)
            m_output.write(paragraph(
                Kit::tr(
                    "It does not have an administrator's rights, so %1 of %2 tests cannot run. To "
                    "run all, answer no, then right-click run-tests.cmd and choose \"Run as "
                    "administrator\".")
                    .arg(QString::number(needAdministrator),
                         QString::number(m_manifest.tests.size()))));
        if (!system_facts::isEnglish())
            m_output.write(paragraph(Kit::tr(
                "Windows is not in English here. Some tests compare English texts, and may fail "
                "for that reason alone. The report says so.")));
        if (!m_options.isAgreed && !m_questions.isYes(Kit::tr("Run the tests?")))
            return false;
        m_maySpoolerStop = m_isAdministrator && !m_options.mustSpoolerRun && maySpoolerStop();
        m_output.write(QStringLiteral("\n"));
        return !isInterrupted;
    }

    bool maySpoolerStop()
    {
        if (m_options.maySpoolerStop)
            return true;
        if (m_options.isAgreed)
            return false;
        m_output.write(
            QLatin1Char('\n') +
            paragraph(Kit::tr("Some tests stop the print spooler for some seconds and start "
                              "it again. In that time nobody can print with this computer, "
                              "and jobs wait. Without them, the other tests run.")));
        return m_questions.isYes(Kit::tr("May they stop the print spooler?"));
    }

    void prepareReport(const SystemState& before)
    {
        m_report.version = m_manifest.version;
        m_report.compiler = m_manifest.compiler;
        m_report.begun = QDateTime::currentDateTimeUtc();
        m_report.agreed = {{QStringLiteral("run"), true},
                           {QStringLiteral("stopSpooler"), m_maySpoolerStop},
                           {QStringLiteral("administrator"), m_isAdministrator}};
        m_report.system = system_facts::all();
        m_report.system.insert(QStringLiteral("spooler"), before.spooler());
        m_report.files = system_facts::files(QCoreApplication::applicationDirPath());
        m_report.before = {
            {QStringLiteral("printers"), static_cast<int>(before.printers().size())},
            {QStringLiteral("drivers"), static_cast<int>(before.drivers().size())},
            {QStringLiteral("ports"), static_cast<int>(before.ports().size())},
            {QStringLiteral("services"), static_cast<int>(before.services().size())},
            {QStringLiteral("has a default printer"), !before.defaultPrinter().isEmpty()}};
        if (!system_facts::isEnglish())
            m_report.notes.append(QStringLiteral("Windows is not in English; tests that compare "
                                                 "English texts may fail for that reason"));
        int number = 0;
        for (const QString& printer : before.printerNames())
            m_redaction.add(printer, QStringLiteral("<printer %1>").arg(++number));
        number = 0;
        // Ports are named after computers and addresses. These are everywhere.
        static const QRegularExpression usual(
            QStringLiteral(
                R"(\A((COM|LPT|USB|TPVM|WSD-?)[0-9]{0,3}:?|FILE:|NUL:|PORTPROMPT:|SHRFAX:)\z)"),
            QRegularExpression::CaseInsensitiveOption);
        for (const QString& port : before.ports()) {
            if (!usual.match(port).hasMatch())
                m_redaction.add(port, QStringLiteral("<port %1>").arg(++number));
        }
        m_redaction.add(QDir::toNativeSeparators(m_folder), QStringLiteral("<kit>"));
        m_redaction.add(m_folder, QStringLiteral("<kit>"));
        system_facts::addNames(m_redaction);
    }

    void runTests(const SystemState& before)
    {
        RunSettings settings;
        settings.folder = m_folder;
        settings.scratch = m_scratch;
        settings.maySpoolerStop = m_maySpoolerStop;
        settings.silence = std::chrono::seconds(m_options.silence);
        settings.isInterrupted = &isInterrupted;
        int number = 0;
        for (const KitTest& test : std::as_const(m_manifest.tests)) {
            ++number;
            TestResult result;
            result.name = test.name;
            result.reason = obstacle(test, before, m_isAdministrator, m_maySpoolerStop);
            if (result.reason.isEmpty() && !m_options.only.match(test.name).hasMatch())
                result.reason = QStringLiteral("was not chosen");
            if (result.reason.isEmpty() && isInterrupted)
                result.reason = QStringLiteral("the run was interrupted");
            m_output.write(QStringLiteral("[%1/%2] %3 ")
                               .arg(number, 3)
                               .arg(m_manifest.tests.size())
                               .arg(test.name));
            if (result.reason.isEmpty())
                result = runTest(test, settings);
            QString line = shownOutcome(result);
            if (result.outcome != Outcome::NotRun)
                line += QStringLiteral(" (%1 s)").arg(result.seconds, 0, 'f', 1);
            m_output.write(line + QLatin1Char('\n'));
            m_report.tests.append(result);
            if (result.isBad() || result.outcome == Outcome::Interrupted)
                cleanUpAfterTest(before, test.name);
        }
        m_report.isInterrupted = isInterrupted;
    }

    /// So that what a test has left behind when it ended does not disturb the next one.
    void cleanUpAfterTest(const SystemState& before, const QString& test)
    {
        QStringList problems;
        const QStringList done = restoreExceptScratch(before, problems);
        for (const QString& line : done)
            m_report.cleanedUp.append(test + QStringLiteral(": ") + line);
    }

    QStringList restoreExceptScratch(const SystemState& before, QStringList& problems)
    {
        QStringList done = SystemState::restore(before, m_folder, problems);
        QDir().mkpath(m_scratch);
        return done;
    }

    void finish(const SystemState& before)
    {
        QDir(m_scratch).removeRecursively();
        QStringList problems;
        // What the kit itself writes, and what tests of the library have put beside their programs,
        // is of no interest: only what remains is.
        for (const QString& line : SystemState::restore(before, m_folder, problems)) {
            if (!line.startsWith(QLatin1String("removed from the files")))
                m_report.cleanedUp.append(line);
        }
        m_journal.remove();
        const SystemState after = SystemState::current(m_folder);
        m_report.leftBehind = problems;
        const QMap<QString, QStringList> added = after.added(before);
        for (auto kind = added.begin(); kind != added.end(); ++kind) {
            for (const QString& item : kind.value())
                m_report.leftBehind.append(
                    QStringLiteral("still among the %1: %2").arg(kind.key(), item));
        }
        const QMap<QString, QStringList> removed = after.removed(before);
        for (auto kind = removed.begin(); kind != removed.end(); ++kind) {
            for (const QString& item : kind.value())
                m_report.leftBehind.append(
                    QStringLiteral("missing from the %1: %2").arg(kind.key(), item));
        }
        if (after.spooler() != before.spooler())
            m_report.leftBehind.append(QStringLiteral("the print spooler was %1 and is now %2")
                                           .arg(before.spooler(), after.spooler()));
        if (after.defaultPrinter() != before.defaultPrinter())
            m_report.leftBehind.append(QStringLiteral("the default printer is not what it was"));
        const QMap<QString, int> others = after.addedByOthers(before);
        for (auto kind = others.begin(); kind != others.end(); ++kind)
            m_report.othersAdded.insert(kind.key(), kind.value());
        // The journal is needed again only if something is still there.
        if (!added.isEmpty())
            m_journal.write(before);
        m_report.ended = QDateTime::currentDateTimeUtc();
    }

    KitStatus summary()
    {
        const QString folder = m_options.reportFolder.isEmpty()
                                   ? m_folder
                                   : QDir::fromNativeSeparators(m_options.reportFolder);
        const QString file = QDir(folder).absoluteFilePath(
            QStringLiteral("VxPrinterStatus-test-report-%1.html")
                .arg(m_report.begun.toString(QStringLiteral("yyyyMMdd-HHmmss"))));
        QSaveFile content(file);
        const QByteArray bytes = m_report.html(m_redaction);
        if (!content.open(QIODevice::WriteOnly) || content.write(bytes) != bytes.size() ||
            !content.commit())
            throw Failure(
                Kit::tr("%1 cannot be written: %2").arg(shownPath(file), content.errorString()));
        const int bad = m_report.count(Outcome::Failed) + m_report.count(Outcome::Crashed) +
                        m_report.count(Outcome::Silent);
        m_output.write(QStringLiteral("\n") +
                       Kit::tr("%1 passed, %2 failed, %3 skipped, %4 not run")
                           .arg(QString::number(m_report.count(Outcome::Passed)),
                                QString::number(bad),
                                QString::number(m_report.count(Outcome::Skipped)),
                                QString::number(m_report.count(Outcome::NotRun) +
                                                m_report.count(Outcome::Interrupted))) +
                       QLatin1Char('\n'));
        for (const TestResult& test : std::as_const(m_report.tests)) {
            if (test.isBad())
                m_output.write(QStringLiteral("  ") + test.name + QStringLiteral(": ") +
                               shownOutcome(test) + QLatin1Char('\n'));
        }
        if (!m_report.leftBehind.isEmpty()) {
            m_output.write(Kit::tr("Not as it was before:") + QLatin1Char('\n'));
            for (const QString& line : std::as_const(m_report.leftBehind))
                m_output.write(QStringLiteral("  ") + line + QLatin1Char('\n'));
        }
        m_output.write(Kit::tr("Please send back this file:") + QStringLiteral("\n  ") +
                       shownPath(file) + QLatin1Char('\n'));
        if (m_report.isInterrupted)
            return KitStatus::Interrupted;
        return bad == 0 && m_report.leftBehind.isEmpty() ? KitStatus::AllPassed
                                                         : KitStatus::SomeFailed;
    }

    StandardOutput& m_output;
    Options m_options;
    Questions m_questions;
    QString m_folder;
    QString m_scratch;
    Manifest m_manifest;
    bool m_isAdministrator;
    bool m_maySpoolerStop = false;
    Journal m_journal;
    Redaction m_redaction;
    Report m_report;
};

/// Two at the same time would remove each other's printers.
class OnlyOne
{
public:
    OnlyOne()
        : m_mutex(CreateMutexW(nullptr, FALSE, L"Global\\VxPrinterStatusTestKit"))
        , m_isFirst(m_mutex && GetLastError() != ERROR_ALREADY_EXISTS)
    {}
    ~OnlyOne()
    {
        if (m_mutex)
            CloseHandle(m_mutex);
    }
    Q_DISABLE_COPY_MOVE(OnlyOne)

    bool isFirst() const { return m_isFirst; }

private:
    HANDLE m_mutex;
    bool m_isFirst;
};

int run(StandardOutput& output)
{
    const Options options = readOptions();
    const OnlyOne onlyOne;
    if (!onlyOne.isFirst())
        throw Failure(Kit::tr("The tests are already running on this computer."));
    SetConsoleCtrlHandler(interrupt, TRUE);
    const auto status = static_cast<int>(KitRun(output, options).run());
    if (!options.isAgreed && !isInterrupted)
        Questions(output).waitForEnter(QLatin1Char('\n') + Kit::tr("Press Enter to close."));
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput output("vxtestkit");
    const QCoreApplication application(argc, argv);
    speak();
    const auto end = qScopeGuard([] { hasEnded = true; });
    try {
        return output.exitStatus(run(output));
    } catch (const Failure& failure) {
        if (failure.exitStatus() == ExitStatus::Done)
            output.write(failure.message());
        for (const QString& message : failure.messages()) {
            if (failure.exitStatus() != ExitStatus::Done)
                output.complain(message);
        }
        return output.exitStatus(static_cast<int>(failure.exitStatus()));
    }
}
