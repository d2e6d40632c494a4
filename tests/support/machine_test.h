// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "virtualwindows/machine.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

/// Base of every test that runs on the virtual Windows.
///
/// Each test function starts with a new machine and an empty settings folder. After it, the ledger
/// of handles is checked: the function fails if it leaked or misused a handle. A test that misuses
/// a handle on purpose announces that with allowMisuse().
///
/// A derived class with its own init() or cleanup() overrides these and calls them.
class MachineTest : public QObject
{
    Q_OBJECT

protected:
    using Kind = virtualwindows::HandleMisuse::Kind;

    virtualwindows::Machine& machine() { return virtualwindows::Machine::instance(); }
    /// The folder of this test function's user-scope INI files.
    QString settingsFolder() const { return m_settings->path(); }
    /// Allows one misuse of that kind by that function. The test fails if it does not happen.
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
