// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Which events of printers people are told of, and what the window remembers.
#include "notices.h"
#include "patience.h"
#include "single_instance.h"
#include "view_options.h"
#include "view_settings.h"

#include "failure.h"
#include "run_in_english.h"

#include <QtCore/QTemporaryDir>
#include <QtNetwork/QLocalServer>

using VxKit::PrinterEvent;
using VxKit::Severity;
using VxKit::Slot;

namespace {

PrinterEvent status(const QString& printer, const char* key, Severity severity,
                    std::optional<int> before = 1)
{
    PrinterEvent event;
    event.kind = PrinterEvent::Kind::Status;
    event.printer = printer;
    event.key = QLatin1String(key);
    event.severity = severity;
    event.code = 4;
    event.before.code = before;
    return event;
}

PrinterEvent supplyLoaded(const QString& printer)
{
    PrinterEvent event;
    event.kind = PrinterEvent::Kind::Supply;
    event.printer = printer;
    event.key = QStringLiteral("supply_loaded");
    event.slot = Slot::Supply;
    return event;
}

const QString packing = QStringLiteral("Packing");
const QString returns = QStringLiteral("Returns");

} // namespace

class NoticesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_now = QDateTime(QDate(2026, 11, 22), QTime(10, 0), Qt::UTC); }
    void tellsOfNewFaultsAndWarningsOnly();
    void doesNotTellWhatWasThereAtTheStart();
    void tellsAWarningOnceForARoll();
    void tellsAFaultThatComesBackAfterAMinuteAgain();
    void mutesForATime();
    void mutesAPrinterUnderItsNewNameToo();
    void mutesAKind();
    void settingsKeepMutesAndThresholds();
    void settingsIgnoreWhatIsWrongInTheFile_data();
    void settingsIgnoreWhatIsWrongInTheFile();
    void optionsAreChecked_data();
    void optionsAreChecked();
    void aSecondProgramAsksTheFirst();
    void takesThePlaceOfAProgramThatDoesNotAnswer();

private:
    Notices makeNotices()
    {
        return Notices([this] { return m_now; });
    }
    QDateTime m_now;
};

void NoticesTest::tellsOfNewFaultsAndWarningsOnly()
{
    Notices notices = makeNotices();
    const auto notice = notices.take(status(packing, "cover_open", Severity::Error));
    QVERIFY(notice);
    QCOMPARE(notice->printer, packing);
    QCOMPARE(notice->severity, Severity::Error);
    QCOMPARE(notice->text, QStringLiteral("The cover is open"));
    QVERIFY(notices.take(status(packing, "offline", Severity::Warning)));
    QVERIFY(!notices.take(status(packing, "ready", Severity::Ok)));
    QVERIFY(!notices.take(status(packing, "network", Severity::Information)));
}

void NoticesTest::doesNotTellWhatWasThereAtTheStart()
{
    Notices notices = makeNotices();
    QVERIFY(!notices.take(status(packing, "cover_open", Severity::Error, std::nullopt)));
    QVERIFY(notices.take(status(packing, "cover_open", Severity::Error)));
}

void NoticesTest::tellsAWarningOnceForARoll()
{
    Notices notices = makeNotices();
    const PrinterEvent low = status(packing, "labels_low", Severity::Warning);
    QVERIFY(notices.take(low));
    m_now = m_now.addDays(2);
    QVERIFY(!notices.take(low));
    QVERIFY(notices.take(status(returns, "labels_low", Severity::Warning)));
    QVERIFY(!notices.take(supplyLoaded(packing)));
    QVERIFY(notices.take(low));
    QVERIFY(!notices.take(status(returns, "labels_low", Severity::Warning)));
}

void NoticesTest::tellsAFaultThatComesBackAfterAMinuteAgain()
{
    Notices notices = makeNotices();
    const PrinterEvent open = status(packing, "cover_open", Severity::Error);
    QVERIFY(notices.take(open));
    m_now = m_now.addSecs(59);
    QVERIFY(!notices.take(open));
    m_now = m_now.addSecs(61);
    QVERIFY(notices.take(open));
}

void NoticesTest::mutesForATime()
{
    Notices notices = makeNotices();
    notices.muteUntil(m_now.addSecs(3600));
    QVERIFY(notices.isMuted());
    QVERIFY(!notices.take(status(packing, "cover_open", Severity::Error)));
    QVERIFY(!notices.take(packing, QStringLiteral("few_labels"), QStringLiteral("Few")));
    m_now = m_now.addSecs(3600);
    QVERIFY(!notices.isMuted());
    QVERIFY(notices.take(status(packing, "cover_open", Severity::Error)));
    QVERIFY(notices.take(packing, QStringLiteral("few_labels"), QStringLiteral("Few")));
}

void NoticesTest::mutesAPrinterUnderItsNewNameToo()
{
    Notices notices = makeNotices();
    notices.setPrinterMuted(packing, true);
    QVERIFY(!notices.take(status(packing, "cover_open", Severity::Error)));
    QVERIFY(notices.take(status(returns, "cover_open", Severity::Error)));
    PrinterEvent renamed;
    renamed.kind = PrinterEvent::Kind::PrinterRenamed;
    renamed.printer = QStringLiteral("Hall 2");
    renamed.before.printer = packing;
    QVERIFY(!notices.take(renamed));
    QCOMPARE(notices.mutedPrinters(), QStringList{QStringLiteral("Hall 2")});
    QVERIFY(!notices.take(status(QStringLiteral("Hall 2"), "jam", Severity::Error)));
}

