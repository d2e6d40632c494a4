// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_reading.h>

#include <QtCore/QCollator>
#include <QtCore/QElapsedTimer>
#include <QtCore/QHash>
#include <QtCore/QSortFilterProxyModel>
#include <QtCore/QTimer>

#include <optional>
#include <vector>

namespace VxKit {

/// The rows of a model of printers, in the order and selection in which a list shows them, with
/// what people read in tool tips and hear.
///
/// Rows are put in order a moment after they have changed, so that many changes cost one sorting
/// and a row does not move from under the pointer while it is looked at.
class PrinterOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    enum class Order
    {
        WorstFirst,
        ByName,
    };

    explicit PrinterOrder(QObject* parent = nullptr);

    void setSourceModel(QAbstractItemModel* model) override;
    QVariant data(const QModelIndex& index, int role) const override;

    Order order() const { return m_order; }
    void setOrder(Order order);
    /// Shows the printers that contain each word of the text, in whatever case, in their name,
    /// model, driver, port, serial number, status or in what is loaded. Empty: all.
    void setFilterText(const QString& text);
    QString filterText() const { return m_filterText; }
    /// Shows the printers of one severity. Without a value: all.
    void setSeverity(std::optional<Severity> severity);
    std::optional<Severity> severity() const { return m_severity; }

    /// Puts the rows in order now.
    void arrange();
    /// The same, if they have changed.
    void arrangeIfDue();

protected:
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    struct Key
    {
        int rank = 0;
        QCollatorSortKey name;
    };
    Key keyOf(int sourceRow);
    const QCollatorSortKey& nameKey(const QString& name);
    void scheduleArranging();
    PrinterReading readingAt(int sourceRow) const;

    Order m_order = Order::WorstFirst;
    QString m_filterText;
    QStringList m_words;
    std::optional<Severity> m_severity;
    QCollator m_collator;
    QHash<QString, QCollatorSortKey> m_nameKeys;
    std::vector<Key> m_keys; ///< of the rows of the source, while they are sorted
    QTimer m_timer;          ///< until the rows are put in order
    QElapsedTimer m_sinceArranged;
};

} // namespace VxKit
