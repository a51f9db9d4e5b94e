// SPDX-License-Identifier: BSD-3-Clause
// Form authors start from the front panel's screen template. Every widget of the plug-in collection
// is placed on it the way a form author does, given its values the way the host does, and the
// rendered screen is read back: every text must stand out from what it is drawn on.
#include <QtTest>

#include <QAbstractButton>
#include <QBuffer>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTableView>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <cmath>
#include <functional>

#include "KXTestSupport.h"
#include "KXWidgets.h"

namespace {

QVariant record(const QStringList &literals)
{
    QVariantList entries;
    for (int value = 0; value < literals.size(); ++value)
        entries << QVariant(QVariantList{value, literals.at(value)});
    return entries;
}

void call(QWidget *w, const char *slot, QGenericArgument a, QGenericArgument b = QGenericArgument())
{
    QVERIFY2(QMetaObject::invokeMethod(w, slot, a, b), slot);
}

// What a form author writes into the form for each widget, and what the host gives it afterwards.
struct Placement
{
    QString properties;
    std::function<void(QWidget *)> host;
};

// One property as Designer writes it: <property name="..."><type>value</type></property>.
QString property(const char *name, const char *type, const QString &value)
{
    return QStringLiteral("<property name=\"%1\"><%2>%3</%2></property>")
        .arg(QLatin1String(name), QLatin1String(type), value);
}

QString caption(const QString &text)
{
    return property("LabelText", "string", text);
}

std::function<void(QWidget *)> showsValue(double value)
{
    return [value](QWidget *w) { call(w, "setValue", Q_ARG(double, value)); };
}

std::function<void(QWidget *)> showsSeconds(qlonglong seconds)
{
    return [seconds](QWidget *w) { call(w, "setValue", Q_ARG(qlonglong, seconds)); };
}

std::function<void(QWidget *)> showsLiteral(const QStringList &literals, int value)
{
    return [literals, value](QWidget *w) {
        call(w, "setMetaData", Q_ARG(QVariant, record(literals)));
        call(w, "setIndex", Q_ARG(int, value));
    };
}

// A meter's reading in watts between 0 and 50 W, flagged as an ordinary reading (flag 4).
std::function<void(QWidget *)> showsReading(double watts)
{
    return [watts](QWidget *w) {
        const QString watt = QStringLiteral("0,0,6:1;0:0;0:0;0:0;0:0");
        const auto valueRecord = [&watt](double value) { return QVariant(QVariantList{watt, 0.0, 0.0, value}); };
        QVariantList list{QVariant(QVariantList{QVariant(QVariantList{QStringLiteral("Average"), valueRecord(watts)})})};
        for (int flag = 1; flag <= 7; ++flag)
            list << (flag == 4);
        list << valueRecord(0.0) << valueRecord(50.0);
        call(w, "setValue", Q_ARG(QVariant, QVariant(list)));
    };
}

const QHash<QString, Placement> &placements()
{
    const QString hz = QStringLiteral("0,0,1:1;0:0;0:0;0:0;0:0");
    const QString khz = QStringLiteral("0,3,1:1;0:0;0:0;0:0;0:0");
    const QString dbm = QStringLiteral("0,0,14:1;0:0;0:0;0:0;0:0");
    const QString onOff = property("OnText", "string", "On") + property("OffText", "string", "Off");
    const auto none = [](QWidget *) {};
    static const QHash<QString, Placement> all{
        {"QKXBrowseButton", {caption("Browse"), none}},
        {"QKXComboBox", {caption("Modulation"), showsLiteral({"AM", "FM", "Continuous"}, 2)}},
        // Plots show no text of their own until a form turns their axes on.
        {"QKXComplexTraceManager", {QString(), none}},
        {"QKXComplexTracePattern", {QString(), none}},
        {"QKXComplexTracePlot", {QString(), none}},
        {"QKXComplexTraceRange", {QString(), none}},
        {"QKXConfirmationPushButton",
         {caption("Reset") + property("TitleText", "string", "Reset") + property("DialogText", "string", "Reset all?"),
          none}},
        {"QKXConfirmationToggleButton", {caption("RF output") + onOff + property("State", "bool", "true"), none}},
        {"QKXDateWidget",
         {caption("Calibrated") + property("displayFormat", "enum", "QKXDateWidget::MMM_d_YYYY"), showsSeconds(1709625600)}},
        {"QKXFlagStatus", {caption("Overload") + property("Value", "bool", "true"), none}},
        {"QKXListDoubleValueObj",
         {caption("Bandwidth") + property("Precision", "number", "1") + property("BaseUnit", "string", hz)
              + property("DefaultUnit", "number", "1") + property("Units", "string", hz + '|' + khz),
          showsValue(12500.0)}},
        {"QKXMeterBar", {caption("Power") + property("Horizontal", "bool", "true"), showsReading(25.0)}},
        {"QKXNumericMeterReading", {caption("Power"), showsReading(12.5)}},
        {"QKXTextEntry", {caption("Setup name") + property("text", "string", "Bench 3"), none}},
        {"QKXTextLog",
         {QString(), [](QWidget *w) { call(w, "setText", Q_ARG(QString, QStringLiteral("Sweep started"))); }}},
        {"QKXNumeric", {caption("Frequency (MHz)") + property("Precision", "number", "3"), showsValue(145.275)}},
        {"QKXNumericValueObj",
         {caption("Level") + property("Precision", "number", "1") + property("BaseUnit", "string", dbm)
              + property("Units", "string", dbm),
          showsValue(-30.5)}},
        {"QKXPlaybackControlButton", {property("ButtonType", "enum", "QKXPlaybackControlButton::play"), none}},
        {"QKXPlotManager", {QString(), none}},
        {"QKXProgressBar", {caption("Sweep") + property("Value", "number", "40"), none}},
        {"QKXPushButton", {caption("Preset"), none}},
        {"QKXSaveTraceButton", {QString(), none}},   // an icon: a form gives it no text
        {"QKXSliderHorizontal", {caption("Volume") + property("Value", "number", "40"), none}},
        {"QKXSliderVertical", {caption("Squelch") + property("Value", "number", "20"), none}},
        {"QKXTableEnum", {property("ColumnHeading", "string", "Source"), showsLiteral({"Internal", "External"}, 1)}},
        {"QKXTimeWidget", {caption("Clock") + property("UseMilitaryTime", "bool", "false"), showsSeconds(1709625600)}},
        {"QKXToggleButton", {caption("Averaging") + onOff, none}},
        {"QKXWheelEnum", {caption("Filter"), showsLiteral({"Off", "Low pass"}, 1)}},
    };
    return all;
}

QStringList collection()
{
    QStringList names;
    Norvane::gui::KXWidgets widgets;
    for (QDesignerCustomWidgetInterface *plugin : widgets.customWidgets())
        names << plugin->name();
    return names;
}

// One text on the screen, with the means to take it away for a moment and put it back.
struct ShownText
{
    QString where;
    QString text;
    QFont font;
    QWidget *widget;
    std::function<void(bool)> show;
};

QList<ShownText> textsOf(QWidget *top)
{
    QList<ShownText> texts;
    const auto add = [&texts](QWidget *w, const QString &text, std::function<void(bool)> show) {
        if (!text.isEmpty() && w->isVisible())
            texts.append({QString::fromLatin1(w->metaObject()->className()) + QLatin1Char('#') + w->objectName()
                              + QLatin1Char(' ') + text,
                          text, w->font(), w, std::move(show)});
    };
    for (QWidget *w : top->findChildren<QWidget *>()) {
        if (auto *label = qobject_cast<QLabel *>(w)) {
            const QString text = label->text();
            add(w, text, [label, text](bool on) { label->setText(on ? text : QString()); });
        } else if (auto *button = qobject_cast<QAbstractButton *>(w)) {
            const QString text = button->text();
            add(w, text, [button, text](bool on) { button->setText(on ? text : QString()); });
        } else if (auto *edit = qobject_cast<QLineEdit *>(w)) {
            const QString text = edit->text();
            add(w, text, [edit, text](bool on) { edit->setText(on ? text : QString()); });
        } else if (auto *bar = qobject_cast<QProgressBar *>(w)) {
            add(w, bar->text(), [bar](bool on) { bar->setTextVisible(on); });
        } else if (auto *table = qobject_cast<QTableView *>(w)) {
            QAbstractItemModel *model = table->model();
            for (int row = 0; row < model->rowCount(); ++row) {
                const QModelIndex cell = model->index(row, 0);
                const QString text = cell.data().toString();
                add(table->viewport(), text,
                    [model, cell, text](bool on) { model->setData(cell, on ? text : QString()); });
            }
            const QString heading = model->headerData(0, Qt::Horizontal).toString();
            add(table->horizontalHeader(), heading,
                [model, heading](bool on) { model->setHeaderData(0, Qt::Horizontal, on ? heading : QString()); });
        }
    }
    return texts;
}

// Relative luminance and contrast ratio, as the web's accessibility guidelines define them.
double luminance(QRgb rgb)
{
    const auto channel = [](int c) {
        const double v = c / 255.0;
        return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(qRed(rgb)) + 0.7152 * channel(qGreen(rgb)) + 0.0722 * channel(qBlue(rgb));
}

double contrast(QRgb a, QRgb b)
{
    const double la = luminance(a), lb = luminance(b);
    return (qMax(la, lb) + 0.05) / (qMin(la, lb) + 0.05);
}

QImage rendered(QWidget *form)
{
    return form->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// The text's colour against what it is drawn on: the strongest contrast between a pixel with the
// text and the same pixel without it (the cores of the glyphs; their edges blend into the
// background). 0 when the text leaves no pixel on the screen.
double textContrast(QWidget *form, const QImage &withText, const ShownText &text)
{
    text.show(false);
    const QImage without = rendered(form);
    text.show(true);
    const QRect area = QRect(text.widget->mapTo(form, QPoint()), text.widget->size()) & withText.rect();
    double best = 0.0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (withText.pixel(x, y) != without.pixel(x, y))
                best = qMax(best, contrast(withText.pixel(x, y), without.pixel(x, y)));
    return best;
}

} // namespace

class tst_FormTemplate : public QObject
{
    Q_OBJECT

private slots:
    void everyWidgetReadsOnTheTemplate_data();
    void everyWidgetReadsOnTheTemplate();
    void placedWidgetsAreNoSlivers();
};

void tst_FormTemplate::everyWidgetReadsOnTheTemplate_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QSize>("size");
    QTest::newRow("landscape") << "Front_Panel_800x480.ui" << QSize(800, 480);
    QTest::newRow("portrait") << "Front_Panel_480x800.ui" << QSize(480, 800);
}

void tst_FormTemplate::everyWidgetReadsOnTheTemplate()
{
    QFETCH(QString, file);
    QFETCH(QSize, size);

    QFile templateFile(QStringLiteral(KX_FORM_TEMPLATE_DIR "/") + file);
    QVERIFY2(templateFile.open(QIODevice::ReadOnly), qPrintable(templateFile.errorString()));
    QString form = QString::fromUtf8(templateFile.readAll());

    // The author's widgets go into a grid on the template's screen, in the widget box's order.
    const int columns = size.width() > size.height() ? 3 : 2;
    const QStringList widgets = collection();
    QString items;
    for (int i = 0; i < widgets.size(); ++i) {
        QVERIFY2(placements().contains(widgets.at(i)), qPrintable(widgets.at(i) + " has no placement here yet"));
        items += QStringLiteral("<item row=\"%1\" column=\"%2\"><widget class=\"%3\" name=\"%3\">%4</widget></item>")
                     .arg(i / columns)
                     .arg(i % columns)
                     .arg(widgets.at(i), placements().value(widgets.at(i)).properties);
    }
    const int end = form.lastIndexOf(QLatin1String(" </widget>"));
    QVERIFY(end > 0);
    form.insert(end, QStringLiteral("<layout class=\"QGridLayout\" name=\"grid\">%1</layout>\n").arg(items));

    kxtest::DebugLines debug;
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(qEnvironmentVariable("KX_BUILD_LIB_DIR"));
    QByteArray ui = form.toUtf8();
    QBuffer buffer(&ui);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QScopedPointer<QWidget> screen(loader.load(&buffer));
    QVERIFY2(screen, qPrintable(loader.errorString()));
    QCOMPARE(screen->size(), size);
    for (const QString &name : widgets) {
        QWidget *w = screen->findChild<QWidget *>(name);
        QVERIFY2(w && w->metaObject()->className() == name, qPrintable(name));
        placements().value(name).host(w);
    }
    screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(screen.data()));
    const QImage image = rendered(screen.data());

