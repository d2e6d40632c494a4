// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_connection.h"
#include "ipc_host_process.h"
#include "ipc_publisher.h"
#include "ipc_raw_client.h"
#include "ipc_test_service.h"
#include "scoped_variable.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QPointer>
#include <QtCore/QRegularExpression>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtTest/QTest>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#ifdef Q_OS_UNIX
#include <grp.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#else
#include <windows.h>

#include <aclapi.h>
#endif

using namespace std::chrono_literals;

namespace {

constexpr qsizetype mebibyte = qsizetype{1} << 20;

QJsonValue parsed(const QByteArray& json)
{
    return QJsonDocument::fromJson('[' + json + ']').array().first();
}

int errorCode(const QJsonObject& answer)
{
    return answer[QStringLiteral("error")][QStringLiteral("code")].toInt();
}

QString errorMessage(const QJsonObject& answer)
{
    return answer[QStringLiteral("error")][QStringLiteral("message")].toString();
}

QJsonObject object(const QByteArray& line)
{
    return QJsonDocument::fromJson(line).object();
}

/// A request of exactly `size` bytes, without the line end.
QByteArray requestOfSize(qsizetype size)
{
    const QByteArray begin = R"({"jsonrpc":"2.0","id":1,"method":"note","params":["x"])";
    return begin + QByteArray(size - begin.size() - 1, ' ') + '}';
}

QByteArray textOfSize(qsizetype size)
{
    return '"' + QByteArray(size, 'x') + '"';
}

/// A list, or what is between its brackets.
QByteArray entries(qsizetype count, const QByteArray& entry)
{
    return entry + (',' + entry).repeated(count - 1);
}
QByteArray list(qsizetype count, const QByteArray& entry)
{
    return '[' + entries(count, entry) + ']';
}

QByteArray objectOfSize(qsizetype members)
{
    QByteArrayList all;
    for (qsizetype i = 0; i < members; ++i)
        all.append("\"m" + QByteArray::number(i) + "\":1");
    return '{' + all.join(',') + '}';
}

/// Destroys something from the event loop, before whatever else waits there to be done.
class Destroyer : public QObject
{
public:
    explicit Destroyer(std::function<void()> destroy)
        : m_destroy(std::move(destroy))
    {}

    void destroyFirst()
    {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    }

    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::User)
            return QObject::event(event);
        m_destroy();
        return true;
    }

private:
    std::function<void()> m_destroy;
};

#ifdef Q_OS_UNIX

/// The error number that a process of the user has when it connects to the socket; 0 for none.
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

/// An endpoint that lives on a thread of its own, with which it ends.
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

class tst_VXIPCServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void carriesValues_data();
    void carriesValues();
    void carriesNoNumberThatJsonLacks();
    void choosesTheOverload_data();
    void choosesTheOverload();
    void refusesBadParameters_data();
    void refusesBadParameters();
    void takesArgumentsAtTheirBounds_data();
    void takesArgumentsAtTheirBounds();
    void refusesArgumentsBeyondTheirBounds_data();
    void refusesArgumentsBeyondTheirBounds();
    void refusesCallsThatTheEndpointObjectsTo();
    void repeatsNoLongNameInAnError();
    void refusesBadRequests_data();
    void refusesBadRequests();
    void answersUnderTheId_data();
    void answersUnderTheId();
    void hidesWhatIsNotAnEndpointsOwn_data();
    void hidesWhatIsNotAnEndpointsOwn();
    void describesItsMethods();
    void describesOverloadsAndDefaults();
    void describesRecords();

    void answersABatch();
    void answersNothingToABatchOfNotifications();
    void refusesWhatIsNoBatch();
    void answersNoNotification();
    void readsLinesAsTheyCome();

    void isPublishedWhenTheEventLoopRuns();
    void isPublishedOnItsThread();
    void servesWhoComesAsItIsPublished();
    void addsTheProcessIdToATakenName();
    void addsTheProcessIdWhenAnotherProcessHoldsTheName();
    void leavesTheNameToAProcessThatIsStopped();
    void takesTheNameOfADeadProcess();
    void leavesNoSocketBehind();
    void letsOnlyTheUserIn();
    void keepsOtherUsersOut();
    void isNotPublishedWhereOthersMayWrite_data();
    void isNotPublishedWhereOthersMayWrite();

    void readsALineOfTheGreatestLength();
    void answersInOrderAfterALongLine();
    void refusesALineThatIsTooLong_data();
    void refusesALineThatIsTooLong();
    void countsTheValuesOfALine_data();
    void countsTheValuesOfALine();
    void refusesTheClientThatIsOneTooMany();
    void takesAClientInThePlaceOfOneThatLeft();
    void carriesOutNothingForARefusedClient();
    void sendsAnAnswerOfTheGreatestLength();
    void refusesAnAnswerThatIsTooLong();
    void closesAClientThatTakesNoAnswers();
    void closesAClientWhoseBatchAsksForTooMuch();
    void outlivesAClientThatDies_data();
    void outlivesAClientThatDies();
    void doesWhatAClientSentBeforeItLeft_data();
    void doesWhatAClientSentBeforeItLeft();
    void servesOthersDuringALongBatch();
    void takesCallsDuringACall();
    void goesOnWithOthersDuringACall();
    void readsNoMoreThanItWorksOn();
    void letsTheClientGoThatWasSilentLongest();
    void letsAnotherClientGoForEachThatComes();
    void letsNoClientGoThatWaitsForAnAnswer();
    void mayBeDestroyedByACall();
    void mayBeDestroyedWithLongLinesInWork();
    void mayBeDestroyedAsAClientLeavesAfterALongBadLine();

private:
    QString serverName();

    std::unique_ptr<TestService> m_service;
};

void tst_VXIPCServer::init()
{
    m_service = std::make_unique<TestService>(newServerType());
    QTRY_VERIFY(!m_service->serverName().isEmpty());
}

void tst_VXIPCServer::cleanup()
{
    m_service.reset();
}

QString tst_VXIPCServer::serverName()
{
    return m_service->serverName();
}

