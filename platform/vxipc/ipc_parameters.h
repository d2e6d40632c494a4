// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaType>
#include <QtCore/QString>

/// An argument of a slot or signal, as other processes see it.
struct IpcParameter
{
    QString name;
    QMetaType type;
};

/// Those of `method`. An argument without a name gets one from its position.
QList<IpcParameter> parametersOf(const QMetaMethod& method);

/// The name of the first type among them that JSON has no form for; empty if there is none.
QString unsupportedType(const QList<IpcParameter>& parameters);

/// The parameter as OpenRPC describes it. The schemas of records are added to `records`.
QJsonObject describe(const IpcParameter& parameter, QJsonObject& records);
