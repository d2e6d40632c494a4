// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QProcess>

/// Starts a program, and again where Wine could not set its process up.
///
/// Wine calls it an internal error (STATUS_INTERNAL_ERROR of NtCreateUserProcess, in
/// dlls/ntdll/unix/process.c) when a new process is gone before it has told Wine's server that it
/// is initialised. On a busy machine that happens now and then. Nothing of the program has run by
/// then.
inline void startProcess(QProcess& process, const QString& program, const QStringList& arguments)
{
    constexpr int attempts = 5;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        process.start(program, arguments);
        if (process.state() != QProcess::NotRunning ||
            !process.errorString().contains(QStringLiteral("Internal error")))
            return;
    }
}