void tst_VXIPCServer::carriesValues_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QByteArray>("result");

    const auto row = [](const char* name, const char* method, const char* parameters,
                        const char* result) {
        QTest::newRow(name) << QByteArray(method) << QByteArray(parameters) << QByteArray(result);
    };
    row("no result", "note", R"(["x"])", "null");
    row("by position", "scale", "[3,4]", "12");
    row("by name", "scale", R"({"factor":4,"value":3})", "12");
    row("default, by position", "scale", "[3]", "30");
    row("default, by name", "scale", R"({"value":3})", "30");
    row("bool", "invert", "[true]", "false");
    row("text", "echo", R"(["a\"\n\u00e4\ud83d\ude00"])", R"("a\"\n\u00e4\ud83d\ude00")");
    row("empty text", "echo", R"([""])", R"("")");
    row("text that looks like a number", "echo", R"(["12"])", R"("12")");
    row("least int", "scale", "[-2147483648,1]", "-2147483648");
    row("greatest int", "scale", "[2147483647,1]", "2147483647");
    row("int written as a fraction", "scale", "[3.0,1e1]", "30");
    row("greatest uint", "unsignedEcho", "[4294967295]", "4294967295");
    row("wide", "wideEcho", "[-9007199254740991]", "-9007199254740991");
    row("one beyond a double's reach", "wideEcho", "[9007199254740992]", R"("9007199254740992")");
    row("wide as text", "wideEcho", R"(["-5"])", "-5");
    row("greatest wide", "wideEcho", "[9223372036854775807]", R"("9223372036854775807")");
    row("least wide as text", "wideEcho", R"(["-9223372036854775808"])",
        R"("-9223372036854775808")");
    row("wide beyond a double's reach", "wideEcho", "[9007199254740993]", R"("9007199254740993")");
    row("greatest unsigned wide", "unsignedWideEcho", R"(["18446744073709551615"])",
        R"("18446744073709551615")");
    row("float", "single", "[0.5]", "0.5");
    row("whole number as float", "single", "[16777216]", "16777216");
    row("double", "half", "[0.3]", "0.15");
    row("bytes", "reversed", R"(["AAEC"])", R"("AgEA")");
    row("no bytes", "reversed", R"([""])", R"("")");
    row("texts", "sorted", R"([["b","a",""]])", R"(["","a","b"])");
    row("no texts", "sorted", "[[]]", "[]");
    row("list", "listEcho", R"([[1,"a",null,[2.5],{"k":true}]])",
        R"([1,"a",null,[2.5],{"k":true}])");
    row("hash", "hashEcho", R"([{"a":1,"b":["c"]}])", R"({"a":1,"b":["c"]})");
    row("map", "mapEcho", R"([{"a":{"b":null}}])", R"({"a":{"b":null}})");
    row("any: number", "anyEcho", "[7]", "7");
    row("any: object", "anyEcho", R"([{"a":[1]}])", R"({"a":[1]})");
    row("any: null", "anyEcho", "[null]", "null");
    row("a member twice", "hashEcho", R"([{"a":1,"a":2}])", R"({"a":2})");
    row("an argument twice", "scale", R"({"value":3,"value":4})", "40");
    row("record, of its defaults", "recordEcho", "[{}]",
        R"({"name":"","count":-1,"width":-1,"isLoaded":false,"image":"","panels":[],"heats":[]})");
    row("record", "recordEcho",
        R"([{"name":"n","count":2,"width":1.5,"isLoaded":true,"image":"AAEC","panels":["p"],"heats":[1]}])",
        R"({"name":"n","count":2,"width":1.5,"isLoaded":true,"image":"AAEC","panels":["p"],"heats":[1]})");
}

void tst_VXIPCServer::carriesValues()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, parameters);
    QFETCH(const QByteArray, result);

    RawClient client(serverName());
    const QJsonObject answer = client.call(method, parameters);
    QCOMPARE(answer, (QJsonObject{{QStringLiteral("jsonrpc"), QStringLiteral("2.0")},
                                  {QStringLiteral("id"), 1},
                                  {QStringLiteral("result"), parsed(result)}}));
}

void tst_VXIPCServer::carriesNoNumberThatJsonLacks()
{
    // Overflows to infinity, which JSON has no number for.
    RawClient client(serverName());
    const QJsonObject answer = client.call("notANumber");
    QVERIFY(answer.contains(QStringLiteral("result")));
    QCOMPARE(answer[QStringLiteral("result")], QJsonValue(QJsonValue::Null));
}

void tst_VXIPCServer::choosesTheOverload_data()
{
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QString>("chosen");

    QTest::newRow("whole number") << QByteArray("[1]") << QStringLiteral("int");
    QTest::newRow("number that no int holds")
        << QByteArray("[3000000000]") << QStringLiteral("double");
    QTest::newRow("fraction") << QByteArray("[1.5]") << QStringLiteral("double");
    QTest::newRow("text") << QByteArray(R"(["1"])") << QStringLiteral("text");
    QTest::newRow("two numbers") << QByteArray("[1,2]") << QStringLiteral("int, wide");
    QTest::newRow("number and digits") << QByteArray(R"([1,"2"])") << QStringLiteral("int, text");
    QTest::newRow("number and text") << QByteArray(R"([1,"a"])") << QStringLiteral("int, text");
    QTest::newRow("by names, number")
        << QByteArray(R"({"value":1,"more":2})") << QStringLiteral("int, wide");
    QTest::newRow("by names, text")
        << QByteArray(R"({"value":1,"label":"2"})") << QStringLiteral("int, text");
}

void tst_VXIPCServer::choosesTheOverload()
{
    QFETCH(const QByteArray, parameters);
    QFETCH(const QString, chosen);

    RawClient client(serverName());
    QCOMPARE(client.call("overloaded", parameters)[QStringLiteral("result")].toString(), chosen);
}

void tst_VXIPCServer::refusesBadParameters_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char* name, const char* method, const char* parameters,
                        const char* argument, const char* complaint) {
        QTest::newRow(name) << QByteArray(method) << QByteArray(parameters)
                            << QString::fromLatin1(argument) << QString::fromLatin1(complaint);
    };
    row("too few", "echo", "[]", "", "expected 1 arguments (text), got 0");
    row("too many", "scale", "[1,2,3]", "", "expected 1 to 2 arguments (value, factor), got 3");
    row("missing name", "scale", R"({"factor":1})", "value", "argument \"value\" is missing");
    row("unknown name", "scale", R"({"value":1,"faktor":2})", "faktor",
        "there is no argument \"faktor\"");
    row("number for text", "echo", "[5]", "text", "argument 1 (text): expected a text, got 5");
    row("null for text", "echo", "[null]", "text", "expected a text, got null");
    row("text for int", "scale", R"([1,"2"])", "factor",
        "argument 2 (factor): expected a whole number from -2147483648 to 2147483647, got a text");
    row("fraction for int", "scale", "[1.5]", "value", "got 1.5");
    row("int too great", "scale", "[2147483648]", "value", "got 2147483648");
    row("negative uint", "unsignedEcho", "[-1]", "value",
        "expected a whole number from 0 to 4294967295, got -1");
    row("wide too great", "wideEcho", R"(["9223372036854775808"])", "value", "got a text");
    row("wide with garbage", "wideEcho", R"(["5x"])", "value", "got a text");
    row("unsigned wide too great for a number", "unsignedWideEcho", "[18446744073709551615]",
        "value", "beyond 53 bits as decimal text");
    row("number for bool", "invert", "[1]", "value", "expected true or false, got 1");
    row("float too great", "single", "[1e39]", "value", "expected a number");
    row("text for double", "half", R"(["1"])", "value", "expected a number, got a text");
    row("no base64", "reversed", R"(["A!"])", "bytes", "expected bytes as base64 text");
    row("number for bytes", "reversed", "[1]", "bytes", "expected bytes as base64 text, got 1");
    row("text for texts", "sorted", R"(["a"])", "texts", "expected a list of texts, got a text");
    row("number among texts", "sorted", R"([["a",1]])", "texts", "expected a list of texts");
    row("object for list", "listEcho", "[{}]", "list", "expected a list, got an object");
    row("list for hash", "hashEcho", "[[]]", "hash", "expected an object, got a list");
    row("text for record", "recordEcho", R"(["a"])", "record",
        "expected an object with the members of TestRecord, got a text");
    row("unknown member", "recordEcho", R"([{"nme":"a"}])", "record", "it has no member \"nme\"");
    row("bad member", "recordEcho", R"([{"name":1}])", "record",
        "with a text as its member \"name\"");
    row("no overload of that count", "overloaded", "[1,2,3]", "", "expected 1 arguments");
    row("no overload of these types", "overloaded", "[true]", "value",
        "expected a whole number from -2147483648 to 2147483647, got true");
}

