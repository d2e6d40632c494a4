// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxerror.h"
#include "windowserrors.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSet>
#include <QtCore/QTranslator>
#include <QtTest/QTest>

#include <array>
#include <limits>

namespace {

/// The codes that have a text of their own: those of the library, and those of drivers.
constexpr std::array KnownCodes{0,  1,  2,  3,  4,  5,  6,  7,  8,  9,   10,  11,  12,  13, 14,
                                15, 16, 17, 18, 19, 20, 21, 22, 23, 254, 255, 256, 257, 258};

/// Marks what it is asked to translate in the context of the messages.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* text, const char* /*remark*/,
                      int /*number*/) const override
    {
        return qstrcmp(context, "VXError") == 0 ? QStringLiteral("<%1>").arg(QLatin1String(text))
                                                : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_VXMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesKnownCodes();
    void namesOtherCodes_data();
    void namesOtherCodes();
    void canBeTranslated();

    void explainsWindowsErrors_data();
    void explainsWindowsErrors();
    void namesOtherWindowsErrors_data();
    void namesOtherWindowsErrors();
};

void tst_VXMessages::describesKnownCodes()
{
    QSet<QString> texts;
    for (const int code : KnownCodes) {
        const QString text = getErrorDescription(VXError(code));
        QVERIFY2(!text.isEmpty(), qPrintable(QString::number(code)));
        QVERIFY2(text.front().isUpper() && text == text.simplified(), qPrintable(text));
        QVERIFY2(!text.contains(QLatin1String("error")), qPrintable(text));
        texts.insert(text);
    }
    QCOMPARE(texts.size(), qsizetype{KnownCodes.size()});
    QCOMPARE(getErrorDescription(VXError(4)), QStringLiteral("The cover is open"));
    QCOMPARE(getErrorDescription(VXError(254)), QStringLiteral("The print spooler is not running"));
}

void tst_VXMessages::namesOtherCodes_data()
{
    QTest::addColumn<int>("code");
    for (const int code :
         {-1, 24, 253, 259, 4711, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QTest::addRow("%d", code) << code;
}

void tst_VXMessages::namesOtherCodes()
{
    QFETCH(const int, code);
    QCOMPARE(getErrorDescription(VXError(code)), QStringLiteral("Printer error %1").arg(code));
}

void tst_VXMessages::canBeTranslated()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    for (const int code : KnownCodes) {
        const QString text = getErrorDescription(VXError(code));
        QVERIFY2(text.startsWith(u'<') && text.endsWith(u'>'), qPrintable(text));
    }
    QCOMPARE(getErrorDescription(VXError(24)), QStringLiteral("<Printer error 24>"));
}

void tst_VXMessages::explainsWindowsErrors_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {0, 2, 5, 6, 8, 87, 122, 1722, 1801, 1905})
        QTest::addRow("%d", code) << code;
}

void tst_VXMessages::explainsWindowsErrors()
{
    QFETCH(const int, code);
    const QString text = WindowsErrors::winError(static_cast<unsigned long>(code));
    QVERIFY(!text.isEmpty());
    QCOMPARE(text, text.simplified());
    QVERIFY2(!text.startsWith(QLatin1String("Windows error")), qPrintable(text));
#ifdef Q_OS_WIN
    QCOMPARE(text, qt_error_string(code).simplified());
#endif
}

void tst_VXMessages::namesOtherWindowsErrors_data()
{
    QTest::addColumn<unsigned int>("code");
    for (const unsigned int code : {71234U, 0x20000001U, 4000000000U})
        QTest::addRow("%u", code) << code;
}

void tst_VXMessages::namesOtherWindowsErrors()
{
    QFETCH(const unsigned int, code);
    QCOMPARE(WindowsErrors::winError(code), QStringLiteral("Windows error %1").arg(code));
}

QTEST_GUILESS_MAIN(tst_VXMessages)
#include "tst_vxmessages.moc"
