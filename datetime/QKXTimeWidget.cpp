// SPDX-License-Identifier: BSD-3-Clause
#include "QKXTimeWidget.h"

#include "KXDateTimeSupport_p.h"
#include "QKXWidgetBase_p.h"

#include <QLineEdit>

class QKXTimeWidgetPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXTimeWidgetPrivate(QKXTimeWidget *q)
        : QKXWidgetBasePrivate(q)
        , readOnlyStyle(kxdatetime::readOnlyOverlay())
        , maxStyle(kxdatetime::largeStyle())
        , minStyle(kxdatetime::compactStyle())
        , lockedStyle(kxdatetime::lockedOverlay())
    {
    }

    void init() override;
    void updateStyle() override;

    virtual qlonglong value() const;
    virtual void setValue(qlonglong value);
    virtual QKXTimeWidget::TimeMode timeMode() const;
    virtual void setTimeMode(QKXTimeWidget::TimeMode mode);
    virtual bool isMilitaryTime() const;
    virtual void setMilitaryTime(bool military);

    qlonglong timeValue = -1;
    QKXTimeWidget::TimeMode mode = QKXTimeWidget::LOCALE;
    bool militaryTime = true;
    QLineEdit *display = nullptr;
    QString readOnlyStyle;
    QString maxStyle;
    QString minStyle;
    QString lockedStyle;

private:
    KX_DECLARE_PUBLIC(QKXTimeWidget)
};

void QKXTimeWidgetPrivate::init()
{
    display = kxdatetime::buildField(this);
    updateStyle();
}

void QKXTimeWidgetPrivate::updateStyle()
{
    setOverlaidStyles(minStyle, maxStyle, lockedStyle, readOnlyStyle);
}

qlonglong QKXTimeWidgetPrivate::value() const
{
    return timeValue;
}

void QKXTimeWidgetPrivate::setValue(qlonglong value)
{
    if (!kxdatetime::isInRange(value)) {
        kxdatetime::reportOutOfRange("QKXTimeWidget", q, "value", value, "display kept");
        return;
    }
    timeValue = value;
    QDateTime shown = kxdatetime::localDateTime(value);
    if (mode == QKXTimeWidget::UTC) {
        shown = shown.toUTC();
    }
    display->setText(kxdatetime::text(shown, militaryTime ? QStringLiteral("HH:mm:ss") : QStringLiteral("h:mm:ss AP")));
}

QKXTimeWidget::TimeMode QKXTimeWidgetPrivate::timeMode() const
{
    return mode;
}

void QKXTimeWidgetPrivate::setTimeMode(QKXTimeWidget::TimeMode timeMode)
{
    mode = timeMode;
}

bool QKXTimeWidgetPrivate::isMilitaryTime() const
{
    return militaryTime;
}

void QKXTimeWidgetPrivate::setMilitaryTime(bool military)
{
    militaryTime = military;
}

QKXTimeWidget::QKXTimeWidget(QWidget *parent)
    : QKXWidgetBase(*new QKXTimeWidgetPrivate(this), parent)
{
}

QKXTimeWidget::~QKXTimeWidget() = default;

qlonglong QKXTimeWidget::value() const
{
    Q_D(const QKXTimeWidget);
    return d->value();
}

bool QKXTimeWidget::isMilitaryTime() const
{
    Q_D(const QKXTimeWidget);
    return d->isMilitaryTime();
}

QKXTimeWidget::TimeMode QKXTimeWidget::getTimeMode() const
{
    Q_D(const QKXTimeWidget);
    return d->timeMode();
}

void QKXTimeWidget::setValue(qlonglong value)
{
    Q_D(QKXTimeWidget);
    d->setValue(value);
}

void QKXTimeWidget::setTimeMode(TimeMode mode)
{
    Q_D(QKXTimeWidget);
    d->setTimeMode(mode);
}

void QKXTimeWidget::setMilitaryTime(bool isMil)
{
    Q_D(QKXTimeWidget);
    d->setMilitaryTime(isMil);
}

#include "QKXTimeWidget.moc"
