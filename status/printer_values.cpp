// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_values.h"

#include <QtCore/QtEndian>

#include <array>

#include <winspool.h>

namespace printer_values {

namespace {

/// REG_SZ or REG_BINARY, because drivers may publish a text as plain bytes.
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

/// Queries a value. When the call fails, type and buffer are unchanged: that is how the callers
/// recognise it.
Answer ask(HANDLE printer, const char* name, BYTE* buffer, DWORD capacity)
{
    Answer answer;
    // GetPrinterDataA does not write to the name, though the parameter's type allows it. A copy
    // would be needed for every value at every notification.
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
    // A text that is longer than the buffer is invalid, whatever the buffer contains.
    if (!isText(answer.type) || answer.needed < value.leastBytes || answer.needed > value.capacity)
        return {};
    return QString::fromUtf8(buffer.data(),
                             static_cast<qsizetype>(qstrnlen(buffer.data(), value.capacity)));
}

QString read(HANDLE printer, const NumberValue& value)
{
    std::array<BYTE, sizeof(quint32)> buffer{};
    const Answer answer = ask(printer, value.name, buffer.data(), sizeof(quint32));
    // A value of more bytes than a word does not fit, and the buffer would still contain zeros.
    if (!isNumber(answer.type) || answer.needed > sizeof(quint32))
        return {};
    const auto word = qFromLittleEndian<quint32>(buffer.data());
    // Deliberately signed here and unsigned below: a word with the top bit set passes for plausible
    // and is reported as it is.
    if (static_cast<qint32>(word) > value.ceiling)
        return {};
    return QString::number(word);
}

} // namespace printer_values
