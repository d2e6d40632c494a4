// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "service.h"

#include "agent_config.h"
#include "agent_host.h"
#include "event_viewer_log.h"
#include "failure.h"
#include "file_rights_windows.h"
#include "tool_text.h"

#include <AbstractAppender.h>
#include <Logger.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>

#include <array>
#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <type_traits>

#include <windows.h>
#include <winsvc.h>

namespace {

wchar_t serviceName[] = L"vxprintagent";
const wchar_t displayName[] = L"VxPrint Agent";

// What the service manager is told how long a change of state may take, in milliseconds.
constexpr DWORD longestStart = 60000;
constexpr DWORD longestStop = 20000;

struct ClosesService
{
    void operator()(SC_HANDLE service) const { CloseServiceHandle(service); }
};
using ServiceHandle = std::unique_ptr<std::remove_pointer_t<SC_HANDLE>, ClosesService>;

QString systemText(DWORD error)
{
    return qt_error_string(static_cast<int>(error)).trimmed();
}

QString name()
{
    return QString::fromWCharArray(serviceName);
}

/// @name Installing
/// @{

Failure failureOf(const QString& what, DWORD error)
{
    if (error == ERROR_ACCESS_DENIED)
        return Failure(ToolText::tr("%1: Windows allows it to administrators alone; use a console "
                                    "that was started as administrator")
                           .arg(what));
    return Failure(ToolText::tr("%1: %2 (error %3)").arg(what, systemText(error)).arg(error));
}

QString notInstalled()
{
    return ToolText::tr("the service %1 cannot be installed").arg(name());
}

QString notRemoved()
{
    return ToolText::tr("the service %1 cannot be removed").arg(name());
}

ServiceHandle openManager(DWORD access, const QString& otherwise)
{
    ServiceHandle manager(OpenSCManagerW(nullptr, nullptr, access));
    if (!manager)
        throw failureOf(otherwise, GetLastError());
    return manager;
}

/// The service runs with the system's rights, so that nobody else may change what it runs or reads.
void requireUnchangeable(const QString& path, DWORD rights)
{
    const file_rights::Others others = file_rights::others(path, rights);
    const QString shown = QDir::toNativeSeparators(path);
    if (others.error != ERROR_SUCCESS)
        throw failureOf(ToolText::tr("the rights to %1 are not known").arg(shown), others.error);
    if (!others.accounts.isEmpty())
        throw Failure(
            ToolText::tr(
                "%1 may be changed by %2, who would get the rights of the service; move it "
                "to where only administrators may change it, such as below \"C:\\Program "
                "Files\"")
                .arg(shown, others.accounts.join(QLatin1String(", "))));
}

/// Whoever may change or add a DLL decides what the program runs. Plugins are in folders below it.
void requireUnchangeableProgram(const QString& folder)
{
    requireUnchangeable(folder, file_rights::change);
    QDirIterator entries(folder, {QStringLiteral("*.dll")},
                         QDir::Files | QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Hidden,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        requireUnchangeable(entries.next(), file_rights::change);
}

void requireLocal(const QString& path)
{
    const std::wstring root = QDir::toNativeSeparators(path).left(3).toStdWString();
    const bool isRemote = root.starts_with(L"\\\\") || GetDriveTypeW(root.c_str()) == DRIVE_REMOTE;
    if (isRemote)
        throw Failure(
            ToolText::tr("%1 is on a network drive, which a service does not see; copy it "
                         "to this computer")
                .arg(QDir::toNativeSeparators(path)));
}

/// The secrets of a person are refused by the service, which is another account.
void warnOfPersonalSecrets(const AgentConfig& config, AgentLog& log)
{
    if (!config.mqtt)
        return;
    for (const QString& file : {config.mqtt->passwordFile, config.mqtt->keyFile}) {
        if (file.isEmpty())
            continue;
        const file_rights::Others others = file_rights::others(
            file, file_rights::read | file_rights::change, file_rights::Trusted::SystemOnly);
        if (!others.accounts.isEmpty())
            log.warning(
                QStringLiteral("%1 is open to %2; the service, which is the system's own account, "
                               "refuses it unless only the administrators and the system may use "
                               "it: run \"icacls FILE /setowner *S-1-5-32-544\" and \"icacls FILE "
                               "/inheritance:r /grant:r *S-1-5-18:R *S-1-5-32-544:F\"")
                    .arg(QDir::toNativeSeparators(file),
                         others.accounts.join(QLatin1String(", "))));
    }
}

/// A file as an argument on a command line. No name of a file has a quotation mark.
QString quoted(const QString& file)
{
    return u'"' + QDir::toNativeSeparators(file) + u'"';
}

/// Changes one of the settings that have been added to services over time. A service manager that
/// does not know it, such as Wine's, is no reason not to install.
template <typename Info>
void change(SC_HANDLE service, DWORD level, Info info, const char* setting, AgentLog& log)
{
    if (ChangeServiceConfig2W(service, level, &info))
        return;
    const DWORD error = GetLastError();
    if (error != ERROR_INVALID_LEVEL)
        throw failureOf(notInstalled(), error);
    log.warning(QStringLiteral("this system's service manager does not know: %1")
                    .arg(QLatin1String(setting)));
}

/// What happens after the service has ended without being asked to: it is started again, ever more
/// slowly. That includes failures that it reports, such as a port that another program uses or a
/// configuration that is wrong: both may be mended while it waits.
void setRecovery(SC_HANDLE service, AgentLog& log)
{
    constexpr DWORD second = 1000;
    constexpr DWORD day = 24 * 60 * 60; // this one is in seconds
    std::array actions{SC_ACTION{SC_ACTION_RESTART, 10 * second},
                       SC_ACTION{SC_ACTION_RESTART, 60 * second},
                       SC_ACTION{SC_ACTION_RESTART, 300 * second}};
    SERVICE_FAILURE_ACTIONSW recovery{};
    recovery.dwResetPeriod = day;
    recovery.cActions = static_cast<DWORD>(actions.size());
    recovery.lpsaActions = actions.data();
    change(service, SERVICE_CONFIG_FAILURE_ACTIONS, recovery, "recovery actions", log);
    change(service, SERVICE_CONFIG_FAILURE_ACTIONS_FLAG, SERVICE_FAILURE_ACTIONS_FLAG{TRUE},
           "recovery from failures that the service reports", log);
}

void describe(SC_HANDLE service, AgentLog& log)
{
    std::wstring description =
        ToolText::tr(
            "Watches this computer's label printers and publishes what it sees to a broker "
            "and to a monitoring system.")
            .toStdWString();
    change(service, SERVICE_CONFIG_DESCRIPTION, SERVICE_DESCRIPTIONW{description.data()},
           "descriptions", log);
    // After what people wait for when they log on. The printers can wait.
    change(service, SERVICE_CONFIG_DELAYED_AUTO_START_INFO, SERVICE_DELAYED_AUTO_START_INFO{TRUE},
           "delayed starts", log);
}

DWORD stateOf(SC_HANDLE service)
{
    SERVICE_STATUS status{};
    if (!QueryServiceStatus(service, &status))
        throw failureOf(notRemoved(), GetLastError());
    return status.dwCurrentState;
}

void stopService(SC_HANDLE service)
{
    using namespace std::chrono_literals;
    constexpr auto betweenLooks = 100ms;
    const QDeadlineTimer deadline(longestStart + longestStop);
    for (DWORD state = stateOf(service); state != SERVICE_STOPPED; state = stateOf(service)) {
        SERVICE_STATUS status{};
        // While it starts it takes no requests, and it may stop at any moment.
        if (state == SERVICE_RUNNING && !ControlService(service, SERVICE_CONTROL_STOP, &status)) {
            const DWORD error = GetLastError();
            if (error != ERROR_SERVICE_NOT_ACTIVE && error != ERROR_SERVICE_CANNOT_ACCEPT_CTRL)
                throw failureOf(notRemoved(), error);
        }
        if (deadline.hasExpired())
            throw Failure(ToolText::tr("%1: it does not stop; end vxprintagent.exe in the task "
                                       "manager and try again")
                              .arg(notRemoved()));
        std::this_thread::sleep_for(betweenLooks);
    }
}

/// @}
/// @name Running
/// @{

/// Has the library's warnings in the event log too.
class LibraryLog : public AbstractAppender
{
public:
    explicit LibraryLog(AgentLog& log)
        : m_log(log)
    {
        setDetailsLevel(Logger::Warning);
        Logger::globalInstance()->registerAppender(this);
    }
    ~LibraryLog() override { Logger::globalInstance()->removeAppender(this); }
    Q_DISABLE_COPY_MOVE(LibraryLog)

protected:
    void append(const QDateTime& /*timeStamp*/, Logger::LogLevel logLevel, const char* /*file*/,
                int /*line*/, const char* /*function*/, const QString& /*category*/,
                const QString& message) override
    {
        m_log.write(logLevel == Logger::Warning ? AgentLog::Level::Warning : AgentLog::Level::Error,
                    message);
    }

private:
    AgentLog& m_log;
};

/// The service while it runs. The calling thread has the event loop, as everywhere in the agent.
/// The service manager's requests arrive on a thread that does nothing else.
///
/// https://learn.microsoft.com/windows/win32/services/writing-a-servicemain-function
class RunningService : public AgentHost
{
public:
    RunningService() { s_instance = this; }
    ~RunningService() override { s_instance = nullptr; }
    Q_DISABLE_COPY_MOVE(RunningService)

    void run(const std::function<void(AgentHost&)>& work)
    {
        std::thread dispatcher([this] { dispatch(); });
        const DWORD error = m_connected.get_future().get();
        if (error == ERROR_SUCCESS) {
            m_log.information(QStringLiteral("the service has started as %1")
                                  .arg(file_rights::accountOfThisProcess()));
            end(exitStatusOf(work));
        }
        // The service manager does not let go of a service that could not register.
        if (error != ERROR_SUCCESS && m_isMainCalled)
            dispatcher.detach();
        else
            dispatcher.join();
        if (error == ERROR_FAILED_SERVICE_CONTROLLER_CONNECT)
            throw Failure(ToolText::tr("the command \"service\" is for the service manager; "
                                       "on a console use \"vxprintagent run --config FILE\""));
        if (error != ERROR_SUCCESS)
            throw failureOf(ToolText::tr("the service manager does not answer"), error);
    }

    AgentLog& log() override { return m_log; }

    void stopWith(const std::function<void()>& stop) override { m_stop = stop; }

    void reportRunning() override { report(SERVICE_RUNNING); }

private:
    /// Ends when the service has stopped, or at once if this process is no service.
    void dispatch()
    {
        std::array<SERVICE_TABLE_ENTRYW, 2> services{{{serviceName, serviceMain}, {}}};
        if (!StartServiceCtrlDispatcherW(services.data()) && !m_isMainCalled)
            m_connected.set_value(GetLastError());
    }

    static void WINAPI serviceMain(DWORD /*count*/, wchar_t** /*arguments*/)
    {
        s_instance->begin();
    }

    void begin()
    {
        m_isMainCalled = true;
        m_handle = RegisterServiceCtrlHandlerExW(serviceName, handleRequest, this);
        if (!m_handle) {
            m_connected.set_value(GetLastError());
            return;
        }
        report(SERVICE_START_PENDING);
        const std::future<void> ended = m_ended.get_future();
        m_connected.set_value(ERROR_SUCCESS);
        // Its end would be the end of the service.
        ended.wait();
    }

    int exitStatusOf(const std::function<void(AgentHost&)>& work)
    {
        const LibraryLog libraryLog(m_log);
        try {
            work(*this);
            return 0;
        } catch (const Failure& failure) {
            for (const QStringList messages = failure.messages(); const QString& text : messages)
                m_log.error(text);
            return static_cast<int>(failure.exitStatus());
        } catch (const std::exception& exception) {
            m_log.error(QString::fromLocal8Bit(exception.what()));
            return static_cast<int>(ExitStatus::Failed);
        }
    }

    void end(int exitStatus)
    {
        if (exitStatus == 0)
            m_log.information(QStringLiteral("the service has stopped"));
        {
            const std::scoped_lock lock(m_mutex);
            m_status.dwWin32ExitCode = exitStatus == 0 ? NO_ERROR : ERROR_SERVICE_SPECIFIC_ERROR;
            m_status.dwServiceSpecificExitCode = static_cast<DWORD>(exitStatus);
        }
        report(SERVICE_STOPPED);
        m_ended.set_value();
    }

    static DWORD WINAPI handleRequest(DWORD request, DWORD /*type*/, void* /*data*/, void* service)
    {
        switch (request) {
        case SERVICE_CONTROL_STOP:
        case SERVICE_CONTROL_PRESHUTDOWN:
            static_cast<RunningService*>(service)->requestStop();
            return NO_ERROR;
        case SERVICE_CONTROL_INTERROGATE:
            return NO_ERROR;
        default:
            return ERROR_CALL_NOT_IMPLEMENTED;
        }
    }

    void requestStop()
    {
        report(SERVICE_STOP_PENDING);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [this] { m_stop(); }, Qt::QueuedConnection);
    }

    void report(DWORD state)
    {
        const std::scoped_lock lock(m_mutex);
        // A service that has been asked to stop is not told to run any more.
        const bool isStopping = m_status.dwCurrentState == SERVICE_STOP_PENDING;
        if (isStopping && state == SERVICE_RUNNING)
            return;
        m_status.dwCurrentState = state;
        // The shutdown before the others: then the network is still there to say goodbye on.
        m_status.dwControlsAccepted =
            state == SERVICE_RUNNING ? SERVICE_ACCEPT_STOP | SERVICE_ACCEPT_PRESHUTDOWN : 0;
        m_status.dwWaitHint = state == SERVICE_START_PENDING  ? longestStart
                              : state == SERVICE_STOP_PENDING ? longestStop
                                                              : 0;
        SetServiceStatus(m_handle, &m_status);
    }

    static RunningService* s_instance; ///< for the function that has no argument of ours

    EventViewerLog m_log;
    std::function<void()> m_stop = [] {
    };
    std::atomic<bool> m_isMainCalled = false;
    std::promise<DWORD> m_connected; ///< an error of Windows, or that there was none
    std::promise<void> m_ended;
    SERVICE_STATUS_HANDLE m_handle = nullptr;
    std::mutex m_mutex;
    SERVICE_STATUS m_status{SERVICE_WIN32_OWN_PROCESS, 0, 0, NO_ERROR, 0, 0, 0};
};

RunningService* RunningService::s_instance = nullptr;

/// @}

} // namespace

