// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

/// A status code of a printer or of its driver.
struct VXError
{
    explicit constexpr VXError(qint32 statusCode)
        : code(statusCode)
    {}

    qint32 code;
};

/// A short description of a status code for the user. Never empty: for a code without a description
/// the text contains the number.
///
/// The texts are translated in the context "VXError".
QString getErrorDescription(const VXError& error);
