// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "owned_descriptor.h"

#include <QtCore/QByteArray>
#include <QtCore/QDeadlineTimer>

/// Held by a process while it takes an endpoint's name. The system releases the lock of a process
/// that dies.
class IpcNameLock
{
public:
    enum class Outcome : quint8
    {
        Locked,
        /// Another process holds the lock, or what is at the path is not a file that can be locked.
        Denied,
        /// errno says why.
        Failed,
    };

    explicit IpcNameLock(QByteArray path);
    /// Removes the file of a lock that is held.
    ~IpcNameLock();
    Q_DISABLE_COPY_MOVE(IpcNameLock)

    /// Tries until `end`, but at least once, while another process holds the lock.
    Outcome lock(QDeadlineTimer end);

private:
    Outcome tryToLock();

    QByteArray m_path;
    OwnedDescriptor m_file;
};
