// SPDX-License-Identifier: BSD-3-Clause
#include "QKXWidgetBase.h"
#include "QKXWidgetBase_p.h"

#include "GlobalImpl.h"

#include <QApplication>
#include <QDebug>
#include <QLabel>
#include <QMouseEvent>
#include <QVariant>

// The display modes in which the screen is too small for the large look of any widget.
static bool kx_isCompactDisplayMode()
{
    const QVariant mode = qApp ? qApp->property("-size") : QVariant();
    if (!mode.isValid()) {
        return false;
    }
    const QString text = mode.toString();
    return text == QLatin1String("small_portrait") || text == QLatin1String("landscape");
}

QKXWidgetBasePrivate::QKXWidgetBasePrivate(QKXWidgetBase *q)
    : QObject(nullptr)
    , q(q)
    , attributeNameValue(QStringLiteral("AttributeName"))
    , currentSizeName(QStringLiteral("Min"))
    , readOnly(false)
    , locked(false)
    , supressDebugOutput(true)
    , updateDelayValue(100)
    , filter(nullptr)
    , labelWidget(nullptr)
{
}

QKXWidgetBasePrivate::~QKXWidgetBasePrivate() = default;

void QKXWidgetBasePrivate::init()
{
}

QString QKXWidgetBasePrivate::attributeName() const
{
    return attributeNameValue;
}

void QKXWidgetBasePrivate::setAttributeName(const QString &name)
{
    attributeNameValue = name;
}

QString QKXWidgetBasePrivate::labelText() const
{
    return labelWidget ? labelWidget->text() : QString();
}

void QKXWidgetBasePrivate::setLabelText(const QString &text)
{
    if (!labelWidget) {
        return;
    }
    labelWidget->setText(tr(text.toUtf8().constData()));
}

bool QKXWidgetBasePrivate::isReadOnly() const
{
    return readOnly;
}

void QKXWidgetBasePrivate::setReadOnly(bool value)
{
    readOnly = value;
    updateStyle();
}

bool QKXWidgetBasePrivate::isLocked() const
{
    return locked;
}

void QKXWidgetBasePrivate::setLocked(bool value)
{
    locked = value;
    updateStyle();
}

bool QKXWidgetBasePrivate::supressDebug() const
{
    return supressDebugOutput;
}

void QKXWidgetBasePrivate::setSupressDebug(bool supress)
{
    supressDebugOutput = supress;
}

int QKXWidgetBasePrivate::updateDelay() const
{
    return updateDelayValue;
}

void QKXWidgetBasePrivate::setUpdateDelay(int delay)
{
    updateDelayValue = delay;
}

QString QKXWidgetBasePrivate::currentSize() const
{
    return currentSizeName;
}

void QKXWidgetBasePrivate::changeSize(const QString &size)
{
    const auto entry = styles.constFind(size);
    if (entry == styles.constEnd()) {
        return;
    }
    currentSizeName = size;
    if (q->styleSheet() == entry.value()) {
        return;
    }
    if (size == QLatin1String("Max") && kx_isCompactDisplayMode()) {
        currentSizeName = QStringLiteral("Min");
    }
    q->setStyleSheet(styles.value(currentSizeName));
}

QObject *QKXWidgetBasePrivate::getEventFilter() const
{
    return filter;
}

void QKXWidgetBasePrivate::setEventFilter(QObject *eventFilter)
{
    filter = eventFilter;
}

void QKXWidgetBasePrivate::supressClicked(QMouseEvent *event)
{
    if (!event || !q->rect().contains(event->pos()) || !(event->modifiers() & Qt::ControlModifier)) {
        return;
    }
    supressDebugOutput = !supressDebugOutput;
    emit q->suppressDebug(supressDebugOutput);
    const QString window = GlobalImpl::getInstance()->getParentWindowName(q);
    const char *line = supressDebugOutput ? "UserInterface - Debug is now OFF for:"
                                          : "UserInterface - Debug is now ON for:";
    qDebug().noquote() << line << "@" << (QLatin1Char('"') + window + QLatin1Char('"'));
}

