// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "c_text.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringDecoder>

#include <algorithm>
#include <array>
#include <cstring>

namespace VxKit::c_interface {

namespace {

constexpr std::size_t longestError = 1000;
constexpr qsizetype longestQuotation = 60;

/// An array, because it is there without memory being allocated, and without a destructor that a
/// thread would call after the library was unloaded.
thread_local std::array<char, longestError + 1> errorText{};

/// How many bytes of a text in UTF-8 to keep, so that no character is cut in two.
std::size_t wholeCharacters(const QByteArray& text, std::size_t most)
{
    auto size = static_cast<qsizetype>(most);
    if (text.size() <= size)
        return static_cast<std::size_t>(text.size());
    constexpr int markOfFollowingBytes = 0x80;
    constexpr int markBits = 0xC0;
    while (size > 0 && (text.at(size) & markBits) == markOfFollowingBytes)
        --size;
    return static_cast<std::size_t>(size);
}

} // namespace

vxkit_result fail(vxkit_result result, const QString& text)
{
    const QByteArray bytes = text.simplified().toUtf8();
    const std::size_t size = wholeCharacters(bytes, longestError);
    std::memcpy(errorText.data(), bytes.constData(), size);
    errorText[size] = '\0';
    return result;
}

const char* lastError() noexcept
{
    return errorText.data();
}

QString quoted(const QString& text)
{
    QString result;
    for (const QChar character : text.left(longestQuotation)) {
        const bool isPlain = character.isPrint() && character.category() != QChar::Other_Surrogate;
        if (isPlain || character.isSurrogate())
            result += character;
        else
            result += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    }
    const bool isShortened = text.size() > longestQuotation;
    return QLatin1Char('"') + result +
           (isShortened ? QStringLiteral("...\"") : QStringLiteral("\""));
}

TextBuffer::TextBuffer(char* buffer, std::size_t size, std::size_t* needed) noexcept
    : m_buffer(buffer)
    , m_size(size)
    , m_needed(needed)
{
    if (m_buffer && m_size > 0)
        *m_buffer = '\0';
    if (m_needed)
        *m_needed = 0;
}

vxkit_result TextBuffer::check() const
{
    if (!m_buffer && m_size > 0)
        return fail(
            VXKIT_ERROR_INVALID_ARGUMENT,
            QStringLiteral("buffer is null, but size is %1: pass a buffer, or 0 as its size")
                .arg(m_size));
    return VXKIT_OK;
}

vxkit_result TextBuffer::write(const QString& text) const
{
    QByteArray bytes = text.toUtf8();
    // The text would seem to end there.
    bytes.replace('\0', QByteArrayLiteral("\xEF\xBF\xBD"));
    return write(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

vxkit_result TextBuffer::write(const char* text) const
{
    return write(text, std::strlen(text));
}

vxkit_result TextBuffer::write(const char* text, std::size_t length) const
{
    if (const vxkit_result result = check(); result != VXKIT_OK)
        return result;
    if (m_needed)
        *m_needed = length + 1;
    if (m_size < length + 1)
        return fail(VXKIT_ERROR_BUFFER_TOO_SMALL,
                    QStringLiteral("the text needs a buffer of %1 bytes, not %2")
                        .arg(length + 1)
                        .arg(m_size));
    std::memcpy(m_buffer, text, length + 1);
    return VXKIT_OK;
}

vxkit_result readText(const char* text, std::size_t longest, const char* what, QString& result)
{
    const QString name = QLatin1String(what);
    if (!text)
        return fail(VXKIT_ERROR_INVALID_ARGUMENT, QStringLiteral("%1 is null").arg(name));
    const void* const end = std::memchr(text, '\0', longest + 1);
    if (!end)
        return fail(VXKIT_ERROR_TOO_LONG,
                    QStringLiteral("%1 has more than %2 bytes").arg(name).arg(longest));
    const auto length = static_cast<const char*>(end) - text;
    // A byte order mark at the beginning is a character of the text like any other.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    result = decoder(QByteArrayView(text, length));
    if (decoder.hasError())
        return fail(VXKIT_ERROR_INVALID_TEXT, QStringLiteral("%1 is not UTF-8").arg(name));
    return VXKIT_OK;
}

} // namespace VxKit::c_interface
