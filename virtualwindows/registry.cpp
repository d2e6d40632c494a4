// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "internals.h"

#include <algorithm>

namespace virtualwindows {

namespace {

constexpr QLatin1String rootKey(R"(HKEY_LOCAL_MACHINE\SYSTEM\ControlSet001\Control\DeviceClasses)");
constexpr QStringView instanceKey(u"#");
constexpr QStringView parametersKey(u"Device Parameters");

/// The registry ignores case in the names of keys.
bool isSame(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// The names in a path below the root; an empty list when the path does not start there. The name
/// of a key may contain any character but the backslash.
QStringList namesBelowRoot(const QString& path, bool& startsAtRoot)
{
    startsAtRoot = path.startsWith(rootKey, Qt::CaseInsensitive) &&
                   (path.size() == rootKey.size() || path.at(rootKey.size()) == QLatin1Char('\\'));
    if (!startsAtRoot)
        return {};
    return path.mid(rootKey.size()).split(QLatin1Char('\\'), Qt::SkipEmptyParts);
}

const DeviceClass* findClass(const QList<DeviceClass>& classes, const QString& guid)
{
    const auto found = std::find_if(classes.begin(), classes.end(), [&](const DeviceClass& entry) {
        return isSame(entry.guid, guid);
    });
    return found == classes.end() ? nullptr : &*found;
}

const DeviceSetup* findDevice(const DeviceClass& deviceClass, const QString& key)
{
    const auto found = deviceClass.places.constFind(key.toCaseFolded());
    return found == deviceClass.places.cend() ? nullptr : &deviceClass.devices.at(*found);
}

} // namespace

void Machine::addDeviceClass(const QString& classGuid)
{
    const std::lock_guard guard(d->lock);
    if (!findClass(d->deviceClasses, classGuid))
        d->deviceClasses.append({classGuid, {}, {}});
}

void Machine::addDevice(const DeviceSetup& device)
{
    addDeviceClass(device.classGuid);
    const std::lock_guard guard(d->lock);
    const auto found = std::find_if(
        d->deviceClasses.begin(), d->deviceClasses.end(),
        [&](const DeviceClass& entry) { return isSame(entry.guid, device.classGuid); });
    const QString key = device.interfaceKey.toCaseFolded();
    // The registry has no two keys of the same name.
    if (found->places.contains(key))
        return;
    found->places.insert(key, found->devices.size());
    found->devices.append(device);
}

namespace registry {

QStringList childGroups(const QString& path)
{
    const ApiCall call(Function::RegistryKey, path);
    if (call.isPlannedToFail())
        return {};
    bool startsAtRoot = false;
    const QStringList names = namesBelowRoot(path, startsAtRoot);
    if (!startsAtRoot)
        return {};

    const std::lock_guard guard(machine().lock);
    QStringList children;
    if (names.isEmpty()) {
        for (const DeviceClass& entry : std::as_const(machine().deviceClasses))
            children.append(entry.guid);
        return children;
    }
    const DeviceClass* deviceClass = findClass(machine().deviceClasses, names.at(0));
    if (!deviceClass)
        return {};
    if (names.size() == 1) {
        for (const DeviceSetup& device : deviceClass->devices)
            children.append(device.interfaceKey);
        return children;
    }
    if (!findDevice(*deviceClass, names.at(1)))
        return {};
    if (names.size() == 2)
        return {instanceKey.toString()};
    if (names.size() == 3 && isSame(names.at(2), instanceKey))
        return {parametersKey.toString()};
    return {};
}

QVariant value(const QString& path, const QString& valueName)
{
    const ApiCall call(Function::RegistryKey, path, valueName);
    if (call.isPlannedToFail())
        return {};
    bool startsAtRoot = false;
    const QStringList names = namesBelowRoot(path, startsAtRoot);
    constexpr qsizetype depthOfParameters = 4;
    if (names.size() != depthOfParameters || !isSame(names.at(2), instanceKey) ||
        !isSame(names.at(3), parametersKey))
        return {};

    const std::lock_guard guard(machine().lock);
    const DeviceClass* deviceClass = findClass(machine().deviceClasses, names.at(0));
    const DeviceSetup* device = deviceClass ? findDevice(*deviceClass, names.at(1)) : nullptr;
    if (!device)
        return {};
    if (isSame(valueName, QStringLiteral("Port Number")))
        return device->portNumber;
    if (isSame(valueName, QStringLiteral("Serial Number")))
        return device->serialNumber;
    return {};
}

} // namespace registry

} // namespace virtualwindows
