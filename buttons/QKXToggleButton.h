// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTOGGLEBUTTON_H
#define QKXTOGGLEBUTTON_H

#include "QKXWidgetBase.h"

class QKXToggleButtonPrivate;

// The attribute-bound on/off button. A tap never switches it: the filter asks the engine for the
// opposite state and the button shows "Loading" until the engine's answer comes back through
// setActiveState().
class STANDALONEPLUGINS_EXPORT QKXToggleButton : public QKXWidgetBase
{
    Q_OBJECT
    // On a toggle the caption is the inner button's own text.
    Q_PROPERTY(QString LabelText READ label WRITE setLabel DESIGNABLE true STORED true)
    Q_PROPERTY(QString OnText READ onText WRITE setOnText DESIGNABLE true STORED true)
    Q_PROPERTY(QString OffText READ offText WRITE setOffText DESIGNABLE true STORED true)
    Q_PROPERTY(QString LoadingText READ loadingText WRITE setLoadingText DESIGNABLE true STORED true)
    Q_PROPERTY(bool State READ activeState WRITE setActiveState DESIGNABLE true STORED true)

public:
    explicit QKXToggleButton(QWidget *parent = nullptr);
    ~QKXToggleButton() override;

    virtual QString onText() const;
    virtual void setOnText(const QString &text);
    virtual QString offText() const;
    virtual void setOffText(const QString &text);
    virtual QString loadingText() const;
    virtual void setLoadingText(const QString &text);
    Q_INVOKABLE virtual bool activeState() const;
    virtual QString label() const;
    virtual void setLabel(const QString &text);

    // The filter watches the inner button, not the widget itself.
    void installEventFilter(QObject *filter) override;
    void retranslate() override;

public Q_SLOTS:
    virtual void setActiveState(bool state);
    virtual void setButtonLoading();
    void setLocked(bool isL) override;

Q_SIGNALS:
    void toggled(bool);

protected:
    QKXToggleButton(QKXToggleButtonPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXToggleButton)
    Q_DECLARE_PRIVATE(QKXToggleButton)
};

#endif // QKXTOGGLEBUTTON_H
