// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QJsonValue>
#include <QtCore/QStringView>
#include <QtCore/QVarLengthArray>

/// Writes JSON one piece after the other. Building objects only to write them out once costs more
/// than all the rest of a call.
class JsonWriter
{
public:
    /// What is JSON already, such as the signs between values.
    void raw(QByteArrayView json) { m_json.append(json.data(), json.size()); }

    void text(QStringView text);
    void number(qint64 number);
    /// Null when it is infinite or none, as JSON has no word for these.
    void number(double number);
    void value(const QJsonValue& value);

    qsizetype size() const { return m_json.size(); }
    QByteArray json() const { return {m_json.constData(), m_json.size()}; }

private:
    /// The end of what is written, with at least so much room behind it.
    char* room(qsizetype size);
    template <typename Number>
    void digits(Number number);

    /// Most messages are done with this room.
    QVarLengthArray<char, 512> m_json;
};
