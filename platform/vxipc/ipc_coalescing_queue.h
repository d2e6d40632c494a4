// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>

#include <list>
#include <optional>
#include <utility>

/// What a notification tells the state of: of two with the same id, the later one repeats all that
/// matters of the earlier.
struct IpcStateId
{
    qsizetype signal = 0;
    QString key;

    friend bool operator==(const IpcStateId&, const IpcStateId&) = default;
    friend size_t qHash(const IpcStateId& id, size_t seed = 0)
    {
        return qHashMulti(seed, id.signal, id.key);
    }
};

/// Waiting items, in the order in which they were put. A later state replaces the earlier one that
/// still waits, and takes its place, so that a state that changes all the time gets its turn. Only
/// when an item that is no state was put between the two does the later state go to the end: it may
/// depend on that item.
template <typename Item>
class IpcCoalescingQueue
{
public:
    bool isEmpty() const { return m_entries.empty(); }
    qsizetype size() const { return static_cast<qsizetype>(m_entries.size()); }

    /// Returns the item that was replaced, if there was one.
    std::optional<Item> put(Item item, const std::optional<IpcStateId>& state)
    {
        if (!state) {
            append(std::move(item), state);
            m_lastBarrier = m_lastPlace;
            return std::nullopt;
        }
        const auto earlier = m_states.constFind(*state);
        if (earlier == m_states.cend()) {
            append(std::move(item), state);
            return std::nullopt;
        }
        const auto entry = *earlier;
        if (entry->place > m_lastBarrier)
            return std::exchange(entry->item, std::move(item));
        std::optional<Item> replaced = std::move(entry->item);
        m_entries.erase(entry);
        append(std::move(item), state);
        return replaced;
    }

    const Item& first() const { return m_entries.front().item; }

    /// Requires that there is one.
    std::pair<Item, std::optional<IpcStateId>> takeFirst()
    {
        Entry entry = std::move(m_entries.front());
        m_entries.pop_front();
        if (entry.state)
            m_states.remove(*entry.state);
        return {std::move(entry.item), std::move(entry.state)};
    }

    void clear()
    {
        m_entries.clear();
        m_states.clear();
    }

private:
    struct Entry
    {
        Item item;
        std::optional<IpcStateId> state;
        quint64 place = 0;
    };
    using EntryIterator = typename std::list<Entry>::iterator;

    void append(Item item, const std::optional<IpcStateId>& state)
    {
        m_entries.push_back({std::move(item), state, ++m_lastPlace});
        if (state)
            m_states.insert(*state, std::prev(m_entries.end()));
    }

    std::list<Entry> m_entries;
    QHash<IpcStateId, EntryIterator> m_states;
    quint64 m_lastPlace = 0;
    /// The place of the last item that was no state.
    quint64 m_lastBarrier = 0;
};
