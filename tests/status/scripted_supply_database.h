// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

/// What the supply databases of this process return, and how they were called. They take the place
/// of those on SQLite, so a test can give the controller answers that no database file contains.
///
/// A database is identified by the name of its connection: a printer's name and "_CONNECTION_NAME",
/// or another name for the shared one.
struct ScriptedSupplyDatabase
{
    QString supplyId;
    QString supplySku;
    QStringList ribbonSkus;
    QStringList ribbon1Rgbs;
    QStringList ribbon2Rgbs;
    int supplyRgb = -1;
    double supplyLength = -1.0;
    QHash<QString, double> ribbonLengths;

    static ScriptedSupplyDatabase& ofPrinter(const QString& printerName);
    static ScriptedSupplyDatabase& shared();
    /// The identifiers that were set and the queries that were made, with their arguments, as
    /// "Printer: setSupplyId(-1)".
    static QStringList takeCalls();
    static void reset();
};
