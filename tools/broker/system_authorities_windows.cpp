// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_authorities_windows.h"

#include "system_authorities.h"

#include <QtCore/QDir>
#include <QtCore/QTemporaryFile>

#include <algorithm>
#include <type_traits>

namespace {

struct ClosesStore
{
    void operator()(HCERTSTORE store) const { CertCloseStore(store, 0); }
};
using Store = std::unique_ptr<std::remove_pointer_t<HCERTSTORE>, ClosesStore>;

/// Whether Windows trusts it for anything, or at least for servers:
/// https://learn.microsoft.com/windows/win32/api/wincrypt/nf-wincrypt-certgetenhancedkeyusage
bool isForServers(PCCERT_CONTEXT certificate)
{
    DWORD size = 0;
    if (!CertGetEnhancedKeyUsage(certificate, CERT_FIND_PROP_ONLY_ENHKEY_USAGE_FLAG, nullptr,
                                 &size))
        return true; // nothing is said of its use
    QByteArray block(static_cast<qsizetype>(size), '\0');
    auto* const usage = reinterpret_cast<CERT_ENHKEY_USAGE*>(block.data());
    if (!CertGetEnhancedKeyUsage(certificate, CERT_FIND_PROP_ONLY_ENHKEY_USAGE_FLAG, usage, &size))
        return true;
    return std::any_of(
        usage->rgpszUsageIdentifier, usage->rgpszUsageIdentifier + usage->cUsageIdentifier,
        [](const char* use) { return qstrcmp(use, szOID_PKIX_KP_SERVER_AUTH) == 0; });
}

bool isIn(HCERTSTORE store, PCCERT_CONTEXT certificate)
{
    const PCCERT_CONTEXT found = CertFindCertificateInStore(
        store, X509_ASN_ENCODING, 0, CERT_FIND_EXISTING, certificate, nullptr);
    if (found)
        CertFreeCertificateContext(found);
    return found != nullptr;
}

QByteArray pem(PCCERT_CONTEXT certificate)
{
    constexpr qsizetype lineLength = 64;
    const QByteArray bytes(reinterpret_cast<const char*>(certificate->pbCertEncoded),
                           static_cast<qsizetype>(certificate->cbCertEncoded));
    const QByteArray text = bytes.toBase64();
    QByteArray result = "-----BEGIN CERTIFICATE-----\n";
    for (qsizetype i = 0; i < text.size(); i += lineLength)
        result += text.mid(i, lineLength) + '\n';
    return result + "-----END CERTIFICATE-----\n";
}

} // namespace

QByteArray system_authorities::certificates(HCERTSTORE trusted, HCERTSTORE distrusted)
{
    QByteArray text;
    PCCERT_CONTEXT certificate = nullptr;
    while ((certificate = CertEnumCertificatesInStore(trusted, certificate)) != nullptr) {
        if (isForServers(certificate) && !isIn(distrusted, certificate))
            text += pem(certificate);
    }
    return text;
}

// Windows fetches some authorities only when one of its own programs meets them. Those are missing
// here until then; the authority of a plant is not among them.
std::unique_ptr<QTemporaryFile> system_authorities::write(QString* reason)
{
    const Store trusted(CertOpenSystemStoreW(0, L"ROOT"));
    const Store distrusted(CertOpenSystemStoreW(0, L"Disallowed"));
    if (!trusted || !distrusted) {
        *reason = QStringLiteral("the authorities that Windows trusts cannot be read: %1")
                      .arg(qt_error_string(static_cast<int>(GetLastError())).trimmed());
        return nullptr;
    }
    const QByteArray text = certificates(trusted.get(), distrusted.get());
    if (text.isEmpty()) {
        *reason = QStringLiteral("Windows trusts no authority; name the broker's in \"caFile\"");
        return nullptr;
    }
    auto file = std::make_unique<QTemporaryFile>(
        QDir::temp().filePath(QStringLiteral("vxprintagent-XXXXXX.pem")));
    if (!file->open() || file->write(text) != text.size() || !file->flush()) {
        *reason = QStringLiteral("cannot write %1: %2").arg(file->fileName(), file->errorString());
        return nullptr;
    }
    file->close();
    return file;
}
