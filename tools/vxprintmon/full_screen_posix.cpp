// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "full_screen.h"

#include "failure.h"
#include "tool_text.h"

#include <QtCore/QSocketNotifier>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

namespace {

// The other screen, without a cursor and without wrapping.
constexpr char beginSequence[] = "\033[?1049h\033[?25l\033[?7l\033[0m\033[2J";
constexpr char endSequence[] = "\033[0m\033[?7h\033[?25h\033[?1049l";

constexpr std::array endSignals{SIGINT, SIGTERM, SIGHUP};
constexpr std::array otherSignals{SIGTSTP, SIGCONT, SIGWINCH};
// The program does not survive these. SIGQUIT is Ctrl-\.
constexpr std::array crashSignals{SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGQUIT};

// What the handlers of signals use. Only functions that are safe in a handler are called there.
termios settingsBefore{};
std::array<int, 2> signalPipe{-1, -1};
volatile std::sig_atomic_t isShown = 0;
volatile std::sig_atomic_t isEndNoted = 0;

template <std::size_t size>
void writeAll(const char (&text)[size])
{
    std::size_t done = 0;
    while (done < size - 1) {
        const ssize_t written = write(STDOUT_FILENO, text + done, size - 1 - done);
        if (written > 0)
            done += static_cast<std::size_t>(written);
        else if (errno != EINTR)
            return;
    }
}

void setTerminal(const termios& settings)
{
    while (tcsetattr(STDIN_FILENO, TCSANOW, &settings) != 0 && errno == EINTR) {
    }
}

void leave()
{
    if (isShown == 0)
        return;
    isShown = 0;
    writeAll(endSequence);
    setTerminal(settingsBefore);
}

void enter()
{
    termios settings = settingsBefore;
    // ISIG stays, for Ctrl-C and Ctrl-Z. Without IXON, Ctrl-S does not hold the output up.
    settings.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO | IEXTEN);
    settings.c_iflag &= ~static_cast<tcflag_t>(IXON | ICRNL);
    settings.c_cc[VMIN] = 1;
    settings.c_cc[VTIME] = 0;
    isShown = 1;
    setTerminal(settings);
    writeAll(beginSequence);
}

/// The actions of signals as they were before, to be put back.
class SignalActions
{
public:
    void set(int number, void (*handler)(int))
    {
        struct sigaction action = {};
        action.sa_handler = handler;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask);
        Entry& entry = m_entries.at(m_count);
        entry.number = number;
        if (sigaction(number, &action, &entry.before) == 0)
            ++m_count;
    }
    void restore(int number) const
    {
        for (std::size_t index = 0; index < m_count; ++index) {
            if (m_entries.at(index).number == number)
                sigaction(number, &m_entries.at(index).before, nullptr);
        }
    }
    void restoreAll()
    {
        for (std::size_t index = 0; index < m_count; ++index)
            sigaction(m_entries.at(index).number, &m_entries.at(index).before, nullptr);
        m_count = 0;
    }

private:
    struct Entry
    {
        int number = 0;
        struct sigaction before = {};
    };
    std::array<Entry, endSignals.size() + otherSignals.size() + crashSignals.size()> m_entries{};
    std::size_t m_count = 0;
};

SignalActions& signalActions()
{
    static SignalActions actions;
    return actions;
}

bool isEndSignal(int number)
{
    return std::ranges::find(endSignals, number) != endSignals.end();
}

void crash(int number)
{
    leave();
    signalActions().restore(number);
    raise(number);
}

void note(int number)
{
    const int error = errno;
    if (isEndSignal(number)) {
        // The event loop has not come to the first one, perhaps because the spooler does not
        // answer: end at once.
        if (isEndNoted != 0) {
            leave();
            std::signal(number, SIG_DFL);
            raise(number);
            return;
        }
        isEndNoted = 1;
    }
    const auto byte = static_cast<unsigned char>(number);
    // If the pipe is full, the event loop has enough to do.
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
    errno = error;
}

