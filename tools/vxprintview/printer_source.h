// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "view_source.h"

#include <QtCore/QString>
#include <QtCore/QThread>

#include <atomic>
#include <optional>

/// The printers of this computer. They are watched on a thread of this object, so that
/// the window never waits for the print spooler. Changes come in batches, ten a second at most.
class PrinterSource : public ViewSource
{
    Q_OBJECT

public:
    struct Options
    {
        QString catalogueFile;           ///< empty: what the library reads by default
        QString historyFile;             ///< empty: nothing is recorded
        std::optional<int> fewestLabels; ///< warn when fewer are left
    };

    explicit PrinterSource(const Options& options, QObject* parent = nullptr);
    /// Waits until a call to the spooler that is in progress returns.
    ~PrinterSource() override;
    Q_DISABLE_COPY_MOVE(PrinterSource)

    void start() override;
    /// How many printers are watched. May be called on any thread.
    int watchedPrinters() const { return m_watchedPrinters; }

    void setFewestLabels(std::optional<int> labels) override;
    void refresh() override;
    void saveCase(const QString& fileName) override;

private:
    friend class PrinterWatcher;

    QThread m_thread;
    QObject* m_watcher = nullptr; ///< on that thread
    std::atomic<int> m_watchedPrinters = 0;
};
