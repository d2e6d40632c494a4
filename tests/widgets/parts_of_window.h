// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

/// What is wrong with how the parts of a window are laid out.
namespace parts_of_window {

inline QString nameOf(const QWidget& part)
{
    const QRect place = part.geometry();
    return QStringLiteral("%1 \"%2\" at %3,%4 %5x%6")
        .arg(QLatin1String(part.metaObject()->className()), part.accessibleName())
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height());
}

/// Whether what does not fit can still be read: it ends in an ellipsis, and the tool tip has it
/// all.
inline bool isTold(const QString& whole, const QString& painted, const QString& toolTip)
{
    return painted.contains(QChar(0x2026)) && toolTip.contains(whole);
}

inline QString cutOffIn(const QLabel& label)
{
    if (!label.pixmap(Qt::ReturnByValue).isNull()) {
        const QSize picture = label.pixmap(Qt::ReturnByValue).deviceIndependentSize().toSize();
        return picture.width() <= label.width() && picture.height() <= label.height()
                   ? QString()
                   : QStringLiteral("a picture");
    }
    if (label.text().isEmpty())
        return {};
    const bool fits = label.hasHeightForWidth()
                          ? label.heightForWidth(label.width()) <= label.height()
                          : label.sizeHint().width() <= label.width() &&
                                label.sizeHint().height() <= label.height();
    return fits ? QString() : label.text();
}

inline QString cutOffIn(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.currentText = box.currentText();
    const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    const QFontMetrics metrics = box.fontMetrics();
    const bool fits = metrics.horizontalAdvance(box.currentText()) <= field.width() &&
                      metrics.height() <= box.height();
    return fits ? QString() : box.currentText();
}

inline QString cutOffIn(const QAbstractButton& button)
{
    const QSize text = QFontMetrics(button.font()).size(Qt::TextShowMnemonic, button.text());
    int room = button.width();
    if (const auto* tool = qobject_cast<const QToolButton*>(&button);
        tool && tool->toolButtonStyle() == Qt::ToolButtonTextBesideIcon)
        room -= tool->iconSize().width();
    else if (const auto* box = qobject_cast<const QCheckBox*>(&button))
        room -= box->style()->pixelMetric(QStyle::PM_IndicatorWidth);
    const bool fits = text.width() <= room && text.height() <= button.height();
    return button.text().isEmpty() || fits ? QString() : button.text();
}

inline QString cutOffIn(const QTabBar& tabs)
{
    for (int tab = 0; tab < tabs.count(); ++tab) {
        const int needed = tabs.fontMetrics().size(Qt::TextShowMnemonic, tabs.tabText(tab)).width();
        if (tabs.isTabVisible(tab) && needed > tabs.tabRect(tab).width() &&
            !tabs.tabToolTip(tab).contains(tabs.tabText(tab)))
            return tabs.tabText(tab);
    }
    return {};
}

inline QString cutOffIn(const QHeaderView& header)
{
    const int margin = 2 * (header.style()->pixelMetric(QStyle::PM_HeaderMargin) + 1);
    for (int section = 0; section < header.count(); ++section) {
        const QString text = header.model()->headerData(section, header.orientation()).toString();
        const int needed = header.fontMetrics().horizontalAdvance(text) + margin;
        if (!header.isSectionHidden(section) && needed > header.sectionSize(section) &&
            header.model()->headerData(section, header.orientation(), Qt::ToolTipRole).toString() !=
                text)
            return text;
    }
    return {};
}

inline QString cutOffIn(const QMenuBar& bar)
{
    for (QAction* const action : bar.actions()) {
        const QRect place = bar.actionGeometry(action);
        const int needed = bar.fontMetrics().size(Qt::TextShowMnemonic, action->text()).width();
        // What has no room is in the menu behind the last one.
        if (!place.isEmpty() && needed > place.width())
            return action->text();
    }
    return {};
}

/// Of a title that the style draws with an ellipsis where it has no room.
inline QString cutOffIn(const QDockWidget& dock)
{
    const int buttons = 2 * dock.style()->pixelMetric(QStyle::PM_SmallIconSize) +
                        4 * dock.style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin);
    return dock.fontMetrics().horizontalAdvance(dock.windowTitle()) + buttons <= dock.width()
               ? QString()
               : dock.windowTitle();
}

/// A text of the part that does not fit into it; empty if all of it does.
inline QString cutOff(const QWidget& part)
{
    if (const auto* label = qobject_cast<const QLabel*>(&part))
        return cutOffIn(*label);
    if (const auto* box = qobject_cast<const QComboBox*>(&part))
        return cutOffIn(*box);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&part))
        return cutOffIn(*button);
    if (const auto* tabs = qobject_cast<const QTabBar*>(&part))
        return cutOffIn(*tabs);
    if (const auto* header = qobject_cast<const QHeaderView*>(&part))
        return header->orientation() == Qt::Horizontal ? cutOffIn(*header) : QString();
    if (const auto* bar = qobject_cast<const QMenuBar*>(&part))
        return cutOffIn(*bar);
    if (const auto* dock = qobject_cast<const QDockWidget*>(&part))
        return cutOffIn(*dock);
    return {};
}

/// The children that are seen, without windows of their own.
inline QList<QWidget*> visibleChildren(const QWidget& parent)
{
    QList<QWidget*> children;
    for (QObject* const child : parent.children()) {
        auto* const widget = qobject_cast<QWidget*>(child);
        if (widget && widget->isVisible() && !widget->isWindow() && !widget->size().isEmpty())
            children.append(widget);
    }
    return children;
}

/// Whether a part is where it can be seen: in its parent, or scrolled in it.
inline bool isInside(const QWidget& parent, const QWidget& child)
{
    const QRect place = child.geometry();
    const auto* const area = qobject_cast<const QAbstractScrollArea*>(parent.parentWidget());
    if (!area || area->viewport() != &parent)
        return parent.rect().contains(place);
    const bool isScrolledAcross = area->horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
    return isScrolledAcross || (place.left() >= 0 && place.right() < parent.width());
}

/// The first part that is cut off, overlaps another one beside it, or lies outside of its parent;
/// empty if there is none. `seen` counts the parts that were looked at.
inline QString flawOf(const QWidget& parent, int* seen)
{
    const QList<QWidget*> children = visibleChildren(parent);
    for (qsizetype one = 0; one < children.size(); ++one) {
        const QWidget& child = *children.at(one);
        ++*seen;
        if (const QString text = cutOff(child); !text.isEmpty())
            return QStringLiteral("cut off: %1 in %2").arg(text, nameOf(child));
        if (!isInside(parent, child))
            return QStringLiteral("outside of %1: %2").arg(nameOf(parent), nameOf(child));
        for (qsizetype other = 0; other < one; ++other) {
            if (children.at(other)->geometry().intersects(child.geometry()))
                return QStringLiteral("%1 overlaps %2")
                    .arg(nameOf(*children.at(other)), nameOf(child));
        }
        if (const QString flaw = flawOf(child, seen); !flaw.isEmpty())
            return flaw;
    }
    return {};
}

} // namespace parts_of_window
