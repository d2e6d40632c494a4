// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <failure.h>
#include <shown_text.h>

#include <QtCore/QString>

/// The message of the failure that a job ends with, as it is printed; null if it succeeds.
template <typename Job>
QString failureOf(Job job)
{
    try {
        job();
    } catch (const Failure& failure) {
        return shownAsMessage(failure.message());
    }
    return {};
}
