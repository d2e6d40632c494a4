// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QtGlobal>

/// The user's wish that the program end (Ctrl-C, or a polite kill): while one of these lives, the
/// wish does not end the program by itself.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Q_DISABLE_COPY_MOVE(Interruption)

    bool hasHappened() const;
};
