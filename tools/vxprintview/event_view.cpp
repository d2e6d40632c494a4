// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "event_view.h"

#include "event_model.h"

#include <status_icons.h>
#include <view_palette.h>

#include <QtCore/QEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>

#include <algorithm>

using VxKit::Severity;

namespace {

constexpr int timeLetters = 22;
constexpr int printerLetters = 28;

/// Draws the icon of its severity before each event.
class EventDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.column() != EventModel::What)
            return;
        const auto severity = static_cast<Severity>(index.data(EventModel::SeverityRole).toInt());
        option->features |= QStyleOptionViewItem::HasDecoration;
        option->icon =
            VxKit::statusIcon(VxKit::severityIcon(severity), VxKit::ViewPalette(option->palette),
                              option->palette.base().color());
        const int side = option->fontMetrics.height();
        option->decorationSize = {side, side};
    }
};

} // namespace

EventView::EventView(QWidget* parent)
    : QTreeView(parent)
{
    setItemDelegate(new EventDelegate(this));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    header()->setStretchLastSection(true);
}

void EventView::setModel(QAbstractItemModel* model)
{
    QTreeView::setModel(model);
    fitColumns();
}

void EventView::resizeEvent(QResizeEvent* event)
{
    fitColumns();
    QTreeView::resizeEvent(event);
}

void EventView::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitColumns();
}

void EventView::fitColumns()
{
    if (header()->count() <= EventModel::What)
        return;
    const int letter = fontMetrics().averageCharWidth();
    const auto wanted = [&](int column, int lastSet, int letters) {
        const int width = header()->sectionSize(column);
        return lastSet == 0 || width == lastSet ? letters * letter : width;
    };
    const int time = wanted(EventModel::Time, m_timeWidth, timeLetters);
    const int printer = wanted(EventModel::Printer, m_printerWidth, printerLetters);
    const int room = std::min(time + printer, viewport()->width() / 2);
    const int least = header()->minimumSectionSize();
    m_timeWidth = std::max(least, time * room / (time + printer));
    m_printerWidth = std::max(least, room - m_timeWidth);
    header()->resizeSection(EventModel::Time, m_timeWidth);
    header()->resizeSection(EventModel::Printer, m_printerWidth);
}
