#include "QKXDoubleValueList.h"

#include "QKXComboListFrame.h"
#include "QKXComboListItem.h"
#include "QKXListDoubleValueObj.h"
#include "QKXPopupPlacement.h"

#include "GlobalImpl.h"
#include "ValueHelper.h"

#include <QButtonGroup>
#include <QDebug>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <cmath>

QKXDoubleValueList::QKXDoubleValueList(QWidget *parent)
    : QWidget(parent)
    , frame(new QKXComboListFrame(this, nullptr))
    , group(new QButtonGroup(this))
    , layout(new QVBoxLayout(frame))
{
    setObjectName(QStringLiteral("listFrame"));
    setStyleSheet(QStringLiteral("QFrame#listFrame {\tbackground-color: transparent;}"));
    coverScreen();
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // The chosen value leaves before the popup closes.
    connect(group, &QButtonGroup::idClicked, this, &QKXDoubleValueList::translateButtonId);
    connect(group, &QButtonGroup::idClicked, this, &QKXDoubleValueList::hideThis);
    hide();
}

QKXDoubleValueList::~QKXDoubleValueList()
{
    // Buttons left out of the column wait without a parent for the next list.
    for (QAbstractButton *button : group->buttons()) {
        if (!button->parent()) {
            delete button;
        }
    }
}

QWidget *QKXDoubleValueList::widget() const
{
    return registered;
}

QObject *QKXDoubleValueList::filter() const
{
    return registeredFilter;
}

QKXComboListFrame *QKXDoubleValueList::listFrame() const
{
    return frame;
}

QButtonGroup *QKXDoubleValueList::buttonGroup() const
{
    return group;
}

QList<double> QKXDoubleValueList::values() const
{
    return valueList;
}

QStringList QKXDoubleValueList::unitStrings() const
{
    return unitStringList;
}

void QKXDoubleValueList::coverScreen()
{
    if (!isWindow() && parentWidget()) {
        setGeometry(parentWidget()->rect());
        return;
    }
    if (QWidget *desktop = GlobalImpl::getInstance()->desktop()) {
        setGeometry(desktop->isWindow() ? desktop->geometry()
                                        : QRect(desktop->mapToGlobal(QPoint(0, 0)), desktop->size()));
    }
}

void QKXDoubleValueList::registerWidget(QObject *filter, QWidget *widget)
{
    if (registeredFilter) {
        // One edit at a time: the previous filter is let go before the next one is chained.
        unregister();
    }
    registeredFilter = filter;
    if (filter) {
        // Filters and popups address each other by name.
        connect(this, SIGNAL(done()), filter, SIGNAL(editEnd()));
        connect(filter, SIGNAL(editEnd()), this, SLOT(unregister()));
        connect(this, SIGNAL(submit(double,QString)), filter, SIGNAL(submit(double,QString)));
        connect(this, SIGNAL(cancel()), filter, SLOT(cancel()));
    }

    registered = widget;
    auto *list = qobject_cast<QKXListDoubleValueObj *>(widget);
    if (list && list->getParamType() == QLatin1String("List")) {
        processMetaDataForList(list->metaData());
    }

    coverScreen();
    show();
    raise();
    frame->setWidget(widget);
    if (widget) {
        frame->setFixedWidth(qMax(0, widget->width() - 2));
        placeColumn();
    }
}

void QKXDoubleValueList::placeColumn()
{
    frame->adjustSize();
    const QRect anchor = QKXPopupPlacement::rectIn(this, registered);
    const int frameHeight = frame->height();
    int x = anchor.x() + 1;
    int y = anchor.y() + anchor.height();
    if (y + frameHeight > height()) {
        // No room below: the column opens upward, its bottom on the top of the value display.
        const QLineEdit *display = registered->findChild<QLineEdit *>();
        y -= (display ? display->height() : anchor.height()) + frameHeight;
    }
    x = QKXPopupPlacement::keepInside(x, frame->width(), width(), QKXPopupPlacement::KeepStart);
    y = QKXPopupPlacement::keepInside(y, frameHeight, height(), QKXPopupPlacement::KeepStart);
    frame->move(x, y);
    frame->raise();
}

void QKXDoubleValueList::processMetaDataForList(QVariant data)
{
    for (QAbstractButton *button : group->buttons()) {
        button->hide();
        layout->removeWidget(button);
        button->setParent(nullptr);
    }
    valueList.clear();
    unitStringList.clear();

    const QString owner = registered ? registered->objectName() : QString();
    const QVariantList entries = data.toList();
    if (data.isValid() && data.userType() != QMetaType::QVariantList) {
        qDebug().noquote() << "UserInterface - QKXDoubleValueList: values of" << (QLatin1Char('"') + owner + QLatin1Char('"'))
                           << "are not a list - nothing offered";
    }
    // Ids are positions among the accepted entries, so that an id always names a value held here.
    for (int i = 0; i < entries.size(); ++i) {
        const QVariantList entry = entries.at(i).toList();
        bool isNumber = false;
        const double value = entry.size() == 2 ? entry.at(0).toDouble(&isNumber) : 0.0;
        const QString unit = entry.size() == 2 ? entry.at(1).toString() : QString();
        if (!isNumber || !std::isfinite(value) || !ValueHelper::isValidUnits(unit)) {
            qDebug().noquote() << "UserInterface - QKXDoubleValueList: entry" << i << "of"
                               << (QLatin1Char('"') + owner + QLatin1Char('"'))
                               << "is not [value, units string] - left out";
            continue;
        }
        valueList.append(value);
        unitStringList.append(unit);
    }

    for (int id = 0; id < valueList.size(); ++id) {
        const QString caption = QString::number(valueList.at(id), 'g', 6) + QLatin1Char(' ')
            + ValueHelper::getUnitString(ValueHelper::convertToUnits(unitStringList.at(id)));
        auto *button = qobject_cast<QKXComboListItem *>(group->button(id));
        if (!button) {
            button = new QKXComboListItem;
            group->addButton(button, id);
        }
        button->setText(caption);
        button->setObjectName(id == valueList.size() - 1 ? QStringLiteral("lastPushButton")
                                                         : QStringLiteral("cbPushButton"));
        layout->addWidget(button);
        button->show();
    }
}

void QKXDoubleValueList::translateButtonId(int id)
{
    if (id < 0 || id >= valueList.size()) {
        return;
    }
    emit submit(valueList.at(id), unitStringList.at(id));
    emit done();
}

void QKXDoubleValueList::hideThis()
{
    // By now the filter has ended the edit and let the popup go: this done() reaches nobody.
    emit done();
    hide();
}

void QKXDoubleValueList::unregister()
{
    if (QObject *f = registeredFilter) {
        disconnect(f, SIGNAL(editEnd()), this, SLOT(unregister()));
        disconnect(this, nullptr, f, nullptr);
    }
    registeredFilter = nullptr;
    hide();
}

void QKXDoubleValueList::mousePressEvent(QMouseEvent *event)
{
    // Only presses beside the column get here: the column and its buttons take their own.
    event->accept();
    if (registeredFilter) {
        emit cancel();
    }
    hide();
}
