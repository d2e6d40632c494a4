// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <cstdio>

/// The output of a tool: text on standard output, messages on standard error. A program has one of
/// these.
class StandardOutput
{
public:
    /// Messages begin with `tool`. Tests pass another `stream` and read what was written to it.
    explicit StandardOutput(const char* tool, std::FILE* stream = stdout);
    ~StandardOutput() = default;
    Q_DISABLE_COPY_MOVE(StandardOutput)

    QString toolName() const { return QString::fromLatin1(m_tool); }

    /// Writes and flushes `text` as it is: text from elsewhere must have been escaped with `shown`.
    /// After a failure nothing more is written.
    void write(const QString& text);

    /// Whether further writing is pointless: a write has failed, or the reader has closed the pipe.
    bool isOver();

    /// Prints a message on standard error, as one line.
    void complain(const QString& message) const;

    /// The exit status of a program that would otherwise return `status`. If output was lost, the
    /// reason is printed and the result is 1. A reader that closes the pipe has read all it wants,
    /// so that is no failure.
    int exitStatus(int status) const;

private:
    const char* m_tool;
    std::FILE* m_stream;
    bool m_isOver = false;
    QString m_failure; ///< empty if no write failed, or only because the pipe was closed
};
