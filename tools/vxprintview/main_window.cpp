// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "main_window.h"

#include "doctor_dialog.h"
#include "event_view.h"
#include "shown_text.h"
#include "site_bar.h"
#include "supply_pictures.h"
#include "tray.h"
#include "view_colors.h"
#include "view_language.h"
#include "view_settings.h"
#include "view_system.h"

#include <printer_command.h>
#include <printer_details.h>

#include <QtCore/QDir>
#include <QtCore/QLocale>
#include <QtCore/QStandardPaths>
#include <QtGui/QActionGroup>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;
using VxKit::PrinterListView;
using VxKit::PrinterReading;
using VxKit::Severity;

namespace {

/// A change is counted at once, the changes of a storm together, no more often than this.
constexpr std::chrono::milliseconds overviewEvery = 200ms;
constexpr int messageTime = 8000; // milliseconds
constexpr qint64 muteSeconds = 3600;
constexpr int mostNarrowLetters = 130;

/// A text for dialogs, which would take what looks like markup in a name for markup.
QString withoutMarkup(const QString& text)
{
    return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
}

/// The name of a site for people.
QString nameOf(const Site& site)
{
    return site.name.isEmpty() ? site.broker : shown(site.name);
}

/// Where its readings are.
QString broker(const Site& site)
{
    return site.name.isEmpty() ? site.broker
                               : QStringLiteral("%1 · %2").arg(site.broker, shown(site.name));
}

/// Whether the event only tells what was found when the program was started, and nothing is wrong
/// with it. Of forty printers, such events would hide the one that matters.
bool isFirstReport(const VxKit::PrinterEvent& event)
{
    using Kind = VxKit::PrinterEvent::Kind;
    const bool isReport = event.kind == Kind::Status || event.kind == Kind::Supply ||
                          event.kind == Kind::Ribbon || event.kind == Kind::Firmware;
    return isReport && event.severity < Severity::Warning &&
           event.before == VxKit::PrinterEvent::Values();
}

} // namespace

MainWindow::MainWindow(ViewSettings& settings, ViewLanguage& language, const QString& historyFile,
                       const QString& catalogueFile)
    : m_settings(settings)
    , m_language(language)
    , m_catalogueFile(catalogueFile)
    , m_tray(new Tray(this))
{
    settings.restore(m_notices);
    makeCentre();
    makeActions();
    m_details->setModel(&m_printers);
    m_details->setHistoryFile(historyFile);
    if (!catalogueFile.isEmpty())
        m_details->setPictureSource(SupplyPictures(catalogueFile));

    m_overviewTimer.setSingleShot(true);
    connect(&m_overviewTimer, &QTimer::timeout, this, &MainWindow::updateOverview);
    m_muteTimer.setSingleShot(true);
    connect(&m_muteTimer, &QTimer::timeout, this, [this] { muteForAnHour(m_notices.isMuted()); });

    connect(m_tray, &Tray::openRequested, this, &MainWindow::bringUp);
    connect(m_tray, &Tray::quitRequested, this, &MainWindow::quit);
    connect(m_tray, &Tray::printerRequested, this, [this](const QString& printer) {
        bringUp();
        showPrinter(printer);
    });
    connect(m_tray, &Tray::muteRequested, this, [this](bool mute) {
        m_notices.muteUntil(mute ? QDateTime::currentDateTimeUtc().addSecs(muteSeconds)
                                 : QDateTime());
        muteForAnHour(mute);
    });
    connect(this, &MainWindow::noticed, m_tray, &Tray::tell);
    m_tray->show();
    qApp->installEventFilter(this);

    retranslate();
    choosePage();
    const int letter = fontMetrics().averageCharWidth();
    resize(190 * letter, 52 * fontMetrics().lineSpacing());
    restoreGeometry(settings.geometry());
    restoreState(settings.layout());
    m_eventsAction->setChecked(!m_eventDock->isHidden());
    muteForAnHour(m_notices.isMuted());
}

