// SPDX-License-Identifier: BSD-3-Clause
#include "QKXTextLog.h"

#include "QKXWidgetBase_p.h"

#include "CSS.h"
#include "VerticalScrollBarImpl.h"

#include <QTextDocument>
#include <QTextEdit>
#include <QVBoxLayout>

class QKXTextLogPrivate : public QKXWidgetBasePrivate
{
public:
    explicit QKXTextLogPrivate(QKXTextLog *q);
    ~QKXTextLogPrivate() override;

    void init() override;

    virtual void addText(const QString &text);
    virtual void clear();
    virtual int limit() const;
    virtual void setLimit(const int &limit);
    virtual void trim();

    QTextEdit *textEdit;
    int limitValue;

private:
    KX_DECLARE_PUBLIC(QKXTextLog)
};

QKXTextLogPrivate::QKXTextLogPrivate(QKXTextLog *q)
    : QKXWidgetBasePrivate(q)
    , textEdit(new QTextEdit)
    , limitValue(50)
{
    textEdit->setReadOnly(true);
    // A log is never undone: an undo history would keep every text that ever passed through.
    textEdit->setUndoRedoEnabled(false);
}

// The view belongs to the widget once init() has laid it out; until then, to the Private.
QKXTextLogPrivate::~QKXTextLogPrivate()
{
    if (textEdit && !textEdit->parent()) {
        delete textEdit;
    }
}

void QKXTextLogPrivate::init()
{
    // Runs inside the base constructor: only the QWidget side of q may be used here.
    auto *layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textEdit);
    q->setLayout(layout);

    // Set on the widget itself: the log has no size variants. The first rule styles the log as the
    // designer names it.
    q->setStyleSheet(QStringLiteral("QWidget#QKXTextLog {    background-color: rgb(63,63,63);    border: 2px solid ")
                     + CSS::border()
                     + QStringLiteral(";    border-radius: 18px;}QTextEdit {    background-color: rgb(153,153,153);"
                                      "    border: 2px solid ")
                     + CSS::border()
                     + QStringLiteral(";    border-radius: 14px;    padding: 0px 0px -2px 0px;}"));
    // A plain widget paints no sheet background of its own without this.
    q->setAttribute(Qt::WA_StyledBackground, true);

    textEdit->setVerticalScrollBar(new Norvane::gui::VerticalScrollBarImpl(q));
    trim();
}

void QKXTextLogPrivate::addText(const QString &text)
{
    textEdit->append(text);
    trim();
}

void QKXTextLogPrivate::clear()
{
    textEdit->clear();
}

int QKXTextLogPrivate::limit() const
{
    return limitValue;
}

void QKXTextLogPrivate::setLimit(const int &limit)
{
    limitValue = limit;
    trim();
}

void QKXTextLogPrivate::trim()
{
    QTextDocument *document = textEdit->document();
    if (limitValue > 0) {
        // The document drops its oldest paragraphs whole as new ones arrive, in one step however many
        // go, and frees their text as it goes.
        document->setMaximumBlockCount(limitValue);
        return;
    }
    document->setMaximumBlockCount(0);
    if (!document->isEmpty()) {
        textEdit->clear();
    }
}

QKXTextLog::QKXTextLog(QWidget *parent)
    : QKXWidgetBase(*new QKXTextLogPrivate(this), parent)
{
}

QKXTextLog::QKXTextLog(QKXTextLogPrivate &dd, QWidget *parent)
    : QKXWidgetBase(dd, parent)
{
}

QKXTextLog::~QKXTextLog() = default;

int QKXTextLog::limit() const
{
    Q_D(const QKXTextLog);
    return d->limit();
}

void QKXTextLog::setLimit(const int &limit)
{
    Q_D(QKXTextLog);
    d->setLimit(limit);
}

QTextEdit *QKXTextLog::textEdit() const
{
    Q_D(const QKXTextLog);
    return d->textEdit;
}

void QKXTextLog::clear()
{
    Q_D(QKXTextLog);
    d->clear();
}

void QKXTextLog::setText(QString text)
{
    Q_D(QKXTextLog);
    d->addText(text);
}
