// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXEDITSTATEFILTER_H
#define QKXEDITSTATEFILTER_H

#include "QKXEventFilterBase.h"

class QKXEditStateFilterPrivate;

// The idle/edit machine every editing filter runs (numeric, text, combo, slider, date and time).
// Idle is entered at start and on editEnd(): the inner editor is disabled and the edit lock released.
// Edit is entered on editStart(): the current value is remembered for a cancel and the inner editor
// enabled and focused. Families say how to remember and restore a value, and which child edits.
class STANDALONEPLUGINS_EXPORT QKXEditStateFilter : public QKXEventFilterBase
{
    Q_OBJECT
public:
    // Which taps ask the host for the edit lock.
    enum LockRule {
        AlwaysRequestLock,          // every tap asks for the lock
        RequestLockWithAdapter      // without an adapter the edit starts at once, without a lock
    };
    // Whether the machine starts with the filter or waits for the host's startMachine().
    enum StartRule {
        StartWithParent,            // starts at construction when there is a parent
        StartOnRequest              // only startMachine() starts it
    };

    QKXEditStateFilter(QObject *parent, QObject *adapter,
                       LockRule lockRule = AlwaysRequestLock, StartRule startRule = StartWithParent);
    ~QKXEditStateFilter() override;

    QObject *adapter() const;
    bool isMachineStarted() const;
    bool isEditing() const;

    // The child control that edits the value (a line edit for most families), or null.
    QWidget *innerEditor() const;

public Q_SLOTS:
    void lockAcquired(QWidget *widget) override;
    virtual void cancel();
    void startMachine();

protected Q_SLOTS:
    virtual void idleStateInit();
    virtual void editStateInit();

protected:
    QKXEditStateFilter(QKXEditStateFilterPrivate &dd, QObject *parent);

    void setInnerEditor(QWidget *editor);
    void attempLockSendLockSignal(QWidget *widget, bool locked) override;

    // Called on entering edit: keep what a cancel needs. The base keeps nothing.
    virtual void rememberValue();
    // Called by cancel() before editEnd(): put the remembered value back. The base does nothing.
    virtual void restoreValue();

    // How the value an edit starts from is read for a cancel to put back.
    enum StartValueType {
        IntegerStartValue,   // the adapter's get() returning int
        DoubleStartValue,    // the adapter's get() returning double
        NoStartValue         // the adapter has no value of the filter's type
    };
    // With an adapter, its get() as the type says; without one, the widget's value(). False when a
    // value was due but could not be read; *value is 0 then.
    bool readStartValue(StartValueType type, double *value) const;

    // For filters whose field is typed into: Return and Enter call commitTypedText(), Escape cancels.
    void handleEntryKeys(QKeyEvent *event);
    // Commits what was typed into the field; the base does nothing.
    virtual void commitTypedText();

private:
    Q_DISABLE_COPY(QKXEditStateFilter)
    Q_DECLARE_PRIVATE(QKXEditStateFilter)
};

#endif // QKXEDITSTATEFILTER_H
