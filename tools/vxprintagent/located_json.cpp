// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "located_json.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <cctype>

namespace {

constexpr int deepest = 16;

bool isSpace(char letter)
{
    return letter == ' ' || letter == '\t' || letter == '\r' || letter == '\n';
}

class Parser
{
public:
    explicit Parser(const QByteArray& text)
        : m_text(text)
    {}

    LocatedValue document()
    {
        LocatedValue root = value(0);
        skipSpace();
        if (m_at < m_text.size())
            fail(QStringLiteral("expected the end of the file, found %1").arg(found()));
        return root;
    }

private:
    [[noreturn]] void fail(const QString& text) const { throw JsonMistake{m_line, text}; }

    QString found() const
    {
        if (m_at >= m_text.size())
            return QStringLiteral("the end of the file");
        // A whole character, although it may take several bytes.
        return QStringLiteral("\"%1\"").arg(QString::fromUtf8(m_text.sliced(m_at)).left(1));
    }

    void skipSpace()
    {
        for (; m_at < m_text.size() && isSpace(m_text.at(m_at)); ++m_at)
            m_line += m_text.at(m_at) == '\n' ? 1 : 0;
    }

    char peek()
    {
        skipSpace();
        return m_at < m_text.size() ? m_text.at(m_at) : '\0';
    }

    void expect(char letter)
    {
        if (peek() != letter)
            fail(QStringLiteral("expected \"%1\", found %2").arg(QLatin1Char(letter)).arg(found()));
        ++m_at;
    }

    LocatedValue value(int depth)
    {
        if (depth > deepest)
            fail(QStringLiteral("lists and objects are deeper inside each other than %1 levels")
                     .arg(deepest));
        LocatedValue result;
        const char letter = peek();
        result.line = m_line;
        if (letter == '{')
            readObject(result, depth);
        else if (letter == '[')
            readList(result, depth);
        else
            result.value = letter == '"' ? text() : word();
        return result;
    }

    void readObject(LocatedValue& object, int depth)
    {
        object.isObject = true;
        ++m_at;
        if (peek() == '}') {
            ++m_at;
            return;
        }
        while (true) {
            if (peek() != '"')
                fail(QStringLiteral("expected a key in quotation marks, found %1").arg(found()));
            const int line = m_line;
            const QString key = text().toString();
            if (object.find(key))
                fail(QStringLiteral("the key \"%1\" occurs twice").arg(key));
            expect(':');
            object.members.append({key, line, value(depth + 1)});
            if (peek() != ',')
                break;
            ++m_at;
        }
        expect('}');
    }

    void readList(LocatedValue& list, int depth)
    {
        list.isList = true;
        list.value = QJsonValue(QJsonValue::Undefined);
        ++m_at;
        if (peek() == ']') {
            ++m_at;
            return;
        }
        while (true) {
            list.entries.append(value(depth + 1));
            if (peek() != ',')
                break;
            ++m_at;
        }
        expect(']');
    }

    /// What Qt makes of a value without any parts.
    static QJsonValue valueOf(const QByteArray& token)
    {
        return QJsonDocument::fromJson(QByteArray(1, '[') + token + ']').array().first();
    }

    QJsonValue text()
    {
        qsizetype end = m_at + 1;
        bool areEscapesRight = true;
        while (end < m_text.size() && m_text.at(end) != '"' && m_text.at(end) != '\n') {
            const bool isEscape = m_text.at(end) == '\\';
            // Qt would leave out the backslash of any other.
            if (isEscape && end + 1 < m_text.size())
                areEscapesRight =
                    areEscapesRight && QByteArrayView("\"\\/bfnrtu").contains(m_text.at(end + 1));
            end += isEscape ? 2 : 1;
        }
        if (end >= m_text.size() || m_text.at(end) != '"')
            fail(QStringLiteral("a text has no closing quotation mark"));
        const QJsonValue result = valueOf(m_text.sliced(m_at, end + 1 - m_at));
        if (!areEscapesRight || !result.isString())
            fail(QStringLiteral("a text is not valid JSON; write \\\\ for a backslash"));
        m_at = end + 1;
        return result;
    }

    QJsonValue word()
    {
        const auto belongs = [](char letter) {
            return std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '.' ||
                   letter == '-' || letter == '+';
        };
        const auto begin = m_text.cbegin() + m_at;
        const QByteArray token(begin, std::find_if_not(begin, m_text.cend(), belongs) - begin);
        const QJsonValue result =
            token.isEmpty() ? QJsonValue(QJsonValue::Undefined) : valueOf(token);
        if (result.isUndefined() || (result.isNull() && token != "null"))
            fail(QStringLiteral("expected a value, found %1").arg(found()));
        m_at += token.size();
        return result;
    }

    const QByteArray& m_text;
    qsizetype m_at = 0;
    int m_line = 1;
};

} // namespace

const LocatedValue* LocatedValue::find(const QString& key) const
{
    const auto member = std::ranges::find(members, key, &Member::key);
    return member == members.end() ? nullptr : &member->value;
}

LocatedValue readLocatedJson(const QByteArray& text)
{
    return Parser(text).document();
}
