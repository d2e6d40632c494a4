// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The descriptions on other systems, for the codes that can occur when a printer or a service is
// opened, read, watched or written to.
#include "windowserrors.h"

#include <algorithm>
#include <array>

namespace {

struct Text
{
    unsigned long code;
    const char* text;
};

constexpr std::array knownTexts{
    Text{0, "No error."},
    Text{2, "The file or entry does not exist."},
    Text{3, "The path does not exist."},
    Text{5, "Access was denied."},
    Text{6, "The handle is not valid."},
    Text{8, "There is not enough memory for this command."},
    Text{14, "There is not enough memory to complete the operation."},
    Text{31, "A device attached to the system does not work."},
    Text{50, "The request is not supported."},
    Text{63, "The printer's spool file was deleted."},
    Text{87, "A parameter is not valid."},
    Text{120, "The function is not available on this system."},
    Text{122, "The buffer passed to the call is too small."},
    Text{123, "The name is not valid."},
    Text{124, "The call does not support this level."},
    Text{170, "The resource is in use."},
    Text{234, "There is more data than was requested."},
    Text{258, "The wait timed out."},
    Text{259, "There is no more data."},
    Text{995, "The operation was cancelled."},
    Text{1058, "The service is disabled."},
    Text{1060, "The service is not installed."},
    Text{1062, "The service has not been started."},
    Text{1722, "The print spooler cannot be reached."},
    Text{1726, "The call to the print spooler failed."},
    Text{1795, "The printer driver is already installed."},
    Text{1796, "The port is unknown."},
    Text{1797, "The printer driver is unknown."},
    Text{1801, "The printer's name is not valid."},
    Text{1803, "The printer command is not valid."},
    Text{1804, "The data type is not valid."},
    Text{1905, "The printer has been deleted."},
    Text{1906, "The printer is not in a state that allows this."},
    Text{3003, "No document was started before this call."},
    Text{3012, "No printers were found."},
};

} // namespace

QString windows_errors::winError(unsigned long code)
{
    const auto found = std::ranges::find(knownTexts, code, &Text::code);
    if (found == knownTexts.end())
        return QStringLiteral("Windows error %1").arg(code);
    return QString::fromLatin1(found->text);
}
