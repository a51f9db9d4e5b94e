// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXWIDGETBASE_P_H
#define QKXWIDGETBASE_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: widget families derive their Privates from this class.
//

#include "QKXWidgetBase.h"

#include <QHash>
#include <QObject>
#include <QString>

class QLabel;
class QMouseEvent;

// Gives a Private derived from QKXWidgetBasePrivate a typed q_func() over the base's back pointer.
// init() runs inside QKXWidgetBase's constructor, when the public object is not yet of the derived
// type: there, work through the base pointer q, never through q_func() or Q_Q.
#define KX_DECLARE_PUBLIC(Class)                                                           \
    inline Class *q_func() { return static_cast<Class *>(q); }                             \
    inline const Class *q_func() const { return static_cast<const Class *>(q); }           \
    friend class Class;

class STANDALONEPLUGINS_EXPORT QKXWidgetBasePrivate : public QObject
{
    Q_OBJECT
public:
    explicit QKXWidgetBasePrivate(QKXWidgetBase *q);
    ~QKXWidgetBasePrivate() override;

public Q_SLOTS:
    virtual void init();
    virtual QString attributeName() const;
    virtual void setAttributeName(const QString &name);
    virtual QString labelText() const;
    virtual void setLabelText(const QString &text);
    virtual bool isReadOnly() const;
    virtual void setReadOnly(bool readOnly);
    virtual bool isLocked() const;
    virtual void setLocked(bool locked);
    virtual bool supressDebug() const;
    virtual void setSupressDebug(bool supress);
    virtual int updateDelay() const;
    virtual void setUpdateDelay(int delay);
    virtual QString currentSize() const;
    virtual void changeSize(const QString &size);
    virtual QObject *getEventFilter() const;
    virtual void setEventFilter(QObject *filter);
    // The switch's line names the window in double quotes and ends without a blank, so that log
    // readers can match it whole.
    virtual void supressClicked(QMouseEvent *event);
    virtual QLabel *label();
    virtual void setLabel(QLabel *label);
    virtual void updateStyle();

public:
    // The Private of any widget of the library, for the families that reach into a child widget's
    // state (a numeric field clearing the caption of its unit selector).
    static QKXWidgetBasePrivate *get(QKXWidgetBase *widget) { return widget->d_func(); }
    static const QKXWidgetBasePrivate *get(const QKXWidgetBase *widget) { return widget->d_func(); }

    // The overlay rule shared by the families with a compact and a large look: each entry is the
    // family's template, then its locked overlay when locked, then its read-only overlay when read-only.
    void setOverlaidStyles(const QString &minTemplate, const QString &maxTemplate,
                           const QString &lockedOverlay, const QString &readOnlyOverlay);

    // True in the display modes ("-size" "small_portrait" or "landscape") whose screens are too small
    // for any widget's large look, and in which shown texts stay untranslated.
    static bool isCompactDisplayMode();

    // True once the application reports the end of its start-up ("state" "initialized"). Before it,
    // records and values arrive in no fixed order, and a value a record lacks is not worth a line.
    static bool isApplicationInitialized();

    QKXWidgetBase *q;
    QString attributeNameValue;
    QString currentSizeName;
    QHash<QString, QString> styles;
    bool readOnly;
    bool locked;
    bool supressDebugOutput;
    int updateDelayValue;
    QObject *filter;
    QLabel *labelWidget;

private:
    KX_DECLARE_PUBLIC(QKXWidgetBase)
};

#endif // QKXWIDGETBASE_P_H
