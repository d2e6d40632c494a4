// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_test_record.h"
#include "vxipcserver.h"

#include <QtCore/QByteArray>
#include <QtCore/QEventLoop>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QMetaMethod>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtCore/QVariant>

#include <algorithm>
#include <limits>

/// The interface of a service, as an endpoint derives from it.
class TestInterface : public VXIPCServer
{
    Q_OBJECT

public:
    using VXIPCServer::VXIPCServer;

public Q_SLOTS:
    virtual QString echo(QString text) = 0;
    virtual int scale(int value, int factor = 10) = 0;
};

/// An endpoint with a slot for every supported type, and some that must not be callable.
class TestService : public TestInterface
{
    Q_OBJECT

public:
    explicit TestService(int serverType, QObject* parent = nullptr)
        : TestInterface(serverType, parent)
    {
        checkCalls("keep", [this](const QVariantList& arguments) {
            return kept.size() < 2 ? QString()
                                   : QStringLiteral("two are enough, keep \"%1\" yourself")
                                         .arg(arguments.value(0).toString());
        });
        coalesceSignal("stateChanged", 0);
        coalesceSignal("readingChanged", [](const QVariantList& arguments) {
            return arguments.value(0).toJsonObject().value(QLatin1String("name")).toString();
        });
    }

    QStringList log;
    QStringList kept;
    bool isSecretTold = false;

    /// Whether anybody has subscribed to the signal.
    bool hasSubscribers(const char* signature) const
    {
        return isSignalConnected(metaObject()->method(metaObject()->indexOfSignal(signature)));
    }

public Q_SLOTS:
    QString echo(QString text) override { return text; }
    int scale(int value, int factor = 10) override { return value * factor; }

    bool invert(bool value) { return !value; }
    uint unsignedEcho(uint value) { return value; }
    qlonglong wideEcho(qlonglong value) { return value; }
    qulonglong unsignedWideEcho(qulonglong value) { return value; }
    float single(float value) { return value; }
    double half(double value) { return value / 2; }
    double notANumber() { return std::numeric_limits<double>::infinity(); }
    QByteArray reversed(QByteArray bytes)
    {
        std::reverse(bytes.begin(), bytes.end());
        return bytes;
    }
    QStringList sorted(QStringList texts)
    {
        texts.sort();
        return texts;
    }
    QVariantList listEcho(QVariantList list) { return list; }
    QVariantHash hashEcho(QVariantHash hash) { return hash; }
    QVariantMap mapEcho(QVariantMap map) { return map; }
    QVariant anyEcho(QVariant value) { return value; }
    TestRecord recordEcho(TestRecord record) { return record; }
    QJsonObject jsonObjectEcho(QJsonObject object) { return object; }
    QJsonArray jsonArrayEcho(QJsonArray array) { return array; }
    QJsonValue jsonValueEcho(QJsonValue value) { return value; }

    QString overloaded(int value);
    QString overloaded(double value);
    QString overloaded(QString value);
    QString overloaded(int value, qulonglong more);
    QString overloaded(int value, QString label);

    void note(QString entry) { log.append(entry); }
    QStringList notes() { return log; }

    /// Other processes may call this twice.
    void keep(QString entry) { kept.append(entry); }

    QByteArray zeroes(int count) { return {count, '\0'}; }
    /// Runs an event loop, in which other calls are handled, until `release` is called.
    QString wait()
    {
        QEventLoop loop;
        connect(this, &TestService::released, &loop, &QEventLoop::quit);
        m_isWaiting = true;
        loop.exec();
        m_isWaiting = false;
        return QStringLiteral("waited");
    }
    bool isWaiting() { return m_isWaiting; }
    void release() { Q_EMIT released(); }
    /// Blocks the thread for a while, as a slot that computes does.
    void block(int milliseconds);
    void destroy() { delete this; }
    void destroyAfterATelling(QString text)
    {
        Q_EMIT told(text, 0);
        delete this;
    }

    /// Emits `told` `count` times, numbered from 0.
    int tell(QString text, int count = 1)
    {
        for (int i = 0; i < count; ++i)
            Q_EMIT told(text, i);
        return count;
    }
    void setState(QString name, int state) { Q_EMIT stateChanged(name, state); }
    /// Like `wait`, and emits before and after.
    void tellAroundAWait()
    {
        Q_EMIT told(QStringLiteral("before"), 0);
        wait();
        Q_EMIT told(QStringLiteral("after"), 0);
    }

    /// Answers an error, and a result where it is called within the process.
    QString refuse(int code, QString message)
    {
        refuseCall(code, message);
        return message;
    }
    /// Refuses the call after it has waited as `wait` does.
    QString waitAndRefuse()
    {
        wait();
        refuseCall(-32050, QStringLiteral("waited for nothing"));
        return {};
    }
    void quit();

    QObject* notACrossingType() { return this; }

Q_SIGNALS:
    void released();
    void told(QString text, int number);
    /// States, by name.
    void stateChanged(QString name, int state);
    void readingChanged(QJsonObject reading);
    void recordChanged(TestRecord record, QByteArray bytes, QVariant value, QJsonValue json,
                       double number);
    void unnamed(int, QString);
    void overloadedSignal(int value);
    void overloadedSignal(QString text, bool flag = true);
    void unsendable(QObject* object);

protected Q_SLOTS:
    void protectedSecret() { isSecretTold = true; }

private Q_SLOTS:
    void privateSecret() { isSecretTold = true; }

public:
    Q_INVOKABLE void invokableSecret() { isSecretTold = true; }

private:
    bool m_isWaiting = false;
};
