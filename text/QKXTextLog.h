// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXTEXTLOG_H
#define QKXTEXTLOG_H

#include "QKXWidgetBase.h"

class QTextEdit;
class QKXTextLogPrivate;

// A read-only, scrolling log of an attribute's texts: each setText() adds the text as a new paragraph
// at the end, and the oldest paragraphs go so that no more than Limit remain. A text may be rich text;
// a text with line breaks adds one paragraph per line.
//
// The log keeps the newest Limit paragraphs whole: the oldest paragraph is the one dropped, never the
// first line blanked, so a full log shows exactly the last Limit lines the engine sent. A Limit of 0
// or less keeps nothing. The log keeps no undo history, so its memory stays bounded however many
// texts arrive.
class STANDALONEPLUGINS_EXPORT QKXTextLog : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(int Limit READ limit WRITE setLimit DESIGNABLE true SCRIPTABLE true STORED true)

public:
    explicit QKXTextLog(QWidget *parent = nullptr);
    ~QKXTextLog() override;

    int limit() const;
    void setLimit(const int &limit);

    // The view the texts are shown in.
    QTextEdit *textEdit() const;

public Q_SLOTS:
    void clear();
    void setText(QString text);

protected:
    QKXTextLog(QKXTextLogPrivate &dd, QWidget *parent);

private:
    Q_DISABLE_COPY(QKXTextLog)
    Q_DECLARE_PRIVATE(QKXTextLog)
};

#endif // QKXTEXTLOG_H
