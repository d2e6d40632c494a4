// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "service.h"

#include "failure.h"
#include "tool_text.h"

namespace {

Failure notHere()
{
    return Failure(ToolText::tr("only Windows has services to install; elsewhere use the unit for "
                                "systemd, deploy/systemd/vxprintagent.service"));
}

} // namespace

void service::install(const QString& /*configFile*/, AgentLog& /*log*/)
{
    throw notHere();
}

void service::uninstall()
{
    throw notHere();
}

void service::run(const std::function<void(AgentHost&)>& /*work*/)
{
    throw notHere();
}
