// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "system_facts.h"

#include "is_wine.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QLibraryInfo>
#include <QtCore/QLocale>
#include <QtCore/QSysInfo>
#include <QtCore/QTimeZone>

#include <windows.h>

#include <lmcons.h>

namespace {

QString windowsValue(const wchar_t* name)
{
    wchar_t text[256] = {};
    DWORD size = sizeof text;
    const wchar_t* const key = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_SZ, nullptr, text, &size) ==
        ERROR_SUCCESS)
        return QString::fromWCharArray(text);
    DWORD number = 0;
    size = sizeof number;
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_DWORD, nullptr, &number, &size) ==
        ERROR_SUCCESS)
        return QString::number(number);
    return {};
}

/// The kernel's own version, which does not depend on what a program is declared to be compatible
/// with.
QString kernelVersion()
{
    using GetVersion = LONG(WINAPI*)(OSVERSIONINFOW*);
    // Two casts, because the compiler warns of one between such different functions.
    const auto getVersion = reinterpret_cast<GetVersion>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "RtlGetVersion")));
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (!getVersion || getVersion(&version) != 0)
        return {};
    return QStringLiteral("%1.%2.%3")
        .arg(QString::number(version.dwMajorVersion), QString::number(version.dwMinorVersion),
             QString::number(version.dwBuildNumber));
}

QString wineVersion()
{
    if (!isWine())
        return {};
    using GetVersion = const char*(CDECL*)();
    const auto getVersion = reinterpret_cast<GetVersion>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version")));
    return QString::fromLatin1(getVersion());
}

/// The languages in which Windows shows its texts, the preferred one first.
QStringList displayLanguages()
{
    ULONG count = 0;
    ULONG size = 0;
    if (!GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, nullptr, &size) || size == 0)
        return {};
    std::wstring list(size, L'\0');
    if (!GetUserPreferredUILanguages(MUI_LANGUAGE_NAME, &count, list.data(), &size))
        return {};
    return QString::fromStdWString(list).split(QChar(u'\0'), Qt::SkipEmptyParts);
}

QString computerName(COMPUTER_NAME_FORMAT format)
{
    wchar_t name[512] = {};
    DWORD size = 512;
    return GetComputerNameExW(format, name, &size) ? QString::fromWCharArray(name) : QString();
}

QString fileVersion(const QString& path)
{
    const std::wstring file = QDir::toNativeSeparators(path).toStdWString();
    const DWORD size = GetFileVersionInfoSizeW(file.c_str(), nullptr);
    QByteArray block(static_cast<qsizetype>(size), Qt::Uninitialized);
    VS_FIXEDFILEINFO* info = nullptr;
    UINT length = 0;
    if (size == 0 || !GetFileVersionInfoW(file.c_str(), 0, size, block.data()) ||
        !VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&info), &length) || !info)
        return {};
    return QStringLiteral("%1.%2.%3.%4")
        .arg(HIWORD(info->dwFileVersionMS))
        .arg(LOWORD(info->dwFileVersionMS))
        .arg(HIWORD(info->dwFileVersionLS))
        .arg(LOWORD(info->dwFileVersionLS));
}

/// The folder, with both kinds of separators, and by its long and its short name.
void addFolder(Redaction& redaction, const QString& folder, const QString& replacement)
{
    const std::wstring path = QDir::toNativeSeparators(folder).toStdWString();
    wchar_t longName[1024] = {};
    wchar_t shortName[1024] = {};
    GetLongPathNameW(path.c_str(), longName, 1024);
    GetShortPathNameW(path.c_str(), shortName, 1024);
    for (const QString& name :
         {folder, QString::fromWCharArray(longName), QString::fromWCharArray(shortName)}) {
        redaction.add(QDir::toNativeSeparators(name), replacement);
        redaction.add(QDir::fromNativeSeparators(name), replacement);
    }
}

} // namespace

bool system_facts::isAdministrator()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return false;
    TOKEN_ELEVATION elevation{};
    DWORD size = sizeof elevation;
    const bool isKnown =
        GetTokenInformation(token, TokenElevation, &elevation, sizeof elevation, &size);
    CloseHandle(token);
    return isKnown && elevation.TokenIsElevated != 0;
}

bool system_facts::isEnglish()
{
    return displayLanguages().value(0, QStringLiteral("en")).startsWith(QLatin1String("en"));
}

