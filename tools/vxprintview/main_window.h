// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "event_model.h"
#include "message_page.h"
#include "notices.h"
#include "overview_bar.h"
#include "view_source.h"

#include <printer_list_model.h>
#include <printer_list_view.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>

#include <optional>

class EventView;
class SiteBar;
class Tray;
class ViewLanguage;
class ViewSettings;
namespace VxKit {
class PrinterDetails;
} // namespace VxKit

/// The window: how many printers are in which state, all of them, one of them in detail, and what
/// has happened.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `historyFile` and `catalogueFile` may be empty.
    MainWindow(ViewSettings& settings, ViewLanguage& language, const QString& historyFile,
               const QString& catalogueFile);
    ~MainWindow() override;
    Q_DISABLE_COPY_MOVE(MainWindow)

    /// Shows what the source tells from now on.
    void setSource(ViewSource& source);
    /// The printers are those of a site. What needs those of this computer is not possible then.
    void setSite(const Site& site);

    /// @name What the source tells, also for tests
    /// @{
    void setReadings(const QList<VxKit::PrinterReading>& readings);
    void removePrinters(const QStringList& names);
    void setSiteState(const SiteState& state);
    void renamePrinter(const QString& oldName, const QString& newName);
    void addEvents(const QList<VxKit::PrinterEvent>& events);
    void warn(const QString& printer, const QString& key, const QString& text);
    void setListed();
    void setSpoolerRunning(bool running);
    /// @}

    void showPrinter(const QString& name);
    /// Opens the window and brings it to the front.
    void bringUp();

    VxKit::PrinterListModel& printers() { return m_printers; }
    VxKit::PrinterListView& list() { return *m_list; }
    const MessagePage& messagePage() const { return *m_page; }
    /// A picture of the window in which order and counts are those of the readings.
    QPixmap picture();
    const OverviewBar& overview() const { return *m_overview; }
    const SiteBar& siteBar() const { return *m_siteBar; }
    Notices& notices() { return m_notices; }
    /// Whether a message takes the place of the printers.
    bool showsMessage() const;

Q_SIGNALS:
    /// People are to be told of something.
    void noticed(const Notices::Notice& notice);

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void makeActions();
    void makeCentre();
    void retranslate();
    void updateOverview();
    void showTheWorst();
    void choosePage();
    std::optional<MessagePage::Message> messageForSite() const;
    std::optional<MessagePage::Message> messageForComputer() const;
    void scheduleOverview();
    void answerPage(MessagePage::Message message);
    void useLanguage(const QString& tag);
    void useColors(const QString& scheme);
    void act(const QString& printer, VxKit::PrinterListView::Action action);
    void printTestLabel(const QString& printer);
    void saveCase();
    void openDoctor(const QString& printer);
    void askForThreshold();
    void openEventMenu(const QPoint& position);
    void muteForAnHour(bool mute);
    void tell(const std::optional<Notices::Notice>& notice);
    void about();
    void quit();

    ViewSettings& m_settings;
    ViewLanguage& m_language;
    QString m_catalogueFile;
    Notices m_notices;
    ViewSource* m_source = nullptr;
    std::optional<Site> m_site; ///< none: this computer
    SiteState m_siteState;

    VxKit::PrinterListModel m_printers;
    EventModel m_events;
    Tray* m_tray = nullptr;
    OverviewBar* m_overview = nullptr;
    SiteBar* m_siteBar = nullptr;
    QStackedWidget* m_stack = nullptr;
    QSplitter* m_splitter = nullptr;
    VxKit::PrinterListView* m_list = nullptr;
    VxKit::PrinterDetails* m_details = nullptr;
    MessagePage* m_page = nullptr;
    EventView* m_eventView = nullptr;
    QDockWidget* m_eventDock = nullptr;

    QMenu* m_fileMenu = nullptr;
    QMenu* m_viewMenu = nullptr;
    QMenu* m_languageMenu = nullptr;
    QMenu* m_colorMenu = nullptr;
    QMenu* m_noticeMenu = nullptr;
    QMenu* m_helpMenu = nullptr;
    QAction* m_refreshAction = nullptr;
    QAction* m_saveCaseAction = nullptr;
    QAction* m_doctorAction = nullptr;
    QAction* m_quitAction = nullptr;
    QAction* m_detailsAction = nullptr;
    QAction* m_eventsAction = nullptr;
    QAction* m_systemLanguage = nullptr;
    QAction* m_systemColors = nullptr;
    QAction* m_lightColors = nullptr;
    QAction* m_darkColors = nullptr;
    QAction* m_muteAction = nullptr;
    QAction* m_mutePrinterAction = nullptr;
    QAction* m_unmuteAction = nullptr;
    QAction* m_thresholdAction = nullptr;
    QAction* m_trayAction = nullptr;
    QAction* m_aboutAction = nullptr;

    QTimer m_overviewTimer;
    QElapsedTimer m_sinceOverview;
    QTimer m_muteTimer;
    bool m_isListed = false;
    /// Somebody has pressed a key or a button, so the chosen printer stays.
    bool m_isInUse = false;
    bool m_isSpoolerRunning = true;
    /// The message that people have answered by looking at the printers all the same.
    std::optional<MessagePage::Message> m_passedOver;
    bool m_isQuitting = false;
};
