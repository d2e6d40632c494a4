// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Opened through QSettings, a key that is not there is made, where the user has the right to. So a
// key is opened only when the key above lists it.
#include "device_registry.h"

#include "device_registry_names.h"

#include <QtCore/QSettings>

namespace device_registry {

namespace {

constexpr QLatin1Char separator('\\');

QStringList childrenOf(const QString& path)
{
    QStringList names = QSettings(path, QSettings::NativeFormat).childGroups();
    // A slash in a key's name comes as a backslash, which no name has; in a path it would lead
    // elsewhere.
    for (QString& name : names)
        name.replace(separator, QLatin1Char('/'));
    return names;
}

/// Whether the names lead from a key that is there to another, each listed by the one above.
bool leadsOn(QString path, const QStringList& names)
{
    for (const QString& name : names) {
        if (!childrenOf(path).contains(name, Qt::CaseInsensitive))
            return false;
        path += separator + name;
    }
    return true;
}

} // namespace

QStringList childKeys(const QString& path)
{
    if (path == deviceClassesKey) {
        QStringList names = path.split(separator, Qt::SkipEmptyParts);
        const QString hive = names.takeFirst();
        if (!leadsOn(hive, names))
            return {};
    }
    return childrenOf(path);
}

DeviceParameters deviceParameters(const QString& devicePath)
{
    if (!leadsOn(devicePath, QString(parametersSuffix).split(separator, Qt::SkipEmptyParts)))
        return {};
    const QSettings key(devicePath + parametersSuffix, QSettings::NativeFormat);
    return {key.value(portNumberValue), key.value(serialNumberValue)};
}

} // namespace device_registry
