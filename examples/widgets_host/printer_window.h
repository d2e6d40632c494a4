// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_status_controller.h>

#include <QtWidgets/QLabel>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QWidget>

/// A window with a table of the maker's label printers, which is updated at every change.
class PrinterWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PrinterWindow(QWidget* parent = nullptr);

private:
    void showPrinters();
    void showPrinter(int row, const PrinterStatusInformation& printer);

    PrinterStatusController m_printers;
    QTableWidget m_table;
    QLabel m_warning;
};
