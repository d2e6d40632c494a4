// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "full_screen.h"

#include "failure.h"
#include "tool_text.h"

void FullScreen::requireTerminal()
{
    if (!isTerminal())
        throw wrongUsage(
            ToolText::tr("top draws on a terminal, but its input or output is none; use status, or "
                         "top --json"));
}
