// SPDX-License-Identifier: BSD-3-Clause
#define QTEST_QPA_MOUSE_HANDLING

#include "ButtonTestSupport.h"
#include "QKXBrowseButton.h"
#include "QKXBrowseButtonEventFilter.h"

using namespace kxtest;

namespace {

// The host's file browser, as far as the filter knows it: two signals.
class Browser : public QWidget
{
    Q_OBJECT
public:
    using QWidget::QWidget;
Q_SIGNALS:
    void fileSelected(const QString &path);
    void cancelled();
};

SystemModule *screens() { return GlobalImpl::getInstance()->systemModule(); }

// Two browse buttons on a screen, each with the host's filter and a host that grants every request;
// what the filters submit lands in one log.
struct Stage
{
    Stage()
    {
        screen.resize(300, 200);
        screens()->registerSystemScreen(QStringLiteral("SimpleFileBrowser"), &browser);
        for (int i = 0; i < 2; ++i) {
            buttons[i] = new QKXBrowseButton(&screen);
            buttons[i]->setGeometry(10, 10 + 70 * i, 200, 60);
            filters[i] = new QKXBrowseButtonEventFilter(buttons[i]);
            buttons[i]->installEventFilter(filters[i]);
            const QString name = QStringLiteral("button %1").arg(i + 1);
            QObject::connect(filters[i], &QKXBrowseButtonEventFilter::submit,
                             [this, name](const QString &file) { log << name + QStringLiteral(" submits ") + file; });
            QObject::connect(filters[i], &QKXEventFilterBase::attemptSetLock, [this, i, name](QWidget *w, bool locked) {
                log << name + (locked ? QStringLiteral(" request") : QStringLiteral(" release"));
                if (locked)
                    filters[i]->lockAcquired(w);
            });
        }
    }
    ~Stage() { screens()->unregisterSystemScreen(QStringLiteral("SimpleFileBrowser")); }

    void tap(int i) { QTest::mouseClick(buttons[i]->findChild<QPushButton *>(), Qt::LeftButton); }

    QWidget screen;
    Browser browser;
    QKXBrowseButton *buttons[2];
    QKXBrowseButtonEventFilter *filters[2];
    QStringList log;
};

const QStringList Granted{"button 1 request", "button 1 release"};   // handed back at once: the browser is the host's

} // namespace

class tst_QKXBrowseButton : public QObject
{
    Q_OBJECT

private slots:
    void filenameAnnounced();
    void browserRoads_data();
    void browserRoads();
    void latestListenerOnly();
    void withoutBrowser_data();
    void withoutBrowser();
};

void tst_QKXBrowseButton::filenameAnnounced()
{
    // Announced again even without a change.
    QKXBrowseButton b;
    QSignalSpy changed(&b, &QKXBrowseButton::filenameChanged);
    b.setFilename(QStringLiteral("/data/setup.cfg"));
    b.setFilename(QStringLiteral("/data/setup.cfg"));
    QCOMPARE(QList<QVariantList>(changed), (QList<QVariantList>{{"/data/setup.cfg"}, {"/data/setup.cfg"}}));
}

void tst_QKXBrowseButton::browserRoads_data()
{
    QTest::addColumn<QStringList>("browserSays");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("file chosen") << QStringList{"/data/setup.cfg", "/data/other.cfg"}
                                 << QStringList{"button 1 submits /data/setup.cfg"};
    QTest::newRow("empty name") << QStringList{"", "/data/setup.cfg"} << QStringList();
    QTest::newRow("cancelled") << QStringList{"<cancel>", "/data/setup.cfg"} << QStringList();
}

void tst_QKXBrowseButton::browserRoads()
{
    QFETCH(QStringList, browserSays);
    QFETCH(QStringList, expected);
    Stage s;
    QVERIFY(exposed(s.screen));
    s.tap(0);
    QCOMPARE(s.log, Granted);

    // Only the first answer after a granted tap counts.
    s.log.clear();
    for (const QString &said : browserSays)
        said == QLatin1String("<cancel>") ? emit s.browser.cancelled() : emit s.browser.fileSelected(said);
    QCOMPARE(s.log, expected);

    // The next granted tap listens again.
    s.log.clear();
    s.tap(0);
    emit s.browser.fileSelected(QStringLiteral("/data/again.cfg"));
    QCOMPARE(s.log, Granted + QStringList{"button 1 submits /data/again.cfg"});
}

void tst_QKXBrowseButton::latestListenerOnly()
{
    Stage s;
    QVERIFY(exposed(s.screen));
    // Whoever listened to the browser before a granted tap stops listening, whoever it was.
    QStringList earlier;
    QObject::connect(&s.browser, &Browser::fileSelected, [&earlier](const QString &f) { earlier << f; });
    s.tap(0);
    s.tap(1);
    // A grant that is not for the filter's own button changes nothing.
    s.filters[0]->lockAcquired(s.buttons[1]);
    s.log.clear();
    emit s.browser.fileSelected(QStringLiteral("/data/b.cfg"));
    QCOMPARE(s.log, QStringList{"button 2 submits /data/b.cfg"});
    QCOMPARE(earlier, QStringList());

    // A browser deleted while listened to leaves nothing dangling; its successor works with the next tap.
    auto *replaced = new Browser;
    screens()->registerSystemScreen(QStringLiteral("SimpleFileBrowser"), replaced);
    s.tap(0);
    delete replaced;
    screens()->registerSystemScreen(QStringLiteral("SimpleFileBrowser"), &s.browser);
    s.log.clear();
    s.tap(0);
    emit s.browser.fileSelected(QStringLiteral("/data/new.cfg"));
    QCOMPARE(s.log, Granted + QStringList{"button 1 submits /data/new.cfg"});
}

void tst_QKXBrowseButton::withoutBrowser_data()
{
    QTest::addColumn<bool>("plainScreen");
    QTest::addColumn<QString>("line");
    const QString line = QStringLiteral("UserInterface - QKXBrowseButtonEventFilter::lockAcquired : ");
    QTest::newRow("none registered") << false << line + "no SimpleFileBrowser screen; no file can be chosen.";
    QTest::newRow("screen without signals")
        << true << line + "the SimpleFileBrowser screen has no fileSelected(QString) or cancelled() signal; no file can be chosen.";
}

void tst_QKXBrowseButton::withoutBrowser()
{
    QFETCH(bool, plainScreen);
    QFETCH(QString, line);
    DebugLines debug;
    Stage s;
    QWidget plain;
    if (plainScreen)
        screens()->registerSystemScreen(QStringLiteral("SimpleFileBrowser"), &plain);
    else
        screens()->unregisterSystemScreen(QStringLiteral("SimpleFileBrowser"));
    QVERIFY(exposed(s.screen));
    s.tap(0);
    QCOMPARE(s.log, Granted);   // the lock still goes back
    QCOMPARE(DebugLines::lines(), QStringList{line});
}

QTEST_MAIN(tst_QKXBrowseButton)
#include "tst_QKXBrowseButton.moc"
