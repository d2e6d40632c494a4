// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "case_lines.h"

#include "failure.h"

#include <QtCore/QTimeZone>

bool case_lines::forEach(const QString& fileName,
                         const std::function<void(const VxKit::CaseLine&)>& use)
{
    VxKit::CaseFile file(fileName);
    while (const std::optional<VxKit::CaseLine> line = file.next())
        use(*line);
    if (!file.errorString().isEmpty())
        throw Failure(file.errorString());
    return file.isCut();
}

QDateTime case_lines::beginningOf(const QJsonObject& header)
{
    const QDateTime time =
        QDateTime::fromString(header.value(QLatin1String("time")).toString(), Qt::ISODateWithMs);
    return time.isValid() ? time : QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
}
