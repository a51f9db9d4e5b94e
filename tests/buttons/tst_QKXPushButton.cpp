// Mouse events travel through the window system, as a finger on the panel does.
#define QTEST_QPA_MOUSE_HANDLING
#include <QtTest>

#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTranslator>

#include "CSS.h"
#include "QKXPushButton.h"
#include "QKXPushButtonEventFilter.h"
#include "QKXRichTextPushButton.h"
#include "QKXUtil.h"

namespace {

class WordTranslator : public QTranslator
{
public:
    WordTranslator(const char *from, const char *to) : from(from), to(QString::fromUtf8(to)) {}
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(sourceText, from) == 0 ? to : QString();
    }

private:
    const char *from;
    QString to;
};

struct Rule
{
    QString selector;
    QStringList properties;
    QStringList values;   // white space collapsed
};

// Splits a style sheet into its rules, keeping the order of rules and of declarations.
QVector<Rule> parseSheet(const QString &sheet)
{
    QVector<Rule> rules;
    QRegularExpressionMatchIterator it = QRegularExpression(QStringLiteral("([^{}]+)\\{([^{}]*)\\}")).globalMatch(sheet);
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        Rule rule;
        rule.selector = m.captured(1).simplified();
        const QStringList declarations = m.captured(2).split(QLatin1Char(';'));
        for (const QString &declaration : declarations) {
            if (declaration.trimmed().isEmpty())
                continue;
            const int colon = declaration.indexOf(QLatin1Char(':'));
            rule.properties << declaration.left(colon).trimmed();
            rule.values << declaration.mid(colon + 1).simplified();
        }
        rules << rule;
    }
    return rules;
}

// A button on a screen, with the host's filter installed as the host does it.
struct Stage
{
    Stage()
    {
        screen.resize(300, 120);
        button = new QKXPushButton(&screen);
        button->setGeometry(20, 20, 200, 60);
        filter = new QKXPushButtonEventFilter(button);
        button->installEventFilter(filter);
        inner = button->findChild<QPushButton *>(QStringLiteral("PushButton"));
        screen.show();
    }

    // Everything the button and its filter announce, in one ordered log.
    void record(QStringList &log)
    {
        QObject::connect(button, &QKXPushButton::clicked, [&log] { log << QStringLiteral("clicked"); });
        QObject::connect(button, &QKXPushButton::buttonPressed,
                         [&log](const QString &name) { log << QString(QStringLiteral("buttonPressed ") + name); });
        QObject::connect(filter, &QKXPushButtonEventFilter::submit, [&log] { log << QStringLiteral("submit"); });
        QObject::connect(filter, &QKXEventFilterBase::attemptSetLock, [&log, this](QWidget *w, bool locked) {
            log << (w != button ? QStringLiteral("foreign lock") : locked ? QStringLiteral("request")
                                                                          : QStringLiteral("release"));
        });
        QObject::connect(filter, &QKXEventFilterBase::editStart, [&log] { log << QStringLiteral("editStart"); });
    }

    QWidget screen;
    QKXPushButton *button;
    QKXPushButtonEventFilter *filter;
    QPushButton *inner;
};

} // namespace

class tst_QKXPushButton : public QObject
{
    Q_OBJECT

private slots:
    void construction();
    void labelTextIsButtonText();
    void lockLabel();
    void clicks_data();
    void clicks();
    void styleSheet();
    void tapEndToEnd_data();
    void tapEndToEnd();
    void dragAsksNothing();
    void filterIgnoresForeignGrant();
    void richTextButton();
};

