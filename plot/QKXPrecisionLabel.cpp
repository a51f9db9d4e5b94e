// SPDX-License-Identifier: BSD-3-Clause
#include "QKXPrecisionLabel.h"

#include <qwt_text.h>

struct QKXPrecisionLabel::Data
{
    QString precision;
    int decimals = 1;
};

QKXPrecisionLabel::QKXPrecisionLabel(const QString &precision)
    : d(new Data)
{
    setPrecision(precision);
}

QKXPrecisionLabel::~QKXPrecisionLabel() = default;

QString QKXPrecisionLabel::precision() const
{
    return d->precision;
}

void QKXPrecisionLabel::setPrecision(const QString &precision)
{
    d->precision = precision;
    d->decimals = qBound(0, precision.toInt(), 15);
    invalidateCache();
}

QwtText QKXPrecisionLabel::label(double value) const
{
    return QwtText(QString::number(value, 'f', d->decimals), QwtText::PlainText);
}
