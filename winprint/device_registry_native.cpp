// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// QSettings creates a key that it opens and that does not exist, if the user has the right to. So a
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
    // QSettings returns a slash in a key's name as a backslash, which no name contains. In a path
    // it would separate two keys.
    for (QString& name : names)
        name.replace(separator, QLatin1Char('/'));
    return names;
}

/// Whether each of the names is listed by the key above it, starting at the existing key `path`.
bool exists(QString path, const QStringList& names)
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
        if (!exists(hive, names))
            return {};
    }
    return childrenOf(path);
}

DeviceParameters deviceParameters(const QString& devicePath)
{
    if (!exists(devicePath, QString(parametersSuffix).split(separator, Qt::SkipEmptyParts)))
        return {};
    const QSettings key(devicePath + parametersSuffix, QSettings::NativeFormat);
    return {key.value(portNumberValue), key.value(serialNumberValue)};
}

} // namespace device_registry
