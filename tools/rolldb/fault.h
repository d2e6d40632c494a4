// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "shown_text.h"

#include <QtCore/QString>

#include <exception>

/// Why a job was given up: one line for the person who asked for it. Nothing is left half-done.
/// Messages quote what is in files.
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
