// SPDX-License-Identifier: BSD-3-Clause
#ifndef CONTAINERDIALOG_H
#define CONTAINERDIALOG_H

#include "ContainerBase.h"

class QBoxLayout;

// The instrument's prompt: a framed box centred over its parent screen, which it covers with a dimmed
// veil while open so that nothing behind it takes a tap. exec(true) blocks until an answer key is
// pressed or the dialog is cancelled.
class NORVANEHOST_EXPORT ContainerDialog : public ContainerBase
{
    Q_OBJECT
public:
    // What exec() returns when the dialog closes without an answer key.
    enum { Cancelled = -1 };

    explicit ContainerDialog(QWidget *parent = nullptr);
    ~ContainerDialog() override;

    // Builds a row of answer keys from "Label,code|Label,code" and reports their number in count.
    // Each key closes the dialog it belongs to (parent, when that is a ContainerDialog) with its code.
    // Malformed pairs are reported on the debug stream and left out.
    static QBoxLayout *createButtonLayout(QWidget *parent, const QString &buttons, long &count);

    // Shows the dialog. Modal: runs until it closes and returns the chosen code (Cancelled when
    // cancelled). Not modal: returns Cancelled at once; the answer arrives through finished().
    int exec(bool modal = true);

    int result() const;

public Q_SLOTS:
    void done(int code);
    void cancelDialog();

Q_SIGNALS:
    void finished(int code);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Data;
    QScopedPointer<Data> m;
};

#endif // CONTAINERDIALOG_H
