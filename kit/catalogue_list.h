// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonObject>

namespace VxKit {

/// Everything that a catalogue holds, as `StatusEndpoint::supplies` answers it. Reads the whole
/// file, which takes tens of milliseconds. The language is meant as in `VXLocaleLanguages`. May be
/// called on any thread.
QJsonObject readCatalogueList(const QString& file, int languageId);

} // namespace VxKit