MainWindow::~MainWindow()
{
    // The views go while what they show and tell is still there. A dock tells that it vanishes.
    m_eventDock->disconnect(this);
    m_list->disconnect();
    delete m_eventDock;
    delete takeCentralWidget();
}

void MainWindow::makeCentre()
{
    auto* const centre = new QWidget;
    auto* const layout = new QVBoxLayout(centre);
    m_overview = new OverviewBar;
    layout->addWidget(m_overview);
    m_siteBar = new SiteBar;
    layout->addWidget(m_siteBar);
    m_stack = new QStackedWidget;
    layout->addWidget(m_stack, 1);
    setCentralWidget(centre);

    m_splitter = new QSplitter;
    m_list = new PrinterListView;
    m_list->setModel(&m_printers);
    m_list->setOrder(m_settings.isSortedByName() ? PrinterListView::Order::ByName
                                                 : PrinterListView::Order::WorstFirst);
    using Action = PrinterListView::Action;
    PrinterListView::Actions actions = Action::PrintTestLabel;
    actions |= Action::Doctor;
    actions |= Action::SaveCase;
    actions.setFlag(Action::OpenQueue, view_system::hasPrintQueue());
    m_list->setActions(actions);
    m_details = new VxKit::PrinterDetails;
    m_splitter->addWidget(m_list);
    m_splitter->addWidget(m_details);
    m_splitter->setStretchFactor(0, 3);
    m_splitter->setStretchFactor(1, 2);
    m_splitter->setChildrenCollapsible(false);
    m_stack->addWidget(m_splitter);
    m_page = new MessagePage;
    m_stack->addWidget(m_page);

    m_eventDock = new QDockWidget;
    m_eventDock->setObjectName(QStringLiteral("events"));
    m_eventView = new EventView;
    m_eventView->setModel(&m_events);
    m_eventDock->setWidget(m_eventView);
    addDockWidget(Qt::BottomDockWidgetArea, m_eventDock);
    resizeDocks({m_eventDock}, {9 * fontMetrics().lineSpacing()}, Qt::Vertical);

    connect(m_overview, &OverviewBar::chosen, m_list, &PrinterListView::setSeverityFilter);
    connect(m_list, &PrinterListView::currentPrinterChanged, m_details,
            &VxKit::PrinterDetails::setPrinter);
    connect(m_list, &PrinterListView::actionRequested, this, &MainWindow::act);
    connect(m_list, &PrinterListView::orderChanged, this, [this](PrinterListView::Order order) {
        m_settings.setSortedByName(order == PrinterListView::Order::ByName);
    });
    connect(m_eventView, &QTreeView::customContextMenuRequested, this, &MainWindow::openEventMenu);
    connect(m_eventView, &QTreeView::activated, this, [this](const QModelIndex& index) {
        showPrinter(index.data(EventModel::PrinterRole).toString());
    });
    connect(m_page, &MessagePage::answered, this, &MainWindow::answerPage);
}