QJsonObject system_facts::all()
{
    MEMORYSTATUSEX memory{};
    memory.dwLength = sizeof memory;
    GlobalMemoryStatusEx(&memory);
    constexpr quint64 mebibyte = 1024 * 1024;
    QJsonObject facts{
        {QStringLiteral("product"), windowsValue(L"ProductName")},
        {QStringLiteral("edition"), windowsValue(L"EditionID")},
        {QStringLiteral("release"), windowsValue(L"DisplayVersion")},
        {QStringLiteral("kernel"), kernelVersion()},
        {QStringLiteral("revision"), windowsValue(L"UBR")},
        {QStringLiteral("architecture"), QSysInfo::currentCpuArchitecture()},
        {QStringLiteral("processors"),
         static_cast<int>(GetActiveProcessorCount(ALL_PROCESSOR_GROUPS))},
        {QStringLiteral("memoryMiB"), static_cast<double>(memory.ullTotalPhys / mebibyte)},
        {QStringLiteral("locale"), QLocale::system().name()},
        {QStringLiteral("displayLanguages"), QJsonArray::fromStringList(displayLanguages())},
        {QStringLiteral("ansiCodePage"), static_cast<int>(GetACP())},
        {QStringLiteral("oemCodePage"), static_cast<int>(GetOEMCP())},
        {QStringLiteral("utcOffsetMinutes"), QDateTime::currentDateTime().offsetFromUtc() / 60},
        {QStringLiteral("qt"), QString::fromLatin1(qVersion())},
        {QStringLiteral("remoteSession"), GetSystemMetrics(SM_REMOTESESSION) != 0},
    };
    if (isWine())
        facts.insert(QStringLiteral("wine"), wineVersion());
    return facts;
}

QJsonArray system_facts::files(const QString& folder)
{
    QJsonArray all;
    const QFileInfoList entries =
        QDir(folder).entryInfoList({QStringLiteral("*.dll"), QStringLiteral("*.exe")}, QDir::Files,
                                   QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo& entry : entries) {
        QFile file(entry.filePath());
        QCryptographicHash hash(QCryptographicHash::Sha256);
        const bool isRead = file.open(QIODevice::ReadOnly) && hash.addData(&file);
        all.append(QJsonObject{
            {QStringLiteral("name"), entry.fileName()},
            {QStringLiteral("size"), static_cast<double>(entry.size())},
            {QStringLiteral("version"), fileVersion(entry.filePath())},
            {QStringLiteral("sha256"), isRead ? QString::fromLatin1(hash.result().toHex())
                                              : QStringLiteral("cannot be read")}});
    }
    return all;
}

void system_facts::addNames(Redaction& redaction)
{
    const QString profile = QDir::toNativeSeparators(qEnvironmentVariable("USERPROFILE"));
    addFolder(redaction, profile, QStringLiteral("<profile>"));
    addFolder(redaction, qEnvironmentVariable("TEMP"), QStringLiteral("<temp>"));
    wchar_t user[UNLEN + 1] = {};
    DWORD size = UNLEN + 1;
    if (GetUserNameW(user, &size))
        redaction.add(QString::fromWCharArray(user), QStringLiteral("<user>"));
    redaction.add(qEnvironmentVariable("USERNAME"), QStringLiteral("<user>"));
    redaction.add(QDir(QDir::fromNativeSeparators(profile)).dirName(), QStringLiteral("<user>"));
    for (const COMPUTER_NAME_FORMAT format :
         {ComputerNameDnsFullyQualified, ComputerNamePhysicalDnsFullyQualified,
          ComputerNameDnsHostname, ComputerNamePhysicalDnsHostname, ComputerNameNetBIOS,
          ComputerNamePhysicalNetBIOS})
        redaction.add(computerName(format), QStringLiteral("<computer>"));
    redaction.add(computerName(ComputerNameDnsDomain), QStringLiteral("<domain>"));
    const QString domain = qEnvironmentVariable("USERDOMAIN");
    redaction.add(domain, QStringLiteral("<domain>"));
    redaction.add(qEnvironmentVariable("USERDNSDOMAIN"), QStringLiteral("<domain>"));
    const QString server = qEnvironmentVariable("LOGONSERVER");
    redaction.add(QString(server).remove(QLatin1Char('\\')), QStringLiteral("<server>"));
}
