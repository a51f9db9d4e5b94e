// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXBROWSEBUTTON_H
#define QKXBROWSEBUTTON_H

#include "QKXPushButton.h"

class QKXBrowseButtonPrivate;

// A command button that remembers a file name. Its filter takes the file chosen in the host's file
// browser and submits it; the host writes the engine's file back through setFilename().
class STANDALONEPLUGINS_EXPORT QKXBrowseButton : public QKXPushButton
{
    Q_OBJECT
public:
    explicit QKXBrowseButton(QWidget *parent = nullptr);
    ~QKXBrowseButton() override;

    Q_INVOKABLE QString filename() const;

public Q_SLOTS:
    // Announces the name even when it is the one already held.
    void setFilename(QString name);

Q_SIGNALS:
    void filenameChanged(QString newName);

private:
    Q_DISABLE_COPY(QKXBrowseButton)
    Q_DECLARE_PRIVATE(QKXBrowseButton)
};

#endif // QKXBROWSEBUTTON_H
