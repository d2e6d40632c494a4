// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// Who may use a file, according to its owner and its rules.
#include "file_rights_windows.h"
#include "file_rules.h"
#include "secret_file.h"

#include <QtTest/QtTest>

#include <memory>

#include <aclapi.h>
#include <sddl.h>

namespace {

struct FreesLocally
{
    void operator()(void* block) const { LocalFree(block); }
};
using LocalBlock = std::unique_ptr<void, FreesLocally>;

constexpr const char* everyone = "S-1-1-0";
constexpr const char* authenticatedUsers = "S-1-5-11";
constexpr const char* users = "S-1-5-32-545";
constexpr const char* anApp = "S-1-15-2-1";
constexpr const char* somebody = "S-1-5-21-1-2-3-1001";

/// The account as Windows names it, or the SID's text if it knows none.
QString accountOf(const QString& sidText)
{
    PSID sid = nullptr;
    if (!ConvertStringSidToSidW(sidText.toStdWString().c_str(), &sid))
        return {};
    const LocalBlock owner(sid);
    wchar_t name[300] = {};
    wchar_t domain[300] = {};
    DWORD nameSize = 300;
    DWORD domainSize = 300;
    SID_NAME_USE use = SidTypeUnknown;
    if (!LookupAccountSidW(nullptr, sid, name, &nameSize, domain, &domainSize, &use))
        return sidText;
    const QString account = QString::fromWCharArray(name);
    return domainSize == 0 ? account : QString::fromWCharArray(domain) + u'\\' + account;
}

/// What `others` finds in a security descriptor.
file_rights::Others othersIn(const QString& text, DWORD rights, file_rights::Trusted trusted)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(
            text.toStdWString().c_str(), SDDL_REVISION_1, &descriptor, nullptr))
        return {{}, GetLastError()};
    const LocalBlock block(descriptor);
    PSID owner = nullptr;
    PACL rules = nullptr;
    BOOL isDefault = FALSE;
    BOOL hasRules = FALSE;
    if (!GetSecurityDescriptorOwner(descriptor, &owner, &isDefault) ||
        !GetSecurityDescriptorDacl(descriptor, &hasRules, &rules, &isDefault))
        return {{}, GetLastError()};
    return file_rights::others(owner, hasRules ? rules : nullptr, rights, trusted);
}

} // namespace

class FileRightsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void othersAreWhoeverIsNotTrusted_data();
    void othersAreWhoeverIsNotTrusted();
    void thisUserIsTrustedUnlessOnlyTheSystemIs();
    void fileWithoutRulesIsOpenToEverybody();
    void secretThatEverybodyMayReadIsRefused();
    void secretOfItsOwnerIsAccepted();
    void folderIsNoSecret();
    void missingSecretIsRefusedWithTheReason();
};

void FileRightsTest::othersAreWhoeverIsNotTrusted_data()
{
    using file_rights::change;
    using file_rights::read;
    QTest::addColumn<QString>("descriptor");
    QTest::addColumn<DWORD>("rights");
    QTest::addColumn<QStringList>("sids");
    const auto row = [](const char* name, const char* rules, DWORD rights,
                        const QStringList& sids = {}, const char* owner = "BA") {
        QTest::newRow(name)
            << QStringLiteral("O:%1G:BAD:P%2").arg(QLatin1String(owner), QLatin1String(rules))
            << rights << sids;
    };
    const auto only = [](const char* sid) {
        return QStringList{QLatin1String(sid)};
    };
    row("the administrators and the system", "(A;;FA;;;SY)(A;;FA;;;BA)", read | change);
    row("nobody", "", read | change);
    row("another owner", "(A;;FA;;;SY)", read | change, only(somebody), somebody);
    row("the installer of Windows owns it", "(A;;FA;;;SY)", read | change, {},
        "S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464");
    row("another service owns it", "(A;;FA;;;SY)", read | change, only("S-1-5-80-1-2-3-4-5"),
        "S-1-5-80-1-2-3-4-5");
    row("everybody reads", "(A;;FA;;;SY)(A;;FR;;;WD)", read, only(everyone));
    row("everybody reads, which changes nothing", "(A;;FA;;;SY)(A;;FR;;;WD)", change);
    row("users read", "(A;;0x1200a9;;;S-1-5-32-545)", read, only(users));
    row("users who are logged on change", "(A;;0x1301bf;;;AU)", change, only(authenticatedUsers));
    row("two accounts, one of them twice", "(A;;FR;;;WD)(A;;FW;;;S-1-5-32-545)(A;;FR;;;WD)",
        read | change, {QLatin1String(everyone), QLatin1String(users)});
    row("everybody writes, which reads nothing", "(A;;0x2;;;WD)", read);
    row("everybody appends", "(A;;0x4;;;WD)", change, only(everyone));
    row("everybody deletes", "(A;;SD;;;WD)", change, only(everyone));
    row("everybody deletes what is in the folder", "(A;;0x40;;;WD)", change, only(everyone));
    row("everybody may change the rules", "(A;;WD;;;WD)", read, only(everyone));
    row("everybody may take it", "(A;;WO;;;WD)", read, only(everyone));
    row("generic reading", "(A;;GR;;;WD)", read, only(everyone));
    row("generic writing", "(A;;GW;;;WD)", change, only(everyone));
    row("generic everything", "(A;;GA;;;WD)", read, only(everyone));
    row("its attributes alone", "(A;;0x120180;;;WD)", read | change);
    row("apps read", "(A;;FR;;;S-1-15-2-1)", read, only(anApp));
    row("for what will be in the folder alone", "(A;OICIIO;FA;;;WD)", read | change);
    row("for it and what will be in it", "(A;OICI;FA;;;WD)", read | change, only(everyone));
    row("its owner's rights", "(A;;FA;;;S-1-3-4)", read | change);
    row("denied", "(D;;FA;;;WD)", read | change);
    row("denied first and then allowed", "(D;;FA;;;S-1-5-32-545)(A;;FR;;;S-1-5-32-545)", read,
        only(users));
}

