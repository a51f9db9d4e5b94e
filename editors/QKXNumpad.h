// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXNUMPAD_H
#define QKXNUMPAD_H

#include "QKXKeyPadBase.h"

#include <QList>
#include <QStringList>

class QKXNumpadPrivate;

// The numeric pad: edits the display of a numeric field in base 10, 16, 8 or 2 and commits it in the
// form its filter's "DataType" calls for. Keys type into the field itself, so the field's own filter
// sees the same text the pad commits.
class STANDALONEPLUGINS_EXPORT QKXNumpad : public QKXKeyPadBase
{
    Q_OBJECT
public:
    explicit QKXNumpad(QWidget *parent = nullptr);
    ~QKXNumpad() override;

    // The unit key of that index (0..3) on the units page.
    QPushButton *unitButton(int index) const;

public Q_SLOTS:
    // A null filter, or a widget without a line edit, leaves the pad hidden and unconnected.
    void registerWidget(QObject *filter, QWidget *widget) override;
    void unregister() override;
    // Cancels the registered edit directly on a numeric filter; other filters are left alone.
    void cancel();

protected Q_SLOTS:
    void buttonPress() override;
    // Commits on every Enter. Text that does not read in the pad's base (a lone "-", "nan", a point
    // in hex) commits 0, and an "Int" beyond the int range its saturated value, each with a debug
    // line. Enter on a field with units commits with the neutral units string and leaves the field's
    // unit alone; only unit keys write "UnitIndex".
    void buttonSubmit() override;
    virtual void setBase(int base);
    virtual void initDecEntry();
    virtual void initHexEntry();
    virtual void initOctEntry();
    virtual void initBinEntry();
    // Also keeps the container's normal size in step, so that the 318-pixel hex pad opens 318 wide.
    virtual void resizeNumpad(int w, int h, bool isHex = false);
    virtual void setReadingText(const QString &txt);

protected:
    void createNumpadButtons() override;
    virtual void createHexEnterButtons();
    virtual void createUnitButtons();
    // One key per unit, at most four: caption, "UnitString" and "UnitIndex" of each; the rest hidden.
    virtual void updateUnitButtons(QStringList names, QStringList unitStrings, QList<int> indexes);
    // The widget's "UnitList" as key captions, units strings and indexes, in list order. An entry with
    // fewer than four elements gets no key, with a debug line.
    virtual void processUnitData(QWidget *widget, QStringList &names, QStringList &unitStrings, QList<int> &indexes);

private:
    Q_DISABLE_COPY(QKXNumpad)
    Q_DECLARE_PRIVATE(QKXNumpad)
};

#endif // QKXNUMPAD_H
