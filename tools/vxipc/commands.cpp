// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "arguments.h"
#include "failure.h"
#include "ipc_names.h"
#include "json_text.h"
#include "shown_text.h"
#include "tool_text.h"
#include "vxipcclient.h"

#include <QtCore/QEventLoop>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>
#include <QtCore/QTimer>

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

using namespace std::chrono_literals;

namespace {

struct Service
{
    const char* name;
    int serverType;
};

constexpr std::array services = {Service{"supplyd", 0}, Service{"m4", 1}, Service{"printqd", 2},
                                 Service{"status", 3}};

void printLine(StandardOutput& output, const QString& line)
{
    output.write(shown(line) + QLatin1Char('\n'));
}

/// A string as it is, any other value as JSON.
QString plain(const QJsonValue& value)
{
    return value.isString() ? value.toString() : json_text::value(value);
}

void printPlain(StandardOutput& output, const QJsonValue& value)
{
    if (value.isNull())
        return;
    if (value.isArray()) {
        for (const QJsonArray list = value.toArray(); const QJsonValue& entry : list)
            printLine(output, plain(entry));
        return;
    }
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.constBegin(); member != object.constEnd(); ++member)
            printLine(output, QStringLiteral("%1: %2").arg(member.key(), plain(member.value())));
        return;
    }
    printLine(output, plain(value));
}

/// The endpoint's name for "supplyd", "supplyd-<process id>", "0", "vxipc-0" and the like.
std::optional<QString> endpointName(const QString& service)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:%1)?(?<service>[a-z][a-z0-9]*|-?\\d+)(?<process>(?:-\\d+){0,2})$")
            .arg(endpointNamePrefix));
    const QRegularExpressionMatch match = form.match(service);
    if (!match.hasMatch())
        return std::nullopt;
    const QString wanted = match.captured(QStringLiteral("service"));
    const QString process = match.captured(QStringLiteral("process"));
    for (const Service& each : services) {
        if (wanted == QLatin1String(each.name))
            return endpointNamePrefix + QString::number(each.serverType) + process;
    }
    bool isNumber = false;
    wanted.toInt(&isNumber);
    return isNumber ? std::optional(endpointNamePrefix + wanted + process) : std::nullopt;
}

/// The name of the service that an endpoint belongs to, or its number if it has no name.
QString serviceOf(const QString& endpoint)
{
    const QString number = endpoint.mid(endpointNamePrefix.size()).section(QLatin1Char('-'), 0, 0);
    for (const Service& each : services) {
        if (number == QString::number(each.serverType))
            return QString::fromLatin1(each.name);
    }
    return number;
}

/// The result of a call. `subject` is what the message begins with if the call fails.
QJsonValue resultOf(const VXIPCReply& reply, const QString& subject)
{
    if (!reply.isOk())
        throw Failure(QStringLiteral("%1: %2").arg(subject, reply.error->message));
    return reply.result;
}

VXIPCReply discover(VXIPCClient& client, const Options& options)
{
    return client.callAndWait(QStringLiteral("rpc.discover"), {}, options.timeout);
}

void list(const QStringList& /*words*/, const Options& options, StandardOutput& output)
{
    if (const QString obstacle = VXIPCClient::distrust(); !obstacle.isEmpty())
        throw Failure(obstacle);
    QJsonArray found;
    for (const QStringList endpoints = VXIPCClient::runningServers();
         const QString& endpoint : endpoints) {
        VXIPCClient client(endpoint);
        const VXIPCReply reply = discover(client, options);
        // An endpoint that does not answer is listed too, with the reason.
        const QJsonValue info = reply.result[QStringLiteral("info")];
        found.append(QJsonObject{
            {QStringLiteral("name"), endpoint},
            {QStringLiteral("service"), serviceOf(endpoint)},
            {QStringLiteral("process"), info[QStringLiteral("x-process")]},
            {QStringLiteral("application"), info[QStringLiteral("x-application")]},
            {QStringLiteral("error"), reply.isOk() ? QJsonValue() : reply.error->message}});
    }
    if (options.isJson) {
        printLine(output, json_text::value(found));
        return;
    }
    for (const QJsonValue& endpoint : std::as_const(found)) {
        const bool answers = endpoint[QStringLiteral("error")].isNull();
        QStringList cells{endpoint[QStringLiteral("name")].toString(),
                          endpoint[QStringLiteral("service")].toString(),
                          answers ? plain(endpoint[QStringLiteral("process")])
                                  : endpoint[QStringLiteral("error")].toString(),
                          endpoint[QStringLiteral("application")].toString()};
        std::ranges::transform(cells, cells.begin(), shown);
        output.write(cells.join(QLatin1Char('\t')) + QLatin1Char('\n'));
    }
}

QString requireEndpoint(const QString& service)
{
    const std::optional<QString> name = endpointName(service);
    if (!name)
        throw wrongUsage(
            ToolText::tr("unknown service \"%1\"; expected supplyd, m4, printqd, status, a "
                         "number or a name printed by list")
                .arg(service));
    return *name;
}

void describe(const QStringList& words, const Options& options, StandardOutput& output)
{
    const QString endpoint = requireEndpoint(words.at(0));
    VXIPCClient client(endpoint);
    const QJsonValue service = resultOf(discover(client, options), endpoint);
    if (options.isJson) {
        printLine(output, json_text::value(service));
        return;
    }
    for (const QJsonArray methods = service[QStringLiteral("methods")].toArray();
         const QJsonValue& method : methods) {
        printLine(output,
                  QStringLiteral("%1 -> %2")
                      .arg(signature(method.toObject()),
                           method[QStringLiteral("result")][QStringLiteral("x-type")].toString()));
    }
    for (const QJsonArray each = service[QStringLiteral("x-signals")].toArray();
         const QJsonValue& signal : each)
        printLine(output, QStringLiteral("signal %1").arg(signature(signal.toObject())));
}

