// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "change_queue.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QPointer>

#include <chrono>
#include <iterator>
#include <utility>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

constexpr auto turnTime = 250us;

} // namespace

ChangeQueue::ChangeQueue(std::function<void(const QString& name)> report, QObject* parent)
    : QObject(parent)
    , m_report(std::move(report))
{}

ChangeQueue::~ChangeQueue() = default;

void ChangeQueue::add(const QString& name)
{
    if (m_places.contains(name))
        return;
    m_names.push_back(name);
    m_places.insert(name, std::prev(m_names.end()));
    requestTurn();
}

bool ChangeQueue::take(const QString& name)
{
    const auto place = m_places.constFind(name);
    if (place == m_places.cend())
        return false;
    m_names.erase(*place);
    m_places.erase(place);
    return true;
}

void ChangeQueue::reportNow(const QString& name)
{
    if (take(name))
        m_report(name);
}

void ChangeQueue::drop(const QString& name)
{
    take(name);
}

void ChangeQueue::rename(const QString& oldName, const QString& newName)
{
    if (take(oldName))
        add(newName);
}

void ChangeQueue::requestTurn()
{
    if (m_isTurnRequested)
        return;
    m_isTurnRequested = true;
    QMetaObject::invokeMethod(this, &ChangeQueue::takeTurn, Qt::QueuedConnection);
}

void ChangeQueue::takeTurn()
{
    m_isTurnRequested = false;
    const QPointer<ChangeQueue> self(this);
    const QDeadlineTimer end(turnTime, Qt::PreciseTimer);
    while (!m_names.empty()) {
        if (end.hasExpired()) {
            requestTurn();
            return;
        }
        const QString name = m_names.front();
        take(name);
        m_report(name);
        if (!self)
            return;
    }
}

} // namespace VxKit
