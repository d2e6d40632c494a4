// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include <metrics_text.h>
#include <status_codes.h>

#include <QtCore/QTimeZone>
#include <QtTest/QtTest>

using metrics_text::Format;
using metrics_text::Printer;
using VxKit::Level;
using VxKit::PrinterReading;
using VxKit::Slot;
using Watching = PrinterReading::Watching;

class MetricsTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingThatIsKnownHasASeries();
    void whatIsNotKnownHasNone();
    void zeroIsKnown();
    void printerThatIsGoneHasNoSeries();
    void errorIsOnlyToldOfWatchedPrinters_data();
    void errorIsOnlyToldOfWatchedPrinters();
    void namesAreEscaped_data();
    void namesAreEscaped();
    void printersWithTheSameLabelAreToldApart();
    void metricsStandTogether();
    void openMetricsNamesTheCounterWithoutItsEnding();
    void clientsGetTheFormatThatTheyAccept_data();
    void clientsGetTheFormatThatTheyAccept();

private:
    static PrinterReading reading(const QString& name)
    {
        PrinterReading reading;
        reading.setName(name);
        reading.setModel(VXPrinting::PrinterType::BirchMax);
        reading.setDriver(QStringLiteral("Stratamark BirchMax"));
        reading.setPresent();
        reading.setWatching(Watching::Watched);
        reading.setStatusCode(1);
        reading.setOnline(true);
        return reading;
    }
    static QByteArrayList lines(const QList<Printer>& printers, Format format = Format::Prometheus)
    {
        return metrics_text::text({QStringLiteral("1.0"), QStringLiteral("here")}, printers, format)
            .split('\n');
    }
    static QByteArrayList values(const QList<Printer>& printers)
    {
        QByteArrayList found = lines(printers);
        found.removeIf(
            [](const QByteArray& line) { return line.isEmpty() || line.startsWith('#'); });
        return found;
    }
    static QByteArrayList samples(const QList<Printer>& printers, const QByteArray& metric)
    {
        QByteArrayList found;
        for (const QByteArray& line : lines(printers)) {
            if (line.startsWith(metric + '{') || line.startsWith(metric + ' '))
                found.append(line);
        }
        return found;
    }
    static QByteArray isOnline(const QByteArray& label)
    {
        return "vx_printer_online{printer=\"" + label + "\"} 1";
    }
    static QByteArrayList of(std::initializer_list<const char*> expected)
    {
        QByteArrayList list;
        for (const char* line : expected)
            list.append(line);
        return list;
    }
};

void MetricsTextTest::everythingThatIsKnownHasASeries()
{
    PrinterReading packing = reading(QStringLiteral("Packing"));
    packing.setPort(QStringLiteral("001"));
    packing.setSerialNumber(QStringLiteral("BM-1"));
    packing.setFirmwareVersion(QStringLiteral("4.2"));
    packing.setLastReport(QDateTime::fromMSecsSinceEpoch(1700000000500, Qt::UTC));
    Level supply;
    supply.state = Level::State::Loaded;
    supply.identifier = QStringLiteral("00000082100038000001");
    supply.sku = QStringLiteral("DN-2UP-WH");
    supply.material = QStringLiteral("Paper");
    supply.ratio = 0.25;
    supply.meters = 9.5;
    supply.labels = 460;
    packing.setLevel(Slot::Supply, supply);
    packing.setEstimatedSecondsRemaining(Slot::Supply, VxKit::RemainingTime{60, 3600, 7200.5});

    QCOMPARE(
        values({{packing, {1.75, std::nullopt, std::nullopt}}}),
        of({R"(vx_agent_info{version="1.0",site="here"} 1)", "vx_agent_printers 1",
            R"(vx_printer_info{printer="Packing",model="BirchMax",driver="Stratamark BirchMax",)"
            R"(port="001",serial="BM-1",firmware="4.2"} 1)",
            R"(vx_printer_status_code{printer="Packing"} 1)",
            R"(vx_printer_status_info{printer="Packing",status="ready",severity="ok"} 1)",
            R"(vx_printer_online{printer="Packing"} 1)", R"(vx_printer_error{printer="Packing"} 0)",
            R"(vx_printer_last_report_timestamp_seconds{printer="Packing"} 1700000000.5)",
            R"(vx_supply_info{printer="Packing",slot="supply",sku="DN-2UP-WH",)"
            R"(material="Paper"} 1)",
            R"(vx_supply_remaining_ratio{printer="Packing",slot="supply"} 0.25)",
            R"(vx_supply_remaining_meters{printer="Packing",slot="supply"} 9.5)",
            R"(vx_supply_remaining_labels{printer="Packing",slot="supply"} 460)",
            R"(vx_supply_estimated_seconds_remaining{printer="Packing",slot="supply",)"
            R"(quantile="0.1"} 60)",
            R"(vx_supply_estimated_seconds_remaining{printer="Packing",slot="supply",)"
            R"(quantile="0.5"} 3600)",
            R"(vx_supply_estimated_seconds_remaining{printer="Packing",slot="supply",)"
            R"(quantile="0.9"} 7200.5)",
            R"(vx_supply_consumed_meters_total{printer="Packing",slot="supply"} 1.75)"}));
}

