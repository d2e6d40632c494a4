// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_serial_file.h"

#include <QtCore/QDateTime>
#include <QtCore/QSettings>

namespace {

constexpr QLatin1String companyName("Harlow Devices Inc");
constexpr QLatin1String applicationName("Quillmark");
constexpr QLatin1String groupName("associatedPrinters");
constexpr QLatin1String timestampFormat("yyyy-MM-dd hh:mm:ss");

} // namespace

PrinterSerialFile::PrinterSerialFile() = default;
PrinterSerialFile::~PrinterSerialFile() = default;

void PrinterSerialFile::record(const QString& serialNumber)
{
    if (serialNumber.isEmpty())
        return;

    if (!m_settings) {
        m_settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                 companyName, applicationName);
        // Without fallbacks: a serial number that only the organisation's or the system's file
        // contains is to be recorded in this one too.
        m_settings->setFallbacksEnabled(false);
    }
    if (m_settings->contains(groupName + QLatin1Char('/') + serialNumber))
        return;

    m_settings->beginGroup(groupName);
    m_settings->setValue(serialNumber, QDateTime::currentDateTime().toString(timestampFormat));
    m_settings->endGroup();
}
