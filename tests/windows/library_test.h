// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "fixture.h"
#include "patience.h"
#include "pseudo_handle_checks.h"
#include "registry_notifications.h"
#include "report_recorder.h"

#include <QtTest/QtTest>

#include <optional>

struct Value
{
    const char* name;
    DWORD type;
    QByteArray data;
};

inline QByteArray word(quint32 number)
{
    QByteArray bytes(sizeof number, Qt::Uninitialized);
    qToLittleEndian(number, bytes.data());
    return bytes;
}

inline QByteArray text(const QByteArray& characters)
{
    return characters + '\0';
}

/// Base of the tests of the library as it ships, with a running spooler and a monitoring thread.
class LibraryTest : public WindowsApiTest
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase()
    {
        if (!fixture::has(Behaviour::ChangeNotifications))
            QVERIFY(supplyChangeNotifications(L"vxprinterstatus.dll"));
        if (!fixture::has(Behaviour::PseudoHandleChecks))
            QVERIFY(refusePseudoHandles(L"vxprinterstatus.dll"));
        m_manager.reset(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
        QVERIFY(m_manager);
    }
    void init() override
    {
        WindowsApiTest::init();
        QVERIFY(fixture::setSpoolerRunning(true));
    }
    void cleanup() override
    {
        if (m_thread) {
            while (!m_thread->wait(10))
                m_thread->stop();
        }
        m_reports.reset();
        m_thread.reset();
        WindowsApiTest::cleanup();
    }

protected:
    bool publish(const QString& printer, const Value& value)
    {
        const PrinterHandle handle = openPrinter(printer);
        QByteArray name = value.name;
        QByteArray data = value.data;
        return handle && SetPrinterDataA(handle.get(), name.data(), value.type,
                                         reinterpret_cast<LPBYTE>(data.data()),
                                         static_cast<DWORD>(data.size())) == ERROR_SUCCESS;
    }
    QString addPrinter(const char* model)
    {
        const QString name = fixture::uniqueName(QStringLiteral("Label Printer"));
        const bool added = fixture::addPrinter({name, QString::fromLatin1(model)});
        return added ? name : QString();
    }
    void watch(const QString& printer)
    {
        m_thread.emplace();
        m_reports.emplace(*m_thread);
        m_thread->setMonitoredPrinterName(printer);
        m_thread->start();
    }
    /// Waits for a report, and removes it and all reports before it. False when it does not arrive.
    bool waitFor(const Report& report, int milliseconds = patience)
    {
        QList<Report> seen;
        const auto isSeen = [&] {
            seen += m_reports->take();
            return seen.contains(report);
        };
        if (QTest::qWaitFor(isSeen, milliseconds))
            return true;
        for (const Report& other : std::as_const(seen))
            qWarning("seen instead: %s", toString(other));
        return false;
    }

    /// Open while the test runs. If the first two threads that call Wine's service manager do so at
    /// the same time, each gets its own connection, and the handles of one are unknown on the
    /// other: the library's thread then cannot query the service any more. Later threads share the
    /// first connection.
    ServiceHandle m_manager;
    std::optional<PrinterStatusThread> m_thread;
    std::optional<ReportRecorder> m_reports;
};
