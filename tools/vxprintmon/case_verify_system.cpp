// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_verify.h"

#include "failure.h"
#include "tool_text.h"

void verifyCase(const CommandLine& /*line*/, Output& /*output*/)
{
    throw Failure(ToolText::tr("this program has no virtual printers, so it cannot play a case; "
                               "run \"vxprintmon case verify\" on Linux"));
}
