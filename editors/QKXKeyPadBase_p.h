// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXKEYPADBASE_P_H
#define QKXKEYPADBASE_P_H

//
//  W A R N I N G
//  -------------
// Not part of the library's public API: the numeric pad and the signalling keypads build on it.
//

#include "QKXKeyPadBase.h"

#include <QMap>
#include <QPointer>
#include <QString>

class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedLayout;
class QVBoxLayout;

class QKXKeyPadBasePrivate
{
public:
    explicit QKXKeyPadBasePrivate(QKXKeyPadBase *q) : q_ptr(q) {}
    virtual ~QKXKeyPadBasePrivate() = default;

    // The pad's sheet, with the opaque panel of "-notransparency" when the application asks for it.
    static QString styleSheet();

    // Copies the edited text into the pad's own display.
    void mirror();
    // The character before the cursor goes, and a sign left on its own goes with it; the display
    // follows. False, with nothing changed, at the start of the text.
    bool backspace();
    // A key of the signalling keypads: backspace, clear, or its caption typed at the cursor (over any
    // selection), the display following. False when the key changed nothing.
    bool typeKey(QPushButton *key);
    // Registration of a text field on the signalling keypads: an edit the pad was serving is cancelled
    // first; a field without a line edit is not taken. Given an unknownTypeLine, only a filter whose
    // "DataType" is "TextString" gets the pad's commits, and the others that line on the debug stream;
    // without one, every filter gets them.
    void registerTextField(QObject *filter, QWidget *widget, const char *unknownTypeLine);

    // The registered widget's limit property, 0 when it has none.
    double widgetLimit(const char *name) const;
    bool limitsNegative() const;

    QKXKeyPadBase *q_ptr;
    // Not owned; guarded because the host may delete a screen while its widget is registered.
    QPointer<QObject> filter;
    QPointer<QLineEdit> entry;
    QPointer<QWidget> widget;
    QLineEdit *display = nullptr;
    QMap<QString, QPushButton *> buttons;
    int normalWidth = 260;
    int normalHeight = 400;
    int base = 10;
    int gridRow = 0;
    int gridColumn = 0;
    QString dataType;
    QLabel *caption = nullptr;
    QFrame *numpadFrame = nullptr;
    QHBoxLayout *controlRow = nullptr;
    QHBoxLayout *keyRow = nullptr;
    QStackedLayout *enterStack = nullptr;
    QGridLayout *digitGrid = nullptr;
    bool isLive = false;
    QString cancelText = QStringLiteral("Cancel");
    QString clearText = QStringLiteral("Clear");
    QString enterText = QStringLiteral("Enter");

    QFrame *mainFrame = nullptr;
    QFrame *topOverlay = nullptr;
    QFrame *bottomOverlay = nullptr;
    QVBoxLayout *numpadLayout = nullptr;
    QPushButton *rotateKey = nullptr;

private:
    Q_DECLARE_PUBLIC(QKXKeyPadBase)
};

#endif // QKXKEYPADBASE_P_H
