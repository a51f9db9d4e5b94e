#include <QtTest>

#include <QLineEdit>

#include "CSS.h"
#include "QKXNumeric.h"

#include "../common/NumericTestSupport.h"

#include <limits>

// Both valueChanged forms, in emission order.
static void logValues(QKXNumeric &w, QStringList &log)
{
    QObject::connect(&w, QOverload<double>::of(&QKXNumeric::valueChanged), [&log](double v) { log << "double " + QString::number(v, 'g', 12); });
    QObject::connect(&w, QOverload<int>::of(&QKXNumeric::valueChanged), [&log](int v) { log << "int " + QString::number(v); });
}

// The compact and large sheets as themes match them, written out independently of the library.
static QString sheet(const char *font, const char *height, const char *labelFont)
{
    return QStringLiteral("QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #fff;    "
                          "border-radius: 10px;    /* font-family: Mono; */    font-size: %1;    color: #000;    "
                          "min-height: %2;    max-height: %2;    background-color: #fff;    selection-color: #000;    "
                          "selection-background-color:%3;}QLineEdit:disabled {    background: transparent;    "
                          "border: 2px solid #fff;    color: #fff;}QLabel#Label {    font-size: %4;    "
                          "padding: 4px 5px 0px 8px;    margin: 0px 0px 0px 0px;    border: none;    color: #fff;    "
                          "min-height: 12px;}")
        .arg(QLatin1String(font), QLatin1String(height), CSS::highlight(), QLatin1String(labelFont));
}

class tst_QKXNumeric : public QObject
{
    Q_OBJECT

private slots:
    void rendering_data();
    void rendering();
    void precision_data();
    void precision();
    void styles_data();
    void styles();
};

void tst_QKXNumeric::rendering_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QString>("debugLine");

    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const QString kept = QStringLiteral("UserInterface - QKXNumeric \"Span\" cannot show %1 in base %2 - display kept");

    QTest::newRow("dec rounds") << 10 << 1 << 1.26 << "1.3" << QStringList({"double 1.26", "int 1"}) << "";
    QTest::newRow("dec beyond int") << 10 << 0 << -3e9 << "-3000000000"
                                    << QStringList({"double -3000000000", "int -2147483648"}) << "";
    QTest::newRow("dec inf") << 10 << 0 << inf << "inf" << QStringList({"double inf", "int 2147483647"}) << "";
    QTest::newRow("hex int min") << 16 << 0 << -2147483648.0 << "-80000000"
                                 << QStringList({"double -2147483648", "int -2147483648"}) << "";
    QTest::newRow("oct") << 8 << 0 << -9.99 << "-11" << QStringList({"double -9.99", "int -9"}) << "";
    QTest::newRow("hex beyond int") << 16 << 0 << 4294967296.0 << "7"
                                    << QStringList({"double 4294967296", "int 2147483647"}) << kept.arg("4.29497e+09", "16");
    QTest::newRow("hex nan") << 16 << 0 << nan << "7" << QStringList({"double nan", "int 0"}) << kept.arg("nan", "16");
}

void tst_QKXNumeric::rendering()
{
    QFETCH(int, base);
    QFETCH(int, precision);
    QFETCH(double, value);
    QFETCH(QString, text);
    QFETCH(QStringList, emitted);
    QFETCH(QString, debugLine);

    QKXNumeric w;
    w.setAttributeName(QStringLiteral("Span"));
    QVERIFY(w.setProperty("Base", base));
    w.setValue(7);
    w.setPrecision(precision);

    QStringList log;
    logValues(w, log);
    kxtest::DebugLines debug;
    w.setValue(value);

    QCOMPARE(w.findChild<QLineEdit *>()->text(), text);
    QCOMPARE(log, emitted);
    QCOMPARE(debug.lines(), debugLine.isEmpty() ? QStringList() : QStringList(debugLine));

    // A new base shows from the next value on.
    w.setBaseType(base == 10 ? QKXNumeric::HEX : QKXNumeric::DEC);
    QCOMPARE(w.findChild<QLineEdit *>()->text(), text);
}

void tst_QKXNumeric::precision_data()
{
    QTest::addColumn<bool>("editing");
    QTest::addColumn<int>("precision");
    QTest::addColumn<QStringList>("log");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("debugLine");

    QTest::newRow("idle re-renders") << false << 3 << QStringList({"double 2.5", "int 2", "precision 3"}) << "2.500" << "";
    QTest::newRow("editing keeps the text") << true << 3 << QStringList({"precision 3"}) << "2.5" << "";
    // The text is what QString::number() gives for any precision, up to a double's last decimal.
    QTest::newRow("negative") << false << -2 << QStringList({"double 2.5", "int 2", "precision -2"})
                              << QString::number(2.5, 'f', -2) << "";
    QTest::newRow("beyond 64") << false << 70 << QStringList({"double 2.5", "int 2", "precision 70"})
                               << "2.5" + QString(69, QLatin1Char('0')) << "";
    QTest::newRow("beyond a double's decimals") << false << 2000000000
                               << QStringList({"double 2.5", "int 2", "precision 2000000000"})
                               << "2.5" + QString(1073, QLatin1Char('0'))
                               << "UserInterface - QKXNumeric \"Level\" precision 2000000000 out of range, showing 1074 decimals";
}

void tst_QKXNumeric::precision()
{
    QFETCH(bool, editing);
    QFETCH(int, precision);
    QFETCH(QStringList, log);
    QFETCH(QString, text);
    QFETCH(QString, debugLine);

    QKXNumeric w;
    w.setAttributeName(QStringLiteral("Level"));
    w.setPrecision(1);
    w.setValue(2.5);
    w.setProperty("Editing", editing);

    QStringList seen;
    logValues(w, seen);
    connect(&w, &QKXNumeric::precisionChanged, [&seen](int p) { seen << "precision " + QString::number(p); });
    kxtest::DebugLines debug;

    QVERIFY(w.setProperty("Precision", precision));
    QCOMPARE(seen, log);
    QCOMPARE(w.findChild<QLineEdit *>()->text(), text);
    QCOMPARE(debug.lines(), debugLine.isEmpty() ? QStringList() : QStringList(debugLine));
}

void tst_QKXNumeric::styles_data()
{
    QTest::addColumn<bool>("locked");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("expected");

    const QString small = sheet("14px", "25px", "12px");
    const QString large = sheet("20px", "32px", "16px");
    const QString lock = QStringLiteral("QLineEdit:disabled {    background-image: url(:/images/lock_generic.png);    "
                                        "background-position: top right;    background-repeat: no-repeat;}");
    const QString readOnly = QStringLiteral("QLineEdit:disabled {    border-color: ") + CSS::border() + QStringLiteral(";}");
    QTest::newRow("min") << false << false << "Min" << small;
    QTest::newRow("min locked") << true << false << "Min" << small + lock;
    QTest::newRow("max locked and read-only") << true << true << "Max" << large + lock + readOnly;
}

void tst_QKXNumeric::styles()
{
    QFETCH(bool, locked);
    QFETCH(bool, readOnly);
    QFETCH(QString, size);
    QFETCH(QString, expected);

    QKXNumeric w;
    w.changeSize(size);
    // Read-only first: the overlays keep their order whatever order the flags come in.
    w.setReadOnly(readOnly);
    w.setLocked(locked);
    QCOMPARE(w.styleSheet(), expected);
}

QTEST_MAIN(tst_QKXNumeric)
#include "tst_QKXNumeric.moc"
