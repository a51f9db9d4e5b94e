// SPDX-License-Identifier: BSD-3-Clause
#include "QKXNumpad.h"
#include "QKXKeyPadBase_p.h"

#include "KXNumberConversion_p.h"
#include "QKXPopupChain.h"
#include "QKXRichTextPushButton.h"

#include <QDebug>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHash>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedLayout>
#include <QVariant>

namespace {
const QString kx_intType = QStringLiteral("Int");
const QString kx_doubleType = QStringLiteral("Double");
const QString kx_textType = QStringLiteral("TextString");
const QString kx_valueDoubleType = QStringLiteral("ValueDouble");
const QString kx_valueLongType = QStringLiteral("ValueLong");
// What Enter commits with on a field with units: no unit of its own, so the value is in the base unit.
const QString kx_neutralUnits = QStringLiteral("0,0,0:0;0:0;0:0;0:0;0:0");

// Pages of the enter column.
enum { PageEnter = 0, PageHex = 1, PageUnits = 2 };

QString kx_quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}
} // namespace

class QKXNumpadPrivate : public QKXKeyPadBasePrivate
{
public:
    explicit QKXNumpadPrivate(QKXNumpad *q) : QKXKeyPadBasePrivate(q) {}

    // What Enter commits: the entry read in the pad's base; false when the text is no number.
    bool entryValue(double *value) const;
    void pressKey(const QString &name, QPushButton *key);
    // Commits a value with the unit of the key that was pressed and selects that unit on the widget.
    void submitWithUnit(QObject *key, double value, bool integral);

    int unitKeyCount = 4;
    int hexWidth = 318;
    QFrame *hexPage = nullptr;
    QFrame *unitPage = nullptr;
    QHash<int, QPushButton *> unitKeys;

private:
    Q_DECLARE_PUBLIC(QKXNumpad)
};

bool QKXNumpadPrivate::entryValue(double *value) const
{
    // In base 10 an entry is a real number even for an integer attribute (the commit truncates it).
    const int radix = kxnumber::radixOf(base);
    const kxnumber::NumberForm form = radix == 10 ? kxnumber::NumberForm::Real : kxnumber::NumberForm::WholeNumber;
    return kxnumber::readNumber(entry->text(), form, radix, value);
}

void QKXNumpadPrivate::submitWithUnit(QObject *key, double value, bool integral)
{
    Q_Q(QKXNumpad);
    const bool enter = key && (key == buttons.value(QStringLiteral("enter")) || key == buttons.value(QStringLiteral("hexEnter")));
    const QString unit = enter ? kx_neutralUnits : (key ? key->property("UnitString").toString() : QString());
    if (integral) {
        emit q->submit(kxnumber::truncated(value), unit);
    } else {
        emit q->submit(value, unit);
    }
    // Enter names no unit: the widget keeps the one it shows.
    if (enter || !key || !widget) {
        return;
    }
    const int index = key->property("UnitIndex").toInt();
    if (index != -1) {
        widget->setProperty("UnitIndex", index);
    }
}

void QKXNumpadPrivate::pressKey(const QString &name, QPushButton *key)
{
    if (name == QLatin1String("bksp")) {
        backspace();
    } else if (name == QLatin1String("plmin")) {
        QString text = entry->text();
        if (text.isEmpty() || entry->hasSelectedText()) {
            text = QStringLiteral("-");
        } else {
            const int minus = text.indexOf(QLatin1Char('-'));
            if (minus >= 0) {
                text.remove(minus, 1);
            } else {
                text.prepend(QLatin1Char('-'));
            }
        }
        entry->setText(text);
        mirror();
    } else if (name == QLatin1String("dot") && dataType == kx_textType) {
        // A dotted address has four parts at most.
        if (entry->text().count(QLatin1Char('.')) > 2) {
            return;
        }
        entry->insert(QStringLiteral("."));
        mirror();
    } else if (name == QLatin1String("dot")) {
        const QString text = entry->text();
        if (text.contains(QLatin1Char('.'))) {
            if (!entry->hasSelectedText()) {
                return;
            }
            entry->setText(QStringLiteral("0."));
        } else if (text.isEmpty()) {
            entry->setText(QStringLiteral("0."));
        } else {
            entry->insert(QStringLiteral("."));
        }
        mirror();
    } else if (name == QLatin1String("clear")) {
        entry->clear();
        mirror();
        if (limitsNegative()) {
            pressKey(QStringLiteral("plmin"), buttons.value(QStringLiteral("plmin")));
        }
    } else {
        if (limitsNegative() && entry->text().isEmpty()) {
            pressKey(QStringLiteral("plmin"), buttons.value(QStringLiteral("plmin")));
        }
        entry->insert(key->text());
        mirror();
    }
}

