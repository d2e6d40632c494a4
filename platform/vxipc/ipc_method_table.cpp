// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_method_table.h"

#include "ipc_call.h"
#include "ipc_values.h"
#include "json_writer.h"

#include <QtCore/QJsonArray>
#include <QtCore/QStringList>

#include <algorithm>
#include <tuple>

namespace {

bool isCallable(const QMetaMethod& method)
{
    return method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Public;
}

bool isVoid(QMetaType type)
{
    return type.id() == QMetaType::Void;
}

/// Whether the parameters of `slot` begin with those of `shorter`.
bool begins(const QMetaMethod& slot, const QMetaMethod& shorter)
{
    return slot.parameterTypes().mid(0, shorter.parameterCount()) == shorter.parameterTypes();
}

} // namespace

IpcMethodTable::IpcMethodTable(QObject& object, const QMetaObject& base)
    : m_object(object)
{
    const auto* server = qobject_cast<const VXIPCServer*>(&object);
    const QMetaObject& meta = *object.metaObject();
    for (int i = base.methodCount(); i < meta.methodCount(); ++i) {
        if (!isCallable(meta.method(i)))
            continue;
        std::optional<Method> method = readMethod(meta.method(i));
        if (!method)
            continue;
        if (server)
            method->check = server->m_callChecks.value(method->slot.name());
        add(*method);
    }
}

std::optional<IpcMethodTable::Method> IpcMethodTable::readMethod(const QMetaMethod& slot)
{
    const QMetaType result = slot.returnMetaType();
    if (!isVoid(result) && !ipc_values::isSupported(result))
        return std::nullopt;

    const QList<IpcParameter> parameters = parametersOf(slot);
    if (!unsupportedType(parameters).isEmpty())
        return std::nullopt;
    return Method{slot,
                  result,
                  parameters,
                  slot.parameterCount(),
                  (slot.attributes() & QMetaMethod::Cloned) != 0,
                  {}};
}

void IpcMethodTable::add(const Method& method)
{
    QList<qsizetype>& overloads = m_overloads[QString::fromUtf8(method.slot.name())];
    // A class that overrides a slot lists it once more. The first entry is the interface's own; the
    // call is virtual either way.
    const bool isListed = std::any_of(overloads.cbegin(), overloads.cend(), [&](qsizetype listed) {
        return m_methods.at(listed).slot.methodSignature() == method.slot.methodSignature();
    });
    if (isListed)
        return;
    // The meta-object lists a slot with defaults once for each way to call it, the full one first.
    if (method.isShortened) {
        const auto full = std::find_if(overloads.crbegin(), overloads.crend(), [&](qsizetype each) {
            return !m_methods.at(each).isShortened && begins(m_methods.at(each).slot, method.slot);
        });
        if (full != overloads.crend())
            m_methods[*full].required = method.required;
    }
    overloads.append(m_methods.size());
    m_methods.append(method);
}

IpcMethodTable::Outcome IpcMethodTable::call(const QString& name,
                                             const QJsonValue& parameters) const
{
    Match chosen = choose(name, parameters);
    if (chosen.error)
        return {{}, std::move(chosen.error)};
    if (const VXIPCServer::CallCheck& check = chosen.method->check) {
        const QVariantList arguments(chosen.arguments.cbegin(), chosen.arguments.cend());
        if (const QString objection = check(arguments); !objection.isEmpty())
            return {
                {},
                json_rpc::Error{json_rpc::Refused, QStringLiteral("Refused: ") + objection, {}}};
    }

    const QMetaType resultType = chosen.method->result;
    QVariant result;
    if (!isVoid(resultType))
        result = QVariant(resultType);
    QVarLengthArray<void*, usualArguments + 1> arguments{result.isValid() ? result.data()
                                                                          : nullptr};
    for (QVariant& argument : chosen.arguments)
        arguments.append(argument.data());
    const IpcCall call(m_object);
    QMetaObject::metacall(&m_object, QMetaObject::InvokeMetaMethod,
                          chosen.method->slot.methodIndex(), arguments.data());
    // Nothing of this table may be touched from here on.
    if (call.refusal())
        return {{}, call.refusal()};
    if (!result.isValid())
        return {};
    JsonWriter json;
    ipc_values::write(json, result);
    return {json.json(), std::nullopt};
}

IpcMethodTable::Match IpcMethodTable::choose(const QString& name,
                                             const QJsonValue& parameters) const
{
    const auto overloads = m_overloads.constFind(name);
    if (overloads == m_overloads.cend()) {
        Match none;
        none.error = {json_rpc::MethodNotFound,
                      QStringLiteral("Method not found: %1").arg(json_rpc::excerpt(name)),
                      {}};
        return none;
    }
    // The overload that fits best is chosen. If none fits, the closest one says why.
    const auto rank = [](const Match& each) {
        return std::tuple(!each.error.has_value(), each.arityMatches, each.fit);
    };
    Match best = match(m_methods.at(overloads->first()), parameters);
    for (qsizetype i = 1; i < overloads->size(); ++i) {
        Match other = match(m_methods.at(overloads->at(i)), parameters);
        if (rank(other) > rank(best))
            best = std::move(other);
    }
    return best;
}

