// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// `top --broker`: the same table of the printers of a whole site.
#include "command_line.h"
#include "commands.h"
#include "failure.h"
#include "full_screen.h"
#include "output.h"
#include "printer_words.h"
#include "shown_text.h"
#include "tool_text.h"
#include "top_screen.h"

#include <site_source.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QTimer>

namespace {

void print(const QString& warning)
{
    qWarning().noquote() << warning;
}

top_table::About aboutOf(const Site& site, const SiteState& state, bool isListed)
{
    top_table::About about;
    about.isOfSite = true;
    about.footer = state.reason;
    if (!state.isConnected && state.unconnectedSince.isValid())
        about.notes.append(ToolText::tr("no connection since %1")
                               .arg(printer_words::timeOf(state.unconnectedSince)));
    else if (!state.isConnected && !state.reason.isEmpty())
        about.notes.append(ToolText::tr("no connection"));
    about.isAlert = !state.reason.isEmpty();
    if (!state.offlineAgents.isEmpty())
        about.notes.append(ToolText::tr("agents offline: %1").arg(state.offlineAgents.size()));
    if (state.unreadable > 0)
        about.notes.append(ToolText::tr("unreadable messages: %1").arg(state.unreadable));
    if (state.beyondLimits > 0)
        about.notes.append(ToolText::tr("left out: %1").arg(state.beyondLimits));
    about.empty = !isListed ? ToolText::tr("Connecting to %1…").arg(site.broker)
                  : site.name.isEmpty()
                      ? ToolText::tr("No agent has published a printer yet.")
                      : ToolText::tr("No agent of the site \"%1\" has published a printer yet.")
                            .arg(shown(site.name));
    return about;
}

/// Prints the readings once they are known.
void printOnce(SiteSource& source, Output& output)
{
    QString reason;
    QObject::connect(&source, &SiteSource::listed, QCoreApplication::instance(),
                     &QCoreApplication::quit);
    QObject::connect(&source, &SiteSource::warned, &source, &print);
    QObject::connect(&source, &SiteSource::stateChanged, &source,
                     [&reason](const SiteState& state) {
                         reason = state.reason;
                         if (!reason.isEmpty())
                             QCoreApplication::quit();
                     });
    source.start();
    QCoreApplication::exec();
    if (!reason.isEmpty())
        throw Failure(reason);
    printTopJson(output, source.readings());
}

} // namespace

void runTopOfSite(const CommandLine& line, Output& output)
{
    const Site site = siteOf({line.broker, line.brokerConfigFile, QStringLiteral("vxprintmon")});
    const std::unique_ptr<SiteSource> source = site.open();
    for (const QString& warning : site.warnings)
        print(warning);
    if (line.json) {
        printOnce(*source, output);
        return;
    }
    FullScreen::requireTerminal();
    const HeldBackMessages messages;
    FullScreen screen;
    TopScreen table(output, screen, [&source] { return source->readings(); });
    bool isListed = false;
    const auto tell = [&] {
        table.setAbout(aboutOf(site, source->state(), isListed));
    };
    QObject::connect(source.get(), &SiteSource::changed, &table, &TopScreen::noteChange);
    QObject::connect(source.get(), &SiteSource::removed, &table, &TopScreen::noteChange);
    QObject::connect(source.get(), &SiteSource::stateChanged, &table, tell);
    QObject::connect(source.get(), &SiteSource::listed, &table, [&] {
        isListed = true;
        tell();
    });
    QObject::connect(source.get(), &SiteSource::warned, &table, &print);
    if (line.seconds)
        QTimer::singleShot(std::chrono::milliseconds(qRound(*line.seconds * 1000)),
                           QCoreApplication::instance(), &QCoreApplication::quit);
    tell();
    source->start();
    QCoreApplication::exec();
}
