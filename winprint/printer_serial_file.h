// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <memory>

class QSettings;

/// The user's file of printer serial numbers, each with the time at which it was first seen. It is
/// opened at the first call of `record` and written when this object is destroyed.
class PrinterSerialFile
{
public:
    PrinterSerialFile();
    ~PrinterSerialFile();
    Q_DISABLE_COPY_MOVE(PrinterSerialFile)

    /// Records a serial number, unless it is empty or recorded already.
    void record(const QString& serialNumber);

private:
    std::unique_ptr<QSettings> m_settings;
};
