// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_list_view.h"

#include "icon_legend.h"
#include "printer_delegate.h"
#include "printer_order.h"
#include "reading_texts.h"
#include "status_icons.h"
#include "view_palette.h"

#include <printer_list_model.h>

#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtGui/QClipboard>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QMenu>

#include <array>
#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// The rows themselves: as wide as the view, and laid out anew when their height changes.
class RowsView : public QListView
{
public:
    explicit RowsView(PrinterDelegate& delegate, QWidget* parent)
        : QListView(parent)
        , m_delegate(delegate)
    {
        setUniformItemSizes(true);
        setVerticalScrollMode(ScrollPerPixel);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSelectionMode(SingleSelection);
        setEditTriggers(NoEditTriggers);
        setFrameShape(QFrame::NoFrame);
        setContextMenuPolicy(Qt::CustomContextMenu);
        setItemDelegate(&delegate);
    }

protected:
    void dataChanged(const QModelIndex& first, const QModelIndex& last,
                     const QList<int>& roles) override
    {
        // QListView would lay out all rows anew and paint them, because a row might have another
        // height now. Here it never has.
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): for this reason
        QAbstractItemView::dataChanged(first, last, roles);
    }
    void resizeEvent(QResizeEvent* event) override
    {
        const QFontMetrics metrics = fontMetrics();
        const int width = viewport()->width();
        const bool wasStacked = PrinterDelegate::isStacked(m_width, metrics);
        m_delegate.setRowWidth(width);
        if (std::exchange(m_width, width) == 0 ||
            wasStacked != PrinterDelegate::isStacked(width, metrics))
            scheduleDelayedItemsLayout();
        QListView::resizeEvent(event);
    }

private:
    PrinterDelegate& m_delegate;
    int m_width = 0;
};

struct ActionText
{
    PrinterListView::Action action;
    const char* text;
};
constexpr std::array actionTexts{
    ActionText{PrinterListView::Action::PrintTestLabel,
               QT_TRANSLATE_NOOP("VxKit::PrinterListView", "Print a &test label…")},
    ActionText{PrinterListView::Action::OpenQueue,
               QT_TRANSLATE_NOOP("VxKit::PrinterListView", "Open the print &queue")},
    ActionText{PrinterListView::Action::Doctor,
               QT_TRANSLATE_NOOP("VxKit::PrinterListView", "&Doctor…")},
    ActionText{PrinterListView::Action::SaveCase,
               QT_TRANSLATE_NOOP("VxKit::PrinterListView", "&Save a case for support…")},
};

PrinterOrder::Order orderOf(PrinterListView::Order order)
{
    return order == PrinterListView::Order::ByName ? PrinterOrder::Order::ByName
                                                   : PrinterOrder::Order::WorstFirst;
}

} // namespace

class PrinterListView::Private : public QObject
{
public:
    explicit Private(PrinterListView& view);

    bool eventFilter(QObject* object, QEvent* event) override;
    void retranslate();
    void updateColors();
    QString nameAt(const QModelIndex& index) const;
    QModelIndex indexOf(const QString& name) const;
    void checkCurrent();
    void copyDetails() const;
    void openMenu(const QPoint& position);

    PrinterListView& q;
    PrinterDelegate delegate;
    PrinterOrder rows;
    QWidget controls;
    QLineEdit filter;
    QComboBox orderBox;
    RowsView list;
    IconLegend legend;
    QLabel noneFits;
    QTimer minuteTimer;
    Actions actions;
    QString reasonAgainstActions;
    QString current;
};

