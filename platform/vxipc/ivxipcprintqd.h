// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "print_job_meta_data.h"
#include "vxipcserver.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// The print-queue service: the jobs that wait for the printer.
///
/// The order of the slots, their argument names and their default arguments form the service's
/// method table, which clients rely on.
class IVXIPCPRINTQD : public VXIPCServer
{
    Q_OBJECT

public:
    /// Publishes the endpoint as VXIPCServer does.
    IVXIPCPRINTQD(int serverType, QObject* parent);
    ~IVXIPCPRINTQD() override;
    Q_DISABLE_COPY_MOVE(IVXIPCPRINTQD)

public Q_SLOTS:
    /// @name The service's methods
    /// `VXIPCPRINTQDController` is this library's implementation, and its header says what each
    /// does.
    /// @{
    virtual bool printQueueFull(uint value) = 0;
    virtual bool printQueueComplete(uint value) = 0;
    virtual void addJob(QString GUID, QString jobName, QString appName, int copies,
                        int mergeIndex = -1) = 0;
    virtual QStringList getJobList() = 0;
    virtual PrintJobMetaData getJobInfo(QString GUID) = 0;
    virtual bool reprintPrintJob() = 0;
    virtual bool retryPrintJob() = 0;
    virtual bool clearPrintJob() = 0;
    virtual bool clearAllPrintJobs() = 0;
    /// @}
};