void FileRightsTest::othersAreWhoeverIsNotTrusted()
{
    QFETCH(const QString, descriptor);
    QFETCH(const DWORD, rights);
    QFETCH(const QStringList, sids);
    QStringList accounts;
    for (const QString& sid : sids)
        accounts.append(accountOf(sid));

    const file_rights::Others others =
        othersIn(descriptor, rights, file_rights::Trusted::SystemAndThisUser);

    QCOMPARE(others.error, DWORD(ERROR_SUCCESS));
    QCOMPARE(others.accounts, accounts);
}

void FileRightsTest::thisUserIsTrustedUnlessOnlyTheSystemIs()
{
    const QString user = file_rules::sidOfThisUser();
    QVERIFY(!user.isEmpty());
    const QString descriptor = QStringLiteral("O:%1G:BAD:P(A;;FA;;;%1)").arg(user);
    const DWORD rights = file_rights::read | file_rights::change;

    QCOMPARE(othersIn(descriptor, rights, file_rights::Trusted::SystemAndThisUser).accounts,
             QStringList());
    QCOMPARE(othersIn(descriptor, rights, file_rights::Trusted::SystemOnly).accounts,
             QStringList{accountOf(user)});
    QCOMPARE(file_rights::accountOfThisProcess(), accountOf(user));
}

void FileRightsTest::fileWithoutRulesIsOpenToEverybody()
{
    PSID administrators = nullptr;
    QVERIFY(ConvertStringSidToSidW(L"S-1-5-32-544", &administrators));
    const LocalBlock owner(administrators);

    const file_rights::Others others = file_rights::others(
        administrators, nullptr, file_rights::read, file_rights::Trusted::SystemAndThisUser);

    QCOMPARE(others.accounts, QStringList{accountOf(QLatin1String(everyone))});
}

void FileRightsTest::secretThatEverybodyMayReadIsRefused()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(file.write("secret\n") > 0);
    file.close();
    QCOMPARE(file_rules::set(
                 file.fileName(),
                 QStringLiteral("D:P(A;;FA;;;%1)(A;;FR;;;WD)").arg(file_rules::sidOfThisUser())),
             DWORD(ERROR_SUCCESS));

    QString reason;
    QVERIFY(!secret_file::password(file.fileName(), &reason));

    QVERIFY2(reason.contains(accountOf(QLatin1String(everyone))), qPrintable(reason));
    QVERIFY2(reason.contains(QDir::toNativeSeparators(file.fileName())), qPrintable(reason));
    QVERIFY2(reason.contains(QLatin1String("icacls")), qPrintable(reason));
    QVERIFY(!reason.contains(QLatin1String("secret\n")));
}

void FileRightsTest::secretOfItsOwnerIsAccepted()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    QVERIFY(file.write("secret\r\n") > 0);
    file.close();
    QCOMPARE(file_rules::set(file.fileName(),
                             QStringLiteral("D:P(A;;FA;;;%1)").arg(file_rules::sidOfThisUser())),
             DWORD(ERROR_SUCCESS));

    QString reason;
    const std::optional<QByteArray> password = secret_file::password(file.fileName(), &reason);

    QCOMPARE(reason, QString());
    QCOMPARE(password, QByteArray("secret"));
}

void FileRightsTest::folderIsNoSecret()
{
    const QTemporaryDir folder;
    QVERIFY(secret_file::objection(folder.path()).contains(QLatin1String("expected a file")));
}

void FileRightsTest::missingSecretIsRefusedWithTheReason()
{
    const QTemporaryDir folder;
    const QString reason = secret_file::objection(folder.filePath(QStringLiteral("no such file")));
    QVERIFY2(reason.startsWith(QLatin1String("cannot read ")), qPrintable(reason));
    QVERIFY2(reason.contains(qt_error_string(ERROR_FILE_NOT_FOUND).trimmed()), qPrintable(reason));
}

QTEST_GUILESS_MAIN(FileRightsTest)
#include "tst_file_rights.moc"
