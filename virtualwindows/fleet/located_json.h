// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <json/value.h>

/// A JSON file that knows the line of each of its values. Everything that is wrong with the file is
/// thrown as a virtualwindows::FleetError.
class LocatedJson
{
public:
    /// Throws when the text is not JSON, has a duplicate key, or exceeds the limits for nesting and
    /// for the number of values. `name` is the file's name in messages, and `firstLine` the number
    /// of the line in it that the text begins with.
    LocatedJson(const QByteArray& text, const QString& name, int firstLine = 1);

    const Json::Value& root() const { return m_root; }
    int lineOf(const Json::Value& value) const;
    [[noreturn]] void fail(int line, const QString& what) const;

private:
    void checkLimits() const;
    [[noreturn]] void failAsReported(const std::string& report) const;
    int lineAt(qsizetype offset) const;

    QByteArray m_text;
    QString m_name;
    int m_firstLine;
    Json::Value m_root;
};

/// A value in a file, with its path from the root. The functions that read the value throw when it
/// is of another kind.
class JsonPlace
{
public:
    JsonPlace(const LocatedJson& file, const Json::Value& value, const QString& path);

    [[noreturn]] void fail(const QString& what) const;

    /// Throws unless the value is an object with all required keys and no others but the allowed.
    void expectKeys(const QStringList& required, const QStringList& allowed) const;
    bool has(const char* key) const { return m_value->isMember(key); }
    JsonPlace at(const QByteArray& key) const;
    QList<JsonPlace> entries() const; ///< of a list
    QStringList keys() const;         ///< of an object, in the order of the file

    QString text() const;
    QString nonEmptyText() const;
    quint32 number() const; ///< from 0 to 4294967295
    double seconds() const; ///< not negative
    bool flag() const;
    QByteArray hexBytes() const;
    QByteArray base64Bytes() const;
    QVariant variant() const; ///< null, or a boolean, a number or a text

    bool isNull() const { return m_value->isNull(); }
    bool isText() const { return m_value->isString(); }
    bool isNumber() const { return m_value->isNumeric(); }
    bool isObject() const { return m_value->isObject(); }
    QString found() const; ///< the value as messages quote it

private:
    const LocatedJson* m_file;
    const Json::Value* m_value;
    QString m_path;
};
