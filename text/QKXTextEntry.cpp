// SPDX-License-Identifier: BSD-3-Clause
#include "QKXTextEntry.h"

#include "QKXWidgetBase_p.h"

#include "CSS.h"

#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

class QKXTextEntryPrivate : public QKXWidgetBasePrivate
{
public:
    explicit QKXTextEntryPrivate(QKXTextEntry *q);

    void init() override;
    void updateStyle() override;

    virtual QString text() const;
    virtual void setText(const QString &text);
    virtual QKXTextEntry::EntryModeEnum entryMode() const;
    virtual void setEntryMode(QKXTextEntry::EntryModeEnum mode);
    virtual void setIsPassword(bool on);

    // Themes match these sheets as text: the blanks inside them are part of the form.
    static QString minStyleTemplate();
    static QString maxStyleTemplate();

    QLineEdit *lineEdit;
    QString minStyle;
    QString maxStyle;
    QString readOnlyOverlay;
    QString lockedOverlay;
    bool isPassword;
    QKXTextEntry::EntryModeEnum entryModeValue;

private:
    KX_DECLARE_PUBLIC(QKXTextEntry)
};

// The two variants differ only in the sizes of the field's text, of the field and of the caption.
static QString kxtext_styleTemplate(const char *fieldFont, const char *fieldHeight, const char *captionFont)
{
    return QStringLiteral("QLineEdit {    padding: 1px 5px 0px 5px;    margin: 0px;    border: 2px solid #fff;"
                          "    border-radius: 10px;    font-size: %1;    color: #000;    min-height: %2;"
                          "    max-height: %2;    background-color: #fff;    selection-color: #000;"
                          "    selection-background-color: #fff;}QLineEdit:disabled {    background: transparent;"
                          "    border: 2px solid #fff;    color: #fff;}QLabel#Label {    font-size: %3;"
                          "    padding: 4px 5px 0px 8px;    margin: 0px;    border: none;    color: #fff;"
                          "    min-height: 12px;}")
        .arg(QLatin1String(fieldFont), QLatin1String(fieldHeight), QLatin1String(captionFont));
}

QString QKXTextEntryPrivate::minStyleTemplate()
{
    return kxtext_styleTemplate("14px", "25px", "12px");
}

QString QKXTextEntryPrivate::maxStyleTemplate()
{
    return kxtext_styleTemplate("20px", "32px", "16px");
}

QKXTextEntryPrivate::QKXTextEntryPrivate(QKXTextEntry *q)
    : QKXWidgetBasePrivate(q)
    , lineEdit(nullptr)
    , minStyle(minStyleTemplate())
    , maxStyle(maxStyleTemplate())
    , readOnlyOverlay(QStringLiteral("   QLineEdit:disabled {       border-color: ") + CSS::border()
                      + QStringLiteral(";   }"))
    , lockedOverlay(QStringLiteral("QLineEdit:disabled {    background-image: url(:/images/lock_generic.png);"
                                   "    background-position: top right;    background-repeat: no-repeat;}"))
    , isPassword(false)
    , entryModeValue(QKXTextEntry::KeyboardEntry)
{
}

void QKXTextEntryPrivate::init()
{
    // Runs inside the base constructor: only the QWidget side of q may be used here.
    auto *caption = new QLabel(q);
    caption->setObjectName(QStringLiteral("Label"));
    caption->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setLabel(caption);

    lineEdit = new QLineEdit(q);
    // The field only takes input while the edit filter has an edit open.
    lineEdit->setEnabled(false);
    lineEdit->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    setIsPassword(isPassword);

    auto *layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(caption);
    layout->addWidget(lineEdit);
    q->setLayout(layout);
    q->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);

    updateStyle();
}

void QKXTextEntryPrivate::updateStyle()
{
    setOverlaidStyles(minStyle, maxStyle, lockedOverlay, readOnlyOverlay);
    setIsPassword(isPassword);
}

QString QKXTextEntryPrivate::text() const
{
    return lineEdit->text();
}

void QKXTextEntryPrivate::setText(const QString &text)
{
    if (text.size() > lineEdit->maxLength()) {
        qDebug().noquote() << "UserInterface -" << q->objectName() << "text of" << text.size()
                           << "characters cut to its first" << lineEdit->maxLength();
    }
    lineEdit->setText(text);
    if (entryModeValue != QKXTextEntry::DtmfEntry) {
        lineEdit->setCursorPosition(0);
    }
}

QKXTextEntry::EntryModeEnum QKXTextEntryPrivate::entryMode() const
{
    return entryModeValue;
}

void QKXTextEntryPrivate::setEntryMode(QKXTextEntry::EntryModeEnum mode)
{
    entryModeValue = mode;
    if (mode == QKXTextEntry::PasswordEntry) {
        isPassword = true;
    }
    setIsPassword(isPassword);
}

void QKXTextEntryPrivate::setIsPassword(bool on)
{
    lineEdit->setEchoMode(on ? QLineEdit::Password : QLineEdit::Normal);
}

QKXTextEntry::QKXTextEntry(QWidget *parent)
    : QKXWidgetBase(*new QKXTextEntryPrivate(this), parent)
{
}

QKXTextEntry::QKXTextEntry(QKXTextEntryPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXTextEntry::~QKXTextEntry() = default;

QString QKXTextEntry::text() const
{
    Q_D(const QKXTextEntry);
    return d->text();
}

QKXTextEntry::EntryModeEnum QKXTextEntry::entryMode() const
{
    Q_D(const QKXTextEntry);
    return d->entryMode();
}

void QKXTextEntry::setText(QString text)
{
    Q_D(QKXTextEntry);
    d->setText(text);
    // What the field holds: a text cut to the field's length is announced as it is shown.
    emit textChanged(d->text());
}

void QKXTextEntry::setEntryMode(EntryModeEnum num)
{
    Q_D(QKXTextEntry);
    d->setEntryMode(num);
}