PrinterListView::Private::Private(PrinterListView& view)
    : q(view)
    , list(delegate, &view)
{
    list.setModel(&rows);
    list.installEventFilter(this);
    filter.installEventFilter(this);
    filter.setClearButtonEnabled(true);
    filter.setMaxLength(200);
    orderBox.setSizeAdjustPolicy(QComboBox::AdjustToContents); // languages differ in length
    orderBox.addItem(QString(), QVariant::fromValue(Order::WorstFirst));
    orderBox.addItem(QString(), QVariant::fromValue(Order::ByName));
    noneFits.setAlignment(Qt::AlignCenter);
    noneFits.setWordWrap(true);
    noneFits.hide();

    auto* const line = new QHBoxLayout(&controls);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(&filter, 1);
    line->addWidget(&orderBox);
    auto* const layout = new QVBoxLayout(&q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&controls);
    layout->addWidget(&noneFits);
    layout->addWidget(&list, 1);
    layout->addWidget(&legend);
    q.setFocusProxy(&list);

    // The ages of what was reported.
    minuteTimer.setInterval(60s);
    connect(&minuteTimer, &QTimer::timeout, list.viewport(), qOverload<>(&QWidget::update));
    minuteTimer.start();

    connect(&filter, &QLineEdit::textChanged, &q, &PrinterListView::setFilterText);
    connect(&orderBox, &QComboBox::currentIndexChanged, this,
            [this] { q.setOrder(orderBox.currentData().value<Order>()); });
    connect(&list, &QListView::activated, this,
            [this](const QModelIndex& index) { Q_EMIT q.printerActivated(nameAt(index)); });
    connect(&list, &QWidget::customContextMenuRequested, this, &Private::openMenu);
    connect(list.selectionModel(), &QItemSelectionModel::currentChanged, this,
            &Private::checkCurrent);
    const auto showWhetherNoneFits = [this] {
        const bool isNone = rows.rowCount() == 0 && q.model() && q.model()->rowCount() > 0;
        noneFits.setVisible(isNone);
    };
    connect(&rows, &QAbstractItemModel::rowsInserted, this, showWhetherNoneFits);
    connect(&rows, &QAbstractItemModel::rowsRemoved, this, showWhetherNoneFits);
    connect(&rows, &QAbstractItemModel::modelReset, this, showWhetherNoneFits);
    connect(&rows, &QAbstractItemModel::layoutChanged, this, showWhetherNoneFits);
    retranslate();
}

bool PrinterListView::Private::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (object == &filter) {
        if (key->key() == Qt::Key_Escape && !filter.text().isEmpty()) {
            filter.clear();
            return true;
        }
        if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Return ||
            key->key() == Qt::Key_Enter) {
            list.setFocus();
            if (!list.currentIndex().isValid() && rows.rowCount() > 0)
                list.setCurrentIndex(rows.index(0, 0));
            return true;
        }
        return false;
    }
    if (key->matches(QKeySequence::Copy)) {
        copyDetails();
        return true;
    }
    if ((key->matches(QKeySequence::Find) || key->key() == Qt::Key_Slash) &&
        controls.isVisibleTo(&q)) {
        filter.setFocus();
        filter.selectAll();
        return true;
    }
    if (key->key() == Qt::Key_Escape && !filter.text().isEmpty()) {
        filter.clear();
        return true;
    }
    return false;
}

void PrinterListView::Private::retranslate()
{
    filter.setPlaceholderText(PrinterListView::tr("Filter"));
    filter.setAccessibleName(PrinterListView::tr("Filter the printers"));
    filter.setToolTip(PrinterListView::tr(
        "Words of a name, model, driver, port, serial number, status or supply"));
    orderBox.setItemText(0, PrinterListView::tr("Worst first"));
    orderBox.setItemText(1, PrinterListView::tr("By name"));
    orderBox.setAccessibleName(PrinterListView::tr("Order of the printers"));
    list.setAccessibleName(PrinterListView::tr("Printers"));
    noneFits.setText(PrinterListView::tr("No printer fits the filter. Press Escape to show all."));
    delegate.forget();
    legend.retranslate();
    list.viewport()->update();
}

QString PrinterListView::Private::nameAt(const QModelIndex& index) const
{
    return index.data(PrinterListModel::NameRole).toString();
}

QModelIndex PrinterListView::Private::indexOf(const QString& name) const
{
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QModelIndex index = rows.index(row, 0);
        if (nameAt(index) == name)
            return index;
    }
    return {};
}

void PrinterListView::Private::checkCurrent()
{
    const QString name = nameAt(list.currentIndex());
    if (std::exchange(current, name) != name)
        Q_EMIT q.currentPrinterChanged(name);
}

void PrinterListView::Private::copyDetails() const
{
    const auto reading =
        list.currentIndex().data(PrinterListModel::ReadingRole).value<PrinterReading>();
    if (!reading.isNull())
        QGuiApplication::clipboard()->setText(ReadingTexts::details(reading));
}

