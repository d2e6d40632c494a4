// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "printer_details.h"

#include "history_loader.h"
#include "level_bar.h"
#include "plain_line.h"
#include "printer_list_model.h"
#include "reading_texts.h"
#include "slot_section.h"
#include "status_icons.h"
#include "usage_history.h"
#include "view_palette.h"
#include "wrapped_label.h"

#include <QtCore/QAbstractItemModel>
#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QHash>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QStackedLayout>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace VxKit {

namespace {

constexpr qsizetype mostEvents = 200;
/// Events of so many printers are kept; then those of the printer whose last one is oldest go.
constexpr qsizetype mostPrintersWithEvents = 5000;
constexpr int nameLetters = 24;
/// Words of raw values up to this length are not broken: "Stratamark".
constexpr int lettersOfValues = 18;
constexpr int iconLines = 2;
constexpr std::chrono::minutes clockStep{1};
/// So far back the shorter plots look, and a day, so that the value at their beginning is known.
constexpr int daysRead = 8;

constexpr std::array allSpans{PrinterDetails::Span::Day, PrinterDetails::Span::Week,
                              PrinterDetails::Span::Roll};

QString spanText(PrinterDetails::Span span)
{
    switch (span) {
    case PrinterDetails::Span::Day:
        return PrinterDetails::tr("Day");
    case PrinterDetails::Span::Week:
        return PrinterDetails::tr("Week");
    case PrinterDetails::Span::Roll:
        break;
    }
    return PrinterDetails::tr("Roll");
}

QString numberText(const std::optional<quint32>& number)
{
    return number ? QString::number(*number) : QString();
}

/// Why the values of a printer are not what it reports now; empty when they are.
QString watchingText(const PrinterReading& reading)
{
    switch (reading.watching()) {
    case PrinterReading::Watching::Watched:
        return {};
    case PrinterReading::Watching::OfflineSinceDiscovery:
        return PrinterDetails::tr("Offline since printers were looked for. Switch it on, then look "
                                  "for printers again.");
    case PrinterReading::Watching::NetworkPrinter:
        return PrinterDetails::tr("A network printer, which cannot be watched.");
    case PrinterReading::Watching::NotManaged:
        return PrinterDetails::tr("You may not administer this printer, so it cannot be watched.");
    case PrinterReading::Watching::NotDiscovered:
        return PrinterDetails::tr("New. Look for printers to watch it.");
    case PrinterReading::Watching::Replaced:
        return PrinterDetails::tr("Removed and added again. Restart the program to watch it.");
    case PrinterReading::Watching::AgentOffline:
    case PrinterReading::Watching::NotConnected:
        return PrinterDetails::tr("%1. %2", "a reason and an explanation")
            .arg(ReadingTexts::presence(reading), reading.statusInfo().explanation);
    case PrinterReading::Watching::Gone:
        break;
    }
    return reading.goneSince().isValid()
               ? PrinterDetails::tr("Removed on %1").arg(ReadingTexts::time(reading.goneSince()))
               : PrinterDetails::tr("Removed");
}

/// A name and a value of the printer's driver.
struct RawValue
{
    QString name;
    QString value; ///< empty: not known
};

QList<RawValue> rawValues(const PrinterReading& reading)
{
    QList<RawValue> values{
        {PrinterDetails::tr("Status code"), QString::number(reading.statusCode())},
        {PrinterDetails::tr("Port"), reading.port()},
        {PrinterDetails::tr("Driver"), reading.driver()},
        {PrinterDetails::tr("Serial number"), reading.serialNumber()},
        {PrinterDetails::tr("Firmware"), reading.firmwareVersion()},
        {PrinterDetails::tr("Boot loader"), reading.bootVersion()},
        {PrinterDetails::tr("Update progress"), numberText(reading.updateProgress())},
        {PrinterDetails::tr("Update error"), numberText(reading.updateError())},
        {PrinterDetails::tr("Network"), reading.ethernetConfig()},
    };
    const QList<Slot> slotsOfModel = reading.slotList();
    for (const Slot slot : slotsOfModel) {
        const Level level = reading.level(slot);
        const QString name = slotTitle(slot);
        values.append({PrinterDetails::tr("%1, identifier").arg(name), level.identifier});
        values.append({level.mileageUnit == Level::MileageUnit::Percent
                           ? PrinterDetails::tr("%1, mileage in percent").arg(name)
                           : PrinterDetails::tr("%1, mileage in millimetres").arg(name),
                       numberText(level.mileage)});
    }
    values.append({PrinterDetails::tr("Last report"), ReadingTexts::time(reading.lastReport())});
    for (RawValue& each : values)
        each.value = each.value.isEmpty() ? PrinterDetails::tr("not known") : plainLine(each.value);
    return values;
}

/// Whether an event is to be marked in the plot of a slot.
bool isMarkedIn(const PrinterEvent& event, Slot slot)
{
    return event.slot ? *event.slot == slot : event.severity >= Severity::Warning;
}

} // namespace

