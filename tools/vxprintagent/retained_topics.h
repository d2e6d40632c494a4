// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// The topics of which a broker may have a message retained, kept in a file: a printer may go while
/// the agent does not run, and its message must then be removed by the next run.
class RetainedTopics
{
public:
    explicit RetainedTopics(const QString& file)
        : m_file(file)
    {}

    void read();
    QStringList all() const;
    bool contains(const QString& topic) const { return m_topics.contains(topic); }
    /// Adds topics before something is published under them. False, with the reason in `*reason`,
    /// when the file cannot be written.
    bool add(const QStringList& topics, QString* reason);
    bool remove(const QString& topic, QString* reason);

private:
    bool write(QString* reason) const;

    QString m_file;
    QSet<QString> m_topics;
};
