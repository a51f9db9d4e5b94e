// SPDX-License-Identifier: BSD-3-Clause
// The vertical slider: one announcement per setValue(), none from a new limit, and its turned caption
// on either side.
#include <QtTest>

#include <QGridLayout>
#include <QSlider>

#include "QKXSliderVertical.h"
#include "RotatableLabel.h"

class tst_QKXSliderVertical : public QObject
{
    Q_OBJECT

private slots:
    void setValueAnnouncesOnce_data();
    void setValueAnnouncesOnce();
    void captionSide();
    void compactGradientSpelling();
};

static QSlider *handleOf(QKXSliderVertical &widget)
{
    return widget.findChild<QSlider *>(QStringLiteral("VerticalSlider"));
}

static RotatableLabel *captionOf(QKXSliderVertical &widget)
{
    return widget.findChild<RotatableLabel *>(QStringLiteral("Label"));
}

static int captionColumn(QKXSliderVertical &widget)
{
    auto *grid = qobject_cast<QGridLayout *>(widget.layout());
    int row = 0, column = -1, rows = 0, columns = 0;
    grid->getItemPosition(grid->indexOf(captionOf(widget)), &row, &column, &rows, &columns);
    return column;
}

void tst_QKXSliderVertical::setValueAnnouncesOnce_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("kept");

    QTest::newRow("inside") << 50 << 50;
    QTest::newRow("above the upper limit") << 150 << 100;
    QTest::newRow("below the lower limit") << -5 << 0;
    QTest::newRow("where the handle stands") << 0 << 0;
}

void tst_QKXSliderVertical::setValueAnnouncesOnce()
{
    QFETCH(int, value);
    QFETCH(int, kept);

    QKXSliderVertical widget;
    QList<int> values;
    connect(&widget, &QKXSliderVertical::valueChanged, [&](int v) { values << v; });
    widget.setValue(value);
    QCOMPARE(widget.value(), kept);
    QCOMPARE(handleOf(widget)->value(), kept);
    QCOMPARE(values, QList<int>{kept});

    // A new limit moves the handle without a word.
    widget.setValue(10);
    values.clear();
    widget.setLowerLimit(20);
    QCOMPARE(widget.value(), 10);
    QCOMPARE(handleOf(widget)->value(), 20);
    QVERIFY(values.isEmpty());
}

void tst_QKXSliderVertical::captionSide()
{
    QKXSliderVertical widget;
    QCOMPARE(captionOf(widget)->text(), QStringLiteral("V Slider"));
    widget.setProperty("LabelText", QStringLiteral("Squelch"));   // reaches the turned caption too
    QCOMPARE(captionOf(widget)->text(), QStringLiteral("Squelch"));
    QCOMPARE(captionColumn(widget), 2);
    QCOMPARE(captionOf(widget)->angle(), 90);
    QCOMPARE(captionOf(widget)->alignment(), Qt::Alignment(Qt::AlignTop));
    QVERIFY(captionOf(widget)->sizeHint().height() > captionOf(widget)->sizeHint().width());

    widget.setLabelLeft(true);
    QVERIFY(widget.isLabelLeft());
    QCOMPARE(captionColumn(widget), 0);
    QCOMPARE(captionOf(widget)->angle(), -90);
    QCOMPARE(captionOf(widget)->alignment(), Qt::Alignment(Qt::AlignBottom));

    widget.setProperty("LabelLeftPosition", false);
    QCOMPARE(captionColumn(widget), 2);
    QCOMPARE(captionOf(widget)->angle(), 90);
    QCOMPARE(widget.layout()->count(), 2);
}

void tst_QKXSliderVertical::compactGradientSpelling()
{
    // Themes match the compact handle's gradient as it is written, capital Q and all.
    QKXSliderVertical widget;
    QVERIFY(widget.styleSheet().contains("background: Qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 "));
    widget.changeSize(QStringLiteral("Max"));
    QVERIFY(widget.styleSheet().contains("background: QLinearGradient(x1:0, y1:0, x2:0, y2:1, stop:0 "));
}

QTEST_MAIN(tst_QKXSliderVertical)
#include "tst_QKXSliderVertical.moc"