class PrinterDetails::Private
{
public:
    explicit Private(PrinterDetails* details)
        : q(details)
    {}

    void build();
    QWidget* buildPage();
    QLabel* heading(QVBoxLayout* layout);
    void retranslate();

    void findPrinter();
    void findPrinter(int first, int last);
    void follow(const QModelIndex& first, const QModelIndex& last);
    /// Shows the row of the printer, or that there is none.
    void show();
    void showStatus();
    void showUpdate();
    void showSlots();
    void showRawValues();
    void showEvents();
    void showMarks();
    void showSpan();
    void takeHistory(const PrinterHistory& history);
    QDateTime now() const { return clock ? clock() : QDateTime::currentDateTime(); }
    bool isShown(Slot slot) const { return reading.hasSlot(slot); }

    PrinterDetails* const q;
    QPointer<QAbstractItemModel> model;
    QPersistentModelIndex index;
    QString printer;
    PrinterReading reading;
    QString historyFile;
    QString historyError;
    QList<QString> identifiers; ///< of what was loaded when the history was read
    QHash<Slot, QDateTime> loadedSince;
    QHash<QString, QList<PrinterEvent>> events; ///< by printer, the newest last
    PictureSource pictures;
    Span span = Span::Day;
    std::function<QDateTime()> clock;
    bool areEventsOld = true; ///< the list of events shows those of another printer or language
    HistoryLoader loader;
    QTimer clockTimer;

    QStackedLayout* pages = nullptr;
    WrappedLabel* nothing = nullptr;
    QWidget* page = nullptr;
    QLabel* icon = nullptr;
    WrappedLabel* name = nullptr;
    WrappedLabel* modelLine = nullptr;
    WrappedLabel* status = nullptr;
    WrappedLabel* explanation = nullptr;
    WrappedLabel* remedy = nullptr;
    QProgressBar* update = nullptr;
    WrappedLabel* updateError = nullptr;
    QHash<Span, QAction*> spanActions;
    WrappedLabel* historyLine = nullptr;
    QList<SlotSection*> sections;
    QLabel* eventsHeading = nullptr;
    QListWidget* eventList = nullptr;
    QLabel* valuesHeading = nullptr;
    QGridLayout* values = nullptr;
    QList<WrappedLabel*> valueLabels;
    QList<WrappedLabel*> valueNames;
};

void PrinterDetails::Private::build()
{
    pages = new QStackedLayout(q);
    nothing = new WrappedLabel(q);
    nothing->setContentsMargins(0, 0, 0, 0);
    auto* nothingPage = new QWidget(q);
    auto* nothingLayout = new QVBoxLayout(nothingPage);
    nothingLayout->addWidget(nothing);
    nothingLayout->addStretch();
    pages->addWidget(nothingPage);

    auto* scroll = new QScrollArea(q);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    page = buildPage();
    scroll->setWidget(page);
    pages->addWidget(scroll);
    retranslate();
}

QLabel* PrinterDetails::Private::heading(QVBoxLayout* layout)
{
    auto* label = new WrappedLabel(q);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    layout->addSpacing(8);
    layout->addWidget(label);
    return label;
}

