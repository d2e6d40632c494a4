// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The device registry, with the key names of real devices.

#include "machine_test.h"

namespace registry = virtualwindows::registry;

namespace {

const QString root =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001\\Control\\DeviceClasses");
const QString printerClass = QStringLiteral("{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
const QString otherClass = QStringLiteral("{a5dcbf10-6530-11d2-901f-00c04fb951ed}");

QString path(const QStringList& names)
{
    return (QStringList{root} + names).join(QLatin1Char('\\'));
}

QString parametersOf(const QString& interfaceKey, const QString& classGuid = printerClass)
{
    return path(
        {classGuid, interfaceKey, QStringLiteral("#"), QStringLiteral("Device Parameters")});
}

const QString portNumber = QStringLiteral("Port Number");
const QString serialNumber = QStringLiteral("Serial Number");

} // namespace

class RegistryTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void newRegistryIsEmpty();
    void classesAndDevicesAreListedInOrder();
    void classMayHaveNoDevices();
    void classIsAddedOnce();
    void deviceIsAddedOnce();
    void deviceHasItsKeys();
    void interfaceKeyMayBeAnyText_data();
    void interfaceKeyMayBeAnyText();
    void valuesAreReadAsAdded_data();
    void valuesAreReadAsAdded();
    void caseIsIgnored_data();
    void caseIsIgnored();
    void absentKeysHaveNothing_data();
    void absentKeysHaveNothing();
    void absentValuesAreInvalid_data();
    void absentValuesAreInvalid();
    void slashIsNotASeparator();
    void readsAreRecordedAsCalls();
    void plannedFailureFindsNothing();
    void resetEmptiesTheRegistry();

private:
    void addDevice(const QString& key, const QVariant& port = 3,
                   const QVariant& serial = QStringLiteral("S1"))
    {
        machine().addDevice({.classGuid = printerClass,
                             .interfaceKey = key,
                             .portNumber = port,
                             .serialNumber = serial});
    }
};

void RegistryTest::newRegistryIsEmpty()
{
    QCOMPARE(registry::childGroups(root), QStringList());
    QVERIFY(!registry::value(root, portNumber).isValid());
}

void RegistryTest::classesAndDevicesAreListedInOrder()
{
    machine().addDeviceClass(otherClass);
    addDevice(QStringLiteral("##?#USB#VID_2"));
    addDevice(QStringLiteral("##?#USB#VID_1"));
    QCOMPARE(registry::childGroups(root), QStringList({otherClass, printerClass}));
    QCOMPARE(registry::childGroups(path({printerClass})),
             QStringList({QStringLiteral("##?#USB#VID_2"), QStringLiteral("##?#USB#VID_1")}));
}

void RegistryTest::classMayHaveNoDevices()
{
    machine().addDeviceClass(otherClass);
    QCOMPARE(registry::childGroups(root), QStringList{otherClass});
    QCOMPARE(registry::childGroups(path({otherClass})), QStringList());
}

void RegistryTest::classIsAddedOnce()
{
    machine().addDeviceClass(printerClass);
    machine().addDeviceClass(printerClass.toUpper());
    addDevice(QStringLiteral("##?#USB#VID_1"));
    QCOMPARE(registry::childGroups(root), QStringList{printerClass});
    QCOMPARE(registry::childGroups(path({printerClass})).size(), 1);
}

void RegistryTest::deviceIsAddedOnce()
{
    addDevice(QStringLiteral("##?#USB#VID_1"), 1, QStringLiteral("first"));
    addDevice(QStringLiteral("##?#USB#VID_2"), 2, QStringLiteral("other"));
    addDevice(QStringLiteral("##?#usb#vid_1"), 3, QStringLiteral("second"));
    QCOMPARE(registry::childGroups(path({printerClass})),
             (QStringList{QStringLiteral("##?#USB#VID_1"), QStringLiteral("##?#USB#VID_2")}));
    const QString parameters = parametersOf(QStringLiteral("##?#USB#VID_1"));
    QCOMPARE(registry::value(parameters, portNumber).toInt(), 1);
    QCOMPARE(registry::value(parameters, serialNumber).toString(), QStringLiteral("first"));
}

