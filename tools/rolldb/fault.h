// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <exception>

/// Why a job was given up: one line for the person who asked for it. Nothing is left half-done.
class Fault : public std::exception
{
public:
    explicit Fault(const QString& message)
        : m_message(shownInOneLine(message))
        , m_utf8(m_message.toUtf8())
    {}

    QString message() const { return m_message; }
    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    /// Messages quote what is in files: line ends and what steers a terminal are written out.
    static QString shownInOneLine(const QString& message)
    {
        QString line;
        line.reserve(message.size());
        for (const QChar character : message) {
            switch (character.category()) {
            case QChar::Other_Control:
            case QChar::Separator_Line:
            case QChar::Separator_Paragraph:
                line += QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
                break;
            default:
                line += character;
            }
        }
        return line;
    }

    QString m_message;
    QByteArray m_utf8;
};