void PrinterListView::Private::openMenu(const QPoint& position)
{
    // The menu key asks for the current row, wherever the pointer is.
    QModelIndex index = list.indexAt(position);
    QPoint place = position;
    if (!index.isValid()) {
        index = list.currentIndex();
        place = list.visualRect(index).center();
    }
    const QString name = nameAt(index);
    if (name.isEmpty())
        return;
    list.setCurrentIndex(index);

    auto* const menu = new QMenu(&q);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(!reasonAgainstActions.isEmpty());
    for (const ActionText& each : actionTexts) {
        if (!actions.testFlag(each.action))
            continue;
        QAction* const action =
            menu->addAction(PrinterListView::tr(each.text), &q, [this, name, kind = each.action] {
                Q_EMIT q.actionRequested(name, kind);
            });
        action->setEnabled(reasonAgainstActions.isEmpty());
        action->setToolTip(reasonAgainstActions);
    }
    QAction* const copy =
        menu->addAction(PrinterListView::tr("&Copy details"), this, &Private::copyDetails);
    copy->setShortcut(QKeySequence::Copy);
    menu->popup(list.viewport()->mapToGlobal(place));
}

PrinterListView::PrinterListView(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(*this))
{}

PrinterListView::~PrinterListView() = default;

void PrinterListView::setModel(QAbstractItemModel* model)
{
    d->rows.setSourceModel(model);
    d->checkCurrent();
}

QAbstractItemModel* PrinterListView::model() const
{
    return d->rows.sourceModel();
}

QString PrinterListView::currentPrinter() const
{
    return d->nameAt(d->list.currentIndex());
}

void PrinterListView::setCurrentPrinter(const QString& name)
{
    const QModelIndex index = d->indexOf(name);
    d->list.setCurrentIndex(index);
    if (index.isValid())
        d->list.scrollTo(index);
}

PrinterListView::Order PrinterListView::order() const
{
    return d->rows.order() == PrinterOrder::Order::ByName ? Order::ByName : Order::WorstFirst;
}

void PrinterListView::setOrder(Order order)
{
    if (order == this->order())
        return;
    d->rows.setOrder(orderOf(order));
    d->orderBox.setCurrentIndex(d->orderBox.findData(QVariant::fromValue(order)));
    Q_EMIT orderChanged(order);
}

QString PrinterListView::filterText() const
{
    return d->rows.filterText();
}

void PrinterListView::setFilterText(const QString& text)
{
    if (text == filterText())
        return;
    d->rows.setFilterText(text);
    d->filter.setText(text);
    Q_EMIT filterTextChanged(text);
}

void PrinterListView::setSeverityFilter(std::optional<Severity> severity)
{
    d->rows.setSeverity(severity);
}

std::optional<Severity> PrinterListView::severityFilter() const
{
    return d->rows.severity();
}

QStringList PrinterListView::shownPrinters() const
{
    d->rows.arrangeIfDue();
    QStringList names;
    for (int row = 0; row < d->rows.rowCount(); ++row)
        names.append(d->nameAt(d->rows.index(row, 0)));
    return names;
}

bool PrinterListView::areControlsVisible() const
{
    return d->controls.isVisibleTo(this);
}

void PrinterListView::setControlsVisible(bool visible)
{
    d->controls.setVisible(visible);
    d->legend.setVisible(visible);
}

void PrinterListView::setActions(Actions actions)
{
    d->actions = actions;
}

PrinterListView::Actions PrinterListView::actions() const
{
    return d->actions;
}

void PrinterListView::setReasonAgainstActions(const QString& reason)
{
    d->reasonAgainstActions = reason;
}

QString PrinterListView::reasonAgainstActions() const
{
    return d->reasonAgainstActions;
}

QSize PrinterListView::sizeHint() const
{
    const int letter = fontMetrics().averageCharWidth();
    return {120 * letter, 32 * fontMetrics().lineSpacing()};
}

QSize PrinterListView::minimumSizeHint() const
{
    return {PrinterDelegate::leastWidth(fontMetrics()),
            PrinterDelegate::heightOf(0, fontMetrics()) + 4 * fontMetrics().lineSpacing()};
}

void PrinterListView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::LanguageChange:
    case QEvent::LocaleChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::PaletteChange:
        d->retranslate();
        break;
    default:
        break;
    }
}

} // namespace VxKit
