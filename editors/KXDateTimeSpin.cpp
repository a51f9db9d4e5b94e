// SPDX-License-Identifier: BSD-3-Clause
#include "KXDateTimeSpin_p.h"

#include "OverrideSpinBox.h"
#include "QKXPopupPlacement.h"

#include "ContainerImpl.h"

#include <QLabel>
#include <QLineEdit>

namespace kxdatetimespin {

QString styleSheet(const QString &labelRule)
{
    static const QString sheet = QStringLiteral(R"(
QLabel { background-color: transparent; font: 30px; color: white; selection-color: white; selection-background-color: black; }
%1
QPushButton { color: white; background-color: transparent; border: 1px solid white; font-size: 12px; border-radius: 10px; min-width: 45px; min-height: 45px; }
QPushButton:disabled { background-color: #555; }
QPushButton:pressed { color: black; background-color: #fff; }
QSpinBox { background-color: transparent; padding-top: 45px; padding-bottom: 45px; font: 30px; min-width: 50px; min-height: 85px; color: white; selection-background-color: transparent; }
QSpinBox::up-button { subcontrol-origin: border; subcontrol-position: top; width: 45px; height: 45px; background-color: transparent; border: 1px solid white; border-radius: 10px; font-size: 35px; image: url(:/images/up_triangle.svg); }
QSpinBox::down-button { subcontrol-origin: border; subcontrol-position: bottom; width: 45px; height: 45px; background-color: transparent; border: 1px solid white; border-radius: 10px; font-size: 35px; image: url(:/images/down_triangle.svg); }
QSpinBox::up-button:pressed, QSpinBox::down-button:pressed { color: black; background-color: #fff; }
)");
    return sheet.arg(labelRule);
}

QSpinBox *createSpin(QWidget *parent, int minimum, int maximum)
{
    auto *spin = new OverrideSpinBox(parent);
    spin->setRange(minimum, maximum);
    spin->setSingleStep(1);
    spin->setPrefix(QString());
    spin->setSuffix(QString());
    // Values change only through the arrows: a keyboard would cover the editor.
    if (QLineEdit *edit = spin->findChild<QLineEdit *>()) {
        edit->setReadOnly(true);
    }
    spin->setAlignment(Qt::AlignHCenter);
    spin->setWrapping(true);
    return spin;
}

QLabel *createLabel(const QString &text, QWidget *parent, int maximumWidth)
{
    auto *label = new QLabel(text, parent);
    label->setAlignment(Qt::AlignCenter);
    label->setEnabled(false);
    if (maximumWidth >= 0) {
        label->setMaximumWidth(maximumWidth);
        label->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Minimum);
    }
    return label;
}

void setLeadingZero(QSpinBox *spin)
{
    spin->setPrefix(spin->value() <= 9 ? QStringLiteral("0") : QString());
}

void placeBeside(ContainerImpl *editor, const QWidget *widget)
{
    if (!editor->normalSize().isEmpty()) {
        editor->resize(editor->normalSize());
    }
    const QPoint place = QKXPopupPlacement::besideWidget(editor, widget, editor->size());
    editor->move(place.x(), place.y());
}

} // namespace kxdatetimespin
