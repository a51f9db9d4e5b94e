// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTEXTENTRY_H
#define QKXTEXTENTRY_H

#include "QKXWidgetBase.h"

class QKXTextEntryPrivate;

// The field of a text attribute: a caption over a one-line text field. Its edit filter and the popup
// editor the host opens (keyboard, numeric pad for dotted addresses, signalling keypads) type straight
// into the field; the widget itself only shows what it is given. EntryMode tells the host which editor
// the attribute needs, and the widget and the keyboard read it to mask passwords.
//
// A new field starts in KeyboardEntry: forms that set no mode get the plain keyboard and plain text.
// A text longer than the field holds (32767 characters) is cut to its beginning, which is what the
// field shows of a long text anyway, with a line on the debug stream.
class STANDALONEPLUGINS_EXPORT QKXTextEntry : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText DESIGNABLE true SCRIPTABLE true STORED true)
    Q_PROPERTY(EntryModeEnum EntryMode READ entryMode WRITE setEntryMode)

public:
    enum EntryModeEnum : int {
        KeyboardEntry = 0,
        IPEntry = 1,
        PasswordEntry = 2,
        DtmfEntry = 3,
        None = 4,
        ToneCodeEntry = 5,
        dPMREntry = 6
    };
    Q_ENUM(EntryModeEnum)

    explicit QKXTextEntry(QWidget *parent = nullptr);
    ~QKXTextEntry() override;

    // What the field holds now: during an edit, what the editor has typed so far.
    Q_INVOKABLE QString text() const;
    Q_INVOKABLE EntryModeEnum entryMode() const;

public Q_SLOTS:
    // Announces the text with textChanged() even when it is the one shown: hosts use the signal as the
    // engine's confirmation. The start of a long text stays in view, except in DtmfEntry, where the
    // end does, as a dial string grows at its end.
    void setText(QString text);
    // PasswordEntry masks the field for good: a later mode leaves it masked.
    void setEntryMode(EntryModeEnum num);

Q_SIGNALS:
    void textChanged(QString newText);

protected:
    QKXTextEntry(QKXTextEntryPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXTextEntry)
    Q_DECLARE_PRIVATE(QKXTextEntry)
};

#endif // QKXTEXTENTRY_H