QWidget* PrinterDetails::Private::buildPage()
{
    auto* content = new QWidget(q);
    auto* layout = new QVBoxLayout(content);
    icon = new QLabel(q);
    name = new WrappedLabel(q);
    QFont large = name->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.3);
    name->setFont(large);
    modelLine = new WrappedLabel(q);
    status = new WrappedLabel(q);
    QFont bold = status->font();
    bold.setBold(true);
    status->setFont(bold);
    explanation = new WrappedLabel(q);
    remedy = new WrappedLabel(q);
    auto* words = new QVBoxLayout;
    for (WrappedLabel* each : {name, modelLine, status, explanation, remedy})
        words->addWidget(each);
    auto* top = new QHBoxLayout;
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(words, 1);
    layout->addLayout(top);

    update = new QProgressBar(q);
    layout->addWidget(update);
    updateError = new WrappedLabel(q);
    layout->addWidget(updateError);

    auto* spans = new QHBoxLayout;
    spans->setSpacing(3);
    auto* group = new QActionGroup(q);
    for (const Span each : allSpans) {
        auto* action = new QAction(q);
        action->setCheckable(true);
        // In dark colours, some styles hardly tell a pressed button from the others.
        connect(action, &QAction::toggled, action, [action](bool isChosen) {
            QFont font = action->font();
            font.setBold(isChosen);
            action->setFont(font);
        });
        action->setChecked(each == span);
        group->addAction(action);
        spanActions.insert(each, action);
        connect(action, &QAction::triggered, q, [this, each] { q->setSpan(each); });
        auto* button = new QToolButton(q);
        button->setDefaultAction(action);
        button->setFocusPolicy(Qt::StrongFocus);
        spans->addWidget(button);
    }
    spans->addStretch();
    layout->addSpacing(8);
    layout->addLayout(spans);
    historyLine = new WrappedLabel(q);
    layout->addWidget(historyLine);
    for (const Slot slot : allSlots) {
        sections.append(new SlotSection(slot, q));
        layout->addWidget(sections.last());
    }

    eventsHeading = heading(layout);
    eventList = new QListWidget(q);
    eventList->setWordWrap(true);
    const int iconSide = QFontMetrics(eventList->font()).height();
    eventList->setIconSize(QSize(iconSide, iconSide));
    eventList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    eventList->setFixedHeight(10 * QFontMetrics(eventList->font()).height());
    layout->addWidget(eventList);
    valuesHeading = heading(layout);
    // A form layout does not give long names the lines that they need.
    values = new QGridLayout;
    values->setColumnStretch(1, 1);
    layout->addLayout(values);
    // Everything is as high as it needs to be.
    layout->addStretch(1);
    return content;
}

void PrinterDetails::Private::retranslate()
{
    for (const Span each : allSpans)
        spanActions.value(each)->setText(spanText(each));
    spanActions.value(Span::Day)->setToolTip(tr("The last 24 hours"));
    spanActions.value(Span::Week)->setToolTip(tr("The last seven days"));
    spanActions.value(Span::Roll)->setToolTip(tr("Since this roll or ribbon was loaded"));
    eventsHeading->setText(tr("Last events"));
    eventList->setAccessibleName(tr("Last events"));
    valuesHeading->setText(tr("What the driver reports"));
    update->setAccessibleName(tr("Firmware update"));
    show();
}

void PrinterDetails::Private::findPrinter()
{
    findPrinter(0, model ? model->rowCount() - 1 : -1);
}

void PrinterDetails::Private::findPrinter(int first, int last)
{
    index = QPersistentModelIndex();
    if (!model || printer.isEmpty())
        return;
    for (int row = first; row <= last; ++row) {
        const QModelIndex each = model->index(row, 0);
        if (each.data(PrinterListModel::NameRole).toString() == printer) {
            index = each;
            return;
        }
    }
}

void PrinterDetails::Private::follow(const QModelIndex& first, const QModelIndex& last)
{
    if (index.isValid() && (index.row() < first.row() || index.row() > last.row()))
        return;
    if (!index.isValid())
        findPrinter(first.row(), last.row()); // one of them may have been given the name
    if (index.isValid()) {
        const QString current = index.data(PrinterListModel::NameRole).toString();
        if (current != printer && !current.isEmpty()) { // it has been renamed
            events.insert(current, events.take(printer) + events.value(current));
            printer = current;
            areEventsOld = true;
            Q_EMIT q->printerChanged(printer);
        }
        show();
    }
}

