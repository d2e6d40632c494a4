// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "interrupt_handler.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

void interrupt(int /*number*/)
{
    isInterrupted = 1;
}

} // namespace

InterruptHandler::InterruptHandler()
{
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
}

InterruptHandler::~InterruptHandler()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool InterruptHandler::wasInterrupted() const
{
    return isInterrupted != 0;
}
