// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtWidgets/QTreeView>

/// The events in three columns: when it was, which printer, and what happened. What happened always
/// has at least half of the width.
class EventView : public QTreeView
{
    Q_OBJECT

public:
    explicit EventView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Makes the columns fit; widths that people have chosen are kept where they fit.
    void fitColumns();

    int m_timeWidth = 0; ///< as it was set here
    int m_printerWidth = 0;
};
