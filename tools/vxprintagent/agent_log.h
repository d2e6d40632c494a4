// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtCore/QtGlobal>

class StandardOutput;

/// What the agent tells those who run it. The lines are in English, whatever the language of the
/// system: those who support the agent search for them. No line may hold a secret.
class AgentLog
{
public:
    enum class Level
    {
        Information,
        Warning,
        Error,
    };

    virtual ~AgentLog() = default;
    Q_DISABLE_COPY_MOVE(AgentLog)

    void information(const QString& text) { write(Level::Information, text); }
    void warning(const QString& text) { write(Level::Warning, text); }
    void error(const QString& text) { write(Level::Error, text); }

    /// Writes one line. Names from elsewhere are shown escaped, and long texts shortened.
    virtual void write(Level level, const QString& text) = 0;

protected:
    AgentLog() = default;
};

/// In a console, or under a service manager that keeps what is printed: information on standard
/// output, the rest on standard error.
class ConsoleLog : public AgentLog
{
public:
    explicit ConsoleLog(StandardOutput& output)
        : m_output(output)
    {}

    void write(Level level, const QString& text) override;

private:
    StandardOutput& m_output;
};
