// SPDX-License-Identifier: BSD-3-Clause
#include "QKXTimeSpin.h"

#include "KXDateTimeSpin_p.h"
#include "KXDateTimeSupport_p.h"
#include "QKXPopupChain.h"

#include <QDateTime>
#include <QDebug>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QSpinBox>
#include <QVariant>

namespace {
// The mode label's texts; the label is also what the editor reads back as its state.
const QString kx_24h = QStringLiteral("24h");
const QString kx_am = QStringLiteral("AM");
const QString kx_pm = QStringLiteral("PM");
} // namespace

class QKXTimeSpinPrivate
{
public:
    explicit QKXTimeSpinPrivate(QKXTimeSpin *q) : q_ptr(q) {}

    QKXTimeSpin *q_ptr;
    int width = 300;
    int height = 200;
    QSpinBox *hourSpin = nullptr;
    QSpinBox *minuteSpin = nullptr;
    QSpinBox *secondSpin = nullptr;
    QLabel *modeLabel = nullptr;
    QPushButton *apButton = nullptr;
    QPushButton *milButton = nullptr;
    // Not owned; guarded because the host may delete a screen while its widget is registered.
    QPointer<QWidget> widget;
    QPointer<QObject> filter;
    QPushButton *cancelButton = nullptr;
    QPushButton *enterButton = nullptr;
    bool twelveHour = false;

private:
    Q_DECLARE_PUBLIC(QKXTimeSpin)
};

QKXTimeSpin::QKXTimeSpin(QWidget *parent)
    : ContainerImpl(parent)
    , d_ptr(new QKXTimeSpinPrivate(this))
{
    Q_D(QKXTimeSpin);
    controlWidget()->hide();
    setMinimumSize(d->width, d->height);
    setNormalSize(d->width, d->height);

    QFrame *content = getContainerFrame();
    d->hourSpin = kxdatetimespin::createSpin(content, 0, 23);
    d->minuteSpin = kxdatetimespin::createSpin(content, 0, 59);
    d->secondSpin = kxdatetimespin::createSpin(content, 0, 59);
    auto *spins = new QHBoxLayout;
    spins->setSpacing(1);
    spins->setContentsMargins(0, 0, 0, 0);
    spins->addWidget(d->hourSpin);
    spins->addWidget(kxdatetimespin::createLabel(QStringLiteral(":"), content, 15));
    spins->addWidget(d->minuteSpin);
    spins->addWidget(kxdatetimespin::createLabel(QStringLiteral(":"), content, 15));
    spins->addWidget(d->secondSpin);

    d->modeLabel = new QLabel(kx_24h, content);
    d->modeLabel->setObjectName(QStringLiteral("mode"));
    d->modeLabel->setAlignment(Qt::AlignCenter);
    d->modeLabel->setMaximumWidth(80);
    d->apButton = new QPushButton(QStringLiteral("AM/PM"), content);
    d->apButton->setObjectName(QStringLiteral("APtoggle"));
    d->milButton = new QPushButton(QStringLiteral("12/24"), content);
    d->milButton->setObjectName(QStringLiteral("Miltoggle"));
    d->cancelButton = new QPushButton(tr("Cancel"), content);
    d->cancelButton->setObjectName(QStringLiteral("entry"));
    d->enterButton = new QPushButton(tr("Enter"), content);
    d->enterButton->setObjectName(QStringLiteral("entry"));
    auto *keys = new QGridLayout;
    keys->setContentsMargins(0, 0, 0, 0);
    keys->addWidget(d->apButton, 0, 1);
    keys->addWidget(d->cancelButton, 0, 2);
    keys->addWidget(d->modeLabel, 1, 0, 1, 2);
    keys->addWidget(d->milButton, 2, 1);
    keys->addWidget(d->enterButton, 2, 2);

    auto *box = new QHBoxLayout;
    box->addLayout(spins);
    box->addLayout(keys);
    content->setStyleSheet(kxdatetimespin::styleSheet(QStringLiteral("QLabel#mode { font: 30px; }")));
    ContainerBase::setLayout(box);
    ContainerImpl::updateStyle();
    modifyAllPrefixes();

    const auto valueChanged = QOverload<int>::of(&QSpinBox::valueChanged);
    connect(d->hourSpin, valueChanged, this, &QKXTimeSpin::modifyHour);
    connect(d->minuteSpin, valueChanged, this, &QKXTimeSpin::modifyMinute);
    connect(d->secondSpin, valueChanged, this, &QKXTimeSpin::modifySecond);
    connect(d->apButton, &QPushButton::clicked, this, &QKXTimeSpin::toggleAP);
    connect(d->milButton, &QPushButton::clicked, this, &QKXTimeSpin::toggleMil);
    connect(d->enterButton, &QPushButton::clicked, this, &QKXTimeSpin::enterTime);
    connect(d->cancelButton, &QPushButton::clicked, this, &QKXTimeSpin::cancelTime);
}

