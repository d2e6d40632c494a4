// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxlocalelanguages.h"

#include <QtCore/QLocale>

#include <algorithm>
#include <array>
#include <optional>

namespace {

struct Language
{
    QLocale::Language language;
    QLocale::Script script; ///< `AnyScript` if the script does not matter.
    qint32 id;
};

constexpr qint32 english = 0;

constexpr std::array knownLanguages{
    Language{QLocale::English, QLocale::AnyScript, english},
    Language{QLocale::German, QLocale::AnyScript, 1},
    Language{QLocale::French, QLocale::AnyScript, 2},
    Language{QLocale::Spanish, QLocale::AnyScript, 3},
    Language{QLocale::Japanese, QLocale::AnyScript, 4},
    Language{QLocale::Italian, QLocale::AnyScript, 5},
    Language{QLocale::Chinese, QLocale::SimplifiedHanScript, 6},
    Language{QLocale::Portuguese, QLocale::AnyScript, 7},
    Language{QLocale::Dutch, QLocale::AnyScript, 8},
    Language{QLocale::Polish, QLocale::AnyScript, 9},
    Language{QLocale::Korean, QLocale::AnyScript, 10},
    Language{QLocale::Chinese, QLocale::TraditionalHanScript, 11},
};

std::optional<qint32> listedId(const QString& localeName)
{
    const QLocale locale(localeName);
    const auto found = std::ranges::find_if(knownLanguages, [&locale](const Language& candidate) {
        return candidate.language == locale.language() &&
               (candidate.script == QLocale::AnyScript || candidate.script == locale.script());
    });
    if (found == knownLanguages.end())
        return std::nullopt;
    return found->id;
}

} // namespace

VXLocaleLanguages::VXLocaleLanguages(QObject* parent)
    : QObject(parent)
{}

VXLocaleLanguages::~VXLocaleLanguages() = default;

qint32 VXLocaleLanguages::getCurrentLanguageId() const
{
    // Until the application sets a default locale it is the system's, which lists the languages of
    // the user in order of preference.
    return languageId(QLocale().uiLanguages());
}

qint32 VXLocaleLanguages::languageId(const QStringList& localeNames)
{
    for (const QString& name : localeNames) {
        if (const std::optional<qint32> id = listedId(name))
            return *id;
    }
    return english;
}
