// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The service manager, and how it reports the state of the service "Spooler".

#include "fixture.h"

#include <QtTest/QtTest>

namespace {

ServiceHandle openManager()
{
    return ServiceHandle(OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT));
}

ServiceHandle openService(const ServiceHandle& manager, const QString& name,
                          DWORD access = SERVICE_QUERY_STATUS)
{
    return ServiceHandle(OpenServiceW(manager.get(), WideText(name), access));
}

const QString spooler = QStringLiteral("Spooler");

} // namespace

class ServiceManagerTest : public WindowsApiTest
{
    Q_OBJECT

private Q_SLOTS:
    void opensTheLocalManager_data();
    void opensTheLocalManager();
    void otherDatabasesAreRefused_data();
    void otherDatabasesAreRefused();
    void opensTheSpooler_data();
    void opensTheSpooler();
    void unknownServiceIsRefused();
    void serviceNameIsRequired();
    void statusFollowsTheService();
    void stoppedServiceAcceptsNothing();
    void statusNeedsQueryAccess();
    void statusNeedsAPointer();
    void badHandleFails_data();
    void badHandleFails();
    void serviceIsNotAManager();
    void managerIsNotAService();
    void serviceOutlivesTheManagersHandle();
};

void ServiceManagerTest::opensTheLocalManager_data()
{
    QTest::addColumn<QString>("database");
    QTest::newRow("no database name") << QString();
    QTest::newRow("by its name") << QStringLiteral("ServicesActive");
}

void ServiceManagerTest::opensTheLocalManager()
{
    QFETCH(QString, database);
    WideText text(database);
    const LPCWSTR name = text;
    const ServiceHandle manager(
        OpenSCManagerW(nullptr, database.isNull() ? nullptr : name, SC_MANAGER_CONNECT));
    QVERIFY2(manager, qPrintable(QString::number(GetLastError())));
}

// wine/dlls/advapi32/tests/service.c, test_open_scm
void ServiceManagerTest::otherDatabasesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<DWORD>("error");
    QTest::newRow("no such name") << QStringLiteral("VxNoDatabase") << DWORD{ERROR_INVALID_NAME};
    QTest::newRow("a name without a database")
        << QStringLiteral("ServicesFailed") << DWORD{ERROR_DATABASE_DOES_NOT_EXIST};
}

void ServiceManagerTest::otherDatabasesAreRefused()
{
    QFETCH(QString, name);
    QFETCH(DWORD, error);
    WideText database(name);
    QCOMPARE(
        errorOf([&] { return OpenSCManagerW(nullptr, database, SC_MANAGER_CONNECT) != nullptr; }),
        error);
}

void ServiceManagerTest::opensTheSpooler_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("as usually written") << spooler;
    QTest::newRow("in lower case") << spooler.toLower();
    QTest::newRow("in upper case") << spooler.toUpper();
}

void ServiceManagerTest::opensTheSpooler()
{
    QFETCH(QString, name);
    const ServiceHandle manager = openManager();
    QVERIFY(manager);
    QVERIFY(openService(manager, name));
}

void ServiceManagerTest::unknownServiceIsRefused()
{
    const ServiceHandle manager = openManager();
    QVERIFY(manager);
    QCOMPARE(
        errorOf([&] { return openService(manager, QStringLiteral("VxNoService")) != nullptr; }),
        DWORD{ERROR_SERVICE_DOES_NOT_EXIST});
}

// wine/dlls/advapi32/tests/service.c, test_open_svc
void ServiceManagerTest::serviceNameIsRequired()
{
    const ServiceHandle manager = openManager();
    QVERIFY(manager);
    QCOMPARE(errorOf([&] {
                 return OpenServiceW(manager.get(), nullptr, SERVICE_QUERY_STATUS) != nullptr;
             }),
             DWORD{ERROR_INVALID_ADDRESS});
}

void ServiceManagerTest::statusFollowsTheService()
{
    STOPS_SPOOLER();
    const ServiceHandle manager = openManager();
    const ServiceHandle service = openService(manager, spooler);
    QVERIFY(service);
    for (const bool running : {true, false, true}) {
        QVERIFY(fixture::setSpoolerRunning(running));
        SERVICE_STATUS status{};
        QVERIFY(QueryServiceStatus(service.get(), &status));
        const DWORD state = running ? SERVICE_RUNNING : SERVICE_STOPPED;
        QCOMPARE(status.dwCurrentState, state);
        QCOMPARE(status.dwServiceType & SERVICE_WIN32_OWN_PROCESS,
                 DWORD{SERVICE_WIN32_OWN_PROCESS});
        const DWORD accepted = running ? SERVICE_ACCEPT_STOP : 0;
        QCOMPARE(status.dwControlsAccepted & SERVICE_ACCEPT_STOP, accepted);
    }
}