void RegistryTest::deviceHasItsKeys()
{
    const QString key = QStringLiteral("##?#USB#VID_1");
    addDevice(key);
    QCOMPARE(registry::childGroups(path({printerClass, key})), QStringList{QStringLiteral("#")});
    QCOMPARE(registry::childGroups(path({printerClass, key, QStringLiteral("#")})),
             QStringList{QStringLiteral("Device Parameters")});
    QCOMPARE(registry::childGroups(parametersOf(key)), QStringList());
}

void RegistryTest::interfaceKeyMayBeAnyText_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("real key") << QStringLiteral("##?#USB#VID_0A5F&PID_0084#50J131902345#"
                                                "{28d78fad-5a12-11d1-ae5b-0000f803a8c2}");
    QTest::newRow("one character") << QStringLiteral("k");
    QTest::newRow("longest on Windows") << QString(255, QLatin1Char('k'));
    QTest::newRow("longer than a file name or path") << QString(5000, QLatin1Char('k'));
    QTest::newRow("slashes") << QStringLiteral("a/b//c/");
    QTest::newRow("spaces") << QStringLiteral(" a  b ");
    QTest::newRow("percent signs") << QStringLiteral("%20%U0041%%");
    QTest::newRow("dots") << QStringLiteral("..");
    QTest::newRow("punctuation") << QStringLiteral("[a]=b;c,\"d\" 'e' <f> |g *h ?i :j ~k");
    QTest::newRow("other scripts") << QStringLiteral("Gerät 標籤 принтер");
    QTest::newRow("beyond the basic plane") << QStringLiteral("\U0001F5A8");
    QTest::newRow("line breaks") << QStringLiteral("a\nb\tc");
}

void RegistryTest::interfaceKeyMayBeAnyText()
{
    QFETCH(QString, key);
    addDevice(QStringLiteral("before"), 1, QStringLiteral("before"));
    addDevice(key, 7, QStringLiteral("wanted"));
    addDevice(QStringLiteral("behind"), 9, QStringLiteral("behind"));
    QVERIFY(registry::childGroups(path({printerClass})).contains(key));
    QCOMPARE(registry::childGroups(path({printerClass, key})), QStringList{QStringLiteral("#")});
    QCOMPARE(registry::value(parametersOf(key), portNumber), QVariant(7));
    QCOMPARE(registry::value(parametersOf(key), serialNumber), QVariant(QStringLiteral("wanted")));
}

void RegistryTest::valuesAreReadAsAdded_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << QVariant(42);
    QTest::newRow("zero") << QVariant(0);
    QTest::newRow("text") << QVariant(QStringLiteral("50J131902345"));
    QTest::newRow("empty text") << QVariant(QStringLiteral(""));
    QTest::newRow("bytes") << QVariant(QByteArray("a\0b", 3));
    QTest::newRow("absent") << QVariant();
}

void RegistryTest::valuesAreReadAsAdded()
{
    QFETCH(QVariant, value);
    addDevice(QStringLiteral("k"), value, value);
    QCOMPARE(registry::value(parametersOf(QStringLiteral("k")), portNumber), value);
    QCOMPARE(registry::value(parametersOf(QStringLiteral("k")), serialNumber), value);
    QCOMPARE(registry::value(parametersOf(QStringLiteral("k")), portNumber).isValid(),
             value.isValid());
}

void RegistryTest::caseIsIgnored_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    const QString exact = parametersOf(QStringLiteral("##?#Usb#Gerät"));
    QTest::newRow("exact") << exact << portNumber;
    QTest::newRow("path in upper case") << exact.toUpper() << portNumber;
    QTest::newRow("path in lower case") << exact.toLower() << portNumber;
    QTest::newRow("name in upper case") << exact << portNumber.toUpper();
    QTest::newRow("name in lower case") << exact << portNumber.toLower();
}

void RegistryTest::caseIsIgnored()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    addDevice(QStringLiteral("##?#Usb#Gerät"), 5);
    QCOMPARE(registry::value(path, name), QVariant(5));
    // Lists keep the case in which the key was added.
    const QString classPath = path.section(QLatin1Char('\\'), 0, 5);
    QCOMPARE(registry::childGroups(classPath), QStringList{QStringLiteral("##?#Usb#Gerät")});
}

