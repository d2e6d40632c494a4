// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "event_model.h"

#include "shown_text.h"

#include <QtCore/QLocale>

#include <algorithm>

using VxKit::PrinterEvent;

EventModel::EventModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void EventModel::add(const QList<PrinterEvent>& events)
{
    const auto count = static_cast<int>(std::min<qsizetype>(events.size(), mostRows));
    if (count == 0)
        return;
    const int kept = std::min(rowCount(), mostRows - count);
    if (kept < rowCount()) {
        beginRemoveRows({}, kept, rowCount() - 1);
        m_events.resize(static_cast<std::size_t>(kept));
        endRemoveRows();
    }
    beginInsertRows({}, 0, count - 1);
    for (const PrinterEvent& event : events.last(count))
        m_events.push_front(event);
    endInsertRows();
}

void EventModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_events.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

int EventModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_events.size());
}

int EventModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EventModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::ToolTipRole) // a text that looks like markup would be taken for it
        return QStringLiteral("<p>%1</p>")
            .arg(data(index, Qt::AccessibleTextRole).toString().toHtmlEscaped());
    const PrinterEvent& event = m_events[static_cast<std::size_t>(index.row())];
    switch (role) {
    case PrinterRole:
        return event.printer;
    case KeyRole:
        return event.key;
    case SeverityRole:
        return static_cast<int>(event.severity);
    case Qt::AccessibleDescriptionRole:
        return VxKit::severityName(event.severity);
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        break;
    default:
        return {};
    }
    switch (index.column()) {
    case Time: {
        const QDateTime time = event.time.toLocalTime();
        if (role == Qt::DisplayRole && time.date() == QDate::currentDate())
            return QLocale().toString(time.time(), QLocale::ShortFormat);
        return QLocale().toString(time, QLocale::ShortFormat);
    }
    case Printer:
        return shown(event.printer);
    default:
        return shownAsMessage(VxKit::eventText(event));
    }
}

QVariant EventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Time:
        return tr("Time");
    case Printer:
        return tr("Printer");
    case What:
        return tr("What happened");
    default:
        return {};
    }
}