void call(const QStringList& words, const Options& options, StandardOutput& output)
{
    const QString endpoint = requireEndpoint(words.at(0));
    const QString& method = words.at(1);
    const QString subject = QStringLiteral("%1: %2").arg(endpoint, method);
    VXIPCClient client(endpoint);
    const QJsonObject service = resultOf(discover(client, options), endpoint).toObject();
    const QJsonArray arguments = readArguments(endpoint, service, method, words.mid(2));
    const QJsonValue result =
        resultOf(client.callAndWait(method, arguments, options.timeout), subject);
    if (options.isJson)
        printLine(output, json_text::value(result));
    else
        printPlain(output, result);
}

/// All signals of the endpoint.
QStringList signalsOf(VXIPCClient& client, const Options& options)
{
    QStringList names;
    const QJsonValue service = resultOf(discover(client, options), client.serverName());
    for (const QJsonArray each = service[QStringLiteral("x-signals")].toArray();
         const QJsonValue& signal : each)
        names.append(signal[QStringLiteral("name")].toString());
    names.removeDuplicates();
    if (names.isEmpty())
        throw Failure(ToolText::tr("%1: it has no signals").arg(client.serverName()));
    return names;
}

void watch(const QStringList& words, const Options& options, StandardOutput& output)
{
    const QString endpoint = requireEndpoint(words.at(0));
    VXIPCClient client(endpoint);
    client.setTimeout(options.timeout);
    const QStringList names = words.size() > 1 ? words.mid(1) : signalsOf(client, options);

    QEventLoop loop;
    std::optional<Failure> failure;
    const auto fail = [&](const QString& reason) {
        failure = Failure(QStringLiteral("%1: %2").arg(endpoint, reason));
        loop.quit();
    };
    QObject::connect(
        &client, &VXIPCClient::notificationReceived, &loop,
        [&](const QString& signalName, const QJsonObject& arguments) {
            output.write(
                json_text::object({{QStringLiteral("signal"), json_text::value(signalName)},
                                   {QStringLiteral("arguments"), json_text::value(arguments)}}) +
                QLatin1Char('\n'));
            if (output.isOver())
                loop.quit();
        });
    QObject::connect(&client, &VXIPCClient::disconnected, &loop, [&] {
        output.complain(
            ToolText::tr("%1: the connection ended; waiting for the endpoint").arg(endpoint));
    });
    QObject::connect(&client, &VXIPCClient::resubscribed, &loop, [&] {
        output.complain(
            ToolText::tr("%1: watching again; what changed meanwhile was missed").arg(endpoint));
    });
    QObject::connect(&client, &VXIPCClient::subscriptionLost, &loop, fail);
    client.subscribe(names, [&](const VXIPCReply& reply) {
        if (!reply.isOk())
            fail(reply.error->message);
    });
    // Nothing else tells that the reader has closed the pipe while there is nothing to print.
    QTimer clock;
    QObject::connect(&clock, &QTimer::timeout, &loop, [&] {
        if (output.isOver())
            loop.quit();
    });
    clock.start(50ms);
    if (options.watchTime)
        QTimer::singleShot(*options.watchTime, &loop, &QEventLoop::quit);
    loop.exec();
    if (failure)
        throw Failure(*failure);
}

struct Command
{
    const char* name;
    const char* expected; ///< its arguments as error messages describe them
    qsizetype fewestArguments;
    qsizetype mostArguments;
    void (*run)(const QStringList& words, const Options& options, StandardOutput& output);
};

constexpr std::array commands{
    Command{"list", QT_TRANSLATE_NOOP("tools", "no arguments"), 0, 0, list},
    Command{"describe", QT_TRANSLATE_NOOP("tools", "a SERVICE"), 1, 1, describe},
    Command{"call", QT_TRANSLATE_NOOP("tools", "a SERVICE, a METHOD and its arguments"), 2,
            std::numeric_limits<qsizetype>::max(), call},
    Command{"watch", QT_TRANSLATE_NOOP("tools", "a SERVICE and SIGNALs"), 1,
            std::numeric_limits<qsizetype>::max(), watch},
};

} // namespace

void runCommand(const QStringList& words, const Options& options, StandardOutput& output)
{
    const QString expected = ToolText::tr("expected list, describe, call or watch");
    if (words.isEmpty())
        throw wrongUsage(expected);
    const QString& name = words.first();
    const auto command = std::ranges::find_if(
        commands, [&name](const Command& each) { return name == QLatin1String(each.name); });
    if (command == commands.end())
        throw wrongUsage(ToolText::tr("unknown command \"%1\"; %2").arg(name, expected));
    const QStringList arguments = words.mid(1);
    if (arguments.size() < command->fewestArguments || arguments.size() > command->mostArguments)
        throw wrongUsage(
            ToolText::tr("%1 takes %2")
                .arg(QString::fromLatin1(command->name), ToolText::tr(command->expected)));
    if (options.watchTime && name != QLatin1String("watch"))
        throw wrongUsage(ToolText::tr("%1 takes no --for").arg(name));
    command->run(arguments, options, output);
}
