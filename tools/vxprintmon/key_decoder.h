// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>

/// A key as programs on the whole terminal know it.
enum class Key
{
    Character, ///< a key that writes an ASCII character
    Up,
    Down,
    PageUp,
    PageDown,
    Home,
    End,
    Other,
};

struct KeyPress
{
    Key key = Key::Other;
    char character = 0; ///< of `Key::Character`

    bool operator==(const KeyPress&) const = default;
};

/// Turns the bytes that a terminal sends into keys.
class KeyDecoder
{
public:
    /// The keys that are complete with these bytes. The beginning of another one is kept.
    QList<KeyPress> decode(const QByteArray& bytes);

private:
    QByteArray m_pending;
};
