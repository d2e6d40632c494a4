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
        /// Somebody holds the lock, or what is in its place is no file that can be locked.
        Denied,
        /// errno says why.
        Failed,
    };

    explicit IpcNameLock(QByteArray path);
    /// Removes the file of a lock that is held.
    ~IpcNameLock();
    IpcNameLock(const IpcNameLock&) = delete;
    IpcNameLock& operator=(const IpcNameLock&) = delete;

    /// Waits until `end` for a process that is taking the name; tries once when that has passed.
    Outcome lock(QDeadlineTimer end);

private:
    Outcome tryToLock();

    QByteArray m_path;
    OwnedDescriptor m_file;
};
