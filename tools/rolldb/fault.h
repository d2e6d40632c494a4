// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "shown_text.h"

#include <QtCore/QString>

#include <exception>

/// The failure of a command: one line for the user. The command has left nothing half-done.
/// The message may quote text from files, so it is escaped.
class Fault : public std::exception
{
public:
    explicit Fault(const QString& message)
        : m_message(shownAsMessage(message))
        , m_utf8(m_message.toUtf8())
    {}

    QString message() const { return m_message; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};
