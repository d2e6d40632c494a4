// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows/machine.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

/// Base of every test that runs on the virtual Windows.
///
/// Each test function gets a machine as new and a settings folder of its own. After it, the ledger
/// of handles is settled: a handle that leaked or was misused fails the function that did it. A
/// test whose subject is a call on a dead handle names it with allowMisuse().
///
/// A derived class that needs an init() or cleanup() of its own overrides these and calls them.
class MachineTest : public QObject
{
    Q_OBJECT

protected:
    using Kind = virtualwindows::HandleMisuse::Kind;

    virtualwindows::Machine& machine() { return virtualwindows::Machine::instance(); }
    /// The path under which this test function's user-scope INI files lie.
    QString settingsFolder() const { return m_settings->path(); }
    /// One misuse of that kind by that function is what this test is about; it must then happen.
    void allowMisuse(Kind kind, const QString& function);

protected Q_SLOTS:
    virtual void init();
    virtual void cleanup();

private:
    struct Allowed
    {
        Kind kind;
        QString function;
    };
    QList<Allowed> m_allowed;
    std::unique_ptr<QTemporaryDir> m_settings;
};
