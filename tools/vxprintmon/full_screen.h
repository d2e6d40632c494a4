// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "key_decoder.h"

#include <QtCore/QObject>
#include <QtCore/QSize>

#include <memory>

/// The whole terminal, for a program that draws on it: an empty screen without a cursor, which does
/// not wrap lines, and keys that arrive without Enter and are not shown.
///
/// The terminal is as it was found when this object is destroyed, while the program is stopped
/// (Ctrl-Z), and when it crashes. There is one object at a time. Each system has its own source
/// file.
class FullScreen : public QObject
{
    Q_OBJECT

public:
    /// Throws `Failure` if standard input or output is not a terminal.
    static void requireTerminal();

    /// The same, and also if the terminal does not know escape sequences.
    FullScreen();
    ~FullScreen() override;
    Q_DISABLE_COPY_MOVE(FullScreen)

    /// The columns and rows.
    QSize size() const;
    /// Whether the user or the system has asked the program to end, by Ctrl-C, a signal or by
    /// closing the terminal. Known before `endRequested` is emitted.
    bool mustEnd() const;

    /// Handles the keys and signals that have arrived, for a program whose event loop has so much
    /// to deliver that it does not come to them.
    void poll();

Q_SIGNALS:
    void pressed(KeyPress key);
    /// The screen has another size, or has been emptied: draw everything again.
    void redrawNeeded();
    void endRequested();

private:
    static bool isTerminal();

    class Private;
    const std::unique_ptr<Private> d;
};
