// SPDX-License-Identifier: BSD-3-Clause
#include "QKXdPMRKeypad.h"
#include "QKXKeyPadBase_p.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedLayout>

QKXdPMRKeypad::QKXdPMRKeypad(QWidget *parent)
    : QKXKeyPadBase(parent)
{
    Q_D(QKXKeyPadBase);
    controlWidget()->hide();
    setNormalSize(d->normalWidth, d->normalHeight);
    setObjectName(QStringLiteral("QKXdPMRKeypad"));
    QKXdPMRKeypad::createNumpadButtons();
    d->keyRow->setStretchFactor(d->digitGrid, 3);
    d->keyRow->setStretchFactor(d->enterStack, 1);
    d->enterStack->setCurrentIndex(0);
    resize(d->normalWidth, d->normalHeight);
}

QKXdPMRKeypad::~QKXdPMRKeypad() = default;

void QKXdPMRKeypad::createNumpadButtons()
{
    Q_D(QKXKeyPadBase);
    QPushButton *star = createButton(tr("*"), SLOT(buttonPress()), QStringLiteral("kbBtnBottomLeft"));
    d->buttons.insert(QStringLiteral("star"), star);
    d->digitGrid->addWidget(star, d->gridRow + 1, 0);
    // No key lies below 9 or right of 0: they close the outline there.
    d->buttons.value(QStringLiteral("9"))->setObjectName(QStringLiteral("kbBtnBottom"));
    d->buttons.value(QStringLiteral("0"))->setObjectName(QStringLiteral("kbBtnRightBottom"));
}

void QKXdPMRKeypad::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXKeyPadBase);
    d->registerTextField(filter, widget, "UserInterface - QKXdPMRKeypad attempting to register unknown data type:");
}

void QKXdPMRKeypad::buttonPress()
{
    Q_D(QKXKeyPadBase);
    d->typeKey(qobject_cast<QPushButton *>(sender()));
}

void QKXdPMRKeypad::buttonSubmit()
{
    Q_D(QKXKeyPadBase);
    if (!d->entry) {
        return;
    }
    emit submit(d->entry->text());
    emit done();
}
