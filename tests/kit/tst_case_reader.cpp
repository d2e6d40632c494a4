// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Reading case files, also those that somebody has made to break the reader.
#include "case_file.h"
#include "case_readings.h"
#include "test_file.h"

#include <status_codes.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using VxKit::CaseFile;
using VxKit::CaseLine;
using VxKit::CaseReadings;
using VxKit::Level;
using VxKit::PrinterEvent;
using VxKit::Slot;

namespace {

const QByteArray header(R"({"kind":"case","version":"1.0"})"
                        "\n");
const QByteArray end(R"({"kind":"end","t":9,"steps":0})"
                     "\n");

QByteArray printer(const QByteArray& name)
{
    return R"({"kind":"printer","name":")" + name +
           R"(","driver":"Stratamark Alder","port":"USB001","values":[]})" + '\n';
}

} // namespace

class CaseReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void readsEveryLineInOrder();
    void laterMinorVersionsAreRead();
    void whatIsNoCaseIsRefused_data();
    void whatIsNoCaseIsRefused();
    void damageInTheMiddleIsRefused_data();
    void damageInTheMiddleIsRefused();
    void damageAtTheEndIsACut_data();
    void damageAtTheEndIsACut();
    void aFileThatCannotBeReadIsRefused();
    void timeGoesOnWhereALineHasNone();
    void manyLinesAreReadWithLittleMemory();
    void manyPrintersAreBounded();

    void readingsFollowTheCase();
    void eventsHaveTheTimesOfTheCase();
    void printersThatAGapHidesAreGone();
    void impossibleMembersAreSurvived_data();
    void impossibleMembersAreSurvived();

private:
    QString write(const QByteArray& bytes)
    {
        const QString name = m_folder->filePath(QStringLiteral("a.vxcase"));
        QFile file(name);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? name
                                                                                    : QString();
    }
    struct Result
    {
        qsizetype lines = 0;
        QString error;
        bool isCut = false;
    };
    static Result readAll(const QString& fileName)
    {
        Result result;
        CaseFile file(fileName);
        while (file.next())
            ++result.lines;
        result.error = file.errorString();
        result.isCut = file.isCut();
        return result;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CaseReaderTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void CaseReaderTest::readsEveryLineInOrder()
{
    CaseFile file(testFile(VX_EVERY_KIND));
    QCOMPARE(file.errorString(), QString());
    QCOMPARE(file.header().value(u"locale").toString(), QStringLiteral("de_DE"));
    qint64 number = 0;
    double time = 0;
    QString last;
    while (const std::optional<CaseLine> line = file.next()) {
        QCOMPARE(line->number, ++number);
        QVERIFY(line->time >= time);
        QCOMPARE(line->object.value(u"kind").toString(), line->kind);
        time = line->time;
        last = line->kind;
    }
    QCOMPARE(file.errorString(), QString());
    QCOMPARE(last, QStringLiteral("end"));
    QCOMPARE(time, 4000.25);
    QVERIFY(!file.isCut());
    QVERIFY(!file.next());
}

void CaseReaderTest::laterMinorVersionsAreRead()
{
    const Result result = readAll(write(R"({"kind":"case","version":"1.17","new":[{}]})"
                                        "\n"
                                        R"({"kind":"newKind","t":1})"
                                        "\n" +
                                        end));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.lines, 3);
    QVERIFY(!result.isCut);
}

void CaseReaderTest::whatIsNoCaseIsRefused_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QString noCase = QStringLiteral("this is not a case file");
    const QString noObject = QStringLiteral("line 1: it is not a JSON object");
    QTest::newRow("empty") << QByteArray() << noCase;
    QTest::newRow("no line feed") << header.chopped(1) << noCase;
    QTest::newRow("another program's") << QByteArray("MZ\x90\0\x03\n", 6) << noObject;
    QTest::newRow("zeros") << QByteArray(5000, '\0') + "\n" << noObject;
    QTest::newRow("text") << QByteArray("hello\n") << noObject;
    QTest::newRow("list") << QByteArray("[1]\n") << noObject;
    QTest::newRow("blank first line") << "\n" + header << noObject;
    QTest::newRow("no kind") << QByteArray("{}\n")
                             << QStringLiteral("line 1: the member \"kind\" is missing");
    QTest::newRow("no header") << printer("A") << QStringLiteral("line 1: ") + noCase;
    QTest::newRow("no version") << QByteArray("{\"kind\":\"case\"}\n") << noCase;
    QTest::newRow("odd version") << QByteArray("{\"kind\":\"case\",\"version\":\"1\"}\n") << noCase;
    QTest::newRow("number") << QByteArray("{\"kind\":\"case\",\"version\":1.0}\n") << noCase;
    QTest::newRow("later version")
        << QByteArray("{\"kind\":\"case\",\"version\":\"2.1\"}\n")
        << QStringLiteral("the case file has version 2.1, but this program reads version 1");
    QTest::newRow("earlier version")
        << QByteArray("{\"kind\":\"case\",\"version\":\"0.9\"}\n")
        << QStringLiteral("the case file has version 0.9, but this program reads version 1");
}

