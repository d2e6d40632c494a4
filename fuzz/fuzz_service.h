// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

/// A record with a member of each kind.
class FuzzRecord
{
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(float width MEMBER width)
    Q_PROPERTY(QByteArray image MEMBER image)
    Q_PROPERTY(QStringList panels MEMBER panels)
    Q_PROPERTY(QVariantList heats MEMBER heats)

public:
    QString name;
    int count = -1;
    float width = -1.0F;
    QByteArray image;
    QStringList panels;
    QVariantList heats;
};
Q_DECLARE_METATYPE(FuzzRecord)

/// Answers every argument with itself: one slot for each type that crosses, with short names, which
/// are found sooner.
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
    FuzzRecord r(FuzzRecord value) { return value; }
    void n() {}
    /// Ways to call one name.
    int o(int value, int more = 1) { return value ^ more; }
    QString o(QString value) { return value; }
    double o(double value) { return value; }
    QStringList o(int value, QStringList more)
    {
        more.append(QString::number(value));
        return more;
    }
};
