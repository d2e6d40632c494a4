// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_item.h"

#include <QtCore/QStringDecoder>

#include <algorithm>
#include <cstring>

namespace VxKit {

namespace {

/// Bytes of a value that would make its line too long are left out.
constexpr DWORD mostBytes = 64 * 1024;

enum Flag : quint8
{
    HasBytes = 1,
    IsMissing = 2,
};

struct Head
{
    DWORD type;
    DWORD size;
    quint16 nameSize; ///< 0 for a value that the library reads
    quint8 known;
    quint8 flags;
};

constexpr auto knownNames = [] {
    std::array<QByteArrayView, libraryValues.size()> names;
    for (std::size_t i = 0; i < names.size(); ++i)
        names[i] = libraryValues[i];
    return names;
}();

/// Room for what changes at once in a printer that works.
constexpr qsizetype usualSize = 160;

bool isCleanText(const PublishedValues::Value& value, QString& text)
{
    constexpr DWORD registryText = 1;
    const QByteArrayView bytes = value.bytes;
    if (value.type != registryText || bytes.isEmpty() || bytes.indexOf('\0') != bytes.size() - 1)
        return false;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    text = decoder(bytes.chopped(1));
    return !decoder.hasError() && !text.contains(QChar::ReplacementCharacter) &&
           !text.startsWith(QChar::ByteOrderMark);
}

} // namespace

int PublishedValues::placeOf(QByteArrayView name)
{
    const auto* const found = std::ranges::find_if(
        libraryValues, [name](const char* known) { return name == QByteArrayView(known); });
    return found == libraryValues.end() ? 0 : static_cast<int>(found - libraryValues.begin()) + 1;
}

void PublishedValues::append(const Value& value)
{
    Head head{};
    head.type = value.type;
    head.size = value.size;
    head.nameSize = value.known
                        ? quint16{0}
                        : static_cast<quint16>(std::min<qsizetype>(value.name.size(), 0xFFFF));
    head.known = static_cast<quint8>(value.known);
    head.flags = static_cast<quint8>((value.bytes.isNull() ? 0 : HasBytes) |
                                     (value.isMissing ? IsMissing : 0));
    const qsizetype before = m_block.size();
    const qsizetype size = before + qsizetype(sizeof(head)) + head.nameSize + value.bytes.size();
    if (m_block.capacity() < size)
        m_block.reserve(std::max(usualSize, 2 * size));
    m_block.resize(size);
    char* place = m_block.data() + before;
    const auto put = [&place](const void* bytes, std::size_t count) {
        if (count > 0)
            std::memcpy(place, bytes, count);
        place += count;
    };
    put(&head, sizeof(head));
    put(value.name.data(), head.nameSize);
    put(value.bytes.data(), static_cast<std::size_t>(value.bytes.size()));
}

void PublishedValues::add(int known, QByteArrayView name, DWORD type, DWORD size, const BYTE* bytes)
{
    const bool isKept = bytes && size <= mostBytes;
    append({name, type, size,
            isKept ? QByteArrayView(reinterpret_cast<const char*>(bytes), size) : QByteArrayView(),
            false, known});
}

void PublishedValues::addMissing(QByteArrayView name)
{
    append({name, 0, 0, {}, true, placeOf(name)});
}

PublishedValues::Value PublishedValues::next(const char*& place)
{
    Head head;
    std::memcpy(&head, place, sizeof(head));
    place += sizeof(head);
    Value value{{place, head.nameSize},        head.type, head.size, {},
                (head.flags & IsMissing) != 0, head.known};
    if (head.known)
        value.name = knownNames[head.known - 1U];
    place += head.nameSize;
    if (head.flags & HasBytes) {
        value.bytes = {place, static_cast<qsizetype>(head.size)};
        place += head.size;
    }
    return value;
}

namespace {

bool isSameName(const PublishedValues::Value& one, QByteArrayView name, int known)
{
    if (one.known && known)
        return one.known == known;
    return one.name.size() == name.size() && one.name.compare(name, Qt::CaseInsensitive) == 0;
}

} // namespace

bool PublishedValues::find(QByteArrayView name, Value& value) const
{
    bool isFound = false;
    const int known = placeOf(name);
    forEach([&](const Value& candidate) {
        if (isSameName(candidate, name, known)) {
            value = candidate;
            isFound = true;
        }
    });
    return isFound;
}

/// What drivers publish again and again keeps its size. False when that is not so; some of it may
/// have been taken over then.
bool PublishedValues::mergeInPlace(const PublishedValues& changed)
{
    char* const begin = m_block.data();
    const char* const end = begin + m_block.size();
    // Both have their values in the order in which the library reads them, as a rule.
    char* place = begin;
    bool isDone = true;
    changed.forEach([&](const Value& value) {
        if (!isDone)
            return;
        isDone = false;
        if (!value.known || value.isMissing || value.bytes.isNull())
            return;
        for (int turn = 0; turn < 2 && !isDone; ++turn) {
            while (place != end && !isDone) {
                Head head;
                std::memcpy(&head, place, sizeof(head));
                char* const bytes = place + sizeof(head) + head.nameSize;
                if (head.known == value.known) {
                    if (!(head.flags & HasBytes) || head.size != value.size)
                        return;
                    head.type = value.type;
                    std::memcpy(place, &head, sizeof(head));
                    std::memcpy(bytes, value.bytes.data(), value.size);
                    isDone = true;
                }
                place = bytes + (head.flags & HasBytes ? head.size : 0);
            }
            if (!isDone)
                place = begin;
        }
    });
    return isDone;
}

void PublishedValues::merge(const PublishedValues& changed)
{
    if (mergeInPlace(changed))
        return;
    PublishedValues merged;
    merged.m_block.reserve(m_block.size() + changed.size());
    forEach([&](const Value& value) {
        Value replacement;
        if (!changed.find(value.name, replacement))
            merged.append(value);
    });
    changed.forEach([&](const Value& value) {
        if (!value.isMissing)
            merged.append(value);
    });
    merged.m_block.squeeze();
    m_block = merged.m_block;
}

QJsonObject valueObject(const PublishedValues::Value& value)
{
    constexpr DWORD registryNumber = 4;
    QJsonObject object{{QStringLiteral("name"), QString::fromUtf8(value.name)},
                       {QStringLiteral("type"), qint64(value.type)}};
    QString text;
    if (value.bytes.isNull()) {
        object.insert(QStringLiteral("size"), qint64(value.size));
    } else if (value.type == registryNumber && value.bytes.size() == sizeof(DWORD)) {
        DWORD number = 0;
        std::memcpy(&number, value.bytes.data(), sizeof(number));
        object.insert(QStringLiteral("number"), qint64(number));
    } else if (isCleanText(value, text)) {
        object.insert(QStringLiteral("text"), text);
    } else {
        object.insert(QStringLiteral("base64"),
                      QString::fromLatin1(value.bytes.toByteArray().toBase64()));
    }
    return object;
}

} // namespace VxKit
