// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "key_decoder.h"

namespace {

constexpr char escape = '\033';

bool isBetween(char character, char first, char last)
{
    return character >= first && character <= last;
}

/// `parameters` are those of "ESC [ parameters final".
Key keyOf(char final, const QByteArray& parameters)
{
    switch (final) {
    case 'A':
        return Key::Up;
    case 'B':
        return Key::Down;
    case 'H':
        return Key::Home;
    case 'F':
        return Key::End;
    case '~':
        break;
    default:
        return Key::Other;
    }
    switch (parameters.toInt()) {
    case 1:
    case 7:
        return Key::Home;
    case 4:
    case 8:
        return Key::End;
    case 5:
        return Key::PageUp;
    case 6:
        return Key::PageDown;
    default:
        return Key::Other;
    }
}

/// The key at the beginning of `bytes`, and the number of its bytes: 0 if it is not complete.
std::pair<KeyPress, qsizetype> firstKey(const QByteArray& bytes)
{
    const char first = bytes.front();
    if (first != escape) {
        const bool isCharacter = isBetween(first, ' ', '~');
        return {isCharacter ? KeyPress{Key::Character, first} : KeyPress{}, 1};
    }
    if (bytes.size() < 2)
        return {{}, 0};
    const char second = bytes.at(1);
    // What follows Escape is not part of the key, unless it begins a sequence.
    if (second != '[' && second != 'O')
        return {{}, 1};
    for (qsizetype end = 2; end < bytes.size(); ++end) {
        const char character = bytes.at(end);
        if (isBetween(character, '@', '~'))
            return {{keyOf(character, bytes.sliced(2, end - 2))}, end + 1};
        if (!isBetween(character, ' ', '?'))
            return {{}, end};
    }
    constexpr qsizetype longestSequence = 32;
    return {{}, bytes.size() > longestSequence ? bytes.size() : 0};
}

} // namespace

QList<KeyPress> KeyDecoder::decode(const QByteArray& bytes)
{
    m_pending += bytes;
    QList<KeyPress> keys;
    while (!m_pending.isEmpty()) {
        const auto [key, size] = firstKey(m_pending);
        if (size == 0)
            break;
        keys.append(key);
        m_pending.remove(0, size);
    }
    return keys;
}
