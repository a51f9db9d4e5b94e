// SPDX-License-Identifier: BSD-3-Clause
// The meter bar's drawing: where the fill lies for a reading, which colour a bar state paints, that
// a reading repaints only what changed, and scale labels that fit their text.
#include <QtTest>

#include <QImage>
#include <QPaintEvent>

#include "MeterBar_Bar.h"
#include "MeterBar_Scale.h"

namespace {

// Remembers the rectangles it was asked to paint.
class WatchedBar : public MeterBar_Bar
{
public:
    QList<QRect> painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted << event->rect();
        MeterBar_Bar::paintEvent(event);
    }
};

// Which pixels along the middle of the bar carry the fill colour, as a run of '#' and '.' from the
// lower-limit end.
QString fillAlong(MeterBar_Bar &bar, int steps)
{
    const QImage image = bar.grab().toImage();
    const QColor fill = MeterBar_Bar::fillColor(bar.barState());
    QString run;
    for (int i = 0; i < steps; ++i) {
        const int along = (2 * i + 1) * (bar.isHorizontal() ? image.width() : image.height()) / (2 * steps);
        const QPoint at = bar.isHorizontal() ? QPoint(along, image.height() / 3)
                                             : QPoint(image.width() / 3, image.height() - 1 - along);
        const QColor seen = image.pixelColor(at);
        // The fill is lit across the bar; its hue is what tells it from the dark track.
        run += qAbs(seen.hsvHue() - fill.hsvHue()) < 20 && seen.saturation() > 120 ? QLatin1Char('#') : QLatin1Char('.');
    }
    return run;
}

} // namespace

class tst_MeterBar_Bar : public QObject
{
    Q_OBJECT

private slots:
    void fillForReading_data();
    void fillForReading();
    void repaintsOnlyWhatChanged();
    void scaleLabelFitsItsText();
};

void tst_MeterBar_Bar::fillForReading_data()
{
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("lower");
    QTest::addColumn<double>("upper");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("fill");

    for (bool horizontal : {false, true}) {
        const char *way = horizontal ? "horizontal " : "vertical ";
        QTest::addRow("%sfrom the lower limit", way) << horizontal << 30.0 << 0.0 << 100.0 << 0 << "###.......";
        QTest::addRow("%sfrom zero upwards", way) << horizontal << 25.0 << -50.0 << 50.0 << 2 << ".....##...";
        QTest::addRow("%sfrom zero downwards", way) << horizontal << -20.0 << -50.0 << 50.0 << 3 << "...##.....";
        QTest::addRow("%sinverted limits", way) << horizontal << 3.0 << 10.0 << 0.0 << 5 << "#######...";
        QTest::addRow("%sover range fills", way) << horizontal << 180.0 << 0.0 << 100.0 << 2 << "##########";
        QTest::addRow("%sunder range empty", way) << horizontal << -5.0 << 0.0 << 100.0 << 3 << "..........";
        QTest::addRow("%sno reading draws no fill", way) << horizontal << 80.0 << 0.0 << 100.0 << 4 << "..........";
        QTest::addRow("%sNaN draws no fill", way) << horizontal << qQNaN() << 0.0 << 100.0 << 0 << "..........";
    }
}

void tst_MeterBar_Bar::fillForReading()
{
    QFETCH(bool, horizontal);
    QFETCH(double, value);
    QFETCH(double, lower);
    QFETCH(double, upper);
    QFETCH(int, state);
    QFETCH(QString, fill);

    MeterBar_Bar bar;
    bar.setHorizontal(horizontal);
    bar.resize(horizontal ? QSize(200, 30) : QSize(30, 200));
    bar.updateReading(value, lower, upper, state, QStringLiteral("W"));
    QCOMPARE(fillAlong(bar, 10), fill);
}

void tst_MeterBar_Bar::repaintsOnlyWhatChanged()
{
    WatchedBar bar;
    bar.resize(30, 200);
    bar.updateReading(50.0, 0.0, 100.0, 0, QString());
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    QCoreApplication::processEvents();

    const auto paintedAfter = [&bar](double value, int state) {
        bar.painted.clear();
        bar.updateReading(value, 0.0, 100.0, state, QString());
        QCoreApplication::processEvents();
        return bar.painted;
    };
    // 50 to 60 of 200 pixels: the twenty rows between the two ends, at the top of the old fill.
    QCOMPARE(paintedAfter(60.0, 0), QList<QRect>{QRect(0, 80, 30, 20)});
    QCOMPARE(paintedAfter(60.1, 0), QList<QRect>());
    QCOMPARE(paintedAfter(60.1, 1), QList<QRect>());   // an unknown state looks like state 0
    QCOMPARE(paintedAfter(60.1, 2), QList<QRect>{bar.rect()});
    QCOMPARE(paintedAfter(120.0, 2), QList<QRect>{bar.rect()});   // the off-scale notch appears
}

void tst_MeterBar_Bar::scaleLabelFitsItsText()
{
    QWidget meter;
    MeterBar_Scale label(QStringLiteral("10 KHz"), &meter);
    QCOMPARE(label.objectName(), QStringLiteral("MetBar_Scale"));
    label.setText(QStringLiteral(" 1000.0 MHz"));
    QCOMPARE(label.size(), label.sizeHint());
    const QSize plain = label.size();
    // The meter's sheet arrives later and adds a border and padding.
    meter.setStyleSheet(QStringLiteral("QLabel#MetBar_Scale {  border: 4px solid #fff;  padding: 0px 0px 0px 10px;}"));
    meter.show();
    QVERIFY(QTest::qWaitForWindowExposed(&meter));
    QCOMPARE(label.size(), label.sizeHint());
    QVERIFY(label.width() > plain.width());
}

QTEST_MAIN(tst_MeterBar_Bar)
#include "tst_MeterBar_Bar.moc"
