// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What status codes mean and what to do about them, in every language.
#include "printer_status_controller.h"
#include "status_info.h"

#include <QtCore/QHash>
#include <QtCore/QLocale>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>

#include <algorithm>
#include <array>
#include <atomic>
#include <limits>
#include <memory>
#include <thread>
#include <vector>

using VxKit::allStatusInfo;
using VxKit::Severity;
using VxKit::StatusInfo;
using VxKit::statusInfo;

namespace {

/// The product's own codes, and the faults that printers report.
constexpr std::array knownCodes{0,  1,  2,  3,  4,  5,  6,  7,  8,  9,   10,  11,  12,  13, 14,
                                15, 16, 17, 18, 19, 20, 21, 22, 23, 254, 255, 256, 257, 258};
constexpr std::array unlistedCodes{std::numeric_limits<int>::min(), -1, 24, 253, 259, 4711,
                                   std::numeric_limits<int>::max()};

const QStringList languages = QStringLiteral(VX_LANGUAGES).split(QLatin1Char(' '));
/// Every language with texts, as a tag.
const QStringList tags = QStringList{QStringLiteral("en")} + languages;

/// The application in a language, as a host sets it up.
class ApplicationIn
{
public:
    explicit ApplicationIn(const QString& language)
    {
        for (const char* name : {"vxprinterstatus", "vxprinterstatuskit"}) {
            const QString base = QLatin1String(name);
            auto& translator = m_translators.emplace_back(std::make_unique<QTranslator>());
            m_isComplete = translator->load(QLocale(language), base, QStringLiteral("_"),
                                            QStringLiteral(":/%1/translations").arg(base)) &&
                           QCoreApplication::installTranslator(translator.get()) && m_isComplete;
        }
    }

    bool isComplete() const { return m_isComplete; }

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    bool m_isComplete = true;
};

QStringList textsOf(const StatusInfo& info)
{
    return {info.title, info.shortTitle, info.explanation, info.remedy};
}

/// The first sentence's end in any of the languages.
bool endsASentence(const QString& text)
{
    return text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(0x3002));
}

} // namespace

class StatusInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // First, while no language has been loaded.
    void manyThreadsGetTheSameTexts();
    void everyKnownCodeHasAnEntry();
    void keysAreUniqueAndFitForPrograms();
    void keysAndSeveritiesDoNotChange_data();
    void keysAndSeveritiesDoNotChange();
    void everyTextIsThereInEveryLanguage_data();
    void everyTextIsThereInEveryLanguage();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void titlesAreThoseOfTheLibrary_data();
    void titlesAreThoseOfTheLibrary();
    void shortTitlesAreOneLine();
    void anyOtherCodeHasASensibleAnswer_data();
    void anyOtherCodeHasASensibleAnswer();
    void tagsTakeTheTextsOfTheirLanguage_data();
    void tagsTakeTheTextsOfTheirLanguage();
    void otherTagsTakeTheApplicationsLanguage_data();
    void otherTagsTakeTheApplicationsLanguage();
    void aGivenLanguageDoesNotDependOnTheApplications();
    void severitiesHaveFixedKeysAndTranslatedNames();
    void jsonHoldsEverything();
};

void StatusInfoTest::everyKnownCodeHasAnEntry()
{
    const QList<StatusInfo> all = allStatusInfo();
    QList<int> codes;
    for (const StatusInfo& info : all)
        codes.append(info.code);
    QCOMPARE(codes, QList<int>(knownCodes.begin(), knownCodes.end()));
    for (const StatusInfo& info : all)
        QCOMPARE(statusInfo(info.code), info);
}

void StatusInfoTest::keysAreUniqueAndFitForPrograms()
{
    static const QRegularExpression form(QStringLiteral("^[a-z]+(_[a-z]+)*$"));
    QSet<QString> keys{statusInfo(unlistedCodes.front()).key};
    const QList<StatusInfo> all = allStatusInfo();
    for (const StatusInfo& info : all) {
        QVERIFY2(form.match(info.key).hasMatch(), qPrintable(info.key));
        QVERIFY2(!keys.contains(info.key), qPrintable(info.key));
        keys.insert(info.key);
    }
}

