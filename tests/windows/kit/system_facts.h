// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "redaction.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

/// What a report says about the computer: versions, languages and rights, and no names.
namespace system_facts {

/// Whether this process has the rights of an administrator.
bool isAdministrator();

/// Whether the display language of Windows is English. Some tests compare texts.
bool isEnglish();

QJsonObject all();

/// The programs and DLLs in a folder: size, version and SHA-256 of each.
QJsonArray files(const QString& folder);

/// The names of the person and of the computer.
void addNames(Redaction& redaction);

} // namespace system_facts
