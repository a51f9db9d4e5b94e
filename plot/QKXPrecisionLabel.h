// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPRECISIONLABEL_H
#define QKXPRECISIONLABEL_H

#include "standaloneplugins_export.h"

#include <QScopedPointer>
#include <QString>
#include <qwt_scale_draw.h>

// Axis labels with a fixed number of decimals, given as text ("1", "3") the way forms write it.
class STANDALONEPLUGINS_EXPORT QKXPrecisionLabel : public QwtScaleDraw
{
public:
    explicit QKXPrecisionLabel(const QString &precision = QStringLiteral("1"));
    ~QKXPrecisionLabel() override;

    QString precision() const;
    // A text that is no number counts as 0 decimals; more than 15 are not shown.
    void setPrecision(const QString &precision);

    QwtText label(double value) const override;

private:
    Q_DISABLE_COPY(QKXPrecisionLabel)
    struct Data;
    QScopedPointer<Data> d;
};

#endif // QKXPRECISIONLABEL_H
