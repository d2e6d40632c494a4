// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QProcess>

/// Starts a program, and tries again if Wine fails to set up its process.
///
/// Wine reports an internal error (STATUS_INTERNAL_ERROR of NtCreateUserProcess, in
/// dlls/ntdll/unix/process.c) when a new process ends before it has told Wine's server that it is
/// initialised. That happens occasionally on a busy machine, before any of the program's code runs.
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
