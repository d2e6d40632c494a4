// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "json_text.h"

#include "shown_text.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

QString json_text::value(const QJsonValue& value)
{
    const QByteArray list = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return shown(QString::fromUtf8(list.mid(1, list.size() - 2)));
}

QString json_text::object(const QList<Member>& members)
{
    QStringList texts;
    for (const auto& [key, text] : members)
        texts.append(value(key) + QLatin1Char(':') + text);
    return QLatin1Char('{') + texts.join(QLatin1Char(',')) + QLatin1Char('}');
}

QString json_text::array(const QStringList& elements)
{
    return QLatin1Char('[') + elements.join(QLatin1Char(',')) + QLatin1Char(']');
}

QString json_text::lines(const QStringList& elements)
{
    if (elements.isEmpty())
        return QStringLiteral("[]\n");
    return QStringLiteral("[\n  ") + elements.join(QStringLiteral(",\n  ")) +
           QStringLiteral("\n]\n");
}
