// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "vxprinterstatuswidgets_export.h"

#include <QtCore/QFlags>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
QT_END_NAMESPACE

namespace VxKit {

/// All printers at a glance: one row for each, with its status and what is left in it.
///
/// @code
/// PrinterStatusController controller;
/// VxKit::PrinterReadings readings(&controller);
/// VxKit::PrinterListModel printers;
/// printers.setReadings(&readings);
/// VxKit::PrinterListView view;
/// view.setModel(&printers);
/// view.show();
/// @endcode
///
/// **What a row shows.** The status as an icon, in a colour and a weight by its severity; the
/// printer's name; the model and the age of what it last reported; for the supply and each ribbon,
/// what is loaded and a bar in its own colours with what is left. What is not known is hatched,
/// which neither an empty nor a full bar is. The values of a printer that is offline, gone or not
/// watched are faded. All rows have the same height. What a row has no room for is in its tool tip.
///
/// **Order.** The worst first, or by name. Above the rows, people type what they look for and
/// choose the order; below them stands what the signs mean. `setControlsVisible(false)` hides both,
/// for hosts that have their own.
///
/// **Keyboard.** Up, Down, Home, End, Page Up and Page Down choose a printer, letters the next one
/// with that beginning, Return emits `printerActivated`, Ctrl+C copies the details, Ctrl+F or `/`
/// goes to the filter, Escape empties it, and Shift+F10 or the menu key opens the menu.
///
/// **Screen readers.** Each row has a name, which is the printer with its status, and a description
/// with everything else.
///
/// **The menu** has "Copy details", and those actions of the host's that were allowed with
/// `setActions`. Choosing one emits `actionRequested`.
///
/// **Cost.** Only rows that have changed are painted. Rows are put in order at most four times a
/// second, however many change.
///
/// Texts of printers and drivers are shown as plain text, with control characters escaped.
class VX_WIDGETS_EXPORT PrinterListView : public QWidget
{
    Q_OBJECT
    /// The chosen printer; empty for none. It stays chosen when the order changes.
    Q_PROPERTY(QString currentPrinter READ currentPrinter WRITE setCurrentPrinter NOTIFY
                   currentPrinterChanged)
    Q_PROPERTY(Order order READ order WRITE setOrder NOTIFY orderChanged)
    Q_PROPERTY(QString filterText READ filterText WRITE setFilterText NOTIFY filterTextChanged)
    Q_PROPERTY(bool controlsVisible READ areControlsVisible WRITE setControlsVisible)

public:
    enum class Order
    {
        WorstFirst, ///< errors, warnings, information, printers that are ready, those that are gone
        ByName,     ///< as people count: "Printer 2" before "Printer 10"
    };
    Q_ENUM(Order)

    /// What the host can do with a printer.
    enum class Action
    {
        PrintTestLabel = 0x1,
        OpenQueue = 0x2,
        Doctor = 0x4,
        SaveCase = 0x8,
    };
    Q_ENUM(Action)
    Q_DECLARE_FLAGS(Actions, Action)
    Q_FLAG(Actions)

    explicit PrinterListView(QWidget* parent = nullptr);
    ~PrinterListView() override;
    Q_DISABLE_COPY_MOVE(PrinterListView)

    /// Where the printers come from: a model with the roles of `PrinterListModel`, of which
    /// `ReadingRole` is needed. Null: none. The model is not taken over.
    void setModel(QAbstractItemModel* model);
    QAbstractItemModel* model() const;

    QString currentPrinter() const;
    /// Chooses a printer and scrolls to it. A name that is not shown chooses none.
    void setCurrentPrinter(const QString& name);

    Order order() const;
    void setOrder(Order order);

    QString filterText() const;
    /// Shows the printers that have each word of the text in their name, model, driver, port,
    /// serial number, status, or in the name of what is loaded. Empty: all.
    void setFilterText(const QString& text);
    /// Shows the printers whose status has that severity. Without a value: all.
    void setSeverityFilter(std::optional<Severity> severity);
    std::optional<Severity> severityFilter() const;
    /// The printers that are shown, in their order.
    QStringList shownPrinters() const;

    bool areControlsVisible() const;
    void setControlsVisible(bool visible);

    /// The actions of the menu. At first none.
    void setActions(Actions actions);
    Actions actions() const;
    /// Why none of the actions is possible, in the application's language: the menu has them
    /// disabled, with the reason as their tool tip. Empty: they are possible.
    void setReasonAgainstActions(const QString& reason);
    QString reasonAgainstActions() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void currentPrinterChanged(const QString& name);
    /// Return was pressed on a printer, or it was double-clicked.
    void printerActivated(const QString& name);
    void actionRequested(const QString& name, VxKit::PrinterListView::Action action);
    void orderChanged(VxKit::PrinterListView::Order order);
    void filterTextChanged(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};
Q_DECLARE_OPERATORS_FOR_FLAGS(PrinterListView::Actions)

} // namespace VxKit
