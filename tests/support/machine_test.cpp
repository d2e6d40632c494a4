// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "machine_test.h"

#include <QtCore/QSettings>

using virtualwindows::HandleMisuse;

void MachineTest::allowMisuse(Kind kind, const QString& function)
{
    m_allowed.append({kind, function});
}

void MachineTest::init()
{
    machine().reset();
    m_allowed.clear();
    m_settings = std::make_unique<QTemporaryDir>();
    QVERIFY(m_settings->isValid());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings->path());
}

void MachineTest::cleanup()
{
    QStringList wrong;
    const QList<HandleMisuse> misuses = machine().settle();
    for (const HandleMisuse& misuse : misuses) {
        const auto allowed =
            std::find_if(m_allowed.begin(), m_allowed.end(), [&](const Allowed& entry) {
                return entry.kind == misuse.kind && entry.function == misuse.function;
            });
        if (allowed == m_allowed.end())
            wrong.append(misuse.text);
        else
            m_allowed.erase(allowed);
    }
    for (const Allowed& entry : std::as_const(m_allowed))
        wrong.append(
            QStringLiteral("expected a misuse by %1, but there was none").arg(entry.function));
    machine().reset();
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
}