void MainWindow::makeActions()
{
    m_fileMenu = menuBar()->addMenu(QString());
    m_refreshAction = m_fileMenu->addAction(QString(), this, [this] {
        if (m_source)
            m_source->refresh();
    });
    m_refreshAction->setShortcut(QKeySequence::Refresh);
    m_saveCaseAction = m_fileMenu->addAction(QString(), this, &MainWindow::saveCase);
    m_saveCaseAction->setShortcut(QKeySequence::Save);
    m_doctorAction = m_fileMenu->addAction(QString(), this, [this] { openDoctor({}); });
    m_fileMenu->addSeparator();
    m_quitAction = m_fileMenu->addAction(QString(), this, &MainWindow::quit);
    m_quitAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));

    m_viewMenu = menuBar()->addMenu(QString());
    m_detailsAction = m_viewMenu->addAction(QString());
    m_detailsAction->setCheckable(true);
    m_detailsAction->setChecked(true);
    connect(m_detailsAction, &QAction::toggled, m_details, &QWidget::setVisible);
    m_eventsAction = m_viewMenu->addAction(QString());
    m_eventsAction->setCheckable(true);
    connect(m_eventsAction, &QAction::toggled, m_eventDock, &QWidget::setVisible);
    connect(m_eventDock, &QDockWidget::visibilityChanged, this,
            [this] { m_eventsAction->setChecked(!m_eventDock->isHidden()); });
    m_viewMenu->addSeparator();

    const auto addChoice = [this](QMenu* menu, QActionGroup* group, bool isChosen, auto chosen) {
        QAction* const action = menu->addAction(QString(), this, chosen);
        action->setCheckable(true);
        action->setChecked(isChosen);
        group->addAction(action);
        return action;
    };
    m_languageMenu = m_viewMenu->addMenu(QString());
    auto* const languages = new QActionGroup(this);
    m_systemLanguage = addChoice(m_languageMenu, languages, m_language.tag().isEmpty(),
                                 [this] { useLanguage({}); });
    const QList<ViewLanguage::Choice> choices = ViewLanguage::choices();
    for (const ViewLanguage::Choice& choice : choices)
        addChoice(m_languageMenu, languages, choice.tag == m_language.tag(), [this, choice] {
            useLanguage(choice.tag);
        })->setText(choice.name);
    m_colorMenu = m_viewMenu->addMenu(QString());
    auto* const colors = new QActionGroup(this);
    const auto addColors = [&](const QString& scheme) {
        return addChoice(m_colorMenu, colors, m_settings.colors() == scheme,
                         [this, scheme] { useColors(scheme); });
    };
    m_systemColors = addColors(QStringLiteral("system"));
    m_lightColors = addColors(QStringLiteral("light"));
    m_darkColors = addColors(QStringLiteral("dark"));

    m_noticeMenu = menuBar()->addMenu(QString());
    m_muteAction = m_noticeMenu->addAction(QString());
    m_muteAction->setCheckable(true);
    connect(m_muteAction, &QAction::triggered, m_tray, &Tray::muteRequested);
    m_mutePrinterAction = m_noticeMenu->addAction(QString());
    m_mutePrinterAction->setCheckable(true);
    connect(m_mutePrinterAction, &QAction::triggered, this, [this](bool mute) {
        m_notices.setPrinterMuted(m_list->currentPrinter(), mute);
        m_settings.store(m_notices);
    });
    connect(m_noticeMenu, &QMenu::aboutToShow, this, [this] {
        const QString printer = m_list->currentPrinter();
        m_mutePrinterAction->setEnabled(!printer.isEmpty());
        m_mutePrinterAction->setChecked(m_notices.mutedPrinters().contains(printer));
        m_unmuteAction->setEnabled(!m_notices.mutedPrinters().isEmpty() ||
                                   !m_notices.mutedKinds().isEmpty());
    });
    m_unmuteAction = m_noticeMenu->addAction(QString(), this, [this] {
        for (const QString& printer : m_notices.mutedPrinters())
            m_notices.setPrinterMuted(printer, false);
        for (const QString& kind : m_notices.mutedKinds())
            m_notices.setKindMuted(kind, false);
        m_settings.store(m_notices);
    });
    m_noticeMenu->addSeparator();
    m_thresholdAction = m_noticeMenu->addAction(QString(), this, &MainWindow::askForThreshold);
    m_trayAction = m_noticeMenu->addAction(QString());
    m_trayAction->setCheckable(true);
    m_trayAction->setChecked(m_settings.staysInTray());
    connect(m_trayAction, &QAction::triggered, this,
            [this](bool stays) { m_settings.setStaysInTray(stays); });

    m_helpMenu = menuBar()->addMenu(QString());
    m_aboutAction = m_helpMenu->addAction(QString(), this, &MainWindow::about);
}

