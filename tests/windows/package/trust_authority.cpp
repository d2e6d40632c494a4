// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// Adds a certificate to the authorities that the computer trusts. It needs no DLLs but the
// system's.
//
//     trust_authority FILE.pem
#include <array>
#include <cstdio>

#include <windows.h>

#include <wincrypt.h>

namespace {

int fail(const char* what)
{
    std::fprintf(stderr, "trust_authority: %s: error %lu\n", what, GetLastError());
    return 1;
}

} // namespace

int wmain(int argc, wchar_t* argv[])
{
    std::FILE* const file = argc == 2 ? _wfopen(argv[1], L"rb") : nullptr;
    if (!file) {
        std::fputs("trust_authority: expected FILE.pem\n", stderr);
        return 2;
    }
    std::array<char, 10000> text{};
    const auto length = static_cast<DWORD>(std::fread(text.data(), 1, text.size(), file));
    std::fclose(file);
    std::array<BYTE, 10000> certificate{};
    auto size = static_cast<DWORD>(certificate.size());
    if (!CryptStringToBinaryA(text.data(), length, CRYPT_STRING_BASE64HEADER, certificate.data(),
                              &size, nullptr, nullptr))
        return fail("this is no certificate");
    const HCERTSTORE store =
        CertOpenStore(CERT_STORE_PROV_SYSTEM_W, 0, 0, CERT_SYSTEM_STORE_LOCAL_MACHINE, L"ROOT");
    if (!store || !CertAddEncodedCertificateToStore(store, X509_ASN_ENCODING, certificate.data(),
                                                    size, CERT_STORE_ADD_ALWAYS, nullptr))
        return fail("it cannot be added");
    return CertCloseStore(store, 0) ? 0 : fail("the store cannot be closed");
}
