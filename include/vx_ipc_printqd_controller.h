// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ivxipcprintqd.h"
#include "print_job_meta_data.h"
#include "vxprinterstatus_export.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The print-queue service, for a host that wants to offer it. The library itself never creates
/// one.
///
/// The service is deliberately a placeholder: it stores no job, and every command does nothing and
/// returns true.
///
/// @code
/// VXIPCPRINTQDController printQueue; // other processes can call it while it exists
/// @endcode
///
/// Call all members on the thread that created the service. The service has no signals.
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
    /// Has no effect: the job is not stored.
    void addJob(QString GUID, QString jobName, QString appName, int copies,
                int mergeIndex = -1) override;
    /// Always empty.
    QStringList getJobList() override;
    /// Always a default record, for any GUID.
    PrintJobMetaData getJobInfo(QString GUID) override;
    bool reprintPrintJob() override;
    bool retryPrintJob() override;
    bool clearPrintJob() override;
    bool clearAllPrintJobs() override;
};
