// SPDX-License-Identifier: BSD-3-Clause
#ifndef METERBAR_HORIZONTALSCALE_H
#define METERBAR_HORIZONTALSCALE_H

#include "norvanehost_export.h"

#include "MeterBar_Scale.h"

// A scale label under one end of a horizontal meter bar, its text centred on that end. It behaves
// as MeterBar_Scale does and carries the same object name.
class NORVANEHOST_EXPORT MeterBar_HorizontalScale : public MeterBar_Scale
{
    Q_OBJECT
public:
    explicit MeterBar_HorizontalScale(const QString &text, QWidget *parent = nullptr);
    ~MeterBar_HorizontalScale() override;

private:
    Q_DISABLE_COPY(MeterBar_HorizontalScale)
};

#endif // METERBAR_HORIZONTALSCALE_H
