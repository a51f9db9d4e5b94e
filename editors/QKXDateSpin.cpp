// SPDX-License-Identifier: BSD-3-Clause
#include "QKXDateSpin.h"

#include "KXDateTimeSpin_p.h"
#include "KXDateTimeSupport_p.h"
#include "QKXPopupChain.h"

#include <QDebug>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QSpinBox>
#include <QVariant>

class QKXDateSpinPrivate
{
public:
    explicit QKXDateSpinPrivate(QKXDateSpin *q) : q_ptr(q) {}

    // Sets the three columns. The day goes in again after the year: the year decides how long
    // February is, and a 29 February set while the column still held a common year was cut to 28.
    void showDate(int month, int day, int year);
    // The days of a month by the editor's leap rule; 0 for a number that is no month.
    static int daysInMonth(int month, int year);
    // A day beyond the new last day becomes the last day: left to the spin box, which wraps, it
    // would come round to 1.
    void setLastDay(int days);

    QKXDateSpin *q_ptr;
    int width = 320;
    int height = 220;
    QKXDateSpin::DateFormat dateFormat = QKXDateSpin::MM_DD_YYYY;
    QSpinBox *monthSpin = nullptr;
    QSpinBox *daySpin = nullptr;
    QSpinBox *yearSpin = nullptr;
    QSpinBox *spinA = nullptr;
    QSpinBox *spinB = nullptr;
    QSpinBox *spinC = nullptr;
    QLabel *labelA = nullptr;
    QLabel *labelB = nullptr;
    QLabel *labelC = nullptr;
    QPushButton *cancelButton = nullptr;
    QPushButton *enterButton = nullptr;
    // Not owned; guarded because the host may delete a screen while its widget is registered.
    QPointer<QWidget> widget;
    QPointer<QObject> filter;

private:
    Q_DECLARE_PUBLIC(QKXDateSpin)
};

void QKXDateSpinPrivate::showDate(int month, int day, int year)
{
    monthSpin->setValue(month);
    daySpin->setValue(day);
    yearSpin->setValue(year);
    daySpin->setValue(day);
}

void QKXDateSpinPrivate::setLastDay(int days)
{
    if (daySpin->value() > days) {
        daySpin->setValue(days);
    }
    daySpin->setMaximum(days);
}

int QKXDateSpinPrivate::daysInMonth(int month, int year)
{
    switch (month) {
    case 1: case 3: case 5: case 7: case 8: case 10: case 12:
        return 31;
    case 4: case 6: case 9: case 11:
        return 30;
    case 2:
        // No century rule: the instrument's calendar has always counted 1900 and 2100 as leap years.
        return year % 4 == 0 ? 29 : 28;
    default:
        return 0;
    }
}

QKXDateSpin::QKXDateSpin(QWidget *parent)
    : ContainerImpl(parent)
    , d_ptr(new QKXDateSpinPrivate(this))
{
    Q_D(QKXDateSpin);
    controlWidget()->hide();
    setMinimumSize(d->width, d->height);
    setNormalSize(d->width, d->height);

    QFrame *content = getContainerFrame();
    auto *grid = new QGridLayout;
    grid->setSpacing(1);
    d->labelA = kxdatetimespin::createLabel(QStringLiteral("MM"), content);
    d->labelB = kxdatetimespin::createLabel(QStringLiteral("DD"), content);
    d->labelC = kxdatetimespin::createLabel(QStringLiteral("YYYY"), content);
    const QList<QLabel *> headings = {d->labelA, d->labelB, d->labelC};
    for (int column = 0; column < headings.size(); ++column) {
        headings.at(column)->setObjectName(QStringLiteral("desc"));
        grid->addWidget(headings.at(column), 0, 2 * column);
    }
    d->spinA = kxdatetimespin::createSpin(content, 1, 12);
    d->spinB = kxdatetimespin::createSpin(content, 1, 31);
    d->spinC = kxdatetimespin::createSpin(content, 0, 9999);
    grid->addWidget(d->spinA, 1, 0);
    grid->addWidget(kxdatetimespin::createLabel(QStringLiteral("/"), content, 15), 1, 1);
    grid->addWidget(d->spinB, 1, 2);
    grid->addWidget(kxdatetimespin::createLabel(QStringLiteral("/"), content, 15), 1, 3);
    grid->addWidget(d->spinC, 1, 4);

    setDateFormat(d->dateFormat);

    auto *buttons = new QGridLayout;
    buttons->setSpacing(1);
    d->cancelButton = new QPushButton(tr("Cancel"), content);
    d->cancelButton->setObjectName(QStringLiteral("entry"));
    d->enterButton = new QPushButton(tr("Enter"), content);
    d->enterButton->setObjectName(QStringLiteral("entry"));
    buttons->addWidget(d->cancelButton, 0, 0);
    buttons->addWidget(kxdatetimespin::createLabel(QString(), content, 45), 1, 0);
    buttons->addWidget(d->enterButton, 2, 0);
    grid->addLayout(buttons, 1, 5);

    content->setStyleSheet(kxdatetimespin::styleSheet(QStringLiteral("QLabel#desc { font: 10px; }")));
    ContainerBase::setLayout(grid);
    ContainerImpl::updateStyle();
    kxdatetimespin::setLeadingZero(d->monthSpin);
    kxdatetimespin::setLeadingZero(d->daySpin);
    connect(d->enterButton, &QPushButton::clicked, this, &QKXDateSpin::enterDate);
    connect(d->cancelButton, &QPushButton::clicked, this, &QKXDateSpin::cancelDate);
}

