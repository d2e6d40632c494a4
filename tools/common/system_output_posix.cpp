// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_output.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

void system_output::prepare()
{
    std::signal(SIGPIPE, SIG_IGN);
    for (const int stream : std::array{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // open() returns the lowest free descriptor, which is this one. It is opened for reading,
        // so that writing to it fails as it does for a closed stream.
        if (fcntl(stream, F_GETFD) < 0)
            static_cast<void>(open("/dev/null", O_RDONLY));
    }
}

bool system_output::write(std::FILE* stream, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    const auto size = static_cast<std::size_t>(utf8.size());
    return std::fwrite(utf8.constData(), 1, size, stream) == size && std::fflush(stream) == 0;
}

bool system_output::failedAtClosedPipe()
{
    return errno == EPIPE;
}

bool system_output::isPipeClosed(std::FILE* stream)
{
    pollfd output{fileno(stream), 0, 0};
    return poll(&output, 1, 0) == 1 && (output.revents & POLLERR) != 0;
}
