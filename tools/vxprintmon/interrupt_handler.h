// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QtGlobal>

/// While one of these exists, SIGINT (Ctrl-C) and SIGTERM do not end the program but are noted.
class InterruptHandler
{
public:
    InterruptHandler();
    ~InterruptHandler();
    Q_DISABLE_COPY_MOVE(InterruptHandler)

    bool wasInterrupted() const;
};
