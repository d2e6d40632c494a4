// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_event.h>

#include <QtCore/QAbstractTableModel>
#include <QtCore/QList>

#include <deque>

/// The latest events, the newest first.
class EventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        Printer,
        What,
        ColumnCount
    };
    enum Role
    {
        PrinterRole = Qt::UserRole, ///< `QString`: the name, as it is
        KeyRole,                    ///< `QString`: the event's key
        SeverityRole,               ///< `int`
    };
    static constexpr int mostRows = 1000;

    explicit EventModel(QObject* parent = nullptr);

    void add(const QList<VxKit::PrinterEvent>& events);
    /// Shows the times and texts anew: the language is another one.
    void retranslate();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::deque<VxKit::PrinterEvent> m_events; ///< the newest first
};
