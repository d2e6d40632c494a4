// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_delegate.h"

#include "plain_line.h"
#include "reading_texts.h"

#include <printer_list_model.h>

#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <algorithm>

namespace VxKit {

namespace {

constexpr int slotCount = allSlots.size();
constexpr qsizetype mostTexts = 2000;
/// Up to here, a level is shown as low.
constexpr int lowPercentage = 10;

/// Distances in a row, as fractions of the height of a line.
struct Measures
{
    explicit Measures(const QFontMetrics& metrics)
        : line(metrics.lineSpacing())
        , pad(std::max(3, line / 3))
        , gap(std::max(6, line * 2 / 3))
        , stripe(std::max(3, line / 4))
        , icon(line * 3 / 2)
        , letter(metrics.averageCharWidth())
    {}
    int line;
    int pad;
    int gap;
    int stripe;
    int icon;
    int letter;

    int textsBegin() const { return stripe + gap + icon + gap; }
    /// The least width of the texts and of the levels when they are side by side.
    int leastTexts() const { return 30 * letter; }
    int leastSlot() const { return 16 * letter; }
    int leastBeside() const
    {
        return textsBegin() + leastTexts() + slotCount * (gap + leastSlot()) + gap;
    }
    int block() const { return 3 * line; }
};

void drawText(QPainter* painter, const QRect& rect, Qt::LayoutDirection direction,
              const QString& text)
{
    painter->drawText(rect,
                      static_cast<int>(QStyle::visualAlignment(direction, Qt::AlignLeft) |
                                       Qt::AlignVCenter | Qt::TextSingleLine),
                      text);
}

} // namespace

bool PrinterDelegate::isStacked(int width, const QFontMetrics& metrics)
{
    return width < Measures(metrics).leastBeside();
}

int PrinterDelegate::heightOf(int width, const QFontMetrics& metrics)
{
    const Measures measures(metrics);
    const int blocks = isStacked(width, metrics) ? 2 : 1;
    return blocks * (measures.block() + measures.pad) + measures.pad + 1;
}

int PrinterDelegate::leastWidth(const QFontMetrics& metrics)
{
    const Measures measures(metrics);
    return measures.stripe + measures.gap + slotCount * (measures.gap + 10 * measures.letter);
}

PrinterDelegate::Layout PrinterDelegate::layoutOf(const QRect& row, const QFontMetrics& metrics)
{
    const Measures m(metrics);
    const bool stacked = isStacked(row.width(), metrics);
    Layout layout;
    layout.stripe = {row.left(), row.top(), m.stripe, row.height() - 1};
    const int top = row.top() + m.pad;
    const int iconLeft = row.left() + m.stripe + m.gap;
    layout.icon = {iconLeft, top + (m.block() - m.icon) / 2, m.icon, m.icon};

    const int left = row.left() + m.textsBegin();
    const int right = row.left() + row.width() - m.gap;
    int textWidth = right - left;
    int slotsLeft = iconLeft;
    int slotsTop = top;
    if (stacked) {
        slotsTop = top + m.block() + m.pad;
    } else {
        // The texts take as much as three levels do, but long names and titles at least their
        // share.
        textWidth = std::max(m.leastTexts(), (right - left) * 2 / 5);
        slotsLeft = left + textWidth + m.gap;
    }
    layout.name = {left, top, textWidth, m.line};
    layout.status = {left, top + m.line, textWidth, m.line};
    layout.note = {left, top + 2 * m.line, textWidth, m.line};

    const int slotWidth = (right - slotsLeft - (slotCount - 1) * m.gap) / slotCount;
    const int barHeight = m.line * 3 / 4;
    for (int slot = 0; slot < slotCount; ++slot) {
        Layout::SlotPart& part = layout.slotParts[static_cast<std::size_t>(slot)];
        const int x = slotsLeft + slot * (slotWidth + m.gap);
        part.title = {x, slotsTop, slotWidth, m.line};
        part.bar = {x, slotsTop + m.line + (m.line - barHeight) / 2, slotWidth, barHeight};
        part.text = {x, slotsTop + 2 * m.line, slotWidth, m.line};
    }
    return layout;
}

PrinterDelegate::PrinterDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
    , m_clock(&QDateTime::currentDateTimeUtc)
{}

void PrinterDelegate::forget()
{
    m_texts.clear();
}

QSize PrinterDelegate::sizeHint(const QStyleOptionViewItem& option,
                                const QModelIndex& /*index*/) const
{
    return {leastWidth(option.fontMetrics), heightOf(m_rowWidth, option.fontMetrics)};
}

QFont PrinterDelegate::statusFont(const QFont& font, Severity severity)
{
    QFont result = font;
    if (severity == Severity::Error)
        result.setWeight(QFont::Bold);
    else if (severity == Severity::Warning)
        result.setWeight(QFont::DemiBold);
    return result;
}

const PrinterDelegate::Texts& PrinterDelegate::textsOf(const PrinterReading& reading,
                                                       const Layout& layout,
                                                       const QFont& font) const
{
    const QDateTime now = m_clock();
    const qint64 minute = now.toSecsSinceEpoch() / 60;
    if (m_texts.size() > mostTexts)
        m_texts.clear();
    Texts& texts = m_texts[reading.name()];
    if (texts.width == layout.name.width() && texts.minute == minute && texts.reading == reading)
        return texts;

    QFont bold = font;
    bold.setWeight(QFont::Bold);
    const QFontMetrics metrics(font);
    const QFontMetrics boldMetrics(bold);
    const StatusInfo info = reading.statusInfo();
    texts.reading = reading;
    texts.width = layout.name.width();
    texts.minute = minute;
    texts.icon = readingIcon(reading);
    texts.isStale = ReadingTexts::isStale(reading);
    // The mark of the active printer is behind its name.
    const int nameWidth =
        layout.name.width() - (reading.isActive() ? layout.name.height() * 5 / 4 : 0);
    texts.name = boldMetrics.elidedText(plainLine(reading.name()), Qt::ElideMiddle, nameWidth);
    texts.status =
        QFontMetrics(statusFont(font, info.severity))
            .elidedText(ReadingTexts::status(reading), Qt::ElideRight, layout.status.width());
    QStringList notes;
    notes.append(ReadingTexts::model(reading));
    // Why there is no report says also that there is none.
    const QString presence = ReadingTexts::presence(reading);
    if (!presence.isEmpty() && presence != ReadingTexts::status(reading))
        notes.append(presence);
    if (reading.lastReport().isValid())
        notes.append(ReadingTexts::age(reading.lastReport(), now));
    else if (presence.isEmpty())
        notes.append(ReadingTexts::lastReport(reading, now));
    texts.note =
        metrics.elidedText(notes.join(QStringLiteral(" · ")), Qt::ElideRight, layout.note.width());
    for (std::size_t number = 0; number < allSlots.size(); ++number) {
        const Slot slot = allSlots[number];
        Texts::SlotText& slotText = texts.slotTexts[number];
        slotText.exists = reading.hasSlot(slot);
        if (!slotText.exists)
            continue;
        const Level level = reading.level(slot);
        const int width = layout.slotParts[number].title.width();
        const QString name = levelName(level);
        slotText.title = metrics.elidedText(plainLine(name.isEmpty() ? slotTitle(slot) : name),
                                            Qt::ElideRight, width);
        slotText.isLow = level.percentage().value_or(100) <= lowPercentage;
        const QFontMetrics& textMetrics = slotText.isLow ? boldMetrics : metrics;
        slotText.text = levelText(level);
        if (const QString amount = levelAmount(level); !amount.isEmpty()) {
            // A number that is cut off would be read as another number.
            const QString whole = slotText.text + QStringLiteral(" · ") + amount;
            if (textMetrics.horizontalAdvance(whole) <= width)
                slotText.text = whole;
        }
        slotText.text = textMetrics.elidedText(slotText.text, Qt::ElideRight, width);
        slotText.bar = LevelBar::of(level);
    }
    return texts;
}

void PrinterDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const
{
    const auto reading = index.data(PrinterListModel::ReadingRole).value<PrinterReading>();
    if (reading.isNull())
        return;
    const Layout layout = layoutOf(option.rect, option.fontMetrics);
    const Texts& texts = textsOf(reading, layout, option.font);
    const Severity severity = statusSeverity(reading.statusCode());
    const bool isGone = reading.presence() == PrinterReading::Presence::Gone;
    // Nobody should be called to a fault that may be over.
    const bool isFaded = isGone || reading.isUnheard();
    const bool isUrgent =
        !isFaded && (severity == Severity::Error || severity == Severity::Warning);

    const ViewPalette colors(option.palette);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor background = isSelected ? colors.selection()
                              : isFaded  ? colors.background()
                                         : colors.severityBackground(severity);
    const auto placed = [&](const QRect& rect) {
        return QStyle::visualRect(option.direction, option.rect, rect);
    };

    painter->save();
    painter->setLayoutDirection(option.direction);
    painter->fillRect(option.rect, background);
    if (isUrgent)
        painter->fillRect(placed(layout.stripe), colors.severityText(severity, background));
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      colors.faintLine(background));
    const QColor text = colors.text(background);
    const QColor faded = colors.fadedText(background);
    if (reading.isUnheard())
        paintIcon(*painter, placed(layout.icon), texts.icon, faded, background);
    else
        paintIcon(*painter, placed(layout.icon), texts.icon, colors, background);

