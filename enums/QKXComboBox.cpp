// SPDX-License-Identifier: BSD-3-Clause
#include "QKXComboBox.h"
#include "QKXComboBox_p.h"

#include "CSS.h"
#include "QKXEnumRecord.h"
#include "QKXUtil.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLabel>
#include <QVBoxLayout>

QKXComboBoxPrivate::QKXComboBoxPrivate(QKXComboBox *q)
    : QKXWidgetBasePrivate(q)
    , comboText(nullptr)
    , currentIndexValue(0)
    , minStyle(compactTemplate())
    , maxStyle(largeTemplate())
    , lockedOverlay(lockedOverlayTemplate())
    , readOnlyOverlay(readOnlyOverlayTemplate())
{
}

QKXComboBoxPrivate::~QKXComboBoxPrivate() = default;

QString QKXComboBoxPrivate::compactTemplate()
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
    padding: 0px 5px 1px 5px;
}
QLabel#Label {
    border: none;
    color: #fff;
    padding: 4px 5px 0px 8px;
    margin: 0px;
    min-height: 12px;
    font-size: 12px;
}
)");
}

QString QKXComboBoxPrivate::largeTemplate()
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
    border: none;
    color: #fff;
    padding: 4px 5px 0px 8px;
    margin: 0px;
    min-height: 12px;
    font-size: 16px;
}
)");
}

QString QKXComboBoxPrivate::lockedOverlayTemplate()
{
    return QStringLiteral("    QLabel#ComboText {    background-image: url(:/images/lock_generic.png);"
                          "    background-position: top right;    background-repeat: no-repeat;}");
}

QString QKXComboBoxPrivate::readOnlyOverlayTemplate()
{
    return QStringLiteral("QLabel#ComboText {    border-color: ") + CSS::border() + QStringLiteral(";}");
}

void QKXComboBoxPrivate::buildField(Qt::TextFormat format)
{
    // Runs from init(), inside the base constructor: only the QWidget side of q exists.
    auto *caption = new QLabel(q);
    caption->setObjectName(QStringLiteral("Label"));
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setLabel(caption);

    comboText = new QLabel(q);
    comboText->setObjectName(QStringLiteral("ComboText"));
    comboText->setTextFormat(format);

    auto *layout = new QVBoxLayout(q);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(comboText);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
}

void QKXComboBoxPrivate::init()
{
    buildField(Qt::RichText);
    // The field only shows; taps belong to the widget, where the edit filter sees them.
    comboText->setEnabled(false);
    updateStyle();
}

void QKXComboBoxPrivate::changeSize(const QString &size)
{
    QKXWidgetBasePrivate::changeSize(size);
    retranslate();
}

void QKXComboBoxPrivate::updateStyle()
{
    // Read-only hides the padlock: a field the user cannot open needs no second reason shown.
    const QString overlay = readOnly ? readOnlyOverlay : locked ? lockedOverlay : QString();
    styles.insert(QStringLiteral("Min"), minStyle + overlay);
    styles.insert(QStringLiteral("Max"), maxStyle + overlay);
    changeSize(currentSizeName);
}

QVariant QKXComboBoxPrivate::metaData() const
{
    return metaDataValue;
}

int QKXComboBoxPrivate::currentIndex() const
{
    return currentIndexValue;
}

QString QKXComboBoxPrivate::text() const
{
    return textValue;
}

void QKXComboBoxPrivate::setText(const QString &literal)
{
    const auto found = valueByLiteral.constFind(literal);
    if (found == valueByLiteral.constEnd()) {
        return;
    }
    textValue = literal;
    retranslate();
    currentIndexValue = found.value();
    emitCurrentIndexChanged();
}

void QKXComboBoxPrivate::removeCSS()
{
    minStyle.clear();
    maxStyle.clear();
    lockedOverlay.clear();
    readOnlyOverlay.clear();
    updateStyle();
}

