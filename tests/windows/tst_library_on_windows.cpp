// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The library as it ships, from the spooler's printers and the real registry to its signals.
#include "library_test.h"

#include "windows_printer_info.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QScopeGuard>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>

using VXPrinting::PrinterType;

namespace {

const QString deviceClasses =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001\\Control\\DeviceClasses");

/// A class of devices in the registry, which is deleted with this object. The keys are created by
/// the registry's own functions, which do not change the names.
class RegistryClass
{
public:
    explicit RegistryClass(const QString& guid)
        : m_path(deviceClasses.mid(deviceClasses.indexOf(QLatin1Char('\\')) + 1) +
                 QLatin1Char('\\') + guid)
    {}
    ~RegistryClass() { RegDeleteTreeW(HKEY_LOCAL_MACHINE, WideText(m_path)); }
    Q_DISABLE_COPY_MOVE(RegistryClass)

    bool makeKey(const QString& below) { return open(below) != nullptr; }
    bool makeParameters(const QString& device, DWORD port, const QString& serialNumber)
    {
        const Key key = open(device + QStringLiteral("\\#\\Device Parameters"));
        WideText text(serialNumber);
        return key &&
               RegSetValueExW(key.get(), L"Port Number", 0, REG_DWORD,
                              reinterpret_cast<const BYTE*>(&port), sizeof port) == ERROR_SUCCESS &&
               RegSetValueExW(key.get(), L"Serial Number", 0, REG_SZ, text.bytes(), text.size()) ==
                   ERROR_SUCCESS;
    }

private:
    struct KeyCloser
    {
        void operator()(HKEY key) const { RegCloseKey(key); }
    };
    using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

    Key open(const QString& below)
    {
        HKEY key = nullptr;
        WideText path(m_path + QLatin1Char('\\') + below);
        return Key(RegCreateKeyExW(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                                   &key, nullptr) == ERROR_SUCCESS
                       ? key
                       : nullptr);
    }

    const QString m_path;
};

/// All device classes as the system exports them; empty when that fails.
QByteArray exportedDeviceClasses(const QTemporaryDir& folder)
{
    const QString name = QDir::toNativeSeparators(folder.filePath(QStringLiteral("classes.reg")));
    QProcess reg;
    reg.start(QStringLiteral("reg"),
              {QStringLiteral("export"), deviceClasses, name, QStringLiteral("/y")});
    QFile file(name);
    const bool isWritten =
        reg.waitForFinished(-1) && reg.exitCode() == 0 && file.open(QIODevice::ReadOnly);
    return isWritten ? file.readAll() : QByteArray();
}

} // namespace

class LibraryOnWindowsTest : public LibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void printersOfEveryModelAreListed();
    void offlinePrinters();
    void administrationAndDefaultPrinter();
    void recordOfAPrinter();
    void serialNumbersFromTheRegistry();
    void readingCreatesNoKeys();
    void firstReadReportsEverything();
    void changeOfEachValue_data();
    void changeOfEachValue();
    void valuesOfOtherPrintersAreNotReported();
    void printerThatDoesNotExist();
    void stopEndsTheThread();
};

void LibraryOnWindowsTest::printersOfEveryModelAreListed()
{
    const QList<QPair<const char*, PrinterType>> models{
        {"Stratamark Alder", PrinterType::Alder},
        {"Stratamark BirchMax", PrinterType::BirchMax},
        {"Stratamark CedarMax", PrinterType::CedarMax},
        {"Stratamark AlderMax", PrinterType::AlderMax},
        {"Harlow Devices Old", PrinterType::Generic},
        {"Some Office Printer", PrinterType::Unknown},
    };
    for (const auto& [driver, type] : models) {
        const QString name = addPrinter(driver);
        QVERIFY(!name.isEmpty());
        const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
        const auto found =
            std::find_if(printers.begin(), printers.end(),
                         [&](const AvailablePrinters& entry) { return entry.printerName == name; });
        QVERIFY2(found != printers.end(), driver);
        QCOMPARE(found->driverName, QString::fromLatin1(driver));
        QCOMPARE(found->portName, QStringLiteral("901"));
        QCOMPARE(WindowsPrinterInfo::printerType(found->driverName), type);
        QVERIFY(!found->isNetworkPrinter && !found->isShared && !found->isOffline);
    }
}

