// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// When and under which name an endpoint is published, and who can connect to it.
#include "ipc_host_process.h"
#include "ipc_json.h"
#include "ipc_server_test.h"
#include "scoped_variable.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>

#ifdef Q_OS_UNIX
#include <grp.h>
// <csignal> need not declare kill().
#include <signal.h> // NOLINT(modernize-deprecated-headers)
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#else
#include <windows.h>

#include <aclapi.h>
#endif

using namespace ipc_json;

namespace {

#ifdef Q_OS_UNIX

/// The error number that a process of `user` gets when it connects to the socket; 0 for success.
int connectionFault(const QByteArray& address, uid_t user)
{
    const pid_t child = fork();
    if (child == 0) {
        sockaddr_un name = {};
        name.sun_family = AF_UNIX;
        std::copy(address.cbegin(), address.cend(), name.sun_path);
        const int descriptor = socket(AF_UNIX, SOCK_STREAM, 0);
        const bool isOther = setgroups(0, nullptr) == 0 && setgid(user) == 0 && setuid(user) == 0;
        const bool isConnected =
            connect(descriptor, reinterpret_cast<const sockaddr*>(&name), sizeof(name)) == 0;
        _exit(!isOther ? 255 : isConnected ? 0 : errno);
    }
    int status = -1;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#else

bool isThisUser(PSID user)
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return false;
    const auto closeToken = qScopeGuard([&] { CloseHandle(token); });
    std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> buffer = {};
    DWORD size = 0;
    return GetTokenInformation(token, TokenUser, buffer.data(), static_cast<DWORD>(buffer.size()),
                               &size) &&
           EqualSid(reinterpret_cast<TOKEN_USER*>(buffer.data())->User.Sid, user);
}

#endif

/// An endpoint on a thread of its own.
class ServiceOnThread
{
public:
    explicit ServiceOnThread(int serverType)
    {
        auto* service = new TestService(serverType);
        service->moveToThread(&m_thread);
        QObject::connect(&m_thread, &QThread::finished, service, &QObject::deleteLater);
        m_thread.start();
    }
    ~ServiceOnThread()
    {
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(ServiceOnThread)

private:
    QThread m_thread;
};

} // namespace

class VXIPCPublishingTest : public IpcServerTest
{
    Q_OBJECT

private Q_SLOTS:
    void isPublishedWhenTheEventLoopRuns();
    void isPublishedOnItsThread();
    void servesClientsThatConnectAsItIsPublished();
    void addsTheProcessIdToATakenName();
    void addsTheProcessIdWhenAnotherProcessHoldsTheName();
    void leavesTheNameToAProcessThatIsStopped();
    void takesTheNameOfADeadProcess();
    void leavesNoSocketBehind();
    void admitsOnlyTheUser();
    void keepsOtherUsersOut();
    void isNotPublishedWhereOthersMayWrite_data();
    void isNotPublishedWhereOthersMayWrite();
};

void VXIPCPublishingTest::isPublishedWhenTheEventLoopRuns()
{
    TestService service(newServerType());
    QVERIFY(service.serverName().isEmpty());
    QTRY_VERIFY(!service.serverName().isEmpty());
    RawClient client(service.serverName());
    QVERIFY(client.isConnected());
    QCOMPARE(client.call("echo", R"(["a"])")[QStringLiteral("result")].toString(),
             QStringLiteral("a"));
}

void VXIPCPublishingTest::isPublishedOnItsThread()
{
    const int serverType = newServerType();
    const ServiceOnThread service(serverType);
    const QString name = nameOf(serverType);
    QTRY_VERIFY(RawClient(name).isConnected());
    RawClient client(name);
    QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void VXIPCPublishingTest::servesClientsThatConnectAsItIsPublished()
{
    for (int round = 0; round < 60; ++round) {
        const int serverType = newServerType();
        const ServiceOnThread service(serverType);
        // The first client that can connect at all does so while the endpoint prepares for the
        // next.
        const QString name = nameOf(serverType);
        while (!RawClient(name).isConnected())
            QThread::yieldCurrentThread();
        RawClient client(name);
        QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    }
}

void VXIPCPublishingTest::addsTheProcessIdToATakenName()
{
    const int serverType = newServerType();
    const QString name = nameOf(serverType);
    const QString withProcess = ownNameOf(serverType);
    TestService first(serverType);
    QTRY_COMPARE(first.serverName(), name);
    TestService second(serverType);
    QTRY_COMPARE(second.serverName(), withProcess);
    TestService third(serverType);
    QTRY_COMPARE(third.serverName(), withProcess + QStringLiteral("-2"));

    for (TestService* service : {&first, &second, &third}) {
        service->log = {service->serverName()};
        RawClient client(service->serverName());
        QCOMPARE(client.call("notes")[QStringLiteral("result")][0].toString(),
                 service->serverName());
    }
}

void VXIPCPublishingTest::addsTheProcessIdWhenAnotherProcessHoldsTheName()
{
    const int serverType = newServerType();
    const QString name = nameOf(serverType);
    HostProcess other(serverType);
    QCOMPARE(other.serverName(), name);

    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), ownNameOf(serverType));
    service.log = {QStringLiteral("here")};
    RawClient client(service.serverName());
    QCOMPARE(client.call("notes")[QStringLiteral("result")], parsed(R"(["here"])"));
    // The other endpoint has kept its name.
    RawClient otherClient(name);
    QCOMPARE(otherClient.call("notes")[QStringLiteral("result")], parsed("[]"));
}

