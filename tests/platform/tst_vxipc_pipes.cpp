// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// How endpoints obtain their pipes on Windows, and which pipes clients trust.
//
// Tested here: the name, the owner and the rights of a pipe, that a name is taken only once, whose
// pipes are trusted, and how long clients wait. Not tested under Wine: that other users and
// machines are kept out, and what a server may do in a client's name. Wine has one user, checks no
// rights when a pipe is opened, accepts no clients from other machines, and has a server
// impersonate its own process whoever the client is (wine/server/named_pipe.c,
// FSCTL_PIPE_IMPERSONATE).
#include "ipc_host_process.h"
#include "ipc_raw_client.h"
#include "ipc_test_service.h"
#include "is_wine.h"
#include "vxipcclient.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>

#include <array>
#include <chrono>
#include <cstddef>
#include <memory>
#include <vector>

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

using namespace std::chrono_literals;

namespace {

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, HandleCloser>;

struct LocalMemoryFreer
{
    void operator()(void* memory) const { LocalFree(memory); }
};
using OwnedMemory = std::unique_ptr<void, LocalMemoryFreer>;

OwnedHandle owned(HANDLE handle)
{
    return OwnedHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

QString text(PSID identifier)
{
    wchar_t* text = nullptr;
    if (!ConvertSidToStringSidW(identifier, &text))
        return {};
    const OwnedMemory memory(text);
    return QString::fromWCharArray(text);
}

QString userOfProcess()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    const OwnedHandle closeToken(token);
    alignas(TOKEN_USER) std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user = {};
    DWORD size = 0;
    if (!GetTokenInformation(token, TokenUser, user.data(), static_cast<DWORD>(user.size()), &size))
        return {};
    return text(reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid);
}

QString pathOf(const QString& name)
{
    return QStringLiteral(R"(\\.\pipe\)") + VXIPCClient::address(name);
}

OwnedHandle openPipe(const QString& path)
{
    return owned(CreateFileW(qUtf16Printable(path), GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                             OPEN_EXISTING, 0, nullptr));
}

/// A pipe of the test itself at the path, of which up to `ends` instances may exist. `rights` is a
/// security descriptor in string form.
OwnedHandle makePipe(const QString& path, const QString& rights, DWORD ends = 1)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
            qUtf16Printable(rights), SDDL_REVISION_1, &descriptor, nullptr)) {
        return nullptr;
    }
    const OwnedMemory memory(descriptor);
    SECURITY_ATTRIBUTES attributes = {};
    attributes.nLength = sizeof(attributes);
    attributes.lpSecurityDescriptor = descriptor;
    return owned(CreateNamedPipeW(qUtf16Printable(path), PIPE_ACCESS_DUPLEX | FILE_FLAG_OVERLAPPED,
                                  PIPE_TYPE_BYTE, ends, 4096, 4096, 0, &attributes));
}

/// The rights that the pipes of the user's own endpoints have.
QString usersOwn()
{
    return QStringLiteral("O:%1D:P(A;;FA;;;%1)").arg(userOfProcess());
}

} // namespace

class tst_VXIPCPipes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isNamedAfterTheUser();
    void belongsToTheUser();
    void takesNoNameThatIsInUse();
    void takesNoNameOfABusyPipe();
    void isPublishedOnceAnyNameIsFree();
    void keepsItsNameWhenItsClientsLeave();
    void refusesOtherMachines();

    void trustsOnlyTheUsersOwn_data();
    void trustsOnlyTheUsersOwn();
    void allowsIdentificationOnly();
    void waitsForAConnectionNoLongerThanForTheAnswer();
};

void tst_VXIPCPipes::isNamedAfterTheUser()
{
    const QString user = userOfProcess();
    QVERIFY2(user.startsWith(QStringLiteral("S-1-")), qPrintable(user));
    QCOMPARE(VXIPCClient::address(QStringLiteral("vxipc-0")), QStringLiteral("vxipc-0@") + user);
}

