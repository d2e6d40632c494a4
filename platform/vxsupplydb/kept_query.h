// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "lock_patience.h"

#include <QtCore/QCache>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <memory>
#include <optional>

/// A statement that is prepared once and whose latest answers are kept.
///
/// An answer is default-constructed and each row is read into it, so a key that the database does
/// not know has the answer with the defaults, which is kept too. The least recently used answers
/// go when their cost together exceeds the capacity.
///
/// Who asks for two keys will ask for more: a statement for all keys, where there is one, fills the
/// memory when the second key must be asked, for less than asking for a few of them one by one.
template <typename Key, typename Answer>
class KeptQuery
{
public:
    using ReadRow = void (*)(const QSqlQuery& row, Answer& answer);
    using Cost = qsizetype (*)(const Answer& answer);
    using KeyOf = Key (*)(const QSqlQuery& row);

    /// A statement whose rows are the answers to all keys, a row for each. Its parameters are the
    /// first ones of the statement for one key.
    struct All
    {
        QString statement;
        KeyOf keyOf;
    };

    KeptQuery(
        const QString& statement, ReadRow readRow, qsizetype capacity,
        Cost cost = [](const Answer&) -> qsizetype { return 1; })
        : m_statement(statement)
        , m_readRow(readRow)
        , m_cost(cost)
        , m_answers(capacity)
    {}
    KeptQuery(const QString& statement, ReadRow readRow, qsizetype capacity, const All& all)
        : KeptQuery(statement, readRow, capacity)
    {
        m_all = all;
    }

    /// The answer to a key; the values are bound to the statement's parameters, in the order of
    /// their places in its text, when it must be asked. The reference holds until the next call. An
    /// answer that could not be had in whole has the defaults and is not kept.
    template <typename... Values>
    const Answer& answer(const QSqlDatabase& database, const Key& key, const Values&... values)
    {
        if (const Answer* kept = m_answers.object(key))
            return *kept;
        const QVariantList bound{QVariant(values)...};
        if (m_all && ++m_misses == 2) {
            if (!askAll(database, bound))
                m_misses = 1; // the next miss is as good
            if (const Answer* kept = m_answers.object(key))
                return *kept;
        }
        m_unkept = Answer();
        auto fresh = std::make_unique<Answer>();
        if (!ask(database, *fresh, bound))
            return m_unkept;
        const qsizetype cost = m_cost(*fresh);
        if (cost > m_answers.maxCost()) {
            m_unkept = std::move(*fresh);
            return m_unkept;
        }
        const Answer& answer = *fresh;
        m_answers.insert(key, fresh.release(), cost);
        return answer;
    }

    /// Forgets the answers.
    void clear()
    {
        m_answers.clear();
        m_misses = 0;
    }

private:
    bool ask(const QSqlDatabase& database, Answer& answer, const QVariantList& values)
    {
        if (!database.isOpen())
            return false;
        QSqlError error;
        do {
            answer = Answer();
            error = tryToAsk(database, answer, values);
        } while (LockPatience::ofThisThread().waitAfter(error));
        return !error.isValid();
    }

    QSqlError tryToAsk(const QSqlDatabase& database, Answer& answer, const QVariantList& values)
    {
        if (!m_query) {
            QSqlQuery query(database);
            query.setForwardOnly(true);
            if (!query.prepare(m_statement))
                return query.lastError();
            m_query = std::move(query);
        }
        for (qsizetype i = 0; i < values.size(); ++i)
            m_query->bindValue(static_cast<int>(i), values.at(i));
        if (!m_query->exec())
            return m_query->lastError();
        while (m_query->next())
            m_readRow(*m_query, answer);
        const QSqlError error = m_query->lastError(); // that an answer ended with
        m_query->finish();                            // or the file stays locked
        return error;
    }

    // False when it could not be asked: what is asked for one key then waits for a locked file.
    bool askAll(const QSqlDatabase& database, const QVariantList& values)
    {
        QSqlQuery query(database);
        query.setForwardOnly(true);
        if (!database.isOpen() || !query.prepare(m_all->statement))
            return false;
        const qsizetype parameters = m_all->statement.count(u'?');
        for (qsizetype i = 0; i < parameters; ++i)
            query.bindValue(static_cast<int>(i), values.at(i));
        if (!query.exec())
            return false;
        // No more rows than there is room for, though a key that comes twice leaves some.
        const auto hasRoom = [this] {
            return m_answers.size() < m_answers.maxCost();
        };
        for (qsizetype row = 0; row < m_answers.maxCost() && hasRoom() && query.next(); ++row) {
            const Key key = m_all->keyOf(query);
            if (m_answers.contains(key))
                continue;
            auto answer = std::make_unique<Answer>();
            m_readRow(query, *answer);
            m_answers.insert(key, answer.release());
        }
        return true;
    }

    QString m_statement;
    ReadRow m_readRow;
    Cost m_cost;
    QCache<Key, Answer> m_answers;
    Answer m_unkept{};
    std::optional<QSqlQuery> m_query;
    std::optional<All> m_all;
    int m_misses = 0;
};