QKXTimeSpin::~QKXTimeSpin() = default;

int QKXTimeSpin::getWidth() const
{
    Q_D(const QKXTimeSpin);
    return d->width;
}

int QKXTimeSpin::getHeight() const
{
    Q_D(const QKXTimeSpin);
    return d->height;
}

QTime QKXTimeSpin::getTime() const
{
    Q_D(const QKXTimeSpin);
    int hour = d->hourSpin->value();
    const QString mode = d->modeLabel->text();
    if (mode == kx_am && hour == 12) {
        hour = 0;
    } else if (mode == kx_pm && hour < 12) {
        hour += 12;
    }
    return QTime(hour, d->minuteSpin->value(), d->secondSpin->value(), 0);
}

void QKXTimeSpin::setTime(qlonglong time)
{
    Q_D(QKXTimeSpin);
    if (!kxdatetime::isInRange(time)) {
        kxdatetime::reportOutOfRange("QKXTimeSpin", d->widget, "time", time, "time kept");
        return;
    }
    const QTime local = kxdatetime::localDateTime(time).time();
    if (!d->twelveHour) {
        d->modeLabel->setText(kx_24h);
        d->hourSpin->setRange(0, 23);
        d->hourSpin->setValue(local.hour());
    } else {
        d->hourSpin->setValue(local.hour());
        convert24ToAPM(local.hour());
    }
    d->minuteSpin->setValue(local.minute());
    d->secondSpin->setValue(local.second());
    modifyAllPrefixes();
}

void QKXTimeSpin::convert24ToAPM(int hour)
{
    Q_D(QKXTimeSpin);
    int shown = hour;
    if (hour < 12) {
        d->modeLabel->setText(kx_am);
        if (hour == 0) {
            shown = 12;
        }
    } else {
        d->modeLabel->setText(kx_pm);
        if (hour != 12) {
            shown = hour - 12;
        }
    }
    d->hourSpin->setRange(1, 12);
    d->hourSpin->setValue(shown);
}

void QKXTimeSpin::modifySpinPrefix(QSpinBox *spin)
{
    kxdatetimespin::setLeadingZero(spin);
}

void QKXTimeSpin::modifyAllPrefixes()
{
    Q_D(QKXTimeSpin);
    modifySpinPrefix(d->hourSpin);
    modifySpinPrefix(d->minuteSpin);
    modifySpinPrefix(d->secondSpin);
}

void QKXTimeSpin::retranslate()
{
    Q_D(QKXTimeSpin);
    d->cancelButton->setText(tr("Cancel"));
    d->enterButton->setText(tr("Enter"));
    ContainerImpl::retranslate();
}

void QKXTimeSpin::modifyHour()
{
    Q_D(QKXTimeSpin);
    modifySpinPrefix(d->hourSpin);
}

void QKXTimeSpin::modifyMinute()
{
    Q_D(QKXTimeSpin);
    modifySpinPrefix(d->minuteSpin);
}