void tst_VXIPCPipes::belongsToTheUser()
{
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const OwnedHandle pipe = openPipe(pathOf(service.serverName()));
    QVERIFY2(pipe, qPrintable(qt_error_string()));
    PSID owner = nullptr;
    PACL rights = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    QCOMPARE(GetSecurityInfo(pipe.get(), SE_KERNEL_OBJECT,
                             OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner,
                             nullptr, &rights, nullptr, &descriptor),
             DWORD{ERROR_SUCCESS});
    const OwnedMemory memory(descriptor);
    QCOMPARE(text(owner), userOfProcess());
    QVERIFY(rights);
    QCOMPARE(rights->AceCount, WORD{1});
    ACCESS_ALLOWED_ACE* entry = nullptr;
    QVERIFY(GetAce(rights, 0, reinterpret_cast<void**>(&entry)));
    QCOMPARE(entry->Header.AceType, BYTE{ACCESS_ALLOWED_ACE_TYPE});
    QCOMPARE(text(&entry->SidStart), userOfProcess());
}

void tst_VXIPCPipes::takesNoNameThatIsInUse()
{
    // Its rights let anybody create further instances of this pipe.
    const int serverType = newServerType();
    const OwnedHandle pipe = makePipe(pathOf(nameOf(serverType)), QStringLiteral("D:P(A;;FA;;;WD)"),
                                      PIPE_UNLIMITED_INSTANCES);
    QVERIFY2(pipe, qPrintable(qt_error_string()));
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), ownNameOf(serverType));
    DWORD ends = 0;
    QVERIFY(GetNamedPipeHandleStateW(pipe.get(), nullptr, &ends, nullptr, nullptr, nullptr, 0));
    QCOMPARE(ends, DWORD{1});
    RawClient client(service.serverName());
    QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void tst_VXIPCPipes::takesNoNameOfABusyPipe()
{
    constexpr int services = 6;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < services; ++i) {
        const int serverType = newServerType();
        const QString path = pathOf(nameOf(serverType));
        const OwnedHandle pipe = makePipe(path, usersOwn());
        QVERIFY2(pipe, qPrintable(qt_error_string()));
        const OwnedHandle client = openPipe(path);
        QVERIFY2(client, qPrintable(qt_error_string()));
        TestService service(serverType);
        QTRY_COMPARE(service.serverName(), ownNameOf(serverType));
    }
    // With five seconds for each, for which a client may wait for a free instance, it would be more
    // than twice that.
    QVERIFY2(timer.elapsed() < services * 2000, qPrintable(QString::number(timer.elapsed())));
}

void tst_VXIPCPipes::isPublishedOnceAnyNameIsFree()
{
    const int serverType = newServerType();
    OwnedHandle first = makePipe(pathOf(nameOf(serverType)), usersOwn());
    QVERIFY(first);
    std::vector<OwnedHandle> others;
    others.push_back(makePipe(pathOf(ownNameOf(serverType)), usersOwn()));
    for (int i = 2; i <= 100; ++i) {
        const QString name = ownNameOf(serverType) + QLatin1Char('-') + QString::number(i);
        others.push_back(makePipe(pathOf(name), usersOwn()));
        QVERIFY(others.back());
    }
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("is not published: .* are taken")));
    TestService service(serverType);
    QCoreApplication::sendPostedEvents(&service);
    QCOMPARE(service.serverName(), QString());
    first.reset();
    // On a busy machine the retry intervals have grown by now.
    QTRY_COMPARE_WITH_TIMEOUT(service.serverName(), nameOf(serverType), 30000);
}

void tst_VXIPCPipes::keepsItsNameWhenItsClientsLeave()
{
    const int serverType = newServerType();
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), nameOf(serverType));
    // More clients than server ends that wait at a time.
    for (int i = 0; i < 300; ++i) {
        RawClient client(service.serverName());
        QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    }
    TestService other(serverType);
    QTRY_COMPARE(other.serverName(), ownNameOf(serverType));
    RawClient client(service.serverName());
    QVERIFY(client.isConnected());
}

void tst_VXIPCPipes::refusesOtherMachines()
{
    if (isWine())
        QSKIP("Wine opens no pipes through the network");
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const OwnedHandle pipe = openPipe(QStringLiteral(R"(\\localhost\pipe\)") +
                                      VXIPCClient::address(service.serverName()));
    const DWORD error = GetLastError();
    QVERIFY(!pipe);
    QCOMPARE(error, DWORD{ERROR_ACCESS_DENIED});
}