void MainWindow::retranslate()
{
    setWindowTitle(m_site ? tr("Label printers: %1").arg(nameOf(*m_site)) : tr("Label printers"));
    // A text that a tool tip would not have anyway.
    const QString reason = m_site ? tr("Only for the printers of this computer. These are those of "
                                       "a site, as its agents publish them.")
                                  : QString();
    m_list->setReasonAgainstActions(reason);
    for (QAction* const action :
         {m_refreshAction, m_saveCaseAction, m_doctorAction, m_thresholdAction}) {
        action->setEnabled(!m_site);
        action->setToolTip(reason);
    }
    m_fileMenu->setToolTipsVisible(m_site.has_value());
    m_noticeMenu->setToolTipsVisible(m_site.has_value());
    m_fileMenu->setTitle(tr("&Printers"));
    m_refreshAction->setText(tr("&Look for printers"));
    m_saveCaseAction->setText(tr("&Save a case for support…"));
    m_doctorAction->setText(tr("&Doctor…"));
    m_quitAction->setText(tr("&Quit"));
    m_viewMenu->setTitle(tr("&View"));
    m_detailsAction->setText(tr("&Details"));
    m_eventsAction->setText(tr("&Events"));
    m_languageMenu->setTitle(tr("&Language"));
    m_systemLanguage->setText(tr("As the system"));
    m_colorMenu->setTitle(tr("&Colours"));
    m_systemColors->setText(tr("As the system"));
    m_lightColors->setText(tr("Light"));
    m_darkColors->setText(tr("Dark"));
    m_noticeMenu->setTitle(tr("&Notices"));
    m_muteAction->setText(tr("&None for an hour"));
    m_mutePrinterAction->setText(tr("None of the chosen &printer"));
    m_unmuteAction->setText(tr("&All printers and kinds again"));
    m_thresholdAction->setText(tr("&Warn of few labels…"));
    m_trayAction->setText(tr("&Stay in the tray when the window is closed"));
    m_helpMenu->setTitle(tr("&Help"));
    m_aboutAction->setText(tr("&About…"));
    m_eventDock->setWindowTitle(tr("Events"));
    m_eventView->setAccessibleName(tr("Events, the newest first"));
    m_details->setAccessibleName(tr("Details of the chosen printer"));
    m_overview->setAccessibleName(tr("How many printers there are of each state"));
    m_tray->retranslate();
    m_events.retranslate();
    m_printers.retranslate();
    updateOverview();
}

void MainWindow::setSite(const Site& site)
{
    m_site = site;
    m_details->setHistoryFile({});
    retranslate();
}

void MainWindow::setSource(ViewSource& source)
{
    m_source = &source;
    connect(&source, &ViewSource::changed, this, &MainWindow::setReadings);
    connect(&source, &ViewSource::removed, this, &MainWindow::removePrinters);
    connect(&source, &ViewSource::siteStateChanged, this, &MainWindow::setSiteState);
    connect(&source, &ViewSource::renamed, this, &MainWindow::renamePrinter);
    connect(&source, &ViewSource::happened, this, &MainWindow::addEvents);
    connect(&source, &ViewSource::warned, this, &MainWindow::warn);
    connect(&source, &ViewSource::listed, this, &MainWindow::setListed);
    connect(&source, &ViewSource::spoolerRunningChanged, this, &MainWindow::setSpoolerRunning);
    connect(&source, &ViewSource::caseSaved, this,
            [this](const QString& fileName, const QString& reason) {
                const QString name = shown(QDir::toNativeSeparators(fileName));
                if (reason.isEmpty())
                    statusBar()->showMessage(tr("Saved: %1").arg(name), messageTime);
                else
                    QMessageBox::warning(
                        this, windowTitle(),
                        withoutMarkup(
                            tr("%1 could not be saved: %2").arg(name, shownAsMessage(reason))));
            });
}

void MainWindow::setReadings(const QList<PrinterReading>& readings)
{
    for (const PrinterReading& reading : readings)
        m_printers.setReading(reading);
    scheduleOverview();
}