void tst_VXIPCServer::refusesBadParameters()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, parameters);
    QFETCH(const QString, argument);
    QFETCH(const QString, complaint);

    RawClient client(serverName());
    const QJsonObject answer = client.call(method, parameters);
    QCOMPARE(errorCode(answer), -32602);
    QVERIFY2(errorMessage(answer).startsWith(QStringLiteral("Invalid params: ")),
             qPrintable(errorMessage(answer)));
    QVERIFY2(errorMessage(answer).contains(complaint), qPrintable(errorMessage(answer)));
    QCOMPARE(answer[QStringLiteral("error")][QStringLiteral("data")][QStringLiteral("argument")]
                 .toString(),
             argument);
    // The client is as welcome as before.
    QCOMPARE(client.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void tst_VXIPCServer::takesArgumentsAtTheirBounds_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("argument");

    const QByteArray text = textOfSize(4096);
    QTest::newRow("text") << QByteArray("echo") << text;
    QTest::newRow("bytes") << QByteArray("reversed") << '"' + QByteArray(4096, 'A') + '"';
    QTest::newRow("texts") << QByteArray("sorted") << list(64, text);
    QTest::newRow("list") << QByteArray("listEcho") << list(64, "1");
    QTest::newRow("nested lists") << QByteArray("listEcho") << list(31, list(32, "1"));
    QTest::newRow("object") << QByteArray("hashEcho") << objectOfSize(64);
    QTest::newRow("object with a long name") << QByteArray("mapEcho") << '{' + text + ":1}";
}

void tst_VXIPCServer::takesArgumentsAtTheirBounds()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, argument);

    RawClient client(serverName());
    const QJsonObject answer = client.call(method, '[' + argument + ']');
    QVERIFY2(!answer.contains(QStringLiteral("error")), qPrintable(errorMessage(answer)));
    QCOMPARE(answer[QStringLiteral("result")], parsed(argument));
}

void tst_VXIPCServer::refusesArgumentsBeyondTheirBounds_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char* name, const char* method, const QByteArray& argument,
                        const char* complaint) {
        QTest::newRow(name) << QByteArray(method) << argument << QString::fromLatin1(complaint);
    };
    const QByteArray text = textOfSize(4097);
    const char* longText = "expected a text of at most 4096 characters, got 4097";
    row("text", "echo", text, longText);
    row("text of a mebibyte", "echo", textOfSize(1000000),
        "expected a text of at most 4096 characters, got 1000000");
    row("decimal text", "wideEcho", '"' + QByteArray(4097, '0') + '"', longText);
    row("bytes", "reversed", '"' + QByteArray(4100, 'A') + '"',
        "expected a text of at most 4096 characters, got 4100");
    row("texts", "sorted", list(65, R"("x")"), "expected a list of at most 64 entries, got 65");
    row("many texts", "sorted", list(60000, R"("")"),
        "expected a list of at most 64 entries, got 60000");
    row("a long text among texts", "sorted", list(1, text), longText);
    row("list", "listEcho", list(65, "1"), "expected a list of at most 64 entries, got 65");
    row("list in a list", "listEcho", list(1, list(65, "1")),
        "expected a list of at most 64 entries, got 65");
    row("text in an object in a list", "listEcho", R"([{"k":)" + text + "}]", longText);
    row("lists of lists", "listEcho", list(64, list(64, "1")),
        "expected at most 1024 values, nested ones included, got 1025");
    row("one value too many", "listEcho", '[' + entries(31, list(32, "1")) + ",1]",
        "expected at most 1024 values, nested ones included, got 1025");
    row("object", "hashEcho", objectOfSize(65), "expected an object of at most 64 members, got 65");
    row("long name in an object", "mapEcho", '{' + text + ":1}", longText);
    row("record", "recordEcho", R"({"panels":)" + list(65, R"("x")") + '}',
        "expected a list of at most 64 entries, got 65");
    row("any", "anyEcho", list(65, "1"), "expected a list of at most 64 entries, got 65");
}

