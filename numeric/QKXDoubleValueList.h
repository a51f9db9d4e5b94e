// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXDOUBLEVALUELIST_H
#define QKXDOUBLEVALUELIST_H

#include "standaloneplugins_export.h"

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QButtonGroup;
class QKXComboListFrame;
class QVBoxLayout;

// The popup of a discrete value list: a transparent overlay over the screen with a column of the
// allowed values under the widget (over it when there is no room below). A tap on a value submits it
// with its units string; a tap beside the column does nothing.
class STANDALONEPLUGINS_EXPORT QKXDoubleValueList : public QWidget
{
    Q_OBJECT
public:
    explicit QKXDoubleValueList(QWidget *parent = nullptr);
    ~QKXDoubleValueList() override;

    QWidget *widget() const;
    QObject *filter() const;
    QKXComboListFrame *listFrame() const;
    QButtonGroup *buttonGroup() const;
    // The values and units strings the column offers, in column order.
    QList<double> values() const;
    QStringList unitStrings() const;

    // One button per entry; an entry too short for a value and a units string is left out with a
    // debug line, and button ids count the entries kept. Buttons a shorter list leaves over are
    // hidden and kept without a parent for the next longer one.
    virtual void processMetaDataForList(QVariant data);

public Q_SLOTS:
    void registerWidget(QObject *filter, QWidget *widget);
    void hideThis();
    void unregister();
    void translateButtonId(int id);

Q_SIGNALS:
    void cancel();
    void done();
    void submit(double value, QString unit);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    Q_DISABLE_COPY(QKXDoubleValueList)
    void placeColumn();

    QPointer<QObject> registeredFilter;
    QKXComboListFrame *frame;
    QButtonGroup *group;
    QVBoxLayout *layout;
    QPointer<QWidget> registered;
    QList<double> valueList;
    QStringList unitStringList;
};

#endif // QKXDOUBLEVALUELIST_H
