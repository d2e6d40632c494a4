// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "interruption.h"

#include <csignal>

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

void interrupt(int /*number*/)
{
    isInterrupted = 1;
}

} // namespace

Interruption::Interruption()
{
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
}

Interruption::~Interruption()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool Interruption::hasHappened() const
{
    return isInterrupted != 0;
}
