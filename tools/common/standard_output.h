// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <cstdio>

/// What a tool writes with. There is one for the program.
class StandardOutput
{
public:
    /// `tool` is what messages begin with; `stream` is another where a test reads what is written.
    explicit StandardOutput(const char* tool, std::FILE* stream = stdout);
    Q_DISABLE_COPY_MOVE(StandardOutput)

    /// Writes text that is fit to be shown, at once. Nothing more is written after a failure.
    void write(const QString& text);

    /// Whether writing is of no use any more: it failed, or the reader has closed the pipe.
    bool isOver();

    /// Tells standard error of something wrong, in one line.
    void complain(const QString& message) const;

    /// The status to exit with, for a program that would else exit with `status`: 1, after telling
    /// why, when what was written got lost. A reader that closes the pipe has all that it wants.
    int exitStatus(int status) const;

private:
    const char* m_tool;
    std::FILE* m_stream;
    bool m_isOver = false;
    QString m_failure; ///< empty: none, or a closed pipe
};