void PrinterDetails::Private::show()
{
    reading = index.isValid() ? index.data(PrinterListModel::ReadingRole).value<PrinterReading>()
                              : PrinterReading();
    if (reading.isNull()) {
        nothing->setText(printer.isEmpty()
                             ? tr("Choose a printer to see everything about it.")
                             : tr("There is no printer \"%1\".").arg(plainLine(printer)));
        pages->setCurrentIndex(0);
        return;
    }
    showStatus();
    showUpdate();
    showSlots();
    showSpan();
    if (std::exchange(areEventsOld, false))
        showEvents();
    showRawValues();
    pages->setCurrentIndex(1);
}

void PrinterDetails::Private::showStatus()
{
    const QColor background = q->palette().color(QPalette::Window);
    const ViewPalette colors(q->palette());
    const StatusIcon symbol = readingIcon(reading);
    const int side = iconLines * QFontMetrics(q->font()).height();
    icon->setPixmap(
        statusIcon(symbol, colors, background).pixmap(QSize(side, side), q->devicePixelRatioF()));
    icon->setAccessibleName(iconName(symbol));
    name->setLine(reading.name());
    QStringList about{ReadingTexts::model(reading)};
    if (reading.isActive())
        about.append(tr("Active printer"));
    if (reading.presence() == PrinterReading::Presence::Present && !reading.isUnheard())
        about.append(reading.isOnline() ? tr("Online") : tr("Offline"));
    modelLine->setLine(about.join(QStringLiteral(" \u00b7 ")));

    const StatusInfo info = reading.statusInfo();
    status->setLine(info.shortTitle);
    QPalette inColor = q->palette();
    inColor.setColor(QPalette::WindowText,
                     info.severity >= Severity::Warning && !reading.isUnheard()
                         ? colors.severityText(info.severity, background)
                         : colors.text(background));
    status->setPalette(inColor);
    const QString watching = watchingText(reading);
    explanation->setLine(watching.isEmpty() ? info.explanation : watching);
    remedy->setLine(info.severity == Severity::Ok ? QString() : info.remedy);
}

void PrinterDetails::Private::showUpdate()
{
    const bool isUpdating = statusKey(reading.statusCode()) == QLatin1String("firmware_updating");
    update->setVisible(isUpdating);
    const std::optional<quint32> progress = reading.updateProgress();
    if (progress && *progress <= 100) {
        update->setRange(0, 100);
        update->setValue(static_cast<int>(*progress));
    } else {
        update->setRange(0, 0); // under way, but it is not known how far
    }
    update->setFormat(tr("Firmware update: %p %"));
    const quint32 error = reading.updateError().value_or(0);
    updateError->setLine(error == 0 ? QString()
                                    : tr("Firmware update failed, error %1").arg(error));
}

void PrinterDetails::Private::showSlots()
{
    QList<QString> loaded;
    const QDateTime time = now();
    for (SlotSection* section : std::as_const(sections)) {
        section->setVisible(isShown(section->slot()));
        if (!isShown(section->slot()))
            continue;
        loaded.append(reading.level(section->slot()).identifier);
        section->show(reading, time, pictures);
    }
    if (std::exchange(identifiers, loaded) != loaded)
        q->readHistory();
}

void PrinterDetails::Private::showRawValues()
{
    const QList<RawValue> raw = rawValues(reading);
    while (valueLabels.size() > raw.size()) {
        delete valueLabels.takeLast();
        delete valueNames.takeLast();
    }
    while (valueLabels.size() < raw.size()) {
        const auto row = static_cast<int>(valueLabels.size());
        valueNames.append(new WrappedLabel(q));
        valueLabels.append(new WrappedLabel(q));
        valueLabels.last()->keepWordsOf(lettersOfValues);
        values->addWidget(valueNames.last(), row, 0);
        values->addWidget(valueLabels.last(), row, 1);
    }
    // Long names are wrapped, so that they make the page no wider.
    const int widestName = nameLetters * QFontMetrics(q->font()).averageCharWidth();
    for (qsizetype row = 0; row < raw.size(); ++row) {
        valueNames.at(row)->setText(raw.at(row).name);
        valueNames.at(row)->setMaximumWidth(widestName);
        valueLabels.at(row)->setText(raw.at(row).value);
        valueLabels.at(row)->setAccessibleName(
            tr("%1: %2", "a name and its value").arg(raw.at(row).name, raw.at(row).value));
    }
}