QKXDateSpin::~QKXDateSpin() = default;

int QKXDateSpin::getWidth() const
{
    Q_D(const QKXDateSpin);
    return d->width;
}

int QKXDateSpin::getHeight() const
{
    Q_D(const QKXDateSpin);
    return d->height;
}

QKXDateSpin::DateFormat QKXDateSpin::getDateFormat() const
{
    Q_D(const QKXDateSpin);
    return d->dateFormat;
}

QDate QKXDateSpin::getDate() const
{
    Q_D(const QKXDateSpin);
    return QDate(d->yearSpin->value(), d->monthSpin->value(), d->daySpin->value());
}

void QKXDateSpin::setDate(QDate date)
{
    Q_D(QKXDateSpin);
    if (!date.isValid()) {
        return;
    }
    d->showDate(date.month(), date.day(), date.year());
    kxdatetimespin::setLeadingZero(d->daySpin);
    kxdatetimespin::setLeadingZero(d->monthSpin);
    kxdatetimespin::setLeadingZero(d->yearSpin);
}

void QKXDateSpin::retranslate()
{
    Q_D(QKXDateSpin);
    d->cancelButton->setText(tr("Cancel"));
    d->enterButton->setText(tr("Enter"));
    ContainerImpl::retranslate();
}

void QKXDateSpin::setDateFormat(QKXDateSpin::DateFormat format)
{
    Q_D(QKXDateSpin);
    d->dateFormat = format;
    const int month = d->monthSpin ? d->monthSpin->value() : 1;
    const int day = d->daySpin ? d->daySpin->value() : 1;
    const int year = d->yearSpin ? d->yearSpin->value() : 9999;
    const auto valueChanged = QOverload<int>::of(&QSpinBox::valueChanged);
    if (d->monthSpin) {
        disconnect(d->monthSpin, valueChanged, this, &QKXDateSpin::modifyMonth);
        disconnect(d->daySpin, valueChanged, this, &QKXDateSpin::modifyDay);
        disconnect(d->yearSpin, valueChanged, this, &QKXDateSpin::modifyYear);
    }

    switch (format) {
    case DD_MM_YYYY:
        d->daySpin = d->spinA;
        d->monthSpin = d->spinB;
        d->yearSpin = d->spinC;
        d->labelA->setText(QStringLiteral("DD"));
        d->labelB->setText(QStringLiteral("MM"));
        d->labelC->setText(QStringLiteral("YYYY"));
        break;
    case YYYY_MM_DD:
        d->yearSpin = d->spinA;
        d->monthSpin = d->spinB;
        d->daySpin = d->spinC;
        d->labelA->setText(QStringLiteral("YYYY"));
        d->labelB->setText(QStringLiteral("MM"));
        d->labelC->setText(QStringLiteral("DD"));
        break;
    default:
        d->monthSpin = d->spinA;
        d->daySpin = d->spinB;
        d->yearSpin = d->spinC;
        d->labelA->setText(QStringLiteral("MM"));
        d->labelB->setText(QStringLiteral("DD"));
        d->labelC->setText(QStringLiteral("YYYY"));
        break;
    }

    connect(d->monthSpin, valueChanged, this, &QKXDateSpin::modifyMonth);
    connect(d->daySpin, valueChanged, this, &QKXDateSpin::modifyDay);
    connect(d->yearSpin, valueChanged, this, &QKXDateSpin::modifyYear);
    // The columns swap roles, so each takes its role's whole range: a year column turned day
    // column must not keep the year's 0.
    d->monthSpin->setRange(1, 12);
    d->daySpin->setRange(1, 31);
    d->yearSpin->setRange(0, 9999);
    d->showDate(month, day, year);
    modifyMonth();
    modifyDay();
    modifyYear();
}

