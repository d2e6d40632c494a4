// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QJsonValue>
#include <QtCore/QList>
#include <QtCore/QString>

/// A value of a JSON file that knows its line.
struct LocatedValue
{
    struct Member;

    int line = 1;
    /// The value itself, unless it is an object or a list. Undefined for a list.
    QJsonValue value;
    bool isObject = false;
    bool isList = false;
    QList<Member> members{};       ///< of an object, in the order of the file
    QList<LocatedValue> entries{}; ///< of a list

    const LocatedValue* find(const QString& key) const;
};

struct LocatedValue::Member
{
    QString key;
    int line = 1; ///< of the key
    LocatedValue value;
};

/// Why a JSON text cannot be read, and in which line.
struct JsonMistake
{
    int line = 0;
    QString text;
};

/// Reads a JSON text. Throws a `JsonMistake` for a text that is not JSON, for a key that is there
/// twice, and for lists and objects inside each other deeper than a configuration needs.
LocatedValue readLocatedJson(const QByteArray& text);
