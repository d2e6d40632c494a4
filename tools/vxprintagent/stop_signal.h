// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QTimer>

#include <functional>

/// While one of these exists, SIGINT (Ctrl-C) and SIGTERM do not end the program at once, but have
/// a function called from the event loop.
class StopSignal
{
public:
    explicit StopSignal(const std::function<void()>& stop);
    ~StopSignal();
    Q_DISABLE_COPY_MOVE(StopSignal)

private:
    QTimer m_clock;
};