void PrinterDetails::Private::showEvents()
{
    const QList<PrinterEvent> own = events.value(printer);
    const QList<PrinterEvent> newestFirst(own.crbegin(), own.crend());
    const ViewPalette colors(q->palette());
    eventList->clear();
    for (const PrinterEvent& event : newestFirst) {
        const StatusIcon symbol = severityIcon(event.severity);
        const QString text = tr("%1  %2", "a time and what happened then")
                                 .arg(ReadingTexts::time(event.time), plainLine(eventText(event)));
        auto* item =
            new QListWidgetItem(statusIcon(symbol, colors, colors.background()), text, eventList);
        item->setData(Qt::AccessibleTextRole,
                      tr("%1: %2", "a severity and what happened").arg(iconName(symbol), text));
    }
    if (own.isEmpty())
        new QListWidgetItem(tr("Nothing has happened yet."), eventList);
    showMarks();
}

void PrinterDetails::Private::showMarks()
{
    const QList<PrinterEvent> own = events.value(printer);
    for (SlotSection* section : std::as_const(sections)) {
        QList<LevelPlot::Mark> marks;
        for (const PrinterEvent& event : own) {
            if (isMarkedIn(event, section->slot()))
                marks.append({event.time, event.severity, eventText(event)});
        }
        section->plot().setMarks(marks);
    }
}

void PrinterDetails::Private::showSpan()
{
    const QDateTime time = now();
    // All plots have the same axis, so that one can be compared with the other. With a forecast, a
    // third of it is for what is to come.
    const bool hasForecast = std::any_of(allSlots.begin(), allSlots.end(), [this](Slot slot) {
        return reading.estimatedSecondsRemaining(slot).has_value();
    });
    for (SlotSection* section : std::as_const(sections)) {
        const Slot slot = section->slot();
        QDateTime from = time.addDays(span == Span::Week ? -7 : -1);
        if (span == Span::Roll) {
            const QDateTime begin = loadedSince.value(slot, section->plotBegin());
            from = begin.isValid() ? std::min(begin, time.addSecs(-3600)) : from;
        }
        const qint64 past = from.secsTo(time);
        section->plot().setKnownUntil(time);
        section->plot().setTimeRange(from, time.addSecs(hasForecast ? past / 2 : past / 50));
    }
}

void PrinterDetails::Private::takeHistory(const PrinterHistory& history)
{
    if (reading.isNull() || history.printerKey != UsageHistory::printerKey(reading))
        return; // another printer is shown by now
    historyError = history.error;
    historyLine->setLine(history.error.isEmpty()
                             ? QString()
                             : tr("The history cannot be read: %1").arg(history.error));
    QList<LevelPlot::Gap> gaps;
    for (const UsageGap& gap : history.gaps)
        gaps.append({gap.since, gap.until});
    loadedSince.clear();
    for (SlotSection* section : std::as_const(sections)) {
        const PrinterHistory::OfSlot ofSlot = history.ofSlots.value(section->slot());
        if (ofSlot.loadedSince.isValid())
            loadedSince.insert(section->slot(), ofSlot.loadedSince);
        QList<LevelPlot::Sample> ratios;
        QList<LevelPlot::Sample> meters;
        for (const UsageSample& sample : ofSlot.samples) {
            const qint64 time = sample.time.toMSecsSinceEpoch();
            ratios.append({time, sample.ratio.value_or(qQNaN())});
            meters.append({time, sample.meters.value_or(qQNaN())});
        }
        section->setPast(ratios, meters);
        section->plot().setGaps(gaps);
    }
    showSpan();
}

PrinterDetails::PrinterDetails(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->build();
    connect(&d->loader, &HistoryLoader::loaded, this,
            [this](const PrinterHistory& history) { d->takeHistory(history); });
    connect(&d->clockTimer, &QTimer::timeout, this, [this] {
        if (!d->reading.isNull())
            d->showSpan();
    });
    d->clockTimer.start(clockStep);
}

PrinterDetails::~PrinterDetails() = default;

