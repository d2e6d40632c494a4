// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "printer_reading.h"
#include "status_info.h"
#include "vxkit.h"

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

#include <cstddef>
#include <vector>

namespace VxKit::c_interface {

/// Readings that a caller of the C interface has taken. They never change. The fields tell the same
/// as the JSON, because they are taken from it.
class Readings
{
public:
    /// Texts for people are made here, in the language of now.
    explicit Readings(const QList<PrinterReading>& readings);

    std::size_t count() const { return m_printers.size(); }
    vxkit_result find(const QString& name, std::size_t& index) const;

    vxkit_result json(std::size_t index, QString& json) const;
    vxkit_result text(std::size_t index, int32_t field, QString& text) const;
    vxkit_result integer(std::size_t index, int32_t field, int64_t& value) const;
    vxkit_result slotText(std::size_t index, int32_t slot, int32_t field, QString& text) const;
    vxkit_result slotInteger(std::size_t index, int32_t slot, int32_t field, int64_t& value) const;
    vxkit_result slotNumber(std::size_t index, int32_t slot, int32_t field, double& value) const;

private:
    struct Printer
    {
        PrinterReading reading;
        QJsonObject json;
        StatusInfo status;
    };
    /// The printer with that index; null, with an error, when there is none.
    const Printer* at(std::size_t index) const;

    std::vector<Printer> m_printers;
};

/// One text of a status info, by `VXKIT_STATUS_*`.
vxkit_result statusText(const StatusInfo& info, int32_t field, QString& text);

} // namespace VxKit::c_interface
