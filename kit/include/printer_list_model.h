// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QAbstractListModel>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>

#include <memory>

namespace VxKit {

class PrinterReadings;

/// The readings of printers as an item model, for views in Qt Widgets and in QML.
///
/// @code
/// VxKit::PrinterListModel model;
/// model.setReadings(&readings);
/// listView->setModel(&model);                                            // Qt Widgets
/// view.setInitialProperties({{"printers", QVariant::fromValue(&model)}}); // QML
/// @endcode
///
/// One row is one printer. The rows are in the order of the printers' names. A printer that is gone
/// keeps its row, whose `present` is false, until `removeReading` is called for it.
///
/// **Roles.** QML uses the role names, which are those of the enumerators below in lower camel case
/// without "Role": `name`, `statusTitle`, `supplyRatio`, `ribbon1Colors`. What is not known is an
/// invalid `QVariant`, which QML shows as `undefined`; it is never 0 and never an empty text.
///
/// **Sources.** A model shows the readings of a `PrinterReadings`, or readings from anywhere else
/// that are passed to `setReading`.
///
/// **Threads.** The model belongs to the thread that creates it, which is the one of its source.
class VX_KIT_EXPORT PrinterListModel : public QAbstractListModel
{
    Q_OBJECT
    /// The name of the active printer; empty when no row is the active printer.
    Q_PROPERTY(QString activePrinter READ activePrinter NOTIFY activePrinterChanged)
    /// Whether the status of a present printer has the severity `Error`.
    Q_PROPERTY(bool inError READ isInError NOTIFY printersInErrorChanged)
    /// How many present printers have a status of the severity `Error`.
    Q_PROPERTY(int printersInError READ printersInError NOTIFY printersInErrorChanged)
    /// The number of rows.
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    /// Each comment says the type of the value that the role has when it is known.
    enum Role
    {
        ReadingRole = Qt::UserRole, ///< `PrinterReading`: the whole reading
        NameRole,                   ///< `QString`; also `Qt::DisplayRole`
        PrinterModelRole,           ///< `QString`: the name of the model, such as "AlderMax"
        DriverRole,                 ///< `QString`
        PortRole,                   ///< `QString`
        SerialNumberRole,           ///< `QString`
        PresentRole,                ///< `bool`: false for a printer that is gone
        GoneSinceRole,              ///< `QDateTime`
        WatchingRole,               ///< `QString`: the enumerator of `PrinterReading::Watching`
        StatusCodeRole,             ///< `int`
        StatusKeyRole,              ///< `QString`, as the next four; see `StatusInfo`
        StatusTitleRole,            ///< one line
        StatusSeverityRole,         ///< "ok", "information", "warning" or "error"
        StatusExplanationRole,
        StatusRemedyRole,
        OnlineRole,          ///< `bool`
        ActiveRole,          ///< `bool`
        FirmwareVersionRole, ///< `QString`
        BootVersionRole,     ///< `QString`
        UpdateProgressRole,  ///< `uint`
        UpdateErrorRole,     ///< `uint`
        EthernetConfigRole,  ///< `QString`
        LastReportRole,      ///< `QDateTime`
        HasRibbon2Role,      ///< `bool`

        SupplyStateRole,      ///< `QString`: "notKnown", "empty", "loaded" or "notInCatalogue"
        SupplyIdentifierRole, ///< `QString`, as the next four
        SupplySkuRole,
        SupplyNameRole,
        SupplyMaterialRole,
        SupplyColorNameRole,
        SupplyColorsRole,      ///< `QStringList`: "#rrggbb"
        SupplyTotalMetersRole, ///< `double`
        SupplyMetersRole,      ///< `double`
        SupplyRatioRole,       ///< `double`, from 0 to 1
        SupplyLabelsRole,      ///< `int`
        SupplyCoarseRole,      ///< `bool`
        SupplyMileageRole,     ///< `uint`
        SupplyMileageUnitRole, ///< `QString`: "mm" or "percent"
        /// `QVariantMap` with the numbers `p10`, `p50` and `p90`: in how many seconds it will have
        /// been used up, from the time of the last report
        SupplyEstimatedSecondsRemainingRole,

        Ribbon1StateRole, ///< As for the supply. A ribbon has no labels.
        Ribbon1IdentifierRole,
        Ribbon1SkuRole,
        Ribbon1NameRole,
        Ribbon1MaterialRole,
        Ribbon1ColorNameRole,
        Ribbon1ColorsRole,
        Ribbon1TotalMetersRole,
        Ribbon1MetersRole,
        Ribbon1RatioRole,
        Ribbon1LabelsRole,
        Ribbon1CoarseRole,
        Ribbon1MileageRole,
        Ribbon1MileageUnitRole,
        Ribbon1EstimatedSecondsRemainingRole,

        Ribbon2StateRole, ///< All invalid for models with one ribbon.
        Ribbon2IdentifierRole,
        Ribbon2SkuRole,
        Ribbon2NameRole,
        Ribbon2MaterialRole,
        Ribbon2ColorNameRole,
        Ribbon2ColorsRole,
        Ribbon2TotalMetersRole,
        Ribbon2MetersRole,
        Ribbon2RatioRole,
        Ribbon2LabelsRole,
        Ribbon2CoarseRole,
        Ribbon2MileageRole,
        Ribbon2MileageUnitRole,
        Ribbon2EstimatedSecondsRemainingRole,
    };
    Q_ENUM(Role)

    explicit PrinterListModel(QObject* parent = nullptr);
    ~PrinterListModel() override;
    Q_DISABLE_COPY_MOVE(PrinterListModel)

    /// Shows the readings of a source from now on, in place of all present rows. With null, or when
    /// the source is destroyed, the rows stay as they are.
    void setReadings(PrinterReadings* readings);

    /// Shows a reading: replaces the row of the printer with that name, or inserts one. A null
    /// reading is ignored.
    void setReading(const PrinterReading& reading);
    /// Removes the row of a printer. Has no effect when there is none.
    Q_INVOKABLE void removeReading(const QString& name);
    /// Gives the row of a printer another name, so that views keep it selected. Has no effect when
    /// there is no such row; a row that has the new name already is removed.
    void renameReading(const QString& oldName, const QString& newName);
    /// Removes all rows.
    void clear();

    /// The reading of a row; a null reading for a row that does not exist.
    PrinterReading reading(int row) const;
    /// The row of a printer; -1 when it has none.
    Q_INVOKABLE int rowOf(const QString& name) const;

    QString activePrinter() const;
    bool isInError() const;
    int printersInError() const;
    int count() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

public Q_SLOTS:
    /// Reports the texts of all rows as changed. Call it when the application's language changes.
    void retranslate();

Q_SIGNALS:
    void activePrinterChanged(const QString& name);
    void printersInErrorChanged(int count);
    void countChanged(int count);

private:
    void updateSummary(const PrinterReading& before, const PrinterReading& after);

    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
