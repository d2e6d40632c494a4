// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_watch.h"

#include <algorithm>

namespace VxKit {

namespace {

/// What a read returned, as a number that differs when the result does (see `fingerprint`).
quint64 stateOf(DWORD type, const BYTE* bytes, DWORD needed, DWORD error)
{
    const quint64 head = quint64(error) << 32 | type;
    const quint64 state = error == ERROR_SUCCESS ? fingerprint(bytes, needed, head)
                                                 : fingerprint(&needed, sizeof(needed), head);
    return state == 0 ? 1 : state; // 0 stands for a value that has not been read
}

} // namespace

bool CaseWatch::isInitially(const char* name, DWORD type, const BYTE* bytes, DWORD size,
                            DWORD needed, DWORD error) const
{
    if (!m_initialValues)
        return false;
    PublishedValues::Value known;
    const bool isKnown = m_initialValues->find(name, known);
    if (error == ERROR_FILE_NOT_FOUND)
        return !isKnown;
    if (!isKnown || known.size != needed)
        return false;
    if (error == ERROR_MORE_DATA)
        return known.size > size;
    return error == ERROR_SUCCESS && known.type == type && !known.bytes.isNull() &&
           std::equal(known.bytes.begin(), known.bytes.end(), reinterpret_cast<const char*>(bytes));
}

void CaseWatch::read(const char* name, DWORD type, const BYTE* bytes, DWORD size, DWORD needed,
                     DWORD error)
{
    // The values are always read in the same order.
    Slot* slot = &m_slots[m_next];
    if (slot->name != name) {
        const auto found = std::ranges::find_if(m_slots, [name](const Slot& candidate) {
            return candidate.name == name || !candidate.name;
        });
        if (found == m_slots.end())
            return;
        slot = &*found;
    }
    const auto number = static_cast<std::size_t>(slot - m_slots.data());
    m_next = number + 1 < m_slots.size() ? number + 1 : 0;

    // With more bytes than were offered, the call should have failed.
    const bool isSound = error != ERROR_SUCCESS || needed <= size;
    const quint64 state = stateOf(type, bytes, needed, isSound ? error : ERROR_MORE_DATA);
    const bool isFailure =
        error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND && error != ERROR_MORE_DATA;
    if (slot->state == state && !isFailure)
        return;
    const bool isFirst = !slot->name;
    if (isFirst) {
        slot->name = name;
        m_known[number] = static_cast<quint8>(PublishedValues::placeOf(name));
    }
    slot->state = state;
    if (isFailure) {
        addFailure("GetPrinterDataA", error, name);
        return;
    }
    if (isFirst && isInitially(name, type, bytes, size, needed, error))
        return;
    if (error == ERROR_FILE_NOT_FOUND)
        changed.addMissing(name);
    else
        changed.add(m_known[number], name, type, needed,
                    error == ERROR_SUCCESS && isSound ? bytes : nullptr);
}

void CaseWatch::addFailure(const char* call, DWORD error, const char* value, int after)
{
    // A driver without end of failures must not fill the memory.
    constexpr qsizetype mostFailures = 64;
    if (failed.size() >= mostFailures)
        return;
    QJsonObject failure{{QStringLiteral("call"), QLatin1String(call)},
                        {QStringLiteral("printer"), printer},
                        {QStringLiteral("error"), qint64(error)}};
    if (value)
        failure.insert(QStringLiteral("value"), QString::fromUtf8(value));
    if (after > 0)
        failure.insert(QStringLiteral("after"), after);
    failed.append(failure);
}

} // namespace VxKit
