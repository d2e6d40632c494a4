// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// A test of the Windows build, as the file manifest.json beside this program's folder lists it.
struct KitTest
{
    QString name;
    QString program; ///< relative to the folder of the kit
    QStringList arguments;
    QMap<QString, QString> environment;
    QStringList locks; ///< what no two tests may use at the same time
    bool needsAdministrator = false;
    bool onlyStopsSpooler = false; ///< each of its functions stops the print spooler
    bool stopsSpooler = false;     ///< some of its functions do, and are skipped when they must not
    bool opensWindows = false;
    QString notPossible; ///< why it cannot run away from the build machine; empty if it can
};

struct Manifest
{
    QString version;  ///< of the product
    QString compiler; ///< what has built it
    QList<KitTest> tests;

    /// Throws Failure if the file cannot be read or is not a manifest.
    static Manifest read(const QString& file);
};
