// SPDX-License-Identifier: BSD-3-Clause
#include "QKXDoubleValueList.h"

#include "QKXComboListFrame.h"
#include "QKXComboListItem.h"
#include "QKXListDoubleValueObj.h"
#include "QKXPopupChain.h"
#include "QKXPopupPlacement.h"

#include "GlobalImpl.h"
#include "SystemModule.h"
#include "ValueHelper.h"

#include <QButtonGroup>
#include <QDebug>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>


QKXDoubleValueList::QKXDoubleValueList(QWidget *parent)
    : QWidget(parent)
    , frame(new QKXComboListFrame(this, nullptr))
    , group(new QButtonGroup(this))
    , layout(new QVBoxLayout(frame))
{
    setObjectName(QStringLiteral("listFrame"));
    setStyleSheet(QStringLiteral("QFrame#listFrame {\tbackground-color: transparent;}"));
    QKXPopupPlacement::coverArea(this);
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

void QKXDoubleValueList::registerWidget(QObject *filter, QWidget *widget)
{
    if (registeredFilter) {
        // One edit at a time: the previous filter is let go before the next one is chained.
        unregister();
    }
    registeredFilter = filter;
    // No cancel: the list gives a tap beside it no meaning.
    QKXPopupChain::chain(this, filter, nullptr, SIGNAL(done()));
    QKXPopupChain::forward(this, filter, SIGNAL(submit(double,QString)));

    registered = widget;
    auto *list = qobject_cast<QKXListDoubleValueObj *>(widget);
    if (list && list->getParamType() == QLatin1String("List")) {
        processMetaDataForList(list->metaData());
    }

    QKXPopupPlacement::coverArea(this);
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
    // The widget's corner in the main window's coordinates, which the popup covering that window
    // shares. Hosts' screens are laid out for the column's place as it is: the widget's own x comes
    // on top of its corner, 10 pixels back.
    QWidget *mainWindow = GlobalImpl::getInstance()->systemModule()->getSystemScreen(QStringLiteral("MainWindow"));
    const QPoint corner = QKXPopupPlacement::rectIn(mainWindow ? mainWindow : this, registered).topLeft();
    const int frameHeight = frame->height();
    const int x = registered->x() + corner.x() - 10;
    int y = corner.y() + registered->height();
    if (y + frameHeight > height()) {
        // No room below: the column opens upward, over the value display.
        const QLineEdit *display = registered->findChild<QLineEdit *>();
        y -= (display ? display->height() : registered->height()) + frameHeight;
    }
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
    // Ids are positions among the entries kept, so that an id always names a value held here. Only
    // an entry too short to hold a value and a units string is left out; the rest read as numbers and
    // units strings read (a text that is no number is 0).
    for (int i = 0; i < entries.size(); ++i) {
        const QVariantList entry = entries.at(i).toList();
        if (entry.size() < 2) {
            qDebug().noquote() << "UserInterface - QKXDoubleValueList: entry" << i << "of"
                               << (QLatin1Char('"') + owner + QLatin1Char('"'))
                               << "is not [value, units string] - left out";
            continue;
        }
        valueList.append(entry.at(0).toDouble());
        unitStringList.append(entry.at(1).toString());
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
    QKXPopupChain::unchain(this, registeredFilter);
    registeredFilter = nullptr;
    hide();
}

void QKXDoubleValueList::mousePressEvent(QMouseEvent *event)
{
    // Only presses beside the column get here. They mean nothing: the edit ends through its filter
    // (a choice, or the field going away).
    event->accept();
}
