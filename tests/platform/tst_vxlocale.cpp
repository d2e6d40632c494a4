// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "patience.h"
#include "start_process.h"
#include "vxlocalelanguages.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>
#include <QtCore/QProcess>
#include <QtTest/QTest>

#include <cstdio>
#include <cstring>

namespace {

/// Makes this program print the id of the current language and exit. The name of a locale may
/// follow, which becomes the default locale first.
constexpr const char* printId = "--print-language-id";

/// Runs in a separate process, because Qt reads the system's locale only once.
QByteArray idPrinted(const QString& systemLanguages, const QString& defaultLocale)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), systemLanguages);
    process.setProcessEnvironment(environment);
    QStringList arguments{QString::fromLatin1(printId)};
    if (!defaultLocale.isEmpty())
        arguments.append(defaultLocale);
    startProcess(process, QCoreApplication::applicationFilePath(), arguments);
    return process.waitForFinished(patience) ? process.readAllStandardOutput()
                                             : process.errorString().toUtf8();
}

} // namespace

class VXLocaleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersLanguages_data();
    void numbersLanguages();
    void returnsTheFirstListedLanguage_data();
    void returnsTheFirstListedLanguage();
    void followsTheLanguagesOfTheSystem_data();
    void followsTheLanguagesOfTheSystem();
    void followsTheDefaultLocaleOfTheApplication_data();
    void followsTheDefaultLocaleOfTheApplication();
};

void VXLocaleTest::numbersLanguages_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("id");

    const auto row = [](const char* locale, int id) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << id;
    };
    row("en", 0);
    row("en-US", 0);
    row("en_GB", 0);
    row("de", 1);
    row("de-CH", 1);
    row("de_AT", 1);
    row("fr", 2);
    row("fr-CA", 2);
    row("es", 3);
    row("es-MX", 3);
    row("ja", 4);
    row("ja_JP", 4);
    row("it", 5);
    row("it-CH", 5);
    row("zh-Hans", 6);
    row("zh_CN", 6);
    row("zh-Hans-SG", 6);
    row("pt", 7);
    row("pt-BR", 7);
    row("pt_PT", 7);
    row("nl", 8);
    row("nl-BE", 8);
    row("pl", 9);
    row("ko", 10);
    row("ko_KR", 10);
    row("zh-Hant", 11);
    row("zh_TW", 11);
    row("zh-HK", 11);
    // Not listed.
    row("sv", 0);
    row("tlh", 0);
    row("C", 0);
    row("", 0);
    row("not a locale", 0);
}

void VXLocaleTest::numbersLanguages()
{
    QFETCH(const QString, locale);
    QFETCH(const int, id);
    QCOMPARE(VXLocaleLanguages::languageId({locale}), id);
}

void VXLocaleTest::returnsTheFirstListedLanguage_data()
{
    QTest::addColumn<QStringList>("locales");
    QTest::addColumn<int>("id");

    const auto row = [](const char* name, const QStringList& locales, int id) {
        QTest::newRow(name) << locales << id;
    };
    row("none", {}, 0);
    row("the first", {QStringLiteral("fr-FR"), QStringLiteral("de-DE")}, 2);
    row("the second, after one not listed", {QStringLiteral("sv-SE"), QStringLiteral("de-DE")}, 1);
    row("English before another", {QStringLiteral("en-GB"), QStringLiteral("de-DE")}, 0);
    row("none listed", {QStringLiteral("sv-SE"), QStringLiteral("fi-FI")}, 0);
}

void VXLocaleTest::returnsTheFirstListedLanguage()
{
    QFETCH(const QStringList, locales);
    QFETCH(const int, id);
    QCOMPARE(VXLocaleLanguages::languageId(locales), id);
}

void VXLocaleTest::followsTheLanguagesOfTheSystem_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<int>("id");

    QTest::newRow("German") << QStringLiteral("de") << 1;
    QTest::newRow("Japanese") << QStringLiteral("ja_JP") << 4;
    QTest::newRow("traditional Chinese") << QStringLiteral("zh_TW") << 11;
    QTest::newRow("in the user's order") << QStringLiteral("sv:fr:de") << 2;
    QTest::newRow("none listed") << QStringLiteral("sv") << 0;
}

void VXLocaleTest::followsTheLanguagesOfTheSystem()
{
#ifdef Q_OS_WIN
    QSKIP("Windows takes the language of a process only from the user's settings");
#endif
    QFETCH(const QString, languages);
    QFETCH(const int, id);
    QCOMPARE(idPrinted(languages, QString()), QByteArray::number(id));
}

void VXLocaleTest::followsTheDefaultLocaleOfTheApplication_data()
{
    QTest::addColumn<QString>("languages");
    QTest::addColumn<QString>("defaultLocale");
    QTest::addColumn<int>("id");

    // The default locale that the application has set takes precedence over the system's languages.
    for (const char* languages : {"de", "ja_JP", "zh_TW", "sv:fr:de", "en_GB:de", "sv"}) {
        const auto row = [languages](const char* defaultLocale, int id) {
            QTest::addRow("%s in a system of %s", defaultLocale, languages)
                << QString::fromLatin1(languages) << QString::fromLatin1(defaultLocale) << id;
        };
        row("en_US", 0);
        row("de_CH", 1);
        row("fr_FR", 2);
        row("ja_JP", 4);
        row("zh_CN", 6);
        row("zh_HK", 11);
        row("sv_SE", 0);
        row("C", 0);
    }
}

void VXLocaleTest::followsTheDefaultLocaleOfTheApplication()
{
    QFETCH(const QString, languages);
    QFETCH(const QString, defaultLocale);
    QFETCH(const int, id);
    QCOMPARE(idPrinted(languages, defaultLocale), QByteArray::number(id));
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc >= 2 && std::strcmp(argv[1], printId) == 0) {
        if (argc > 2)
            QLocale::setDefault(QLocale(QString::fromLatin1(argv[2])));
        std::printf("%d", VXLocaleLanguages().getCurrentLanguageId());
        return 0;
    }
    VXLocaleTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_vxlocale.moc"
