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

/// What a status code means, in a few words for the user. Never empty: a code without a text of its
/// own is named by its number.
///
/// The texts are translatable in the context "VXError".
QString getErrorDescription(const VXError& error);