void VXIPCPublishingTest::leavesTheNameToAProcessThatIsStopped()
{
#ifdef Q_OS_UNIX
    // The process does not answer, but the system accepts connections for it.
    const int serverType = newServerType();
    const QString name = nameOf(serverType);
    HostProcess other(serverType);
    QCOMPARE(other.serverName(), name);
    QCOMPARE(kill(static_cast<pid_t>(other.processId()), SIGSTOP), 0);
    const auto goOn = qScopeGuard([&] { kill(static_cast<pid_t>(other.processId()), SIGCONT); });
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), ownNameOf(serverType));
#else
    QSKIP("Windows has no signal that stops a process");
#endif
}

void VXIPCPublishingTest::takesTheNameOfADeadProcess()
{
    const int serverType = newServerType();
    const QString name = nameOf(serverType);
    {
        HostProcess other(serverType);
        QCOMPARE(other.serverName(), name);
        other.kill();
    }
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), name);
    RawClient client(name);
    QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void VXIPCPublishingTest::leavesNoSocketBehind()
{
    const QString name = serverName();
    m_service.reset();
    QVERIFY(!RawClient(name).isConnected());
#ifdef Q_OS_UNIX
    QVERIFY(!QFileInfo::exists(VXIPCClient::address(name)));
#endif
}

void VXIPCPublishingTest::admitsOnlyTheUser()
{
#ifdef Q_OS_UNIX
    const QFileInfo socket(VXIPCClient::address(serverName()));
    constexpr auto groupAndOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                    QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QVERIFY(socket.exists());
    QCOMPARE(socket.permissions() & groupAndOthers, QFile::Permissions());
    const QFileInfo folder(socket.path());
    QCOMPARE(folder.ownerId(), socket.ownerId());
    QCOMPARE(folder.permissions() & (QFile::WriteGroup | QFile::WriteOther), QFile::Permissions());
#else
    const QString path = QStringLiteral(R"(\\.\pipe\)") + VXIPCClient::address(serverName());
    HANDLE pipe = CreateFileW(qUtf16Printable(path), GENERIC_READ | GENERIC_WRITE | READ_CONTROL, 0,
                              nullptr, OPEN_EXISTING, 0, nullptr);
    QVERIFY2(pipe != INVALID_HANDLE_VALUE, qPrintable(qt_error_string()));
    const auto closePipe = qScopeGuard([&] { CloseHandle(pipe); });
    PACL accessList = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    QCOMPARE(GetSecurityInfo(pipe, SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                             &accessList, nullptr, &descriptor),
             DWORD{ERROR_SUCCESS});
    const auto freeDescriptor = qScopeGuard([&] { LocalFree(descriptor); });
    QVERIFY(accessList);
    QVERIFY(accessList->AceCount > 0);
    for (DWORD i = 0; i < accessList->AceCount; ++i) {
        ACCESS_ALLOWED_ACE* entry = nullptr;
        QVERIFY(GetAce(accessList, i, reinterpret_cast<void**>(&entry)));
        QCOMPARE(entry->Header.AceType, BYTE{ACCESS_ALLOWED_ACE_TYPE});
        QVERIFY(isThisUser(&entry->SidStart));
    }
#endif
}

