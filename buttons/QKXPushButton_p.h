// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXPUSHBUTTON_P_H
#define QKXPUSHBUTTON_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the derived buttons build on this Private.
//

#include "QKXPushButton.h"
#include "QKXWidgetBase_p.h"

class QLabel;
class QPushButton;

class STANDALONEPLUGINS_EXPORT QKXPushButtonPrivate : public QKXWidgetBasePrivate
{
    Q_OBJECT
public:
    explicit QKXPushButtonPrivate(QKXPushButton *q);
    ~QKXPushButtonPrivate() override;

    void init() override;
    void setLocked(bool locked) override;
    void setEventFilter(QObject *filter) override;
    void updateStyle() override;

    virtual QString buttonText() const;
    virtual void setButtonText(const QString &text);
    virtual QSize minimumSizeHint() const;
    virtual QSize sizeHint() const;
    virtual void setButtonName(const QString &name);
    virtual void setButtonObjectName(const QString &name);

    // The button's sheet, the same for both size variants.
    static QString styleTemplate();

    QString style;
    QPushButton *button;
    QString buttonTextValue;
    QLabel *lockLabel;

protected Q_SLOTS:
    virtual void buttonClicked();

private:
    KX_DECLARE_PUBLIC(QKXPushButton)
};

#endif // QKXPUSHBUTTON_P_H
