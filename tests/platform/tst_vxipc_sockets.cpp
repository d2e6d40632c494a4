// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// How endpoints obtain and keep their sockets, and which sockets clients trust.
#include "ipc_name_lock.h"
#include "ipc_raw_client.h"
#include "ipc_test_service.h"
#include "scoped_variable.h"
#include "vxipcclient.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonObject>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtNetwork/QLocalServer>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <memory>
#include <vector>

#include <fcntl.h>
#include <linux/capability.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

constexpr auto runtimeFolder = "XDG_RUNTIME_DIR";
constexpr uid_t nobody = 65534;

/// Takes the name of a service and the first `count` names with the process id. False when one
/// could not be taken.
bool takeNames(const QDir& folder, int serverType, int count)
{
    bool areTaken = folder.mkdir(nameOf(serverType)) && folder.mkdir(ownNameOf(serverType));
    for (int i = 2; i <= count; ++i) {
        areTaken =
            folder.mkdir(ownNameOf(serverType) + QLatin1Char('-') + QString::number(i)) && areTaken;
    }
    return areTaken;
}

/// Collects the complaints of endpoints.
class Complaints
{
public:
    Complaints()
    {
        list().clear();
        m_before = qInstallMessageHandler(handle);
    }
    ~Complaints() { qInstallMessageHandler(m_before); }
    Q_DISABLE_COPY_MOVE(Complaints)

    qsizetype size() const { return list().size(); }
    QString last() const { return list().isEmpty() ? QString() : list().last(); }

private:
    static QStringList& list()
    {
        static QStringList complaints;
        return complaints;
    }
    static void handle(QtMsgType /*type*/, const QMessageLogContext& /*context*/,
                       const QString& message)
    {
        list().append(message);
    }

    QtMessageHandler m_before;
};

/// Uses up all file descriptors that this process may open.
class NoDescriptors
{
public:
    NoDescriptors()
    {
        getrlimit(RLIMIT_NOFILE, &m_before);
        rlimit few = m_before;
        few.rlim_cur = std::min<rlim_t>(256, few.rlim_cur);
        setrlimit(RLIMIT_NOFILE, &few);
        for (int descriptor = dup(STDIN_FILENO); descriptor >= 0; descriptor = dup(STDIN_FILENO))
            m_taken.push_back(descriptor);
        m_areNone = errno == EMFILE;
    }
    ~NoDescriptors()
    {
        for (const int descriptor : m_taken)
            close(descriptor);
        setrlimit(RLIMIT_NOFILE, &m_before);
    }
    Q_DISABLE_COPY_MOVE(NoDescriptors)

    bool areNone() const { return m_areNone; }

private:
    rlimit m_before = {};
    std::vector<int> m_taken;
    bool m_areNone = false;
};

/// Makes file permissions bind this thread even when root runs the test.
class BoundByPermissions
{
public:
    BoundByPermissions() { m_isBound = read(m_before) && write(without(m_before)); }
    ~BoundByPermissions() { write(m_before); }
    Q_DISABLE_COPY_MOVE(BoundByPermissions)

    bool isBound() const { return m_isBound; }

private:
    using Capabilities = std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3>;

    static __user_cap_header_struct header() { return {_LINUX_CAPABILITY_VERSION_3, 0}; }
    static bool read(Capabilities& capabilities)
    {
        __user_cap_header_struct of = header();
        return syscall(SYS_capget, &of, capabilities.data()) == 0;
    }
    static bool write(const Capabilities& capabilities)
    {
        __user_cap_header_struct of = header();
        return syscall(SYS_capset, &of, capabilities.data()) == 0;
    }
    static Capabilities without(Capabilities capabilities)
    {
        capabilities[0].effective &= ~((1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH));
        return capabilities;
    }

    Capabilities m_before = {};
    bool m_isBound = false;
};

/// Counts the time-outs of the timers that belong to an object, which are its retries.
class Retries
{
public:
    explicit Retries(const QObject& object)
    {
        for (QTimer* timer : object.findChildren<QTimer*>())
            m_spies.push_back(std::make_unique<QSignalSpy>(timer, &QTimer::timeout));
    }

    qsizetype count() const
    {
        qsizetype sum = 0;
        for (const std::unique_ptr<QSignalSpy>& spy : m_spies)
            sum += spy->size();
        return sum;
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

/// A socket of the test itself.
class PlainSocket
{
public:
    PlainSocket()
        : m_descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0))
    {}
    ~PlainSocket() { close(m_descriptor); }
    Q_DISABLE_COPY_MOVE(PlainSocket)

