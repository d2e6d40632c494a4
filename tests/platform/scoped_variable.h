// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>

/// Gives a variable of the environment another value for a while.
class ScopedVariable
{
public:
    ScopedVariable(const char* name, const QString& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        qputenv(m_name, QFile::encodeName(value));
    }
    ~ScopedVariable()
    {
        if (m_before.isNull())
            qunsetenv(m_name);
        else
            qputenv(m_name, m_before);
    }
    Q_DISABLE_COPY_MOVE(ScopedVariable)

private:
    const char* m_name;
    QByteArray m_before;
};
