// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "fleet_of_readings.h"
#include "main_window.h"
#include "view_language.h"
#include "view_settings.h"

#include <printer_event.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

#include <array>
#include <memory>

/// The window, on readings that a test makes, with settings that nobody else uses.
class WindowOnReadings
{
public:
    explicit WindowOnReadings(const QString& language)
        : m_settings(m_folder.filePath(QStringLiteral("view.ini")))
        , m_isSpeaking(m_language.use(language))
        , m_window(m_settings, m_language, QString(), QString())
    {}

    MainWindow& operator*() { return m_window; }
    MainWindow* operator->() { return &m_window; }
    ViewLanguage& language() { return m_language; }
    bool isSpeaking() const { return m_isSpeaking; }

    void show(const QList<VxKit::PrinterReading>& readings)
    {
        m_window.setReadings(readings);
        m_window.setListed();
    }

private:
    QTemporaryDir m_folder;
    ViewSettings m_settings;
    ViewLanguage m_language;
    bool m_isSpeaking;
    MainWindow m_window;
};

/// Makes the font of the application so many times as large as it was. The scale of a screen is the
/// same for the whole run of a program; a larger font is what people choose instead, and takes more
/// room beside pictures that stay the same.
class FontOfSize
{
public:
    explicit FontOfSize(int percent)
        : m_before(QApplication::font())
    {
        QFont font = m_before;
        font.setPointSizeF(font.pointSizeF() * percent / 100);
        QApplication::setFont(font);
    }
    ~FontOfSize() { QApplication::setFont(m_before); }
    Q_DISABLE_COPY_MOVE(FontOfSize)

private:
    QFont m_before;
};

/// A fleet in which each printer is another case.
namespace hostile_fleet {

constexpr int coverIsOpen = 4;

/// A name, and how it is to be shown.
struct Name
{
    QString name;
    QString shown;
};

inline QList<Name> names()
{
    const QString wide = QString(60, QChar(u'W'));
    const QString markup = QStringLiteral("<b>Bold</b><img src=x><a href=\"y\">z</a>");
    const QString signs = QStringLiteral("&Amp && %1 %n 0 % off");
    const QString hebrew = QStringLiteral("\u05de\u05d3\u05e4\u05e1\u05ea 12");
    return {{wide, wide},
            {markup, markup},
            {QStringLiteral("Line\nbreak\tand \u001b[31mred\u0007"),
             QStringLiteral("Line\\u000abreak\\u0009and \\u001b[31mred\\u0007")},
            {QStringLiteral("\u202edesrever\u202c \u200f"),
             QStringLiteral("\\u202edesrever\\u202c \\u200f")},
            {signs, signs},
            {hebrew, hebrew},
            {QStringLiteral("\u2028two\u2029"), QStringLiteral("\\u2028two\\u2029")}};
}

inline VxKit::Level levelOf(int number)
{
    VxKit::Level level =
        fleet_of_readings::loaded(QStringLiteral("White Polypropylene"),
                                  {QStringLiteral("#ffffff")}, (number % 97 + 3) / 100.0, 45.7);
    switch (number % 7) {
    case 1: // nothing is known
        return {};
    case 2:
        level = {};
        level.state = VxKit::Level::State::Empty;
        return level;
    case 3: // how much is left is not known
        level.ratio.reset();
        level.meters.reset();
        return level;
    case 4:
        level.state = VxKit::Level::State::NotInCatalogue;
        level.identifier = QStringLiteral("<i>00</i>\u202e");
        level.name.clear();
        return level;
    case 5: // really used up
        level.ratio = 0.0;
        level.meters = 0.0;
        return level;
    default:
        level.labels = 800 + number;
        return level;
    }
}

inline VxKit::PrinterReading readingOf(int number)
{
    using VxKit::PrinterReading;
    constexpr std::array codes{static_cast<int>(VXPrinting::StatusCodes::ready),   coverIsOpen,
                               static_cast<int>(VXPrinting::StatusCodes::unknown), 8,
                               static_cast<int>(VXPrinting::StatusCodes::ready),   999999,
                               static_cast<int>(VXPrinting::StatusCodes::offline), 1};
    const QList<Name> special = names();
    const QString name = number < special.size() ? special.at(number).name
                                                 : QStringLiteral("Printer %1").arg(number);
    PrinterReading reading =
        fleet_of_readings::reading(name, codes[static_cast<std::size_t>(number) % codes.size()]);
    reading.setLevel(VxKit::Slot::Supply, levelOf(number));
    reading.setLevel(VxKit::Slot::Ribbon1, levelOf(number + 1));
    reading.setLevel(VxKit::Slot::Ribbon2, levelOf(number + 2));
    reading.setActive(number == 3);
    if (number % 5 == 0)
        reading.setFirmwareVersion(
            QStringLiteral("<u>9.9</u>\u001b\u202e").repeated(100).left(1023));
    if (number % 11 == 4)
        reading.setOnline(false);
    if (number % 13 == 6) {
        reading.setGone(QDateTime(QDate(2026, 11, 3), QTime(9, 0), Qt::UTC));
        reading.setWatching(PrinterReading::Watching::Gone);
    }
    if (number % 17 == 8)
        reading.setLastReport({});
    return reading;
}

inline QList<VxKit::PrinterReading> readings(int count)
{
    QList<VxKit::PrinterReading> result;
    for (int number = 0; number < count; ++number)
        result.append(readingOf(number));
    return result;
}

/// An event of each of the printers with the special names.
inline QList<VxKit::PrinterEvent> events()
{
    QList<VxKit::PrinterEvent> result;
    for (const Name& each : names()) {
        VxKit::PrinterEvent event;
        event.time = QDateTime(QDate(2026, 11, 3), QTime(9, 0), Qt::UTC);
        event.kind = VxKit::PrinterEvent::Kind::Status;
        event.severity = VxKit::Severity::Error;
        event.key = QStringLiteral("cover_open");
        event.printer = each.name;
        event.code = coverIsOpen;
        result.append(event);
    }
    return result;
}

} // namespace hostile_fleet
