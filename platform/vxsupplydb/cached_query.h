// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "lock_waiter.h"

#include <QtCore/QCache>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>

#include <memory>
#include <optional>

/// A statement that is prepared once and whose latest answers are cached.
///
/// An answer starts default-constructed and each row is read into it. So a key that the database
/// does not have gets the default answer, which is cached too. When the total cost of the answers
/// exceeds the capacity, the least recently used ones are dropped.
///
/// A caller that asks for two keys will probably ask for more. If there is a statement for all
/// keys, the second key that is not cached runs it and fills the cache. That takes less time than
/// querying a few keys one by one.
template <typename Key, typename Answer>
class CachedQuery
{
public:
    using ReadRow = void (*)(const QSqlQuery& row, Answer& answer);
    using Cost = qsizetype (*)(const Answer& answer);
    using KeyOf = Key (*)(const QSqlQuery& row);

    /// A statement that returns the answers to all keys, one row for each key. Its parameters are
    /// the first ones of the statement for one key.
    struct All
    {
        QString statement;
        KeyOf keyOf;
    };

    CachedQuery(
        const QString& statement, ReadRow readRow, qsizetype capacity,
        Cost cost = [](const Answer&) -> qsizetype { return 1; })
        : m_statement(statement)
        , m_readRow(readRow)
        , m_cost(cost)
        , m_answers(capacity)
    {}
    CachedQuery(const QString& statement, ReadRow readRow, qsizetype capacity, const All& all)
        : CachedQuery(statement, readRow, capacity)
    {
        m_all = all;
    }

    /// The answer to a key. If it is not cached, the statement runs with the values bound to its
    /// parameters in the order in which they appear in its text. The reference is valid until the
    /// next call. An answer that could not be read completely is the default one and is not cached.
    template <typename... Values>
    const Answer& answer(const QSqlDatabase& database, const Key& key, const Values&... values)
    {
        if (const Answer* cached = m_answers.object(key))
            return *cached;
        const QVariantList parameters{QVariant(values)...};
        if (m_all && ++m_misses == 2) {
            if (!queryAll(database, parameters))
                m_misses = 1; // the next miss tries again
            if (const Answer* cached = m_answers.object(key))
                return *cached;
        }
        m_uncached = Answer();
        auto fresh = std::make_unique<Answer>();
        if (!queryOne(database, *fresh, parameters))
            return m_uncached;
        const qsizetype cost = m_cost(*fresh);
        if (cost > m_answers.maxCost()) {
            m_uncached = std::move(*fresh);
            return m_uncached;
        }
        const Answer& answer = *fresh;
        m_answers.insert(key, fresh.release(), cost);
        return answer;
    }

    /// Drops the cached answers.
    void clear()
    {
        m_answers.clear();
        m_misses = 0;
    }

private:
    bool queryOne(const QSqlDatabase& database, Answer& answer, const QVariantList& parameters)
    {
        if (!database.isOpen())
            return false;
        QSqlError error;
        do {
            answer = Answer();
            error = tryQueryOne(database, answer, parameters);
        } while (LockWaiter::ofThisThread().waitAfter(error));
        return !error.isValid();
    }

    QSqlError tryQueryOne(const QSqlDatabase& database, Answer& answer,
                          const QVariantList& parameters)
    {
        if (!m_query) {
            QSqlQuery query(database);
            query.setForwardOnly(true);
            if (!query.prepare(m_statement))
                return query.lastError();
            m_query = std::move(query);
        }
        for (qsizetype i = 0; i < parameters.size(); ++i)
            m_query->bindValue(static_cast<int>(i), parameters.at(i));
        if (!m_query->exec())
            return m_query->lastError();
        while (m_query->next())
            m_readRow(*m_query, answer);
        const QSqlError error = m_query->lastError(); // next() also returns false on an error
        m_query->finish();                            // releases the lock on the file
        return error;
    }

    // Does not wait for a locked file: on failure the query for the one key follows, which does.
    bool queryAll(const QSqlDatabase& database, const QVariantList& parameters)
    {
        QSqlQuery query(database);
        query.setForwardOnly(true);
        if (!database.isOpen() || !query.prepare(m_all->statement))
            return false;
        const qsizetype parameterCount = m_all->statement.count(u'?');
        for (qsizetype i = 0; i < parameterCount; ++i)
            query.bindValue(static_cast<int>(i), parameters.at(i));
        if (!query.exec())
            return false;
        // Reads no more rows than the cache can hold, even if repeated keys would leave room.
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
    Answer m_uncached{};
    std::optional<QSqlQuery> m_query;
    std::optional<All> m_all;
    int m_misses = 0;
};
