// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
// The titles of status codes.
#include "status_titles.h"

#include <vxerror.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>
#include <QtTest/QtTest>

namespace {

/// A translator of the titles that records what it was asked for.
class TitleTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* remark,
                      int number) const override
    {
        if (qstrcmp(context, "QObject") != 0 || qstrcmp(remark, "Printer status message") != 0 ||
            number != -1)
            return {};
        return QStringLiteral("<%1>").arg(QString::fromUtf8(text));
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class StatusTitlesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fixedTitles_data();
    void fixedTitles();
    void fixedTitlesAreTranslated_data();
    void fixedTitlesAreTranslated();
    void otherTitlesAreThoseOfTheStatusMessages();
    void disconnectedAndOfflineHaveTheSameTitle();
};

void StatusTitlesTest::fixedTitles_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("title");
    const auto row = [](int code, const char* title) {
        QTest::newRow(qPrintable(QString::number(code))) << code << QString::fromUtf8(title);
    };
    row(0, "Disconnected");
    row(1, "Ready");
    row(255, "Unable To Retrieve Printer Info. (Code 255)");
    row(256, "Printer Is Remotely Connected.\nUnable to retrieve printer info.");
    row(257, "Disconnected");
    row(258, "Printer Is Not Managed.\nUnable to retrieve printer info.");
}

void StatusTitlesTest::fixedTitles()
{
    QFETCH(const int, code);
    QFETCH(const QString, title);
    QCOMPARE(statusTitle(code), title);
}

void StatusTitlesTest::fixedTitlesAreTranslated_data()
{
    fixedTitles_data();
}

void StatusTitlesTest::fixedTitlesAreTranslated()
{
    QFETCH(const int, code);
    QFETCH(const QString, title);
    TitleTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(statusTitle(code), QStringLiteral("<%1>").arg(title));
}

void StatusTitlesTest::otherTitlesAreThoseOfTheStatusMessages()
{
    for (const int code :
         {2, -5, 254, 259, 42, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QCOMPARE(statusTitle(code), getErrorDescription(VXError(code)));
        QVERIFY(!statusTitle(code).isEmpty());
    }
    QVERIFY(statusTitle(254) != statusTitle(257));
}

void StatusTitlesTest::disconnectedAndOfflineHaveTheSameTitle()
{
    QCOMPARE(statusTitle(0), statusTitle(257));
}

QTEST_GUILESS_MAIN(StatusTitlesTest)
#include "tst_status_titles.moc"
