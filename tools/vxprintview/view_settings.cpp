// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "view_settings.h"

#include "view_language.h"

#include <QtCore/QStandardPaths>

#include <algorithm>

const QString ViewSettings::geometryKey = QStringLiteral("window/geometry");
const QString ViewSettings::layoutKey = QStringLiteral("window/layout");
const QString ViewSettings::sortedByNameKey = QStringLiteral("list/sortedByName");
const QString ViewSettings::staysInTrayKey = QStringLiteral("window/staysInTray");

namespace {

const QString languageKey = QStringLiteral("window/language");
const QString colorsKey = QStringLiteral("window/colors");
const QString fewestLabelsKey = QStringLiteral("warnings/fewestLabels");
const QString mutedUntilKey = QStringLiteral("notices/mutedUntil");
const QString mutedPrintersKey = QStringLiteral("notices/mutedPrinters");
const QString mutedKindsKey = QStringLiteral("notices/mutedKinds");
constexpr qint64 longestMute = 3600;
constexpr qsizetype mostMutes = 10000;

QString ownFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/VxPrinterStatus/vxprintview.ini");
}

} // namespace

ViewSettings::ViewSettings(const QString& fileName)
    : m_settings(fileName.isEmpty() ? ownFile() : fileName, QSettings::IniFormat)
{}

void ViewSettings::setWindow(const QByteArray& geometry, const QByteArray& layout)
{
    m_settings.setValue(geometryKey, geometry);
    m_settings.setValue(layoutKey, layout);
}

QString ViewSettings::language() const
{
    const QString tag = m_settings.value(languageKey).toString();
    const QList<ViewLanguage::Choice> choices = ViewLanguage::choices();
    const bool isKnown = std::ranges::any_of(
        choices, [&](const ViewLanguage::Choice& choice) { return choice.tag == tag; });
    return isKnown ? tag : QString();
}

void ViewSettings::setLanguage(const QString& tag)
{
    m_settings.setValue(languageKey, tag);
}

QString ViewSettings::colors() const
{
    const QString colors = m_settings.value(colorsKey).toString();
    return colors == QLatin1String("light") || colors == QLatin1String("dark")
               ? colors
               : QStringLiteral("system");
}

void ViewSettings::setColors(const QString& colors)
{
    m_settings.setValue(colorsKey, colors);
}

void ViewSettings::setSortedByName(bool byName)
{
    m_settings.setValue(sortedByNameKey, byName);
}

std::optional<int> ViewSettings::fewestLabels() const
{
    bool isNumber = false;
    const int labels = m_settings.value(fewestLabelsKey).toInt(&isNumber);
    if (!isNumber || labels < 1 || labels > mostLabels)
        return std::nullopt;
    return labels;
}

void ViewSettings::setFewestLabels(std::optional<int> labels)
{
    if (labels)
        m_settings.setValue(fewestLabelsKey, *labels);
    else
        m_settings.remove(fewestLabelsKey);
}

void ViewSettings::setStaysInTray(bool stays)
{
    m_settings.setValue(staysInTrayKey, stays);
}

void ViewSettings::restore(Notices& notices) const
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const QDateTime until =
        QDateTime::fromString(m_settings.value(mutedUntilKey).toString(), Qt::ISODate);
    // A clock that was put back must not mute for years.
    if (until.isValid() && now.secsTo(until) <= longestMute)
        notices.muteUntil(until);
    const auto firstOf = [this](const QString& key) {
        return m_settings.value(key).toStringList().mid(0, mostMutes);
    };
    for (const QString& printer : firstOf(mutedPrintersKey))
        notices.setPrinterMuted(printer, true);
    for (const QString& kind : firstOf(mutedKindsKey))
        notices.setKindMuted(kind, true);
}

void ViewSettings::store(const Notices& notices)
{
    m_settings.setValue(mutedUntilKey, notices.mutedUntil().toString(Qt::ISODate));
    m_settings.setValue(mutedPrintersKey, notices.mutedPrinters());
    m_settings.setValue(mutedKindsKey, notices.mutedKinds());
}