QKXNumpad::QKXNumpad(QWidget *parent)
    : QKXKeyPadBase(*new QKXNumpadPrivate(this), parent)
{
    Q_D(QKXNumpad);
    setObjectName(QStringLiteral("NumpadEntry"));
    QKXNumpad::createNumpadButtons();
    QKXNumpad::createHexEnterButtons();
    QKXNumpad::createUnitButtons();
    resize(d->normalWidth, d->normalHeight);
}

QKXNumpad::~QKXNumpad() = default;

QPushButton *QKXNumpad::unitButton(int index) const
{
    Q_D(const QKXNumpad);
    return d->unitKeys.value(index);
}

void QKXNumpad::createNumpadButtons()
{
    Q_D(QKXNumpad);
    // The digits are the key pad base's; the numeric pad completes the bottom row.
    QPushButton *dot = createButton(tr("."), SLOT(buttonPress()), QStringLiteral("kbBtnBottomLeft"));
    d->buttons.insert(QStringLiteral("dot"), dot);
    d->digitGrid->addWidget(dot, 3, 0);
    QPushButton *sign = createButton(tr("±"), SLOT(buttonPress()), QStringLiteral("kbBtnBottom"));
    d->buttons.insert(QStringLiteral("plmin"), sign);
    d->gridRow = 3;
    d->gridColumn = 2;
    d->digitGrid->addWidget(sign, d->gridRow, d->gridColumn);
}

void QKXNumpad::createHexEnterButtons()
{
    Q_D(QKXNumpad);
    d->hexPage = new QFrame(d->numpadFrame);
    auto *grid = new QGridLayout(d->hexPage);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int k = 0; k < 6; ++k) {
        const QString name(QChar(QLatin1Char('A').unicode() + k));
        QPushButton *key = createButton(name, SLOT(buttonPress()),
                                        k < 3 ? QStringLiteral("kbBtn") : QStringLiteral("kbBtnRight"));
        d->buttons.insert(name, key);
        grid->addWidget(key, k % 3, k / 3);
    }
    QPushButton *enter = createButton(tr(d->enterText.toUtf8().constData()), SLOT(buttonSubmit()),
                                      QStringLiteral("enter"));
    d->buttons.insert(QStringLiteral("hexEnter"), enter);
    grid->addWidget(enter, 3, 0, 1, 2);
    d->enterStack->insertWidget(PageHex, d->hexPage);
}

void QKXNumpad::createUnitButtons()
{
    Q_D(QKXNumpad);
    // Widgets with units commit through these keys, one per unit; they get their captions then.
    d->unitPage = new QFrame(d->numpadFrame);
    auto *grid = new QGridLayout(d->unitPage);
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < d->unitKeyCount; ++i) {
        auto *key = new QKXRichTextPushButton(d->unitPage);
        key->setObjectName(QStringLiteral("unit"));
        key->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
        key->setFocusPolicy(Qt::NoFocus);
        connect(key, &QPushButton::clicked, this, &QKXNumpad::buttonSubmit);
        d->unitKeys.insert(i, key);
        grid->addWidget(key, i, 0);
    }
    d->enterStack->insertWidget(PageUnits, d->unitPage);
}

