// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QTimer>

/// The user's wish that the program end (Ctrl-C, or a polite kill), as a Qt signal: while one of
/// these lives, the wish does not end the program by itself.
class Interruption : public QObject
{
    Q_OBJECT

public:
    Interruption();
    ~Interruption() override;
    Q_DISABLE_COPY_MOVE(Interruption)

Q_SIGNALS:
    void happened();

private:
    QTimer m_clock;
};
