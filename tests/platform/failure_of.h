// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <failure.h>
#include <shown_text.h>

#include <QtCore/QString>

/// The messages of the failure that a job ends with, as they are printed, each on a line; null if
/// it succeeds.
template <typename Job>
QString failureOf(Job job)
{
    try {
        job();
    } catch (const Failure& failure) {
        QStringList lines;
        for (const QStringList messages = failure.messages(); const QString& message : messages)
            lines.append(shownAsMessage(message));
        return lines.join(u'\n');
    }
    return {};
}