void QKXNumpad::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXNumpad);
    d->dataType = filter ? filter->property("DataType").toString() : QString();

    if (d->filter && d->widget) {
        // One edit at a time: the edit the pad was serving gives its value back first.
        QMetaObject::invokeMethod(d->filter, "cancel");
        resetWidgets();
    }

    d->filter = filter;
    d->widget = widget;
    d->entry = widget ? widget->findChild<QLineEdit *>() : nullptr;

    const QVariant base = widget ? widget->property("Base") : QVariant();
    setBase(base.isValid() ? base.toInt() : 10);
    d->buttons.value(QStringLiteral("plmin"))->setEnabled(d->widgetLimit("LowerLimit") < 0);

    if (!d->entry || !filter) {
        // Nothing to type into: the edit stays with the filter until it is cancelled.
        return;
    }

    for (QPushButton *key : qAsConst(d->buttons)) {
        key->setFocusProxy(d->entry);
    }
    d->mirror();

    QKXPopupChain::chain(this, filter, SIGNAL(cancelEntry()), SIGNAL(done()));
    connect(d->entry.data(), &QLineEdit::textEdited, this, &QKXNumpad::setReadingText);

    QPushButton *dot = d->buttons.value(QStringLiteral("dot"));
    if (d->dataType == kx_intType) {
        dot->setEnabled(false);
        QKXPopupChain::forward(this, filter, SIGNAL(submit(int)));
    } else if (d->dataType == kx_doubleType) {
        dot->setEnabled(widget->property("Precision").toInt() > 0);
        QKXPopupChain::forward(this, filter, SIGNAL(submit(double)));
    } else if (d->dataType == kx_valueDoubleType || d->dataType == kx_valueLongType) {
        const bool isLong = d->dataType == kx_valueLongType;
        dot->setEnabled(!isLong && widget->property("Precision").toInt() > 0);
        QStringList names;
        QStringList unitStrings;
        QList<int> indexes;
        processUnitData(widget, names, unitStrings, indexes);
        // A plain number (no unit, or one without a name) commits with Enter in its base unit.
        if (names.isEmpty() || (names.size() == 1 && names.first().isEmpty())) {
            d->enterStack->setCurrentIndex(PageEnter);
        } else {
            updateUnitButtons(names, unitStrings, indexes);
            d->enterStack->setCurrentIndex(PageUnits);
        }
        if (isLong) {
            QKXPopupChain::forward(this, filter, SIGNAL(submit(int,QString)));
        } else {
            QKXPopupChain::forward(this, filter, SIGNAL(submit(double,QString)));
        }
    } else if (d->dataType == kx_textType) {
        // A dotted address: digits and dots, no sign.
        dot->setEnabled(true);
        d->buttons.value(QStringLiteral("plmin"))->setEnabled(false);
        QKXPopupChain::forward(this, filter, SIGNAL(submit(QString)));
    } else {
        qDebug() << "UserInterface - QKXNumpad attempting to register unknown data type:" << d->dataType
                 << "Widget:" << widget;
    }

    show();
    showRotateButton(d->dataType != kx_textType);
}

void QKXNumpad::unregister()
{
    Q_D(QKXNumpad);
    if (d->entry) {
        disconnect(d->entry.data(), &QLineEdit::textEdited, this, &QKXNumpad::setReadingText);
    }
    QKXKeyPadBase::unregister();
}

void QKXNumpad::cancel()
{
    Q_D(QKXNumpad);
    if (d->filter && (d->filter->inherits("QKXNumericEventFilter")
                      || d->filter->inherits("QKXNumericValueObjEventFilter"))) {
        QMetaObject::invokeMethod(d->filter, "cancel");
    }
}

void QKXNumpad::buttonPress()
{
    Q_D(QKXNumpad);
    auto *key = qobject_cast<QPushButton *>(sender());
    if (!d->entry || !key) {
        return;
    }
    d->pressKey(d->buttons.key(key), key);
}

void QKXNumpad::buttonSubmit()
{
    Q_D(QKXNumpad);
    if (!d->entry) {
        return;
    }
    const bool isInt = d->dataType == kx_intType;
    const bool hasUnits = d->dataType == kx_valueDoubleType || d->dataType == kx_valueLongType;
    if (isInt || d->dataType == kx_doubleType || hasUnits) {
        double value = 0.0;
        if (!d->entryValue(&value)) {
            // The pad commits on every Enter; what cannot be read commits as 0.
            qDebug().noquote() << "UserInterface - QKXNumpad:" << kx_quoted(d->entry->text())
                               << "is not a number in base" << kxnumber::radixOf(d->base) << "- committing 0";
            value = 0.0;
        }
        const bool integral = isInt || d->dataType == kx_valueLongType;
        if (integral && !kxnumber::fitsInt(value)) {
            qDebug().noquote() << "UserInterface - QKXNumpad:" << kx_quoted(d->entry->text())
                               << "is beyond the integer range - committing" << kxnumber::truncated(value);
        }
        if (hasUnits) {
            d->submitWithUnit(sender(), value, integral);
        } else if (isInt) {
            emit submit(kxnumber::truncated(value));
        } else {
            emit submit(value);
        }
    } else if (d->dataType == kx_textType) {
        emit submit(d->entry->text());
    }
    emit done();
}

