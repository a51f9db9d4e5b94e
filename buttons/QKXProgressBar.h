// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPROGRESSBAR_H
#define QKXPROGRESSBAR_H

#include "QKXWidgetBase.h"

class QKXProgressBarPrivate;

// A read-only bar with a caption for an integer engine value, in a compact ("Min") and a large
// ("Max") look.
class STANDALONEPLUGINS_EXPORT QKXProgressBar : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(int Value READ value WRITE setValue DESIGNABLE true STORED true)

public:
    explicit QKXProgressBar(QWidget *parent = nullptr);
    ~QKXProgressBar() override;

    Q_INVOKABLE int value() const;

public Q_SLOTS:
    // The range is 0 to 100 and nothing changes it. A value whose percentage falls outside is stored
    // and reported; the bar keeps what it shows.
    void setValue(int value);
    // For engines that publish progress as a floating-point number: the value is taken toward zero;
    // NaN, the infinities and values beyond int are refused and the bar keeps what it shows. (A double
    // written to the int Value property is converted by Qt first, NaN to 0, so such engines call this.)
    void setValue(double value);

private:
    Q_DISABLE_COPY(QKXProgressBar)
    Q_DECLARE_PRIVATE(QKXProgressBar)
};

#endif // QKXPROGRESSBAR_H
