// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "c_host_process.h"

#include <ConsoleAppender.h>
#include <FileAppender.h>
#include <Logger.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QObject>
#include <QtCore/QTranslator>

#include <array>
#include <clocale>
#include <stdexcept>
#include <string>

namespace VxKit::c_interface {

namespace {

/// Puts the locale of the C library back, which Qt sets for programs that are written for it: a
/// host would otherwise print its numbers with other decimal points from then on.
class KeptLocale
{
public:
    KeptLocale()
    {
        if (const char* const locale = std::setlocale(LC_ALL, nullptr))
            m_locale = locale;
    }
    ~KeptLocale() { std::setlocale(LC_ALL, m_locale.c_str()); }
    Q_DISABLE_COPY_MOVE(KeptLocale)

private:
    std::string m_locale;
};

std::unique_ptr<QCoreApplication> makeApplication()
{
    // The application object keeps references to both.
    static std::array<char, 6> name{"vxkit"};
    static std::array<char*, 2> arguments{name.data(), nullptr};
    static int argumentCount = 1;
    const KeptLocale kept;
    return std::make_unique<QCoreApplication>(argumentCount, arguments.data());
}

// When the process exits, Qt releases the data of the application's thread: that is usually the
// main thread, which does not end and so cannot do it. The thread of the sessions ends before and
// has released them once already. Plugins, which Qt moves to the application's thread, would then
// use them after they were freed. This object shares them, and so makes up for the second release.
void holdDataOfThread()
{
    // Volatile, so that the pointer is kept: those who search for leaks find the object by it.
    static QObject* volatile object = nullptr;
    if (!object)
        object = new QObject;
}

void keepLog(const QString& fileName)
{
    // Every line of the library is at debug level.
    AbstractAppender* appender = nullptr;
    if (fileName.isEmpty()) {
        appender = new ConsoleAppender;
        appender->setDetailsLevel(Logger::Warning);
    } else {
        if (!QFile(fileName).open(QIODevice::Append))
            throw std::runtime_error("the log file cannot be written: " + fileName.toStdString());
        appender = new FileAppender(fileName);
        appender->setDetailsLevel(Logger::Debug);
    }
    Logger::globalInstance()->registerAppender(appender);
}

} // namespace

QLocale localeOf(const QString& language, bool* isKnown)
{
    const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
    if (isKnown)
        *isKnown = language.isEmpty() || locale.language() != QLocale::C;
    return locale;
}

HostProcess::HostProcess(const SessionOptions& options)
{
    if (QCoreApplication::instance()) {
        if (!options.language.isEmpty())
            throw std::runtime_error("VXKIT_OPTION_LANGUAGE is set, but the process has a Qt "
                                     "application, which determines the language");
        if (!options.logFile.isEmpty())
            throw std::runtime_error("VXKIT_OPTION_LOG_FILE is set, but the process has a Qt "
                                     "application, which determines where the log goes");
        return;
    }
    m_application = makeApplication();
    holdDataOfThread();
    keepLog(options.logFile);
    const QLocale locale = localeOf(options.language);
    loadTexts(QStringLiteral("vxprinterstatus"), locale);
    loadTexts(QStringLiteral("vxprinterstatuskit"), locale);
    QLocale::setDefault(locale);
}

HostProcess::~HostProcess()
{
    if (m_application)
        QLocale::setDefault(m_formerLocale);
}

void HostProcess::loadTexts(const QString& name, const QLocale& locale)
{
    auto* const texts = new QTranslator(m_application.get());
    if (texts->load(locale, name, QStringLiteral("_"),
                    QStringLiteral(":/%1/translations").arg(name)))
        QCoreApplication::installTranslator(texts);
}

} // namespace VxKit::c_interface
