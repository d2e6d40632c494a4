// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "notices.h"

#include <algorithm>

using VxKit::PrinterEvent;
using VxKit::Severity;

namespace {

/// A fault that comes back within this time is the same one: a cover that is pushed shut twice.
constexpr qint64 sameFaultSeconds = 60;
constexpr qsizetype mostRemembered = 20000;

QStringList sorted(const QSet<QString>& set)
{
    QStringList list(set.begin(), set.end());
    std::ranges::sort(list);
    return list;
}

void change(QSet<QString>& set, const QString& value, bool isMember)
{
    if (isMember)
        set.insert(value);
    else
        set.remove(value);
}

} // namespace

Notices::Notices(const Clock& clock)
    : m_clock(clock ? clock : &QDateTime::currentDateTimeUtc)
{}

std::optional<Notices::Notice> Notices::take(const PrinterEvent& event)
{
    using Kind = PrinterEvent::Kind;
    if (event.kind == Kind::PrinterRenamed) {
        if (m_mutedPrinters.remove(event.before.printer))
            m_mutedPrinters.insert(event.printer);
        m_told.insert(event.printer, m_told.take(event.before.printer));
    }
    // Another roll or ribbon may run out once more.
    if (event.kind == Kind::Supply || event.kind == Kind::Ribbon)
        m_told.remove(event.printer);
    if (event.severity != Severity::Warning && event.severity != Severity::Error)
        return std::nullopt;
    const bool wasThereAtTheStart = event.kind == Kind::Status && !event.before.code;
    if (wasThereAtTheStart || isToldAgain(event) || isMuted(event.printer, event.key))
        return std::nullopt;
    return Notice{event.printer, event.key, event.severity, VxKit::eventText(event)};
}

std::optional<Notices::Notice> Notices::take(const QString& printer, const QString& kind,
                                             const QString& text)
{
    if (isMuted(printer, kind))
        return std::nullopt;
    return Notice{printer, kind, Severity::Warning, text};
}

bool Notices::isToldAgain(const PrinterEvent& event)
{
    if (m_told.size() > mostRemembered || m_toldAt.size() > mostRemembered) {
        m_told.clear();
        m_toldAt.clear();
    }
    const QString key = event.slot ? VxKit::slotName(*event.slot) + u'/' + event.key : event.key;
    if (event.severity == Severity::Warning) {
        QSet<QString>& told = m_told[event.printer];
        if (told.contains(key))
            return true;
        told.insert(key);
        return false;
    }
    const QDateTime now = m_clock();
    const QString fault = event.printer + QChar(u'\n') + key;
    const QDateTime before = m_toldAt.value(fault);
    m_toldAt.insert(fault, now);
    return before.isValid() && before.secsTo(now) < sameFaultSeconds;
}

void Notices::muteUntil(const QDateTime& time)
{
    m_mutedUntil = time;
}

QDateTime Notices::mutedUntil() const
{
    return isMuted() ? m_mutedUntil : QDateTime();
}

bool Notices::isMuted() const
{
    return m_mutedUntil.isValid() && m_clock() < m_mutedUntil;
}

void Notices::setPrinterMuted(const QString& printer, bool muted)
{
    change(m_mutedPrinters, printer, muted);
}

void Notices::setKindMuted(const QString& kind, bool muted)
{
    change(m_mutedKinds, kind, muted);
}

QStringList Notices::mutedPrinters() const
{
    return sorted(m_mutedPrinters);
}

QStringList Notices::mutedKinds() const
{
    return sorted(m_mutedKinds);
}

bool Notices::isMuted(const QString& printer, const QString& kind) const
{
    return isMuted() || m_mutedPrinters.contains(printer) || m_mutedKinds.contains(kind);
}
