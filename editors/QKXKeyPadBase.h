// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXKEYPADBASE_H
#define QKXKEYPADBASE_H

#include "ContainerImpl.h"
#include "QKXEntryBase.h"
#include "standaloneplugins_export.h"

#include <QScopedPointer>

class QLabel;
class QLineEdit;
class QPushButton;
class QKXKeyPadBasePrivate;

// The popup key pad frame shared by the numeric pad and the signalling keypads: a dark rounded panel
// with a display line mirroring the edited field, a row of control keys, a digit grid, an enter column
// and a key that asks the host for another editor. The pad types straight into the registered widget's
// own line edit; its signals are chained to the registered filter's for the length of an edit.
class STANDALONEPLUGINS_EXPORT QKXKeyPadBase : public ContainerImpl, public QKXEntryBase
{
    Q_OBJECT
    Q_PROPERTY(bool IsLive READ isLive WRITE setLive DESIGNABLE true SCRIPTABLE true STORED true)

public:
    // Keys share their outlines: each draws its top and right border, the left column and the bottom
    // row add the outer ones, and only the named outer corners are rounded.
    explicit QKXKeyPadBase(QWidget *parent = nullptr);
    ~QKXKeyPadBase() override;

    bool isLive() const;
    virtual void showRotateButton(bool show);
    virtual void setLive(bool live);

    // The key of that name ("cancel", "clear", "bksp", "0".."9", "enter", ...), or null.
    QPushButton *button(const QString &name) const;
    QStringList buttonNames() const;
    QLineEdit *display() const;
    QLabel *caption() const;
    QPushButton *rotateButton() const;

    // What is registered for the current edit; null while the pad is free.
    QObject *registeredFilter() const;
    QWidget *registeredWidget() const;
    QLineEdit *entry() const;
    QString dataType() const;
    int base() const;

    void retranslate() override;
    // The pad's sheet is built once; the container's own look is not wanted under it.
    void updateStyle() override;

public Q_SLOTS:
    // Public, so that a host can close the pad itself.
    virtual void unregister();

Q_SIGNALS:
    void cancelEntry();
    void done();
    void submit(double value);
    void submit(int value);
    void submit(double value, QString units);
    void submit(int value, QString units);
    void submit(QString text);
    void rotateEntry();
    void editEnd();

protected Q_SLOTS:
    virtual void buttonPress() = 0;
    virtual void buttonSubmit();
    void showEvent(QShowEvent *event) override;

protected:
    QKXKeyPadBase(QKXKeyPadBasePrivate &dd, QWidget *parent);

    virtual void createControlButtons();
    virtual void createEnterButtons();
    virtual void createNumpadButtons();
    // A key: caption, object name, Minimum size policy both ways, no focus, clicked() connected to
    // member (a SLOT() or SIGNAL() of this pad). The caller files it under its key name.
    virtual QPushButton *createButton(const QString &text, const char *member, const QString &name);
    // Lets go of filter, entry and widget and cuts every connection with the filter, both ways.
    virtual void resetWidgets();

    void resizeEvent(QResizeEvent *event) override;

    QScopedPointer<QKXKeyPadBasePrivate> d_ptr;

private:
    Q_DISABLE_COPY(QKXKeyPadBase)
    Q_DECLARE_PRIVATE(QKXKeyPadBase)
};

#endif // QKXKEYPADBASE_H
