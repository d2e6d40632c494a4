// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

namespace VxKit {

/// A text from elsewhere (a printer's name, what its driver publishes) for one line of a window.
/// Line feeds, characters that change the writing direction and all others that cannot be seen are
/// written as escapes such as "\u202e". What is longer than `longest` characters is cut off, with
/// an ellipsis.
QString plainLine(const QString& text, qsizetype longest = 500);

} // namespace VxKit
