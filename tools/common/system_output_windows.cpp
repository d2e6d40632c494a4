// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_output.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>

#include <io.h>
#include <windows.h>

namespace {

UINT codePageBefore = 0;

void restoreCodePage()
{
    SetConsoleOutputCP(codePageBefore);
}

/// The console that a stream writes to, or null.
HANDLE consoleOf(std::FILE* stream)
{
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the C library has the handle as a number
    const auto handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) ? handle : nullptr;
}

bool writeToConsole(HANDLE console, const QString& text)
{
    // Large texts are refused: https://learn.microsoft.com/windows/console/writeconsole
    constexpr qsizetype most = 8000;
    for (qsizetype written = 0; written < text.size();) {
        qsizetype size = std::min(most, text.size() - written);
        // Not between the halves of one character.
        if (size > 1 && text.at(written + size - 1).isHighSurrogate())
            --size;
        DWORD taken = 0;
        if (!WriteConsoleW(console, text.utf16() + written, static_cast<DWORD>(size), &taken,
                           nullptr) ||
            taken == 0) {
            errno = EIO;
            return false;
        }
        written += taken;
    }
    return true;
}

} // namespace

void system_output::prepare()
{
    // The tools write UTF-8. There is no code page if there is no console.
    codePageBefore = GetConsoleOutputCP();
    if (codePageBefore != 0 && SetConsoleOutputCP(CP_UTF8))
        std::atexit(restoreCodePage);
    // Windows sends no signal for a closed pipe, and does not reuse the numbers of closed streams.
}

bool system_output::write(std::FILE* stream, const QString& text)
{
    // The C library gives a console the first byte of a text alone, so that a character of several
    // bytes there may become several wrong ones.
    if (const HANDLE console = consoleOf(stream))
        return writeToConsole(console, QString(text).replace(u'\n', QLatin1String("\r\n")));
    const QByteArray utf8 = text.toUtf8();
    const auto size = static_cast<std::size_t>(utf8.size());
    return std::fwrite(utf8.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

bool system_output::failedAtClosedPipe()
{
    // The C library has an errno value only for the first of these errors.
    return _doserrno == ERROR_BROKEN_PIPE || _doserrno == ERROR_NO_DATA;
}

bool system_output::isPipeClosed(std::FILE* /*stream*/)
{
    return false;
}
