// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "view_palette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace VxKit {

namespace {

/// The colours of the severities, in the order of `Severity`. They were chosen so that each two of
/// them differ for people with any of the three colour blindnesses too, which a test checks.
constexpr std::array lightColors{qRgb(0x12, 0x7e, 0x5f), qRgb(0x10, 0x3a, 0xb9),
                                 qRgb(0xa2, 0x5f, 0x01), qRgb(0x97, 0x0d, 0x1d)};
constexpr std::array darkColors{qRgb(0x49, 0xfd, 0xd4), qRgb(0x78, 0x92, 0xe0),
                                qRgb(0xff, 0xcd, 0x1b), qRgb(0xfd, 0x56, 0x57)};
constexpr QRgb lightCurve = qRgb(0x10, 0x3a, 0xb9);
constexpr QRgb darkCurve = qRgb(0x78, 0x92, 0xe0);

constexpr double fadedShare = 0.62;
constexpr double outlineShare = 0.55;
constexpr double faintShare = 0.14;
constexpr double troughShare = 0.10;
constexpr double selectionShare = 0.25;
constexpr double lightTintShare = 0.09;
constexpr double darkTintShare = 0.20;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrastOf(double one, double other)
{
    const auto [darker, lighter] = std::minmax(one, other);
    return (lighter + 0.05) / (darker + 0.05);
}

/// The smallest share of `end` with which a colour is readable; more than 1 when none is.
double shareNeeded(const QColor& wanted, const QColor& end, double background, double least)
{
    if (contrastOf(luminance(end), background) < least)
        return 2.0;
    double tooLittle = 0.0;
    double enough = 1.0;
    for (int step = 0; step < 8; ++step) { // no colour has more shades
        const double share = (tooLittle + enough) / 2;
        const double mixed = luminance(ViewPalette::mixed(end, wanted, share));
        const bool isOnItsSide = (mixed > background) == (luminance(end) > background);
        (isOnItsSide && contrastOf(mixed, background) >= least ? enough : tooLittle) = share;
    }
    return enough;
}

QColor opaque(const QColor& color)
{
    return QColor::fromRgb(color.red(), color.green(), color.blue());
}

} // namespace

ViewPalette::ViewPalette(const QPalette& palette)
    : m_background(opaque(palette.color(QPalette::Base)))
    , m_text(opaque(palette.color(QPalette::Text)))
    , m_highlight(opaque(palette.color(QPalette::Highlight)))
{}

bool ViewPalette::isDark() const
{
    return luminance(m_text) > luminance(m_background);
}

QColor ViewPalette::selection() const
{
    return mixed(m_highlight, m_background, selectionShare);
}

QColor ViewPalette::selectionEdge() const
{
    return readable(m_highlight, m_background, outlineContrast);
}

QColor ViewPalette::text(const QColor& background) const
{
    return readable(m_text, background);
}

QColor ViewPalette::fadedText(const QColor& background) const
{
    return readable(mixed(text(background), background, fadedShare), background);
}

QColor ViewPalette::outline(const QColor& background) const
{
    return readable(mixed(text(background), background, outlineShare), background, outlineContrast);
}

QColor ViewPalette::faintLine(const QColor& background) const
{
    return mixed(text(background), background, faintShare);
}

QColor ViewPalette::trough(const QColor& background) const
{
    return mixed(text(background), background, troughShare);
}

QColor ViewPalette::curve(const QColor& background) const
{
    return readable(QColor::fromRgb(isDark() ? darkCurve : lightCurve), background);
}

QColor ViewPalette::severityText(Severity severity, const QColor& background) const
{
    const auto index = std::min(static_cast<std::size_t>(severity), lightColors.size() - 1);
    // By the background, which need not be the palette's own.
    const bool isOnDark = contrast(background, Qt::white) > contrast(background, Qt::black);
    return readable(QColor::fromRgb((isOnDark ? darkColors : lightColors).at(index)), background);
}

QColor ViewPalette::severityBackground(Severity severity) const
{
    if (severity == Severity::Ok || severity == Severity::Information)
        return m_background;
    return mixed(severityText(severity, m_background), m_background,
                 isDark() ? darkTintShare : lightTintShare);
}

double ViewPalette::contrast(const QColor& one, const QColor& other)
{
    return contrastOf(luminance(one), luminance(other));
}

QColor ViewPalette::readable(const QColor& wanted, const QColor& background, double least)
{
    const double behind = luminance(background);
    if (contrastOf(luminance(wanted), behind) >= least)
        return wanted;
    const double black = shareNeeded(wanted, Qt::black, behind, least);
    const double white = shareNeeded(wanted, Qt::white, behind, least);
    if (black > 1.0 && white > 1.0)
        return contrast(Qt::black, background) > contrast(Qt::white, background) ? Qt::black
                                                                                 : Qt::white;
    return black <= white ? mixed(Qt::black, wanted, black) : mixed(Qt::white, wanted, white);
}

QColor ViewPalette::mixed(const QColor& first, const QColor& second, double share)
{
    const auto channel = [share](int one, int other) {
        return static_cast<int>(std::lround(share * one + (1.0 - share) * other));
    };
    return {channel(first.red(), second.red()), channel(first.green(), second.green()),
            channel(first.blue(), second.blue())};
}

} // namespace VxKit
