// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXWIDGETBASE_H
#define QKXWIDGETBASE_H

#include "standaloneplugins_export.h"

#include <QScopedPointer>
#include <QWidget>

class QKXWidgetBasePrivate;

// Common base of every widget that stands for one engine attribute. All state lives in the Private;
// every accessor forwards to a virtual operation there, so each widget family changes behaviour by
// overriding its own Private.
class STANDALONEPLUGINS_EXPORT QKXWidgetBase : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString AttributeName READ attributeName WRITE setAttributeName DESIGNABLE true STORED true)
    Q_PROPERTY(QString LabelText READ labelText WRITE setLabelText DESIGNABLE true STORED true)
    Q_PROPERTY(bool ReadOnly READ isReadOnly WRITE setReadOnly DESIGNABLE true STORED true)
    Q_PROPERTY(bool Locked READ isLocked WRITE setLocked DESIGNABLE true STORED true)
    Q_PROPERTY(int UpdateDelay READ updateDelay WRITE setUpdateDelay DESIGNABLE true STORED true)

public:
    explicit QKXWidgetBase(QWidget *parent = nullptr);
    ~QKXWidgetBase() override;

    virtual QString attributeName() const;
    virtual void setAttributeName(const QString &name);
    virtual QString labelText() const;
    Q_INVOKABLE virtual void setLabelText(QString label);
    virtual bool isReadOnly() const;
    virtual bool isLocked() const;
    virtual int updateDelay() const;
    virtual void setUpdateDelay(int delay);
    virtual QString currentSize() const;
    // Installs the host's edit filter on the widget (and, through the Private, on its input control).
    virtual void installEventFilter(QObject *filter);
    virtual void retranslate();

    Q_INVOKABLE QObject *getEventFilter() const;

public Q_SLOTS:
    virtual void setReadOnly(bool isRO);
    virtual void setLocked(bool isL);
    virtual void changeSize(QString size);

Q_SIGNALS:
    // The new state of the debug switch: true means this widget's debug output is off.
    void suppressDebug(bool);

protected:
    QKXWidgetBase(QKXWidgetBasePrivate &dd, QWidget *parent);
    void mouseReleaseEvent(QMouseEvent *event) override;

    QScopedPointer<QKXWidgetBasePrivate> d_ptr;

private:
    Q_DISABLE_COPY(QKXWidgetBase)
    Q_DECLARE_PRIVATE(QKXWidgetBase)
};

#endif // QKXWIDGETBASE_H
