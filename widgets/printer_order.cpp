// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_order.h"

#include "reading_texts.h"

#include <printer_list_model.h>

#include <QtCore/QDateTime>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace VxKit {

namespace {

/// A change is put in order at once, the changes of a storm together, no more often than this.
constexpr std::chrono::milliseconds arrangeEvery = 250ms;
constexpr qsizetype mostNames = 20000;

/// The worst first.
int rankOf(const PrinterReading& reading)
{
    // What was removed is of no use to anybody who wants to print, and nobody can mend it here.
    if (reading.presence() == PrinterReading::Presence::Gone)
        return 4;
    switch (statusSeverity(reading.statusCode())) {
    case Severity::Error:
        return 0;
    case Severity::Warning:
        return 1;
    case Severity::Information:
        return 2;
    case Severity::Ok:
        return 3;
    }
    return 0;
}

/// The name as people compare it: "printer 2" before "Printer 10". In front of each number stands
/// how many digits it has. Collators can do this too, but not in all locales.
QString comparable(const QString& name)
{
    constexpr qsizetype longestNumber = 99;
    const QString folded = name.toCaseFolded();
    QString result;
    for (qsizetype place = 0; place < folded.size();) {
        qsizetype end = place;
        while (end < folded.size() && folded.at(end).isDigit())
            ++end;
        if (end == place) {
            result += folded.at(place++);
            continue;
        }
        while (place + 1 < end && folded.at(place) == u'0')
            ++place;
        const qsizetype digits = std::min(end - place, longestNumber);
        result += QStringLiteral("%1").arg(digits, 2, 10, QChar(u'0'));
        result += QStringView(folded).sliced(place, end - place);
        place = end;
    }
    return result;
}

bool isAnyOf(const QList<int>& roles, std::initializer_list<int> wanted)
{
    return roles.isEmpty() ||
           std::ranges::any_of(wanted, [&](int role) { return roles.contains(role); });
}

} // namespace

PrinterOrder::PrinterOrder(QObject* parent)
    : QSortFilterProxyModel(parent)
{
    setDynamicSortFilter(false);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &PrinterOrder::arrange);
}

void PrinterOrder::setSourceModel(QAbstractItemModel* model)
{
    if (QAbstractItemModel* const before = sourceModel())
        before->disconnect(&m_timer);
    QSortFilterProxyModel::setSourceModel(model);
    if (model) {
        connect(model, &QAbstractItemModel::dataChanged, &m_timer,
                [this](const QModelIndex&, const QModelIndex&, const QList<int>& roles) {
                    if (!m_words.isEmpty() ||
                        isAnyOf(roles, {PrinterListModel::StatusCodeRole,
                                        PrinterListModel::NameRole, PrinterListModel::PresentRole}))
                        scheduleArranging();
                });
        const auto schedule = [this] {
            scheduleArranging();
        };
        connect(model, &QAbstractItemModel::rowsInserted, &m_timer, schedule);
        connect(model, &QAbstractItemModel::rowsMoved, &m_timer, schedule);
        connect(model, &QAbstractItemModel::modelReset, &m_timer, schedule);
    }
    arrange();
}

QVariant PrinterOrder::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
    case Qt::AccessibleDescriptionRole:
        break;
    default:
        return QSortFilterProxyModel::data(index, role);
    }
    if (!index.isValid())
        return {};
    const PrinterReading reading = readingAt(mapToSource(index).row());
    if (role == Qt::AccessibleTextRole)
        return ReadingTexts::spokenName(reading);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return role == Qt::ToolTipRole ? ReadingTexts::toolTip(reading, now)
                                   : ReadingTexts::spokenDetails(reading, now);
}

void PrinterOrder::setOrder(Order order)
{
    if (std::exchange(m_order, order) != order)
        arrange();
}

void PrinterOrder::setFilterText(const QString& text)
{
    if (std::exchange(m_filterText, text) == text)
        return;
    m_words = text.simplified().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
    arrange();
}

void PrinterOrder::setSeverity(std::optional<Severity> severity)
{
    if (std::exchange(m_severity, severity) == severity)
        return;
    invalidateFilter();
    arrange();
}

void PrinterOrder::arrange()
{
    m_timer.stop();
    m_sinceArranged.start();
    QAbstractItemModel* const source = sourceModel();
    if (!source)
        return;
    if (!m_words.isEmpty() || m_severity)
        invalidateFilter();
    if (m_nameKeys.size() > mostNames)
        m_nameKeys.clear();
    const int count = source->rowCount();
    m_keys.clear();
    m_keys.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row)
        m_keys.push_back(keyOf(row));
    // Sorting what is in order would make the views lay out everything anew.
    bool isInOrder = sortColumn() == 0;
    for (int row = 1; isInOrder && row < rowCount(); ++row)
        isInOrder = !lessThan(mapToSource(index(row, 0)), mapToSource(index(row - 1, 0)));
    if (!isInOrder) {
        // The same order is not sorted again.
        sort(-1);
        sort(0);
    }
}

void PrinterOrder::arrangeIfDue()
{
    if (m_timer.isActive())
        arrange();
}

bool PrinterOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const auto leftRow = static_cast<std::size_t>(left.row());
    const auto rightRow = static_cast<std::size_t>(right.row());
    if (leftRow >= m_keys.size() || rightRow >= m_keys.size())
        return leftRow < rightRow;
    const Key& leftKey = m_keys[leftRow];
    const Key& rightKey = m_keys[rightRow];
    if (m_order == Order::WorstFirst && leftKey.rank != rightKey.rank)
        return leftKey.rank < rightKey.rank;
    return leftKey.name.compare(rightKey.name) < 0;
}

bool PrinterOrder::filterAcceptsRow(int row, const QModelIndex& /*parent*/) const
{
    if (m_words.isEmpty() && !m_severity)
        return true;
    const PrinterReading reading = readingAt(row);
    if (m_severity && (reading.presence() == PrinterReading::Presence::Gone ||
                       statusSeverity(reading.statusCode()) != *m_severity))
        return false;
    if (m_words.isEmpty())
        return true;
    QStringList texts{reading.name(), ReadingTexts::model(reading), reading.driver(),
                      reading.port(), reading.serialNumber(),       ReadingTexts::status(reading)};
    const QList<Slot> slotList = reading.slotList();
    for (const Slot slot : slotList)
        texts << reading.level(slot).name << reading.level(slot).sku;
    const QString text = texts.join(u'\n');
    return std::ranges::all_of(
        m_words, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

PrinterOrder::Key PrinterOrder::keyOf(int sourceRow)
{
    const PrinterReading reading = readingAt(sourceRow);
    return {rankOf(reading), nameKey(reading.name())};
}

const QCollatorSortKey& PrinterOrder::nameKey(const QString& name)
{
    auto found = m_nameKeys.constFind(name);
    if (found == m_nameKeys.constEnd())
        found = m_nameKeys.insert(name, m_collator.sortKey(comparable(name)));
    return *found;
}

void PrinterOrder::scheduleArranging()
{
    if (m_timer.isActive())
        return;
    const auto since = m_sinceArranged.isValid()
                           ? std::chrono::milliseconds(m_sinceArranged.elapsed())
                           : arrangeEvery;
    m_timer.start(std::max(arrangeEvery - since, 0ms));
}

PrinterReading PrinterOrder::readingAt(int sourceRow) const
{
    return sourceModel()
        ->data(sourceModel()->index(sourceRow, 0), PrinterListModel::ReadingRole)
        .value<PrinterReading>();
}

} // namespace VxKit