    QFont bold = option.font;
    bold.setWeight(QFont::Bold);
    painter->setFont(bold);
    painter->setPen(isFaded ? faded : text);
    drawText(painter, placed(layout.name), option.direction, texts.name);
    if (reading.isActive()) {
        const int side = layout.name.height();
        const int behind = QFontMetrics(bold).horizontalAdvance(texts.name) + side / 4;
        const QRect mark(layout.name.left() + behind, layout.name.top(), side, side);
        paintIcon(*painter, placed(mark), StatusIcon::Active, colors, background);
    }
    painter->setFont(statusFont(option.font, isFaded ? Severity::Ok : severity));
    painter->setPen(isFaded ? faded : colors.severityText(severity, background));
    drawText(painter, placed(layout.status), option.direction, texts.status);
    painter->setFont(option.font);
    painter->setPen(faded);
    drawText(painter, placed(layout.note), option.direction, texts.note);

    for (std::size_t number = 0; number < allSlots.size(); ++number) {
        const Texts::SlotText& slotText = texts.slotTexts[number];
        if (!slotText.exists)
            continue;
        const Layout::SlotPart& part = layout.slotParts[number];
        painter->setPen(texts.isStale ? faded : text);
        drawText(painter, placed(part.title), option.direction, slotText.title);
        slotText.bar.paint(*painter, placed(part.bar), colors, background, option.direction,
                           texts.isStale);
        if (slotText.isLow && !texts.isStale) {
            painter->setPen(colors.severityText(Severity::Warning, background));
            painter->setFont(bold);
        }
        drawText(painter, placed(part.text), option.direction, slotText.text);
        painter->setFont(option.font);
    }

    if (option.state.testFlag(QStyle::State_HasFocus)) {
        const int beside = layout.stripe.width() + 1;
        painter->setPen(QPen(colors.outline(background), 1, Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option.rect.adjusted(beside, 1, -beside - 1, -3));
    }
    painter->restore();
}

} // namespace VxKit