QLabel *QKXWidgetBasePrivate::label()
{
    return labelWidget;
}

void QKXWidgetBasePrivate::setLabel(QLabel *label)
{
    labelWidget = label;
}

void QKXWidgetBasePrivate::updateStyle()
{
    changeSize(currentSizeName);
}

void QKXWidgetBasePrivate::setOverlaidStyles(const QString &minTemplate, const QString &maxTemplate,
                                             const QString &lockedOverlay, const QString &readOnlyOverlay)
{
    const auto overlaid = [&](const QString &base) {
        QString sheet = base;
        if (locked) {
            sheet += lockedOverlay;
        }
        if (readOnly) {
            sheet += readOnlyOverlay;
        }
        return sheet;
    };
    styles.insert(QStringLiteral("Min"), overlaid(minTemplate));
    styles.insert(QStringLiteral("Max"), overlaid(maxTemplate));
    changeSize(currentSizeName);
}

bool QKXWidgetBasePrivate::isCompactDisplayMode()
{
    return kx_isCompactDisplayMode();
}

bool QKXWidgetBasePrivate::isApplicationInitialized()
{
    const QVariant state = qApp ? qApp->property("state") : QVariant();
    return state.toString() == QLatin1String("initialized");
}

QKXWidgetBase::QKXWidgetBase(QWidget *parent)
    : QKXWidgetBase(*new QKXWidgetBasePrivate(this), parent)
{
}

QKXWidgetBase::QKXWidgetBase(QKXWidgetBasePrivate &dd, QWidget *parent)
    : QWidget(parent)
    , d_ptr(&dd)
{
    d_ptr->init();
}

QKXWidgetBase::~QKXWidgetBase() = default;

QString QKXWidgetBase::attributeName() const
{
    Q_D(const QKXWidgetBase);
    return d->attributeName();
}

void QKXWidgetBase::setAttributeName(const QString &name)
{
    Q_D(QKXWidgetBase);
    d->setAttributeName(name);
}

QString QKXWidgetBase::labelText() const
{
    Q_D(const QKXWidgetBase);
    return d->labelText();
}

void QKXWidgetBase::setLabelText(QString label)
{
    Q_D(QKXWidgetBase);
    d->setLabelText(label);
}

bool QKXWidgetBase::isReadOnly() const
{
    Q_D(const QKXWidgetBase);
    return d->isReadOnly();
}

bool QKXWidgetBase::isLocked() const
{
    Q_D(const QKXWidgetBase);
    return d->isLocked();
}

int QKXWidgetBase::updateDelay() const
{
    Q_D(const QKXWidgetBase);
    return d->updateDelay();
}

void QKXWidgetBase::setUpdateDelay(int delay)
{
    Q_D(QKXWidgetBase);
    d->setUpdateDelay(delay);
}

QString QKXWidgetBase::currentSize() const
{
    Q_D(const QKXWidgetBase);
    return d->currentSize();
}

void QKXWidgetBase::installEventFilter(QObject *filter)
{
    Q_D(QKXWidgetBase);
    QWidget::installEventFilter(filter);
    d->setEventFilter(filter);
}

void QKXWidgetBase::retranslate()
{
    changeSize(currentSize());
}

QObject *QKXWidgetBase::getEventFilter() const
{
    Q_D(const QKXWidgetBase);
    return d->getEventFilter();
}

void QKXWidgetBase::setReadOnly(bool isRO)
{
    Q_D(QKXWidgetBase);
    d->setReadOnly(isRO);
}

void QKXWidgetBase::setLocked(bool isL)
{
    Q_D(QKXWidgetBase);
    d->setLocked(isL);
}

void QKXWidgetBase::changeSize(QString size)
{
    Q_D(QKXWidgetBase);
    d->changeSize(size);
}

void QKXWidgetBase::mouseReleaseEvent(QMouseEvent *event)
{
    Q_D(QKXWidgetBase);
    d->supressClicked(event);
    QWidget::mouseReleaseEvent(event);
}
