// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "commands.h"

#include "arguments.h"
#include "ipc_names.h"
#include "json_text.h"
#include "shown_text.h"
#include "vxipcclient.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <array>
#include <optional>

namespace {

struct Service
{
    const char* name;
    int serverType;
};

constexpr std::array services = {Service{"supplyd", 0}, Service{"m4", 1}, Service{"printqd", 2}};

void print(const QString& line)
{
    output().write(shown(line) + QLatin1Char('\n'));
}

/// A text by itself, anything else as JSON.
QString plain(const QJsonValue& value)
{
    return value.isString() ? value.toString() : json_text::value(value);
}

void printPlain(const QJsonValue& value)
{
    if (value.isNull())
        return;
    if (value.isArray()) {
        for (const QJsonArray list = value.toArray(); const QJsonValue& entry : list)
            print(plain(entry));
        return;
    }
    if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (auto member = object.constBegin(); member != object.constEnd(); ++member)
            print(QStringLiteral("%1: %2").arg(member.key(), plain(member.value())));
        return;
    }
    print(plain(value));
}

/// "supplyd", "supplyd-<process id>", "0", "vxipc-0" and the like as the endpoint's name.
std::optional<QString> serverName(const QString& service)
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

/// The service that an endpoint's name stands for, its number when it has no name of its own.
QString serviceOf(const QString& server)
{
    const QString number = server.mid(endpointNamePrefix.size()).section(QLatin1Char('-'), 0, 0);
    for (const Service& each : services) {
        if (number == QString::number(each.serverType))
            return QString::fromLatin1(each.name);
    }
    return number;
}

int complain(const QString& subject, const VXIPCError& error)
{
    return complain(Failed, QStringLiteral("%1: %2").arg(subject, error.message));
}

int list(const Options& options)
{
    if (const QString obstacle = VXIPCClient::distrust(); !obstacle.isEmpty())
        return complain(Failed, obstacle);
    QJsonArray found;
    for (const QStringList servers = VXIPCClient::runningServers();
         const QString& server : servers) {
        VXIPCClient client(server);
        const VXIPCReply reply =
            client.callAndWait(QStringLiteral("rpc.discover"), {}, options.timeout);
        // Listed too when it does not answer: it is there, and somebody looks for the reason.
        const QJsonValue info = reply.result[QStringLiteral("info")];
        found.append(QJsonObject{
            {QStringLiteral("name"), server},
            {QStringLiteral("service"), serviceOf(server)},
            {QStringLiteral("process"), info[QStringLiteral("x-process")]},
            {QStringLiteral("application"), info[QStringLiteral("x-application")]},
            {QStringLiteral("error"), reply.isOk() ? QJsonValue() : reply.error->message}});
    }
    if (options.isJson) {
        print(json_text::value(found));
        return Done;
    }
    for (const QJsonValue& server : std::as_const(found)) {
        const bool answers = server[QStringLiteral("error")].isNull();
        QStringList cells{server[QStringLiteral("name")].toString(),
                          server[QStringLiteral("service")].toString(),
                          answers ? plain(server[QStringLiteral("process")])
                                  : server[QStringLiteral("error")].toString(),
                          server[QStringLiteral("application")].toString()};
        std::ranges::transform(cells, cells.begin(), shown);
        output().write(cells.join(QLatin1Char('\t')) + QLatin1Char('\n'));
    }
    return Done;
}

int describe(const QString& server, const Options& options)
{
    VXIPCClient client(server);
    const VXIPCReply reply =
        client.callAndWait(QStringLiteral("rpc.discover"), {}, options.timeout);
    if (!reply.isOk())
        return complain(server, *reply.error);
    if (options.isJson) {
        print(json_text::value(reply.result));
        return Done;
    }
    for (const QJsonArray methods = reply.result[QStringLiteral("methods")].toArray();
         const QJsonValue& method : methods) {
        print(QStringLiteral("%1 -> %2")
                  .arg(signature(method.toObject()),
                       method[QStringLiteral("result")][QStringLiteral("x-type")].toString()));
    }
    return Done;
}

int call(const QString& server, const QString& method, const QStringList& texts,
         const Options& options)
{
    VXIPCClient client(server);
    const VXIPCReply service =
        client.callAndWait(QStringLiteral("rpc.discover"), {}, options.timeout);
    if (!service.isOk())
        return complain(server, *service.error);
    const Arguments arguments = readArguments(service.result.toObject(), method, texts);
    if (arguments.error)
        return complain(Failed, QStringLiteral("%1: %2").arg(server, *arguments.error));

    const VXIPCReply reply = client.callAndWait(method, arguments.values, options.timeout);
    if (!reply.isOk())
        return complain(QStringLiteral("%1: %2").arg(server, method), *reply.error);
    if (options.isJson)
        print(json_text::value(reply.result));
    else
        printPlain(reply.result);
    return Done;
}

} // namespace

StandardOutput& output()
{
    static StandardOutput output("vxipc");
    return output;
}

int complain(ExitStatus status, const QString& complaint)
{
    output().complain(complaint);
    return status;
}

int runCommand(const QStringList& words, const Options& options)
{
    if (words.isEmpty())
        return complain(WrongUsage, QStringLiteral("expected list, describe or call; see --help"));
    const QString verb = words.at(0);
    if (verb == QStringLiteral("list")) {
        if (words.size() != 1)
            return complain(WrongUsage, QStringLiteral("list takes no arguments"));
        return list(options);
    }
    const bool isDescribe = verb == QStringLiteral("describe");
    if (!isDescribe && verb != QStringLiteral("call"))
        return complain(WrongUsage,
                        QStringLiteral("\"%1\": expected list, describe or call").arg(verb));
    if (isDescribe && words.size() != 2)
        return complain(WrongUsage, QStringLiteral("describe takes a SERVICE"));
    if (!isDescribe && words.size() < 3)
        return complain(WrongUsage,
                        QStringLiteral("call takes a SERVICE, a METHOD and its arguments"));

    const std::optional<QString> server = serverName(words.at(1));
    if (!server) {
        return complain(
            WrongUsage,
            QStringLiteral("\"%1\" is no service: expected supplyd, m4, printqd, a number "
                           "or a name that list prints")
                .arg(words.at(1)));
    }
    return isDescribe ? describe(*server, options)
                      : call(*server, words.at(2), words.mid(3), options);
}
