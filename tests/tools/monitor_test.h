// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "patience.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QMetaProperty>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

/// Tables are looked at in every width; with a sanitizer, in which the tools take ten times as long
/// to start, in every seventh. The widths in which a column gives way are looked at by themselves.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr int widthStep = 7;
#else
inline constexpr int widthStep = 1;
#endif

/// A test that runs the monitor as its users do. Each test has a home folder of its own, in which
/// nothing may be left in the end.
class MonitorTest : public QObject
{
    Q_OBJECT

protected:
    struct Result
    {
        int exitStatus = -1;
        QByteArray output;
        QByteArray errors;
    };

    static QStringList words(const char* text)
    {
        return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    static QByteArrayList keysOf(const QMetaObject& type)
    {
        QByteArrayList keys;
        for (int i = 0; i < type.propertyCount(); ++i)
            keys.append(type.property(i).name());
        return keys;
    }
    /// Whether the text of a JSON object has these keys in this order.
    static bool hasInOrder(const QByteArray& text, const QByteArrayList& keys)
    {
        qsizetype place = 0;
        for (const QByteArray& key : keys) {
            place = text.indexOf('"' + key + "\":", place);
            if (place < 0)
                return false;
        }
        return true;
    }
    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name :
             {"NO_COLOR", "LANGUAGE", "COLUMNS", "VX_ROLL_DB", "VX_VIRTUAL_FLEET"})
            environment.remove(QString::fromLatin1(name));
        environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
        // Settings, endpoints and temporary files are all written here.
        for (const char* name :
             {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
            environment.insert(QString::fromLatin1(name), m_home.path());
        return environment;
    }
    Result run(const QStringList& arguments, const QString& program = QStringLiteral(VXPRINTMON),
               const QProcessEnvironment& changed = {})
    {
        QProcess process;
        process.setProcessEnvironment(changed.isEmpty() ? environment() : changed);
        process.start(program, arguments);
        if (!process.waitForFinished(patience))
            return {};
        return resultOf(process);
    }
    /// Runs the monitor until it has printed a text, then terminates it.
    Result runUntil(const QByteArray& last, const QStringList& arguments)
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.start(QStringLiteral(VXPRINTMON), arguments);
        QByteArray output;
        while (!output.contains(last)) {
            if (!process.waitForReadyRead(patience))
                return {-1, output + "\n... and no \"" + last + '"',
                        process.readAllStandardError()};
            output += process.readAllStandardOutput();
        }
        process.terminate();
        process.waitForFinished(patience);
        Result result = resultOf(process);
        result.output.prepend(output);
        return result;
    }
    static Result resultOf(QProcess& process)
    {
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }
    QString fleetFile(const QByteArray& text)
    {
        const QString name = m_home.filePath(QStringLiteral("fleet %1.json").arg(++m_fleets));
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("cannot write %s", qPrintable(name));
        return name;
    }
    /// Runs the monitor in a terminal of that many columns. Empty if script(1) is missing.
    QByteArray runInTerminal(const QString& arguments, const QProcessEnvironment& terminal,
                             int columns = 80)
    {
        const QString script = QStandardPaths::findExecutable(QStringLiteral("script"));
        if (script.isEmpty())
            return {};
        const QString command =
            QStringLiteral("stty cols %1; '%2' %3")
                .arg(QString::number(columns), QStringLiteral(VXPRINTMON), arguments);
        return run({QStringLiteral("-qec"), command, QStringLiteral("/dev/null")}, script, terminal)
            .output.replace("\r\n", "\n");
    }
    QProcessEnvironment terminalEnvironment() const
    {
        QProcessEnvironment terminal = environment();
        terminal.insert(QStringLiteral("TERM"), QStringLiteral("xterm"));
        terminal.remove(QStringLiteral("COLORTERM"));
        return terminal;
    }
    QStringList entries() const
    {
        return QDir(m_home.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    QString fileInHome(const char* name) const { return m_home.filePath(QLatin1String(name)); }

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_home.isValid()); }
    void cleanupTestCase()
    {
        const QStringList left = entries();
        for (const QString& entry : left)
            QVERIFY2(entry.startsWith(QLatin1String("fleet ")), qPrintable(entry));
    }

private:
    QTemporaryDir m_home;
    int m_fleets = 0;
};
