// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "stop_signal.h"

#include <csignal>

using namespace std::chrono_literals;

namespace {

volatile std::sig_atomic_t isAsked = 0;

void ask(int /*number*/)
{
    isAsked = 1;
}

} // namespace

StopSignal::StopSignal(const std::function<void()>& stop)
{
    isAsked = 0;
    std::signal(SIGINT, ask);
    std::signal(SIGTERM, ask);
    // A signal does not wake the event loop on every system, so look for it regularly.
    QObject::connect(&m_clock, &QTimer::timeout, &m_clock, [stop] {
        if (isAsked != 0)
            stop();
    });
    m_clock.start(200ms);
}

StopSignal::~StopSignal()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}
