// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "windows_security.h"

#include <array>
#include <cstddef>

#include <aclapi.h>
#include <sddl.h>

namespace windows_security {
namespace {

QString text(PSID identifier)
{
    wchar_t* raw = nullptr;
    if (!ConvertSidToStringSidW(identifier, &raw))
        return {};
    const LocalMemory<wchar_t> text(raw);
    return QString::fromWCharArray(text.get());
}

QString userOf(HANDLE token)
{
    alignas(TOKEN_USER) std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user = {};
    DWORD size = 0;
    if (!GetTokenInformation(token, TokenUser, user.data(), static_cast<DWORD>(user.size()), &size))
        return {};
    return text(reinterpret_cast<const TOKEN_USER*>(user.data())->User.Sid);
}

} // namespace

OwnedHandle owned(HANDLE handle)
{
    return OwnedHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

QString userOfProcess()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return {};
    return userOf(owned(token).get());
}

QString ownerOfPipe(HANDLE pipe)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR raw = nullptr;
    if (GetSecurityInfo(pipe, SE_KERNEL_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr,
                        nullptr, nullptr, &raw) != ERROR_SUCCESS) {
        return {};
    }
    // `owner` points into it.
    const LocalMemory<void> descriptor(raw);
    return owner ? text(owner) : QString();
}

QString clientOfPipe(HANDLE serverEnd)
{
    if (!ImpersonateNamedPipeClient(serverEnd))
        return {};
    HANDLE token = nullptr;
    // With the rights of this process: the identity of a client that allows identification only
    // cannot be used to open the token.
    if (!OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, TRUE, &token))
        token = nullptr;
    const OwnedHandle client = owned(token);
    if (!RevertToSelf())
        qFatal("The thread cannot revert to its own user");
    return client ? userOf(client.get()) : QString();
}

LocalMemory<void> ownedByUserAlone(const QString& user)
{
    // The owner is named, because by default the administrators' group owns the objects of an
    // elevated process.
    const QString form = QStringLiteral("O:%1D:P(A;;FA;;;%1)").arg(user);
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
            qUtf16Printable(form), SDDL_REVISION_1, &descriptor, nullptr)) {
        return nullptr;
    }
    return LocalMemory<void>(descriptor);
}

} // namespace windows_security
