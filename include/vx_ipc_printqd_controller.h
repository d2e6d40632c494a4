// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ivxipcprintqd.h"
#include "print_job_meta_data.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The print-queue service, for a host that wants to serve it; the library itself never creates
/// one.
///
/// It is a placeholder on purpose: no job is kept, every command answers true and does nothing.
///
/// @code
/// VXIPCPRINTQDController printQueue; // published to other processes while it lives
/// @endcode
///
/// All of it is for the thread that made the endpoint. The endpoint has no signals.
class VX_PRINTERSTATUS_EXPORT VXIPCPRINTQDController : public IVXIPCPRINTQD
{
    Q_OBJECT

public:
    explicit VXIPCPRINTQDController(QObject* parent = nullptr);
    ~VXIPCPRINTQDController() override;
    Q_DISABLE_COPY_MOVE(VXIPCPRINTQDController)

public Q_SLOTS:
    bool printQueueFull(uint value) override;
    bool printQueueComplete(uint value) override;
    /// Accepted without effect: the job is not kept.
    void addJob(QString GUID, QString jobName, QString appName, int copies,
                int mergeIndex = -1) override;
    /// Always empty.
    QStringList getJobList() override;
    /// Always a default record, whatever the GUID.
    PrintJobMetaData getJobInfo(QString GUID) override;
    bool reprintPrintJob() override;
    bool retryPrintJob() override;
    bool clearPrintJob() override;
    bool clearAllPrintJobs() override;
};
