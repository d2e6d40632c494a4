// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatus_export.h"

#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>

/// One job of the print queue, as the print-queue service describes it.
///
/// A plain value. A default record stands for a job that is not known: all its texts are null, its
/// numbers 0 and its flags false.
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
    /// The job's place in the queue; the job that is being printed is the first.
    int queuePosition = 0;
    /// Identifies the job while it is in the queue.
    QString guid;
    QString jobName;
    /// The application that queued the job.
    QString appName;
    int copies = 0;
    /// The record of the merged label set that the job prints; -1 when its labels are not merged.
    int mergeIndex = 0;
    QString userName;
    /// The printer's name in the print spooler.
    QString printerName;
    /// The number of labels in all copies of the job.
    int labelCount = 0;
    int labelsPrinted = 0;
    QString supplySku;
    QString supplyName;
    /// Whether the printer cuts the labels apart.
    bool isCutting = false;
    QString ribbon1Sku;
    QString ribbon2Sku;
    /// The printer's status code.
    int status = 0;
    /// The title of `status` in the user's language.
    QString statusText;
};
Q_DECLARE_METATYPE(PrintJobMetaData)