void service::install(const QString& configFile, AgentLog& log)
{
    const QString config = QFileInfo(configFile).absoluteFilePath();
    const QString program = QCoreApplication::applicationFilePath();
    warnOfPersonalSecrets(readAgentConfig(config), log);
    for (const QString& file : {program, config}) {
        requireLocal(file);
        requireUnchangeable(file, file_rights::change);
    }
    requireUnchangeableProgram(QFileInfo(program).absolutePath());
    requireUnchangeable(QFileInfo(config).absolutePath(), file_rights::replaceInFolder);

    const ServiceHandle manager =
        openManager(SC_MANAGER_CONNECT | SC_MANAGER_CREATE_SERVICE, notInstalled());
    const std::wstring command =
        (quoted(program) + QLatin1String(" service --config ") + quoted(config)).toStdWString();
    // It does not depend on the print spooler, which would then stop it: that the spooler is down
    // is what it has to publish. Its account is the system's own, because printers allow only those
    // who manage them to read their data.
    const ServiceHandle service(
        CreateServiceW(manager.get(), serviceName, displayName, SERVICE_ALL_ACCESS,
                       SERVICE_WIN32_OWN_PROCESS, SERVICE_AUTO_START, SERVICE_ERROR_NORMAL,
                       command.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr));
    if (!service) {
        const DWORD error = GetLastError();
        if (error == ERROR_SERVICE_EXISTS)
            throw Failure(
                ToolText::tr("%1: it is installed already; run \"vxprintagent uninstall\" "
                             "first")
                    .arg(notInstalled()));
        throw failureOf(notInstalled(), error);
    }
    try {
        describe(service.get(), log);
        setRecovery(service.get(), log);
        if (const DWORD error = EventViewerLog::addSource(program); error != ERROR_SUCCESS)
            throw failureOf(notInstalled(), error);
    } catch (const Failure&) {
        DeleteService(service.get()); // not half a service
        throw;
    }
    log.information(ToolText::tr("the service %1 is installed and starts with Windows; to start it "
                                 "now: net start %1")
                        .arg(name()));
}

void service::uninstall()
{
    const ServiceHandle manager = openManager(SC_MANAGER_CONNECT, notRemoved());
    const ServiceHandle service(
        OpenServiceW(manager.get(), serviceName, SERVICE_STOP | SERVICE_QUERY_STATUS | DELETE));
    if (!service) {
        const DWORD error = GetLastError();
        if (error == ERROR_SERVICE_DOES_NOT_EXIST)
            throw Failure(ToolText::tr("the service %1 is not installed").arg(name()));
        throw failureOf(notRemoved(), error);
    }
    stopService(service.get());
    if (!DeleteService(service.get())) {
        const DWORD error = GetLastError();
        if (error == ERROR_SERVICE_MARKED_FOR_DELETE)
            throw Failure(ToolText::tr("%1 yet: another program has it open; close the list of "
                                       "services and the event viewer")
                              .arg(notRemoved()));
        throw failureOf(notRemoved(), error);
    }
    if (const DWORD error = EventViewerLog::removeSource(); error != ERROR_SUCCESS)
        throw failureOf(notRemoved(), error);
}

void service::run(const std::function<void(AgentHost&)>& work)
{
    RunningService().run(work);
}
