// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXSAVETRACEBUTTON_H
#define QKXSAVETRACEBUTTON_H

#include "QKXPushButton.h"

class QKXSaveTraceButtonPrivate;

// A command button drawn as the application's 32 x 32 save-trace icon, without caption or lock mark.
class STANDALONEPLUGINS_EXPORT QKXSaveTraceButton : public QKXPushButton
{
    Q_OBJECT
public:
    explicit QKXSaveTraceButton(QWidget *parent = nullptr);
    ~QKXSaveTraceButton() override;

private:
    Q_DISABLE_COPY(QKXSaveTraceButton)
    Q_DECLARE_PRIVATE(QKXSaveTraceButton)
};

#endif // QKXSAVETRACEBUTTON_H
