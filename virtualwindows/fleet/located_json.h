// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <json/value.h>

/// What is wrong at a place of a JSON file; raised while the file is read, caught where that began.
struct JsonComplaint
{
    int line = 0;
    QString text;
};

/// A JSON file whose values know their lines.
class LocatedJson
{
public:
    /// Raises a complaint when the text is not JSON, has a key twice, or is nested deeper or has
    /// more values than any fleet needs.
    explicit LocatedJson(const QByteArray& text);

    const Json::Value& root() const { return m_root; }
    int lineOf(const Json::Value& value) const;

private:
    int lineAt(qsizetype offset) const;

    QByteArray m_text;
    Json::Value m_root;
};

/// A value on the way through a file: what it is called there and what is expected of it. Every
/// function raises a complaint when the value is something else.
class JsonPlace
{
public:
    JsonPlace(const LocatedJson& file, const Json::Value& value, const QString& path);

    [[noreturn]] void complain(const QString& what) const;

    /// An object with these keys and no others.
    void expectKeys(const QStringList& required, const QStringList& allowed) const;
    bool has(const char* key) const { return m_value->isMember(key); }
    JsonPlace at(const QByteArray& key) const;
    QList<JsonPlace> entries() const; ///< of a list
    QStringList keys() const;         ///< of an object, in the file's order

    QString text() const;
    QString nonEmptyText() const;
    quint32 number() const; ///< from 0 to 4294967295
    double seconds() const; ///< not negative
    bool flag() const;
    QByteArray hexBytes() const;

    bool isNull() const { return m_value->isNull(); }
    bool isText() const { return m_value->isString(); }
    bool isNumber() const { return m_value->isNumeric(); }
    bool isObject() const { return m_value->isObject(); }
    int line() const { return m_file->lineOf(*m_value); }

private:
    QString found() const;

    const LocatedJson* m_file;
    const Json::Value* m_value;
    QString m_path;
};
