// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Serial numbers from the device registry, and the file in which they are recorded.
#include "machine_test.h"

#include "windows_printer_info.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>

namespace {

const QString makersClass = QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
const QString otherClass = QStringLiteral("{a5dcbf10-6530-11d2-901f-00c04fb951ed}");
const QString foreignDevice = QStringLiteral("##?#USB#VID_0001&PID_0002#9#{class}");

QString text(const char* characters)
{
    return QString::fromUtf8(characters);
}

/// The key of a device interface of the maker, named as Windows names it.
QString makersDevice(int instance)
{
    return QStringLiteral("##?#USB#VID_3E7A&PID_0102&MI_00#7&2f3ea1c5&0&%1#")
               .arg(instance, 4, 10, QLatin1Char('0')) +
           makersClass;
}

} // namespace

class DeviceSerialNumbersTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void noDevices();
    void noDeviceOfTheMaker();
    void classOfTheMakersDevices_data();
    void classOfTheMakersDevices();
    void firstClassListedWins();
    void deviceOnAPort();
    void noDeviceOnThePort();
    void portNumbers_data();
    void portNumbers();
    void firstDeviceOnAPortWins();
    void devicesOfOtherMakersInTheClassCount();
    void missingSerialNumber();
    void ofTheMakersDevicesByPort();
    void classWithoutUsableParameters();
    void registryPathsThatAreRead();
    void fileIsInTheUsersScope();
    void timeOfFirstSightIsPreserved();
    void filesOfWiderScopeAreIgnored_data();
    void filesOfWiderScopeAreIgnored();
    void emptySerialNumberIsNotRecorded();
    void otherContentsOfTheFileArePreserved();
    void serialNumbersWithOddCharacters_data();
    void serialNumbersWithOddCharacters();
    void enumerationRecordsMatchingSerialNumbers();
    void fileThatCannotBeWrittenIsIgnored();

private:
    QString filePath() const
    {
        return settingsFolder() + QStringLiteral("/Harlow Devices Inc/Quillmark.ini");
    }
    QStringList recorded() const
    {
        QSettings file(filePath(), QSettings::IniFormat);
        file.beginGroup(QStringLiteral("associatedPrinters"));
        return file.childKeys();
    }
    QString firstSeen(const QString& serialNumber) const
    {
        const QSettings file(filePath(), QSettings::IniFormat);
        return file.value(QStringLiteral("associatedPrinters/") + serialNumber).toString();
    }
};

void DeviceSerialNumbersTest::noDevices()
{
    QVERIFY(WindowsPrinterInfo::getDriverGUID().isEmpty());
    QVERIFY(WindowsPrinterInfo::getDeviceSerialNumber(1).isEmpty());
    QVERIFY(!QFile::exists(filePath()));
}

void DeviceSerialNumbersTest::noDeviceOfTheMaker()
{
    machine().addDevice({otherClass, foreignDevice, 1U, text("FOREIGN")});
    machine().addDeviceClass(makersClass);
    QVERIFY(WindowsPrinterInfo::getDriverGUID().isEmpty());
    QVERIFY(WindowsPrinterInfo::getDeviceSerialNumber(1).isEmpty());
    QVERIFY(!QFile::exists(filePath()));
}

void DeviceSerialNumbersTest::classOfTheMakersDevices_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<bool>("isMakers");
    QTest::newRow("as Windows names it") << makersDevice(1) << true;
    QTest::newRow("small letters") << text("##?#usb#vid_3e7a&pid_0001#1#") << true;
    QTest::newRow("mixed letters") << text("##?#USB#Vid_3E7a&Pid_0001#1#") << true;
    QTest::newRow("at the start") << text("VID_3E7A") << true;
    QTest::newRow("at the end") << text("something VID_3E7A") << true;
    QTest::newRow("another vendor") << text("##?#USB#VID_3E7B&PID_0001#1#") << false;
    QTest::newRow("without the underscore") << text("##?#USB#VID3E7A&PID_0001#1#") << false;
    QTest::newRow("as a product") << text("##?#USB#VID_0001&PID_3E7A#1#") << false;
}

