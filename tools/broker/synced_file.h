// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>

#include <cstdint>

/// What must survive a power cut. Each system has its own source file.
namespace synced_file {

/// Waits until the disk has everything that was written to the open file. If that fails, `*reason`
/// says why.
bool sync(QFile& file, QString* reason);
/// The same for the names of the files in a folder. Windows' own file systems keep names safe by
/// themselves.
bool syncFolder(const QString& folder, QString* reason);

} // namespace synced_file

/// A file that one program at a time holds. The system releases it when the program ends in any
/// way. The file stays.
class HeldFile
{
public:
    HeldFile() = default;
    ~HeldFile() { release(); }
    Q_DISABLE_COPY_MOVE(HeldFile)

    /// Does not wait. False when another program, or another object, has it, or it cannot be
    /// opened;
    /// `*reason` is the system's words then, or empty when it is held.
    bool tryToHold(const QString& path, QString* reason);
    void release();

private:
    std::intptr_t m_handle = -1;
};
