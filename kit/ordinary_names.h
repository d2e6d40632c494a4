// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

namespace VxKit {

/// Whether a text is the name of a colour or of a material in the sample catalogue, in any of its
/// languages, such as "White" or "Vinyl". Such a name tells nothing about whoever uses it.
bool isOrdinaryName(const QString& text);

} // namespace VxKit