void MainWindow::removePrinters(const QStringList& names)
{
    for (const QString& name : names)
        m_printers.removeReading(name);
    scheduleOverview();
}

void MainWindow::setSiteState(const SiteState& state)
{
    m_siteState = state;
    choosePage();
}

void MainWindow::scheduleOverview()
{
    if (m_overviewTimer.isActive())
        return;
    const auto since = std::chrono::milliseconds(m_sinceOverview.elapsed());
    m_overviewTimer.start(std::max(overviewEvery - since, 0ms));
}

void MainWindow::renamePrinter(const QString& oldName, const QString& newName)
{
    m_printers.renameReading(oldName, newName);
}

void MainWindow::addEvents(const QList<VxKit::PrinterEvent>& events)
{
    QList<VxKit::PrinterEvent> shownEvents;
    for (const VxKit::PrinterEvent& event : events) {
        tell(m_notices.take(event));
        if (!isFirstReport(event))
            shownEvents.append(event);
    }
    m_events.add(shownEvents);
    for (const VxKit::PrinterEvent& event : std::as_const(shownEvents))
        m_details->addEvent(event);
}

void MainWindow::warn(const QString& printer, const QString& key, const QString& text)
{
    tell(m_notices.take(printer, key, text));
}

void MainWindow::tell(const std::optional<Notices::Notice>& notice)
{
    if (notice)
        Q_EMIT noticed(*notice);
}

void MainWindow::setListed()
{
    m_isListed = true;
    updateOverview();
}

void MainWindow::setSpoolerRunning(bool running)
{
    m_isSpoolerRunning = running;
    if (running)
        m_passedOver.reset();
    choosePage();
}

void MainWindow::updateOverview()
{
    m_overviewTimer.stop();
    m_sinceOverview.start();
    OverviewBar::Counts counts{};
    for (int row = 0; row < m_printers.count(); ++row) {
        const PrinterReading reading = m_printers.reading(row);
        if (reading.presence() == PrinterReading::Presence::Gone)
            continue;
        const Severity severity = VxKit::statusSeverity(reading.statusCode());
        const auto place = std::ranges::find(OverviewBar::severities, severity);
        if (place != OverviewBar::severities.end())
            ++counts[static_cast<std::size_t>(place - OverviewBar::severities.begin())];
    }
    m_overview->setCounts(counts);
    std::optional<Severity> worst;
    for (std::size_t number = 0; number < counts.size() && !worst; ++number) {
        if (counts[number] > 0)
            worst = OverviewBar::severities[number];
    }
    m_tray->setState(worst, tr("Printers: %1 with an error, %2 with a warning, %3 others")
                                .arg(counts[0])
                                .arg(counts[1])
                                .arg(counts[2] + counts[3]));
    choosePage();
    showTheWorst();
}

/// Until somebody uses the window, the details are those of the printer that needs help most.
void MainWindow::showTheWorst()
{
    if (m_isInUse || !m_isListed)
        return;
    const QString worst = m_list->shownPrinters().value(0);
    if (worst != m_list->currentPrinter())
        m_list->setCurrentPrinter(worst);
}

QPixmap MainWindow::picture()
{
    updateOverview();
    return grab();
}

bool MainWindow::showsMessage() const
{
    return m_stack->currentWidget() == m_page;
}

std::optional<MessagePage::Message> MainWindow::messageForSite() const
{
    using Message = MessagePage::Message;
    if (m_printers.count() > 0)
        return std::nullopt;
    if (!m_siteState.reason.isEmpty())
        return Message::NothingRead;
    return m_isListed ? Message::NoAgents : Message::Connecting;
}

std::optional<MessagePage::Message> MainWindow::messageForComputer() const
{
    using Message = MessagePage::Message;
    bool isAnyManaged = false;
    for (int row = 0; row < m_printers.count() && !isAnyManaged; ++row)
        isAnyManaged = m_printers.reading(row).watching() != PrinterReading::Watching::NotManaged;
    if (!m_isSpoolerRunning)
        return Message::SpoolerStopped;
    if (!m_isListed)
        return Message::Loading;
    if (m_printers.count() == 0)
        return Message::Empty;
    return isAnyManaged ? std::nullopt : std::optional(Message::NoRights);
}

