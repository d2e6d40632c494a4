// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "doctor_dialog.h"

#include "shown_text.h"

#include <status_icons.h>
#include <view_palette.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using doctor::Check;
using doctor::Verdict;

namespace {

QList<Check> allChecks(const QString& printer, const QString& catalogueFile)
{
    std::optional<QList<AvailablePrinters>> printers;
    QList<Check> checks = doctor::checkVersions() + doctor::checkSpooler(&printers) +
                          doctor::checkCatalogue(catalogueFile);
    for (const AvailablePrinters& each : printers.value_or(QList<AvailablePrinters>())) {
        if (printer.isEmpty() || each.printerName == printer)
            checks += doctor::checkPrinter(each, catalogueFile);
    }
    return checks;
}

VxKit::StatusIcon iconOf(Verdict verdict)
{
    switch (verdict) {
    case Verdict::Ok:
        return VxKit::StatusIcon::Ok;
    case Verdict::Note:
        return VxKit::StatusIcon::Information;
    case Verdict::Problem:
        return VxKit::StatusIcon::Error;
    }
    return VxKit::StatusIcon::Error;
}

/// Gives each line as much height as its text needs in the width of the tree, which a tree does not
/// tell its delegate.
class WrappingDelegate : public QStyledItemDelegate
{
public:
    explicit WrappingDelegate(QTreeWidget& tree)
        : QStyledItemDelegate(&tree)
        , m_tree(tree)
    {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyleOptionViewItem own = option;
        initStyleOption(&own, index);
        const int margin = 2 * (m_tree.style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1);
        int left = margin;
        for (QModelIndex each = index; each.isValid(); each = each.parent())
            left += m_tree.indentation();
        if (!own.icon.isNull())
            left += own.decorationSize.width() + margin;
        const int width = std::max(m_tree.viewport()->width() - left - margin, 1);
        const QRect text = own.fontMetrics.boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX),
                                                        Qt::TextWordWrap, own.text);
        const QSize oneLine = QStyledItemDelegate::sizeHint(option, index);
        // The tree is as wide as its view.
        return {std::min(oneLine.width(), width),
                std::max(oneLine.height(), text.height() + margin)};
    }

private:
    const QTreeWidget& m_tree;
};

/// A line of the tree. A word that is longer than a line is in the tool tip.
QTreeWidgetItem* addLine(QTreeWidgetItem* line, const QString& text)
{
    line->setText(0, text);
    line->setToolTip(0, QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()));
    return line;
}

} // namespace

DoctorDialog::DoctorDialog(const QString& printer, const QString& catalogueFile, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(printer.isEmpty() ? tr("Doctor") : tr("Doctor: %1").arg(shown(printer)));
    m_summary.setText(tr("Checking…"));
    m_summary.setWordWrap(true);
    m_summary.setTextFormat(Qt::PlainText);
    m_list.setHeaderHidden(true);
    m_list.setColumnCount(1);
    m_list.setWordWrap(true);
    m_list.setUniformRowHeights(false);
    m_list.setItemDelegate(new WrappingDelegate(m_list));
    connect(m_list.header(), &QHeaderView::sectionResized, &m_list, &QTreeWidget::doItemsLayout);
    m_list.setAccessibleName(tr("What was found"));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    m_copy->setEnabled(false);
    connect(m_copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(text()); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(&m_summary);
    layout->addWidget(&m_list, 1);
    layout->addWidget(buttons);
    const int letter = fontMetrics().averageCharWidth();
    resize(90 * letter, 28 * fontMetrics().lineSpacing());

    connect(this, &DoctorDialog::checked, this,
            qOverload<const QList<Check>&>(&DoctorDialog::show));
    m_thread.reset(QThread::create(
        [this, printer, catalogueFile] { Q_EMIT checked(allChecks(printer, catalogueFile)); }));
    // Later, so that whoever makes the dialog can connect to its signal first.
    QMetaObject::invokeMethod(
        this, [this] { m_thread->start(); }, Qt::QueuedConnection);
}

DoctorDialog::~DoctorDialog()
{
    m_thread->wait();
}

void DoctorDialog::show(const QList<Check>& checks)
{
    const VxKit::ViewPalette colors(palette());
    const QColor background = palette().base().color();
    const auto problems = std::ranges::count(checks, Verdict::Problem, &Check::verdict);
    m_summary.setText(problems == 0 ? tr("Nothing is wrong.")
                                    : tr("Problems found: %1").arg(problems));
    m_list.clear();
    QTreeWidgetItem* heading = nullptr;
    QString subject;
    for (const Check& check : checks) {
        if (!heading || check.subject != subject) {
            subject = check.subject;
            heading = addLine(new QTreeWidgetItem(&m_list),
                              subject.isEmpty() ? tr("This computer") : shown(subject));
        }
        QTreeWidgetItem* const line = addLine(new QTreeWidgetItem(heading), shown(check.text));
        line->setIcon(0, VxKit::statusIcon(iconOf(check.verdict), colors, background));
        if (!check.remedy.isEmpty())
            addLine(new QTreeWidgetItem(line), shown(check.remedy));
    }
    m_list.expandAll();
    m_copy->setEnabled(true);
}

QString DoctorDialog::text() const
{
    QString text = m_summary.text() + QChar(u'\n');
    for (QTreeWidgetItemIterator each(const_cast<QTreeWidget*>(&m_list)); *each; ++each) {
        qsizetype depth = 0;
        for (const QTreeWidgetItem* parent = (*each)->parent(); parent; parent = parent->parent())
            ++depth;
        text += QString(2 * depth, QChar(u' ')) + (*each)->text(0) + QChar(u'\n');
    }
    return text;
}