void closePipe()
{
    for (int& end : signalPipe) {
        close(end);
        end = -1;
    }
}

void openPipe()
{
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        throw Failure(ToolText::tr("the terminal cannot be used: %1")
                          .arg(QString::fromLocal8Bit(strerror(errno))));
}

/// Whether a read would not block.
bool isReadable(int descriptor)
{
    pollfd ready{descriptor, POLLIN, 0};
    return ::poll(&ready, 1, 0) > 0;
}

QByteArray readFrom(int descriptor, bool& isClosed)
{
    std::array<char, 256> buffer{};
    const ssize_t size = read(descriptor, buffer.data(), buffer.size());
    isClosed = size == 0 || (size < 0 && errno != EAGAIN && errno != EINTR);
    return {buffer.data(), std::max<ssize_t>(size, 0)};
}

} // namespace

class FullScreen::Private
{
public:
    explicit Private(FullScreen& screen)
        : m_screen(screen)
        , m_signals(signalPipe[0], QSocketNotifier::Read)
        , m_keys(STDIN_FILENO, QSocketNotifier::Read)
    {
        connect(&m_signals, &QSocketNotifier::activated, &screen, [this] { handleSignals(); });
        connect(&m_keys, &QSocketNotifier::activated, &screen, [this] { readKeys(); });
    }

    void poll()
    {
        handleSignals();
        if (m_keys.isEnabled())
            readKeys();
    }

private:
    void handleSignals()
    {
        bool isClosed = false;
        for (const char number : readFrom(signalPipe[0], isClosed)) {
            if (isEndSignal(number)) {
                Q_EMIT m_screen.endRequested();
            } else if (number == SIGTSTP) {
                stop();
            } else if (number == SIGCONT) {
                // Whoever used the terminal in the meantime has set it up for himself.
                enter();
                Q_EMIT m_screen.redrawNeeded();
            } else {
                Q_EMIT m_screen.redrawNeeded();
            }
        }
    }
    static void stop()
    {
        leave();
        // The default action of the signal stops the program here; SIGCONT is noted when it
        // continues. In a process group that nobody could continue, the signal does nothing.
        std::signal(SIGTSTP, SIG_DFL);
        raise(SIGTSTP);
        std::signal(SIGTSTP, note);
        note(SIGCONT);
    }
    void readKeys()
    {
        // poll() may have read, between two reports, the keys that the notifier then announces. The
        // terminal is shared with other programs, so it is not made non-blocking.
        if (!isReadable(STDIN_FILENO))
            return;
        bool isClosed = false;
        const QByteArray bytes = readFrom(STDIN_FILENO, isClosed);
        if (isClosed) {
            m_keys.setEnabled(false);
            isEndNoted = 1;
            Q_EMIT m_screen.endRequested();
        }
        for (const KeyPress& key : m_decoder.decode(bytes))
            Q_EMIT m_screen.pressed(key);
    }

    FullScreen& m_screen;
    KeyDecoder m_decoder;
    QSocketNotifier m_signals;
    QSocketNotifier m_keys;
};

FullScreen::FullScreen()
    : d([this] {
        requireTerminal();
        tcgetattr(STDIN_FILENO, &settingsBefore);
        openPipe();
        return std::make_unique<Private>(*this);
    }())
{
    isEndNoted = 0;
    std::fflush(stdout);
    for (const int number : crashSignals)
        signalActions().set(number, crash);
    for (const int number : endSignals)
        signalActions().set(number, note);
    for (const int number : otherSignals)
        signalActions().set(number, note);
    enter();
}

FullScreen::~FullScreen()
{
    std::fflush(stdout);
    leave();
    signalActions().restoreAll();
    closePipe();
}

bool FullScreen::isTerminal()
{
    return isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0;
}

QSize FullScreen::size() const
{
    constexpr QSize usual(80, 24);
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0 || size.ws_row == 0)
        return usual;
    return {size.ws_col, size.ws_row};
}

void FullScreen::poll()
{
    d->poll();
}

bool FullScreen::mustEnd() const
{
    return isEndNoted != 0;
}
