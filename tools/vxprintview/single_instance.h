// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <memory>

class QLocalServer;

/// Only one window for the same printers is open for a user. A second program asks the first one to
/// show its window, and ends.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `purpose` tells windows apart that may be open at the same time.
    explicit SingleInstance(const QString& purpose, QObject* parent = nullptr);
    ~SingleInstance() override;
    Q_DISABLE_COPY_MOVE(SingleInstance)

    /// True when this is the first. False when another one has been asked to show itself.
    bool claim();

Q_SIGNALS:
    /// Another program was started.
    void asked();

private:
    void answer();

    QString m_name;
    std::unique_ptr<QLocalServer> m_server;
};