void QKXNumpad::processUnitData(QWidget *widget, QStringList &names, QStringList &unitStrings, QList<int> &indexes)
{
    const QVariantList list = widget ? widget->property("UnitList").toList() : QVariantList();
    for (int i = 0; i < list.size(); ++i) {
        const QVariantList entry = list.at(i).toList();
        if (entry.size() < 4) {
            qDebug().noquote() << "UserInterface - QKXNumpad: unit list entry" << i
                               << "is not [index, name, true, units string] - no key for it";
            continue;
        }
        indexes.append(entry.at(0).toInt());
        names.append(entry.at(1).toString());
        unitStrings.append(entry.at(3).toString());
    }
}

void QKXNumpad::updateUnitButtons(QStringList names, QStringList unitStrings, QList<int> indexes)
{
    Q_D(QKXNumpad);
    const int shown = qMin(names.size(), d->unitKeyCount);
    for (int i = 0; i < d->unitKeyCount; ++i) {
        QPushButton *key = d->unitKeys.value(i);
        if (!key) {
            continue;
        }
        if (i >= shown) {
            key->hide();
            continue;
        }
        key->show();
        key->setProperty("UnitString", unitStrings.value(i));
        key->setProperty("UnitIndex", indexes.value(i, -1));
        if (auto *rich = qobject_cast<QKXRichTextPushButton *>(key)) {
            rich->setText(names.at(i));
        } else {
            qDebug().noquote() << "UserInterface - Unit Button type should be QKXRichTextPushButton.";
        }
        // The last unit of the list; with more units than keys, none of the keys is.
        key->setObjectName(i == names.size() - 1 ? QStringLiteral("lastUnit") : QStringLiteral("unit"));
    }
    // Object names select the keys' looks: the sheet is applied again for the new names to count.
    setStyleSheet(styleSheet());
}

void QKXNumpad::setBase(int base)
{
    Q_D(QKXNumpad);
    d->base = base;
    switch (base) {
    case 8:
        initOctEntry();
        break;
    case 16:
        initHexEntry();
        break;
    case 2:
        initBinEntry();
        break;
    default:
        initDecEntry();
        break;
    }
}

void QKXNumpad::initDecEntry()
{
    Q_D(QKXNumpad);
    for (int digit = 0; digit <= 9; ++digit) {
        d->buttons.value(QString::number(digit))->setEnabled(true);
    }
    resizeNumpad(d->normalWidth, d->normalHeight, false);
}

void QKXNumpad::initHexEntry()
{
    Q_D(QKXNumpad);
    for (int digit = 0; digit <= 9; ++digit) {
        d->buttons.value(QString::number(digit))->setEnabled(true);
    }
    resizeNumpad(d->hexWidth, d->normalHeight, true);
}

void QKXNumpad::initOctEntry()
{
    Q_D(QKXNumpad);
    for (int digit = 0; digit <= 9; ++digit) {
        d->buttons.value(QString::number(digit))->setEnabled(digit < 8);
    }
    resizeNumpad(d->normalWidth, d->normalHeight, false);
}

void QKXNumpad::initBinEntry()
{
    Q_D(QKXNumpad);
    for (int digit = 0; digit <= 9; ++digit) {
        d->buttons.value(QString::number(digit))->setEnabled(digit < 2);
    }
    resizeNumpad(d->normalWidth, d->normalHeight, false);
}

void QKXNumpad::resizeNumpad(int w, int h, bool isHex)
{
    Q_D(QKXNumpad);
    d->keyRow->setStretchFactor(d->enterStack, isHex ? 3 : 2);
    d->enterStack->setCurrentIndex(isHex ? PageHex : PageEnter);
    // The pad opens at the container's normal size: keep it in step, or the hex page would open cut off.
    setNormalSize(w, h);
    resize(w, h);
}

void QKXNumpad::setReadingText(const QString &txt)
{
    Q_UNUSED(txt);
    Q_D(QKXNumpad);
    if (!d->entry) {
        return;
    }
    if (d->limitsNegative()) {
        const QString text = d->entry->text();
        if (text.isEmpty()) {
            d->entry->setText(QStringLiteral("-"));
        } else if (!text.contains(QLatin1Char('-'))) {
            d->entry->setText(QLatin1Char('-') + text);
        }
    }
    d->mirror();
}
