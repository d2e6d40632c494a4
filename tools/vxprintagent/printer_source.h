// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

#include <functional>
#include <memory>

/// The printers that the agent watches: those of the system, or virtual ones with a story. Each
/// kind of system has its own source file.
class PrinterSource
{
public:
    /// Prepares the printers that a file describes; without one, those of the system, or the
    /// built-in fleet where the system has no print spooler. Throws a `Failure` if that is not
    /// possible.
    static std::unique_ptr<PrinterSource> create(const QString& fleetFile, double speed);

    virtual ~PrinterSource() = default;
    Q_DISABLE_COPY_MOVE(PrinterSource)

    /// Begins the story of virtual printers.
    virtual void start(const std::function<int()>& watchedPrinters) = 0;

protected:
    PrinterSource() = default;
};
