// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Where libmosquitto was missing when the program was built.
#include "site_source.h"

#include "failure.h"
#include "tool_text.h"

Site siteOf(const SiteArguments& /*arguments*/)
{
    throw Failure(ToolText::tr("--broker: this build has no MQTT; build it with libmosquitto"));
}
