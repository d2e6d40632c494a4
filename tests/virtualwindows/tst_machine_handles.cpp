// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The ledger of handles: leaks and misuses.
#include "machine_calls.h"

#include <optional>

using virtualwindows::HandleMisuse;

class MachineHandlesTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void leakedHandleIsReported_data();
    void leakedHandleIsReported();
    void closingTwiceIsAMisuse_data();
    void closingTwiceIsAMisuse();
    void useAfterCloseIsAMisuse_data();
    void useAfterCloseIsAMisuse();
    void unknownHandleIsAMisuse_data();
    void unknownHandleIsAMisuse();
    void handleOfAnotherKindIsAMisuse_data();
    void handleOfAnotherKindIsAMisuse();
    void invalidHandleValueIsNotAMisuse();
    void misusesAreListedInOrder();
    void handleValuesAreNeverReused();

private:
    std::optional<Attempt> callWithClosedHandles(const Caller& call);
};

void MachineHandlesTest::leakedHandleIsReported_data()
{
    QTest::addColumn<QString>("function");
    for (const NamedCaller& caller : callers()) {
        if (caller.opensHandle)
            QTest::newRow(caller.function) << QString::fromLatin1(caller.function);
    }
}

void MachineHandlesTest::leakedHandleIsReported()
{
    QFETCH(QString, function);
    allowMisuse(Kind::Leaked, function);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    const int openBefore = machine().openHandles();
    QVERIFY(!callByName(function, handles).isFailure);
    QCOMPARE(machine().openHandles(), openBefore + 1);
    QVERIFY(closeAll(handles));

    QVERIFY(machine().misuses().isEmpty());
    const QList<HandleMisuse> leaks = machine().settle();
    QCOMPARE(kindsOf(leaks), (MisuseList{{Kind::Leaked, function}}));
    QVERIFY(leaks.first().text.contains(function));
    QVERIFY(leaks.first().text.contains(QString::number(leaks.first().handle, 16)));
}

void MachineHandlesTest::closingTwiceIsAMisuse_data()
{
    addCallerColumns();
    addCloserRows();
}

void MachineHandlesTest::closingTwiceIsAMisuse()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    allowMisuse(Kind::ClosedTwice, function);
    const std::optional<Attempt> second = callWithClosedHandles(call);
    QVERIFY(second && second->isFailure);
    QCOMPARE(second->error, ERROR_INVALID_HANDLE);
    QCOMPARE(kindsOf(machine().misuses()), (MisuseList{{Kind::ClosedTwice, function}}));
    QVERIFY(machine().misuses().first().text.contains(function));
}

std::optional<Attempt> MachineHandlesTest::callWithClosedHandles(const Caller& call)
{
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    return closeAll(handles) ? std::optional(call(handles)) : std::nullopt;
}

void MachineHandlesTest::useAfterCloseIsAMisuse_data()
{
    addCallerColumns();
    addCallerRows(takesHandle);
}

void MachineHandlesTest::useAfterCloseIsAMisuse()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    allowMisuse(Kind::UsedAfterClose, function);
    const std::optional<Attempt> late = callWithClosedHandles(call);
    QVERIFY(late && late->isFailure);
    QCOMPARE(late->error, ERROR_INVALID_HANDLE);
    QCOMPARE(kindsOf(machine().misuses()), (MisuseList{{Kind::UsedAfterClose, function}}));
}

void MachineHandlesTest::unknownHandleIsAMisuse_data()
{
    addCallerColumns();
    addCallerRows(takesHandle);
    addCloserRows();
}

void MachineHandlesTest::unknownHandleIsAMisuse()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    for (int count = 0; count < 4; ++count)
        allowMisuse(Kind::NotAHandle, function);
    const HANDLE event = openEvent();
    const auto value = reinterpret_cast<quintptr>(event);
    // Null, a small number, a number between two handles, and the next handle.
    const QList<quintptr> numbers{0, 4, value + 1, value + 4};
    for (const quintptr number : numbers) {
        const auto handle = reinterpret_cast<HANDLE>(number);
        const Attempt bad = call(allOf(handle));
        QVERIFY(bad.isFailure);
        QCOMPARE(bad.error, ERROR_INVALID_HANDLE);
        QCOMPARE(machine().misuses().last().kind, Kind::NotAHandle);
        QCOMPARE(machine().misuses().last().handle, number);
    }
    QCOMPARE(machine().misuses().size(), 4);
    QVERIFY(CloseHandle(event));
}

void MachineHandlesTest::handleOfAnotherKindIsAMisuse_data()
{
    unknownHandleIsAMisuse_data();
}

void MachineHandlesTest::handleOfAnotherKindIsAMisuse()
{
    QFETCH(QString, function);
    QFETCH(Caller, call);
    machine().addPrinter({.name = printerName});
    const Handles handles = openAll();
    // Each function gets a handle of a kind that it does not take.
    allowMisuse(Kind::NotAHandle, function);
    const auto event = static_cast<SC_HANDLE>(handles.event);
    const Attempt bad = call({handles.printer, handles.event, handles.event, event, event});
    QVERIFY(bad.isFailure);
    QCOMPARE(bad.error, ERROR_INVALID_HANDLE);
    QCOMPARE(kindsOf(machine().misuses()), (MisuseList{{Kind::NotAHandle, function}}));
    // The handles are still good.
    QVERIFY(closeAll(handles));
}

void MachineHandlesTest::invalidHandleValueIsNotAMisuse()
{
    const Handles invalid = allOf(INVALID_HANDLE_VALUE);
    for (const NamedCaller& closer : closers())
        closer.call(invalid);
    for (const NamedCaller& caller : callers()) {
        if (takesHandle(caller))
            caller.call(invalid);
    }
    QVERIFY(machine().misuses().isEmpty());
}

void MachineHandlesTest::misusesAreListedInOrder()
{
    allowMisuse(Kind::ClosedTwice, QStringLiteral("CloseHandle"));
    allowMisuse(Kind::UsedAfterClose, QStringLiteral("SetEvent"));
    allowMisuse(Kind::NotAHandle, QStringLiteral("ResetEvent"));
    allowMisuse(Kind::Leaked, QStringLiteral("CreateEventW"));
    const HANDLE leaked = openEvent();
    const HANDLE event = openEvent();
    CloseHandle(event);
    ResetEvent(nullptr);
    SetEvent(event);
    CloseHandle(event);
    const QList<HandleMisuse> settled = machine().settle();
    QCOMPARE(settled.size(), 4);
    QCOMPARE(settled.at(0).function, QStringLiteral("ResetEvent"));
    QCOMPARE(settled.at(1).function, QStringLiteral("SetEvent"));
    QCOMPARE(settled.at(2).function, QStringLiteral("CloseHandle"));
    QCOMPARE(settled.at(3).handle, reinterpret_cast<quintptr>(leaked));
    QCOMPARE(machine().misuses().size(), 3);
}

void MachineHandlesTest::handleValuesAreNeverReused()
{
    QSet<HANDLE> seen;
    for (int count = 0; count < 100; ++count) {
        const HANDLE event = openEvent();
        QVERIFY(!seen.contains(event));
        QCOMPARE(reinterpret_cast<quintptr>(event) % 4, quintptr{0});
        seen.insert(event);
        CloseHandle(event);
    }
}

QTEST_GUILESS_MAIN(MachineHandlesTest)
#include "tst_machine_handles.moc"
