// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The window on the printers of a site, with a real broker.
#include "mosquitto_broker.h"
#include "publisher.h"
#include "window_on_readings.h"

#include <site_bar.h>
#include <site_printers.h>

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

class WindowOnSiteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void showsTheSite();
    void aChangeIsShown();
    void filtersByComputer();
    void aRemovedPrinterDisappears();
    void anAgentThatDiesIsOffline();
    void theBrokerGoesAndComesBack();
    void saysWhyNothingCanBeRead();
    void saysThatNoAgentPublishes();
    void whatNeedsThisComputerIsDisabledAndSaysWhy();
    void theMenuOfAPrinterSaysWhyToo();
    void whatIsUnreadableIsSaid();
    void namesOfAgentsAreTextAndBounded();
    void speaksGerman();

private:
    SiteArguments arguments() const
    {
        return {m_broker->url() + QStringLiteral("/bremen"), {}, QStringLiteral("test")};
    }
    void follow(WindowOnReadings& window)
    {
        const Site site = siteOf(arguments());
        m_source = std::make_unique<SitePrinters>(site);
        window->setSite(site);
        window->setSource(*m_source);
        m_source->start();
    }
    static VxKit::PrinterReading reading(WindowOnReadings& window, const QString& name)
    {
        return window->printers().reading(window->printers().rowOf(name));
    }
    static QList<QAction*> actionsOf(QWidget& window)
    {
        QList<QAction*> actions;
        for (const QMenu* menu : window.findChildren<QMenu*>())
            actions += menu->actions();
        return actions;
    }

    std::unique_ptr<MosquittoBroker> m_broker;
    std::unique_ptr<Publisher> m_agent;
    std::unique_ptr<SitePrinters> m_source;
};

namespace {

const QString ofPacking = QStringLiteral("Packing (h1)");

} // namespace

void WindowOnSiteTest::initTestCase()
{
    if (!MosquittoBroker::isInstalled())
        QSKIP("needs mosquitto");
}

void WindowOnSiteTest::init()
{
    m_broker = std::make_unique<MosquittoBroker>();
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    m_agent = std::make_unique<Publisher>(m_broker->port(), QStringLiteral("bremen"),
                                          QStringLiteral("h1"));
    QTRY_VERIFY(m_agent->client.isConnected());
    m_agent->sayOnline();
    m_agent->put(watchedReading(QStringLiteral("Packing")));
    QTRY_VERIFY(m_agent->isDelivered());
}

void WindowOnSiteTest::cleanup()
{
    m_source.reset();
    m_agent.reset();
    m_broker.reset();
}

void WindowOnSiteTest::showsTheSite()
{
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->list().shownPrinters(), QStringList{ofPacking});
    QVERIFY(!window->showsMessage());
    QCOMPARE(window->windowTitle(), QStringLiteral("Label printers: bremen"));
    QVERIFY(!window->siteBar().isVisibleTo(&*window));
    QCOMPARE(reading(window, ofPacking).watching(), VxKit::PrinterReading::Watching::Watched);
}

void WindowOnSiteTest::aChangeIsShown()
{
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->printers().count(), 1);
    m_agent->put(watchedReading(QStringLiteral("Packing"), 4));
    QTRY_COMPARE(reading(window, ofPacking).statusCode(), 4);
    QVERIFY(window->printers().isInError());
}

void WindowOnSiteTest::filtersByComputer()
{
    Publisher other(m_broker->port(), QStringLiteral("bremen"), QStringLiteral("h2"));
    QTRY_VERIFY(other.client.isConnected());
    other.sayOnline();
    other.put(watchedReading(QStringLiteral("Packing")));
    QTRY_VERIFY(other.isDelivered());
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->list().shownPrinters().size(), 2);
    window->list().setFilterText(QStringLiteral("h2 pack"));
    QTRY_COMPARE(window->list().shownPrinters(), QStringList{QStringLiteral("Packing (h2)")});
}

void WindowOnSiteTest::aRemovedPrinterDisappears()
{
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->printers().count(), 1);
    m_agent->remove(QStringLiteral("Packing"));
    QTRY_COMPARE(window->printers().count(), 0);
    QTRY_VERIFY(window->showsMessage());
}

void WindowOnSiteTest::anAgentThatDiesIsOffline()
{
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->printers().count(), 1);
    m_agent.reset();
    QTRY_COMPARE(reading(window, ofPacking).watching(),
                 VxKit::PrinterReading::Watching::AgentOffline);
    QTRY_COMPARE(window->siteBar().text(), QStringLiteral("Agents offline: h1"));
    QVERIFY(window->siteBar().isVisibleTo(&*window));
}

void WindowOnSiteTest::theBrokerGoesAndComesBack()
{
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->printers().count(), 1);
    m_broker->kill();
    QTRY_COMPARE(reading(window, ofPacking).watching(),
                 VxKit::PrinterReading::Watching::NotConnected);
    QTRY_VERIFY2(window->siteBar().text().contains(QStringLiteral("cannot be reached")),
                 qPrintable(window->siteBar().text()));
    QVERIFY2(window->siteBar().text().startsWith(QStringLiteral("No connection to the broker")),
             qPrintable(window->siteBar().text()));
    QVERIFY(!window->showsMessage());
    QVERIFY2(m_broker->start(), qPrintable(m_broker->output()));
    QTRY_VERIFY(m_agent->client.isConnected());
    m_agent->sayOnline();
    m_agent->put(watchedReading(QStringLiteral("Packing")));
    QTRY_COMPARE(reading(window, ofPacking).watching(), VxKit::PrinterReading::Watching::Watched);
    QTRY_VERIFY(!window->siteBar().isVisibleTo(&*window));
}

