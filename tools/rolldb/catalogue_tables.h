// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include "catalogue.h"

#include <QtCore/QByteArray>
#include <QtCore/QMap>
#include <QtCore/QString>

/// The files of a catalogue by their names in its folder: the tables, and the pictures. Throws a
/// Failure if tables cannot say what the catalogue has, which can only be if it comes from a
/// database that rolldb did not build.
QMap<QString, QByteArray> catalogueFiles(const Catalogue& catalogue);

/// A small catalogue that shows what each table is for.
Catalogue templateCatalogue();
