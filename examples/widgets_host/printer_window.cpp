// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_window.h"

#include <printer_types.h>

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

/// A table cell for a supply or a ribbon, with its colour beside the text. The cell is empty if
/// nothing is loaded or nothing has been reported yet.
QTableWidgetItem* loadedItem(const QString& sku, const QString& name, const QString& colorHex,
                             int percentage)
{
    if (sku.isEmpty() || sku == VXPrinting::nothingLoaded)
        return new QTableWidgetItem;
    auto* item = new QTableWidgetItem(QStringLiteral("%1, %2 %").arg(name).arg(percentage));
    item->setData(Qt::DecorationRole, QColor(colorHex));
    return item;
}

} // namespace

PrinterWindow::PrinterWindow(QWidget* parent)
    : QWidget(parent)
{
    setWindowTitle(tr("Label printers"));
    resize(900, 260);
    m_table.setColumnCount(6);
    m_table.setHorizontalHeaderLabels({tr("Printer"), tr("Status"), tr("Supply"), tr("Ribbon 1"),
                                       tr("Ribbon 2"), tr("Firmware")});
    m_table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table.verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table.verticalHeader()->hide();
    m_table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_warning.setText(tr("A printer needs your attention."));
    m_warning.setStyleSheet(QStringLiteral("color: #b00020; font-weight: bold"));
    m_warning.hide();
    auto* search = new QPushButton(tr("Look for new printers"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(&m_table);
    layout->addWidget(&m_warning);
    layout->addWidget(search, 0, Qt::AlignRight);

    using Controller = PrinterStatusController;
    connect(&m_printers, &Controller::availablePrintersUpdated, this, &PrinterWindow::showPrinters);
    connect(&m_printers, &Controller::activeDefaultPrinterSetSignal, this,
            &PrinterWindow::showPrinters);
    connect(&m_printers, &Controller::printerErrorChangedSignal, &m_warning, &QLabel::setVisible);
    // A new printer causes no signal before its first report, and some never report.
    connect(search, &QPushButton::clicked, this, [this] {
        m_printers.checkForPrinters();
        showPrinters();
    });
    showPrinters();
}

void PrinterWindow::showPrinters()
{
    const QVariantList printers = m_printers.getAvailablePrinters();
    m_table.setRowCount(static_cast<int>(printers.size()));
    for (int row = 0; row < m_table.rowCount(); ++row)
        showPrinter(row, printers.at(row).value<PrinterStatusInformation>());
}

void PrinterWindow::showPrinter(int row, const PrinterStatusInformation& printer)
{
    const QList<QTableWidgetItem*> items{
        new QTableWidgetItem(printer.printerName),
        new QTableWidgetItem(m_printers.getStatusTitle(printer.statusEnum)),
        loadedItem(printer.supplySKU,
                   printer.supplyMaterialName + QLatin1Char(' ') + printer.supplyColorName,
                   printer.supplyColorHex, printer.supplyPercentage),
        loadedItem(printer.ribbon1SKU, printer.ribbon1ColorName, printer.ribbon1ColorHex,
                   printer.ribbon1Percentage),
        loadedItem(printer.ribbon2SKU, printer.ribbon2ColorName, printer.ribbon2ColorHex,
                   printer.ribbon2Percentage),
        new QTableWidgetItem(m_printers.getPrinterSoftwareVersion(printer.printerName)),
    };
    for (int column = 0; column < m_table.columnCount(); ++column)
        m_table.setItem(row, column, items.at(column));

    QFont font = items.first()->font();
    font.setBold(printer.printerName == m_printers.activeDefaultPrinter());
    items.first()->setFont(font);
}
