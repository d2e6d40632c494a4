// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <exception>
#include <functional>

class StandardOutput;

enum class ExitStatus
{
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
};

/// Why a tool cannot do what it was asked to do. Thrown where the reason is found, and caught in
/// one place, `runTool`.
class Failure : public std::exception
{
public:
    explicit Failure(const QString& message, ExitStatus exitStatus = ExitStatus::Failed)
        : m_message(message)
        , m_utf8(message.toUtf8())
        , m_exitStatus(exitStatus)
    {}

    QString message() const { return m_message; }
    ExitStatus exitStatus() const { return m_exitStatus; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
    ExitStatus m_exitStatus;
};

/// The failure of a command line that the tool does not understand.
inline Failure wrongUsage(const QString& message)
{
    return Failure(message, ExitStatus::WrongUsage);
}

/// Runs a tool's work and returns the status for `main` to return. The message of a failure is
/// printed to standard error; for wrong usage with a reference to the tool's help.
int runTool(StandardOutput& output, const std::function<void()>& work);