void RegistryTest::absentKeysHaveNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << QString();
    QTest::newRow("hive") << QStringLiteral("HKEY_LOCAL_MACHINE");
    QTest::newRow("other hive") << QString(root).replace(QLatin1String("LOCAL_MACHINE"),
                                                         QLatin1String("CURRENT_USER"));
    QTest::newRow("name that begins like the root") << root + QLatin1Char('2');
    QTest::newRow("class without its separator") << root + printerClass;
    QTest::newRow("parameters without a separator")
        << root + parametersOf(QStringLiteral("k")).mid(root.size() + 1);
    QTest::newRow("root within a path") << QStringLiteral("X\\") + root;
    QTest::newRow("class") << path({otherClass});
    QTest::newRow("device") << path({printerClass, QStringLiteral("absent")});
    QTest::newRow("device of another class") << path({otherClass, QStringLiteral("k")});
    QTest::newRow("instance") << path({printerClass, QStringLiteral("k"), QStringLiteral("#1")});
    QTest::newRow("parameters") << path(
        {printerClass, QStringLiteral("k"), QStringLiteral("#"), QStringLiteral("Parameters")});
    QTest::newRow("below the parameters")
        << path({printerClass, QStringLiteral("k"), QStringLiteral("#"),
                 QStringLiteral("Device Parameters"), QStringLiteral("x")});
}

void RegistryTest::absentKeysHaveNothing()
{
    QFETCH(QString, path);
    addDevice(QStringLiteral("k"));
    QCOMPARE(registry::childGroups(path), QStringList());
    QVERIFY(!registry::value(path, portNumber).isValid());
    QVERIFY(!registry::value(path, serialNumber).isValid());
}

void RegistryTest::absentValuesAreInvalid_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    const QString parameters = parametersOf(QStringLiteral("k"));
    QTest::newRow("another name") << parameters << QStringLiteral("Port");
    QTest::newRow("no name") << parameters << QString();
    QTest::newRow("longer name") << parameters << QStringLiteral("Port Number ");
    QTest::newRow("of the instance") << parameters.section(QLatin1Char('\\'), 0, -2) << portNumber;
    QTest::newRow("of the device") << parameters.section(QLatin1Char('\\'), 0, -3) << portNumber;
    QTest::newRow("of the class") << parameters.section(QLatin1Char('\\'), 0, -4) << portNumber;
}

void RegistryTest::absentValuesAreInvalid()
{
    QFETCH(QString, path);
    QFETCH(QString, name);
    addDevice(QStringLiteral("k"));
    QVERIFY(!registry::value(path, name).isValid());
}

void RegistryTest::slashIsNotASeparator()
{
    addDevice(QStringLiteral("k"));
    const QString slashes =
        parametersOf(QStringLiteral("k")).replace(QLatin1Char('\\'), QLatin1Char('/'));
    QVERIFY(!registry::value(slashes, portNumber).isValid());
}

void RegistryTest::readsAreRecordedAsCalls()
{
    addDevice(QStringLiteral("k"));
    machine().recordCalls();
    registry::childGroups(root);
    registry::value(parametersOf(QStringLiteral("k")), serialNumber);
    const QList<virtualwindows::Call> calls = machine().calls(QStringLiteral("RegistryKey"));
    QCOMPARE(calls.size(), 2);
    QCOMPARE(calls.at(0).arguments, QStringList{root});
    QCOMPARE(calls.at(1).arguments, QStringList({parametersOf(QStringLiteral("k")), serialNumber}));
    QCOMPARE(machine().callCount(QStringLiteral("RegistryKey")), 2);
}

void RegistryTest::plannedFailureFindsNothing()
{
    addDevice(QStringLiteral("k"));
    machine().failCall(QStringLiteral("RegistryKey"), 1, 5);
    QCOMPARE(registry::childGroups(root), QStringList());
    QCOMPARE(registry::childGroups(root), QStringList{printerClass});
    machine().failCall(QStringLiteral("RegistryKey"), 1, 5);
    QVERIFY(!registry::value(parametersOf(QStringLiteral("k")), portNumber).isValid());
    QCOMPARE(registry::value(parametersOf(QStringLiteral("k")), portNumber), QVariant(3));
}

void RegistryTest::resetEmptiesTheRegistry()
{
    addDevice(QStringLiteral("k"));
    machine().reset();
    QCOMPARE(registry::childGroups(root), QStringList());
    QCOMPARE(registry::childGroups(path({printerClass})), QStringList());
}

QTEST_GUILESS_MAIN(RegistryTest)
#include "tst_registry.moc"
