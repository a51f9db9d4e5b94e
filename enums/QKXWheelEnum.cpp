// SPDX-License-Identifier: BSD-3-Clause
#include "QKXWheelEnum.h"

#include "QKXComboBox_p.h"

#include <QLabel>

class QKXWheelEnumPrivate : public QKXComboBoxPrivate
{
public:
    explicit QKXWheelEnumPrivate(QKXWheelEnum *q);

    void init() override;
    void updateStyle() override;
    // The wheel enum keeps its record, value and literal in the combo box's fields; it declares the
    // accessors its own so that a subclass of the wheel can change them apart from the combo box's.
    QVariant metaData() const override { return QKXComboBoxPrivate::metaData(); }
    int currentIndex() const override { return QKXComboBoxPrivate::currentIndex(); }
    QString text() const override { return QKXComboBoxPrivate::text(); }
    void setText(const QString &literal) override { QKXComboBoxPrivate::setText(literal); }
    void setIndex(const int &value) override;
    void setMetaData(const QVariant &record) override;
    void retranslate() override;

    static QString compactWheelTemplate();
    static QString largeWheelTemplate();
};

QKXWheelEnumPrivate::QKXWheelEnumPrivate(QKXWheelEnum *q)
    : QKXComboBoxPrivate(q)
{
    minStyle = compactWheelTemplate();
    maxStyle = largeWheelTemplate();
}

QString QKXWheelEnumPrivate::compactWheelTemplate()
{
    return QStringLiteral(R"(QLabel#ComboText {
    background-color: transparent;
    color: #fff;
    border: 2px solid #fff;
    border-radius: 10px;
    margin: 0px;
    min-height: 25px;
    max-height: 25px;
    font-size: 14px;
    padding: 2px 5px -1px 5px;
}
QLabel#Label {
    color: #fff;
    padding: 4px 5px 0px 8px;
    margin: 0px;
    font-size: 12px;
}
)");
}

QString QKXWheelEnumPrivate::largeWheelTemplate()
{
    return QStringLiteral(R"(QLabel#ComboText {
    background-color: transparent;
    color: #fff;
    border: 2px solid #fff;
    border-radius: 10px;
    margin: 0px;
    min-height: 32px;
    max-height: 32px;
    font-size: 20px;
    padding: 1px 5px 0px 5px;
}
QLabel#Label {
    color: #fff;
    padding: 4px 5px 0px 8px;
    margin: 0px;
    font-size: 16px;
}
)");
}

void QKXWheelEnumPrivate::init()
{
    // Literals are shown as the record spells them, markup included.
    buildField(Qt::PlainText);
    comboText->setEnabled(false);
    updateStyle();
}

void QKXWheelEnumPrivate::updateStyle()
{
    setOverlaidStyles(minStyle, maxStyle, lockedOverlay, readOnlyOverlay);
}

void QKXWheelEnumPrivate::setIndex(const int &value)
{
    currentIndexValue = value;
    textValue = literalByValue.value(value);
    retranslate();
    emitCurrentIndexChanged();
}

void QKXWheelEnumPrivate::setMetaData(const QVariant &record)
{
    readRecord(record, "QKXWheelEnumPrivate");
    setIndex(currentIndexValue);
}

void QKXWheelEnumPrivate::retranslate()
{
    if (comboText) {
        comboText->setText(textValue);
    }
}

QKXWheelEnum::QKXWheelEnum(QWidget *parent)
    : QKXComboBox(*new QKXWheelEnumPrivate(this), parent)
{
}

QKXWheelEnum::QKXWheelEnum(QKXWheelEnumPrivate &dd, QWidget *parent)
    : QKXComboBox(dd, parent)
{
}

QKXWheelEnum::~QKXWheelEnum() = default;

QVariant QKXWheelEnum::metaData() const
{
    Q_D(const QKXWheelEnum);
    return d->metaData();
}

int QKXWheelEnum::currentIndex() const
{
    Q_D(const QKXWheelEnum);
    return d->currentIndex();
}

QString QKXWheelEnum::text() const
{
    Q_D(const QKXWheelEnum);
    return d->text();
}

void QKXWheelEnum::setMetaData(const QVariant &data)
{
    Q_D(QKXWheelEnum);
    d->setMetaData(data);
}

void QKXWheelEnum::setIndex(const int &val)
{
    Q_D(QKXWheelEnum);
    d->setIndex(val);
}

void QKXWheelEnum::setText(const QString &text)
{
    Q_D(QKXWheelEnum);
    d->setText(text);
}
