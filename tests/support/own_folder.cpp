// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Part of every test: gives it its own folder for endpoints, and on Windows for all temporary
// files. In the user's folder, tests that run at the same time would find each other's endpoints,
// and each check of an endpoint takes the place of a client there.
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

class OwnFolder
{
public:
    OwnFolder()
    {
        if (!m_folder.isValid())
            qFatal("Cannot create a folder for the test: %s", qPrintable(m_folder.errorString()));
#ifdef Q_OS_UNIX
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder.path()));
#else
        const QByteArray path = QFile::encodeName(QDir::toNativeSeparators(m_folder.path()));
        qputenv("TMP", path);
        qputenv("TEMP", path);
#endif
    }

private:
    QTemporaryDir m_folder{QDir::temp().filePath(QStringLiteral("vxtest-XXXXXX"))};
};

const OwnFolder ownFolder;

} // namespace
