// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What tests may change on a computer: printers, drivers, ports, services, keys of the registry,
/// files and processes. It is recorded before and after the tests, and compared.
class SystemState
{
public:
    /// `folder` is that of the kit.
    static SystemState current(const QString& folder);
    static SystemState fromJson(const QJsonObject& object);
    QJsonObject toJson() const;

    /// What has come since `before`, by kind ("printers", "files"), as far as its name shows that
    /// tests have made it.
    QMap<QString, QStringList> added(const SystemState& before) const;
    /// What was there before and is not now. It is nobody's but the person's.
    QMap<QString, QStringList> removed(const SystemState& before) const;
    /// How much else has come since, by kind: the system and other programs go on working.
    QMap<QString, int> addedByOthers(const SystemState& before) const;

    QStringList printers() const { return m_items.value(QStringLiteral("printers")); }
    /// Of all printers, also those of the network.
    QStringList printerNames() const;
    QStringList drivers() const { return m_items.value(QStringLiteral("drivers")); }
    QStringList ports() const { return m_items.value(QStringLiteral("ports")); }
    QStringList services() const { return m_items.value(QStringLiteral("services")); }
    QString defaultPrinter() const { return m_defaultPrinter; }
    QString spooler() const { return m_spooler; }

    /// Whether the print spooler runs now.
    static bool startSpooler();

    /// Removes what `added()` lists, and restores the default printer and the spooler. Returns a
    /// line for each thing that was done, and adds those that could not be done to `problems`.
    static QStringList restore(const SystemState& before, const QString& folder,
                               QStringList& problems);

private:
    QMap<QString, QStringList> m_items;
    QString m_folder;
    QString m_defaultPrinter;
    QString m_spooler; ///< "running", "stopped" or another state, or why it is not known
};
