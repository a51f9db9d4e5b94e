// SPDX-License-Identifier: BSD-3-Clause
#ifndef QKXDATEWIDGET_H
#define QKXDATEWIDGET_H

#include "QKXWidgetBase.h"

class QKXDateWidgetPrivate;

// A date-valued attribute: a caption over a one-line display of the local date of a count of seconds
// since 1970-01-01 00:00 UTC. The count is unsigned 32-bit, so dates up to 7 February 2106 show. The
// widget only shows; QKXAttribLongLongEventFilter and the date editor do the editing, reading the
// value and the editor's column order from the properties below.
class STANDALONEPLUGINS_EXPORT QKXDateWidget : public QKXWidgetBase
{
    Q_OBJECT
    Q_PROPERTY(qlonglong Value READ value WRITE setValue DESIGNABLE true STORED true)
    Q_PROPERTY(InputDateFormat inputFormat READ inputFormat WRITE setInputFormat DESIGNABLE true STORED true)
    Q_PROPERTY(DisplayDateFormat displayFormat READ displayFormat WRITE setDisplayFormat DESIGNABLE true STORED true)

public:
    // The order of month, day and year in the date editor.
    // Over int, so that any number a form or host writes is a value the widget can hold.
    enum InputDateFormat : int { MM_DD_YYYY = 0, DD_MM_YYYY = 1, YYYY_MM_DD = 2 };
    Q_ENUM(InputDateFormat)
    // The shown text: "03 05, 2012", "05 03 2012" or "Mar 5, 2012".
    enum DisplayDateFormat : int { MM_dd_yyyy = 0, dd_MM_yyyy = 1, MMM_d_YYYY = 2 };
    Q_ENUM(DisplayDateFormat)

    explicit QKXDateWidget(QWidget *parent = nullptr);
    ~QKXDateWidget() override;

    Q_INVOKABLE virtual qlonglong value() const;
    Q_INVOKABLE virtual InputDateFormat inputFormat() const;
    Q_INVOKABLE virtual DisplayDateFormat displayFormat() const;

public Q_SLOTS:
    // A count outside 0 to 4294967295 (negative ones too) is neither stored nor shown: the widget
    // keeps its value and text and says so on the debug stream.
    virtual void setValue(qlonglong value);
    // The editor reads the input format when it opens; a new display format shows with the next value.
    virtual void setInputFormat(InputDateFormat dateFormat);
    virtual void setDisplayFormat(DisplayDateFormat dateFormat);

private:
    Q_DISABLE_COPY(QKXDateWidget)
    Q_DECLARE_PRIVATE(QKXDateWidget)
};

#endif // QKXDATEWIDGET_H