void PrinterDetails::setModel(QAbstractItemModel* model)
{
    if (d->model)
        disconnect(d->model, nullptr, this, nullptr);
    d->model = model;
    const auto findAgain = [this] {
        d->findPrinter();
        d->show();
    };
    if (model) {
        connect(
            model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& first, const QModelIndex& last) { d->follow(first, last); });
        for (const auto signal :
             {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
            connect(model, signal, this, [this, findAgain] {
                if (!d->index.isValid())
                    findAgain();
            });
        connect(model, &QAbstractItemModel::modelReset, this, findAgain);
        connect(model, &QObject::destroyed, this, findAgain);
    }
    findAgain();
}

QAbstractItemModel* PrinterDetails::model() const
{
    return d->model;
}

void PrinterDetails::setPrinter(const QString& name)
{
    if (name == d->printer)
        return;
    d->printer = name;
    d->areEventsOld = true;
    d->identifiers.clear();
    d->loadedSince.clear();
    d->historyLine->setLine({});
    for (SlotSection* section : std::as_const(d->sections)) {
        section->begin();
        section->plot().setGaps({});
        section->plot().showReadOutAt({});
    }
    d->findPrinter();
    d->show();
    Q_EMIT printerChanged(name);
}

QString PrinterDetails::printer() const
{
    return d->printer;
}

void PrinterDetails::setHistoryFile(const QString& fileName)
{
    d->historyFile = fileName;
    readHistory();
}

void PrinterDetails::readHistory()
{
    if (!d->historyFile.isEmpty() && !d->reading.isNull())
        d->loader.load(d->historyFile, UsageHistory::printerKey(d->reading),
                       d->now().addDays(-daysRead));
}

void PrinterDetails::addEvent(const PrinterEvent& event)
{
    if (event.printer.isEmpty())
        return;
    if (event.kind == PrinterEvent::Kind::PrinterRenamed && !event.before.printer.isEmpty())
        d->events.insert(event.printer,
                         d->events.take(event.before.printer) + d->events.value(event.printer));
    if (!d->events.contains(event.printer) && d->events.size() >= mostPrintersWithEvents) {
        const auto oldest =
            std::min_element(d->events.constBegin(), d->events.constEnd(),
                             [](const QList<PrinterEvent>& one, const QList<PrinterEvent>& other) {
                                 return one.last().time < other.last().time;
                             });
        d->events.erase(oldest);
    }
    PrinterEvent dated = event;
    if (!dated.time.isValid())
        dated.time = d->now();
    // Those of a log may come after those of now.
    QList<PrinterEvent>& own = d->events[event.printer];
    own.insert(std::upper_bound(own.begin(), own.end(), dated,
                                [](const PrinterEvent& one, const PrinterEvent& other) {
                                    return one.time < other.time;
                                }),
               dated);
    if (own.size() > mostEvents)
        own.removeFirst();
    if (event.printer == d->printer && !d->reading.isNull())
        d->showEvents();
}

void PrinterDetails::setPictureSource(const PictureSource& source)
{
    d->pictures = source;
    d->show();
}

void PrinterDetails::setSpan(Span span)
{
    if (span == d->span)
        return;
    d->span = span;
    d->spanActions.value(span)->setChecked(true);
    d->showSpan();
    Q_EMIT spanChanged(span);
}

PrinterDetails::Span PrinterDetails::span() const
{
    return d->span;
}

void PrinterDetails::setClock(const std::function<QDateTime()>& clock)
{
    d->clock = clock;
    d->show();
}

QString PrinterDetails::toPlainText() const
{
    if (d->reading.isNull())
        return d->nothing->text();
    QStringList lines;
    for (const WrappedLabel* label :
         {d->name, d->modelLine, d->status, d->explanation, d->remedy, d->updateError})
        lines.append(label->text());
    for (const SlotSection* section : std::as_const(d->sections)) {
        if (d->isShown(section->slot()))
            lines.append(section->lines());
    }
    lines.append(d->eventsHeading->text());
    for (int row = 0; row < d->eventList->count(); ++row)
        lines.append(d->eventList->item(row)->text());
    lines.append(d->valuesHeading->text());
    for (const WrappedLabel* value : std::as_const(d->valueLabels))
        lines.append(value->accessibleName());
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

void PrinterDetails::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange) {
        d->areEventsOld = true;
        d->retranslate();
    }
    QWidget::changeEvent(event);
}

} // namespace VxKit
