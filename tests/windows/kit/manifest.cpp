// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "manifest.h"

#include "failure.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace {

struct ManifestText
{
    Q_DECLARE_TR_FUNCTIONS(vxtestkit)
};

QStringList texts(const QJsonValue& array)
{
    QStringList result;
    for (const QJsonValue& value : array.toArray())
        result.append(value.toString());
    return result;
}

KitTest readTest(const QJsonObject& object, const QString& file)
{
    KitTest test;
    test.name = object[QLatin1String("name")].toString();
    test.program = object[QLatin1String("program")].toString();
    test.arguments = texts(object[QLatin1String("arguments")]);
    const QJsonObject environment = object[QLatin1String("environment")].toObject();
    for (auto variable = environment.begin(); variable != environment.end(); ++variable)
        test.environment.insert(variable.key(), variable.value().toString());
    test.locks = texts(object[QLatin1String("locks")]);
    test.needsAdministrator = object[QLatin1String("needsAdministrator")].toBool();
    test.onlyStopsSpooler = object[QLatin1String("onlyStopsSpooler")].toBool();
    test.stopsSpooler = object[QLatin1String("stopsSpooler")].toBool();
    test.opensWindows = object[QLatin1String("opensWindows")].toBool();
    test.notPossible = object[QLatin1String("notPossible")].toString();
    // A program of the kit, and of nowhere else.
    const QString program = QDir::cleanPath(test.program);
    const bool isInside = !program.isEmpty() && QDir::isRelativePath(program) &&
                          !program.startsWith(QLatin1String(".."));
    if (test.name.isEmpty() || (test.notPossible.isEmpty() && !isInside))
        throw Failure(ManifestText::tr("%1: the test \"%2\" has no program in this folder")
                          .arg(QDir::toNativeSeparators(file), test.name));
    return test;
}

} // namespace

Manifest Manifest::read(const QString& file)
{
    QFile content(file);
    if (!content.open(QIODevice::ReadOnly))
        throw Failure(ManifestText::tr("%1 cannot be read: %2")
                          .arg(QDir::toNativeSeparators(file), content.errorString()));
    const QJsonObject object = QJsonDocument::fromJson(content.readAll()).object();
    Manifest manifest;
    manifest.version = object[QLatin1String("version")].toString();
    manifest.compiler = object[QLatin1String("compiler")].toString();
    for (const QJsonValue& test : object[QLatin1String("tests")].toArray())
        manifest.tests.append(readTest(test.toObject(), file));
    if (manifest.version.isEmpty() || manifest.tests.isEmpty())
        throw Failure(ManifestText::tr("%1 lists no tests").arg(QDir::toNativeSeparators(file)));
    return manifest;
}