void tst_VXIPCServer::refusesArgumentsBeyondTheirBounds()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, argument);
    QFETCH(const QString, complaint);

    RawClient client(serverName());
    const QJsonObject answer = client.call(method, '[' + argument + ']');
    QCOMPARE(errorCode(answer), -32602);
    QVERIFY2(errorMessage(answer).startsWith(QStringLiteral("Invalid params: argument 1 (")) &&
                 errorMessage(answer).endsWith(complaint),
             qPrintable(errorMessage(answer)));
    QCOMPARE(client.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void tst_VXIPCServer::refusesCallsThatTheEndpointObjectsTo()
{
    RawClient client(serverName());
    QVERIFY(client.call("keep", R"(["a"])")[QStringLiteral("result")].isNull());
    QVERIFY(client.call("keep", R"(["b"])")[QStringLiteral("result")].isNull());
    const QJsonObject answer = client.call("keep", R"(["c"])");
    QCOMPARE(errorCode(answer), -32003);
    QCOMPARE(errorMessage(answer), QStringLiteral("Refused: two are enough, keep \"c\" yourself"));
    // A notification is refused as well, and a call by name.
    client.send(R"({"jsonrpc":"2.0","method":"keep","params":{"entry":"d"}})"
                "\n");
    QCOMPARE(client.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
    QCOMPARE(m_service->kept, (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    // The endpoint's own process may.
    m_service->keep(QStringLiteral("e"));
    QCOMPARE(m_service->kept.size(), 3);
}

void tst_VXIPCServer::repeatsNoLongNameInAnError()
{
    RawClient client(serverName());
    const QByteArray name(100000, 'n');
    const QString start(100, QLatin1Char('n'));
    const QJsonObject noMethod = client.call(name);
    QCOMPARE(errorCode(noMethod), -32601);
    QCOMPARE(errorMessage(noMethod), QStringLiteral("Method not found: %1…").arg(start));
    const QJsonObject noArgument = client.call("echo", "{\"" + name + "\":1}");
    QCOMPARE(errorCode(noArgument), -32602);
    QCOMPARE(errorMessage(noArgument),
             QStringLiteral("Invalid params: there is no argument \"%1…\"").arg(start));
    QCOMPARE(noArgument[QStringLiteral("error")][QStringLiteral("data")],
             QJsonValue(QJsonObject{{QStringLiteral("argument"), start + QStringLiteral("…")}}));
    // The hundredth character takes two code units, of which there is room for one.
    const QJsonObject pair = client.call(QByteArray(99, 'n') + "😀😀");
    QCOMPARE(errorMessage(pair),
             QStringLiteral("Method not found: %1…").arg(QString(99, QLatin1Char('n'))));
}

void tst_VXIPCServer::refusesBadRequests_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("id");

    const auto row = [](const char* name, const QByteArray& line, int code, const char* id) {
        QTest::newRow(name) << line << code << QByteArray(id);
    };
    constexpr int parseError = -32700;
    constexpr int invalidRequest = -32600;
    row("no JSON", "hello", parseError, "null");
    row("half an object", R"({"jsonrpc":"2.0","id":1)", parseError, "null");
    row("two objects", R"({"jsonrpc":"2.0"}{})", parseError, "null");
    row("no UTF-8", "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"\xff\xfe\"}", parseError, "null");
    row("a zero byte", QByteArray("{\0}", 3), parseError, "null");
    row("a number", "1", parseError, "null");
    row("nested without end", QByteArray(5000, '['), parseError, "null");
    row("nested deeply", QByteArray(5000, '[') + QByteArray(5000, ']'), parseError, "null");
    row("nested one level too deep", QByteArray(1025, '[') + QByteArray(1025, ']'), parseError,
        "null");
    row("empty object", "{}", invalidRequest, "null");
    row("no version", R"({"id":4,"method":"echo"})", invalidRequest, "4");
    row("other version", R"({"jsonrpc":"1.0","id":4,"method":"echo"})", invalidRequest, "4");
    row("version as number", R"({"jsonrpc":2.0,"id":4,"method":"echo"})", invalidRequest, "4");
    row("no method", R"({"jsonrpc":"2.0","id":"a"})", invalidRequest, R"("a")");
    row("method is a number", R"({"jsonrpc":"2.0","id":4,"method":1})", invalidRequest, "4");
    row("parameters are a text", R"({"jsonrpc":"2.0","id":4,"method":"echo","params":"a"})",
        invalidRequest, "4");
    row("parameters are null", R"({"jsonrpc":"2.0","id":4,"method":"echo","params":null})",
        invalidRequest, "4");
    row("id is an object", R"({"jsonrpc":"2.0","id":{},"method":"notes"})", invalidRequest, "null");
    row("id is true", R"({"jsonrpc":"2.0","id":true,"method":"notes"})", invalidRequest, "null");
    row("id is too long", R"({"jsonrpc":"2.0","method":"notes","id":)" + textOfSize(4097) + '}',
        invalidRequest, "null");
    row("unknown method", R"({"jsonrpc":"2.0","id":4,"method":"nothing"})", -32601, "4");
    row("other letter case", R"({"jsonrpc":"2.0","id":4,"method":"Echo"})", -32601, "4");
    row("empty method", R"({"jsonrpc":"2.0","id":4,"method":""})", -32601, "4");
    row("reserved method", R"({"jsonrpc":"2.0","id":4,"method":"rpc.other"})", -32601, "4");
}

void tst_VXIPCServer::refusesBadRequests()
{
    QFETCH(const QByteArray, line);
    QFETCH(const int, code);
    QFETCH(const QByteArray, id);

    RawClient bystander(serverName());
    RawClient client(serverName());
    const QJsonObject answer = object(client.exchange(line));
    QCOMPARE(errorCode(answer), code);
    QCOMPARE(answer[QStringLiteral("id")], parsed(id));
    QCOMPARE(answer[QStringLiteral("jsonrpc")].toString(), QStringLiteral("2.0"));
    QVERIFY(!answer.contains(QStringLiteral("result")));
    QVERIFY(!errorMessage(answer).isEmpty());

    QCOMPARE(client.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
    QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void tst_VXIPCServer::answersUnderTheId_data()
{
    QTest::addColumn<QByteArray>("id");

    for (const char* id : {"0", "-7", "1.5", "9007199254740993", R"("")", R"("a-1")", "null"})
        QTest::newRow(id) << QByteArray(id);
    QTest::newRow("of the greatest length") << textOfSize(4096);
}

void tst_VXIPCServer::answersUnderTheId()
{
    QFETCH(const QByteArray, id);

    RawClient client(serverName());
    const QJsonObject answer = object(
        client.exchange(R"({"jsonrpc":"2.0","method":"scale","params":[1,1],"id":)" + id + '}'));
    QCOMPARE(answer[QStringLiteral("id")], parsed(id));
    QCOMPARE(answer[QStringLiteral("result")].toInt(), 1);
}

void tst_VXIPCServer::hidesWhatIsNotAnEndpointsOwn_data()
{
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<QByteArray>("parameters");

    const auto row = [](const char* method, const char* parameters = "[]") {
        QTest::newRow(method) << QByteArray(method) << QByteArray(parameters);
    };
    row("deleteLater");
    row("destroyed");
    row("objectNameChanged", R"(["a"])");
    row("setObjectName", R"(["a"])");
    row("objectName");
    row("_q_reregisterTimers", "[null]");
    row("serverName");
    row("released");
    row("protectedSecret");
    row("privateSecret");
    row("invokableSecret");
    row("notACrossingType");
    row("echo(QString)", R"(["a"])");
}

void tst_VXIPCServer::hidesWhatIsNotAnEndpointsOwn()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, parameters);

    const QPointer<TestService> service(m_service.get());
    RawClient client(serverName());
    QCOMPARE(errorCode(client.call(method, parameters)), -32601);
    QCOMPARE(client.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
    QVERIFY(service);
    QVERIFY(!service->isSecretTold);
    QVERIFY(service->objectName().isEmpty());
}

void tst_VXIPCServer::describesItsMethods()
{
    RawClient client(serverName());
    const QJsonValue document = client.call("rpc.discover")[QStringLiteral("result")];
    QVERIFY(document[QStringLiteral("openrpc")].isString());
    QCOMPARE(document[QStringLiteral("info")][QStringLiteral("title")].toString(), serverName());
    QCOMPARE(document[QStringLiteral("info")][QStringLiteral("x-process")].toInteger(),
             QCoreApplication::applicationPid());

    QStringList names;
    for (const QJsonArray methods = document[QStringLiteral("methods")].toArray();
         const QJsonValue& method : methods)
        names.append(method[QStringLiteral("name")].toString());
    const QStringList expected =
        QStringLiteral(
            "echo scale invert unsignedEcho wideEcho unsignedWideEcho single half "
            "notANumber reversed sorted listEcho hashEcho mapEcho anyEcho recordEcho "
            "overloaded overloaded overloaded overloaded overloaded note notes keep zeroes "
            "wait isWaiting release block destroy quit")
            .split(QLatin1Char(' '));
    QCOMPARE(names, expected);
}

void tst_VXIPCServer::describesOverloadsAndDefaults()
{
    RawClient client(serverName());
    const QJsonArray methods =
        client.call("rpc.discover")[QStringLiteral("result")][QStringLiteral("methods")].toArray();
    const QJsonValue scale = methods.at(1);
    QCOMPARE(scale, parsed(R"({"name":"scale","paramStructure":"either","params":[
        {"name":"value","required":true,"schema":{"type":"integer"},"x-type":"int"},
        {"name":"factor","required":false,"schema":{"type":"integer"},"x-type":"int"}],
        "result":{"name":"result","schema":{"type":"integer"},"x-type":"int"}})"));

    QStringList overloads;
    for (const QJsonValue& method : methods) {
        if (method[QStringLiteral("name")].toString() != QStringLiteral("overloaded"))
            continue;
        QStringList parameters;
        for (const QJsonArray list = method[QStringLiteral("params")].toArray();
             const QJsonValue& parameter : list)
            parameters.append(parameter[QStringLiteral("x-type")].toString());
        overloads.append(parameters.join(QLatin1Char(',')));
    }
    QCOMPARE(overloads, (QStringList{QStringLiteral("int"), QStringLiteral("double"),
                                     QStringLiteral("QString"), QStringLiteral("int,qulonglong"),
                                     QStringLiteral("int,QString")}));
}

void tst_VXIPCServer::describesRecords()
{
    RawClient client(serverName());
    const QJsonValue document = client.call("rpc.discover")[QStringLiteral("result")];
    QCOMPARE(document[QStringLiteral("components")], parsed(R"({"schemas":{"TestRecord":{
        "type":"object","properties":{
            "name":{"type":"string"},"count":{"type":"integer"},"width":{"type":"number"},
            "isLoaded":{"type":"boolean"},
            "image":{"type":"string","contentEncoding":"base64"},
            "panels":{"type":"array","items":{"type":"string"}},
            "heats":{"type":"array"}}}}})"));
}

void tst_VXIPCServer::answersABatch()
{
    RawClient client(serverName());
    const QByteArray line =
        client.exchange(R"([{"jsonrpc":"2.0","id":"a","method":"scale","params":[1]},)"
                        R"({"jsonrpc":"2.0","method":"note","params":["n"]},)"
                        R"(1,{"jsonrpc":"2.0","id":"b","method":"nothing"},)"
                        R"({"jsonrpc":"2.0","id":"c","method":"notes"}])");
    const QJsonArray answers = QJsonDocument::fromJson(line).array();
    QCOMPARE(answers.size(), 4);
    QCOMPARE(answers[0][QStringLiteral("id")].toString(), QStringLiteral("a"));
    QCOMPARE(answers[0][QStringLiteral("result")].toInt(), 10);
    QVERIFY(answers[1][QStringLiteral("id")].isNull());
    QCOMPARE(errorCode(answers[1].toObject()), -32600);
    QCOMPARE(answers[2][QStringLiteral("id")].toString(), QStringLiteral("b"));
    QCOMPARE(errorCode(answers[2].toObject()), -32601);
    QCOMPARE(answers[3][QStringLiteral("result")], parsed(R"(["n"])"));
}

void tst_VXIPCServer::answersNothingToABatchOfNotifications()
{
    RawClient client(serverName());
    client.send(R"([{"jsonrpc":"2.0","method":"note","params":["a"]},)"
                R"({"jsonrpc":"2.0","method":"note","params":["b"]}])"
                "\n");
    // The next line to come is the answer to this, which shows that there was none before.
    QCOMPARE(client.call("notes")[QStringLiteral("result")], parsed(R"(["a","b"])"));
}

void tst_VXIPCServer::refusesWhatIsNoBatch()
{
    RawClient client(serverName());
    QCOMPARE(errorCode(object(client.exchange("[]"))), -32600);
    const QJsonArray answers = QJsonDocument::fromJson(client.exchange("[1,[],null]")).array();
    QCOMPARE(answers.size(), 3);
    for (const QJsonValue& answer : answers)
        QCOMPARE(errorCode(answer.toObject()), -32600);
}

void tst_VXIPCServer::answersNoNotification()
{
    RawClient client(serverName());
    client.send(R"({"jsonrpc":"2.0","method":"note","params":["a"]})"
                "\n"
                R"({"jsonrpc":"2.0","method":"nothing"})"
                "\n"
                R"({"jsonrpc":"2.0","method":"note","params":[1]})"
                "\n");
    QCOMPARE(client.call("notes")[QStringLiteral("result")], parsed(R"(["a"])"));
}

void tst_VXIPCServer::readsLinesAsTheyCome()
{
    RawClient client(serverName());
    const QByteArray line = R"({"jsonrpc":"2.0","id":1,"method":"notes"})";
    // A piece at a time, each on its own way before the next.
    for (const char byte : line) {
        client.send(QByteArray(1, byte));
        QVERIFY(QTest::qWaitFor([&] {
            client.socket().flush();
            return client.socket().bytesToWrite() == 0;
        }));
        QCoreApplication::processEvents();
    }
    QVERIFY(!client.socket().canReadLine());
    client.send("\r\n\n  \r\n");
    QVERIFY(object(client.receive()).contains(QStringLiteral("result")));
    // Several at once, answered in order.
    QByteArray lines;
    for (int i = 0; i < 1000; ++i)
        lines += R"({"jsonrpc":"2.0","method":"scale","params":[1,1],"id":)" +
                 QByteArray::number(i) + "}\n";
    client.send(lines);
    for (int i = 0; i < 1000; ++i)
        QCOMPARE(object(client.receive())[QStringLiteral("id")].toInt(-1), i);
}

void tst_VXIPCServer::isPublishedWhenTheEventLoopRuns()
{
    TestService service(newServerType());
    QVERIFY(service.serverName().isEmpty());
    QTRY_VERIFY(!service.serverName().isEmpty());
    RawClient client(service.serverName());
    QVERIFY(client.isConnected());
    QCOMPARE(client.call("echo", R"(["a"])")[QStringLiteral("result")].toString(),
             QStringLiteral("a"));
}

void tst_VXIPCServer::isPublishedOnItsThread()
{
    const int serverType = newServerType();
    const ServiceOnThread service(serverType);
    const QString name = QStringLiteral("vxipc-%1").arg(serverType);
    QTRY_VERIFY(RawClient(name).isConnected());
    RawClient client(name);
    QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void tst_VXIPCServer::servesWhoComesAsItIsPublished()
{
    for (int round = 0; round < 60; ++round) {
        const int serverType = newServerType();
        const ServiceOnThread service(serverType);
        // The first client that gets in at all comes while the endpoint prepares for the next ones.
        const QString name = QStringLiteral("vxipc-%1").arg(serverType);
        while (!RawClient(name).isConnected())
            QThread::yieldCurrentThread();
        RawClient client(name);
        QCOMPARE(client.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    }
}

void tst_VXIPCServer::addsTheProcessIdToATakenName()
{
    const int serverType = newServerType();
    const QString name = QStringLiteral("vxipc-%1").arg(serverType);
    const QString withProcess =
        name + QLatin1Char('-') + QString::number(QCoreApplication::applicationPid());
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

void tst_VXIPCServer::addsTheProcessIdWhenAnotherProcessHoldsTheName()
{
    const int serverType = newServerType();
    const QString name = QStringLiteral("vxipc-%1").arg(serverType);
    HostProcess other(serverType);
    QCOMPARE(other.serverName(), name);

    TestService service(serverType);
    QTRY_COMPARE(service.serverName(),
                 name + QLatin1Char('-') + QString::number(QCoreApplication::applicationPid()));
    service.log = {QStringLiteral("here")};
    RawClient client(service.serverName());
    QCOMPARE(client.call("notes")[QStringLiteral("result")], parsed(R"(["here"])"));
    // And the other is where it was.
    RawClient otherClient(name);
    QCOMPARE(otherClient.call("notes")[QStringLiteral("result")], parsed("[]"));
}

void tst_VXIPCServer::leavesTheNameToAProcessThatIsStopped()
{
#ifdef Q_OS_UNIX
    // It does not answer, but somebody does for it: the system, which takes its connections.
    const int serverType = newServerType();
    const QString name = QStringLiteral("vxipc-%1").arg(serverType);
    HostProcess other(serverType);
    QCOMPARE(other.serverName(), name);
    QCOMPARE(kill(static_cast<pid_t>(other.processId()), SIGSTOP), 0);
    const auto goOn = qScopeGuard([&] { kill(static_cast<pid_t>(other.processId()), SIGCONT); });
    TestService service(serverType);
    QTRY_COMPARE(service.serverName(),
                 name + QLatin1Char('-') + QString::number(QCoreApplication::applicationPid()));
#else
    QSKIP("Windows has no signal that stops a process");
#endif
}

void tst_VXIPCServer::takesTheNameOfADeadProcess()
{
    const int serverType = newServerType();
    const QString name = QStringLiteral("vxipc-%1").arg(serverType);
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

void tst_VXIPCServer::leavesNoSocketBehind()
{
    const QString name = serverName();
    m_service.reset();
    QVERIFY(!RawClient(name).isConnected());
#ifdef Q_OS_UNIX
    QVERIFY(!QFileInfo::exists(VXIPCClient::address(name)));
#endif
}

void tst_VXIPCServer::letsOnlyTheUserIn()
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

void tst_VXIPCServer::keepsOtherUsersOut()
{
#ifdef Q_OS_UNIX
    if (geteuid() != 0)
        QSKIP("Only root can try it as another user");
    // In a folder that others may enter, so that it is the socket that keeps them out.
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
    QSKIP("A test cannot log another user in");
#endif
}

void tst_VXIPCServer::isNotPublishedWhereOthersMayWrite_data()
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

void tst_VXIPCServer::isNotPublishedWhereOthersMayWrite()
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
    QSKIP("Pipes are in no folder");
#endif
}

void tst_VXIPCServer::readsALineOfTheGreatestLength()
{
    RawClient client(serverName());
    const QJsonObject answer = object(client.exchange(requestOfSize(mebibyte)));
    QCOMPARE(answer[QStringLiteral("id")].toInt(), 1);
    QVERIFY(!answer.contains(QStringLiteral("error")));
    QCOMPARE(m_service->log.size(), 1);
}

void tst_VXIPCServer::answersInOrderAfterALongLine()
{
    RawClient client(serverName());
    const QByteArray note = R"({"jsonrpc":"2.0","method":"note","params":["long"]})";
    client.send('[' + (note + ',').repeated(5000) + note +
                "]\n"
                R"({"jsonrpc":"2.0","id":"wrong","method":)" +
                QByteArray(100000, ' ') +
                "\n"
                R"({"jsonrpc":"2.0","id":"last","method":"notes"})"
                "\n");
    QCOMPARE(object(client.receive())[QStringLiteral("error")][QStringLiteral("code")].toInt(),
             -32700);
    const QJsonObject last = object(client.receive());
    QCOMPARE(last[QStringLiteral("id")].toString(), QStringLiteral("last"));
    QCOMPARE(last[QStringLiteral("result")].toArray().size(), 5001);
}

void tst_VXIPCServer::refusesALineThatIsTooLong_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("by a byte") << requestOfSize(mebibyte + 1) + '\n';
    QTest::newRow("without an end") << QByteArray(2 * mebibyte, '[');
    QTest::newRow("zeroes") << QByteArray(2 * mebibyte, '\0');
}

void tst_VXIPCServer::refusesALineThatIsTooLong()
{
    QFETCH(const QByteArray, bytes);

    RawClient bystander(serverName());
    RawClient client(serverName());
    client.send(bytes);
    QCOMPARE(errorCode(object(client.receive())), -32000);
    QVERIFY(client.waitForClose());
    QVERIFY(m_service->log.isEmpty());
    QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void tst_VXIPCServer::countsTheValuesOfALine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("code");

    // The request, its four members and the values of its parameters.
    const auto request = [](const QByteArray& parameters) {
        return R"({"jsonrpc":"2.0","method":"scale","id":1,"params":)" + parameters + '}';
    };
    constexpr qsizetype mostValues = 65536;
    constexpr qsizetype otherValues = 5;
    QTest::newRow("most") << request(list(mostValues - otherValues, "1")) << -32602;
    QTest::newRow("one more") << request(list(mostValues - otherValues + 1, "1")) << -32600;
    QTest::newRow("lists") << request(list(mostValues / 2, "[]")) << -32600;
    QTest::newRow("objects") << request(list(mostValues / 2, "{}")) << -32600;
    QTest::newRow("members") << request('{' + entries(mostValues, R"("a":1)") + '}') << -32600;
    // Signs in a text are none of JSON's.
    const QByteArray text(mostValues, ',');
    QTest::newRow("signs in a text") << request("[\"" + text + "\"]") << -32602;
    QTest::newRow("signs behind a quotation mark in a text")
        << request(R"(["\")" + text + "\"]") << -32602;
    QTest::newRow("signs in a text that ends in a backslash")
        << request(R"(["\\",")" + text + "\"]") << -32602;
}

void tst_VXIPCServer::countsTheValuesOfALine()
{
    QFETCH(const QByteArray, line);
    QFETCH(const int, code);

    RawClient client(serverName());
    const QJsonObject answer = object(client.exchange(line));
    QVERIFY2(errorCode(answer) == code, qPrintable(errorMessage(answer)));
    QCOMPARE(client.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void tst_VXIPCServer::refusesTheClientThatIsOneTooMany()
{
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<RawClient>(serverName()));
        QCOMPARE(clients.back()->call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    }
    {
        RawClient tooMany(serverName());
        QCOMPARE(errorCode(tooMany.call("scale", "[1]")), -32001);
        QVERIFY(tooMany.waitForClose());
    }
    QCOMPARE(clients.front()->call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    clients.pop_back();
    QVERIFY(QTest::qWaitFor([this] {
        RawClient next(serverName());
        return next.call("scale", "[1]")[QStringLiteral("result")].toInt() == 10;
    }));
}

void tst_VXIPCServer::takesAClientInThePlaceOfOneThatLeft()
{
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<RawClient>(serverName()));
        QCOMPARE(clients.back()->call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    }
    // It is connected for a while yet, but takes nobody's place.
    RawClient refused(serverName());
    QCOMPARE(errorCode(refused.call("scale", "[1]")), -32001);
    clients.pop_back();
    QTRY_VERIFY(m_service->findChildren<IpcConnection*>().size() <= 64);
    RawClient next(serverName());
    QCOMPARE(next.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void tst_VXIPCServer::carriesOutNothingForARefusedClient()
{
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<RawClient>(serverName()));
        QCOMPARE(clients.back()->call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    }
    RawClient refused(serverName());
    QCOMPARE(errorCode(object(refused.receive())), -32001);
    refused.send(R"({"jsonrpc":"2.0","method":"note","params":["never reached"]})"
                 "\n");
    QVERIFY(refused.waitForClose());
    QCOMPARE(m_service->log, QStringList());
}

void tst_VXIPCServer::sendsAnAnswerOfTheGreatestLength()
{
    RawClient client(serverName());
    // Base64 makes four of three bytes, and the identifier's digits fill up what is around it.
    const QByteArray line =
        client.exchange(R"({"jsonrpc":"2.0","id":1000,"method":"zeroes","params":[3145698]})");
    QCOMPARE(line.size() + 1, 4 * mebibyte);
    QVERIFY(object(line).contains(QStringLiteral("result")));
}

void tst_VXIPCServer::refusesAnAnswerThatIsTooLong()
{
    RawClient client(serverName());
    // Base64 makes more than four of three mebibytes.
    const QJsonObject answer = client.call("zeroes", "[3145728]");
    QCOMPARE(errorCode(answer), -32002);
    QCOMPARE(answer[QStringLiteral("id")].toInt(), 1);
    QCOMPARE(client.call("zeroes", "[3]")[QStringLiteral("result")].toString(),
             QStringLiteral("AAAA"));
}

void tst_VXIPCServer::closesAClientThatTakesNoAnswers()
{
    RawClient bystander(serverName());
    RawClient client(serverName());
    QTRY_COMPARE(m_service->findChildren<QLocalSocket*>().size(), 2);
    client.socket().setReadBufferSize(1);
    for (int i = 0; i < 64; ++i)
        client.send(R"({"jsonrpc":"2.0","id":1,"method":"zeroes","params":[300000]})"
                    "\n");
    client.send(R"({"jsonrpc":"2.0","method":"note","params":["never reached"]})"
                "\n");
    // Seen at the endpoint, as the client looks no more.
    QTRY_COMPARE(m_service->findChildren<QLocalSocket*>().size(), 1);
    QVERIFY(m_service->log.isEmpty());
    QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void tst_VXIPCServer::closesAClientWhoseBatchAsksForTooMuch()
{
    RawClient bystander(serverName());
    RawClient client(serverName());
    const QByteArray request = R"({"jsonrpc":"2.0","id":1,"method":"zeroes","params":[1000000]})";
    client.send('[' + request + ',' + request + ',' + request + ',' + request + "]\n");
    QVERIFY(client.waitForClose());
    QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
}

void tst_VXIPCServer::outlivesAClientThatDies_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("silent") << QByteArray();
    QTest::newRow("in the middle of a line") << QByteArray(R"({"jsonrpc":"2.0","id")");
    QTest::newRow("before the answer")
        << QByteArray("{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"notes\"}\n");
    QTest::newRow("before a great answer") << QByteArray(
        "{\"jsonrpc\":\"2.0\",\"id\":1,\"method\":\"zeroes\",\"params\":[1000000]}\n");
    QTest::newRow("in the middle of a batch")
        << '[' + QByteArray(R"({"jsonrpc":"2.0","id":1,"method":"notes"},)").repeated(10000) +
               "1]\n";
}

void tst_VXIPCServer::outlivesAClientThatDies()
{
    QFETCH(const QByteArray, bytes);

    RawClient bystander(serverName());
    for (int i = 0; i < 10; ++i) {
        RawClient client(serverName());
        client.send(bytes);
        client.socket().flush();
        QCoreApplication::processEvents();
        client.socket().abort();
        QCOMPARE(bystander.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
    }
}

void tst_VXIPCServer::doesWhatAClientSentBeforeItLeft_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("lineLength");
    QTest::newRow("many lines") << 1000 << 60;
    // Parsed on another thread while the client leaves.
    QTest::newRow("long lines") << 10 << 300000;
}

void tst_VXIPCServer::doesWhatAClientSentBeforeItLeft()
{
    QFETCH(const int, lines);
    QFETCH(const int, lineLength);
    const QByteArray note = R"({"jsonrpc":"2.0","method":"note","params":["a"])";
    {
        RawClient client(serverName());
        for (int i = 0; i < lines; ++i)
            client.send(note + QByteArray(lineLength - note.size() - 1, ' ') + "}\n");
        client.socket().disconnectFromServer();
        QVERIFY(client.waitForClose());
    }
    QTRY_COMPARE(m_service->log.size(), lines);
}

void tst_VXIPCServer::servesOthersDuringALongBatch()
{
    RawClient busy(serverName());
    RawClient quick(serverName());
    // Ten times this line's time is more than the quick client has.
    const QByteArray slow = R"({"jsonrpc":"2.0","id":1,"method":"block","params":[1]})";
    busy.send('[' + (slow + ',').repeated(2000) + slow + "]\n");
    QVERIFY(QTest::qWaitFor([&] {
        busy.socket().flush();
        return busy.socket().bytesToWrite() == 0;
    }));
    for (int i = 0; i < 10; ++i)
        QCOMPARE(quick.call("scale", "[2,3]")[QStringLiteral("result")].toInt(), 6);
    QVERIFY(!busy.socket().canReadLine());
}

void tst_VXIPCServer::takesCallsDuringACall()
{
    // In another process: here the call's event loop would run this test's.
    HostProcess host(newServerType());
    RawClient waiting(host.serverName());
    RawClient other(host.serverName());
    waiting.send(R"({"jsonrpc":"2.0","id":"w","method":"wait"})"
                 "\n"
                 R"({"jsonrpc":"2.0","id":"n","method":"notes"})"
                 "\n");
    QTRY_VERIFY(other.call("isWaiting")[QStringLiteral("result")].toBool());
    // A client's calls are made one after the other.
    QVERIFY(!waiting.socket().canReadLine());
    QVERIFY(other.call("release").contains(QStringLiteral("result")));
    QCOMPARE(object(waiting.receive())[QStringLiteral("result")].toString(),
             QStringLiteral("waited"));
    QCOMPARE(object(waiting.receive())[QStringLiteral("id")].toString(), QStringLiteral("n"));
}

void tst_VXIPCServer::goesOnWithOthersDuringACall()
{
    HostProcess host(newServerType());
    RawClient other(host.serverName());
    RawClient waiting(host.serverName());
    RawClient watching(host.serverName());
    // Each of these calls takes more than a client's turn, so that both batches wait for the next
    // one again and again, and the other's does when the call begins.
    const QByteArray slow = R"({"jsonrpc":"2.0","method":"block","params":[1]},)";
    other.send(R"([{"jsonrpc":"2.0","method":"note","params":["begun"]},)" + slow.repeated(500) +
               R"({"jsonrpc":"2.0","id":"r","method":"release"}])"
               "\n");
    other.socket().flush();
    QTRY_VERIFY(!watching.call("notes")[QStringLiteral("result")].toArray().isEmpty());
    waiting.send('[' + slow.repeated(20) +
                 R"({"jsonrpc":"2.0","id":"w","method":"wait"}])"
                 "\n");
    QCOMPARE(parsed(waiting.receive())[0][QStringLiteral("result")].toString(),
             QStringLiteral("waited"));
    QCOMPARE(parsed(other.receive())[0][QStringLiteral("id")].toString(), QStringLiteral("r"));
}

void tst_VXIPCServer::readsNoMoreThanItWorksOn()
{
    HostProcess host(newServerType());
    RawClient busy(host.serverName());
    RawClient other(host.serverName());
    busy.send(R"({"jsonrpc":"2.0","id":"w","method":"wait"})"
              "\n");
    QTRY_VERIFY(other.call("isWaiting")[QStringLiteral("result")].toBool());
    // Stays with the client but for what the system takes and one piece that the endpoint reads.
    // After each round of calls the endpoint has had a hundred chances to read more.
    busy.send(QByteArray(8 * mebibyte, '\n'));
    qint64 before = 0;
    do {
        before = busy.socket().bytesToWrite();
        for (int i = 0; i < 100; ++i)
            QCOMPARE(other.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    } while (busy.socket().bytesToWrite() < before);
    QVERIFY2(before > 4 * mebibyte, qPrintable(QString::number(before)));

    QVERIFY(other.call("release").contains(QStringLiteral("result")));
    QCOMPARE(object(busy.receive())[QStringLiteral("result")].toString(), QStringLiteral("waited"));
    QCOMPARE(busy.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
}

void tst_VXIPCServer::letsTheClientGoThatWasSilentLongest()
{
    m_service->findChild<IpcPublisher*>()->setPatience(0ms);
    const auto asks = [](RawClient& client) {
        return client.call("scale", "[1]")[QStringLiteral("result")].toInt() == 10;
    };
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<RawClient>(serverName()));
        QVERIFY(asks(*clients.back()));
    }
    QVERIFY(asks(*clients[0]));

    RawClient next(serverName());
    QVERIFY(asks(next));
    QCOMPARE(errorCode(object(clients[1]->receive())), -32001);
    QVERIFY(clients[1]->waitForClose());
    clients.erase(clients.begin() + 1);
    for (const auto& client : clients)
        QVERIFY(asks(*client));
}

void tst_VXIPCServer::letsAnotherClientGoForEachThatComes()
{
    m_service->findChild<IpcPublisher*>()->setPatience(0ms);
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 64; ++i) {
        clients.push_back(std::make_unique<RawClient>(serverName()));
        QCOMPARE(clients.back()->call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    }
    RawClient first(serverName());
    QCOMPARE(first.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    RawClient second(serverName());
    QCOMPARE(second.call("scale", "[1]")[QStringLiteral("result")].toInt(), 10);
    QCOMPARE(errorCode(object(clients[0]->receive())), -32001);
    QCOMPARE(errorCode(object(clients[1]->receive())), -32001);
}

void tst_VXIPCServer::letsNoClientGoThatWaitsForAnAnswer()
{
    // On another thread, as the call that is waited for runs an event loop of its own.
    QThread thread;
    auto* service = new TestService(newServerType());
    QTRY_VERIFY(!service->serverName().isEmpty());
    const QString name = service->serverName();
    service->findChild<IpcPublisher*>()->setPatience(0ms);
    service->moveToThread(&thread);
    connect(&thread, &QThread::finished, service, &QObject::deleteLater);
    thread.start();
    const auto end = qScopeGuard([&] {
        thread.quit();
        thread.wait();
    });

    RawClient waiting(name);
    waiting.send(R"({"jsonrpc":"2.0","id":"w","method":"wait"})"
                 "\n");
    std::vector<std::unique_ptr<RawClient>> clients;
    for (int i = 0; i < 63; ++i) {
        clients.push_back(std::make_unique<RawClient>(name));
        QTRY_VERIFY(clients.back()->call("isWaiting")[QStringLiteral("result")].toBool());
    }
    RawClient next(name);
    QVERIFY(next.call("release").contains(QStringLiteral("result")));
    QCOMPARE(object(waiting.receive())[QStringLiteral("result")].toString(),
             QStringLiteral("waited"));
    QCOMPARE(errorCode(object(clients[0]->receive())), -32001);
}

void tst_VXIPCServer::mayBeDestroyedByACall()
{
    const QPointer<TestService> service(m_service.release());
    RawClient client(service->serverName());
    client.send(R"({"jsonrpc":"2.0","id":1,"method":"destroy"})"
                "\n"
                R"({"jsonrpc":"2.0","id":2,"method":"notes"})"
                "\n");
    QVERIFY(client.waitForClose());
    QVERIFY(!service);
}

void tst_VXIPCServer::mayBeDestroyedWithLongLinesInWork()
{
    // Ends wherever the work has come to, on either thread.
    for (int round = 0; round < 20; ++round) {
        std::vector<std::unique_ptr<RawClient>> clients;
        for (int i = 0; i < 3; ++i) {
            clients.push_back(std::make_unique<RawClient>(serverName()));
            clients.back()->send('[' + QByteArray("1,").repeated(20000 * (i + 1)) + "1]\n");
        }
        QVERIFY(QTest::qWaitFor([&] {
            return std::ranges::all_of(
                clients, [](const auto& each) { return each->socket().bytesToWrite() == 0; });
        }));
        for (int i = 0; i < round; ++i)
            QCoreApplication::processEvents();
        m_service.reset();
        for (const auto& client : clients)
            QVERIFY(client->waitForClose());
        init();
    }
}

void tst_VXIPCServer::mayBeDestroyedAsAClientLeavesAfterALongBadLine()
{
    RawClient client(serverName());
    // Long enough to be parsed on the other thread.
    QCOMPARE(errorCode(object(client.exchange(QByteArray(100000, 'x')))), -32700);
    auto* connection = m_service->findChild<IpcConnection*>();
    QVERIFY(connection);

    Destroyer destroyer([this] { m_service.reset(); });
    connect(connection, &IpcConnection::finished, &destroyer, &Destroyer::destroyFirst);
    client.socket().abort();
    QTRY_VERIFY(!m_service);
}

QTEST_GUILESS_MAIN(tst_VXIPCServer)
#include "tst_vxipc_server.moc"