void VXIPCPublishingTest::keepsOtherUsersOut()
{
#ifdef Q_OS_UNIX
    if (geteuid() != 0)
        QSKIP("Only root can connect as another user");
    // In a folder that others may enter, so that the socket has to keep them out.
    const QTemporaryDir folder;
    QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                     QFile::ExeOwner | QFile::ReadOther |
                                                     QFile::ExeOther));
    const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.path());
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QByteArray address = QFile::encodeName(VXIPCClient::address(service.serverName()));
    QCOMPARE(connectionFault(address, geteuid()), 0);
    constexpr uid_t nobody = 65534;
    QCOMPARE(connectionFault(address, nobody), EACCES);
#else
    QSKIP("A test cannot log in as another user");
#endif
}

void VXIPCPublishingTest::isNotPublishedWhereOthersMayWrite_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("others may write")
        << QStringLiteral("shared") << QStringLiteral("other users may write to it");
    QTest::newRow("a group may write")
        << QStringLiteral("group") << QStringLiteral("other users may write to it");
    QTest::newRow("a file") << QStringLiteral("file") << QStringLiteral("is not a folder");
    QTest::newRow("a link to a folder")
        << QStringLiteral("link") << QStringLiteral("is not a folder");
    QTest::newRow("nowhere") << QStringLiteral("missing/nowhere") << QString();
}

void VXIPCPublishingTest::isNotPublishedWhereOthersMayWrite()
{
#ifdef Q_OS_UNIX
    QFETCH(const QString, kind);
    QFETCH(const QString, complaint);

    const QTemporaryDir parent;
    const QDir folder(parent.path());
    const auto addPermissions = [&](const QString& name, QFile::Permissions more) {
        return folder.mkdir(name) &&
               QFile::setPermissions(folder.filePath(name),
                                     QFile::permissions(folder.filePath(name)) | more);
    };
    QVERIFY(addPermissions(QStringLiteral("shared"), QFile::WriteOther));
    QVERIFY(addPermissions(QStringLiteral("group"), QFile::WriteGroup));
    QVERIFY(QFile(folder.filePath(QStringLiteral("file"))).open(QFile::WriteOnly));
    QVERIFY(folder.mkdir(QStringLiteral("own")));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("own")),
                        folder.filePath(QStringLiteral("link"))));

    const ScopedVariable runtime("XDG_RUNTIME_DIR", folder.filePath(kind));
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression(QStringLiteral("is not published: .*/%1.*%2").arg(kind, complaint)));
    TestService service(newServerType());
    // The endpoint is published, or not, with the first events.
    QCoreApplication::sendPostedEvents(&service);
    QCOMPARE(service.serverName(), QString());
    QCOMPARE(service.echo(QStringLiteral("here")), QStringLiteral("here"));
#else
    QSKIP("Pipes are not in a folder");
#endif
}

QTEST_GUILESS_MAIN(VXIPCPublishingTest)
#include "tst_vxipc_publishing.moc"
