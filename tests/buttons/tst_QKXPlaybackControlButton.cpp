// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include <QHBoxLayout>

#include "ButtonTestSupport.h"
#include "CSS.h"
#include "QKXPlaybackControlButton.h"
#include "QKXPushButtonEventFilter.h"

using namespace kxtest;

namespace {

// The symbol overlays, exactly as hosts' sheets and logs know them.
const QString PlayOverlay = QStringLiteral("    QPushButton {        image: url(:/images/SymbolTriangleRight.svg);     }");
const QString StopOverlay = QStringLiteral("    QPushButton {        image: url(:/images/SymbolWhiteSquare.svg);     }");
// Spelt as hosts' log filters know it.
const QString UnknownLine = QStringLiteral("Userinterface - KXPlaybackControlButtonPrivate::updateStyle : Unknown button style.");

QImage face(QKXPlaybackControlButton *button) { return button->findChild<QPushButton *>()->grab().toImage(); }

} // namespace

class tst_QKXPlaybackControlButton : public QObject
{
    Q_OBJECT

private slots:
    void buttonType_data();
    void buttonType();
    void symbolsArePainted();
    void sheetAndClicksIgnoreTheLock();
};

void tst_QKXPlaybackControlButton::buttonType_data()
{
    QTest::addColumn<QVariant>("write");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("look");   // "" (no symbol), "play", "stop", or "none" (no sheet at all)
    QTest::addColumn<QStringList>("lines");

    QTest::newRow("play by int") << QVariant(1) << true << 1 << "play" << QStringList();
    QTest::newRow("play by name") << QVariant(QStringLiteral("play")) << true << 1 << "play" << QStringList();
    QTest::newRow("none by name") << QVariant(QStringLiteral("none")) << true << 0 << "" << QStringList();
    // A number outside the enumeration is kept, and the key loses its whole look with the line hosts
    // filter on; names outside the enumeration never reach the button.
    QTest::newRow("3") << QVariant(3) << true << 3 << "none" << QStringList{UnknownLine};
    QTest::newRow("-1") << QVariant(-1) << true << -1 << "none" << QStringList{UnknownLine};
    QTest::newRow("unknown name") << QVariant(QStringLiteral("pause")) << false << 2 << "stop" << QStringList();
}

void tst_QKXPlaybackControlButton::buttonType()
{
    QFETCH(QVariant, write);
    QFETCH(bool, accepted);
    QFETCH(int, type);
    QFETCH(QString, look);
    QFETCH(QStringList, lines);
    DebugLines debug;
    const QString base = QKXPlaybackControlButton().styleSheet();
    const QString sheet = look == QLatin1String("none") ? QString()
        : base + (look == QLatin1String("play") ? PlayOverlay : look == QLatin1String("stop") ? StopOverlay : QString());
    QKXPlaybackControlButton b;
    b.setButtonType(QKXPlaybackControlButton::stop);
    QCOMPARE(b.setProperty("ButtonType", write), accepted);
    QCOMPARE(int(b.buttonType()), type);
    // The overlay follows the base sheet byte for byte, in both sizes.
    QCOMPARE(b.styleSheet(), sheet);
    b.changeSize(QStringLiteral("Max"));
    QCOMPARE(b.styleSheet(), sheet);
    QCOMPARE(DebugLines::lines(), lines);
    // A known type brings the look back.
    b.setButtonType(QKXPlaybackControlButton::play);
    QCOMPARE(b.styleSheet(), base + PlayOverlay);
}

void tst_QKXPlaybackControlButton::symbolsArePainted()
{
    // A form sets the type before its screen is shown; the symbol must still be drawn.
    QWidget screen;
    screen.resize(200, 80);
    auto *row = new QHBoxLayout(&screen);
    QList<QKXPlaybackControlButton *> b;   // none, play, stop
    for (int i = 0; i < 3; ++i)
        row->addWidget((b << new QKXPlaybackControlButton(&screen)).last());
    b[1]->setButtonType(QKXPlaybackControlButton::play);
    b[2]->setProperty("ButtonType", QStringLiteral("stop"));
    row->addStretch(1);
    QVERIFY(exposed(screen));

    // The key's own hints are its 40 x 40 face; laid out, it shows the 2-pixel border around it too.
    QCOMPARE(b[0]->minimumSize(), QSize(40, 40));
    QCOMPARE(b[0]->minimumSizeHint(), QSize(40, 40));
    const QImage plain = face(b[0]), triangle = face(b[1]), square = face(b[2]);
    QCOMPARE(plain.size(), QSize(44, 44));
    QVERIFY(square != triangle);
    const QPoint centre(22, 22);
    QCOMPARE(triangle.pixelColor(centre), QColor(Qt::white));
    QCOMPARE(square.pixelColor(centre), QColor(Qt::white));
    QVERIFY(plain.pixelColor(centre) != QColor(Qt::white));
    // The symbols are the library's own; the save-trace picture is the application's to ship.
    QVERIFY(QFile::exists(QStringLiteral(":/images/SymbolTriangleRight.svg")));
    QVERIFY(QFile::exists(QStringLiteral(":/images/SymbolWhiteSquare.svg")));
    QVERIFY(!QFile::exists(QStringLiteral(":/images/svg/saveTrace.svg")));
}

void tst_QKXPlaybackControlButton::sheetAndClicksIgnoreTheLock()
{
    QWidget screen;
    screen.resize(200, 60);
    auto *b = new QKXPlaybackControlButton(&screen);
    b->move(10, 10);
    auto *filter = new QKXPushButtonEventFilter(b);
    b->installEventFilter(filter);
    QVERIFY(exposed(screen));

    QStringList log;
    watchClicks(b, log);
    watchLock(filter, b, log, Refuse);
    const QString sheet = b->styleSheet();
    const QString gradient = QStringLiteral("qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.8 %2, stop:1 %3)")
                                 .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight()).simplified();
    QCOMPARE(describeSheet(sheet),
             (QStringList{"QPushButton { background-color: " + gradient + "; color: white; border-style: solid; "
                              "border-width: 2px; border-color: " + CSS::border().simplified() + "; border-radius: 15px; "
                              "margin: 0px; min-height: 40px; max-height: 40px; min-width: 40px; max-width: 40px }",
                          "QPushButton:pressed { color: white; background-color: " + CSS::gradientDark().simplified() + " }"}));
    b->setLocked(true);
    QCOMPARE(b->styleSheet(), sheet);   // no locked look
    QTest::mouseClick(b->findChild<QPushButton *>(), Qt::LeftButton);
    QCOMPARE(log, (QStringList{"request", "clicked", "buttonPressed PushButton"}));
}

QTEST_MAIN(tst_QKXPlaybackControlButton)
#include "tst_QKXPlaybackControlButton.moc"
