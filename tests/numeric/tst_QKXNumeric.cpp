// SPDX-License-Identifier: BSD-3-Clause
#include <QtTest>

#include <QBuffer>
#include <QLineEdit>
#include <QUiLoader>

#include "CSS.h"
#include "QKXNumeric.h"
#include "QKXNumericEventFilter.h"
#include "QKXNumericValueObjEventFilter.h"

#include "../common/NumericTestSupport.h"


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
    void badInput_data();
    void badInput();
};

void tst_QKXNumeric::rendering_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<int>("precision");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("emitted");
    QTest::addColumn<QString>("debugLine");

    const QString kept = QStringLiteral("UserInterface - QKXNumeric \"span\" cannot show %1 in base %2 - display kept");

    QTest::newRow("dec rounds") << 10 << 1 << 1.26 << "1.3" << QStringList({"double 1.26", "int 1"}) << "";
    QTest::newRow("dec beyond int") << 10 << 0 << -3e9 << "-3000000000"
                                    << QStringList({"double -3000000000", "int -2147483648"}) << "";
    QTest::newRow("hex int min") << 16 << 0 << -2147483648.0 << "-80000000"
                                 << QStringList({"double -2147483648", "int -2147483648"}) << "";
    QTest::newRow("oct") << 8 << 0 << -9.99 << "-11" << QStringList({"double -9.99", "int -9"}) << "";
    QTest::newRow("hex beyond int") << 16 << 0 << 4294967296.0 << "7"
                                    << QStringList({"double 4294967296", "int 2147483647"}) << kept.arg("4.29497e+09", "16");
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
    w.setObjectName(QStringLiteral("span"));
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
                               << "UserInterface - QKXNumeric \"level\" precision 2000000000 out of range, showing 1074 decimals";
}

void tst_QKXNumeric::precision()
{
    QFETCH(bool, editing);
    QFETCH(int, precision);
    QFETCH(QStringList, log);
    QFETCH(QString, text);
    QFETCH(QString, debugLine);

    QKXNumeric w;
    w.setObjectName(QStringLiteral("level"));
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

void tst_QKXNumeric::badInput_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("form");    // the field's properties in the form
    QTest::addColumn<QString>("input");   // what comes after the engine's 255
    QTest::addColumn<QStringList>("lines");   // each after "UserInterface - <widget> \"field\" "
    QTest::addColumn<QString>("shown");   // before and after the input

    const QString hex = QStringLiteral("<property name=\"Base\"><enum>QKXNumeric::HEX</enum></property>");
    const QString inverted = QStringLiteral("<property name=\"LowerLimit\"><double>10</double></property>"
                                            "<property name=\"UpperLimit\"><double>-5</double></property>");
    for (const char *widget : {"QKXNumeric", "QKXNumericValueObj", "QKXListDoubleValueObj"}) {
        const auto row = [widget](const char *name) { return &(QTest::addRow("%s, %s", widget, name) << widget); };
        *row("nan") << hex << "nan" << QStringList{"got nan - display and value kept"} << "FF";
        *row("inf") << hex << "inf" << QStringList{"got inf - display and value kept"} << "FF";
        *row("-inf") << QString() << "-inf" << QStringList{"got -inf - display and value kept"} << "255";
        *row("Base 7") << hex << "Base 7" << QStringList{"has no number base 7 - base 16 kept"} << "FF";
        // The form builder hands an enumerator it does not know over as -1.
        *row("unknown Base name") << "<property name=\"Base\"><enum>QKXNumeric::HEXA</enum></property>" << ""
                                  << QStringList{"has no number base -1 - base 10 kept"} << "255";
        // The form's setters pass the pair on silently; the edit that starts with it reports it.
        *row("edit with inverted limits") << inverted << "edit"
                                          << QStringList{"edit starts with limits no value lies between: "
                                                         "LowerLimit 10 UpperLimit -5"} << "255";
    }
    // No level for 0 W: the field shows dBm, from the start value on.
    QTest::newRow("QKXNumericValueObj, 0 W in dBm")
        << "QKXNumericValueObj"
        << "<property name=\"Precision\"><number>1</number></property>"
           "<property name=\"BaseUnit\"><string>0,0,6:1;0:0;0:0;0:0;0:0</string></property>"
           "<property name=\"DefaultUnit\"><number>1</number></property>"
           "<property name=\"Units\"><string>0,0,6:1;0:0;0:0;0:0;0:0|0,0,14:1;0:0;0:0;0:0;0:0</string></property>"
        << "0" << QStringList{"has no number for 0 in \"dBm\" - display emptied",
                              "got 0 which shows as -inf - display and value kept"} << "54.1";
}

void tst_QKXNumeric::badInput()
{
    QFETCH(QString, widget);
    QFETCH(QString, form);
    QFETCH(QString, input);
    QFETCH(QStringList, lines);
    QFETCH(QString, shown);

    QByteArray ui = QStringLiteral("<ui version=\"4.0\"><class>Screen</class><widget class=\"QWidget\" name=\"Screen\">"
                                   "<widget class=\"%1\" name=\"field\">%2</widget></widget></ui>")
                        .arg(widget, form).toUtf8();
    QBuffer buffer(&ui);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(qEnvironmentVariable("KX_BUILD_LIB_DIR"));
    kxtest::DebugLines debug;
    QScopedPointer<QWidget> screen(loader.load(&buffer));
    QVERIFY2(screen, qPrintable(loader.errorString()));
    auto *field = screen->findChild<QKXNumeric *>(QStringLiteral("field"));
    QVERIFY(field);
    QLineEdit *display = field->findChild<QLineEdit *>();
    const QVariant base = field->property("Base");
    field->setValue(255.0);
    QCOMPARE(display->text(), shown);

    QSignalSpy changed(field, QOverload<double>::of(&QKXNumeric::valueChanged));
    if (input == QLatin1String("Base 7")) {
        field->setProperty("Base", 7);
    } else if (input == QLatin1String("edit")) {
        QKXEditStateFilter *filter = widget == QLatin1String("QKXNumeric")
            ? static_cast<QKXEditStateFilter *>(new QKXNumericEventFilter(field, QStringLiteral("Double"), nullptr))
            : new QKXNumericValueObjEventFilter(field, QStringLiteral("ValueDouble"), nullptr, nullptr);
        QSignalSpy idle(filter, &QKXEventFilterBase::attemptSetLock);
        field->installEventFilter(filter);
        QTRY_COMPARE(idle.count(), 1);   // the machine is running: its idle state let go of the lock
        filter->lockAcquired(field);
        QTRY_VERIFY(filter->isEditing());
    } else if (!input.isEmpty()) {
        field->setValue(input.toDouble());
    }
    for (QString &line : lines)
        line.prepend(QStringLiteral("UserInterface - %1 \"field\" ").arg(widget));
    // The form loader sets some properties twice, and each setting reports once.
    debug.lines().removeDuplicates();
    QCOMPARE(debug.lines(), lines);
    QCOMPARE(display->text(), shown);
    QCOMPARE(field->value(), 255.0);
    QCOMPARE(field->property("Base"), base);
    QCOMPARE(changed.count(), 0);
}

QTEST_MAIN(tst_QKXNumeric)
#include "tst_QKXNumeric.moc"