void StatusInfoTest::keysAndSeveritiesDoNotChange_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("severity");
    const auto row = [](int code, const char* key, const char* severity) {
        QTest::newRow(key) << code << QString::fromLatin1(key) << QString::fromLatin1(severity);
    };
    row(0, "disconnected", "warning");
    row(1, "ready", "ok");
    row(2, "out_of_labels", "error");
    row(3, "ribbon_ran_out", "error");
    row(4, "cover_open", "error");
    row(5, "labels_jammed", "error");
    row(6, "cutter_jammed", "error");
    row(7, "cutter_cover_open", "error");
    row(8, "print_head_too_hot", "warning");
    row(9, "print_head_not_connected", "error");
    row(10, "motor_too_hot", "warning");
    row(11, "no_labels", "error");
    row(12, "no_ribbon", "error");
    row(13, "labels_not_recognized", "error");
    row(14, "ribbon_not_recognized", "error");
    row(15, "ribbon_labels_mismatch", "error");
    row(16, "label_start_not_found", "error");
    row(17, "ribbon_torn_or_slack", "error");
    row(18, "sensor_needs_calibration", "error");
    row(19, "paused", "warning");
    row(20, "memory_full", "error");
    row(21, "firmware_updating", "information");
    row(22, "firmware_update_failed", "error");
    row(23, "battery_low", "warning");
    row(254, "spooler_not_running", "error");
    row(255, "unknown", "information");
    row(256, "network_printer", "information");
    row(257, "offline", "warning");
    row(258, "not_managed", "warning");
}

void StatusInfoTest::keysAndSeveritiesDoNotChange()
{
    QFETCH(const int, code);
    const StatusInfo info = statusInfo(code, QStringLiteral("de"));
    QTEST(info.key, "key");
    QTEST(VxKit::severityKey(info.severity), "severity");
}

void StatusInfoTest::everyTextIsThereInEveryLanguage_data()
{
    QTest::addColumn<QString>("tag");
    for (const QString& tag : tags)
        QTest::newRow(qPrintable(tag)) << tag;
}

void StatusInfoTest::everyTextIsThereInEveryLanguage()
{
    QFETCH(const QString, tag);
    const QList<StatusInfo> all = allStatusInfo(tag) << statusInfo(unlistedCodes.front(), tag);
    // An explanation must fit a window, and a text without line breaks can be wrapped anywhere.
    constexpr qsizetype longestText = 400;
    for (const StatusInfo& info : all) {
        for (const QString& text : textsOf(info)) {
            QVERIFY2(!text.isEmpty() && text == text.trimmed(), qPrintable(info.key));
            QVERIFY2(text.size() <= longestText, qPrintable(text));
            QVERIFY2(!text.contains(QLatin1String("%1")), qPrintable(text));
            QVERIFY2(!text.contains(QLatin1String("  ")), qPrintable(text));
        }
        for (const QString& text : {info.explanation, info.remedy}) {
            QVERIFY2(endsASentence(text), qPrintable(text));
            QVERIFY2(!text.contains(QLatin1Char('\n')), qPrintable(text));
        }
    }
}

void StatusInfoTest::everyTextIsTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : languages)
        QTest::newRow(qPrintable(language)) << language;
}

void StatusInfoTest::everyTextIsTranslated()
{
    QFETCH(const QString, language);
    for (const int code : knownCodes) {
        const QStringList english = textsOf(statusInfo(code, QStringLiteral("en")));
        const QStringList translated = textsOf(statusInfo(code, language));
        for (qsizetype i = 0; i < english.size(); ++i)
            QVERIFY2(translated.at(i) != english.at(i), qPrintable(english.at(i)));
    }
}

void StatusInfoTest::titlesAreThoseOfTheLibrary_data()
{
    QTest::addColumn<QString>("tag");
    for (const QString& tag : tags)
        QTest::newRow(qPrintable(tag)) << tag;
}

void StatusInfoTest::titlesAreThoseOfTheLibrary()
{
    QFETCH(const QString, tag);
    PrinterStatusController controller;
    QList<int> codes(knownCodes.begin(), knownCodes.end());
    codes.append(QList<int>(unlistedCodes.begin(), unlistedCodes.end()));

    QHash<int, QString> titles;
    {
        const ApplicationIn application(tag);
        QVERIFY(application.isComplete());
        for (const int code : std::as_const(codes)) {
            titles.insert(code, controller.getStatusTitle(code));
            QCOMPARE(statusInfo(code).title, titles.value(code));
        }
    }
    for (const int code : std::as_const(codes))
        QCOMPARE(statusInfo(code, tag).title, titles.value(code));
}

