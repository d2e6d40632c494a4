// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

/// The languages that names in the supply database can be had in, by their numbers.
///
/// | id | language | id | language |
/// |---|---|---|---|
/// | 0 | English, and every language not listed | 6 | Chinese, simplified |
/// | 1 | German | 7 | Portuguese |
/// | 2 | French | 8 | Dutch |
/// | 3 | Spanish | 9 | Polish |
/// | 4 | Japanese | 10 | Korean |
/// | 5 | Italian | 11 | Chinese, traditional |
///
/// The numbers are stored in databases and never change; new languages are added at the end. A
/// database need not have names in each of them.
class VXLocaleLanguages : public QObject
{
    Q_OBJECT

public:
    explicit VXLocaleLanguages(QObject* parent = nullptr);
    ~VXLocaleLanguages() override;
    Q_DISABLE_COPY_MOVE(VXLocaleLanguages)

    /// The number of the language of the running application: the first listed one among those that
    /// its default locale (`QLocale()`) names. That is the locale that `QLocale::setDefault` was
    /// called with, and otherwise the system's, with its user's languages in order of preference.
    qint32 getCurrentLanguageId() const;

    /// The number of the first listed language among locale names such as "de-CH" or "zh_TW"; 0
    /// when none of them is listed.
    static qint32 languageId(const QStringList& localeNames);
};