void CaseReaderTest::whatIsNoCaseIsRefused()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    const QString name = write(bytes);
    CaseFile file(name);
    QVERIFY2(file.errorString().startsWith(name + QStringLiteral(": ")),
             qPrintable(file.errorString()));
    QVERIFY2(file.errorString().endsWith(reason), qPrintable(file.errorString()));
    QVERIFY(!file.next());
    QVERIFY(file.header().isEmpty());
}

void CaseReaderTest::damageInTheMiddleIsRefused_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");
    const QString noObject = QStringLiteral("line 2: it is not a JSON object");
    QTest::newRow("blank") << QByteArray("\n") << noObject;
    QTest::newRow("half") << QByteArray("{\"kind\":\"printer\",\"na\n") << noObject;
    QTest::newRow("not UTF-8") << QByteArray("{\"kind\":\"printer\",\"name\":\"\xff\xfe\"}\n")
                               << noObject;
    QTest::newRow("half a character")
        << QByteArray("{\"kind\":\"printer\",\"name\":\"\xc3\"}\n") << noObject;
    QTest::newRow("deep nesting") << QByteArray(R"({"kind":"printer","x":)") +
                                         QByteArray(400000, '[') + QByteArray(400000, ']') + "}\n"
                                  << noObject;
    QTest::newRow("no kind") << QByteArray("{\"t\":1}\n")
                             << QStringLiteral("line 2: the member \"kind\" is missing");
    QTest::newRow("kind is a number")
        << QByteArray("{\"kind\":4}\n") << QStringLiteral("line 2: the member \"kind\" is missing");
    const QString noTime =
        QStringLiteral("line 2: \"t\" is not a number of seconds since the start");
    QTest::newRow("time is a text") << QByteArray("{\"kind\":\"x\",\"t\":\"1\"}\n") << noTime;
    QTest::newRow("negative time") << QByteArray("{\"kind\":\"x\",\"t\":-1}\n") << noTime;
    QTest::newRow("endless time") << QByteArray("{\"kind\":\"x\",\"t\":1e300}\n") << noTime;
    QTest::newRow("long line") << QByteArray(R"({"kind":"x","y":")") +
                                      QByteArray(CaseFile::longestLine, 'y') + "\"}\n"
                               << QStringLiteral("line 2: it is longer than 1048576 bytes");
    QTest::newRow("very long line") << QByteArray(16 * CaseFile::longestLine, 'y')
                                    << QStringLiteral("line 2: it is longer than 1048576 bytes");
    QTest::newRow("line behind the end")
        << end << QStringLiteral("line 3: there is a line behind the end of the case");
}

void CaseReaderTest::damageInTheMiddleIsRefused()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, reason);
    const Result result = readAll(write(header + line + printer("A") + end));
    QVERIFY2(result.error.endsWith(QStringLiteral("a.vxcase: ") + reason),
             qPrintable(result.error));
    QVERIFY(result.lines <= 2);
}

void CaseReaderTest::damageAtTheEndIsACut_data()
{
    QTest::addColumn<QByteArray>("tail");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("half a line") << QByteArray(R"({"kind":"signal","na)");
    QTest::newRow("no line feed") << printer("B").chopped(1);
    QTest::newRow("half a character") << QByteArray("{\"kind\":\"signal\",\"name\":\"\xc3");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("half a line and zeros") << QByteArray(R"({"kind":"si)") + QByteArray(4096, '\0');
    QTest::newRow("half a line with a line feed and zeros")
        << QByteArray("{\"kind\":\"si\n") + QByteArray(4096, '\0');
}