void StatusInfoTest::shortTitlesAreOneLine()
{
    const QString english = QStringLiteral("en");
    QCOMPARE(statusInfo(256, english).title,
             QStringLiteral("Printer Is Remotely Connected.\nUnable to retrieve printer info."));
    QCOMPARE(statusInfo(256, english).shortTitle, QStringLiteral("Printer Is Remotely Connected"));
    QCOMPARE(statusInfo(255, english).shortTitle,
             QStringLiteral("Unable To Retrieve Printer Info"));
    QCOMPARE(statusInfo(255, QStringLiteral("zh-CN")).shortTitle,
             QStringLiteral("无法获取打印机信息"));
    QCOMPARE(statusInfo(258, english).shortTitle, QStringLiteral("Printer Is Not Managed"));
    QCOMPARE(statusInfo(2, english).shortTitle, QStringLiteral("The printer is out of labels"));
    for (const QString& tag : tags) {
        for (const StatusInfo& info : allStatusInfo(tag)) {
            QVERIFY(!info.shortTitle.contains(QLatin1Char('\n')));
            QVERIFY(info.title.startsWith(info.shortTitle));
            QVERIFY2(!endsASentence(info.shortTitle), qPrintable(info.shortTitle));
        }
    }
}

void StatusInfoTest::anyOtherCodeHasASensibleAnswer_data()
{
    QTest::addColumn<int>("code");
    for (const int code : unlistedCodes)
        QTest::addRow("%d", code) << code;
}

void StatusInfoTest::anyOtherCodeHasASensibleAnswer()
{
    QFETCH(const int, code);
    for (const QString& tag : tags) {
        const StatusInfo info = statusInfo(code, tag);
        QCOMPARE(info.code, code);
        QCOMPARE(info.key, QStringLiteral("printer_error"));
        QCOMPARE(info.severity, Severity::Error);
        for (const QString& text : textsOf(info))
            QVERIFY2(text.contains(QString::number(code)), qPrintable(text));
    }
}

void StatusInfoTest::tagsTakeTheTextsOfTheirLanguage_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("ready");
    const auto row = [](const char* tag, const char* ready) {
        QTest::newRow(tag) << QString::fromLatin1(tag) << QString::fromUtf8(ready);
    };
    row("en", "Ready");
    row("en-GB", "Ready");
    row("de", "Bereit");
    row("DE", "Bereit");
    row("de-AT", "Bereit");
    row("de_CH", "Bereit");
    row("de_DE.UTF-8", "Bereit");
    row("de-Latn-DE-1996", "Bereit");
    row("es-MX", "Lista");
    row("fr-CA", "Prête");
    row("it", "Pronta");
    row("ja-JP", "準備完了");
    row("zh", "就绪");
    row("zh-CN", "就绪");
    row("zh_CN", "就绪");
    row("zh-Hans", "就绪");
    row("zh-Hans-TW", "就绪");
    row("zh-SG", "就绪");
}

void StatusInfoTest::tagsTakeTheTextsOfTheirLanguage()
{
    QFETCH(const QString, tag);
    const ApplicationIn application(QStringLiteral("it"));
    QVERIFY(application.isComplete());
    QTEST(statusInfo(1, tag).title, "ready");
}

