// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_event.h>
#include <printer_reading.h>
#include <site_source.h>

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// What the window is told of printers, wherever they are.
class ViewSource : public QObject
{
    Q_OBJECT

public:
    virtual void start() = 0;

    /// @name What only the printers of this computer can be asked
    /// @{
    virtual void setFewestLabels(std::optional<int> /*labels*/) {}
    /// Looks for printers now.
    virtual void refresh() {}
    /// Writes what has happened lately to a new file, and answers with `caseSaved`.
    virtual void saveCase(const QString& /*fileName*/) {}
    /// @}

Q_SIGNALS:
    void changed(const QList<VxKit::PrinterReading>& readings);
    void removed(const QStringList& names);
    void renamed(const QString& oldName, const QString& newName);
    void happened(const QList<VxKit::PrinterEvent>& events);
    /// A roll or ribbon will soon not be enough. `key` names the concern.
    void warned(const QString& printer, const QString& key, const QString& text);
    /// The printers have been listed for the first time.
    void listed();
    void spoolerRunningChanged(bool running);
    /// Without a reason, it was saved.
    void caseSaved(const QString& fileName, const QString& reason);
    /// Of a site alone.
    void siteStateChanged(const SiteState& state);

protected:
    using QObject::QObject;
};