void CaseReaderTest::damageAtTheEndIsACut()
{
    QFETCH(const QByteArray, tail);
    const Result result = readAll(write(header + printer("A") + tail));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.lines, 2);
    QVERIFY(result.isCut);
}

void CaseReaderTest::aFileThatCannotBeReadIsRefused()
{
    CaseFile missing(m_folder->filePath(QStringLiteral("missing.vxcase")));
    QVERIFY(missing.errorString().contains(QStringLiteral("missing.vxcase: ")));
    QVERIFY(!missing.next());
    CaseFile folder(m_folder->path());
    QVERIFY(!folder.errorString().isEmpty());
    QVERIFY(!folder.next());
}

void CaseReaderTest::timeGoesOnWhereALineHasNone()
{
    CaseFile file(write(header + "{\"kind\":\"a\",\"t\":2.5}\n{\"kind\":\"b\"}\n" + end));
    QList<double> times;
    while (const std::optional<CaseLine> line = file.next())
        times.append(line->time);
    QCOMPARE(times, QList<double>({0, 2.5, 2.5, 9}));
}

void CaseReaderTest::manyLinesAreReadWithLittleMemory()
{
    constexpr int count = 200000;
    QByteArray bytes = header + printer("A") + "{\"kind\":\"begun\"}\n";
    for (int i = 0; i < count; ++i)
        bytes += R"({"kind":"signal","t":1,"name":"statusChangedSignal",)"
                 R"("arguments":{"status":)" +
                 QByteArray::number(2 + i % 2) + R"(,"printerName":"A"}})" + '\n';
    CaseFile file(write(bytes + end));
    CaseReadings readings;
    int events = 0;
    while (const std::optional<CaseLine> line = file.next())
        events += int(readings.apply(*line).size());
    QCOMPARE(file.errorString(), QString());
    QCOMPARE(events, count);
    QCOMPARE(readings.readings().size(), 1);
}

void CaseReaderTest::manyPrintersAreBounded()
{
    QByteArray bytes = header;
    for (int i = 0; i < 20000; ++i)
        bytes += printer("P" + QByteArray::number(i));
    CaseFile file(write(bytes + end));
    CaseReadings readings;
    while (const std::optional<CaseLine> line = file.next())
        readings.apply(*line);
    QCOMPARE(file.errorString(), QString());
    QCOMPARE(readings.readings().size(), 4096);
}

void CaseReaderTest::readingsFollowTheCase()
{
    CaseFile file(testFile(VX_EVERY_KIND));
    CaseReadings readings;
    std::optional<Level> first;
    while (const std::optional<CaseLine> line = file.next()) {
        readings.apply(*line);
        if (line->kind == QLatin1String("begun") && !first)
            first = readings.reading(QStringLiteral("Versand")).level(Slot::Supply);
    }
    QVERIFY(first);
    QCOMPARE(first->sku, QStringLiteral("VT-400-YL"));
    QCOMPARE(first->name, QStringLiteral("Yellow Vinyl"));
    QCOMPARE(first->colors, QStringList(QStringLiteral("#ffd100")));
    QCOMPARE(first->percentage(), std::optional<int>(80));

    const VxKit::PrinterReading last = readings.reading(QStringLiteral("Versand"));
    QCOMPARE(last.level(Slot::Supply).state, Level::State::NotInCatalogue);
    QCOMPARE(last.level(Slot::Ribbon1).sku, QStringLiteral("RS-43-BK"));
    QCOMPARE(last.statusCode(), VXPrinting::StatusCodes::ready);
    QCOMPARE(last.firmwareVersion(), QStringLiteral("4.2.0"));
    QCOMPARE(last.bootVersion(), QStringLiteral("boot 1.7"));
    QCOMPARE(last.updateError(), std::optional<quint32>(7));
    QCOMPARE(readings.published(QStringLiteral("Versand"), QStringLiteral("Mileage")),
             QStringLiteral("2000"));
    QCOMPARE(readings.reading(QStringLiteral("Labor 2")).presence(),
             VxKit::PrinterReading::Presence::Gone);
    QVERIFY(readings.reading(QStringLiteral("nobody")).isNull());
}

