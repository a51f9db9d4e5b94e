// SPDX-License-Identifier: BSD-3-Clause
#include "QKXDateWidget.h"

#include "KXDateTimeSupport_p.h"
#include "QKXWidgetBase_p.h"

#include <QLineEdit>

class QKXDateWidgetPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXDateWidgetPrivate(QKXDateWidget *q)
        : QKXWidgetBasePrivate(q)
        , readOnlyStyle(kxdatetime::readOnlyOverlay())
        , lockedStyle(kxdatetime::lockedOverlay())
        , maxStyle(kxdatetime::largeStyle())
        , minStyle(kxdatetime::compactStyle())
    {
    }

    void init() override;
    void updateStyle() override;

    virtual qlonglong value() const;
    virtual void setValue(qlonglong value);
    virtual QKXDateWidget::InputDateFormat inputFormat() const;
    virtual void setInputFormat(QKXDateWidget::InputDateFormat format);
    virtual QKXDateWidget::DisplayDateFormat displayFormat() const;
    virtual void setDisplayFormat(QKXDateWidget::DisplayDateFormat format);
    // The date pattern of a display format; a value outside the enumeration gets the first one's.
    virtual QString formatStringFromDiaplay(QKXDateWidget::DisplayDateFormat format) const;

    QLineEdit *display = nullptr;
    QString readOnlyStyle;
    QString lockedStyle;
    QString maxStyle;
    QString minStyle;
    qlonglong dateValue = -1;
    QKXDateWidget::InputDateFormat inputDateFormat = QKXDateWidget::MM_DD_YYYY;
    QKXDateWidget::DisplayDateFormat displayDateFormat = QKXDateWidget::MM_dd_yyyy;

private:
    KX_DECLARE_PUBLIC(QKXDateWidget)
};

void QKXDateWidgetPrivate::init()
{
    display = kxdatetime::buildField(this);
    updateStyle();
}

void QKXDateWidgetPrivate::updateStyle()
{
    setOverlaidStyles(minStyle, maxStyle, lockedStyle, readOnlyStyle);
}

qlonglong QKXDateWidgetPrivate::value() const
{
    return dateValue;
}

void QKXDateWidgetPrivate::setValue(qlonglong value)
{
    if (!kxdatetime::isInRange(value)) {
        kxdatetime::reportOutOfRange("QKXDateWidget", q, "value", value, "display kept");
        return;
    }
    dateValue = value;
    display->setText(kxdatetime::text(kxdatetime::localDateTime(value), formatStringFromDiaplay(displayDateFormat)));
}

QKXDateWidget::InputDateFormat QKXDateWidgetPrivate::inputFormat() const
{
    return inputDateFormat;
}

void QKXDateWidgetPrivate::setInputFormat(QKXDateWidget::InputDateFormat format)
{
    inputDateFormat = format;
}

QKXDateWidget::DisplayDateFormat QKXDateWidgetPrivate::displayFormat() const
{
    return displayDateFormat;
}

void QKXDateWidgetPrivate::setDisplayFormat(QKXDateWidget::DisplayDateFormat format)
{
    displayDateFormat = format;
}

QString QKXDateWidgetPrivate::formatStringFromDiaplay(QKXDateWidget::DisplayDateFormat format) const
{
    switch (format) {
    case QKXDateWidget::dd_MM_yyyy:
        return QStringLiteral("dd MM yyyy");
    case QKXDateWidget::MMM_d_YYYY:
        return QStringLiteral("MMM d, yyyy");
    default:
        return QStringLiteral("MM dd, yyyy");
    }
}

QKXDateWidget::QKXDateWidget(QWidget *parent)
    : QKXWidgetBase(*new QKXDateWidgetPrivate(this), parent)
{
}

QKXDateWidget::~QKXDateWidget() = default;

qlonglong QKXDateWidget::value() const
{
    Q_D(const QKXDateWidget);
    return d->value();
}

QKXDateWidget::InputDateFormat QKXDateWidget::inputFormat() const
{
    Q_D(const QKXDateWidget);
    return d->inputFormat();
}

QKXDateWidget::DisplayDateFormat QKXDateWidget::displayFormat() const
{
    Q_D(const QKXDateWidget);
    return d->displayFormat();
}

void QKXDateWidget::setValue(qlonglong value)
{
    Q_D(QKXDateWidget);
    d->setValue(value);
}

void QKXDateWidget::setInputFormat(InputDateFormat dateFormat)
{
    Q_D(QKXDateWidget);
    d->setInputFormat(dateFormat);
}

void QKXDateWidget::setDisplayFormat(DisplayDateFormat dateFormat)
{
    Q_D(QKXDateWidget);
    d->setDisplayFormat(dateFormat);
}

#include "QKXDateWidget.moc"
