// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "secret_rights.h"

#include <file_rules.h>

namespace {

std::function<bool(const QString&)> allowing(const char* more)
{
    return [more = QLatin1String(more)](const QString& path) {
        return file_rules::set(path,
                               QStringLiteral("D:P(A;;FA;;;%1)").arg(file_rules::sidOfThisUser()) +
                                   more) == ERROR_SUCCESS;
    };
}

} // namespace

bool secret_rights::keepToThisUser(const QString& path)
{
    return allowing("")(path);
}

std::vector<secret_rights::Opening> secret_rights::openings()
{
    return {{"everybody reads", allowing("(A;;FR;;;WD)")},
            {"everybody writes", allowing("(A;;FW;;;WD)")}};
}

QString secret_rights::command()
{
    return QStringLiteral("icacls");
}
