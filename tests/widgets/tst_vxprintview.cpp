// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The window's program, started as people start it, on virtual printers and without a screen.
#include "patience.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtTest/QtTest>

class VxPrintViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void savesAPictureAndEnds();
    void showsTheFleetOfAFile();
    void saysThatAPictureCannotBeWritten();
    void refusesWrongUsage_data();
    void refusesWrongUsage();
    void saysWhatIsWrongWithAFleet_data();
    void saysWhatIsWrongWithAFleet();
    void printsItsHelpAndItsVersion();
    void startsWithoutAnOpenWindow();
    void handsOverToTheFirst();
    void takesThePlaceOfOneThatWasKilled();

private:
    struct Result
    {
        int exitStatus = -1;
        QString output;
        QString errors;
    };

    void start(QProcess& process, const QStringList& arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("VX_VIRTUAL_FLEET"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
        for (const char* name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
            environment.insert(QString::fromLatin1(name), m_home->path());
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VXPRINTVIEW), arguments);
    }
    static Result resultOf(QProcess& process)
    {
        if (!process.waitForFinished(patience))
            return {};
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }
    Result run(const QStringList& arguments) const
    {
        QProcess process;
        start(process, arguments);
        return resultOf(process);
    }
    /// Where programs wait for others that hand over to them.
    QFileInfoList claims() const
    {
        return QDir(m_home->path())
            .entryInfoList({QStringLiteral("vxprintview-*")}, QDir::System | QDir::Files);
    }
    bool isClaimed() const { return !claims().isEmpty(); }
    QDateTime claimedAt() const { return claims().first().lastModified(); }
    QString pathOf(const QString& name) const { return m_home->filePath(name); }
    /// The path of a new file; empty if it could not be written.
    QString write(const QString& name, const QByteArray& content) const
    {
        QFile file(pathOf(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
                   ? file.fileName()
                   : QString();
    }

    std::unique_ptr<QTemporaryDir> m_home;
};

void VxPrintViewTest::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    QVERIFY(m_home->isValid());
}

void VxPrintViewTest::savesAPictureAndEnds()
{
    const QString file = pathOf(QStringLiteral("window.png"));
    const Result result =
        run({QStringLiteral("--screenshot"), file, QStringLiteral("--after"), QStringLiteral("0.5"),
             QStringLiteral("--size"), QStringLiteral("900x700"), QStringLiteral("--colors"),
             QStringLiteral("light")});
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QCOMPARE(result.output, QString());
    const QImage picture(file);
    QCOMPARE(picture.size(), QSize(900, 700));
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    QVERIFY2(colors.size() > 100, qPrintable(QString::number(colors.size())));
}

void VxPrintViewTest::showsTheFleetOfAFile()
{
    const auto pictureOf = [this](const QByteArray& name, const QByteArray& status) {
        const QString fleet =
            write(QString::fromLatin1(name),
                  R"({"printers": [{"name": "Packing", "driver": "Stratamark AlderMax", )"
                  R"("values": {"StatusCode": ")" +
                      status + R"("}}]})");
        const QString file = fleet + QStringLiteral(".png");
        const Result result =
            run({QStringLiteral("--virtual"), fleet, QStringLiteral("--screenshot"), file,
                 QStringLiteral("--after"), QStringLiteral("1"), QStringLiteral("--size"),
                 QStringLiteral("700x500")});
        if (result.exitStatus != 0)
            qWarning().noquote() << result.errors;
        return QImage(file);
    };
    const QImage ready = pictureOf("ready.json", "1");
    const QImage open = pictureOf("open.json", "4");
    QVERIFY(!ready.isNull());
    QVERIFY(!open.isNull());
    QVERIFY(ready != open);
}

void VxPrintViewTest::saysThatAPictureCannotBeWritten()
{
    const QString file = pathOf(QStringLiteral("missing/window.png"));
    const Result result = run(
        {QStringLiteral("--screenshot"), file, QStringLiteral("--after"), QStringLiteral("0.1")});
    QCOMPARE(result.exitStatus, 1);
    QVERIFY2(result.errors.contains(QLatin1String("cannot write the picture ") + file),
             qPrintable(result.errors));
}

void VxPrintViewTest::refusesWrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* arguments, const char* reason) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments).split(u' ')
                                 << QString::fromLatin1(reason);
    };
    row("--unknown", "unknown");
    row("printers", "expected options only");
    row("--after 1", "--after goes with --screenshot");
    row("--screenshot a.png --after 0", "expected a number above 0");
    row("--screenshot a.png --after soon", "expected a number above 0");
    row("--size 20", "--size");
    row("--size 1x1", "--size");
    row("--colors pink", "--colors");
    row("--language xx", "--language");
    row("--virtual", "virtual");
}

