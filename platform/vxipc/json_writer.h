// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QJsonValue>
#include <QtCore/QStringView>
#include <QtCore/QVarLengthArray>

/// Writes JSON piece by piece. Building Qt's JSON objects only to write them once would take longer
/// than the rest of a call. RapidJSON was measured in its place, see benchmarks/README.md.
class JsonWriter
{
public:
    /// Appends what is JSON already, such as the punctuation between values.
    void raw(QByteArrayView json) { m_json.append(json.data(), json.size()); }

    void text(QStringView text);
    void number(qint64 number);
    /// Writes null for an infinite number and NaN, which JSON lacks.
    void number(double number);
    void value(const QJsonValue& value);

    qsizetype size() const { return m_json.size(); }
    QByteArray json() const { return {m_json.constData(), m_json.size()}; }

private:
    /// The end of what is written, followed by at least `size` bytes of room.
    char* room(qsizetype size);
    template <typename Number>
    void digits(Number number);

    /// Most messages fit this capacity.
    QVarLengthArray<char, 512> m_json;
};
