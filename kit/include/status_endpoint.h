// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxipcserver.h"
#include "vxprinterstatuskit_export.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace VxKit {

class PrinterReadings;

/// The status service: tells the user's other processes which printers there are, what is true of
/// them now, and every change. It is published as "vxipc-3".
///
/// @code
/// PrinterStatusController controller;
/// VxKit::PrinterReadings readings(&controller);
/// VxKit::StatusEndpoint endpoint(&readings);
/// @endcode
///
/// Other processes call its slots and subscribe to its signals by the names and argument names
/// below, with `VXIPCClient`, with the clients in `examples/clients/`, with `vxipc call status
/// printers` and `vxipc watch status`, or in any language with sockets and JSON: docs/ipc.md
/// describes how. To follow the printers without a gap, subscribe first and call `printers()` then.
///
/// A reading is the object that `PrinterReading::toJson` writes and docs/schema/reading.schema.json
/// describes. What is not known is null.
///
/// **Threads.** The object belongs to the thread of the readings, on whose event loop it answers
/// and reports. Only one process can have the name: a second host's service gets its process id
/// added, see `VXIPCServer::serverName()`.
///
/// **Lifetime.** When the readings are destroyed first, there are no printers and nothing is
/// reported any more; `statusInfo` and `supplies` still answer.
///
/// **Clients that do not read.** Changes of one printer replace each other while a client has not
/// read them, so it gets the latest. Everything else waits for it, up to 4 MiB; then it is
/// disconnected. The host and the other clients notice nothing.
class VX_KIT_EXPORT StatusEndpoint : public VXIPCServer
{
    Q_OBJECT

public:
    /// The number by which clients find the service: "vxipc-3".
    static constexpr int serverType = 3;
    /// The code of the error that `printer` and `preflight` answer for an unknown name.
    static constexpr int unknownPrinter = -32004;

    explicit StatusEndpoint(PrinterReadings* readings, QObject* parent = nullptr);
    ~StatusEndpoint() override;
    Q_DISABLE_COPY_MOVE(StatusEndpoint)

public Q_SLOTS:
    /// The readings of all printers, also of those that are gone, sorted by name.
    QJsonArray printers();

    /// The reading of one printer. Another process that asks for an unknown name gets the error
    /// -32004, which says so; within this process the object is empty.
    QJsonObject printer(const QString& name);

    /// What a status code means and what to do about it, as `StatusInfo::toJson` writes it. Every
    /// number has an answer. `language` is a language tag such as "de" or "zh-CN"; when it is empty
    /// or there are no texts in it, they are in the application's language.
    QJsonObject statusInfo(int code, const QString& language = QString());

    /// What the catalogue knows: an object with the lists `supplies` and `ribbons`, sorted by SKU.
    /// Both are empty when there is no catalogue. It is read once, in the background, from the file
    /// that the readings name when this object is created.
    ///
    /// Each entry has `sku`, `name`, `material` (a ribbon's type), `colorName`, `colors` (as
    /// "#rrggbb") and, in metres, `widthMeters` and `totalMeters` (of a new roll). A supply has
    /// `format`, `labelMeters` and `separatorMeters` (null for a continuous one) and `labelsAcross`
    /// too, a ribbon `panels`. Texts are in the application's language.
    QJsonObject supplies();

    /// Whether a printer can print a job with what is loaded in it: `Preflight::check`, as
    /// `PreflightResult::toJson` writes the answer. Another process that asks for an unknown
    /// printer gets the error -32004.
    QJsonObject preflight(const QString& printer, const QString& supplySku, int labels,
                          const QStringList& ribbonSkus = QStringList());

Q_SIGNALS:
    /// Something about a printer has changed: `reading` is all that is true of it now. Emitted from
    /// the event loop soon after `PrinterReadings::changed`; once for several changes that follow
    /// each other closely.
    void printerChanged(const QJsonObject& reading);
    /// There is a printer that was not known, or one is there again that was gone.
    void printerAdded(const QJsonObject& reading);
    /// The spooler no longer lists the printer. `printer(name)` says since when.
    void printerGone(const QString& name);
    /// The printer has a new name. What was known of it is found under that name.
    void printerRenamed(const QString& oldName, const QString& newName);

private:
    class Private;
    const std::unique_ptr<Private> d;
};

} // namespace VxKit
