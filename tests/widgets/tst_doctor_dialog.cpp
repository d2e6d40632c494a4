// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The dialog with what the doctor finds, on findings that the test makes and on its own checks.
#include "doctor_dialog.h"
#include "patience.h"
#include "run_in_english.h"

#include <QtGui/QClipboard>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>

#include <algorithm>

using doctor::Check;
using doctor::Verdict;

namespace {

Check check(const QString& subject, Verdict verdict, const QString& text,
            const QString& remedy = {})
{
    Check result;
    result.subject = subject;
    result.verdict = verdict;
    result.text = text;
    result.remedy = remedy;
    return result;
}

const QString evil = QStringLiteral("<b>A</b>\u202e");

QList<Check> someChecks()
{
    return {check({}, Verdict::Ok, QStringLiteral("The spooler is running.")),
            check({}, Verdict::Note, QStringLiteral("The catalogue is old.")),
            check(evil, Verdict::Problem, QStringLiteral("The driver says \u001b[31mnothing."),
                  QStringLiteral("Install the driver again.")),
            check(evil, Verdict::Ok, QStringLiteral("The port exists."))};
}

QPushButton& copyButtonOf(const DoctorDialog& dialog)
{
    const QList<QAbstractButton*> buttons = dialog.findChild<QDialogButtonBox*>()->buttons();
    const auto found = std::ranges::find_if(buttons, [](const QAbstractButton* button) {
        return button->text().contains(QLatin1String("Copy"));
    });
    return *qobject_cast<QPushButton*>(*found);
}

} // namespace

class DoctorDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checksOnAThreadOfItsOwn();
    void waitsForTheChecksWhenItIsClosed();
    void putsEachCheckBelowWhatItIsAbout();
    void saysHowManyProblemsThereAre();
    void copiesEverything();
    void marksVerdictsWithDifferentIcons();
};

void DoctorDialogTest::checksOnAThreadOfItsOwn()
{
    DoctorDialog dialog({}, QStringLiteral("missing.db"));
    // The checks are told on their thread, and arrive here through the event loop.
    QList<Check> found;
    QObject::connect(&dialog, &DoctorDialog::checked, &dialog,
                     [&found](const QList<Check>& checks) { found = checks; });
    QVERIFY(!copyButtonOf(dialog).isEnabled()); // there is nothing to copy yet
    QTRY_VERIFY(!found.isEmpty());
    QVERIFY(copyButtonOf(dialog).isEnabled());
    for (const Check& each : found)
        QVERIFY2(dialog.text().contains(each.text), qPrintable(each.text));
    // A catalogue that is missing is a problem, and the doctor says what to do.
    QVERIFY(std::ranges::any_of(found, [](const Check& each) {
        return each.verdict == Verdict::Problem && !each.remedy.isEmpty();
    }));
}

void DoctorDialogTest::waitsForTheChecksWhenItIsClosed()
{
    for (int round = 0; round < 20; ++round) {
        const DoctorDialog dialog({}, QStringLiteral("missing.db"));
        QVERIFY(dialog.text().startsWith(QLatin1String("Checking")));
    }
}

void DoctorDialogTest::putsEachCheckBelowWhatItIsAbout()
{
    DoctorDialog dialog({}, {});
    QTRY_VERIFY(copyButtonOf(dialog).isEnabled());
    dialog.show(someChecks());
    const auto& tree = *dialog.findChild<QTreeWidget*>();
    QCOMPARE(tree.topLevelItemCount(), 2);
    QCOMPARE(tree.topLevelItem(0)->text(0), QStringLiteral("This computer"));
    QCOMPARE(tree.topLevelItem(0)->childCount(), 2);
    QCOMPARE(tree.topLevelItem(1)->text(0), QStringLiteral("<b>A</b>\\u202e"));
    const QTreeWidgetItem& problem = *tree.topLevelItem(1)->child(0);
    QCOMPARE(problem.text(0), QStringLiteral("The driver says \\u001b[31mnothing."));
    QCOMPARE(problem.childCount(), 1);
    QCOMPARE(problem.child(0)->text(0), QStringLiteral("Install the driver again."));
    QCOMPARE(tree.topLevelItem(1)->child(1)->childCount(), 0);
}

void DoctorDialogTest::saysHowManyProblemsThereAre()
{
    DoctorDialog dialog({}, {});
    QTRY_VERIFY(copyButtonOf(dialog).isEnabled());
    dialog.show(someChecks());
    QVERIFY2(dialog.text().startsWith(QLatin1String("Problems found: 1\n")),
             qPrintable(dialog.text()));
    dialog.show(someChecks().mid(0, 2));
    QVERIFY2(dialog.text().startsWith(QLatin1String("Nothing is wrong.\n")),
             qPrintable(dialog.text()));
}

void DoctorDialogTest::copiesEverything()
{
    DoctorDialog dialog({}, {});
    QTRY_VERIFY(copyButtonOf(dialog).isEnabled());
    dialog.show(someChecks());
    copyButtonOf(dialog).click();
    QCOMPARE(QGuiApplication::clipboard()->text(),
             QStringLiteral("Problems found: 1\n"
                            "This computer\n"
                            "  The spooler is running.\n"
                            "  The catalogue is old.\n"
                            "<b>A</b>\\u202e\n"
                            "  The driver says \\u001b[31mnothing.\n"
                            "    Install the driver again.\n"
                            "  The port exists.\n"));
}

void DoctorDialogTest::marksVerdictsWithDifferentIcons()
{
    DoctorDialog dialog({}, {});
    QTRY_VERIFY(copyButtonOf(dialog).isEnabled());
    dialog.show(someChecks());
    const auto& tree = *dialog.findChild<QTreeWidget*>();
    const auto pictureOf = [](const QTreeWidgetItem* item) {
        return item->icon(0).pixmap(QSize(16, 16)).toImage();
    };
    const QImage ok = pictureOf(tree.topLevelItem(0)->child(0));
    const QImage note = pictureOf(tree.topLevelItem(0)->child(1));
    const QImage problem = pictureOf(tree.topLevelItem(1)->child(0));
    QVERIFY(!ok.isNull());
    QVERIFY(ok != note);
    QVERIFY(note != problem);
    QVERIFY(problem != ok);
    QCOMPARE(pictureOf(tree.topLevelItem(1)->child(1)), ok);
}

int main(int argc, char* argv[])
{
    return runInEnglish<QApplication, DoctorDialogTest>(argc, argv);
}
#include "tst_doctor_dialog.moc"
