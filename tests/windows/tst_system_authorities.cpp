// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Which of the authorities that Windows knows are handed to OpenSSL.
#include "system_authorities.h"
#include "system_authorities_windows.h"

#include <QtTest/QtTest>

#include <memory>
#include <type_traits>

namespace {

struct ClosesStore
{
    void operator()(HCERTSTORE store) const { CertCloseStore(store, 0); }
};
using Store = std::unique_ptr<std::remove_pointer_t<HCERTSTORE>, ClosesStore>;

struct FreesCertificate
{
    void operator()(PCCERT_CONTEXT certificate) const { CertFreeCertificateContext(certificate); }
};
using Certificate = std::unique_ptr<const CERT_CONTEXT, FreesCertificate>;

Store newStore()
{
    return Store(CertOpenStore(CERT_STORE_PROV_MEMORY, 0, 0, 0, nullptr));
}

// Two authorities that signed themselves, made with "openssl req -x509 -days 36500".
constexpr const char* firstAuthority =
    "MIIBkjCCATegAwIBAgIUdpC1m0cW2GOO1s/9+z/QoZFsnsEwCgYIKoZIzj0EAwIwHTEbMBkGA1UEAwwS"
    "dnh0ZXN0IGF1dGhvcml0eSAxMCAXDTI2MTEyMjE5MzU1OVoYDzIxMjYxMDI5MTkzNTU5WjAdMRswGQYD"
    "VQQDDBJ2eHRlc3QgYXV0aG9yaXR5IDEwWTATBgcqhkjOPQIBBggqhkjOPQMBBwNCAARfEnPfem/zkcn8"
    "85It/3Ok3XVouk+6yPowNi53hY9raaEu5lIg3oS7deJWH7gCZj4QzdObaGAGTuK3m5u3ctteo1MwUTAd"
    "BgNVHQ4EFgQUQDZPKnpsNB5MmAYeFOdwEcz8gUIwHwYDVR0jBBgwFoAUQDZPKnpsNB5MmAYeFOdwEcz8"
    "gUIwDwYDVR0TAQH/BAUwAwEB/zAKBggqhkjOPQQDAgNJADBGAiEAts/zrbn9XMzSrloOFiM5sL80uuIY"
    "Am1Y3/we3GHsc38CIQDcYFtEODIIButlWwhMUbkB0K7HqWiAwDAEiU7YIv7UcQ==";
constexpr const char* secondAuthority =
    "MIIBkjCCATegAwIBAgIUGFERZ4iZW881/qqLYoszZ7qMbfkwCgYIKoZIzj0EAwIwHTEbMBkGA1UEAwwS"
    "dnh0ZXN0IGF1dGhvcml0eSAyMCAXDTI2MTEyMjE5MzU1OVoYDzIxMjYxMDI5MTkzNTU5WjAdMRswGQYD"
    "VQQDDBJ2eHRlc3QgYXV0aG9yaXR5IDIwWTATBgcqhkjOPQIBBggqhkjOPQMBBwNCAAQG0NW/sOqaKkAZ"
    "OmYHWivaI63gmPAGBHBA8DnMuVannt2paG0NszgZUnFPVwGERPYA0YJ77l4ewY3aYKRDtUMao1MwUTAd"
    "BgNVHQ4EFgQU4dljnHMzNpIzJxe5W2qu9b6tfbYwHwYDVR0jBBgwFoAU4dljnHMzNpIzJxe5W2qu9b6t"
    "fbYwDwYDVR0TAQH/BAUwAwEB/zAKBggqhkjOPQQDAgNJADBGAiEAqtnn9VtDmILzBzAyWth/qIM1dvS8"
    "9feFGMBCfavJT3MCIQCXazAYVmxWKIDIzWDzCl3p+VzhPyHsR+T+CRf0SFi4Gw==";

Certificate authority(const char* base64)
{
    const QByteArray bytes = QByteArray::fromBase64(base64);
    return Certificate(CertCreateCertificateContext(
        X509_ASN_ENCODING, reinterpret_cast<const BYTE*>(bytes.constData()),
        static_cast<DWORD>(bytes.size())));
}

/// The certificate in the form that OpenSSL reads, on one line.
QByteArray pemOf(const Certificate& certificate)
{
    const QByteArray bytes(reinterpret_cast<const char*>(certificate->pbCertEncoded),
                           static_cast<qsizetype>(certificate->cbCertEncoded));
    return "-----BEGIN CERTIFICATE-----" + bytes.toBase64() + "-----END CERTIFICATE-----";
}

bool add(const Store& store, const Certificate& certificate, Certificate* added = nullptr)
{
    PCCERT_CONTEXT context = nullptr;
    const bool isAdded = CertAddCertificateContextToStore(
        store.get(), certificate.get(), CERT_STORE_ADD_ALWAYS, added ? &context : nullptr);
    if (added)
        added->reset(context);
    return isAdded;
}

} // namespace

class SystemAuthoritiesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void trustedAuthoritiesAreHandedOver();
    void distrustedAuthorityIsNot();
    void authorityForOtherPurposesIsNot_data();
    void authorityForOtherPurposesIsNot();
    void fileHasWhatWindowsTrusts();

private:
    QByteArray handedOver() const
    {
        return system_authorities::certificates(m_trusted.get(), m_distrusted.get())
            .replace('\n', "");
    }

    Store m_trusted;
    Store m_distrusted;
    Certificate m_authority;
};

void SystemAuthoritiesTest::init()
{
    m_trusted = newStore();
    m_distrusted = newStore();
    QVERIFY(m_trusted && m_distrusted);
    m_authority = authority(firstAuthority);
    QVERIFY2(m_authority, qPrintable(qt_error_string(static_cast<int>(GetLastError()))));
}

void SystemAuthoritiesTest::trustedAuthoritiesAreHandedOver()
{
    const Certificate second = authority(secondAuthority);
    QVERIFY(second);
    QCOMPARE(handedOver(), QByteArray());

    QVERIFY(add(m_trusted, m_authority) && add(m_trusted, second));

    const QByteArray text = handedOver();
    QVERIFY2(text.contains(pemOf(m_authority)), text.constData());
    QVERIFY2(text.contains(pemOf(second)), text.constData());
    QCOMPARE(text.size(), pemOf(m_authority).size() + pemOf(second).size());
}

void SystemAuthoritiesTest::distrustedAuthorityIsNot()
{
    QVERIFY(add(m_trusted, m_authority) && add(m_distrusted, m_authority));
    QCOMPARE(handedOver(), QByteArray());
}

void SystemAuthoritiesTest::authorityForOtherPurposesIsNot_data()
{
    QTest::addColumn<QByteArray>("purpose");
    QTest::addColumn<bool>("isHandedOver");
    QTest::newRow("e-mail") << QByteArray(szOID_PKIX_KP_EMAIL_PROTECTION) << false;
    QTest::newRow("servers") << QByteArray(szOID_PKIX_KP_SERVER_AUTH) << true;
}

void SystemAuthoritiesTest::authorityForOtherPurposesIsNot()
{
    QFETCH(QByteArray, purpose);
    QFETCH(const bool, isHandedOver);
    Certificate added;
    QVERIFY(add(m_trusted, m_authority, &added));
    char* purposes[] = {purpose.data()};
    CERT_ENHKEY_USAGE usage{1, purposes};
    QVERIFY(CertSetEnhancedKeyUsage(added.get(), &usage));

    QCOMPARE(handedOver(), isHandedOver ? pemOf(m_authority) : QByteArray());
}

void SystemAuthoritiesTest::fileHasWhatWindowsTrusts()
{
    const Store trusted(CertOpenSystemStoreW(0, L"ROOT"));
    const Store distrusted(CertOpenSystemStoreW(0, L"Disallowed"));
    const QByteArray expected = system_authorities::certificates(trusted.get(), distrusted.get());
    QString reason;
    const std::unique_ptr<QTemporaryFile> file = system_authorities::write(&reason);
    if (expected.isEmpty()) {
        QVERIFY(!file);
        QVERIFY2(reason.contains(QLatin1String("caFile")), qPrintable(reason));
        return;
    }
    QVERIFY2(file, qPrintable(reason));
    QFile text(file->fileName());
    QVERIFY(text.open(QIODevice::ReadOnly));
    QCOMPARE(text.readAll(), expected);
}

QTEST_GUILESS_MAIN(SystemAuthoritiesTest)
#include "tst_system_authorities.moc"
