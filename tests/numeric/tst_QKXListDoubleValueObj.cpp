// SPDX-License-Identifier: BSD-3-Clause
// The discrete value list: the field's record, and the popup that offers the allowed values under the
// field, reuses its buttons and submits the tapped value with its units string.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLineEdit>

#include "GlobalImpl.h"
#include "SystemModule.h"
#include "QKXComboListFrame.h"
#include "QKXDoubleValueList.h"
#include "QKXListDoubleValueObj.h"
#include "QKXNumericValueObjEventFilter.h"
#include "QKXRichTextPushButton.h"

#include "NumericTestSupport.h"

using namespace kxtest;

namespace {

QVariant record(const QString &type, std::initializer_list<QVariant> values)
{
    // A one-entry list in braces would otherwise be taken for a copy of that entry.
    QVariantList data;
    for (const QVariant &value : values)
        data.append(value);
    return QVariantList{type, QVariant(data)};
}

QVariant entry(double value, const QString &unit)
{
    return QVariant(QVariantList{value, unit});
}

QStringList shownCaptions(QKXDoubleValueList &popup)
{
    QStringList captions;
    for (QAbstractButton *button : popup.buttonGroup()->buttons()) {
        auto *item = qobject_cast<QKXRichTextPushButton *>(button);
        if (item && !item->isHidden() && item->parent())
            captions << item->text() + QLatin1Char('/') + item->objectName();
    }
    return captions;
}

} // namespace

class tst_QKXListDoubleValueObj : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void tapSubmitsTheValueWithItsUnit();
    void buttonsAreReusedAndOnlyListsRebuild();
    void badRecords();

private:
    QScopedPointer<QWidget> window;
    QKXListDoubleValueObj *field = nullptr;
    QKXNumericValueObjEventFilter *filter = nullptr;
    QKXDoubleValueList *popup = nullptr;
};

void tst_QKXListDoubleValueObj::init()
{
    window.reset(new QWidget);
    window->resize(800, 480);
    window->setObjectName(QStringLiteral("MainWindow"));
    GlobalImpl::getInstance()->setDesktop(window.data());
    GlobalImpl::getInstance()->systemModule()->registerSystemScreen(QStringLiteral("MainWindow"), window.data());
    field = new QKXListDoubleValueObj(window.data());
    field->setObjectName(QStringLiteral("Bandwidth"));
    field->setGeometry(40, 40, 200, 60);
    field->setBaseUnit(hertz());
    field->setUnitListString(frequencyUnits());
    field->setMetaData(record(QStringLiteral("List"), {entry(1.5, kilohertz()), entry(25, kilohertz())}));
    filter = new QKXNumericValueObjEventFilter(field, QStringLiteral("ValueDouble"), nullptr, nullptr);
    field->installEventFilter(filter);
    popup = new QKXDoubleValueList(window.data());
    QObject::connect(filter, &QKXEventFilterBase::editStart, popup, &QKXDoubleValueList::registerWidget);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.data()));
}

void tst_QKXListDoubleValueObj::cleanup()
{
    GlobalImpl::getInstance()->systemModule()->unregisterSystemScreen(QStringLiteral("MainWindow"));
    window.reset();
}

void tst_QKXListDoubleValueObj::tapSubmitsTheValueWithItsUnit()
{
    QCOMPARE(popup->objectName(), QStringLiteral("listFrame"));
    QCOMPARE(popup->styleSheet(), QStringLiteral("QFrame#listFrame {\tbackground-color: transparent;}"));
    QCOMPARE(popup->size(), window->size());
    QStringList road;
    QObject::connect(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit),
                     [&road](double v, const QString &u) { road << QStringLiteral("submit %1 %2").arg(v).arg(u); });
    QObject::connect(filter, &QKXEventFilterBase::editEnd, [&road] { road << QStringLiteral("editEnd"); });

    QTest::mouseClick(field, Qt::LeftButton, {}, field->findChild<QLineEdit *>()->geometry().center());
    QVERIFY(QTest::qWaitFor([&] { return popup->isVisible() && filter->isEditing(); }));
    QCOMPARE(shownCaptions(*popup), QStringList({"1.5 kHz/cbPushButton", "25 kHz/lastPushButton"}));
    QCOMPARE(popup->listFrame()->width(), field->width() - 2);

    QAbstractButton *second = popup->buttonGroup()->button(1);
    QTest::mouseClick(second, Qt::LeftButton, {}, second->rect().center());
    QCOMPARE(road, QStringList({"submit 25 " + kilohertz(), "editEnd"}));
    QVERIFY(!popup->isVisible());
    QVERIFY(!popup->filter());
    QVERIFY(QTest::qWaitFor([&] { return !filter->isEditing(); }));

    // A tap beside the column means nothing: the popup stays with its edit until the field goes.
    road.clear();
    field->setValue(3000.0);
    filter->lockAcquired(field);
    QVERIFY(QTest::qWaitFor([&] { return popup->isVisible(); }));
    QTest::mouseClick(popup, Qt::LeftButton, {}, QPoint(700, 400));
    QVERIFY(road.isEmpty() && popup->isVisible() && filter->isEditing());
    field->hide();
    QCOMPARE(road, QStringList({"submit 3000 " + hertz(), "editEnd"}));
    QVERIFY(!popup->isVisible());
}

