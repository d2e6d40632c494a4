// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "retained_topics.h"

#include "failure.h"
#include "file_replacement.h"

#include <QtCore/QFile>

void RetainedTopics::read()
{
    // More than any computer's printers need; a larger file is not this one.
    constexpr qint64 largest = qint64(16) * 1024 * 1024;
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly) || file.size() > largest)
        return;
    for (const QList<QByteArray> lines = file.readAll().split('\n');
         const QByteArray& line : lines) {
        if (!line.isEmpty())
            m_topics.insert(QString::fromUtf8(line));
    }
}

QStringList RetainedTopics::all() const
{
    QStringList topics = m_topics.values();
    topics.sort();
    return topics;
}

bool RetainedTopics::add(const QStringList& topics, QString* reason)
{
    const qsizetype before = m_topics.size();
    for (const QString& topic : topics)
        m_topics.insert(topic);
    return m_topics.size() == before || write(reason);
}

bool RetainedTopics::remove(const QString& topic, QString* reason)
{
    return !m_topics.remove(topic) || write(reason);
}

bool RetainedTopics::write(QString* reason) const
{
    try {
        replaceFile(m_file, (all().join(u'\n') + u'\n').toUtf8());
        return true;
    } catch (const Failure& failure) {
        *reason = failure.message();
        return false;
    }
}
