// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <list>

namespace VxKit {

/// The names of printers that have changed, until each change is reported. Reports are made from
/// the event loop, in turns of a fraction of a millisecond: when hundreds of printers change at
/// once, the thread's other events do not wait for all of their readings to be written. A printer
/// that changes again before its turn is reported once.
class ChangeQueue : public QObject
{
public:
    /// `report` may do anything, even destroy the queue.
    ChangeQueue(std::function<void(const QString& name)> report, QObject* parent);
    ~ChangeQueue() override;
    Q_DISABLE_COPY_MOVE(ChangeQueue)

    void add(const QString& name);
    /// Reports a change of that printer now, if one waits.
    void reportNow(const QString& name);
    /// Forgets what waits for that printer.
    void drop(const QString& name);
    /// What waits for the old name is reported under the new one.
    void rename(const QString& oldName, const QString& newName);

private:
    void requestTurn();
    void takeTurn();
    /// False when nothing waits under that name.
    bool take(const QString& name);

    std::function<void(const QString& name)> m_report;
    std::list<QString> m_names;
    QHash<QString, std::list<QString>::iterator> m_places;
    bool m_isTurnRequested = false;
};

} // namespace VxKit
