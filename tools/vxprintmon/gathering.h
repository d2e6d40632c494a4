// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>

#include <functional>
#include <utility>

/// Does something once for however many wishes come while the event loop delivers what is queued.
class Gathering : public QObject
{
public:
    explicit Gathering(std::function<void()> act)
        : m_act(std::move(act))
    {}

    /// Wishes it done after everything that is queued by now.
    void wish()
    {
        if (!std::exchange(m_isWished, true))
            QMetaObject::invokeMethod(this, &Gathering::actIfWished, Qt::QueuedConnection);
    }
    /// Does it now if it is wished.
    void actIfWished()
    {
        if (std::exchange(m_isWished, false))
            m_act();
    }

private:
    std::function<void()> m_act;
    bool m_isWished = false;
};