void tst_QKXListDoubleValueObj::buttonsAreReusedAndOnlyListsRebuild()
{
    field->setMetaData(record(QStringLiteral("List"), {entry(1, kilohertz()), entry(3, kilohertz()),
                                                       entry(0.0000123456789, hertz())}));
    popup->registerWidget(filter, field);
    QCOMPARE(shownCaptions(*popup), QStringList({"1 kHz/cbPushButton", "3 kHz/cbPushButton",
                                                 "1.23457e-05 Hz/lastPushButton"}));
    // Under the field, its own x on top of its corner in the main window, 10 pixels back.
    QCOMPARE(popup->listFrame()->geometry().topLeft(), QPoint(40 + 40 - 10, 40 + 60));
    auto *panel = new QWidget(window.data());
    panel->setGeometry(100, 20, 400, 200);
    field->setParent(panel);
    field->setGeometry(30, 10, 200, 60);
    field->show();
    popup->unregister();
    popup->registerWidget(filter, field);
    QCOMPARE(popup->listFrame()->geometry().topLeft(), QPoint(30 + 130 - 10, 30 + 60));
    field->setParent(window.data());
    field->setGeometry(40, 40, 200, 60);
    field->show();
    QAbstractButton *first = popup->buttonGroup()->button(0);
    popup->unregister();

    // Near the bottom of the screen the column opens upward and ends on the value display's top.
    field->setMetaData(record(QStringLiteral("List"), {entry(100, kilohertz())}));
    field->move(40, 440);
    popup->registerWidget(filter, field);
    QCOMPARE(popup->listFrame()->geometry().bottom() + 1,
             field->y() + field->height() - field->findChild<QLineEdit *>()->height());
    QCOMPARE(shownCaptions(*popup), QStringList({"100 kHz/lastPushButton"}));
    QCOMPARE(popup->buttonGroup()->button(0), first);
    QVERIFY(popup->buttonGroup()->button(1)->isHidden());
    QCOMPARE(popup->values(), QList<double>({100.0}));
    popup->unregister();

    // Another parameter type leaves the column as it was.
    field->setMetaData(record(QStringLiteral("Range"), {entry(7, hertz()), entry(8, hertz())}));
    popup->registerWidget(filter, field);
    QCOMPARE(shownCaptions(*popup), QStringList({"100 kHz/lastPushButton"}));
    QSignalSpy submits(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit));
    popup->translateButtonId(0);
    popup->translateButtonId(5);
    QCOMPARE(submits.count(), 1);
}

void tst_QKXListDoubleValueObj::badRecords()
{
    // A good record is stored quietly, a bad one reported and ignored.
    DebugLines lines;
    QSignalSpy values(field, QOverload<double>::of(&QKXNumeric::valueChanged));
    QSignalSpy units(field, QOverload<int>::of(&QKXNumericValueObj::unitChanged));
    const QVariantList data{entry(1, kilohertz()), entry(3, kilohertz())};
    field->setMetaData(record(QStringLiteral("Range"), {data.at(0), data.at(1)}));
    QCOMPARE(field->getParamType(), QStringLiteral("Range"));
    QCOMPARE(field->metaData().toList(), data);
    QCOMPARE(values.count() + units.count(), 0);
    field->setMetaData(QVariantList{QStringLiteral("List")});
    field->setMetaData(QStringLiteral("List"));
    field->setMetaData(QVariantList{QStringLiteral("List"), 5, 6});
    QCOMPARE(field->metaData().toList(), data);
    QCOMPARE(field->getParamType(), QStringLiteral("Range"));
    QCOMPARE(lines.lines().size(), 3);
    QCOMPARE(lines.lines().first(), QStringLiteral("UserInterface - QKXListDoubleValueObj \"Bandwidth\" metadata is "
                                                   "not [type, [[value, units], ...]] - previous record kept"));

    // Only entries too short to hold a value and a units string are left out; a text reads as 0 and
    // a malformed units string as far as it goes.
    lines.lines().clear();
    field->setMetaData(record(QStringLiteral("List"), {entry(1, kilohertz()), QVariant(QVariantList{QStringLiteral("wide"), hertz()}),
                                                       QVariant(QVariantList{3.0}), entry(5, QStringLiteral("0,3,1:1")),
                                                       QVariant(7), entry(10, kilohertz())}));
    popup->registerWidget(filter, field);
    QCOMPARE(shownCaptions(*popup), QStringList({"1 kHz/cbPushButton", "0 Hz/cbPushButton", "5 kHz/cbPushButton",
                                                 "10 kHz/lastPushButton"}));
    const QString leftOut = QStringLiteral("UserInterface - QKXDoubleValueList: entry %1 of \"Bandwidth\" is not "
                                           "[value, units string] - left out");
    QCOMPARE(lines.lines(), QStringList({leftOut.arg(2), leftOut.arg(4),
                                         "UserInterface - Malformed Units property string (Base Unit Portion). - \"0,3,1:1\""}));
    QSignalSpy submits(filter, QOverload<double, QString>::of(&QKXNumericValueObjEventFilter::submit));
    popup->translateButtonId(3);
    QCOMPARE(submits.at(0).at(0).toDouble(), 10.0);
}

QTEST_MAIN(tst_QKXListDoubleValueObj)
#include "tst_QKXListDoubleValueObj.moc"