IpcMethodTable::Match IpcMethodTable::match(const Method& method, const QJsonValue& parameters)
{
    if (parameters.isObject())
        return matchNamed(method, parameters.toObject());

    const QJsonArray array = parameters.toArray();
    if (array.size() != method.parameters.size())
        return mismatchedCount(method, array.size());
    const QVarLengthArray<QJsonValue, usualArguments> given(array.cbegin(), array.cend());
    return matchArguments(method, given);
}

IpcMethodTable::Match IpcMethodTable::mismatchedCount(const Method& method, qsizetype given)
{
    QStringList names;
    for (const IpcParameter& parameter : method.parameters)
        names.append(parameter.name);
    Match mismatch;
    mismatch.error = json_rpc::invalidParams(
        QStringLiteral("expected %1 arguments (%2), got %3")
            .arg(method.required < names.size()
                     ? QStringLiteral("%1 to %2").arg(method.required).arg(names.size())
                     : QString::number(names.size()),
                 names.join(QStringLiteral(", ")), QString::number(given)),
        {{QStringLiteral("expected"), QJsonArray::fromStringList(names)}});
    return mismatch;
}

IpcMethodTable::Match IpcMethodTable::matchNamed(const Method& method, const QJsonObject& given)
{
    Match failed;
    for (auto argument = given.constBegin(); argument != given.constEnd(); ++argument) {
        const QString name = argument.key();
        if (std::any_of(method.parameters.cbegin(), method.parameters.cend(),
                        [&](const IpcParameter& each) { return each.name == name; }))
            continue;
        const QString shown = json_rpc::excerpt(name);
        failed.error =
            json_rpc::invalidParams(QStringLiteral("there is no argument \"%1\"").arg(shown),
                                    {{QStringLiteral("argument"), shown}});
        return failed;
    }

    QVarLengthArray<QJsonValue, usualArguments> ordered;
    for (const IpcParameter& parameter : method.parameters) {
        const auto found = given.constFind(parameter.name);
        if (found == given.constEnd()) {
            failed.error = json_rpc::invalidParams(
                QStringLiteral("argument \"%1\" is missing").arg(parameter.name),
                {{QStringLiteral("argument"), parameter.name}});
            return failed;
        }
        ordered.append(*found);
    }
    return matchArguments(method, ordered);
}

IpcMethodTable::Match IpcMethodTable::matchArguments(const Method& method,
                                                     std::span<const QJsonValue> given)
{
    Match match;
    match.method = &method;
    match.arityMatches = true;
    for (qsizetype i = 0; const QJsonValue& argument : given) {
        const IpcParameter& parameter = method.parameters.at(i++);
        const auto misfit = [&](const QString& expected, const QString& got) {
            return json_rpc::invalidParams(
                QStringLiteral("argument %1 (%2): expected %3, got %4")
                    .arg(QString::number(i), parameter.name, expected, got),
                {{QStringLiteral("argument"), parameter.name},
                 {QStringLiteral("expected"), expected}});
        };
        if (const auto excess = ipc_values::excessOf(argument)) {
            match.error = misfit(excess->expected, QString::number(excess->found));
            return match;
        }
        ipc_values::Converted converted = ipc_values::fromJson(argument, parameter.type);
        if (converted.fit == ipc_values::Fit::None) {
            match.error = misfit(converted.expected, ipc_values::kindOf(argument));
            return match;
        }
        match.fit += static_cast<int>(converted.fit);
        match.arguments.append(std::move(converted.value));
    }
    return match;
}

QJsonArray IpcMethodTable::describe(QJsonObject& records) const
{
    QJsonArray methods;
    for (const Method& method : m_methods) {
        if (!method.isShortened)
            methods.append(describe(method, records));
    }
    return methods;
}

QJsonObject IpcMethodTable::describe(const Method& method, QJsonObject& records)
{
    QJsonArray parameters;
    for (qsizetype i = 0; i < method.parameters.size(); ++i) {
        QJsonObject parameter = ::describe(method.parameters.at(i), records);
        parameter.insert(QStringLiteral("required"), i < method.required);
        parameters.append(parameter);
    }
    const QMetaType result = method.result;
    const QJsonObject resultSchema =
        isVoid(result) ? QJsonObject{{QStringLiteral("type"), QStringLiteral("null")}}
                       : ipc_values::schema(result, records);
    return {{QStringLiteral("name"), QString::fromUtf8(method.slot.name())},
            {QStringLiteral("paramStructure"), QStringLiteral("either")},
            {QStringLiteral("params"), parameters},
            {QStringLiteral("result"),
             QJsonObject{{QStringLiteral("name"), QStringLiteral("result")},
                         {QStringLiteral("schema"), resultSchema},
                         {QStringLiteral("x-type"), QLatin1String(result.name())}}}};
}