    bool connectTo(const QString& path) const
    {
        const sockaddr_un name = address(path);
        return connect(m_descriptor, reinterpret_cast<const sockaddr*>(&name), sizeof(name)) == 0;
    }
    /// Accepts no clients; the system lets a few wait.
    bool listenAt(const QString& path) const
    {
        const sockaddr_un name = address(path);
        return bind(m_descriptor, reinterpret_cast<const sockaddr*>(&name), sizeof(name)) == 0 &&
               chmod(name.sun_path, S_IRUSR | S_IWUSR) == 0 && listen(m_descriptor, 0) == 0;
    }
    void send(const QByteArray& bytes) const
    {
        ::send(m_descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size()),
               MSG_NOSIGNAL);
    }
    QByteArray received() const
    {
        QByteArray bytes(4096, '\0');
        const ssize_t size =
            recv(m_descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()), 0);
        return bytes.first(std::max<ssize_t>(size, 0));
    }

private:
    static sockaddr_un address(const QString& path)
    {
        sockaddr_un name = {};
        name.sun_family = AF_UNIX;
        const QByteArray encoded = QFile::encodeName(path);
        std::copy(encoded.cbegin(), encoded.cend(), name.sun_path);
        return name;
    }

    int m_descriptor;
};

} // namespace

class VXIPCSocketsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isPublishedOnceThereAreDescriptors();
    void isPublishedOnceAnyNameIsAllowed();
    void isPublishedOnceAnyNameIsFree();
    void isPublishedUnderTheLastOfItsNames();
    void isPublishedOnceItsFolderIsTheUsersAlone();
    void acceptsClientsOnceThereAreDescriptors();
    void complainsEachTimeItCannotAcceptClients();
    void takesNoNameWithoutItsLock();
    void takesNoNameWhoseLockIsNotAFile_data();
    void takesNoNameWhoseLockIsNotAFile();
    void doesNotWaitForALockThatIsNotAFile();
    void takesTheNameWhoseLockADeadProcessLeft();
    void leavesWhatIsNotASocket();
    void leavesTheSocketThatTookItsPlace();
    void ignoresARelativeFolder();

    void trustsOnlyTheUsersOwn_data();
    void trustsOnlyTheUsersOwn();
    void findsNoEndpointInAMissingFolder();
    void waitsForAConnectionNoLongerThanForTheAnswer();
};

