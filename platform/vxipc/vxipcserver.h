// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QObject>

/// Base of every endpoint: publishes the slots of the object to other processes of the same user.
class VXIPCServer : public QObject
{
    Q_OBJECT

public:
    VXIPCServer(int serverType, QObject* parent);
    ~VXIPCServer() override;
};