void LibraryOnWindowsTest::offlinePrinters()
{
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    QVERIFY(
        fixture::addPrinter({printer, QStringLiteral("Stratamark Alder"), QStringLiteral("USB901"),
                             PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_SHARED}));
    QVERIFY(!WindowsPrinterInfo::isPrinterOffline(printer));
    QVERIFY(WindowsPrinterInfo::getAvailablePrinterInfo(printer).isShared);

    QSettings key(QStringLiteral("HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Control\\Print\\"
                                 "Printers\\") +
                      printer,
                  QSettings::NativeFormat);
    key.setValue(QStringLiteral("Attributes"),
                 PRINTER_ATTRIBUTE_LOCAL | PRINTER_ATTRIBUTE_WORK_OFFLINE);
    key.sync();
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(printer));
    QVERIFY(WindowsPrinterInfo::getAvailablePrinterInfo(printer).isOffline);
    QVERIFY(WindowsPrinterInfo::isPrinterOffline(QStringLiteral("No Such Printer")));
}

void LibraryOnWindowsTest::administrationAndDefaultPrinter()
{
    const QString printer = addPrinter("Stratamark Alder");
    QVERIFY(WindowsPrinterInfo::isPrinterAdmin(printer));
    QVERIFY(!WindowsPrinterInfo::isPrinterAdmin(QStringLiteral("No Such Printer")));

    const QString before = WindowsPrinterInfo::getDefaultPrinterName();
    QVERIFY(SetDefaultPrinterW(WideText(printer)));
    QCOMPARE(WindowsPrinterInfo::getDefaultPrinterName(), printer);
    if (!before.isEmpty())
        QVERIFY(SetDefaultPrinterW(WideText(before)));
}

void LibraryOnWindowsTest::recordOfAPrinter()
{
    const QString printer = addPrinter("Stratamark CedarMax");
    const AvailablePrinters info = WindowsPrinterInfo::getAvailablePrinterInfo(printer);
    QCOMPARE(info.printerName, printer);
    QCOMPARE(info.driverName, QStringLiteral("Stratamark CedarMax"));
    QCOMPARE(WindowsPrinterInfo::getAvailablePrinterInfo(QStringLiteral("None")).driverName,
             QString());
}

void LibraryOnWindowsTest::serialNumbersFromTheRegistry()
{
    const QString guid = QStringLiteral("{0c5b2d1e-7a3f-4d52-9d55-%1}")
                             .arg(QCoreApplication::applicationPid(), 12, 10, QLatin1Char('0'));
    const QString serialNumber = QStringLiteral("SN-%1").arg(QCoreApplication::applicationPid());
    const auto device = [&](int instance) {
        return QStringLiteral("##?#USB#VID_3E7A&PID_0101#%1#%2\\#\\Device Parameters")
            .arg(QString::number(instance), guid);
    };
    {
        QSettings classes(deviceClasses + QLatin1Char('\\') + guid, QSettings::NativeFormat);
        for (int instance : {1, 2}) {
            QSettings parameters(deviceClasses + QLatin1Char('\\') + guid + QLatin1Char('\\') +
                                     device(instance),
                                 QSettings::NativeFormat);
            parameters.setValue(QStringLiteral("Port Number"), 65536 + 40 + instance);
            parameters.setValue(QStringLiteral("Serial Number"),
                                serialNumber + QString::number(instance));
        }
    }
    const QDir roaming(QString::fromWCharArray(_wgetenv(L"APPDATA")));
    const QString folder = QStringLiteral("Harlow Devices Inc");
    const QString file = roaming.filePath(folder + QStringLiteral("/Quillmark.ini"));
    const bool hadFolder = roaming.exists(folder);
    const auto removeFolder = qScopeGuard([&] {
        if (!hadFolder)
            QDir(roaming.filePath(folder)).removeRecursively();
    });

    QCOMPARE(WindowsPrinterInfo::getDriverGUID(), guid);
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(41), serialNumber + QLatin1Char('1'));
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(42), serialNumber + QLatin1Char('2'));
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(43), serialNumber + QLatin1Char('2'));
    {
        QSettings recorded(file, QSettings::IniFormat);
        recorded.beginGroup(QStringLiteral("associatedPrinters"));
        QVERIFY2(recorded.contains(serialNumber + QLatin1Char('1')), qPrintable(file));
        QVERIFY(QDateTime::fromString(recorded.value(serialNumber + QLatin1Char('2')).toString(),
                                      QStringLiteral("yyyy-MM-dd hh:mm:ss"))
                    .isValid());
        recorded.remove(serialNumber + QLatin1Char('1'));
        recorded.remove(serialNumber + QLatin1Char('2'));
    }

    QSettings(deviceClasses, QSettings::NativeFormat).remove(guid);
    QVERIFY(WindowsPrinterInfo::getDriverGUID() != guid);
}

