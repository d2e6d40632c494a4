// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The titles of status codes in every language that the library carries.
#include "patience.h"
#include "printer_status_controller.h"
#include "status_codes.h"
#include "test_file.h"

#ifdef VX_HAS_OWN_LANGUAGES
#include <vxlocalelanguages.h>
#endif

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtCore/QXmlStreamReader>
#include <QtTest/QtTest>

#include <array>
#include <cstdio>
#include <memory>

namespace StatusCodes = VXPrinting::StatusCodes;

namespace {

struct Title
{
    int code;
    const char* text;
};

constexpr std::array titles{
    Title{StatusCodes::disconnected, "Disconnected"},
    Title{StatusCodes::ready, "Ready"},
    Title{StatusCodes::unknown, "Unable To Retrieve Printer Info. (Code 255)"},
    Title{StatusCodes::networkPrinter,
          "Printer Is Remotely Connected.\nUnable to retrieve printer info."},
    Title{StatusCodes::offline, "Disconnected"},
    Title{StatusCodes::notManaged, "Printer Is Not Managed.\nUnable to retrieve printer info."},
};

/// Codes that the status-messages library has a title for, and codes that it does not list.
constexpr std::array faultCodes{2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13,
                                14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 254};
constexpr std::array unlistedCodes{259, -5, 4711};

const QStringList languages = QStringLiteral(VX_LANGUAGES).split(QLatin1Char(' '));

/// With this argument the program only prints the title of a ready printer.
constexpr char printReadyTitle[] = "--print-ready-title";

struct Message
{
    QString context;
    QString source{};
    QString remark{};
    QString translation{};
    QString state{}; ///< empty for one that is finished
};

QString fileOf(const QString& language)
{
    return testFile(VX_TRANSLATIONS "/vxprinterstatus_%1.ts").arg(language);
}

/// The messages of a translation file. Empty if the file cannot be read.
QList<Message> messagesOf(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<Message> messages;
    QString context;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto element = reader.name();
        if (element == QLatin1String("name"))
            context = reader.readElementText();
        else if (element == QLatin1String("message"))
            messages.append({.context = context});
        else if (element == QLatin1String("source"))
            messages.last().source = reader.readElementText();
        else if (element == QLatin1String("comment"))
            messages.last().remark = reader.readElementText();
        else if (element == QLatin1String("translation")) {
            messages.last().state = reader.attributes().value(QLatin1String("type")).toString();
            messages.last().translation = reader.readElementText();
        }
    }
    return reader.hasError() ? QList<Message>() : messages;
}

/// The texts to be translated, without their translations.
QStringList keysOf(const QList<Message>& messages)
{
    QStringList keys;
    for (const Message& message : messages)
        keys.append(
            QStringList{message.context, message.source, message.remark}.join(QLatin1Char('|')));
    keys.sort();
    return keys;
}

/// Loads the library's translation for a locale, as hosts do. False if there is none.
bool load(QTranslator& translator, const QLocale& locale)
{
    return translator.load(locale, QStringLiteral("vxprinterstatus"), QStringLiteral("_"),
                           QStringLiteral(":/vxprinterstatus/translations"));
}

/// Translates the status messages, but not the library's own titles.
class StatusMessageTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* /*remark*/,
                      int /*number*/) const override
    {
        if (qstrcmp(context, "VXError") != 0)
            return {};
        return QStringLiteral("<%1>").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void everyLanguageIsEmbedded();
    void everyEntryIsFinished_data();
    void everyEntryIsFinished();
    void everyTitleOfTheSourceIsInEveryFile_data();
    void everyTitleOfTheSourceIsInEveryFile();
    void everyTitleIsTranslated_data();
    void everyTitleIsTranslated();
    void localesFindTheirTranslation_data();
    void localesFindTheirTranslation();
    void localesWithoutATranslationStayEnglish_data();
    void localesWithoutATranslationStayEnglish();
    void englishRepeatsTheSourceTexts();
    void firstOfTheUsersLanguagesIsUsed_data();
    void firstOfTheUsersLanguagesIsUsed();
    void titlesAndNamesAreInOneLanguage_data();
    void titlesAndNamesAreInOneLanguage();
    void faultsAreTranslated_data();
    void faultsAreTranslated();
    void ownTitlesAndStatusMessagesAreTranslatedSeparately();

private:
    QString title(int code) { return m_controller->getStatusTitle(code); }
    static void addLanguageRows()
    {
        QTest::addColumn<QString>("language");
        for (const QString& language : languages)
            QTest::newRow(qPrintable(language)) << language;
    }

    std::unique_ptr<PrinterStatusController> m_controller;
};

void TranslationsTest::initTestCase()
{
    m_controller = std::make_unique<PrinterStatusController>();
}

