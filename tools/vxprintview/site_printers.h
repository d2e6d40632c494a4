// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "view_source.h"

#include <QtCore/QThread>

/// The printers of a site. What the broker sends is read on a thread of this object, so that the
/// window never waits for the network.
class SitePrinters : public ViewSource
{
    Q_OBJECT

public:
    explicit SitePrinters(const Site& site, QObject* parent = nullptr);
    ~SitePrinters() override;
    Q_DISABLE_COPY_MOVE(SitePrinters)

    void start() override;

private:
    QThread m_thread;
    QObject* m_reader = nullptr; ///< on that thread
};