void NoticesTest::mutesAKind()
{
    Notices notices = makeNotices();
    notices.setKindMuted(QStringLiteral("cover_open"), true);
    QVERIFY(!notices.take(status(packing, "cover_open", Severity::Error)));
    QVERIFY(notices.take(status(packing, "jam", Severity::Error)));
    notices.setKindMuted(QStringLiteral("cover_open"), false);
    m_now = m_now.addSecs(600);
    QVERIFY(notices.take(status(packing, "cover_open", Severity::Error)));
}

void NoticesTest::settingsKeepMutesAndThresholds()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("view.ini"));
    const QDateTime until = QDateTime::currentDateTimeUtc().addSecs(1800);
    {
        ViewSettings settings(file);
        QVERIFY(!settings.fewestLabels());
        QCOMPARE(settings.colors(), QStringLiteral("system"));
        Notices notices;
        notices.muteUntil(until);
        notices.setPrinterMuted(QStringLiteral("A, \"B\" = C;\n[D]"), true);
        notices.setKindMuted(QStringLiteral("jam"), true);
        settings.store(notices);
        settings.setFewestLabels(250);
        settings.setLanguage(QStringLiteral("ja"));
        settings.setColors(QStringLiteral("dark"));
        settings.setSortedByName(true);
    }
    const ViewSettings settings(file);
    Notices notices;
    settings.restore(notices);
    QCOMPARE(notices.mutedUntil().toSecsSinceEpoch(), until.toSecsSinceEpoch());
    QCOMPARE(notices.mutedPrinters(), QStringList{QStringLiteral("A, \"B\" = C;\n[D]")});
    QCOMPARE(notices.mutedKinds(), QStringList{QStringLiteral("jam")});
    QCOMPARE(settings.fewestLabels(), 250);
    QCOMPARE(settings.language(), QStringLiteral("ja"));
    QCOMPARE(settings.colors(), QStringLiteral("dark"));
    QVERIFY(settings.isSortedByName());
}

void NoticesTest::settingsIgnoreWhatIsWrongInTheFile_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("values") << QByteArray(
        "[window]\nlanguage=../../x\ncolors=pink\ngeometry=17\n[warnings]\nfewestLabels=-5\n"
        "[notices]\nmutedUntil=2999-01-01T00:00:00Z\n");
    QTest::newRow("types") << QByteArray(
        "[window]\nlanguage=@Variant(\\0\\0\\0)\ncolors=1, 2\n[warnings]\nfewestLabels=x\n"
        "[notices]\nmutedUntil=1\n");
    QTest::newRow("noise") << QByteArray("\0\xff\xfe[[[=\n\n=]", 10);
    QTest::newRow("large") << "[window]\nlanguage=" + QByteArray(100000, 'd') + "\n";
}

void NoticesTest::settingsIgnoreWhatIsWrongInTheFile()
{
    QFETCH(const QByteArray, content);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("view.ini")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
    file.close();
    const ViewSettings settings(file.fileName());
    QCOMPARE(settings.language(), QString());
    QCOMPARE(settings.colors(), QStringLiteral("system"));
    QVERIFY(!settings.fewestLabels());
    Notices notices;
    settings.restore(notices);
    QVERIFY(!notices.isMuted());
}

void NoticesTest::optionsAreChecked_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* arguments, const char* message) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(u' ')
                                 << QString::fromLatin1(message);
    };
    row("--size 1200", "--size: expected such as 1200x800, found \"1200\"");
    row("--size 1200x90000", "--size: expected such as 1200x800, found \"1200x90000\"");
    row("--after 5", "--after goes with --screenshot");
    row("--screenshot a.png --after -1",
        "--after: expected a number above 0 and up to 86400, found \"-1\"");
    row("--screenshot a.png --after nan",
        "--after: expected a number above 0 and up to 86400, found \"nan\"");
    row("--colors pink", "--colors: expected light, dark or system, found \"pink\"");
    row("Packing", "expected options only, found \"Packing\"");
    row("--virtual=", "--virtual: expected a value");
    row("--sped 3", "Unknown option 'sped'.");
}

void NoticesTest::optionsAreChecked()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, message);
    QString found;
    auto status = ExitStatus::Done;
    try {
        parseViewOptions(QStringList{QStringLiteral("vxprintview")} + arguments);
    } catch (const Failure& failure) {
        found = failure.message();
        status = failure.exitStatus();
    }
    QCOMPARE(found, message);
    QCOMPARE(status, ExitStatus::WrongUsage);
}

void NoticesTest::aSecondProgramAsksTheFirst()
{
    SingleInstance first(QStringLiteral("test"));
    QVERIFY(first.claim());
    QSignalSpy asked(&first, &SingleInstance::asked);
    // The second one waits for an answer, as another process does.
    bool isSecondFirst = true;
    const std::unique_ptr<QThread> second(QThread::create(
        [&isSecondFirst] { isSecondFirst = SingleInstance(QStringLiteral("test")).claim(); }));
    second->start();
    QTRY_COMPARE(asked.size(), 1);
    QTRY_VERIFY(second->isFinished());
    QVERIFY(!isSecondFirst);
    // One for other printers is another window.
    SingleInstance other(QStringLiteral("another fleet"));
    QVERIFY(other.claim());
}

void NoticesTest::takesThePlaceOfAProgramThatDoesNotAnswer()
{
    {
        SingleInstance first(QStringLiteral("test"));
        QVERIFY(first.claim());
    }
    SingleInstance next(QStringLiteral("test"));
    QVERIFY(next.claim());
    // It is there for the one after it.
    bool isThirdFirst = true;
    const std::unique_ptr<QThread> third(QThread::create(
        [&isThirdFirst] { isThirdFirst = SingleInstance(QStringLiteral("test")).claim(); }));
    third->start();
    QTRY_VERIFY(third->isFinished());
    QVERIFY(!isThirdFirst);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QCoreApplication, NoticesTest>(argc, argv);
}
#include "tst_notices.moc"