void MainWindow::choosePage()
{
    const std::optional<MessagePage::Message> message =
        m_site ? messageForSite() : messageForComputer();
    if (message != m_passedOver)
        m_passedOver.reset();
    const bool isShown = message && message != m_passedOver;
    const QString detail = !m_site                        ? QString()
                           : m_siteState.reason.isEmpty() ? broker(*m_site)
                                                          : shown(m_siteState.reason);
    if (isShown && (m_page->message() != *message || m_page->detail() != detail || !showsMessage()))
        m_page->show(*message, detail);
    m_overview->setVisible(!isShown);
    if (m_site && !isShown)
        m_siteBar->show(*m_site, m_siteState);
    else
        m_siteBar->hide();
    m_stack->setCurrentWidget(isShown ? static_cast<QWidget*>(m_page) : m_splitter);
}

void MainWindow::answerPage(MessagePage::Message message)
{
    if (message == MessagePage::Message::Empty) {
        if (m_source)
            m_source->refresh();
        return;
    }
    m_passedOver = message;
    choosePage();
}

void MainWindow::showPrinter(const QString& name)
{
    if (name.isEmpty())
        return;
    m_isInUse = true;
    m_list->setFilterText({});
    m_list->setSeverityFilter(std::nullopt);
    m_overview->setChosen(std::nullopt);
    m_list->setCurrentPrinter(name);
}

void MainWindow::bringUp()
{
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
}

void MainWindow::useLanguage(const QString& tag)
{
    if (m_language.use(tag))
        m_settings.setLanguage(tag);
}

void MainWindow::useColors(const QString& scheme)
{
    view_colors::use(scheme);
    m_settings.setColors(scheme);
}

void MainWindow::act(const QString& printer, PrinterListView::Action action)
{
    switch (action) {
    case PrinterListView::Action::PrintTestLabel:
        printTestLabel(printer);
        break;
    case PrinterListView::Action::OpenQueue:
        if (!view_system::openPrintQueue(printer))
            QMessageBox::warning(
                this, windowTitle(),
                withoutMarkup(tr("The queue of %1 could not be opened.").arg(shown(printer))));
        break;
    case PrinterListView::Action::Doctor:
        openDoctor(printer);
        break;
    case PrinterListView::Action::SaveCase:
        saveCase();
        break;
    }
}

void MainWindow::printTestLabel(const QString& printer)
{
    QInputDialog dialog(this);
    dialog.setWindowTitle(tr("Print a test label"));
    dialog.setLabelText(
        withoutMarkup(tr("The command is sent to %1 as it is:").arg(shown(printer))));
    dialog.setTextValue(QStringLiteral("FEED 1"));
    if (dialog.exec() != QDialog::Accepted || dialog.textValue().isEmpty())
        return;
    VxKit::sendCommand(printer, dialog.textValue())
        .then(this, [this](const VxKit::CommandResult& result) {
            if (result.isSent())
                statusBar()->showMessage(
                    tr("The command is in the queue of %1.").arg(shown(result.printerName)),
                    messageTime);
            else
                QMessageBox::warning(this, windowTitle(),
                                     withoutMarkup(shownAsMessage(result.errorText)));
        });
}

void MainWindow::saveCase()
{
    if (!m_source)
        return;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString proposal =
        QStringLiteral("printers-%1.vxcase")
            .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd-HHmm")));
    const QString fileName =
        QFileDialog::getSaveFileName(this, tr("Save a case for support"),
                                     folder + QLatin1Char('/') + proposal, tr("Cases (*.vxcase)"));
    if (!fileName.isEmpty())
        m_source->saveCase(fileName);
}

