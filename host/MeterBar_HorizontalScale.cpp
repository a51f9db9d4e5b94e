// SPDX-License-Identifier: BSD-3-Clause
#include "MeterBar_HorizontalScale.h"

MeterBar_HorizontalScale::MeterBar_HorizontalScale(const QString &text, QWidget *parent)
    : MeterBar_Scale(text, parent)
{
    setAlignment(Qt::AlignCenter);
}

MeterBar_HorizontalScale::~MeterBar_HorizontalScale() = default;