void VxPrintViewTest::refusesWrongUsage()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, reason);
    const Result result = run(arguments);
    QCOMPARE(result.exitStatus, 2);
    QCOMPARE(result.output, QString());
    QVERIFY2(result.errors.startsWith(QLatin1String("vxprintview: ")), qPrintable(result.errors));
    QVERIFY2(result.errors.contains(reason), qPrintable(result.errors));
}

void VxPrintViewTest::saysWhatIsWrongWithAFleet_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("no file") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("{\"printers\": [");
    QTest::newRow("no fleet") << QByteArray("{\"printers\": 7}");
}

void VxPrintViewTest::saysWhatIsWrongWithAFleet()
{
    QFETCH(const QByteArray, content);
    const QString name = QStringLiteral("fleet.json");
    if (!content.isEmpty())
        QVERIFY(!write(name, content).isEmpty());
    const Result result = run({QStringLiteral("--virtual"), pathOf(name)});
    QVERIFY2(result.exitStatus == 1 || result.exitStatus == 2,
             qPrintable(QString::number(result.exitStatus)));
    QVERIFY2(result.errors.contains(name), qPrintable(result.errors));
    QCOMPARE(result.errors.count(u'\n'), 1);
}

void VxPrintViewTest::printsItsHelpAndItsVersion()
{
    const Result help = run({QStringLiteral("--help")});
    QCOMPARE(help.exitStatus, 0);
    QCOMPARE(help.errors, QString());
    for (const char* option : {"--virtual", "--screenshot", "--after", "--minimized", "--language",
                               "--colors", "--version"})
        QVERIFY2(help.output.contains(QLatin1String(option)), option);
    const Result version = run({QStringLiteral("--version")});
    QCOMPARE(version.exitStatus, 0);
    QCOMPARE(version.output, QStringLiteral("vxprintview " VX_VERSION "\n"));
}

void VxPrintViewTest::startsWithoutAnOpenWindow()
{
    // A picture is also made of a window that is not open.
    const QString file = pathOf(QStringLiteral("window.png"));
    const Result result = run({QStringLiteral("--minimized"), QStringLiteral("--screenshot"), file,
                               QStringLiteral("--after"), QStringLiteral("0.2")});
    QVERIFY2(result.exitStatus == 0, qPrintable(result.errors));
    QVERIFY(!QImage(file).isNull());
    QProcess process;
    start(process, {QStringLiteral("--minimized")});
    QTRY_VERIFY(isClaimed());
    QCOMPARE(process.state(), QProcess::Running);
    process.kill();
    QVERIFY(process.waitForFinished(patience));
}

void VxPrintViewTest::handsOverToTheFirst()
{
    QProcess first;
    start(first, {QStringLiteral("--minimized")});
    QTRY_VERIFY(isClaimed());
    const Result second = run({});
    QCOMPARE(second.exitStatus, 0);
    QCOMPARE(second.output + second.errors, QString());
    QCOMPARE(first.state(), QProcess::Running);
    // Another fleet is another window.
    const QString fleet =
        write(QStringLiteral("fleet.json"),
              R"({"printers": [{"name": "Packing", "driver": "Stratamark AlderMax"}]})");
    QProcess other;
    start(other, {QStringLiteral("--virtual"), fleet, QStringLiteral("--minimized")});
    QTRY_COMPARE(claims().size(), 2);
    QCOMPARE(other.state(), QProcess::Running);
    for (QProcess* const process : {&first, &other}) {
        process->kill();
        QVERIFY(process->waitForFinished(patience));
    }
}

void VxPrintViewTest::takesThePlaceOfOneThatWasKilled()
{
    QProcess first;
    start(first, {QStringLiteral("--minimized")});
    QTRY_VERIFY(isClaimed());
    first.kill();
    QVERIFY(first.waitForFinished(patience));
    QVERIFY(isClaimed()); // what it left behind
    const QDateTime before = claimedAt();
    QProcess second;
    start(second, {QStringLiteral("--minimized")});
    QTRY_VERIFY(isClaimed() && claimedAt() != before);
    QCOMPARE(run({QStringLiteral("--minimized")}).exitStatus, 0);
    QCOMPARE(second.state(), QProcess::Running);
    second.kill();
    QVERIFY(second.waitForFinished(patience));
}

QTEST_GUILESS_MAIN(VxPrintViewTest)
#include "tst_vxprintview.moc"
