// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>

/// A record with a member of each kind.
class TestRecord
{
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(float width MEMBER width)
    Q_PROPERTY(bool isLoaded MEMBER isLoaded)
    Q_PROPERTY(QByteArray image MEMBER image)
    Q_PROPERTY(QStringList panels MEMBER panels)
    Q_PROPERTY(QVariantList heats MEMBER heats)

public:
    QString name;
    int count = -1;
    float width = -1.0F;
    bool isLoaded = false;
    QByteArray image;
    QStringList panels;
    QVariantList heats;
};
Q_DECLARE_METATYPE(TestRecord)
