// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTOGGLEBUTTON_P_H
#define QKXTOGGLEBUTTON_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the confirmation toggle builds on this Private.
//

#include "QKXToggleButton.h"
#include "QKXWidgetBase_p.h"

class QLabel;
class QPushButton;

class QKXToggleButtonPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXToggleButtonPrivate(QKXToggleButton *q);
    ~QKXToggleButtonPrivate() override;

    void init() override;
    // Also sets the base's flag, so that the Locked property reads back what the host wrote.
    void setLocked(bool locked) override;
    void setEventFilter(QObject *filter) override;
    void updateStyle() override;

    virtual QString onText() const;
    virtual void setOnText(const QString &text);
    virtual QString offText() const;
    virtual void setOffText(const QString &text);
    virtual QString loadingText() const;
    virtual void setLoadingText(const QString &text);
    virtual bool activeState() const;
    // The inner button's caption as shown, translated (the base's label() is the family caption
    // label, which a toggle has not).
    virtual QString caption() const;
    virtual void setCaption(const QString &text);
    virtual void setActiveState(bool state);
    // Shows the on or off look for the text given; any other text keeps the state as it is.
    virtual void setButtonState(const QString &state);
    virtual void setButtonLoading();

    static QString styleTemplate();

    QString onTextValue;
    QString offTextValue;
    QString loadingTextValue;
    bool active;
    QLabel *stateLabel;
    QPushButton *button;
    QString style;
    bool lockedState;

private:
    // A new object name takes effect in the sheet only once the label is polished again.
    void repolishStateLabel();

    KX_DECLARE_PUBLIC(QKXToggleButton)
};

#endif // QKXTOGGLEBUTTON_P_H