void LibraryOnWindowsTest::readingCreatesNoKeys()
{
    const QTemporaryDir folder;
    QVERIFY(folder.isValid());
    const QString guid = QStringLiteral("{1d5b2d1e-7a3f-4d52-9d55-%1}")
                             .arg(QCoreApplication::applicationPid(), 12, 10, QLatin1Char('0'));
    RegistryClass devices(guid);
    const auto device = [&](const char* instance) {
        return QStringLiteral("##?#USB#VID_3E7A&PID_0101#%1#%2")
            .arg(QString::fromLatin1(instance), guid);
    };
    QVERIFY(devices.makeParameters(device("1"), 41, QStringLiteral("WHOLE")));
    QVERIFY(devices.makeKey(device("2")));
    QVERIFY(devices.makeKey(device("3") + QStringLiteral("\\#")));
    QVERIFY(devices.makeKey(device("4") + QStringLiteral("\\#\\Other")));
    // The last device listed, whose serial number is returned for a port without a device.
    QVERIFY(devices.makeParameters(device("9/9"), 49, QStringLiteral("SLASH")));
    const QString printer = fixture::uniqueName(QStringLiteral("Label Printer"));
    QVERIFY(fixture::addPrinter(
        {printer, QStringLiteral("Stratamark Alder"), QStringLiteral("USB999")}));

    const QByteArray before = exportedDeviceClasses(folder);
    QVERIFY(before.size() > 1000);
    const QList<AvailablePrinters> printers = WindowsPrinterInfo::getAvailablePrinters();
    const QByteArray after = exportedDeviceClasses(folder);
    QCOMPARE(after.size(), before.size());
    QVERIFY(after == before);

    const auto found =
        std::find_if(printers.begin(), printers.end(),
                     [&](const AvailablePrinters& entry) { return entry.printerName == printer; });
    QVERIFY(found != printers.end());
    QCOMPARE(found->serialNumber, QStringLiteral("SLASH"));
}

void LibraryOnWindowsTest::firstReadReportsEverything()
{
    const QString printer = addPrinter("Stratamark AlderMax");
    const QList<Value> values{
        {"SupplyIdentifier", REG_SZ, text("12345678901234567890")},
        {"Ribbon1Identifier", REG_DWORD, word(101)},
        {"Ribbon2Identifier", REG_BINARY, word(102)},
        {"StatusCode", REG_SZ, text("1")},
        {"SoftwareVersion", REG_BINARY, text("4.2,boot")},
        {"EthernetConfig", REG_SZ, text("dhcp")},
        {"Mileage", REG_DWORD, word(152400)},
        {"Ribbon1Mileage", REG_DWORD, word(130001)}, // too many to be true
        {"Ribbon2Mileage", REG_DWORD, word(0xFFFFFFFF)},
        {"UpdateProgress", REG_DWORD, word(0)},
        {"UpdateError", REG_SZ, text("7")}, // no number
    };
    for (const Value& value : values)
        QVERIFY2(publish(printer, value), value.name);

    watch(printer);
    QList<Report> reports;
    QTRY_VERIFY_WITH_TIMEOUT((reports += m_reports->take()).size() >= 9, patience);
    const auto report = [&](const char* signal, const char* value) {
        return Report{QString::fromLatin1(signal), printer, {QString::fromLatin1(value)}};
    };
    QCOMPARE(reports, (QList<Report>{
                          report("printerStatusChanged", "1"),
                          report("supplyIdChanged", "12345678901234567890"),
                          {QStringLiteral("ribbonIdsChanged"),
                           printer,
                           {QStringLiteral("101"), QStringLiteral("102")}},
                          report("supplyIntMileageChanged", "152400"),
                          report("ribbon2IntMileageChanged", "4294967295"),
                          {QStringLiteral("printerNameChangedSignal"), printer, {printer}},
                          report("softwareVersionChanged", "4.2,boot"),
                          report("ethernetConfigChanged", "dhcp"),
                          report("updateProgressChanged", "0"),
                      }));
}

