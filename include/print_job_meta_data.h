// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatus_export.h"

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

/// One job of the print queue, as the print-queue service describes it.
///
/// A plain value. In a default record, which stands for a job that is not known, every text is null
/// and every number 0.
class VX_PRINTERSTATUS_EXPORT PrintJobMetaData
{
    Q_GADGET
    Q_PROPERTY(int queuePosition MEMBER queuePosition)
    Q_PROPERTY(QString guid MEMBER guid)
    Q_PROPERTY(QString jobName MEMBER jobName)
    Q_PROPERTY(QString appName MEMBER appName)
    Q_PROPERTY(int copies MEMBER copies)
    Q_PROPERTY(int mergeIndex MEMBER mergeIndex)
    Q_PROPERTY(QString userName MEMBER userName)
    Q_PROPERTY(QString printerName MEMBER printerName)
    Q_PROPERTY(int labelCount MEMBER labelCount)
    Q_PROPERTY(int labelsPrinted MEMBER labelsPrinted)
    Q_PROPERTY(QString supplySku MEMBER supplySku)
    Q_PROPERTY(QString supplyName MEMBER supplyName)
    Q_PROPERTY(bool isCutting MEMBER isCutting)
    Q_PROPERTY(QString ribbon1Sku MEMBER ribbon1Sku)
    Q_PROPERTY(QString ribbon2Sku MEMBER ribbon2Sku)
    Q_PROPERTY(int status MEMBER status)
    Q_PROPERTY(QString statusText MEMBER statusText)

public:
    /// Place in the queue, the job being printed first.
    int queuePosition = 0;
    /// Identifies the job for as long as it is queued.
    QString guid;
    QString jobName;
    /// The application that queued the job.
    QString appName;
    int copies = 0;
    /// Which record of a merged label set the job prints; -1 when its labels are not merged.
    int mergeIndex = 0;
    QString userName;
    /// The printer's name in the print spooler.
    QString printerName;
    /// Labels in the job, all copies together.
    int labelCount = 0;
    int labelsPrinted = 0;
    QString supplySku;
    QString supplyName;
    /// Whether the labels are cut apart.
    bool isCutting = false;
    QString ribbon1Sku;
    QString ribbon2Sku;
    /// A printer status code, and its text in the user's language.
    int status = 0;
    QString statusText;
};
Q_DECLARE_METATYPE(PrintJobMetaData)
