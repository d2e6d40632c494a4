// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_signal_table.h"

#include "ipc_values.h"
#include "json_writer.h"

#include <variant>

namespace {

/// The names in `parameters`, or why there are none.
std::variant<QStringList, json_rpc::Error> readNames(const QJsonValue& parameters)
{
    const auto misfit = [](const QString& got) {
        return json_rpc::invalidParams(
            QStringLiteral("expected the names of signals, as a list of texts, got %1").arg(got),
            {{QStringLiteral("argument"), QStringLiteral("signals")},
             {QStringLiteral("expected"), QStringLiteral("a list of texts")}});
    };
    QJsonValue list = parameters;
    if (parameters.isObject()) {
        const QJsonObject object = parameters.toObject();
        list = object.value(QLatin1String("signals"));
        for (auto member = object.begin(); member != object.end(); ++member) {
            if (member.key() == QLatin1String("signals"))
                continue;
            const QString shown = json_rpc::excerpt(member.key());
            return json_rpc::invalidParams(QStringLiteral("there is no argument \"%1\"").arg(shown),
                                           {{QStringLiteral("argument"), shown}});
        }
    }
    if (!list.isArray())
        return misfit(ipc_values::kindOf(list));
    if (const auto excess = ipc_values::excessOf(list)) {
        return json_rpc::invalidParams(
            QStringLiteral("expected %1, got %2").arg(excess->expected).arg(excess->found),
            {{QStringLiteral("argument"), QStringLiteral("signals")},
             {QStringLiteral("expected"), excess->expected}});
    }
    QStringList names;
    for (const QJsonArray array = list.toArray(); const QJsonValue& name : array) {
        if (!name.isString())
            return misfit(QStringLiteral("%1 among them").arg(ipc_values::kindOf(name)));
        names.append(name.toString());
    }
    return names;
}

/// Some of `names` in quotation marks, and how many more there are.
QString quoted(const QStringList& names)
{
    constexpr qsizetype mostShown = 5;
    QStringList shown;
    for (const QString& name : names.mid(0, mostShown))
        shown.append(QLatin1Char('"') + json_rpc::excerpt(name) + QLatin1Char('"'));
    QString text = shown.join(QStringLiteral(", "));
    if (names.size() > mostShown)
        text += QStringLiteral(" and %1 more").arg(names.size() - mostShown);
    return text;
}

json_rpc::Error refusal(const QString& why, const QStringList& names)
{
    QJsonArray refused;
    for (const QString& name : names)
        refused.append(json_rpc::excerpt(name));
    return json_rpc::invalidParams(why, {{QStringLiteral("signals"), refused}});
}

} // namespace

IpcSignalTable::IpcSignalTable(const QObject& object, const QMetaObject& base)
{
    const QMetaObject& meta = *object.metaObject();
    for (int i = base.methodCount(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        // A signal with default arguments is listed once more without them, and always emitted with
        // all of them.
        if (method.methodType() != QMetaMethod::Signal ||
            (method.attributes() & QMetaMethod::Cloned) != 0)
            continue;
        const QList<IpcParameter> parameters = parametersOf(method);
        m_signals.append(
            {method, QString::fromUtf8(method.name()), parameters, unsupportedType(parameters)});
    }
}

IpcSignalTable::Selection IpcSignalTable::select(const QJsonValue& parameters) const
{
    const std::variant<QStringList, json_rpc::Error> read = readNames(parameters);
    if (const auto* error = std::get_if<json_rpc::Error>(&read))
        return {{}, *error};
    Selection selection;
    QStringList unknown;
    QStringList unsendable;
    QString type;
    for (const QString& name : std::get<QStringList>(read)) {
        bool isKnown = false;
        bool isSendable = false;
        for (qsizetype i = 0; i < m_signals.size(); ++i) {
            const Signal& signal = m_signals.at(i);
            if (signal.name != name)
                continue;
            isKnown = true;
            if (!signal.unsupported.isEmpty()) {
                type = signal.unsupported;
                continue;
            }
            isSendable = true;
            selection.places.insert(i);
        }
        if (!isKnown)
            unknown.append(name);
        else if (!isSendable)
            unsendable.append(name);
    }
    if (!unknown.isEmpty())
        selection.error =
            refusal(QStringLiteral("there is no signal %1").arg(quoted(unknown)), unknown);
    else if (!unsendable.isEmpty())
        selection.error = refusal(QStringLiteral("%1 cannot be sent: JSON has no form for %2")
                                      .arg(quoted(unsendable), type),
                                  unsendable);
    return selection;
}

QStringList IpcSignalTable::names(const IpcSubscriptions& places) const
{
    QStringList names;
    for (qsizetype i = 0; i < m_signals.size(); ++i) {
        if (places.contains(i) && !names.contains(m_signals.at(i).name))
            names.append(m_signals.at(i).name);
    }
    return names;
}

QByteArray IpcSignalTable::notification(qsizetype place, const QVariantList& arguments) const
{
    const Signal& signal = m_signals.at(place);
    JsonWriter line;
    line.raw(R"({"jsonrpc":"2.0","method":)");
    line.text(signal.name);
    line.raw(R"(,"params":{)");
    for (qsizetype i = 0; i < signal.parameters.size(); ++i) {
        if (i > 0)
            line.raw(",");
        line.text(signal.parameters.at(i).name);
        line.raw(":");
        ipc_values::write(line, arguments.at(i));
    }
    line.raw("}}\n");
    return line.json();
}

QJsonArray IpcSignalTable::describe(QJsonObject& records) const
{
    QJsonArray described;
    for (const Signal& signal : m_signals) {
        if (!signal.unsupported.isEmpty())
            continue;
        QJsonArray parameters;
        for (const IpcParameter& parameter : signal.parameters)
            parameters.append(::describe(parameter, records));
        described.append(QJsonObject{{QStringLiteral("name"), signal.name},
                                     {QStringLiteral("params"), parameters}});
    }
    return described;
}
