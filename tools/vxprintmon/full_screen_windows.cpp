// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "full_screen.h"

#include "failure.h"
#include "tool_text.h"

#include <QtCore/QMutex>
#include <QtCore/QWinEventNotifier>

#include <array>
#include <atomic>
#include <cstdio>
#include <iterator>

#include <windows.h>

namespace {

// The other screen, without a cursor and without wrapping.
constexpr wchar_t beginSequence[] = L"\033[?1049h\033[?25l\033[?7l\033[0m\033[2J";
constexpr wchar_t endSequence[] = L"\033[0m\033[?7h\033[?25h\033[?1049l";

struct Console
{
    HANDLE input = nullptr;
    HANDLE output = nullptr;
    DWORD inputMode = 0;
    DWORD outputMode = 0;

    bool open()
    {
        input = GetStdHandle(STD_INPUT_HANDLE);
        output = GetStdHandle(STD_OUTPUT_HANDLE);
        return GetConsoleMode(input, &inputMode) && GetConsoleMode(output, &outputMode);
    }
    /// False if the console does not know escape sequences.
    bool enter() const
    {
        if (!SetConsoleMode(output, outputMode | ENABLE_PROCESSED_OUTPUT |
                                        ENABLE_VIRTUAL_TERMINAL_PROCESSING))
            return false;
        SetConsoleMode(input, ENABLE_PROCESSED_INPUT | ENABLE_WINDOW_INPUT | ENABLE_EXTENDED_FLAGS);
        write(beginSequence, std::size(beginSequence) - 1);
        return true;
    }
    void leave() const
    {
        write(endSequence, std::size(endSequence) - 1);
        SetConsoleMode(input, inputMode);
        SetConsoleMode(output, outputMode);
    }

private:
    void write(const wchar_t* text, std::size_t size) const
    {
        DWORD written = 0;
        WriteConsoleW(output, text, static_cast<DWORD>(size), &written, nullptr);
    }
};

std::atomic_bool isEndNoted = false;
// For the handler, which Windows calls on a thread of its own.
Q_CONSTINIT QBasicMutex shownMutex;
FullScreen* shown = nullptr;

BOOL WINAPI handleControl(DWORD /*event*/)
{
    const QMutexLocker locker(&shownMutex);
    if (!shown || isEndNoted.exchange(true))
        return FALSE; // the next handler ends the program
    QMetaObject::invokeMethod(shown, &FullScreen::endRequested, Qt::QueuedConnection);
    return TRUE;
}

KeyPress keyOf(const KEY_EVENT_RECORD& event)
{
    switch (event.wVirtualKeyCode) {
    case VK_UP:
        return {Key::Up};
    case VK_DOWN:
        return {Key::Down};
    case VK_PRIOR:
        return {Key::PageUp};
    case VK_NEXT:
        return {Key::PageDown};
    case VK_HOME:
        return {Key::Home};
    case VK_END:
        return {Key::End};
    default:
        break;
    }
    const wchar_t character = event.uChar.UnicodeChar;
    if (character < L' ' || character > L'~')
        return {};
    return {Key::Character, static_cast<char>(character)};
}

} // namespace

class FullScreen::Private
{
public:
    Private(FullScreen& screen, const Console& console)
        : m_screen(screen)
        , m_console(console)
        , m_notifier(console.input)
    {
        connect(&m_notifier, &QWinEventNotifier::activated, &screen, [this] { readInput(); });
    }

    const Console& console() const { return m_console; }

    void readInput()
    {
        std::array<INPUT_RECORD, 64> records{};
        DWORD count = 0;
        if (!GetNumberOfConsoleInputEvents(m_console.input, &count) || count == 0)
            return;
        if (!ReadConsoleInputW(m_console.input, records.data(), static_cast<DWORD>(records.size()),
                               &count))
            return;
        for (DWORD index = 0; index < count; ++index) {
            const INPUT_RECORD& record = records.at(index);
            if (record.EventType == WINDOW_BUFFER_SIZE_EVENT)
                Q_EMIT m_screen.redrawNeeded();
            else if (record.EventType == KEY_EVENT && record.Event.KeyEvent.bKeyDown)
                Q_EMIT m_screen.pressed(keyOf(record.Event.KeyEvent));
        }
    }

private:
    FullScreen& m_screen;
    Console m_console;
    QWinEventNotifier m_notifier;
};

FullScreen::FullScreen()
    : d([this] {
        requireTerminal();
        Console console;
        console.open();
        if (!console.enter())
            throw Failure(ToolText::tr(
                "this console does not know escape sequences; use that of Windows 10 or newer"));
        return std::make_unique<Private>(*this, console);
    }())
{
    isEndNoted = false;
    {
        const QMutexLocker locker(&shownMutex);
        shown = this;
    }
    SetConsoleCtrlHandler(handleControl, TRUE);
}

FullScreen::~FullScreen()
{
    SetConsoleCtrlHandler(handleControl, FALSE);
    {
        const QMutexLocker locker(&shownMutex);
        shown = nullptr;
    }
    std::fflush(stdout);
    d->console().leave();
}

bool FullScreen::isTerminal()
{
    return Console().open();
}

QSize FullScreen::size() const
{
    constexpr QSize usual(80, 24);
    CONSOLE_SCREEN_BUFFER_INFO info{};
    if (!GetConsoleScreenBufferInfo(d->console().output, &info))
        return usual;
    return {info.srWindow.Right - info.srWindow.Left + 1,
            info.srWindow.Bottom - info.srWindow.Top + 1};
}

void FullScreen::poll()
{
    d->readInput();
}

bool FullScreen::mustEnd() const
{
    return isEndNoted;
}