void WindowOnSiteTest::saysWhyNothingCanBeRead()
{
    const Site site = siteOf(arguments());
    m_broker->kill();
    WindowOnReadings window(QStringLiteral("en"));
    m_source = std::make_unique<SitePrinters>(site);
    window->setSite(site);
    window->setSource(*m_source);
    QCOMPARE(window->messagePage().message(), MessagePage::Message::Connecting);
    QVERIFY(window->messagePage().text().contains(site.broker));
    m_source->start();
    QTRY_COMPARE(window->messagePage().message(), MessagePage::Message::NothingRead);
    QVERIFY2(window->messagePage().text().contains(QStringLiteral("cannot be reached")),
             qPrintable(window->messagePage().text()));
    QVERIFY(window->showsMessage());
}

void WindowOnSiteTest::saysThatNoAgentPublishes()
{
    m_agent->remove(QStringLiteral("Packing"));
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->messagePage().message(), MessagePage::Message::NoAgents);
    QVERIFY(window->messagePage().text().contains(QStringLiteral("bremen")));
}

void WindowOnSiteTest::whatNeedsThisComputerIsDisabledAndSaysWhy()
{
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QStringList disabled;
    for (const QAction* action : actionsOf(*window)) {
        if (!action->isEnabled() && action->toolTip().contains(QStringLiteral("this computer")))
            disabled.append(action->text());
    }
    disabled.sort();
    QCOMPARE(disabled,
             (QStringList{QStringLiteral("&Doctor…"), QStringLiteral("&Look for printers"),
                          QStringLiteral("&Save a case for support…"),
                          QStringLiteral("&Warn of few labels…")}));
}

void WindowOnSiteTest::theMenuOfAPrinterSaysWhyToo()
{
    WindowOnReadings window(QStringLiteral("en"));
    QCOMPARE(window->list().reasonAgainstActions(), QString());
    follow(window);
    QTRY_COMPARE(window->list().shownPrinters(), QStringList{ofPacking});
    window->show();
    window->list().setCurrentPrinter(ofPacking);
    auto* const rows = window->list().findChild<QAbstractItemView*>();
    QVERIFY(rows);
    Q_EMIT rows->customContextMenuRequested({5, 5});
    auto* const menu = window->list().findChild<QMenu*>();
    QVERIFY(menu);
    QStringList enabled;
    for (const QAction* action : menu->actions()) {
        if (action->isEnabled())
            enabled.append(action->text());
        else
            QVERIFY(action->toolTip().contains(QStringLiteral("this computer")));
    }
    QCOMPARE(enabled, QStringList{QStringLiteral("&Copy details")});
    QVERIFY(menu->toolTipsVisible());
    menu->close();
}

void WindowOnSiteTest::whatIsUnreadableIsSaid()
{
    WindowOnReadings window(QStringLiteral("en"));
    follow(window);
    QTRY_COMPARE(window->printers().count(), 1);
    m_agent->put(m_agent->topics.printer(QStringLiteral("<b>\u202e")), "{");
    QTRY_VERIFY(window->siteBar().text().contains(QStringLiteral("cannot be read: 1.")));
    const QString text = window->siteBar().text();
    QVERIFY2(text.contains(QStringLiteral("<b>\\u202e: unterminated object")), qPrintable(text));
    QVERIFY(!text.contains(u'\u202e'));
    QCOMPARE(window->printers().count(), 1);
}

void WindowOnSiteTest::namesOfAgentsAreTextAndBounded()
{
    WindowOnReadings window(QStringLiteral("en"));
    const Site site = siteOf(arguments());
    window->setSite(site);
    SiteState state{.isConnected = true};
    for (int i = 0; i < 100; ++i)
        state.offlineAgents.append(QStringLiteral("<img>\u202e%1").arg(i));
    window.show({watchedReading(ofPacking)});
    window->setSiteState(state);
    const QString text = window->siteBar().text();
    QVERIFY2(text.startsWith(QStringLiteral("Agents offline: <img>\\u202e0, ")), qPrintable(text));
    QVERIFY2(text.endsWith(QStringLiteral(" and 92 more")), qPrintable(text));
    QVERIFY(window->siteBar().findChild<QLabel*>());
    for (const QLabel* label : window->siteBar().findChildren<QLabel*>()) {
        if (!label->text().isEmpty())
            QCOMPARE(label->textFormat(), Qt::PlainText);
    }
}

void WindowOnSiteTest::speaksGerman()
{
    WindowOnReadings window(QStringLiteral("de"));
    follow(window);
    QTRY_COMPARE(window->printers().count(), 1);
    QCOMPARE(window->windowTitle(), QStringLiteral("Etikettendrucker: bremen"));
    m_agent.reset();
    QTRY_COMPARE(window->siteBar().text(), QStringLiteral("Agenten offline: h1"));
}

QTEST_MAIN(WindowOnSiteTest)
#include "tst_window_on_site.moc"
