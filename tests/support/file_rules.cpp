// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "file_rules.h"

#include <QtCore/QDir>

#include <memory>

#include <sddl.h>

namespace {

struct FreesLocally
{
    void operator()(void* block) const { LocalFree(block); }
};
using LocalBlock = std::unique_ptr<void, FreesLocally>;

} // namespace

QString file_rules::sidOfThisUser()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    alignas(TOKEN_USER) char block[300] = {};
    DWORD size = sizeof block;
    LPWSTR text = nullptr;
    const bool isFound =
        GetTokenInformation(token, TokenUser, block, size, &size) &&
        ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(block)->User.Sid, &text);
    CloseHandle(token);
    if (!isFound)
        return {};
    const LocalBlock owner(text);
    return QString::fromWCharArray(text);
}

DWORD file_rules::set(const QString& path, const QString& descriptor)
{
    PSECURITY_DESCRIPTOR made = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(descriptor.toStdWString().c_str(),
                                                              SDDL_REVISION_1, &made, nullptr))
        return GetLastError();
    const LocalBlock block(made);
    const bool isDone =
        SetFileSecurityW(QDir::toNativeSeparators(path).toStdWString().c_str(),
                         DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, made);
    return isDone ? ERROR_SUCCESS : GetLastError();
}
