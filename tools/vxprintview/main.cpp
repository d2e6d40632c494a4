// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "backend.h"
#include "catalogue_file.h"
#include "failure.h"
#include "library_log.h"
#include "main_window.h"
#include "printer_source.h"
#include "single_instance.h"
#include "site_printers.h"
#include "standard_output.h"
#include "tool_text.h"
#include "view_colors.h"
#include "view_language.h"
#include "view_options.h"
#include "view_settings.h"
#include "view_system.h"

#include <QtCore/QDebug>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <memory>
#include <optional>
#include <utility>

namespace {

void saveWhenDue(MainWindow& window, const ViewOptions& options, QString& failure)
{
    if (options.pictureFile.isEmpty())
        return;
    QTimer::singleShot(std::chrono::milliseconds(qRound(options.pictureAfter * 1000)), &window,
                       [&window, &options, &failure] {
                           if (!window.picture().save(options.pictureFile))
                               failure = options.pictureFile;
                           QCoreApplication::quit();
                       });
}

/// Where the printers of the window come from.
class Source
{
public:
    /// A site.
    explicit Source(const Site& site)
        : m_source(std::make_unique<SitePrinters>(site))
    {}
    /// This computer. The story of virtual printers begins when they have been listed.
    Source(const PrinterSource::Options& options, Backend& backend)
    {
        auto printers = std::make_unique<PrinterSource>(options);
        QObject::connect(printers.get(), &ViewSource::listed, &backend,
                         [&backend, source = printers.get()] {
                             backend.start([source] { return source->watchedPrinters(); });
                         });
        m_source = std::move(printers);
    }

    ViewSource& get() const { return *m_source; }

private:
    std::unique_ptr<ViewSource> m_source;
};

void run(StandardOutput& output, const QString& fleetOfEnvironment)
{
    const ViewOptions options = parseViewOptions(QCoreApplication::arguments());
    if (!options.information.isEmpty()) {
        output.write(options.information);
        return;
    }
    setUpLibraryLog({});
    const bool isForPicture = !options.pictureFile.isEmpty();
    std::optional<Site> site;
    if (options.isOfSite()) {
        site = siteOf({options.broker, options.brokerConfigFile, QStringLiteral("vxprintview")});
        for (const QString& warning : std::as_const(site->warnings))
            qWarning().noquote() << warning;
    }
    SingleInstance instance(site ? site->broker + u'/' + site->name : options.fleetFile);
    if (!isForPicture && !instance.claim())
        return;

    CommandLine line;
    line.fleetFile = options.fleetFile;
    line.speed = options.speed;
    std::unique_ptr<Backend> backend;
    if (!site)
        backend = Backend::create(line, fleetOfEnvironment);

    ViewSettings settings(options.settingsFile);
    ViewLanguage language;
    if (!language.use(options.language.isEmpty() ? settings.language() : options.language))
        throw wrongUsage(ToolText::tr("--language: expected en, de, es, fr, it, ja or zh_CN, found "
                                      "\"%1\"")
                             .arg(options.language));
    view_colors::use(options.colors.isEmpty() ? settings.colors() : options.colors);

    PrinterSource::Options sourceOptions;
    line.catalogueFile = options.catalogueFile;
    sourceOptions.catalogueFile = catalogue_file::named(line);
    if (backend && sourceOptions.catalogueFile.isEmpty())
        sourceOptions.catalogueFile = backend->catalogueFile();
    sourceOptions.historyFile =
        options.historyFile.isEmpty() ? view_system::historyFile() : options.historyFile;
    sourceOptions.fewestLabels = settings.fewestLabels();
    line.catalogueFile = sourceOptions.catalogueFile;
    const QString catalogue = catalogue_file::path(line);
    sourceOptions.catalogueFile = catalogue;

    // When the last window is closed, the program may live on in the tray.
    QApplication::setQuitOnLastWindowClosed(false);
    const Source source = site ? Source(*site) : Source(sourceOptions, *backend);
    MainWindow window(settings, language, sourceOptions.historyFile, catalogue);
    if (site)
        window.setSite(*site);
    window.setSource(source.get());
    if (options.size.isValid())
        window.resize(options.size);
    if (!options.minimized)
        window.show();
    QObject::connect(&instance, &SingleInstance::asked, &window, &MainWindow::bringUp);
    QString failure;
    saveWhenDue(window, options, failure);
    source.get().start();
    QApplication::exec();
    if (!failure.isEmpty())
        throw Failure(ToolText::tr("cannot write the picture %1").arg(failure));
}

} // namespace

int main(int argc, char* argv[])
{
    StandardOutput standardOutput("vxprintview");
    // The fleet of this variable is played here, not by the library, as in the monitor.
    const QString fleetOfEnvironment = qEnvironmentVariable("VX_VIRTUAL_FLEET");
    qunsetenv("VX_VIRTUAL_FLEET");
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vxprintview"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VX_VERSION));
    // By this name desktops find the icon and the name of the window, tools/vxprintview/desktop.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.vxprinterstatus.vxprintview"));
    ToolText::useLanguageOfUser();
    return runTool(standardOutput, [&] { run(standardOutput, fleetOfEnvironment); });
}
