// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#pragma once

#include <patience.h>

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>

/// Certificates that a test makes with the openssl program: two authorities, and what they sign.
class TestCertificates
{
public:
    QString file(const QString& name) const { return m_folder.filePath(name); }

    /// An authority: NAME.pem and NAME.key.
    [[nodiscard]] bool makeAuthority(const QString& name)
    {
        return run({QStringLiteral("req"), QStringLiteral("-x509"), QStringLiteral("-newkey"),
                    QStringLiteral("ec"), QStringLiteral("-pkeyopt"),
                    QStringLiteral("ec_paramgen_curve:prime256v1"), QStringLiteral("-nodes"),
                    QStringLiteral("-keyout"), key(name), QStringLiteral("-out"), pem(name),
                    QStringLiteral("-subj"), QStringLiteral("/CN=Test authority ") + name,
                    QStringLiteral("-days"), QStringLiteral("3650")});
    }

    /// A certificate for a host, or for a client of that name: NAME.pem and NAME.key. `begin` and
    /// `end` are times as "20200101000000Z".
    [[nodiscard]] bool make(const QString& name, const QString& authority,
                            const QString& alternative,
                            const QString& begin = QStringLiteral("20200101000000Z"),
                            const QString& end = QStringLiteral("21000101000000Z"))
    {
        const QString request = file(name + QStringLiteral(".csr"));
        const QString folder = file(name + QStringLiteral("-ca"));
        if (!QDir().mkpath(folder))
            return false;
        const QByteArray configuration =
            "[ca]\ndefault_ca=own\n[own]\nnew_certs_dir=" + QFile::encodeName(folder) +
            "\ndatabase=" + QFile::encodeName(folder) +
            "/index\nrand_serial=yes\ndefault_md=sha256\npolicy=any\nx509_extensions=ext\n"
            "[any]\ncommonName=supplied\n[ext]\nsubjectAltName=" +
            alternative.toUtf8() + '\n';
        return write(folder + QStringLiteral("/conf"), configuration) &&
               write(folder + QStringLiteral("/index"), {}) &&
               run({QStringLiteral("req"), QStringLiteral("-newkey"), QStringLiteral("ec"),
                    QStringLiteral("-pkeyopt"), QStringLiteral("ec_paramgen_curve:prime256v1"),
                    QStringLiteral("-nodes"), QStringLiteral("-keyout"), key(name),
                    QStringLiteral("-out"), request, QStringLiteral("-subj"),
                    QStringLiteral("/CN=") + name}) &&
               run({QStringLiteral("ca"), QStringLiteral("-batch"), QStringLiteral("-notext"),
                    QStringLiteral("-config"), folder + QStringLiteral("/conf"),
                    QStringLiteral("-cert"), pem(authority), QStringLiteral("-keyfile"),
                    key(authority), QStringLiteral("-in"), request, QStringLiteral("-out"),
                    pem(name), QStringLiteral("-startdate"), begin, QStringLiteral("-enddate"),
                    end});
    }

    QString pem(const QString& name) const { return file(name + QStringLiteral(".pem")); }
    QString key(const QString& name) const { return file(name + QStringLiteral(".key")); }
    QString error() const { return m_error; }

private:
    static bool write(const QString& name, const QByteArray& text)
    {
        QFile target(name);
        return target.open(QIODevice::WriteOnly) && target.write(text) == text.size();
    }

    bool run(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral("openssl"), arguments);
        const bool isDone = process.waitForFinished(patience) &&
                            process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
        m_error = process.errorString() + u'\n' + QString::fromUtf8(process.readAllStandardError());
        return isDone;
    }

    QTemporaryDir m_folder;
    QString m_error;
};
