// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringList>

/// What the supply databases of this process answer, and what they were told: a test that has these
/// in place of SQLite can give the controller answers that no database file holds.
///
/// A database goes by the name of its connection, which is a printer's name and "_CONNECTION_NAME",
/// or for the shared one something else.
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
    /// The identifiers that were set and the questions with arguments that were asked, as
    /// "Printer: setSupplyId(-1)".
    static QStringList takeCalls();
    static void reset();
};
