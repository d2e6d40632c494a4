// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QIODevice>

#include <algorithm>

/// Collects bytes as they arrive and returns them line by line.
class LineBuffer
{
public:
    void append(QByteArrayView bytes)
    {
        dropTaken();
        m_bytes += bytes;
    }

    /// Appends what has arrived on `device`, up to `most` bytes of it.
    void appendFrom(QIODevice& device, qint64 most)
    {
        dropTaken();
        const qsizetype size = m_bytes.size();
        m_bytes.resize(size + std::min(most, device.bytesAvailable()));
        const qint64 read = device.read(m_bytes.data() + size, m_bytes.size() - size);
        m_bytes.resize(size + std::max<qint64>(read, 0));
    }

    /// Whether the next line is complete.
    bool hasLine()
    {
        if (m_end < 0) {
            m_end = m_bytes.indexOf('\n', m_searched);
            m_searched = m_end < 0 ? m_bytes.size() : m_end + 1;
        }
        return m_end >= 0;
    }

    /// The length of the next line, or of the part of it that has arrived.
    qsizetype lineSize() const { return (m_end < 0 ? m_bytes.size() : m_end) - m_begin; }

    /// The next line without its line end, valid until something is appended. Requires hasLine().
    QByteArrayView takeLine()
    {
        const QByteArrayView line = QByteArrayView(m_bytes).sliced(m_begin, lineSize());
        m_begin = m_end + 1;
        m_end = -1;
        return line;
    }

    void clear() { *this = {}; }

private:
    void dropTaken()
    {
        m_bytes.remove(0, m_begin);
        m_searched -= m_begin;
        m_begin = 0;
    }

    QByteArray m_bytes;
    qsizetype m_begin = 0;
    qsizetype m_searched = 0;
    qsizetype m_end = -1;
};