void tst_QKXPushButton::construction()
{
    QKXPushButton b;
    QCOMPARE(b.minimumSize(), QSize(100, 60));
    QCOMPARE(b.sizeHint(), QSize(100, 60));
    QCOMPARE(b.sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(b.sizePolicy().verticalPolicy(), QSizePolicy::Maximum);

    auto *inner = b.findChild<QPushButton *>(QStringLiteral("PushButton"));
    QVERIFY(inner);
    QCOMPARE(inner->parentWidget(), &b);
    QCOMPARE(inner->focusPolicy(), Qt::NoFocus);
    auto *lock = inner->findChild<QLabel *>();
    QVERIFY(lock);
    QCOMPARE(lock->alignment(), Qt::Alignment(0x86));
    QCOMPARE(lock->text(), QString());
    QCOMPARE(lock->objectName(), QString());
    QCOMPARE(b.property("AttributeName").toString(), QStringLiteral("AttributeName"));
}

void tst_QKXPushButton::labelTextIsButtonText()
{
    QKXPushButton b;
    auto *inner = b.findChild<QPushButton *>(QStringLiteral("PushButton"));
    WordTranslator german("Preset", "Voreinstellung");
    qApp->installTranslator(&german);
    QVERIFY(b.setProperty("LabelText", QStringLiteral("Preset")));
    qApp->removeTranslator(&german);

    QCOMPARE(inner->text(), QStringLiteral("Voreinstellung"));
    QCOMPARE(b.property("LabelText").toString(), QStringLiteral("Preset"));
    QString text;
    QVERIFY(QMetaObject::invokeMethod(&b, "buttonText", Q_RETURN_ARG(QString, text)));
    QCOMPARE(text, QStringLiteral("Preset"));

    QVERIFY(QMetaObject::invokeMethod(&b, "setButtonText", Q_ARG(QString, QStringLiteral("RF On"))));
    QCOMPARE(inner->text(), QStringLiteral("RF On"));
    QCOMPARE(b.property("LabelText").toString(), QStringLiteral("RF On"));
}

void tst_QKXPushButton::lockLabel()
{
    QKXPushButton b;
    auto *lock = b.findChild<QPushButton *>(QStringLiteral("PushButton"))->findChild<QLabel *>();
    const QString sheet = b.styleSheet();

    QVERIFY(b.setProperty("Locked", true));
    QVERIFY(b.isLocked());
    QCOMPARE(lock->text(), QStringLiteral("Locked  "));
    QCOMPARE(lock->objectName(), QStringLiteral("Locked"));
    QCOMPARE(b.styleSheet(), sheet);

    QVERIFY(QMetaObject::invokeMethod(&b, "setLocked", Q_ARG(bool, false)));
    QVERIFY(!b.property("Locked").toBool());
    QCOMPARE(lock->text(), QString());
    QCOMPARE(lock->objectName(), QString());
    QCOMPARE(b.styleSheet(), sheet);
}

void tst_QKXPushButton::clicks_data()
{
    QTest::addColumn<QList<bool>>("lockSteps");
    QTest::addColumn<QString>("renameVia");
    QTest::addColumn<QStringList>("expected");

    const QStringList defaultClick{"clicked", "buttonPressed PushButton"};
    QTest::newRow("default name") << QList<bool>() << "" << defaultClick;
    QTest::newRow("renamed by slot") << QList<bool>() << "slot" << QStringList{"clicked", "buttonPressed RFOnButton"};
    QTest::newRow("renamed by method") << QList<bool>() << "method" << QStringList{"clicked", "buttonPressed RFOnButton"};
    QTest::newRow("locked") << QList<bool>{true} << "" << QStringList();
    QTest::newRow("locked, renamed") << QList<bool>{true} << "slot" << QStringList();
    QTest::newRow("locked then unlocked") << QList<bool>{true, false} << "" << defaultClick;
}

void tst_QKXPushButton::clicks()
{
    QFETCH(QList<bool>, lockSteps);
    QFETCH(QString, renameVia);
    QFETCH(QStringList, expected);

    QStringList log;
    Stage s;
    QVERIFY(s.inner);
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    if (renameVia == QLatin1String("slot"))
        QVERIFY(QMetaObject::invokeMethod(s.button, "setButtonName", Q_ARG(QString, QStringLiteral("RFOnButton"))));
    else if (renameVia == QLatin1String("method"))
        s.button->setButtonObjectName(QStringLiteral("RFOnButton"));
    if (!renameVia.isEmpty())
        QCOMPARE(s.inner->objectName(), QStringLiteral("RFOnButton"));
    for (bool locked : lockSteps)
        s.button->setLocked(locked);

    QObject::connect(s.button, &QKXPushButton::clicked, [&log] { log << QStringLiteral("clicked"); });
    QObject::connect(s.button, &QKXPushButton::buttonPressed,
                     [&log](const QString &name) { log << QString(QStringLiteral("buttonPressed ") + name); });
    QTest::mouseClick(s.inner, Qt::LeftButton);
    QCOMPARE(log, expected);
}

void tst_QKXPushButton::styleSheet()
{
    QKXPushButton b;
    const QString sheet = b.styleSheet();

    // The fragments the host's palette splices in, exactly.
    const QString gradient = QStringLiteral("qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 %1, stop:0.8 %2, stop:1 %3)")
                                 .arg(CSS::gradientDark(), CSS::gradientMiddle(), CSS::gradientLight());
    const QString lockedBorder = QStringLiteral("1px solid ") + CSS::border();
    QVERIFY2(sheet.contains(gradient), qPrintable(sheet));
    QVERIFY2(sheet.contains(lockedBorder), qPrintable(sheet));
    QVERIFY2(sheet.contains(QStringLiteral("bold 16 px")), qPrintable(sheet));

    const QVector<Rule> rules = parseSheet(sheet);
    QStringList selectors;
    for (const Rule &r : rules)
        selectors << r.selector;
    QCOMPARE(selectors, QStringList({"QPushButton", "QPushButton:pressed", "QLabel", "QLabel#Locked"}));

    QCOMPARE(rules[0].properties, QStringList({"background-color", "color", "border-style", "border-width",
                                               "border-color", "border-radius", "padding", "margin",
                                               "min-height", "max-height", "text-align", "font-size"}));
    QCOMPARE(rules[0].values, QStringList({gradient, "white", "solid", "2px", CSS::border().simplified(), "15px",
                                           "3px 0px 0px 8px", "0px", "40px", "40px", "top left", "18px"}));
    QCOMPARE(rules[1].properties, QStringList({"color", "background-color"}));
    QCOMPARE(rules[1].values, QStringList({"white", CSS::gradientDark().simplified()}));
    QCOMPARE(rules[2].properties, QStringList({"color", "background-color", "border-radius", "padding",
                                               "min-height", "max-height", "margin", "font"}));
    QCOMPARE(rules[2].values, QStringList({"white", CSS::highlight().simplified(), "7px", "0px", "14px", "14px",
                                           "17px 0px 0px 0px", "bold 16 px"}));
    QCOMPARE(rules[3].properties, QStringList({"border", "background-color"}));
    QCOMPARE(rules[3].values, QStringList({lockedBorder.simplified(), "#666666"}));

    // One sheet for both sizes, with no locked or read-only overlay.
    b.changeSize(QStringLiteral("Max"));
    QCOMPARE(b.currentSize(), QStringLiteral("Max"));
    QCOMPARE(b.styleSheet(), sheet);
    b.setReadOnly(true);
    b.setLocked(true);
    QCOMPARE(b.styleSheet(), sheet);
    b.changeSize(QStringLiteral("Min"));
    QCOMPARE(b.currentSize(), QStringLiteral("Min"));
    QCOMPARE(b.styleSheet(), sheet);
}

void tst_QKXPushButton::tapEndToEnd_data()
{
    QTest::addColumn<bool>("locked");
    QTest::newRow("unlocked") << false;
    QTest::newRow("locked") << true;   // the filter still asks; only the widget's own signals stay quiet
}

void tst_QKXPushButton::tapEndToEnd()
{
    QFETCH(bool, locked);

    QStringList log;
    Stage s;
    QVERIFY(s.inner);
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    s.button->setLocked(locked);
    s.record(log);

    QTest::mouseClick(s.inner, Qt::LeftButton);
    // The filter sees the release before the button turns it into a click; only the widget's own
    // pair has a fixed order.
    QCOMPARE(log.count(QStringLiteral("request")), 1);
    log.removeAll(QStringLiteral("request"));
    QCOMPARE(log, locked ? QStringList() : QStringList({"clicked", "buttonPressed PushButton"}));

    log.clear();
    QVERIFY(QMetaObject::invokeMethod(s.filter, "lockAcquired", Q_ARG(QWidget *, s.button)));
    QCOMPARE(log, QStringList({"submit", "release"}));
}

void tst_QKXPushButton::dragAsksNothing()
{
    QStringList log;
    Stage s;
    QVERIFY(s.inner);
    QVERIFY(QTest::qWaitForWindowExposed(&s.screen));
    s.record(log);

    const QPoint start(20, s.inner->height() / 2);
    QTest::mousePress(s.inner, Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(s.inner, start + QPoint(31, 0));
    QTest::mouseRelease(s.inner, Qt::LeftButton, Qt::NoModifier, start + QPoint(31, 0));
    QCOMPARE(log.count(QStringLiteral("request")), 0);
    QVERIFY(!log.contains(QStringLiteral("submit")));
}

void tst_QKXPushButton::filterIgnoresForeignGrant()
{
    QStringList log;
    Stage s;
    s.record(log);
    QWidget other;

    s.filter->lockAcquired(&other);
    QCOMPARE(log, QStringList());

    QVERIFY(QMetaObject::invokeMethod(s.filter, "submitWidgetVoid"));
    QCOMPARE(log, QStringList({"submit"}));
}

void tst_QKXPushButton::richTextButton()
{
    const QString raw = QStringLiteral("  Power\\ndBm^2 ");
    QString shown = raw;
    QKXUtil::processString(shown);
    QVERIFY(shown != raw);

    QWidget screen;
    screen.resize(200, 100);
    auto *b = new QKXRichTextPushButton(raw, &screen);
    b->setGeometry(10, 10, 120, 60);
    QLabel *label = b->label();
    QVERIFY(label);
    QCOMPARE(b->text(), raw);
    QCOMPARE(label->text(), shown);
    QCOMPARE(static_cast<QAbstractButton *>(b)->text(), QString());
    QCOMPARE(label->textFormat(), Qt::RichText);
    QCOMPARE(b->focusPolicy(), Qt::NoFocus);

    const QString unit = QStringLiteral("m/s^2");
    QString unitShown = unit;
    QKXUtil::processString(unitShown);
    b->setText(unit);
    QCOMPARE(b->text(), unit);
    QCOMPARE(label->text(), unitShown);

    // The label lets presses through to the button and looks disabled while it is held.
    screen.show();
    QVERIFY(QTest::qWaitForWindowExposed(&screen));
    QSignalSpy clicked(b, &QAbstractButton::clicked);
    QTest::mousePress(b, Qt::LeftButton);
    QVERIFY(b->isDown());
    QVERIFY(!label->isEnabled());
    QTest::mouseRelease(b, Qt::LeftButton);
    QVERIFY(label->isEnabled());
    QCOMPARE(clicked.count(), 1);
}

QTEST_MAIN(tst_QKXPushButton)
#include "tst_QKXPushButton.moc"