void MainWindow::openDoctor(const QString& printer)
{
    auto* const dialog = new DoctorDialog(printer, m_catalogueFile, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->QDialog::show();
}

void MainWindow::askForThreshold()
{
    bool isAccepted = false;
    const int labels = QInputDialog::getInt(
        this, tr("Warn of few labels"), tr("Warn when fewer labels are left than (0: never):"),
        m_settings.fewestLabels().value_or(0), 0, ViewSettings::mostLabels, 10, &isAccepted);
    if (!isAccepted)
        return;
    const auto fewest = labels > 0 ? std::optional(labels) : std::nullopt;
    m_settings.setFewestLabels(fewest);
    if (m_source)
        m_source->setFewestLabels(fewest);
}

void MainWindow::openEventMenu(const QPoint& position)
{
    const QModelIndex index = m_eventView->indexAt(position);
    if (!index.isValid())
        return;
    const QString printer = index.data(EventModel::PrinterRole).toString();
    const QString kind = index.data(EventModel::KeyRole).toString();
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!printer.isEmpty())
        menu->addAction(tr("Show the &printer"), this, [this, printer] { showPrinter(printer); });
    const auto addMute = [&](const QString& text, bool isMuted, auto setMuted) {
        QAction* const action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(isMuted);
        connect(action, &QAction::triggered, this, [this, setMuted](bool muted) {
            setMuted(muted);
            m_settings.store(m_notices);
        });
    };
    if (!printer.isEmpty())
        addMute(tr("No notices of this p&rinter"), m_notices.mutedPrinters().contains(printer),
                [this, printer](bool muted) { m_notices.setPrinterMuted(printer, muted); });
    addMute(tr("No notices of this &kind"), m_notices.mutedKinds().contains(kind),
            [this, kind](bool muted) { m_notices.setKindMuted(kind, muted); });
    menu->popup(m_eventView->viewport()->mapToGlobal(position));
}

void MainWindow::muteForAnHour(bool mute)
{
    m_muteAction->setChecked(mute);
    m_tray->setMuted(mute);
    m_muteTimer.stop();
    if (mute) {
        const qint64 left = QDateTime::currentDateTimeUtc().secsTo(m_notices.mutedUntil());
        m_muteTimer.start(std::chrono::seconds(std::clamp<qint64>(left + 1, 1, muteSeconds)));
    }
    m_settings.store(m_notices);
}

void MainWindow::about()
{
    const QString text =
        (m_site ? tr("Shows the label printers of a site, as its agents publish them.")
                : tr("Shows the label printers of this computer.")) +
        QStringLiteral("\n\n") +
        tr("Version %1, with Qt %2 (used: %3)")
            .arg(QStringLiteral(VX_VERSION), QStringLiteral(QT_VERSION_STR),
                 QLatin1String(qVersion())) +
        QStringLiteral("\n\n") +
        tr("Copyright the VxPrinterStatus authors, under the MIT licence. Qt is used under the GNU "
           "Lesser General Public License, version 3; SQLite is in the public domain. The full "
           "texts come with the program.");
    QMessageBox::about(this, windowTitle(), text);
}

void MainWindow::quit()
{
    m_isQuitting = true;
    close();
    QCoreApplication::quit();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_settings.setWindow(saveGeometry(), saveState());
    event->accept();
    if (m_isQuitting || !m_settings.staysInTray() || !m_tray->isAvailable())
        QCoreApplication::quit();
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    // In a narrow window, the details are below the printers.
    const bool isNarrow = width() < mostNarrowLetters * fontMetrics().averageCharWidth();
    m_splitter->setOrientation(isNarrow ? Qt::Vertical : Qt::Horizontal);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_aboutAction)
        retranslate();
    else if (event->type() == QEvent::PaletteChange && m_aboutAction)
        updateOverview();
}

bool MainWindow::eventFilter(QObject* object, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        if (const auto* const widget = qobject_cast<QWidget*>(object))
            m_isInUse = m_isInUse || widget->window() == this;
        break;
    default:
        break;
    }
    return QMainWindow::eventFilter(object, event);
}
