// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// How the agent installs itself in the system's service manager. What Wine's service manager does
// not keep is taken down where the agent hands it over.
#include "agent_log.h"
#include "failure.h"
#include "file_rules.h"
#include "import_table.h"
#include "service.h"

#include <QtTest/QtTest>

#include <memory>
#include <type_traits>

#include <winsvc.h>

namespace {

struct ClosesService
{
    void operator()(SC_HANDLE service) const { CloseServiceHandle(service); }
};
using ServiceHandle = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, ClosesService>;

/// What the agent has set of the service.
struct Settings
{
    QString description;
    bool isDelayed = false;
    bool restartsAfterReportedFailures = false;
    DWORD resetPeriod = 0;
    QList<SC_ACTION> actions;
};
Settings settings;
/// The level that fails, and with which error.
DWORD failingLevel = 0;
DWORD levelError = ERROR_SUCCESS;

BOOL WINAPI takeSetting(SC_HANDLE /*service*/, DWORD level, void* info)
{
    if (level == failingLevel) {
        SetLastError(levelError);
        return FALSE;
    }
    switch (level) {
    case SERVICE_CONFIG_DESCRIPTION:
        settings.description =
            QString::fromWCharArray(static_cast<const SERVICE_DESCRIPTIONW*>(info)->lpDescription);
        break;
    case SERVICE_CONFIG_FAILURE_ACTIONS: {
        const auto& actions = *static_cast<const SERVICE_FAILURE_ACTIONSW*>(info);
        settings.resetPeriod = actions.dwResetPeriod;
        for (DWORD i = 0; i < actions.cActions; ++i)
            settings.actions.append(actions.lpsaActions[i]);
        break;
    }
    case SERVICE_CONFIG_DELAYED_AUTO_START_INFO:
        settings.isDelayed =
            static_cast<const SERVICE_DELAYED_AUTO_START_INFO*>(info)->fDelayedAutostart != FALSE;
        break;
    case SERVICE_CONFIG_FAILURE_ACTIONS_FLAG:
        settings.restartsAfterReportedFailures =
            static_cast<const SERVICE_FAILURE_ACTIONS_FLAG*>(info)
                ->fFailureActionsOnNonCrashFailures != FALSE;
        break;
    default:
        SetLastError(ERROR_INVALID_LEVEL);
        return FALSE;
    }
    return TRUE;
}

/// The states that the service seems to go through, as long as there are any; then the system is
/// asked.
QList<DWORD> states;
/// What each request to the service results in, and the states in which there was one.
QList<DWORD> answers;
QList<DWORD> statesOfRequests;
DWORD lastState = 0;

BOOL WINAPI tellState(SC_HANDLE service, SERVICE_STATUS* status)
{
    if (states.isEmpty()) {
        using Function = BOOL(WINAPI*)(SC_HANDLE, SERVICE_STATUS*);
        const auto function = reinterpret_cast<Function>(reinterpret_cast<void*>(
            GetProcAddress(GetModuleHandleW(L"advapi32.dll"), "QueryServiceStatus")));
        return function(service, status);
    }
    lastState = states.takeFirst();
    *status = {};
    status->dwCurrentState = lastState;
    return TRUE;
}

BOOL WINAPI takeRequest(SC_HANDLE /*service*/, DWORD /*request*/, SERVICE_STATUS* /*status*/)
{
    statesOfRequests.append(lastState);
    SetLastError(answers.isEmpty() ? DWORD(ERROR_SUCCESS) : answers.takeFirst());
    return GetLastError() == ERROR_SUCCESS;
}

class RecordedLog : public AgentLog
{
public:
    void write(Level level, const QString& text) override
    {
        (level == Level::Warning ? warnings : lines).append(text);
    }
    QStringList warnings;
    QStringList lines;
};

ServiceHandle openService(DWORD access)
{
    const ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
    return ServiceHandle(OpenServiceW(manager.get(), L"vxprintagent", access));
}

bool isInstalled()
{
    return openService(SERVICE_QUERY_STATUS) != nullptr;
}

/// What the service manager says of the service.
struct Installed
{
    DWORD type = 0;
    DWORD start = 0;
    QString command;
    QString account;
    QString dependencies;
};
std::optional<Installed> installed()
{
    const ServiceHandle service = openService(SERVICE_QUERY_CONFIG);
    DWORD size = 0;
    QueryServiceConfigW(service.get(), nullptr, 0, &size);
    QByteArray block(static_cast<qsizetype>(size), '\0');
    auto* const config = reinterpret_cast<QUERY_SERVICE_CONFIGW*>(block.data());
    if (!QueryServiceConfigW(service.get(), config, size, &size))
        return std::nullopt;
    return Installed{config->dwServiceType, config->dwStartType,
                     QString::fromWCharArray(config->lpBinaryPathName),
                     QString::fromWCharArray(config->lpServiceStartName),
                     config->lpDependencies ? QString::fromWCharArray(config->lpDependencies)
                                            : QString()};
}

/// Gives everybody rights to a file or folder.
bool openToEverybody(const QString& path)
{
    return file_rules::set(path, QStringLiteral("D:P(A;;FA;;;WD)")) == ERROR_SUCCESS;
}

QString messageOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (const Failure& failure) {
        return failure.message();
    }
    return {};
}

} // namespace

class ServiceInstallationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void runsAsTheSystemFromTheStartOfWindows();
    void doesNotDependOnTheSpooler();
    void startsAfterWhatPeopleWaitFor();
    void isRestartedEverMoreSlowly();
    void unknownSettingIsWarnedOf();
    void failureLeavesNoService();
    void isNotInstalledTwice();
    void wrongConfigurationIsRefused();
    void configurationThatOthersMayChangeIsRefused();
    void configurationThatOthersMayReplaceIsRefused();
    void programThatOthersMayAddToIsRefused();
    void programWithALibraryThatOthersMayChangeIsRefused();
    void secretOfAPersonIsWarnedOf();
    void serviceIsAskedToStopOnceItRuns();
    void serviceThatEndsByItselfIsRemoved();
    void serviceThatRefusesToStopIsKept();
    void missingServiceCannotBeRemoved();
    void consoleIsNoServiceManager();

private:
    QString write(const QString& name, const QByteArray& text) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName()
                                                                                  : QString();
    }
    QString install()
    {
        return messageOf([this] { service::install(m_config, m_log); });
    }

    std::optional<QTemporaryDir> m_folder;
    QString m_config;
    RecordedLog m_log;
};

void ServiceInstallationTest::initTestCase()
{
    QVERIFY(replaceImports(nullptr, "advapi32.dll",
                           {{"ChangeServiceConfig2W", reinterpret_cast<ULONG_PTR>(takeSetting)},
                            {"QueryServiceStatus", reinterpret_cast<ULONG_PTR>(tellState)},
                            {"ControlService", reinterpret_cast<ULONG_PTR>(takeRequest)}}));
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::init()
{
    settings = {};
    failingLevel = 0;
    levelError = ERROR_SUCCESS;
    states.clear();
    answers.clear();
    statesOfRequests.clear();
    m_log.warnings.clear();
    m_log.lines.clear();
    m_folder.emplace();
    m_config = write(QStringLiteral("the agent.json"), "{\"site\": \"bremen\"}");
    QVERIFY(!m_config.isEmpty());
}

void ServiceInstallationTest::cleanup()
{
    if (isInstalled())
        QCOMPARE(messageOf(service::uninstall), QString());
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::runsAsTheSystemFromTheStartOfWindows()
{
    QCOMPARE(install(), QString());

    const std::optional<Installed> service = installed();
    QVERIFY(service);
    QCOMPARE(service->type, DWORD(SERVICE_WIN32_OWN_PROCESS));
    QCOMPARE(service->start, DWORD(SERVICE_AUTO_START));
    QCOMPARE(service->account, QStringLiteral("LocalSystem"));
    QCOMPARE(service->command,
             QStringLiteral("\"%1\" service --config \"%2\"")
                 .arg(QDir::toNativeSeparators(QCoreApplication::applicationFilePath()),
                      QDir::toNativeSeparators(m_config)));
    QVERIFY(!settings.description.isEmpty());
    QCOMPARE(m_log.warnings, QStringList());
    QCOMPARE(m_log.lines,
             QStringList{QStringLiteral("the service vxprintagent is installed and starts with "
                                        "Windows; to start it now: net start vxprintagent")});
    QCOMPARE(m_log.lines.size(), 1);
}

void ServiceInstallationTest::doesNotDependOnTheSpooler()
{
    QCOMPARE(install(), QString());
    const std::optional<Installed> service = installed();
    QVERIFY(service);
    QCOMPARE(service->dependencies, QString());
}

void ServiceInstallationTest::startsAfterWhatPeopleWaitFor()
{
    QCOMPARE(install(), QString());
    QVERIFY(settings.isDelayed);
}

void ServiceInstallationTest::isRestartedEverMoreSlowly()
{
    QCOMPARE(install(), QString());

    QVERIFY(settings.restartsAfterReportedFailures);
    QVERIFY(settings.resetPeriod > 0);
    QVERIFY(settings.actions.size() > 1);
    DWORD before = 0;
    for (const SC_ACTION& action : std::as_const(settings.actions)) {
        QCOMPARE(action.Type, SC_ACTION_RESTART);
        QVERIFY(action.Delay > before);
        before = action.Delay;
    }
}

void ServiceInstallationTest::unknownSettingIsWarnedOf()
{
    failingLevel = SERVICE_CONFIG_DELAYED_AUTO_START_INFO;
    levelError = ERROR_INVALID_LEVEL;

    QCOMPARE(install(), QString());

    QVERIFY(isInstalled());
    QCOMPARE(m_log.warnings.size(), 1);
    QVERIFY2(m_log.warnings.first().contains(QLatin1String("delayed starts")),
             qPrintable(m_log.warnings.first()));
}

void ServiceInstallationTest::failureLeavesNoService()
{
    failingLevel = SERVICE_CONFIG_FAILURE_ACTIONS;
    levelError = ERROR_NOT_ENOUGH_MEMORY;

    const QString message = install();

    QVERIFY2(message.startsWith(QLatin1String("the service vxprintagent cannot be installed: ")),
             qPrintable(message));
    QVERIFY2(message.endsWith(QLatin1String(" (error 8)")), qPrintable(message));
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::isNotInstalledTwice()
{
    QCOMPARE(install(), QString());
    const QString message = install();
    QCOMPARE(message,
             QStringLiteral("the service vxprintagent cannot be installed: it is installed "
                            "already; run \"vxprintagent uninstall\" first"));
    QVERIFY(isInstalled());
}

void ServiceInstallationTest::wrongConfigurationIsRefused()
{
    m_config = write(QStringLiteral("agent.json"), "{\n\"site\": 1}");
    const QString message = install();
    QVERIFY2(message.contains(QLatin1String("agent.json:2: site")), qPrintable(message));
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::configurationThatOthersMayChangeIsRefused()
{
    QVERIFY(openToEverybody(m_config));
    const QString message = install();
    QVERIFY2(message.contains(QLatin1String("the agent.json may be changed by ")),
             qPrintable(message));
    QVERIFY2(message.contains(QLatin1String(
                 ", who would get the rights of the service; move it to where only "
                 "administrators may change it, such as below \"C:\\Program Files\"")),
             qPrintable(message));
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::configurationThatOthersMayReplaceIsRefused()
{
    QVERIFY(openToEverybody(m_folder->path()));
    const QString message = install();
    QVERIFY2(message.contains(QLatin1String("may be changed by")), qPrintable(message));
    QVERIFY2(!message.contains(QLatin1String("the agent.json")), qPrintable(message));
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::programThatOthersMayAddToIsRefused()
{
    const QTemporaryDir plugins(QCoreApplication::applicationDirPath() +
                                QLatin1String("/plugins-XXXXXX"));
    QVERIFY(openToEverybody(plugins.path()));
    const QString message = install();
    QVERIFY2(message.startsWith(QDir::toNativeSeparators(plugins.path()) +
                                QLatin1String(" may be changed by")),
             qPrintable(message));
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::programWithALibraryThatOthersMayChangeIsRefused()
{
    const QTemporaryDir plugins(QCoreApplication::applicationDirPath() +
                                QLatin1String("/plugins-XXXXXX"));
    QFile library(plugins.filePath(QStringLiteral("plugin.dll")));
    QVERIFY(library.open(QIODevice::WriteOnly));
    library.close();
    QVERIFY(openToEverybody(library.fileName()));
    const QString message = install();
    QVERIFY2(message.contains(QLatin1String("plugin.dll may be changed by")), qPrintable(message));
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::secretOfAPersonIsWarnedOf()
{
    const QString secret = write(QStringLiteral("password"), "secret\n");
    QVERIFY(QFile::setPermissions(secret, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(file_rules::set(secret, QStringLiteral("D:P(A;;FA;;;SY)(A;;FA;;;BA)")),
             DWORD(ERROR_SUCCESS));
    m_config = write(QStringLiteral("agent.json"),
                     "{\"site\": \"bremen\", \"mqtt\": {\"url\": \"mqtts://broker\", \"username\": "
                     "\"agent\", \"passwordFile\": \"password\"}}");

    QCOMPARE(install(), QString());

    // The file belongs to the user of this test.
    QCOMPARE(m_log.warnings.size(), 1);
    QVERIFY2(m_log.warnings.first().contains(QLatin1String("password is open to")),
             qPrintable(m_log.warnings.first()));
}

void ServiceInstallationTest::serviceIsAskedToStopOnceItRuns()
{
    QCOMPARE(install(), QString());
    // The state may have changed before the request arrives.
    states = {SERVICE_START_PENDING, SERVICE_START_PENDING, SERVICE_RUNNING,
              SERVICE_RUNNING,       SERVICE_STOP_PENDING,  SERVICE_STOPPED};
    answers = {ERROR_SERVICE_CANNOT_ACCEPT_CTRL, ERROR_SUCCESS};

    QCOMPARE(messageOf(service::uninstall), QString());

    QCOMPARE(statesOfRequests, (QList<DWORD>{SERVICE_RUNNING, SERVICE_RUNNING}));
    QCOMPARE(states, QList<DWORD>());
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::serviceThatEndsByItselfIsRemoved()
{
    QCOMPARE(install(), QString());
    states = {SERVICE_RUNNING, SERVICE_STOPPED};
    answers = {ERROR_SERVICE_NOT_ACTIVE};

    QCOMPARE(messageOf(service::uninstall), QString());
    QVERIFY(!isInstalled());
}

void ServiceInstallationTest::serviceThatRefusesToStopIsKept()
{
    QCOMPARE(install(), QString());
    states = {SERVICE_RUNNING};
    answers = {ERROR_ACCESS_DENIED};

    const QString message = messageOf(service::uninstall);

    QCOMPARE(message,
             QStringLiteral("the service vxprintagent cannot be removed: Windows allows it to "
                            "administrators alone; use a console that was started as "
                            "administrator"));
    QVERIFY(isInstalled());
}

void ServiceInstallationTest::missingServiceCannotBeRemoved()
{
    const QString message = messageOf(service::uninstall);
    QCOMPARE(message, QStringLiteral("the service vxprintagent is not installed"));
}

void ServiceInstallationTest::consoleIsNoServiceManager()
{
    bool hasRun = false;
    const QString message =
        messageOf([&hasRun] { service::run([&hasRun](AgentHost& /*host*/) { hasRun = true; }); });
    QCOMPARE(message,
             QStringLiteral("the command \"service\" is for the service manager; on a console use "
                            "\"vxprintagent run --config FILE\""));
    QVERIFY(!hasRun);
}

QTEST_GUILESS_MAIN(ServiceInstallationTest)
#include "tst_service_installation.moc"