void ServiceManagerTest::stoppedServiceAcceptsNothing()
{
    STOPS_SPOOLER();
    QVERIFY(fixture::setSpoolerRunning(false));
    const ServiceHandle manager = openManager();
    const ServiceHandle service = openService(manager, spooler);
    QVERIFY(service);
    SERVICE_STATUS status{};
    status.dwCheckPoint = 77;
    QVERIFY(QueryServiceStatus(service.get(), &status));
    QCOMPARE(status.dwCurrentState, DWORD{SERVICE_STOPPED});
    QCOMPARE(status.dwControlsAccepted, DWORD{0});
    QCOMPARE(status.dwCheckPoint, DWORD{0});
}

void ServiceManagerTest::statusNeedsQueryAccess()
{
    const ServiceHandle manager = openManager();
    const ServiceHandle service = openService(manager, spooler, SERVICE_QUERY_CONFIG);
    QVERIFY(service);
    SERVICE_STATUS status{};
    status.dwCurrentState = 77;
    QCOMPARE(errorOf([&] { return QueryServiceStatus(service.get(), &status); }),
             DWORD{ERROR_ACCESS_DENIED});
    QCOMPARE(status.dwCurrentState, DWORD{77});
}

// wine/dlls/advapi32/tests/service.c, test_query_svc
void ServiceManagerTest::statusNeedsAPointer()
{
    expectMisuse(QStringLiteral("QueryServiceStatus"));
    const ServiceHandle manager = openManager();
    // The pointer is checked after the handle and before the access.
    for (const DWORD access : {SERVICE_QUERY_STATUS, SERVICE_QUERY_CONFIG}) {
        const ServiceHandle service = openService(manager, spooler, access);
        QVERIFY(service);
        QCOMPARE(errorOf([&] { return QueryServiceStatus(service.get(), nullptr); }),
                 DWORD{ERROR_INVALID_ADDRESS});
    }
    QCOMPARE(errorOf([] { return QueryServiceStatus(nullptr, nullptr); }),
             DWORD{ERROR_INVALID_HANDLE});
}

void ServiceManagerTest::badHandleFails_data()
{
    QTest::addColumn<QString>("function");
    QTest::addColumn<bool>("closed");
    for (const char* function : {"OpenServiceW", "QueryServiceStatus", "CloseServiceHandle"})
        for (const bool closed : {false, true})
            QTest::addRow("%s, %s", function, closed ? "closed" : "null")
                << QString::fromLatin1(function) << closed;
}

void ServiceManagerTest::badHandleFails()
{
    QFETCH(QString, function);
    QFETCH(bool, closed);
    expectMisuse(function);
    SC_HANDLE handle = nullptr;
    if (closed) {
        handle = OpenSCManagerW(nullptr, nullptr, SC_MANAGER_CONNECT);
        QVERIFY(CloseServiceHandle(handle));
    }
    SERVICE_STATUS status{};
    const DWORD error = errorOf([&] {
        if (function == QLatin1String("OpenServiceW"))
            return OpenServiceW(handle, WideText(spooler), SERVICE_QUERY_STATUS) != nullptr;
        if (function == QLatin1String("QueryServiceStatus"))
            return QueryServiceStatus(handle, &status) != FALSE;
        return CloseServiceHandle(handle) != FALSE;
    });
    QCOMPARE(error, DWORD{ERROR_INVALID_HANDLE});
}

void ServiceManagerTest::serviceIsNotAManager()
{
    expectMisuse(QStringLiteral("OpenServiceW"));
    const ServiceHandle manager = openManager();
    const ServiceHandle service = openService(manager, spooler);
    QVERIFY(service);
    QCOMPARE(errorOf([&] { return openService(service, spooler) != nullptr; }),
             DWORD{ERROR_INVALID_HANDLE});
}

void ServiceManagerTest::managerIsNotAService()
{
    expectMisuse(QStringLiteral("QueryServiceStatus"));
    const ServiceHandle manager = openManager();
    QVERIFY(manager);
    SERVICE_STATUS status{};
    QCOMPARE(errorOf([&] { return QueryServiceStatus(manager.get(), &status); }),
             DWORD{ERROR_INVALID_HANDLE});
}

void ServiceManagerTest::serviceOutlivesTheManagersHandle()
{
    ServiceHandle manager = openManager();
    const ServiceHandle service = openService(manager, spooler);
    QVERIFY(service);
    QVERIFY(CloseServiceHandle(manager.release()));
    SERVICE_STATUS status{};
    QVERIFY(QueryServiceStatus(service.get(), &status));
}

QTEST_GUILESS_MAIN(ServiceManagerTest)
#include "tst_service_manager.moc"