void CaseReaderTest::eventsHaveTheTimesOfTheCase()
{
    CaseFile file(testFile(VX_EVERY_KIND));
    CaseReadings readings;
    QStringList events;
    while (const std::optional<CaseLine> line = file.next()) {
        for (const PrinterEvent& event : readings.apply(*line))
            events.append(event.time.toString(Qt::ISODateWithMs).sliced(11) + u' ' + event.printer +
                          u' ' + event.key);
    }
    for (const char* expected :
         {"10:31:01.600+01:00 Versand ribbon_labels_mismatch",
          "10:31:04.000+01:00 Labor 2 printer_renamed", "10:31:05.000+01:00 Labor 2 printer_gone",
          "10:32:01.100+01:00  spooler_stopped", "10:33:01.100+01:00  spooler_running",
          "10:33:01.100+01:00 Versand ready", "10:36:40.000+01:00 Versand supply_not_in_catalogue",
          "10:36:40.000+01:00 Versand firmware_update_failed"})
        QVERIFY2(events.contains(QLatin1String(expected)), qPrintable(events.join(u'\n')));
}

void CaseReaderTest::printersThatAGapHidesAreGone()
{
    CaseFile file(write(header + printer("A") + printer("B") + "{\"kind\":\"begun\"}\n" +
                        "{\"kind\":\"gap\",\"t\":1,\"lines\":4,\"until\":2}\n" + printer("B") +
                        printer("C") + "{\"kind\":\"begun\",\"t\":2}\n" + end));
    CaseReadings readings;
    QStringList gone;
    while (const std::optional<CaseLine> line = file.next()) {
        for (const PrinterEvent& event : readings.apply(*line)) {
            if (event.kind == PrinterEvent::Kind::PrinterGone)
                gone.append(event.printer);
        }
    }
    QCOMPARE(readings.readings().size(), 3);
    QCOMPARE(readings.reading(QStringLiteral("A")).presence(),
             VxKit::PrinterReading::Presence::Gone);
    QCOMPARE(readings.reading(QStringLiteral("C")).presence(),
             VxKit::PrinterReading::Presence::Present);
}

void CaseReaderTest::impossibleMembersAreSurvived_data()
{
    QTest::addColumn<QByteArray>("line");
    for (
        const char* line : {
            R"({"kind":"printer","name":7,"values":{"a":1}})",
            R"({"kind":"printer","name":"A","driver":["x"],"port":{},"values":[1,"x",null,[],{}]})",
            R"({"kind":"values","printer":"A","changed":[{"name":"Mileage","type":1e300,"number":-1e300}]})",
            R"({"kind":"values","printer":"A","changed":[{"name":"StatusCode","type":3,"base64":"***"}]})",
            R"({"kind":"values","printer":"A","changed":[{"name":"StatusCode","type":1,"size":1e300}]})",
            R"({"kind":"values","printer":"A","changed":[{"name":"StatusCode","type":1,"size":-7}]})",
            R"({"kind":"values","printer":"A","changed":7,"missing":{"a":1}})",
            R"({"kind":"signal","name":"statusChangedSignal","arguments":[1]})",
            R"({"kind":"signal","name":"statusChangedSignal","arguments":{"status":1e300,"printerName":"A"}})",
            R"({"kind":"records","printers":[{"printerName":{}},7]})",
            R"({"kind":"catalogue","tables":{"supply":7,"name":[7,{"id":{}}],"colour":[{"id":1}]}})",
            R"({"kind":"printerRenamed","name":"A","newName":"A"})",
            R"({"kind":"printerRenamed","name":"A"})",
            R"({"kind":"printerRemoved","name":"B"})",
            R"({"kind":"gap"})",
            R"({"kind":"begun"})",
        })
        QTest::newRow(line) << QByteArray(line);
}

void CaseReaderTest::impossibleMembersAreSurvived()
{
    QFETCH(const QByteArray, line);
    CaseFile file(
        write(header + printer("A") + "{\"kind\":\"begun\"}\n" + line + '\n' + line + '\n' + end));
    CaseReadings readings;
    int lines = 0;
    while (const std::optional<CaseLine> each = file.next()) {
        readings.apply(*each);
        ++lines;
    }
    QCOMPARE(file.errorString(), QString());
    QCOMPARE(lines, 6);
    QVERIFY(!readings.readings().isEmpty());
}

QTEST_APPLESS_MAIN(CaseReaderTest)
#include "tst_case_reader.moc"
