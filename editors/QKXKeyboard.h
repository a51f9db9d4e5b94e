// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXKEYBOARD_H
#define QKXKEYBOARD_H

#include "ContainerImpl.h"
#include "standaloneplugins_export.h"

#include <QScopedPointer>

class QLineEdit;
class QPushButton;
class QKXKeyboardPrivate;

// The popup keyboard for text fields: four pages of keys (lower case, upper case, digits and
// punctuation, symbols), an echo line of the text, and enter, cancel, clear, backspace and space. Keys
// edit the registered field's own line edit at its cursor; the echo follows it, masked like the field
// when the field is a password. Enter and cancel end the edit through the field's filter.
//
// With the application's "-res" at "480x800" the keyboard is the compact 480 x 280 one with smaller
// key captions; otherwise it is 680 x 325. "-notransparency" "true" makes its panel opaque.
class STANDALONEPLUGINS_EXPORT QKXKeyboard : public ContainerImpl
{
    Q_OBJECT
    Q_PROPERTY(KeyBoardMode KeyMode READ keyMode WRITE setKeyMode)

public:
    enum KeyBoardMode : int { LOWER_CASES = 0, UPPER_CASES = 1, SYMBOLS = 2, NUMBERS = 3 };
    Q_ENUM(KeyBoardMode)

    explicit QKXKeyboard(QWidget *parent = nullptr);
    ~QKXKeyboard() override;

    // The page last chosen by the page keys. setKeyMode() only records a mode: hosts keep their own
    // note of it there, and the page stays as it is.
    Q_INVOKABLE virtual KeyBoardMode keyMode() const;
    Q_INVOKABLE virtual void setKeyMode(KeyBoardMode mode);

    // Hands the keyboard a field to edit: an edit the keyboard was serving is cancelled first. A field
    // without a line edit is taken without effect, and the keyboard stays hidden.
    virtual void registerWidget(QObject *filter, QWidget *widget);

    int getWidth() const;
    void setWidth(int width);
    int getHeight() const;
    void setHeight(int height);

    // The echo line, the field being edited (null while none is), and the key of the page shown
    // whose caption reads so (null for none).
    QLineEdit *display() const;
    QWidget *registeredWidget() const;
    QPushButton *key(const QString &caption) const;

    void retranslate() override;
    void updateStyle() override;

public Q_SLOTS:
    void changeSizeSlot(QString size);

Q_SIGNALS:
    void cancelEntry();
    void done();
    void submit(QString text);

protected Q_SLOTS:
    // Opens beside the field, as the key pads do.
    void showEvent(QShowEvent *event) override;
    void swapUppercase();
    void swapLowercase();
    void showABCKeys();
    void showNumberKeys();
    void showSymbolKeys();
    virtual void buttonPress();
    virtual void buttonSubmit();
    virtual void buttonCancel();
    virtual void buttonSpace();
    virtual void buttonClear();
    virtual void buttonBackSpace();
    virtual void unregister();
    virtual void setText(QString text);
    virtual void insert(QString text);

protected:
    virtual void initialize();

private:
    Q_DISABLE_COPY(QKXKeyboard)
    QScopedPointer<QKXKeyboardPrivate> d_ptr;
    Q_DECLARE_PRIVATE(QKXKeyboard)
};

#endif // QKXKEYBOARD_H
