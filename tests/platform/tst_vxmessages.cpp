// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
#include "vxerror.h"
#include "windowserrors.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTranslator>
#include <QtTest/QTest>

#include <array>
#include <limits>

namespace {

struct Description
{
    int code;
    const char* text;
};

/// The codes with a description: those of the library, and those of drivers.
constexpr std::array descriptions{
    Description{0, "The printer is disconnected"},
    Description{1, "The printer is ready"},
    Description{2, "The printer is out of labels"},
    Description{3, "The ribbon has run out"},
    Description{4, "The cover is open"},
    Description{5, "The labels are jammed"},
    Description{6, "The cutter is jammed"},
    Description{7, "The cutter cover is open"},
    Description{8, "The print head is too hot"},
    Description{9, "The print head is not connected"},
    Description{10, "The motor is too hot"},
    Description{11, "No labels are loaded"},
    Description{12, "No ribbon is loaded"},
    Description{13, "The labels are not recognized"},
    Description{14, "The ribbon is not recognized"},
    Description{15, "The ribbon does not suit the labels"},
    Description{16, "The start of the label was not found"},
    Description{17, "The ribbon is torn or slack"},
    Description{18, "The label sensor must be calibrated"},
    Description{19, "The printer is paused"},
    Description{20, "The printer's memory is full"},
    Description{21, "The firmware is being updated"},
    Description{22, "The firmware update has failed"},
    Description{23, "The battery is low"},
    Description{254, "The print spooler is not running"},
    Description{255, "The printer's status is not known"},
    Description{256, "The printer is reached over a network"},
    Description{257, "The printer is offline"},
    Description{258, "The printer is not managed"},
};

/// Marks each text that is translated in the context of the messages.
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

class VXMessagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void describesKnownCodes();
    void describesOtherCodesByNumber_data();
    void describesOtherCodesByNumber();
    void translatesTheDescriptions();

    void explainsWindowsErrors_data();
    void explainsWindowsErrors();
    void describesOtherWindowsErrorsByNumber_data();
    void describesOtherWindowsErrorsByNumber();
};

void VXMessagesTest::describesKnownCodes()
{
    for (const Description& known : descriptions)
        QCOMPARE(getErrorDescription(VXError(known.code)), QString::fromLatin1(known.text));
}

void VXMessagesTest::describesOtherCodesByNumber_data()
{
    QTest::addColumn<int>("code");
    for (const int code :
         {-1, 24, 253, 259, 4711, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QTest::addRow("%d", code) << code;
}

void VXMessagesTest::describesOtherCodesByNumber()
{
    QFETCH(const int, code);
    QCOMPARE(getErrorDescription(VXError(code)), QStringLiteral("Printer error %1").arg(code));
}

void VXMessagesTest::translatesTheDescriptions()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    for (const Description& known : descriptions)
        QCOMPARE(getErrorDescription(VXError(known.code)),
                 QStringLiteral("<%1>").arg(QLatin1String(known.text)));
    QCOMPARE(getErrorDescription(VXError(24)), QStringLiteral("<Printer error 24>"));
}

void VXMessagesTest::explainsWindowsErrors_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {0, 2, 5, 6, 8, 87, 122, 1722, 1801, 1905})
        QTest::addRow("%d", code) << code;
}

void VXMessagesTest::explainsWindowsErrors()
{
    QFETCH(const int, code);
    const QString text = windows_errors::winError(static_cast<unsigned long>(code));
    QVERIFY(!text.isEmpty());
    QCOMPARE(text, text.simplified());
    QVERIFY2(!text.startsWith(QLatin1String("Windows error")), qPrintable(text));
#ifdef Q_OS_WIN
    QCOMPARE(text, qt_error_string(code).simplified());
#endif
}

void VXMessagesTest::describesOtherWindowsErrorsByNumber_data()
{
    QTest::addColumn<unsigned int>("code");
    for (const unsigned int code : {71234U, 0x20000001U, 4000000000U})
        QTest::addRow("%u", code) << code;
}

void VXMessagesTest::describesOtherWindowsErrorsByNumber()
{
    QFETCH(const unsigned int, code);
    QCOMPARE(windows_errors::winError(code), QStringLiteral("Windows error %1").arg(code));
}

QTEST_GUILESS_MAIN(VXMessagesTest)
#include "tst_vxmessages.moc"