void QKXComboBoxPrivate::setIndex(const int &value)
{
    currentIndexValue = value;
    const auto found = literalByValue.constFind(value);
    if (found != literalByValue.constEnd()) {
        textValue = found.value();
    } else if (!literalByValue.isEmpty()) {
        // The field never stays blank while the record has something to show.
        const auto smallest = literalByValue.constBegin();
        textValue = smallest.value();
        if (isApplicationInitialized()) {
            qDebug().noquote() << "UserInterface - QKXComboBoxPrivate::setIndex - got bad value:" << value;
            qDebug().noquote() << "UserInterface - QKXComboBoxPrivate::setIndex - using instead:"
                               << QString(QString::number(smallest.key()) + QStringLiteral(" ; \"")
                                          + smallest.value() + QLatin1Char('"'));
        }
    } else {
        textValue.clear();
    }
    retranslate();
    emitCurrentIndexChanged();
}

void QKXComboBoxPrivate::readRecord(const QVariant &record, const char *reporter)
{
    metaDataValue = record;
    valueByLiteral.clear();
    literalByValue.clear();
    for (const QKXEnumEntry &entry : QKXEnumRecord::read(record, reporter)) {
        valueByLiteral.insert(entry.literal, entry.value);
        literalByValue.insert(entry.value, entry.literal);
    }
}

void QKXComboBoxPrivate::setMetaData(const QVariant &record)
{
    readRecord(record, "QKXComboBoxPrivate");
    setIndex(currentIndexValue);
}

void QKXComboBoxPrivate::retranslate()
{
    if (!comboText) {
        return;
    }
    QString shown = textValue;
    if (!isCompactDisplayMode()) {
        // Engine literals are translated in the generic context, where the host's catalogues keep them;
        // looked up by their UTF-8 bytes, so that a literal with accents comes back whole.
        shown = QCoreApplication::translate("QObject", textValue.toUtf8().constData());
    }
    QKXUtil::processString(shown);
    comboText->setText(shown);
}

QSize QKXComboBoxPrivate::sizeHint(QSize layoutHint) const
{
    if (!comboText) {
        return layoutHint;
    }
    // Frame and font come from the style sheet, which reaches the field when it is polished.
    comboText->ensurePolished();
    const QMargins frame = comboText->contentsMargins();
    const int field = frame.left() + frame.right() + 10 * comboText->fontMetrics().averageCharWidth();
    layoutHint.setWidth(qMax(layoutHint.width(), field));
    return layoutHint;
}

void QKXComboBoxPrivate::emitCurrentIndexChanged()
{
    Q_Q(QKXComboBox);
    emit q->currentIndexChanged(currentIndexValue);
}

QKXComboBox::QKXComboBox(QWidget *parent)
    : QKXWidgetBase(*new QKXComboBoxPrivate(this), parent)
{
}

QKXComboBox::QKXComboBox(QKXComboBoxPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXComboBox::~QKXComboBox() = default;

QVariant QKXComboBox::metaData() const
{
    Q_D(const QKXComboBox);
    return d->metaData();
}

int QKXComboBox::currentIndex() const
{
    Q_D(const QKXComboBox);
    return d->currentIndex();
}

QString QKXComboBox::text() const
{
    Q_D(const QKXComboBox);
    return d->text();
}

void QKXComboBox::removeCSS()
{
    Q_D(QKXComboBox);
    d->removeCSS();
}

QSize QKXComboBox::sizeHint() const
{
    Q_D(const QKXComboBox);
    return d->sizeHint(QKXWidgetBase::sizeHint());
}

void QKXComboBox::setMetaData(const QVariant &data)
{
    Q_D(QKXComboBox);
    d->setMetaData(data);
}

void QKXComboBox::setIndex(const int &val)
{
    Q_D(QKXComboBox);
    d->setIndex(val);
}

void QKXComboBox::setText(const QString &text)
{
    Q_D(QKXComboBox);
    d->setText(text);
}
