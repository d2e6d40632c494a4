// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The window on virtual printers: it never waits for the print spooler.
#include "machine_test.h"
#include "patience.h"
#include "printer_source.h"
#include "run_in_english.h"
#include "window_on_readings.h"

#include <QtWidgets/QListView>
#include <QtWidgets/QScrollBar>

#include <atomic>
#include <semaphore>

using virtualwindows::PrinterValue;

namespace {

/// Holds the calls to the spooler until it is let go.
class HeldSpooler
{
public:
    explicit HeldSpooler(virtualwindows::Machine& machine)
        : m_machine(machine)
    {
        m_machine.setCallHook([this](const virtualwindows::Call&) {
            ++m_waiting;
            m_gate.acquire();
            m_gate.release(); // one after the other goes on
            --m_waiting;
        });
    }
    ~HeldSpooler() { letGo(); }
    Q_DISABLE_COPY_MOVE(HeldSpooler)

    int waiting() const { return m_waiting; }
    void letGo()
    {
        if (std::exchange(m_isHeld, false)) {
            m_gate.release();
            m_machine.setCallHook(nullptr);
        }
    }

private:
    virtualwindows::Machine& m_machine;
    std::counting_semaphore<> m_gate{0};
    std::atomic<int> m_waiting = 0;
    bool m_isHeld = true;
};

/// Counts what is painted.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*object*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }
    int count = 0;
};

} // namespace

class WindowOnSpoolerTest : public MachineTest
{
    Q_OBJECT

private Q_SLOTS:
    void scrollsWhileTheSpoolerDoesNotAnswer();
    void isThereBeforeTheSpoolerAnswers();

private:
    void addPrinters(int count)
    {
        for (int number = 1; number <= count; ++number) {
            const QString name = QStringLiteral("Printer %1").arg(number);
            machine().addPrinter({.name = name, .driver = QStringLiteral("Stratamark BirchMax")});
            machine().publish(name, {PrinterValue::text("StatusCode", "1")});
        }
    }
};

void WindowOnSpoolerTest::scrollsWhileTheSpoolerDoesNotAnswer()
{
    constexpr int count = 40;
    addPrinters(count);
    WindowOnReadings window(QStringLiteral("en"));
    PrinterSource source({});
    window->setSource(source);
    window->resize(900, 600);
    window->show();
    source.start();
    QListView& rows = *window->list().findChild<QListView*>();
    QTRY_COMPARE(rows.model()->rowCount(), count);
    QTRY_VERIFY(rows.verticalScrollBar()->maximum() > 0);

    HeldSpooler spooler(machine());
    source.refresh();
    machine().publish(QStringLiteral("Printer 7"), PrinterValue::text("StatusCode", "4"));
    QTRY_VERIFY(spooler.waiting() > 0);
    // If it waited, none of this would end before the spooler answers, which is below.
    rows.setFocus();
    PaintCounter painted(*rows.viewport());
    for (int page = 0; page < 3; ++page) {
        const int before = rows.currentIndex().row();
        QTest::keyClick(&rows, Qt::Key_PageDown);
        QCoreApplication::processEvents();
        QVERIFY(rows.currentIndex().row() > before);
    }
    QVERIFY(rows.verticalScrollBar()->value() > 0);
    QTRY_VERIFY(painted.count > 0);
    rows.verticalScrollBar()->setValue(0);
    QTest::keyClick(&rows, Qt::Key_End);
    QCOMPARE(window->list().currentPrinter(), QStringLiteral("Printer 40"));
    // What else people do with the window does not wait either.
    window->list().setFilterText(QStringLiteral("Printer 39"));
    QVERIFY(window->list().shownPrinters().size() < count);
    window->list().setFilterText({});
    source.refresh();
    source.setFewestLabels(10);
    QCoreApplication::processEvents();
    QVERIFY(spooler.waiting() > 0); // it still has not answered
    spooler.letGo();
    QTRY_COMPARE(window->list().shownPrinters().first(), QStringLiteral("Printer 7"));
}

void WindowOnSpoolerTest::isThereBeforeTheSpoolerAnswers()
{
    addPrinters(3);
    HeldSpooler spooler(machine());
    WindowOnReadings window(QStringLiteral("en"));
    PrinterSource source({});
    window->setSource(source);
    window->show();
    PaintCounter painted(*window->centralWidget());
    source.start();
    QTRY_VERIFY(spooler.waiting() > 0);
    QTRY_VERIFY(painted.count > 0);
    QVERIFY(window->showsMessage());
    QCOMPARE(window->messagePage().message(), MessagePage::Message::Loading);
    spooler.letGo();
    QTRY_VERIFY(!window->showsMessage());
    QCOMPARE(window->list().shownPrinters().size(), 3);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, WindowOnSpoolerTest>(argc, argv);
}
#include "tst_window_on_spooler.moc"
