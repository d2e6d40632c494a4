// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// The example with a window in QML, with readings of any kind. With VX_PICTURE=FILE in the
// environment the test also saves the picture of the window that the guide shows.
#include "run_in_english.h"

#include <printer_list_model.h>

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickItem>
#include <QtQuick/QQuickView>

using VxKit::Level;
using VxKit::PrinterListModel;
using VxKit::PrinterReading;
using VxKit::Slot;

namespace {

PrinterReading readingOf(const QString& name, int statusCode)
{
    PrinterReading reading;
    reading.setName(name);
    reading.setModel(VXPrinting::PrinterType::AlderMax);
    reading.setStatusCode(statusCode);
    reading.setOnline(true);
    return reading;
}

Level loaded(const QString& name, const QString& color, double ratio)
{
    Level level;
    level.state = Level::State::Loaded;
    level.name = name;
    level.colors = QStringList{color};
    level.ratio = ratio;
    level.meters = ratio * 30.48;
    return level;
}

/// Three printers: one with everything, one of which little is known, one that is gone.
void fill(PrinterListModel& model)
{
    PrinterReading packing = readingOf(QStringLiteral("Packing"), 1);
    packing.setActive(true);
    Level supply = loaded(QStringLiteral("Yellow Vinyl"), QStringLiteral("#ffd100"), 0.75);
    supply.labels = 1200;
    packing.setLevel(Slot::Supply, supply);
    packing.setLevel(Slot::Ribbon1,
                     loaded(QStringLiteral("Black"), QStringLiteral("#000000"), 0.31));
    Level empty;
    empty.state = Level::State::Empty;
    packing.setLevel(Slot::Ribbon2, empty);
    model.setReading(packing);

    PrinterReading returns = readingOf(QStringLiteral("Returns"), 5);
    returns.setModel(VXPrinting::PrinterType::BirchMax);
    Level foreign;
    foreign.state = Level::State::NotInCatalogue;
    returns.setLevel(Slot::Ribbon1, foreign);
    model.setReading(returns);

    PrinterReading shipping = readingOf(QStringLiteral("Shipping"), 0);
    shipping.setGone(QDateTime::currentDateTime());
    model.setReading(shipping);
}

} // namespace

class QmlHostTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsEveryPrinter();
    void showsWhatIsLoaded();
    void showsChanges();
    void namesAreNotMarkup();
    void saysThatThereAreNoPrinters();

private:
    /// The window of the example, with the model's rows.
    static std::unique_ptr<QQuickView> show(PrinterListModel& model)
    {
        auto view = std::make_unique<QQuickView>();
        view->setInitialProperties(
            {{QStringLiteral("printers"), QVariant::fromValue(static_cast<QObject*>(&model))}});
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->setSource(QUrl::fromLocalFile(QStringLiteral(VX_MAIN_QML)));
        view->resize(560, 420);
        view->show();
        return view;
    }
    /// The texts of the visible items of that name, from top to bottom.
    static QStringList texts(const QQuickView& view, const QString& objectName)
    {
        QMap<qreal, QString> byHeight;
        const auto items = allItems(view.rootObject());
        for (QQuickItem* item : items) {
            if (item->objectName() == objectName && item->isVisible())
                byHeight.insert(item->mapToScene({}).y(), item->property("text").toString());
        }
        return byHeight.values();
    }
    static QList<QQuickItem*> allItems(QQuickItem* root)
    {
        QList<QQuickItem*> items{root};
        for (qsizetype i = 0; i < items.size(); ++i)
            items += items.at(i)->childItems();
        return items;
    }
};

void QmlHostTest::showsEveryPrinter()
{
    PrinterListModel model;
    fill(model);
    const auto view = show(model);
    QCOMPARE(view->status(), QQuickView::Ready);
    QTRY_COMPARE(texts(*view, QStringLiteral("name")),
                 (QStringList{QStringLiteral("Packing (active)"), QStringLiteral("Returns"),
                              QStringLiteral("Shipping")}));
    QCOMPARE(
        texts(*view, QStringLiteral("status")),
        (QStringList{QStringLiteral("\u2714 Ready"), QStringLiteral("\u2716 The labels are jammed"),
                     QStringLiteral("\u26a0 Removed from Windows")}));
    if (const QString picture = qEnvironmentVariable("VX_PICTURE"); !picture.isEmpty())
        QVERIFY(view->grabWindow().save(picture));
}

void QmlHostTest::showsWhatIsLoaded()
{
    PrinterListModel model;
    fill(model);
    const auto view = show(model);
    QTRY_COMPARE(
        texts(*view, QStringLiteral("slotText")).mid(0, 5),
        (QStringList{QStringLiteral("Supply: Yellow Vinyl, 1,200 labels"),
                     QStringLiteral("Ribbon 1: Black, 9.4 m"), QStringLiteral("Ribbon 2: empty"),
                     QStringLiteral("Supply: not known"),
                     QStringLiteral("Ribbon 1: not in the catalogue")}));
    // Only the two slots of which it is known how much is left have a bar.
    QCOMPARE(texts(*view, QStringLiteral("slotBar")).size(), 2);
}

void QmlHostTest::showsChanges()
{
    PrinterListModel model;
    fill(model);
    const auto view = show(model);
    PrinterReading packing = model.reading(0);
    packing.setStatusCode(2);
    packing.setActive(false);
    model.setReading(packing);
    QTRY_COMPARE(texts(*view, QStringLiteral("status")).first(),
                 QStringLiteral("\u2716 The printer is out of labels"));
    QCOMPARE(texts(*view, QStringLiteral("name")).first(), QStringLiteral("Packing"));
    model.removeReading(QStringLiteral("Packing"));
    QTRY_COMPARE(texts(*view, QStringLiteral("name")).size(), 2);
}

void QmlHostTest::namesAreNotMarkup()
{
    PrinterListModel model;
    model.setReading(readingOf(QStringLiteral("<b>Returns</b>"), 1));
    const auto view = show(model);
    QTRY_COMPARE(texts(*view, QStringLiteral("name")),
                 QStringList{QStringLiteral("<b>Returns</b>")});
    const auto items = allItems(view->rootObject());
    for (QQuickItem* item : items) {
        if (item->objectName() == QLatin1String("name"))
            QCOMPARE(item->property("textFormat").toInt(), int(Qt::PlainText));
    }
}

void QmlHostTest::saysThatThereAreNoPrinters()
{
    PrinterListModel model;
    const auto view = show(model);
    const auto visibleTexts = [&] {
        QStringList found;
        const auto items = allItems(view->rootObject());
        for (QQuickItem* item : items) {
            if (item->isVisible() && item->property("text").isValid())
                found.append(item->property("text").toString());
        }
        return found;
    };
    QTRY_COMPARE(visibleTexts(), QStringList{QStringLiteral("No label printers were found.")});
    fill(model);
    QTRY_VERIFY(!visibleTexts().contains(QStringLiteral("No label printers were found.")));
}

int main(int argc, char* argv[])
{
    // The picture does not depend on a graphics driver.
    qputenv("QT_QUICK_BACKEND", "software");
    return runInEnglish<QGuiApplication, QmlHostTest>(argc, argv);
}
#include "tst_qml_host.moc"
