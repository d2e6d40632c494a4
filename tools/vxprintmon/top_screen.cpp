// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "top_screen.h"

#include "json_text.h"
#include "output.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QEvent>
#include <QtCore/QMutex>
#include <QtCore/QTime>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;
using VxKit::PrinterReading;

namespace {

struct Held
{
    QMutex guard;
    QtMessageHandler previous = nullptr;
    QStringList messages;
};

Held& held()
{
    static Held held;
    return held;
}

void hold(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtFatalMsg) {
        held().previous(type, context, message);
        return;
    }
    constexpr qsizetype most = 20;
    const QMutexLocker locker(&held().guard);
    if (type != QtDebugMsg && held().messages.size() < most && !held().messages.contains(message))
        held().messages.append(message);
}

} // namespace

HeldBackMessages::HeldBackMessages()
{
    held().previous = qInstallMessageHandler(hold);
}

HeldBackMessages::~HeldBackMessages()
{
    qInstallMessageHandler(held().previous);
    for (const QStringList messages = std::exchange(held().messages, {});
         const QString& message : messages)
        qWarning().noquote() << message;
}

TopScreen::TopScreen(Output& output, FullScreen& screen, const Readings& readings)
    : m_output(output)
    , m_screen(screen)
    , m_readings(readings)
{
    m_view.depth = output.depth();
    m_drawing.setSingleShot(true);
    m_sinceDrawn.start();
    m_sincePolled.start();
    connect(&m_drawing, &QTimer::timeout, this, &TopScreen::draw);
    connect(&m_clock, &QTimer::timeout, this, &TopScreen::scheduleDrawing);
    m_clock.start(1s);
    connect(&screen, &FullScreen::pressed, this, &TopScreen::onPressed);
    connect(&screen, &FullScreen::redrawNeeded, this, [this] {
        m_drawn.clear();
        m_mustClear = true;
        draw();
    });
    connect(&screen, &FullScreen::endRequested, QCoreApplication::instance(),
            &QCoreApplication::quit);
    draw();
}

void TopScreen::noteChange()
{
    m_hasChanged = true;
    scheduleDrawing();
}

void TopScreen::setAbout(const top_table::About& about)
{
    m_view.about = about;
    scheduleDrawing();
}

bool TopScreen::eventFilter(QObject* /*receiver*/, QEvent* event)
{
    if (event->type() != QEvent::MetaCall)
        return false;
    if (!m_isQuitting && !m_screen.mustEnd()) {
        if (m_sincePolled.hasExpired(interval.count())) {
            m_sincePolled.restart();
            m_screen.poll();
            if (m_drawing.isActive() && m_sinceDrawn.hasExpired(interval.count()))
                draw();
        }
        return false;
    }
    QCoreApplication::quit();
    return true;
}

/// Draws soon.
void TopScreen::scheduleDrawing()
{
    if (m_drawing.isActive())
        return;
    const auto since = std::chrono::milliseconds(m_sinceDrawn.elapsed());
    m_drawing.start(std::max<std::chrono::milliseconds>(interval - since, 0ms));
}

void TopScreen::draw()
{
    if (std::exchange(m_hasChanged, false)) {
        m_sorted = m_readings();
        sort();
    }
    m_drawing.stop();
    m_view.size = m_screen.size();
    m_view.first =
        std::min(m_view.first, top_table::lastFirst(m_sorted.size(), m_view.size.height()));
    m_view.clock = QTime::currentTime().toString(QStringLiteral("HH:mm:ss"));
    const QStringList lines = top_table::lines(m_sorted, m_view);
    QString changes;
    if (std::exchange(m_mustClear, false))
        changes += QLatin1String("\033[2J");
    for (qsizetype row = 0; row < lines.size(); ++row) {
        // The line is emptied first: after a line as wide as the screen, that would take its
        // last character away.
        if (m_drawn.size() <= row || m_drawn.at(row) != lines.at(row))
            changes += QStringLiteral("\033[%1;1H\033[2K").arg(row + 1) + lines.at(row);
    }
    m_drawn = lines;
    if (!changes.isEmpty())
        m_output.text(changes);
    if (m_output.isOver())
        QCoreApplication::quit();
    m_sinceDrawn.restart();
}

void TopScreen::onPressed(KeyPress press)
{
    const int rows = m_screen.size().height();
    const qsizetype page = std::max<qsizetype>(top_table::readingsOn(rows), 1);
    const qsizetype last = top_table::lastFirst(m_sorted.size(), rows);
    qsizetype first = m_view.first;
    switch (press.key) {
    case Key::Up:
        first -= 1;
        break;
    case Key::Down:
        first += 1;
        break;
    case Key::PageUp:
        first -= page;
        break;
    case Key::PageDown:
        first += page;
        break;
    case Key::Home:
        first = 0;
        break;
    case Key::End:
        first = last;
        break;
    case Key::Character:
        onCharacter(press.character);
        return;
    case Key::Other:
        return;
    }
    m_view.first = std::clamp<qsizetype>(first, 0, last);
    scheduleDrawing();
}

void TopScreen::onCharacter(char character)
{
    using top_table::Order;
    switch (character) {
    case 'q':
    case 'Q':
        m_isQuitting = true;
        QCoreApplication::quit();
        return;
    case 's':
        m_view.order = Order::Severity;
        break;
    case 'n':
        m_view.order = Order::Name;
        break;
    case 'l':
        m_view.order = Order::Level;
        break;
    default:
        return;
    }
    m_view.first = 0;
    sort();
    scheduleDrawing();
}

void printTopJson(Output& output, QList<PrinterReading> readings)
{
    top_table::sort(readings, top_table::Order::Severity);
    QStringList texts;
    for (const PrinterReading& reading : std::as_const(readings))
        texts.append(json_text::value(reading.toJson()));
    output.text(json_text::lines(texts));
}