void QKXTimeSpin::modifySecond()
{
    Q_D(QKXTimeSpin);
    modifySpinPrefix(d->secondSpin);
}

void QKXTimeSpin::toggleAP()
{
    Q_D(QKXTimeSpin);
    const QString mode = d->modeLabel->text();
    if (mode == kx_24h) {
        convert24ToAPM(d->hourSpin->value());
    } else {
        // The hour stays: 3 AM becomes 3 PM, 12 AM (midnight) 12 PM (noon).
        d->modeLabel->setText(mode == kx_am ? kx_pm : kx_am);
    }
    d->hourSpin->setRange(1, 12);
}

void QKXTimeSpin::toggleMil()
{
    Q_D(QKXTimeSpin);
    const QString mode = d->modeLabel->text();
    if (mode == kx_24h) {
        convert24ToAPM(d->hourSpin->value());
        return;
    }
    int hour = d->hourSpin->value();
    if (mode == kx_pm && hour != 12) {
        hour += 12;
    } else if (mode == kx_am && hour == 12) {
        hour = 0;
    }
    d->hourSpin->setRange(0, 23);
    d->hourSpin->setValue(hour);
    d->modeLabel->setText(kx_24h);
}

void QKXTimeSpin::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXTimeSpin);
    if (!filter) {
        qDebug().noquote() << "UserInterface - QKXTimeSpin::registerWidget: no filter to commit to - not opened";
        return;
    }
    // A registration still held, if any: also the same filter, when a tap on a widget without adapter
    // starts its edit again while the editor is open.
    QKXPopupChain::unchain(this, d->filter);
    d->filter = filter;
    d->widget = widget;

    const QVariant military = widget ? widget->property("UseMilitaryTime") : QVariant();
    d->twelveHour = military.isValid() && !military.toBool();

    qlonglong time = QDateTime::currentSecsSinceEpoch();
    const QVariant value = widget ? widget->property("Value") : QVariant();
    if (value.isValid()) {
        bool isNumber = false;
        const qlonglong seconds = value.toLongLong(&isNumber);
        if (isNumber && kxdatetime::isInRange(seconds)) {
            time = seconds;
        } else {
            kxdatetime::reportOutOfRange("QKXTimeSpin", widget, "Value", value, "opening on the current time");
        }
    }
    setTime(time);

    QKXPopupChain::chain(this, filter, SIGNAL(cancelEntry()), SIGNAL(editEnd()));
    QKXPopupChain::forward(this, filter, SIGNAL(submit(qlonglong)));
    show();
}

void QKXTimeSpin::unregister()
{
    Q_D(QKXTimeSpin);
    QKXPopupChain::unchain(this, d->filter);
    d->filter = nullptr;
    d->widget = nullptr;
    hide();
    // Reaches nobody now that the chain is cut; hosts watching the editor hear that it closed.
    emit editEnd();
}

void QKXTimeSpin::enterTime()
{
    Q_D(QKXTimeSpin);
    const QTime time = getTime();
    qlonglong seconds = 0;
    if (!kxdatetime::toSeconds(kxdatetime::localDateTime(QDate::currentDate(), time), &seconds)) {
        qDebug().noquote() << QStringLiteral("UserInterface - QKXTimeSpin \"%1\": today at %2 has no count of seconds"
                                             " from 0 to %3 - nothing submitted")
                                  .arg(d->widget ? d->widget->objectName() : QString(), time.toString(Qt::ISODate))
                                  .arg(kxdatetime::LastSecond);
        return;
    }
    emit submit(seconds);
    emit editEnd();
}

void QKXTimeSpin::cancelTime()
{
    hide();
    emit cancelEntry();
}

void QKXTimeSpin::showEvent(QShowEvent *event)
{
    Q_D(QKXTimeSpin);
    if (d->widget) {
        kxdatetimespin::placeBeside(this, d->widget);
    }
    ContainerImpl::showEvent(event);
}