void tst_VXIPCPipes::trustsOnlyTheUsersOwn_data()
{
    QTest::addColumn<QString>("rights");
    QTest::addColumn<bool>("isBelieved");

    QTest::newRow("the user's") << usersOwn() << true;
    // Stands for other users: an administrator may name this group as the owner.
    QTest::newRow("the administrators'") << QStringLiteral("O:BAD:P(A;;FA;;;WD)") << false;
}

void tst_VXIPCPipes::trustsOnlyTheUsersOwn()
{
    QFETCH(const QString, rights);
    QFETCH(const bool, isBelieved);

    const int serverType = newServerType();
    const QString path = pathOf(nameOf(serverType));
    const OwnedHandle pipe = makePipe(path, rights);
    if (!pipe && GetLastError() == ERROR_INVALID_OWNER)
        QSKIP("Only an administrator can create this pipe");
    QVERIFY2(pipe, qPrintable(qt_error_string()));
    VXIPCClient client(serverType);
    QCOMPARE(client.connectToServer(), isBelieved);
    if (isBelieved)
        return;
    DisconnectNamedPipe(pipe.get());
    OVERLAPPED overlapped = {};
    ConnectNamedPipe(pipe.get(), &overlapped);
    const VXIPCReply reply = client.callAndWait(QStringLiteral("notes"), {}, 100ms);
    CancelIo(pipe.get());
    QCOMPARE(reply.error->code, int(VXIPCError::NotReachable));
    QVERIFY2(reply.error->message.contains(path) &&
                 reply.error->message.contains(QStringLiteral("belongs to another user")),
             qPrintable(reply.error->message));
}

void tst_VXIPCPipes::allowsIdentificationOnly()
{
    if (isWine())
        QSKIP("Wine ignores the impersonation level that a client sets");
    const int serverType = newServerType();
    const OwnedHandle pipe = makePipe(pathOf(nameOf(serverType)), usersOwn());
    QVERIFY2(pipe, qPrintable(qt_error_string()));
    VXIPCClient client(serverType);
    QVERIFY(client.connectToServer());
    QVERIFY(client.notify(QStringLiteral("notes")));
    // The level is that of the message read last.
    std::array<char, 1> byte = {};
    DWORD size = 0;
    OVERLAPPED overlapped = {};
    ReadFile(pipe.get(), byte.data(), static_cast<DWORD>(byte.size()), nullptr, &overlapped);
    QVERIFY(GetOverlappedResult(pipe.get(), &overlapped, &size, TRUE));
    QVERIFY(ImpersonateNamedPipeClient(pipe.get()));
    HANDLE token = nullptr;
    const bool isOpen = OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, TRUE, &token) != 0;
    QVERIFY(RevertToSelf());
    QVERIFY(isOpen);
    const OwnedHandle closeToken(token);
    SECURITY_IMPERSONATION_LEVEL level = SecurityAnonymous;
    QVERIFY(GetTokenInformation(token, TokenImpersonationLevel, &level, sizeof(level), &size));
    QCOMPARE(int(level), int(SecurityIdentification));
}

void tst_VXIPCPipes::waitsForAConnectionNoLongerThanForTheAnswer()
{
    constexpr int callCount = 6;
    const int serverType = newServerType();
    const QString path = pathOf(nameOf(serverType));
    const OwnedHandle pipe = makePipe(path, usersOwn());
    QVERIFY2(pipe, qPrintable(qt_error_string()));
    const OwnedHandle other = openPipe(path);
    QVERIFY2(other, qPrintable(qt_error_string()));

    VXIPCClient client(serverType);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < callCount; ++i) {
        const VXIPCReply reply = client.callAndWait(QStringLiteral("notes"), {}, 1ms);
        QCOMPARE(reply.error->code, int(VXIPCError::NotReachable));
    }
    // With five seconds for each, it would be more than twice that.
    QVERIFY2(timer.elapsed() < callCount * 2000, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(tst_VXIPCPipes)
#include "tst_vxipc_pipes.moc"
