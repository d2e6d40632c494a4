// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "vxprinterstatus_export.h"

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVariantList>

/// Everything the supply database knows about one label supply and the ribbons used with it.
///
/// A plain value. Lengths and widths are in inches, and colours are 0xRRGGBB numbers. A number that
/// is not known is -1 or -1.0, except `isLandscape` and `multiUpCount`, which are then 1; a text
/// that is not known is empty. The six lists `ribbonColorNames` to `ribbonTensions` have one entry
/// for each entry of `ribbonSkus`. `ribbonTypes` has exactly two entries when a service returns it,
/// ribbon 1 first; it is empty in a default record.
class VX_PRINTERSTATUS_EXPORT SupplyInformation
{
    Q_GADGET
    Q_PROPERTY(QString supplyId MEMBER supplyId)
    Q_PROPERTY(QString supplySku MEMBER supplySku)
    Q_PROPERTY(QStringList ribbonSkus MEMBER ribbonSkus)
    Q_PROPERTY(float secColorWidth MEMBER secColorWidth)
    Q_PROPERTY(int secColorRGB MEMBER secColorRGB)
    Q_PROPERTY(QString secColorName MEMBER secColorName)
    Q_PROPERTY(QString secColorNameEn MEMBER secColorNameEn)
    Q_PROPERTY(float supplyLength MEMBER supplyLength)
    Q_PROPERTY(int material MEMBER material)
    Q_PROPERTY(QString materialName MEMBER materialName)
    Q_PROPERTY(int format MEMBER format)
    Q_PROPERTY(QString formatName MEMBER formatName)
    Q_PROPERTY(QString formatType MEMBER formatType)
    Q_PROPERTY(int colorRGB MEMBER colorRGB)
    Q_PROPERTY(QString colorName MEMBER colorName)
    Q_PROPERTY(QString colorNameEn MEMBER colorNameEn)
    Q_PROPERTY(float supplyWidth MEMBER supplyWidth)
    Q_PROPERTY(int isLandscape MEMBER isLandscape)
    Q_PROPERTY(QByteArray backgroundImage MEMBER backgroundImage)
    Q_PROPERTY(float separatorWidth MEMBER separatorWidth)
    Q_PROPERTY(float nonContinuousLength MEMBER nonContinuousLength)
    Q_PROPERTY(int typeIndex MEMBER typeIndex)
    Q_PROPERTY(int ribbon1Panels MEMBER ribbon1Panels)
    Q_PROPERTY(int ribbon2Panels MEMBER ribbon2Panels)
    Q_PROPERTY(float ribbon1Width MEMBER ribbon1Width)
    Q_PROPERTY(float ribbon2Width MEMBER ribbon2Width)
    Q_PROPERTY(float ribbon1Length MEMBER ribbon1Length)
    Q_PROPERTY(float ribbon2Length MEMBER ribbon2Length)
    Q_PROPERTY(QStringList ribbonColorNames MEMBER ribbonColorNames)
    Q_PROPERTY(QVariantList ribbonColorRGBs MEMBER ribbonColorRGBs)
    Q_PROPERTY(QVariantList ribbonHeats MEMBER ribbonHeats)
    Q_PROPERTY(QVariantList ribbonHeatOffsets MEMBER ribbonHeatOffsets)
    Q_PROPERTY(QVariantList ribbonMaxSpeeds MEMBER ribbonMaxSpeeds)
    Q_PROPERTY(QVariantList ribbonTensions MEMBER ribbonTensions)
    Q_PROPERTY(QStringList ribbonTypes MEMBER ribbonTypes)
    Q_PROPERTY(int multiUpCount MEMBER multiUpCount)
    Q_PROPERTY(float multiUpGapSize MEMBER multiUpGapSize)

public:
    QString supplyId;
    QString supplySku;
    QStringList ribbonSkus;
    float secColorWidth = -1.0F;
    int secColorRGB = -1;
    QString secColorName;
    QString secColorNameEn;
    float supplyLength = -1.0F;
    int material = -1;
    QString materialName;
    int format = -1;
    QString formatName;
    QString formatType;
    int colorRGB = -1;
    QString colorName;
    QString colorNameEn;
    float supplyWidth = -1.0F;
    int isLandscape = 1;
    QByteArray backgroundImage;
    float separatorWidth = -1.0F;
    float nonContinuousLength = -1.0F;
    int typeIndex = -1;
    int ribbon1Panels = -1;
    int ribbon2Panels = -1;
    float ribbon1Width = -1.0F;
    float ribbon2Width = -1.0F;
    float ribbon1Length = -1.0F;
    float ribbon2Length = -1.0F;
    QStringList ribbonColorNames;
    QVariantList ribbonColorRGBs;
    QVariantList ribbonHeats;
    QVariantList ribbonHeatOffsets;
    QVariantList ribbonMaxSpeeds;
    QVariantList ribbonTensions;
    QStringList ribbonTypes;
    int multiUpCount = 1;
    float multiUpGapSize = -1.0F;
};
Q_DECLARE_METATYPE(SupplyInformation)
