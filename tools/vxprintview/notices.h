// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <printer_event.h>

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>
#include <optional>

/// Decides which events people are told of while they look elsewhere: each new fault and warning
/// once, and none that was muted.
class Notices
{
public:
    struct Notice
    {
        QString printer; ///< empty for what concerns all
        QString kind;    ///< the event's key
        VxKit::Severity severity = VxKit::Severity::Warning;
        QString text;

        bool operator==(const Notice&) const = default;
    };
    using Clock = std::function<QDateTime()>;

    explicit Notices(const Clock& clock = {});

    /// The notice of an event; none for what is not urgent, was there at the start, was told of the
    /// same roll or ribbon already, or is muted.
    std::optional<Notice> take(const VxKit::PrinterEvent& event);
    /// The same for a warning about what is loaded, which is new.
    std::optional<Notice> take(const QString& printer, const QString& kind, const QString& text);

    /// @name Mutes
    /// @{
    /// All notices until a time; invalid ends it.
    void muteUntil(const QDateTime& time);
    QDateTime mutedUntil() const;
    bool isMuted() const;
    void setPrinterMuted(const QString& printer, bool muted);
    void setKindMuted(const QString& kind, bool muted);
    QStringList mutedPrinters() const;
    QStringList mutedKinds() const;
    /// @}

private:
    bool isMuted(const QString& printer, const QString& kind) const;
    bool isToldAgain(const VxKit::PrinterEvent& event);

    Clock m_clock;
    QDateTime m_mutedUntil;
    QSet<QString> m_mutedPrinters;
    QSet<QString> m_mutedKinds;
    /// What each printer has been told of since something was loaded into it: keys.
    QHash<QString, QSet<QString>> m_told;
    /// When each fault was told last.
    QHash<QString, QDateTime> m_toldAt;
};
