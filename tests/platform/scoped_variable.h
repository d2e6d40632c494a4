// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QString>

/// Sets an environment variable, and restores its previous value at the end of the scope.
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
