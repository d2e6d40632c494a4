// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <exception>
#include <functional>

class StandardOutput;

enum class ExitStatus
{
    Done = 0,
    Failed = 1,
    WrongUsage = 2,
    AnswerIsNo = 3, ///< of commands that answer a question, as is the next
    AnswerIsNotKnown = 4,
};

/// Why a tool cannot do what it was asked to do. Thrown where the reason is found, and caught in
/// one place, `runTool`.
class Failure : public std::exception
{
public:
    explicit Failure(const QString& message, ExitStatus exitStatus = ExitStatus::Failed)
        : Failure(QStringList{message}, exitStatus)
    {}
    /// With several reasons. Each is printed on a line of its own. Without any, nothing is printed,
    /// because the output has said it already.
    explicit Failure(const QStringList& messages, ExitStatus exitStatus = ExitStatus::Failed)
        : m_messages(messages)
        , m_utf8(message().toUtf8())
        , m_exitStatus(exitStatus)
    {}

    /// All messages, separated by line feeds.
    QString message() const { return m_messages.join(u'\n'); }
    QStringList messages() const { return m_messages; }
    ExitStatus exitStatus() const { return m_exitStatus; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QStringList m_messages;
    QByteArray m_utf8;
    ExitStatus m_exitStatus;
};

/// The failure of a command line that the tool does not understand.
inline Failure wrongUsage(const QString& message)
{
    return Failure(message, ExitStatus::WrongUsage);
}

/// Runs a tool's work and returns the status for `main` to return. The messages of a failure are
/// printed to standard error; for wrong usage with a reference to the tool's help.
int runTool(StandardOutput& output, const std::function<void()>& work);
