// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>

/// Bytes as they arrive, to be taken out a line at a time.
class LineBuffer
{
public:
    void append(const QByteArray& bytes)
    {
        m_bytes.remove(0, m_begin);
        m_searched -= m_begin;
        m_begin = 0;
        m_bytes += bytes;
    }

    /// Whether the next line is there to its end.
    bool hasLine()
    {
        if (m_end < 0) {
            m_end = m_bytes.indexOf('\n', m_searched);
            m_searched = m_end < 0 ? m_bytes.size() : m_end + 1;
        }
        return m_end >= 0;
    }

    /// The length of the next line, or of what is there of it.
    qsizetype lineSize() const { return (m_end < 0 ? m_bytes.size() : m_end) - m_begin; }

    /// The next line without its end. Only when there is one.
    QByteArray takeLine()
    {
        const QByteArray line = m_bytes.mid(m_begin, lineSize());
        m_begin = m_end + 1;
        m_end = -1;
        return line;
    }

    void clear() { *this = {}; }

private:
    QByteArray m_bytes;
    qsizetype m_begin = 0;
    qsizetype m_searched = 0;
    qsizetype m_end = -1;
};
