// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "status_titles.h"

#include "status_codes.h"

#include <vxerror.h>

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

namespace StatusCodes = VXPrinting::StatusCodes;

/// A text is looked up in the translations by its context and this remark.
struct Text
{
    const char* source;
    const char* remark;
};

struct Title
{
    int code;
    Text text;
};

constexpr char context[] = "QObject";

// clang-format off
constexpr std::array titles{
    Title{StatusCodes::disconnected,
          QT_TRANSLATE_NOOP3("QObject", "Disconnected", "Printer status message")},
    Title{StatusCodes::ready,
          QT_TRANSLATE_NOOP3("QObject", "Ready", "Printer status message")},
    Title{StatusCodes::unknown,
          QT_TRANSLATE_NOOP3("QObject", "Unable To Retrieve Printer Info. (Code 255)",
                             "Printer status message")},
    Title{StatusCodes::networkPrinter,
          QT_TRANSLATE_NOOP3("QObject",
                             "Printer Is Remotely Connected.\nUnable to retrieve printer info.",
                             "Printer status message")},
    Title{StatusCodes::offline,
          QT_TRANSLATE_NOOP3("QObject", "Disconnected", "Printer status message")},
    Title{StatusCodes::notManaged,
          QT_TRANSLATE_NOOP3("QObject",
                             "Printer Is Not Managed.\nUnable to retrieve printer info.",
                             "Printer status message")},
};
// clang-format on

} // namespace

QString statusTitle(int statusCode)
{
    const auto found = std::ranges::find(titles, statusCode, &Title::code);
    if (found == titles.end())
        return getErrorDescription(VXError(statusCode));
    return QCoreApplication::translate(context, found->text.source, found->text.remark);
}
