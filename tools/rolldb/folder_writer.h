// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

/// Writes the files of a catalogue into a folder, by their names in it. The folder is created if it
/// does not exist; its parent has to. A file that exists, also a table in its form with tabs, makes
/// this fail unless `isForced`; then it is replaced.
///
/// All files are first written beside their places and then moved there. So after a failure to
/// write, the folder is as it was, and at any time each file is either the complete old one or the
/// complete new one. Throws a Failure.
void writeFolder(const QMap<QString, QByteArray>& files, const QString& folder, bool isForced);
