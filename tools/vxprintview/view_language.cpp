// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "view_language.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QTranslator>

#include <algorithm>
#include <array>

namespace {

/// The buttons of the dialogs. Qt translates them under this name, but its own translations are not
/// part of every installation.
[[maybe_unused]] constexpr std::array dialogButtons{QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
                                                    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
                                                    QT_TRANSLATE_NOOP("QPlatformTheme", "Close")};

} // namespace

ViewLanguage::ViewLanguage() = default;

ViewLanguage::~ViewLanguage() = default;

QList<ViewLanguage::Choice> ViewLanguage::choices()
{
    return {{QStringLiteral("en"), QStringLiteral("English")},
            {QStringLiteral("de"), QStringLiteral("Deutsch")},
            {QStringLiteral("es"), QStringLiteral("Español")},
            {QStringLiteral("fr"), QStringLiteral("Français")},
            {QStringLiteral("it"), QStringLiteral("Italiano")},
            {QStringLiteral("ja"), QStringLiteral("日本語")},
            {QStringLiteral("zh_CN"), QStringLiteral("简体中文")}};
}

bool ViewLanguage::use(const QString& tag)
{
    const QList<Choice> all = choices();
    const auto isTag = [&tag](const Choice& choice) {
        return choice.tag == tag;
    };
    if (!tag.isEmpty() && std::ranges::none_of(all, isTag))
        return false;
    m_tag = tag;
    for (const std::unique_ptr<QTranslator>& translator : m_translators)
        QCoreApplication::removeTranslator(translator.get());
    m_translators.clear();

    const QLocale locale = tag.isEmpty() ? QLocale::system() : QLocale(tag);
    // Numbers and times are written as the language does it.
    QLocale::setDefault(locale);
    const auto install = [&](const QString& name, const QString& folder) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(locale, name, QStringLiteral("_"), folder))
            return;
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
    };
    install(QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    for (const char* name :
         {"vxprinterstatus", "vxprinterstatuskit", "vxprinterstatuswidgets", "tools"})
        install(QLatin1String(name), QStringLiteral(":/%1/translations").arg(QLatin1String(name)));
    return true;
}
