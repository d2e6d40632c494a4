// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>
#include <QtCore/QThread>

#include <functional>
#include <memory>
#include <vector>

/// Objects that live on a thread of their own, with an event loop: clients, while the test's own
/// thread waits for something else.
template <typename Object>
class OnOwnThread
{
public:
    using Objects = std::vector<std::unique_ptr<Object>>;

    explicit OnOwnThread(const std::function<Objects()>& make)
    {
        m_context.moveToThread(&m_thread);
        m_thread.start();
        QMetaObject::invokeMethod(&m_context, [this, make] { m_objects = make(); });
    }
    ~OnOwnThread()
    {
        QMetaObject::invokeMethod(
            &m_context, [this] { m_objects.clear(); }, Qt::BlockingQueuedConnection);
        m_thread.quit();
        m_thread.wait();
    }
    Q_DISABLE_COPY_MOVE(OnOwnThread)

private:
    QThread m_thread;
    QObject m_context;
    Objects m_objects;
};
