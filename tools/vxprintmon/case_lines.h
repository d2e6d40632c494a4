// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <case_file.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>

#include <functional>

/// Reading case files.
namespace case_lines {

/// Calls `use` with each line. Returns whether the file was cut. Throws `Failure` if it is refused.
bool forEach(const QString& fileName, const std::function<void(const VxKit::CaseLine&)>& use);

/// When a case began, by the clock of the place where it was recorded.
QDateTime beginningOf(const QJsonObject& header);

} // namespace case_lines
