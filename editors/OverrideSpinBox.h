// SPDX-License-Identifier: BSD-3-Clause
#ifndef OVERRIDESPINBOX_H
#define OVERRIDESPINBOX_H

#include "standaloneplugins_export.h"

#include <QSpinBox>

// The spin boxes of the date and time editors. A class of their own only so that style sheets and
// tests can tell them from other spin boxes by class name.
class STANDALONEPLUGINS_EXPORT OverrideSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit OverrideSpinBox(QWidget *parent = nullptr) : QSpinBox(parent) {}
};

#endif // OVERRIDESPINBOX_H
