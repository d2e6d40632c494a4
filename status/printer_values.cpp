// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_values.h"

#include <QtCore/QtEndian>

#include <array>

#include <winspool.h>

namespace printer_values {

namespace {

/// REG_SZ, or REG_BINARY: drivers publish texts as plain bytes too.
bool isText(DWORD type)
{
    constexpr DWORD binaryBit = 2;
    return (type & ~binaryBit) == REG_SZ;
}

/// REG_BINARY or REG_DWORD.
bool isNumber(DWORD type)
{
    return type - REG_BINARY <= 1U;
}

struct Answer
{
    DWORD type = REG_NONE;
    DWORD needed = 0;
};

/// Asks for a value. A failed call is told by what it left: type and buffer are as they were.
Answer ask(HANDLE printer, const char* name, BYTE* buffer, DWORD capacity)
{
    Answer answer;
    // The name is not written to, though its type would allow it; a copy of it would be one for
    // each value of each notification.
    GetPrinterDataA(printer, const_cast<char*>(name), &answer.type, buffer, capacity,
                    &answer.needed);
    return answer;
}

} // namespace

QString read(HANDLE printer, const TextValue& value)
{
    std::array<char, largestCapacity> buffer{};
    const Answer answer =
        ask(printer, value.name, reinterpret_cast<BYTE*>(buffer.data()), value.capacity);
    // A text that is longer than the buffer is not one, whatever of it the buffer holds.
    if (!isText(answer.type) || answer.needed < value.leastBytes || answer.needed > value.capacity)
        return {};
    return QString::fromUtf8(buffer.data(),
                             static_cast<qsizetype>(qstrnlen(buffer.data(), value.capacity)));
}

QString read(HANDLE printer, const NumberValue& value)
{
    std::array<BYTE, sizeof(quint32)> buffer{};
    const Answer answer = ask(printer, value.name, buffer.data(), sizeof(quint32));
    // More bytes than a word are not a number: the word would be what the buffer held before.
    if (!isNumber(answer.type) || answer.needed > sizeof(quint32))
        return {};
    const auto word = qFromLittleEndian<quint32>(buffer.data());
    // Signed here and unsigned below, both on purpose: a word with the top bit set is plausible to
    // the driver's makers and is reported whole.
    if (static_cast<qint32>(word) > value.ceiling)
        return {};
    return QString::number(word);
}

} // namespace printer_values
