// SPDX-License-Identifier: BSD-3-Clause
#ifndef METERBAR_SCALE_H
#define METERBAR_SCALE_H

#include "norvanehost_export.h"

#include <QLabel>

// A scale label at one end of a meter bar ("0.50 W"). It is placed by hand, outside any layout, so
// it keeps itself exactly as large as its text in the look in force: after a new text, a new style
// sheet or a new font. Its object name, "MetBar_Scale", is what meter style sheets select on.
class NORVANEHOST_EXPORT MeterBar_Scale : public QLabel
{
    Q_OBJECT
public:
    explicit MeterBar_Scale(const QString &text, QWidget *parent = nullptr);
    ~MeterBar_Scale() override;

    // Meters set the same text with nearly every reading: an unchanged text costs a comparison.
    void setText(const QString &text);

protected:
    bool event(QEvent *event) override;

private:
    Q_DISABLE_COPY(MeterBar_Scale)
};

#endif // METERBAR_SCALE_H