void TranslationsTest::cleanupTestCase()
{
    m_controller.reset();
}

void TranslationsTest::everyLanguageIsEmbedded()
{
    QCOMPARE(languages, QStringLiteral("de es fr it ja zh_CN").split(QLatin1Char(' ')));
    QStringList files;
    for (const QString& language : languages + QStringList{QStringLiteral("en")})
        files.append(QStringLiteral("vxprinterstatus_%1.qm").arg(language));
    files.sort();
    QCOMPARE(QDir(QStringLiteral(":/vxprinterstatus/translations")).entryList(), files);
}

void TranslationsTest::everyEntryIsFinished_data()
{
    addLanguageRows();
}

void TranslationsTest::everyEntryIsFinished()
{
    QFETCH(const QString, language);
    const QList<Message> messages = messagesOf(fileOf(language));
    // Two of the library's six titles are the same text. One text covers all codes that are not
    // listed.
    QCOMPARE(messages.size(), 5 + 29 + 1);
    for (const Message& message : messages) {
        QCOMPARE(message.state, QString());
        QVERIFY(!message.translation.trimmed().isEmpty());
        QVERIFY(message.translation != message.source);
        QCOMPARE(message.translation.count(QLatin1Char('\n')),
                 message.source.count(QLatin1Char('\n')));
        const bool isTitle = message.context == QStringLiteral("QObject");
        QVERIFY(isTitle || message.context == QStringLiteral("VXError"));
        QCOMPARE(message.remark, isTitle ? QStringLiteral("Printer status message") : QString());
    }
}

void TranslationsTest::everyTitleOfTheSourceIsInEveryFile_data()
{
    addLanguageRows();
}

void TranslationsTest::everyTitleOfTheSourceIsInEveryFile()
{
#ifdef VX_LUPDATE
    QFETCH(const QString, language);
    const QTemporaryDir folder;
    const QString found = folder.filePath(QStringLiteral("found.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(VX_LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral("-locations"), QStringLiteral("none"),
                   testFile(VX_TITLES_SOURCE), testFile(VX_FAULTS_SOURCE), QStringLiteral("-ts"),
                   found});
    QVERIFY(lupdate.waitForFinished(patience));
    QVERIFY2(lupdate.exitCode() == 0, lupdate.readAllStandardError().constData());

    const QStringList expected = keysOf(messagesOf(found));
    QVERIFY(!expected.isEmpty());
    QCOMPARE(keysOf(messagesOf(fileOf(language))), expected);
#else
    QSKIP("lupdate runs only on the machine that builds");
#endif
}

void TranslationsTest::everyTitleIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("english");
    for (const QString& language : languages) {
        for (const Title& title : titles)
            QTest::addRow("%s %d", qPrintable(language), title.code)
                << language << title.code << QString::fromLatin1(title.text);
    }
}

void TranslationsTest::everyTitleIsTranslated()
{
    QFETCH(const QString, language);
    QFETCH(const int, code);
    QFETCH(const QString, english);
    const QList<Message> messages = messagesOf(fileOf(language));
    const auto message = std::find_if(messages.begin(), messages.end(), [&](const Message& entry) {
        return entry.source == english;
    });
    QVERIFY(message != messages.end());

    QCOMPARE(title(code), english);
    {
        QTranslator translator;
        QVERIFY(load(translator, QLocale(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(title(code), message->translation);
        QVERIFY(title(code) != english);
    }
    QCOMPARE(title(code), english);
}

void TranslationsTest::localesFindTheirTranslation_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("ready");
    const auto row = [](const char* locale, const char* ready) {
        QTest::newRow(locale) << QString::fromLatin1(locale) << QString::fromUtf8(ready);
    };
    row("de_DE", "Bereit");
    row("de_AT", "Bereit");
    row("fr_FR", "Prête");
    row("fr_CA", "Prête");
    row("es_ES", "Lista");
    row("es_MX", "Lista");
    row("it_IT", "Pronta");
    row("it_CH", "Pronta");
    row("ja_JP", "準備完了");
    row("zh_CN", "就绪");
}

void TranslationsTest::localesFindTheirTranslation()
{
    QFETCH(const QString, locale);
    QTranslator translator;
    QVERIFY(load(translator, QLocale(locale)));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QTEST(title(StatusCodes::ready), "ready");
}

void TranslationsTest::localesWithoutATranslationStayEnglish_data()
{
    QTest::addColumn<QString>("locale");
    for (const char* locale : {"pt_BR", "zh_TW", "C"})
        QTest::newRow(locale) << QString::fromLatin1(locale);
}

void TranslationsTest::localesWithoutATranslationStayEnglish()
{
    QFETCH(const QString, locale);
    QTranslator translator;
    QVERIFY(!load(translator, QLocale(locale)));
    QCOMPARE(title(StatusCodes::ready), QStringLiteral("Ready"));
}

void TranslationsTest::englishRepeatsTheSourceTexts()
{
    const QList<Message> messages = messagesOf(fileOf(QStringLiteral("en")));
    QCOMPARE(keysOf(messages), keysOf(messagesOf(fileOf(QStringLiteral("de")))));
    for (const Message& message : messages)
        QCOMPARE(message.translation, message.source);
}

void TranslationsTest::firstOfTheUsersLanguagesIsUsed_data()
{
    QTest::addColumn<QString>("userLanguages");
    QTest::addColumn<QByteArray>("ready");

    QTest::newRow("German before English") << QStringLiteral("de:en") << QByteArray("Bereit");
    QTest::newRow("English before German") << QStringLiteral("en:de") << QByteArray("Ready");
    QTest::newRow("British English before French")
        << QStringLiteral("en_GB:fr") << QByteArray("Ready");
}

void TranslationsTest::firstOfTheUsersLanguagesIsUsed()
{
#ifdef Q_OS_WIN
    QSKIP("on Windows the user's languages are system settings, which a test must not change");
#endif
    QFETCH(const QString, userLanguages);
    // This needs another process, because a process reads the system's locale only once.
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), userLanguages);
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(printReadyTitle)});
    QVERIFY2(process.waitForFinished(patience), qPrintable(process.errorString()));
    QTEST(process.readAllStandardOutput(), "ready");
}

