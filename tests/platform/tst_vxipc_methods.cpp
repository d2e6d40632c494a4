// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Which methods an endpoint has, and how it reads requests and answers them.
#include "ipc_json.h"
#include "ipc_server_test.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>

using namespace ipc_json;

namespace {

QByteArray objectOfSize(qsizetype members)
{
    QByteArrayList all;
    for (qsizetype i = 0; i < members; ++i)
        all.append("\"m" + QByteArray::number(i) + "\":1");
    return '{' + all.join(',') + '}';
}

} // namespace

class VXIPCMethodsTest : public IpcServerTest
{
    Q_OBJECT

private Q_SLOTS:
    void carriesValues_data();
    void carriesValues();
    void answersNullForNumbersThatJsonLacks();
    void choosesTheOverload_data();
    void choosesTheOverload();
    void refusesBadParameters_data();
    void refusesBadParameters();
    void takesArgumentsAtTheirBounds_data();
    void takesArgumentsAtTheirBounds();
    void refusesArgumentsBeyondTheirBounds_data();
    void refusesArgumentsBeyondTheirBounds();
    void refusesCallsThatTheEndpointObjectsTo();
    void shortensLongNamesInErrors();
    void refusesBadRequests_data();
    void refusesBadRequests();
    void answersUnderTheId_data();
    void answersUnderTheId();
    void hidesWhatTheEndpointDoesNotDeclare_data();
    void hidesWhatTheEndpointDoesNotDeclare();
    void describesItsMethods();
    void describesOverloadsAndDefaults();
    void describesRecords();

    void answersABatch();
    void doesNotAnswerABatchOfNotifications();
    void refusesInvalidBatches();
    void doesNotAnswerNotifications();
    void readsLinesAsTheyCome();
};

void VXIPCMethodsTest::carriesValues_data()
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
    row("JSON object", "jsonObjectEcho", R"([{"a":[1,{"b":null}],"c":"\"x\u0001"}])",
        R"({"a":[1,{"b":null}],"c":"\"x\u0001"})");
    row("empty JSON object", "jsonObjectEcho", "[{}]", "{}");
    row("JSON list", "jsonArrayEcho", R"([[true,false,{}]])", "[true,false,{}]");
    row("JSON value: number", "jsonValueEcho", "[9007199254740993]", "9007199254740993");
    row("JSON value: null", "jsonValueEcho", "[null]", "null");
    row("JSON value: object", "jsonValueEcho", R"([{"a":[]}])", R"({"a":[]})");
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

void VXIPCMethodsTest::carriesValues()
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

void VXIPCMethodsTest::answersNullForNumbersThatJsonLacks()
{
    // Overflows to infinity, which JSON has no number for.
    RawClient client(serverName());
    const QJsonObject answer = client.call("notANumber");
    QVERIFY(answer.contains(QStringLiteral("result")));
    QCOMPARE(answer[QStringLiteral("result")], QJsonValue(QJsonValue::Null));
}

void VXIPCMethodsTest::choosesTheOverload_data()
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

void VXIPCMethodsTest::choosesTheOverload()
{
    QFETCH(const QByteArray, parameters);
    QFETCH(const QString, chosen);

    RawClient client(serverName());
    QCOMPARE(client.call("overloaded", parameters)[QStringLiteral("result")].toString(), chosen);
}

void VXIPCMethodsTest::refusesBadParameters_data()
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
    row("list for JSON object", "jsonObjectEcho", "[[]]", "object",
        "expected an object, got a list");
    row("text for JSON list", "jsonArrayEcho", R"(["a"])", "array", "expected a list, got a text");
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

void VXIPCMethodsTest::refusesBadParameters()
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

void VXIPCMethodsTest::takesArgumentsAtTheirBounds_data()
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

void VXIPCMethodsTest::takesArgumentsAtTheirBounds()
{
    QFETCH(const QByteArray, method);
    QFETCH(const QByteArray, argument);

    RawClient client(serverName());
    const QJsonObject answer = client.call(method, '[' + argument + ']');
    QVERIFY2(!answer.contains(QStringLiteral("error")), qPrintable(errorMessage(answer)));
    QCOMPARE(answer[QStringLiteral("result")], parsed(argument));
}

