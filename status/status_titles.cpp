// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "status_titles.h"

#include <vxerror.h>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Title
{
    int code;
    const char* text;
};

// Translators find these texts by their context and by the remark that goes with them.
constexpr char context[] = "QObject";
constexpr char remark[] = "Printer status message";

constexpr std::array titles{
    Title{status_codes::disconnected, "Disconnected"},
    Title{status_codes::ready, "Ready"},
    Title{status_codes::unknown, "Unable To Retrieve Printer Info. (Code 255)"},
    Title{status_codes::networkPrinter,
          "Printer Is Remotely Connected.\nUnable to retrieve printer info."},
    Title{status_codes::offline, "Disconnected"},
    Title{status_codes::notManaged, "Printer Is Not Managed.\nUnable to retrieve printer info."},
};

} // namespace

QString statusTitle(int statusCode)
{
    const auto found = std::ranges::find(titles, statusCode, &Title::code);
    if (found == titles.end())
        return getErrorDescription(VXError(statusCode));
    return QCoreApplication::translate(context, found->text, remark);
}
