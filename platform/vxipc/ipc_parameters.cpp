// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "ipc_parameters.h"

#include "ipc_values.h"

QList<IpcParameter> parametersOf(const QMetaMethod& method)
{
    const QList<QByteArray> names = method.parameterNames();
    QList<IpcParameter> parameters;
    for (int i = 0; i < method.parameterCount(); ++i) {
        const QByteArray& name = names.at(i);
        parameters.append(
            {name.isEmpty() ? QStringLiteral("argument%1").arg(i + 1) : QString::fromUtf8(name),
             method.parameterMetaType(i)});
    }
    return parameters;
}

QString unsupportedType(const QList<IpcParameter>& parameters)
{
    for (const IpcParameter& parameter : parameters) {
        if (!ipc_values::isSupported(parameter.type))
            return QString::fromLatin1(parameter.type.name());
    }
    return {};
}

QJsonObject describe(const IpcParameter& parameter, QJsonObject& records)
{
    return {{QStringLiteral("name"), parameter.name},
            {QStringLiteral("schema"), ipc_values::schema(parameter.type, records)},
            {QStringLiteral("x-type"), QLatin1String(parameter.type.name())}};
}
