// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <QtCore/QString>

/// Where a test finds a file or a program of the build tree or of the sources.
///
/// `path` is where it is on the build machine, as the build has compiled it into the test. If the
/// environment variable VX_TEST_ROOT is set, the tests have been packed and unpacked elsewhere:
/// what was in the build tree is then in that folder under the same relative path, and what was in
/// the sources is in its subfolder `source`.
QString testFile(const char* path);