void MetricsTextTest::whatIsNotKnownHasNone()
{
    PrinterReading packing = reading(QStringLiteral("Packing"));
    packing.setStatusCode(VXPrinting::StatusCodes::unknown);
    QCOMPARE(values({{packing}}),
             of({R"(vx_agent_info{version="1.0",site="here"} 1)", "vx_agent_printers 1",
                 R"(vx_printer_info{printer="Packing",model="BirchMax",)"
                 R"(driver="Stratamark BirchMax"} 1)",
                 R"(vx_printer_status_code{printer="Packing"} 255)",
                 R"(vx_printer_status_info{printer="Packing",status="unknown",)"
                 R"(severity="information"} 1)",
                 R"(vx_printer_online{printer="Packing"} 1)"}));
}

void MetricsTextTest::zeroIsKnown()
{
    PrinterReading packing = reading(QStringLiteral("Packing"));
    Level used;
    used.state = Level::State::Loaded;
    used.ratio = 0.0;
    used.meters = 0.0;
    used.labels = 0;
    packing.setLevel(Slot::Supply, used);
    const QList<Printer> printers{{packing, {0.0, std::nullopt, std::nullopt}}};
    for (const char* metric : {"vx_supply_remaining_ratio", "vx_supply_remaining_meters",
                               "vx_supply_remaining_labels", "vx_supply_consumed_meters_total"})
        QCOMPARE(samples(printers, metric),
                 QByteArrayList{QByteArray(metric) + R"({printer="Packing",slot="supply"} 0)"});
}

void MetricsTextTest::printerThatIsGoneHasNoSeries()
{
    PrinterReading gone = reading(QStringLiteral("Packing"));
    gone.setGone(QDateTime::currentDateTimeUtc());
    QCOMPARE(values({{gone, {1.0, 1.0, 1.0}}}),
             of({R"(vx_agent_info{version="1.0",site="here"} 1)", "vx_agent_printers 0"}));
}

void MetricsTextTest::errorIsOnlyToldOfWatchedPrinters_data()
{
    QTest::addColumn<Watching>("watching");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("out of labels") << Watching::Watched << 2 << QByteArray("1");
    QTest::newRow("ready") << Watching::Watched << 1 << QByteArray("0");
    QTest::newRow("a code that is not known") << Watching::Watched << 77 << QByteArray("1");
    QTest::newRow("spooler down") << Watching::Watched << 254 << QByteArray("1");
    QTest::newRow("offline") << Watching::OfflineSinceDiscovery << 257 << QByteArray("0");
    QTest::newRow("not reported yet") << Watching::Watched << 255 << QByteArray();
    QTest::newRow("network printer") << Watching::NetworkPrinter << 256 << QByteArray();
    QTest::newRow("not managed") << Watching::NotManaged << 258 << QByteArray();
}

void MetricsTextTest::errorIsOnlyToldOfWatchedPrinters()
{
    QFETCH(const Watching, watching);
    QFETCH(const int, code);
    QFETCH(const QByteArray, value);
    PrinterReading packing = reading(QStringLiteral("Packing"));
    packing.setWatching(watching);
    packing.setStatusCode(code);
    const QByteArrayList expected =
        value.isEmpty() ? QByteArrayList()
                        : QByteArrayList{R"(vx_printer_error{printer="Packing"} )" + value};
    QCOMPARE(samples({{packing}}, "vx_printer_error"), expected);
}

