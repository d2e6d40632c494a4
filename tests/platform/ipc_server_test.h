// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_raw_client.h"
#include "ipc_test_service.h"
#include "patience.h"

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtTest/QTest>

#include <memory>

/// Base of the tests of an endpoint: each test function gets an endpoint of its own, on the test's
/// thread.
class IpcServerTest : public QObject
{
    Q_OBJECT

protected:
    /// Replaces the endpoint by a new one. False when that was not published.
    bool publish()
    {
        m_service = std::make_unique<TestService>(newServerType());
        return QTest::qWaitFor([this] { return !m_service->serverName().isEmpty(); }, patience);
    }

    QString serverName() const { return m_service->serverName(); }

    std::unique_ptr<TestService> m_service;

protected Q_SLOTS:
    void init() { QVERIFY(publish()); }
    void cleanup() { m_service.reset(); }
};
