// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// What an agent on virtual printers serves while they change.
#include "controller_test.h"
#include "patience.h"

#include <agent.h>
#include <agent_log.h>
#include <failure.h>

#include <QtCore/QRegularExpression>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

class MetricsSinkTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;

    void levelAndUseFollowThePrinter();
    void printerThatIsGoneHasNoSeries();
    void renamedPrinterGoesOn();
    void spoolerThatIsDownIsTold();
    void nothingIsServedAfterTheEnd();
    void fileThatCannotBeWrittenIsSaid();
    void addressInUseIsSaidWithItsLine();

private:
    class Log : public AgentLog
    {
    public:
        void write(Level /*level*/, const QString& text) override { lines.append(text); }
        QStringList lines;
    };

    static inline const QString packing = QStringLiteral("Packing");

    void startAgent()
    {
        machine().addPrinter({.name = packing, .driver = QStringLiteral("Stratamark BirchMax")});
        machine().publish(packing, {PrinterValue::text("StatusCode", "1"),
                                    PrinterValue::text("SupplyIdentifier", "0000007D100038000001"),
                                    PrinterValue::number("Mileage", 20000)});
        m_agent = std::make_unique<Agent>(m_config, m_log);
        m_agent->start();
    }
    quint16 port() const
    {
        static const QRegularExpression address(
            QStringLiteral("^metrics are served at http://127\\.0\\.0\\.1:([0-9]+)/metrics$"));
        for (const QString& line : m_log.lines) {
            if (const auto match = address.match(line); match.hasMatch())
                return match.captured(1).toUShort();
        }
        return 0;
    }
    /// Empty when nothing answers.
    QByteArray scrape() const
    {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port());
        socket.write("GET /metrics HTTP/1.1\r\n\r\n");
        const bool hasEnded = QTest::qWaitFor(
            [&socket] { return socket.state() == QTcpSocket::UnconnectedState; }, patience);
        return hasEnded ? socket.readAll() : QByteArray();
    }
    bool isServed(const char* line) const { return scrape().contains(QByteArray(line) + '\n'); }
    bool isNamed(const char* printer) const
    {
        return scrape().contains("printer=\"" + QByteArray(printer) + '"');
    }

    AgentConfig m_config;
    Log m_log;
    std::unique_ptr<Agent> m_agent;
};

void MetricsSinkTest::init()
{
    MachineTest::init();
    m_log.lines.clear();
    m_config = {};
    m_config.file = QStringLiteral("agent.json");
    m_config.lines = {{QStringLiteral("metrics.listen"), 3}};
    m_config.site = QStringLiteral("here");
    m_config.catalogue = QStringLiteral(VX_SAMPLE_DATABASE);
    m_config.metrics.emplace().address = QStringLiteral("127.0.0.1");
}

void MetricsSinkTest::cleanup()
{
    m_agent.reset();
    MachineTest::cleanup();
}

void MetricsSinkTest::levelAndUseFollowThePrinter()
{
    startAgent();
    QVERIFY2(port() > 0, qPrintable(m_log.lines.join(u'\n')));
    QTRY_VERIFY(isServed(R"(vx_supply_consumed_meters_total{printer="Packing",slot="supply"} 0)"));
    QVERIFY(isServed(R"(vx_supply_remaining_labels{printer="Packing",slot="supply"} 968)"));
    QVERIFY(!scrape().contains("ribbon1"));
    machine().publish(packing, PrinterValue::number("Mileage", 19000));
    // In millimetres; the library's formula rounds.
    QTRY_VERIFY(scrape().contains(
        R"(vx_supply_consumed_meters_total{printer="Packing",slot="supply"} 1.000)"));
    machine().publish(packing, PrinterValue::text("StatusCode", "2"));
    QTRY_VERIFY(isServed(R"(vx_printer_error{printer="Packing"} 1)"));
}

void MetricsSinkTest::printerThatIsGoneHasNoSeries()
{
    startAgent();
    QTRY_VERIFY(isNamed("Packing"));
    machine().removePrinter(packing);
    QTRY_VERIFY(isServed("vx_agent_printers 0"));
    QVERIFY(!isNamed("Packing"));
}

void MetricsSinkTest::renamedPrinterGoesOn()
{
    startAgent();
    QTRY_VERIFY(isServed(R"(vx_supply_consumed_meters_total{printer="Packing",slot="supply"} 0)"));
    machine().publish(packing, PrinterValue::number("Mileage", 18000));
    const QByteArray used =
        R"(vx_supply_consumed_meters_total{printer="Packing",slot="supply"} 2.000)";
    QTRY_VERIFY(scrape().contains(used));
    machine().renamePrinter(packing, QStringLiteral("Shipping"));
    QTRY_VERIFY(scrape().contains(QByteArray(used).replace("Packing", "Shipping")));
    QVERIFY(!isNamed("Packing"));
}

void MetricsSinkTest::spoolerThatIsDownIsTold()
{
    startAgent();
    QTRY_VERIFY(isNamed("Packing"));
    machine().stopSpooler();
    machine().advance(5000ms);
    QTRY_VERIFY(isServed(R"(vx_printer_status_code{printer="Packing"} 254)"));
}

void MetricsSinkTest::nothingIsServedAfterTheEnd()
{
    const QTemporaryDir folder;
    m_config.metrics->textfile = folder.filePath(QStringLiteral("vx.prom"));
    startAgent();
    QVERIFY(QFile::exists(m_config.metrics->textfile));
    QTRY_VERIFY(isNamed("Packing"));
    m_agent->stop();
    QCOMPARE(scrape(), QByteArray());
    QVERIFY(!QFile::exists(m_config.metrics->textfile));
}

void MetricsSinkTest::fileThatCannotBeWrittenIsSaid()
{
    m_config.metrics.emplace().textfile = QStringLiteral("/nowhere/at/all/vx.prom");
    startAgent();
    const QStringList said = m_log.lines.filter(QStringLiteral("vx.prom"));
    QCOMPARE(said.size(), 1);
    QVERIFY2(said.first().startsWith(
                 QStringLiteral("metrics cannot be written to /nowhere/at/all/vx.prom: ")),
             qPrintable(said.first()));
    QVERIFY2(said.first().endsWith(QStringLiteral("; it is tried again every 15 seconds")),
             qPrintable(said.first()));
}

void MetricsSinkTest::addressInUseIsSaidWithItsLine()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(QHostAddress::LocalHost)));
    m_config.metrics->port = other.serverPort();
    try {
        startAgent();
        QFAIL("The agent has started");
    } catch (const Failure& failure) {
        QVERIFY2(failure.message().startsWith(
                     QStringLiteral("agent.json:3: metrics.listen: cannot serve metrics at "
                                    "127.0.0.1:%1: ")
                         .arg(other.serverPort())),
                 qPrintable(failure.message()));
    }
}

QTEST_GUILESS_MAIN(MetricsSinkTest)
#include "tst_metrics_sink.moc"