    // From here on nothing may move: a text taken away must leave everything else where it was.
    for (QLayout *layout : screen->findChildren<QLayout *>())
        layout->setEnabled(false);
    for (const QString &name : widgets) {
        QWidget *w = screen->findChild<QWidget *>(name);
        for (const ShownText &text : textsOf(w)) {
            const double ratio = textContrast(screen.data(), image, text);
            QVERIFY2(ratio >= 4.5,
                     qPrintable(QStringLiteral("%1: contrast %2:1").arg(text.where).arg(ratio, 0, 'f', 2)));
            const QSize needed = QFontMetrics(text.font).size(Qt::TextSingleLine, text.text);
            QVERIFY2(w->sizeHint().width() >= needed.width() && w->sizeHint().height() >= needed.height(),
                     qPrintable(QStringLiteral("%1: hint %2x%3 for a text of %4x%5").arg(text.where)
                                    .arg(w->sizeHint().width()).arg(w->sizeHint().height())
                                    .arg(needed.width()).arg(needed.height())));
        }
    }
    // The offscreen test platform says so whenever a window's size limits change; it is no fault here.
    debug.warnings().removeAll(QStringLiteral("This plugin does not support propagateSizeHints()"));
    QCOMPARE(debug.warnings(), QStringList());
    QCOMPARE(debug.lines(), QStringList());
}

void tst_FormTemplate::placedWidgetsAreNoSlivers()
{
    // A widget just placed on a form has neither texts nor values yet; it must still be wide enough
    // to find and pick on the form: no widget of the panel is narrower than it is tall, but for the
    // vertical slider and the meter bar, which stand upright until told otherwise.
    Norvane::gui::KXWidgets widgets;
    for (QDesignerCustomWidgetInterface *plugin : widgets.customWidgets()) {
        QScopedPointer<QWidget> w(plugin->createWidget(nullptr));
        QSize hint = w->sizeHint();
        if (plugin->name() == QLatin1String("QKXSliderVertical") || plugin->name() == QLatin1String("QKXMeterBar"))
            hint.transpose();
        QVERIFY2(hint.width() >= hint.height(),
                 qPrintable(QStringLiteral("%1: %2x%3").arg(plugin->name()).arg(hint.width()).arg(hint.height())));
    }
}

QTEST_MAIN(tst_FormTemplate)
#include "tst_FormTemplate.moc"