void LibraryOnWindowsTest::changeOfEachValue_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("signal");
    QTest::addColumn<QStringList>("values");
    const auto row = [](const Value& value, const char* signal, const QStringList& values) {
        QTest::newRow(value.name) << QByteArray(value.name) << quint32(value.type) << value.data
                                  << QString::fromLatin1(signal) << values;
    };
    const auto one = [](const char* value) {
        return QStringList{QString::fromLatin1(value)};
    };
    row({"SupplyIdentifier", REG_SZ, text("000001F4100001000001")}, "supplyIdChanged",
        one("000001F4100001000001"));
    row({"Ribbon1Identifier", REG_DWORD, word(7)}, "ribbonIdsChanged",
        {QStringLiteral("7"), QString()});
    row({"Ribbon2Identifier", REG_DWORD, word(8)}, "ribbonIdsChanged",
        {QString(), QStringLiteral("8")});
    row({"StatusCode", REG_SZ, text("42")}, "printerStatusChanged", one("42"));
    row({"SoftwareVersion", REG_SZ, text("5.0")}, "softwareVersionChanged", one("5.0"));
    row({"EthernetConfig", REG_SZ, text("static")}, "ethernetConfigChanged", one("static"));
    row({"Mileage", REG_DWORD, word(100)}, "supplyIntMileageChanged", one("100"));
    row({"Ribbon1Mileage", REG_DWORD, word(200)}, "ribbon1IntMileageChanged", one("200"));
    row({"Ribbon2Mileage", REG_DWORD, word(300)}, "ribbon2IntMileageChanged", one("300"));
    row({"UpdateProgress", REG_DWORD, word(50)}, "updateProgressChanged", one("50"));
    row({"UpdateError", REG_DWORD, word(9)}, "updateErrorChanged", one("9"));
}

void LibraryOnWindowsTest::changeOfEachValue()
{
    QFETCH(const QByteArray, name);
    QFETCH(const quint32, type);
    QFETCH(const QByteArray, data);
    QFETCH(const QString, signal);
    QFETCH(const QStringList, values);
    const QString printer = addPrinter("Stratamark AlderMax");
    watch(printer);
    QVERIFY(waitFor({QStringLiteral("printerNameChangedSignal"), printer, {printer}}));
    QVERIFY(publish(printer, {name.constData(), type, data}));
    QVERIFY(waitFor({signal, printer, values}));
}

void LibraryOnWindowsTest::valuesOfOtherPrintersAreNotReported()
{
    const QString printer = addPrinter("Stratamark AlderMax");
    const QString other = addPrinter("Stratamark Alder");
    watch(printer);
    QVERIFY(waitFor({QStringLiteral("printerNameChangedSignal"), printer, {printer}}));
    // The values of another printer are not reported.
    QVERIFY(publish(other, {"StatusCode", REG_SZ, text("13")}));
    QVERIFY(publish(printer, {"StatusCode", REG_SZ, text("14")}));
    QVERIFY(waitFor({QStringLiteral("printerStatusChanged"), printer, {QStringLiteral("14")}}));
}

void LibraryOnWindowsTest::printerThatDoesNotExist()
{
    watch(fixture::uniqueName(QStringLiteral("No Such Printer")));
    const QDeadlineTimer limit(20000);
    while (!m_thread->wait(10) && !limit.hasExpired())
        m_thread->stop();
    QVERIFY(m_thread->isFinished());
    QVERIFY(m_reports->take().isEmpty());
}

void LibraryOnWindowsTest::stopEndsTheThread()
{
    const QString printer = addPrinter("Stratamark Alder");
    watch(printer);
    QVERIFY(waitFor({QStringLiteral("printerNameChangedSignal"), printer, {printer}}));
    QElapsedTimer clock;
    clock.start();
    while (!m_thread->wait(10))
        m_thread->stop();
    QVERIFY(clock.elapsed() < 4000); // before the next poll of the service
}

QTEST_GUILESS_MAIN(LibraryOnWindowsTest)
#include "tst_library_on_windows.moc"