void StatusInfoTest::otherTagsTakeTheApplicationsLanguage_data()
{
    QTest::addColumn<QString>("tag");
    QTest::newRow("empty") << QString();
    QTest::newRow("a language without texts") << QStringLiteral("pt-BR");
    QTest::newRow("traditional Chinese") << QStringLiteral("zh-TW");
    QTest::newRow("traditional Chinese by its script") << QStringLiteral("zh-Hant");
    QTest::newRow("a longer word") << QStringLiteral("deutsch");
    QTest::newRow("a folder") << QStringLiteral("../de");
    QTest::newRow("a NUL") << QStringLiteral("de") + QChar(0) + QStringLiteral("x");
    QTest::newRow("only hyphens") << QStringLiteral("----");
    QTest::newRow("a million characters") << QStringLiteral("de-").repeated(333'333);
}

void StatusInfoTest::otherTagsTakeTheApplicationsLanguage()
{
    QFETCH(const QString, tag);
    QCOMPARE(statusInfo(1, tag).title, QStringLiteral("Ready"));
    const ApplicationIn application(QStringLiteral("it"));
    QVERIFY(application.isComplete());
    QCOMPARE(statusInfo(1, tag), statusInfo(1, QStringLiteral("it")));
    QCOMPARE(allStatusInfo(tag), allStatusInfo(QStringLiteral("it")));
}

void StatusInfoTest::aGivenLanguageDoesNotDependOnTheApplications()
{
    const QList<StatusInfo> german = allStatusInfo(QStringLiteral("de"));
    const QList<StatusInfo> english = allStatusInfo(QStringLiteral("en"));
    QVERIFY(german != english);
    const ApplicationIn application(QStringLiteral("fr"));
    QVERIFY(application.isComplete());
    QCOMPARE(allStatusInfo(QStringLiteral("de")), german);
    QCOMPARE(allStatusInfo(QStringLiteral("en")), english);
}

void StatusInfoTest::severitiesHaveFixedKeysAndTranslatedNames()
{
    const QString german = QStringLiteral("de");
    QCOMPARE(VxKit::severityKey(Severity::Ok), QStringLiteral("ok"));
    QCOMPARE(VxKit::severityKey(Severity::Information), QStringLiteral("information"));
    QCOMPARE(VxKit::severityKey(Severity::Warning), QStringLiteral("warning"));
    QCOMPARE(VxKit::severityKey(Severity::Error), QStringLiteral("error"));
    QCOMPARE(VxKit::severityKey(static_cast<Severity>(17)), QStringLiteral("error"));
    QCOMPARE(VxKit::severityName(Severity::Warning), QStringLiteral("warning"));
    QCOMPARE(VxKit::severityName(Severity::Warning, german), QStringLiteral("Warnung"));
    QCOMPARE(VxKit::severityName(Severity::Information, german), QStringLiteral("Hinweis"));
    const ApplicationIn application(german);
    QVERIFY(application.isComplete());
    QCOMPARE(VxKit::severityName(Severity::Error), QStringLiteral("Fehler"));
    QCOMPARE(VxKit::severityKey(Severity::Error), QStringLiteral("error"));
}

void StatusInfoTest::jsonHoldsEverything()
{
    const StatusInfo info = statusInfo(258, QStringLiteral("ja"));
    const QJsonObject expected{
        {QStringLiteral("code"), 258},
        {QStringLiteral("key"), QStringLiteral("not_managed")},
        {QStringLiteral("severity"), QStringLiteral("warning")},
        {QStringLiteral("title"), info.title},
        {QStringLiteral("shortTitle"), info.shortTitle},
        {QStringLiteral("explanation"), info.explanation},
        {QStringLiteral("remedy"), info.remedy},
    };
    QCOMPARE(info.toJson(), expected);
}

void StatusInfoTest::manyThreadsGetTheSameTexts()
{
    // No more than can run at the same time, so that they do load a language at the same time.
    const unsigned threadCount = std::clamp(std::thread::hardware_concurrency(), 2U, 8U);
    std::vector<QList<QList<StatusInfo>>> found(threadCount);
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    // How many times a thread has come to the next language.
    std::atomic_uint arrivals = 0;
    for (QList<QList<StatusInfo>>& lists : found) {
        threads.emplace_back([&arrivals, &lists, threadCount] {
            for (qsizetype i = 0; i < tags.size(); ++i) {
                ++arrivals;
                while (arrivals < threadCount * static_cast<unsigned>(i + 1))
                    ;
                lists.append(allStatusInfo(tags.at(i)));
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    QList<QList<StatusInfo>> expected;
    for (const QString& tag : tags)
        expected.append(allStatusInfo(tag));
    for (const QList<QList<StatusInfo>>& lists : found)
        QCOMPARE(lists, expected);
}

QTEST_GUILESS_MAIN(StatusInfoTest)
#include "tst_status_info.moc"
