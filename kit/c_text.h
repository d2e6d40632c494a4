// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Texts that cross the border of the C interface, and the errors of its functions.
#pragma once

#include "vxkit.h"

#include <QtCore/QString>

#include <cstddef>
#include <exception>
#include <new>

namespace VxKit::c_interface {

/// Remembers for this thread what was wrong, cut off after 1000 bytes, and returns the result.
vxkit_result fail(vxkit_result result, const QString& text);
/// The last text that was remembered on this thread.
const char* lastError() noexcept;

/// A caller's text for a message: in quotation marks, shortened, and with everything escaped that
/// could control a terminal.
QString quoted(const QString& text);

/// A caller's buffer for a text. It has an empty text from the beginning.
class TextBuffer
{
public:
    TextBuffer(char* buffer, std::size_t size, std::size_t* needed) noexcept;

    /// Fails when there is room but no buffer.
    vxkit_result check() const;
    vxkit_result write(const QString& text) const;
    /// For a text in UTF-8 without a zero byte in it.
    vxkit_result write(const char* text) const;

private:
    vxkit_result write(const char* text, std::size_t length) const;

    char* m_buffer;
    std::size_t m_size;
    std::size_t* m_needed;
};

/// Reads a caller's text of at most `longest` bytes. `what` names it in messages.
vxkit_result readText(const char* text, std::size_t longest, const char* what, QString& result);

/// Calls a function whose exceptions must not cross the border.
template <typename Function>
vxkit_result guarded(const Function& function) noexcept
{
    try {
        return function();
    } catch (const std::bad_alloc&) {
        // To make a text would need memory too.
        return VXKIT_ERROR_OUT_OF_MEMORY;
    } catch (const std::exception& error) {
        return fail(VXKIT_ERROR_FAILED, QString::fromLocal8Bit(error.what()));
    } catch (...) {
        return fail(VXKIT_ERROR_FAILED, QStringLiteral("an exception of an unknown kind"));
    }
}

} // namespace VxKit::c_interface
