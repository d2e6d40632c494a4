// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_event.h"
#include "printer_reading.h"
#include "vxprinterstatuswidgets_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <functional>
#include <memory>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
QT_END_NAMESPACE

namespace VxKit {

/// Everything that is known of one printer.
///
/// @code
/// auto* details = new VxKit::PrinterDetails(this);
/// details->setModel(&model); // a VxKit::PrinterListModel
/// details->setHistoryFile(VxKit::UsageHistory::defaultFileName());
/// connect(&events, &VxKit::PrinterEvents::happened, details, &VxKit::PrinterDetails::addEvent);
/// connect(list, &VxKit::PrinterListView::currentPrinterChanged, details,
///         &VxKit::PrinterDetails::setPrinter);
/// @endcode
///
/// It shows the status with its explanation and remedy, what is loaded, how much is left of it now
/// and over time, a firmware update as progress, the last events, and the raw values that the
/// printer's driver publishes. What is not known is said to be not known; it is never shown as
/// zero.
///
/// **Over time.** Without a history the plots begin when the widget is told of a printer. A history
/// is read on a thread of its own, so that the window never waits for the disk.
///
/// All texts that come from printers, drivers and files are shown as plain text.
class VX_WIDGETS_EXPORT PrinterDetails : public QWidget
{
    Q_OBJECT
    /// The name of the printer that is shown; empty for none.
    Q_PROPERTY(QString printer READ printer WRITE setPrinter NOTIFY printerChanged)
    Q_PROPERTY(Span span READ span WRITE setSpan NOTIFY spanChanged)

public:
    /// How much of the past the plots show.
    enum class Span
    {
        Day,
        Week,
        Roll, ///< since what is loaded was loaded
    };
    Q_ENUM(Span)

    /// The picture of a supply or ribbon: the content of an image file, or nothing.
    using PictureSource = std::function<QByteArray(const QString& sku)>;

    explicit PrinterDetails(QWidget* parent = nullptr);
    ~PrinterDetails() override;
    Q_DISABLE_COPY_MOVE(PrinterDetails)

    /// Where the printers come from: a model with the roles of `PrinterListModel`. The widget
    /// follows its changes. Null: none.
    void setModel(QAbstractItemModel* model);
    QAbstractItemModel* model() const;

    /// Shows one printer of the model. A name that the model does not have shows that there is no
    /// such printer, until there is.
    void setPrinter(const QString& name);
    QString printer() const;

    /// The file of a `UsageHistory`, which may not exist yet. Empty: none.
    void setHistoryFile(const QString& fileName);
    /// Reads the history again. It is also read when the printer or what is loaded changes.
    void readHistory();

    /// Keeps an event to be shown with its printer. Of each printer, the last 200 are kept.
    void addEvent(const VxKit::PrinterEvent& event);

    /// Where pictures of supplies come from, such as the catalogue; without one, a roll is drawn in
    /// the colours of what is loaded. It is called on the widget's thread, once for what is loaded.
    /// A picture may have at most 256 KiB and 4096 pixels a side.
    void setPictureSource(const PictureSource& source);

    void setSpan(Span span);
    Span span() const;

    /// Tells the time, for tests. Without a function, the system's clock.
    void setClock(const std::function<QDateTime()>& clock);

    /// Everything that is shown, as plain text, to be passed on to support.
    QString toPlainText() const;

Q_SIGNALS:
    void printerChanged(const QString& name);
    void spanChanged(VxKit::PrinterDetails::Span span);

protected:
    void changeEvent(QEvent* event) override;

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
