// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_writer.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>

#include <algorithm>
#include <array>

namespace VxKit {

namespace {

/// So much of a file is copied at once.
constexpr qint64 copiedAtOnce = qint64(64) * 1024;
/// Which part of the limit the first lines may take.
constexpr qint64 firstPart = 8;

constexpr std::array leadingKeys{"kind", "t", "n"};

/// A member as compact JSON, without the braces of its object.
QByteArray member(const QString& key, const QJsonValue& value)
{
    const QByteArray object =
        QJsonDocument(QJsonObject{{key, value}}).toJson(QJsonDocument::Compact);
    return object.sliced(1, object.size() - 2);
}

void appendEscaped(QByteArray& line, char16_t unit)
{
    static constexpr char digits[] = "0123456789abcdef";
    const auto code = static_cast<unsigned>(unit);
    line.append("\\u00").append(digits[code >> 4]).append(digits[code & 0xF]);
}

} // namespace

QByteArray caseLine(const QJsonObject& object)
{
    QByteArray line("{");
    QJsonObject rest = object;
    for (const char* key : leadingKeys) {
        const QJsonValue value = rest.take(QLatin1String(key));
        if (value.isUndefined())
            continue;
        if (line.size() > 1)
            line.append(',');
        line.append(member(QLatin1String(key), value));
    }
    const QByteArray others = QJsonDocument(rest).toJson(QJsonDocument::Compact);
    if (others.size() > 2 && line.size() > 1)
        line.append(',');
    line.append(others.sliced(1)).append('\n');
    return line;
}

void appendJsonText(QByteArray& line, QStringView text)
{
    const auto isPlain = [](QChar character) {
        return character >= u' ' && character < u'\x7f' && character != u'"' && character != u'\\';
    };
    line.append('"');
    const auto* begin = text.begin();
    while (begin != text.end()) {
        const auto* const end = std::find_if_not(begin, text.end(), isPlain);
        for (; begin != end; ++begin)
            line.append(static_cast<char>(begin->unicode()));
        if (begin == text.end())
            break;
        const auto* const special =
            std::find_if(begin, text.end(), [](QChar character) { return character < u'\x80'; });
        if (special != begin) {
            line.append(QStringView(begin, special).toUtf8());
            begin = special;
            continue;
        }
        const char16_t unit = begin->unicode();
        if (unit == u'"' || unit == u'\\')
            line.append('\\').append(static_cast<char>(unit));
        else if (unit == u'\n')
            line.append("\\n");
        else
            appendEscaped(line, unit);
        ++begin;
    }
    line.append('"');
}

void appendSeconds(QByteArray& line, qint64 milliseconds)
{
    const QByteArray digits = QByteArray::number(milliseconds).rightJustified(4, '0');
    line.append(QByteArrayView(digits).first(digits.size() - 3))
        .append('.')
        .append(QByteArrayView(digits).last(3));
}

QByteArray gapLine(qint64 lines, qint64 until)
{
    QByteArray line(R"({"kind":"gap","lines":)");
    line.append(QByteArray::number(lines)).append(",\"until\":");
    appendSeconds(line, until);
    line.append("}\n");
    return line;
}

// A file //////////////////////////////////////////////////////////////////////////////////////////

CaseFileStore::CaseFileStore(const QString& fileName, qint64 limit)
    : m_fileName(fileName)
    , m_limit(limit)
{
    // LogFile would append to a file that exists.
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        m_error = file.errorString();
        return;
    }
    file.close();
    m_file = LogFile::forAppending(fileName);
    m_error = m_file.error();
}

CaseFileStore::~CaseFileStore()
{
    forgetPart();
}

void CaseFileStore::close()
{
    forgetPart();
    m_file = {};
}

QString CaseFileStore::partName() const
{
    return m_fileName + QStringLiteral(".part");
}

void CaseFileStore::fail(const QString& reason)
{
    m_error = reason;
}

void CaseFileStore::forgetPart()
{
    if (!m_part.isOpen())
        return;
    m_part = {};
    QFile::remove(partName());
}

bool CaseFileStore::append(const QByteArray& lines, qint64 count)
{
    if (m_size + lines.size() > m_limit && !replace())
        return false;
    if (m_size + lines.size() > m_limit) {
        fail(QStringLiteral("the limit is too small for what happens at once"));
        return false;
    }
    const qint64 written = m_file.append(lines);
    if (written != lines.size()) {
        fail(m_file.error());
        // Complete lines could be kept, but what belongs together should be there or not.
        if (written > 0)
            QFile::resize(m_fileName, m_size);
        return false;
    }
    m_size += written;
    m_count += count;
    if (!m_isFirstFull) {
        m_firstSize = m_size;
        m_firstCount = m_count;
        m_isFirstFull = m_size >= m_limit / firstPart;
    }
    m_error.clear();
    return true;
}

CaseStore::Need CaseFileStore::needsBeginning(qsizetype added) const
{
    if (m_part.isOpen())
        return Need::None;
    const qint64 size = m_size + added;
    const qint64 room = m_limit - m_firstSize;
    if (size > m_limit - room / 4)
        return Need::Now;
    return size > m_firstSize + room / 2 ? Need::Soon : Need::None;
}

void CaseFileStore::beginAnew(const QByteArray& beginning, qint64 count, qint64 time)
{
    forgetPart();
    QFile::remove(partName()); // of a recorder that did not end properly
    m_part = LogFile::forAppending(partName());
    const qint64 missing = m_dropped + m_count - m_firstCount;
    const QByteArray gap = gapLine(missing, time);
    if (!m_part.isOpen() || !copy(0, m_firstSize, m_part) ||
        m_part.append(gap + beginning) != gap.size() + beginning.size()) {
        fail(m_part.error());
        forgetPart();
        return;
    }
    m_partSize = m_firstSize + gap.size() + beginning.size();
    m_partCount = m_firstCount + 1 + count;
    m_markSize = m_size;
    m_markCount = m_count;
    m_droppedAtMark = missing;
}

bool CaseFileStore::copy(qint64 from, qint64 to, LogFile& into)
{
    QByteArray buffer(std::min(copiedAtOnce, to - from), Qt::Uninitialized);
    while (from < to) {
        const qint64 wanted = std::min<qint64>(buffer.size(), to - from);
        const qint64 read = m_file.readAt(from, buffer.data(), wanted);
        if (read <= 0) {
            fail(m_file.error());
            return false;
        }
        if (into.append(QByteArrayView(buffer).first(read)) != read) {
            fail(into.error());
            return false;
        }
        from += read;
    }
    return true;
}

/// Puts the new file in the place of this one.
bool CaseFileStore::replace()
{
    if (!m_part.isOpen())
        return false;
    if (!copy(m_markSize, m_size, m_part)) {
        forgetPart();
        return false;
    }
    m_partSize += m_size - m_markSize;
    m_partCount += m_count - m_markCount;
    // Windows renames no file that is open, and none to the name of one that is open.
    m_part = {};
    m_file = {};
    const QString error = moveLogFile(partName(), m_fileName);
    m_file = LogFile::forAppending(m_fileName);
    if (!error.isEmpty()) {
        fail(error);
        QFile::remove(partName());
        return false;
    }
    m_size = m_partSize;
    m_count = m_partCount;
    m_dropped = m_droppedAtMark;
    return m_file.isOpen();
}

// In memory ///////////////////////////////////////////////////////////////////////////////////////

bool CaseText::append(const QByteArray& lines, qint64 /*count*/)
{
    m_lines.append(lines);
    return true;
}

} // namespace VxKit
