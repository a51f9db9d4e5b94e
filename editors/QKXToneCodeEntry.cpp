// SPDX-License-Identifier: BSD-3-Clause
#include "QKXToneCodeEntry.h"
#include "QKXKeyPadBase_p.h"

#include <QGridLayout>
#include <QPushButton>

QKXToneCodeEntry::QKXToneCodeEntry(QWidget *parent)
    : QKXNumpad(parent)
{
    Q_D(QKXKeyPadBase);
    setObjectName(QStringLiteral("QKXToneCodeEntry"));
    d->dataType = QStringLiteral("TextString");
    for (const char *name : {"dot", "plmin", "enter"}) {
        d->buttons.value(QLatin1String(name))->hide();
    }
    createToneCodeButtons();
    for (int digit = 0; digit <= 9; ++digit) {
        d->buttons.value(QString::number(digit))->setEnabled(true);
    }
    // The hexadecimal layout: A to F beside the digits, with that page's own Enter.
    resizeNumpad(318, 400, true);
}

QKXToneCodeEntry::~QKXToneCodeEntry() = default;

void QKXToneCodeEntry::createToneCodeButtons()
{
    Q_D(QKXKeyPadBase);
    // No key lies below 9 or right of 0: they close the outline there.
    d->buttons.value(QStringLiteral("9"))->setObjectName(QStringLiteral("kbBtnBottom"));
    d->buttons.value(QStringLiteral("0"))->setObjectName(QStringLiteral("kbBtnRightBottom"));
    QPushButton *dash = createButton(tr("-"), SLOT(buttonPress()), QStringLiteral("kbBtnBottomLeft"));
    d->buttons.insert(QStringLiteral("dash"), dash);
    // The dash takes the decimal point's place.
    QPushButton *dot = d->buttons.value(QStringLiteral("dot"));
    int row = 0;
    int column = 0;
    int rowSpan = 1;
    int columnSpan = 1;
    d->digitGrid->getItemPosition(d->digitGrid->indexOf(dot), &row, &column, &rowSpan, &columnSpan);
    d->digitGrid->removeWidget(dot);
    d->digitGrid->addWidget(dash, row, column);
}

void QKXToneCodeEntry::registerWidget(QObject *filter, QWidget *widget)
{
    Q_D(QKXKeyPadBase);
    d->registerTextField(filter, widget, nullptr);
}
