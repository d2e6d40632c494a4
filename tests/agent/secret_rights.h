// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <functional>
#include <vector>

/// Who may use a file. Each kind of system has its own source file.
namespace secret_rights {

/// Lets nobody but the user of this process use a file.
bool keepToThisUser(const QString& path);

struct Opening
{
    const char* name;
    std::function<bool(const QString& path)> apply;
};
/// Each lets others use a file.
std::vector<Opening> openings();

/// The command with which people take such rights back.
QString command();

} // namespace secret_rights