void QKXDateSpin::modifyMonth()
{
    Q_D(QKXDateSpin);
    kxdatetimespin::setLeadingZero(d->monthSpin);
    const int days = QKXDateSpinPrivate::daysInMonth(d->monthSpin->value(), d->yearSpin->value());
    if (days > 0) {
        d->setLastDay(days);
    }
}

void QKXDateSpin::modifyDay()
{
    Q_D(QKXDateSpin);
    kxdatetimespin::setLeadingZero(d->daySpin);
}

void QKXDateSpin::modifyYear()
{
    Q_D(QKXDateSpin);
    if (d->monthSpin->value() == 2) {
        d->setLastDay(QKXDateSpinPrivate::daysInMonth(2, d->yearSpin->value()));
    }
}

void QKXDateSpin::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXDateSpin);
    if (!filter) {
        qDebug().noquote() << "UserInterface - QKXDateSpin::registerWidget: no filter to commit to - not opened";
        return;
    }
    // A registration still held, if any: also the same filter, when a tap on a widget without adapter
    // starts its edit again while the editor is open.
    QKXPopupChain::unchain(this, d->filter);
    d->filter = filter;
    d->widget = widget;

    const QVariant format = widget ? widget->property("inputFormat") : QVariant();
    if (!format.isValid()) {
        setDateFormat(MM_DD_YYYY);
    } else if (format.toInt() >= MM_DD_YYYY && format.toInt() <= YYYY_MM_DD) {
        setDateFormat(DateFormat(format.toInt()));
    }

    QDate date = QDate::currentDate();
    const QVariant value = widget ? widget->property("Value") : QVariant();
    if (value.isValid()) {
        bool isNumber = false;
        const qlonglong seconds = value.toLongLong(&isNumber);
        if (isNumber && kxdatetime::isInRange(seconds)) {
            date = kxdatetime::localDateTime(seconds).date();
        } else {
            kxdatetime::reportOutOfRange("QKXDateSpin", widget, "Value", value, "opening on today's date");
        }
    }
    setDate(date);

    QKXPopupChain::chain(this, filter, SIGNAL(cancelEntry()), SIGNAL(editEnd()));
    QKXPopupChain::forward(this, filter, SIGNAL(submit(qlonglong)));
    show();
}

void QKXDateSpin::unregister()
{
    Q_D(QKXDateSpin);
    QKXPopupChain::unchain(this, d->filter);
    d->filter = nullptr;
    d->widget = nullptr;
    hide();
    // Reaches nobody now that the chain is cut; hosts watching the editor hear that it closed.
    emit editEnd();
}

void QKXDateSpin::enterDate()
{
    Q_D(QKXDateSpin);
    const QDate date = getDate();
    qlonglong seconds = 0;
    if (!kxdatetime::toSeconds(kxdatetime::localDateTime(date, QTime::currentTime()), &seconds)) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXDateSpin \"%1\": %2-%3-%4 has no count of seconds"
                                             " from 0 to %5 - nothing submitted")
                                  .arg(d->widget ? d->widget->objectName() : QString())
                                  .arg(d->yearSpin->value(), 4, 10, QLatin1Char('0'))
                                  .arg(d->monthSpin->value(), 2, 10, QLatin1Char('0'))
                                  .arg(d->daySpin->value(), 2, 10, QLatin1Char('0'))
                                  .arg(kxdatetime::LastSecond);
        return;
    }
    emit submit(seconds);
    emit editEnd();
}

void QKXDateSpin::cancelDate()
{
    hide();
    emit cancelEntry();
}

void QKXDateSpin::showEvent(QShowEvent *event)
{
    Q_D(QKXDateSpin);
    if (d->widget) {
        kxdatetimespin::placeBeside(this, d->widget);
    }
    ContainerImpl::showEvent(event);
}