void VXIPCSocketsTest::initTestCase()
{
    // The undefined-behaviour sanitizer inspects an object through a pipe when it first sees the
    // object's class. Without descriptors it would report the object as invalid.
    const int serverType = newServerType();
    const TestService service(serverType);
    QTRY_COMPARE(service.serverName(), nameOf(serverType));
    RawClient client(service.serverName());
    QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void VXIPCSocketsTest::isPublishedOnceThereAreDescriptors()
{
    const int serverType = newServerType();
    TestService service(serverType);
    const Complaints complaints;
    {
        const NoDescriptors noDescriptors;
        QVERIFY(noDescriptors.areNone());
        QCoreApplication::sendPostedEvents(&service);
        QCOMPARE(service.serverName(), QString());
        const Retries retries(service);
        QTRY_VERIFY(retries.count() >= 3);
        QCOMPARE(service.serverName(), QString());
    }
    QCOMPARE(complaints.size(), 1);
    QVERIFY2(complaints.last().contains(nameOf(serverType)), qPrintable(complaints.last()));
    QVERIFY2(complaints.last().contains(qt_error_string(EMFILE)), qPrintable(complaints.last()));
    QTRY_COMPARE(service.serverName(), nameOf(serverType));
    RawClient client(service.serverName());
    QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void VXIPCSocketsTest::isPublishedOnceAnyNameIsAllowed()
{
    const QTemporaryDir folder;
    const ScopedVariable runtime(runtimeFolder, folder.path());
    const int serverType = newServerType();
    TestService service(serverType);
    const Complaints complaints;
    {
        const BoundByPermissions bound;
        QVERIFY(bound.isBound());
        QVERIFY(QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner));
        QCoreApplication::sendPostedEvents(&service);
        const Retries retries(service);
        QTRY_VERIFY(retries.count() >= 3);
        QCOMPARE(service.serverName(), QString());
        QVERIFY(QFile::setPermissions(folder.path(),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    QCOMPARE(complaints.size(), 1);
    QVERIFY2(complaints.last().contains(qt_error_string(EACCES)), qPrintable(complaints.last()));
    QTRY_COMPARE(service.serverName(), nameOf(serverType));
}

void VXIPCSocketsTest::isPublishedOnceAnyNameIsFree()
{
    const QTemporaryDir folder;
    const ScopedVariable runtime(runtimeFolder, folder.path());
    const int serverType = newServerType();
    const QDir names(folder.path());
    QVERIFY(takeNames(names, serverType, 100));

    TestService service(serverType);
    const Complaints complaints;
    QCoreApplication::sendPostedEvents(&service);
    const Retries retries(service);
    QTRY_VERIFY(retries.count() >= 2);
    QCOMPARE(service.serverName(), QString());
    QCOMPARE(complaints.size(), 1);
    QVERIFY2(complaints.last().contains(QStringLiteral("taken")), qPrintable(complaints.last()));
    QVERIFY(names.rmdir(nameOf(serverType)));
    QTRY_COMPARE(service.serverName(), nameOf(serverType));
}

void VXIPCSocketsTest::isPublishedUnderTheLastOfItsNames()
{
    const QTemporaryDir folder;
    const ScopedVariable runtime(runtimeFolder, folder.path());
    const int serverType = newServerType();
    QVERIFY(takeNames(QDir(folder.path()), serverType, 15));

    const Complaints complaints;
    TestService service(serverType);
    QCoreApplication::sendPostedEvents(&service);
    QCOMPARE(service.serverName(), ownNameOf(serverType) + QStringLiteral("-16"));
    QCOMPARE(complaints.size(), 0);
    TestService next(serverType);
    QCoreApplication::sendPostedEvents(&next);
    QCOMPARE(next.serverName(), QString());
    QVERIFY2(complaints.last().contains(QStringLiteral("the name and 16 more like it are taken")),
             qPrintable(complaints.last()));
}

void VXIPCSocketsTest::isPublishedOnceItsFolderIsTheUsersAlone()
{
    const QTemporaryDir folder;
    const ScopedVariable runtime(runtimeFolder, folder.path());
    const QFile::Permissions before = QFile::permissions(folder.path());
    QVERIFY(QFile::setPermissions(folder.path(), before | QFile::WriteOther));
    TestService service(newServerType());
    const Complaints complaints;
    QCoreApplication::sendPostedEvents(&service);
    QCOMPARE(service.serverName(), QString());
    QCOMPARE(complaints.size(), 1);
    QVERIFY(QFile::setPermissions(folder.path(), before));
    QTRY_VERIFY(!service.serverName().isEmpty());
}

void VXIPCSocketsTest::acceptsClientsOnceThereAreDescriptors()
{
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString address = VXIPCClient::address(service.serverName());
    const PlainSocket client;
    const Complaints complaints;
    {
        const NoDescriptors noDescriptors;
        QVERIFY(noDescriptors.areNone());
        const Retries retries(service);
        QVERIFY(client.connectTo(address));
        client.send("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"scale\",\"params\":[1]}\n");
        QTRY_COMPARE(complaints.size(), 1);
        QVERIFY2(complaints.last().contains(qt_error_string(EMFILE)),
                 qPrintable(complaints.last()));
        QVERIFY(QFileInfo::exists(address));
        QTRY_VERIFY(retries.count() >= 3);
        QCOMPARE(complaints.size(), 1);
    }
    // The client that connected meanwhile is served, and others are, too.
    QByteArray answer;
    QTRY_VERIFY(!(answer += client.received()).isEmpty());
    QCOMPARE(answer, QByteArray("{\"id\":1,\"jsonrpc\":\"2.0\",\"result\":10}\n"));
    RawClient other(service.serverName());
    QCOMPARE(other.call("scale", "[2]")[QStringLiteral("result")].toInt(), 20);
}

void VXIPCSocketsTest::complainsEachTimeItCannotAcceptClients()
{
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString address = VXIPCClient::address(service.serverName());
    // Both stay to the end: a client that disconnects would free a descriptor of the endpoint.
    const std::array<PlainSocket, 2> clients;
    for (const PlainSocket& client : clients) {
        const Complaints complaints;
        {
            const NoDescriptors noDescriptors;
            QVERIFY(noDescriptors.areNone());
            const Retries retries(service);
            QVERIFY(client.connectTo(address));
            QTRY_VERIFY(retries.count() >= 1);
        }
        QCOMPARE(complaints.size(), 1);
        client.send("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"scale\",\"params\":[1]}\n");
        QByteArray answer;
        QTRY_VERIFY(!(answer += client.received()).isEmpty());
    }
}

void VXIPCSocketsTest::takesNoNameWithoutItsLock()
{
    const int serverType = newServerType();
    // As another process does between finding the name free and creating its socket.
    const QByteArray path =
        QFile::encodeName(VXIPCClient::address(nameOf(serverType)) + QStringLiteral(".lock"));
    const int lock = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    QVERIFY(lock >= 0);
    const auto end = qScopeGuard([&] {
        unlink(path.constData());
        close(lock);
    });
    QCOMPARE(flock(lock, LOCK_EX | LOCK_NB), 0);
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), ownNameOf(serverType));
    QVERIFY(!QFileInfo::exists(VXIPCClient::address(nameOf(serverType))));
    QVERIFY(QFileInfo::exists(QFile::decodeName(path)));
}

void VXIPCSocketsTest::takesNoNameWhoseLockIsNotAFile_data()
{
    QTest::addColumn<QString>("kind");

    for (const char* kind : {"pipe", "device", "link", "folder"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void VXIPCSocketsTest::takesNoNameWhoseLockIsNotAFile()
{
    QFETCH(const QString, kind);

    const int serverType = newServerType();
    const QByteArray path =
        QFile::encodeName(VXIPCClient::address(nameOf(serverType)) + QStringLiteral(".lock"));
    const int made = kind == QStringLiteral("pipe") ? mkfifo(path.constData(), 0600)
                     : kind == QStringLiteral("device")
                         ? mknod(path.constData(), S_IFCHR | 0600, makedev(1, 5))
                     : kind == QStringLiteral("link") ? symlink("/dev/zero", path.constData())
                                                      : mkdir(path.constData(), 0700);
    if (made != 0 && kind == QStringLiteral("device"))
        QSKIP("Only root can create devices");
    QCOMPARE(made, 0);
    const auto end = qScopeGuard([&] { remove(path.constData()); });
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), ownNameOf(serverType));
    struct stat entry = {};
    QCOMPARE(lstat(path.constData(), &entry), 0);
}

// It cannot become a free lock, so waiting for it would only delay the host.
void VXIPCSocketsTest::doesNotWaitForALockThatIsNotAFile()
{
    const QTemporaryDir folder;
    const QByteArray path = QFile::encodeName(folder.filePath(QStringLiteral("name.lock")));
    QCOMPARE(mkfifo(path.constData(), 0600), 0);
    IpcNameLock lock(path);
    QCOMPARE(lock.lock(QDeadlineTimer(QDeadlineTimer::Forever)), IpcNameLock::Outcome::Denied);
}

void VXIPCSocketsTest::takesTheNameWhoseLockADeadProcessLeft()
{
    const int serverType = newServerType();
    const QString path = VXIPCClient::address(nameOf(serverType)) + QStringLiteral(".lock");
    QFile left(path);
    QVERIFY(left.open(QFile::WriteOnly));
    left.write("4711\n");
    left.close();
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(), nameOf(serverType));
    QVERIFY(!QFileInfo::exists(path));
}

void VXIPCSocketsTest::leavesWhatIsNotASocket()
{
    const int serverType = newServerType();
    const QString path = VXIPCClient::address(nameOf(serverType));
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    {
        TestService service(serverType);
        QTRY_COMPARE(service.serverName(), ownNameOf(serverType));
    }
    QVERIFY(file.remove());
}

void VXIPCSocketsTest::leavesTheSocketThatTookItsPlace()
{
    auto service = std::make_unique<TestService>(newServerType());
    QTRY_VERIFY(!service->serverName().isEmpty());
    const QString path = VXIPCClient::address(service->serverName());
    QVERIFY(QFile::remove(path));
    QLocalServer other;
    QVERIFY(other.listen(path));
    service.reset();
    QVERIFY(QFileInfo::exists(path));
    QLocalSocket client;
    client.connectToServer(path);
    QVERIFY(client.waitForConnected());
}

void VXIPCSocketsTest::ignoresARelativeFolder()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    const auto goBack = qScopeGuard([&] { QDir::setCurrent(before); });
    const ScopedVariable runtime(runtimeFolder, QStringLiteral("relative"));
    const ScopedVariable temporary("TMPDIR", folder.path());
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString address = VXIPCClient::address(service.serverName());
    QCOMPARE(address, QStringLiteral("%1/vxipc-%2/%3")
                          .arg(folder.path(), QString::number(geteuid()), service.serverName()));
    QVERIFY(QFileInfo::exists(address));
    QVERIFY(!QFileInfo::exists(QStringLiteral("relative")));
    VXIPCClient client(service.serverName());
    QVERIFY(client.connectToServer());
}

void VXIPCSocketsTest::trustsOnlyTheUsersOwn_data()
{
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<uint>("mode");
    QTest::addColumn<bool>("isOthers");
    QTest::addColumn<QString>("complaint");

    const QString writable = QStringLiteral("other users may write to it");
    const QString others = QStringLiteral("belongs to another user");
    QTest::newRow("a folder that others write to") << true << 0703U << false << writable;
    QTest::newRow("a folder that a group writes to") << true << 0730U << false << writable;
    QTest::newRow("a folder of another user") << true << 0700U << true << others;
    QTest::newRow("a socket that others write to") << false << 0602U << false << writable;
    QTest::newRow("a socket that a group writes to") << false << 0620U << false << writable;
    QTest::newRow("a socket of another user") << false << 0600U << true << others;
}

void VXIPCSocketsTest::trustsOnlyTheUsersOwn()
{
    QFETCH(const bool, isFolder);
    QFETCH(const uint, mode);
    QFETCH(const bool, isOthers);
    QFETCH(const QString, complaint);
    if (isOthers && geteuid() != 0)
        QSKIP("Only root can give a file to another user");

    const QTemporaryDir folder;
    const ScopedVariable runtime(runtimeFolder, folder.path());
    TestService service(newServerType());
    QTRY_VERIFY(!service.serverName().isEmpty());
    const QString name = service.serverName();
    VXIPCClient client(name);
    QVERIFY(client.connectToServer());
    QVERIFY(VXIPCClient::runningServers().contains(name));
    client.disconnectFromServer();

    const QByteArray path =
        QFile::encodeName(isFolder ? folder.path() : VXIPCClient::address(name));
    QCOMPARE(chmod(path.constData(), mode), 0);
    QCOMPARE(isOthers ? chown(path.constData(), nobody, nobody) : 0, 0);
    QVERIFY(!client.connectToServer());
    const VXIPCReply reply = client.callAndWait(QStringLiteral("notes"), {}, 100ms);
    QCOMPARE(reply.error->code, int(VXIPCError::NotReachable));
    QVERIFY2(reply.error->message.contains(QFile::decodeName(path)) &&
                 reply.error->message.contains(complaint),
             qPrintable(reply.error->message));
    QVERIFY(!VXIPCClient::runningServers().contains(name));

    QCOMPARE(chown(path.constData(), geteuid(), getegid()), 0);
    QCOMPARE(chmod(path.constData(), 0700), 0);
    QVERIFY(client.connectToServer());
}

void VXIPCSocketsTest::findsNoEndpointInAMissingFolder()
{
    const QTemporaryDir folder;
    const ScopedVariable runtime(runtimeFolder, folder.filePath(QStringLiteral("missing")));
    VXIPCClient client(newServerType());
    const VXIPCReply reply = client.callAndWait(QStringLiteral("notes"));
    QCOMPARE(reply.error->code, int(VXIPCError::NotReachable));
    QCOMPARE(reply.error->message,
             QStringLiteral("no endpoint answers under %1").arg(client.serverName()));
    QVERIFY(VXIPCClient::runningServers().isEmpty());
    // Looking for endpoints does not create their folder.
    QVERIFY(!QFileInfo::exists(folder.filePath(QStringLiteral("missing"))));
}

void VXIPCSocketsTest::waitsForAConnectionNoLongerThanForTheAnswer()
{
    constexpr int calls = 30;
    const int serverType = newServerType();
    const QString path = VXIPCClient::address(nameOf(serverType));
    const PlainSocket busy;
    QVERIFY(busy.listenAt(path));
    const auto removeSocket = qScopeGuard([&] { QFile::remove(path); });
    std::vector<std::unique_ptr<PlainSocket>> waiting;
    do {
        waiting.push_back(std::make_unique<PlainSocket>());
    } while (waiting.back()->connectTo(path));

    VXIPCClient client(serverType);
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < calls; ++i) {
        const VXIPCReply reply = client.callAndWait(QStringLiteral("notes"), {}, 1ms);
        QCOMPARE(reply.error->code, int(VXIPCError::NotReachable));
    }
    // With a second for each, which a connection may take otherwise, it would be three times that.
    QVERIFY2(timer.elapsed() < calls * 1000 / 3, qPrintable(QString::number(timer.elapsed())));
}

QTEST_GUILESS_MAIN(VXIPCSocketsTest)
#include "tst_vxipc_sockets.moc"
