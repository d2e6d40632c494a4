// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "secret_rights.h"

#include <QtCore/QFile>

namespace {

constexpr QFile::Permissions ofOwner = QFile::ReadOwner | QFile::WriteOwner;

std::function<bool(const QString&)> allowing(QFile::Permissions more)
{
    return [more](const QString& path) {
        return QFile::setPermissions(path, ofOwner | more);
    };
}

} // namespace

bool secret_rights::keepToThisUser(const QString& path)
{
    return QFile::setPermissions(path, ofOwner);
}

std::vector<secret_rights::Opening> secret_rights::openings()
{
    return {{"group reads", allowing(QFile::ReadGroup)},
            {"others read", allowing(QFile::ReadOther)},
            {"group writes", allowing(QFile::WriteGroup)}};
}

QString secret_rights::command()
{
    return QStringLiteral("chmod 600");
}