void DeviceSerialNumbersTest::classOfTheMakersDevices()
{
    QFETCH(const QString, device);
    QFETCH(const bool, isMakers);
    machine().addDevice({makersClass, device, 1U, text("SERIAL")});
    QCOMPARE(WindowsPrinterInfo::getDriverGUID(), isMakers ? makersClass : QString());
}

void DeviceSerialNumbersTest::firstClassListedWins()
{
    machine().addDeviceClass(text("{empty}"));
    machine().addDevice({text("{foreign}"), foreignDevice, 1U, text("FOREIGN")});
    machine().addDevice({otherClass, foreignDevice, 1U, text("FOREIGN")});
    machine().addDevice({otherClass, makersDevice(1), 1U, text("FIRST")});
    machine().addDevice({makersClass, makersDevice(2), 1U, text("SECOND")});
    QCOMPARE(WindowsPrinterInfo::getDriverGUID(), otherClass);
    // Only this class is searched, but all of it.
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(1), text("FOREIGN"));
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(2), text("FIRST"));
}

void DeviceSerialNumbersTest::deviceOnAPort()
{
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    machine().addDevice({makersClass, makersDevice(2), 2U, text("TWO")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(2), text("TWO"));
    QCOMPARE(recorded(), QStringList{text("TWO")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(1), text("ONE"));
    QCOMPARE(recorded(), (QStringList{text("ONE"), text("TWO")}));
}

void DeviceSerialNumbersTest::noDeviceOnThePort()
{
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    machine().addDevice({makersClass, makersDevice(2), 2U, text("TWO")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(3), text("TWO"));
    QVERIFY(!QFile::exists(filePath()));
}

void DeviceSerialNumbersTest::portNumbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("port");
    QTest::newRow("number") << QVariant(1U) << 1;
    QTest::newRow("low 16 bits") << QVariant(65537U) << 1;
    QTest::newRow("all bits") << QVariant(0xFFFFFFFFU) << 0xFFFF;
    QTest::newRow("text") << QVariant(text("12")) << 12;
    QTest::newRow("no number") << QVariant(text("twelve")) << 0;
    QTest::newRow("absent") << QVariant() << 0;
    QTest::newRow("zero") << QVariant(0U) << 0;
}

void DeviceSerialNumbersTest::portNumbers()
{
    QFETCH(const QVariant, value);
    QFETCH(const int, port);
    machine().addDevice({makersClass, makersDevice(1), value, text("WANTED")});
    machine().addDevice({makersClass, makersDevice(2), 500U, text("LAST")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(static_cast<unsigned short>(port)),
             text("WANTED"));
    QCOMPARE(recorded(), QStringList{text("WANTED")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(static_cast<unsigned short>(port + 7)),
             text("LAST"));
}

void DeviceSerialNumbersTest::firstDeviceOnAPortWins()
{
    machine().addDevice({makersClass, makersDevice(1), 1U, text("FIRST")});
    machine().addDevice({makersClass, makersDevice(2), 65537U, text("SECOND")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(1), text("FIRST"));
    QCOMPARE(recorded(), QStringList{text("FIRST")});
}

void DeviceSerialNumbersTest::devicesOfOtherMakersInTheClassCount()
{
    machine().addDevice({makersClass, foreignDevice, 4U, text("FOREIGN")});
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(4), text("FOREIGN"));
}

void DeviceSerialNumbersTest::missingSerialNumber()
{
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    machine().addDevice({makersClass, makersDevice(2), 2U, {}});
    QVERIFY(WindowsPrinterInfo::getDeviceSerialNumber(2).isEmpty());
    // The last device has no serial number, so the result is empty.
    QVERIFY(WindowsPrinterInfo::getDeviceSerialNumber(9).isEmpty());
    QVERIFY(!QFile::exists(filePath()));
}

void DeviceSerialNumbersTest::ofTheMakersDevicesByPort()
{
    using SerialNumbers = QHash<unsigned short, QString>;
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumbers(), SerialNumbers());
    machine().addDevice({makersClass, foreignDevice, 1, text("FOREIGN")});
    machine().addDevice({makersClass, makersDevice(1), 2, text("TWO")});
    machine().addDevice({makersClass, makersDevice(2), 2, text("TWO AGAIN")});
    machine().addDevice({makersClass, makersDevice(3), {}, text("NOWHERE")});
    machine().addDevice({makersClass, makersDevice(4), 4, {}});
    machine().addDevice({makersClass, makersDevice(5), 5, text("FIVE")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumbers(),
             (SerialNumbers{{2, text("TWO")}, {5, text("FIVE")}}));
    // Nothing is recorded by that.
    QVERIFY(QDir(settingsFolder()).isEmpty());
}

void DeviceSerialNumbersTest::classWithoutUsableParameters()
{
    machine().addDevice({makersClass, makersDevice(1), {}, {}});
    QCOMPARE(WindowsPrinterInfo::getDriverGUID(), makersClass);
    QVERIFY(WindowsPrinterInfo::getDeviceSerialNumber(1).isEmpty());
    QVERIFY(WindowsPrinterInfo::getDeviceSerialNumber(0).isEmpty());
}

void DeviceSerialNumbersTest::registryPathsThatAreRead()
{
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    machine().recordCalls();
    WindowsPrinterInfo::getDeviceSerialNumber(1);
    const QString root = text(R"(HKEY_LOCAL_MACHINE\SYSTEM\ControlSet001\Control\DeviceClasses\)");
    const QString parameters =
        root + makersClass + text(R"(\)") + makersDevice(1) + text(R"(\#\Device Parameters)");
    QList<QStringList> read;
    const QList<virtualwindows::Call> calls = machine().calls(text("RegistryKey"));
    for (const virtualwindows::Call& call : calls)
        read.append(call.arguments);
    QCOMPARE(read, (QList<QStringList>{{root},
                                       {root + makersClass},
                                       {root + makersClass},
                                       {parameters, text("Port Number")},
                                       {parameters, text("Serial Number")}}));
}

void DeviceSerialNumbersTest::fileIsInTheUsersScope()
{
    const QDateTime before = QDateTime::currentDateTime();
    WindowsPrinterInfo::addPrinterSerialToIniFile(text("4711"));
    QVERIFY(QFile::exists(filePath()));

    const QString stamp = firstSeen(text("4711"));
    const QString format = text("yyyy-MM-dd hh:mm:ss");
    const QDateTime seen = QDateTime::fromString(stamp, format);
    QVERIFY2(seen.isValid(), qPrintable(stamp));
    QCOMPARE(seen.toString(format), stamp);
    QVERIFY(seen.addSecs(1) >= before && seen <= QDateTime::currentDateTime());
}

void DeviceSerialNumbersTest::timeOfFirstSightIsPreserved()
{
    QDir().mkpath(QFileInfo(filePath()).path());
    QSettings(filePath(), QSettings::IniFormat)
        .setValue(text("associatedPrinters/ONE"), text("2001-02-03 04:05:06"));
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    WindowsPrinterInfo::getDeviceSerialNumber(1);
    WindowsPrinterInfo::addPrinterSerialToIniFile(text("ONE"));
    QCOMPARE(firstSeen(text("ONE")), text("2001-02-03 04:05:06"));
}

void DeviceSerialNumbersTest::filesOfWiderScopeAreIgnored_data()
{
    QTest::addColumn<QString>("fileName"); // in the folder of the user's settings
    QTest::newRow("the organisation's") << text("Harlow Devices Inc.ini");
    QTest::newRow("the system's") << text("system/Harlow Devices Inc/Quillmark.ini");
    QTest::newRow("the system's, the organisation's") << text("system/Harlow Devices Inc.ini");
}

/// Settings of a wider scope are those of other users.
void DeviceSerialNumbersTest::filesOfWiderScopeAreIgnored()
{
    QFETCH(const QString, fileName);
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope,
                       settingsFolder() + text("/system"));
    const QString others = settingsFolder() + QLatin1Char('/') + fileName;
    QVERIFY(QDir().mkpath(QFileInfo(others).path()));
    QSettings(others, QSettings::IniFormat)
        .setValue(text("associatedPrinters/ONE"), text("2001-02-03 04:05:06"));
    WindowsPrinterInfo::addPrinterSerialToIniFile(text("ONE"));
    QCOMPARE(recorded(), QStringList{text("ONE")});
    QVERIFY(firstSeen(text("ONE")) != text("2001-02-03 04:05:06"));
    QCOMPARE(
        QSettings(others, QSettings::IniFormat).value(text("associatedPrinters/ONE")).toString(),
        text("2001-02-03 04:05:06"));
}

void DeviceSerialNumbersTest::emptySerialNumberIsNotRecorded()
{
    WindowsPrinterInfo::addPrinterSerialToIniFile({});
    WindowsPrinterInfo::addPrinterSerialToIniFile(text(""));
    QVERIFY(!QFile::exists(filePath()));
}

void DeviceSerialNumbersTest::otherContentsOfTheFileArePreserved()
{
    QDir().mkpath(QFileInfo(filePath()).path());
    {
        QSettings file(filePath(), QSettings::IniFormat);
        file.setValue(text("window/width"), 640);
        file.setValue(text("associatedPrinters/OLD"), text("2001-02-03 04:05:06"));
        file.setValue(text("loose"), text("value"));
    }
    WindowsPrinterInfo::addPrinterSerialToIniFile(text("NEW"));
    const QSettings file(filePath(), QSettings::IniFormat);
    QCOMPARE(file.value(text("window/width")).toInt(), 640);
    QCOMPARE(file.value(text("loose")).toString(), text("value"));
    QCOMPARE(recorded(), (QStringList{text("NEW"), text("OLD")}));
    QCOMPARE(file.allKeys().size(), 4);
}

void DeviceSerialNumbersTest::serialNumbersWithOddCharacters_data()
{
    QTest::addColumn<QString>("serialNumber");
    for (const char* serialNumber : {"A B", "A=B", "A;B", "[A]", "100%", "Ä日", "A\"B", "A/B"})
        QTest::newRow(serialNumber) << text(serialNumber);
}

void DeviceSerialNumbersTest::serialNumbersWithOddCharacters()
{
    QFETCH(const QString, serialNumber);
    WindowsPrinterInfo::addPrinterSerialToIniFile(serialNumber);
    const QString stamp = firstSeen(serialNumber);
    QVERIFY(!stamp.isEmpty());
    WindowsPrinterInfo::addPrinterSerialToIniFile(serialNumber);
    QCOMPARE(QSettings(filePath(), QSettings::IniFormat).allKeys().size(), 1);
    QCOMPARE(firstSeen(serialNumber), stamp);
}

void DeviceSerialNumbersTest::enumerationRecordsMatchingSerialNumbers()
{
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    machine().addDevice({makersClass, makersDevice(2), 2U, text("TWO")});
    machine().addDevice({makersClass, makersDevice(3), 3U, text("THREE")});
    for (int port : {1, 2, 9})
        machine().addPrinter({.name = QString::number(port),
                              .driver = text("Stratamark Alder"),
                              .port = QStringLiteral("USB%1").arg(port, 3, 10, QLatin1Char('0'))});
    WindowsPrinterInfo::getAvailablePrinters();
    QCOMPARE(recorded(), (QStringList{text("ONE"), text("TWO")}));
}

void DeviceSerialNumbersTest::fileThatCannotBeWrittenIsIgnored()
{
    // There is a file in the place of the folder.
    QFile file(settingsFolder() + text("/Harlow Devices Inc"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    machine().addDevice({makersClass, makersDevice(1), 1U, text("ONE")});
    QCOMPARE(WindowsPrinterInfo::getDeviceSerialNumber(1), text("ONE"));
}

QTEST_GUILESS_MAIN(DeviceSerialNumbersTest)
#include "tst_device_serial_numbers.moc"
