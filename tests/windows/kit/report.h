// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "redaction.h"
#include "test_run.h"

#include <QtCore/QDateTime>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

/// What is sent back: one HTML file that a browser shows and programs can read. It needs no other
/// file, and its texts are English, whoever has run the tests.
struct Report
{
    QString version;  ///< of the product
    QString compiler; ///< that has built it
    QDateTime begun;
    QDateTime ended;
    bool isInterrupted = false;
    QJsonObject agreed; ///< to what
    QJsonObject system;
    QJsonArray files;        ///< of the product
    QString printerCheck;    ///< what became of a first printer
    QJsonObject before;      ///< how many printers, drivers and so on there were
    QStringList cleanedUp;   ///< what was removed after the tests
    QStringList leftBehind;  ///< what could not be removed, or is missing
    QJsonObject othersAdded; ///< how much has come that is not of the tests, by kind
    QStringList notes;
    QList<TestResult> tests;

    int count(TestResult::Outcome outcome) const;

    /// The file's content, without the names in `redaction`.
    QByteArray html(const Redaction& redaction) const;
};