void VXIPCMethodsTest::refusesArgumentsBeyondTheirBounds_data()
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
    row("JSON object", "jsonObjectEcho", objectOfSize(65),
        "expected an object of at most 64 members, got 65");
    row("JSON value", "jsonValueEcho", list(65, "1"),
        "expected a list of at most 64 entries, got 65");
    row("any", "anyEcho", list(65, "1"), "expected a list of at most 64 entries, got 65");
}

void VXIPCMethodsTest::refusesArgumentsBeyondTheirBounds()
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

void VXIPCMethodsTest::refusesCallsThatTheEndpointObjectsTo()
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
    // Calls within the process are not checked.
    m_service->keep(QStringLiteral("e"));
    QCOMPARE(m_service->kept.size(), 3);
}

void VXIPCMethodsTest::shortensLongNamesInErrors()
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
    // The hundredth character needs two code units, but only one would fit.
    const QJsonObject pair = client.call(QByteArray(99, 'n') + "😀😀");
    QCOMPARE(errorMessage(pair),
             QStringLiteral("Method not found: %1…").arg(QString(99, QLatin1Char('n'))));
}

void VXIPCMethodsTest::refusesBadRequests_data()
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

void VXIPCMethodsTest::refusesBadRequests()
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

void VXIPCMethodsTest::answersUnderTheId_data()
{
    QTest::addColumn<QByteArray>("id");

    for (const char* id : {"0", "-7", "1.5", "9007199254740993", R"("")", R"("a-1")", "null"})
        QTest::newRow(id) << QByteArray(id);
    QTest::newRow("of the greatest length") << textOfSize(4096);
}

void VXIPCMethodsTest::answersUnderTheId()
{
    QFETCH(const QByteArray, id);

    RawClient client(serverName());
    const QJsonObject answer = object(
        client.exchange(R"({"jsonrpc":"2.0","method":"scale","params":[1,1],"id":)" + id + '}'));
    QCOMPARE(answer[QStringLiteral("id")], parsed(id));
    QCOMPARE(answer[QStringLiteral("result")].toInt(), 1);
}

void VXIPCMethodsTest::hidesWhatTheEndpointDoesNotDeclare_data()
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

void VXIPCMethodsTest::hidesWhatTheEndpointDoesNotDeclare()
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

void VXIPCMethodsTest::describesItsMethods()
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
            "jsonObjectEcho jsonArrayEcho jsonValueEcho "
            "overloaded overloaded overloaded overloaded overloaded note notes keep zeroes "
            "wait isWaiting release block destroy destroyAfterATelling tell setState "
            "tellAroundAWait refuse waitAndRefuse quit")
            .split(QLatin1Char(' '));
    QCOMPARE(names, expected);
}

void VXIPCMethodsTest::describesOverloadsAndDefaults()
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

void VXIPCMethodsTest::describesRecords()
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

void VXIPCMethodsTest::answersABatch()
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

void VXIPCMethodsTest::doesNotAnswerABatchOfNotifications()
{
    RawClient client(serverName());
    client.send(R"([{"jsonrpc":"2.0","method":"note","params":["a"]},)"
                R"({"jsonrpc":"2.0","method":"note","params":["b"]}])"
                "\n");
    // The next line is the answer to this call, so the batch had none.
    QCOMPARE(client.call("notes")[QStringLiteral("result")], parsed(R"(["a","b"])"));
}

void VXIPCMethodsTest::refusesInvalidBatches()
{
    RawClient client(serverName());
    QCOMPARE(errorCode(object(client.exchange("[]"))), -32600);
    const QJsonArray answers = QJsonDocument::fromJson(client.exchange("[1,[],null]")).array();
    QCOMPARE(answers.size(), 3);
    for (const QJsonValue& answer : answers)
        QCOMPARE(errorCode(answer.toObject()), -32600);
}

void VXIPCMethodsTest::doesNotAnswerNotifications()
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

void VXIPCMethodsTest::readsLinesAsTheyCome()
{
    RawClient client(serverName());
    const QByteArray line = R"({"jsonrpc":"2.0","id":1,"method":"notes"})";
    // One byte at a time, each sent before the next.
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

QTEST_GUILESS_MAIN(VXIPCMethodsTest)
#include "tst_vxipc_methods.moc"
