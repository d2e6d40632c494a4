// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "ipc_test_record.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// Returns every argument as it is: one slot for each type that can cross, and some signals, with
/// short names, which the fuzzer finds sooner.
class FuzzService : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    bool b(bool value) { return value; }
    int i(int value) { return value; }
    uint u(uint value) { return value; }
    short s(short value) { return value; }
    qlonglong l(qlonglong value) { return value; }
    qulonglong m(qulonglong value) { return value; }
    float f(float value) { return value; }
    double d(double value) { return value; }
    QString t(QString value) { return value; }
    QByteArray y(QByteArray value) { return value; }
    QStringList x(QStringList value) { return value; }
    QVariantList a(QVariantList value) { return value; }
    QVariantHash h(QVariantHash value) { return value; }
    QVariantMap p(QVariantMap value) { return value; }
    QVariant v(QVariant value) { return value; }
    TestRecord r(TestRecord value) { return value; }
    QJsonObject j(QJsonObject value) { return value; }
    QJsonArray k(QJsonArray value) { return value; }
    QJsonValue w(QJsonValue value) { return value; }
    void n() {}
    /// Overloads of one name.
    int o(int value, int more = 1) { return value ^ more; }
    QString o(QString value) { return value; }
    double o(double value) { return value; }
    QStringList o(int value, QStringList more)
    {
        more.append(QString::number(value));
        return more;
    }

Q_SIGNALS:
    void e(QString text, QJsonObject object);
    void g(int number);
    void z(QObject* unsupported);
};