void MetricsTextTest::namesAreEscaped_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("label");
    QTest::newRow("quotation mark") << QStringLiteral("a\"} 1") << QByteArray(R"(a\"} 1)");
    QTest::newRow("backslash") << QStringLiteral(R"(\\server\name)")
                               << QByteArray(R"(\\\\server\\name)");
    QTest::newRow("line feed") << QStringLiteral("a\nb") << QByteArray(R"(a\\u000ab)");
    QTest::newRow("null") << QStringLiteral("a") + QChar(0) << QByteArray(R"(a\\u0000)");
    QTest::newRow("writing direction")
        << QStringLiteral("a") + QChar(0x202e) << QByteArray(R"(a\\u202e)");
    QTest::newRow("half a character")
        << QStringLiteral("a") + QChar(0xd800) << QByteArray(R"(a\\ud800)");
    QTest::newRow("Japanese") << QStringLiteral("東京") << QByteArray("東京");
    QTest::newRow("long") << QString(5000, u'x') << QByteArray(256, 'x');
}

void MetricsTextTest::namesAreEscaped()
{
    QFETCH(const QString, name);
    QFETCH(const QByteArray, label);
    QCOMPARE(samples({{reading(name)}}, "vx_printer_online"), QByteArrayList{isOnline(label)});
}

void MetricsTextTest::printersWithTheSameLabelAreToldApart()
{
    const QList<Printer> printers{{reading(QStringLiteral("a\\u0001"))},
                                  {reading(QStringLiteral("a") + QChar(1))},
                                  {reading(QString(300, u'x'))},
                                  {reading(QString(301, u'x'))}};
    const QByteArray x(256, 'x');
    QCOMPARE(samples(printers, "vx_printer_online"),
             (QByteArrayList{isOnline("a\\\\u0001"), isOnline("a\\\\u0001 (2)"), isOnline(x),
                             isOnline(x + " (2)")}));
}

void MetricsTextTest::metricsStandTogether()
{
    QByteArrayList metrics;
    for (const QByteArray& line :
         lines({{reading(QStringLiteral("a")), {1.0, 2.0, 3.0}}, {reading(QStringLiteral("b"))}})) {
        if (line.startsWith("# TYPE "))
            metrics.append(line.split(' ').at(2));
        else if (!line.isEmpty() && !line.startsWith('#'))
            QCOMPARE(line.first(line.indexOf(line.contains('{') ? '{' : ' ')), metrics.last());
    }
    QCOMPARE(metrics.size(), QSet<QByteArray>(metrics.cbegin(), metrics.cend()).size());
}

void MetricsTextTest::openMetricsNamesTheCounterWithoutItsEnding()
{
    const QList<Printer> printers{
        {reading(QStringLiteral("a")), {1.0, std::nullopt, std::nullopt}}};
    const QByteArrayList open = lines(printers, Format::OpenMetrics);
    QVERIFY(open.contains("# TYPE vx_supply_consumed_meters counter"));
    QVERIFY(open.contains(R"(vx_supply_consumed_meters_total{printer="a",slot="supply"} 1)"));
    QCOMPARE(open.mid(open.size() - 2), of({"# EOF", ""}));
    const QByteArrayList plain = lines(printers);
    QVERIFY(plain.contains("# TYPE vx_supply_consumed_meters_total counter"));
    QVERIFY(!plain.contains("# EOF"));
}

void MetricsTextTest::clientsGetTheFormatThatTheyAccept_data()
{
    QTest::addColumn<QByteArray>("accept");
    QTest::addColumn<bool>("isOpen");
    // As Prometheus 2.42 sends it: scrape/scrape.go, scrapeAcceptHeader.
    QTest::newRow("Prometheus") << QByteArray(
                                       "application/openmetrics-text;version=1.0.0,application/"
                                       "openmetrics-text;version=0.0.1;"
                                       "q=0.75,text/plain;version=0.0.4;q=0.5,*/*;q=0.1")
                                << true;
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("anything") << QByteArray("*/*") << false;
    QTest::newRow("plain") << QByteArray("text/plain;version=0.0.4") << false;
    QTest::newRow("in capitals") << QByteArray("Application/OpenMetrics-Text") << true;
    QTest::newRow("refused") << QByteArray("application/openmetrics-text;q=0,*/*") << false;
}

void MetricsTextTest::clientsGetTheFormatThatTheyAccept()
{
    QFETCH(const QByteArray, accept);
    QFETCH(const bool, isOpen);
    QCOMPARE(metrics_text::acceptedFormat(accept) == Format::OpenMetrics, isOpen);
}

QTEST_GUILESS_MAIN(MetricsTextTest)
#include "tst_metrics_text.moc"
