// SPDX-License-Identifier: BSD-3-Clause
// A form with every widget of the collection, compiled by uic into this program the way an
// application builds its screens: it has to compile against the installed headers' names, link,
// and come up without a warning.
#include <QtTest>

#include "KXTestSupport.h"
#include "ui_EveryWidget.h"

class tst_UicForm : public QObject
{
    Q_OBJECT

private slots:
    void compiledFormShowsEveryWidget();
};

void tst_UicForm::compiledFormShowsEveryWidget()
{
    kxtest::DebugLines debug;
    QWidget screen;
    Ui::EveryWidget ui;
    ui.setupUi(&screen);
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));

    // uic made each member of the class its form names, as the form's own widget.
    const QList<QWidget *> made = {ui.browseButton, ui.comboBox, ui.complexTracePlot, ui.dateWidget,
                                   ui.meterBar, ui.numericValueObj, ui.plotManager, ui.sliderVertical,
                                   ui.textLog, ui.timeWidget, ui.complexTracePattern, ui.wheelEnum};
    for (QWidget *widget : made) {
        QCOMPARE(widget->parentWidget(), &screen);
        QVERIFY2(widget->isVisible(), widget->metaObject()->className());
    }
    QCOMPARE(QString::fromLatin1(ui.sliderVertical->metaObject()->className()), QStringLiteral("QKXSliderVertical"));
    QSet<QString> classes;
    for (QWidget *child : screen.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        classes << QString::fromLatin1(child->metaObject()->className());
    }
    QCOMPARE(classes.size(), 28);
    QCOMPARE(debug.warnings(), QStringList());
    QCOMPARE(debug.lines(), QStringList());
}

QTEST_MAIN(tst_UicForm)
#include "tst_UicForm.moc"
