// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_source.h"

#include "failure.h"
#include "tool_text.h"

namespace {

class SystemPrinters : public PrinterSource
{
public:
    void start(const std::function<int()>& /*watchedPrinters*/) override {}
};

} // namespace

std::unique_ptr<PrinterSource> PrinterSource::create(const QString& fleetFile, double /*speed*/)
{
    if (!fleetFile.isEmpty())
        throw wrongUsage(ToolText::tr("--virtual: this build uses the system's own print spooler"));
    return std::make_unique<SystemPrinters>();
}
