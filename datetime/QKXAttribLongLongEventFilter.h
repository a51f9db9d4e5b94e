// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXATTRIBLONGLONGEVENTFILTER_H
#define QKXATTRIBLONGLONGEVENTFILTER_H

#include "QKXEditStateFilter.h"

class QKXAttribLongLongEventFilterPrivate;

// The edit filter of a widget bound to a qlonglong attribute (the date and time widgets). It runs the
// idle/edit machine over the widget's display line edit and carries the popup editor's commit out as
// submit(qlonglong); notify(qlonglong) is for editors that report a value while the edit goes on.
// With an adapter a tap asks the host for the edit lock; without one the edit starts at once.
class STANDALONEPLUGINS_EXPORT QKXAttribLongLongEventFilter : public QKXEditStateFilter
{
    Q_OBJECT
public:
    // The parent is the watched widget; the adapter (may be null) offers the engine's current value
    // through an invokable get() returning qlonglong.
    QKXAttribLongLongEventFilter(QObject *parent, QObject *adapter);
    ~QKXAttribLongLongEventFilter() override;

    // Replaces the adapter and looks the widget's display up again.
    void setAdapter(QObject *adapter);

    // The value read when the current (or last) edit began: the adapter's get(), else the widget's
    // value(). -1 when neither could be read.
    qlonglong savedValue() const;

Q_SIGNALS:
    void submit(qlonglong value);
    void notify(qlonglong value);

protected Q_SLOTS:
    void idleStateInit() override;
    void editStateInit() override;

protected:
    void rememberValue() override;

private:
    Q_DISABLE_COPY(QKXAttribLongLongEventFilter)
    Q_DECLARE_PRIVATE(QKXAttribLongLongEventFilter)
};

#endif // QKXATTRIBLONGLONGEVENTFILTER_H