void TranslationsTest::titlesAndNamesAreInOneLanguage_data()
{
    localesFindTheirTranslation_data();
    for (const char* locale : {"en_US", "sv_SE", "C"})
        QTest::newRow(locale) << QString::fromLatin1(locale) << QStringLiteral("Ready");
}

// Loads the titles as the guide says, on systems of various languages.
void TranslationsTest::titlesAndNamesAreInOneLanguage()
{
#ifdef VX_HAS_OWN_LANGUAGES
    QFETCH(const QString, locale);
    const QLocale before;
    QLocale::setDefault(QLocale(locale));
    const qint32 languageOfNames = VXLocaleLanguages().getCurrentLanguageId();
    QTranslator translator;
    if (load(translator, QLocale()))
        QCoreApplication::installTranslator(&translator);
    QLocale::setDefault(before);
    QTEST(title(StatusCodes::ready), "ready");
    const QString language = translator.isEmpty() ? QStringLiteral("en") : translator.language();
    QCOMPARE(languageOfNames, VXLocaleLanguages::languageId({language}));
#else
    QSKIP("another library decides the language of names");
#endif
}

void TranslationsTest::faultsAreTranslated_data()
{
    addLanguageRows();
}

void TranslationsTest::faultsAreTranslated()
{
    QFETCH(const QString, language);
    QHash<QString, QString> translations;
    for (const Message& message : messagesOf(fileOf(language)))
        translations.insert(message.source, message.translation);
    QStringList english;
    for (const int code : faultCodes)
        english.append(title(code));

    QTranslator translator;
    QVERIFY(load(translator, QLocale(language)));
    QVERIFY(QCoreApplication::installTranslator(&translator));
    for (qsizetype i = 0; i < english.size(); ++i) {
        QVERIFY2(!translations.value(english[i]).isEmpty(), qPrintable(english[i]));
        QCOMPARE(title(faultCodes[static_cast<std::size_t>(i)]), translations.value(english[i]));
        QVERIFY(title(faultCodes[static_cast<std::size_t>(i)]) != english[i]);
    }
    for (const int code : unlistedCodes) {
        QCOMPARE(title(code), translations.value(QStringLiteral("Printer error %1")).arg(code));
        QVERIFY(title(code) != QStringLiteral("Printer error %1").arg(code));
    }
}

void TranslationsTest::ownTitlesAndStatusMessagesAreTranslatedSeparately()
{
    StatusMessageTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(title(4), QStringLiteral("<The cover is open>"));
    QCOMPARE(title(StatusCodes::spoolerDown), QStringLiteral("<The print spooler is not running>"));
    QCOMPARE(title(4711), QStringLiteral("<Printer error 4711>"));
    for (const Title& own : titles)
        QCOMPARE(title(own.code), QString::fromLatin1(own.text));
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], printReadyTitle) == 0) {
        QTranslator translator;
        if (load(translator, QLocale()))
            QCoreApplication::installTranslator(&translator);
        PrinterStatusController controller;
        return std::fputs(qUtf8Printable(controller.getStatusTitle(StatusCodes::ready)), stdout) <
               0;
    }
    TranslationsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_translations.moc"
