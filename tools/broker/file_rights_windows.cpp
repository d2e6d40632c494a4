// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "file_rights_windows.h"

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QList>

#include <algorithm>
#include <memory>

#include <aclapi.h>
#include <sddl.h>

namespace {

struct FreesLocally
{
    void operator()(void* block) const { LocalFree(block); }
};
template <typename Block>
using LocalBlock = std::unique_ptr<Block, FreesLocally>;

struct ClosesToken
{
    void operator()(HANDLE token) const { CloseHandle(token); }
};
using TokenHandle = std::unique_ptr<void, ClosesToken>;

/// A SID, which needs no destruction once it is in memory of our own.
using Sid = QByteArray;

PSID pointer(const Sid& sid)
{
    return const_cast<char*>(sid.constData());
}

Sid copyOf(PSID sid)
{
    return Sid(static_cast<const char*>(sid), static_cast<qsizetype>(GetLengthSid(sid)));
}

Sid wellKnown(WELL_KNOWN_SID_TYPE type)
{
    Sid sid(SECURITY_MAX_SID_SIZE, '\0');
    auto size = static_cast<DWORD>(sid.size());
    return CreateWellKnownSid(type, nullptr, pointer(sid), &size) ? sid.first(size) : Sid();
}

Sid fromText(const wchar_t* text)
{
    PSID sid = nullptr;
    if (!ConvertStringSidToSidW(text, &sid))
        return {};
    const LocalBlock<void> owner(sid);
    return copyOf(sid);
}

Sid userOfThisProcess()
{
    HANDLE handle = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &handle))
        return {};
    const TokenHandle token(handle);
    DWORD size = 0;
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    QByteArray block(static_cast<qsizetype>(size), '\0');
    if (!GetTokenInformation(token.get(), TokenUser, block.data(), size, &size))
        return {};
    return copyOf(reinterpret_cast<const TOKEN_USER*>(block.constData())->User.Sid);
}

QList<Sid> trustedSids(file_rights::Trusted trusted)
{
    QList<Sid> sids{
        wellKnown(WinLocalSystemSid), wellKnown(WinBuiltinAdministratorsSid),
        // The rights of the owner, who is looked at himself.
        wellKnown(WinCreatorOwnerRightsSid),
        // The service that installs Windows' own files:
        // https://learn.microsoft.com/windows/security/identity-protection/access-control/access-control#trustedinstaller
        fromText(L"S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464")};
    if (trusted == file_rights::Trusted::SystemAndThisUser)
        sids.append(userOfThisProcess());
    sids.removeAll(Sid());
    return sids;
}

QString accountOf(PSID sid)
{
    // The longest that there are:
    // https://learn.microsoft.com/windows/win32/secauthn/user-name-formats
    constexpr DWORD longest = 256;
    wchar_t name[longest + 1] = {};
    wchar_t domain[longest + 1] = {};
    DWORD nameSize = longest;
    DWORD domainSize = longest;
    SID_NAME_USE use = SidTypeUnknown;
    if (LookupAccountSidW(nullptr, sid, name, &nameSize, domain, &domainSize, &use)) {
        const QString account = QString::fromWCharArray(name);
        return domain[0] == L'\0' ? account : QString::fromWCharArray(domain) + u'\\' + account;
    }
    LPWSTR text = nullptr;
    if (!ConvertSidToStringSidW(sid, &text))
        return QStringLiteral("an unknown account");
    const LocalBlock<wchar_t> owner(text);
    return QString::fromWCharArray(text);
}

/// The SID to which a rule gives any of the rights; null if it gives none. A rule with a condition
/// counts as if the condition held.
PSID givenTo(const ACE_HEADER* rule, DWORD rights)
{
    if ((rule->AceFlags & INHERIT_ONLY_ACE) != 0)
        return nullptr;
    switch (rule->AceType) {
    case ACCESS_ALLOWED_ACE_TYPE:
    case ACCESS_ALLOWED_CALLBACK_ACE_TYPE: {
        // Both begin in the same way:
        // https://learn.microsoft.com/windows/win32/api/winnt/ns-winnt-access_allowed_callback_ace
        const auto* const allowed = reinterpret_cast<const ACCESS_ALLOWED_ACE*>(rule);
        return (allowed->Mask & rights) != 0 ? const_cast<DWORD*>(&allowed->SidStart) : nullptr;
    }
    default:
        return nullptr;
    }
}

} // namespace

file_rights::Others file_rights::others(const QString& path, DWORD rights, Trusted trusted)
{
    PSID owner = nullptr;
    PACL rules = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    const DWORD error = GetNamedSecurityInfoW(
        name.data(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner,
        nullptr, &rules, nullptr, &descriptor);
    if (error != ERROR_SUCCESS)
        return {{}, error};
    const LocalBlock<void> block(descriptor);
    return others(owner, rules, rights, trusted);
}

file_rights::Others file_rights::others(PSID owner, PACL rules, DWORD rights, Trusted trusted)
{
    const QList<Sid> sids = trustedSids(trusted);
    const auto isTrusted = [&sids](PSID sid) {
        return std::ranges::any_of(
            sids, [sid](const Sid& known) { return EqualSid(pointer(known), sid) != FALSE; });
    };
    Others result;
    const auto note = [&result, &isTrusted](PSID sid) {
        if (!sid || isTrusted(sid))
            return;
        if (const QString account = accountOf(sid); !result.accounts.contains(account))
            result.accounts.append(account);
    };
    note(owner);
    // Without rules everybody has all rights. Disks without rights, such as FAT's, have none.
    if (!rules) {
        note(pointer(wellKnown(WinWorldSid)));
        return result;
    }
    for (WORD i = 0; i < rules->AceCount; ++i) {
        void* rule = nullptr;
        if (GetAce(rules, i, &rule))
            note(givenTo(static_cast<const ACE_HEADER*>(rule), rights));
    }
    return result;
}

QString file_rights::accountOfThisProcess()
{
    const Sid user = userOfThisProcess();
    return user.isEmpty() ? QStringLiteral("an unknown account") : accountOf(pointer(user));
}
