// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <fault.h>

#include <QtCore/QString>

/// The message of the fault that a job ends with; null if it succeeds.
template <typename Job>
QString faultOf(Job job)
{
    try {
        job();
    } catch (const Fault& fault) {
        return fault.message();
    }
    return {};
}
