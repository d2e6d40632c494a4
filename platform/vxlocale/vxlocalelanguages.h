// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

/// The numbers of the languages that names in the supply database can have.
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
/// The numbers are stored in databases and never change. New languages are added at the end. A
/// database may lack names in some of the languages.
class VXLocaleLanguages : public QObject
{
    Q_OBJECT

public:
    explicit VXLocaleLanguages(QObject* parent = nullptr);
    ~VXLocaleLanguages() override;
    Q_DISABLE_COPY_MOVE(VXLocaleLanguages)

    /// The number of the application's language: the first listed one among the languages of the
    /// default locale (`QLocale()`). That is the locale set with `QLocale::setDefault`, or
    /// otherwise the system's, which has the user's languages in order of preference.
    qint32 getCurrentLanguageId() const;

    /// The number of the first listed language among locale names such as "de-CH" or "zh_TW"; 0 if
    /// none of them is listed.
    static qint32 languageId(const QStringList& localeNames);
};
